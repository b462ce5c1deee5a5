#pragma once

#include <QAccessible>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

class QKeyEvent;
class QLabel;
class QWidget;

/// Explains what a field shows: to the mouse that rests on it, to the keyboard whose focus rests on
/// it, and to a screen reader as the field's description. F1 explains at once, also where a menu
/// has a use for that key; Escape takes the text away. The text is only made when somebody is there
/// to read it.
class Feldauskunft : public QObject, private QAccessible::ActivationObserver
{
    Q_OBJECT

public:
    /// Gives the lines, the first one a heading; no lines where there is nothing to explain.
    using Frage = std::function<QStringList()>;

    /// Belongs to the field.
    Feldauskunft(QWidget *feld, Frage frage);
    ~Feldauskunft() override;

    /// The field has come to show something else. An action may say so a thousand times in a row.
    void veralte();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void accessibilityActiveChanged(bool active) override;
    bool feldereignis(QEvent *event);
    bool beansprucht(QKeyEvent *event) const;
    bool taste(int taste);
    void stoerung(const QObject *watched, const QEvent *event);
    bool anMaus() const;
    void zeigeAnMaus(const QPoint &ort);
    bool zeigeAmFeld();
    QPoint platz() const;
    void verstecke();
    void beschreibe();

    QWidget *m_feld;
    Frage m_frage;
    QLabel *m_fahne;  ///< what the keyboard gets to see, a window of its own
    QTimer m_ruhe;    ///< runs until the focus has rested on the field
    QString m_anMaus; ///< the text that the mouse was shown last
    bool m_vorgelesen = QAccessible::isActive(); ///< a screen reader is at work
    bool m_veraltet = false; ///< the field's description is older than what it shows
};
