#include "Archivbau.h"
#include "Archivdatei.h"
#include "Dateihueter.h"
#include "Lebensmittelbestand.h"

#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

#include <algorithm>

using namespace Archivbau;

namespace {

const QLocale deutsch(QLocale::German, QLocale::Germany);
const QLocale englisch(QLocale::English, QLocale::UnitedKingdom);
const QLocale schwedisch(QLocale::Swedish, QLocale::Sweden);

QStringList woerter(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char('|'));
}

/// Translates the names of a list, counting how often it is asked for each.
class Woerterbuch : public QTranslator
{
public:
    explicit Woerterbuch(QMap<QString, QString> eintraege) : m_eintraege(std::move(eintraege))
    {
        QCoreApplication::installTranslator(this);
    }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        if (qstrcmp(context, "Mahlberg") != 0) {
            return {};
        }
        const QString wort = QString::fromUtf8(sourceText);
        ++m_gefragt[wort];
        return m_eintraege.value(wort);
    }
    int gefragt(const QString &wort) const { return m_gefragt.value(wort); }

private:
    QMap<QString, QString> m_eintraege;
    mutable QMap<QString, int> m_gefragt;
};

} // namespace

Q_DECLARE_METATYPE(QLocale)

class TestLebensmittelbestand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plainOrder_data();
    void plainOrder();
    void localeOrder_data();
    void localeOrder();
    void translationsDecideTheOrder();
    void namesThatReadAlikeStandInPlainOrder();
    void eachNameIsTranslatedOnce();
    void withoutALanguageGermanRulesHold();
    void nothingToLoad_data();
    void nothingToLoad();
    void theTwoStoresSortDifferently();
    void oneHundredThousandNames();
};

void TestLebensmittelbestand::plainOrder_data()
{
    QTest::addColumn<QStringList>("sortiert");
    QTest::newRow("upper and lower case are one") << woerter("apfel|Brot|Zucker");
    QTest::newRow("umlauts behind z") << woerter("Apfel|zucker|Äpfel|Öl");
    QTest::newRow("upper umlauts like lower ones") << woerter("ähre|Äpfel|Öl");
    QTest::newRow("signs and digits by their code") << woerter(" Ei|-|2 Eier|_|Ei");
    QTest::newRow("the shorter first") << woerter("Ei|Eigelb|Eigelb, roh");
    QTest::newRow("none") << QStringList();
}

void TestLebensmittelbestand::plainOrder()
{
    QFETCH(QStringList, sortiert);
    QStringList vertauscht = sortiert;
    std::reverse(vertauscht.begin(), vertauscht.end());
    QCOMPARE(sortiertNachName(vertauscht), sortiert);
    QCOMPARE(sortiertNachName(sortiert), sortiert);

    // Alike but for their case: as they came.
    QCOMPARE(sortiertNachName(woerter("ei|EI|Ei")), woerter("ei|EI|Ei"));
    QCOMPARE(sortiertNachName(woerter("b|EI|A|ei")), woerter("A|b|EI|ei"));
}

void TestLebensmittelbestand::localeOrder_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QStringList>("sortiert");
    const QStringList umlaute = woerter("Apfel|Äpfel|Apfelsaft|Brot|Öl|Olive|Zucker");
    QTest::newRow("umlauts with their letter, German") << deutsch << umlaute;
    QTest::newRow("umlauts with their letter, English") << englisch << umlaute;
    QTest::newRow("umlauts behind z, Swedish")
        << schwedisch << woerter("Apfel|Apfelsaft|Brot|Olive|Zucker|Äpfel|Öl");
    QTest::newRow("sharp s as ss") << deutsch << woerter("Maß|Massel|Maßkrug|Mast");
    QTest::newRow("case does not matter") << deutsch << woerter("apfel|Brot|ei|Fisch");
    QTest::newRow("signs before digits before letters, German") << deutsch << woerter("-|(2)|2|A");
    QTest::newRow("signs before digits before letters, English")
        << englisch << woerter("-|(2)|2|A");
    QTest::newRow("a blank before letters") << deutsch << woerter("Ei roh|Eier|Eigelb");
    QTest::newRow("accents with their letter") << englisch << woerter("Creme|Crème|Cremes|Crumble");
    QTest::newRow("none") << deutsch << QStringList();
}

void TestLebensmittelbestand::localeOrder()
{
    QFETCH(QLocale, locale);
    QFETCH(QStringList, sortiert);
    QStringList vertauscht = sortiert;
    std::reverse(vertauscht.begin(), vertauscht.end());
    QCOMPARE(sortiertNachUebersetzung(vertauscht, locale), sortiert);
}

void TestLebensmittelbestand::translationsDecideTheOrder()
{
    const Woerterbuch buch({{QStringLiteral("Apfel"), QStringLiteral("Zebra apple")},
                            {QStringLiteral("Zucker"), QStringLiteral("ambrosia")}});
    QCOMPARE(sortiertNachUebersetzung(woerter("Apfel|Brot|Zucker"), englisch),
             woerter("Zucker|Brot|Apfel"));
    QCOMPARE(sortiertNachName(woerter("Zucker|Brot|Apfel")), woerter("Apfel|Brot|Zucker"));
}

void TestLebensmittelbestand::namesThatReadAlikeStandInPlainOrder()
{
    const Woerterbuch buch({{QStringLiteral("Ente"), QStringLiteral("Bird")},
                            {QStringLiteral("Äsche"), QStringLiteral("bird")},
                            {QStringLiteral("gans"), QStringLiteral("BIRD")},
                            {QStringLiteral("Zander"), QStringLiteral("Fish")}});
    // The plain order of the keys puts the umlaut last.
    QCOMPARE(sortiertNachUebersetzung(woerter("Zander|Äsche|gans|Ente"), englisch),
             woerter("Ente|gans|Äsche|Zander"));
    QCOMPARE(sortiertNachUebersetzung(woerter("Ente|gans|Äsche|Zander"), deutsch),
             woerter("Ente|gans|Äsche|Zander"));
}

void TestLebensmittelbestand::eachNameIsTranslatedOnce()
{
    const Woerterbuch buch({});
    const QStringList namen = woerter("Ei|Apfel|Zucker|Brot|Käse|Milch|Öl|Dinkel");
    sortiertNachUebersetzung(namen, deutsch);
    for (const QString &name : namen) {
        QCOMPARE(buch.gefragt(name), 1);
    }
}

void TestLebensmittelbestand::withoutALanguageGermanRulesHold()
{
    QCOMPARE(sortiertNachUebersetzung(woerter("zucker|Äpfel|Brot|apfel"), QLocale::c()),
             woerter("apfel|Äpfel|Brot|zucker"));
}

void TestLebensmittelbestand::nothingToLoad_data()
{
    QTest::addColumn<QByteArray>("inhalt");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("damaged") << beispielBytes().chopped(1);
    QTest::newRow("an empty store") << datei(verzeichnisAnfang + "00 86");
}

void TestLebensmittelbestand::nothingToLoad()
{
    QFETCH(QByteArray, inhalt);
    const QTemporaryDir ordner;
    Dateihueter dateien;
    QFile datei(ordner.filePath(QStringLiteral("a.daten")));
    if (!inhalt.isNull()) {
        QVERIFY(datei.open(QIODevice::WriteOnly));
        datei.write(inhalt);
        datei.close();
    }
    for (const auto &bestand :
         {ladeBestand(datei.fileName()), ladeBestand(QString()),
          ladeEigenenBestand(dateien, datei.fileName()), ladeBestand(ordner.path())}) {
        QVERIFY(bestand.verzeichnis.isEmpty());
        QVERIFY(bestand.namen.isEmpty());
    }
}

void TestLebensmittelbestand::theTwoStoresSortDifferently()
{
    const QTemporaryDir ordner;
    const QString path = ordner.filePath(QStringLiteral("a.daten"));
    Lebensmittelverzeichnis verzeichnis;
    for (const QString &name : woerter("Zucker|apfel|Äpfel|Brot")) {
        verzeichnis[name].setName(name);
    }
    QVERIFY(Archivdatei::schreiben(path, verzeichnis));

    const auto fest = ladeBestand(path, deutsch);
    QCOMPARE(fest.namen, woerter("apfel|Äpfel|Brot|Zucker"));
    QVERIFY(gleich(fest.verzeichnis, verzeichnis));

    Dateihueter dateien;
    const auto eigen = ladeEigenenBestand(dateien, path);
    QCOMPARE(eigen.namen, woerter("apfel|Brot|Zucker|Äpfel"));
    QVERIFY(gleich(eigen.verzeichnis, verzeichnis));
}

void TestLebensmittelbestand::oneHundredThousandNames()
{
    QStringList sortiert;
    for (int i = 0; i < 100'000; ++i) {
        sortiert += QStringLiteral("Lebensmittel %1, gekocht").arg(i, 6, 10, QLatin1Char('0'));
    }
    QStringList vertauscht = sortiert;
    std::reverse(vertauscht.begin(), vertauscht.end());
    QCOMPARE(sortiertNachUebersetzung(vertauscht, deutsch), sortiert);
    QCOMPARE(sortiertNachName(vertauscht), sortiert);
}

QTEST_GUILESS_MAIN(TestLebensmittelbestand)
#include "TestLebensmittelbestand.moc"
