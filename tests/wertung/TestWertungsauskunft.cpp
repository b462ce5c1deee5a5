#include "Auskunftsprobe.h"
#include "Wertungsauskunft.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestWertungsauskunft : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aRatingIsExplainedInBothLanguages_data();
    void aRatingIsExplainedInBothLanguages();
    void whatMightBeWrongIsNotTold_data();
    void whatMightBeWrongIsNotTold();
    void theTableIsReadOnceAndOnlyWhenItIsAskedFor();
    void withoutATableNothingIsExplained_data();
    void withoutATableNothingIsExplained();

private:
    void schreibe(const QByteArray &bytes) const;
    QString pfad() const { return m_ordner->filePath(u"Lebensmittel.csv"_s); }

    std::unique_ptr<QTemporaryDir> m_ordner;
};

namespace {

QStringList deutsch(const Wertungsauskunft &auskunft, const QString &name, Wertung wertung,
                    const QString &urteil)
{
    return auskunft.erklaerung(name, wertung, urteil, Regelsprache::Deutsch,
                               QLocale(QLocale::German));
}

/// Fat without fibre: rich in energy, and of its cholesterol more than 200 mg.
QByteArray buttertabelle(const QString &kilokalorien)
{
    return Auskunftsprobe::datei({Auskunftsprobe::zeile(
        u"Butterbrot"_s, {{u"kal"_s, kilokalorien}, {u"chol"_s, u"250"_s}})});
}

} // namespace

void TestWertungsauskunft::init()
{
    m_ordner = std::make_unique<QTemporaryDir>();
    schreibe(buttertabelle(u"500.5"_s));
}

void TestWertungsauskunft::schreibe(const QByteArray &bytes) const
{
    QFile datei(pfad());
    QVERIFY(datei.open(QIODevice::WriteOnly));
    datei.write(bytes);
}

void TestWertungsauskunft::aRatingIsExplainedInBothLanguages_data()
{
    QTest::addColumn<Wertung>("wertung");
    QTest::addColumn<QString>("urteil");
    QTest::addColumn<Regelsprache>("sprache");
    QTest::addColumn<QLocale>("zahlen");
    QTest::addColumn<QString>("kopf");
    QTest::addColumn<QString>("zahl");
    const QLocale de(QLocale::German, QLocale::Germany);
    const QLocale en(QLocale::English, QLocale::UnitedKingdom);
    QTest::newRow("overweight, German") << Wertung::uebergewicht << u"-"_s << Regelsprache::Deutsch
                                        << de << u"Übergewicht: „-“"_s << u"500,5 kcal"_s;
    QTest::newRow("overweight, English")
        << Wertung::uebergewicht << u"-"_s << Regelsprache::Englisch << en << u"Overweight: \"-\""_s
        << u"500.5 kcal"_s;
    QTest::newRow("heart, German") << Wertung::hkk << u"-"_s << Regelsprache::Deutsch << de
                                   << u"Herz und Kreislauf: „-“"_s << u"250 mg"_s;
    QTest::newRow("diabetes, German") << Wertung::diabetes << u"+"_s << Regelsprache::Deutsch << de
                                      << u"Diabetes: „+“"_s << u"verwertbare Kohlenhydrate 0 g"_s;
}

void TestWertungsauskunft::aRatingIsExplainedInBothLanguages()
{
    QFETCH(Wertung, wertung);
    QFETCH(QString, urteil);
    QFETCH(Regelsprache, sprache);
    QFETCH(QLocale, zahlen);
    QFETCH(QString, kopf);
    QFETCH(QString, zahl);
    const Wertungsauskunft auskunft(pfad());
    const QStringList zeilen =
        auskunft.erklaerung(u"Butterbrot"_s, wertung, urteil, sprache, zahlen);
    QVERIFY(zeilen.size() >= 3);
    QVERIFY2(zeilen.first().startsWith(kopf), qPrintable(zeilen.first()));
    QVERIFY2(zeilen.filter(zahl).size() == 1, qPrintable(zeilen.join(u'\n')));
}

void TestWertungsauskunft::whatMightBeWrongIsNotTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Wertung>("wertung");
    QTest::addColumn<QString>("urteil");
    QTest::newRow("a food that the table lacks")
        << u"Käsebrot"_s << Wertung::uebergewicht << u"-"_s;
    QTest::newRow("the English name") << u"Dish"_s << Wertung::uebergewicht << u"-"_s;
    QTest::newRow("another rating") << u"Butterbrot"_s << Wertung::uebergewicht << u"+"_s;
    QTest::newRow("no rating") << u"Butterbrot"_s << Wertung::uebergewicht << QString();
    QTest::newRow("more than a rating") << u"Butterbrot"_s << Wertung::uebergewicht << u"--"_s;
    QTest::newRow("the rating of another condition")
        << u"Butterbrot"_s << Wertung::diabetes << u"-"_s;
    QTest::newRow("no name") << QString() << Wertung::uebergewicht << u"-"_s;
}

void TestWertungsauskunft::whatMightBeWrongIsNotTold()
{
    QFETCH(QString, name);
    QFETCH(Wertung, wertung);
    QFETCH(QString, urteil);
    const Wertungsauskunft auskunft(pfad());
    QCOMPARE(deutsch(auskunft, name, wertung, urteil), QStringList());
}

void TestWertungsauskunft::theTableIsReadOnceAndOnlyWhenItIsAskedFor()
{
    const Wertungsauskunft auskunft(pfad());
    schreibe(buttertabelle(u"700"_s));
    const QStringList zeilen = deutsch(auskunft, u"Butterbrot"_s, Wertung::uebergewicht, u"-"_s);
    QCOMPARE(zeilen.filter(u"700 kcal"_s).size(), 1);
    schreibe({});
    QCOMPARE(deutsch(auskunft, u"Butterbrot"_s, Wertung::uebergewicht, u"-"_s), zeilen);
}

void TestWertungsauskunft::withoutATableNothingIsExplained_data()
{
    QTest::addColumn<QString>("tabelle");
    QTest::newRow("no path") << QString();
    QTest::newRow("no file") << u"/nirgends/Lebensmittel.csv"_s;
    QTest::newRow("a folder") << u"/"_s;
}

void TestWertungsauskunft::withoutATableNothingIsExplained()
{
    QFETCH(QString, tabelle);
    const Wertungsauskunft auskunft(tabelle);
    QCOMPARE(deutsch(auskunft, u"Butterbrot"_s, Wertung::uebergewicht, u"-"_s), QStringList());
}

QTEST_GUILESS_MAIN(TestWertungsauskunft)
#include "TestWertungsauskunft.moc"
