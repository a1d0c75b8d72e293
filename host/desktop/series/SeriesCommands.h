#pragma once

#include "SeriesView.h"

class HostCommands;
class QWidget;
class Workbench;

/// The commands that go from page to page of a series. The series is borrowed.
void addPageCommands(HostCommands& host, SeriesView& series);

/// The command with the dialog about a series. Both are borrowed, and the bench need not be ready yet.
void addSeriesDialog(HostCommands& host, Workbench& bench, QWidget& window);
