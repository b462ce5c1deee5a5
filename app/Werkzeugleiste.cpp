#include "Werkzeugleiste.h"

#include "Einstellungen.h"
#include "Fokusstil.h"
#include "Zeichenkettentabelle.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDrag>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QToolButton>

#include <algorithm>

const QString Werkzeugleiste::space = QStringLiteral("space");
const QString Werkzeugleiste::flexibleSpace = QStringLiteral("flexibleSpace");
const QString Werkzeugleiste::ziehformat = QStringLiteral("application/x-mahlberg-toolbaritem");

namespace {

constexpr int bildgroesse = 28;
constexpr int raumbreite = 20;

bool istRaum(const QString &kennung)
{
    return kennung == Werkzeugleiste::space || kennung == Werkzeugleiste::flexibleSpace;
}

/// Room between the items. It is nothing to look at before the keyboard works on it.
class Raum : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        if (hasFocus()) {
            QPainter painter(this);
            maleFokus(painter, rect(), palette());
        }
    }
};

} // namespace

Werkzeugleiste::Werkzeugleiste(const QString &kennung, Werkzeugquelle &quelle,
                               Einstellungen &einstellungen, QWidget *parent)
    : QToolBar(parent)
    , m_kennung(kennung)
    , m_quelle(quelle)
    , m_einstellungen(einstellungen)
{
    setObjectName(kennung);
    setWindowTitle(localizedString(QStringLiteral("Symbolleiste")));
    setMovable(false);
    setFloatable(false);
    setIconSize({bildgroesse, bildgroesse});
    setToolButtonStyle(gemerkterStil());
    m_kennungen = gemerkteKennungen();
    aufbauen();
    setVisible(gemerkteSichtbarkeit());
    connect(this, &QToolBar::visibilityChanged, this, &Werkzeugleiste::merkeSichtbarkeit);
}

/// A bar from which all items were taken comes back empty, one of which nothing is known does not.
QStringList Werkzeugleiste::gemerkteKennungen() const
{
    const QString schluessel = m_kennung + QStringLiteral("/kennungen");
    const QStringList gemerkt = m_einstellungen.value(schluessel).toStringList();
    const QStringList bekannt = zulaessige(gemerkt);
    const bool geleert = gemerkt.isEmpty() && m_einstellungen.contains(schluessel);
    return bekannt.isEmpty() && !geleert ? m_quelle.toolbarDefaultItemIdentifiers() : bekannt;
}

Qt::ToolButtonStyle Werkzeugleiste::gemerkterStil() const
{
    bool lesbar = false;
    const int gemerkt = m_einstellungen.value(m_kennung + QStringLiteral("/stil")).toInt(&lesbar);
    for (const auto stil : {Qt::ToolButtonIconOnly, Qt::ToolButtonTextOnly}) {
        if (lesbar && gemerkt == stil) {
            return stil;
        }
    }
    return Qt::ToolButtonTextUnderIcon;
}

bool Werkzeugleiste::gemerkteSichtbarkeit() const
{
    return m_einstellungen.value(m_kennung + QStringLiteral("/sichtbar")).toString() !=
           QLatin1String("false");
}

QStringList Werkzeugleiste::zulaessige(const QStringList &kennungen) const
{
    const QStringList erlaubt = m_quelle.toolbarAllowedItemIdentifiers();
    QStringList ergebnis;
    for (const QString &kennung : kennungen) {
        if (erlaubt.contains(kennung) && (istRaum(kennung) || !ergebnis.contains(kennung))) {
            ergebnis << kennung;
        }
    }
    return ergebnis;
}

void Werkzeugleiste::setKennungen(const QStringList &kennungen)
{
    m_kennungen = zulaessige(kennungen);
    aufbauen();
    merken();
}

void Werkzeugleiste::einfuegen(const QString &kennung, int stelle)
{
    QStringList neu = m_kennungen;
    const qsizetype vorher = istRaum(kennung) ? -1 : neu.indexOf(kennung);
    qsizetype ziel = std::clamp<qsizetype>(stelle, 0, neu.size());
    if (vorher >= 0) {
        neu.removeAt(vorher);
        ziel -= vorher < ziel ? 1 : 0;
    }
    neu.insert(ziel, kennung);
    setKennungen(neu);
}

void Werkzeugleiste::entfernen(int stelle)
{
    if (stelle >= 0 && stelle < m_kennungen.size()) {
        QStringList neu = m_kennungen;
        neu.removeAt(stelle);
        setKennungen(neu);
    }
}

void Werkzeugleiste::standardHerstellen()
{
    setKennungen(m_quelle.toolbarDefaultItemIdentifiers());
}

void Werkzeugleiste::setDarstellung(Qt::ToolButtonStyle stil)
{
    setToolButtonStyle(stil);
    aufbauen();
    merken();
}

void Werkzeugleiste::beschrifteNeu()
{
    aufbauen();
}

void Werkzeugleiste::setAnpassbar(bool anpassbar)
{
    m_anpassbar = anpassbar;
    setAcceptDrops(anpassbar);
    for (int i = 0; i < m_felder.size(); ++i) {
        if (istRaum(m_kennungen[i])) {
            m_felder[i]->setFocusPolicy(anpassbar ? Qt::TabFocus : Qt::NoFocus);
        }
    }
    update();
}

QString Werkzeugleiste::raumname(const QString &kennung)
{
    return kennung == flexibleSpace ? localizedString(QStringLiteral("Flexibler Leerraum"))
                                    : localizedString(QStringLiteral("Leerraum"));
}

QWidget *Werkzeugleiste::werkzeugfeld(int stelle) const
{
    return m_felder.value(stelle);
}

void Werkzeugleiste::merken()
{
    m_einstellungen.setValue(m_kennung + QStringLiteral("/kennungen"), m_kennungen);
    m_einstellungen.setValue(m_kennung + QStringLiteral("/stil"),
                             static_cast<int>(toolButtonStyle()));
    m_einstellungen.sync();
}

/// A bar also comes into sight with its window; only what its user changes is kept.
void Werkzeugleiste::merkeSichtbarkeit(bool sichtbar)
{
    if (sichtbar != gemerkteSichtbarkeit()) {
        m_einstellungen.setValue(m_kennung + QStringLiteral("/sichtbar"), sichtbar);
        m_einstellungen.sync();
    }
}

void Werkzeugleiste::aufbauen()
{
    clear(); // removes the actions; the widgets go when no event stands on them any more
    for (QWidget *feld : std::as_const(m_felder)) {
        feld->deleteLater();
    }
    m_felder.clear();
    for (const QString &kennung : std::as_const(m_kennungen)) {
        QWidget *feld = feldFuer(kennung);
        feld->installEventFilter(this);
        m_felder << feld;
        addWidget(feld);
    }
}

QWidget *Werkzeugleiste::feldFuer(const QString &kennung)
{
    if (istRaum(kennung)) {
        auto *raum = new Raum(this);
        raum->setAccessibleName(raumname(kennung));
        raum->setFocusPolicy(m_anpassbar ? Qt::TabFocus : Qt::NoFocus);
        raum->setMinimumWidth(raumbreite);
        raum->setSizePolicy(kennung == flexibleSpace ? QSizePolicy::Expanding : QSizePolicy::Fixed,
                            QSizePolicy::Preferred);
        return raum;
    }
    const Werkzeug werkzeug = m_quelle.toolbarItem(kennung);
    auto *knopf = new QToolButton(this);
    knopf->setObjectName(kennung);
    knopf->setText(werkzeug.beschriftung);
    knopf->setIcon(werkzeug.bild);
    knopf->setIconSize(iconSize());
    knopf->setToolButtonStyle(toolButtonStyle());
    knopf->setAutoRaise(true);
    knopf->setFocusPolicy(Qt::TabFocus);
    knopf->setEnabled(static_cast<bool>(werkzeug.aktion));
    if (werkzeug.aktion) {
        connect(knopf, &QToolButton::clicked, this, [aktion = werkzeug.aktion] { aktion(); });
    }
    return knopf;
}

int Werkzeugleiste::stelleBei(const QPoint &ort) const
{
    int stelle = 0;
    for (QWidget *feld : m_felder) {
        if (ort.x() > feld->geometry().center().x()) {
            ++stelle;
        }
    }
    return stelle;
}

void Werkzeugleiste::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void Werkzeugleiste::dragMoveEvent(QDragMoveEvent *event)
{
    if (m_anpassbar && event->mimeData()->hasFormat(ziehformat)) {
        zeigeEinfuegestelle(stelleBei(event->position().toPoint()));
        event->acceptProposedAction();
    }
}

void Werkzeugleiste::dragLeaveEvent(QDragLeaveEvent *)
{
    zeigeEinfuegestelle(-1);
}

void Werkzeugleiste::zeigeEinfuegestelle(int stelle)
{
    m_einfuegestelle = stelle;
    update();
}

void Werkzeugleiste::dropEvent(QDropEvent *event)
{
    zeigeEinfuegestelle(-1);
    if (!m_anpassbar || !event->mimeData()->hasFormat(ziehformat)) {
        return;
    }
    event->acceptProposedAction();
    const QString kennung = QString::fromUtf8(event->mimeData()->data(ziehformat));
    int ziel = stelleBei(event->position().toPoint());
    if (m_gezogeneStelle >= 0) { // an item of this bar moves, a room too
        QStringList neu = m_kennungen;
        neu.removeAt(m_gezogeneStelle);
        ziel -= m_gezogeneStelle < ziel ? 1 : 0;
        neu.insert(ziel, kennung);
        setKennungen(neu);
    } else if (kennung.isEmpty()) { // the whole default set
        standardHerstellen();
    } else {
        einfuegen(kennung, ziel);
    }
}

void Werkzeugleiste::paintEvent(QPaintEvent *event)
{
    QToolBar::paintEvent(event);
    if (!m_anpassbar) {
        return;
    }
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1, Qt::DashLine));
    for (int i = 0; i < m_felder.size(); ++i) {
        if (istRaum(m_kennungen[i])) {
            painter.drawRect(m_felder[i]->geometry().adjusted(1, 4, -2, -5));
        }
    }
    if (m_einfuegestelle >= 0) {
        const bool amEnde = m_einfuegestelle >= m_felder.size();
        const int x = m_felder.isEmpty() ? 4
                      : amEnde           ? m_felder.last()->geometry().right() + 2
                                         : m_felder[m_einfuegestelle]->geometry().left() - 2;
        painter.fillRect(QRect(x - 1, 4, 3, height() - 8), palette().highlight());
    }
}

void Werkzeugleiste::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menue(this);
    const struct
    {
        const char *text;
        Qt::ToolButtonStyle stil;
    } stile[] = {
        {QT_TRANSLATE_NOOP("Mahlberg", "Symbol und Text"), Qt::ToolButtonTextUnderIcon},
        {QT_TRANSLATE_NOOP("Mahlberg", "Nur Symbol"), Qt::ToolButtonIconOnly},
        {QT_TRANSLATE_NOOP("Mahlberg", "Nur Text"), Qt::ToolButtonTextOnly},
    };
    for (const auto &zeile : stile) {
        QAction *eintrag = menue.addAction(localizedString(QString::fromUtf8(zeile.text)));
        eintrag->setCheckable(true);
        eintrag->setChecked(toolButtonStyle() == zeile.stil);
        connect(eintrag, &QAction::triggered, this,
                [this, stil = zeile.stil] { setDarstellung(stil); });
    }
    menue.addSeparator();
    const QPoint ort = event->pos();
    for (int i = 0; i < m_felder.size(); ++i) {
        if (m_felder[i]->geometry().contains(ort)) {
            menue.addAction(localizedString(QStringLiteral("Aus der Leiste entfernen")), this,
                            [this, i] { entfernen(i); });
        }
    }
    menue.addAction(localizedString(QStringLiteral("Leiste anpassen …")), this,
                    &Werkzeugleiste::anpassenGewuenscht);
    menue.exec(event->globalPos());
}

/// While customising, a press on an item begins a drag, and its action rests.
bool Werkzeugleiste::eventFilter(QObject *watched, QEvent *event)
{
    const qsizetype stelle = m_felder.indexOf(qobject_cast<QWidget *>(watched));
    if (!m_anpassbar || stelle < 0) {
        return QToolBar::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_druckort = static_cast<QMouseEvent *>(event)->globalPosition().toPoint();
        return true;
    case QEvent::MouseMove: {
        const auto *maus = static_cast<QMouseEvent *>(event);
        const QPoint weg = maus->globalPosition().toPoint() - m_druckort;
        if ((maus->buttons() & Qt::LeftButton) != 0 &&
            weg.manhattanLength() >= QApplication::startDragDistance()) {
            zieheHeraus(static_cast<int>(stelle));
        }
        return true;
    }
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return true;
    case QEvent::KeyPress: {
        if (nimmTaste(*static_cast<QKeyEvent *>(event), static_cast<int>(stelle))) {
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QToolBar::eventFilter(watched, event);
}

/// While customising, an item's own action rests for the keyboard too.
bool Werkzeugleiste::nimmTaste(const QKeyEvent &taste, int stelle)
{
    const bool versetzt = taste.modifiers().testFlag(Qt::AltModifier);
    switch (taste.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const int um = taste.key() == Qt::Key_Left ? -1 : 1;
        if (versetzt) {
            verschieben(stelle, um);
        } else {
            nimmTastatur(std::max(0, stelle + um));
        }
        return true;
    }
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        entfernen(stelle);
        nimmTastatur(stelle);
        return true;
    default:
        return taste.key() == Qt::Key_Space || taste.key() == Qt::Key_Return ||
               taste.key() == Qt::Key_Enter;
    }
}

void Werkzeugleiste::verschieben(int stelle, int um)
{
    const int ziel = stelle + um;
    if (ziel >= 0 && ziel < m_kennungen.size()) {
        QStringList neu = m_kennungen;
        neu.move(stelle, ziel);
        setKennungen(neu);
        nimmTastatur(ziel);
    }
}

void Werkzeugleiste::nimmTastatur(int stelle)
{
    if (!m_felder.isEmpty()) {
        m_felder[std::min<qsizetype>(stelle, m_felder.size() - 1)]->setFocus(Qt::TabFocusReason);
    }
}

/// An item that is dropped beside the bar leaves it.
void Werkzeugleiste::zieheHeraus(int stelle)
{
    auto *daten = new QMimeData;
    daten->setData(ziehformat, m_kennungen[stelle].toUtf8());
    auto *zug = new QDrag(this);
    zug->setMimeData(daten);
    zug->setPixmap(m_felder[stelle]->grab());
    m_gezogeneStelle = stelle;
    const Qt::DropAction ergebnis = zug->exec(Qt::MoveAction);
    const int gezogen = std::exchange(m_gezogeneStelle, -1);
    if (ergebnis == Qt::IgnoreAction) {
        entfernen(gezogen);
    }
}
