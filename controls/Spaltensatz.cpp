#include "Spaltensatz.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr double kaumHoeher = 0.01; ///< points that sums of heights are off by

} // namespace

Spaltensatz::Spaltensatz(const Papier &papier, Druckstreifenfolge seitenkopf)
    : m_papier(papier)
    , m_seitenkopf(std::move(seitenkopf))
    , m_seiten(1)
{
}

double Spaltensatz::spaltenbreite(const Papier &papier)
{
    return (papier.seite.width() + papier.abstand) / papier.spalten - papier.abstand;
}

void Spaltensatz::oben(const Druckstreifenfolge &folge)
{
    for (const Druckstreifen &streifen : folge) {
        if (!m_leer && !passt(streifen.hoehe)) {
            neueSeite();
        }
        lege({streifen});
        m_leer = false;
    }
    m_leer = true;
    m_anfang = m_unten;
    if (frei() < m_papier.seite.height() / 4) {
        neueSeite(); // columns that short would be none
    }
}

void Spaltensatz::setze(const QList<Spaltenblock> &bloecke, bool ganze)
{
    for (const Spaltenblock &block : bloecke) {
        double beisammen = hoehe(block.kopf);
        for (const Druckstreifenfolge &teil : block.teile) {
            const bool mit = ganze || &teil == &block.teile.constFirst();
            beisammen += mit ? hoehe(!ganze && istLang(teil) ? teil.first(1) : teil) : 0;
        }
        const double davor = m_leer ? 0 : m_papier.blockabstand;
        if (!m_leer && !passt(davor + beisammen)) {
            neueSpalte();
        } else {
            lege({freiraum(davor)});
        }
        lege(block.kopf);
        for (const Druckstreifenfolge &teil : block.teile) {
            setzeTeil(teil, block);
        }
    }
}

/// Where it goes on in another column, the heading is there again.
void Spaltensatz::setzeTeil(const Druckstreifenfolge &teil, const Spaltenblock &block)
{
    const bool beisammen = !istLang(teil);
    for (const Druckstreifen &streifen : teil) {
        const bool anfang = &streifen == &teil.constFirst();
        const double braucht = anfang && beisammen ? hoehe(teil) : streifen.hoehe;
        if (!m_leer && !passt(braucht)) {
            neueSpalte();
            lege(block.fortsetzung);
        }
        lege({streifen});
        m_leer = false;
    }
}

bool Spaltensatz::passt(double hoehe) const
{
    return hoehe <= frei() + kaumHoeher;
}

bool Spaltensatz::istLang(const Druckstreifenfolge &folge) const
{
    return hoehe(folge) > m_papier.seite.height() / 4;
}

void Spaltensatz::lege(const Druckstreifenfolge &folge)
{
    const double links = m_spalte * (spaltenbreite() + m_papier.abstand);
    for (const Druckstreifen &streifen : folge) {
        if (streifen.male) {
            m_seiten.last() << Stueck{{links, m_unten}, streifen};
        }
        m_unten += streifen.hoehe;
    }
}

void Spaltensatz::neueSpalte()
{
    if (m_spalte + 1 == m_papier.spalten) {
        neueSeite();
        return;
    }
    ++m_spalte;
    m_unten = m_anfang;
    m_leer = true;
}

void Spaltensatz::neueSeite()
{
    m_seiten.emplaceBack();
    m_spalte = 0;
    m_unten = 0;
    lege(m_seitenkopf);
    m_anfang = m_unten;
    m_leer = true;
}

void Spaltensatz::male(QPainter &maler, const QPointF &ecke, int nummer) const
{
    for (const Stueck &stueck : m_seiten.at(nummer - 1)) {
        maler.save();
        maler.translate(ecke + stueck.ort);
        stueck.streifen.male(maler);
        maler.restore();
    }
}
