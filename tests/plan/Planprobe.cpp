#include "Planprobe.h"

#include "Archivdatei.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QFile>
#include <QLocale>
#include <QMimeData>
#include <QTest>

namespace {

Lebensmittelverzeichnis verzeichnis(const QList<Datenmodul> &lebensmittel)
{
    Lebensmittelverzeichnis alle;
    for (const Datenmodul &eines : lebensmittel) {
        alle.insert(eines.name(), eines);
    }
    return alle;
}

} // namespace

Planheim::Planheim()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
}

QString Planheim::plandatei() const
{
    return Datenordner(m_ordner.path()).pathForDataFile(QStringLiteral("plandaten"));
}

QString Planheim::eigeneDatei() const
{
    return Datenordner(m_ordner.path()).pathForDataFile(QStringLiteral("customdaten"));
}

void Planheim::schreibeTabelle(const QList<Datenmodul> &lebensmittel) const
{
    QVERIFY(Archivdatei::schreiben(tabelle(), verzeichnis(lebensmittel)));
    // The shipped table is everybody's.
    QVERIFY(QFile::setPermissions(tabelle(), QFile::ReadOwner | QFile::WriteOwner |
                                                 QFile::ReadGroup | QFile::ReadOther));
}

void Planheim::schreibeEigene(const QList<Datenmodul> &lebensmittel) const
{
    QVERIFY(Archivdatei::schreiben(eigeneDatei(), verzeichnis(lebensmittel)));
}

void Planheim::schreibePlan(const QList<std::pair<QString, float>> &zeilen) const
{
    QList<Datenmodul> traeger;
    for (const auto &[name, gramm] : zeilen) {
        traeger << speise(name, {{Naehrwert::kal, gramm}});
    }
    QVERIFY(Archivdatei::schreiben(plandatei(), verzeichnis(traeger)));
}

Lebensmittelverzeichnis Planheim::eigene() const
{
    return Archivdatei::lesen(eigeneDatei()).archiv.verzeichnis;
}

QMap<QString, float> Planheim::plan() const
{
    QMap<QString, float> mengen;
    for (const Datenmodul &traeger : Archivdatei::lesen(plandatei()).archiv.verzeichnis) {
        mengen.insert(traeger.name(), traeger.kal());
    }
    return mengen;
}

void Planheim::oeffneFuerAlle() const
{
    constexpr auto alle = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                          QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    for (const char *ordner : {".", "Library", "Library/Application Support"}) {
        QVERIFY(QFile::setPermissions(m_ordner.filePath(QLatin1String(ordner)), alle));
    }
}

Plantueren Planheim::tueren() const
{
    return {.eingebauteTabelle = tabelle(),
            .datenordner = Datenordner(m_ordner.path()),
            .melde = [](QWidget *, const Meldung &) {
                return 0;
            }};
}

Planfenster::Planfenster(Plantueren tueren) : m_plan(std::make_unique<Planmodul>(std::move(tueren)))
{
    m_plan->showWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_plan->window()));
}

QString Planfenster::zelle(int zeile, const QString &spalte) const
{
    return index(zeile, spalte).data().toString();
}

QStringList Planfenster::spalte(const QString &kennung) const
{
    QStringList texte;
    for (int zeile = 0; zeile < m_plan->PlanTabelle->model()->rowCount(); ++zeile) {
        texte << zelle(zeile, kennung);
    }
    return texte;
}

QModelIndex Planfenster::index(int zeile, const QString &spalte) const
{
    const Tabellenmodell &modell = *m_plan->PlanTabelle->modell();
    return modell.index(zeile, modell.spaltenstelle(spalte));
}

QPoint Planfenster::mitte(int zeile, const QString &spalte) const
{
    return m_plan->PlanTabelle->visualRect(index(zeile, spalte)).center();
}

void Planfenster::tippeMenge(int zeile, const QString &gramm) const
{
    Tabellenansicht &tabelle = *m_plan->PlanTabelle;
    tabelle.scrollRowToVisible(zeile);
    QTest::mouseClick(tabelle.viewport(), Qt::LeftButton, {},
                      mitte(zeile, QStringLiteral("menge")));
    QWidget *eingabe = QApplication::focusWidget();
    QVERIFY(qobject_cast<QLineEdit *>(eingabe) != nullptr);
    QTest::keyClick(eingabe, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(eingabe, Qt::Key_Delete);
    QTest::keyClicks(eingabe, gramm);
    QTest::keyClick(eingabe, Qt::Key_Return);
    QCoreApplication::processEvents(); // the editor goes
}

bool Planfenster::wirfAb(const QString &text, const QPoint &ort) const
{
    QMimeData daten;
    daten.setText(text);
    QWidget *flaeche = m_plan->PlanTabelle->viewport();
    const auto sende = [flaeche](QDropEvent &&ereignis) {
        QApplication::sendEvent(flaeche, &ereignis);
        return ereignis.isAccepted() && ereignis.dropAction() == Qt::CopyAction;
    };
    if (!sende(QDragEnterEvent(ort, Qt::CopyAction, &daten, Qt::LeftButton, {})) ||
        !sende(QDragMoveEvent(ort, Qt::CopyAction, &daten, Qt::LeftButton, {}))) {
        return false;
    }
    return sende(QDropEvent(ort, Qt::CopyAction, &daten, Qt::LeftButton, {}));
}

bool Planfenster::wirfAbUeber(const QString &text, int zeile) const
{
    Tabellenansicht &tabelle = *m_plan->PlanTabelle;
    tabelle.scrollRowToVisible(zeile);
    QCoreApplication::processEvents(); // somebody drops on what they see
    const bool unten = zeile >= tabelle.model()->rowCount();
    const int letzte = tabelle.model()->rowCount() - 1;
    const int y = !unten       ? tabelle.rowViewportPosition(zeile) + 1
                  : letzte < 0 ? 1
                               : tabelle.rowViewportPosition(letzte) + tabelle.rowHeight() - 1;
    return wirfAb(text, QPoint(30, y));
}

QString Planfenster::text(const QLineEdit &feld)
{
    QCoreApplication::processEvents();
    return feld.text().replace(QChar(QChar::Nbsp), QLatin1Char(' '));
}

Datenmodul speise(const QString &name, const Wertliste &werte, const QStringList &urteile)
{
    Datenmodul neu;
    neu.setName(name);
    for (const auto &[wert, zahl] : werte) {
        neu.setWert(wert, zahl);
    }
    for (int i = 0; i < urteile.size(); ++i) {
        neu.setWertung(static_cast<Wertung>(i), urteile[i]);
    }
    return neu;
}

Datenmodul zaehlspeise(const QString &name)
{
    Datenmodul neu = speise(
        name, {},
        {QStringLiteral("+"), QStringLiteral("0"), QStringLiteral("-"), QStringLiteral("egal")});
    for (const auto &zeile : naehrwerte) {
        neu.setWert(zeile.wert, 2.0F * static_cast<float>(stelle(zeile.wert) + 1));
    }
    return neu;
}

void vergissKlient()
{
    Planmodul::klient = {};
}
