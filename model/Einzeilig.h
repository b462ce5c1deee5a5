#pragma once

#include <QString>

/// A text in one line, to be printed on a terminal: control characters, which it would obey, are
/// spelled out. Names come from files, and a file may come from anybody.
QString einzeilig(const QString &text);
