#pragma once

#include <QLineEdit>

/// A line in which a number is typed. Clicked into it takes the whole number: with the cursor
/// somewhere within "8,2", the next digits would make 94,2 of it. A further click sets the cursor,
/// a double click takes the whole number again, comma included.
class Zahlenzeile : public QLineEdit
{
    Q_OBJECT

public:
    explicit Zahlenzeile(QWidget *parent = nullptr) : QLineEdit(parent) {}

protected:
    /// False while the line is for other texts, or only shows its number: then it is an ordinary
    /// one.
    virtual bool nimmtZahl() const { return true; }

    /// Selects the number, without the unit that a number box carries behind it.
    void markiereZahl();

    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    bool m_betreten = false; ///< the next click is the one that takes the whole number
    bool m_gehalten = false; ///< the mouse button that took it is still down
};

/// What the user is told about typing numbers, where he rests the mouse on a field for them.
QString zahlenhinweis();
