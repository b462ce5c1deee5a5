#include "Tabellenkopie.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QTableWidget>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

/// Lists on the clipboard.
class TestTabellenkopie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTableIsTextAndHtml();
    void numbersHaveTheUsersMark_data();
    void numbersHaveTheUsersMark();
    void whatWouldRunIsMarked();
    void aListIsTakenAsItIsSeen();
    void theKeyboardCopies();
};

namespace {

std::unique_ptr<QMimeData> daten(const QList<Csv::Zelle> &zellen)
{
    return std::unique_ptr<QMimeData>(Tabellenkopie::alsZwischenablage({{u"x"_s}, {zellen}}));
}

} // namespace

void TestTabellenkopie::aTableIsTextAndHtml()
{
    const auto kopie = daten({u"a<b> & \"c\""_s, u"zwei\nZeilen\tTab"_s, Csv::Zelle(), 1.0F});
    QCOMPARE(kopie->text(), u"x\na<b> & \"c\"\tzwei Zeilen Tab\t\t1\n"_s);
    QCOMPARE(kopie->html(), u"<table><tr><th>x</th></tr><tr><td>a&lt;b&gt; &amp; &quot;c&quot;</td>"
                            u"<td>zwei Zeilen Tab</td><td></td><td>1</td></tr></table>"_s);
}

void TestTabellenkopie::numbersHaveTheUsersMark_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany)
                            << u"x\n12345,5\t0,25\n"_s;
    QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedStates)
                             << u"x\n12345.5\t0.25\n"_s;
}

void TestTabellenkopie::numbersHaveTheUsersMark()
{
    QFETCH(QLocale, locale);
    const QLocale vorher;
    QLocale::setDefault(locale);
    const QString text = daten({12345.5F, 0.25})->text();
    QLocale::setDefault(vorher);
    QTEST(text, "text");
}

void TestTabellenkopie::whatWouldRunIsMarked()
{
    const auto kopie = daten({u"=1+2"_s, u"-Mischung"_s, u"+"_s, u"-"_s, u"'+1"_s, -1.0F});
    QCOMPARE(kopie->text(), u"x\n'=1+2\t'-Mischung\t+\t-\t''+1\t-1\n"_s);
    QVERIFY(kopie->html().contains(u"<td>&#39;=1+2</td>"_s) ||
            kopie->html().contains(u"<td>'=1+2</td>"_s));
}

void TestTabellenkopie::aListIsTakenAsItIsSeen()
{
    QTableWidget liste(2, 2);
    liste.setHorizontalHeaderLabels({u"Energie\nkcal"_s, u"Name"_s});
    liste.setItem(0, 0, new QTableWidgetItem(u"1,5"_s));
    liste.setItem(1, 1, new QTableWidgetItem(u"Brot"_s));
    const Csv::Tabelle tabelle = Tabellenkopie::ausModell(*liste.model());
    QCOMPARE(tabelle.spalten, QStringList({u"Energie kcal"_s, u"Name"_s}));
    QCOMPARE(tabelle.zeilen.size(), 2);
    QCOMPARE(std::get<QString>(tabelle.zeilen[0][0]), u"1,5"_s);
    QCOMPARE(std::get<QString>(tabelle.zeilen[0][1]), QString());
    QCOMPARE(std::get<QString>(tabelle.zeilen[1][1]), u"Brot"_s);
}

void TestTabellenkopie::theKeyboardCopies()
{
    QTableWidget liste(1, 1);
    liste.setHorizontalHeaderLabels({u"Name"_s});
    liste.setItem(0, 0, new QTableWidgetItem(u"Brot"_s));
    Tabellenkopie::ermoegliche(liste);
    liste.show();
    QVERIFY(QTest::qWaitForWindowActive(&liste));
    liste.setFocus();
    QTest::keyClick(&liste, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"Name\nBrot\n"_s);
    QCOMPARE(liste.actions().size(), 1);
    QCOMPARE(liste.contextMenuPolicy(), Qt::ActionsContextMenu);
}

QTEST_MAIN(TestTabellenkopie)
#include "TestTabellenkopie.moc"
