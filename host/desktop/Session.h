#pragma once

/// Takes the display and the user's session out of the process, so that a subcommand works and draws alike everywhere.
/// Before the application object.
void prepareEnvironment();

/// Prepares the process for a window on the user's display. Where there is no display, the process ends with a sentence
/// that says what can be done without one. Before the application object.
void prepareWindowEnvironment();

/// Names, locale and GDAL; after the application object.
void prepareApplication();
