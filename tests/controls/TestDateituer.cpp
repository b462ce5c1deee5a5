#include "Dateituer.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using Zweck = Dateifrage::Zweck;

/// The real dialog that asks for a file or a folder, with a user before it who types and presses
/// buttons. It is Qt's own, as on a desktop that brings none.
class TestDateituer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void itAsksForWhatIsWanted_data();
    void itAsksForWhatIsWanted();
    void itBeginsInTheFolderOfTheProposal_data();
    void itBeginsInTheFolderOfTheProposal();
    void aFileThatIsThereIsGiven();
    void ofAFileThatIsNotThereNothingIsGiven();
    void severalFilesComeOneAfterTheOther();
    void aFolderIsGivenAndNoFileShown();
    void theProposalIsTakenAsItStands();
    void aNameWithoutAnEndingGetsIt_data();
    void aNameWithoutAnEndingGetsIt();
    void aFileThatIsThereIsAskedAbout_data();
    void aFileThatIsThereIsAskedAbout();
    void cancellingGivesNothing_data();
    void cancellingGivesNothing();
    void theAnswerComesWhenTheDialogHasGone();
    void withoutItsWindowNothingIsGiven();

private:
    QFileDialog &frage(Dateifrage was);
    QLineEdit &namensfeld() const { return *m_dialog->findChild<QLineEdit *>(u"fileNameEdit"_s); }
    void tippe(const QString &name) const;
    void bestaetige(QDialogButtonBox::StandardButton knopf) const;
    QString pfad(const QString &name) const { return m_ordner->filePath(name); }
    void lege(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_ordner;
    std::unique_ptr<QWidget> m_fenster;
    QPointer<QFileDialog> m_dialog;
    QStringList m_antworten;
    bool m_warDa = false; ///< the dialog was still to be seen when an answer came
};

void TestDateituer::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void TestDateituer::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    QVERIFY(m_ordner->isValid());
    m_fenster = std::make_unique<QWidget>();
    m_fenster->show();
    m_antworten.clear();
    m_warDa = false;
}

void TestDateituer::cleanup()
{
    m_fenster.reset();
    m_ordner.reset();
}

void TestDateituer::lege(const QString &name) const
{
    QFile datei(pfad(name));
    QVERIFY(datei.open(QIODevice::WriteOnly));
}

/// Asks in the test's folder, where the proposal names no other.
QFileDialog &TestDateituer::frage(Dateifrage was)
{
    if (!QDir::isAbsolutePath(was.vorschlag)) {
        was.vorschlag = pfad(was.vorschlag);
    }
    frageNachDatei(m_fenster.get(), was, [this](const QString &pfad) {
        m_antworten << pfad;
        m_warDa = m_warDa || (m_dialog != nullptr && m_dialog->isVisible());
    });
    m_dialog = m_fenster->findChild<QFileDialog *>();
    return *m_dialog;
}

void TestDateituer::tippe(const QString &name) const
{
    namensfeld().selectAll();
    QTest::keyClicks(&namensfeld(), name);
}

void TestDateituer::bestaetige(QDialogButtonBox::StandardButton knopf) const
{
    auto *gemeinter = m_dialog->findChild<QDialogButtonBox *>()->button(knopf);
    QVERIFY(gemeinter != nullptr);
    QTRY_VERIFY(gemeinter->isEnabled());
    QTest::mouseClick(gemeinter, Qt::LeftButton);
}

void TestDateituer::itAsksForWhatIsWanted_data()
{
    QTest::addColumn<Zweck>("zweck");
    QTest::addColumn<QFileDialog::FileMode>("modus");
    QTest::addColumn<bool>("sichern");
    QTest::newRow("a file to read") << Zweck::Lesen << QFileDialog::ExistingFile << false;
    QTest::newRow("files to read") << Zweck::AlleLesen << QFileDialog::ExistingFiles << false;
    QTest::newRow("a file to write") << Zweck::Schreiben << QFileDialog::AnyFile << true;
    QTest::newRow("a folder") << Zweck::Ordner << QFileDialog::Directory << false;
}

void TestDateituer::itAsksForWhatIsWanted()
{
    QFETCH(Zweck, zweck);
    QFETCH(bool, sichern);
    const QStringList arten = {u"Tabellen (*.csv)"_s, u"Alle Dateien (*)"_s};
    const QFileDialog &dialog =
        frage({.titel = u"Als <b>Tabelle</b> sichern"_s,
               .vorschlag = zweck == Zweck::Ordner ? QString() : u"liste.csv"_s,
               .arten = arten.join(u";;"_s),
               .endung = u"csv"_s,
               .zweck = zweck});
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    QCOMPARE(dialog.windowTitle(), u"Als <b>Tabelle</b> sichern"_s);
    QTEST(dialog.fileMode(), "modus");
    QCOMPARE(dialog.nameFilters(), arten);
    QCOMPARE(dialog.selectedNameFilter(), arten[0]);
    QCOMPARE(dialog.defaultSuffix(), u"csv"_s);
    QCOMPARE(dialog.acceptMode() == QFileDialog::AcceptSave, sichern);
    QCOMPARE(dialog.testOption(QFileDialog::DontConfirmOverwrite), false);
    QCOMPARE(dialog.testOption(QFileDialog::ShowDirsOnly), zweck == Zweck::Ordner);
    QCOMPARE(namensfeld().text(), sichern ? u"liste.csv"_s : QString());
}

void TestDateituer::itBeginsInTheFolderOfTheProposal_data()
{
    QTest::addColumn<Zweck>("zweck");
    QTest::addColumn<QString>("vorschlag");
    QTest::newRow("of a file to read") << Zweck::Lesen << u"Pläne für uns/x.daten"_s;
    QTest::newRow("of files to read") << Zweck::AlleLesen << u"Pläne für uns/x.daten"_s;
    QTest::newRow("of a file to write") << Zweck::Schreiben << u"Pläne für uns/liste.csv"_s;
    QTest::newRow("a folder is one itself") << Zweck::Ordner << u"Pläne für uns"_s;
}

void TestDateituer::itBeginsInTheFolderOfTheProposal()
{
    QFETCH(Zweck, zweck);
    QFETCH(QString, vorschlag);
    QVERIFY(QDir().mkpath(pfad(u"Pläne für uns"_s)));
    const QFileDialog &dialog =
        frage({.titel = u"Frage"_s, .vorschlag = vorschlag, .zweck = zweck});
    QCOMPARE(dialog.directory().absolutePath(), pfad(u"Pläne für uns"_s));
}

void TestDateituer::aFileThatIsThereIsGiven()
{
    lege(u"alt und neu.daten"_s);
    frage({.titel = u"Datei öffnen"_s, .vorschlag = u"x.daten"_s, .zweck = Zweck::Lesen});
    tippe(u"alt und neu.daten"_s);
    bestaetige(QDialogButtonBox::Open);
    QTRY_COMPARE(m_antworten, QStringList{pfad(u"alt und neu.daten"_s)});
    QTRY_VERIFY(m_dialog.isNull()); // nothing is left behind
}

void TestDateituer::ofAFileThatIsNotThereNothingIsGiven()
{
    frage({.titel = u"Datei öffnen"_s, .vorschlag = u"x.daten"_s, .zweck = Zweck::Lesen});
    tippe(u"fehlt.daten"_s);
    const auto *oeffnen = m_dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open);
    QVERIFY(!oeffnen->isEnabled());
    QVERIFY(m_dialog->isVisible());
    QVERIFY(m_antworten.isEmpty());
}

void TestDateituer::severalFilesComeOneAfterTheOther()
{
    lege(u"a.daten"_s);
    lege(u"b.daten"_s);
    frage({.titel = u"Datei öffnen"_s, .vorschlag = u"x.daten"_s, .zweck = Zweck::AlleLesen});
    auto *liste = m_dialog->findChild<QListView *>(u"listView"_s);
    QTRY_COMPARE(liste->model()->rowCount(liste->rootIndex()), 2);
    for (const int zeile : {0, 1}) {
        const QModelIndex eine = liste->model()->index(zeile, 0, liste->rootIndex());
        QTest::mouseClick(liste->viewport(), Qt::LeftButton,
                          zeile == 0 ? Qt::NoModifier : Qt::ControlModifier,
                          liste->visualRect(eine).center());
    }
    bestaetige(QDialogButtonBox::Open);
    QTRY_COMPARE(m_antworten.size(), 2);
    m_antworten.sort(); // in which order they were chosen, the dialog does not tell
    QCOMPARE(m_antworten, (QStringList{pfad(u"a.daten"_s), pfad(u"b.daten"_s)}));
}

void TestDateituer::aFolderIsGivenAndNoFileShown()
{
    QVERIFY(QDir().mkpath(pfad(u"Ausdrucke"_s)));
    lege(u"Brief.pdf"_s);
    frage({.titel = u"Ordner"_s, .vorschlag = m_ordner->path(), .zweck = Zweck::Ordner});
    const auto *liste = m_dialog->findChild<QListView *>(u"listView"_s);
    QTRY_COMPARE(liste->model()->rowCount(liste->rootIndex()), 1);
    QCOMPARE(liste->model()->index(0, 0, liste->rootIndex()).data().toString(), u"Ausdrucke"_s);
    tippe(u"Ausdrucke"_s);
    bestaetige(QDialogButtonBox::Open);
    QTRY_COMPARE(m_antworten, QStringList{pfad(u"Ausdrucke"_s)});
}

void TestDateituer::theProposalIsTakenAsItStands()
{
    frage({.titel = u"Als PDF sichern"_s,
           .vorschlag = u"Plan 2026-11-22 Liste (2).pdf"_s,
           .arten = u"PDF (*.pdf)"_s,
           .endung = u"pdf"_s,
           .zweck = Zweck::Schreiben});
    QTest::keyClick(&namensfeld(), Qt::Key_Return);
    QTRY_COMPARE(m_antworten, QStringList{pfad(u"Plan 2026-11-22 Liste (2).pdf"_s)});
}

void TestDateituer::aNameWithoutAnEndingGetsIt_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<QString>("gegeben");
    QTest::newRow("without one") << u"Mein Plan"_s << u"Mein Plan.pdf"_s;
    QTest::newRow("with it") << u"Mein Plan.pdf"_s << u"Mein Plan.pdf"_s;
    QTest::newRow("with another") << u"Mein Plan.alt"_s << u"Mein Plan.alt"_s;
    QTest::newRow("with an umlaut") << u"Über"_s << u"Über.pdf"_s;
}

void TestDateituer::aNameWithoutAnEndingGetsIt()
{
    QFETCH(QString, getippt);
    QFETCH(QString, gegeben);
    frage({.titel = u"Als PDF sichern"_s,
           .vorschlag = u"x.pdf"_s,
           .arten = u"PDF (*.pdf)"_s,
           .endung = u"pdf"_s,
           .zweck = Zweck::Schreiben});
    tippe(getippt);
    bestaetige(QDialogButtonBox::Save);
    QTRY_COMPARE(m_antworten, QStringList{pfad(gegeben)});
}

void TestDateituer::aFileThatIsThereIsAskedAbout_data()
{
    QTest::addColumn<QString>("getippt");
    QTest::addColumn<QMessageBox::StandardButton>("antwort");
    QTest::addColumn<bool>("gegeben");
    QTest::newRow("it may be replaced") << u"alt.pdf"_s << QMessageBox::Yes << true;
    QTest::newRow("it may not") << u"alt.pdf"_s << QMessageBox::No << false;
    QTest::newRow("typed without its ending") << u"alt"_s << QMessageBox::No << false;
}

void TestDateituer::aFileThatIsThereIsAskedAbout()
{
    QFETCH(QString, getippt);
    QFETCH(QMessageBox::StandardButton, antwort);
    QFETCH(bool, gegeben);
    lege(u"alt.pdf"_s);
    frage({.titel = u"Als PDF sichern"_s,
           .vorschlag = u"x.pdf"_s,
           .arten = u"PDF (*.pdf)"_s,
           .endung = u"pdf"_s,
           .zweck = Zweck::Schreiben});
    tippe(getippt);
    QString gefragt;
    QTimer::singleShot(0, qApp, [&] {
        auto *kasten = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        QVERIFY(kasten != nullptr);
        gefragt = kasten->text();
        QTest::mouseClick(kasten->button(antwort), Qt::LeftButton);
    });
    bestaetige(QDialogButtonBox::Save);
    QVERIFY2(gefragt.contains(u"alt.pdf"_s), qPrintable(gefragt));
    QCOMPARE(m_dialog.isNull() || !m_dialog->isVisible(), gegeben); // else another name is typed
    QTRY_COMPARE(m_antworten, gegeben ? QStringList{pfad(u"alt.pdf"_s)} : QStringList());
}

void TestDateituer::cancellingGivesNothing_data()
{
    QTest::addColumn<Zweck>("zweck");
    QTest::newRow("a file to read") << Zweck::Lesen;
    QTest::newRow("a file to write") << Zweck::Schreiben;
    QTest::newRow("a folder") << Zweck::Ordner;
}

void TestDateituer::cancellingGivesNothing()
{
    QFETCH(Zweck, zweck);
    lege(u"liste.csv"_s);
    frage({.titel = u"Frage"_s, .vorschlag = u"liste.csv"_s, .zweck = zweck});
    QTest::keyClick(m_dialog, Qt::Key_Escape);
    QTRY_VERIFY(m_dialog.isNull());
    QVERIFY(m_antworten.isEmpty());
}

/// What follows may show windows of its own, which would lie below the dialog.
void TestDateituer::theAnswerComesWhenTheDialogHasGone()
{
    lege(u"alt.daten"_s);
    frage({.titel = u"Datei öffnen"_s, .vorschlag = u"x.daten"_s, .zweck = Zweck::Lesen});
    tippe(u"alt.daten"_s);
    bestaetige(QDialogButtonBox::Open);
    QVERIFY(m_antworten.isEmpty());
    QTRY_COMPARE(m_antworten.size(), 1);
    QVERIFY(!m_warDa);
}

void TestDateituer::withoutItsWindowNothingIsGiven()
{
    lege(u"alt.daten"_s);
    frage({.titel = u"Datei öffnen"_s, .vorschlag = u"x.daten"_s, .zweck = Zweck::Lesen});
    tippe(u"alt.daten"_s);
    bestaetige(QDialogButtonBox::Open);
    m_fenster.reset();
    QCoreApplication::processEvents();
    QVERIFY(m_antworten.isEmpty());
}

QTEST_MAIN(TestDateituer)
#include "TestDateituer.moc"
