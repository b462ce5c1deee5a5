#include "Zusatzquelle.h"

#include "Zusatzdatei.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

const Zusatzquelle::Gelesenes &Zusatzquelle::gelesen() const
{
    if (m_gelesen) {
        return *m_gelesen;
    }
    Gelesenes &neu = m_gelesen.emplace();
    QFile datei(m_pfad);
    const bool offen = !m_pfad.isEmpty() && datei.open(QIODevice::ReadOnly);
    const QByteArray bytes = offen ? datei.readAll() : QByteArray();
    if (!offen || datei.error() != QFileDevice::NoError) {
        neu.hindernis = u"%1: %2"_s.arg(m_pfad, datei.errorString());
        return neu;
    }
    const auto [tabelle, beanstandungen] = Zusatzdatei::lesen(bytes);
    if (beanstandungen.isEmpty()) {
        neu.wissen = Stoffwissen(tabelle);
        return neu;
    }
    const Beanstandung &erste = beanstandungen.first();
    neu.hindernis =
        u"%1:%2: %3"_s.arg(QFileInfo(m_pfad).fileName()).arg(erste.zeile).arg(erste.meldung);
    return neu;
}
