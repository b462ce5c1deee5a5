#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QStringList>

#include <functional>

/// A field over a cell of a table, below which stands what fits the text so far. The first of it is
/// taken with Return unless another one was chosen with the arrow keys; without a hand on the mouse
/// nothing else is needed.
class Vorschlagsfeld : public QLineEdit
{
    Q_OBJECT

public:
    /// One of the things to choose from.
    struct Vorschlag
    {
        QString anzeige;
        QString schluessel; ///< what it stands for
    };
    /// What fits a text, the best first.
    using Quelle = std::function<QList<Vorschlag>(const QString &text)>;

    /// The list lies over `fenster`, so that it can reach beyond the table.
    Vorschlagsfeld(QWidget *parent, QWidget *fenster, Quelle quelle);
    ~Vorschlagsfeld() override;

    /// Offers what there is before anything is typed.
    void biete();

    /// The one that Return takes: that which was chosen, or the first; an absent (null) key where
    /// nothing fits, or nothing was typed or offered.
    Vorschlag gewaehlter() const;
    /// The list below the field; for tests and assistive tools.
    const QListWidget *liste() const { return m_liste; }

Q_SIGNALS:
    /// Return was pressed, or something in the list was clicked.
    void uebernommen();
    /// Escape was pressed.
    void verworfen();
    /// Tab was pressed; `zurueck` with the shift key.
    void weitergegangen(bool zurueck);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void schlageVor();
    void bewege(int um);

    Quelle m_quelle;
    QPointer<QListWidget> m_liste;
    QList<Vorschlag> m_vorschlaege;
    bool m_getippt = false; ///< what stands here comes from the user
};
