#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>

/// The pages for people: what they point to is there, pictures too. Some pictures are those that
/// tests compare with, and move when a test does.
class TestDokumentverweise : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatAPagePointsToIsThere_data();
    void whatAPagePointsToIsThere();
    void thePagesOnTheLooksHavePictures();
    void whatDevelopersAreSentToIsThere_data();
    void whatDevelopersAreSentToIsThere();

private:
    static QString lies(const QString &seite);
    static QStringList verweise(const QString &seite);
};

namespace {

const QDir projekt(QStringLiteral(PROJEKT));

} // namespace

QString TestDokumentverweise::lies(const QString &seite)
{
    QFile datei(projekt.filePath(seite));
    return datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()) : QString();
}

/// The targets of links and pictures, without those on other machines and without the place within
/// a page.
QStringList TestDokumentverweise::verweise(const QString &seite)
{
    static const QRegularExpression verweis(QStringLiteral("\\]\\(([^)#\\s]+)(?:#[^)]*)?\\)"));
    QStringList alle;
    auto treffer = verweis.globalMatch(lies(seite));
    while (treffer.hasNext()) {
        const QString ziel = treffer.next().captured(1);
        if (!ziel.contains(QLatin1String("://"))) {
            alle << ziel;
        }
    }
    return alle;
}

void TestDokumentverweise::whatAPagePointsToIsThere_data()
{
    QTest::addColumn<QString>("seite");
    for (const char *seite : {"README.md", "CONTRIBUTING.md", "CHANGELOG.md"}) {
        QTest::newRow(seite) << QString::fromLatin1(seite);
    }
    QDirIterator seiten(projekt.filePath(QStringLiteral("docs")), {QStringLiteral("*.md")},
                        QDir::Files, QDirIterator::Subdirectories);
    while (seiten.hasNext()) {
        const QString seite = projekt.relativeFilePath(seiten.next());
        QTest::newRow(qPrintable(seite)) << seite;
    }
}

void TestDokumentverweise::whatAPagePointsToIsThere()
{
    QFETCH(QString, seite);
    QVERIFY(!lies(seite).isEmpty());
    const QDir ordner = QFileInfo(projekt.filePath(seite)).dir();
    for (const QString &ziel : verweise(seite)) {
        QVERIFY2(QFileInfo::exists(ordner.filePath(ziel)), qPrintable(ziel));
    }
}

/// The pages on the looks and on what has changed are of no use without pictures.
void TestDokumentverweise::thePagesOnTheLooksHavePictures()
{
    for (const char *seite : {"docs/design.md", "docs/before-and-after.md"}) {
        const QStringList bilder = verweise(QLatin1String(seite)).filter(QStringLiteral(".png"));
        QVERIFY2(bilder.size() >= 8, seite);
    }
}

void TestDokumentverweise::whatDevelopersAreSentToIsThere_data()
{
    QTest::addColumn<QString>("seite");
    QTest::newRow("the rooms") << QStringLiteral("docs/architecture.md");
    QTest::newRow("the usual changes") << QStringLiteral("CONTRIBUTING.md");
}

/// A path such as `plan/Planregeln.cpp`, or `plan/Planregeln` for a class with its two files. What
/// lies under `build/` is there once it has been made.
void TestDokumentverweise::whatDevelopersAreSentToIsThere()
{
    QFETCH(QString, seite);
    static const QRegularExpression pfad(QStringLiteral("`(?!build/)([a-z]+/[A-Za-z./-]*)`"));
    auto treffer = pfad.globalMatch(lies(seite));
    int wege = 0;
    for (; treffer.hasNext(); ++wege) {
        const QString ziel = treffer.next().captured(1);
        QVERIFY2(projekt.exists(ziel) || projekt.exists(ziel + QStringLiteral(".h")),
                 qPrintable(ziel));
    }
    QVERIFY(wege >= 5);
}

QTEST_GUILESS_MAIN(TestDokumentverweise)
#include "TestDokumentverweise.moc"
