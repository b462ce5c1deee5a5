#include "Hinweisstreifen.h"

#include <QAccessible>
#include <QApplication>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QTimerEvent>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int aussenrand = 6;
constexpr int abstand = 8;

/// A notice that is being read stays for so much longer, in milliseconds.
constexpr int aufschub = 2000;

QString uebersetzt(const char *text)
{
    return QCoreApplication::translate("Mahlberg", text);
}

QLabel *zeichen(const Hinweis &hinweis, QWidget *eltern)
{
    auto *feld = new QLabel(eltern);
    const QStyle &stil = *eltern->style();
    const int groesse = stil.pixelMetric(QStyle::PM_SmallIconSize);
    const auto bild =
        hinweis.warnung ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
    feld->setPixmap(stil.standardIcon(bild).pixmap(groesse, groesse));
    feld->setAccessibleName(uebersetzt(hinweis.warnung ? QT_TRANSLATE_NOOP("Mahlberg", "Warnung")
                                                       : QT_TRANSLATE_NOOP("Mahlberg", "Hinweis")));
    return feld;
}

/// A word too long for any line may be broken after so many letters.
QString umbrechbar(QString text)
{
    constexpr int laengstes = 30;
    int seitLuecke = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        seitLuecke = text[i].isSpace() ? 0 : seitLuecke + 1;
        if (seitLuecke > laengstes && !text[i].isLowSurrogate()) {
            text.insert(i, QChar(0x200B)); // breaks without being seen
            seitLuecke = 0;
        }
    }
    return text;
}

QLabel *worte(const Hinweis &hinweis, QWidget *eltern)
{
    auto *feld = new QLabel(eltern);
    feld->setObjectName(QStringLiteral("hinweistext"));
    feld->setTextFormat(Qt::PlainText); // a file or a food may be called anything
    feld->setText(umbrechbar(hinweis.text));
    feld->setWordWrap(true);
    feld->setMinimumWidth(1); // a long word is cut before it makes the window wider
    feld->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return feld;
}

} // namespace

QString kurzerName(const QString &name)
{
    constexpr qsizetype laengster = 60;
    return name.size() <= laengster ? name : name.left(laengster - 1) + u'…';
}

QString aufzaehlung(const QStringList &namen, qsizetype hoechstens)
{
    const qsizetype weitere = namen.size() - hoechstens;
    const QString erste =
        namen.first(std::min(hoechstens, namen.size())).join(QStringLiteral(", "));
    return weitere <= 0 ? erste
                        : QCoreApplication::translate("Mahlberg", "%1 und %2 weitere")
                              .arg(erste, QString::number(weitere));
}

Hinweisstreifen::Hinweisstreifen(QWidget *parent)
    : QFrame(parent)
    , m_anordnung(new QVBoxLayout(this))
{
    setFrameShape(QFrame::StyledPanel);
    setBackgroundRole(QPalette::AlternateBase);
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    m_anordnung->setContentsMargins(aussenrand, aussenrand, aussenrand, aussenrand);
    m_anordnung->setSpacing(aussenrand);
    auto *taste = new QShortcut(QKeySequence(QStringLiteral("Shift+Escape")), this);
    connect(taste, &QShortcut::activated, this, &Hinweisstreifen::schliesse);
    hide();
}

void Hinweisstreifen::zeige(const Hinweis &hinweis)
{
    const auto alt = std::find_if(m_hinweise.begin(), m_hinweise.end(), [&](const Hinweis &einer) {
        return einer.kennung == hinweis.kennung;
    });
    const bool gleich = alt != m_hinweise.end() && alt->text == hinweis.text &&
                        alt->knopf == hinweis.knopf && alt->warnung == hinweis.warnung &&
                        alt->dauer == 0 && hinweis.dauer == 0;
    if (gleich) {
        alt->aktion = hinweis.aktion;
        return;
    }
    nimmZurueck(hinweis.kennung);
    m_hinweise.prepend(hinweis);
    ordne();
}

bool Hinweisstreifen::zeigt(const QString &kennung) const
{
    return std::any_of(m_hinweise.cbegin(), m_hinweise.cend(),
                       [&](const Hinweis &einer) { return einer.kennung == kennung; });
}

void Hinweisstreifen::nimmZurueck(const QString &kennung)
{
    const auto gemeint =
        std::find_if(m_hinweise.begin(), m_hinweise.end(),
                     [&](const Hinweis &einer) { return einer.kennung == kennung; });
    if (gemeint != m_hinweise.end()) {
        m_hinweise.erase(gemeint);
        ordne();
    }
}

int Hinweisstreifen::zweizeilig() const
{
    const QPushButton knopf(QStringLiteral("X"));
    const int worte = 2 * fontMetrics().lineSpacing();
    return std::max(worte, knopf.sizeHint().height()) + 2 * (aussenrand + frameWidth());
}

void Hinweisstreifen::vertritt(QWidget *anderes)
{
    m_anderes = anderes;
    zeigeOderVerbirg();
}

void Hinweisstreifen::zeigeOderVerbirg()
{
    const bool leer = m_hinweise.isEmpty();
    if (m_anderes == nullptr) {
        setVisible(!leer);
        return;
    }
    QWidget *geht = leer ? this : m_anderes;
    QWidget *kommt = leer ? m_anderes : this;
    geht->hide(); // first: with both in sight the rest of the window would shrink for a moment
    kommt->show();
}

void Hinweisstreifen::schliesse()
{
    if (!m_hinweise.isEmpty()) {
        const Hinweis neuester = m_hinweise.first();
        beende(neuester.kennung);
    }
}

/// Brings the rows in line with what is to be said: those that are settled go, new ones come.
void Hinweisstreifen::ordne()
{
    const qsizetype anzahl = std::min<qsizetype>(m_hinweise.size(), hoechstensZugleich);
    for (qsizetype i = m_zeilen.size() - 1; i >= 0; --i) {
        const auto bleibt =
            std::any_of(m_hinweise.cbegin(), m_hinweise.cbegin() + anzahl,
                        [&](const Hinweis &einer) { return einer.kennung == m_zeilen[i].kennung; });
        if (!bleibt) {
            entferneZeile(i);
        }
    }
    for (qsizetype i = 0; i < anzahl; ++i) {
        if (i >= m_zeilen.size() || m_zeilen[i].kennung != m_hinweise[i].kennung) {
            const Zeile zeile = neueZeile(m_hinweise[i]);
            m_zeilen.insert(i, zeile);
            m_anordnung->insertWidget(static_cast<int>(i), zeile.flaeche);
            zeile.flaeche->show(); // at once, so that the strip has its height when it appears
        }
    }
    zeigeOderVerbirg();
}

Hinweisstreifen::Zeile Hinweisstreifen::neueZeile(const Hinweis &hinweis)
{
    auto *flaeche = new QWidget(this);
    auto *anordnung = new QHBoxLayout(flaeche);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->setSpacing(abstand);
    QLabel *text = worte(hinweis, flaeche);
    anordnung->addWidget(zeichen(hinweis, flaeche), 0, Qt::AlignVCenter);
    anordnung->addWidget(text, 1);
    if (!hinweis.knopf.isEmpty()) {
        auto *knopf = new QPushButton(hinweis.knopf, flaeche);
        knopf->setObjectName(QStringLiteral("hinweisknopf"));
        knopf->setAutoDefault(false); // Return in a field of a dialog answers no notice
        connect(knopf, &QPushButton::clicked, this,
                [this, kennung = hinweis.kennung] { druecke(kennung); });
        anordnung->addWidget(knopf);
    }
    auto *kreuz = new QToolButton(flaeche);
    kreuz->setObjectName(QStringLiteral("hinweiskreuz"));
    kreuz->setAutoRaise(true);
    kreuz->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    kreuz->setFocusPolicy(Qt::TabFocus);
    kreuz->setToolTip(
        uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Schließen")) +
        QStringLiteral(" (%1)").arg(
            QKeySequence(QStringLiteral("Shift+Escape")).toString(QKeySequence::NativeText)));
    kreuz->setAccessibleName(uebersetzt(QT_TRANSLATE_NOOP("Mahlberg", "Hinweis schließen")));
    connect(kreuz, &QToolButton::clicked, this,
            [this, kennung = hinweis.kennung] { beende(kennung); });
    anordnung->addWidget(kreuz);
    QAccessibleEvent vorlesen(text, QAccessible::Alert);
    QAccessible::updateAccessibility(&vorlesen);
    return {hinweis.kennung, flaeche, hinweis.dauer > 0 ? startTimer(hinweis.dauer) : 0};
}

/// The row's own button may have caused this, so it is not deleted before the event is over.
void Hinweisstreifen::entferneZeile(qsizetype stelle)
{
    const Zeile zeile = m_zeilen.takeAt(stelle);
    if (zeile.uhr != 0) {
        killTimer(zeile.uhr);
    }
    m_anordnung->removeWidget(zeile.flaeche);
    zeile.flaeche->hide();
    zeile.flaeche->deleteLater();
}

void Hinweisstreifen::beende(const QString &kennung)
{
    nimmZurueck(kennung);
    Q_EMIT geschlossen(kennung);
}

void Hinweisstreifen::druecke(const QString &kennung)
{
    const auto gemeint =
        std::find_if(m_hinweise.cbegin(), m_hinweise.cend(),
                     [&](const Hinweis &einer) { return einer.kennung == kennung; });
    if (gemeint == m_hinweise.cend()) {
        return;
    }
    const std::function<void()> aktion = gemeint->aktion; // the notice is gone when it runs
    nimmZurueck(kennung);
    if (aktion) {
        aktion();
    }
}

/// The notice whose row holds this widget; null when none does.
QString Hinweisstreifen::kennungBei(const QWidget *kind) const
{
    for (const Zeile &zeile : m_zeilen) {
        if (kind != nullptr && zeile.flaeche->isAncestorOf(kind)) {
            return zeile.kennung;
        }
    }
    return {};
}

void Hinweisstreifen::keyPressEvent(QKeyEvent *event)
{
    const QString kennung = kennungBei(QApplication::focusWidget());
    if (event->key() == Qt::Key_Escape && !kennung.isNull()) {
        beende(kennung);
        return;
    }
    QFrame::keyPressEvent(event);
}

void Hinweisstreifen::timerEvent(QTimerEvent *event)
{
    for (Zeile &zeile : m_zeilen) {
        if (zeile.uhr != event->timerId()) {
            continue;
        }
        const bool gelesen =
            zeile.flaeche->underMouse() || kennungBei(QApplication::focusWidget()) == zeile.kennung;
        if (gelesen) {
            killTimer(zeile.uhr);
            zeile.uhr = startTimer(aufschub);
        } else {
            nimmZurueck(QString(zeile.kennung));
        }
        return;
    }
}
