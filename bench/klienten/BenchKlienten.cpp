// A practice of many years: 10,000 clients with 20 visits and 5 plans of ten foods each. From
// nothing to the list, from a typed letter to the painted hits, from a click to the client on
// display, and the memory that all of it takes, each beside a plain baseline or an empty store in
// the same run.

#include "AnthroController.h"
#include "Dateidatenbank.h"
#include "Erfundenes.h"
#include "Klientenfenster.h"
#include "Klientenliste.h"
#include "Klientenspeicher.h"
#include "Planmodul.h"
#include "Tischklient.h"
#include "Verlaufsmaler.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <memory>

namespace {

constexpr int anzahlKlienten = 10000;
constexpr int anzahlBesuche = 20;
constexpr int anzahlPlaene = 5;
constexpr int anzahlZeilen = 10;
constexpr int vieleBesuche = 1000;

Klientenakte erfundeneAkte(int nummer)
{
    Klientenakte akte;
    akte.person.kennung = neueKennung();
    akte.person.fassung = 1;
    akte.person.name = QStringLiteral("%1 Müller-Lüdenscheidt %2")
                           .arg(QChar(u'A' + nummer % 26))
                           .arg(nummer * 7919 % anzahlKlienten);
    akte.person.nummer = QString::number(nummer);
    akte.person.geburt = QDate(1930, 1, 1).addDays(nummer * 3);
    for (int i = 0; i < anzahlBesuche; ++i) {
        Besuch besuch;
        besuch.kennung = neueKennung();
        besuch.fassung = 1;
        besuch.datum = QDate(2010, 1, 1).addDays(i * 90);
        besuch.gewicht = 90 - i * 0.5;
        besuch.groesse = 1.7;
        besuch.taille = 100 - i * 0.3;
        akte.besuche << besuch;
    }
    for (int i = 0; i < anzahlPlaene; ++i) {
        Planablage plan;
        plan.kennung = neueKennung();
        plan.fassung = 1;
        plan.titel = QStringLiteral("Woche %1").arg(i);
        plan.datum = QDate(2010, 1, 1).addDays(i * 300);
        for (int zeile = 0; zeile < anzahlZeilen; ++zeile) {
            const QString name = QStringLiteral("Lebensmittel %1").arg(nummer * 10 + zeile);
            plan.posten.append({name, 100, erfundenesLebensmittel(name, zeile)});
        }
        akte.plaene << plan;
    }
    return akte;
}

/// The store of the practice, made once.
const QString &bestand()
{
    static const QTemporaryDir ordner;
    static const QString datei = [] {
        const QString path = ordner.filePath(QStringLiteral("MahlbergKlienten.sqlite"));
        Klientenspeicher speicher(std::make_unique<Dateidatenbank>(path));
        for (int nummer = 0; nummer < anzahlKlienten; ++nummer) {
            speicher.nimmAuf(erfundeneAkte(nummer));
        }
        return path;
    }();
    return datei;
}

std::unique_ptr<Klientenspeicher> speicherVon(const QString &datei)
{
    return std::make_unique<Klientenspeicher>(std::make_unique<Dateidatenbank>(datei));
}

/// What the process holds in memory, in MiB, with what was given back taken off.
double speicherbedarf()
{
    malloc_trim(0);
    QFile stand(QStringLiteral("/proc/self/statm"));
    if (!stand.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QList<QByteArray> seiten = stand.readAll().split(' ');
    return seiten.value(1).toDouble() * 4096 / (1024 * 1024);
}

/// The cabinet with its window, and a desk that nobody works at.
struct Praxis
{
    explicit Praxis(const QString &datei)
        : kartei([datei] {
            return Kartei::Ort{speicherVon(datei), datei + QStringLiteral(".json")};
        })
        , plan(Plantueren{
              .eingebauteTabelle = {}, .datenordner = Datenordner(heim.path()), .melde = {}})
        , rechner({.einstellungen = &einstellungen,
                   .protokolliere = [](const QString &) {},
                   .neuerPlan = {}})
        , tisch(kartei, {.rechner = rechner,
                         .plan = [this](bool) { return &plan; },
                         .sage = [](const Hinweis &) {},
                         .einstellungen = einstellungen})
    {
        rechner.plan = &plan;
        rechner.awakeFromNib();
        fenster = std::make_unique<Klientenfenster>(
            kartei, tisch,
            Klientenfenstertueren{
                .melde = {},
                .lebensmittel = [](const QString &) -> const Datenmodul * { return nullptr; },
                .datei = datei});
        fenster->show();
        QApplication::processEvents();
    }

    QTemporaryDir heim;
    QSettings einstellungen{heim.filePath(QStringLiteral("probe.ini")), QSettings::IniFormat};
    Kartei kartei;
    Planmodul plan;
    AnthroController rechner;
    Tischklient tisch;
    std::unique_ptr<Klientenfenster> fenster;
};

/// The same rows read past the program.
void rohesLesen(benchmark::State &state)
{
    bestand();
    for (auto _ : state) {
        QSqlDatabase roh =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("roh"));
        roh.setDatabaseName(bestand());
        roh.open();
        {
            QSqlQuery abfrage(roh);
            abfrage.exec(QStringLiteral("SELECT kennung, name, nummer, geburt FROM person"));
            qsizetype laenge = 0;
            while (abfrage.next()) {
                laenge += abfrage.value(1).toString().size();
            }
            benchmark::DoNotOptimize(laenge);
        }
        roh.close();
        roh = QSqlDatabase();
        QSqlDatabase::removeDatabase(QStringLiteral("roh"));
    }
}

/// From nothing to the list: the store is opened, looked through, read and put in order.
void bisZurListe(benchmark::State &state)
{
    bestand();
    for (auto _ : state) {
        Kartei kartei([] {
            return Kartei::Ort{speicherVon(bestand()), bestand() + QStringLiteral(".json")};
        });
        kartei.lade();
        benchmark::DoNotOptimize(kartei.liste().suche({}, false));
    }
}

/// A plain search through names that stand ready.
void rohesSuchen(benchmark::State &state)
{
    QStringList namen;
    for (int nummer = 0; nummer < anzahlKlienten; ++nummer) {
        namen << QStringLiteral("%1 müller-lüdenscheidt %2")
                     .arg(QChar(u'a' + nummer % 26))
                     .arg(nummer);
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(namen.filter(QStringLiteral("g m")));
    }
}

/// From a typed letter to the painted hits.
void bisZuDenTreffern(benchmark::State &state)
{
    Praxis praxis(bestand());
    bool eines = false;
    for (auto _ : state) {
        eines = !eines;
        praxis.fenster->suchfeld->setText(eines ? QStringLiteral("mu") : QStringLiteral("mul"));
        praxis.fenster->liste->grab();
    }
}

/// From a click in the list to the client on display.
void bisZumKlienten(benchmark::State &state)
{
    Praxis praxis(bestand());
    int zeile = 0;
    for (auto _ : state) {
        zeile = (zeile + 1) % 100;
        praxis.fenster->liste->setCurrentIndex(praxis.fenster->liste->model()->index(zeile, 0));
        praxis.fenster->grab();
    }
}

/// From the wish to the client at the desk.
void bisZumTisch(benchmark::State &state)
{
    Praxis praxis(bestand());
    const QList<Personenzeile> alle = praxis.kartei.liste().suche({}, false);
    qsizetype stelle = 0;
    for (auto _ : state) {
        stelle = (stelle + 1) % alle.size();
        praxis.tisch.nimm(alle[stelle].kennung);
    }
}

/// The calculator set without a client.
void rohesStellen(benchmark::State &state)
{
    const QTemporaryDir leer;
    Praxis praxis(leer.filePath(QStringLiteral("leer.sqlite")));
    double kilogramm = 60;
    for (auto _ : state) {
        kilogramm = kilogramm > 100 ? 60 : kilogramm + 1;
        praxis.rechner.gewichtn->setDoubleValue(kilogramm);
        praxis.rechner.slidergewicht(*praxis.rechner.gewichtn);
    }
}

/// What the window holds with the practice beyond what it holds without anybody.
void speicher(benchmark::State &state)
{
    bestand();
    const QTemporaryDir ordner;
    double mehr = 0;
    for (auto _ : state) {
        double leer = 0;
        {
            const Praxis praxis(ordner.filePath(QStringLiteral("leer.sqlite")));
            leer = speicherbedarf();
        }
        const Praxis praxis(bestand());
        praxis.fenster->suchfeld->setText(QStringLiteral("mu"));
        praxis.fenster->liste->setCurrentIndex(praxis.fenster->liste->model()->index(1, 0));
        QApplication::processEvents();
        mehr = speicherbedarf() - leer;
    }
    state.counters["MiB"] = mehr;
}

/// A plain line through so many points.
void rohesZeichnen(benchmark::State &state)
{
    QImage bild(900, 400, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter maler(&bild);
        for (int i = 1; i < vieleBesuche; ++i) {
            maler.drawLine(QPointF(i * 0.9, 200 + i % 7),
                           QPointF(i * 0.9 + 0.9, 200 + (i + 1) % 7));
        }
    }
}

/// The course of twenty years with a visit every week.
void verlaufZeichnen(benchmark::State &state)
{
    QList<Besuch> besuche;
    for (int i = 0; i < vieleBesuche; ++i) {
        Besuch besuch;
        besuch.datum = QDate(2006, 1, 1).addDays(i * 7);
        besuch.gewicht = 80 + i % 7;
        besuch.groesse = 1.7;
        besuche << besuch;
    }
    const Verlaufsdaten daten =
        verlaufsdaten(Person(), besuche, Messgroesse::Gewicht, QDate(2026, 1, 1));
    QImage bild(900, 400, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        bild.fill(Qt::white);
        QPainter maler(&bild);
        maleVerlauf(maler, bild.rect(), daten, QApplication::palette());
    }
}

} // namespace

BENCHMARK(rohesZeichnen)->Unit(benchmark::kMillisecond);
BENCHMARK(verlaufZeichnen)->Unit(benchmark::kMillisecond);
BENCHMARK(speicher)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(rohesLesen)->Unit(benchmark::kMillisecond);
BENCHMARK(bisZurListe)->Unit(benchmark::kMillisecond);
BENCHMARK(rohesSuchen)->Unit(benchmark::kMillisecond);
BENCHMARK(bisZuDenTreffern)->Unit(benchmark::kMillisecond);
BENCHMARK(bisZumKlienten)->Unit(benchmark::kMillisecond);
BENCHMARK(rohesStellen)->Unit(benchmark::kMillisecond);
BENCHMARK(bisZumTisch)->Unit(benchmark::kMillisecond);
