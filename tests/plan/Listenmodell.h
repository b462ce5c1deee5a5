#pragma once

#include <QString>

#include <map>
#include <stdexcept>
#include <tuple>
#include <vector>

/// The plan's lists as they are told to a colleague: two arrays and a store, and whoever reaches
/// beyond an array's end ends the whole operation (`std::out_of_range`), leaving all as it stands.
/// The tests compare the program with it.
struct Listenmodell
{
    std::vector<QString> namen;
    std::vector<float> mengen;
    std::map<QString, float> lager;
    std::map<QString, float> datei; ///< the store when it was last saved

    void streiche(std::size_t zeile)
    {
        std::ignore = namen.at(zeile);
        namen.erase(namen.begin() + static_cast<std::ptrdiff_t>(zeile));
        mengen.erase(mengen.begin() + static_cast<std::ptrdiff_t>(zeile));
    }
    void fuegeEin(const QString &name, std::size_t zeile)
    {
        if (zeile > namen.size()) {
            throw std::out_of_range("insert");
        }
        namen.insert(namen.begin() + static_cast<std::ptrdiff_t>(zeile), name);
        mengen.insert(mengen.begin() + static_cast<std::ptrdiff_t>(zeile), 100.0F);
    }
    void sichere(const QString &name, float gramm)
    {
        lager[name] = gramm;
        datei = lager;
    }

    void abwurf(const QString &name, std::size_t zeile)
    {
        fuegeEin(name, zeile);
        const std::size_t n = namen.size();
        for (std::size_t i = 0; i < n; ++i) {
            if (namen.at(i) == namen.at(zeile) && i != zeile) {
                streiche(i);
                lager.erase(namen.at(zeile));
            }
        }
        sichere(name, 100.0F);
    }
    void uebernahme(const QString &name)
    {
        const std::size_t n = namen.size();
        bool gefunden = false;
        for (std::size_t i = 0; i < n; ++i) {
            if (namen.at(i) == name && i != n) {
                streiche(i);
                lager.erase(name);
                fuegeEin(name, n - 1);
                gefunden = true;
            }
        }
        if (!gefunden) {
            fuegeEin(name, n);
        }
        sichere(name, 100.0F);
    }
    void aendere(std::size_t zeile, float gramm)
    {
        mengen.at(zeile) = gramm;
        sichere(namen.at(zeile), gramm);
    }
    void entferne(std::size_t zeile)
    {
        lager.erase(namen.at(zeile));
        datei = lager;
        streiche(zeile);
    }
};
