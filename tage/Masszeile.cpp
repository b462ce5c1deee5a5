#include "Masszeile.h"

#include "Zahlenzeile.h"
#include "Zeichenkettentabelle.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace {

/// How the columns are headed, in their order.
constexpr std::array<const char *, Masszeile::AnzahlFelder> koepfe = {
    QT_TRANSLATE_NOOP("Mahlberg", "Eines"), QT_TRANSLATE_NOOP("Mahlberg", "Mehrere"),
    QT_TRANSLATE_NOOP("Mahlberg", "Englisch, eines"),
    QT_TRANSLATE_NOOP("Mahlberg", "Englisch, mehrere"),
    QT_TRANSLATE_NOOP("Mahlberg", "Gramm von einem")};

/// What is typed there; the fields that may stay empty have none.
constexpr std::array<const char *, Masszeile::AnzahlFelder> beispiele = {
    QT_TRANSLATE_NOOP("Mahlberg", "z. B. Glas"), "", "", "", ""};

} // namespace

QString massspalte(Masszeile::Spalte spalte)
{
    return localizedString(QString::fromUtf8(koepfe.at(spalte)));
}

Masszeile::Masszeile(QGridLayout &anordnung, int reihe, int nummer, QWidget &seite)
    : QObject(&seite)
    , m_felder()
    , m_heraus(new QToolButton(&seite))
    , m_worte(new QLabel(&seite))
{
    for (int spalte = Eines; spalte < AnzahlFelder; ++spalte) {
        QLineEdit *feld = neuesFeld(spalte, nummer, seite);
        m_felder.at(static_cast<std::size_t>(spalte)) = feld;
        anordnung.addWidget(feld, reihe, spalte);
    }
    m_heraus->setText(localizedString(QStringLiteral("Herausnehmen")));
    m_heraus->setAccessibleName(localizedString(QStringLiteral("Maß %1 herausnehmen")).arg(nummer));
    m_heraus->setFocusPolicy(Qt::StrongFocus);
    connect(m_heraus, &QToolButton::clicked, this, &Masszeile::herausnehmenGewuenscht);
    anordnung.addWidget(m_heraus, reihe, AnzahlFelder);
    m_worte->setTextFormat(Qt::PlainText);
    m_worte->setWordWrap(true);
    anordnung.addWidget(m_worte, reihe + 1, Eines, 1, AnzahlFelder + 1);
    for (QWidget *feld : felder()) {
        feld->show(); // at once: one may be typing in the row above
    }
}

void Masszeile::entferne()
{
    QList<QWidget *> teile = felder();
    teile << m_worte;
    for (QWidget *teil : std::as_const(teile)) {
        teil->hide();
        teil->deleteLater();
    }
    deleteLater();
}

QLineEdit *Masszeile::neuesFeld(int spalte, int nummer, QWidget &seite)
{
    QLineEdit *feld = spalte == Gramm ? new Zahlenzeile(&seite) : new QLineEdit(&seite);
    const char *beispiel = beispiele.at(static_cast<std::size_t>(spalte));
    feld->setPlaceholderText(localizedString(QString::fromUtf8(beispiel)));
    feld->setAccessibleName(
        localizedString(QStringLiteral("Maß %1: %2"))
            .arg(QString::number(nummer), massspalte(static_cast<Spalte>(spalte))));
    feld->setAlignment(spalte == Gramm ? Qt::AlignRight : Qt::AlignLeft);
    feld->installEventFilter(this);
    connect(feld, &QLineEdit::textEdited, this, &Masszeile::getippt);
    connect(feld, &QLineEdit::editingFinished, this, &Masszeile::eingegeben);
    return feld;
}

void Masszeile::zeige(const Mass &mass)
{
    const Masseingabe texte = alsEingabe(mass);
    m_felder[Eines]->setText(texte.eines);
    m_felder[Viele]->setText(texte.viele);
    m_felder[EinesEn]->setText(texte.einesEn);
    m_felder[VieleEn]->setText(texte.vieleEn);
    m_felder[Gramm]->setText(texte.gramm);
    gehalten = mass;
}

Masseingabe Masszeile::eingabe() const
{
    return {m_felder[Eines]->text(), m_felder[Viele]->text(), m_felder[EinesEn]->text(),
            m_felder[VieleEn]->text(), m_felder[Gramm]->text()};
}

void Masszeile::sage(const QString &worte, bool gilt)
{
    m_worte->setText(gilt || worte.isEmpty() ? worte : QStringLiteral("⚠ ") + worte);
    for (QLineEdit *feld : m_felder) {
        feld->setAccessibleDescription(worte);
    }
}

QList<QWidget *> Masszeile::felder() const
{
    QList<QWidget *> alle(m_felder.begin(), m_felder.end());
    alle << m_heraus;
    return alle;
}

void Masszeile::gehZu()
{
    m_felder[Eines]->setFocus(Qt::TabFocusReason);
}

void Masszeile::erlaube(bool aendern)
{
    for (QLineEdit *feld : m_felder) {
        feld->setReadOnly(!aendern);
    }
    m_heraus->setEnabled(aendern);
}

/// Return must not reach the dialog, whose button it would press.
bool Masszeile::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    const int taste = static_cast<QKeyEvent *>(event)->key();
    if (taste != Qt::Key_Return && taste != Qt::Key_Enter) {
        return QObject::eventFilter(watched, event);
    }
    const auto feld = std::find(m_felder.begin(), m_felder.end(), watched);
    if (feld == m_felder.end() || feld + 1 == m_felder.end()) {
        Q_EMIT fertig();
    } else {
        (*(feld + 1))->setFocus(Qt::TabFocusReason);
    }
    return true;
}
