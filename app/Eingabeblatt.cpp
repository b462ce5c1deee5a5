#include "Eingabeblatt.h"

#include "Bedenkenworte.h"
#include "Skalierung.h"

#include <cmath>

namespace {

/// kcal and mg of sodium get so many digits behind the comma: more is in no label.
constexpr int gehalteneStellen = 1;

/// The line of doubts keeps room for so many lines, so that the fields don't move while one types.
constexpr int zweifelzeilen = 2;

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
        zeilen << inWorten(bedenken);
    }
    m_blatt.EingabeFensterzweifel->setText(zeilen.join(u'\n'));
    m_blatt.EingabeFensteruebernehmen->setAccessibleDescription(zeilen.join(u' '));
}
