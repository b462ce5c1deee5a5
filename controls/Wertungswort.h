#pragma once

#include <QLabel>

class Textfeld;

/// The word beside the sign of a rating, in the sign's colour, so that nobody has to tell green
/// from red: "geeignet" beside +, "neutral" beside 0, "ungeeignet" beside -. A rating that is
/// something else has no word, and its field gets the room. Hidden while the field is.
class Wertungswort : public QLabel
{
    Q_OBJECT

public:
    explicit Wertungswort(QWidget *parent = nullptr);

    /// The word of a sign in the user's language; empty for what is no rating's sign.
    static QString wortFuer(const QString &zeichen);

    /// Stands beside this field from now on, and says what its sign means. The field outlives it
    /// or goes with the same window.
    void folge(Textfeld &feld);

    /// Wide enough for each of the words, so that nothing moves from food to food.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void sage();
    void teilePlatzZu(bool mitWort);

    Textfeld *m_feld = nullptr;
};
