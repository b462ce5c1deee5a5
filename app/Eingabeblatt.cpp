#include "Eingabeblatt.h"

#include "Plausibilitaet.h"
#include "Skalierung.h"
#include "Zahlenform.h"
#include "Zeichenkettentabelle.h"

#include <cmath>

namespace {

/// kcal and mg of sodium get so many digits behind the comma: more is in no label.
constexpr int gehalteneStellen = 1;

/// The line of doubts keeps room for so many lines, so that the fields don't move while one types.
constexpr int zweifelzeilen = 2;

struct Zweifelzeile
{
    Zweifel zweifel;
    const char *text;
    int stellenAngegeben;
    int stellenErrechnet;
};

constexpr Zweifelzeile zweifelworte[] = {
    {Zweifel::EnergieZuKlein,
     QT_TRANSLATE_NOOP("Mahlberg",
                       "Energie prüfen: angegeben %1 kcal, aus den Nährstoffen %2 kcal."),
     0, 0},
    {Zweifel::EnergieZuGross,
     QT_TRANSLATE_NOOP("Mahlberg", "Energie prüfen: angegeben %1 kcal, aus den Nährstoffen %2 "
                                   "kcal. Fehlt ein Nährstoff, oder ist Alkohol darin?"),
     0, 0},
    {Zweifel::Ueber100Gramm,
     QT_TRANSLATE_NOOP("Mahlberg", "Mengen prüfen: Protein, Fett, Kohlenhydrate und "
                                   "Ballaststoffe ergeben %1 g in %2 g."),
     1, 0},
    {Zweifel::NatriumZuGross,
     QT_TRANSLATE_NOOP("Mahlberg", "Natrium prüfen: %1 mg sind %2 g Salz, mehr als neben den "
                                   "anderen Nährstoffen Platz hat."),
     0, 1},
    {Zweifel::SalzStattNatrium,
     QT_TRANSLATE_NOOP("Mahlberg", "Ist bei Natrium Salz gemeint? %1 g Salz sind %2 mg Natrium."),
     2, 0},
};

QString worte(const Bedenken &bedenken)
{
    for (const Zweifelzeile &zeile : zweifelworte) {
        if (zeile.zweifel == bedenken.zweifel) {
            return localizedString(QString::fromUtf8(zeile.text))
                .arg(wertText(bedenken.angegeben, zeile.stellenAngegeben),
                     wertText(bedenken.errechnet, zeile.stellenErrechnet));
        }
    }
    return {};
}

double gerundet(double zahl, int stellen)
{
    const double einheit = std::pow(10.0, stellen);
    return std::round(zahl * einheit) / einheit;
}

/// An empty field empties the other one.
void uebertrage(const Textfeld &von, Textfeld &nach, double (*rechnung)(double), int stellen)
{
    if (von.stringValue().isEmpty()) {
        nach.setStringValue(QString());
    } else {
        nach.setDoubleValue(gerundet(rechnung(von.doubleValue()), stellen));
    }
}

double kilojouleGenau(double kilokalorien)
{
    return static_cast<double>(kilojoule(static_cast<float>(kilokalorien)));
}

} // namespace

Eingabeblatt::Eingabeblatt(const Ui::EingabefensterGestalt &blatt, QDialog &fenster,
                           std::function<Datenmodul()> inhalt)
    : QObject(&fenster)
    , m_blatt(blatt)
    , m_inhalt(std::move(inhalt))
{
    verbinde({m_blatt.EingabeFensterfeldB, m_blatt.EingabeFensterjoulefeld, kilojouleGenau,
              kilokalorien, 1});
    verbinde({m_blatt.EingabeFensternafeld, m_blatt.EingabeFenstersalzfeld, salzAusNatrium,
              natriumAusSalz, 3});
    QLabel &zeile = *m_blatt.EingabeFensterzweifel;
    zeile.setMinimumHeight(zweifelzeilen * zeile.fontMetrics().lineSpacing());
    for (const Textfeld *feld : fenster.findChildren<Textfeld *>()) {
        connect(feld, &QLineEdit::textChanged, this, &Eingabeblatt::pruefe);
    }
}

/// What is typed into one field of the two appears in the other. One that says the same already is
/// left as it was typed.
void Eingabeblatt::verbinde(const Paar &paar)
{
    connect(paar.andere, &QLineEdit::textEdited, this,
            [paar] { uebertrage(*paar.andere, *paar.gehalten, paar.her, gehalteneStellen); });
    connect(paar.gehalten, &QLineEdit::textChanged, this, [paar] {
        const bool leer = paar.gehalten->stringValue().isEmpty();
        const double gleiches = gerundet(paar.her(paar.andere->doubleValue()), gehalteneStellen);
        if (leer || paar.andere->stringValue().isEmpty() ||
            gleiches != paar.gehalten->doubleValue()) {
            uebertrage(*paar.gehalten, *paar.andere, paar.hin, paar.stellen);
        }
    });
}

/// Says below the fields what doesn't fit together, and at the button that saves it all the same.
void Eingabeblatt::pruefe()
{
    QStringList zeilen;
    for (const Bedenken &bedenken : bezweifeln(m_inhalt())) {
        zeilen << worte(bedenken);
    }
    m_blatt.EingabeFensterzweifel->setText(zeilen.join(u'\n'));
    m_blatt.EingabeFensteruebernehmen->setAccessibleDescription(zeilen.join(u' '));
}
