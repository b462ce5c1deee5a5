// Saves foods in a process that can be killed. It reads the number of a save, has a child process
// do it, and tells the child's number when the save begins and how the child has ended.

#include "Absturzhelfer.h"

#include "Dateihueter.h"

#include <QFile>

#include <sys/wait.h>
#include <unistd.h>

namespace {

bool sende(int zahl)
{
    return write(STDOUT_FILENO, &zahl, sizeof zahl) == sizeof zahl;
}

[[noreturn]] void sichere(const QString &pfad, int nummer)
{
    const Lebensmittelverzeichnis alle = gesicherteLebensmittel(nummer);
    Dateihueter dateien;
    dateien.lesen(pfad);
    _exit(sende(getpid()) && dateien.schreiben(pfad, alle) ? 0 : 1);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        return 2;
    }
    const QString pfad = QFile::decodeName(argv[1]);
    int nummer = 0;
    while (read(STDIN_FILENO, &nummer, sizeof nummer) == sizeof nummer) {
        const pid_t kind = fork();
        if (kind == 0) {
            sichere(pfad, nummer);
        }
        int ende = 0;
        if (kind < 0 || waitpid(kind, &ende, 0) != kind || !sende(ende)) {
            return 1;
        }
    }
    return 0;
}
