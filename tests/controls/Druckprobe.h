#pragma once

#include "Drucktuer.h"

#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QList>
#include <QPageLayout>
#include <QRectF>
#include <QString>
#include <QTemporaryDir>

/// A word as it is read back from a PDF.
struct Druckwort
{
    QString text;
    int seite = 0;         ///< from 1
    double x = 0;          ///< where its first letter begins, in points from the left
    double rechts = 0;     ///< where its last letter ends
    double grundlinie = 0; ///< the line that it stands on, in points from the top
    double groesse = 0;    ///< of the font, in points
};

/// A print to a PDF that is read back with other programs than the one that wrote it.
class Druckprobe
{
public:
    /// Prints on such a paper. Nobody is asked.
    explicit Druckprobe(const QPageLayout &seite);

    /// A4 or any other paper, without margins unless some are given in points.
    static QPageLayout papier(QPageSize::PageSizeId groesse, QPageLayout::Orientation lage,
                              const QMarginsF &raender = {});

    /// The door that prints here. It keeps the job's names and window.
    Drucktuer tuer();
    void drucke(const Druckauftrag &auftrag);

    QString titel;
    QString name; ///< of the file that is proposed, without an ending
    QWidget *fenster = nullptr;
    int auftraege = 0;

    QString pdf() const { return m_ordner.filePath(QStringLiteral("druck.pdf")); }

    /// All words of all pages, in the order in which they stand in the file.
    QList<Druckwort> worte() const;
    /// The words of a page that stand on one line, from left to right, joined by single blanks.
    QStringList zeilen(int seite) const;
    /// Like pdfinfo's output: the number behind "Pages:".
    int seiten() const;
    /// The size that the file gives its pages, in points.
    QSizeF seitengroesse() const;
    /// A page as a picture, with this many pixels to a point.
    QImage bild(int seite, int pixelJePunkt = 2) const;
    /// The names of the fonts that the file brings along.
    QStringList schriften() const;
    /// How many pictures made of pixels the file holds.
    int bilder() const;

private:
    /// What the other programs told of the file as it stands.
    struct Gelesenes
    {
        QDateTime geschrieben;                    ///< invalid: there is none
        QHash<QStringList, QByteArray> antworten; ///< from program and arguments
        std::optional<QList<Druckwort>> worte;
    };

    Gelesenes &gelesenes() const;
    QByteArray befrage(const QString &programm, const QStringList &argumente) const;

    QPageLayout m_seite;
    QTemporaryDir m_ordner;
    mutable Gelesenes m_gelesenes;
};

/// The first word of this text, on whatever page; an empty one with page 0 when there is none.
Druckwort finde(const QList<Druckwort> &worte, const QString &text);

/// Pages that say which they are: "Seite 1" with its line 100 points from the left and from the
/// top.
Druckauftrag beziffert(int seiten);

/// Words that can be told from one another: "wort0001 wort0002" and so on.
QString probeworte(int anzahl);
