#pragma once

#include <QString>

/// The text that the user reads for a German key: its translation into the language on screen, or
/// the key itself where there is none. Every food name and every caption passes through here.
/// An absent (null) key gives an absent text.
QString localizedString(const QString &schluessel);
