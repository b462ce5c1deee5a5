// The pages of the handbook as the program carries them: none is missing, no link leads nowhere,
// and what they call a caption can be read in the windows.

#include "Handbuch.h"
#include "Sprache.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

class TestHandbuchseiten : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageStandsInBothLanguages();
    void everyLinkLeadsToAPage_data() { sprachen(); }
    void everyLinkLeadsToAPage();
    void everyPictureIsThere_data() { sprachen(); }
    void everyPictureIsThere();
    void everyPageIsListedOnTheFirst_data() { sprachen(); }
    void everyPageIsListedOnTheFirst();
    void everyPageBeginsWithItsTitle_data() { sprachen(); }
    void everyPageBeginsWithItsTitle();
    void noPageHoldsHtml_data() { sprachen(); }
    void noPageHoldsHtml();
    void whatIsQuotedCanBeReadInTheWindows_data();
    void whatIsQuotedCanBeReadInTheWindows();

private:
    static void sprachen();
};

namespace {

/// In quotes, but no caption: what the user types, looks for, or finds elsewhere.
const QSet<QString> keineAufschrift = {
    u"brot"_s,
    u"Toastbrote"_s,
    u"gr"_s,
    u"bread"_s,
    u"crispbread"_s,
    u"Library/Application Support/Mahlberg"_s,
    u".config/Mahlberg"_s,
    u"1.234"_s,
};

QDir ordner(const QString &sprache)
{
    return QDir(u":/handbuch/"_s + sprache);
}

QStringList dateien(const QString &sprache)
{
    return ordner(sprache).entryList({u"*.md"_s}, QDir::Files, QDir::Name);
}

QString lies(const QString &datei)
{
    QFile gelesen(datei);
    return gelesen.open(QIODevice::ReadOnly) ? QString::fromUtf8(gelesen.readAll()) : QString();
}

QString seite(const QString &sprache, const QString &datei)
{
    return lies(ordner(sprache).filePath(datei));
}

/// What stands between the first brackets of the expression, wherever it matches.
QStringList funde(const QString &text, const QString &ausdruck)
{
    QStringList ergebnis;
    for (const auto &treffer : QRegularExpression(ausdruck).globalMatch(text)) {
        ergebnis << treffer.captured(1);
    }
    return ergebnis;
}

QString ohneKuerzel(QString text)
{
    return text.remove(u'&').simplified();
}

/// All texts of the windows in one language, one below the other.
QString aufschriften(const QString &sprache)
{
    QXmlStreamReader xml(lies(u":/uebersetzungen/mahlberg_en.ts"_s));
    const QString gesucht = sprache == u"de"_s ? u"source"_s : u"translation"_s;
    QStringList alle = {u"Deutsch"_s, u"English"_s}; // a language is called as its speakers call it
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == gesucht) {
            alle << ohneKuerzel(xml.readElementText());
        }
    }
    return u'\n' + alle.join(u'\n') + u'\n';
}

/// The whole text, or a part of it that its words and marks set apart.
bool stehtDa(const QString &alle, const QString &aufschrift)
{
    const QString ausdruck =
        u"(?<![\\w])"_s + QRegularExpression::escape(aufschrift) + u"(?![\\w])"_s;
    return QRegularExpression(ausdruck, QRegularExpression::UseUnicodePropertiesOption)
        .match(alle)
        .hasMatch();
}

} // namespace

void TestHandbuchseiten::sprachen()
{
    QTest::addColumn<QString>("sprache");
    QTest::newRow("German") << u"de"_s;
    QTest::newRow("English") << u"en"_s;
}

void TestHandbuchseiten::everyPageStandsInBothLanguages()
{
    QCOMPARE(dateien(u"de"_s).size(), 17);
    QCOMPARE(dateien(u"en"_s), dateien(u"de"_s));
}

void TestHandbuchseiten::everyLinkLeadsToAPage()
{
    QFETCH(QString, sprache);
    for (const QString &datei : dateien(sprache)) {
        const QString text = seite(sprache, datei);
        for (const QString &ziel : funde(text, u"(?s)(?<!!)\\[[^]]*\\]\\(([^)]*)\\)"_s)) {
            QVERIFY2(dateien(sprache).contains(ziel), qPrintable(datei + u": "_s + ziel));
        }
    }
}

void TestHandbuchseiten::everyPictureIsThere()
{
    QFETCH(QString, sprache);
    QSet<QString> gebraucht;
    for (const QString &datei : dateien(sprache)) {
        for (const QString &bild : funde(seite(sprache, datei), u"!\\[[^]]+\\]\\(([^)]*)\\)"_s)) {
            gebraucht << bild;
            QVERIFY2(!QImage(ordner(sprache).filePath(bild)).isNull(),
                     qPrintable(datei + u": "_s + bild));
        }
    }
    const QDir bilder(ordner(sprache).filePath(u"pictures"_s));
    QCOMPARE(gebraucht.size(), bilder.entryList(QDir::Files).size()); // none is carried for nothing
    for (const QFileInfo &bild : bilder.entryInfoList(QDir::Files)) {
        QVERIFY2(bild.size() < 120'000, qPrintable(bild.filePath()));
    }
}

void TestHandbuchseiten::everyPageIsListedOnTheFirst()
{
    QFETCH(QString, sprache);
    const Sprache genommen(sprache);
    QStringList seiten = Handbuch::seiten();
    QCOMPARE(seiten.first(), u"index"_s);
    for (QString &eine : seiten) {
        eine += u".md"_s;
    }
    seiten.sort();
    QCOMPARE(seiten, dateien(sprache));
}

void TestHandbuchseiten::everyPageBeginsWithItsTitle()
{
    QFETCH(QString, sprache);
    for (const QString &datei : dateien(sprache)) {
        const QStringList titel = funde(seite(sprache, datei), u"(?m)^# (.+)$"_s);
        QVERIFY2(titel.size() == 1, qPrintable(datei));
        QVERIFY2(seite(sprache, datei).startsWith(u"# "_s + titel[0]), qPrintable(datei));
    }
}

void TestHandbuchseiten::noPageHoldsHtml()
{
    QFETCH(QString, sprache);
    for (const QString &datei : dateien(sprache)) {
        const QStringList gefunden = funde(seite(sprache, datei), u"(<[A-Za-z/!]|&[a-z]+;)"_s);
        QVERIFY2(gefunden.isEmpty(), qPrintable(datei));
    }
}

void TestHandbuchseiten::whatIsQuotedCanBeReadInTheWindows_data()
{
    QTest::addColumn<QString>("sprache");
    QTest::addColumn<QString>("gequotet");
    QTest::newRow("German") << u"de"_s << u"(?s)„([^“]+)“"_s;
    QTest::newRow("English") << u"en"_s << u"(?s)“([^”]+)”"_s;
}

void TestHandbuchseiten::whatIsQuotedCanBeReadInTheWindows()
{
    QFETCH(QString, sprache);
    QFETCH(QString, gequotet);
    const QString alle = aufschriften(sprache);
    QStringList fremd;
    int anzahl = 0;
    for (const QString &datei : dateien(sprache)) {
        for (const QString &gefunden : funde(seite(sprache, datei), gequotet)) {
            for (const QString &aufschrift : gefunden.simplified().split(u" → "_s)) {
                ++anzahl;
                if (!keineAufschrift.contains(aufschrift) && !stehtDa(alle, aufschrift)) {
                    fremd << datei + u": "_s + aufschrift;
                }
            }
        }
    }
    QVERIFY2(fremd.isEmpty(), qPrintable(fremd.join(u'\n')));
    QVERIFY(anzahl > 100);
}

QTEST_GUILESS_MAIN(TestHandbuchseiten)
#include "TestHandbuchseiten.moc"
