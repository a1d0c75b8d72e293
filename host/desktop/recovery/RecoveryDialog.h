#pragma once

class DocumentSession;
class NoticeBar;
class QString;
class RecoveryCopy;

/// Where work was lost, asks what is to become of it, and gives what is chosen to the session, whose own copy takes the
/// place of the lost one. Answers whether it did; that `wanted`, a file or empty, is not opened then is told.
bool offerRecovery(DocumentSession& session, RecoveryCopy& own, QString const& wanted, NoticeBar& notice);
