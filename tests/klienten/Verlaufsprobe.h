#pragma once

#include "Bildleser.h"
#include "Verlaufsdaten.h"
#include "Verlaufsmaler.h"

#include <QFont>
#include <QPainter>
#include <QPalette>

// Courses as tests want them, and pictures of them.

inline const QDate heute(2026, 11, 22);
constexpr QSize klein(320, 180);
constexpr QSize gross(900, 400);

inline QPalette palette(bool dunkel)
{
    QPalette farben;
    farben.setColor(QPalette::Window, dunkel ? QColor(0x1b, 0x1d, 0x1f) : QColor(Qt::white));
    farben.setColor(QPalette::WindowText, dunkel ? QColor(0xec, 0xec, 0xec) : QColor(Qt::black));
    return farben;
}

inline QFont schrift(double groesse)
{
    QFont eine;
    eine.setPointSizeF(groesse);
    return eine;
}

constexpr double gewohnt = 9;

inline Besuch am(const QDate &tag, std::optional<double> gewicht,
                 std::optional<double> groesse = {}, std::optional<double> taille = {})
{
    Besuch besuch;
    besuch.datum = tag;
    besuch.gewicht = gewicht;
    besuch.groesse = groesse;
    besuch.taille = taille;
    return besuch;
}

inline Person mann()
{
    Person person;
    person.geschlecht = Personengeschlecht::Mann;
    return person;
}

/// Weights over so many days, without a band.
inline Verlaufsdaten gewichte(const QList<Messpunkt> &punkte)
{
    Verlaufsdaten daten;
    daten.punkte = punkte;
    return daten;
}

/// A waist that gets smaller by and by; the band goes up to 94 cm.
inline Verlaufsdaten taillen(const QList<double> &werte)
{
    QList<Besuch> besuche;
    for (qsizetype i = 0; i < werte.size(); ++i) {
        besuche << am(heute.addMonths(static_cast<int>(i - werte.size())), {}, {}, werte[i]);
    }
    return verlaufsdaten(mann(), besuche, Messgroesse::Taille, heute);
}

/// Weights over many years, with a band for 1.72 m.
inline Verlaufsdaten langerVerlauf(int anzahl, int tage)
{
    QList<Besuch> besuche;
    for (int i = 0; i < anzahl; ++i) {
        besuche << am(heute.addDays(-1 - qint64{tage} * i / anzahl), 75 + (i * 7) % 11, 1.72);
    }
    return verlaufsdaten(mann(), besuche, Messgroesse::Gewicht, heute);
}

inline QImage bildVon(const Verlaufsdaten &daten, QSize groesse,
                      const QPalette &farben = palette(false), double punkte = gewohnt,
                      int verhaeltnis = 1)
{
    QImage bild(groesse * verhaeltnis, QImage::Format_RGB32);
    bild.setDevicePixelRatio(verhaeltnis);
    bild.fill(farben.color(QPalette::Window));
    QPainter maler(&bild);
    maler.setFont(schrift(punkte));
    maleVerlauf(maler, QRectF(QPointF(), groesse), daten, farben);
    return bild;
}

inline QList<Textstelle> texteVon(const Verlaufsdaten &daten, QSize groesse,
                                  double punkte = gewohnt, int aufloesung = 96)
{
    Spionblatt blatt(groesse, aufloesung);
    QPainter maler(&blatt);
    maler.setFont(schrift(punkte));
    maleVerlauf(maler, QRectF(QPointF(), groesse), daten, palette(false));
    maler.end();
    return blatt.texte();
}

inline QStringList worteVon(const Verlaufsdaten &daten, QSize groesse, double punkte = gewohnt)
{
    QStringList worte;
    for (const Textstelle &stelle : texteVon(daten, groesse, punkte)) {
        worte << stelle.text;
    }
    return worte;
}
