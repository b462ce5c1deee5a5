#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QWidget;

/// Says why a control can't be used, while it can't: in its tooltip and to screen readers. When it
/// can be used again, both say what they said before.
class Sperrgrund : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the control.
    Sperrgrund(QWidget *feld, const QString &grund);

    /// Writes what is kept here in another language; what the control says now is not touched.
    void beschrifteNeu(const std::function<QString(const QString &)> &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void folge();

    QWidget *m_feld;
    QString m_grund;
    QString m_fahne;        ///< the tooltip while the control can be used
    QString m_beschreibung; ///< its description then
    bool m_gesperrt = false;
};
