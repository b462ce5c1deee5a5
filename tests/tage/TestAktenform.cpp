// A record of days with all its figures, on paper.

#include "Aktenform.h"

#include "Druckprobe.h"
#include "Probesprache.h"
#include "Wochenprobe.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestAktenform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sieht();
};

void TestAktenform::sieht()
{
    const Probesprache sprache(QLocale::German);
    for (const auto &[name, papier] : {std::pair("ak", QPageLayout::Portrait), {"akq", QPageLayout::Landscape}}) {
        Druckprobe probe(Druckprobe::papier(QPageSize::A4, papier));
        probe.drucke(aktenform(Wochenprobe::woche(), {2000, 2500},
            {.klient = u"Anna Muster"_s, .heute = QDate(2026, 11, 23)}));
        qWarning() << name << probe.seiten();
        QFile::remove(u"/tmp/hz-%1.pdf"_s.arg(QLatin1String(name)));
        QFile::copy(probe.pdf(), u"/tmp/hz-%1.pdf"_s.arg(QLatin1String(name)));
    }
}

QTEST_MAIN(TestAktenform)
#include "TestAktenform.moc"
