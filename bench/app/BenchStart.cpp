// From the start of the process to the first painted window: the program beside an empty window of
// Qt's in the same run, and the memory that each then holds.

#include <QProcess>

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

void starte(benchmark::State &state, const QString &was)
{
    double speicher = 0;
    for (auto _ : state) {
        const auto anfang = std::chrono::steady_clock::now();
        QProcess probe;
        probe.start(QStringLiteral(MAHLBERG_STARTPROBE), {was});
        probe.waitForFinished();
        const auto ende = std::chrono::steady_clock::now();
        state.SetIterationTime(std::chrono::duration<double>(ende - anfang).count());
        const QList<QByteArray> worte = probe.readAllStandardOutput().simplified().split(' ');
        if (probe.exitCode() != 0 || worte.size() < 2) {
            state.SkipWithError("the window was not painted");
            return;
        }
        speicher = worte[1].toDouble();
    }
    state.counters["MiB"] = speicher / 1024;
}

void leeresFenster(benchmark::State &state)
{
    starte(state, QStringLiteral("leer"));
}
void mahlberg(benchmark::State &state)
{
    starte(state, QStringLiteral("mahlberg"));
}

} // namespace

BENCHMARK(leeresFenster)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(mahlberg)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);
