#pragma once

#include <QObject>
#include <QString>

#include <memory>

class Handbuch;
class QWidget;

/// The page of the handbook that fits what the user does in this window: where the keyboard is, or
/// else which view is in front.
QString handbuchseite(const QWidget &fenster);

/// Opens the handbook at the page that fits, from the menus and with F1 in all windows. A field may
/// keep the key for what it has to say itself.
class Hilfe : public QObject
{
    Q_OBJECT

public:
    Hilfe();
    ~Hilfe() override;

    /// Shows the page that fits this window.
    void zeige(const QWidget &fenster);

    /// The language was changed, and the handbook may be open.
    void folgeSprache();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::unique_ptr<Handbuch> m_handbuch; ///< null until it is first wanted
};
