#include "Merkablage.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace {

const QString artfeld = QStringLiteral("format");
const QString formfeld = QStringLiteral("version");

} // namespace

Merkablage::Merkablage(const QString &path, Form form, Merkdatei::Tageskopien kopien)
    : m_form(std::move(form))
    , m_datei(path, kopien)
{
}

bool Merkablage::istGesperrt() const
{
    lies();
    return m_datei.istGesperrt();
}

bool Merkablage::sichere()
{
    return m_gesichert || schreibe();
}

bool Merkablage::uebernimm()
{
    const bool geschrieben = schreibe();
    Q_EMIT geaendert();
    return geschrieben;
}

bool Merkablage::schreibe()
{
    const bool vorher = m_gesichert;
    const QJsonArray liste = eintraege();
    const QJsonObject alles = {
        {artfeld, m_form.art}, {formfeld, m_form.fassung}, {m_form.liste, liste}};
    m_gesichert = m_datei.schreibe(liste.isEmpty() ? QByteArray() : QJsonDocument(alles).toJson());
    if (m_gesichert != vorher) {
        Q_EMIT sicherungGewechselt();
    }
    return m_gesichert;
}

QString Merkablage::hindernis() const
{
    if (istGesperrt()) {
        return saetze().gesperrt;
    }
    if (!m_gesichert) {
        return saetze().ungesichert;
    }
    const QString &beiseite = m_datei.beiseite();
    return beiseite.isNull() ? QString() : saetze().beschaedigt.arg(beiseite);
}

void Merkablage::lies() const
{
    if (!m_gelesen) {
        m_gelesen = true;
        m_datei.lies([this](const QByteArray &bytes) { return deute(bytes); },
                     QDateTime::currentDateTime());
    }
}

Merkdatei::Verstaendnis Merkablage::deute(const QByteArray &bytes) const
{
    using Verstaendnis = Merkdatei::Verstaendnis;
    const QJsonObject alles = QJsonDocument::fromJson(bytes).object();
    const int fassung = alles.value(formfeld).toInt();
    const QJsonValue liste = alles.value(m_form.liste);
    if (alles.value(artfeld) != m_form.art || fassung < 1 || !liste.isArray()) {
        return Verstaendnis::Teilweise;
    }
    const bool ganz = nimmAuf(liste.toArray());
    return fassung > m_form.fassung ? Verstaendnis::Neuer
           : ganz                   ? Verstaendnis::Ganz
                                    : Verstaendnis::Teilweise;
}
