// Reading and writing a store as large as the built-in table, and one of 100,000 foods. Beside it,
// over the same content: a plain copy of the archive's bytes, and Qt's own stream of values.
// Bytes per second count the bytes of the archive, except for Qt's stream, which has its own.

#include "Archiver.h"

#include <QDataStream>
#include <QIODevice>

#include <benchmark/benchmark.h>

#include <cstring>

namespace {

constexpr int eingebaut = 1016;
constexpr int viele = 100'000;

/// Foods that look like real ones: a third of the values fractions, ratings in all of them.
Lebensmittelverzeichnis erfinde(int anzahl)
{
    static const std::array<QString, 3> zeichen = {QStringLiteral("+"), QStringLiteral("0"),
                                                   QStringLiteral("-")};
    Lebensmittelverzeichnis verzeichnis;
    for (int i = 0; i < anzahl; ++i) {
        Datenmodul neues;
        neues.setName(QStringLiteral("Lebensmittel Nummer %1, gekocht").arg(i));
        int nummer = i;
        for (const auto &zeile : naehrwerte) {
            const float ganz = static_cast<float>(++nummer % 700);
            neues.setWert(zeile.wert, nummer % 3 == 0 ? ganz / 10.0F : ganz);
        }
        for (const auto &zeile : wertungen) {
            neues.setWertung(zeile.wertung, zeichen[static_cast<std::size_t>(++nummer % 3)]);
        }
        verzeichnis.insert(neues.name(), neues);
    }
    return verzeichnis;
}

void zaehle(benchmark::State &state, qsizetype bytes)
{
    state.SetBytesProcessed(state.iterations() * bytes);
    state.counters["foods"] = static_cast<double>(state.range(0));
    state.counters["bytes"] = static_cast<double>(bytes);
}

void liest(benchmark::State &state)
{
    const QByteArray bytes = Archiver::write(erfinde(static_cast<int>(state.range(0))));
    for (auto _ : state) {
        benchmark::DoNotOptimize(Archiver::read(bytes));
    }
    zaehle(state, bytes.size());
}

void schreibt(benchmark::State &state)
{
    const auto verzeichnis = erfinde(static_cast<int>(state.range(0)));
    qsizetype groesse = 0;
    for (auto _ : state) {
        groesse = Archiver::write(verzeichnis).size();
    }
    zaehle(state, groesse);
}

void kopiertBytes(benchmark::State &state)
{
    const QByteArray bytes = Archiver::write(erfinde(static_cast<int>(state.range(0))));
    QByteArray ziel(bytes.size(), '\0');
    for (auto _ : state) {
        std::memcpy(ziel.data(), bytes.constData(), static_cast<std::size_t>(bytes.size()));
        benchmark::DoNotOptimize(ziel.data());
        benchmark::ClobberMemory();
    }
    zaehle(state, bytes.size());
}

QByteArray schreibeQt(const Lebensmittelverzeichnis &verzeichnis)
{
    QByteArray bytes;
    QDataStream strom(&bytes, QIODevice::WriteOnly);
    strom.setFloatingPointPrecision(QDataStream::SinglePrecision);
    strom << verzeichnis.size();
    for (auto eintrag = verzeichnis.cbegin(); eintrag != verzeichnis.cend(); ++eintrag) {
        strom << eintrag.key() << eintrag.value().name();
        for (const auto &zeile : naehrwerte) {
            strom << eintrag.value().wert(zeile.wert);
        }
        for (const auto &zeile : wertungen) {
            strom << eintrag.value().wertung(zeile.wertung);
        }
    }
    return bytes;
}

Lebensmittelverzeichnis leseQt(const QByteArray &bytes)
{
    QDataStream strom(bytes);
    strom.setFloatingPointPrecision(QDataStream::SinglePrecision);
    qsizetype anzahl = 0;
    strom >> anzahl;
    Lebensmittelverzeichnis verzeichnis;
    for (qsizetype i = 0; i < anzahl; ++i) {
        QString schluessel;
        QString text;
        float zahl = 0;
        Datenmodul neues;
        strom >> schluessel >> text;
        neues.setName(text);
        for (const auto &zeile : naehrwerte) {
            strom >> zahl;
            neues.setWert(zeile.wert, zahl);
        }
        for (const auto &zeile : wertungen) {
            strom >> text;
            neues.setWertung(zeile.wertung, text);
        }
        verzeichnis.insert(verzeichnis.cend(), schluessel, neues);
    }
    return verzeichnis;
}

void liestMitQt(benchmark::State &state)
{
    const QByteArray bytes = schreibeQt(erfinde(static_cast<int>(state.range(0))));
    for (auto _ : state) {
        benchmark::DoNotOptimize(leseQt(bytes));
    }
    zaehle(state, bytes.size());
}

void schreibtMitQt(benchmark::State &state)
{
    const auto verzeichnis = erfinde(static_cast<int>(state.range(0)));
    qsizetype groesse = 0;
    for (auto _ : state) {
        groesse = schreibeQt(verzeichnis).size();
    }
    zaehle(state, groesse);
}

} // namespace

BENCHMARK(kopiertBytes)->Arg(eingebaut)->Arg(viele)->Unit(benchmark::kMillisecond);
BENCHMARK(liestMitQt)->Arg(eingebaut)->Arg(viele)->Unit(benchmark::kMillisecond);
BENCHMARK(liest)->Arg(eingebaut)->Arg(viele)->Unit(benchmark::kMillisecond);
BENCHMARK(schreibtMitQt)->Arg(eingebaut)->Arg(viele)->Unit(benchmark::kMillisecond);
BENCHMARK(schreibt)->Arg(eingebaut)->Arg(viele)->Unit(benchmark::kMillisecond);
