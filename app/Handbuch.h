#pragma once

#include <QList>
#include <QStringList>
#include <QWidget>

#include <functional>

class Handbuchblatt;
class QAction;
class QKeySequence;
class QLabel;
class QLineEdit;
class QListWidget;
class QUrl;
class QWindow;

/// The handbook in a window of its own: its pages, with their titles on the left. It speaks the
/// language of the other windows, and can be read beside them, also beside a dialog that waits for
/// its answer.
class Handbuch : public QWidget
{
    Q_OBJECT

public:
    Handbuch();

    /// The page that the others are reached from.
    static const QString ersteSeite;

    /// The names of all pages, such as "plan", the first page first, the others as it lists them.
    static QStringList seiten();

    /// Shows the page of this name, in front of other windows.
    void oeffne(const QString &seite);

    /// The name of the page on display.
    QString seite() const { return m_seite; }

    /// The language was changed: the page on display is the same one in the other language.
    void folgeSprache();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QWidget *oberteil();
    QWidget *mittelteil();
    QAction *befehl(const QList<QKeySequence> &tasten, const std::function<void()> &aktion);
    void beschrifte();
    void zeige(const QString &seite);
    void folgeVerweis(const QUrl &verweis);
    void folgeSeite(const QUrl &adresse);
    void suche();
    void haengeAn(QWindow *dialog);

    QString m_seite;
    Handbuchblatt *m_blatt = nullptr;
    QListWidget *m_inhalt = nullptr;
    QLineEdit *m_suchfeld = nullptr;
    QLabel *m_vergeblich = nullptr; ///< says that the page does not hold what is looked for
    QAction *m_zurueck = nullptr;
    QAction *m_vor = nullptr;
};
