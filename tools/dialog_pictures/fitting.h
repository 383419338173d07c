// Judges by measure whether a window has room for its texts. Used by dialog_pictures before it takes a
// picture; looks at Qt's widgets alone.
#pragma once

#include <QStringList>
#include <QWidget>

/// What is wrong with the texts that a window shows, a sentence each: a key in the place of its text, or a
/// text of a label, a button, a group or a list's heading that is wider than its room.
QStringList FaultsOfTexts(const QWidget* window);
