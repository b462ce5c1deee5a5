#pragma once

#include <QApplication>
#include <QImage>
#include <QTest>

#include <functional>

/// What every picture test stands in: the same letters, colours, sizes and stillness on every
/// machine, and the comparison with the picture that is kept beside the tests.
namespace Bilderrahmen {

/// How large the main window and the plan are in their pictures: what a desktop leaves of a screen
/// of 1280 x 800.
inline constexpr QSize gewoehnlich(1272, 764);

/// Sets what Qt reads when the application is made.
void bereiteVor();

/// Dresses the application: our look and light colours, DejaVu Sans of 9 pt, nothing that blinks or
/// moves by itself.
void kleide();

/// Looks for the pictures to expect in one folder, and leaves in another what differs from them.
void setzeOrdner(const QString &bilder, const QString &unterschiede);

/// What a part of a window looks like, with so many device pixels to a point.
QImage male(QWidget &teil, int verhaeltnis = 1);

/// Compares a picture with the one of this name. Where they differ the test fails, and says where
/// the two pictures and a third with what differs in red lie. With `MAHLBERG_BILDER_NEU` set the
/// picture is kept as the one to expect, and the test fails, so that it is not taken for a pass.
void pruefe(const QString &name, const QImage &bild);

/// Does so with a part of a window, once it has come to rest.
void pruefe(const QString &name, QWidget &teil, int verhaeltnis = 1);

/// Runs the tests of a class as a program.
template <typename Test>
int fuehreAus(int argc, char **argv)
{
    bereiteVor();
    QApplication app(argc, argv);
    kleide();
    Test test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace Bilderrahmen
