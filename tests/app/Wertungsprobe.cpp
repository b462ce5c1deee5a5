#include "Wertungsprobe.h"

#include "Auskunftsprobe.h"

#include <QApplication>
#include <QFile>
#include <QHelpEvent>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>

using namespace Qt::StringLiterals;
using enum Naehrwert;

namespace {

const QStringList eigeneUrteile = {u"0"_s, u"0"_s, u"0"_s, u"0"_s};
/// What 250 mg of cholesterol and more than 275 kcal without fibre get.
const QStringList urteile = {u"-"_s, u"+"_s, u"+"_s, u"-"_s};

void keinText()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

} // namespace

QString lesbar(const QString &html)
{
    return QTextDocumentFragment::fromHtml(html).toPlainText().trimmed();
}

void ruheAn(const QWidget &feld)
{
    QHelpEvent ruhe(QEvent::ToolTip, feld.rect().center(), feld.mapToGlobal(feld.rect().center()));
    QApplication::sendEvent(const_cast<QWidget *>(&feld), &ruhe);
}

void Wertungsprobe::richteEin()
{
    m_heim = std::make_unique<Probeheim>();
    m_eingebaut.clear();
    for (int zeile = 0; zeile < 6; ++zeile) {
        const QString name = zaehlname(zeile);
        m_eingebaut.insert(
            name, lebensmittel(name, {{kal, 300.5F + static_cast<float>(zeile)}}, urteile));
    }
    m_eigene = verzeichnis({lebensmittel(u"Eigenes"_s, {{kal, 10}}, eigeneUrteile),
                            lebensmittel(zaehlname(2), {{kal, 20}}, eigeneUrteile)});
    m_heim->wertungstabelle = m_heim->pfad(u"Lebensmittel.csv"_s);
    schreibeErklaerungen();
}

void Wertungsprobe::raeumeAuf()
{
    m_fenster.reset();
    m_heim.reset();
    keinText();
}

void Wertungsprobe::schreibeErklaerungen()
{
    QStringList zeilen;
    for (int zeile = 1; zeile < 6; ++zeile) {
        const double kilokalorien = zeile == 3 ? 50 : 300.5 + zeile;
        zeilen << Auskunftsprobe::zeile(
            zaehlname(zeile), {{u"kal"_s, QString::number(kilokalorien)}, {u"chol"_s, u"250"_s}});
    }
    QFile datei(m_heim->wertungstabelle);
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write(Auskunftsprobe::datei(zeilen));
}

void Wertungsprobe::oeffne()
{
    m_heim->schreibeTabelle(m_eingebaut);
    m_heim->schreibeEigene(m_eigene);
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void Wertungsprobe::waehleTreffer(const QString &name) const
{
    m_fenster->klicke(static_cast<int>(controller().suchArray.indexOf(name)), inSuch);
}

QString Wertungsprobe::anMaus(Wertung wertung) const
{
    keinText();
    ruheAn(*feld(wertung));
    return QToolTip::isVisible() ? lesbar(QToolTip::text()) : QString();
}

QString Wertungsprobe::anTaste(Wertung wertung) const
{
    feld(wertung)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(feld(wertung), Qt::Key_F1);
    return fahne(wertung)->isVisible() ? lesbar(fahne(wertung)->text()) : QString();
}
