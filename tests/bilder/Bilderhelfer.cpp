#include "Bilderhelfer.h"

#include <QLabel>

void Bilderhelfer::word()
{
    QLabel schild(m_wort);
    schild.setFixedSize(200, 40);
    schild.show();
    QVERIFY(QTest::qWaitForWindowExposed(&schild));
    Bilderrahmen::pruefe(QStringLiteral("schild"), schild);
}

int main(int argc, char **argv)
{
    Bilderrahmen::bereiteVor();
    const QApplication app(argc, argv);
    Bilderrahmen::kleide();
    const QStringList worte = QApplication::arguments();
    Bilderrahmen::setzeOrdner(worte.at(2), worte.at(3));
    Bilderhelfer test(worte.at(1));
    return QTest::qExec(&test, worte.mid(0, 1));
}
