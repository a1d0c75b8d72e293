#pragma once

class DocumentSession;
class QWidget;
class RecoveryCopy;

/// Where work was lost, asks what is to become of it, and gives what is chosen to the session, whose own copy takes the
/// place of the lost one. Answers whether it did.
bool offerLostDocuments(DocumentSession& session, RecoveryCopy& own, QWidget* parent);
