// Every text that the program can show has an English translation, and the translation file holds
// no text that the program has dropped.

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

class TestUebersetzung : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsTranslated();
    void noTranslationIsLeftOver();
    void placeholdersAndMarginsAreKept();
};

namespace {

/// A text with the context under which it is looked up.
using Schluessel = QPair<QString, QString>;

QString inhalt(const QString &datei)
{
    QFile file(datei);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList dateien(const QString &muster)
{
    QStringList ergebnis;
    for (const char *raum : {"model", "analysis", "wertung", "austausch", "controls", "views",
                             "plan", "anthro", "tage", "einblick", "klienten", "befehle", "app"}) {
        QDirIterator suche(QStringLiteral(MAHLBERG_SOURCE_DIR "/") + QLatin1String(raum), {muster},
                           QDir::Files);
        while (suche.hasNext()) {
            ergebnis << suche.next();
        }
    }
    return ergebnis;
}

/// Joins adjacent string literals as the compiler does.
QString zusammengesetzt(const QString &literale)
{
    static const QRegularExpression literal(QStringLiteral(R"re("((?:[^"\\]|\\.)*)")re"));
    QString text;
    for (auto treffer = literal.globalMatch(literale); treffer.hasNext();) {
        text += treffer.next().captured(1);
    }
    return text.replace(QStringLiteral("\\n"), QStringLiteral("\n"))
        .replace(QStringLiteral("\\\""), QStringLiteral("\""));
}

QSet<Schluessel> schluesselDesCodes()
{
    static const QRegularExpression aufruf(QStringLiteral(
        R"re((?:(?:QT_TRANSLATE_NOOP|translate)\(\s*"Mahlberg"\s*,|localizedString\(\s*(?:QStringLiteral|QLatin1String)\()\s*((?:"(?:[^"\\]|\\.)*"\s*)+))re"));
    QSet<Schluessel> ergebnis;
    for (const QString &datei : dateien(QStringLiteral("*.cpp")) + dateien(QStringLiteral("*.h"))) {
        const QString text = inhalt(datei);
        for (auto treffer = aufruf.globalMatch(text); treffer.hasNext();) {
            ergebnis << Schluessel(QStringLiteral("Mahlberg"),
                                   zusammengesetzt(treffer.next().captured(1)));
        }
    }
    return ergebnis;
}

QSet<Schluessel> schluesselDerFenster()
{
    QSet<Schluessel> ergebnis;
    for (const QString &datei : dateien(QStringLiteral("*.ui"))) {
        QXmlStreamReader xml(inhalt(datei));
        QString klasse;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement()) {
                continue;
            }
            if (xml.name() == QLatin1String("class") && klasse.isEmpty()) {
                klasse = xml.readElementText();
            } else if (xml.name() == QLatin1String("string") &&
                       xml.attributes().value(QLatin1String("notr")) != QLatin1String("true")) {
                const QString text = xml.readElementText();
                if (!text.trimmed().isEmpty()) {
                    ergebnis << Schluessel(klasse, text);
                }
            }
        }
    }
    return ergebnis;
}

QMap<Schluessel, QString> uebersetzungen()
{
    QXmlStreamReader xml(
        inhalt(QStringLiteral(MAHLBERG_SOURCE_DIR "/resources/translations/mahlberg_en.ts")));
    QMap<Schluessel, QString> ergebnis;
    Schluessel schluessel;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            schluessel.first = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            schluessel.second = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const bool fertig = !xml.attributes().hasAttribute(QLatin1String("type"));
            const QString text = xml.readElementText();
            ergebnis.insert(schluessel, fertig ? text : QString());
        }
    }
    return ergebnis;
}

QStringList platzhalter(const QString &text)
{
    static const QRegularExpression muster(QStringLiteral("%[0-9]"));
    QStringList ergebnis;
    for (auto treffer = muster.globalMatch(text); treffer.hasNext();) {
        ergebnis << treffer.next().captured();
    }
    ergebnis.sort();
    return ergebnis;
}

} // namespace

void TestUebersetzung::everyTextIsTranslated()
{
    const auto vorhanden = uebersetzungen();
    QStringList fehlend;
    for (const auto &[kontext, text] : schluesselDesCodes() + schluesselDerFenster()) {
        // Two texts are made of blanks only: they clear a title.
        if (!text.trimmed().isEmpty() && vorhanden.value({kontext, text}).isEmpty()) {
            fehlend << kontext + QStringLiteral(": ") + text;
        }
    }
    fehlend.sort();
    QVERIFY2(fehlend.isEmpty(), qPrintable(fehlend.join(u'\n')));
}

void TestUebersetzung::noTranslationIsLeftOver()
{
    const auto gebraucht = schluesselDesCodes() + schluesselDerFenster();
    QStringList ueberzaehlig;
    const auto vorhanden = uebersetzungen();
    for (auto i = vorhanden.constBegin(); i != vorhanden.constEnd(); ++i) {
        if (!gebraucht.contains(i.key())) {
            ueberzaehlig << i.key().first + QStringLiteral(": ") + i.key().second;
        }
    }
    QVERIFY2(ueberzaehlig.isEmpty(), qPrintable(ueberzaehlig.join(u'\n')));
}

void TestUebersetzung::placeholdersAndMarginsAreKept()
{
    const auto vorhanden = uebersetzungen();
    for (auto i = vorhanden.constBegin(); i != vorhanden.constEnd(); ++i) {
        const QString &quelle = i.key().second;
        QCOMPARE(platzhalter(i.value()), platzhalter(quelle));
        // Some texts are glued to a number: a blank at their end is part of them.
        QVERIFY2(i.value().endsWith(u' ') == quelle.endsWith(u' '), qPrintable(quelle));
    }
}

QTEST_GUILESS_MAIN(TestUebersetzung)
#include "TestUebersetzung.moc"
