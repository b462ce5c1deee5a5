#include "Hindernisse.h"
#include "Namensvergleich.h"
#include "Oeffnungsprobe.h"

#include <QComboBox>
#include <QDir>
#include <QTableView>
#include <QTableWidget>
#include <QTest>

#include <optional>

#include <sys/stat.h>

using enum Naehrwert;
using Archivbau::Folge;
using namespace Qt::StringLiterals;

/// Taking foods of a ".daten" file over into the own foods: what becomes of these and of their
/// file, and that it can be taken back.
class TestDateiUebernahme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_probe = std::make_unique<Oeffnungsprobe>(); }
    void cleanup() { m_probe.reset(); }
    void allFoodsComeToTheOwnOnes_data();
    void allFoodsComeToTheOwnOnes();
    void lookingChangesNothing();
    void onlyTheCrossedOnesCome();
    void withoutAnyThereIsNothingToTake();
    void aClashIsShownSideBySide();
    void theOwnFoodIsKept();
    void theOwnFoodIsReplaced();
    void bothAreKept();
    void theDecisionForAll();
    void theFoodOnDisplayShowsItsNewValues();
    void aBuiltInFoodOfTheNameStaysOnDisplay();
    void takingOverIsUndoneAndRepeated();
    void theOpenPlanKnowsTheNewFoods();
    void theFileIsWrittenOnce();
    void aFailingWriteIsTold_data();
    void aFailingWriteIsTold();

private:
    std::unique_ptr<Oeffnungsprobe> m_probe;
};

namespace {

/// What keeps the file of the own foods from being written.
enum class Schreibhindernis { Voll, Geschuetzt, Ordner };

} // namespace

Q_DECLARE_METATYPE(Schreibhindernis)

void TestDateiUebernahme::allFoodsComeToTheOwnOnes_data()
{
    QTest::addColumn<Folge>("folge");
    QTest::newRow("little-endian") << Folge::LittleEndian;
    QTest::newRow("big-endian") << Folge::BigEndian;
}

void TestDateiUebernahme::allFoodsComeToTheOwnOnes()
{
    QFETCH(Folge, folge);
    const QByteArray bytes = Archivbau::beispiel(folge);
    const QString pfad = m_probe->lege(u"100 %2.daten"_s, bytes);
    m_probe->oeffne({pfad});
    QCOMPARE(m_probe->worte("ergebnis"),
             u"In die eigenen Lebensmittel kommen 1: neu 1, ersetzt 0, unter "
             "neuem Namen 0. Ihres bleibt bei 0."_s);
    QCOMPARE(m_probe->datei().keys(), (QStringList{eintopf, muesli})); // not before it is asked for
    m_probe->druecke("uebernehmen");
    QCOMPARE(m_probe->controller().KundenArray, (QStringList{eintopf, muesli, u"Ei"_s}));
    QCOMPARE(inhalt(m_probe->controller().KundenDictionary[u"Ei"_s]),
             inhalt(Archivbau::beispielVerzeichnis()[u"Ei"_s]));
    QCOMPARE(inhalt(m_probe->datei()), inhalt(m_probe->controller().KundenDictionary));
    QCOMPARE(m_probe->probefenster().zelle(2, inEigen).text, u"Ei"_s);
    QCOMPARE(m_probe->hinweis(), u"Aus „100 %2.daten“ übernommen: neu 1, ersetzt 0."_s);
    QFile quelle(pfad);
    QVERIFY(quelle.open(QIODevice::ReadOnly));
    QCOMPARE(quelle.readAll(), bytes);
}

void TestDateiUebernahme::lookingChangesNothing()
{
    QFile eigene(m_probe->heim.eigeneDatei());
    QVERIFY(eigene.open(QIODevice::ReadOnly));
    const QByteArray vorher = eigene.readAll();
    m_probe->oeffne({m_probe->lege(u"ei.daten"_s, Archivbau::beispiel())});
    m_probe->schliesse();
    eigene.seek(0);
    QCOMPARE(eigene.readAll(), vorher);
    QCOMPARE(m_probe->controller().KundenArray, (QStringList{eintopf, muesli}));
    QVERIFY(m_probe->controller().hinweise->hinweise().isEmpty());
    QVERIFY(m_probe->heim.meldungen.isEmpty());
}

void TestDateiUebernahme::onlyTheCrossedOnesCome()
{
    m_probe->oeffne({m_probe->lege(u"a.daten"_s, {lebensmittel(u"A"_s, {{kal, 1}}),
                                                  lebensmittel(u"B"_s, {{kal, 2}}),
                                                  lebensmittel(u"C"_s, {{kal, 3}})})});
    auto &tafel = m_probe->teil<QTableView>("lebensmittel");
    tafel.setFocus();
    QTest::keyClick(&tafel, Qt::Key_Down);
    QTest::keyClick(&tafel, Qt::Key_Space);
    m_probe->druecke("uebernehmen");
    QCOMPARE(m_probe->controller().KundenArray, (QStringList{eintopf, muesli, u"A"_s, u"C"_s}));
}

void TestDateiUebernahme::withoutAnyThereIsNothingToTake()
{
    m_probe->oeffne(
        {m_probe->lege(u"a.daten"_s, {lebensmittel(u"A"_s), lebensmittel(eintopf, {{kal, 60}})})});
    m_probe->druecke("keines");
    QVERIFY(!m_probe->teil<QPushButton>("uebernehmen").isEnabled());
    QCOMPARE(m_probe->teil<QPushButton>("uebernehmen").toolTip(),
             u"So kommt nichts in die eigenen Lebensmittel."_s);
    m_probe->druecke("alle");
    QVERIFY(m_probe->teil<QPushButton>("uebernehmen").isEnabled());
    QVERIFY(m_probe->fenster()->findChild<Namensvergleich *>() == nullptr); // the same is no clash
}

void TestDateiUebernahme::aClashIsShownSideBySide()
{
    m_probe->oeffne(
        {m_probe->lege(u"a.daten"_s, {lebensmittel(u"A"_s, {{kal, 5}}),
                                      lebensmittel(muesli, {{kal, 360}, {protein, 10}},
                                                   {u"+"_s, u"0"_s, u"-"_s, u"-"_s})})});
    QCOMPARE(m_probe->teil<QTableView>("lebensmittel").currentIndex().row(), 1); // the first clash
    QCOMPARE(m_probe->worte("vergleichstitel"), u"„Müsli“ haben Sie schon, mit anderen Werten:"_s);
    const auto &vergleich = m_probe->teil<QTableWidget>("vergleich");
    const auto zeile = [&vergleich](int nummer) {
        QStringList texte;
        for (int spalte = 1; spalte < vergleich.columnCount(); ++spalte) {
            texte << vergleich.item(nummer, spalte)->text();
        }
        return texte;
    };
    QCOMPARE(vergleich.rowCount(), 21);
    QCOMPARE(zeile(0), (QStringList{u"350"_s, u"≠"_s, u"360"_s}));
    QVERIFY(vergleich.item(0, 1)->font().bold());
    QCOMPARE(zeile(1), (QStringList{u"10"_s, u"="_s, u"10"_s}));
    QVERIFY(!vergleich.item(1, 1)->font().bold());
    QCOMPARE(zeile(19), (QStringList{u"-"_s, u"="_s, u"-"_s}));
    QCOMPARE(zeile(20), (QStringList{u"+"_s, u"≠"_s, u"-"_s}));
    m_probe->teil<QTableView>("lebensmittel")
        .setCurrentIndex(m_probe->teil<QTableView>("lebensmittel").model()->index(0, 0));
    QCOMPARE(m_probe->worte("vergleichstitel"),
             u"Bei dem gewählten Lebensmittel ist nichts zu entscheiden."_s);
    QVERIFY(!m_probe->teil<QComboBox>("entscheidung").isEnabled());
}

void TestDateiUebernahme::theOwnFoodIsKept()
{
    m_probe->oeffne(
        {m_probe->lege(u"a.daten"_s, {lebensmittel(muesli, {{kal, 1}}), lebensmittel(u"Z"_s)})});
    QCOMPARE(m_probe->teil<QComboBox>("entscheidung").currentText(),
             u"Ihres behalten"_s); // at first
    m_probe->druecke("uebernehmen");
    QCOMPARE(m_probe->datei()[muesli].kal(), 350.0F);
    QCOMPARE(m_probe->controller().KundenArray, (QStringList{eintopf, muesli, u"Z"_s}));
}

void TestDateiUebernahme::theOwnFoodIsReplaced()
{
    m_probe->oeffne({m_probe->lege(u"a.daten"_s, {lebensmittel(eintopf, {{kal, 61}})})});
    QVERIFY(!m_probe->teil<QPushButton>("uebernehmen").isEnabled());
    m_probe->entscheide(Namensgleich::Ersetzen);
    m_probe->druecke("uebernehmen");
    QCOMPARE(m_probe->controller().KundenArray, (QStringList{eintopf, muesli})); // keeps its place
    QCOMPARE(m_probe->datei()[eintopf].kal(), 61.0F);
    QCOMPARE(m_probe->hinweis(), u"Aus „a.daten“ übernommen: neu 0, ersetzt 1."_s);
}

void TestDateiUebernahme::bothAreKept()
{
    m_probe->oeffne({m_probe->lege(u"a.daten"_s, {lebensmittel(eintopf, {{kal, 61}})})});
    m_probe->entscheide(Namensgleich::NeuerName);
    m_probe->druecke("uebernehmen");
    QCOMPARE(m_probe->controller().KundenArray, (QStringList{eintopf, muesli, u"Eintopf (2)"_s}));
    QCOMPARE(m_probe->datei()[eintopf].kal(), 60.0F);
    QCOMPARE(m_probe->datei()[u"Eintopf (2)"_s].kal(), 61.0F);
    QCOMPARE(m_probe->datei()[u"Eintopf (2)"_s].name(), u"Eintopf (2)"_s);
}

void TestDateiUebernahme::theDecisionForAll()
{
    m_probe->oeffne({m_probe->lege(
        u"a.daten"_s, {lebensmittel(eintopf, {{kal, 61}}), lebensmittel(muesli, {{kal, 351}})})});
    m_probe->entscheide(Namensgleich::Ersetzen);
    QCOMPARE(m_probe->worte("ergebnis"),
             u"In die eigenen Lebensmittel kommen 1: neu 0, ersetzt 1, unter "
             "neuem Namen 0. Ihres bleibt bei 1."_s);
    m_probe->druecke("fueralle");
    m_probe->druecke("uebernehmen");
    QCOMPARE(m_probe->datei()[eintopf].kal(), 61.0F);
    QCOMPARE(m_probe->datei()[muesli].kal(), 351.0F);
}

void TestDateiUebernahme::theFoodOnDisplayShowsItsNewValues()
{
    m_probe->probefenster().klicke(0, inEigen);
    QCOMPARE(m_probe->controller().feldB->floatValue(), 60.0F);
    m_probe->oeffne({m_probe->lege(u"a.daten"_s, {lebensmittel(eintopf, {{kal, 61}})})});
    m_probe->entscheide(Namensgleich::Ersetzen);
    m_probe->druecke("uebernehmen");
    QCOMPARE(m_probe->controller().feldB->floatValue(), 61.0F);
    QCOMPARE(m_probe->controller().Tabelle->selectedRow(), 0);
}

void TestDateiUebernahme::aBuiltInFoodOfTheNameStaysOnDisplay()
{
    const QString name = zaehlname(3);
    m_probe->oeffne({m_probe->lege(u"a.daten"_s, {lebensmittel(name, {{kal, 900}})})});
    QCOMPARE(m_probe->worte("erklaerung"),
             u"Ein eingebautes Lebensmittel heißt ebenso. Im Plan gelten dessen Werte."_s);
    m_probe->druecke("uebernehmen");
    m_probe->probefenster().klicke(3, inName);
    QCOMPARE(m_probe->controller().feldB->floatValue(), 4.0F); // the built-in one's
    m_probe->schliesse();
    m_probe->oeffne({m_probe->lege(u"a.daten"_s, {lebensmittel(name, {{kal, 800}})})});
    m_probe->entscheide(Namensgleich::Ersetzen);
    m_probe->druecke("uebernehmen");
    QCOMPARE(m_probe->controller().feldB->floatValue(), 4.0F);
    QCOMPARE(m_probe->datei()[name].kal(), 800.0F);
}

void TestDateiUebernahme::takingOverIsUndoneAndRepeated()
{
    m_probe->oeffne({m_probe->lege(
        u"a.daten"_s, {lebensmittel(eintopf, {{kal, 61}}), lebensmittel(suppe, {{kal, 40}})})});
    m_probe->entscheide(Namensgleich::Ersetzen);
    m_probe->druecke("uebernehmen");
    QCOMPARE(m_probe->controller().KundenArray, (QStringList{eintopf, muesli, suppe}));
    QCOMPARE(m_probe->controller().hinweise->hinweise()[0].knopf, u"Rückgängig"_s);
    QTest::mouseClick(m_probe->controller().hinweise->findChild<QPushButton *>(u"hinweisknopf"_s),
                      Qt::LeftButton);
    QCOMPARE(m_probe->controller().KundenArray, (QStringList{eintopf, muesli})); // in one step
    QCOMPARE(m_probe->datei().keys(), (QStringList{eintopf, muesli}));
    QCOMPARE(m_probe->datei()[eintopf].kal(), 60.0F);
    QCOMPARE(m_probe->hinweis(), u"Zurückgenommen: übernommene Lebensmittel."_s);
    Q_EMIT m_probe->controller().wiederholenGewuenscht();
    QCOMPARE(m_probe->datei()[eintopf].kal(), 61.0F);
    QCOMPARE(m_probe->datei()[suppe].kal(), 40.0F);
}

void TestDateiUebernahme::theOpenPlanKnowsTheNewFoods()
{
    m_probe->controller().Planmoduloeffnen();
    Planmodul &plan = *m_probe->controller().planmodul;
    plan.nameimportvontoolbar(eintopf);
    m_probe->oeffne({m_probe->lege(
        u"a.daten"_s, {lebensmittel(eintopf, {{kal, 61}}), lebensmittel(suppe, {{kal, 40}})})});
    m_probe->entscheide(Namensgleich::Ersetzen);
    m_probe->druecke("uebernehmen");
    QCOMPARE(plan.KundenDictionary[eintopf].kal(), 61.0F);
    QCOMPARE(plan.KundenDictionary.keys(), (QStringList{eintopf, muesli, suppe}));
    plan.PlanTabelle->viewport()->repaint(); // writes the plan's copy
    QCOMPARE(m_probe->datei()[eintopf].kal(), 61.0F);
    QCOMPARE(plan.PlanArray, QStringList{eintopf});
}

void TestDateiUebernahme::theFileIsWrittenOnce()
{
    int geschrieben = 0;
    connect(m_probe->probefenster().oberflaeche().dateien.get(), &Dateihueter::geschrieben, this,
            [&geschrieben] { ++geschrieben; });
    m_probe->oeffne({m_probe->lege(u"a.daten"_s, {lebensmittel(u"A"_s), lebensmittel(u"B"_s)})});
    m_probe->druecke("uebernehmen");
    QCOMPARE(geschrieben, 1);
}

void TestDateiUebernahme::aFailingWriteIsTold_data()
{
    QTest::addColumn<Schreibhindernis>("hindernis");
    QTest::newRow("a full disk") << Schreibhindernis::Voll;
    QTest::newRow("a protected folder") << Schreibhindernis::Geschuetzt;
    QTest::newRow("a folder in the place of the file") << Schreibhindernis::Ordner;
}

/// The foods are in the list, the file is as it was, and the next save brings all of them there.
void TestDateiUebernahme::aFailingWriteIsTold()
{
    QFETCH(Schreibhindernis, hindernis);
    const QString datei = m_probe->heim.eigeneDatei();
    const QByteArray ordner = QFile::encodeName(QFileInfo(datei).path());
    m_probe->oeffne({m_probe->lege(u"a.daten"_s, {lebensmittel(u"A"_s)})});
    QVERIFY(hindernis != Schreibhindernis::Ordner ||
            (QFile::remove(datei) && QDir().mkpath(datei)));
    {
        std::optional<VolleFestplatte> voll;
        std::optional<OhneRechte> einfach;
        if (hindernis == Schreibhindernis::Voll) {
            voll.emplace(20);
        } else if (hindernis == Schreibhindernis::Geschuetzt) {
            QCOMPARE(chmod(ordner.constData(), 0555), 0);
            einfach.emplace();
            QVERIFY(einfach->gelungen());
        }
        m_probe->druecke("uebernehmen");
    }
    QCOMPARE(chmod(ordner.constData(), 0700), 0);
    QCOMPARE(m_probe->controller().KundenArray, (QStringList{eintopf, muesli, u"A"_s}));
    QTRY_VERIFY(m_probe->controller().hinweise->hinweise().size() >= 2); // the keeper's own, too
    QStringList texte;
    for (const Hinweis &einer : m_probe->controller().hinweise->hinweise()) {
        texte << einer.text;
    }
    QVERIFY2(
        texte.contains(u"Aus „a.daten“ in der Liste, aber nicht gesichert: neu 1, ersetzt 0."_s),
        qPrintable(texte.join(u'\n')));

    if (hindernis == Schreibhindernis::Ordner) {
        QVERIFY(QFileInfo(datei).isDir());
        QVERIFY(QDir().rmdir(datei));
    } else {
        QCOMPARE(m_probe->datei().keys(), (QStringList{eintopf, muesli}));
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_probe->oeffne({m_probe->lege(u"b.daten"_s, {lebensmittel(u"B"_s)})});
    m_probe->druecke("uebernehmen");
    QCOMPARE(m_probe->datei().keys(), (QStringList{u"A"_s, u"B"_s, eintopf, muesli}));
    QCOMPARE(m_probe->hinweis(), u"Aus „b.daten“ übernommen: neu 1, ersetzt 0."_s);
}

QTEST_MAIN(TestDateiUebernahme)
#include "TestDateiUebernahme.moc"
