// The records of days of a client, on paper.

#include "Klientenblatttest.h"

using namespace Qt::StringLiterals;

class TestKlientenblattTage : public Klientenblatttest
{
    Q_OBJECT

private Q_SLOTS:
    void recordsOfDaysStandBelow();
    void aRecordIsCalledByItsTitleAndKind();
};

void TestKlientenblattTage::recordsOfDaysStandBelow()
{
    Klientenakte akte{Aktenprobe::person(), {}, {}};
    drucke(akte);
    QVERIFY(!alleZeilen().contains(u"Aufzeichnungen"_s));
    akte.aufzeichnungen = {Aktenprobe::tage()};
    akte.aufzeichnungen[0].tage[0].mahlzeiten[0].notiz = u"Im Stehen"_s;
    akte.aufzeichnungen[0].tage[1].notiz = u"Krank"_s;
    drucke(akte);
    QStringList zeilen = alleZeilen().replaceInStrings(QString(QChar(QChar::Nbsp)), u" "_s);
    zeilen = zeilen.mid(zeilen.indexOf(u"Aufzeichnungen"_s));
    QCOMPARE(
        zeilen,
        QStringList({u"Aufzeichnungen"_s, u"Zwei Tage, Protokoll, 07.09.2026 bis 08.09.2026"_s,
                     u"Montag, 7. September 2026"_s, u"Frühstück Weißbrot – 2 Scheiben (50 g)"_s,
                     u"oder Äpfel, roh – 150 g"_s, u"Omas Auflauf – 1 Teller"_s, u"Im Stehen"_s,
                     u"Dienstag, 8. September 2026"_s, u"Mittagessen Äpfel, roh – 150 g"_s,
                     u"Notiz Krank"_s}));
}

void TestKlientenblattTage::aRecordIsCalledByItsTitleAndKind()
{
    Klientenakte akte{Aktenprobe::person(), {}, {}};
    akte.aufzeichnungen = {neueAufzeichnung(Aufzeichnungsart::Wochenplan, {}, 1),
                           neueAufzeichnung(Aufzeichnungsart::Protokoll, QDate(2026, 9, 7), 1)};
    akte.aufzeichnungen[0].titel = u"%1 <b>"_s;
    drucke(akte);
    const QStringList zeilen = alleZeilen();
    QCOMPARE(zeilen.mid(zeilen.indexOf(u"Aufzeichnungen"_s) + 1),
             QStringList({u"%1 <b>, Wochenplan"_s, u"Tag 1"_s, u"Nichts aufgezeichnet."_s,
                          u"Protokoll, 07.09.2026"_s, u"Montag, 7. September 2026"_s,
                          u"Nichts aufgezeichnet."_s}));
}

QTEST_MAIN(TestKlientenblattTage)
#include "TestKlientenblattTage.moc"
