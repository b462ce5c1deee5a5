// Starts to the first painted window and ends at once, after saying how much memory it holds. With
// "leer" the window is an empty one of Qt's, otherwise it is the program's. The measuring program
// beside this one starts it many times.

#include "AppController.h"
#include "Einstellungen.h"
#include "Erscheinungsbild.h"
#include "Sprache.h"

#include <QApplication>
#include <QMainWindow>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <unistd.h>

namespace {

/// Ends the process right after the window has been painted for the first time.
class Erstmalen : public QObject
{
protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool gemalt = QObject::eventFilter(watched, event);
        if (event->type() == QEvent::Paint) {
            QMetaObject::invokeMethod(this, &Erstmalen::ende, Qt::QueuedConnection);
        }
        return gemalt;
    }

private:
    static void ende()
    {
        std::ifstream zustand("/proc/self/status");
        for (std::string zeile; std::getline(zustand, zeile);) {
            if (zeile.rfind("VmRSS:", 0) == 0) {
                std::puts(zeile.c_str());
            }
        }
        std::fflush(stdout);
        _exit(0); // taking everything down is no part of the start
    }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication app(argc, argv);
    Erstmalen erstmalen;
    if (argc > 1 && std::string(argv[1]) == "leer") {
        QMainWindow fenster;
        fenster.resize(1280, 800);
        fenster.installEventFilter(&erstmalen);
        fenster.show();
        return QApplication::exec();
    }
    const QTemporaryDir heim;
    Einstellungen einstellungen(heim.filePath(QStringLiteral("Mahlberg.conf")),
                                QSettings::IniFormat);
    const Sprache sprache(QStringLiteral("de"));
    zeigeErscheinungsbild(Erscheinungsbild::System);
    AppController controller({
        .eingebauteTabelle = QStringLiteral(":/DatabaseIII.daten"),
        .datenordner = Datenordner(heim.path()),
        .melde = [](QWidget *, const Meldung &) { return 0; },
        .protokolliere = [](const QString &) {},
        .einstellungen = &einstellungen,
    });
    controller.awakeFromNib();
    controller.Hauptfenster->installEventFilter(&erstmalen);
    controller.Hauptfenster->show();
    return QApplication::exec();
}
