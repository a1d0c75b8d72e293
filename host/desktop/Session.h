#pragma once

/// Takes the display and the user's session out of the process, so that a subcommand works and draws alike everywhere.
/// Before the application object.
void prepareEnvironment();

/// Names, locale and GDAL; after the application object.
void prepareApplication();
