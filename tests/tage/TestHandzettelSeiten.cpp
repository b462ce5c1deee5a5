// What the client takes home, on paper: its pages.

#include "Handzetteltest.h"

using namespace Qt::StringLiterals;
using Wochenprobe::zeile;

class TestHandzettelSeiten : public Handzetteltest
{
    Q_OBJECT

private Q_SLOTS:
    void aUsualWeekTakesTwoPages_data();
    void aUsualWeekTakesTwoPages();
    void daysStandSideBySideOnlyWhereThatSavesPages();
    void largePrintIsLarge();
    void nothingIsCutOffOnAnyPaper_data();
    void nothingIsCutOffOnAnyPaper();
    void aLongDayGoesOnUnderItsName();
    void furtherPagesSayWhatTheyAre();
    void anotherPaperIsLaidOutAnew();
    void aDarkDesktopPrintsTheSame();
};

void TestHandzettelSeiten::aUsualWeekTakesTwoPages_data()
{
    QTest::addColumn<QPageLayout>("papier");
    QTest::addColumn<bool>("mitZahlen");
    for (const bool mitZahlen : {false, true}) {
        const char *zahlen = mitZahlen ? "with" : "without";
        const auto neue = [&](const char *name, QPageSize::PageSizeId groesse,
                              QPageLayout::Orientation lage) {
            QTest::addRow("%s %s figures", name, zahlen)
                << Druckprobe::papier(groesse, lage) << mitZahlen;
        };
        neue("A4 upright", QPageSize::A4, QPageLayout::Portrait);
        neue("A4 across", QPageSize::A4, QPageLayout::Landscape);
        neue("Letter upright", QPageSize::Letter, QPageLayout::Portrait);
        neue("Letter across", QPageSize::Letter, QPageLayout::Landscape);
    }
}

void TestHandzettelSeiten::aUsualWeekTakesTwoPages()
{
    QFETCH(const QPageLayout, papier);
    QFETCH(const bool, mitZahlen);
    m_angaben.briefkopf = {u"Praxis"_s, {u"Straße 1"_s, u"Ort"_s}, {}};
    m_angaben.briefkopf.logo = QImage(200, 100, QImage::Format_RGB32);
    m_angaben.briefkopf.logo.fill(Qt::darkGreen);
    drucke(Wochenprobe::woche(), {.zahlen = mitZahlen}, papier);
    QVERIFY2(m_probe->seiten() <= 2, qPrintable(QString::number(m_probe->seiten())));
    const QString text = alles();
    for (const QString &tag : {u"Montag"_s, u"Dienstag"_s, u"Mittwoch"_s, u"Donnerstag"_s,
                               u"Freitag,"_s, u"Samstag"_s, u"Sonntag"_s}) {
        QVERIFY2(text.contains(tag), qPrintable(tag));
    }
    QCOMPARE(text.count(u"Pfefferminztee"_s), 7);
    QCOMPARE(text.count(u"Langsam"_s), 7);
}

/// A short record is easier to read without columns.
void TestHandzettelSeiten::daysStandSideBySideOnlyWhereThatSavesPages()
{
    Aufzeichnung eine = Wochenprobe::woche();
    eine.tage = eine.tage.first(2);
    drucke(eine);
    QCOMPARE(m_probe->seiten(), 1);
    QCOMPARE(wort(u"Dienstag,"_s).x, wort(u"Montag,"_s).x);
    drucke(Wochenprobe::woche());
    QCOMPARE(wort(u"Dienstag,"_s).x, wort(u"Montag,"_s).x);
    QVERIFY(wort(u"Mittwoch,"_s).x > 300);
    QVERIFY(wort(u"Mittwoch,"_s).seite == 1);
    // No day is divided: each has its late tea in its own column.
    QVERIFY(!alles().contains(u"Fortsetzung"_s));
}

void TestHandzettelSeiten::largePrintIsLarge()
{
    drucke(Wochenprobe::woche());
    QVERIFY(qAbs(wort(u"Butter"_s).groesse - 9) < 0.1);
    const int seiten = m_probe->seiten();
    drucke(Wochenprobe::woche(), {.gross = true});
    QVERIFY(qAbs(wort(u"Butter"_s).groesse - 16) < 0.1);
    QVERIFY(wort(u"Langsam"_s).groesse > 13.9);
    QVERIFY(m_probe->seiten() > seiten);
    QCOMPARE(alles().count(u"Pfefferminztee"_s), 7);
}

void TestHandzettelSeiten::nothingIsCutOffOnAnyPaper_data()
{
    QTest::addColumn<QPageLayout>("papier");
    QTest::addColumn<bool>("gross");
    QTest::addColumn<int>("tage");
    const auto neue = [](const char *name, bool gross, QPageSize::PageSizeId groesse,
                         QPageLayout::Orientation lage, const QMarginsF &raender = {},
                         int tage = 4) {
        QTest::newRow(name) << Druckprobe::papier(groesse, lage, raender) << gross << tage;
    };
    neue("A4 upright, two weeks", false, QPageSize::A4, QPageLayout::Portrait, {}, 14);
    neue("A4 across", false, QPageSize::A4, QPageLayout::Landscape);
    neue("Letter upright", false, QPageSize::Letter, QPageLayout::Portrait);
    neue("Letter across", false, QPageSize::Letter, QPageLayout::Landscape);
    neue("A5 upright", false, QPageSize::A5, QPageLayout::Portrait);
    neue("wide margins", false, QPageSize::A4, QPageLayout::Portrait, {90, 100, 110, 120});
    neue("A4 in large print", true, QPageSize::A4, QPageLayout::Portrait);
    neue("A5 in large print", true, QPageSize::A5, QPageLayout::Portrait);
}

/// Days of sixteen meals with long names: all words are there, none beyond the margins and
/// none on another.
void TestHandzettelSeiten::nothingIsCutOffOnAnyPaper()
{
    QFETCH(const QPageLayout, papier);
    QFETCH(const bool, gross);
    QFETCH(const int, tage);
    m_angaben.klient = probeworte(20).replace(u"wort"_s, u"k"_s);
    m_angaben.briefkopf.name = probeworte(20).replace(u"wort"_s, u"b"_s);
    m_angaben.briefkopf.anschrift = probeworte(12).replace(u"wort"_s, u"a"_s).split(u' ');
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 11, 23), tage);
    eine.titel = probeworte(30).replace(u"wort"_s, u"t"_s);
    eine.mahlzeiten.clear();
    for (int i = 0; i < meisteMahlzeiten; ++i) {
        eine.mahlzeiten << u"Mahlzeit%1 nach dem langen Weg"_s.arg(i);
    }
    QString name = QString(60, u'X');
    for (Tag &tag : eine.tage) {
        tag.mahlzeiten.fill({{zeile("Butter", "10", 10)}, u"Notiz"_s}, meisteMahlzeiten);
        tag.notiz = probeworte(60).replace(u"wort"_s, u"n"_s);
    }
    eine.tage[3].mahlzeiten[5].zeilen[0].schluessel = name;
    eine.tage[3].mahlzeiten[6].zeilen[0].schluessel = probeworte(300).replace(u"wort"_s, u"f"_s);
    drucke(eine, {.gross = gross}, papier);
    const QMarginsF raender = papier.margins(QPageLayout::Point) | QMarginsF(36, 40, 36, 18);
    const QRectF frei = papier.fullRect(QPageLayout::Point).marginsRemoved(raender);
    for (const Druckwort &wort : std::as_const(m_worte)) {
        QVERIFY2(wort.x >= frei.left() - 0.5 && wort.rechts <= frei.right() + 0.5 &&
                     wort.grundlinie - wort.groesse >= frei.top() - 2 &&
                     wort.grundlinie <= frei.bottom() + 0.5,
                 qPrintable(wort.text));
    }
    QString text;
    for (const Druckwort &wort : std::as_const(m_worte)) {
        text += wort.text + u' ';
    }
    QCOMPARE(text.count(u"Butter"_s), tage * 16 - 2);
    QCOMPARE(text.count(u"Mahlzeit15"_s), tage);
    QCOMPARE(text.count(u'X'), 60);
    for (const auto &[art, anzahl, mal] : {std::tuple(u'k', 20, 1),
                                           {u'b', 20, 1},
                                           {u'a', 12, 1},
                                           {u't', 30, 1},
                                           {u'n', 60, tage},
                                           {u'f', 300, 1}}) {
        for (int i = 1; i <= anzahl; ++i) {
            const QString eines = art + QStringLiteral("%1").arg(i, 4, 10, QLatin1Char('0'));
            // Client and title stand above further pages too, as far as there is room.
            QVERIFY2(text.count(eines) >= mal, qPrintable(eines));
        }
    }
    for (qsizetype i = 1; i < m_worte.size(); ++i) {
        const Druckwort &davor = m_worte[i - 1];
        const Druckwort &wort = m_worte[i];
        const bool gleicheZeile =
            davor.seite == wort.seite && qAbs(davor.grundlinie - wort.grundlinie) < 1;
        QVERIFY2(!gleicheZeile || wort.x >= davor.rechts - 0.5 || wort.rechts <= davor.x + 0.5,
                 qPrintable(davor.text + u' ' + wort.text));
    }
}

void TestHandzettelSeiten::aLongDayGoesOnUnderItsName()
{
    Aufzeichnung eine = neueAufzeichnung(Aufzeichnungsart::Protokoll, {}, 1);
    for (Mahlzeit &mahlzeit : eine.tage[0].mahlzeiten) {
        mahlzeit.zeilen.fill(zeile("Butter", "10", 10), 30);
    }
    drucke(eine);
    // 180 lines of 9 x (1.075 + 0.299) = 12.4 points are 2226 points. A column holds less than 758,
    // the first two even less: four columns on two pages.
    QCOMPARE(m_probe->seiten(), 2);
    QCOMPARE(alles().count(u"Butter"_s), 180);
    QCOMPARE(alles().count(u"Tag 1 (Fortsetzung)"_s), 3);
}

void TestHandzettelSeiten::furtherPagesSayWhatTheyAre()
{
    drucke(Wochenprobe::woche());
    QCOMPARE(m_probe->seiten(), 2);
    QCOMPARE(zeilen(2).first(), u"Anna Muster, Wochenplan"_s);
    QCOMPARE(m_probe->zeilen(2).last(), u"Freitag, 20. November 2026 Seite 2 von 2 Mahlberg"_s);
}

void TestHandzettelSeiten::anotherPaperIsLaidOutAnew()
{
    const Druckauftrag auftrag = handzettel(Wochenprobe::woche(), {.gross = true}, m_angaben);
    const QPageLayout a4 = Druckprobe::papier(QPageSize::A4, QPageLayout::Portrait);
    const QPageLayout a5 = Druckprobe::papier(QPageSize::A5, QPageLayout::Portrait);
    const int seiten = auftrag.seitenzahl(a4);
    QVERIFY(auftrag.seitenzahl(a5) > seiten);
    QCOMPARE(auftrag.seitenzahl(a4), seiten);
}

void TestHandzettelSeiten::aDarkDesktopPrintsTheSame()
{
    drucke(Wochenprobe::woche());
    const QImage hell = m_probe->bild(1);
    QApplication::setPalette(QPalette(Qt::white, Qt::darkGray, Qt::gray, Qt::black, Qt::darkGray,
                                      Qt::white, Qt::white, Qt::black, Qt::black));
    drucke(Wochenprobe::woche());
    QCOMPARE(m_probe->bild(1), hell);
    QCOMPARE(hell.pixelColor(4, 4), QColor(Qt::white));
}

QTEST_MAIN(TestHandzettelSeiten)
#include "TestHandzettelSeiten.moc"
