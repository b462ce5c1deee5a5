#include "Druckname.h"
#include "Drucktuer.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestDruckname : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void titleDayAndForm_data();
    void titleDayAndForm();
    void anExistingFileGetsANumber();
    void theDocumentsAreTheFirstPlace();
};

void TestDruckname::titleDayAndForm_data()
{
    QTest::addColumn<QString>("titel");
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("name");
    QTest::newRow("the simple list") << QStringLiteral("Mahlzeitenplan") << QStringLiteral("Liste")
                                     << QStringLiteral("Mahlzeitenplan 2026-11-22 Liste");
    QTest::newRow("no form") << QStringLiteral("Alkohol und Sport") << QString()
                             << QStringLiteral("Alkohol und Sport 2026-11-22");
    QTest::newRow("no title") << QString() << QString() << QStringLiteral("2026-11-22");
    QTest::newRow("a slash is no folder")
        << QStringLiteral("Apfel/Birne") << QString() << QStringLiteral("Apfel-Birne 2026-11-22");
    QTest::newRow("signs that other systems refuse")
        << QStringLiteral("a\\b:c*d?e\"f<g>h|i") << QString()
        << QStringLiteral("a-b-c-d-e-f-g-h-i 2026-11-22");
    QTest::newRow("blanks and lines") << QStringLiteral(" Milch \n 3.5% ") << QString()
                                      << QStringLiteral("Milch 3.5% 2026-11-22");
    // 80 letters: one blank, ten of the day, one blank, ten of the form, and 58 before
    QTest::newRow("a long title keeps its day and form")
        << QString(300, u'ä') << QStringLiteral("Nährstoffe")
        << QString(58, u'ä') + QStringLiteral(" 2026-11-22 Nährstoffe");
}

void TestDruckname::titleDayAndForm()
{
    QFETCH(QString, titel);
    QFETCH(QString, form);
    QFETCH(QString, name);
    QCOMPARE(druckname({titel, {}, {}, form, QDate(2026, 11, 22)}), name);
}

void TestDruckname::anExistingFileGetsANumber()
{
    const QTemporaryDir ordner;
    const QString name = QStringLiteral("Plan 1.5");
    for (const char *datei : {"Plan 1.5.pdf", "Plan 1.5 (2).pdf", "Plan 1.5 (3).pdf"}) {
        const QString pfad = ordner.filePath(QLatin1String(datei));
        QCOMPARE(freiesPdf(ordner.path(), name), pfad);
        QFile vorhanden(pfad);
        QVERIFY(vorhanden.open(QIODevice::WriteOnly));
    }
}

/// A desktop need not have a folder for documents.
void TestDruckname::theDocumentsAreTheFirstPlace()
{
    const QTemporaryDir heim;
    const QByteArray vorher = qgetenv("HOME");
    const QByteArray einstellungen = qgetenv("XDG_CONFIG_HOME");
    qputenv("HOME", heim.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", heim.path().toLocal8Bit());
    const QString ohne = dokumentenordner();
    QVERIFY(QDir(heim.path()).mkdir(QStringLiteral("Documents")));
    const QString mit = dokumentenordner();
    qputenv("HOME", vorher);
    qputenv("XDG_CONFIG_HOME", einstellungen);
    QCOMPARE(ohne, heim.path());
    QCOMPARE(mit, heim.filePath(QStringLiteral("Documents")));
}

QTEST_MAIN(TestDruckname)
#include "TestDruckname.moc"
