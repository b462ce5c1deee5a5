// Ends with 0 where windows can be opened. Where no display answers, or there is none, Qt ends it.

#include <QGuiApplication>

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    return 0;
}
