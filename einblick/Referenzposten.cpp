#include "Referenzposten.h"

#include "Feldauskunft.h"
#include "Fokusstil.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>

namespace {

constexpr int einzug = 4;
constexpr int nah = 8;

enum Spalte { Name, Menge, Balken };

QLabel *wort(Qt::Alignment ausrichtung)
{
    auto *worte = new QLabel;
    worte->setTextFormat(Qt::PlainText);
    worte->setAlignment(ausrichtung | Qt::AlignVCenter);
    return worte;
}

} // namespace

Referenzposten::Referenzposten(const char *name, QWidget *parent)
    : QWidget(parent)
    , m_name(wort(Qt::AlignLeft))
    , m_menge(wort(Qt::AlignRight))
    , m_balken(new Bereichsbalken)
    , m_worte(wort(Qt::AlignLeft))
    , m_erklaerung(new Feldauskunft(this, [this] { return m_auskunft; }))
{
    setObjectName(QLatin1String(name));
    m_worte->setWordWrap(true);
    m_worte->setProperty("schriftstufe", QStringLiteral("klein"));
    auto *gitter = new QGridLayout(this);
    gitter->setContentsMargins(einzug, einzug, einzug, einzug);
    gitter->setHorizontalSpacing(nah);
    gitter->setVerticalSpacing(0);
    gitter->addWidget(m_name, 0, Name);
    gitter->addWidget(m_menge, 0, Menge);
    gitter->addWidget(m_balken, 0, Balken);
    gitter->addWidget(m_worte, 1, Name, 1, Balken + 1);
    gitter->setColumnStretch(Balken, 1);
}

void Referenzposten::zeige(const Postenangabe &angabe)
{
    m_name->setText(angabe.name);
    m_menge->setText(angabe.menge);
    if (!angabe.ziel) {
        m_balken->leere();
    } else if (angabe.wert) {
        m_balken->zeige(*angabe.wert, *angabe.ziel, angabe.urteil);
    } else {
        m_balken->zeigeBereich(*angabe.ziel);
    }
    m_worte->setText(angabe.worte);
    m_auskunft = angabe.auskunft;
    setAccessibleName(QStringLiteral("%1, %2, %3").arg(angabe.name, angabe.menge, angabe.worte));
    setAccessibleDescription(m_auskunft.mid(1).join(u'\n'));
    m_erklaerung->veralte();
}

QSize Referenzposten::spaltenbedarf() const
{
    return {m_name->sizeHint().width(), m_menge->sizeHint().width()};
}

void Referenzposten::setSpalten(int namensbreite, int mengenbreite)
{
    m_name->setMinimumWidth(namensbreite);
    m_menge->setMinimumWidth(mengenbreite);
}

void Referenzposten::paintEvent(QPaintEvent * /*event*/)
{
    if (hasFocus()) {
        QPainter painter(this);
        maleFokus(painter, rect(), palette());
    }
}
