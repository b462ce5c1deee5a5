#pragma once

#include <QFrame>
#include <QList>
#include <QPointer>
#include <QString>

#include <functional>

class QVBoxLayout;

/// Something that the user should learn of and need not answer: what happened, and at most one
/// thing that can be done about it.
struct Hinweis
{
    QString kennung;    ///< what it is about; a later one of the same takes its place
    QString text;       ///< what happened; plain text, whatever signs stand in it
    QString knopf = {}; ///< what the action's button says; empty: there is no button
    std::function<void()> aktion = {}; ///< runs when the button is pressed, and the notice is gone
    bool warnung = false;              ///< work may be lost; carries the warning sign
    int dauer = 0;                     ///< goes by itself after so many milliseconds; 0: it stays
};

/// A name, or what somebody typed, as it may stand in a sentence: of a long one the beginning. One
/// word of hundreds of letters would be all that can be seen.
QString kurzerName(const QString &name);

/// Names one after the other, as they may stand in a sentence: of many the first ones, and how many
/// more there are.
QString aufzaehlung(const QStringList &namen, qsizetype hoechstens);

/// A strip at the lower edge of a window that tells what happened without asking for an answer:
/// nobody has to press anything, and nobody is kept from their work. Hidden while there is nothing
/// to say. A notice goes when it is settled, when its time is over (never while the mouse or the
/// keyboard is on it), when its action was chosen, or when the user closes it: with its cross, with
/// Shift+Escape anywhere in the window, or with Escape while the keyboard is in the strip.
class Hinweisstreifen : public QFrame
{
    Q_OBJECT

public:
    /// More notices than this would take the window over; older ones wait until there is room.
    static constexpr int hoechstensZugleich = 3;

    explicit Hinweisstreifen(QWidget *parent = nullptr);

    /// Shows a notice above those that are there, in place of the one of its `kennung`. One that
    /// says what already stands there changes nothing, so that it is not read out again.
    void zeige(const Hinweis &hinweis);

    /// Takes the notice of this `kennung` away, if there is one.
    void nimmZurueck(const QString &kennung);

    /// What is to be said, the newest first.
    const QList<Hinweis> &hinweise() const { return m_hinweise; }

    /// Whether there is a notice of this `kennung`.
    bool zeigt(const QString &kennung) const;

    /// From now on this strip and the other widget, which stands beside it in one layout, take
    /// turns: the other one is seen while there is nothing to say. Where their place is kept as
    /// high as both, nothing in the window moves when a notice comes or goes.
    void vertritt(QWidget *anderes);

    /// The height of a notice of two lines, as most are at most, in px.
    int zweizeilig() const;

    /// Closes the newest notice.
    void schliesse();

Q_SIGNALS:
    /// The user has closed this notice without its action.
    void geschlossen(const QString &kennung);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    struct Zeile
    {
        QString kennung;
        QWidget *flaeche = nullptr;
        int uhr = 0; ///< number of the timer that ends it; 0: none
    };

    void zeigeOderVerbirg();
    void ordne();
    Zeile neueZeile(const Hinweis &hinweis);
    void entferneZeile(qsizetype stelle);
    void beende(const QString &kennung);
    void druecke(const QString &kennung);
    QString kennungBei(const QWidget *kind) const;

    QPointer<QWidget> m_anderes; ///< seen while there is nothing to say
    QList<Hinweis> m_hinweise;
    QList<Zeile> m_zeilen;
    QVBoxLayout *m_anordnung;
};
