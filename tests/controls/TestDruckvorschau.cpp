#include "Druckprobe.h"
#include "Pdftuer.h"
#include "Seiteneinrichtung.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <functional>

/// The preview in which a print begins, and what its user does there.
class TestDruckvorschau : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void manyPagesCanBeCancelled_data();
    void manyPagesCanBeCancelled();
    void fewPagesShowNoProgress();
    void thePreviewBeginsWithTheSharedPageSetup();
    void thePageSetupIsKeptForTheNextPrint();
    void theTitleMakesAFileName_data();
    void theTitleMakesAFileName();
    void aNewFileInTheDocumentsFolderIsProposed();
    void thePreviewIsAsLargeAsItsWindow();
    void closingThePreviewPrintsNothing();
    void thePreviewIsPaintedLikeThePrint();
    void thePreviewShowsEveryPage();
    void withoutAPrinterItPrintsToAPdf();
    void theQuestionAboutAnExistingPdfIsShownAsItIsWritten();
    void cancellingGoesBackToThePreview();
    void aPdfThatFailsIsToldAndTheProgramGoesOn();
    void theChosenFolderIsProposedForAPdf();
    void itsButtonSavesAPdf_data();
    void itsButtonSavesAPdf();
    void withoutTheDoorThereIsNoButton();

private:
    QPrintPreviewDialog *oeffne(const Druckauftrag &auftrag, const Pdftuer &alsPdf = {});
    void schliesse(QPrintPreviewDialog &vorschau) const;

    QTemporaryDir m_ordner;
    std::unique_ptr<QSettings> m_einstellungen;
    QList<Meldung> m_meldungen;
    QWidget m_fenster;
};

namespace {

QAction *aktion(QPrintPreviewDialog &vorschau, const char *text)
{
    for (QAction *aktion : vorschau.findChildren<QAction *>()) {
        if (aktion->text() == QLatin1String(text)) {
            return aktion;
        }
    }
    return nullptr;
}

/// Answers the system's print dialog when it comes: prints to this file, or cancels for a null
/// name.
void beantworteDruckfrage(const QString &pdf)
{
    QTimer::singleShot(0, qApp, [pdf] {
        auto *frage = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
        if (frage == nullptr) {
            beantworteDruckfrage(pdf);
        } else if (pdf.isNull()) {
            frage->reject();
        } else {
            frage->findChild<QLineEdit *>(QStringLiteral("filename"))->setText(pdf);
            frage->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
        }
    });
}

/// Looks at the system's print dialog when it comes, and cancels it.
void lies(QString &vorschlag)
{
    QTimer::singleShot(0, qApp, [&vorschlag] {
        auto *frage = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
        if (frage == nullptr) {
            lies(vorschlag);
        } else {
            vorschlag = frage->findChild<QLineEdit *>(QStringLiteral("filename"))->text();
            frage->reject();
        }
    });
}

/// Looks at the question that the print dialog asks, says no, and leaves the dialog.
void verneineFrage(const std::function<void(const QMessageBox &)> &sieAn)
{
    QTimer::singleShot(0, qApp, [sieAn] {
        auto *frage = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (frage == nullptr) {
            verneineFrage(sieAn);
            return;
        }
        sieAn(*frage);
        QWidget *dialog = frage->parentWidget();
        frage->button(QMessageBox::No)->click();
        QTimer::singleShot(0, dialog, [dialog] { dialog->close(); });
    });
}

} // namespace

void TestDruckvorschau::init()
{
    QVERIFY(m_ordner.isValid());
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    m_meldungen.clear();
    m_einstellungen = std::make_unique<QSettings>(m_ordner.filePath(QStringLiteral("e.ini")),
                                                  QSettings::IniFormat);
    m_einstellungen->clear();
    m_fenster.show();
}

QPrintPreviewDialog *TestDruckvorschau::oeffne(const Druckauftrag &auftrag, const Pdftuer &alsPdf)
{
    const Drucktuer tuer = systemdrucktuer(
        *m_einstellungen,
        [this](QWidget *, const Meldung &m) {
            m_meldungen << m;
            return 0;
        },
        alsPdf);
    tuer(&m_fenster, auftrag);
    const QPointer<QPrintPreviewDialog> vorschau = m_fenster.findChild<QPrintPreviewDialog *>();
    // A machine with printers asks for one of them; these tests are about files.
    vorschau->printer()->setOutputFormat(QPrinter::PdfFormat);
    return QTest::qWaitForWindowExposed(vorschau) ? vorschau.data() : nullptr;
}

void TestDruckvorschau::schliesse(QPrintPreviewDialog &vorschau) const
{
    vorschau.close();
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);
}

void TestDruckvorschau::manyPagesCanBeCancelled_data()
{
    QTest::addColumn<bool>("vorschau");
    QTest::newRow("while the preview is made") << true;
    QTest::newRow("while the print is made") << false;
}

/// A job of 500 pages that take their time. The user sees how many are done, and cancels.
void TestDruckvorschau::manyPagesCanBeCancelled()
{
    QFETCH(bool, vorschau);
    bool langsam = vorschau;
    int gemalt = 0;
    QString worte;
    Druckauftrag auftrag = beziffert(500);
    auftrag.male = [&](QPainter &, const QPageLayout &, int) {
        if (!langsam) {
            return;
        }
        ++gemalt;
        QElapsedTimer arbeit;
        arbeit.start();
        while (arbeit.elapsed() < 10) {
        }
        for (QWidget *fenster : QApplication::topLevelWidgets()) {
            auto *anzeige = qobject_cast<QProgressDialog *>(fenster);
            if (anzeige != nullptr && anzeige->isVisible() && worte.isNull()) {
                worte = anzeige->labelText();
                QTest::mouseClick(anzeige->findChild<QPushButton *>(), Qt::LeftButton);
            }
        }
    };
    const QString pdf = m_ordner.filePath(QStringLiteral("abgebrochen.pdf"));
    const QPointer<QPrintPreviewDialog> fenster = oeffne(auftrag);
    if (!vorschau) {
        QVERIFY(fenster);
        langsam = true;
        fenster->printer()->setOutputFileName(pdf);
        fenster->findChild<QPrintPreviewWidget *>()->print();
    }
    QVERIFY(gemalt > 1 && gemalt < 500);
    QCOMPARE(worte, QStringLiteral("Seite %1 von 500").arg(gemalt));
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr); // it closes
    QVERIFY(!QFile::exists(pdf));
    QVERIFY(m_meldungen.isEmpty()); // who cancels knows it
}

void TestDruckvorschau::fewPagesShowNoProgress()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(2));
    QVERIFY(vorschau);
    for (const QWidget *fenster : QApplication::topLevelWidgets()) {
        QVERIFY(qobject_cast<const QProgressDialog *>(fenster) == nullptr);
    }
    schliesse(*vorschau);
}

void TestDruckvorschau::thePreviewBeginsWithTheSharedPageSetup()
{
    merkeSeite(*m_einstellungen,
               Druckprobe::papier(QPageSize::Letter, QPageLayout::Landscape, {72, 36, 18, 9}));
    QPrintPreviewDialog *vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    const QPageLayout seite = vorschau->printer()->pageLayout();
    QCOMPARE(seite.pageSize().id(), QPageSize::Letter);
    QCOMPARE(seite.orientation(), QPageLayout::Landscape);
    QCOMPARE(seite.margins(QPageLayout::Point), QMarginsF(72, 36, 18, 9));
    QVERIFY(vorschau->windowTitle().contains(QLatin1String("Probe")));
    vorschau->close();
}

void TestDruckvorschau::thePageSetupIsKeptForTheNextPrint()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QCOMPARE(vorschau->printer()->pageLayout().orientation(), QPageLayout::Portrait);
    vorschau->findChild<QPrintPreviewWidget *>()->setLandscapeOrientation();
    vorschau->close();
    QCOMPARE(gemerkteSeite(*m_einstellungen).orientation(), QPageLayout::Landscape);
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);

    vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QCOMPARE(vorschau->printer()->pageLayout().orientation(), QPageLayout::Landscape);
    QCOMPARE(vorschau->printer()->pageLayout().pageSize().id(), QPageSize::A4);
    vorschau->close();
}

void TestDruckvorschau::theTitleMakesAFileName_data()
{
    QTest::addColumn<QString>("titel");
    QTest::addColumn<QString>("name");
    QTest::newRow("an ordinary name")
        << QStringLiteral("Äpfel, roh") << QStringLiteral("Äpfel, roh");
    QTest::newRow("a slash is no folder")
        << QStringLiteral("Apfel/Birne") << QStringLiteral("Apfel-Birne");
    QTest::newRow("a point in the last word is no ending")
        << QStringLiteral("Milch 3.5%") << QStringLiteral("Milch 3.5%"); // the day follows it
    QTest::newRow("a point before a blank does no harm")
        << QStringLiteral("Milch m. Zucker") << QStringLiteral("Milch m. Zucker");
    QTest::newRow("a point at the end does no harm")
        << QStringLiteral("Obst usw.") << QStringLiteral("Obst usw.");
    QTest::newRow("longer than a disk takes") << QString(300, u'ä') << QString(69, u'ä');
}

void TestDruckvorschau::theTitleMakesAFileName()
{
    QFETCH(QString, titel);
    QFETCH(QString, name);
    Druckauftrag auftrag = beziffert(1);
    auftrag.titel = titel;
    auftrag.tag = QDate(2026, 11, 22);
    QPrintPreviewDialog *vorschau = oeffne(auftrag);
    QVERIFY(vorschau);
    QCOMPARE(vorschau->printer()->docName(), name + QStringLiteral(" 2026-11-22"));
    QVERIFY(vorschau->windowTitle().contains(titel)); // the user reads the true one
    schliesse(*vorschau);
}

void TestDruckvorschau::aNewFileInTheDocumentsFolderIsProposed()
{
    const QString dokumente = m_ordner.filePath(QStringLiteral("Dokumente"));
    QVERIFY(QDir().mkpath(dokumente));
    QFile verzeichnisse(m_ordner.filePath(QStringLiteral("user-dirs.dirs")));
    QVERIFY(verzeichnisse.open(QIODevice::WriteOnly));
    verzeichnisse.write("XDG_DOCUMENTS_DIR=\"" + dokumente.toUtf8() + "\"\n");
    verzeichnisse.close();
    const QByteArray vorher = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", m_ordner.path().toUtf8());

    Druckauftrag auftrag = beziffert(1);
    auftrag.tag = QDate(2026, 11, 22);
    auftrag.form = QStringLiteral("Liste");
    for (const char *name : {"Probe 2026-11-22 Liste.pdf", "Probe 2026-11-22 Liste (2).pdf"}) {
        const QString pfad = dokumente + u'/' + QLatin1String(name);
        QPrintPreviewDialog *vorschau = oeffne(auftrag);
        QVERIFY(vorschau);
        QString vorschlag;
        lies(vorschlag);
        aktion(*vorschau, "Print")->trigger();
        QCOMPARE(vorschlag, pfad);
        QFile gedruckt(pfad);
        QVERIFY(gedruckt.open(QIODevice::WriteOnly));
        vorschau->close();
        QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);
    }
    vorher.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", vorher);
}

void TestDruckvorschau::thePreviewIsAsLargeAsItsWindow()
{
    m_fenster.resize(780, 570);
    QPrintPreviewDialog *vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QCOMPARE(vorschau->size(), QSize(780, 570));
    schliesse(*vorschau);

    m_fenster.resize(100, 50); // but never too small for its buttons
    vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QCOMPARE(vorschau->size(), QSize(752, 515));
    schliesse(*vorschau);
}

void TestDruckvorschau::closingThePreviewPrintsNothing()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QVERIFY(vorschau->isModal()); // what is about to be printed can't change behind it
    schliesse(*vorschau);
    QVERIFY(m_meldungen.isEmpty());
}

void TestDruckvorschau::thePreviewIsPaintedLikeThePrint()
{
    QList<int> gemalt;
    Druckauftrag auftrag = beziffert(3);
    auftrag.male = [&gemalt, male = auftrag.male](QPainter &maler, const QPageLayout &seite,
                                                  int nummer) {
        gemalt << nummer;
        male(maler, seite, nummer);
    };
    QPrintPreviewDialog *vorschau = oeffne(auftrag);
    QVERIFY(vorschau);
    auto *ansicht = vorschau->findChild<QPrintPreviewWidget *>();
    QTRY_COMPARE(ansicht->pageCount(), 3);
    QCOMPARE(gemalt.first(3), QList<int>({1, 2, 3}));

    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    vorschau->printer()->setOutputFileName(probe.pdf());
    gemalt.clear();
    ansicht->print();
    QCOMPARE(gemalt, QList<int>({1, 2, 3}));
    QCOMPARE(probe.zeilen(3), QStringList({QStringLiteral("Seite 3")}));
    schliesse(*vorschau);
}

void TestDruckvorschau::thePreviewShowsEveryPage()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(3));
    QVERIFY(vorschau);
    QTRY_COMPARE(vorschau->findChild<QPrintPreviewWidget *>()->pageCount(), 3);
    vorschau->close();
}

void TestDruckvorschau::withoutAPrinterItPrintsToAPdf()
{
    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    QPrintPreviewDialog *vorschau = oeffne(beziffert(2));
    QVERIFY(vorschau);
    beantworteDruckfrage(probe.pdf());
    aktion(*vorschau, "Print")->trigger();
    QCOMPARE(probe.seiten(), 2);
    QCOMPARE(probe.zeilen(2), QStringList({QStringLiteral("Seite 2")}));
    QVERIFY(m_meldungen.isEmpty());
    QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);
}

/// The print dialog's own question, which the program doesn't write, shows a name like any other.
void TestDruckvorschau::theQuestionAboutAnExistingPdfIsShownAsItIsWritten()
{
    QFile vorhanden(m_ordner.filePath(QStringLiteral("<b>x.pdf")));
    QVERIFY(vorhanden.open(QIODevice::WriteOnly));
    vorhanden.close();
    QPrintPreviewDialog *vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QString gefragt;
    Qt::TextFormat format = Qt::AutoText;
    verneineFrage([&](const QMessageBox &kasten) {
        const auto *zeile = kasten.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
        gefragt = zeile->text();
        format = zeile->textFormat();
    });
    beantworteDruckfrage(vorhanden.fileName());
    aktion(*vorschau, "Print")->trigger();
    QVERIFY2(gefragt.contains(vorhanden.fileName()), qPrintable(gefragt));
    QCOMPARE(format, Qt::PlainText);
    QCOMPARE(vorhanden.size(), 0);
    schliesse(*vorschau);
}

void TestDruckvorschau::cancellingGoesBackToThePreview()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(2));
    QVERIFY(vorschau);
    beantworteDruckfrage(QString());
    aktion(*vorschau, "Print")->trigger();
    QVERIFY(m_meldungen.isEmpty());
    QVERIFY(vorschau->isVisible()); // the user may look on
    schliesse(*vorschau);
}

void TestDruckvorschau::aPdfThatFailsIsToldAndTheProgramGoesOn()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(2));
    QVERIFY(vorschau);
    vorschau->printer()->setOutputFileName(m_ordner.filePath(QStringLiteral("fehlt/plan.pdf")));
    vorschau->findChild<QPrintPreviewWidget *>()->print();
    QCOMPARE(m_meldungen.size(), 1);
    QCOMPARE(m_meldungen[0].text, QStringLiteral("Das Drucken ist nicht gelungen."));
    QVERIFY(m_meldungen[0].erklaerung.contains(QLatin1String("fehlt/plan.pdf")));
    QCOMPARE(m_meldungen[0].knoepfe, QStringList({QStringLiteral("ok")}));
    schliesse(*vorschau);

    Druckprobe probe(Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait));
    probe.drucke(beziffert(1));
    QCOMPARE(probe.seiten(), 1);
}

void TestDruckvorschau::theChosenFolderIsProposedForAPdf()
{
    Druckauftrag auftrag = beziffert(1);
    auftrag.tag = QDate(2026, 11, 22);
    merkePdfordner(*m_einstellungen, m_ordner.path());
    for (const bool da : {true, false}) {
        if (!da) {
            merkePdfordner(*m_einstellungen, m_ordner.filePath(QStringLiteral("fehlt")));
        }
        QPrintPreviewDialog *vorschau = oeffne(auftrag);
        QVERIFY(vorschau);
        QString vorschlag;
        lies(vorschlag);
        aktion(*vorschau, "Print")->trigger();
        QVERIFY(vorschlag.endsWith(QLatin1String("/Probe 2026-11-22.pdf")));
        QCOMPARE(vorschlag.startsWith(m_ordner.path()), da);
        vorschau->close();
        QTRY_VERIFY(m_fenster.findChild<QPrintPreviewDialog *>() == nullptr);
    }
}

void TestDruckvorschau::itsButtonSavesAPdf_data()
{
    QTest::addColumn<bool>("gesichert");
    QTest::newRow("saved: the preview has done its work") << true;
    QTest::newRow("cancelled: the user may look on") << false;
}

void TestDruckvorschau::itsButtonSavesAPdf()
{
    QFETCH(bool, gesichert);
    QString titel;
    QWidget *worueber = nullptr;
    QPageLayout::Orientation lage = QPageLayout::Portrait;
    QPrintPreviewDialog *vorschau = oeffne(
        beziffert(2), [&](QWidget *fenster, const Druckauftrag &auftrag, const auto &danach) {
            worueber = fenster;
            titel = auftrag.titel;
            lage = gemerkteSeite(*m_einstellungen).orientation();
            if (gesichert) {
                danach();
            }
        });
    QVERIFY(vorschau);
    vorschau->findChild<QPrintPreviewWidget *>()->setLandscapeOrientation();
    auto *knopf = vorschau->findChild<QToolBar *>()->widgetForAction(
        vorschau->findChild<QAction *>(QStringLiteral("alsPdf")));
    QVERIFY(knopf->isVisible());
    QCOMPARE(qobject_cast<QToolButton *>(knopf)->text(), QStringLiteral("PDF …"));
    QCOMPARE(knopf->toolTip(), QStringLiteral("Als PDF sichern …"));
    QTest::mouseClick(knopf, Qt::LeftButton);
    QCOMPARE(titel, QStringLiteral("Probe"));
    QCOMPARE(worueber, vorschau);
    QCOMPARE(lage, QPageLayout::Landscape); // as it is shown
    QCOMPARE(vorschau->isVisible(), !gesichert);
    schliesse(*vorschau);
}

void TestDruckvorschau::withoutTheDoorThereIsNoButton()
{
    QPrintPreviewDialog *vorschau = oeffne(beziffert(1));
    QVERIFY(vorschau);
    QVERIFY(vorschau->findChild<QAction *>(QStringLiteral("alsPdf")) == nullptr);
    schliesse(*vorschau);
}

QTEST_MAIN(TestDruckvorschau)
#include "TestDruckvorschau.moc"
