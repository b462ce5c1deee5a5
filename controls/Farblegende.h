#pragma once

#include <QColor>
#include <QList>
#include <QWidget>

/// A line of coloured squares, each with the word for what its colour means.
class Farblegende : public QWidget
{
    Q_OBJECT

public:
    struct Eintrag
    {
        QColor farbe;
        QString text;
    };

    explicit Farblegende(QWidget *parent = nullptr);

    void setEintraege(const QList<Eintrag> &eintraege);
    const QList<Eintrag> &eintraege() const { return m_eintraege; }
    /// For those who can't see the colours: which of them stands for what.
    QString beschreibung() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString worte() const;
    int breite(const Eintrag &eintrag) const;

    QList<Eintrag> m_eintraege;
};
