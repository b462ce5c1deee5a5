#include "Verlaufsprobe.h"

#include "Archivdatei.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTest>

using enum Naehrwert;

namespace {

/// Name and kcal, or grams in a plan's file, of each entry.
QStringList inDerDatei(const QString &pfad)
{
    const auto datei = Archivdatei::lesen(pfad).archiv.verzeichnis;
    QStringList alle;
    for (auto zeile = datei.cbegin(); zeile != datei.cend(); ++zeile) {
        alle << QStringLiteral("%1 %2").arg(zeile.key()).arg(zeile->kal());
    }
    alle.sort();
    return alle;
}

} // namespace

void Verlaufsprobe::init()
{
    m_heim = std::make_unique<Probeheim>();
    m_heim->schreibeTabelle(
        verzeichnis({lebensmittel(a, {{kal, 10}}), lebensmittel(b, {{kal, 20}}),
                     lebensmittel(c, {{kal, 30}}), lebensmittel(d, {{kal, 40}})}));
    m_heim->schreibeEigene(verzeichnis({lebensmittel(brei, {{kal, 70}})}));
    m_fenster = std::make_unique<Probefenster>(*m_heim);
}

void Verlaufsprobe::cleanup()
{
    m_fenster.reset();
    m_heim.reset();
}

void Verlaufsprobe::oeffnePlan() const
{
    controller().Planmoduloeffnen();
    for (const QString &name : {a, b, c}) {
        plan().nameimportvontoolbar(name);
    }
    QVERIFY(QTest::qWaitForWindowActive(plan().window()));
    plan().PlanTabelle->setFocus();
}

void Verlaufsprobe::imPlan(Qt::KeyboardModifiers dazu) const
{
    plan().window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(plan().window()));
    QTest::keyClick(plan().PlanTabelle, Qt::Key_Z, Qt::ControlModifier | dazu);
}

void Verlaufsprobe::imHauptfenster(Qt::KeyboardModifiers dazu) const
{
    controller().Hauptfenster->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(controller().Hauptfenster));
    controller().Tabelle->setFocus();
    QTest::keyClick(controller().Tabelle, Qt::Key_Z, Qt::ControlModifier | dazu);
}

void Verlaufsprobe::sichere(const QString &name, const QString &energie) const
{
    controller().EingabeFensterfeldA->setStringValue(name);
    controller().eingabefelder()[0]->setStringValue(energie);
    controller().umschreibenDerEingabeFelder();
}

void Verlaufsprobe::wirfAb(const QString &name, int zeile) const
{
    Tabellenansicht &tabelle = *plan().PlanTabelle;
    QCoreApplication::processEvents();
    const int letzte = tabelle.model()->rowCount() - 1;
    const int y = zeile <= letzte ? tabelle.rowViewportPosition(zeile) + 1
                                  : tabelle.rowViewportPosition(letzte) + tabelle.rowHeight() - 1;
    QMimeData daten;
    daten.setText(name);
    const QPoint ort(30, y);
    QDragEnterEvent herein(ort, Qt::CopyAction, &daten, Qt::LeftButton, {});
    QApplication::sendEvent(tabelle.viewport(), &herein);
    QDragMoveEvent darueber(ort, Qt::CopyAction, &daten, Qt::LeftButton, {});
    QApplication::sendEvent(tabelle.viewport(), &darueber);
    QDropEvent fallen(ort, Qt::CopyAction, &daten, Qt::LeftButton, {});
    QApplication::sendEvent(tabelle.viewport(), &fallen);
}

QStringList Verlaufsprobe::zeilen() const
{
    QStringList alle;
    for (qsizetype i = 0; i < plan().PlanArray.size(); ++i) {
        alle << QStringLiteral("%1 %2").arg(plan().PlanArray[i]).arg(plan().mengenarray[i]);
    }
    return alle;
}

QStringList Verlaufsprobe::planInDerDatei() const
{
    return inDerDatei(plandatei());
}

QStringList Verlaufsprobe::eigeneInDerDatei() const
{
    return inDerDatei(m_heim->eigeneDatei());
}

QString Verlaufsprobe::hinweis() const
{
    const Planmodul *einPlan = controller().planmodul;
    const bool vorn = einPlan != nullptr && plan().window()->isActiveWindow();
    const auto &alle = vorn ? einPlan->hinweise->hinweise() : controller().hinweise->hinweise();
    return alle.isEmpty() ? QString() : alle.constFirst().text;
}

QString Verlaufsprobe::plandatei() const
{
    return QFileInfo(m_heim->eigeneDatei()).path() + QStringLiteral("/MahlbergPlanmod.daten");
}
