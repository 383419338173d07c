#pragma once

#include <QStringList>
#include <QWidget>

/// What is wrong with the texts that a window shows, a sentence each: a key that stands where its text
/// should, a text of a label, a button, a group or a list's heading that is wider than its room.
QStringList FaultsOfTexts(const QWidget* window);
