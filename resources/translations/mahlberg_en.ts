<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB" sourcelanguage="de_DE">
<context>
 <name>EingabefensterGestalt</name>
 <message>
  <source>&amp;Name</source>
  <translation>&amp;Name</translation>
 </message>
 <message>
  <source>Alle Werte je 100 g des Lebensmittels</source>
  <translation>All values per 100 g of the food</translation>
 </message>
 <message>
  <source>Aus Lebensmittel übernehmen</source>
  <translation>Copy from food</translation>
 </message>
 <message>
  <source>Ballaststoffe</source>
  <translation>Fibre</translation>
 </message>
 <message>
  <source>Ballaststoffe, g</source>
  <translation>Fibre, g</translation>
 </message>
 <message>
  <source>Calcium</source>
  <translation>Calcium</translation>
 </message>
 <message>
  <source>Calcium, mg</source>
  <translation>Calcium, mg</translation>
 </message>
 <message>
  <source>Cholesterin</source>
  <translation>Cholesterol</translation>
 </message>
 <message>
  <source>Cholesterin, mg</source>
  <translation>Cholesterol, mg</translation>
 </message>
 <message>
  <source>Diabetes</source>
  <translation>Diabetes</translation>
 </message>
 <message>
  <source>Eisen</source>
  <translation>Iron</translation>
 </message>
 <message>
  <source>Eisen, mg</source>
  <translation>Iron, mg</translation>
 </message>
 <message>
  <source>Energie</source>
  <translation>Energy</translation>
 </message>
 <message>
  <source>Energie, kcal</source>
  <translation>Energy, kcal</translation>
 </message>
 <message>
  <source>Energie, kJ</source>
  <translation>Energy, kJ</translation>
 </message>
 <message>
  <source>Felder leeren</source>
  <translation>Clear fields</translation>
 </message>
 <message>
  <source>Fett</source>
  <translation>Fat</translation>
 </message>
 <message>
  <source>Fett, g</source>
  <translation>Fat, g</translation>
 </message>
 <message>
  <source>Geeignet bei (+ geeignet, 0 neutral, - ungeeignet)</source>
  <translation>Suitable for (+ suitable, 0 neutral, - unsuitable)</translation>
 </message>
 <message>
  <source>Gicht</source>
  <translation>Gout</translation>
 </message>
 <message>
  <source>Herz und Kreislauf</source>
  <translation>Heart and circulation</translation>
 </message>
 <message>
  <source>Kalium</source>
  <translation>Potassium</translation>
 </message>
 <message>
  <source>Kalium, mg</source>
  <translation>Potassium, mg</translation>
 </message>
 <message>
  <source>Kohlenhydrate</source>
  <translation>Carbohydrate</translation>
 </message>
 <message>
  <source>Kohlenhydrate, g</source>
  <translation>Carbohydrate, g</translation>
 </message>
 <message>
  <source>Magnesium</source>
  <translation>Magnesium</translation>
 </message>
 <message>
  <source>Magnesium, mg</source>
  <translation>Magnesium, mg</translation>
 </message>
 <message>
  <source>Natrium</source>
  <translation>Sodium</translation>
 </message>
 <message>
  <source>Natrium, mg</source>
  <translation>Sodium, mg</translation>
 </message>
 <message>
  <source>Neues Lebensmittel</source>
  <translation>New food</translation>
 </message>
 <message>
  <source>oder als Salz</source>
  <translation>or as salt</translation>
 </message>
 <message>
  <source>oder in kJ</source>
  <translation>or in kJ</translation>
 </message>
 <message>
  <source>Phosphat</source>
  <translation>Phosphate</translation>
 </message>
 <message>
  <source>Phosphat, mg</source>
  <translation>Phosphate, mg</translation>
 </message>
 <message>
  <source>Protein</source>
  <translation>Protein</translation>
 </message>
 <message>
  <source>Protein, g</source>
  <translation>Protein, g</translation>
 </message>
 <message>
  <source>Salz, g</source>
  <translation>Salt, g</translation>
 </message>
 <message>
  <source>Schließen</source>
  <translation>Close</translation>
 </message>
 <message>
  <source>Vitamin A</source>
  <translation>Vitamin A</translation>
 </message>
 <message>
  <source>Vitamin A, µg</source>
  <translation>Vitamin A, µg</translation>
 </message>
 <message>
  <source>Vitamin B1</source>
  <translation>Vitamin B1</translation>
 </message>
 <message>
  <source>Vitamin B1, mg</source>
  <translation>Vitamin B1, mg</translation>
 </message>
 <message>
  <source>Vitamin B2</source>
  <translation>Vitamin B2</translation>
 </message>
 <message>
  <source>Vitamin B2, mg</source>
  <translation>Vitamin B2, mg</translation>
 </message>
 <message>
  <source>Vitamin B6</source>
  <translation>Vitamin B6</translation>
 </message>
 <message>
  <source>Vitamin B6, mg</source>
  <translation>Vitamin B6, mg</translation>
 </message>
 <message>
  <source>Vitamin C</source>
  <translation>Vitamin C</translation>
 </message>
 <message>
  <source>Vitamin C, mg</source>
  <translation>Vitamin C, mg</translation>
 </message>
 <message>
  <source>Übergewicht</source>
  <translation>Overweight</translation>
 </message>
 <message>
  <source>Übernehmen und sichern</source>
  <translation>Take over and save</translation>
 </message>
</context>
<context>
 <name>FortschrittsblattGestalt</name>
 <message>
  <source>&amp;Pläne</source>
  <translation>&amp;Plans</translation>
 </message>
 <message>
  <source>&amp;Von</source>
  <translation>F&amp;rom</translation>
 </message>
 <message>
  <source>B&amp;esuche</source>
  <translation>Vi&amp;sits</translation>
 </message>
 <message>
  <source>B&amp;is</source>
  <translation>&amp;Up to</translation>
 </message>
 <message>
  <source>Vergleich</source>
  <translation>Comparison</translation>
 </message>
</context>
<context>
 <name>HauptfensterGestalt</name>
 <message>
  <source>1 BE entspricht 12 g Kohlenhydraten; über 5,4 BE rot</source>
  <translation>1 BE is 12 g of carbohydrate; red above 5.4 BE</translation>
 </message>
 <message>
  <source>1 KE entspricht 10 g Kohlenhydraten</source>
  <translation>1 KE is 10 g of carbohydrate</translation>
 </message>
 <message>
  <source>Alkohol und Sport</source>
  <translation>Alcohol and sport</translation>
 </message>
 <message>
  <source>Angezeigte Werte als eigenes Lebensmittel</source>
  <translation>Displayed values as a food of your own</translation>
 </message>
 <message>
  <source>Anteile an der Energie</source>
  <translation>Shares of the energy</translation>
 </message>
 <message>
  <source>Anzahl der Lebensmittel in der Tabelle</source>
  <translation>Number of foods in the table</translation>
 </message>
 <message>
  <source>BE und Relationen</source>
  <translation>BE and ratios</translation>
 </message>
 <message>
  <source>Ballaststoffe</source>
  <translation>Fibre</translation>
 </message>
 <message>
  <source>Ballaststoffe, Anteil am Tagesbedarf</source>
  <translation>Fibre, share of the daily need</translation>
 </message>
 <message>
  <source>Bewertung für Diabetes</source>
  <translation>Rating for diabetes</translation>
 </message>
 <message>
  <source>Bewertung für Gicht</source>
  <translation>Rating for gout</translation>
 </message>
 <message>
  <source>Bewertung für Herz/Kreislauf</source>
  <translation>Rating for heart and circulation</translation>
 </message>
 <message>
  <source>Bewertung für Übergewicht</source>
  <translation>Rating for overweight</translation>
 </message>
 <message>
  <source>Broteinheiten</source>
  <translation>Bread units</translation>
 </message>
 <message>
  <source>Calcium</source>
  <translation>Calcium</translation>
 </message>
 <message>
  <source>Calcium, Anteil am Tagesbedarf</source>
  <translation>Calcium, share of the daily need</translation>
 </message>
 <message>
  <source>Cholesterin</source>
  <translation>Cholesterol</translation>
 </message>
 <message>
  <source>Diabetes</source>
  <translation>Diabetes</translation>
 </message>
 <message>
  <source>Direkt übernehmen</source>
  <translation>Load directly</translation>
 </message>
 <message>
  <source>Eigenes Lebensmittel sichern …</source>
  <translation>Save own food …</translation>
 </message>
 <message>
  <source>Ein Treffer wird gleich gezeigt. Ausgeschaltet wählt er nur seine Zeile; seine Werte zeigt dann ein Klick auf seinen Namen in der Spalte „Lebensmittel“ oder „Eigene“.</source>
  <translation>A result is shown at once. Switched off, it only selects its row; its values then appear with a click on its name in the column “Food” or “Own”.</translation>
 </message>
 <message>
  <source>Eisen</source>
  <translation>Iron</translation>
 </message>
 <message>
  <source>Eisen, Anteil am Tagesbedarf</source>
  <translation>Iron, share of the daily need</translation>
 </message>
 <message>
  <source>Empfehlung</source>
  <translation>Recommended</translation>
 </message>
 <message>
  <source>Energie</source>
  <translation>Energy</translation>
 </message>
 <message>
  <source>Energie in Kilojoule</source>
  <translation>Energy in kilojoules</translation>
 </message>
 <message>
  <source>Energie je 100 g</source>
  <translation>Energy per 100 g</translation>
 </message>
 <message>
  <source>Energie: größer, kleiner oder gleich</source>
  <translation>Energy: greater, less or equal</translation>
 </message>
 <message>
  <source>Energieanteile von Protein, Kohlenhydraten und Fett</source>
  <translation>Energy shares of protein, carbohydrate and fat</translation>
 </message>
 <message>
  <source>Fett</source>
  <translation>Fat</translation>
 </message>
 <message>
  <source>Fett je 100 g</source>
  <translation>Fat per 100 g</translation>
 </message>
 <message>
  <source>Gesamtbeurteilung</source>
  <translation>Overall judgement</translation>
 </message>
 <message>
  <source>Gesichert wird unter dem Namen oben, mit den Werten für 100 g.</source>
  <translation>Saved under the name above, with the values for 100 g.</translation>
 </message>
 <message>
  <source>Gewählter Treffer</source>
  <translation>Chosen result</translation>
 </message>
 <message>
  <source>Gezeigte Menge</source>
  <translation>Shown amount</translation>
 </message>
 <message>
  <source>Gicht</source>
  <translation>Gout</translation>
 </message>
 <message>
  <source>Herz und Kreislauf</source>
  <translation>Heart and circulation</translation>
 </message>
 <message>
  <source>Herz/Kreislauf</source>
  <translation>Heart</translation>
 </message>
 <message>
  <source>In der Liste zeigen</source>
  <translation>Show in the list</translation>
 </message>
 <message>
  <source>Kalium</source>
  <translation>Potassium</translation>
 </message>
 <message>
  <source>Kalium, Anteil am Tagesbedarf</source>
  <translation>Potassium, share of the daily need</translation>
 </message>
 <message>
  <source>Kohlenhydrate</source>
  <translation>Carbohydrate</translation>
 </message>
 <message>
  <source>Kohlenhydrate je 100 g</source>
  <translation>Carbohydrate per 100 g</translation>
 </message>
 <message>
  <source>Kohlenhydrateinheiten</source>
  <translation>Carbohydrate units</translation>
 </message>
 <message>
  <source>Körper und Energie</source>
  <translation>Body and energy</translation>
 </message>
 <message>
  <source>Lebensmittel</source>
  <translation>Food</translation>
 </message>
 <message>
  <source>Lebensmittel in der Tabelle:</source>
  <translation>Foods in the table:</translation>
 </message>
 <message>
  <source>Lebensmittel suchen</source>
  <translation>Find food</translation>
 </message>
 <message>
  <source>Löschen …</source>
  <translation>Delete …</translation>
 </message>
 <message>
  <source>Magnesium</source>
  <translation>Magnesium</translation>
 </message>
 <message>
  <source>Magnesium zu Calcium</source>
  <translation>Magnesium to calcium</translation>
 </message>
 <message>
  <source>Magnesium, Anteil am Tagesbedarf</source>
  <translation>Magnesium, share of the daily need</translation>
 </message>
 <message>
  <source>Menge des Lebensmittels in Gramm</source>
  <translation>Amount of the food in grams</translation>
 </message>
 <message>
  <source>Mittlere Deckung des Tagesbedarfs je 100 kcal. Unter 10: gering (rot), bis 45: mittel (blau), über 45: gut (grün).</source>
  <translation>Mean coverage of the daily need per 100 kcal. Below 10: low (red), up to 45: medium (blue), above 45: good (green).</translation>
 </message>
 <message>
  <source>Natrium</source>
  <translation>Sodium</translation>
 </message>
 <message>
  <source>Natrium zu Kalium</source>
  <translation>Sodium to potassium</translation>
 </message>
 <message>
  <source>Natrium, Anteil am Tagesbedarf</source>
  <translation>Sodium, share of the daily need</translation>
 </message>
 <message>
  <source>Nächster</source>
  <translation>Next one</translation>
 </message>
 <message>
  <source>Nährstoffe</source>
  <translation>Nutrients</translation>
 </message>
 <message>
  <source>Phosphat</source>
  <translation>Phosphate</translation>
 </message>
 <message>
  <source>Phosphat, Anteil am Tagesbedarf</source>
  <translation>Phosphate, share of the daily need</translation>
 </message>
 <message>
  <source>Profil suchen</source>
  <translation>Search profile</translation>
 </message>
 <message>
  <source>Profilsuche</source>
  <translation>Profile search</translation>
 </message>
 <message>
  <source>Protein</source>
  <translation>Protein</translation>
 </message>
 <message>
  <source>Protein je 100 g</source>
  <translation>Protein per 100 g</translation>
 </message>
 <message>
  <source>Protein: größer, kleiner oder gleich</source>
  <translation>Protein: greater, less or equal</translation>
 </message>
 <message>
  <source>Quelle der Nährwerte</source>
  <translation>Source of the values</translation>
 </message>
 <message>
  <source>Suchen</source>
  <translation>Find</translation>
 </message>
 <message>
  <source>Unter 100 kcal sagt die 0 nichts aus.</source>
  <translation>Below 100 kcal the 0 says nothing.</translation>
 </message>
 <message>
  <source>Zurück zu den Treffern</source>
  <translation>Back to the results</translation>
 </message>
 <message>
  <source>✓ grün: über 10 % des Tagesbedarfs, ✗ rot: darunter. Genau 10 % werden wie die Zeile davor beurteilt, bei Calcium grün.</source>
  <translation>✓ green: above 10 % of the daily need, ✗ red: below. Exactly 10 % is judged like the row before, for calcium green.</translation>
 </message>
 <message>
  <source>Sichern</source>
  <translation>Save</translation>
 </message>
 <message>
  <source>Suche läuft</source>
  <translation>Searching</translation>
 </message>
 <message>
  <source>Tagesbedarf</source>
  <translation>Daily need</translation>
 </message>
 <message>
  <source>Vitamin A</source>
  <translation>Vitamin A</translation>
 </message>
 <message>
  <source>Vitamin A, Anteil am Tagesbedarf</source>
  <translation>Vitamin A, share of the daily need</translation>
 </message>
 <message>
  <source>Vitamin B1</source>
  <translation>Vitamin B1</translation>
 </message>
 <message>
  <source>Vitamin B1, Anteil am Tagesbedarf</source>
  <translation>Vitamin B1, share of the daily need</translation>
 </message>
 <message>
  <source>Vitamin B2</source>
  <translation>Vitamin B2</translation>
 </message>
 <message>
  <source>Vitamin B2, Anteil am Tagesbedarf</source>
  <translation>Vitamin B2, share of the daily need</translation>
 </message>
 <message>
  <source>Vitamin B6</source>
  <translation>Vitamin B6</translation>
 </message>
 <message>
  <source>Vitamin B6, Anteil am Tagesbedarf</source>
  <translation>Vitamin B6, share of the daily need</translation>
 </message>
 <message>
  <source>Vitamin C</source>
  <translation>Vitamin C</translation>
 </message>
 <message>
  <source>Vitamin C, Anteil am Tagesbedarf</source>
  <translation>Vitamin C, share of the daily need</translation>
 </message>
 <message>
  <source>Werte je 100 g; nur Angekreuztes zählt.</source>
  <translation>Values per 100 g; only what is ticked counts.</translation>
 </message>
 <message>
  <source>unter 0,5 günstig (grün), darüber ungünstig (rot)</source>
  <translation>below 0.5 favourable (green), above unfavourable (red)</translation>
 </message>
 <message>
  <source>Übergewicht</source>
  <translation>Overweight</translation>
 </message>
</context>
<context>
 <name>KoerperGestalt</name>
 <message>
  <source>0,80–0,88</source>
  <translation>0.80–0.88</translation>
 </message>
 <message>
  <source>Abnehmen</source>
  <translation>Weight loss</translation>
 </message>
 <message>
  <source>Alter</source>
  <translation>Age</translation>
 </message>
 <message>
  <source>Alter in Jahren</source>
  <translation>Age in years</translation>
 </message>
 <message>
  <source>Body-Mass-Index</source>
  <translation>Body mass index</translation>
 </message>
 <message>
  <source>Energiebedarf am Tag</source>
  <translation>Daily energy need</translation>
 </message>
 <message>
  <source>Frau</source>
  <translation>Woman</translation>
 </message>
 <message>
  <source>Gerechnet für</source>
  <translation>Worked out for</translation>
 </message>
 <message>
  <source>Gerechnet für das Geschlecht</source>
  <translation>Gender it is worked out for</translation>
 </message>
 <message>
  <source>Gerechnet für das Gewicht</source>
  <translation>Weight it is worked out for</translation>
 </message>
 <message>
  <source>Geschlecht</source>
  <translation>Gender</translation>
 </message>
 <message>
  <source>Gewicht</source>
  <translation>Weight</translation>
 </message>
 <message>
  <source>Gewicht in Kilogramm</source>
  <translation>Weight in kilograms</translation>
 </message>
 <message>
  <source>Gewicht in Pfund</source>
  <translation>Weight in pounds</translation>
 </message>
 <message>
  <source>Größe</source>
  <translation>Height</translation>
 </message>
 <message>
  <source>Größe in Metern</source>
  <translation>Height in metres</translation>
 </message>
 <message>
  <source>Größe, ganze Fuß</source>
  <translation>Height, whole feet</translation>
 </message>
 <message>
  <source>Größe, übrige Zoll</source>
  <translation>Height, remaining inches</translation>
 </message>
 <message>
  <source>Günstiger Bereich des Body-Mass-Index</source>
  <translation>Favourable range of the body mass index</translation>
 </message>
 <message>
  <source>Günstiger Bereich des Energiebedarfs</source>
  <translation>Favourable range of the energy need</translation>
 </message>
 <message>
  <source>Günstiger Bereich des Verhältnisses</source>
  <translation>Favourable range of the ratio</translation>
 </message>
 <message>
  <source>Hüfte</source>
  <translation>Hip</translation>
 </message>
 <message>
  <source>Hüftumfang</source>
  <translation>Hip circumference</translation>
 </message>
 <message>
  <source>Hüftumfang in Zentimetern</source>
  <translation>Hip circumference in centimetres</translation>
 </message>
 <message>
  <source>Jahre</source>
  <translation>years</translation>
 </message>
 <message>
  <source>Körpermaße</source>
  <translation>Body measures</translation>
 </message>
 <message>
  <source>Mann</source>
  <translation>Man</translation>
 </message>
 <message>
  <source>Metrisch anzeigen</source>
  <translation>Show metric units</translation>
 </message>
 <message>
  <source>Taille</source>
  <translation>Waist</translation>
 </message>
 <message>
  <source>Taille zu Hüfte</source>
  <translation>Waist to hip</translation>
 </message>
 <message>
  <source>Taillenumfang</source>
  <translation>Waist circumference</translation>
 </message>
 <message>
  <source>Taillenumfang in Zentimetern</source>
  <translation>Waist circumference in centimetres</translation>
 </message>
 <message>
  <source>Tätigkeit</source>
  <translation>Activity</translation>
 </message>
 <message>
  <source>Urteil über das Verhältnis von Taille zu Hüfte</source>
  <translation>Judgement of the waist-hip ratio</translation>
 </message>
 <message>
  <source>Urteil über den Body-Mass-Index</source>
  <translation>Judgement of the body mass index</translation>
 </message>
 <message>
  <source>Urteil über den Energiebedarf</source>
  <translation>Judgement of the energy need</translation>
 </message>
 <message>
  <source>Verhältnis von Taille zu Hüfte</source>
  <translation>Waist-hip ratio</translation>
 </message>
 <message>
  <source>aus</source>
  <translation>off</translation>
 </message>
 <message>
  <source>günstiger Bereich</source>
  <translation>favourable range</translation>
 </message>
 <message>
  <source>imperial</source>
  <translation>imperial</translation>
 </message>
 <message>
  <source>leicht, meist im Sitzen</source>
  <translation>light, mostly sitting</translation>
 </message>
 <message>
  <source>metrisch</source>
  <translation>metric</translation>
 </message>
 <message>
  <source>mittel, viel im Stehen und Gehen</source>
  <translation>medium, much standing and walking</translation>
 </message>
 <message>
  <source>schwer, körperlich anstrengend</source>
  <translation>heavy, physically demanding</translation>
 </message>
 <message>
  <source>rechnet ab 11 Jahren</source>
  <translation>starts at 11 years</translation>
 </message>
</context>
<context>
 <name>LebensweiseGestalt</name>
 <message>
  <source>Abbau</source>
  <translation>Breakdown</translation>
 </message>
 <message>
  <source>Alkohol</source>
  <translation>Alcohol</translation>
 </message>
 <message>
  <source>Dauer</source>
  <translation>Duration</translation>
 </message>
 <message>
  <source>Dauer des Abbaus</source>
  <translation>Time of the breakdown</translation>
 </message>
 <message>
  <source>Dauer des Sports</source>
  <translation>Duration of the sport</translation>
 </message>
 <message>
  <source>Dauer des Sports in Stunden</source>
  <translation>Duration of the sport in hours</translation>
 </message>
 <message>
  <source>Energieverbrauch durch Sport</source>
  <translation>Energy used by sport</translation>
 </message>
 <message>
  <source>Es zählen nur volle 100 ml. Tagesgrenze: 20 g Alkohol (Frau) oder 30 g (Mann).
Abbau je kg und Stunde: 0,1 g nach der Wahl, 0,05 g nach dem Einstellen der Menge.
Für Kinder unter 10 Jahren wird nicht gerechnet; ab 11 Jahren geht es weiter.</source>
  <translation>Only whole 100 ml count. Daily limit: 20 g of alcohol (woman) or 30 g (man).
Breakdown per kg and hour: 0.1 g after choosing, 0.05 g after setting the amount.
Nothing is worked out for children under 10 years; it resumes at 11 years.</translation>
 </message>
 <message>
  <source>Getränk</source>
  <translation>Drink</translation>
 </message>
 <message>
  <source>Gewicht</source>
  <translation>Weight</translation>
 </message>
 <message>
  <source>Menge</source>
  <translation>Amount</translation>
 </message>
 <message>
  <source>Menge des Getränks</source>
  <translation>Amount of the drink</translation>
 </message>
 <message>
  <source>Menge des Getränks in Millilitern</source>
  <translation>Amount of the drink in millilitres</translation>
 </message>
 <message>
  <source>Reiner Alkohol</source>
  <translation>Pure alcohol</translation>
 </message>
 <message>
  <source>Sport</source>
  <translation>Sport</translation>
 </message>
 <message>
  <source>Sportart</source>
  <translation>Kind of sport</translation>
 </message>
 <message>
  <source>unbekannt, zählt nicht</source>
  <translation>unknown, does not count</translation>
 </message>
 <message>
  <source>Verbrauch</source>
  <translation>Energy used</translation>
 </message>
 <message>
  <source>Zum Energiebedarf am Tag kommen die vollen Stunden hinzu.</source>
  <translation>The whole hours are added to the daily energy need.</translation>
 </message>
 <message>
  <source>bei einem Gewicht von</source>
  <translation>at a weight of</translation>
 </message>
 <message>
  <source>über der Tagesgrenze</source>
  <translation>above the daily limit</translation>
 </message>
 <message>
  <source>über 600 ml</source>
  <translation>above 600 ml</translation>
 </message>
</context>
<context>
 <name>Mahlberg</name>
 <message>
  <source>%1 %-Punkte</source>
  <translation>%1 % points</translation>
 </message>
 <message>
  <source>%1 &amp;Namen sind unter den eigenen schon vergeben:</source>
  <translation>%1 &amp;names are taken among the own foods:</translation>
 </message>
 <message>
  <source>%1 (eigen %2)</source>
  <translation>%1 (own %2)</translation>
 </message>
 <message>
  <source>%1 (eigen)</source>
  <translation>%1 (own)</translation>
 </message>
 <message>
  <source>%1 Felder, in der ersten Zeile sind es %2.</source>
  <translation>%1 fields, while the first line has %2.</translation>
 </message>
 <message>
  <source>%1 Lebensmittel &amp;übernehmen</source>
  <translation>&amp;Import %1 foods</translation>
 </message>
 <message>
  <source>%1 Lebensmittel sind übernommen.</source>
  <translation>%1 foods are imported.</translation>
 </message>
 <message>
  <source>%1 Lebensmittel, geschrieben auf %2.</source>
  <translation>%1 foods, written on %2.</translation>
 </message>
 <message>
  <source>%1 Punkte</source>
  <translation>%1 points</translation>
 </message>
 <message>
  <source>%1 Tage</source>
  <translation>%1 days</translation>
 </message>
 <message>
  <source>%1 Tage (%2 Wochen)</source>
  <translation>%1 days (%2 weeks)</translation>
 </message>
 <message>
  <source>%1 zu viel</source>
  <translation>%1 too much</translation>
 </message>
 <message>
  <source>%1, siehe unten</source>
  <translation>%1, see below</translation>
 </message>
 <message>
  <source>%1: %2</source>
  <translation>%1: %2</translation>
 </message>
 <message>
  <source>%1: %2 %3 in 100 g sind mehr als 100 g.</source>
  <translation>%1: %2 %3 in 100 g are more than 100 g.</translation>
 </message>
 <message>
  <source>%1: %2 Messungen, zuerst %3 am %4, zuletzt %5 am %6, %7.</source>
  <translation>%1: %2 measurements, first %3 on %4, last %5 on %6, %7.</translation>
 </message>
 <message>
  <source>%1: %2 ist weniger als nichts.</source>
  <translation>%1: %2 is less than nothing.</translation>
 </message>
 <message>
  <source>%1: eine Messung, %2 am %3.</source>
  <translation>%1: one measurement, %2 on %3.</translation>
 </message>
 <message>
  <source>%1: „%2“ ist keine Wertung; es gibt +, 0 und -.</source>
  <translation>%1: “%2” is no rating; there are +, 0 and -.</translation>
 </message>
 <message>
  <source>%1: „%2“ ist keine Zahl.</source>
  <translation>%1: “%2” is no number.</translation>
 </message>
 <message>
  <source>%1: „%2“ ist zu groß oder zu klein.</source>
  <translation>%1: “%2” is too large or too small.</translation>
 </message>
 <message>
  <source>&amp;Alle ankreuzen</source>
  <translation>Tick &amp;all</translation>
 </message>
 <message>
  <source>&amp;Als PDF sichern …</source>
  <translation>Save as PD&amp;F …</translation>
 </message>
 <message>
  <source>&amp;Dezimalzeichen:</source>
  <translation>&amp;Decimal mark:</translation>
 </message>
 <message>
  <source>&amp;Erste Zeile sind Überschriften</source>
  <translation>&amp;First line holds headings</translation>
 </message>
 <message>
  <source>&amp;Fehlerhafte Zeilen weglassen</source>
  <translation>&amp;Leave out wrong lines</translation>
 </message>
 <message>
  <source>&amp;Form:</source>
  <translation>&amp;Form:</translation>
 </message>
 <message>
  <source>&amp;Für alle so</source>
  <translation>The same &amp;for all</translation>
 </message>
 <message>
  <source>&amp;Gewicht der Portion:</source>
  <translation>Weight of the &amp;portion:</translation>
 </message>
 <message>
  <source>&amp;Keines ankreuzen</source>
  <translation>Tick &amp;none</translation>
 </message>
 <message>
  <source>&amp;Liste:</source>
  <translation>&amp;List:</translation>
 </message>
 <message>
  <source>&amp;Löschen …</source>
  <translation>&amp;Delete …</translation>
 </message>
 <message>
  <source>&amp;Menge eingeben</source>
  <translation>&amp;Enter amount</translation>
 </message>
 <message>
  <source>&amp;Nächster Treffer</source>
  <translation>&amp;Next result</translation>
 </message>
 <message>
  <source>&amp;Sichern …</source>
  <translation>&amp;Save …</translation>
 </message>
 <message>
  <source>&amp;Spalten anpassen</source>
  <translation>&amp;Fit columns</translation>
 </message>
 <message>
  <source>&amp;Trennlinie bewegen</source>
  <translation>Move &amp;divider</translation>
 </message>
 <message>
  <source>&amp;Trennzeichen:</source>
  <translation>Sepa&amp;rator:</translation>
 </message>
 <message>
  <source>&amp;Vorheriger Treffer</source>
  <translation>Pre&amp;vious result</translation>
 </message>
 <message>
  <source>&amp;Werte als neues Lebensmittel abschreiben …</source>
  <translation>&amp;Copy the values into a new food …</translation>
 </message>
 <message>
  <source>&amp;Werte gelten für:</source>
  <translation>&amp;Values are for:</translation>
 </message>
 <message>
  <source>&amp;Zuletzt gewählte Lebensmittel …</source>
  <translation>Recentl&amp;y chosen foods …</translation>
 </message>
 <message>
  <source>&amp;Übernehmen</source>
  <translation>&amp;Take over</translation>
 </message>
 <message>
  <source>(eigenes Lebensmittel)</source>
  <translation>(own food)</translation>
 </message>
 <message>
  <source>(nicht übernehmen)</source>
  <translation>(leave out)</translation>
 </message>
 <message>
  <source>--data-dir ORDNER</source>
  <translation>--data-dir FOLDER</translation>
 </message>
 <message>
  <source>--tour ORDNER</source>
  <translation>--tour FOLDER</translation>
 </message>
 <message>
  <source>1 &amp;Name ist unter den eigenen schon vergeben:</source>
  <translation>1 &amp;name is taken among the own foods:</translation>
 </message>
 <message>
  <source>1 Lebensmittel &amp;übernehmen</source>
  <translation>&amp;Import 1 food</translation>
 </message>
 <message>
  <source>1 Lebensmittel ist übernommen.</source>
  <translation>1 food is imported.</translation>
 </message>
 <message>
  <source>1 Punkt</source>
  <translation>1 point</translation>
 </message>
 <message>
  <source>1 Tag</source>
  <translation>1 day</translation>
 </message>
 <message>
  <source>100 g</source>
  <translation>100 g</translation>
 </message>
 <message>
  <source>7 Tage (1 Woche)</source>
  <translation>7 days (1 week)</translation>
 </message>
 <message>
  <source>Als &amp;Tabelle kopieren</source>
  <translation>Copy as ta&amp;ble</translation>
 </message>
 <message>
  <source>Als &amp;Tabelle sichern …</source>
  <translation>Save as &amp;table …</translation>
 </message>
 <message>
  <source>Als PDF sichern</source>
  <translation>Save as PDF</translation>
 </message>
 <message>
  <source>Als PDF sichern …</source>
  <translation>Save as PDF …</translation>
 </message>
 <message>
  <source>Als Tabelle kopiert: %1 Zeilen.</source>
  <translation>Copied as a table: %1 rows.</translation>
 </message>
 <message>
  <source>Als Tabelle kopiert: 1 Zeile.</source>
  <translation>Copied as a table: 1 row.</translation>
 </message>
 <message>
  <source>Als Tabelle sichern</source>
  <translation>Save as table</translation>
 </message>
 <message>
  <source>Andere Lebensmittel und Mengen</source>
  <translation>Other foods and amounts</translation>
 </message>
 <message>
  <source>Angekreuzt bleibt die Zeile weg.</source>
  <translation>Ticked, the line is left out.</translation>
 </message>
 <message>
  <source>Angezeigt als</source>
  <translation>Shown as</translation>
 </message>
 <message>
  <source>Anteile am Tagesbedarf</source>
  <translation>Shares of daily need</translation>
 </message>
 <message>
  <source>Anteile an der Energie</source>
  <translation>Shares of the energy</translation>
 </message>
 <message>
  <source>Auch ein eigenes Lebensmittel heißt „%1“; „--own“ zeigt dieses.</source>
  <translation>An own food is called “%1” as well; “--own” shows that one.</translation>
 </message>
 <message>
  <source>Aufruf:</source>
  <translation>Usage:</translation>
 </message>
 <message>
  <source>Aus „%1“ in der Liste, aber nicht gesichert: neu %2, ersetzt %3.</source>
  <translation>From “%1” in the list, but not saved: %2 new, %3 replaced.</translation>
 </message>
 <message>
  <source>Aus „%1“ übernommen: neu %2, ersetzt %3.</source>
  <translation>Taken over from “%1”: %2 new, %3 replaced.</translation>
 </message>
 <message>
  <source>BE und Relationen</source>
  <translation>BE and ratios</translation>
 </message>
 <message>
  <source>BMI</source>
  <translation>BMI</translation>
 </message>
 <message>
  <source>Bedeutung der Farben, von links: %1</source>
  <translation>Meaning of the colours, from the left: %1</translation>
 </message>
 <message>
  <source>Bedeutung der Spalte „%1“</source>
  <translation>Meaning of the column “%1”</translation>
 </message>
 <message>
  <source>Bei dem gewählten Lebensmittel ist nichts zu entscheiden.</source>
  <translation>There is nothing to decide about the chosen food.</translation>
 </message>
 <message>
  <source>Beide behalten, das der Datei mit neuem Namen</source>
  <translation>Keep both, that of the file under a new name</translation>
 </message>
 <message>
  <source>Beispiel</source>
  <translation>Example</translation>
 </message>
 <message>
  <source>Bekannt als</source>
  <translation>Known as</translation>
 </message>
 <message>
  <source>Beurteilung</source>
  <translation>Judgement</translation>
 </message>
 <message>
  <source>Bewertungen</source>
  <translation>Ratings</translation>
 </message>
 <message>
  <source>Bewertungen (geeignet / neutral / ungeeignet)</source>
  <translation>Ratings (suitable / neutral / unsuitable)</translation>
 </message>
 <message>
  <source>Broteinheiten</source>
  <translation>Bread units</translation>
 </message>
 <message>
  <source>Daran erkennen Tabellenprogramme die Umlaute; manche andere Programme stört sie.</source>
  <translation>By it spreadsheets recognise letters with accents; it disturbs some other programs.</translation>
 </message>
 <message>
  <source>Darin hält Mahlberg selbst Ihre eigenen Lebensmittel. Sie sind schon da.</source>
  <translation>Mahlberg itself keeps your own foods in it. They are here already.</translation>
 </message>
 <message>
  <source>Darin hält Mahlberg selbst Ihren Plan. Er ist schon da.</source>
  <translation>Mahlberg itself keeps your plan in it. It is here already.</translation>
 </message>
 <message>
  <source>Das Gewicht der Portion fehlt.</source>
  <translation>The weight of the portion is missing.</translation>
 </message>
 <message>
  <source>Das PDF ist gesichert: %1</source>
  <translation>The PDF is saved: %1</translation>
 </message>
 <message>
  <source>Das PDF ist nicht gesichert.</source>
  <translation>The PDF was not saved.</translation>
 </message>
 <message>
  <source>Das Tabellenprogramm hat seine eigenen Zeichen. Für andere wählen Sie bei der Form „Selbst gewählt“.</source>
  <translation>The spreadsheet has signs of its own. For others choose “Own choice” as the form.</translation>
 </message>
 <message>
  <source>Das der Datei</source>
  <translation>That of the file</translation>
 </message>
 <message>
  <source>Das der Datei nehmen</source>
  <translation>Take that of the file</translation>
 </message>
 <message>
  <source>Das ist ein Ordner, keine Datei.</source>
  <translation>That is a folder, not a file.</translation>
 </message>
 <message>
  <source>Das ist keine Datei mit Lebensmitteln.</source>
  <translation>That is no file of foods.</translation>
 </message>
 <message>
  <source>Das ist keine Mengenangabe.</source>
  <translation>This is no amount.</translation>
 </message>
 <message>
  <source>Das ist keine gewöhnliche Datei.</source>
  <translation>That is no ordinary file.</translation>
 </message>
 <message>
  <source>Das lässt sich nicht öffnen.</source>
  <translation>That cannot be opened.</translation>
 </message>
 <message>
  <source>Datei &amp;öffnen …</source>
  <translation>&amp;Open file …</translation>
 </message>
 <message>
  <source>Datei öffnen</source>
  <translation>Open file</translation>
 </message>
 <message>
  <source>Den Befehl „%1“ gibt es nicht.</source>
  <translation>There is no command “%1”.</translation>
 </message>
 <message>
  <source>Der Energiebedarf fehlt für: %1. Er kommt aus dem Geschlecht und aus Gewicht und Tätigkeit beim letzten Besuch bis zum Tag des Plans. Ohne ihn zählen Energie, Protein, Fett und Kohlenhydrate keine Punkte.</source>
  <translation>The energy need is missing for: %1. It comes from the gender, and from weight and activity at the last visit up to the day of the plan. Without it, energy, protein, fat and carbohydrate earn no points.</translation>
 </message>
 <message>
  <source>Der Name fehlt.</source>
  <translation>The name is missing.</translation>
 </message>
 <message>
  <source>Der Name „%1“ steht schon in Zeile %2.</source>
  <translation>The name “%1” already stands in line %2.</translation>
 </message>
 <message>
  <source>Der Ordner lässt sich nicht öffnen.</source>
  <translation>The folder cannot be opened.</translation>
 </message>
 <message>
  <source>Der Ordner „%1“ für „--data-dir“ ist keiner oder lässt sich nicht anlegen.</source>
  <translation>“%1” for “--data-dir” is no folder or cannot be made.</translation>
 </message>
 <message>
  <source>Der letzte Wert liegt im Zielbereich (%1).</source>
  <translation>The last value is within the target range (%1).</translation>
 </message>
 <message>
  <source>Der letzte Wert liegt unter dem Zielbereich (%1).</source>
  <translation>The last value is below the target range (%1).</translation>
 </message>
 <message>
  <source>Der letzte Wert liegt über dem Zielbereich (%1).</source>
  <translation>The last value is above the target range (%1).</translation>
 </message>
 <message>
  <source>Die Angabe „%1“ ist zu viel.</source>
  <translation>The argument “%1” is one too many.</translation>
 </message>
 <message>
  <source>Die Ausgabe ließ sich nicht schreiben.</source>
  <translation>The output could not be written.</translation>
 </message>
 <message>
  <source>Die Datei hat mehr als %1 Zeilen.</source>
  <translation>The file has more than %1 lines.</translation>
 </message>
 <message>
  <source>Die Datei „%1“ enthält Lebensmittel und keinen Plan.</source>
  <translation>The file “%1” holds foods and no plan.</translation>
 </message>
 <message>
  <source>Die Datei „%1“ gibt es nicht.</source>
  <translation>There is no file “%1”.</translation>
 </message>
 <message>
  <source>Die Datei „%1“ ist beschädigt oder keine von Mahlberg (Byte %2: %3).</source>
  <translation>The file “%1” is damaged or none of Mahlberg (byte %2: %3).</translation>
 </message>
 <message>
  <source>Die Datei „%1“ lässt sich nicht lesen (%2).</source>
  <translation>The file “%1” cannot be read (%2).</translation>
 </message>
 <message>
  <source>Die Energie ist aus Protein, Kohlenhydraten und Fett errechnet; nach der Tabelle sind es %1.</source>
  <translation>The energy is worked out from protein, carbohydrate and fat; by the table it is %1.</translation>
 </message>
 <message>
  <source>Die Menge darf nicht negativ sein.</source>
  <translation>The amount must not be negative.</translation>
 </message>
 <message>
  <source>Die Menge muss mehr als null sein.</source>
  <translation>The amount must be more than zero.</translation>
 </message>
 <message>
  <source>Die Menge „%1“ ist keine Zahl von Gramm ab 0.</source>
  <translation>The amount “%1” is no number of grams from 0 on.</translation>
 </message>
 <message>
  <source>Die Option „%1“ gibt es nicht.</source>
  <translation>There is no option “%1”.</translation>
 </message>
 <message>
  <source>Die Option „%1“ passt nicht zu diesem Aufruf.</source>
  <translation>The option “%1” does not go with this call.</translation>
 </message>
 <message>
  <source>Die Option „--data-dir“ verlangt einen Ordner.</source>
  <translation>The option “--data-dir” needs a folder.</translation>
 </message>
 <message>
  <source>Die Option „--energy“ verlangt ganze kcal über 0, nicht „%1“.</source>
  <translation>The option “--energy” needs whole kcal above 0, not “%1”.</translation>
 </message>
 <message>
  <source>Die Option „--format“ kennt „text“, „csv“ und „json“, nicht „%1“.</source>
  <translation>The option “--format” knows “text”, “csv” and “json”, not “%1”.</translation>
 </message>
 <message>
  <source>Die Option „--language“ kennt „de“ und „en“, nicht „%1“.</source>
  <translation>The option “--language” knows “de” and “en”, not “%1”.</translation>
 </message>
 <message>
  <source>Die Pfeiltasten verschieben die Trennlinie, die Eingabetaste beendet.</source>
  <translation>The arrow keys move the divider, Return ends it.</translation>
 </message>
 <message>
  <source>Die Spalten „%1“ und „%2“ sind als dasselbe gewählt.</source>
  <translation>The columns “%1” and “%2” are chosen as the same.</translation>
 </message>
 <message>
  <source>Die Tabelle ist gesichert: %1</source>
  <translation>The table is saved: %1</translation>
 </message>
 <message>
  <source>Die Tabelle ist nicht gesichert: %1 (%2)</source>
  <translation>The table is not saved: %1 (%2)</translation>
 </message>
 <message>
  <source>Die Zeile „%1“ steht für kein Lebensmittel und kommt nicht in den Plan.</source>
  <translation>The line “%1” stands for no food and does not go into the plan.</translation>
 </message>
 <message>
  <source>Die ersten Zeilen, wie sie gelesen werden</source>
  <translation>The first lines as they are read</translation>
 </message>
 <message>
  <source>Diese Datei gibt es nicht.</source>
  <translation>There is no such file.</translation>
 </message>
 <message>
  <source>Diese Menge ist keine endliche Zahl.</source>
  <translation>This amount is not a finite number.</translation>
 </message>
 <message>
  <source>Dieses Lebensmittel hat kein solches Maß.</source>
  <translation>This food has no such measure.</translation>
 </message>
 <message>
  <source>Doppelte Namen: %1. Es gilt jeweils der letzte Eintrag.</source>
  <translation>Names that stand twice: %1. The last entry holds.</translation>
 </message>
 <message>
  <source>E&amp;instellungen …</source>
  <translation>Settin&amp;gs …</translation>
 </message>
 <message>
  <source>Ein Lebensmittel „%1“ gibt es nicht.</source>
  <translation>There is no food “%1”.</translation>
 </message>
 <message>
  <source>Ein Mahlzeitenplan mit %1 Lebensmitteln, geschrieben auf %2.</source>
  <translation>A meal plan of %1 foods, written on %2.</translation>
 </message>
 <message>
  <source>Ein Plan hält nur Namen und Mengen fest, keine Nährwerte. Davon lässt sich nichts in die eigenen Lebensmittel übernehmen.</source>
  <translation>A plan keeps only names and amounts, no nutrient values. Nothing of it can be taken over into the own foods.</translation>
 </message>
 <message>
  <source>Ein eingebautes Lebensmittel heißt ebenso. Im Plan gelten dessen Werte.</source>
  <translation>A built-in food has the same name. In the plan, the values of that one hold.</translation>
 </message>
 <message>
  <source>Eingebaute Lebensmittel</source>
  <translation>Built-in foods</translation>
 </message>
 <message>
  <source>Einstellungen</source>
  <translation>Settings</translation>
 </message>
 <message>
  <source>Energie in Kilojoule</source>
  <translation>Energy in kilojoules</translation>
 </message>
 <message>
  <source>Energiebedarf am Tag</source>
  <translation>Daily energy need</translation>
 </message>
 <message>
  <source>Energiebedarf am Tag, an dem „evaluate“ den Plan misst</source>
  <translation>energy need of a day, by which “evaluate” measures the plan</translation>
 </message>
 <message>
  <source>Erscheinungsbild</source>
  <translation>Appearance</translation>
 </message>
 <message>
  <source>Erst ein Besuch. Mit dem zweiten steht hier, was sich geändert hat.</source>
  <translation>Only one visit so far. From the second one on, what has changed is told here.</translation>
 </message>
 <message>
  <source>Erst ein abgelegter Plan. Mit dem zweiten steht hier, worin sie sich unterscheiden.</source>
  <translation>Only one plan kept so far. From the second one on, how they differ is told here.</translation>
 </message>
 <message>
  <source>Es gibt keinen Stand, der zurückgeholt werden kann.</source>
  <translation>There is no state that can be brought back.</translation>
 </message>
 <message>
  <source>Es gibt nichts zu wiederholen.</source>
  <translation>There is nothing to redo.</translation>
 </message>
 <message>
  <source>Es gibt nichts zu übernehmen.</source>
  <translation>There is nothing to import.</translation>
 </message>
 <message>
  <source>Es gibt nichts zurückzunehmen.</source>
  <translation>There is nothing to undo.</translation>
 </message>
 <message>
  <source>Fehler: %1. Solange einer da ist, wird nichts übernommen. Wählen Sie die Spalte anders, oder kreuzen Sie die Zeile an, damit sie wegbleibt.</source>
  <translation>Mistakes: %1. As long as there is one, nothing is imported. Choose another meaning for the column, or tick the line to leave it out.</translation>
 </message>
 <message>
  <source>Form der Ausgabe von „evaluate“ und „food“</source>
  <translation>form in which “evaluate” and “food” print</translation>
 </message>
 <message>
  <source>Für eine Datei mit Lebensmitteln ist sie zu groß.</source>
  <translation>It is too large for a file of foods.</translation>
 </message>
 <message>
  <source>Gesamtbeurteilung: mittlere Deckung des Tagesbedarfs je 100 kcal, in %</source>
  <translation>Overall judgement: mean coverage of the daily need per 100 kcal, in %</translation>
 </message>
 <message>
  <source>Gewicht der Portion (g)</source>
  <translation>Weight of the portion (g)</translation>
 </message>
 <message>
  <source>Geöffnet werden nur Dateien dieses Rechners.</source>
  <translation>Only files of this computer are opened.</translation>
 </message>
 <message>
  <source>Gleich?</source>
  <translation>Same?</translation>
 </message>
 <message>
  <source>Hier wird erst ab 11 Jahren gerechnet.</source>
  <translation>Nothing is computed here below 11 years.</translation>
 </message>
 <message>
  <source>Hinter dem Ende folgen %1 Bytes, die nichts bedeuten.</source>
  <translation>Behind the end follow %1 bytes that mean nothing.</translation>
 </message>
 <message>
  <source>Hinter der Option „%1“ fehlt eine Angabe.</source>
  <translation>The option “%1” lacks its value.</translation>
 </message>
 <message>
  <source>Hinter „%1“ fehlt der Name eines Lebensmittels.</source>
  <translation>“%1” lacks the name of a food.</translation>
 </message>
 <message>
  <source>Hinter „%1“ fehlt die Datei eines Plans.</source>
  <translation>“%1” lacks the file of a plan.</translation>
 </message>
 <message>
  <source>Ihr Lebensmittel neben dem der Datei</source>
  <translation>Your food beside that of the file</translation>
 </message>
 <message>
  <source>Ihres</source>
  <translation>Yours</translation>
 </message>
 <message>
  <source>Ihres behalten</source>
  <translation>Keep yours</translation>
 </message>
 <message>
  <source>In Zeile %1 beginnt ein Anführungszeichen, das nicht endet.</source>
  <translation>In line %1 a quotation mark begins that does not end.</translation>
 </message>
 <message>
  <source>In den Ordner für PDF lässt sich nichts sichern.</source>
  <translation>Nothing can be saved in the folder for PDFs.</translation>
 </message>
 <message>
  <source>In den Plan &amp;geben</source>
  <translation>&amp;Add to the plan</translation>
 </message>
 <message>
  <source>In der Schwangerschaft gilt kein Zielbereich.</source>
  <translation>During pregnancy no target range applies.</translation>
 </message>
 <message>
  <source>In die eigenen Lebensmittel kommen %1: neu %2, ersetzt %3, unter neuem Namen %4. Ihres bleibt bei %5.</source>
  <translation>To the own foods come %1: %2 new, %3 replaced, %4 under a new name. Yours stays for %5.</translation>
 </message>
 <message>
  <source>In dieser Liste steht nichts zum Kopieren.</source>
  <translation>There is nothing to copy in this list.</translation>
 </message>
 <message>
  <source>Inhaltsstoffe, Anteil am Tagesbedarf</source>
  <translation>Nutrients, share of daily need</translation>
 </message>
 <message>
  <source>Innen anders benannt: %1. Es gilt der Name, der hier steht.</source>
  <translation>Named otherwise inside: %1. The name that stands here holds.</translation>
 </message>
 <message>
  <source>Keine Spalte ist als Energie gewählt; sie gilt als 0.</source>
  <translation>No column is chosen as energy; it counts as 0.</translation>
 </message>
 <message>
  <source>Keine Spalte ist als Nährwert gewählt.</source>
  <translation>No column is chosen as a nutrient.</translation>
 </message>
 <message>
  <source>Keine Spalte ist als „Lebensmittel“ gewählt.</source>
  <translation>No column is chosen as “Food”.</translation>
 </message>
 <message>
  <source>Keine Zeile ist fehlerhaft.</source>
  <translation>No line is wrong.</translation>
 </message>
 <message>
  <source>Kohlenhydrateinheiten</source>
  <translation>Carbohydrate units</translation>
 </message>
 <message>
  <source>Komma ,</source>
  <translation>Comma ,</translation>
 </message>
 <message>
  <source>Lebensmittel &amp;einlesen …</source>
  <translation>&amp;Import foods …</translation>
 </message>
 <message>
  <source>Lebensmittel (*.daten);;Alle Dateien (*)</source>
  <translation>Foods (*.daten);;All files (*)</translation>
 </message>
 <message>
  <source>Lebensmittel einlesen</source>
  <translation>Import foods</translation>
 </message>
 <message>
  <source>Lebensmittel ohne Werte</source>
  <translation>Foods without values</translation>
 </message>
 <message>
  <source>Lebensmittel: in beiden Plänen dieselben Mengen</source>
  <translation>Foods: the same amounts in both plans</translation>
 </message>
 <message>
  <source>Magnesium zu Calcium</source>
  <translation>Magnesium to calcium</translation>
 </message>
 <message>
  <source>Mehr als 100 kg sind nicht möglich.</source>
  <translation>More than 100 kg are not possible.</translation>
 </message>
 <message>
  <source>Mehr sagt „mahlberg --help“.</source>
  <translation>“mahlberg --help” tells more.</translation>
 </message>
 <message>
  <source>Mehrere Lebensmittel heißen so: %1.</source>
  <translation>Several foods have this name: %1.</translation>
 </message>
 <message>
  <source>Menge von „%1“</source>
  <translation>amount of “%1”</translation>
 </message>
 <message>
  <source>Menge ändern: zuerst</source>
  <translation>To set the amount: first</translation>
 </message>
 <message>
  <source>Menge: rechts einstellen.</source>
  <translation>Amount: set it on the right.</translation>
 </message>
 <message>
  <source>Mit &amp;Marke für UTF-8</source>
  <translation>With &amp;mark for UTF-8</translation>
 </message>
 <message>
  <source>Mit der Tastatur: Die Eingabetaste hängt ein Objekt an. F6 wechselt zwischen hier und der Leiste; dort verschieben Alt und die Pfeiltasten, und Entf nimmt heraus.</source>
  <translation>By keyboard: Return appends an item. F6 goes to the toolbar and back; there Alt and the arrow keys move an item, and Del takes it out.</translation>
 </message>
 <message>
  <source>Name vergeben: Ihres bleibt</source>
  <translation>name taken: yours stays</translation>
 </message>
 <message>
  <source>Name vergeben: beide bleiben</source>
  <translation>name taken: both stay</translation>
 </message>
 <message>
  <source>Name vergeben: bleibt draußen</source>
  <translation>name taken: stays out</translation>
 </message>
 <message>
  <source>Name vergeben: ersetzt Ihres</source>
  <translation>name taken: replaces yours</translation>
 </message>
 <message>
  <source>Natrium zu Kalium</source>
  <translation>Sodium to potassium</translation>
 </message>
 <message>
  <source>Neu: %1, ersetzt: %2, übersprungen: %3, schon vorhanden: %4.</source>
  <translation>New: %1, replaced: %2, left out: %3, there already: %4.</translation>
 </message>
 <message>
  <source>Nicht übernommene Spalten: %1.</source>
  <translation>Columns left out: %1.</translation>
 </message>
 <message>
  <source>Noch kein Besuch. Sobald zwei da sind, stehen sie hier nebeneinander.</source>
  <translation>No visit yet. As soon as there are two, they are compared here.</translation>
 </message>
 <message>
  <source>Noch kein abgelegter Plan. Sobald zwei da sind, stehen sie hier nebeneinander.</source>
  <translation>No plan kept yet. As soon as there are two, they are compared here.</translation>
 </message>
 <message>
  <source>Noch keine Messung von Gewicht und Größe.</source>
  <translation>No measurement of weight and height yet.</translation>
 </message>
 <message>
  <source>Noch keine Messung.</source>
  <translation>No measurement yet.</translation>
 </message>
 <message>
  <source>Nur %1 von %2 Feldern; die anderen sind leer.</source>
  <translation>Only %1 of %2 fields; the others are empty.</translation>
 </message>
 <message>
  <source>Nur für Werte einer Portion, deren Gewicht in keiner Spalte steht.</source>
  <translation>Only for values of a portion whose weight stands in no column.</translation>
 </message>
 <message>
  <source>Nächster: %1, vorheriger: %2</source>
  <translation>Next one: %1, one before: %2</translation>
 </message>
 <message>
  <source>Ohne Angabe der Größe gibt es keinen Zielbereich für das Gewicht.</source>
  <translation>Without the height there is no target range for the weight.</translation>
 </message>
 <message>
  <source>Ohne Angabe des Geschlechts gibt es keinen Zielbereich für die Taille.</source>
  <translation>Without the gender there is no target range for the waist.</translation>
 </message>
 <message>
  <source>Ohne Energiebedarf (--energy) zählen Energie, Protein, Fett und Kohlenhydrate keine Punkte.</source>
  <translation>Without an energy need (--energy), energy, protein, fat and carbohydrate earn no points.</translation>
 </message>
 <message>
  <source>Ohne Namen: %1.</source>
  <translation>Without a name: %1.</translation>
 </message>
 <message>
  <source>Optionen, vor oder hinter dem Befehl:</source>
  <translation>Options, before or after the command:</translation>
 </message>
 <message>
  <source>Ordner &amp;wählen …</source>
  <translation>&amp;Choose folder …</translation>
 </message>
 <message>
  <source>Ordner der eigenen Lebensmittel und des Plans; fehlt er, wird er angelegt</source>
  <translation>folder of own foods and plan; made where there is none</translation>
 </message>
 <message>
  <source>Ordner für PDF</source>
  <translation>Folder for PDFs</translation>
 </message>
 <message>
  <source>Ordner öffnen</source>
  <translation>Open folder</translation>
 </message>
 <message>
  <source>PDF …</source>
  <translation>PDF …</translation>
 </message>
 <message>
  <source>Platz von „%1“</source>
  <translation>place of “%1”</translation>
 </message>
 <message>
  <source>Punkt .</source>
  <translation>Point .</translation>
 </message>
 <message>
  <source>Punkte</source>
  <translation>Points</translation>
 </message>
 <message>
  <source>Rückgabewert: 0 erledigt, 1 nicht gelungen, 2 falscher Aufruf.</source>
  <translation>Exit status: 0 done, 1 failed, 2 wrong call.</translation>
 </message>
 <message>
  <source>Salz</source>
  <translation>Salt</translation>
 </message>
 <message>
  <source>Selbst gewählt</source>
  <translation>Own choice</translation>
 </message>
 <message>
  <source>Senkrechter Strich |</source>
  <translation>Vertical bar |</translation>
 </message>
 <message>
  <source>Sie ist beschädigt, ab Byte %1.</source>
  <translation>It is damaged, from byte %1 on.</translation>
 </message>
 <message>
  <source>Sie ist größer als 50 MB.</source>
  <translation>It is larger than 50 MB.</translation>
 </message>
 <message>
  <source>Sie ist kein Text. Tabellenprogramme sichern eine Tabelle als CSV.</source>
  <translation>It is no text. Spreadsheets save a table as CSV.</translation>
 </message>
 <message>
  <source>Sie ist leer.</source>
  <translation>It is empty.</translation>
 </message>
 <message>
  <source>Sie lässt sich nicht lesen. Vielleicht ist sie geschützt.</source>
  <translation>It cannot be read. Perhaps it is protected.</translation>
 </message>
 <message>
  <source>So beginnen mehrere Maße dieses Lebensmittels.</source>
  <translation>Several measures of this food begin like this.</translation>
 </message>
 <message>
  <source>So ist es schon eingestellt.</source>
  <translation>This is set already.</translation>
 </message>
 <message>
  <source>So kommt nichts in die eigenen Lebensmittel.</source>
  <translation>This way nothing comes to the own foods.</translation>
 </message>
 <message>
  <source>Spalte %1</source>
  <translation>Column %1</translation>
 </message>
 <message>
  <source>Spalte „%1“: „%2“ ist als %3 gelesen.</source>
  <translation>Column “%1”: “%2” is read as %3.</translation>
 </message>
 <message>
  <source>Sprache</source>
  <translation>Language</translation>
 </message>
 <message>
  <source>Sprache der Fenster und Texte</source>
  <translation>language of windows and texts</translation>
 </message>
 <message>
  <source>Strichpunkt ;</source>
  <translation>Semicolon ;</translation>
 </message>
 <message>
  <source>Suchergebnis</source>
  <translation>Search results</translation>
 </message>
 <message>
  <source>Summen</source>
  <translation>Sums</translation>
 </message>
 <message>
  <source>Tabellen (*.csv *.tsv *.txt);;Alle Dateien (*)</source>
  <translation>Tables (*.csv *.tsv *.txt);;All files (*)</translation>
 </message>
 <message>
  <source>Tabellen (*.csv);;Alle Dateien (*)</source>
  <translation>Tables (*.csv);;All files (*)</translation>
 </message>
 <message>
  <source>Tabulator</source>
  <translation>Tab</translation>
 </message>
 <message>
  <source>Taille zu Hüfte</source>
  <translation>Waist to hip</translation>
 </message>
 <message>
  <source>Treffer %1 von %2</source>
  <translation>Result %1 of %2</translation>
 </message>
 <message>
  <source>Trennlinie</source>
  <translation>Divider</translation>
 </message>
 <message>
  <source>Unter 19 Jahren gilt der Zielbereich für Erwachsene nicht.</source>
  <translation>Under 19 years of age the target range for adults does not apply.</translation>
 </message>
 <message>
  <source>Unter den Überschriften steht nichts.</source>
  <translation>Nothing stands below the headings.</translation>
 </message>
 <message>
  <source>Unterschied</source>
  <translation>Difference</translation>
 </message>
 <message>
  <source>Was daraus wird</source>
  <translation>What becomes of it</translation>
 </message>
 <message>
  <source>Was die Datei enthält</source>
  <translation>What the file holds</translation>
 </message>
 <message>
  <source>Was möchten Sie als PDF sichern?</source>
  <translation>What would you like to save as a PDF?</translation>
 </message>
 <message>
  <source>Was zu dieser Datei zu sagen ist</source>
  <translation>What there is to say about this file</translation>
 </message>
 <message>
  <source>Welches der beiden gilt</source>
  <translation>Which of the two holds</translation>
 </message>
 <message>
  <source>Wert</source>
  <translation>Value</translation>
 </message>
 <message>
  <source>Wie das System: D&amp;okumente</source>
  <translation>Like the system: D&amp;ocuments</translation>
 </message>
 <message>
  <source>Wie das Tabellenprogramm</source>
  <translation>As the spreadsheet has it</translation>
 </message>
 <message>
  <source>Wiederholen</source>
  <translation>Redo</translation>
 </message>
 <message>
  <source>Wiederholt: %1.</source>
  <translation>Redone: %1.</translation>
 </message>
 <message>
  <source>Wählen Sie zuerst ein Lebensmittel in der Tabelle aus.</source>
  <translation>Choose a food in the table first.</translation>
 </message>
 <message>
  <source>Wählen Sie zuerst eine Sportart.</source>
  <translation>First choose a sport.</translation>
 </message>
 <message>
  <source>Zahl der Lebensmittel</source>
  <translation>Number of foods</translation>
 </message>
 <message>
  <source>Zeile %1: %2</source>
  <translation>Line %1: %2</translation>
 </message>
 <message>
  <source>Zielbereich %1</source>
  <translation>Target range %1</translation>
 </message>
 <message>
  <source>Zielbereich nach: %1</source>
  <translation>Target range according to: %1</translation>
 </message>
 <message>
  <source>Zu der Option in „%1“ gehört keine Angabe.</source>
  <translation>The option in “%1” takes no value.</translation>
 </message>
 <message>
  <source>Zurückgenommen: %1.</source>
  <translation>Undone: %1.</translation>
 </message>
 <message>
  <source>Zurücknehmen</source>
  <translation>Undo</translation>
 </message>
 <message>
  <source>ab %1</source>
  <translation>from %1</translation>
 </message>
 <message>
  <source>ab %1 %</source>
  <translation>from %1 %</translation>
 </message>
 <message>
  <source>Auswertung</source>
  <translation>evaluation</translation>
 </message>
 <message>
  <source>Die Menge lässt sich einstellen, sobald das Lebensmittel in der Spalte „Lebensmittel“ oder „Eigene“ angeklickt ist.</source>
  <translation>The amount can be set once the food has been clicked in the column “Food” or “Own”.</translation>
 </message>
 <message>
  <source>Energie prüfen: angegeben %1 kcal, aus den Nährstoffen %2 kcal.</source>
  <translation>Check the energy: given %1 kcal, from the nutrients %2 kcal.</translation>
 </message>
 <message>
  <source>Energie prüfen: angegeben %1 kcal, aus den Nährstoffen %2 kcal. Fehlt ein Nährstoff, oder ist Alkohol darin?</source>
  <translation>Check the energy: given %1 kcal, from the nutrients %2 kcal. Is a nutrient missing, or is there alcohol in it?</translation>
 </message>
 <message>
  <source>Es ist kein Lebensmittel zu sehen.</source>
  <translation>No food is on display.</translation>
 </message>
 <message>
  <source>Gesichert werden Werte für 100 g: Stellen Sie zuerst die Menge auf 100 g.</source>
  <translation>Values are saved for 100 g: first set the amount to 100 g.</translation>
 </message>
 <message>
  <source>Ist bei Natrium Salz gemeint? %1 g Salz sind %2 mg Natrium.</source>
  <translation>Is salt meant by the sodium? %1 g of salt are %2 mg of sodium.</translation>
 </message>
 <message>
  <source>Kein Lebensmittel erfüllt alle Kriterien. Schalten Sie eines aus, oder ändern Sie eine Grenze.</source>
  <translation>No food meets all criteria. Switch one off, or change a limit.</translation>
 </message>
 <message>
  <source>Liste</source>
  <translation>list</translation>
 </message>
 <message>
  <source>Liste mit Nährstoffen</source>
  <translation>list with nutrients</translation>
 </message>
 <message>
  <source>Mengen prüfen: Protein, Fett, Kohlenhydrate und Ballaststoffe ergeben %1 g in %2 g.</source>
  <translation>Check the amounts: protein, fat, carbohydrate and fibre add up to %1 g in %2 g.</translation>
 </message>
 <message>
  <source>Natrium prüfen: %1 mg sind %2 g Salz, mehr als neben den anderen Nährstoffen Platz hat.</source>
  <translation>Check the sodium: %1 mg are %2 g of salt, more than there is room for beside the other nutrients.</translation>
 </message>
 <message>
  <source>Noch kein Lebensmittel gewählt</source>
  <translation>No food chosen yet</translation>
 </message>
 <message>
  <source>Noch keine.
Neu: %1</source>
  <translation>None yet.
New: %1</translation>
 </message>
 <message>
  <source>Schalten Sie das Kriterium davor ein, um es einzustellen.</source>
  <translation>Switch on the criterion before it to set this.</translation>
 </message>
 <message>
  <source>So geht es los:
1. Links oben einen Namen suchen.
2. Ein Lebensmittel anklicken.
3. Hier oben die Menge einstellen.
4. Mit %1 in den Mahlzeitenplan geben.</source>
  <translation>How to begin:
1. Search for a name, above on the left.
2. Click on a food.
3. Set the amount, above here.
4. Send it to the meal plan with %1.</translation>
 </message>
 <message>
  <source>bis %1</source>
  <translation>up to %1</translation>
 </message>
 <message>
  <source>bleibt draußen</source>
  <translation>stays out</translation>
 </message>
 <message>
  <source>bleibt weg</source>
  <translation>is left out</translation>
 </message>
 <message>
  <source>eigene ersetzen</source>
  <translation>replace own</translation>
 </message>
 <message>
  <source>eigenes</source>
  <translation>own</translation>
 </message>
 <message>
  <source>eigenes Lebensmittel</source>
  <translation>own food</translation>
 </message>
 <message>
  <source>eine Portion</source>
  <translation>a portion</translation>
 </message>
 <message>
  <source>einem Rechner alter Bauart (Big-Endian)</source>
  <translation>a computer of the old kind (big-endian)</translation>
 </message>
 <message>
  <source>einem Rechner heutiger Bauart (Little-Endian)</source>
  <translation>a computer of today’s kind (little-endian)</translation>
 </message>
 <message>
  <source>eingebaut</source>
  <translation>built-in</translation>
 </message>
 <message>
  <source>früherer Stand der eigenen Lebensmittel</source>
  <translation>earlier state of your own foods</translation>
 </message>
 <message>
  <source>früherer Stand des Plans</source>
  <translation>earlier state of the plan</translation>
 </message>
 <message>
  <source>gering</source>
  <translation>low</translation>
 </message>
 <message>
  <source>gilt erst ab 11 Jahren</source>
  <translation>holds from 11 years on</translation>
 </message>
 <message>
  <source>gut</source>
  <translation>good</translation>
 </message>
 <message>
  <source>günstig</source>
  <translation>favourable</translation>
 </message>
 <message>
  <source>heißt jetzt „%1“ und zählt nicht mit</source>
  <translation>is now called “%1” and does not count</translation>
 </message>
 <message>
  <source>je Spalte erkannt</source>
  <translation>found out for each column</translation>
 </message>
 <message>
  <source>keine Angabe</source>
  <translation>not stated</translation>
 </message>
 <message>
  <source>keine Zahl</source>
  <translation>no number</translation>
 </message>
 <message>
  <source>macht einen Rundgang durch die Fenster und legt Bilder davon ab; eigene Dateien bleiben unberührt</source>
  <translation>takes a tour through the windows and leaves pictures of it; your own files stay untouched</translation>
 </message>
 <message>
  <source>mahlberg --data-dir ~/Praxis</source>
  <translation>mahlberg --data-dir ~/Practice</translation>
 </message>
 <message>
  <source>mahlberg --tour /tmp/Rundgang</source>
  <translation>mahlberg --tour /tmp/tour</translation>
 </message>
 <message>
  <source>mahlberg [OPTION …] DATEI.daten …</source>
  <translation>mahlberg [OPTION …] FILE.daten …</translation>
 </message>
 <message>
  <source>mahlberg evaluate [OPTION …] PLAN.daten</source>
  <translation>mahlberg evaluate [OPTION …] PLAN.daten</translation>
 </message>
 <message>
  <source>mahlberg food --format json Butter</source>
  <translation>mahlberg food --format json Butter</translation>
 </message>
 <message>
  <source>mahlberg food --own Müsli</source>
  <translation>mahlberg food --own Muesli</translation>
 </message>
 <message>
  <source>mahlberg food Haferflocken 50</source>
  <translation>mahlberg food "Wheat germ" 50</translation>
 </message>
 <message>
  <source>mahlberg food [OPTION …] NAME [GRAMM]</source>
  <translation>mahlberg food [OPTION …] NAME [GRAMS]</translation>
 </message>
 <message>
  <source>mittel</source>
  <translation>medium</translation>
 </message>
 <message>
  <source>neu</source>
  <translation>new</translation>
 </message>
 <message>
  <source>neue Namen im Plan</source>
  <translation>new names in the plan</translation>
 </message>
 <message>
  <source>nicht im Plan</source>
  <translation>not in the plan</translation>
 </message>
 <message>
  <source>noch %1</source>
  <translation>%1 left</translation>
 </message>
 <message>
  <source>noch nicht eingestellt: %1</source>
  <translation>not set yet: %1</translation>
 </message>
 <message>
  <source>ohne Datum</source>
  <translation>without a date</translation>
 </message>
 <message>
  <source>ohne Namen: bleibt draußen</source>
  <translation>without a name: stays out</translation>
 </message>
 <message>
  <source>schon da</source>
  <translation>here already</translation>
 </message>
 <message>
  <source>steht in keiner Tabelle und zählt nicht mit</source>
  <translation>stands in no table and does not count</translation>
 </message>
 <message>
  <source>und %1 weitere</source>
  <translation>and %1 more</translation>
 </message>
 <message>
  <source>ungünstig</source>
  <translation>unfavourable</translation>
 </message>
 <message>
  <source>unter 100 kcal sagt die 0 nichts aus</source>
  <translation>below 100 kcal the 0 says nothing</translation>
 </message>
 <message>
  <source>unter neuem Namen dazu</source>
  <translation>add under a new name</translation>
 </message>
 <message>
  <source>verfehlt</source>
  <translation>missed</translation>
 </message>
 <message>
  <source>knapp daneben</source>
  <translation>just beside</translation>
 </message>
 <message>
  <source>im Ziel</source>
  <translation>on target</translation>
 </message>
 <message>
  <source>ungeeignet</source>
  <translation>unsuitable</translation>
 </message>
 <message>
  <source>neutral</source>
  <translation>neutral</translation>
 </message>
 <message>
  <source>geeignet</source>
  <translation>suitable</translation>
 </message>
 <message>
  <source>% der Zufuhr in </source>
  <translation>% of the daily need in </translation>
 </message>
 <message>
  <source>%1 heißt jetzt %2 und steht unter diesem Namen schon im Plan; die Zeile mit dem alten zählt nicht mit.</source>
  <translation>%1 is called %2 now and is in the plan under that name already; the row with the former one does not count.</translation>
 </message>
 <message>
  <source>%1 im Plan heißt jetzt %2. Unter dem alten Namen zählt es nicht mit.</source>
  <translation>%1 in the plan is called %2 now. Under its former name it does not count.</translation>
 </message>
 <message>
  <source>%1 Lebensmittel im Plan heißen jetzt anders, z. B. %2 jetzt %3. Unter den alten Namen zählen sie nicht mit.</source>
  <translation>%1 foods in the plan have other names now, such as %2, now %3. Under their former names they do not count.</translation>
 </message>
 <message>
  <source>%1 Lebensmittel. Seitdem gelöscht: %2, geändert: %3, neu: %4.</source>
  <translation>%1 foods. Deleted since: %2, changed: %3, new: %4.</translation>
 </message>
 <message>
  <source>%1 mehr</source>
  <translation>%1 more</translation>
 </message>
 <message>
  <source>%1 stehen nicht mehr in der Tabelle und zählen im Plan nicht mit.</source>
  <translation>%1 are not in the table any more and do not count in the plan.</translation>
 </message>
 <message>
  <source>%1 steht nicht mehr in der Tabelle und zählt im Plan nicht mit.</source>
  <translation>%1 is not in the table any more and does not count in the plan.</translation>
 </message>
 <message>
  <source>%1 und %2 weitere</source>
  <translation>%1 and %2 more</translation>
 </message>
 <message>
  <source>%1 von %2</source>
  <translation>%1 of %2</translation>
 </message>
 <message>
  <source>%1 von %2, %3</source>
  <translation>%1 of %2, %3</translation>
 </message>
 <message>
  <source>%1 von 21 Punkten</source>
  <translation>%1 of 21 points</translation>
 </message>
 <message>
  <source>%1 weitere</source>
  <translation>%1 more</translation>
 </message>
 <message>
  <source>%1 weniger</source>
  <translation>%1 less</translation>
 </message>
 <message>
  <source>%1 zu viel (%2)</source>
  <translation>%1 too much (%2)</translation>
 </message>
 <message>
  <source>%1: „%2“</source>
  <translation>%1: “%2”</translation>
 </message>
 <message>
  <source>%1; der Energiebedarf ist noch nicht bekannt</source>
  <translation>%1; the energy requirement is not known yet</translation>
 </message>
 <message>
  <source>&amp;Ablage</source>
  <translation>&amp;File</translation>
 </message>
 <message>
  <source>&amp;Ausschneiden</source>
  <translation>Cu&amp;t</translation>
 </message>
 <message>
  <source>&amp;Bearbeiten</source>
  <translation>&amp;Edit</translation>
 </message>
 <message>
  <source>&amp;Beenden</source>
  <translation>&amp;Quit</translation>
 </message>
 <message>
  <source>&amp;Darstellung</source>
  <translation>&amp;View</translation>
 </message>
 <message>
  <source>&amp;Drucken …</source>
  <translation>&amp;Print …</translation>
 </message>
 <message>
  <source>&amp;Dunkel</source>
  <translation>&amp;Dark</translation>
 </message>
 <message>
  <source>&amp;Eigenes Lebensmittel der Zeile zeigen</source>
  <translation>&amp;Show own food of this row</translation>
 </message>
 <message>
  <source>&amp;Einfügen</source>
  <translation>&amp;Paste</translation>
 </message>
 <message>
  <source>&amp;Fenster</source>
  <translation>&amp;Window</translation>
 </message>
 <message>
  <source>&amp;Frühere Stände …</source>
  <translation>&amp;Earlier states …</translation>
 </message>
 <message>
  <source>&amp;Hell</source>
  <translation>&amp;Light</translation>
 </message>
 <message>
  <source>&amp;Hilfe</source>
  <translation>&amp;Help</translation>
 </message>
 <message>
  <source>&amp;Kopieren</source>
  <translation>&amp;Copy</translation>
 </message>
 <message>
  <source>&amp;Minimieren</source>
  <translation>&amp;Minimise</translation>
 </message>
 <message>
  <source>&amp;Neues Lebensmittel …</source>
  <translation>&amp;New food …</translation>
 </message>
 <message>
  <source>&amp;Nächste Ansicht</source>
  <translation>&amp;Next view</translation>
 </message>
 <message>
  <source>&amp;Profilsuche</source>
  <translation>Pr&amp;ofile search</translation>
 </message>
 <message>
  <source>&amp;Rückgängig</source>
  <translation>&amp;Undo</translation>
 </message>
 <message>
  <source>&amp;Stände von</source>
  <translation>&amp;States of</translation>
 </message>
 <message>
  <source>&amp;Vollbild</source>
  <translation>&amp;Full screen</translation>
 </message>
 <message>
  <source>&amp;Wiederholen</source>
  <translation>&amp;Redo</translation>
 </message>
 <message>
  <source>&amp;Zurückholen</source>
  <translation>&amp;Bring back</translation>
 </message>
 <message>
  <source>&amp;Über Mahlberg</source>
  <translation>&amp;About Mahlberg</translation>
 </message>
 <message>
  <source>(ohne Namen)</source>
  <translation>(without a name)</translation>
 </message>
 <message>
  <source>100 % der Energie = %1 am Tag</source>
  <translation>100 % of the energy = %1 a day</translation>
 </message>
 <message>
  <source>100 % der Energie = %1 am Tag (zum Abnehmen)</source>
  <translation>100 % of the energy = %1 a day (to lose weight)</translation>
 </message>
 <message>
  <source>100 % der Energie: noch nicht bekannt (unter „Körper und Energie“)</source>
  <translation>100 % of the energy: not known yet (under “Body and energy”)</translation>
 </message>
 <message>
  <source>A&amp;lles auswählen</source>
  <translation>Select &amp;all</translation>
 </message>
 <message>
  <source>Abbrechen</source>
  <translation>Cancel</translation>
 </message>
 <message>
  <source>Abnahme</source>
  <translation>Loss</translation>
 </message>
 <message>
  <source>Abnahme des Gewichts in diesem Zeitraum</source>
  <translation>Loss of weight in this period</translation>
 </message>
 <message>
  <source>Achtung !</source>
  <translation>Attention!</translation>
 </message>
 <message>
  <source>Achtung !  Sie koennen nur eigene Lebensmittel loeschen !</source>
  <translation>Attention! You can only delete foods of your own!</translation>
 </message>
 <message>
  <source>anders</source>
  <translation>different</translation>
 </message>
 <message>
  <source>Anpassen</source>
  <translation>Customise</translation>
 </message>
 <message>
  <source>Ansicht</source>
  <translation>View</translation>
 </message>
 <message>
  <source>Anteile und Gewichtsverlauf rechnen mit %1: der Energie aus Protein, Kohlenhydraten und Fett.</source>
  <translation>Shares and course of weight go by %1: the energy from protein, carbohydrate and fat.</translation>
 </message>
 <message>
  <source>Anzeigen:</source>
  <translation>Show:</translation>
 </message>
 <message>
  <source>Aus der Leiste entfernen</source>
  <translation>Remove from the toolbar</translation>
 </message>
 <message>
  <source>B1</source>
  <translation>B1</translation>
 </message>
 <message>
  <source>B2</source>
  <translation>B2</translation>
 </message>
 <message>
  <source>B6</source>
  <translation>B6</translation>
 </message>
 <message>
  <source>BE und Relationen in </source>
  <translation>BE and ratios in </translation>
 </message>
 <message>
  <source>beiseitegelegt am %1</source>
  <translation>put aside on %1</translation>
 </message>
 <message>
  <source>Bis zum Tagesbedarf</source>
  <translation>Left to a day’s need</translation>
 </message>
 <message>
  <source>BS</source>
  <translation>Fibre</translation>
 </message>
 <message>
  <source>Ballaststoffe</source>
  <translation>Fibre</translation>
 </message>
 <message>
  <source>Beenden</source>
  <translation>Quit</translation>
 </message>
 <message>
  <source>Bitte einen Namen eingeben</source>
  <translation>Please enter a name</translation>
 </message>
 <message>
  <source>Bitte waehlen Sie zuerst ein eigenes Lebensmittel zum Loeschen aus </source>
  <translation>Please choose a food of your own to delete first </translation>
 </message>
 <message>
  <source>Ca</source>
  <translation>Ca</translation>
 </message>
 <message>
  <source>Calcium</source>
  <translation>Calcium</translation>
 </message>
 <message>
  <source>Chol</source>
  <translation>Chol</translation>
 </message>
 <message>
  <source>Cholesterin</source>
  <translation>Cholesterol</translation>
 </message>
 <message>
  <source>Das Drucken ist nicht gelungen.</source>
  <translation>Printing did not succeed.</translation>
 </message>
 <message>
  <source>Datenpaket könnte beschädigt sein</source>
  <translation>The data package may be damaged</translation>
 </message>
 <message>
  <source>Der Drucker „%1“ nimmt den Auftrag nicht an. Vielleicht ist er ausgeschaltet oder nicht mehr angeschlossen.</source>
  <translation>The printer “%1” does not take the job. Perhaps it is switched off or no longer connected.</translation>
 </message>
 <message>
  <source>Der Energiebedarf ist noch nicht bekannt (unter „Körper und Energie“).</source>
  <translation>The energy requirement is not known yet (under “Body and energy”).</translation>
 </message>
 <message>
  <source>Der frühere Stand ist zurückgeholt.</source>
  <translation>The earlier state is back.</translation>
 </message>
 <message>
  <source>Der Plan ist leer</source>
  <translation>The plan is empty</translation>
 </message>
 <message>
  <source>Detaillierte Liste</source>
  <translation>Detailed list</translation>
 </message>
 <message>
  <source>Diab.</source>
  <translation>Diab.</translation>
 </message>
 <message>
  <source>Diabetes</source>
  <translation>Diabetes</translation>
 </message>
 <message>
  <source>Die ausgewählte Zeile gibt es nicht mehr.</source>
  <translation>The selected row is no more.</translation>
 </message>
 <message>
  <source>Die ausgewählte Zeile steht für „%1“.</source>
  <translation>The selected row stands for “%1”.</translation>
 </message>
 <message>
  <source>Die Datei „%1“ ist beschädigt; was in ihr stand, fehlt hier. Sie wird aufgehoben. Vielleicht hilft ein früherer Stand.</source>
  <translation>The file “%1” is damaged; what it held is missing here. It is kept. Perhaps an earlier state helps.</translation>
 </message>
 <message>
  <source>Die Datei „%1“ lässt sich nicht lesen; was in ihr steht, fehlt hier, geht aber nicht verloren. Bitte prüfen Sie Ordner und Platte und starten Sie Mahlberg neu.</source>
  <translation>The file “%1” can’t be read; what it holds is missing here, but is not lost. Please check the folder and the disk and start Mahlberg again.</translation>
 </message>
 <message>
  <source>Die Datei „%1“ lässt sich nicht schreiben. Vielleicht ist der Ordner geschützt oder kein Platz mehr frei.</source>
  <translation>The file “%1” cannot be written. Perhaps the folder is protected or there is no space left.</translation>
 </message>
 <message>
  <source>Die Datei „%1“ lässt sich nicht schreiben: Die letzte Änderung ist nicht gesichert. Ist die Platte voll oder der Ordner geschützt?</source>
  <translation>The file “%1” can’t be written: the last change is not saved. Is the disk full or the folder protected?</translation>
 </message>
 <message>
  <source>Die des Fensters sichern</source>
  <translation>Save the window’s</translation>
 </message>
 <message>
  <source>Die Einstellungen lassen sich nicht sichern: Die Datei „%1“ ist nicht zu lesen oder nicht zu schreiben.</source>
  <translation>The settings can’t be saved: the file “%1” can’t be read or can’t be written.</translation>
 </message>
 <message>
  <source>Die Lebensmittel stehen bis zum nächsten Start in der bisherigen Reihenfolge.</source>
  <translation>The foods stay in their present order until the next start.</translation>
 </message>
 <message>
  <source>Die gewählten Seiten gibt es nicht.</source>
  <translation>The chosen pages do not exist.</translation>
 </message>
 <message>
  <source>Die Tabelle zeigt den Plan vor dem letzten Verschieben.</source>
  <translation>The table shows the plan before the last move.</translation>
 </message>
 <message>
  <source>Die Zeilen stehen für andere Lebensmittel.</source>
  <translation>Its rows stand for other foods.</translation>
 </message>
 <message>
  <source>Diese Datei lässt sich nicht lesen: %1</source>
  <translation>This file can’t be read: %1</translation>
 </message>
 <message>
  <source>Diese Wertung haben Sie selbst vergeben.</source>
  <translation>You gave this rating yourself.</translation>
 </message>
 <message>
  <source>Drucken</source>
  <translation>Print</translation>
 </message>
 <message>
  <source>E&amp;rscheinungsbild</source>
  <translation>&amp;Appearance</translation>
 </message>
 <message>
  <source>ebenso</source>
  <translation>the same</translation>
 </message>
 <message>
  <source>Eigene</source>
  <translation>Own</translation>
 </message>
 <message>
  <source>Eigene Lebensmittel</source>
  <translation>Own foods</translation>
 </message>
 <message>
  <source>Eigenes Lebensmittel &amp;löschen …</source>
  <translation>&amp;Delete own food …</translation>
 </message>
 <message>
  <source>Eigenes Lebensmittel &amp;sichern …</source>
  <translation>&amp;Save own food …</translation>
 </message>
 <message>
  <source>Ein Lebensmittel, das in keiner Tabelle steht, zählt nicht mit, auch nicht seine Menge.</source>
  <translation>A food that is in no table does not count, nor does its amount.</translation>
 </message>
 <message>
  <source>Ein Plan mit Lücken</source>
  <translation>A plan with gaps</translation>
 </message>
 <message>
  <source>Ein guter Plan</source>
  <translation>A good plan</translation>
 </message>
 <message>
  <source>Ein unausgewogener Plan</source>
  <translation>An unbalanced plan</translation>
 </message>
 <message>
  <source>Eine Hilfe für die Beratung; sie ersetzt kein ärztliches Urteil. Lizenz: MIT.</source>
  <translation>An aid for counselling; it does not replace a doctor’s judgement. Licence: MIT.</translation>
 </message>
 <message>
  <source>eines ohne Namen</source>
  <translation>one without a name</translation>
 </message>
 <message>
  <source>Einfache Liste</source>
  <translation>Simple list</translation>
 </message>
 <message>
  <source>Eisen</source>
  <translation>Iron</translation>
 </message>
 <message>
  <source>En.</source>
  <translation>En.</translation>
 </message>
 <message>
  <source>Energie</source>
  <translation>Energy</translation>
 </message>
 <message>
  <source>Ernährungsberatung und Diätplanung: Lebensmittel, ihre Nährwerte und ihre Eignung, Mahlzeitenpläne und der Energiebedarf.</source>
  <translation>Nutrition counselling and diet planning: foods, their nutrients and their suitability, meal plans and the energy requirement.</translation>
 </message>
 <message>
  <source>es fehlen: %1</source>
  <translation>missing: %1</translation>
 </message>
 <message>
  <source>Es fehlen: %1</source>
  <translation>Missing: %1</translation>
 </message>
 <message>
  <source>Es gibt noch keine früheren Stände. An jedem Tag, an dem sich etwas ändert, wird der Stand davor aufgehoben; die letzten zehn bleiben.</source>
  <translation>There are no earlier states yet. On each day on which something changes, the state before is kept; the last ten remain.</translation>
 </message>
 <message>
  <source>Es wird nichts angezeigt, das gedruckt werden könnte.</source>
  <translation>Nothing is displayed that could be printed.</translation>
 </message>
 <message>
  <source>Fe</source>
  <translation>Fe</translation>
 </message>
 <message>
  <source>fehlt</source>
  <translation>missing</translation>
 </message>
 <message>
  <source>Fertig</source>
  <translation>Done</translation>
 </message>
 <message>
  <source>Fett</source>
  <translation>Fat</translation>
 </message>
 <message>
  <source>Flexibler Leerraum</source>
  <translation>Flexible space</translation>
 </message>
 <message>
  <source>Frau</source>
  <translation>Woman</translation>
 </message>
 <message>
  <source>Frühere Stände</source>
  <translation>Earlier states</translation>
 </message>
 <message>
  <source>Frühere Stände …</source>
  <translation>Earlier states …</translation>
 </message>
 <message>
  <source>Für den Verlauf fehlen Gewicht und Größe (unter „Körper und Energie“).</source>
  <translation>The course needs weight and height (under “Body and energy”).</translation>
 </message>
 <message>
  <source>Für den Verlauf fehlt das Gewicht (unter „Körper und Energie“).</source>
  <translation>The course needs the weight (under “Body and energy”).</translation>
 </message>
 <message>
  <source>Gesamt</source>
  <translation>Total</translation>
 </message>
 <message>
  <source>Gesund sind %1 bis %2.</source>
  <translation>Healthy is %1 to %2.</translation>
 </message>
 <message>
  <source>Gew.</source>
  <translation>Ovw.</translation>
 </message>
 <message>
  <source>Gewicht heute %1, nach einer Woche %2, nach zwei %3, nach drei %4, nach vier %5.</source>
  <translation>Weight today %1, after one week %2, after two %3, after three %4, after four %5.</translation>
 </message>
 <message>
  <source>Gewicht oder Größe sind neu: Der Verlauf folgt mit der nächsten Änderung am Plan.</source>
  <translation>Weight or height are new: the course follows with the next change of the plan.</translation>
 </message>
 <message>
  <source>Gicht</source>
  <translation>Gout</translation>
 </message>
 <message>
  <source>Grafische Darstellung</source>
  <translation>Graphic</translation>
 </message>
 <message>
  <source>Gramm</source>
  <translation>Grams</translation>
 </message>
 <message>
  <source>Heute</source>
  <translation>Today</translation>
 </message>
 <message>
  <source>Hinweis</source>
  <translation>Notice</translation>
 </message>
 <message>
  <source>Hinweis schließen</source>
  <translation>Close the notice</translation>
 </message>
 <message>
  <source>HKK</source>
  <translation>CVD</translation>
 </message>
 <message>
  <source>Herz und Kreislauf</source>
  <translation>Heart and circulation</translation>
 </message>
 <message>
  <source>In den Mahlzeiten&amp;plan</source>
  <translation>To the &amp;meal plan</translation>
 </message>
 <message>
  <source>In der Datei stehen jetzt andere eigene Lebensmittel als in diesem Fenster, so wie der Plan sie kennt (%1).</source>
  <translation>The file now holds other own foods than this window, those that the plan knows (%1).</translation>
 </message>
 <message>
  <source>In der Datei „%1“ stand etwas, das nicht von hier kam. Es ist aufgehoben als „%2“.</source>
  <translation>The file “%1” held something that did not come from here. It is kept as “%2”.</translation>
 </message>
 <message>
  <source>Inhalt des Standes</source>
  <translation>What the state holds</translation>
 </message>
 <message>
  <source>Inhaltstoffe in </source>
  <translation>Nutrients in </translation>
 </message>
 <message>
  <source>Inhaltstoffe in 1 gramm</source>
  <translation>Nutrients in 1 gram</translation>
 </message>
 <message>
  <source>Ist: Protein %1, Kohlenhydrate %2, Fett %3.</source>
  <translation>Actual: protein %1, carbohydrate %2, fat %3.</translation>
 </message>
 <message>
  <source>Ja</source>
  <translation>Yes</translation>
 </message>
 <message>
  <source>Jetzt sichern</source>
  <translation>Save now</translation>
 </message>
 <message>
  <source>kcal je 100 g</source>
  <translation>kcal per 100 g</translation>
 </message>
 <message>
  <source>KH</source>
  <translation>Carb</translation>
 </message>
 <message>
  <source>Ka</source>
  <translation>K</translation>
 </message>
 <message>
  <source>Kalium</source>
  <translation>Potassium</translation>
 </message>
 <message>
  <source>Kalorien</source>
  <translation>Calories</translation>
 </message>
 <message>
  <source>Kcal</source>
  <translation>Kcal</translation>
 </message>
 <message>
  <source>Keine Lebensmittel gefunden!</source>
  <translation>No foods found!</translation>
 </message>
 <message>
  <source>Kohlenhydrate</source>
  <translation>Carbohydrate</translation>
 </message>
 <message>
  <source>Komma und Punkt trennen beide die Nachkommastellen: 12,5 und 12.5 sind dasselbe, 1.500 ist 1,5.</source>
  <translation>Comma and point both separate the decimals: 12,5 and 12.5 are the same, 1,500 is 1.5.</translation>
 </message>
 <message>
  <source>Kreis, Balken und Farben zeigen noch das Lebensmittel davor.</source>
  <translation>Circle, bars and colours still show the food before.</translation>
 </message>
 <message>
  <source>LM anPlanmodul</source>
  <translation>Food to plan</translation>
 </message>
 <message>
  <source>LM loeschen</source>
  <translation>Delete food</translation>
 </message>
 <message>
  <source>Lebensmittel</source>
  <translation>Food</translation>
 </message>
 <message>
  <source>Lebensmittel &amp;suchen</source>
  <translation>&amp;Find food</translation>
 </message>
 <message>
  <source>Lebensmittel an Planmodul</source>
  <translation>Food to the meal plan</translation>
 </message>
 <message>
  <source>Leerraum</source>
  <translation>Space</translation>
 </message>
 <message>
  <source>Leiste anpassen …</source>
  <translation>Customise toolbar …</translation>
 </message>
 <message>
  <source>Ma&amp;ximieren</source>
  <translation>Ma&amp;ximise</translation>
 </message>
 <message>
  <source>Magnesium</source>
  <translation>Magnesium</translation>
 </message>
 <message>
  <source>Mahlberg ist schon geöffnet.</source>
  <translation>Mahlberg is already open.</translation>
 </message>
 <message>
  <source>Mahlzeiten&amp;plan</source>
  <translation>Meal &amp;plan</translation>
 </message>
 <message>
  <source>Mahlzeitenplan</source>
  <translation>Meal plan</translation>
 </message>
 <message>
  <source>Mann</source>
  <translation>Man</translation>
 </message>
 <message>
  <source>Menge</source>
  <translation>Amount</translation>
 </message>
 <message>
  <source>Menge Lebensmittel (100g)</source>
  <translation>Amount of food (100g)</translation>
 </message>
 <message>
  <source>Menge, g</source>
  <translation>Amount, g</translation>
 </message>
 <message>
  <source>Menge, g. Komma und Punkt trennen beide die Nachkommastellen: 12,5 oder 12.5</source>
  <translation>Amount, g. Comma and point both part the decimals: 12,5 or 12.5</translation>
 </message>
 <message>
  <source>Mg</source>
  <translation>Mg</translation>
 </message>
 <message>
  <source>mit anderen Werten: %1</source>
  <translation>with other values: %1</translation>
 </message>
 <message>
  <source>Mit diesem Plan nicht zu erreichen: Er hat mehr Energie, als gebraucht wird.</source>
  <translation>Not to be reached with this plan: it has more energy than is needed.</translation>
 </message>
 <message>
  <source>Mit diesem Plan nicht zu erreichen: Er hat so viel Energie, wie gebraucht wird.</source>
  <translation>Not to be reached with this plan: it has as much energy as is needed.</translation>
 </message>
 <message>
  <source>Moechten Sie dieses eigene Lebensmittel wirklich dauerhaft loeschen ?  </source>
  <translation>Do you really want to delete this food of your own for good?  </translation>
 </message>
 <message>
  <source>Na</source>
  <translation>Na</translation>
 </message>
 <message>
  <source>Natrium</source>
  <translation>Sodium</translation>
 </message>
 <message>
  <source>Nein</source>
  <translation>No</translation>
 </message>
 <message>
  <source>Neue Namen übernehmen</source>
  <translation>Take the new names</translation>
 </message>
 <message>
  <source>Neues LM</source>
  <translation>New food</translation>
 </message>
 <message>
  <source>noch %1 (%2)</source>
  <translation>%1 left (%2)</translation>
 </message>
 <message>
  <source>Noch kein Verlauf.</source>
  <translation>No course yet.</translation>
 </message>
 <message>
  <source>Nur Symbol</source>
  <translation>Icon only</translation>
 </message>
 <message>
  <source>Nur Text</source>
  <translation>Text only</translation>
 </message>
 <message>
  <source>Nährwerte je 100 g: Schweizer Nährwertdatenbank, generische Lebensmittel, Version 7.0, Bundesamt für Lebensmittelsicherheit und Veterinärwesen BLV</source>
  <translation>Values per 100 g: Swiss Food Composition Database, generic foods, version 7.0, Federal Food Safety and Veterinary Office FSVO</translation>
 </message>
 <message>
  <source>Nährwerte: Schweizer Nährwertdatenbank, generische Lebensmittel, Version 7.0 vom 1. Juli 2025. Herausgeber: Bundesamt für Lebensmittelsicherheit und Veterinärwesen BLV, Schweiz. Freie Nutzung mit Angabe der Quelle. Namen, Auswahl und Bewertungen der Lebensmittel sind von Mahlberg.</source>
  <translation>Values: Swiss Food Composition Database, generic foods, version 7.0 of 1 July 2025. Publisher: Federal Food Safety and Veterinary Office FSVO, Switzerland. Free use, subject to acknowledgment of the source. Names, choice and ratings of the foods are Mahlberg’s own.</translation>
 </message>
 <message>
  <source>Ob der Wunsch erreicht wird, ist ohne Energiebedarf nicht bekannt.</source>
  <translation>Without an energy requirement it is not known whether the wish comes true.</translation>
 </message>
 <message>
  <source>Ohne Größe (unter „Körper und Energie“) sagen die Farben nichts.</source>
  <translation>Without the height (under “Body and energy”) the colours say nothing.</translation>
 </message>
 <message>
  <source>Ordner zeigen</source>
  <translation>Show the folder</translation>
 </message>
 <message>
  <source>Ph</source>
  <translation>Ph</translation>
 </message>
 <message>
  <source>Phosphat</source>
  <translation>Phosphate</translation>
 </message>
 <message>
  <source>Plan neu zeigen</source>
  <translation>Show the plan anew</translation>
 </message>
 <message>
  <source>Planmodul</source>
  <translation>Meal plan</translation>
 </message>
 <message>
  <source>Prot</source>
  <translation>Prot</translation>
 </message>
 <message>
  <source>Protein</source>
  <translation>Protein</translation>
 </message>
 <message>
  <source>Rückgängig</source>
  <translation>Undo</translation>
 </message>
 <message>
  <source>S&amp;prache</source>
  <translation>&amp;Language</translation>
 </message>
 <message>
  <source>Schließen</source>
  <translation>Close</translation>
 </message>
 <message>
  <source>Seite %1 von %2</source>
  <translation>Page %1 of %2</translation>
 </message>
 <message>
  <source>Soll</source>
  <translation>Target</translation>
 </message>
 <message>
  <source>Soll: Protein %1, Kohlenhydrate %2, Fett %3.</source>
  <translation>Target: protein %1, carbohydrate %2, fat %3.</translation>
 </message>
 <message>
  <source>Sport</source>
  <translation>Sport</translation>
 </message>
 <message>
  <source>Stände, der jüngste zuerst</source>
  <translation>States, the latest first</translation>
 </message>
 <message>
  <source>Suche</source>
  <translation>Search</translation>
 </message>
 <message>
  <source>Suche: %1 gefunden</source>
  <translation>Search: %1 found</translation>
 </message>
 <message>
  <source>Suche: nichts gefunden</source>
  <translation>Search: nothing found</translation>
 </message>
 <message>
  <source>Summe</source>
  <translation>Sum</translation>
 </message>
 <message>
  <source>Summe (%1 zählen nicht mit)</source>
  <translation>Sum (%1 do not count)</translation>
 </message>
 <message>
  <source>Summe (1 zählt nicht mit)</source>
  <translation>Sum (1 does not count)</translation>
 </message>
 <message>
  <source>Sy&amp;mbolleiste zeigen</source>
  <translation>Show &amp;toolbar</translation>
 </message>
 <message>
  <source>Symbol und Text</source>
  <translation>Icon and text</translation>
 </message>
 <message>
  <source>Symbolleiste</source>
  <translation>Toolbar</translation>
 </message>
 <message>
  <source>Symbolleiste &amp;anpassen …</source>
  <translation>&amp;Customise toolbar …</translation>
 </message>
 <message>
  <source>Symbolleiste anpassen</source>
  <translation>Customise toolbar</translation>
 </message>
 <message>
  <source>Toolbar anpassen</source>
  <translation>Customise toolbar</translation>
 </message>
 <message>
  <source>Trotzdem öffnen</source>
  <translation>Open anyway</translation>
 </message>
 <message>
  <source>Ueberg.</source>
  <translation>Overw.</translation>
 </message>
 <message>
  <source>unbekannt</source>
  <translation>unknown</translation>
 </message>
 <message>
  <source>unverändert</source>
  <translation>unchanged</translation>
 </message>
 <message>
  <source>Version %1</source>
  <translation>Version %1</translation>
 </message>
 <message>
  <source>VitA</source>
  <translation>VitA</translation>
 </message>
 <message>
  <source>VitB1</source>
  <translation>VitB1</translation>
 </message>
 <message>
  <source>VitB2</source>
  <translation>VitB2</translation>
 </message>
 <message>
  <source>VitB6</source>
  <translation>VitB6</translation>
 </message>
 <message>
  <source>VitC</source>
  <translation>VitC</translation>
 </message>
 <message>
  <source>Vitamin A</source>
  <translation>Vitamin A</translation>
 </message>
 <message>
  <source>Vitamin B1</source>
  <translation>Vitamin B1</translation>
 </message>
 <message>
  <source>Vitamin B2</source>
  <translation>Vitamin B2</translation>
 </message>
 <message>
  <source>Vitamin B6</source>
  <translation>Vitamin B6</translation>
 </message>
 <message>
  <source>Vitamin C</source>
  <translation>Vitamin C</translation>
 </message>
 <message>
  <source>Warnung</source>
  <translation>Warning</translation>
 </message>
 <message>
  <source>Was moechten Sie drucken ? </source>
  <translation>What would you like to print? </translation>
 </message>
 <message>
  <source>Wie das &amp;System</source>
  <translation>Like the &amp;system</translation>
 </message>
 <message>
  <source>Wählen Sie zuerst ein Lebensmittel in der Spalte „Eigene“.</source>
  <translation>First choose a food in the column “Own”.</translation>
 </message>
 <message>
  <source>Zeigen</source>
  <translation>Show</translation>
 </message>
 <message>
  <source>Zeit(h)</source>
  <translation>Time(h)</translation>
 </message>
 <message>
  <source>Ziehen Sie Ihre Lieblingsobjekte in die Symbolleiste …</source>
  <translation>Drag your favourite items into the toolbar …</translation>
 </message>
 <message>
  <source>Zu „%1“ wurde nichts gefunden. Versuchen Sie ein kürzeres Wort, die Einzahl oder eine andere Schreibweise.</source>
  <translation>Nothing was found for “%1”. Try a shorter word, the singular or another spelling.</translation>
 </message>
 <message>
  <source>Zunahme</source>
  <translation>Gain</translation>
 </message>
 <message>
  <source>Zunahme des Gewichts in diesem Zeitraum</source>
  <translation>Gain of weight in this period</translation>
 </message>
 <message>
  <source>von %1</source>
  <translation>of %1</translation>
 </message>
 <message>
  <source>wertet den Mahlzeitenplan einer Datei aus</source>
  <translation>evaluates the meal plan of a file</translation>
 </message>
 <message>
  <source>zeigt die Version</source>
  <translation>shows the version</translation>
 </message>
 <message>
  <source>zeigt die Werte eines Lebensmittels, ohne Menge für 100 g</source>
  <translation>shows the values of a food, of 100 g where no amount is given</translation>
 </message>
 <message>
  <source>zeigt diese Hilfe</source>
  <translation>shows this help</translation>
 </message>
 <message>
  <source>zeigt in den Fenstern, was Dateien enthalten, und übernimmt auf Wunsch ihre Lebensmittel</source>
  <translation>shows in the windows what files hold, and takes their foods over if wanted</translation>
 </message>
 <message>
  <source>zusätzlich: %1</source>
  <translation>in addition: %1</translation>
 </message>
 <message>
  <source>Zweimal zugleich geöffnet, überschreibt das eine die Lebensmittel und den Plan des anderen.</source>
  <translation>Opened twice at once, one overwrites the foods and the plan of the other.</translation>
 </message>
 <message>
  <source>aus</source>
  <translation>off</translation>
 </message>
 <message>
  <source>außerhalb des günstigen Bereichs</source>
  <translation>outside the favourable range</translation>
 </message>
 <message>
  <source>blau</source>
  <translation>blue</translation>
 </message>
 <message>
  <source>grün</source>
  <translation>green</translation>
 </message>
 <message>
  <source>im günstigen Bereich</source>
  <translation>within the favourable range</translation>
 </message>
 <message>
  <source>kein Balken</source>
  <translation>no bar</translation>
 </message>
 <message>
  <source>kein Gesicht</source>
  <translation>no face</translation>
 </message>
 <message>
  <source>kein Sport</source>
  <translation>no sport</translation>
 </message>
 <message>
  <source>keine Beurteilung möglich</source>
  <translation>no judgement possible</translation>
 </message>
 <message>
  <source>lächelndes Gesicht</source>
  <translation>smiling face</translation>
 </message>
 <message>
  <source>moderat ( -1/5 Kcal)</source>
  <translation>moderate ( -1/5 kcal)</translation>
 </message>
 <message>
  <source>neutrales Gesicht</source>
  <translation>neutral face</translation>
 </message>
 <message>
  <source>ok</source>
  <translation>OK</translation>
 </message>
 <message>
  <source>rot</source>
  <translation>red</translation>
 </message>
 <message>
  <source>weinendes Gesicht</source>
  <translation>crying face</translation>
 </message>
 <message>
  <source>weit außerhalb des günstigen Bereichs</source>
  <translation>far outside the favourable range</translation>
 </message>
 <message>
  <source>Ähnlich heißen: %1.</source>
  <translation>Similar names: %1.</translation>
 </message>
 <message>
  <source>Änderung</source>
  <translation>Change</translation>
 </message>
 <message>
  <source>Änderung des Gewichts in diesem Zeitraum</source>
  <translation>Change of weight in this period</translation>
 </message>
 <message>
  <source>Über &amp;Qt</source>
  <translation>About &amp;Qt</translation>
 </message>
 <message>
  <source>Über Mahlberg</source>
  <translation>About Mahlberg</translation>
 </message>
 <message>
  <source>Übergewicht</source>
  <translation>Overweight</translation>
 </message>
 <message>
  <source>öffnet die Fenster</source>
  <translation>opens the windows</translation>
 </message>
 <message>
  <source>übernommene Lebensmittel</source>
  <translation>foods taken over</translation>
 </message>
 <message>
  <source>überspringen</source>
  <translation>leave out</translation>
 </message>
 <message>
  <source>„%1“</source>
  <translation>“%1”</translation>
 </message>
 <message>
  <source>„%1“ aus dem Plan</source>
  <translation>“%1” out of the plan</translation>
 </message>
 <message>
  <source>„%1“ gelöscht</source>
  <translation>“%1” deleted</translation>
 </message>
 <message>
  <source>„%1“ gesichert</source>
  <translation>“%1” saved</translation>
 </message>
 <message>
  <source>„%1“ geändert</source>
  <translation>“%1” changed</translation>
 </message>
 <message>
  <source>„%1“ haben Sie schon, mit anderen Werten:</source>
  <translation>You have “%1” already, with other values:</translation>
 </message>
 <message>
  <source>„%1“ heißt wie ein eingebautes Lebensmittel; im Plan zählt das eingebaute.</source>
  <translation>“%1” is called like a built-in food; in the plan the built-in one counts.</translation>
 </message>
 <message>
  <source>„%1“ in den Plan</source>
  <translation>“%1” into the plan</translation>
 </message>
 <message>
  <source>„%1“ ist gelöscht.</source>
  <translation>“%1” has been deleted.</translation>
 </message>
 <message>
  <source>„%1“ ist gesichert.</source>
  <translation>“%1” is saved.</translation>
 </message>
 <message>
  <source>„%1“ ist geändert.</source>
  <translation>“%1” has been changed.</translation>
 </message>
 <message>
  <source>„%1“ ist kein Gewicht einer Portion.</source>
  <translation>“%1” is no weight of a portion.</translation>
 </message>
 <message>
  <source>„%1“ ist keine Menge. Es bleibt bei %2 g.</source>
  <translation>“%1” is no amount. It stays %2 g.</translation>
 </message>
 <message>
  <source>„%1“ ist mit %2 g im Plan.</source>
  <translation>“%1” is in the plan with %2 g.</translation>
 </message>
 <message>
  <source>„%1“ ist nicht da oder geschützt. Wählen Sie einen anderen Ordner. Welcher vorgeschlagen wird, steht in den Einstellungen.</source>
  <translation>“%1” is missing or protected. Choose another folder. The settings say which one is proposed.</translation>
 </message>
 <message>
  <source>„%1“ lässt sich nicht einlesen. %2</source>
  <translation>“%1” can’t be imported. %2</translation>
 </message>
 <message>
  <source>„%1“ stand schon im Plan: Es steht jetzt am Ende und hat %2 g (vorher: %3 g).</source>
  <translation>“%1” was in the plan already: it is at the end now and has %2 g (before: %3 g).</translation>
 </message>
 <message>
  <source>„%1“ steht in der Liste, ist aber nicht gesichert.</source>
  <translation>“%1” is in the list, but is not saved.</translation>
 </message>
 <message>
  <source>„%1“ steht in keiner Liste mehr und kommt nicht in den Plan.</source>
  <translation>“%1” is in no list any more and does not go into the plan.</translation>
 </message>
 <message>
  <source>„%1“ steht schon mit %2 g am Ende des Plans.</source>
  <translation>“%1” is at the end of the plan already, with %2 g.</translation>
 </message>
 <message>
  <source>„%1“, je 100 g</source>
  <translation>“%1”, per 100 g</translation>
 </message>
 <message>
  <source>„%1“: %2</source>
  <translation>“%1”: %2</translation>
 </message>
 <message>
  <source>„food“ sucht nur unter den eigenen Lebensmitteln</source>
  <translation>“food” looks among own foods only</translation>
 </message>
 <message>
  <source>… oder ziehen Sie den Standardsatz in die Symbolleiste. Was Sie aus der Leiste herausziehen, verschwindet.</source>
  <translation>… or drag the default set into the toolbar. What you drag out of the toolbar disappears.</translation>
 </message>
 <message>
  <source>&amp;Handbuch</source>
  <translation>&amp;Handbook</translation>
 </message>
 <message>
  <source>Handbuch</source>
  <translation>Handbook</translation>
 </message>
 <message>
  <source>Zurück</source>
  <translation>Back</translation>
 </message>
 <message>
  <source>Vor</source>
  <translation>Forward</translation>
 </message>
 <message>
  <source>Auf dieser Seite suchen</source>
  <translation>Find on this page</translation>
 </message>
 <message>
  <source>Steht nicht auf dieser Seite.</source>
  <translation>Not on this page.</translation>
 </message>
 <message>
  <source>Seiten des Handbuchs</source>
  <translation>Pages of the handbook</translation>
 </message>
 <message>
  <source>Seite des Handbuchs</source>
  <translation>Page of the handbook</translation>
 </message>
 <message>
  <source>… und %1 weitere</source>
  <translation>… and %1 more</translation>
 </message>
 <message>
  <source>Name</source>
  <translation>Name</translation>
 </message>
 <message>
  <source>Nummer</source>
  <translation>Number</translation>
 </message>
 <message>
  <source>Geburtsdatum</source>
  <translation>Date of birth</translation>
 </message>
 <message>
  <source>Schwanger oder stillend</source>
  <translation>Pregnant or nursing</translation>
 </message>
 <message>
  <source>Notizen</source>
  <translation>Notes</translation>
 </message>
 <message>
  <source>Archiviert</source>
  <translation>Archived</translation>
 </message>
 <message>
  <source>Datum</source>
  <translation>Date</translation>
 </message>
 <message>
  <source>Gewichtsreduktion</source>
  <translation>Weight reduction</translation>
 </message>
 <message>
  <source>Sport am Tag</source>
  <translation>Sport a day</translation>
 </message>
 <message>
  <source>Notiz</source>
  <translation>Note</translation>
 </message>
 <message>
  <source>Titel</source>
  <translation>Title</translation>
 </message>
 <message>
  <source>Geschlecht</source>
  <translation>Gender</translation>
 </message>
 <message>
  <source>Gewicht</source>
  <translation>Weight</translation>
 </message>
 <message>
  <source>Größe</source>
  <translation>Height</translation>
 </message>
 <message>
  <source>Hüfte</source>
  <translation>Hip</translation>
 </message>
 <message>
  <source>Taille</source>
  <translation>Waist</translation>
 </message>
 <message>
  <source>Tätigkeit</source>
  <translation>Activity</translation>
 </message>
 <message>
  <source>%1 (archiviert)</source>
  <translation>%1 (archived)</translation>
 </message>
 <message>
  <source>%1 Bitte prüfen Sie die Zahl.</source>
  <translation>%1 Please check the figure.</translation>
 </message>
 <message>
  <source>%1 Was davon nicht gesichert ist, geht beim Beenden verloren.</source>
  <translation>%1 What is not saved will be lost when you quit.</translation>
 </message>
 <message>
  <source>%1 ist aufgenommen.</source>
  <translation>%1 has been taken in.</translation>
 </message>
 <message>
  <source>%1 ist gelöscht.</source>
  <translation>%1 is deleted.</translation>
 </message>
 <message>
  <source>%1 ist hier schon; es wurde nichts geändert.</source>
  <translation>%1 is here already; nothing was changed.</translation>
 </message>
 <message>
  <source>%1 ließ sich nicht aufnehmen.</source>
  <translation>%1 could not be taken in.</translation>
 </message>
 <message>
  <source>%1 sind ein ungewöhnlicher Hüftumfang.</source>
  <translation>%1 is unusual round the hips.</translation>
 </message>
 <message>
  <source>%1 sind ein ungewöhnlicher Taillenumfang.</source>
  <translation>%1 is unusual round the waist.</translation>
 </message>
 <message>
  <source>%1 sind ein ungewöhnliches Gewicht.</source>
  <translation>%1 is an unusual weight.</translation>
 </message>
 <message>
  <source>%1 sind eine ungewöhnliche Größe.</source>
  <translation>%1 is an unusual height.</translation>
 </message>
 <message>
  <source>%1 von %2 Klienten</source>
  <translation>%1 of %2 clients</translation>
 </message>
 <message>
  <source>&amp;Archivieren</source>
  <translation>&amp;Archive</translation>
 </message>
 <message>
  <source>&amp;Klient</source>
  <translation>&amp;Client</translation>
 </message>
 <message>
  <source>&amp;Klienten</source>
  <translation>C&amp;lients</translation>
 </message>
 <message>
  <source>&amp;Löschen</source>
  <translation>De&amp;lete</translation>
 </message>
 <message>
  <source>&amp;Löschen zurücknehmen</source>
  <translation>&amp;Undo deletion</translation>
 </message>
 <message>
  <source>&amp;Neuer Klient …</source>
  <translation>&amp;New client …</translation>
 </message>
 <message>
  <source>(keine Angabe)</source>
  <translation>(nothing entered)</translation>
 </message>
 <message>
  <source>Akte auf&amp;nehmen …</source>
  <translation>&amp;Take in a client …</translation>
 </message>
 <message>
  <source>Akte aufnehmen</source>
  <translation>Take in a client</translation>
 </message>
 <message>
  <source>Akte über&amp;geben …</source>
  <translation>Hand the client &amp;over …</translation>
 </message>
 <message>
  <source>Akten von Mahlberg (*.json);;Alle Dateien (*)</source>
  <translation>Clients of Mahlberg (*.json);;All files (*)</translation>
 </message>
 <message>
  <source>Als &amp;PDF sichern …</source>
  <translation>Save as &amp;PDF …</translation>
 </message>
 <message>
  <source>Alter: %1</source>
  <translation>Age: %1</translation>
 </message>
 <message>
  <source>Am Schreibtisch: %1.</source>
  <translation>At the desk: %1.</translation>
 </message>
 <message>
  <source>Am Schreibtisch: %1. Nicht bekannt: %2; der Rechner steht dafür auf seinen Anfangswerten.</source>
  <translation>At the desk: %1. Not known: %2; there the calculator stands on its first values.</translation>
 </message>
 <message>
  <source>An den Schreib&amp;tisch</source>
  <translation>To the &amp;desk</translation>
 </message>
 <message>
  <source>An zwei Plätzen geändert</source>
  <translation>Changed at two desks</translation>
 </message>
 <message>
  <source>Anderer Platz</source>
  <translation>Other desk</translation>
 </message>
 <message>
  <source>Auf einem Ser&amp;ver der Praxis (PostgreSQL)</source>
  <translation>On a ser&amp;ver of the practice (PostgreSQL)</translation>
 </message>
 <message>
  <source>Besuche</source>
  <translation>Visits</translation>
 </message>
 <message>
  <source>Bis dieses Fenster der Klienten geschlossen wird, können Sie es zurücknehmen; danach ist es aus der Datei getilgt.</source>
  <translation>Until this window of clients is closed you can undo it; after that it is wiped out of the file.</translation>
 </message>
 <message>
  <source>Das Gelöschte ist wieder da.</source>
  <translation>What was deleted is back.</translation>
 </message>
 <message>
  <source>Das Gelöschte ließ sich noch nicht zurückholen.</source>
  <translation>What was deleted could not be brought back yet.</translation>
 </message>
 <message>
  <source>Das Gewicht springt: %1 nach %2 am %3.</source>
  <translation>The weight leaps: %1 after %2 on %3.</translation>
 </message>
 <message>
  <source>Das ist weder der Name eines Dienstes noch eine Verbindung.</source>
  <translation>This is neither the name of a service nor a connection.</translation>
 </message>
 <message>
  <source>Dazu muss der Klient am Schreibtisch sein.</source>
  <translation>For this the client must be at the desk.</translation>
 </message>
 <message>
  <source>Der Besuch ist gelöscht.</source>
  <translation>The visit is deleted.</translation>
 </message>
 <message>
  <source>Der Besuch liegt in der Zukunft.</source>
  <translation>The visit lies in the future.</translation>
 </message>
 <message>
  <source>Der Besuch liegt vor der Geburt.</source>
  <translation>The visit lies before the birth.</translation>
 </message>
 <message>
  <source>Der Name steht noch nicht im Feld.</source>
  <translation>The name does not stand in the field yet.</translation>
 </message>
 <message>
  <source>Der Plan ist gelöscht.</source>
  <translation>The plan is deleted.</translation>
 </message>
 <message>
  <source>Der Plan ist leer; es gibt nichts abzulegen.</source>
  <translation>The plan is empty; there is nothing to keep.</translation>
 </message>
 <message>
  <source>Der Plan liegt jetzt bei %1.</source>
  <translation>The plan is now kept with %1.</translation>
 </message>
 <message>
  <source>Der Plan steht hier mit den Werten seines Tages. Seitdem anders: %1 von %2 Lebensmitteln.</source>
  <translation>The plan stands here with the values of its day. Different since: %1 of %2 foods.</translation>
 </message>
 <message>
  <source>Der Plan „%1“ vom %2 steht im Mahlzeitenplan.</source>
  <translation>The plan “%1” of %2 is in the meal plan.</translation>
 </message>
 <message>
  <source>Der Plan „%1“ vom %2 steht im Mahlzeitenplan. Was dort stand, ist abgelegt.</source>
  <translation>The plan “%1” of %2 is in the meal plan. What stood there is kept.</translation>
 </message>
 <message>
  <source>Der Server der Klienten ist nicht zu erreichen.</source>
  <translation>The server of the clients can’t be reached.</translation>
 </message>
 <message>
  <source>Der Stand ließ sich nicht zurückholen: %1</source>
  <translation>The state could not be brought back: %1</translation>
 </message>
 <message>
  <source>Der frühere Stand ist wieder da.</source>
  <translation>The earlier state is back.</translation>
 </message>
 <message>
  <source>Der frühere Stand ist wieder da. Was vorher da war, ist aufgehoben als „%1“.</source>
  <translation>The earlier state is back. What was there before is kept as “%1”.</translation>
 </message>
 <message>
  <source>Die Akte ist beschädigt.</source>
  <translation>The client’s file is damaged.</translation>
 </message>
 <message>
  <source>Die Akte liegt in „%1“.</source>
  <translation>The client’s papers are in “%1”.</translation>
 </message>
 <message>
  <source>Die Akte ließ sich nicht schreiben: %1</source>
  <translation>The client’s papers could not be written: %1</translation>
 </message>
 <message>
  <source>Die Akte stammt von einer neueren Version von Mahlberg, mit Angaben, die diese nicht kennt.</source>
  <translation>The client’s file comes from a newer version of Mahlberg, with entries that this one does not know.</translation>
 </message>
 <message>
  <source>Die Datei lässt sich nicht lesen.</source>
  <translation>The file can’t be read.</translation>
 </message>
 <message>
  <source>Die Größe springt: %1 nach %2 am %3.</source>
  <translation>The height leaps: %1 after %2 on %3.</translation>
 </message>
 <message>
  <source>Die Klienten lassen sich gerade nicht lesen oder schreiben.</source>
  <translation>The clients can’t be read or written at the moment.</translation>
 </message>
 <message>
  <source>Die Klienten lassen sich nicht lesen oder schreiben: Das System verwehrt es. Bitte prüfen Sie die Rechte des Ordners.</source>
  <translation>The clients can’t be read or written: the system denies it. Please check the rights of the folder.</translation>
 </message>
 <message>
  <source>Die Klienten sind beschädigt. Sie werden nicht angerührt; vielleicht hilft ein früherer Stand.</source>
  <translation>The clients are damaged. They are left untouched; perhaps an earlier state helps.</translation>
 </message>
 <message>
  <source>Die Klienten stehen auf einem Server; seine früheren Stände hat, wer ihn betreut.</source>
  <translation>The clients are on a server; its earlier states are with whoever looks after it.</translation>
 </message>
 <message>
  <source>Die Klienten wurden mit einer neueren Version von Mahlberg geschrieben. Sie können gelesen, aber nicht geändert werden.</source>
  <translation>The clients were written with a newer version of Mahlberg. They can be read but not changed.</translation>
 </message>
 <message>
  <source>Dieser Plan ist schon abgelegt.</source>
  <translation>This plan is kept already.</translation>
 </message>
 <message>
  <source>Dieser Tag kommt erst noch.</source>
  <translation>This day is still to come.</translation>
 </message>
 <message>
  <source>Ein Besuch hat einen Tag.</source>
  <translation>A visit has a date.</translation>
 </message>
 <message>
  <source>Ein Kennwort gehört nicht hierher; PostgreSQL liest es aus der Datei .pgpass.</source>
  <translation>A password does not belong here; PostgreSQL reads it from the file .pgpass.</translation>
 </message>
 <message>
  <source>Ein Name muss sein.</source>
  <translation>There must be a name.</translation>
 </message>
 <message>
  <source>Ein Plan hat einen Tag.</source>
  <translation>A plan has a date.</translation>
 </message>
 <message>
  <source>Ein anderer Platz hat %1 geändert, während Sie dabei waren. Es ist noch nichts überschrieben: Wählen Sie, was gelten soll.</source>
  <translation>Another desk has changed %1 while you were at it. Nothing is overwritten yet: choose what shall count.</translation>
 </message>
 <message>
  <source>Ein anderer Platz hat diesen Klienten gelöscht.</source>
  <translation>Another desk has deleted this client.</translation>
 </message>
 <message>
  <source>Ein anderer Platz hat gelöscht, was Sie ändern.</source>
  <translation>Another desk has deleted what you are changing.</translation>
 </message>
 <message>
  <source>Ein anderes Programm hält die Klienten gerade fest.</source>
  <translation>Another program is holding the clients at the moment.</translation>
 </message>
 <message>
  <source>Eine Angabe ist noch nicht gesichert: Neben ihrem Feld steht, warum. Bitte ändern oder leeren Sie sie.</source>
  <translation>An entry is not saved yet: the reason stands beside its field. Please change or empty it.</translation>
 </message>
 <message>
  <source>Eine Angabe kann nicht gesichert werden.</source>
  <translation>An entry can’t be saved.</translation>
 </message>
 <message>
  <source>Erneut versuchen</source>
  <translation>Try again</translation>
 </message>
 <message>
  <source>Es ist noch nicht alles gesichert; gewechselt wird erst danach.</source>
  <translation>Not everything is saved yet; the change comes after that.</translation>
 </message>
 <message>
  <source>Es stimmt</source>
  <translation>It is right</translation>
 </message>
 <message>
  <source>Fortschritt</source>
  <translation>Progress</translation>
 </message>
 <message>
  <source>Frühere Stän&amp;de …</source>
  <translation>Earlier &amp;states …</translation>
 </message>
 <message>
  <source>Frühere Stände der Klienten</source>
  <translation>Earlier states of the clients</translation>
 </message>
 <message>
  <source>Gelöscht lassen</source>
  <translation>Leave it deleted</translation>
 </message>
 <message>
  <source>Hier fehlt, wie der Server heißt.</source>
  <translation>Here it is missing what the server is called.</translation>
 </message>
 <message>
  <source>Ihre Angabe</source>
  <translation>Your entry</translation>
 </message>
 <message>
  <source>In den täglichen Kopien bleibt es, bis zehn jüngere da sind.</source>
  <translation>It stays in the daily copies until there are ten later ones.</translation>
 </message>
 <message>
  <source>In diesem Stand: %1 Klienten. Was jetzt da ist, wird beim Zurückholen aufgehoben.</source>
  <translation>In this state: %1 clients. What is there now is kept when you bring it back.</translation>
 </message>
 <message>
  <source>In dieser Datei steht keine Akte von Mahlberg.</source>
  <translation>This file holds no client of Mahlberg’s.</translation>
 </message>
 <message>
  <source>In einer Datei an diesem Pla&amp;tz</source>
  <translation>In a &amp;file at this desk</translation>
 </message>
 <message>
  <source>Klient &amp;löschen …</source>
  <translation>De&amp;lete client …</translation>
 </message>
 <message>
  <source>Klient löschen</source>
  <translation>Delete client</translation>
 </message>
 <message>
  <source>Klienten</source>
  <translation>Clients</translation>
 </message>
 <message>
  <source>Meine Änderung &amp;verwerfen</source>
  <translation>&amp;Drop my change</translation>
 </message>
 <message>
  <source>Neben ihrem Feld steht, warum. Beim Schließen geht sie verloren.</source>
  <translation>The reason stands beside its field. It will be lost when you close.</translation>
 </message>
 <message>
  <source>Neu &amp;lesen</source>
  <translation>&amp;Read anew</translation>
 </message>
 <message>
  <source>Neuer Klient</source>
  <translation>New client</translation>
 </message>
 <message>
  <source>Niemand heißt so.</source>
  <translation>Nobody is called that.</translation>
 </message>
 <message>
  <source>Noch keine Klienten. Mit „Neuer Klient“ legen Sie den ersten an.</source>
  <translation>No clients yet. Begin the first one with “New client”.</translation>
 </message>
 <message>
  <source>Noch nicht alles ist gesichert.</source>
  <translation>Not everything is saved yet.</translation>
 </message>
 <message>
  <source>Nr. %1</source>
  <translation>No. %1</translation>
 </message>
 <message>
  <source>Ordner, in den die Akte kommt</source>
  <translation>Folder for the client’s papers</translation>
 </message>
 <message>
  <source>Person</source>
  <translation>Person</translation>
 </message>
 <message>
  <source>Plan beim Klienten ab&amp;legen</source>
  <translation>&amp;Keep plan with the client</translation>
 </message>
 <message>
  <source>Pläne</source>
  <translation>Plans</translation>
 </message>
 <message>
  <source>S&amp;chließen</source>
  <translation>&amp;Close</translation>
 </message>
 <message>
  <source>Seitdem</source>
  <translation>Since then</translation>
 </message>
 <message>
  <source>Server der Klienten</source>
  <translation>Server of the clients</translation>
 </message>
 <message>
  <source>So &amp;sichern</source>
  <translation>&amp;Save like this</translation>
 </message>
 <message>
  <source>So alt ist niemand.</source>
  <translation>Nobody is that old.</translation>
 </message>
 <message>
  <source>Stimmt das so?</source>
  <translation>Is this right?</translation>
 </message>
 <message>
  <source>Trotzdem beenden</source>
  <translation>Quit all the same</translation>
 </message>
 <message>
  <source>Vom Schreib&amp;tisch</source>
  <translation>From the &amp;desk</translation>
 </message>
 <message>
  <source>Von jetzt an gelten die Klienten dort. Die bisherigen bleiben, wo sie sind.</source>
  <translation>From now on the clients there count. The ones before stay where they are.</translation>
 </message>
 <message>
  <source>Was Mahlberg braucht, um mit dem Speicher der Klienten zu sprechen, ist nicht eingerichtet.</source>
  <translation>What Mahlberg needs to speak with the store of the clients is not installed.</translation>
 </message>
 <message>
  <source>Was Sie eingeben, ist vorgemerkt und wird gesichert, sobald es geht.</source>
  <translation>What you enter is noted and will be saved as soon as that is possible.</translation>
 </message>
 <message>
  <source>Was Sie hier sehen, kann wieder aufgenommen werden.</source>
  <translation>What you see here can be taken in again.</translation>
 </message>
 <message>
  <source>Was an Kopien des Servers aufgehoben wird, weiß, wer ihn betreut.</source>
  <translation>What is kept in copies of the server is known to whoever looks after it.</translation>
 </message>
 <message>
  <source>Was an der Stelle der Klienten liegt, stammt von einem anderen Programm. Es wird nicht angerührt.</source>
  <translation>What lies in the place of the clients comes from another program. It is left untouched.</translation>
 </message>
 <message>
  <source>Wieder aufnehmen</source>
  <translation>Take in again</translation>
 </message>
 <message>
  <source>Wählen Sie links einen Klienten.</source>
  <translation>Choose a client on the left.</translation>
 </message>
 <message>
  <source>Wählen Sie zuerst einen Besuch.</source>
  <translation>Choose a visit first.</translation>
 </message>
 <message>
  <source>Wählen Sie zuerst einen Plan.</source>
  <translation>Choose a plan first.</translation>
 </message>
 <message>
  <source>Zum Löschen den &amp;Namen eintippen:</source>
  <translation>Type the &amp;name to delete:</translation>
 </message>
 <message>
  <source>archiviert</source>
  <translation>archived</translation>
 </message>
 <message>
  <source>damals in keiner Tabelle</source>
  <translation>in no table then</translation>
 </message>
 <message>
  <source>geändert: %1</source>
  <translation>changed: %1</translation>
 </message>
 <message>
  <source>ja</source>
  <translation>yes</translation>
 </message>
 <message>
  <source>keines von beiden</source>
  <translation>neither of the two</translation>
 </message>
 <message>
  <source>leichte Tätigkeit</source>
  <translation>light activity</translation>
 </message>
 <message>
  <source>mittlere Tätigkeit</source>
  <translation>medium activity</translation>
 </message>
 <message>
  <source>nein</source>
  <translation>no</translation>
 </message>
 <message>
  <source>nicht erfragt</source>
  <translation>not asked</translation>
 </message>
 <message>
  <source>nicht mehr in der Tabelle</source>
  <translation>no longer in the table</translation>
 </message>
 <message>
  <source>schwanger</source>
  <translation>pregnant</translation>
 </message>
 <message>
  <source>schwere Tätigkeit</source>
  <translation>heavy activity</translation>
 </message>
 <message>
  <source>stillend</source>
  <translation>nursing</translation>
 </message>
 <message>
  <source>zuletzt hier am %1</source>
  <translation>last here on %1</translation>
 </message>
 <message>
  <source>Ändern</source>
  <translation>Change</translation>
 </message>
 <message>
  <source>Über&amp;nehmen</source>
  <translation>Appl&amp;y</translation>
 </message>
 <message>
  <source>„%1“ wird mit allen Besuchen und Plänen gelöscht.</source>
  <translation>“%1” will be deleted with all visits and plans.</translation>
 </message>
 <message>
  <source>Angabe</source>
  <translation>Detail</translation>
 </message>
 <message>
  <source>Plan</source>
  <translation>Plan</translation>
 </message>
 <message>
  <source>Noch kein Besuch.</source>
  <translation>No visit yet.</translation>
 </message>
 <message>
  <source>Noch kein Plan.</source>
  <translation>No plan yet.</translation>
 </message>
 <message>
  <source>Ohne Lebensmittel.</source>
  <translation>Without foods.</translation>
 </message>
 <message>
  <source>Verlauf</source>
  <translation>Course</translation>
 </message>
 <message>
  <source>%1 (Alter %2)</source>
  <translation>%1 (age %2)</translation>
 </message>
 <message>
  <source>Akte</source>
  <translation>Record</translation>
 </message>
 <message>
  <source>Planzeilen</source>
  <translation>Plan rows</translation>
 </message>
 <message>
  <source>Im Ordner „%1“ lässt sich nichts anlegen. Vielleicht ist er nicht da, geschützt oder kein Platz mehr frei.</source>
  <translation>Nothing can be made in the folder “%1”. It may be missing or protected, or the disk may be full.</translation>
 </message>
 <message>
  <source>Der Ordner „%1“ lässt sich nicht anlegen.</source>
  <translation>The folder “%1” cannot be made.</translation>
 </message>
 <message>
  <source>Kein Tag wie %1.</source>
  <translation>No date such as %1.</translation>
 </message>
 <message>
  <source>Keine Zahl wie %1.</source>
  <translation>No number such as %1.</translation>
 </message>
 <message>
  <source>Die Klienten stehen auf dem Server der Praxis.</source>
  <translation>The clients are on the server of the practice.</translation>
 </message>
 <message>
  <source>Die Klienten stehen in einer Datei an diesem Platz, die nur Sie lesen können.</source>
  <translation>The clients are in a file at this desk that only you can read.</translation>
 </message>
 <message>
  <source>Noch kein Plan abgelegt.</source>
  <translation>No plan is kept yet.</translation>
 </message>
 <message>
  <source>Wählen Sie zuerst den Server der Praxis.</source>
  <translation>Choose the server of the practice first.</translation>
 </message>
 <message>
  <source>Akte (unvollständig)</source>
  <translation>Record (incomplete)</translation>
 </message>
 <message>
  <source>%1 Es bleibt an diesem Platz vorgemerkt und wird beim nächsten Start gesichert.</source>
  <translation>%1 It stays noted at this desk and will be saved at the next start.</translation>
 </message>
 <message>
  <source>Bei den Klienten ist vom letzten Mal noch etwas vorgemerkt; es wird gesichert, sobald es geht.</source>
  <translation>Of the clients, something is still noted from last time; it will be saved as soon as that is possible.</translation>
 </message>
 <message>
  <source>Was bei den Klienten noch zu sichern war, ist nicht ganz zu lesen; aufgehoben ist es als „%1“.</source>
  <translation>What was still to be saved of the clients can’t be read in full; it is kept as “%1”.</translation>
 </message>
 <message>
  <source>Was bei den Klienten noch zu sichern war, ist nicht zu lesen.</source>
  <translation>What was still to be saved of the clients can’t be read.</translation>
 </message>
 <message>
  <source>Abgebrochen.</source>
  <translation>Stopped.</translation>
 </message>
 <message>
  <source>Auf den Server</source>
  <translation>Onto the server</translation>
 </message>
 <message>
  <source>Auf den Server gebracht: %1. Dort schon vorhanden: %2. %3</source>
  <translation>Brought onto the server: %1. There already: %2. %3</translation>
 </message>
 <message>
  <source>Die Klienten stehen in der Datei dieses Platzes; ein Server ist nicht gewählt.</source>
  <translation>The clients are in the file of this desk; no server is chosen.</translation>
 </message>
 <message>
  <source>Es sind %1. Wer dort schon steht, bleibt, wie er ist. Die Datei bleibt liegen, wie sie ist.</source>
  <translation>There are %1. Whoever is there already stays as they are. The file stays as it is.</translation>
 </message>
 <message>
  <source>Klient %1 von %2</source>
  <translation>Client %1 of %2</translation>
 </message>
 <message>
  <source>Klienten dieses Plat&amp;zes auf den Server …</source>
  <translation>Clients of this des&amp;k onto the server …</translation>
 </message>
 <message>
  <source>Nicht jetzt</source>
  <translation>Not now</translation>
 </message>
 <message>
  <source>Sollen die Klienten aus der Datei dieses Platzes auf den Server?</source>
  <translation>Shall the clients in the file of this desk go onto the server?</translation>
 </message>
 <message>
  <source>Abendessen</source>
  <translation>Dinner</translation>
 </message>
 <message>
  <source>Art</source>
  <translation>Kind</translation>
 </message>
 <message>
  <source>Aufzeichnung</source>
  <translation>Record of days</translation>
 </message>
 <message>
  <source>Aufzeichnungen</source>
  <translation>Records of days</translation>
 </message>
 <message>
  <source>Frühstück</source>
  <translation>Breakfast</translation>
 </message>
 <message>
  <source>Mahlzeit</source>
  <translation>Meal</translation>
 </message>
 <message>
  <source>Mittagessen</source>
  <translation>Lunch</translation>
 </message>
 <message>
  <source>Nachmittag</source>
  <translation>Afternoon</translation>
 </message>
 <message>
  <source>Protokoll</source>
  <translation>Food record</translation>
 </message>
 <message>
  <source>Spät</source>
  <translation>Late</translation>
 </message>
 <message>
  <source>Tag</source>
  <translation>Day</translation>
 </message>
 <message>
  <source>Tag %1</source>
  <translation>Day %1</translation>
 </message>
 <message>
  <source>Tage</source>
  <translation>Days</translation>
 </message>
 <message>
  <source>Tageszeilen</source>
  <translation>Day rows</translation>
 </message>
 <message>
  <source>Vormittag</source>
  <translation>Morning</translation>
 </message>
 <message>
  <source>Wochenplan</source>
  <translation>Week plan</translation>
 </message>
 <message>
  <source>oder %1</source>
  <translation>or %1</translation>
 </message>
 <message>
  <source>Für %1, %2</source>
  <translation>For %1, %2</translation>
 </message>
 <message>
  <source>Noch nichts aufgezeichnet.</source>
  <translation>Nothing recorded yet.</translation>
 </message>
 <message>
  <source>%1 (Fortsetzung)</source>
  <translation>%1 (continued)</translation>
 </message>
 <message>
  <source>Handzettel</source>
  <translation>Handout</translation>
 </message>
 <message>
  <source>Energie der Mahlzeiten</source>
  <translation>Energy of the meals</translation>
 </message>
 <message>
  <source>Strich: Mittel</source>
  <translation>Line: mean</translation>
 </message>
 <message>
  <source>im Mittel %1</source>
  <translation>%1 on average</translation>
 </message>
 <message>
  <source>nichts</source>
  <translation>nothing</translation>
 </message>
 <message>
  <source>Zeilen, die nicht zählen: %1</source>
  <translation>Rows that do not count: %1</translation>
 </message>
 <message>
  <source>%1, Anteil am Tagesbedarf</source>
  <translation>%1, share of the daily need</translation>
 </message>
 <message>
  <source>%1, Balken</source>
  <translation>%1, bar</translation>
 </message>
 <message>
  <source>%1, geeignete Lebensmittel</source>
  <translation>%1, suitable foods</translation>
 </message>
 <message>
  <source>%1, neutrale Lebensmittel</source>
  <translation>%1, neutral foods</translation>
 </message>
 <message>
  <source>%1, ungeeignete Lebensmittel</source>
  <translation>%1, unsuitable foods</translation>
 </message>
 <message>
  <source>Der Rechner kennt den Bedarf noch nicht: Was an der Energie gemessen wird, hat keinen Anteil. Er steht unter „Körper und Energie“.</source>
  <translation>The calculator does not know the requirement yet: what is measured by the energy has no share. It stands under “Body and energy”.</translation>
 </message>
 <message>
  <source>Zeilen, die nicht zählen, weil Lebensmittel oder Menge unbekannt sind: %1.</source>
  <translation>Rows that do not count because their food or amount is unknown: %1.</translation>
 </message>
 <message>
  <source>Keine Aufzeichnung ist geöffnet.</source>
  <translation>No record is open.</translation>
 </message>
 <message>
  <source>Kein Tag zählt im Mittel.</source>
  <translation>No day counts in the mean.</translation>
 </message>
 <message>
  <source>An diesem Tag zählt noch nichts.</source>
  <translation>Nothing counts on this day yet.</translation>
 </message>
 <message>
  <source>Aus&amp;wertung</source>
  <translation>&amp;Evaluation</translation>
 </message>
 <message>
  <source>Haushalts&amp;maße des Lebensmittels …</source>
  <translation>&amp;Household measures of the food …</translation>
 </message>
 <message>
  <source>Die Datei der eigenen Haushaltsmaße lässt sich nicht lesen oder ist von einer neueren Version. Sie bleibt, wie sie ist, und eigene Maße können nicht geändert werden.</source>
  <translation>The file of your own household measures can't be read, or is from a newer version. It stays as it is, and own measures can't be changed.</translation>
 </message>
 <message>
  <source>Die eigenen Haushaltsmaße ließen sich nicht sichern. Sie gelten weiter, und mit der nächsten Änderung wird es wieder versucht.</source>
  <translation>Your own household measures could not be saved. They still hold, and the next change will try again.</translation>
 </message>
 <message>
  <source>Die Datei der eigenen Haushaltsmaße war beschädigt. Was sich lesen ließ, gilt; sie selbst liegt jetzt hier: %1</source>
  <translation>The file of your own household measures was damaged. What could be read holds; the file itself is here now: %1</translation>
 </message>
 <message>
  <source>Ein Name hat höchstens %1 Zeichen.</source>
  <translation>A name has %1 characters at most.</translation>
 </message>
 <message>
  <source>Ein Name hat keine unsichtbaren Zeichen.</source>
  <translation>A name has no invisible characters.</translation>
 </message>
 <message>
  <source>Wie viel Gramm wiegt eines?</source>
  <translation>How many grams does one weigh?</translation>
 </message>
 <message>
  <source>Das sind keine Gramm wie %1.</source>
  <translation>These are no grams like %1.</translation>
 </message>
 <message>
  <source>Ein Maß wiegt mehr als 0 und höchstens %1 g.</source>
  <translation>A measure weighs more than 0 and at most %1 g.</translation>
 </message>
 <message>
  <source>„%1“ wird schon anders gelesen, als Zahl oder Einheit.</source>
  <translation>“%1” is read as something else already, a number or a unit.</translation>
 </message>
 <message>
  <source>So heißt schon ein anderes Maß dieses Lebensmittels.</source>
  <translation>Another measure of this food has that name already.</translation>
 </message>
 <message>
  <source>Wie heißt das Maß?</source>
  <translation>What is the measure called?</translation>
 </message>
 <message>
  <source>Eines</source>
  <translation>One</translation>
 </message>
 <message>
  <source>Mehrere</source>
  <translation>Several</translation>
 </message>
 <message>
  <source>Englisch, eines</source>
  <translation>English, one</translation>
 </message>
 <message>
  <source>Englisch, mehrere</source>
  <translation>English, several</translation>
 </message>
 <message>
  <source>Gramm von einem</source>
  <translation>Grams of one</translation>
 </message>
 <message>
  <source>z. B. Glas</source>
  <translation>e.g. Glas</translation>
 </message>
 <message>
  <source>Herausnehmen</source>
  <translation>Take out</translation>
 </message>
 <message>
  <source>Maß %1 herausnehmen</source>
  <translation>Take out measure %1</translation>
 </message>
 <message>
  <source>Maß %1: %2</source>
  <translation>Measure %1: %2</translation>
 </message>
 <message>
  <source>Maß</source>
  <translation>Measure</translation>
 </message>
 <message>
  <source>Quelle</source>
  <translation>Source</translation>
 </message>
 <message>
  <source>%1 Bis dahin gilt weiter: %2</source>
  <translation>%1 Until then this still holds: %2</translation>
 </message>
 <message>
  <source>Klient</source>
  <translation>Client</translation>
 </message>
 <message>
  <source>Bedarf</source>
  <translation>Need</translation>
 </message>
 <message>
  <source>% des Bedarfs</source>
  <translation>% of need</translation>
 </message>
 <message>
  <source>Wertung</source>
  <translation>Rating</translation>
 </message>
 <message>
  <source>Mittel der Tage</source>
  <translation>Mean of the days</translation>
 </message>
 <message>
  <source>%1 bis %2</source>
  <translation>%1 to %2</translation>
 </message>
 <message>
  <source>%1 ohne Datum</source>
  <translation>%1 without a date</translation>
 </message>
 <message>
  <source>Aktenform</source>
  <translation>File form</translation>
 </message>
 <message>
  <source>Zeilen, die nicht zählen: %1.</source>
  <translation>Rows that do not count: %1.</translation>
 </message>
 <message>
  <source>Von der Energie: Protein %1 %, Kohlenhydrate %2 %, Fett %3 %.</source>
  <translation>Of the energy: protein %1 %, carbohydrate %2 %, fat %3 %.</translation>
 </message>
 <message>
  <source>%1 (nicht im Mittel)</source>
  <translation>%1 (not in the mean)</translation>
 </message>
 <message>
  <source>Handzettel &amp;drucken …</source>
  <translation>P&amp;rint handout …</translation>
 </message>
 <message>
  <source>Handzettel als &amp;PDF …</source>
  <translation>Handout as &amp;PDF …</translation>
 </message>
 <message>
  <source>Aktenform d&amp;rucken …</source>
  <translation>Print &amp;file form …</translation>
 </message>
 <message>
  <source>Aktenform als PD&amp;F …</source>
  <translation>File form &amp;as PDF …</translation>
 </message>
 <message>
  <source>Mit &amp;Energie und Nährstoffen</source>
  <translation>With &amp;energy and nutrients</translation>
 </message>
 <message>
  <source>&amp;Große Schrift</source>
  <translation>La&amp;rge print</translation>
 </message>
 <message>
  <source>Welche Tage</source>
  <translation>Which days</translation>
 </message>
 <message>
  <source>&amp;Alle Tage</source>
  <translation>&amp;All days</translation>
 </message>
 <message>
  <source>&amp;Nur der gezeigte: %1</source>
  <translation>&amp;Only the one shown: %1</translation>
 </message>
 <message>
  <source>Sprache des Handzettels</source>
  <translation>Language of the handout</translation>
 </message>
 <message>
  <source>Das Logo ist nicht zu lesen; gedruckt wird ohne. Wählen Sie es in den Einstellungen neu.</source>
  <translation>The logo cannot be read; the print goes without it. Choose it anew in the settings.</translation>
 </message>
 <message>
  <source>Als &amp;PDF …</source>
  <translation>As P&amp;DF …</translation>
 </message>
 <message>
  <source>Dieses Bild lässt sich nicht lesen.</source>
  <translation>This picture cannot be read.</translation>
 </message>
 <message>
  <source>Das ist kein Bild in PNG, JPEG oder SVG.</source>
  <translation>This is no picture in PNG, JPEG or SVG.</translation>
 </message>
 <message>
  <source>Dieses Bild ist zu groß: Es darf 20 MB und 30 Millionen Punkte haben.</source>
  <translation>This picture is too large: it may have 20 MB and 30 million dots.</translation>
 </message>
 <message>
  <source>Das Logo ließ sich nicht sichern; es ist wie vorher.</source>
  <translation>The logo could not be kept; it is as it was before.</translation>
 </message>
 <message>
  <source>Name der &amp;Praxis:</source>
  <translation>Name of the &amp;practice:</translation>
 </message>
 <message>
  <source>Ans&amp;chrift:</source>
  <translation>&amp;Address:</translation>
 </message>
 <message>
  <source>&amp;Logo wählen …</source>
  <translation>Choose lo&amp;go …</translation>
 </message>
 <message>
  <source>&amp;Entfernen</source>
  <translation>&amp;Remove</translation>
 </message>
 <message>
  <source>Es ist kein Logo gewählt.</source>
  <translation>No logo is chosen.</translation>
 </message>
 <message>
  <source>Logo der Praxis</source>
  <translation>Logo of the practice</translation>
 </message>
 <message>
  <source>Bilder (*.png *.jpg *.jpeg *.svg)</source>
  <translation>Pictures (*.png *.jpg *.jpeg *.svg)</translation>
 </message>
 <message>
  <source>Das Logo ließ sich nicht entfernen.</source>
  <translation>The logo could not be removed.</translation>
 </message>
 <message>
  <source>Kein Logo</source>
  <translation>No logo</translation>
 </message>
 <message>
  <source>Das Logo, wie es gedruckt wird</source>
  <translation>The logo as it is printed</translation>
 </message>
 <message>
  <source>Das gesicherte Logo ist nicht mehr zu lesen; gedruckt wird ohne.</source>
  <translation>The logo that was kept cannot be read any more; the print goes without it.</translation>
 </message>
 <message>
  <source>Briefkopf der Ausdrucke</source>
  <translation>Letterhead of the prints</translation>
 </message>
 <message>
  <source>Nichts aufgezeichnet.</source>
  <translation>Nothing recorded.</translation>
 </message>
 <message>
  <source>Zeilen aus&amp;schneiden</source>
  <translation>C&amp;ut rows</translation>
 </message>
 <message>
  <source>Zeilen &amp;kopieren</source>
  <translation>Cop&amp;y rows</translation>
 </message>
 <message>
  <source>Zeilen &amp;einfügen</source>
  <translation>&amp;Paste rows</translation>
 </message>
 <message>
  <source>Zeilen hinau&amp;f</source>
  <translation>Mo&amp;ve rows up</translation>
 </message>
 <message>
  <source>Zeilen hin&amp;unter</source>
  <translation>Move rows &amp;down</translation>
 </message>
 <message>
  <source>Werte von heu&amp;te übernehmen</source>
  <translation>Use t&amp;oday's values</translation>
 </message>
 <message>
  <source>Werte von heute übernehmen</source>
  <translation>using today's values</translation>
 </message>
 <message>
  <source>In &amp;gewählte Tage füllen …</source>
  <translation>Fill into &amp;chosen days …</translation>
 </message>
 <message>
  <source>Tag &amp;kopieren</source>
  <translation>Copy &amp;day</translation>
 </message>
 <message>
  <source>Tag &amp;einfügen</source>
  <translation>Paste d&amp;ay</translation>
 </message>
 <message>
  <source>Als &amp;Plan auf den Schreibtisch</source>
  <translation>Put on the de&amp;sk as a plan</translation>
 </message>
 <message>
  <source>Plan vom Schreibtisch ü&amp;bernehmen</source>
  <translation>Take over the plan on the des&amp;k</translation>
 </message>
 <message>
  <source>&amp;Abgelegten Plan übernehmen …</source>
  <translation>Take &amp;over a kept plan …</translation>
 </message>
 <message>
  <source>In der Zwischenablage steht nichts, was hierher passt.</source>
  <translation>There is nothing on the clipboard that fits in here.</translation>
 </message>
 <message>
  <source>In der Zwischenablage stehen mehr als %1 Zeilen. Es wurde nichts eingefügt.</source>
  <translation>There are more than %1 rows on the clipboard. Nothing was pasted.</translation>
 </message>
 <message>
  <source>Was in der Zwischenablage steht, kommt aus einer neueren Fassung des Programms. Es wurde nichts eingefügt.</source>
  <translation>What is on the clipboard comes from a newer version of the program. Nothing was pasted.</translation>
 </message>
 <message>
  <source>Was in der Zwischenablage steht, ist beschädigt. Es wurde nichts eingefügt.</source>
  <translation>What is on the clipboard is damaged. Nothing was pasted.</translation>
 </message>
 <message>
  <source>Diese Aufzeichnung lässt sich nicht ändern.</source>
  <translation>This record can't be changed.</translation>
 </message>
 <message>
  <source>Es gibt noch keine Aufzeichnung.</source>
  <translation>There is no record yet.</translation>
 </message>
 <message>
  <source>Kopierte Zeilen: %1.</source>
  <translation>Rows copied: %1.</translation>
 </message>
 <message>
  <source>Es ist keine Zeile ausgewählt.</source>
  <translation>No row is selected.</translation>
 </message>
 <message>
  <source>Zeilen ausschneiden</source>
  <translation>cutting rows</translation>
 </message>
 <message>
  <source>Ausgeschnittene Zeilen: %1.</source>
  <translation>Rows cut: %1.</translation>
 </message>
 <message>
  <source>Davon zählen nicht: %1.</source>
  <translation>Of these, rows that don't count: %1.</translation>
 </message>
 <message>
  <source>Kopiert: %1 mit %2 Zeilen.</source>
  <translation>Copied: %1 with rows: %2.</translation>
 </message>
 <message>
  <source>In der Zwischenablage steht kein Tag. Mit „Tag kopieren“ kommt einer hinein.</source>
  <translation>There is no day on the clipboard. “Copy day” puts one there.</translation>
 </message>
 <message>
  <source>Zeilen einfügen</source>
  <translation>pasting rows</translation>
 </message>
 <message>
  <source>Eingefügte Zeilen: %1.</source>
  <translation>Rows pasted: %1.</translation>
 </message>
 <message>
  <source>%1 hat jetzt den kopierten Tag: %2 Zeilen.</source>
  <translation>%1 now has the copied day. Rows: %2.</translation>
 </message>
 <message>
  <source>Ersetzte Zeilen: %1.</source>
  <translation>Rows replaced: %1.</translation>
 </message>
 <message>
  <source>Tag einfügen</source>
  <translation>pasting a day</translation>
 </message>
 <message>
  <source>Zeilen verschieben</source>
  <translation>moving rows</translation>
 </message>
 <message>
  <source>Es gibt keinen anderen Tag zu füllen.</source>
  <translation>There is no other day to fill.</translation>
 </message>
 <message>
  <source>Gefüllte Tage: %1.</source>
  <translation>Days filled: %1.</translation>
 </message>
 <message>
  <source>Zeilen mit neuen Werten: %1.</source>
  <translation>Rows with new values: %1.</translation>
 </message>
 <message>
  <source>Lebensmittel, die in keiner Tabelle mehr stehen: %1 (%2).</source>
  <translation>Foods that are in no table any more: %1 (%2).</translation>
 </message>
 <message>
  <source>Ausgelassene Zeilen: %1 (%2).</source>
  <translation>Rows left out: %1 (%2).</translation>
 </message>
 <message>
  <source>Auf diesem Tag steht nichts, was in einen Plan kommen kann.</source>
  <translation>There is nothing on this day that can go into a plan.</translation>
 </message>
 <message>
  <source>Den Plan auf dem Schreibtisch ersetzen?</source>
  <translation>Replace the plan on the desk?</translation>
 </message>
 <message>
  <source>Er hat %1 Zeilen. Im Fenster des Plans lässt sich das zurücknehmen.</source>
  <translation>It has rows: %1. This can be undone in the window of the plan.</translation>
 </message>
 <message>
  <source>Ersetzen</source>
  <translation>Replace</translation>
 </message>
 <message>
  <source>Der Plan ließ sich nicht auf den Schreibtisch legen.</source>
  <translation>The plan could not be put on the desk.</translation>
 </message>
 <message>
  <source>Auf dem Schreibtisch liegt der Tag als Plan. Lebensmittel: %1.</source>
  <translation>The day is on the desk as a plan. Foods: %1.</translation>
 </message>
 <message>
  <source>Aus mehreren Zeilen addiert: %1 (%2).</source>
  <translation>Added up from several rows: %1 (%2).</translation>
 </message>
 <message>
  <source>Plan übernehmen</source>
  <translation>taking over a plan</translation>
 </message>
 <message>
  <source>Der Plan auf dem Schreibtisch ist leer.</source>
  <translation>The plan on the desk is empty.</translation>
 </message>
 <message>
  <source>Zeilen vom Plan auf dem Schreibtisch: %1.</source>
  <translation>Rows from the plan on the desk: %1.</translation>
 </message>
 <message>
  <source>Es ist kein Plan abgelegt.</source>
  <translation>No plan has been kept.</translation>
 </message>
 <message>
  <source>Zeilen vom abgelegten Plan: %1.</source>
  <translation>Rows from the kept plan: %1.</translation>
 </message>
 <message>
  <source>%1 in diese &amp;Tage füllen:</source>
  <translation>Fill %1 into these &amp;days:</translation>
 </message>
 <message>
  <source>%1 (schon ausgefüllt)</source>
  <translation>%1 (already filled in)</translation>
 </message>
 <message>
  <source>&amp;Füllen</source>
  <translation>&amp;Fill</translation>
 </message>
 <message>
  <source>Es ist kein Tag angekreuzt.</source>
  <translation>No day is ticked.</translation>
 </message>
 <message>
  <source>Ersetzt wird, was hier steht: %1. Mit „Rückgängig“ kommt es zurück.</source>
  <translation>This replaces what is on: %1. Undo brings it back.</translation>
 </message>
 <message>
  <source>Abgelegte Pläne</source>
  <translation>Kept plans</translation>
 </message>
 <message>
  <source>Abgelegte &amp;Pläne:</source>
  <translation>Kept &amp;plans:</translation>
 </message>
 <message>
  <source>&amp;Lebensmittel dieses Plans:</source>
  <translation>&amp;Foods of this plan:</translation>
 </message>
 <message>
  <source>Das Lebensmittel hat heute andere Werte; die Zeile rechnet mit denen, mit denen es eingetragen wurde.</source>
  <translation>The food has other values today; the row is worked out with those it was entered with.</translation>
 </message>
 <message>
  <source>Heute gibt es das Lebensmittel; als es eingetragen wurde, stand es in keiner Tabelle.</source>
  <translation>The food is there today; when it was entered, it was in no table.</translation>
 </message>
 <message>
  <source>Das Lebensmittel steht in keiner Tabelle mehr; die Zeile rechnet mit den Werten, mit denen es eingetragen wurde.</source>
  <translation>The food is in no table any more; the row is worked out with the values it was entered with.</translation>
 </message>
 <message>
  <source>Behalten</source>
  <translation>Keep</translation>
 </message>
 <message>
  <source>Tag in andere Tage füllen</source>
  <translation>Fill a day into others</translation>
 </message>
 <message>
  <source>Mittel</source>
  <translation>Mean</translation>
 </message>
 <message>
  <source>Tage im Mittel: %1.</source>
  <translation>Days in the mean: %1.</translation>
 </message>
 <message>
  <source>Ta&amp;ge und Mahlzeiten</source>
  <translation>&amp;Days and meals</translation>
 </message>
 <message>
  <source>Tage und Mahlzeiten</source>
  <translation>Days and meals</translation>
 </message>
 <message>
  <source>Die Aufzeichnungen ohne Klienten sind nicht zu lesen oder von einer neueren Version; sie bleiben, wie sie sind.</source>
  <translation>The records without a client can’t be read or are of a newer version; they stay as they are.</translation>
 </message>
 <message>
  <source>Die Aufzeichnungen ohne Klienten waren nicht ganz zu lesen; aufgehoben sind sie als „%1“.</source>
  <translation>The records without a client could not be read in full; they are kept as “%1”.</translation>
 </message>
 <message>
  <source>Die Aufzeichnungen lassen sich gerade nicht sichern; mit der nächsten Änderung wird es wieder versucht.</source>
  <translation>The records can’t be saved at the moment; it will be tried again with the next change.</translation>
 </message>
 <message>
  <source>„%1“ steht jetzt bei den Tagen: %2.</source>
  <translation>“%1” now stands in the days: %2.</translation>
 </message>
 <message>
  <source>Diese Aufzeichnung ist von einer neueren Version; sie ist hier nur zu lesen.</source>
  <translation>This record is of a newer version; it can only be read here.</translation>
 </message>
 <message>
  <source>%1 ist leer.</source>
  <translation>%1 is empty.</translation>
 </message>
 <message>
  <source>Weggenommen mit dem, was dort stand: %1.</source>
  <translation>Taken away with what stood there: %1.</translation>
 </message>
 <message>
  <source>„%1“ ist an allen Tagen herausgenommen.</source>
  <translation>“%1” is taken out of all days.</translation>
 </message>
 <message>
  <source>Ein Lebensmittel „%1“ gibt es nicht. Die Zeile zählt nicht.</source>
  <translation>There is no food “%1”. The row does not count.</translation>
 </message>
 <message>
  <source>„%1“: %2 Die Zeile zählt nicht.</source>
  <translation>“%1”: %2 The row does not count.</translation>
 </message>
 <message>
  <source>&amp;Aufzeichnung</source>
  <translation>&amp;Record</translation>
 </message>
 <message>
  <source>&amp;Mahlzeit</source>
  <translation>&amp;Meal</translation>
 </message>
 <message>
  <source>&amp;Neue Mahlzeit darunter</source>
  <translation>&amp;New meal below</translation>
 </message>
 <message>
  <source>&amp;Neues Protokoll</source>
  <translation>&amp;New food record</translation>
 </message>
 <message>
  <source>&amp;Nächster Tag</source>
  <translation>&amp;Next day</translation>
 </message>
 <message>
  <source>&amp;Tag</source>
  <translation>&amp;Day</translation>
 </message>
 <message>
  <source>&amp;Voriger Tag</source>
  <translation>&amp;Previous day</translation>
 </message>
 <message>
  <source>Alle ihre Tage gehen verloren. Das lässt sich nicht zurücknehmen.</source>
  <translation>All its days will be lost. This can’t be undone.</translation>
 </message>
 <message>
  <source>Als &amp;Wahl zur Zeile davor („oder“)</source>
  <translation>As a &amp;choice to the row before (“or”)</translation>
 </message>
 <message>
  <source>Art ändern</source>
  <translation>Change kind</translation>
 </message>
 <message>
  <source>Aufzeichnung &amp;löschen …</source>
  <translation>De&amp;lete record …</translation>
 </message>
 <message>
  <source>Aufzeichnungen von %1.</source>
  <translation>Records of %1.</translation>
 </message>
 <message>
  <source>Die Aufzeichnung „%1“ löschen?</source>
  <translation>Delete the record “%1”?</translation>
 </message>
 <message>
  <source>Die Menge ist nicht zu verstehen; die Zeile zählt nicht.</source>
  <translation>The amount can’t be understood; the row does not count.</translation>
 </message>
 <message>
  <source>Ein Lebensmittel dieses Namens gibt es nicht; die Zeile zählt nicht.</source>
  <translation>There is no food of this name; the row does not count.</translation>
 </message>
 <message>
  <source>Eine Wahl statt der Zeile davor; sie zählt nicht.</source>
  <translation>A choice in place of the row before; it does not count.</translation>
 </message>
 <message>
  <source>Ersten Tag ändern</source>
  <translation>Change first day</translation>
 </message>
 <message>
  <source>In alle &amp;folgenden Tage füllen</source>
  <translation>Fill into all &amp;following days</translation>
 </message>
 <message>
  <source>Lebensmittel eintippen …</source>
  <translation>Type a food …</translation>
 </message>
 <message>
  <source>Lebensmittel eintragen</source>
  <translation>Enter food</translation>
 </message>
 <message>
  <source>Lebensmittel ändern</source>
  <translation>Change food</translation>
 </message>
 <message>
  <source>Löschen</source>
  <translation>Delete</translation>
 </message>
 <message>
  <source>Mahlzeit hinau&amp;f</source>
  <translation>Meal &amp;up</translation>
 </message>
 <message>
  <source>Mahlzeit einfügen</source>
  <translation>Insert meal</translation>
 </message>
 <message>
  <source>Mahlzeit h&amp;inunter</source>
  <translation>Meal d&amp;own</translation>
 </message>
 <message>
  <source>Mahlzeit &amp;herausnehmen</source>
  <translation>&amp;Take out meal</translation>
 </message>
 <message>
  <source>Mahlzeit herausnehmen</source>
  <translation>Take out the meal</translation>
 </message>
 <message>
  <source>Mahlzeit umbenennen</source>
  <translation>Rename meal</translation>
 </message>
 <message>
  <source>Mahlzeit verschieben</source>
  <translation>Move meal</translation>
 </message>
 <message>
  <source>Menge ändern</source>
  <translation>Change amount</translation>
 </message>
 <message>
  <source>Neue Mahlzeit</source>
  <translation>New meal</translation>
 </message>
 <message>
  <source>Neuer &amp;Wochenplan</source>
  <translation>New &amp;week plan</translation>
 </message>
 <message>
  <source>Noch keine Aufzeichnung. Mit „Neu“ beginnen Sie ein Protokoll.</source>
  <translation>No record yet. Begin a food record with “New”.</translation>
 </message>
 <message>
  <source>Notiz ändern</source>
  <translation>Change note</translation>
 </message>
 <message>
  <source>Ohne Klienten am Schreibtisch: Die Aufzeichnungen stehen in einer Datei an diesem Platz, die nur Sie lesen können.</source>
  <translation>No client at the desk: the records are in a file at this desk that only you can read.</translation>
 </message>
 <message>
  <source>Rückgängig:</source>
  <translation>Undo:</translation>
 </message>
 <message>
  <source>Tag &amp;leeren</source>
  <translation>&amp;Empty the day</translation>
 </message>
 <message>
  <source>Tag im Mittel</source>
  <translation>Day in the mean</translation>
 </message>
 <message>
  <source>Tag leeren</source>
  <translation>Empty day</translation>
 </message>
 <message>
  <source>Tage füllen</source>
  <translation>Fill days</translation>
 </message>
 <message>
  <source>Titel ändern</source>
  <translation>Change title</translation>
 </message>
 <message>
  <source>Wahl ändern</source>
  <translation>Change choice</translation>
 </message>
 <message>
  <source>Wiederholen:</source>
  <translation>Redo:</translation>
 </message>
 <message>
  <source>Zahl der Tage ändern</source>
  <translation>Change number of days</translation>
 </message>
 <message>
  <source>Zeile</source>
  <translation>Row</translation>
 </message>
 <message>
  <source>Zeilen &amp;herausnehmen</source>
  <translation>&amp;Take out rows</translation>
 </message>
 <message>
  <source>Zeilen dieses Tages, die nicht zählen: %1.</source>
  <translation>Rows of this day that don’t count: %1.</translation>
 </message>
 <message>
  <source>Zeilen herausnehmen</source>
  <translation>Take out the rows</translation>
 </message>
 <message>
  <source>g</source>
  <translation>g</translation>
 </message>
 <message>
  <source>Haushalts&amp;maße …</source>
  <translation>&amp;Household measures …</translation>
 </message>
 <message>
  <source>kcal</source>
  <translation>kcal</translation>
 </message>
 <message>
  <source>Protein (g)</source>
  <translation>Protein (g)</translation>
 </message>
 <message>
  <source>Fett (g)</source>
  <translation>Fat (g)</translation>
 </message>
 <message>
  <source>KH (g)</source>
  <translation>Carbs (g)</translation>
 </message>
 <message>
  <source>Menge, wie gesagt</source>
  <translation>Amount as said</translation>
 </message>
 <message>
  <source>Tage, die gefüllt werden</source>
  <translation>Days that are filled</translation>
 </message>
 <message>
  <source>Lebensmittel dieses Plans</source>
  <translation>Foods of this plan</translation>
 </message>
 <message>
  <source>Es gibt keine Aufzeichnung, die sich hier ändern lässt.</source>
  <translation>There is no record that can be changed here.</translation>
 </message>
 <message>
  <source>Hier lassen sich keine Aufzeichnungen anlegen.</source>
  <translation>No records can be made here.</translation>
 </message>
 <message>
  <source>Wählen Sie zuerst eine Mahlzeit in einer Aufzeichnung, die sich ändern lässt.</source>
  <translation>First choose a meal in a record that can be changed.</translation>
 </message>
 <message>
  <source>Tag aus&amp;schneiden</source>
  <translation>Cu&amp;t day</translation>
 </message>
 <message>
  <source>Woh&amp;er kommt:</source>
  <translation>&amp;Where it comes from:</translation>
 </message>
 <message>
  <source>Beiträge der Lebensmittel</source>
  <translation>Contributions of the foods</translation>
 </message>
 <message>
  <source>Die Eingabetaste führt zur Zeile des Lebensmittels.</source>
  <translation>Return leads to the row of the food.</translation>
 </message>
 <message>
  <source>Ungeeignet: %1</source>
  <translation>Unsuitable: %1</translation>
 </message>
 <message>
  <source>Ungeeignete Lebensmittel: %1, %2 der Menge</source>
  <translation>Unsuitable foods: %1, %2 of the amount</translation>
 </message>
 <message>
  <source>Hier zählt noch kein Lebensmittel.</source>
  <translation>No food counts here yet.</translation>
 </message>
 <message>
  <source>Kein Lebensmittel ist hierfür ungeeignet.</source>
  <translation>No food is unsuitable for this.</translation>
 </message>
 <message>
  <source>Kein bewertetes Lebensmittel ist hierfür ungeeignet.</source>
  <translation>No food with a rating is unsuitable for this.</translation>
 </message>
 <message>
  <source>Beitrag</source>
  <translation>Contribution</translation>
 </message>
 <message>
  <source>bei %1 der Menge unbekannt</source>
  <translation>unknown for %1 of the amount</translation>
 </message>
 <message>
  <source>Gesättigte Fettsäuren</source>
  <translation>Saturated fat</translation>
 </message>
 <message>
  <source>Zucker</source>
  <translation>Sugars</translation>
 </message>
 <message>
  <source>Alkohol</source>
  <translation>Alcohol</translation>
 </message>
 <message>
  <source>Wasser</source>
  <translation>Water</translation>
 </message>
 <message>
  <source>Harnsäure aus Purinen</source>
  <translation>Uric acid from purines</translation>
 </message>
 <message>
  <source>BE</source>
  <translation>BU</translation>
 </message>
 <message>
  <source>Das Gericht braucht einen Namen.</source>
  <translation>The dish needs a name.</translation>
 </message>
 <message>
  <source>Das Rezept hat keine Zutaten.</source>
  <translation>The recipe has no ingredients.</translation>
 </message>
 <message>
  <source>Ein Rezept kann höchstens 100 Zutaten haben.</source>
  <translation>A recipe can have 100 ingredients at most.</translation>
 </message>
 <message>
  <source>Eine Zutat hat keinen Namen.</source>
  <translation>An ingredient has no name.</translation>
 </message>
 <message>
  <source>Jede Zutat braucht eine Menge über 0 g.</source>
  <translation>Each ingredient needs an amount above 0 g.</translation>
 </message>
 <message>
  <source>Eine Zutat kann höchstens 100 kg wiegen.</source>
  <translation>An ingredient can weigh 100 kg at most.</translation>
 </message>
 <message>
  <source>Das fertige Gericht muss mindestens 1 g wiegen.</source>
  <translation>The finished dish must weigh at least 1 g.</translation>
 </message>
 <message>
  <source>Ein Gericht kann höchstens 100 kg wiegen.</source>
  <translation>A dish can weigh 100 kg at most.</translation>
 </message>
 <message>
  <source>Fertig kann das Gericht nicht weniger wiegen als Protein, Fett, Kohlenhydrate und Ballaststoffe der Zutaten zusammen.</source>
  <translation>Finished, the dish can't weigh less than the protein, fat, carbohydrate and fibre of its ingredients together.</translation>
 </message>
 <message>
  <source>Die Zahl der Portionen muss zwischen 0,1 und 1000 liegen.</source>
  <translation>The number of portions must be between 0.1 and 1000.</translation>
 </message>
 <message>
  <source>Das Gericht kann nicht seine eigene Zutat sein, auch nicht auf dem Weg über andere Rezepte.</source>
  <translation>The dish can't be its own ingredient, nor by way of other recipes.</translation>
 </message>
 <message>
  <source>Die Datei der Rezepte lässt sich nicht lesen oder ist von einer neueren Version. Sie bleibt, wie sie ist, und Rezepte können nicht geändert werden.</source>
  <translation>The file of the recipes can't be read, or is from a newer version. It stays as it is, and recipes can't be changed.</translation>
 </message>
 <message>
  <source>Die Rezepte ließen sich nicht sichern. Sie gelten weiter, und mit der nächsten Änderung wird es wieder versucht.</source>
  <translation>The recipes could not be saved. They hold all the same, and the next change will try again.</translation>
 </message>
 <message>
  <source>Die Datei der Rezepte war beschädigt. Was sich lesen ließ, gilt; sie selbst liegt jetzt hier: %1</source>
  <translation>The file of the recipes was damaged. What could be read holds; the file itself is here now: %1</translation>
 </message>
 <message>
  <source>je 100 g</source>
  <translation>per 100 g</translation>
 </message>
 <message>
  <source>je 100 kcal</source>
  <translation>per 100 kcal</translation>
 </message>
 <message>
  <source>je Portion</source>
  <translation>per portion</translation>
 </message>
 <message>
  <source>mind. %1</source>
  <translation>at least %1</translation>
 </message>
 <message>
  <source>ohne Portion</source>
  <translation>no portion</translation>
 </message>
 <message>
  <source>ohne Rang, eine Angabe fehlt</source>
  <translation>no rank, a figure is missing</translation>
 </message>
 <message>
  <source>Rang %1</source>
  <translation>Rank %1</translation>
 </message>
 <message>
  <source>zum Vergleich angehakt</source>
  <translation>ticked for comparing</translation>
 </message>
 <message>
  <source>Rang</source>
  <translation>Rank</translation>
 </message>
 <message>
  <source>Gehalt</source>
  <translation>Content</translation>
 </message>
 <message>
  <source>vom Höchsten</source>
  <translation>of highest</translation>
 </message>
 <message>
  <source>Portion</source>
  <translation>Portion</translation>
 </message>
 <message>
  <source>von</source>
  <translation>from</translation>
 </message>
 <message>
  <source>bis</source>
  <translation>to</translation>
 </message>
 <message>
  <source>Diesen Bereich herausnehmen</source>
  <translation>Take this range out</translation>
 </message>
 <message>
  <source>Bereich: Angabe</source>
  <translation>Range: value</translation>
 </message>
 <message>
  <source>Bereich für %1: Bezug</source>
  <translation>Range of %1: basis</translation>
 </message>
 <message>
  <source>%1 von, in %2</source>
  <translation>%1 from, in %2</translation>
 </message>
 <message>
  <source>%1 bis, in %2</source>
  <translation>%1 to, in %2</translation>
 </message>
 <message>
  <source>Bereich für %1 herausnehmen</source>
  <translation>Take the range of %1 out</translation>
 </message>
 <message>
  <source>beliebig</source>
  <translation>any</translation>
 </message>
 <message>
  <source>+ oder 0</source>
  <translation>+ or 0</translation>
 </message>
 <message>
  <source>&amp;Gruppe:</source>
  <translation>&amp;Group:</translation>
 </message>
 <message>
  <source>Bewertung: %1</source>
  <translation>Rating: %1</translation>
 </message>
 <message>
  <source>&amp;Bereich hinzufügen</source>
  <translation>Add r&amp;ange</translation>
 </message>
 <message>
  <source>Alle Gruppen</source>
  <translation>All groups</translation>
 </message>
 <message>
  <source>besser</source>
  <translation>better</translation>
 </message>
 <message>
  <source>Be&amp;zug:</source>
  <translation>Ba&amp;sis:</translation>
 </message>
 <message>
  <source>Lebensmittel im Vergleich</source>
  <translation>Foods side by side</translation>
 </message>
 <message>
  <source>Haken Sie in der Rangliste zwei bis fünf Lebensmittel an, mit der Maus oder mit der Leertaste. Hier stehen sie dann nebeneinander.</source>
  <translation>Tick two to five foods in the ranking, with the mouse or the space bar. They will stand side by side here.</translation>
 </message>
 <message>
  <source>✓ besser nach dieser einen Angabe, für Erwachsene mit gesunden Nieren. Wo es darauf ankommt, wer es isst, ist nichts markiert. Unbekanntes wird nicht verglichen.</source>
  <translation>✓ better by this one value, for adults with healthy kidneys. Where it depends on who eats it, nothing is marked. What is unknown is not compared.</translation>
 </message>
 <message>
  <source>Einheit</source>
  <translation>Unit</translation>
 </message>
 <message>
  <source>Besser</source>
  <translation>Better</translation>
 </message>
 <message>
  <source>Rangliste der Lebensmittel</source>
  <translation>Ranking of foods</translation>
 </message>
 <message>
  <source>&amp;Rangliste</source>
  <translation>&amp;Ranking</translation>
 </message>
 <message>
  <source>&amp;Wonach:</source>
  <translation>Rank b&amp;y:</translation>
 </message>
 <message>
  <source>Bezug</source>
  <translation>Basis</translation>
 </message>
 <message>
  <source>Reihenfolge</source>
  <translation>Order</translation>
 </message>
 <message>
  <source>Höchste zuerst</source>
  <translation>Highest first</translation>
 </message>
 <message>
  <source>Niedrigste zuerst</source>
  <translation>Lowest first</translation>
 </message>
 <message>
  <source>Eingrenzung auf&amp;heben</source>
  <translation>Narro&amp;w no more</translation>
 </message>
 <message>
  <source>Rangliste</source>
  <translation>Ranking</translation>
 </message>
 <message>
  <source>Die Eingabetaste zeigt das Lebensmittel im Hauptfenster, die Leertaste hakt es zum Vergleich an, mit Strg und Eingabetaste kommt es in den Plan.</source>
  <translation>Return shows the food in the main window, the space bar ticks it for comparing, Ctrl+Return takes it into the plan.</translation>
 </message>
 <message>
  <source>&amp;Nebeneinander stellen</source>
  <translation>&amp;Set side by side</translation>
 </message>
 <message>
  <source>&amp;Alle abhaken</source>
  <translation>&amp;Untick all</translation>
 </message>
 <message>
  <source>1 Lebensmittel ohne Angabe</source>
  <translation>1 food without a figure</translation>
 </message>
 <message>
  <source>%1 Lebensmittel ohne Angabe</source>
  <translation>%1 foods without a figure</translation>
 </message>
 <message>
  <source>1 Lebensmittel ohne Portion</source>
  <translation>1 food without a portion</translation>
 </message>
 <message>
  <source>%1 Lebensmittel ohne Portion</source>
  <translation>%1 foods without a portion</translation>
 </message>
 <message>
  <source>Kein Lebensmittel: Der Bereich für %1 hört auf, bevor er anfängt.</source>
  <translation>No food: the range of %1 ends before it begins.</translation>
 </message>
 <message>
  <source>Es gibt noch keine eigenen Lebensmittel.</source>
  <translation>There are no own foods yet.</translation>
 </message>
 <message>
  <source>Die Gruppen der Lebensmittel konnten nicht gelesen werden.</source>
  <translation>The groups of the foods could not be read.</translation>
 </message>
 <message>
  <source>Es gibt keine Lebensmittel.</source>
  <translation>There are no foods.</translation>
 </message>
 <message>
  <source>Kein Lebensmittel erfüllt alles, was unter „Eingrenzen“ gewählt ist.</source>
  <translation>No food meets all that is chosen under “Narrow”.</translation>
 </message>
 <message>
  <source>&amp;Eingrenzen</source>
  <translation>&amp;Narrow</translation>
 </message>
 <message>
  <source>&amp;Eingrenzen (%1)</source>
  <translation>&amp;Narrow (%1)</translation>
 </message>
 <message>
  <source>Mehr als fünf passen nicht nebeneinander. %1</source>
  <translation>More than five have no room side by side. %1</translation>
 </message>
 <message>
  <source>Zum Vergleichen anhaken.</source>
  <translation>Tick foods to compare them.</translation>
 </message>
 <message>
  <source>Zum Vergleich: %1</source>
  <translation>To compare: %1</translation>
 </message>
 <message>
  <source>&amp;Vergleich</source>
  <translation>&amp;Comparison</translation>
 </message>
 <message>
  <source>&amp;Vergleich (%1)</source>
  <translation>&amp;Comparison (%1)</translation>
 </message>
 <message>
  <source>Zwei bis fünf Lebensmittel müssen angehakt sein.</source>
  <translation>Two to five foods must be ticked.</translation>
 </message>
 <message>
  <source>Im Hauptfenster &amp;zeigen</source>
  <translation>&amp;Show in the main window</translation>
 </message>
 <message>
  <source>Zum &amp;Vergleich nehmen</source>
  <translation>Take for &amp;comparing</translation>
 </message>
 <message>
  <source>Aus dem &amp;Vergleich nehmen</source>
  <translation>Take out of the &amp;comparison</translation>
 </message>
 <message>
  <source>Nach &amp;Rang sortieren</source>
  <translation>Sort by &amp;rank</translation>
 </message>
 <message>
  <source>Nach &amp;Namen sortieren</source>
  <translation>Sort by &amp;name</translation>
 </message>
 <message>
  <source>Brot und Brötchen</source>
  <translation>Bread and rolls</translation>
 </message>
 <message>
  <source>Flocken und Müsli</source>
  <translation>Flakes and muesli</translation>
 </message>
 <message>
  <source>Mehl und Teig</source>
  <translation>Flour and dough</translation>
 </message>
 <message>
  <source>Getreide, Reis und Nudeln</source>
  <translation>Grain, rice and pasta</translation>
 </message>
 <message>
  <source>Kartoffeln</source>
  <translation>Potatoes</translation>
 </message>
 <message>
  <source>Hülsenfrüchte</source>
  <translation>Pulses</translation>
 </message>
 <message>
  <source>Gemüse</source>
  <translation>Vegetables</translation>
 </message>
 <message>
  <source>Pilze</source>
  <translation>Mushrooms</translation>
 </message>
 <message>
  <source>Kräuter, Gewürze und Zutaten</source>
  <translation>Herbs, spices and ingredients</translation>
 </message>
 <message>
  <source>Hefe</source>
  <translation>Yeast</translation>
 </message>
 <message>
  <source>Obst</source>
  <translation>Fruit</translation>
 </message>
 <message>
  <source>Obstkonserven und Kompott</source>
  <translation>Canned and stewed fruit</translation>
 </message>
 <message>
  <source>Trockenobst</source>
  <translation>Dried fruit</translation>
 </message>
 <message>
  <source>Nüsse und Samen</source>
  <translation>Nuts and seeds</translation>
 </message>
 <message>
  <source>Eier</source>
  <translation>Eggs</translation>
 </message>
 <message>
  <source>Milch und Sahne</source>
  <translation>Milk and cream</translation>
 </message>
 <message>
  <source>Joghurt und Quark</source>
  <translation>Yoghurt and curd cheese</translation>
 </message>
 <message>
  <source>Käse</source>
  <translation>Cheese</translation>
 </message>
 <message>
  <source>Fette und Öle</source>
  <translation>Fats and oils</translation>
 </message>
 <message>
  <source>Suppen und Soßen</source>
  <translation>Soups and sauces</translation>
 </message>
 <message>
  <source>Rind- und Kalbfleisch</source>
  <translation>Beef and veal</translation>
 </message>
 <message>
  <source>Schweinefleisch</source>
  <translation>Pork</translation>
 </message>
 <message>
  <source>Lamm, Pferd und Wild</source>
  <translation>Lamb, horse and game</translation>
 </message>
 <message>
  <source>Geflügel und Kaninchen</source>
  <translation>Poultry and rabbit</translation>
 </message>
 <message>
  <source>Innereien</source>
  <translation>Offal</translation>
 </message>
 <message>
  <source>Wurst und Schinken</source>
  <translation>Sausage and ham</translation>
 </message>
 <message>
  <source>Fisch</source>
  <translation>Fish</translation>
 </message>
 <message>
  <source>Krusten- und Weichtiere</source>
  <translation>Shellfish and molluscs</translation>
 </message>
 <message>
  <source>Pflanzendrinks und Pflanzenjoghurt</source>
  <translation>Plant drinks and plant yoghurt</translation>
 </message>
 <message>
  <source>Tofu und Fleischersatz</source>
  <translation>Tofu and meat substitutes</translation>
 </message>
 <message>
  <source>Käseersatz</source>
  <translation>Cheese substitutes</translation>
 </message>
 <message>
  <source>Gerichte mit Fleisch oder Fisch</source>
  <translation>Dishes with meat or fish</translation>
 </message>
 <message>
  <source>Gerichte ohne Fleisch</source>
  <translation>Dishes without meat</translation>
 </message>
 <message>
  <source>Kuchen und Gebäck</source>
  <translation>Cakes and pastries</translation>
 </message>
 <message>
  <source>Süßspeisen und Eis</source>
  <translation>Desserts and ice cream</translation>
 </message>
 <message>
  <source>Zucker und Süßwaren</source>
  <translation>Sugar and sweets</translation>
 </message>
 <message>
  <source>Knabbergebäck</source>
  <translation>Savoury snacks</translation>
 </message>
 <message>
  <source>Wasser, Kaffee und Tee</source>
  <translation>Water, coffee and tea</translation>
 </message>
 <message>
  <source>Saft und Erfrischungsgetränke</source>
  <translation>Juice and soft drinks</translation>
 </message>
 <message>
  <source>Bier</source>
  <translation>Beer</translation>
 </message>
 <message>
  <source>Wein und Spirituosen</source>
  <translation>Wine and spirits</translation>
 </message>
 <message>
  <source>Alkohol in der Woche</source>
  <translation>Alcohol in a week</translation>
 </message>
 <message>
  <source>Wasser insgesamt</source>
  <translation>Water altogether</translation>
 </message>
 <message>
  <source>Wasser in Getränken</source>
  <translation>Water in drinks</translation>
 </message>
 <message>
  <source>Wasser in Speisen</source>
  <translation>Water in foods</translation>
 </message>
 <message>
  <source>Energiedichte ohne Getränke</source>
  <translation>Energy density without drinks</translation>
 </message>
 <message>
  <source>Energie aus gesättigten Fettsäuren</source>
  <translation>Energy from saturated fat</translation>
 </message>
 <message>
  <source>Energie aus allem Zucker</source>
  <translation>Energy from all sugars</translation>
 </message>
 <message>
  <source>Energie aus freiem Zucker, geschätzt</source>
  <translation>Energy from free sugars, estimated</translation>
 </message>
 <message>
  <source>purinarm</source>
  <translation>low in purines</translation>
 </message>
 <message>
  <source>streng purinarm</source>
  <translation>strictly low in purines</translation>
 </message>
 <message>
  <source>unter 18 Jahren</source>
  <translation>under 18 years</translation>
 </message>
 <message>
  <source>geringes Risiko</source>
  <translation>low risk</translation>
 </message>
 <message>
  <source>in der Schwangerschaft</source>
  <translation>in pregnancy</translation>
 </message>
 <message>
  <source>in der Stillzeit</source>
  <translation>while breastfeeding</translation>
 </message>
 <message>
  <source>angemessene Zufuhr</source>
  <translation>adequate intake</translation>
 </message>
 <message>
  <source>angemessen und sicher</source>
  <translation>adequate and safe</translation>
 </message>
 <message>
  <source>höchstens %1 (%2)</source>
  <translation>at most %1 (%2)</translation>
 </message>
 <message>
  <source>unter %1 (%2)</source>
  <translation>under %1 (%2)</translation>
 </message>
 <message>
  <source>mindestens %1 (%2)</source>
  <translation>at least %1 (%2)</translation>
 </message>
 <message>
  <source>gar nichts (%1)</source>
  <translation>none at all (%1)</translation>
 </message>
 <message>
  <source>eingehalten</source>
  <translation>kept</translation>
 </message>
 <message>
  <source>nicht eingehalten</source>
  <translation>not kept</translation>
 </message>
 <message>
  <source>offen, weil nicht alles bekannt ist</source>
  <translation>open, since not all is known</translation>
 </message>
 <message>
  <source>Eine Grenze hat niemand veröffentlicht.</source>
  <translation>Nobody has published a limit.</translation>
 </message>
 <message>
  <source>Die Grenze hängt vom Geschlecht ab, und das fehlt.</source>
  <translation>The limit differs by sex, and that is missing.</translation>
 </message>
 <message>
  <source>Für dieses Alter ist keine Grenze veröffentlicht.</source>
  <translation>No limit is published for this age.</translation>
 </message>
 <message>
  <source>So viel Harnsäure entsteht aus den Purinen.</source>
  <translation>So much uric acid comes from the purines.</translation>
 </message>
 <message>
  <source>Eine Broteinheit sind 12 g verwertbare Kohlenhydrate.</source>
  <translation>A bread unit is 12 g of available carbohydrate.</translation>
 </message>
 <message>
  <source>So viel wäre es an sieben solchen Tagen.</source>
  <translation>So much it would be in seven such days.</translation>
 </message>
 <message>
  <source>Das Wasser in Getränken und Speisen zusammen.</source>
  <translation>The water in drinks and foods together.</translation>
 </message>
 <message>
  <source>Aus dem Natrium: das 2,5-Fache.</source>
  <translation>From sodium: 2.5 times as much.</translation>
 </message>
 <message>
  <source>Alles außer Getränken; Milch zählt als Speise.</source>
  <translation>All but drinks; milk counts as a food.</translation>
 </message>
 <message>
  <source>Aller Zucker, auch der in Obst und Milch.</source>
  <translation>All sugars, those in fruit and milk too.</translation>
 </message>
 <message>
  <source>Ohne den Zucker, den Obst, Gemüse und Milch von Natur aus enthalten. Der Anteil ist aus der Art der Lebensmittel geschätzt.</source>
  <translation>Without the sugars that fruit, vegetables and milk hold by nature. The part is estimated from the kinds of foods.</translation>
 </message>
 <message>
  <source>%1 (wenig Purine)</source>
  <translation>%1 (few purines)</translation>
 </message>
 <message>
  <source>%1 (mäßig viele Purine)</source>
  <translation>%1 (a moderate amount of purines)</translation>
 </message>
 <message>
  <source>%1 (viele Purine)</source>
  <translation>%1 (many purines)</translation>
 </message>
 <message>
  <source>Grenze: %1</source>
  <translation>Limit: %1</translation>
 </message>
 <message>
  <source>Quelle: %1</source>
  <translation>Source: %1</translation>
 </message>
 <message>
  <source>Unbekannt bei %1 der Menge: %2</source>
  <translation>Unknown for %1 of the amount: %2</translation>
 </message>
 <message>
  <source>Weitere Werte des Tages</source>
  <translation>Further figures of the day</translation>
 </message>
 <message>
  <source>Einzelheiten zur gewählten Zeile stehen unter der Tabelle.</source>
  <translation>Details of the chosen row stand below the table.</translation>
 </message>
 <message>
  <source>Einzelheiten zur gewählten Zeile</source>
  <translation>Details of the chosen row</translation>
 </message>
 <message>
  <source>Die Grenzen gelten für einen ganzen Tag; ein einzelnes Lebensmittel wird nicht daran gemessen.</source>
  <translation>The limits are for a whole day; a single food is not measured against them.</translation>
 </message>
 <message>
  <source>Ohne Alter gelten die Grenzen für Erwachsene.</source>
  <translation>Without an age the limits of grown-ups count.</translation>
 </message>
 <message>
  <source>An den Grenzen für Purine wird nur bei Gicht gemessen.</source>
  <translation>The limits for purines apply only with gout.</translation>
 </message>
 <message>
  <source>&amp;Beiträge</source>
  <translation>&amp;Contributions</translation>
 </message>
 <message>
  <source>&amp;Einblick</source>
  <translation>&amp;Insight</translation>
 </message>
 <message>
  <source>Einb&amp;lick in:</source>
  <translation>&amp;Insight into:</translation>
 </message>
 <message>
  <source>&amp;Rangliste und Vergleich</source>
  <translation>&amp;Ranking and comparing</translation>
 </message>
 <message>
  <source>&amp;Referenzwerte</source>
  <translation>&amp;Reference values</translation>
 </message>
 <message>
  <source>&amp;Weitere Werte</source>
  <translation>&amp;Further figures</translation>
 </message>
 <message>
  <source>Was &amp;hilft</source>
  <translation>What &amp;helps</translation>
 </message>
 <message>
  <source>Anteil</source>
  <translation>Share</translation>
 </message>
 <message>
  <source>Einblick</source>
  <translation>Insight</translation>
 </message>
 <message>
  <source>Mahlzeitenplan, Zeilen: %1</source>
  <translation>Meal plan, rows: %1</translation>
 </message>
 <message>
  <source>Kein Lebensmittel ist gewählt.</source>
  <translation>No food is chosen.</translation>
 </message>
 <message>
  <source>„%1“ steht jetzt im Plan.</source>
  <translation>“%1” is in the plan now.</translation>
 </message>
 <message>
  <source>„%1“ kam nicht in den Plan.</source>
  <translation>“%1” did not come into the plan.</translation>
 </message>
 <message>
  <source>„%1“ kam nicht zu den Tagen: Die Aufzeichnung lässt sich nicht ändern.</source>
  <translation>“%1” did not come to the days: the record can't be changed.</translation>
 </message>
 <message>
  <source>%1 % der Energie</source>
  <translation>%1 % of energy</translation>
 </message>
 <message>
  <source>%1 Jahre</source>
  <translation>%1 years</translation>
 </message>
 <message>
  <source>%1 davon</source>
  <translation>%1 of it</translation>
 </message>
 <message>
  <source>%1 g je kg Körpergewicht bei %2 kg</source>
  <translation>%1 g for each kg of body weight, at %2 kg</translation>
 </message>
 <message>
  <source>%1 mg je MJ der Energie</source>
  <translation>%1 mg for each MJ of energy</translation>
 </message>
 <message>
  <source>&amp;Alter (Jahre):</source>
  <translation>Age (&amp;years):</translation>
 </message>
 <message>
  <source>&amp;Geschlecht:</source>
  <translation>Se&amp;x:</translation>
 </message>
 <message>
  <source>St&amp;illzeit:</source>
  <translation>&amp;Lactation:</translation>
 </message>
 <message>
  <source>Tr&amp;imester:</source>
  <translation>Trim&amp;ester:</translation>
 </message>
 <message>
  <source>Zustan&amp;d:</source>
  <translation>S&amp;tate:</translation>
 </message>
 <message>
  <source>1 Jahr</source>
  <translation>1 year</translation>
 </message>
 <message>
  <source>1. Trimester</source>
  <translation>1st trimester</translation>
 </message>
 <message>
  <source>2. Trimester</source>
  <translation>2nd trimester</translation>
 </message>
 <message>
  <source>3. Trimester</source>
  <translation>3rd trimester</translation>
 </message>
 <message>
  <source>A&amp;ktivität (PAL):</source>
  <translation>Acti&amp;vity (PAL):</translation>
 </message>
 <message>
  <source>Alter unbekannt</source>
  <translation>age unknown</translation>
 </message>
 <message>
  <source>Angegeben für PAL %1, den nächsten zum gewählten</source>
  <translation>Printed for PAL %1, the nearest to the one chosen</translation>
 </message>
 <message>
  <source>Allgemeiner Tagesbedarf</source>
  <translation>General daily needs</translation>
 </message>
 <message>
  <source>Bis dahin gilt, was oben steht.</source>
  <translation>Until then what stands above holds.</translation>
 </message>
 <message>
  <source>Bis zu 10 % daneben gelten hier als richtig</source>
  <translation>Up to 10 % off counts as right here</translation>
 </message>
 <message>
  <source>Darin für Schwangerschaft oder Stillzeit: %1</source>
  <translation>Of this for pregnancy or lactation: %1</translation>
 </message>
 <message>
  <source>Das Alter fehlt</source>
  <translation>The age is missing</translation>
 </message>
 <message>
  <source>Das Geschlecht fehlt</source>
  <translation>The sex is missing</translation>
 </message>
 <message>
  <source>Das Gewicht fehlt</source>
  <translation>The weight is missing</translation>
 </message>
 <message>
  <source>Das Trimester fehlt</source>
  <translation>The trimester is missing</translation>
 </message>
 <message>
  <source>Der Monat der Stillzeit fehlt</source>
  <translation>The month of lactation is missing</translation>
 </message>
 <message>
  <source>Der PAL-Wert fehlt</source>
  <translation>The PAL is missing</translation>
 </message>
 <message>
  <source>Der Zuschlag ist für PAL %1 angegeben</source>
  <translation>The addition is printed for PAL %1</translation>
 </message>
 <message>
  <source>Die Balken zeigen, was diese Menge zu einem Tag beiträgt.</source>
  <translation>The bars show what this amount adds to a day.</translation>
 </message>
 <message>
  <source>Durchschnittsbedarf</source>
  <translation>Average need</translation>
 </message>
 <message>
  <source>Einklappen</source>
  <translation>Fold</translation>
 </message>
 <message>
  <source>Empfehlung</source>
  <translation>Recommended</translation>
 </message>
 <message>
  <source>Er hängt von der Menopause ab; die Angabe fehlt</source>
  <translation>It depends on menopause, which is not known</translation>
 </message>
 <message>
  <source>Er ist ein Anteil der Energie, und deren Wert fehlt</source>
  <translation>It is a share of the energy, whose value is missing</translation>
 </message>
 <message>
  <source>Es ist keiner festgelegt</source>
  <translation>None is set</translation>
 </message>
 <message>
  <source>Europäische Behörde für Lebensmittelsicherheit</source>
  <translation>European Food Safety Authority</translation>
 </message>
 <message>
  <source>Fachgesellschaften in Deutschland, Österreich und der Schweiz</source>
  <translation>Nutrition societies of Germany, Austria and Switzerland</translation>
 </message>
 <message>
  <source>Für Schwangerschaft oder Stillzeit ist in diesem Alter keiner angegeben</source>
  <translation>None is printed for pregnancy or lactation at this age</translation>
 </message>
 <message>
  <source>Für das Referenzgewicht dieses Alters, weil das Gewicht fehlt</source>
  <translation>For the reference weight of this age, since the weight is missing</translation>
 </message>
 <message>
  <source>Für diesen Monat der Stillzeit ist keiner angegeben</source>
  <translation>None is printed for this month of lactation</translation>
 </message>
 <message>
  <source>Für dieses Alter ist keiner angegeben</source>
  <translation>None is printed for this age</translation>
 </message>
 <message>
  <source>Für einen PAL-Wert in der Nähe ist keiner angegeben</source>
  <translation>None is printed for a PAL near to this one</translation>
 </message>
 <message>
  <source>Gerechnet mit dem eigenen Bedarf: %1</source>
  <translation>Worked out with the person's own need: %1</translation>
 </message>
 <message>
  <source>Gerechnet mit der Energie dieser Referenzwerte: %1</source>
  <translation>Worked out with the energy of these reference values: %1</translation>
 </message>
 <message>
  <source>Geschlecht unbekannt</source>
  <translation>sex unknown</translation>
 </message>
 <message>
  <source>Gewicht unbekannt</source>
  <translation>weight unknown</translation>
 </message>
 <message>
  <source>In Retinolaktivitätsäquivalenten: 12 µg Betacarotin zählen 1, in der Lebensmitteltabelle schon 6. Carotin aus Gemüse zählt in der Menge also doppelt</source>
  <translation>In retinol activity equivalents: 12 µg beta-carotene count as 1, in the food table 6 µg do. So carotene of vegetables counts twice in the amount</translation>
 </message>
 <message>
  <source>In Retinoläquivalenten, wie in der Lebensmitteltabelle: 6 µg Betacarotin zählen 1</source>
  <translation>In retinol equivalents, as in the food table: 6 µg beta-carotene count as 1</translation>
 </message>
 <message>
  <source>Kein Wert: %1</source>
  <translation>No value. %1</translation>
 </message>
 <message>
  <source>Keine Obergrenze festgelegt; das heißt nicht, dass jede Menge unbedenklich ist</source>
  <translation>No upper level is set; that does not mean that any amount is harmless</translation>
 </message>
 <message>
  <source>Maßstab und Person ändern</source>
  <translation>Change standard and person</translation>
 </message>
 <message>
  <source>Mehr zu einer Zeile: F1 oder die Maus darauf.</source>
  <translation>More about a row: F1, or the mouse on it.</translation>
 </message>
 <message>
  <source>Men&amp;opause:</source>
  <translation>Men&amp;opause:</translation>
 </message>
 <message>
  <source>Obergrenze: %1</source>
  <translation>Upper level: %1</translation>
 </message>
 <message>
  <source>PAL unbekannt</source>
  <translation>PAL unknown</translation>
 </message>
 <message>
  <source>Richtwert</source>
  <translation>Guiding value</translation>
 </message>
 <message>
  <source>Schätzwert</source>
  <translation>Adequate</translation>
 </message>
 <message>
  <source>Sicher bis %1; eine Obergrenze ist das nicht</source>
  <translation>Safe up to %1; that is no upper level</translation>
 </message>
 <message>
  <source>Sie gilt nur für Ergänzungsmittel und Zusätze; die Menge wird daran nicht gemessen</source>
  <translation>It is for supplements and additions only; the amount is not judged by it</translation>
 </message>
 <message>
  <source>Sie gilt nur für Retinol, nicht für Carotin; die Menge wird daran nicht gemessen</source>
  <translation>It is for retinol only, not for carotene; the amount is not judged by it</translation>
 </message>
 <message>
  <source>Verglichen mit: %1</source>
  <translation>Compared with: %1</translation>
 </message>
 <message>
  <source>Weniger gilt hier nicht als Mangel, mehr als zu viel</source>
  <translation>Less does not count as a shortage here, more counts as too much</translation>
 </message>
 <message>
  <source>Wert ohne Schwangerschaft: Für sie ist erst ab einem späteren Monat einer angegeben</source>
  <translation>The value without pregnancy: one for it is printed from a later month on</translation>
 </message>
 <message>
  <source>Wieder so, wie sie vom Klienten und Rechner kommen</source>
  <translation>As they come from the client and the calculator</translation>
 </message>
 <message>
  <source>Wird hier nicht als Ziel beurteilt</source>
  <translation>Is not judged as a goal here</translation>
 </message>
 <message>
  <source>etwa %1</source>
  <translation>about %1</translation>
 </message>
 <message>
  <source>höchstens %1</source>
  <translation>at most %1</translation>
 </message>
 <message>
  <source>Energiebedarf noch nicht bekannt</source>
  <translation>energy need not yet known</translation>
 </message>
 <message>
  <source>kein Wert: %1</source>
  <translation>no value: %1</translation>
 </message>
 <message>
  <source>nach der Menopause</source>
  <translation>after menopause</translation>
 </message>
 <message>
  <source>noch nicht</source>
  <translation>not yet</translation>
 </message>
 <message>
  <source>passt</source>
  <translation>fits</translation>
 </message>
 <message>
  <source>schwanger (%1. Trimester)</source>
  <translation>pregnant (trimester %1)</translation>
 </message>
 <message>
  <source>sicher bis %1</source>
  <translation>safe up to %1</translation>
 </message>
 <message>
  <source>stillend (ab 7. Monat)</source>
  <translation>nursing (from month 7)</translation>
 </message>
 <message>
  <source>stillend (bis 6. Monat)</source>
  <translation>nursing (to month 6)</translation>
 </message>
 <message>
  <source>vielleicht zu wenig</source>
  <translation>maybe too little</translation>
 </message>
 <message>
  <source>vor der Menopause</source>
  <translation>before menopause</translation>
 </message>
 <message>
  <source>zu viel</source>
  <translation>too much</translation>
 </message>
 <message>
  <source>zu wenig</source>
  <translation>too little</translation>
 </message>
 <message>
  <source>über %1</source>
  <translation>more than %1</translation>
 </message>
 <message>
  <source>über der Obergrenze</source>
  <translation>above the upper level</translation>
 </message>
 <message>
  <source>⚠ Das Alter ist eine ganze Zahl von 0 bis %1.</source>
  <translation>⚠ The age is a whole number from 0 to %1.</translation>
 </message>
 <message>
  <source>⚠ Das Gewicht liegt über 0 und bis %1 kg, etwa 64,5.</source>
  <translation>⚠ The weight is above 0 and up to %1 kg, such as 64.5.</translation>
 </message>
 <message>
  <source>Re&amp;zept …</source>
  <translation>Re&amp;cipe …</translation>
 </message>
 <message>
  <source>Re&amp;zept aus dem Plan …</source>
  <translation>Re&amp;cipe from the plan …</translation>
 </message>
 <message>
  <source>Re&amp;zept aus dieser Mahlzeit …</source>
  <translation>Re&amp;cipe from this meal …</translation>
 </message>
 <message>
  <source>Gerichte, die ihren Zutaten gefolgt sind: %1.</source>
  <translation>Dishes that followed their ingredients: %1.</translation>
 </message>
 <message>
  <source>Gerichte, die ihren Zutaten nicht folgen, weil sie von Hand geändert sind: %1.</source>
  <translation>Dishes that do not follow their ingredients, because they were changed by hand: %1.</translation>
 </message>
 <message>
  <source>Gerichte, die mit den neuen Zutaten nicht zu rechnen sind und bleiben, wie sie waren: %1.</source>
  <translation>Dishes that can't be reckoned with the new ingredients and stay as they were: %1.</translation>
 </message>
 <message>
  <source>Gewi&amp;cht (kg):</source>
  <translation>Weight (&amp;kg):</translation>
 </message>
 <message>
  <source>Angaben z&amp;urücksetzen</source>
  <translation>Reset det&amp;ails</translation>
 </message>
 <message>
  <source>Fleisch und Wurst</source>
  <translation>Meat and sausage</translation>
 </message>
 <message>
  <source>Milch und Milchprodukte</source>
  <translation>Milk and milk products</translation>
 </message>
 <message>
  <source>Fisch und Meeresfrüchte</source>
  <translation>Fish and seafood</translation>
 </message>
 <message>
  <source>Getreide mit Gluten</source>
  <translation>Cereals with gluten</translation>
 </message>
 <message>
  <source>Nüsse und Erdnüsse</source>
  <translation>Nuts and peanuts</translation>
 </message>
 <message>
  <source>Zutat</source>
  <translation>Ingredient</translation>
 </message>
 <message>
  <source>Zutaten des Gerichts</source>
  <translation>Ingredients of the dish</translation>
 </message>
 <message>
  <source>F2 ändert die Menge der gewählten Zutat, die Entfernen-Taste nimmt sie heraus.</source>
  <translation>F2 changes the amount of the chosen ingredient, the Delete key takes it out.</translation>
 </message>
 <message>
  <source>Zutat he&amp;rausnehmen</source>
  <translation>&amp;Take the ingredient out</translation>
 </message>
 <message>
  <source>Zutat &amp;hinzufügen:</source>
  <translation>A&amp;dd an ingredient:</translation>
 </message>
 <message>
  <source>Name eines Lebensmittels</source>
  <translation>Name of a food</translation>
 </message>
 <message>
  <source>Passende Lebensmittel</source>
  <translation>Foods that fit</translation>
 </message>
 <message>
  <source>Kein Lebensmittel heißt so.</source>
  <translation>No food is called so.</translation>
 </message>
 <message>
  <source>%1 Wasser verkocht</source>
  <translation>%1 of water boiled away</translation>
 </message>
 <message>
  <source>%1 Wasser aufgenommen</source>
  <translation>%1 of water taken up</translation>
 </message>
 <message>
  <source>= %1 je Portion</source>
  <translation>= %1 a portion</translation>
 </message>
 <message>
  <source>= %1 je Portion, zu viel für ein Maß</source>
  <translation>= %1 a portion, too much for a measure</translation>
 </message>
 <message>
  <source>Wertung für %1</source>
  <translation>Rating for %1</translation>
 </message>
 <message>
  <source>Wie vorgeschlagen</source>
  <translation>As proposed</translation>
 </message>
 <message>
  <source>Vorschlag, unsicher: %1</source>
  <translation>Proposed, uncertain: %1</translation>
 </message>
 <message>
  <source>Vorschlag: %1</source>
  <translation>Proposed: %1</translation>
 </message>
 <message>
  <source>So heißt ein eingebautes Lebensmittel. Das Gericht braucht einen anderen Namen.</source>
  <translation>A built-in food is called so. The dish needs another name.</translation>
 </message>
 <message>
  <source>Gewicht nach dem Garen: %1</source>
  <translation>Weight after cooking: %1</translation>
 </message>
 <message>
  <source>Gewicht der Zutaten: %1</source>
  <translation>Weight of the ingredients: %1</translation>
 </message>
 <message>
  <source>wie die Zutaten (%1)</source>
  <translation>as the ingredients (%1)</translation>
 </message>
 <message>
  <source>Das eigene Lebensmittel ersetzen?</source>
  <translation>Replace your own food?</translation>
 </message>
 <message>
  <source>Es wurde von Hand geändert. Diese Änderungen gehen verloren.</source>
  <translation>It was changed by hand. Those changes will be lost.</translation>
 </message>
 <message>
  <source>Es gibt schon ein eigenes Lebensmittel dieses Namens.</source>
  <translation>There is a food of your own of this name already.</translation>
 </message>
 <message>
  <source>Das Gericht ließ sich nicht sichern.</source>
  <translation>The dish could not be saved.</translation>
 </message>
 <message>
  <source>Die Änderungen am Rezept verwerfen?</source>
  <translation>Discard the changes to the recipe?</translation>
 </message>
 <message>
  <source>Was hier geändert wurde, ist nicht gesichert.</source>
  <translation>What was changed here is not saved.</translation>
 </message>
 <message>
  <source>Weiter bearbeiten</source>
  <translation>Go on editing</translation>
 </message>
 <message>
  <source>Rezept</source>
  <translation>Recipe</translation>
 </message>
 <message>
  <source>&amp;Name:</source>
  <translation>&amp;Name:</translation>
 </message>
 <message>
  <source>&amp;Zutaten</source>
  <translation>&amp;Ingredients</translation>
 </message>
 <message>
  <source>W&amp;ertungen</source>
  <translation>&amp;Ratings</translation>
 </message>
 <message>
  <source>Zu&amp;bereitung</source>
  <translation>Pre&amp;paration</translation>
 </message>
 <message>
  <source>Gewicht nach dem &amp;Garen (g):</source>
  <translation>Weight after &amp;cooking (g):</translation>
 </message>
 <message>
  <source>&amp;Portionen:</source>
  <translation>P&amp;ortions:</translation>
 </message>
 <message>
  <source>Werte je 100 g des fertigen Gerichts</source>
  <translation>Values per 100 g of the finished dish</translation>
 </message>
 <message>
  <source>Gewertet wie die Lebensmittelgr&amp;uppe:</source>
  <translation>Rated as the food &amp;group:</translation>
 </message>
 <message>
  <source>Zubereitung und Notizen</source>
  <translation>Preparation and notes</translation>
 </message>
 <message>
  <source>&amp;Folgt den Zutaten</source>
  <translation>&amp;Follows the ingredients</translation>
 </message>
 <message>
  <source>Ändert sich eine Zutat, wird das Gericht neu gerechnet.</source>
  <translation>When an ingredient changes, the dish is reckoned anew.</translation>
 </message>
 <message>
  <source>Verluste beim Garen sind nicht eingerechnet: Vitamine, Mineralstoffe im Kochwasser, abgegossenes Fett.</source>
  <translation>Losses in cooking are not reckoned: vitamins, minerals in the cooking water, fat poured off.</translation>
 </message>
 <message>
  <source>&amp;Sichern</source>
  <translation>&amp;Save</translation>
 </message>
 <message>
  <source>Verwerfen</source>
  <translation>Discard</translation>
 </message>
 <message>
  <source>Retinol höchstens %1</source>
  <translation>retinol at most %1</translation>
 </message>
 <message>
  <source>aus Zusätzen höchstens %1</source>
  <translation>from additions at most %1</translation>
 </message>
 <message>
  <source>%1 statt %2</source>
  <translation>%1 in place of %2</translation>
 </message>
 <message>
  <source>%1: %2 zu viel</source>
  <translation>%1: %2 too much</translation>
 </message>
 <message>
  <source>%1: %2 zu wenig</source>
  <translation>%1: %2 too little</translation>
 </message>
 <message>
  <source>passt, soweit bekannt</source>
  <translation>fits, as far as known</translation>
 </message>
 <message>
  <source>%1: bis zu %2 zu wenig</source>
  <translation>%1: up to %2 too little</translation>
 </message>
 <message>
  <source>%1: mindestens %2 zu viel</source>
  <translation>%1: at least %2 too much</translation>
 </message>
 <message>
  <source>Alles ist im Zielbereich, soweit es bekannt ist.</source>
  <translation>Everything is within its range, as far as it is known.</translation>
 </message>
 <message>
  <source>Ohne Bewertung sind %1 der Menge: %2</source>
  <translation>Without a rating is %1 of the amount: %2</translation>
 </message>
 <message>
  <source>&amp;Einschränken</source>
  <translation>&amp;Narrow down</translation>
 </message>
 <message>
  <source>Ersetze&amp;n</source>
  <translation>Re&amp;place</translation>
 </message>
 <message>
  <source>Hi&amp;nzufügen</source>
  <translation>A&amp;dd</translation>
 </message>
 <message>
  <source>Nicht &amp;vorschlagen</source>
  <translation>Don't s&amp;uggest</translation>
 </message>
 <message>
  <source>&amp;Tausch:</source>
  <translation>S&amp;wap:</translation>
 </message>
 <message>
  <source>Wieder au&amp;fnehmen</source>
  <translation>Su&amp;ggest again</translation>
 </message>
 <message>
  <source>&amp;Ziel:</source>
  <translation>Ai&amp;m:</translation>
 </message>
 <message>
  <source>Alle Ziele zusammen</source>
  <translation>All aims together</translation>
 </message>
 <message>
  <source>Alles ist im Zielbereich.</source>
  <translation>Everything is within its range.</translation>
 </message>
 <message>
  <source>Bringt</source>
  <translation>Gives</translation>
 </message>
 <message>
  <source>Dafür muss bekannt sein, was ein Tag enthalten soll, und das fehlt.</source>
  <translation>For this it must be known what a day should hold, and that is missing.</translation>
 </message>
 <message>
  <source>Das ersetzt keine Allergieberatung: Was drin ist, sagt das Etikett.</source>
  <translation>This is no allergy check: what a food holds stands on its label.</translation>
 </message>
 <message>
  <source>Die Eingabetaste nimmt den Vorschlag an, Entf streicht das Lebensmittel.</source>
  <translation>Return takes the suggestion, Del crosses the food out.</translation>
 </message>
 <message>
  <source>Diese Zeile lässt sich hier nicht ersetzen.</source>
  <translation>This row can't be replaced here.</translation>
 </message>
 <message>
  <source>Eigene Lebensmittel, von denen niemand weiß, ob sie das Weggelassene enthalten, und nicht dabei: %1.</source>
  <translation>Own foods of which nobody knows whether they hold what is left out, and which are not listed: %1.</translation>
 </message>
 <message>
  <source>Für alle Ziele zusammen wählen Sie beim Tausch eine Zeile.</source>
  <translation>For all aims together, choose a row to swap.</translation>
 </message>
 <message>
  <source>Ge&amp;strichen:</source>
  <translation>Cro&amp;ssed out:</translation>
 </message>
 <message>
  <source>Geeignet: %1.</source>
  <translation>Suitable: %1.</translation>
 </message>
 <message>
  <source>Hier hilft kein Lebensmittel, ohne mehr zu schaden als zu nützen.</source>
  <translation>No food helps here without doing more harm than good.</translation>
 </message>
 <message>
  <source>Im Mittel lässt sich nichts ändern. Wählen Sie einen Tag.</source>
  <translation>Nothing can be changed in a mean. Choose a day.</translation>
 </message>
 <message>
  <source>Nicht ungeeignet: %1.</source>
  <translation>Not unsuitable: %1.</translation>
 </message>
 <message>
  <source>Ohne Angabe zu %1 und nicht dabei: %2.</source>
  <translation>Without a figure for %1 and not listed: %2.</translation>
 </message>
 <message>
  <source>Ohne: %1.</source>
  <translation>Without: %1.</translation>
 </message>
 <message>
  <source>Vorschläge</source>
  <translation>Suggestions</translation>
 </message>
 <message>
  <source>Vorschläge gibt es zu einem Plan, einem Tag oder dem Mittel der Tage.</source>
  <translation>There are suggestions for a plan, a day or the mean of the days.</translation>
 </message>
 <message>
  <source>Was „%1“ ändert:</source>
  <translation>What “%1” changes:</translation>
 </message>
 <message>
  <source>Weglassen, auch wo es nur drin sein kann:</source>
  <translation>Leave out, also where it only may be in it:</translation>
 </message>
 <message>
  <source>Wertung der Vorschläge:</source>
  <translation>Rating of the suggestions:</translation>
 </message>
 <message>
  <source>Wirkung</source>
  <translation>Effect</translation>
 </message>
 <message>
  <source>Wirkung des gewählten Vorschlags</source>
  <translation>Effect of the chosen suggestion</translation>
 </message>
 <message>
  <source>Ziel</source>
  <translation>Aim</translation>
 </message>
 <message>
  <source>hilft zu %1</source>
  <translation>helps by %1</translation>
 </message>
 <message>
  <source>nicht ungeeignet</source>
  <translation>not unsuitable</translation>
 </message>
 <message>
  <source>nur geeignet</source>
  <translation>suitable only</translation>
 </message>
 <message>
  <source>schlechter</source>
  <translation>worse</translation>
 </message>
 <message>
  <source>keine bestimmte Zeile</source>
  <translation>no particular row</translation>
 </message>
 <message>
  <source>vorher → nachher</source>
  <translation>before → after</translation>
 </message>
 <message>
  <source>Übergewicht, Diabetes, Gicht, Herz und Kreislauf: + geeignet, 0 neutral, - ungeeignet</source>
  <translation>Overweight, diabetes, gout, heart and circulation: + suitable, 0 neutral, - unsuitable</translation>
 </message>
 <message>
  <source>1 Lebensmittel mit Rang.</source>
  <translation>1 food with a rank.</translation>
 </message>
 <message>
  <source>%1 Lebensmittel mit Rang.</source>
  <translation>%1 foods with a rank.</translation>
 </message>
 <message>
  <source>%1 Am Ende der Liste: %2.</source>
  <translation>%1 At the end of the list: %2.</translation>
 </message>
 <message>
  <source>&amp;Werte</source>
  <translation>&amp;Values</translation>
 </message>
 <message>
  <source>keiner</source>
  <translation>neither</translation>
 </message>
 <message>
  <source>1.–6. Monat</source>
  <translation>1st–6th month</translation>
 </message>
 <message>
  <source>ab 7. Monat</source>
  <translation>from 7th month</translation>
 </message>
 <message>
  <source>vorüber</source>
  <translation>over</translation>
 </message>
 <message>
  <source>sitzend</source>
  <translation>sitting</translation>
 </message>
 <message>
  <source>Meist sitzend</source>
  <translation>Mostly sitting</translation>
 </message>
 <message>
  <source>gemischt</source>
  <translation>mixed</translation>
 </message>
 <message>
  <source>Sitzend, auch gehend und stehend</source>
  <translation>Sitting, with some walking and standing</translation>
 </message>
 <message>
  <source>gehend</source>
  <translation>walking</translation>
 </message>
 <message>
  <source>Meist gehend oder stehend</source>
  <translation>Mostly walking or standing</translation>
 </message>
 <message>
  <source>Körperlich schwere Arbeit</source>
  <translation>Hard physical work</translation>
 </message>
 <message>
  <source>Maßstab</source>
  <translation>Standard</translation>
 </message>
 <message>
  <source>„%1“ steht mit seinem Rezept bei den eigenen Lebensmitteln.</source>
  <translation>“%1” is among the own foods, with its recipe.</translation>
 </message>
 <message>
  <source>schwer</source>
  <translation>hard</translation>
 </message>
 <message>
  <source>Nichts ist eingegrenzt.</source>
  <translation>Nothing is narrowed.</translation>
 </message>
 <message>
  <source>Zeilen, deren Lebensmittel oder Menge unbekannt ist, kamen nicht ins Rezept.</source>
  <translation>Rows whose food or amount is unknown did not go into the recipe.</translation>
 </message>
 <message>
  <source>Eine Menge war nicht zu lesen und ist geblieben, wie sie war.</source>
  <translation>An amount could not be read and has stayed as it was.</translation>
 </message>
 <message>
  <source>„%1“ ist noch keine Zutat.</source>
  <translation>“%1” is no ingredient yet.</translation>
 </message>
 <message>
  <source>Ein Rezept ist noch offen.</source>
  <translation>A recipe is still open.</translation>
 </message>
 <message>
  <source>Sichern oder schließen Sie es, dann lässt sich ein anderes öffnen.</source>
  <translation>Save or close it, then another one can be opened.</translation>
 </message>
</context>
<context>
 <name>PlanmodulGestalt</name>
 <message>
  <source>&amp;Ablage</source>
  <translation>&amp;File</translation>
 </message>
 <message>
  <source>&amp;Als PDF sichern …</source>
  <translation>Save &amp;as PDF …</translation>
 </message>
 <message>
  <source>&amp;Bearbeiten</source>
  <translation>&amp;Edit</translation>
 </message>
 <message>
  <source>&amp;Darstellung</source>
  <translation>&amp;View</translation>
 </message>
 <message>
  <source>&amp;Drucken …</source>
  <translation>&amp;Print …</translation>
 </message>
 <message>
  <source>&amp;Entfernen</source>
  <translation>&amp;Remove</translation>
 </message>
 <message>
  <source>&amp;Größe der Tabelle</source>
  <translation>&amp;Size of the table</translation>
 </message>
 <message>
  <source>&amp;Menge ändern</source>
  <translation>Change &amp;amount</translation>
 </message>
 <message>
  <source>&amp;Spalten anpassen</source>
  <translation>&amp;Fit columns</translation>
 </message>
 <message>
  <source>&amp;Tage berechnen</source>
  <translation>Work out the &amp;days</translation>
 </message>
 <message>
  <source>&amp;Trennlinie bewegen</source>
  <translation>Move &amp;divider</translation>
 </message>
 <message>
  <source>&amp;Wiederholen</source>
  <translation>&amp;Redo</translation>
 </message>
 <message>
  <source>&amp;Wunschverlust</source>
  <translation>&amp;Wanted loss</translation>
 </message>
 <message>
  <source>&amp;Zeitraum</source>
  <translation>&amp;Period</translation>
 </message>
 <message>
  <source>4 Wochen</source>
  <translation>4 weeks</translation>
 </message>
 <message>
  <source>Anteil am Tagesbedarf</source>
  <translation>Share of the daily need</translation>
 </message>
 <message>
  <source>BMI danach</source>
  <translation>BMI afterwards</translation>
 </message>
 <message>
  <source>BMI heute</source>
  <translation>BMI today</translation>
 </message>
 <message>
  <source>Ballaststoffe</source>
  <translation>Fibre</translation>
 </message>
 <message>
  <source>Ballaststoffe, Anteil am Tagesbedarf</source>
  <translation>Fibre, share of the daily need</translation>
 </message>
 <message>
  <source>Ballaststoffe, Balken</source>
  <translation>Fibre, bar</translation>
 </message>
 <message>
  <source>Calcium</source>
  <translation>Calcium</translation>
 </message>
 <message>
  <source>Calcium, Anteil am Tagesbedarf</source>
  <translation>Calcium, share of the daily need</translation>
 </message>
 <message>
  <source>Calcium, Balken</source>
  <translation>Calcium, bar</translation>
 </message>
 <message>
  <source>Cholesterin</source>
  <translation>Cholesterol</translation>
 </message>
 <message>
  <source>Cholesterin, Anteil am Tagesbedarf</source>
  <translation>Cholesterol, share of the daily need</translation>
 </message>
 <message>
  <source>Cholesterin, Balken</source>
  <translation>Cholesterol, bar</translation>
 </message>
 <message>
  <source>Der Verlauf erscheint, sobald Lebensmittel im Plan stehen.</source>
  <translation>The course appears as soon as there are foods in the plan.</translation>
 </message>
 <message>
  <source>Diabetes</source>
  <translation>Diabetes</translation>
 </message>
 <message>
  <source>Diabetes, geeignete Lebensmittel</source>
  <translation>Diabetes, suitable foods</translation>
 </message>
 <message>
  <source>Diabetes, neutrale Lebensmittel</source>
  <translation>Diabetes, neutral foods</translation>
 </message>
 <message>
  <source>Diabetes, ungeeignete Lebensmittel</source>
  <translation>Diabetes, unsuitable foods</translation>
 </message>
 <message>
  <source>E&amp;nergiebedarf</source>
  <translation>Energy &amp;need</translation>
 </message>
 <message>
  <source>Eisen</source>
  <translation>Iron</translation>
 </message>
 <message>
  <source>Eisen, Anteil am Tagesbedarf</source>
  <translation>Iron, share of the daily need</translation>
 </message>
 <message>
  <source>Eisen, Balken</source>
  <translation>Iron, bar</translation>
 </message>
 <message>
  <source>Empfehlung</source>
  <translation>Recommended</translation>
 </message>
 <message>
  <source>Energie</source>
  <translation>Energy</translation>
 </message>
 <message>
  <source>Energie im Plan</source>
  <translation>Energy of the plan</translation>
 </message>
 <message>
  <source>Energie, Anteil am Tagesbedarf</source>
  <translation>Energy, share of the daily need</translation>
 </message>
 <message>
  <source>Energie, Balken</source>
  <translation>Energy, bar</translation>
 </message>
 <message>
  <source>Energieanteile von Protein, Kohlenhydraten und Fett im Plan</source>
  <translation>Energy shares of protein, carbohydrate and fat in the plan</translation>
 </message>
 <message>
  <source>Energiebedarf am Tag</source>
  <translation>Daily energy need</translation>
 </message>
 <message>
  <source>Energieverteilung</source>
  <translation>Energy split</translation>
 </message>
 <message>
  <source>Fett</source>
  <translation>Fat</translation>
 </message>
 <message>
  <source>Fett, Anteil am Tagesbedarf</source>
  <translation>Fat, share of the daily need</translation>
 </message>
 <message>
  <source>Fett, Balken</source>
  <translation>Fat, bar</translation>
 </message>
 <message>
  <source>Gesamtbeurteilung</source>
  <translation>Overall judgement</translation>
 </message>
 <message>
  <source>Gesamtbeurteilung des Plans</source>
  <translation>Overall judgement of the plan</translation>
 </message>
 <message>
  <source>Gewichtsverlauf mit diesem Plan</source>
  <translation>Weight course with this plan</translation>
 </message>
 <message>
  <source>Gewichtsverlauf über vier Wochen</source>
  <translation>Weight course over four weeks</translation>
 </message>
 <message>
  <source>Gewünschter Gewichtsverlust</source>
  <translation>Wanted weight loss</translation>
 </message>
 <message>
  <source>Gicht</source>
  <translation>Gout</translation>
 </message>
 <message>
  <source>Gicht, geeignete Lebensmittel</source>
  <translation>Gout, suitable foods</translation>
 </message>
 <message>
  <source>Gicht, neutrale Lebensmittel</source>
  <translation>Gout, neutral foods</translation>
 </message>
 <message>
  <source>Gicht, ungeeignete Lebensmittel</source>
  <translation>Gout, unsuitable foods</translation>
 </message>
 <message>
  <source>Nach &amp;oben</source>
  <translation>Move u&amp;p</translation>
 </message>
 <message>
  <source>Nach &amp;unten</source>
  <translation>Move &amp;down</translation>
 </message>
 <message>
  <source>&amp;Rückgängig</source>
  <translation>&amp;Undo</translation>
 </message>
 <message>
  <source>Summen des Plans und was bis zum Tagesbedarf bleibt</source>
  <translation>Sums of the plan and what is left to a day’s need</translation>
 </message>
 <message>
  <source>✓ grün: im Ziel, ≈ blau: knapp daneben, ✗ rot: verfehlt.</source>
  <translation>✓ green: on target, ≈ blue: just beside, ✗ red: missed.</translation>
 </message>
 <message>
  <source>Herz und Kreislauf</source>
  <translation>Heart and circulation</translation>
 </message>
 <message>
  <source>Herz und Kreislauf, geeignete Lebensmittel</source>
  <translation>Heart and circulation, suitable foods</translation>
 </message>
 <message>
  <source>Herz und Kreislauf, neutrale Lebensmittel</source>
  <translation>Heart and circulation, neutral foods</translation>
 </message>
 <message>
  <source>Herz und Kreislauf, ungeeignete Lebensmittel</source>
  <translation>Heart and circulation, unsuitable foods</translation>
 </message>
 <message>
  <source>Höhe der Zeilen und Breite der Wertespalten</source>
  <translation>Height of the rows and width of the value columns</translation>
 </message>
 <message>
  <source>Kalium</source>
  <translation>Potassium</translation>
 </message>
 <message>
  <source>Kalium, Anteil am Tagesbedarf</source>
  <translation>Potassium, share of the daily need</translation>
 </message>
 <message>
  <source>Kalium, Balken</source>
  <translation>Potassium, bar</translation>
 </message>
 <message>
  <source>Kohlenhydrate</source>
  <translation>Carbohydrate</translation>
 </message>
 <message>
  <source>Kohlenhydrate, Anteil am Tagesbedarf</source>
  <translation>Carbohydrate, share of the daily need</translation>
 </message>
 <message>
  <source>Kohlenhydrate, Balken</source>
  <translation>Carbohydrate, bar</translation>
 </message>
 <message>
  <source>Lebensmittel &amp;entfernen</source>
  <translation>Remo&amp;ve food</translation>
 </message>
 <message>
  <source>Lebensmittel im Plan</source>
  <translation>Foods in the plan</translation>
 </message>
 <message>
  <source>Lebensmittel im Plan, nach ihrer Bewertung</source>
  <translation>Foods in the plan, by their rating</translation>
 </message>
 <message>
  <source>Magnesium</source>
  <translation>Magnesium</translation>
 </message>
 <message>
  <source>Magnesium, Anteil am Tagesbedarf</source>
  <translation>Magnesium, share of the daily need</translation>
 </message>
 <message>
  <source>Magnesium, Balken</source>
  <translation>Magnesium, bar</translation>
 </message>
 <message>
  <source>Mahlzeitenplan</source>
  <translation>Meal plan</translation>
 </message>
 <message>
  <source>Natrium</source>
  <translation>Sodium</translation>
 </message>
 <message>
  <source>Natrium, Anteil am Tagesbedarf</source>
  <translation>Sodium, share of the daily need</translation>
 </message>
 <message>
  <source>Natrium, Balken</source>
  <translation>Sodium, bar</translation>
 </message>
 <message>
  <source>Nimmt das ausgewählte Lebensmittel aus dem Plan</source>
  <translation>Takes the selected food out of the plan</translation>
 </message>
 <message>
  <source>Noch keine Lebensmittel im Plan. Ziehen Sie welche aus dem Hauptfenster hierher.</source>
  <translation>No foods in the plan yet. Drag some here from the main window.</translation>
 </message>
 <message>
  <source>Phosphat</source>
  <translation>Phosphate</translation>
 </message>
 <message>
  <source>Phosphat, Anteil am Tagesbedarf</source>
  <translation>Phosphate, share of the daily need</translation>
 </message>
 <message>
  <source>Phosphat, Balken</source>
  <translation>Phosphate, bar</translation>
 </message>
 <message>
  <source>Plan</source>
  <translation>Plan</translation>
 </message>
 <message>
  <source>Protein</source>
  <translation>Protein</translation>
 </message>
 <message>
  <source>Protein, Anteil am Tagesbedarf</source>
  <translation>Protein, share of the daily need</translation>
 </message>
 <message>
  <source>Protein, Balken</source>
  <translation>Protein, bar</translation>
 </message>
 <message>
  <source>S&amp;chließen</source>
  <translation>&amp;Close</translation>
 </message>
 <message>
  <source>Tage</source>
  <translation>days</translation>
 </message>
 <message>
  <source>Vitamin A</source>
  <translation>Vitamin A</translation>
 </message>
 <message>
  <source>Vitamin A, Anteil am Tagesbedarf</source>
  <translation>Vitamin A, share of the daily need</translation>
 </message>
 <message>
  <source>Vitamin A, Balken</source>
  <translation>Vitamin A, bar</translation>
 </message>
 <message>
  <source>Vitamin B1</source>
  <translation>Vitamin B1</translation>
 </message>
 <message>
  <source>Vitamin B1, Anteil am Tagesbedarf</source>
  <translation>Vitamin B1, share of the daily need</translation>
 </message>
 <message>
  <source>Vitamin B1, Balken</source>
  <translation>Vitamin B1, bar</translation>
 </message>
 <message>
  <source>Vitamin B2</source>
  <translation>Vitamin B2</translation>
 </message>
 <message>
  <source>Vitamin B2, Anteil am Tagesbedarf</source>
  <translation>Vitamin B2, share of the daily need</translation>
 </message>
 <message>
  <source>Vitamin B2, Balken</source>
  <translation>Vitamin B2, bar</translation>
 </message>
 <message>
  <source>Vitamin B6</source>
  <translation>Vitamin B6</translation>
 </message>
 <message>
  <source>Vitamin B6, Anteil am Tagesbedarf</source>
  <translation>Vitamin B6, share of the daily need</translation>
 </message>
 <message>
  <source>Vitamin B6, Balken</source>
  <translation>Vitamin B6, bar</translation>
 </message>
 <message>
  <source>Vitamin C</source>
  <translation>Vitamin C</translation>
 </message>
 <message>
  <source>Vitamin C, Anteil am Tagesbedarf</source>
  <translation>Vitamin C, share of the daily need</translation>
 </message>
 <message>
  <source>Vitamin C, Balken</source>
  <translation>Vitamin C, bar</translation>
 </message>
 <message>
  <source>Wie viele Tage dieser Plan für den gewünschten Verlust braucht</source>
  <translation>How many days this plan takes for the wanted loss</translation>
 </message>
 <message>
  <source>Zeitraum in Tagen</source>
  <translation>Period in days</translation>
 </message>
 <message>
  <source>geeignet (+)</source>
  <translation>suitable (+)</translation>
 </message>
 <message>
  <source>heute</source>
  <translation>today</translation>
 </message>
 <message>
  <source>neutral (0)</source>
  <translation>neutral (0)</translation>
 </message>
 <message>
  <source>ungeeignet (−)</source>
  <translation>unsuitable (−)</translation>
 </message>
 <message>
  <source>Änderung</source>
  <translation>Change</translation>
 </message>
 <message>
  <source>Änderung des Gewichts in diesem Zeitraum</source>
  <translation>Change of weight in this period</translation>
 </message>
 <message>
  <source>Übergewicht</source>
  <translation>Overweight</translation>
 </message>
 <message>
  <source>Übergewicht, geeignete Lebensmittel</source>
  <translation>Overweight, suitable foods</translation>
 </message>
 <message>
  <source>Übergewicht, neutrale Lebensmittel</source>
  <translation>Overweight, neutral foods</translation>
 </message>
 <message>
  <source>Übergewicht, ungeeignete Lebensmittel</source>
  <translation>Overweight, unsuitable foods</translation>
 </message>
 <message>
  <source>&amp;Hilfe</source>
  <translation>&amp;Help</translation>
 </message>
 <message>
  <source>&amp;Handbuch</source>
  <translation>&amp;Handbook</translation>
 </message>
 <message>
  <source>D&amp;rucken …</source>
  <translation>Pr&amp;int …</translation>
 </message>
</context>
<context>
 <name>BesuchsblattGestalt</name>
 <message>
  <source>&amp;Gewicht (kg)</source>
  <translation>Wei&amp;ght (kg)</translation>
 </message>
 <message>
  <source>&amp;Neuer Besuch</source>
  <translation>New &amp;visit</translation>
 </message>
 <message>
  <source>&amp;Verlauf von</source>
  <translation>Course o&amp;f</translation>
 </message>
 <message>
  <source>Besuch &amp;löschen</source>
  <translation>De&amp;lete visit</translation>
 </message>
 <message>
  <source>Besuche</source>
  <translation>Visits</translation>
 </message>
 <message>
  <source>Dat&amp;um</source>
  <translation>Da&amp;te</translation>
 </message>
 <message>
  <source>Gewichts&amp;reduktion</source>
  <translation>Weight &amp;reduction</translation>
 </message>
 <message>
  <source>Größ&amp;e (m)</source>
  <translation>He&amp;ight (m)</translation>
 </message>
 <message>
  <source>Hü&amp;fte (cm)</source>
  <translation>Hi&amp;ps (cm)</translation>
 </message>
 <message>
  <source>Legt einen Besuch von heute an</source>
  <translation>Begins a visit of today</translation>
 </message>
 <message>
  <source>N&amp;otiz</source>
  <translation>N&amp;ote</translation>
 </message>
 <message>
  <source>S&amp;port</source>
  <translation>&amp;Sport</translation>
 </message>
 <message>
  <source>Sport a&amp;m Tag (h)</source>
  <translation>Sport per day (h)</translation>
 </message>
 <message>
  <source>T&amp;aille (cm)</source>
  <translation>W&amp;aist (cm)</translation>
 </message>
 <message>
  <source>T&amp;ätigkeit</source>
  <translation>Activit&amp;y</translation>
 </message>
 <message>
  <source>Verlauf</source>
  <translation>Course</translation>
 </message>
</context>
<context>
 <name>KlientenfensterGestalt</name>
 <message>
  <source>An den Schreib&amp;tisch</source>
  <translation>To the &amp;desk</translation>
 </message>
 <message>
  <source>Auch archivierte &amp;zeigen</source>
  <translation>Sho&amp;w archived ones too</translation>
 </message>
 <message>
  <source>Klienten</source>
  <translation>Clients</translation>
 </message>
 <message>
  <source>Klienten suchen</source>
  <translation>Search clients</translation>
 </message>
 <message>
  <source>Name oder Nummer</source>
  <translation>Name or number</translation>
 </message>
 <message>
  <source>Neuer Kl&amp;ient …</source>
  <translation>&amp;New client …</translation>
 </message>
 <message>
  <source>Stellt den Rechner auf diesen Klienten; sein Name steht dann über den Fenstern und auf den Ausdrucken</source>
  <translation>Sets the calculator to this client, whose name then stands over the windows and on prints</translation>
 </message>
</context>
<context>
 <name>PersonenblattGestalt</name>
 <message>
  <source>&amp;Archiviert: nicht mehr in der täglichen Liste, mit allem, was aufgehoben ist</source>
  <translation>A&amp;rchived: no longer in the daily list, with everything that is kept</translation>
 </message>
 <message>
  <source>&amp;Diabetes</source>
  <translation>D&amp;iabetes</translation>
 </message>
 <message>
  <source>&amp;Geburtsdatum</source>
  <translation>Date of &amp;birth</translation>
 </message>
 <message>
  <source>&amp;Name</source>
  <translation>N&amp;ame</translation>
 </message>
 <message>
  <source>&amp;Schwanger oder stillend</source>
  <translation>&amp;Pregnant or nursing</translation>
 </message>
 <message>
  <source>Geschl&amp;echt</source>
  <translation>&amp;Gender</translation>
 </message>
 <message>
  <source>Gi&amp;cht</source>
  <translation>Gou&amp;t</translation>
 </message>
 <message>
  <source>Herz und Kreis&amp;lauf</source>
  <translation>Heart and circu&amp;lation</translation>
 </message>
 <message>
  <source>N&amp;otizen</source>
  <translation>Note&amp;s</translation>
 </message>
 <message>
  <source>N&amp;ummer</source>
  <translation>N&amp;umber</translation>
 </message>
 <message>
  <source>Worauf es ankommt</source>
  <translation>What matters</translation>
 </message>
 <message>
  <source>Übe&amp;rgewicht</source>
  <translation>&amp;Overweight</translation>
 </message>
</context>
<context>
 <name>PlanblattGestalt</name>
 <message>
  <source>&amp;Notiz</source>
  <translation>N&amp;ote</translation>
 </message>
 <message>
  <source>Abgelegte Pläne</source>
  <translation>Plans that are kept</translation>
 </message>
 <message>
  <source>Dat&amp;um</source>
  <translation>D&amp;ate</translation>
 </message>
 <message>
  <source>Hebt den Mahlzeitenplan, wie er jetzt ist, bei diesem Klienten auf</source>
  <translation>Keeps the meal plan as it is now with this client</translation>
 </message>
 <message>
  <source>Holt den ausgewählten Plan in das Fenster Mahlzeitenplan; was dort steht, wird vorher abgelegt</source>
  <translation>Brings the chosen plan into the meal plan window; what stands there is kept first</translation>
 </message>
 <message>
  <source>Lebensmittel des Plans</source>
  <translation>Foods of the plan</translation>
 </message>
 <message>
  <source>Plan &amp;ablegen</source>
  <translation>&amp;Keep plan</translation>
 </message>
 <message>
  <source>Plan &amp;löschen</source>
  <translation>De&amp;lete plan</translation>
 </message>
 <message>
  <source>Plan h&amp;olen</source>
  <translation>&amp;Fetch plan</translation>
 </message>
 <message>
  <source>Tit&amp;el</source>
  <translation>&amp;Title</translation>
 </message>
</context>
<context>
 <name>MassfensterGestalt</name>
 <message>
  <source>Haushaltsmaße</source>
  <translation>Household measures</translation>
 </message>
 <message>
  <source>Eingebaute Maße</source>
  <translation>Built-in measures</translation>
 </message>
 <message>
  <source>Dieses Lebensmittel hat keine eingebauten Maße.</source>
  <translation>This food has no built-in measures.</translation>
 </message>
 <message>
  <source>Eingebaute Haushaltsmaße</source>
  <translation>Built-in household measures</translation>
 </message>
 <message>
  <source>Eigene Maße</source>
  <translation>Your own measures</translation>
 </message>
 <message>
  <source>Ein eigenes Maß geht einem eingebauten gleichen Namens vor. Nötig sind nur „Eines“ und die Gramm; was offen bleibt, heißt ebenso.</source>
  <translation>An own measure takes the place of a built-in one of the same name. Only “One” and the grams are needed; what is left open is called the same.</translation>
 </message>
 <message>
  <source>&amp;Neues Maß</source>
  <translation>&amp;New measure</translation>
 </message>
 <message>
  <source>Was schon aufgezeichnet ist, behält seine Gramm: Es sagt, was damals gegessen wurde.</source>
  <translation>What is recorded already keeps its grams: it tells what was eaten then.</translation>
 </message>
</context>
<context>
 <name>TagesauswertungsfensterGestalt</name>
 <message>
  <source>&amp;Tag</source>
  <translation>&amp;Day</translation>
 </message>
 <message>
  <source>&amp;Mittel der Tage</source>
  <translation>&amp;Mean of the days</translation>
 </message>
 <message>
  <source>Anteil am Tagesbedarf</source>
  <translation>Share of the daily need</translation>
 </message>
 <message>
  <source>✓ grün: im Ziel, ≈ blau: knapp daneben, ✗ rot: verfehlt.</source>
  <translation>✓ green: on target, ≈ blue: just beside, ✗ red: missed.</translation>
 </message>
 <message>
  <source>Lebensmittel, nach ihrer Bewertung</source>
  <translation>Foods, by their rating</translation>
 </message>
 <message>
  <source>geeignet (+)</source>
  <translation>suitable (+)</translation>
 </message>
 <message>
  <source>neutral (0)</source>
  <translation>neutral (0)</translation>
 </message>
 <message>
  <source>ungeeignet (−)</source>
  <translation>unsuitable (−)</translation>
 </message>
 <message>
  <source>Energieverteilung</source>
  <translation>Energy split</translation>
 </message>
 <message>
  <source>Energieanteile von Protein, Kohlenhydraten und Fett</source>
  <translation>Energy shares of protein, carbohydrate and fat</translation>
 </message>
 <message>
  <source>Empfehlung</source>
  <translation>Recommended</translation>
 </message>
 <message>
  <source>Gesamtbeurteilung</source>
  <translation>Overall judgement</translation>
 </message>
 <message>
  <source>Auswertung der Tage</source>
  <translation>Evaluation of the days</translation>
 </message>
</context>
<context>
 <name>TagefensterGestalt</name>
 <message>
  <source>&amp;Erster Tag</source>
  <translation>&amp;First day</translation>
 </message>
 <message>
  <source>&amp;Neu …</source>
  <translation>&amp;New …</translation>
 </message>
 <message>
  <source>A&amp;rt</source>
  <translation>&amp;Kind</translation>
 </message>
 <message>
  <source>Aufzeichnungen von Tagen</source>
  <translation>Records of days</translation>
 </message>
 <message>
  <source>Mahlzeiten des Tages</source>
  <translation>Meals of the day</translation>
 </message>
 <message>
  <source>N&amp;otiz zum Tag</source>
  <translation>N&amp;ote on the day</translation>
 </message>
 <message>
  <source>Notiz zur Mahl&amp;zeit</source>
  <translation>Note on the me&amp;al</translation>
 </message>
 <message>
  <source>Summen von Zeile, Mahlzeit, Tag und Mittel</source>
  <translation>Sums of row, meal, day and mean</translation>
 </message>
 <message>
  <source>Ta&amp;ge</source>
  <translation>Da&amp;ys</translation>
 </message>
 <message>
  <source>Tage und Mahlzeiten</source>
  <translation>Days and meals</translation>
 </message>
 <message>
  <source>Tite&amp;l</source>
  <translation>Tit&amp;le</translation>
 </message>
 <message>
  <source>ohne Datum</source>
  <translation>no date</translation>
 </message>
 <message>
  <source>zählt im M&amp;ittel</source>
  <translation>counts &amp;in the mean</translation>
 </message>
</context>
</TS>
