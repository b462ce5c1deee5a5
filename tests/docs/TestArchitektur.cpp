#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

namespace {

/// Rooms and programs, each with those that it leads to.
using Tueren = QMap<QString, QSet<QString>>;

QByteArray lies(const QString &pfad)
{
    QFile datei(pfad);
    return datei.open(QIODevice::ReadOnly) ? datei.readAll() : QByteArray();
}

/// What CMake links, as it is written beside the build.
Tueren gebaut()
{
    static const QRegularExpression zeile(
        QStringLiteral("\"(?:mahlberg_)?([^\"]+)\"(?: -> \"(?:mahlberg_)?([^\"]+)\")?"));
    Tueren tueren;
    auto treffer = zeile.globalMatch(QString::fromUtf8(lies(QStringLiteral(BAUGRAPH))));
    while (treffer.hasNext()) {
        const auto eine = treffer.next();
        QSet<QString> &ziele = tueren[eine.captured(1)];
        if (eine.hasCaptured(2)) {
            ziele << eine.captured(2);
        }
    }
    return tueren;
}

/// What the picture shows: the titles of its parts are "room" and "room->room".
Tueren gezeichnet()
{
    Tueren tueren;
    QXmlStreamReader leser(lies(QStringLiteral(PROJEKT "/docs/architecture.svg")));
    bool teil = false; // whether the part that is read is a room or a door
    while (!leser.atEnd()) {
        if (leser.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (leser.name() == QLatin1String("g")) {
            const auto klasse = leser.attributes().value(QLatin1String("class"));
            teil = klasse == QLatin1String("node") || klasse == QLatin1String("edge");
        } else if (teil && leser.name() == QLatin1String("title")) {
            const QStringList namen = leser.readElementText().split(QStringLiteral("->"));
            QSet<QString> &ziele = tueren[namen.first()];
            if (namen.size() > 1) {
                ziele << namen.last();
            }
        }
    }
    return tueren;
}

/// All that can be reached, through any number of rooms: the picture leaves out a door that another
/// way leads to.
Tueren erreichbar(Tueren tueren)
{
    for (bool gewachsen = true; gewachsen;) {
        gewachsen = false;
        for (QSet<QString> &ziele : tueren) {
            const auto vorher = ziele.size();
            const QSet<QString> bisher = ziele;
            for (const QString &ziel : bisher) {
                ziele |= tueren.value(ziel);
            }
            gewachsen = gewachsen || ziele.size() > vorher;
        }
    }
    return tueren;
}

} // namespace

/// The page for developers shows the rooms as they are built.
class TestArchitektur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePictureShowsEveryRoom();
    void thePictureLeadsWhereTheRoomsDo();
    void noDoorOpensBothWays();
    void thePageTellsWhatEachRoomIsFor();
};

void TestArchitektur::thePictureShowsEveryRoom()
{
    QVERIFY(gebaut().size() > 15);
    QCOMPARE(gezeichnet().keys(), gebaut().keys());
}

void TestArchitektur::thePictureLeadsWhereTheRoomsDo()
{
    const Tueren bild = erreichbar(gezeichnet());
    const Tueren bau = erreichbar(gebaut());
    for (auto raum = bau.cbegin(); raum != bau.cend(); ++raum) {
        QVERIFY2(bild.value(raum.key()) == raum.value(),
                 qPrintable(raum.key() +
                            QStringLiteral(" leads elsewhere: run scripts/make-architecture")));
    }
}

void TestArchitektur::noDoorOpensBothWays()
{
    const Tueren bau = erreichbar(gebaut());
    for (auto raum = bau.cbegin(); raum != bau.cend(); ++raum) {
        QVERIFY2(!raum.value().contains(raum.key()), qPrintable(raum.key()));
    }
}

void TestArchitektur::thePageTellsWhatEachRoomIsFor()
{
    const QString seite = QString::fromUtf8(lies(QStringLiteral(PROJEKT "/docs/architecture.md")));
    const QStringList raeume = gebaut().keys();
    for (const QString &raum : raeume) {
        QVERIFY2(seite.contains(QStringLiteral("\n| `%1` |").arg(raum)), qPrintable(raum));
    }
}

QTEST_GUILESS_MAIN(TestArchitektur)
#include "TestArchitektur.moc"
