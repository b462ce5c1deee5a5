#pragma once

#include <QByteArrayView>
#include <QChar>
#include <QList>
#include <QString>
#include <QStringList>

/// Takes apart what spreadsheets and other programs write as a table.
namespace Csv {

/// Larger files are no lists of foods; reading them would only keep the user waiting.
inline constexpr qint64 groessteDatei = 50LL * 1024 * 1024;
inline constexpr int meisteZeilen = 100'000;

/// Why a file can't be read as a table.
enum class Lesefehler {
    Keiner,
    Leer,         ///< nothing stands in it
    ZuGross,      ///< more than `groessteDatei`
    KeinText,     ///< it is no text, or a damaged one
    ZuVieleZeilen ///< more than `meisteZeilen`
};

/// A file as text.
struct Rohtext
{
    Lesefehler fehler = Lesefehler::Keiner;
    QString text;
    QString zeichensatz; ///< "UTF-8", "UTF-16" or "Windows-1252", as users know it
};

/// Finds out how the text is encoded: UTF-8 and UTF-16 by their mark or by what stands there, and
/// Windows-1252 when it is neither.
Rohtext entschluesseln(QByteArrayView bytes);

/// A row of the table.
struct Satz
{
    int zeile = 0;      ///< its line in the file, from 1; of several the first
    QStringList felder; ///< null where nothing stands, empty where quotes stand around nothing
};

/// The rows of a table.
struct Saetze
{
    Lesefehler fehler = Lesefehler::Keiner;
    QList<Satz> saetze;
    int offeneZeile = 0; ///< line of a quote that nothing closes; 0: there is none
};

/// The separators that are looked for.
const QList<QChar> &trennungen();

/// The separator that most rows have as often as the first one has it; that of a first line "sep=;"
/// goes first. A semicolon where there is none.
QChar geratenesTrennzeichen(const QString &text);

/// The rows of a text. Lines end with a line feed, a return or both, the last one may have no end;
/// lines without a sign are passed over, and so is a first line "sep=;". Within quotes everything
/// counts, ends of lines as well, and two quotes are one. Blanks around a field count where it
/// stands in quotes. Marks of `Csv::geschuetzt` are taken off.
Saetze zerlegen(const QString &text, QChar trennung);

} // namespace Csv
