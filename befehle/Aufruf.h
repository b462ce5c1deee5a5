#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

/// What the program shall do.
enum class Befehl {
    Fenster,      ///< open the windows
    Hilfe,        ///< say how it is called
    Version,      ///< say which one it is
    Auswerten,    ///< print the evaluation of a plan
    Nachschlagen, ///< print the values of a food
};

/// How a command prints what it has found.
enum class Ausgabeform {
    Text, ///< for people, in their language
    Csv,  ///< for programs, the same in every language
    Json, ///< likewise
};

/// What was asked for on the command line.
struct Auftrag
{
    Befehl befehl = Befehl::Fenster;
    QString rundgang;    ///< folder for the pictures of the tour; null: an ordinary start
    QString sprache;     ///< "de" or "en"; null: as kept in the settings or as the desktop has it
    QString datenordner; ///< folder of the user's files; null: the usual one
    QStringList dateien = {}; ///< files to be opened in the windows, by their whole paths
    Ausgabeform form = Ausgabeform::Text;
    QString name;                   ///< file of the plan or name of the food that is asked for
    float gramm = 100;              ///< of the food; finite, not negative
    bool eigenes = false;           ///< only an own food is meant
    std::int32_t energiebedarf = 0; ///< kcal per day that the plan is measured against; 0: unknown
};

/// Why a command line was not understood.
enum class Fehlerart {
    UnbekannteOption,
    AngabeFehlt,     ///< behind an option
    AngabeZuviel,    ///< an option that takes none
    OptionUnpassend, ///< the command has no use for it
    SpracheUnbekannt,
    FormUnbekannt,
    OrdnerLeer,
    BedarfUngueltig,
    BefehlUnbekannt,
    PlanFehlt,
    NameFehlt,
    MengeUngueltig,
    ArgumentZuviel,
};

struct Aufruffehler
{
    Fehlerart art;
    QString wort; ///< what it is about, as it was typed
};

/// A command line as it was understood. With a fault, `auftrag` holds what came before it; of what
/// was asked for, only the language counts then.
struct Aufruf
{
    Auftrag auftrag;
    std::optional<Aufruffehler> fehler;
};

/// Reads a command line, the program's own name first. What is no command is taken for files to be
/// opened when it looks like one: with the ending ".daten", with a "/" in it, or as the address of
/// a file. Options may stand before and behind the
/// command, behind "--" nothing is one. Those by which Qt is told about display and style are
/// passed over: Qt reads them itself.
Aufruf leseAufruf(const QStringList &argumente);
