#pragma once

#include <QIcon>
#include <QStringList>
#include <QToolBar>

#include <functional>

class Einstellungen;

/// One thing that can stand in the toolbar. Without a label, picture and action it is an item that
/// nobody knows, and does not come into the bar.
struct Werkzeug
{
    QString kennung;
    QString beschriftung;         ///< what stands under the picture in the bar
    QString palettenbeschriftung; ///< what stands under it while the bar is customised
    QIcon bild;
    std::function<void()> aktion; ///< empty: the item is there, and does nothing
};

/// Who owns a toolbar: names its items and makes them on request.
class Werkzeugquelle
{
public:
    virtual ~Werkzeugquelle() = default;
    virtual QStringList toolbarAllowedItemIdentifiers() const = 0;
    virtual QStringList toolbarDefaultItemIdentifiers() const = 0;
    virtual Werkzeug toolbarItem(const QString &kennung) = 0;

protected:
    Werkzeugquelle() = default;
    Werkzeugquelle(const Werkzeugquelle &) = default;
    Werkzeugquelle &operator=(const Werkzeugquelle &) = default;
};

/// A toolbar that its user can arrange by drag and drop. The list of identifiers is its truth: the
/// bar is built from it, and every change is kept in the settings at once. A bar that was put away
/// stays away until its user wants it back.
class Werkzeugleiste : public QToolBar
{
    Q_OBJECT

public:
    /// The identifiers of the two items that are only room.
    static const QString space;
    static const QString flexibleSpace;
    /// What a dragged item carries: its identifier.
    static const QString ziehformat;

    Werkzeugleiste(const QString &kennung, Werkzeugquelle &quelle, Einstellungen &einstellungen,
                   QWidget *parent = nullptr);

    const QStringList &kennungen() const { return m_kennungen; }

    /// Arranges the bar anew and keeps that. Identifiers that are not allowed are left out, and of
    /// those that can stand only once the first stays.
    void setKennungen(const QStringList &kennungen);

    /// Puts an item in front of the one at this place. An item that stands elsewhere in the bar
    /// and can stand only once moves.
    void einfuegen(const QString &kennung, int stelle);
    void entfernen(int stelle);
    void standardHerstellen();

    /// Makes its items anew, since their labels have changed.
    void beschrifteNeu();

    /// Picture and text, picture only, or text only; kept like the arrangement.
    void setDarstellung(Qt::ToolButtonStyle stil);

    /// While the bar is being customised its items are dragged instead of pressed. By the keyboard
    /// they are walked through with the arrow keys, moved with Alt and an arrow, and taken out with
    /// Delete; room is reached too then.
    void setAnpassbar(bool anpassbar);
    bool istAnpassbar() const { return m_anpassbar; }

    Werkzeugquelle &quelle() const { return m_quelle; }

    /// What a kind of room is called; it has no label in the bar.
    static QString raumname(const QString &kennung);

    /// Gives the keyboard to the item at this place, or to the last one; to none in an empty bar.
    void nimmTastatur(int stelle);

    /// The widget of the item at this place.
    QWidget *werkzeugfeld(int stelle) const;

    /// The place in the bar at which an item dropped here would stand.
    int stelleBei(const QPoint &ort) const;

Q_SIGNALS:
    void anpassenGewuenscht();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QStringList gemerkteKennungen() const;
    Qt::ToolButtonStyle gemerkterStil() const;
    bool gemerkteSichtbarkeit() const;
    QStringList zulaessige(const QStringList &kennungen) const;
    void aufbauen();
    QWidget *feldFuer(const QString &kennung);
    void merken();
    void merkeSichtbarkeit(bool sichtbar);
    void zeigeEinfuegestelle(int stelle);
    void zieheHeraus(int stelle);
    bool nimmTaste(const QKeyEvent &taste, int stelle);
    void verschieben(int stelle, int um);

    QString m_kennung;
    Werkzeugquelle &m_quelle;
    Einstellungen &m_einstellungen;
    QStringList m_kennungen;
    QList<QWidget *> m_felder;
    bool m_anpassbar = false;
    QPoint m_druckort;
    int m_einfuegestelle = -1; ///< where a dragged item would stand; −1 while none is over the bar
    int m_gezogeneStelle = -1; ///< the item that is being dragged out of this bar
};
