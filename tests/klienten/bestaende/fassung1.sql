CREATE TABLE bestand (fassung INTEGER NOT NULL);
INSERT INTO bestand (fassung) VALUES (1);
CREATE TABLE person (kennung TEXT NOT NULL PRIMARY KEY, fassung INTEGER NOT NULL, name TEXT NOT NULL, nummer TEXT NOT NULL, geburt TEXT, geschlecht INTEGER NOT NULL, umstand INTEGER NOT NULL, uebergewicht INTEGER NOT NULL, diabetes INTEGER NOT NULL, gicht INTEGER NOT NULL, hkk INTEGER NOT NULL, notizen TEXT NOT NULL, archiviert INTEGER NOT NULL);
CREATE TABLE besuch (kennung TEXT NOT NULL PRIMARY KEY, fassung INTEGER NOT NULL, person TEXT NOT NULL REFERENCES person (kennung) ON DELETE CASCADE, datum TEXT NOT NULL, gewicht DOUBLE PRECISION, groesse DOUBLE PRECISION, taille DOUBLE PRECISION, huefte DOUBLE PRECISION, aktivitaet INTEGER, reduktion INTEGER, sport TEXT, sportdauer DOUBLE PRECISION, notiz TEXT NOT NULL);
CREATE INDEX besuch_person ON besuch (person);
INSERT INTO person VALUES ('5b7f2f7e-0d0c-4a55-9a3c-3f2f1f6c0a01', 4, 'Anna Größ', '17', '1984-03-01', 2, 1, 0, 1, 0, 0, 'Allergie: Nüsse', 0);
INSERT INTO person VALUES ('5b7f2f7e-0d0c-4a55-9a3c-3f2f1f6c0a02', 1, 'Bodo', '', NULL, 1, 0, 0, 0, 1, 1, '', 1);
INSERT INTO besuch VALUES ('0c6a8e57-93f5-4a53-8d1f-9f4a6f1d0b01', 2, '5b7f2f7e-0d0c-4a55-9a3c-3f2f1f6c0a01', '2025-11-03', 72.4, 1.68, 81.0, 99.5, 1, 0, 'Joggen', 0.5, 'erstes Gespräch');
