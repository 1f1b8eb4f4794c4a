#pragma once

// The dialogs used without a person: pictures of all of them, and one change.

#include <QString>

class Environment;

/// Writes a picture of every dialog and page to the folder of the command line. Nothing is changed.
/// Returns an exit status.
int RunTour(Environment& environment);

/// What the command "config" does without a display: writes pictures of the main dialog, changes
/// one setting, saves it and says what was written where. Returns an exit status.
int RunUnseenConfig(Environment& environment);

/// What the commands of the other dialogs do without a display: writes a picture of the dialog that
/// the function `entry` of the settings library opens. Returns an exit status.
int RunUnseenDialog(Environment& environment, const QString& entry);
