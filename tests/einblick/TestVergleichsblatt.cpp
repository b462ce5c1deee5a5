// Foods are ticked in the ranks and then stand side by side.

#include "Rangprobe.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

class TestVergleichsblatt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_probe.reset(); }

    void theSpaceBarTicks();
    void theMouseTicks();
    void withoutTwoThereIsNothingToCompare();
    void moreThanFiveHaveNoRoom();
    void allTicksGoAtOnce();
    void ticksOutlastOtherRanks();
    void ticksGoWithTheirFoods();
    void figuresStandSideBySide();
    void theBetterFigureIsSeenAndHeard();
    void theBasisIsThatOfTheRanksAtFirst();
    void portionsAreNamed();
    void ratingsHaveTheirWords();
    void theTableIsCopied_data();
    void theTableIsCopied();
    void longNamesAreReadWhole();

private:
    QTableView &vergleich() const { return m_probe->teil<QTableView>("vergleich"); }
    void hake(const QStringList &namen) const;
    void stelleNebeneinander(const QStringList &namen) const;
    QStringList reihe(const QString &kopf) const;
    QModelIndex zelle(const QString &kopf, int spalte) const;

    std::unique_ptr<Rangprobe> m_probe;
};

void TestVergleichsblatt::init()
{
    m_probe = std::make_unique<Rangprobe>();
    QVERIFY(m_probe->oeffne());
}

/// Ticks the foods with the keyboard, or takes their ticks away.
void TestVergleichsblatt::hake(const QStringList &namen) const
{
    for (const QString &name : namen) {
        for (int i = 0; i < m_probe->zeilen().size(); ++i) {
            if (m_probe->name(i) == name) {
                m_probe->tabelle().setCurrentIndex(m_probe->tabelle().model()->index(i, 3));
                m_probe->taste(Qt::Key_Space);
            }
        }
    }
}

void TestVergleichsblatt::stelleNebeneinander(const QStringList &namen) const
{
    hake(namen);
    QTest::mouseClick(&m_probe->teil<QPushButton>("vergleichen"), Qt::LeftButton);
    QVERIFY(vergleich().isVisible());
}

QModelIndex TestVergleichsblatt::zelle(const QString &kopf, int spalte) const
{
    const QAbstractItemModel &modell = *vergleich().model();
    for (int i = 0; i < modell.rowCount(); ++i) {
        if (modell.headerData(i, Qt::Vertical, Qt::DisplayRole).toString() == kopf) {
            return modell.index(i, spalte);
        }
    }
    return {};
}

QStringList TestVergleichsblatt::reihe(const QString &kopf) const
{
    QStringList texte;
    for (int i = 0; i < vergleich().model()->columnCount(); ++i) {
        texte << zelle(kopf, i).data().toString();
    }
    return texte;
}

void TestVergleichsblatt::theSpaceBarTicks()
{
    hake({u"Brot"_s, u"Linsen"_s});
    QCOMPARE(m_probe->wort("wahl"), u"Zum Vergleich: Brot, Linsen"_s);
    QCOMPARE(m_probe->teil<QTabWidget>("rangseiten").tabText(1), u"&Vergleich (2)"_s);
    const QModelIndex name = m_probe->tabelle().model()->index(0, 1);
    QCOMPARE(name.data(Qt::CheckStateRole).toInt(), static_cast<int>(Qt::Checked));
    QVERIFY(name.data(Qt::AccessibleTextRole).toString().contains(u"zum Vergleich angehakt"_s));
    hake({u"Linsen"_s});
    QCOMPARE(m_probe->wort("wahl"), u"Zum Vergleich: Brot"_s);
    QCOMPARE(name.data(Qt::CheckStateRole).toInt(), static_cast<int>(Qt::Unchecked));
}

void TestVergleichsblatt::theMouseTicks()
{
    const QRect zelle = m_probe->tabelle().visualRect(m_probe->tabelle().model()->index(2, 1));
    const QPoint haken(zelle.left() + 10, zelle.center().y());
    QTest::mouseClick(m_probe->tabelle().viewport(), Qt::LeftButton, {}, haken);
    QCOMPARE(m_probe->wort("wahl"), u"Zum Vergleich: Äpfel"_s);
    QTest::mouseClick(m_probe->tabelle().viewport(), Qt::LeftButton, {}, m_probe->ort(1, 3));
    QCOMPARE(m_probe->wort("wahl"), u"Zum Vergleich: Äpfel"_s);
}

void TestVergleichsblatt::withoutTwoThereIsNothingToCompare()
{
    const auto &knopf = m_probe->teil<QPushButton>("vergleichen");
    QVERIFY(!knopf.isEnabled());
    QCOMPARE(knopf.toolTip(), u"Zwei bis fünf Lebensmittel müssen angehakt sein."_s);
    hake({u"Brot"_s});
    QVERIFY(!knopf.isEnabled());
    m_probe->teil<QTabWidget>("rangseiten").setCurrentIndex(1);
    QVERIFY(m_probe->wort("vergleichleer").startsWith(u"Haken Sie in der Rangliste zwei"_s));
    QVERIFY(!m_probe->teil<QPushButton>("vergleichkopieren").isEnabled());
    m_probe->teil<QTabWidget>("rangseiten").setCurrentIndex(0);
    hake({u"Linsen"_s});
    QVERIFY(knopf.isEnabled());
    QCOMPARE(knopf.toolTip(), QString());
}

void TestVergleichsblatt::moreThanFiveHaveNoRoom()
{
    m_probe->gib("Zwieback", 6, 1, 1);
    m_probe->fenster->frischeAuf();
    hake({u"Äpfel"_s, u"Brot"_s, u"Käse"_s, u"Linsen"_s, u"Zucker"_s});
    QVERIFY(!m_probe->wort("wahl").contains(u"Mehr als fünf"_s));
    hake({u"Zwieback"_s});
    QCOMPARE(m_probe->wort("wahl"), u"Mehr als fünf passen nicht nebeneinander. Zum Vergleich: "
                                    "Äpfel, Brot, Käse, Linsen, Zucker"_s);
    hake({u"Käse"_s, u"Zwieback"_s});
    QCOMPARE(m_probe->wort("wahl"), u"Zum Vergleich: Äpfel, Brot, Linsen, Zucker, Zwieback"_s);
}

void TestVergleichsblatt::allTicksGoAtOnce()
{
    auto &knopf = m_probe->teil<QPushButton>("allesabhaken");
    QVERIFY(!knopf.isEnabled());
    hake({u"Brot"_s, u"Linsen"_s});
    QTest::mouseClick(&knopf, Qt::LeftButton);
    QCOMPARE(m_probe->wort("wahl"), u"Zum Vergleichen anhaken."_s);
    QCOMPARE(m_probe->teil<QTabWidget>("rangseiten").tabText(1), u"&Vergleich"_s);
    QVERIFY(m_probe->tabelle().hasFocus());
}

/// Those that other ranks leave out stay ticked.
void TestVergleichsblatt::ticksOutlastOtherRanks()
{
    hake({u"Brot"_s, u"Linsen"_s});
    m_probe->teil<QWidget>("eingrenzen").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    m_probe->waehle("gruppe", u"Obst"_s);
    QCOMPARE(m_probe->zeilen().size(), 1);
    hake({u"Äpfel"_s});
    QCOMPARE(m_probe->wort("wahl"), u"Zum Vergleich: Brot, Linsen, Äpfel"_s);
}

void TestVergleichsblatt::ticksGoWithTheirFoods()
{
    hake({u"Brot"_s, u"Linsen"_s});
    m_probe->speisen.removeFirst(); // the lentils
    m_probe->gib("Ananas", 1, 1, 1);
    m_probe->fenster->frischeAuf();
    QCOMPARE(m_probe->wort("wahl"), u"Zum Vergleich: Brot"_s);
}

void TestVergleichsblatt::figuresStandSideBySide()
{
    stelleNebeneinander({u"Brot"_s, u"Käse"_s});
    QVERIFY(vergleich().hasFocus());
    QCOMPARE(vergleich().model()->rowCount(), 24 + 4);
    QCOMPARE(vergleich().model()->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(),
             u"Käse"_s);
    QCOMPARE(reihe(u"Energie"_s), (QStringList{u"100 kcal"_s, u"100 kcal"_s}));
    QCOMPARE(reihe(u"Natrium"_s), (QStringList{u"✓ 500 mg"_s, u"700 mg"_s}));
    QCOMPARE(reihe(u"Eisen"_s), (QStringList{u"2.0 mg"_s, u"unbekannt"_s}));
    QCOMPARE(reihe(u"Zucker"_s), (QStringList{u"unbekannt"_s, u"unbekannt"_s}));
}

/// Never by its colour alone.
void TestVergleichsblatt::theBetterFigureIsSeenAndHeard()
{
    stelleNebeneinander({u"Brot"_s, u"Käse"_s});
    const QModelIndex bessere = zelle(u"Natrium"_s, 0);
    const QModelIndex andere = zelle(u"Natrium"_s, 1);
    QVERIFY(bessere.data(Qt::FontRole).value<QFont>().bold());
    QVERIFY(bessere.data(Qt::ForegroundRole).isValid());
    QCOMPARE(bessere.data(Qt::AccessibleTextRole).toString(), u"Brot, Natrium: 500 mg, besser"_s);
    QVERIFY(!andere.data(Qt::FontRole).isValid());
    QVERIFY(!andere.data(Qt::ForegroundRole).isValid());
    QCOMPARE(andere.data(Qt::AccessibleTextRole).toString(), u"Käse, Natrium: 700 mg"_s);
    QVERIFY(m_probe->wort("vergleichlegende").startsWith(u"✓ besser"_s));
}

/// 500 mg in 400 kcal are 125 mg in 100.
void TestVergleichsblatt::theBasisIsThatOfTheRanksAtFirst()
{
    m_probe->speisen[2].satz.setkal(400);
    m_probe->fenster->frischeAuf();
    m_probe->waehle("rangbezug", u"je 100 kcal"_s);
    stelleNebeneinander({u"Brot"_s, u"Käse"_s});
    QCOMPARE(reihe(u"Natrium"_s), (QStringList{u"✓ 125 mg"_s, u"700 mg"_s}));
    m_probe->waehle("vergleichsbezug", u"je 100 g"_s);
    QCOMPARE(reihe(u"Natrium"_s), (QStringList{u"✓ 500 mg"_s, u"700 mg"_s}));
}

void TestVergleichsblatt::portionsAreNamed()
{
    stelleNebeneinander({u"Brot"_s, u"Käse"_s});
    m_probe->waehle("vergleichsbezug", u"je Portion"_s);
    QCOMPARE(vergleich().model()->rowCount(), 1 + 24 + 4);
    QCOMPARE(reihe(u"Portion"_s), (QStringList{u"1 Scheibe (50 g)"_s, QString()}));
    QCOMPARE(reihe(u"Natrium"_s), (QStringList{u"250 mg"_s, u"ohne Portion"_s}));
    QCOMPARE(reihe(u"Gicht"_s), (QStringList{u"+ geeignet"_s, u"+ geeignet"_s}));
}

void TestVergleichsblatt::ratingsHaveTheirWords()
{
    m_probe->speisen[2].satz.sethkk(u"-"_s);
    m_probe->speisen[3].satz.sethkk(u"egal"_s);
    m_probe->fenster->frischeAuf();
    stelleNebeneinander({u"Brot"_s, u"Käse"_s, u"Äpfel"_s});
    QCOMPARE(reihe(u"Herz und Kreislauf"_s),
             (QStringList{u"- ungeeignet"_s, u"egal"_s, u"0 neutral"_s}));
}

void TestVergleichsblatt::theTableIsCopied_data()
{
    QTest::addColumn<bool>("mitTaste");
    QTest::newRow("key") << true;
    QTest::newRow("button") << false;
}

void TestVergleichsblatt::theTableIsCopied()
{
    QGuiApplication::clipboard()->clear();
    stelleNebeneinander({u"Brot"_s, u"Käse"_s});
    QFETCH(const bool, mitTaste);
    if (mitTaste) {
        QTest::keyClick(&vergleich(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    } else {
        QTest::mouseClick(&m_probe->teil<QPushButton>("vergleichkopieren"), Qt::LeftButton);
    }
    const QStringList zeilen =
        QGuiApplication::clipboard()->text().split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(zeilen.size(), 1 + 24 + 4);
    QCOMPARE(zeilen.at(0), u"je 100 g\tEinheit\tBrot\tKäse\tBesser"_s);
    QVERIFY(zeilen.contains(u"Natrium\tmg\t500\t700\tBrot"_s));
    QVERIFY(zeilen.contains(u"Eisen\tmg\t2\tunbekannt\t"_s));
    QVERIFY(zeilen.contains(u"Gicht\t\t+\t+\t"_s));
    QVERIFY(QGuiApplication::clipboard()->mimeData()->html().contains(u"<td>Natrium</td>"_s));
}

/// In several lines, where the columns are narrow.
void TestVergleichsblatt::longNamesAreReadWhole()
{
    m_probe->gib("Vollkornbrot, Roggen, mit Sonnenblumenkernen", 9, 1, 1);
    m_probe->gib("Rote Linsen, getrocknet, in Wasser gekocht", 8, 1, 1);
    m_probe->fenster->frischeAuf();
    stelleNebeneinander({u"Vollkornbrot, Roggen, mit Sonnenblumenkernen"_s,
                         u"Rote Linsen, getrocknet, in Wasser gekocht"_s, u"Brot"_s, u"Käse"_s});
    const QHeaderView &kopf = *vergleich().horizontalHeader();
    m_probe->fenster->resize(1300, 640);
    QTRY_VERIFY(kopf.height() < 3 * kopf.fontMetrics().height());
    m_probe->fenster->resize(640, 640);
    QTRY_VERIFY(kopf.height() >= 3 * kopf.fontMetrics().height());
    for (int i = 0; i < kopf.count(); ++i) {
        const QString name = vergleich().model()->headerData(i, Qt::Horizontal).toString();
        const QRect platz(0, 0, kopf.sectionSize(i), 1000);
        const QRect text = kopf.fontMetrics().boundingRect(platz, Qt::TextWordWrap, name);
        QVERIFY2(text.width() <= kopf.sectionSize(i), qPrintable(name));
        QVERIFY2(text.height() <= kopf.height(), qPrintable(name));
    }
}

QTEST_MAIN(TestVergleichsblatt)
#include "TestVergleichsblatt.moc"
