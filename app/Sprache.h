#pragma once

#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

/// The language of the windows. German is the program's own; English is translated. Lives as long
/// as the program: with it go the translations.
class Sprache
{
public:
    /// Sets the language of all texts and the form of all numbers. `wunsch` is "de" or "en"; with
    /// anything else the desktop decides, and a desktop that speaks neither gets German.
    explicit Sprache(const QString &wunsch);

    /// Changes the language while the program runs, for all that asks for its text from then on.
    void sprich(const QString &wunsch);

    ~Sprache();
    Sprache(const Sprache &) = delete;
    Sprache &operator=(const Sprache &) = delete;

private:
    std::vector<std::unique_ptr<QTranslator>> m_uebersetzer;
};
