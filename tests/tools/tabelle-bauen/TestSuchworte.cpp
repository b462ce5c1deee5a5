#include "Namenssuche.h"
#include "Tabellenprobe.h"

#include <QHash>
#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

/// The words that people say find the foods that they mean.
class TestSuchworte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void thereAreFiveHundredWords();
    void aWordFindsItsFoods_data();
    void aWordFindsItsFoods();

private:
    QList<QStringList> m_worte; ///< word, ids of the source, note
    QStringList m_namen;
    QHash<QString, QStringList> m_namenDerQuelle;
};

void TestSuchworte::initTestCase()
{
    const QString text = QString::fromUtf8(Tabellenprobe::dateiinhalt(SUCHWORTE));
    const QStringList zeilen = text.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(zeilen.value(0), u"word;source_ids;note"_s);
    for (const QString &zeile : zeilen.mid(1)) {
        m_worte.append(zeile.split(u';'));
        QCOMPARE(m_worte.last().size(), 3);
    }
    for (const Tabellenzeile &zeile : Tabellenprobe::ausgelieferteTabelle()) {
        m_namen.append(zeile.nameDe);
        m_namenDerQuelle[zeile.quelle].append(zeile.nameDe);
    }
}

void TestSuchworte::thereAreFiveHundredWords()
{
    QSet<QString> worte;
    for (const QStringList &eintrag : m_worte) {
        QVERIFY2(!worte.contains(eintrag.first()), qPrintable(eintrag.first()));
        worte.insert(eintrag.first());
        QVERIFY2(!eintrag.first().isEmpty() && !eintrag.at(1).isEmpty(),
                 qPrintable(eintrag.first()));
    }
    QCOMPARE(worte.size(), 500);
}

void TestSuchworte::aWordFindsItsFoods_data()
{
    QTest::addColumn<QString>("wort");
    QTest::addColumn<QStringList>("quellen");
    for (const QStringList &eintrag : m_worte) {
        QTest::newRow(qPrintable(eintrag.first()))
            << eintrag.first()
            << (eintrag.at(1) == u"-" ? QStringList() : eintrag.at(1).split(u' '));
    }
}

/// A word without foods is one for which the source has none: it must not find another food.
void TestSuchworte::aWordFindsItsFoods()
{
    QFETCH(QString, wort);
    QFETCH(QStringList, quellen);
    QStringList gefunden;
    for (const Suchtreffer &treffer : namenSuchen({}, m_namen, {}, wort).treffer) {
        gefunden.append(treffer.schluessel);
    }
    if (quellen.isEmpty()) {
        QVERIFY2(gefunden.isEmpty(),
                 qPrintable(u"\"%1\" finds %2"_s.arg(wort, gefunden.join(u"; "))));
    }
    for (const QString &quelle : quellen) {
        const QStringList namen = m_namenDerQuelle.value(quelle);
        const bool dabei = std::any_of(namen.begin(), namen.end(), [&](const QString &name) {
            return gefunden.contains(name);
        });
        QVERIFY2(dabei, qPrintable(u"\"%1\" does not find %2 (%3)"_s.arg(wort, quelle,
                                                                         namen.join(u"; "))));
    }
}

QTEST_GUILESS_MAIN(TestSuchworte)
#include "TestSuchworte.moc"
