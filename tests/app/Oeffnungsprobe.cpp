#include "Oeffnungsprobe.h"

#include <QComboBox>
#include <QFile>

using enum Naehrwert;

void Oeffnungsprobe::starte()
{
    m_fenster.reset();
    heim.schreibeTabelle(zaehltabelle(30));
    heim.schreibeEigene(verzeichnis(
        {lebensmittel(eintopf, {{kal, 60}}), lebensmittel(muesli, {{kal, 350}, {protein, 10}})}));
    m_fenster = std::make_unique<Probefenster>(heim);
}

QString Oeffnungsprobe::lege(const QString &name, const QByteArray &bytes) const
{
    QFile neue(heim.pfad(name));
    if (!neue.open(QIODevice::WriteOnly) || neue.write(bytes) != bytes.size()) {
        qFatal("a file of the test could not be written");
    }
    return neue.fileName();
}

void Oeffnungsprobe::entscheide(Namensgleich was) const
{
    auto &wahl = teil<QComboBox>("entscheidung");
    wahl.setFocus();
    QTest::keyClick(&wahl, Qt::Key_Home);
    for (int i = 0; i < wahl.findData(static_cast<int>(was)); ++i) {
        QTest::keyClick(&wahl, Qt::Key_Down);
    }
}

void Oeffnungsprobe::schliesse() const
{
    fenster()->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Datenmodul ration(const QString &name, float gramm)
{
    Datenmodul traeger;
    traeger.setName(name);
    traeger.setkal(gramm);
    return traeger;
}
