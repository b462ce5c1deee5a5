// Every figure of the shipped reference values, against the figures as they were compiled. Both
// files are taken apart here once more, so that a slip of the program's reader can't hide one.

#include "Referenzdatei.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QStringList zeilen(const QString &pfad)
{
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? QString::fromUtf8(datei.readAll()).split(u'\n')
                                           : QStringList();
}

/// A line whose fields are parted by commas; what stands in quotes may hold them.
QStringList kommafelder(const QString &zeile)
{
    QStringList felder = {QString()};
    bool inAnfuehrung = false;
    for (qsizetype i = 0; i < zeile.size(); ++i) {
        const bool doppelt = inAnfuehrung && zeile.mid(i, 2) == u"\"\""_s;
        if (doppelt) {
            felder.last() += u'"';
            ++i;
        } else if (zeile[i] == u'"') {
            inAnfuehrung = !inAnfuehrung;
        } else if (zeile[i] == u',' && !inAnfuehrung) {
            felder << QString();
        } else {
            felder.last() += zeile[i];
        }
    }
    return felder;
}

using Satz = QHash<QString, QString>;

QList<Satz> saetze(const QString &pfad, const std::function<QStringList(const QString &)> &teile)
{
    QList<Satz> liste;
    QStringList kopf;
    for (const QString &zeile : zeilen(pfad)) {
        if (zeile.isEmpty() || zeile.startsWith(u'#')) {
            continue;
        }
        const QStringList felder = teile(zeile);
        if (kopf.isEmpty()) {
            kopf = felder;
            continue;
        }
        Satz satz;
        for (qsizetype i = 0; i < kopf.size(); ++i) {
            satz.insert(kopf[i], felder.value(i));
        }
        liste << satz;
    }
    return liste;
}

QList<Satz> quellsaetze()
{
    return saetze(QStringLiteral(REFERENZQUELLE), kommafelder);
}

QList<Satz> unsere()
{
    return saetze(QStringLiteral(REFERENZTABELLE),
                  [](const QString &zeile) { return zeile.split(u';'); });
}

/// What a remark of the source says about the part of the state.
QString phase(const QString &notiz)
{
    const auto sagt = [&](const QString &wort) {
        return notiz.contains(wort);
    };
    if (sagt(u"2nd and 3rd trimester"_s) || sagt(u"from the 4th month"_s)) {
        return u"from the 4th month"_s;
    }
    for (const QString &eine : {u"1st trimester"_s, u"2nd trimester"_s, u"3rd trimester"_s,
                                u"after 6 months"_s, u"first 6 months"_s}) {
        if (sagt(eine)) {
            return eine;
        }
    }
    if (sagt(u"first 4 to 6 months"_s)) {
        return u"first 6 months"_s;
    }
    const bool ohneAlter = sagt(u"(printed without an age)"_s);
    return ohneAlter ? notiz.section(u' ', 0, 1) : QString();
}

/// What a remark of the source limits the figure to.
QString vorbehalt(const QString &notiz)
{
    const QList<std::pair<QString, QString>> woerter = {
        {u"for the reference weight"_s, u"reference weight"_s},
        {u"preformed vitamin A only"_s, u"retinol only"_s},
        {u"salts in supplements"_s, u"supplements only"_s},
        {u"safe and adequate"_s, u"safe"_s}};
    for (const auto &[stelle, wort] : woerter) {
        if (notiz.contains(stelle)) {
            return wort;
        }
    }
    return {};
}

QString ausQuelle(const Satz &satz)
{
    const QString notiz = satz[u"note"_s];
    const bool ohne = satz[u"kind"_s] == u"none";
    const QString art = !ohne                         ? satz[u"kind"_s]
                        : notiz.startsWith(u"no UL:") ? u"no UL"_s
                                                      : u"no value"_s;
    QString einheit = ohne ? QString() : satz[u"unit"_s];
    einheit.replace(u"/d"_s, QString()).replace(u" body weight"_s, QString());
    return QStringList{satz[u"set"_s],
                       satz[u"nutrient"_s],
                       satz[u"sex"_s],
                       satz[u"age_from"_s],
                       satz[u"age_to"_s],
                       satz[u"state"_s],
                       phase(notiz),
                       satz[u"pal"_s],
                       art,
                       einheit,
                       satz[u"value_low"_s],
                       satz[u"value_high"_s],
                       vorbehalt(notiz),
                       satz[u"source"_s]}
        .join(u'|');
}

QString ausUnserer(const Satz &satz)
{
    QStringList teile;
    for (const QString &spalte :
         {u"set"_s, u"nutrient"_s, u"sex"_s, u"from"_s, u"to"_s, u"state"_s, u"phase"_s, u"pal"_s,
          u"kind"_s, u"unit"_s, u"low"_s, u"high"_s, u"limit"_s, u"keys"_s}) {
        teile << satz[spalte];
    }
    return teile.join(u'|');
}

/// The two lines that come from a remark: "before menopause; after it 14" and the other way round.
const QStringList ausBemerkungen = {
    u"DACH|fe|f|19|50|none|after menopause||PRI|mg|14|14||DGE-FE"_s,
    u"DACH|fe|f|51|64|none|before menopause||PRI|mg|16|16||DGE-FE"_s};

} // namespace

class TestReferenztabelle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFigureHasItsSourceAndEverySourceItsFigure();
    void whatComesFromARemarkStandsInIt();
    void energyIsThePrintedOneInOtherUnits();
    void figuresInRemarksAreTheSources();
    void theReaderSeesTheSame();
};

void TestReferenztabelle::everyFigureHasItsSourceAndEverySourceItsFigure()
{
    QStringList soll = ausBemerkungen;
    for (const Satz &satz : quellsaetze()) {
        soll << ausQuelle(satz);
    }
    QCOMPARE(soll.size(), 778 + 2);
    QStringList ist;
    for (const Satz &satz : unsere()) {
        ist << ausUnserer(satz);
    }
    for (const QString &eine : ist) {
        QVERIFY2(soll.contains(eine), qPrintable(u"not in the source: "_s + eine));
    }
    for (const QString &eine : soll) {
        QVERIFY2(ist.contains(eine), qPrintable(u"not in the table: "_s + eine));
    }
    QCOMPARE(ist.size(), soll.size());
    QCOMPARE(QSet<QString>(ist.begin(), ist.end()).size(), ist.size());
}

void TestReferenztabelle::whatComesFromARemarkStandsInIt()
{
    const auto bemerkung = [](const QString &von, const QString &bis) {
        for (const Satz &satz : quellsaetze()) {
            if (satz[u"set"_s] == u"DACH" && satz[u"nutrient"_s] == u"fe" &&
                satz[u"sex"_s] == u"f" && satz[u"age_from"_s] == von && satz[u"age_to"_s] == bis) {
                return satz[u"note"_s];
            }
        }
        return QString();
    };
    QVERIFY(bemerkung(u"19"_s, u"50"_s).endsWith(u"after it 14"));
    QVERIFY(bemerkung(u"51"_s, u"64"_s).endsWith(u"before it 16"));
}

void TestReferenztabelle::energyIsThePrintedOneInOtherUnits()
{
    static const QRegularExpression gedruckt(u"^Printed as \\+?([\\d.]+) MJ$"_s);
    int gesehen = 0;
    for (const Satz &satz : unsere()) {
        if (satz[u"set"_s] == u"EFSA" && satz[u"nutrient"_s] == u"kal") {
            const auto treffer = gedruckt.match(satz[u"en"_s]);
            QVERIFY(treffer.hasMatch());
            const double megajoule = treffer.captured(1).toDouble();
            QCOMPARE(satz[u"low"_s].toDouble(), std::round(megajoule * 238.83));
            ++gesehen;
        }
    }
    QCOMPARE(gesehen, 142);
}

/// Our words are our own, the figures in them are not; the German ones have a comma.
void TestReferenztabelle::figuresInRemarksAreTheSources()
{
    static const QRegularExpression zahl(u"\\d+(?:[.,]\\d+)?"_s);
    const auto zahlen = [](QString text) {
        text.replace(u"1½"_s, u"1.5"_s);
        QStringList liste;
        for (const auto &treffer : zahl.globalMatch(text)) {
            liste << treffer.captured().replace(u',', u'.');
        }
        liste.sort(); // either language has its order of words
        return liste;
    };
    QHash<QString, QString> notizen;
    for (const Satz &satz : quellsaetze()) {
        notizen.insert(ausQuelle(satz), satz[u"note"_s]);
    }
    for (const Satz &satz : unsere()) {
        const QStringList deutsche = zahlen(satz[u"de"_s]);
        QCOMPARE(deutsche, zahlen(satz[u"en"_s]));
        const QStringList quelle = zahlen(notizen.value(ausUnserer(satz)));
        for (const QString &eine : deutsche) {
            QVERIFY2(quelle.contains(eine), qPrintable(satz[u"en"_s]));
        }
    }
}

void TestReferenztabelle::theReaderSeesTheSame()
{
    const auto gelesene = Referenzdatei::ausDatei(QStringLiteral(REFERENZTABELLE)).zeilen;
    const QList<Satz> rohe = unsere();
    QCOMPARE(gelesene.size(), rohe.size());
    const auto text = [](auto zahl) {
        return zahl ? QString::number(*zahl) : QString();
    };
    const auto gekuerzt = [](const QString &feld) {
        return feld.isEmpty() ? QString() : QString::number(feld.toDouble());
    };
    for (qsizetype i = 0; i < rohe.size(); ++i) {
        const Referenzzeile &eine = gelesene[i];
        const Satz &satz = rohe[i];
        QCOMPARE(eine.satz == Referenzsatz::Efsa, satz[u"set"_s] == u"EFSA");
        QCOMPARE(QString::fromUtf8(beschreibung(eine.wert).kennung), satz[u"nutrient"_s]);
        QCOMPARE(eine.geschlecht == Referenzgeschlecht::Frau, satz[u"sex"_s] == u"f");
        QCOMPARE(QString::number(eine.von), satz[u"from"_s]);
        QCOMPARE(text(eine.bis), satz[u"to"_s]);
        QCOMPARE(text(eine.pal), gekuerzt(satz[u"pal"_s]));
        QCOMPARE(text(eine.unten), gekuerzt(satz[u"low"_s]));
        QCOMPARE(text(eine.oben), gekuerzt(satz[u"high"_s]));
        QCOMPARE(eine.quellen.join(u' '), satz[u"keys"_s]);
    }
}

QTEST_APPLESS_MAIN(TestReferenztabelle)
#include "TestReferenztabelle.moc"
