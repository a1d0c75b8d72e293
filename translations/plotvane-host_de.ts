<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActionTable</name>
    <message>
        <source>Needs %1</source>
        <translation>Braucht %1</translation>
    </message>
</context>
<context>
    <name>AddLayersDialog</name>
    <message>
        <source>Add Layers</source>
        <translation>Ebenen hinzufügen</translation>
    </message>
    <message>
        <source>Layers of the files</source>
        <translation>Ebenen der Dateien</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>Koordinatensystem</translation>
    </message>
    <message>
        <source>Extent</source>
        <translation>Ausdehnung</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Column of &amp;x</source>
        <translation>Spalte für &amp;x</translation>
    </message>
    <message>
        <source>Column of &amp;y</source>
        <translation>Spalte für &amp;y</translation>
    </message>
    <message>
        <source>or column of &amp;geometries</source>
        <translation>oder Spalte für &amp;Geometrien</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>A table without places can be joined to a layer, in the properties of that.</source>
        <translation>Eine Tabelle ohne Orte kann mit einer Ebene verknüpft werden, in deren Eigenschaften.</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen …</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Es wird gezählt …</translation>
    </message>
    <message>
        <source>No layer is checked that could be drawn.</source>
        <translation>Es ist keine Ebene angehakt, die gezeichnet werden könnte.</translation>
    </message>
</context>
<context>
    <name>AdmittedFeatures</name>
    <message>
        <source>Nothing of %1 lies where the map&apos;s coordinate system shows the globe, so that the layer is empty; give the map another coordinate system, or the source the one that it has in truth.</source>
        <translation>Nichts von %1 liegt dort, wo das Koordinatensystem der Karte den Globus zeigt, sodass die Ebene leer ist; geben Sie der Karte ein anderes Koordinatensystem, oder der Quelle das, das sie in Wahrheit hat.</translation>
    </message>
    <message>
        <source>There are no features in %1, so that the layer is empty.</source>
        <translation>In %1 gibt es keine Objekte, so dass die Ebene leer ist.</translation>
    </message>
    <message>
        <source>None of the features of %1 has a geometry, so that the layer is empty.</source>
        <translation>Keines der Objekte von %1 hat eine Geometrie, so dass die Ebene leer ist.</translation>
    </message>
    <message>
        <source>Of %1, %2 of %3 features lie, at least in part, where there is no globe: beyond a pole or several times around. That is left out. Are longitude and latitude exchanged, or is the coordinate system another one? Give it in the source&apos;s field “coordinateSystem”.</source>
        <translation>Von %1 liegen %2 von %3 Objekten zumindest teilweise dort, wo es keinen Globus gibt: jenseits eines Pols oder mehrfach herum. Das wird weggelassen. Sind Länge und Breite vertauscht, oder ist das Koordinatensystem ein anderes? Geben Sie es im Feld „coordinateSystem“ der Quelle an.</translation>
    </message>
    <message>
        <source>None of the symbols of the layer draws what %1 has: fills and their outlines draw areas, lines draw lines and areas, markers draw points. Give the layer another symbol.</source>
        <translation>Keines der Symbole der Ebene zeichnet, was %1 enthält: Füllungen und ihre Umrisse zeichnen Flächen, Linien zeichnen Linien und Flächen, Marker zeichnen Punkte. Geben Sie der Ebene ein anderes Symbol.</translation>
    </message>
    <message>
        <source>Of %1, %2 of %3 features are lines from a place to itself, of which nothing shows.</source>
        <translation>Von %1 sind %2 von %3 Objekten Linien von einem Ort zu ihm selbst, von denen nichts zu sehen ist.</translation>
    </message>
    <message>
        <source>Of %1, %2 of %3 features have parts that none of the symbols of the layer draws: fills and their outlines draw areas, lines draw lines and areas, markers draw points. Show them by another layer of the same source.</source>
        <translation type="vanished">Von %1 haben %2 von %3 Objekten Teile, die keines der Symbole der Ebene zeichnet: Füllungen und ihre Umrisse zeichnen Flächen, Linien zeichnen Linien und Flächen, Marker zeichnen Punkte. Zeigen Sie sie mit einem weiteren Layer derselben Quelle.</translation>
    </message>
    <message>
        <source>Of %1, %2 of %3 features have parts that none of the symbols of the layer draws: fills and their outlines draw areas, lines draw lines and areas, markers draw points. Show them by another layer of the same source that has such a symbol.</source>
        <translation>Von %1 haben %2 von %3 Objekten Teile, die keines der Symbole der Ebene zeichnet: Füllungen und ihre Umrisse zeichnen Flächen, Linien zeichnen Linien und Flächen, Marker zeichnen Punkte. Zeigen Sie sie mit einer weiteren Ebene derselben Quelle, die ein solches Symbol hat.</translation>
    </message>
</context>
<context>
    <name>AllowedFoldersDialog</name>
    <message>
        <source>Allowed Folders</source>
        <translation>Erlaubte Ordner</translation>
    </message>
    <message>
        <source>Documents may use files of these folders, and of folders in them, without that being told. Of all others it is told when a document is opened.</source>
        <translation>Dokumente dürfen Dateien dieser Ordner und ihrer Unterordner benutzen, ohne dass es gemeldet wird. Bei allen anderen wird es beim Öffnen eines Dokuments gemeldet.</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen …</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Allow a Folder</source>
        <translation>Ordner erlauben</translation>
    </message>
</context>
<context>
    <name>Archive</name>
    <message>
        <source>true or false</source>
        <translation type="vanished">wahr oder falsch</translation>
    </message>
    <message>
        <source>a number</source>
        <translation type="vanished">eine Zahl</translation>
    </message>
    <message>
        <source>a text</source>
        <translation type="vanished">ein Text</translation>
    </message>
    <message>
        <source>a list</source>
        <translation type="vanished">eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation type="vanished">ein Objekt</translation>
    </message>
    <message>
        <source>null</source>
        <translation type="vanished">null</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation type="vanished">nichts</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation type="vanished">erwartet: %1, gefunden: %2</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation type="vanished">%1 liegt nicht zwischen %2 und %3</translation>
    </message>
    <message>
        <source>the text has %1 characters; at most %2</source>
        <translation type="vanished">der Text hat %1 Zeichen; höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation type="vanished">fehlt</translation>
    </message>
    <message>
        <source>%1 is not a whole number</source>
        <translation type="vanished">%1 ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>expected %1 numbers, found %2</source>
        <translation type="vanished">%1 Zahlen erwartet, %2 gefunden</translation>
    </message>
    <message>
        <source>holds an odd count of numbers</source>
        <translation type="vanished">enthält eine ungerade Anzahl von Zahlen</translation>
    </message>
    <message>
        <source>%1 is a choice without a name</source>
        <translation type="vanished">%1 ist eine Auswahl ohne Namen</translation>
    </message>
    <message>
        <source>“%1” is not one of %2</source>
        <translation type="vanished">„%1“ ist keiner der Werte %2</translation>
    </message>
    <message>
        <source>holds %1 entries; at most %2</source>
        <translation type="vanished">enthält %1 Einträge; höchstens %2 sind erlaubt</translation>
    </message>
</context>
<context>
    <name>AttributeModel</name>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>Sorting…</source>
        <translation>Wird sortiert…</translation>
    </message>
</context>
<context>
    <name>AttributePanel</name>
    <message>
        <source>Attributes</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>Filter, as in population &gt; 1000000 AND name LIKE &apos;A%&apos;</source>
        <translation>Filter, etwa population &gt; 1000000 AND name LIKE &apos;A%&apos;</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Zoom to Chosen</source>
        <translation>Auf Gewählte zoomen</translation>
    </message>
    <message>
        <source>Show the chosen features on the map; a double click on a row does so, too</source>
        <translation>Die gewählten Objekte auf der Karte zeigen; ein Doppelklick auf eine Zeile tut es auch</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Attributes of “%1”</source>
        <translation>Attribute von „%1“</translation>
    </message>
    <message>
        <source>Features: %1</source>
        <translation>Objekte: %1</translation>
    </message>
    <message>
        <source>%1 of %2 chosen</source>
        <translation>%1 von %2 gewählt</translation>
    </message>
    <message>
        <source>The chosen features have no place on the map.</source>
        <translation>Die gewählten Objekte haben keinen Platz auf der Karte.</translation>
    </message>
    <message>
        <source>These are too many rows to be copied; choose no more than %1.</source>
        <translation>Das sind zu viele Zeilen zum Kopieren; wählen Sie höchstens %1.</translation>
    </message>
</context>
<context>
    <name>AttributeReport</name>
    <message>
        <source>there is no layer &quot;%1&quot;; write layer:MAP/LAYER, as plotvane info lists them.</source>
        <translation>es gibt keine Ebene „%1“; schreiben Sie layer:KARTE/EBENE, wie plotvane info sie auflistet.</translation>
    </message>
</context>
<context>
    <name>BreakHistogram</name>
    <message>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
</context>
<context>
    <name>ClassCounts</name>
    <message>
        <source>The condition “%1” is not understood: %2.</source>
        <translation>Die Bedingung „%1“ wird nicht verstanden: %2.</translation>
    </message>
    <message>
        <source>The expression “%1” is not understood: %2.</source>
        <translation>Der Ausdruck „%1“ wird nicht verstanden: %2.</translation>
    </message>
    <message>
        <source>Not all of %1 could be read: %2.</source>
        <translation>%1 konnte nicht ganz gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>Classify</name>
    <message>
        <source>The field “%1” holds no numbers; take the method “unique”, or a field of numbers.</source>
        <translation>Das Feld „%1“ enthält keine Zahlen; nehmen Sie das Verfahren „unique“ oder ein Feld mit Zahlen.</translation>
    </message>
    <message>
        <source>No feature has a value in the field “%1”.</source>
        <translation>Kein Objekt hat einen Wert im Feld „%1“.</translation>
    </message>
    <message>
        <source>The number of classes is %1; give one from 1 to %2.</source>
        <translation>Die Zahl der Klassen ist %1; geben Sie eine von 1 bis %2 an.</translation>
    </message>
    <message>
        <source>There is no colour ramp “%1”; there are: %2.</source>
        <translation>Es gibt keine Farbreihe „%1“; es gibt: %2.</translation>
    </message>
    <message>
        <source>The layer has no symbol that could be given other colours; give it one first.</source>
        <translation>Die Ebene hat kein Symbol, das andere Farben bekommen könnte; geben Sie ihr zuerst eines.</translation>
    </message>
    <message>
        <source>Only markers and lines have sizes; take colours for the layer&apos;s areas.</source>
        <translation>Nur Marker und Linien haben Größen; nehmen Sie für die Flächen der Ebene Farben.</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
</context>
<context>
    <name>ClassifyDialog</name>
    <message>
        <source>Classes of %1</source>
        <translation>Klassen von %1</translation>
    </message>
    <message>
        <source>Equal intervals</source>
        <translation>Gleiche Abstände</translation>
    </message>
    <message>
        <source>Quantiles</source>
        <translation>Quantile</translation>
    </message>
    <message>
        <source>Natural breaks</source>
        <translation>Natürliche Grenzen</translation>
    </message>
    <message>
        <source>Standard deviation</source>
        <translation>Standardabweichung</translation>
    </message>
    <message>
        <source>Round numbers</source>
        <translation>Runde Zahlen</translation>
    </message>
    <message>
        <source>Breaks of your own</source>
        <translation>Eigene Grenzen</translation>
    </message>
    <message>
        <source>A class for each value</source>
        <translation>Eine Klasse für jeden Wert</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Größen</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Sorted</source>
        <translation>Sortiert</translation>
    </message>
    <message>
        <source>Values in their own order, and not the most frequent first</source>
        <translation>Werte in ihrer eigenen Reihenfolge, nicht die häufigsten zuerst</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Ab</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>Klassen</translation>
    </message>
    <message>
        <source>Symbols by</source>
        <translation>Symbole nach</translation>
    </message>
    <message>
        <source>Features without a value, which are in no class: %1.</source>
        <translation>Objekte ohne Wert, die in keiner Klasse sind: %1.</translation>
    </message>
    <message>
        <source>There are more than %1 values; the rarer ones are in no class.</source>
        <translation>Es gibt mehr als %1 Werte; die selteneren sind in keiner Klasse.</translation>
    </message>
    <message>
        <source>Markers in proportion</source>
        <translation>Marker im Verhältnis</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>&amp;Arrange</source>
        <translation>&amp;Anordnen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>An&amp;sicht</translation>
    </message>
    <message>
        <source>About Plotvane</source>
        <translation>Über Plotvane</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Add a grid to a data frame</source>
        <translation>Gitternetz zu einem Datenrahmen hinzufügen</translation>
    </message>
    <message>
        <source>Align Bottom</source>
        <translation>Unten ausrichten</translation>
    </message>
    <message>
        <source>Align Centres</source>
        <translation>Horizontal zentrieren</translation>
    </message>
    <message>
        <source>Align Left</source>
        <translation>Linksbündig ausrichten</translation>
    </message>
    <message>
        <source>Align Middles</source>
        <translation>Vertikal zentrieren</translation>
    </message>
    <message>
        <source>Align Right</source>
        <translation>Rechtsbündig ausrichten</translation>
    </message>
    <message>
        <source>Align Top</source>
        <translation>Oben ausrichten</translation>
    </message>
    <message>
        <source>Align the bottom edges of the selected elements</source>
        <translation>Untere Kanten der ausgewählten Elemente ausrichten</translation>
    </message>
    <message>
        <source>Align the horizontal centres of the selected elements</source>
        <translation>Ausgewählte Elemente horizontal zentrieren</translation>
    </message>
    <message>
        <source>Align the left edges of the selected elements</source>
        <translation>Linke Kanten der ausgewählten Elemente ausrichten</translation>
    </message>
    <message>
        <source>Align the right edges of the selected elements</source>
        <translation>Rechte Kanten der ausgewählten Elemente ausrichten</translation>
    </message>
    <message>
        <source>Align the top edges of the selected elements</source>
        <translation>Obere Kanten der ausgewählten Elemente ausrichten</translation>
    </message>
    <message>
        <source>Align the vertical centres of the selected elements</source>
        <translation>Ausgewählte Elemente vertikal zentrieren</translation>
    </message>
    <message>
        <source>Align to Margins</source>
        <translation>Am Seitenrand ausrichten</translation>
    </message>
    <message>
        <source>Align to the page margins instead of to the first selected element</source>
        <translation>Am Seitenrand statt am zuerst ausgewählten Element ausrichten</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Anordnen</translation>
    </message>
    <message>
        <source>Bring Forward</source>
        <translation>Eine Ebene nach vorn</translation>
    </message>
    <message>
        <source>Bring to Front</source>
        <translation>In den Vordergrund</translation>
    </message>
    <message>
        <source>Change Layout…</source>
        <translation>Layout wechseln …</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Convert to Graphics</source>
        <translation>In Grafik umwandeln</translation>
    </message>
    <message>
        <source>Data Frame</source>
        <translation>Datenrahmen</translation>
    </message>
    <message>
        <source>Delete the selected elements</source>
        <translation>Ausgewählte Elemente löschen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Distribute Horizontally</source>
        <translation>Horizontal verteilen</translation>
    </message>
    <message>
        <source>Distribute Vertically</source>
        <translation>Vertikal verteilen</translation>
    </message>
    <message>
        <source>Draw the selected elements above all others</source>
        <translation>Ausgewählte Elemente über allen anderen zeichnen</translation>
    </message>
    <message>
        <source>Draw the selected elements below all others</source>
        <translation>Ausgewählte Elemente unter allen anderen zeichnen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Export Map…</source>
        <translation>Karte exportieren …</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Fit Height to Margins</source>
        <translation>Höhe an Seitenrand anpassen</translation>
    </message>
    <message>
        <source>Fit Width to Margins</source>
        <translation>Breite an Seitenrand anpassen</translation>
    </message>
    <message>
        <source>Fit to Margins</source>
        <translation>An Seitenrand anpassen</translation>
    </message>
    <message>
        <source>Give the selected elements the height of the last selected one</source>
        <translation>Ausgewählten Elementen die Höhe des zuletzt ausgewählten geben</translation>
    </message>
    <message>
        <source>Give the selected elements the size of the last selected one</source>
        <translation>Ausgewählten Elementen die Größe des zuletzt ausgewählten geben</translation>
    </message>
    <message>
        <source>Give the selected elements the width of the last selected one</source>
        <translation>Ausgewählten Elementen die Breite des zuletzt ausgewählten geben</translation>
    </message>
    <message>
        <source>Go back to what was shown before</source>
        <translation>Zum vorher gezeigten Ausschnitt zurückgehen</translation>
    </message>
    <message>
        <source>Go forward to what was shown after</source>
        <translation>Zum danach gezeigten Ausschnitt vorgehen</translation>
    </message>
    <message>
        <source>Grid…</source>
        <translation>Gitternetz …</translation>
    </message>
    <message>
        <source>Insert a data frame with an empty map</source>
        <translation>Datenrahmen mit leerer Karte einfügen</translation>
    </message>
    <message>
        <source>Insert a legend of the focus map</source>
        <translation>Legende der aktiven Karte einfügen</translation>
    </message>
    <message>
        <source>Insert a north arrow chosen from the style libraries</source>
        <translation>Nordpfeil aus den Stilbibliotheken einfügen</translation>
    </message>
    <message>
        <source>Insert a scale bar of the focus map</source>
        <translation>Maßstabsleiste der aktiven Karte einfügen</translation>
    </message>
    <message>
        <source>Insert the scale of the focus map as text</source>
        <translation>Maßstab der aktiven Karte als Text einfügen</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>Let the mouse move all data frames again</source>
        <translation>Alle Datenrahmen wieder mit der Maus verschieben lassen</translation>
    </message>
    <message>
        <source>Lock Data Frames</source>
        <translation>Datenrahmen sperren</translation>
    </message>
    <message>
        <source>Make the change again</source>
        <translation>Änderung erneut ausführen</translation>
    </message>
    <message>
        <source>Make the horizontal gaps between the selected elements equal</source>
        <translation>Horizontale Abstände zwischen den ausgewählten Elementen angleichen</translation>
    </message>
    <message>
        <source>Make the vertical gaps between the selected elements equal</source>
        <translation>Vertikale Abstände zwischen den ausgewählten Elementen angleichen</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Move the page under the view</source>
        <translation>Seite in der Ansicht verschieben</translation>
    </message>
    <message>
        <source>Move the selected elements one step down</source>
        <translation>Ausgewählte Elemente eine Ebene nach hinten stellen</translation>
    </message>
    <message>
        <source>Move the selected elements one step up</source>
        <translation>Ausgewählte Elemente eine Ebene nach vorn bringen</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Next Extent</source>
        <translation>Nächster Ausschnitt</translation>
    </message>
    <message>
        <source>North Arrow…</source>
        <translation>Nordpfeil …</translation>
    </message>
    <message>
        <source>Open a map document</source>
        <translation>Kartendokument öffnen</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>Seitenlayout</translation>
    </message>
    <message>
        <source>Page Setup…</source>
        <translation>Seite einrichten …</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Previous Extent</source>
        <translation>Vorheriger Ausschnitt</translation>
    </message>
    <message>
        <source>Protect all data frames from the mouse</source>
        <translation>Alle Datenrahmen vor der Maus schützen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Replace the page layout by that of another document</source>
        <translation>Seitenlayout durch das eines anderen Dokuments ersetzen</translation>
    </message>
    <message>
        <source>Same Height</source>
        <translation>Gleiche Höhe</translation>
    </message>
    <message>
        <source>Same Size</source>
        <translation>Gleiche Größe</translation>
    </message>
    <message>
        <source>Same Width</source>
        <translation>Gleiche Breite</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>Save the document under another name</source>
        <translation>Dokument unter anderem Namen speichern</translation>
    </message>
    <message>
        <source>Save the document</source>
        <translation>Dokument speichern</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Scale Bar</source>
        <translation>Maßstabsleiste</translation>
    </message>
    <message>
        <source>Scale Text</source>
        <translation>Maßstabsangabe</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Select all elements but locked data frames</source>
        <translation type="vanished">Alle Elemente außer gesperrten Datenrahmen auswählen</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Select, move and resize elements</source>
        <translation>Elemente auswählen, verschieben und in der Größe ändern</translation>
    </message>
    <message>
        <source>Send Backward</source>
        <translation>Eine Ebene nach hinten</translation>
    </message>
    <message>
        <source>Send to Back</source>
        <translation>In den Hintergrund</translation>
    </message>
    <message>
        <source>Set paper form, size, orientation, border and background</source>
        <translation>Papierformat, Größe, Ausrichtung, Rand und Hintergrund festlegen</translation>
    </message>
    <message>
        <source>Show or hide the table of contents</source>
        <translation>Inhaltsverzeichnis ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Show the map of the data frame alone</source>
        <translation>Nur die Karte des Datenrahmens anzeigen</translation>
    </message>
    <message>
        <source>Show the page in its real size</source>
        <translation>Seite in ihrer wirklichen Größe anzeigen</translation>
    </message>
    <message>
        <source>Show the page</source>
        <translation>Seite anzeigen</translation>
    </message>
    <message>
        <source>Show the whole page</source>
        <translation>Ganze Seite anzeigen</translation>
    </message>
    <message>
        <source>Start a document with an empty page</source>
        <translation>Dokument mit leerer Seite beginnen</translation>
    </message>
    <message>
        <source>Stretch the selected elements to the height between the margins</source>
        <translation>Ausgewählte Elemente auf die Höhe zwischen den Seitenrändern strecken</translation>
    </message>
    <message>
        <source>Stretch the selected elements to the page margins</source>
        <translation>Ausgewählte Elemente bis zum Seitenrand strecken</translation>
    </message>
    <message>
        <source>Stretch the selected elements to the width between the margins</source>
        <translation>Ausgewählte Elemente auf die Breite zwischen den Seitenrändern strecken</translation>
    </message>
    <message>
        <source>Take the last change back</source>
        <translation>Letzte Änderung zurücknehmen</translation>
    </message>
    <message>
        <source>Turn the selected map surrounds into plain graphics</source>
        <translation>Ausgewählte Randangaben in einfache Grafik umwandeln</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Unlock Data Frames</source>
        <translation>Datenrahmen entsperren</translation>
    </message>
    <message>
        <source>Unselect</source>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Version and licence</source>
        <translation>Version und Lizenz</translation>
    </message>
    <message>
        <source>Whole Page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Write the page as an image file</source>
        <translation>Seite als Bilddatei schreiben</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom in by click or rectangle</source>
        <translation>Durch Klicken oder Aufziehen eines Rechtecks vergrößern</translation>
    </message>
    <message>
        <source>Zoom out by click or rectangle</source>
        <translation>Durch Klicken oder Aufziehen eines Rechtecks verkleinern</translation>
    </message>
    <message>
        <source>a change that was taken back</source>
        <translation>eine zurückgenommene Änderung</translation>
    </message>
    <message>
        <source>a change to take back</source>
        <translation>eine Änderung, die sich zurücknehmen lässt</translation>
    </message>
    <message>
        <source>a document</source>
        <translation>ein Dokument</translation>
    </message>
    <message>
        <source>a later extent</source>
        <translation>ein späterer Ausschnitt</translation>
    </message>
    <message>
        <source>a page layout</source>
        <translation>ein Seitenlayout</translation>
    </message>
    <message>
        <source>a selected element that is not a locked data frame</source>
        <translation type="vanished">ein ausgewähltes Element, das kein gesperrter Datenrahmen ist</translation>
    </message>
    <message>
        <source>a selected element</source>
        <translation>ein ausgewähltes Element</translation>
    </message>
    <message>
        <source>a selected map surround</source>
        <translation>eine ausgewählte Randangabe</translation>
    </message>
    <message>
        <source>an earlier extent</source>
        <translation>ein früherer Ausschnitt</translation>
    </message>
    <message>
        <source>changes that are not saved</source>
        <translation>nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>selected elements, no markers and no map surrounds among them</source>
        <translation>ausgewählte Elemente ohne Punktsymbole und Randangaben</translation>
    </message>
    <message>
        <source>the page layout shown and a selected element</source>
        <translation>angezeigtes Seitenlayout und ein ausgewähltes Element</translation>
    </message>
    <message>
        <source>the page layout shown</source>
        <translation>angezeigtes Seitenlayout</translation>
    </message>
    <message>
        <source>the page layout shown, with elements</source>
        <translation>angezeigtes Seitenlayout mit Elementen</translation>
    </message>
    <message>
        <source>three selected elements</source>
        <translation>drei ausgewählte Elemente</translation>
    </message>
    <message>
        <source>two selected elements</source>
        <translation>zwei ausgewählte Elemente</translation>
    </message>
    <message>
        <source>two selected elements, or one when aligning to margins</source>
        <translation>zwei ausgewählte Elemente oder eines beim Ausrichten am Seitenrand</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>Distribute</source>
        <translation>Verteilen</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Show or hide the properties of what is selected</source>
        <translation>Die Eigenschaften des Ausgewählten zeigen oder verbergen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Move the selected elements to the clipboard</source>
        <translation>Die ausgewählten Elemente in die Zwischenablage verschieben</translation>
    </message>
    <message>
        <source>a selected element that is not locked</source>
        <translation>ein ausgewähltes Element, das nicht gesperrt ist</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected elements to the clipboard</source>
        <translation>Die ausgewählten Elemente in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Put the elements, the text or the picture of the clipboard on the page</source>
        <translation>Die Elemente, den Text oder das Bild der Zwischenablage auf der Seite einfügen</translation>
    </message>
    <message>
        <source>Paste in Place</source>
        <translation>An derselben Stelle einfügen</translation>
    </message>
    <message>
        <source>Put the elements of the clipboard where they were copied</source>
        <translation>Die Elemente der Zwischenablage dort einfügen, wo sie kopiert wurden</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Put copies of the selected elements beside them</source>
        <translation>Kopien der ausgewählten Elemente neben sie legen</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppieren</translation>
    </message>
    <message>
        <source>Make one element of the selected ones</source>
        <translation>Aus den ausgewählten Elementen eines machen</translation>
    </message>
    <message>
        <source>two selected elements, no data frames and no map surrounds among them</source>
        <translation>zwei ausgewählte Elemente, keine Datenrahmen und keine Randangaben darunter</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Gruppierung aufheben</translation>
    </message>
    <message>
        <source>Take the selected groups apart</source>
        <translation>Die ausgewählten Gruppen auflösen</translation>
    </message>
    <message>
        <source>a selected group</source>
        <translation>eine ausgewählte Gruppe</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Write a text on the page</source>
        <translation>Schreibt einen Text auf die Seite</translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation>Bild…</translation>
    </message>
    <message>
        <source>Draw the frame of a picture and choose its file</source>
        <translation>Zieht den Rahmen eines Bildes auf und fragt nach seiner Datei</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Draw a line: drag it, or click its vertices</source>
        <translation>Zeichnet eine Linie: ziehen, oder die Stützpunkte anklicken</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Draw a line with an arrow head</source>
        <translation>Zeichnet eine Linie mit Pfeilspitze</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Draw an area: click its vertices</source>
        <translation>Zeichnet eine Fläche: die Stützpunkte anklicken</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Draw a rectangle</source>
        <translation>Zeichnet ein Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Draw an ellipse</source>
        <translation>Zeichnet eine Ellipse</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Punktsymbol</translation>
    </message>
    <message>
        <source>Put a marker on the page</source>
        <translation>Setzt ein Punktsymbol auf die Seite</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <translation type="vanished">Text bearbeiten</translation>
    </message>
    <message>
        <source>Write in the selected text where it stands</source>
        <translation type="vanished">Schreibt im ausgewählten Text, wo er steht</translation>
    </message>
    <message>
        <source>a selected text</source>
        <translation type="vanished">einen ausgewählten Text</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Show or hide the list of the changes, to go back to any of them</source>
        <translation>Die Liste der Änderungen ein- oder ausblenden, um zu einer davon zurückzugehen</translation>
    </message>
    <message>
        <source>Select all elements that are neither locked nor hidden</source>
        <translation>Alle Elemente auswählen, die weder gesperrt noch ausgeblendet sind</translation>
    </message>
    <message>
        <source>Write in the selected text, or change the vertices of the selected line or polygon</source>
        <translation type="vanished">Schreibt im ausgewählten Text, oder ändert die Stützpunkte der ausgewählten Linie oder des Polygons</translation>
    </message>
    <message>
        <source>a selected text, line or polygon</source>
        <translation type="vanished">einen ausgewählten Text, eine Linie oder ein Polygon</translation>
    </message>
    <message>
        <source>Rulers</source>
        <translation>Lineale</translation>
    </message>
    <message>
        <source>Show or hide the rulers, out of which guides are pulled</source>
        <translation>Zeigt oder verbirgt die Lineale, aus denen Hilfslinien gezogen werden</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Hilfslinien</translation>
    </message>
    <message>
        <source>Show or hide the margins, guides and grid of the page</source>
        <translation>Zeigt oder verbirgt Ränder, Hilfslinien und Raster der Seite</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Einrasten</translation>
    </message>
    <message>
        <source>Draw what is moved to edges, centres, guides and equal gaps, but not with Alt</source>
        <translation type="vanished">Zieht, was bewegt wird, an Kanten, Mitten, Hilfslinien und gleiche Abstände, mit Alt nicht</translation>
    </message>
    <message>
        <source>Snap what is moved to edges, centres, guides and equal gaps; Alt switches it off</source>
        <translation>Lässt, was bewegt wird, an Kanten, Mitten, Hilfslinien und gleichen Abständen einrasten; Alt schaltet es aus</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>E&amp;bene</translation>
    </message>
    <message>
        <source>a data frame</source>
        <translation>einen Datenrahmen</translation>
    </message>
    <message>
        <source>Coordinate System of the Map…</source>
        <translation>Koordinatensystem der Karte…</translation>
    </message>
    <message>
        <source>Show the map in another coordinate system</source>
        <translation>Die Karte in einem anderen Koordinatensystem zeigen</translation>
    </message>
    <message>
        <source>Classes…</source>
        <translation>Klassen …</translation>
    </message>
    <message>
        <source>Make classes of the layer by the values of a field, and give them colours or sizes</source>
        <translation>Die Ebene nach den Werten eines Feldes in Klassen teilen und diesen Farben oder Größen geben</translation>
    </message>
    <message>
        <source>a layer chosen in the contents</source>
        <translation>eine im Inhalt gewählte Ebene</translation>
    </message>
    <message>
        <source>Identify</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>Tell what lies under the mouse: the features of a map, with their attributes</source>
        <translation>Sagen, was unter der Maus liegt: die Objekte einer Karte mit ihren Attributen</translation>
    </message>
    <message>
        <source>Attribute Table</source>
        <translation>Attributtabelle</translation>
    </message>
    <message>
        <source>Show the attributes of the chosen layer&apos;s features</source>
        <translation>Die Attribute der Objekte der gewählten Ebene zeigen</translation>
    </message>
    <message>
        <source>a chosen layer of features</source>
        <translation>eine gewählte Ebene mit Objekten</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>a row of the contents chosen</source>
        <translation>eine gewählte Zeile des Inhalts</translation>
    </message>
    <message>
        <source>a layer or a group chosen in the contents</source>
        <translation>eine im Inhalt gewählte Ebene oder Gruppe</translation>
    </message>
    <message>
        <source>New from Data…</source>
        <translation>Neu aus Daten …</translation>
    </message>
    <message>
        <source>Make a map of files of data, with a page around it</source>
        <translation>Eine Karte aus Datendateien machen, mit einer Seite darum</translation>
    </message>
    <message>
        <source>Write in the selected text, or change the vertices of the selected line or polygon, or the labels of the selected data frame</source>
        <translation>Im ausgewählten Text schreiben, oder die Stützpunkte der ausgewählten Linie oder des Polygons oder die Beschriftungen des ausgewählten Datenrahmens ändern</translation>
    </message>
    <message>
        <source>a selected text, line, polygon or data frame</source>
        <translation>einen ausgewählten Text, eine Linie, ein Polygon oder einen Datenrahmen</translation>
    </message>
    <message>
        <source>Add Layers…</source>
        <translation>Ebenen hinzufügen …</translation>
    </message>
    <message>
        <source>Add the data of files to the map</source>
        <translation>Der Karte die Daten von Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Unplaced Labels</source>
        <translation>Beschriftungen ohne Platz</translation>
    </message>
    <message>
        <source>Show or hide, in red, the labels of the map that found no place</source>
        <translation>Die Beschriftungen der Karte, die keinen Platz fanden, rot ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Show or hide the chosen layers and groups</source>
        <translation>Die gewählten Ebenen und Gruppen zeigen oder ausblenden</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Let the chosen layers cover what lies below</source>
        <translation>Die gewählten Ebenen verdecken lassen, was darunter liegt</translation>
    </message>
    <message>
        <source>75 %</source>
        <translation>75 %</translation>
    </message>
    <message>
        <source>Let a quarter of what lies below shine through</source>
        <translation>Ein Viertel dessen durchscheinen lassen, was darunter liegt</translation>
    </message>
    <message>
        <source>50 %</source>
        <translation>50 %</translation>
    </message>
    <message>
        <source>Let half of what lies below shine through</source>
        <translation>Die Hälfte dessen durchscheinen lassen, was darunter liegt</translation>
    </message>
    <message>
        <source>25 %</source>
        <translation>25 %</translation>
    </message>
    <message>
        <source>Let three quarters of what lies below shine through</source>
        <translation>Drei Viertel dessen durchscheinen lassen, was darunter liegt</translation>
    </message>
    <message>
        <source>Zoom to Layer</source>
        <translation>Auf Ebene zoomen</translation>
    </message>
    <message>
        <source>Show all that the chosen layers hold, or all layers of a map</source>
        <translation>Alles zeigen, was die gewählten Ebenen enthalten, oder alle Ebenen einer Karte</translation>
    </message>
    <message>
        <source>Zoom to Scale Range</source>
        <translation>Auf Maßstabsbereich zoomen</translation>
    </message>
    <message>
        <source>Give the map a scale at which the chosen layer shows</source>
        <translation>Der Karte einen Maßstab geben, in dem die gewählte Ebene zu sehen ist</translation>
    </message>
    <message>
        <source>a layer with limits of scale chosen in the contents</source>
        <translation>eine im Inhalt gewählte Ebene mit Maßstabsgrenzen</translation>
    </message>
    <message>
        <source>Work on This Map</source>
        <translation>An dieser Karte arbeiten</translation>
    </message>
    <message>
        <source>Give the chosen map the focus</source>
        <translation>Der gewählten Karte den Fokus geben</translation>
    </message>
    <message>
        <source>a map chosen in the contents</source>
        <translation>eine im Inhalt gewählte Karte</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>Reparieren …</translation>
    </message>
    <message>
        <source>Find the file of the chosen layer, and those of others beside it</source>
        <translation>Die Datei der gewählten Ebene finden, und daneben die von anderen</translation>
    </message>
    <message>
        <source>a layer chosen in the contents whose data can&apos;t be read</source>
        <translation>eine im Inhalt gewählte Ebene, deren Daten nicht gelesen werden können</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Write another name of the chosen map, layer or group</source>
        <translation>Der gewählten Karte, Ebene oder Gruppe einen anderen Namen geben</translation>
    </message>
    <message>
        <source>Move the chosen layers to the clipboard</source>
        <translation>Die gewählten Ebenen in die Zwischenablage verschieben</translation>
    </message>
    <message>
        <source>Copy the chosen layers to the clipboard</source>
        <translation>Die gewählten Ebenen in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Put the layers of the clipboard above the chosen one</source>
        <translation>Die Ebenen der Zwischenablage über die gewählte setzen</translation>
    </message>
    <message>
        <source>Put copies of the chosen layers above them</source>
        <translation>Kopien der gewählten Ebenen über sie setzen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the chosen layers from their maps; their files stay</source>
        <translation>Die gewählten Ebenen aus ihren Karten entfernen; ihre Dateien bleiben</translation>
    </message>
    <message>
        <source>Put the chosen layers and groups into a new group</source>
        <translation>Die gewählten Ebenen und Gruppen in eine neue Gruppe legen</translation>
    </message>
    <message>
        <source>layers of one map chosen in the contents</source>
        <translation>im Inhalt gewählte Ebenen einer einzigen Karte</translation>
    </message>
    <message>
        <source>Take the chosen groups of layers apart</source>
        <translation>Die gewählten Ebenengruppen auflösen</translation>
    </message>
    <message>
        <source>a group of layers chosen in the contents</source>
        <translation>eine im Inhalt gewählte Ebenengruppe</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Anheben</translation>
    </message>
    <message>
        <source>Move the chosen layers up by one place</source>
        <translation>Die gewählten Ebenen um einen Platz nach oben verschieben</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>Absenken</translation>
    </message>
    <message>
        <source>Move the chosen layers down by one place</source>
        <translation>Die gewählten Ebenen um einen Platz nach unten verschieben</translation>
    </message>
    <message>
        <source>Move into Group</source>
        <translation>In Gruppe verschieben</translation>
    </message>
    <message>
        <source>Move the chosen layers into the group below or above them</source>
        <translation>Die gewählten Ebenen in die Gruppe darunter oder darüber verschieben</translation>
    </message>
    <message>
        <source>Move out of Group</source>
        <translation>Aus Gruppe verschieben</translation>
    </message>
    <message>
        <source>Move the chosen layers out of their group, above it</source>
        <translation>Die gewählten Ebenen aus ihrer Gruppe heraus über sie verschieben</translation>
    </message>
    <message>
        <source>a layer of a group chosen in the contents</source>
        <translation>eine im Inhalt gewählte Ebene einer Gruppe</translation>
    </message>
    <message>
        <source>Layer Properties…</source>
        <translation>Eigenschaften der Ebene …</translation>
    </message>
    <message>
        <source>Show everything about the chosen layer: source, symbols, labels, scales, file</source>
        <translation>Zeigt alles über die gewählte Ebene: Quelle, Symbole, Beschriftung, Maßstäbe, Datei</translation>
    </message>
    <message>
        <source>a layer of features chosen in the contents</source>
        <translation>eine im Inhalt gewählte Ebene mit Objekten</translation>
    </message>
    <message>
        <source>Document Properties…</source>
        <translation>Dokumenteigenschaften …</translation>
    </message>
    <message>
        <source>Set what the document says about itself: title, author, keywords</source>
        <translation>Festlegen, was das Dokument über sich sagt: Titel, Autor, Stichwörter</translation>
    </message>
    <message>
        <source>Keep Earlier Version</source>
        <translation>Frühere Fassung behalten</translation>
    </message>
    <message>
        <source>Let a save keep what the file held before, as a file with “~” behind its name</source>
        <translation>Beim Speichern den bisherigen Inhalt der Datei behalten, als Datei mit „~“ hinter dem Namen</translation>
    </message>
    <message>
        <source>Export as PDF…</source>
        <translation>Als PDF exportieren …</translation>
    </message>
    <message>
        <source>Write the page as a PDF of shapes and texts</source>
        <translation>Die Seite als PDF aus Formen und Texten schreiben</translation>
    </message>
    <message>
        <source>Export as SVG…</source>
        <translation>Als SVG exportieren …</translation>
    </message>
    <message>
        <source>Write the page as an SVG of shapes and texts</source>
        <translation>Die Seite als SVG aus Formen und Texten schreiben</translation>
    </message>
    <message>
        <source>a series of pages</source>
        <translation>eine Serie von Seiten</translation>
    </message>
    <message>
        <source>Series of Pages…</source>
        <translation>Serie von Seiten …</translation>
    </message>
    <message>
        <source>Make a page for each feature of a layer</source>
        <translation>Für jedes Objekt einer Ebene eine Seite anlegen</translation>
    </message>
    <message>
        <source>First Page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Show the first page of the series</source>
        <translation>Die erste Seite der Serie zeigen</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Show the page before in the series</source>
        <translation>Die Seite davor in der Serie zeigen</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Show the next page of the series</source>
        <translation>Die nächste Seite der Serie zeigen</translation>
    </message>
    <message>
        <source>Last Page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Show the last page of the series</source>
        <translation>Die letzte Seite der Serie zeigen</translation>
    </message>
    <message>
        <source>No Page of the Series</source>
        <translation>Keine Seite der Serie</translation>
    </message>
    <message>
        <source>Show the document as it is stored</source>
        <translation>Das Dokument zeigen, wie es gespeichert ist</translation>
    </message>
    <message>
        <source>Print Preview…</source>
        <translation>Druckvorschau …</translation>
    </message>
    <message>
        <source>Show the sheets of paper as they would be printed</source>
        <translation>Die Blätter zeigen, wie sie gedruckt würden</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken …</translation>
    </message>
    <message>
        <source>Print the page, on several sheets where it is larger than the paper</source>
        <translation>Die Seite drucken, auf mehrere Blätter, wo sie größer ist als das Papier</translation>
    </message>
    <message>
        <source>Allowed Folders…</source>
        <translation>Erlaubte Ordner …</translation>
    </message>
    <message>
        <source>Name folders of which documents may use files without that being told</source>
        <translation>Ordner nennen, deren Dateien Dokumente verwenden dürfen, ohne dass darauf hingewiesen wird</translation>
    </message>
    <message>
        <source>Connections…</source>
        <translation>Verbindungen…</translation>
    </message>
    <message>
        <source>Name databases that layers may come from, and try them</source>
        <translation>Datenbanken benennen, aus denen Ebenen kommen können, und sie probieren</translation>
    </message>
    <message>
        <source>Add Layers from Database…</source>
        <translation>Ebenen aus Datenbank hinzufügen…</translation>
    </message>
    <message>
        <source>Add tables of a PostGIS database to the map</source>
        <translation>Tabellen einer PostGIS-Datenbank zur Karte hinzufügen</translation>
    </message>
    <message>
        <source>Index Large Files</source>
        <translation>Große Dateien indizieren</translation>
    </message>
    <message>
        <source>Keep indexes of large files that have none in the user&apos;s cache, so that only what a map shows is read</source>
        <translation>Für große Dateien ohne Index einen im Cache des Benutzers behalten, damit nur gelesen wird, was eine Karte zeigt</translation>
    </message>
</context>
<context>
    <name>CommandsSubcommand</name>
    <message>
        <source>Print JSON, for programs.</source>
        <translation>JSON für Programme ausgeben.</translation>
    </message>
    <message>
        <source>Print the reference of all commands, the host&apos;s included.</source>
        <translation>Die Übersicht aller Befehle ausgeben, auch der des Hostprogramms.</translation>
    </message>
</context>
<context>
    <name>ConditionDialog</name>
    <message>
        <source>%1 of %2 features pass.</source>
        <translation>%1 von %2 Objekten erfüllen die Bedingung.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>ganze Zahl</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>date or time</source>
        <translation>Datum oder Zeit</translation>
    </message>
    <message>
        <source>other</source>
        <translation>andere</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Testen</translation>
    </message>
    <message>
        <source>Count the features that pass</source>
        <translation>Zählt die Objekte, die die Bedingung erfüllen</translation>
    </message>
    <message>
        <source>Show what comes of the first features</source>
        <translation>Zeigt, was sich für die ersten Objekte ergibt</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>population &gt; 1000000 AND name LIKE &apos;A%&apos;</source>
        <translation>population &gt; 1000000 AND name LIKE &apos;A%&apos;</translation>
    </message>
    <message>
        <source>population / 1000</source>
        <translation>population / 1000</translation>
    </message>
    <message>
        <source>&amp;Fields</source>
        <translation>&amp;Felder</translation>
    </message>
    <message>
        <source>&amp;Values of the field</source>
        <translation>&amp;Werte des Felds</translation>
    </message>
    <message>
        <source>&amp;Condition; empty for all features</source>
        <translation>&amp;Bedingung; leer für alle Objekte</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>&amp;Ausdruck</translation>
    </message>
    <message>
        <source>It has no value for the first features.</source>
        <translation>Für die ersten Objekte hat er keinen Wert.</translation>
    </message>
    <message>
        <source>Of the first features: %1</source>
        <translation>Für die ersten Objekte: %1</translation>
    </message>
</context>
<context>
    <name>ConnectionAccess</name>
    <message>
        <source>your user</source>
        <translation>Ihrem Benutzer</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Password of %1 for the connection “%2”; it is kept until the program ends:</source>
        <translation>Passwort von %1 für die Verbindung „%2“; es bleibt, bis das Programm endet:</translation>
    </message>
    <message>
        <source>The password was not right.</source>
        <translation>Das Passwort war nicht richtig.</translation>
    </message>
</context>
<context>
    <name>Connections</name>
    <message>
        <source>holds a quote, a backslash, an equals sign or a control character; leave it out</source>
        <translation>enthält ein Anführungszeichen, einen Rückstrich, ein Gleichheitszeichen oder ein Steuerzeichen; lassen Sie es weg</translation>
    </message>
    <message>
        <source>takes up to 60 letters, digits, “-”, “_” and “.”, not “%1”</source>
        <translation>nimmt bis zu 60 Buchstaben, Ziffern, „-“, „_“ und „.“, nicht „%1“</translation>
    </message>
    <message>
        <source>The connection “%1” is not known on this computer; add it in Edit › Connections…, or with plotvane connections add %1.</source>
        <translation>Die Verbindung „%1“ ist auf diesem Rechner nicht bekannt; fügen Sie sie in Bearbeiten › Verbindungen… hinzu oder mit plotvane connections add %1.</translation>
    </message>
    <message>
        <source>The connection “%1” is not open to documents; allow it when the window asks or in Edit › Connections…, or pass --allow-connection %1.</source>
        <translation>Die Verbindung „%1“ ist für Dokumente nicht offen; erlauben Sie sie, wenn das Fenster fragt oder in Bearbeiten › Verbindungen…, oder geben Sie --allow-connection %1 an.</translation>
    </message>
    <message>
        <source>the server has not answered for %1 s</source>
        <translation>der Server hat seit %1 s nicht geantwortet</translation>
    </message>
    <message>
        <source>The connection “%1” can&apos;t be opened: %2. Try it with plotvane connections test %1.</source>
        <translation>Die Verbindung „%1“ kann nicht geöffnet werden: %2. Probieren Sie sie mit plotvane connections test %1.</translation>
    </message>
    <message>
        <source>this GDAL reads no PostgreSQL</source>
        <translation>dieses GDAL liest kein PostgreSQL</translation>
    </message>
    <message>
        <source>%1; write it into ~/.pgpass, or pass it in PGPASSWORD</source>
        <translation>%1; schreiben Sie es in ~/.pgpass oder geben Sie es in PGPASSWORD an</translation>
    </message>
    <message>
        <source>The connection “%1” has no table with geometries that its user may read.</source>
        <translation>Die Verbindung „%1“ hat keine Tabelle mit Geometrien, die ihr Benutzer lesen darf.</translation>
    </message>
    <message>
        <source>The connection “%1” has no table “%2” with geometries; it has: %3.</source>
        <translation>Die Verbindung „%1“ hat keine Tabelle „%2“ mit Geometrien; sie hat: %3.</translation>
    </message>
    <message>
        <source>The table “%1” of the connection “%2” can&apos;t be read: %3.</source>
        <translation>Die Tabelle „%1“ der Verbindung „%2“ kann nicht gelesen werden: %3.</translation>
    </message>
    <message>
        <source>The user of the connection “%1” has no permission to read the table “%2”; have its owner grant that user SELECT.</source>
        <translation>Der Benutzer der Verbindung „%1“ hat kein Recht, die Tabelle „%2“ zu lesen; ihr Besitzer muss ihm SELECT gewähren.</translation>
    </message>
    <message>
        <source>GDAL does not say why</source>
        <translation>GDAL sagt nicht, warum</translation>
    </message>
</context>
<context>
    <name>ConnectionsDialog</name>
    <message>
        <source>Connections</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <source>Connections to databases</source>
        <translation>Verbindungen zu Datenbanken</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Change…</source>
        <translation>Ä&amp;ndern…</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Testen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>dieser Rechner</translation>
    </message>
    <message>
        <source>%1: %2 at %3</source>
        <translation>%1: %2 auf %3</translation>
    </message>
    <message>
        <source> (open to documents)</source>
        <translation> (für Dokumente offen)</translation>
    </message>
    <message>
        <source>database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>Connection “%1”</source>
        <translation>Verbindung „%1“</translation>
    </message>
    <message>
        <source>New Connection</source>
        <translation>Neue Verbindung</translation>
    </message>
    <message>
        <source>There is a connection “%1” already; take another name.</source>
        <translation>Es gibt schon eine Verbindung „%1“; nehmen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>The connection “%1” leads to these tables: %2.</source>
        <translation>Die Verbindung „%1“ führt zu diesen Tabellen: %2.</translation>
    </message>
    <message>
        <source>Remove the connection “%1”? Layers that are read from it can&apos;t be read then.</source>
        <translation>Die Verbindung „%1“ entfernen? Ebenen, die daraus gelesen werden, lassen sich dann nicht mehr lesen.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>ConnectionsSubcommand</name>
    <message>
        <source>The computer of the server, or the folder of its socket.</source>
        <translation>Der Rechner des Servers oder der Ordner seines Sockets.</translation>
    </message>
    <message>
        <source>Its port; 5432 if not given.</source>
        <translation>Sein Port; 5432, wenn nicht angegeben.</translation>
    </message>
    <message>
        <source>The database.</source>
        <translation>Die Datenbank.</translation>
    </message>
    <message>
        <source>The user, best one that may only read.</source>
        <translation>Der Benutzer, am besten einer, der nur lesen darf.</translation>
    </message>
    <message>
        <source>prefer, disable, require, verify-ca or verify-full.</source>
        <translation>prefer, disable, require, verify-ca oder verify-full.</translation>
    </message>
    <message>
        <source>How many seconds it may take for an answer; 30 if not given.</source>
        <translation>Wie viele Sekunden er für eine Antwort brauchen darf; 30, wenn nicht angegeben.</translation>
    </message>
    <message>
        <source>connections: there is no connection &quot;%1&quot;; plotvane connections list tells which there are.</source>
        <translation>connections: es gibt keine Verbindung &quot;%1&quot;; plotvane connections list sagt, welche es gibt.</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>dieser Rechner</translation>
    </message>
    <message>
        <source>open to documents</source>
        <translation>für Dokumente offen</translation>
    </message>
    <message>
        <source>There are no connections; plotvane connections add NAME makes one.</source>
        <translation>Es gibt keine Verbindungen; plotvane connections add NAME legt eine an.</translation>
    </message>
    <message>
        <source>connections: there is a connection &quot;%1&quot; already; remove it first, or take another name.</source>
        <translation>connections: es gibt schon eine Verbindung &quot;%1&quot;; entfernen Sie sie zuerst, oder nehmen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>%1 answers, and has these tables: %2.</source>
        <translation>%1 antwortet und hat diese Tabellen: %2.</translation>
    </message>
    <message>
        <source>list, add, remove or test.</source>
        <translation>list, add, remove oder test.</translation>
    </message>
    <message>
        <source>What documents call the connection.</source>
        <translation>Wie Dokumente die Verbindung nennen.</translation>
    </message>
    <message>
        <source>Documents that are opened in the window may use it unasked.</source>
        <translation>Dokumente, die im Fenster geöffnet werden, dürfen sie ungefragt benutzen.</translation>
    </message>
    <message>
        <source>Print JSON, for programs.</source>
        <translation>JSON für Programme ausgeben.</translation>
    </message>
    <message>
        <source>connections: &quot;%1&quot; is none of list, add, remove and test.</source>
        <translation>connections: &quot;%1&quot; ist nicht list, add, remove oder test.</translation>
    </message>
    <message>
        <source>connections: the name of the connection is missing.</source>
        <translation>connections: der Name der Verbindung fehlt.</translation>
    </message>
    <message>
        <source>connections: list takes no name, such as &quot;%1&quot;.</source>
        <translation>connections: list nimmt keinen Namen, wie &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>CoordinateSystem</name>
    <message>
        <source>is longer than a coordinate system can be</source>
        <translation>länger, als ein Koordinatensystem sein kann</translation>
    </message>
    <message>
        <source>“%1” is no coordinate system; give a code such as EPSG:8857, WKT or a PROJ text</source>
        <translation>„%1“ ist kein Koordinatensystem; geben Sie einen Code wie EPSG:8857, WKT oder einen PROJ-Text an</translation>
    </message>
    <message>
        <source>names a file, and a document&apos;s coordinate system may not; leave out the grid or the file</source>
        <translation>nennt eine Datei, was im Koordinatensystem eines Dokuments nicht erlaubt ist; lassen Sie das Gitter oder die Datei weg</translation>
    </message>
    <message>
        <source>“%1” is not a coordinate system that PROJ knows; give a code such as EPSG:8857</source>
        <translation>„%1“ ist kein Koordinatensystem, das PROJ kennt; geben Sie einen Code wie EPSG:8857 an</translation>
    </message>
    <message>
        <source>is neither geographic nor projected; leave it empty for plain coordinates</source>
        <translation>weder geographisch noch projiziert; lassen Sie es für einfache Koordinaten leer</translation>
    </message>
</context>
<context>
    <name>Coverage</name>
    <message>
        <source>The document has no series of pages; name its layer in “series/layer”.</source>
        <translation>Das Dokument hat keine Serie von Seiten; nennen Sie ihre Ebene in „series/layer“.</translation>
    </message>
    <message>
        <source>The series names no map that is on the page; give its number in “series/map”.</source>
        <translation>Die Serie nennt keine Karte, die auf der Seite ist; geben Sie deren Nummer in „series/map“ an.</translation>
    </message>
    <message>
        <source>The map “%1” has no layer “%2” whose features could have pages; name one of these in “series/layer”: %3.</source>
        <translation>Die Karte „%1“ hat keine Ebene „%2“, deren Objekte Seiten haben könnten; nennen Sie in „series/layer“ eine von diesen: %3.</translation>
    </message>
    <message>
        <source>The series has no pages: no feature of its layer meets its filters; change “series/filter”.</source>
        <translation>Die Serie hat keine Seiten: kein Objekt ihrer Ebene erfüllt ihre Filter; ändern Sie „series/filter“.</translation>
    </message>
    <message>
        <source>The features of the series have no field “%1”; they have: %2.</source>
        <translation>Die Objekte der Serie haben kein Feld „%1“; sie haben: %2.</translation>
    </message>
</context>
<context>
    <name>DataReport</name>
    <message>
        <source>no geometry</source>
        <translation>ohne Geometrie</translation>
    </message>
    <message>
        <source>points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>areas</source>
        <translation>Flächen</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
    <message>
        <source>%1 features</source>
        <translation>%1 Objekte</translation>
    </message>
    <message>
        <source>placed by the columns %1 and %2</source>
        <translation>verortet durch die Spalten %1 und %2</translation>
    </message>
    <message>
        <source>placed by the column %1</source>
        <translation>verortet durch die Spalte %1</translation>
    </message>
    <message>
        <source>fields: %1</source>
        <translation>Felder: %1</translation>
    </message>
    <message>
        <source>raster</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>bands: %1</source>
        <translation>Kanäle: %1</translation>
    </message>
</context>
<context>
    <name>DataSource</name>
    <message>
        <source>The file “%1” can&apos;t be opened: %2.</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>The source names no file; give the path of a local file.</source>
        <translation>Die Quelle nennt keine Datei; geben Sie den Pfad einer lokalen Datei an.</translation>
    </message>
    <message>
        <source>The source “%1” is not a local file: virtual file systems are not opened.</source>
        <translation>Die Quelle „%1“ ist keine lokale Datei: Virtuelle Dateisysteme werden nicht geöffnet.</translation>
    </message>
    <message>
        <source>The source “%1” is not a local file: addresses are not opened.</source>
        <translation>Die Quelle „%1“ ist keine lokale Datei: Netzadressen werden nicht geöffnet.</translation>
    </message>
    <message>
        <source>The source “%1” is not a plain path: leave out the prefix before the colon.</source>
        <translation>Die Quelle „%1“ ist kein einfacher Pfad: Lassen Sie das Präfix vor dem Doppelpunkt weg.</translation>
    </message>
    <message>
        <source>The source “%1” is not a path.</source>
        <translation>Die Quelle „%1“ ist kein Pfad.</translation>
    </message>
    <message>
        <source>it does not exist</source>
        <translation type="vanished">sie existiert nicht</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation type="vanished">sie ist keine Datei</translation>
    </message>
    <message>
        <source>reading it is not permitted</source>
        <translation type="vanished">das Lesen ist nicht erlaubt</translation>
    </message>
    <message>
        <source>it is not a GeoPackage, GeoJSON, Shapefile or FlatGeobuf file</source>
        <translation type="vanished">sie ist keine GeoPackage-, GeoJSON-, Shapefile- oder FlatGeobuf-Datei</translation>
    </message>
    <message>
        <source>The file “%1” has no layer “%2”; it has: %3.</source>
        <translation>Die Datei „%1“ hat keine Ebene „%2“; sie hat: %3.</translation>
    </message>
    <message>
        <source>it does not exist; put it there, or name another file in the layer&apos;s source</source>
        <translation>die Datei gibt es nicht; legen Sie sie dort ab, oder nennen Sie in der Quelle der Ebene eine andere</translation>
    </message>
    <message>
        <source>it is not a file; name one in the layer&apos;s source</source>
        <translation>es ist keine Datei; nennen Sie eine in der Quelle der Ebene</translation>
    </message>
    <message>
        <source>reading it is not permitted; make it readable</source>
        <translation>sie darf nicht gelesen werden; machen Sie sie lesbar</translation>
    </message>
    <message>
        <source>The file “%1” holds no features.</source>
        <translation>Die Datei „%1“ enthält keine Objekte.</translation>
    </message>
    <message>
        <source>The file “%1” holds no layer.</source>
        <translation>Die Datei „%1“ enthält keine Ebene.</translation>
    </message>
    <message>
        <source>There is no field “%1” by which “%2” could be joined; the features have: %3.</source>
        <translation>Es gibt kein Feld „%1“, über das „%2“ verknüpft werden könnte; die Objekte haben: %3.</translation>
    </message>
    <message>
        <source>The table “%1” has no field “%2” to be joined by; it has: %3.</source>
        <translation>Die Tabelle „%1“ hat kein Feld „%2“, über das sie verknüpft werden könnte; sie hat: %3.</translation>
    </message>
    <message>
        <source>No feature found a row in “%1”: no value of “%2”, such as “%3”, is a value of “%4”, such as “%5”.</source>
        <translation>Kein Objekt hat eine Zeile in „%1“ gefunden: Kein Wert von „%2“, etwa „%3“, ist ein Wert von „%4“, etwa „%5“.</translation>
    </message>
    <message>
        <source>%1 of %2 features found no row in “%3”, such as the one with “%4” in “%5”.</source>
        <translation>%1 von %2 Objekten haben keine Zeile in „%3“ gefunden, etwa das mit „%4“ in „%5“.</translation>
    </message>
    <message>
        <source>Rows of “%1” whose key an earlier row has, such as “%2”, are not used: %3 in all.</source>
        <translation>Zeilen von „%1“, deren Schlüssel schon eine frühere hat, etwa „%2“, werden nicht verwendet: insgesamt %3.</translation>
    </message>
    <message>
        <source>its text is encoded as UTF-16; save it as UTF-8</source>
        <translation>ihr Text ist in UTF-16 kodiert; speichern Sie sie als UTF-8</translation>
    </message>
    <message>
        <source>it only refers to other tables; name one of those</source>
        <translation>sie verweist nur auf andere Tabellen; nennen Sie eine von diesen</translation>
    </message>
    <message>
        <source>there is no Shapefile in this archive</source>
        <translation type="vanished">in diesem Archiv ist kein Shapefile</translation>
    </message>
    <message>
        <source>its format is none of those that are known (%1)</source>
        <translation>sein Format ist keines der bekannten (%1)</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>Of the columns of coordinates in “%1” only one is named; give both xField and yField, or neither.</source>
        <translation>Von den Koordinatenspalten in „%1“ ist nur eine genannt; geben Sie xField und yField an oder keine von beiden.</translation>
    </message>
    <message>
        <source>The table “%1” has no column “%2”; it has: %3.</source>
        <translation>Die Tabelle „%1“ hat keine Spalte „%2“; sie hat: %3.</translation>
    </message>
    <message>
        <source>it is longer than 1 MB, too long to describe a table; name a MapInfo table&apos;s .tab file</source>
        <translation>sie ist länger als 1 MB und damit zu lang, um eine Tabelle zu beschreiben; nennen Sie die .tab-Datei einer MapInfo-Tabelle</translation>
    </message>
    <message>
        <source>its blocks repeat themselves or each other without end; explode them</source>
        <translation>ihre Blöcke wiederholen sich selbst oder einander ohne Ende; lösen Sie sie auf</translation>
    </message>
    <message>
        <source>Band %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>it holds a table or a coordinate system that leads to another file, which is not opened; remove it</source>
        <translation>sie enthält eine Tabelle oder ein Koordinatensystem, das zu einer anderen Datei führt, die nicht geöffnet wird; entfernen Sie es</translation>
    </message>
    <message>
        <source>its coordinate system names a file by a path, which is not opened; give it another coordinate system</source>
        <translation>ihr Koordinatensystem nennt eine Datei mit ihrem Pfad, die nicht geöffnet wird; geben Sie ihr ein anderes Koordinatensystem</translation>
    </message>
    <message>
        <source>%1 beside it is no file of its own; remove that</source>
        <translation>%1 daneben ist keine eigene Datei; entfernen Sie das</translation>
    </message>
    <message>
        <source>a change of it was not brought to its end, and lies beside it in %1; open it once in the program that changed it, and close it there</source>
        <translation>eine Änderung daran wurde nicht zu Ende gebracht und liegt daneben in %1; öffnen Sie die Datei einmal in dem Programm, das sie geändert hat, und schließen Sie sie dort</translation>
    </message>
    <message>
        <source>it holds far more than an archive of its size should; unpack it, and name the file in it</source>
        <translation>es enthält weit mehr, als ein Archiv seiner Größe sollte; entpacken Sie es und nennen Sie die Datei darin</translation>
    </message>
    <message>
        <source>The connection “%1” has no table with geometries that its user may read.</source>
        <translation>Die Verbindung „%1“ hat keine Tabelle mit Geometrien, die ihr Benutzer lesen darf.</translation>
    </message>
    <message>
        <source>another program is just writing it; try again when that is done</source>
        <translation>ein anderes Programm schreibt sie gerade; versuchen Sie es danach noch einmal</translation>
    </message>
    <message>
        <source>there is no KML in this archive that can be read; unpack it, and name the file in it</source>
        <translation>in diesem Archiv ist keine KML-Datei, die gelesen werden kann; entpacken Sie es, und nennen Sie die Datei darin</translation>
    </message>
    <message>
        <source>The table “%1” of the connection “%2” can&apos;t be read: %3.</source>
        <translation>Die Tabelle „%1“ der Verbindung „%2“ kann nicht gelesen werden: %3.</translation>
    </message>
    <message>
        <source>it begins as a file of the format %1 does, and is not whole, or damaged; fetch it again</source>
        <translation>sie beginnt wie eine Datei im Format %1, ist aber unvollständig oder beschädigt; holen Sie sie noch einmal</translation>
    </message>
    <message>
        <source>the index that belongs to it, “%1”, is missing; put it beside it</source>
        <translation>der Index, der zu ihr gehört, „%1“, fehlt; legen Sie ihn daneben</translation>
    </message>
    <message>
        <source>The coordinate system that the file “%1” names is not known (%2); its coordinates are taken as longitudes and latitudes. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation type="vanished">Das Koordinatensystem, das die Datei „%1“ nennt, ist nicht bekannt (%2); ihre Koordinaten werden als Längen und Breiten genommen. Geben Sie das System im Feld „coordinateSystem“ der Quelle an.</translation>
    </message>
    <message>
        <source>Rows of the file “%1” whose coordinates can&apos;t be read, such as “%2”, have no place on the map: %3 in all. Mend them in the file.</source>
        <translation>Zeilen der Datei „%1“, deren Koordinaten nicht zu lesen sind, wie „%2“, haben keinen Platz auf der Karte: insgesamt %3. Berichtigen Sie sie in der Datei.</translation>
    </message>
    <message>
        <source>there is no Shapefile in this archive that is whole, with its parts .shp, .shx and .dbf</source>
        <translation type="vanished">in diesem Archiv ist kein Shapefile, das vollständig ist, mit seinen Teilen .shp, .shx und .dbf</translation>
    </message>
    <message>
        <source>its texts are UTF-16; save it as UTF-8</source>
        <translation type="vanished">ihre Texte sind UTF-16; speichern Sie sie als UTF-8</translation>
    </message>
    <message>
        <source>there is no Shapefile in this archive that is whole, with its parts .shp and .shx</source>
        <translation>in diesem Archiv ist kein Shapefile, das vollständig ist, mit seinen Teilen .shp und .shx</translation>
    </message>
</context>
<context>
    <name>DataSurvey</name>
    <message>
        <source>Some features (%1) lie far from all others, perhaps by wrong coordinates: they are drawn, but the map does not reach so far.</source>
        <translation>Einige Objekte (%1) liegen weit entfernt von allen anderen, vielleicht wegen falscher Koordinaten: Sie werden gezeichnet, aber die Karte reicht nicht so weit.</translation>
    </message>
</context>
<context>
    <name>DialogAnswers</name>
    <message>
        <source>the message box &quot;%1&quot; (&quot;%2&quot;)</source>
        <translation>das Meldungsfenster „%1“ („%2“)</translation>
    </message>
    <message>
        <source>the dialog &quot;%1&quot; (%2)</source>
        <translation>der Dialog „%1“ (%2)</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;</source>
        <translation>%1 nimmt „%2“ nicht an</translation>
    </message>
    <message>
        <source>it can&apos;t be accepted like this</source>
        <translation>so kann er nicht bestätigt werden</translation>
    </message>
    <message>
        <source>; the next answer is for %1</source>
        <translation type="vanished">; die nächste Antwort ist für %1</translation>
    </message>
    <message>
        <source>no dialog has taken the answer for %1</source>
        <translation type="vanished">kein Dialog hat die Antwort für %1 angenommen</translation>
    </message>
    <message>
        <source>a dialog as a whole</source>
        <translation type="vanished">einen Dialog als Ganzes</translation>
    </message>
    <message>
        <source>nobody answers it; put answer=WIDGET:VALUE, accept or cancel before the command</source>
        <translation>niemand beantwortet ihn; setzen Sie answer=WIDGET:VALUE, accept oder cancel vor den Befehl</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>eine Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>on or off</source>
        <translation>on oder off</translation>
    </message>
    <message>
        <source>there is no file &quot;%1&quot;; check the name and the folder</source>
        <translation>es gibt keine Datei „%1“; prüfen Sie Namen und Ordner</translation>
    </message>
    <message>
        <source>%1 does not take &quot;%2&quot;: it is switched off in the dialog as it is now</source>
        <translation>%1 nimmt „%2“ nicht: Es ist im Dialog, wie er jetzt ist, ausgeschaltet</translation>
    </message>
    <message>
        <source>%1; it takes %2</source>
        <translation>%1; möglich ist %2</translation>
    </message>
    <message>
        <source>the answer for %1</source>
        <translation>die Antwort für %1</translation>
    </message>
    <message>
        <source>; next is %1</source>
        <translation>; als Nächstes kommt %1</translation>
    </message>
    <message>
        <source>no dialog has taken %1</source>
        <translation>kein Dialog hat dies genommen: %1</translation>
    </message>
</context>
<context>
    <name>DocumentFiles</name>
    <message>
        <source>Map documents (*.kdx)</source>
        <translation>Kartendokumente (*.kdx)</translation>
    </message>
    <message>
        <source>Plotvane</source>
        <translation>Plotvane</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Änderungen an %1 speichern?</translation>
    </message>
    <message>
        <source>Without saving, they are lost.</source>
        <translation>Ohne Speichern gehen sie verloren.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>The document was not opened.</source>
        <translation>Das Dokument wurde nicht geöffnet.</translation>
    </message>
    <message>
        <source>… and %1 more.</source>
        <translation>… und %1 weitere.</translation>
    </message>
    <message>
        <source>The document was opened, but not all of it was read.</source>
        <translation>Das Dokument wurde geöffnet, aber nicht vollständig gelesen.</translation>
    </message>
    <message>
        <source>The document was not saved.</source>
        <translation>Das Dokument wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>No recent files</source>
        <translation>Keine zuletzt geöffneten Dateien</translation>
    </message>
    <message>
        <source>The page will not be whole.</source>
        <translation>Die Seite wird nicht vollständig.</translation>
    </message>
    <message>
        <source>Export it all the same?</source>
        <translation>Trotzdem exportieren?</translation>
    </message>
    <message>
        <source>Open %1 to read it? Changes are then saved under another name.</source>
        <translation>%1 zum Lesen öffnen? Änderungen werden dann unter einem anderen Namen gespeichert.</translation>
    </message>
    <message>
        <source>%1 exists already.</source>
        <translation>%1 existiert bereits.</translation>
    </message>
    <message>
        <source>Replace it?</source>
        <translation>Ersetzen?</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was read.</source>
        <translation>%1 wurde von einem anderen Programm geändert, seit es gelesen wurde.</translation>
    </message>
    <message>
        <source>Replace what it holds now?</source>
        <translation>Ersetzen, was jetzt darin steht?</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>Changed by another program: %1.</source>
        <translation>Von einem anderen Programm geändert: %1.</translation>
    </message>
    <message>
        <source>Removed by another program: %1.</source>
        <translation>Von einem anderen Programm entfernt: %1.</translation>
    </message>
    <message>
        <source>%1 holds changes that were not saved.</source>
        <translation>%1 enthält Änderungen, die nicht gespeichert sind.</translation>
    </message>
    <message>
        <source>Drop them and read the file?</source>
        <translation>Verwerfen und die Datei lesen?</translation>
    </message>
    <message>
        <source>Not all data could be read.</source>
        <translation>Nicht alle Daten konnten gelesen werden.</translation>
    </message>
    <message>
        <source>The map was not made.</source>
        <translation>Die Karte wurde nicht gemacht.</translation>
    </message>
    <message>
        <source>The map was made, but not of all data.</source>
        <translation type="vanished">Die Karte wurde gemacht, aber nicht aus allen Daten.</translation>
    </message>
    <message>
        <source>The map was made. Some of its data need a look.</source>
        <translation>Die Karte wurde gemacht. Manche ihrer Daten brauchen einen Blick.</translation>
    </message>
</context>
<context>
    <name>DocumentLock</name>
    <message>
        <source>somebody</source>
        <translation>jemandem</translation>
    </message>
    <message>
        <source>%1 is open already: by %2 on %3, since %4. If that is over, delete %5.</source>
        <translation>%1 ist bereits geöffnet: von %2 auf %3, seit %4. Wenn das vorbei ist, löschen Sie %5.</translation>
    </message>
    <message>
        <source>an unknown machine</source>
        <translation>einem unbekannten Rechner</translation>
    </message>
</context>
<context>
    <name>DocumentReport</name>
    <message>
        <source>marker</source>
        <translation>Punktsymbol</translation>
    </message>
    <message>
        <source>line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>polygon</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>data frame</source>
        <translation>Datenrahmen</translation>
    </message>
    <message>
        <source>map surround frame</source>
        <translation>Randangabe</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>features</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>raster</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>No page</source>
        <translation>Keine Seite</translation>
    </message>
    <message>
        <source>Page: %1, %2, %3 × %4 cm</source>
        <translation>Seite: %1, %2, %3 × %4 cm</translation>
    </message>
    <message>
        <source>handle</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>xmin  ymin  xmax  ymax (cm)</source>
        <translation>xmin  ymin  xmax  ymax (cm)</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source> (selected)</source>
        <translation> (ausgewählt)</translation>
    </message>
    <message>
        <source> (locked)</source>
        <translation> (gesperrt)</translation>
    </message>
    <message>
        <source>Elements: %1</source>
        <translation>Elemente: %1</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>sichtbar</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>ausgeblendet</translation>
    </message>
    <message>
        <source>Map: %1, scale 1:%2, extent %3</source>
        <translation>Karte: %1, Maßstab 1:%2, Ausdehnung %3</translation>
    </message>
    <message>
        <source> (focus)</source>
        <translation> (Fokus)</translation>
    </message>
    <message>
        <source>Map: %1, no layers</source>
        <translation>Karte: %1, ohne Ebenen</translation>
    </message>
    <message>
        <source>Series: %1 pages</source>
        <translation>Serie: %1 Seiten</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>series</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>outside</source>
        <translation>außerhalb</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>Dateien: %1</translation>
    </message>
    <message>
        <source>connection %1, table %2</source>
        <translation>Verbindung %1, Tabelle %2</translation>
    </message>
    <message>
        <source>%1 of %2 labels placed</source>
        <translation>%1 von %2 Beschriftungen platziert</translation>
    </message>
</context>
<context>
    <name>DocumentSession</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
</context>
<context>
    <name>DocumentSettings</name>
    <message>
        <source>is no tag of a language; write one as in “en” or “de-CH”</source>
        <translation>ist kein Sprachkürzel; schreiben Sie eines wie „en“ oder „de-CH“</translation>
    </message>
</context>
<context>
    <name>DocumentSources</name>
    <message>
        <source>Layer “%1”: %2</source>
        <translation>Ebene „%1“: %2</translation>
    </message>
</context>
<context>
    <name>DrawingProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Editable</name>
    <message>
        <source>can&apos;t be changed</source>
        <translation>lässt sich nicht ändern</translation>
    </message>
    <message>
        <source>the page</source>
        <translation>die Seite</translation>
    </message>
    <message>
        <source>there is no field to set</source>
        <translation>es gibt kein Feld, das zu setzen wäre</translation>
    </message>
    <message>
        <source>%1 elements</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>Set %1 of %2</source>
        <translation>%1 von %2 ändern</translation>
    </message>
    <message>
        <source>the document</source>
        <translation>das Dokument</translation>
    </message>
    <message>
        <source>the series</source>
        <translation>der Serie</translation>
    </message>
    <message>
        <source>“%1” is a thing of its own, written without “document/”: %2</source>
        <translation>„%1“ ist ein Ding für sich und wird ohne „document/“ geschrieben: %2</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
</context>
<context>
    <name>ElementArchive</name>
    <message>
        <source>must be xmin, ymin, xmax, ymax, with xmin ≤ xmax and ymin ≤ ymax</source>
        <translation type="vanished">muss xmin, ymin, xmax, ymax enthalten, mit xmin ≤ xmax und ymin ≤ ymax</translation>
    </message>
    <message>
        <source>needs at least %1 points</source>
        <translation type="vanished">braucht mindestens %1 Punkte</translation>
    </message>
    <message>
        <source>holds a coordinate beyond %1</source>
        <translation type="vanished">enthält eine Koordinate jenseits von %1</translation>
    </message>
    <message>
        <source>needs at least one ring</source>
        <translation type="vanished">braucht mindestens einen Ring</translation>
    </message>
    <message>
        <source>groups are nested more than %1 deep</source>
        <translation type="vanished">Gruppen sind tiefer als %1 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>is no map of the document</source>
        <translation type="vanished">ist keine Karte des Dokuments</translation>
    </message>
    <message>
        <source>another data frame shows this map already</source>
        <translation type="vanished">ein anderer Datenrahmen zeigt diese Karte bereits</translation>
    </message>
    <message>
        <source>%1 is another element&apos;s handle already</source>
        <translation type="vanished">%1 ist bereits die Kennung eines anderen Elements</translation>
    </message>
    <message>
        <source>an element of a kind that can&apos;t be stored</source>
        <translation type="vanished">ein Element einer Art, die sich nicht speichern lässt</translation>
    </message>
    <message>
        <source>“%1” is not one of %2</source>
        <translation type="vanished">„%1“ ist keiner der Werte %2</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be part of a group</source>
        <translation type="vanished">„%1“ kann nicht Teil einer Gruppe sein</translation>
    </message>
    <message>
        <source>a part of a frame of a kind that can&apos;t be stored</source>
        <translation type="vanished">ein Rahmenteil einer Art, die sich nicht speichern lässt</translation>
    </message>
    <message>
        <source>“%1” is not a paper form; “A4” and “Custom” are</source>
        <translation type="vanished">„%1“ ist kein Papierformat; „A4“ und „Custom“ sind welche</translation>
    </message>
    <message>
        <source>needs at least one element</source>
        <translation type="vanished">braucht mindestens ein Element</translation>
    </message>
</context>
<context>
    <name>ElementClip</name>
    <message>
        <source>is not “%1”, so these are no elements</source>
        <translation>ist nicht „%1“, also sind dies keine Elemente</translation>
    </message>
    <message>
        <source>the elements were copied by a newer version of Plotvane, as version %1</source>
        <translation>die Elemente wurden von einer neueren Version von Plotvane kopiert, als Version %1</translation>
    </message>
    <message>
        <source>The elements take %1 MB, and the clipboard takes %2; copy fewer of them, or link their pictures.</source>
        <translation>Die Elemente brauchen %1 MB, und die Zwischenablage nimmt %2; kopieren Sie weniger, oder verknüpfen Sie ihre Bilder.</translation>
    </message>
    <message>
        <source>The elements can&apos;t be copied: %1.</source>
        <translation>Die Elemente können nicht kopiert werden: %1.</translation>
    </message>
    <message>
        <source>The elements on the clipboard can&apos;t be read: %1; copy them anew.</source>
        <translation>Die Elemente in der Zwischenablage können nicht gelesen werden: %1; kopieren Sie sie neu.</translation>
    </message>
</context>
<context>
    <name>ElementFields</name>
    <message>
        <source>%1 is another element&apos;s handle already</source>
        <translation>%1 ist bereits die Kennung eines anderen Elements</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be part of a group</source>
        <translation>„%1“ kann nicht Teil einer Gruppe sein</translation>
    </message>
    <message>
        <source>data frames and surrounds can&apos;t lie on a map, only on the page</source>
        <translation>Datenrahmen und Randangaben können nicht auf einer Karte liegen, nur auf der Seite</translation>
    </message>
    <message>
        <source>an element of a kind that can&apos;t be stored</source>
        <translation>ein Element einer Art, die sich nicht speichern lässt</translation>
    </message>
</context>
<context>
    <name>ElementModel</name>
    <message>
        <source>Hidden; click, or press Space, to show it</source>
        <translation>Ausgeblendet; Klicken oder die Leertaste blendet es ein</translation>
    </message>
    <message>
        <source>Click, or press Space, to hide it</source>
        <translation>Klicken oder die Leertaste blendet es aus</translation>
    </message>
    <message>
        <source>Locked; click, or press Shift+Space, to unlock it</source>
        <translation>Gesperrt; Klicken oder Umschalt+Leertaste entsperrt es</translation>
    </message>
    <message>
        <source>Click, or press Shift+Space, to lock it: the mouse then leaves it alone</source>
        <translation>Klicken oder Umschalt+Leertaste sperrt es: Die Maus lässt es dann in Ruhe</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Restack the selected elements</source>
        <translation>Die Reihenfolge der ausgewählten Elemente ändern</translation>
    </message>
</context>
<context>
    <name>ElementSettings</name>
    <message>
        <source>needs at least %1 points</source>
        <translation type="vanished">braucht mindestens %1 Punkte</translation>
    </message>
    <message>
        <source>holds a coordinate beyond %1</source>
        <translation type="vanished">enthält eine Koordinate jenseits von %1</translation>
    </message>
    <message>
        <source>needs at least one ring</source>
        <translation type="vanished">braucht mindestens einen Ring</translation>
    </message>
    <message>
        <source>must be xmin, ymin, xmax, ymax, with xmin ≤ xmax and ymin ≤ ymax</source>
        <translation>muss xmin, ymin, xmax, ymax enthalten, mit xmin ≤ xmax und ymin ≤ ymax</translation>
    </message>
    <message>
        <source>groups are nested more than %1 deep</source>
        <translation>Gruppen liegen mehr als %1 tief ineinander</translation>
    </message>
    <message>
        <source>needs at least one element</source>
        <translation type="vanished">braucht mindestens ein Element</translation>
    </message>
    <message>
        <source>another data frame shows this map already</source>
        <translation>ein anderer Datenrahmen zeigt diese Karte bereits</translation>
    </message>
    <message>
        <source>is no picture; it begins with “data:image/png;base64,”, or with jpeg, tiff, webp or svg+xml in place of png, and goes on with the file in base 64</source>
        <translation>ist kein Bild; es beginnt mit „data:image/png;base64,“ oder mit jpeg, tiff, webp oder svg+xml statt png und geht mit der Datei in Base64 weiter</translation>
    </message>
    <message>
        <source>%1 is no placeholder and stands as written; there are [%2].</source>
        <translation>%1 ist kein Platzhalter und steht da, wie es geschrieben ist; es gibt [%2].</translation>
    </message>
    <message>
        <source>is the map of this data frame; enter the number of another one</source>
        <translation>ist die Karte dieses Datenrahmens; geben Sie die Nummer einer anderen ein</translation>
    </message>
</context>
<context>
    <name>ExportArguments</name>
    <message>
        <source>The format, whatever the suffix: %1.</source>
        <translation>Das Format, gleich welche Endung: %1.</translation>
    </message>
    <message>
        <source>Pixels per inch of paper, 1 to %1; %2 if not given.</source>
        <translation>Pixel je Zoll Papier, 1 bis %1; ohne Angabe %2.</translation>
    </message>
    <message>
        <source>The image&apos;s width in pixels, in place of --dpi.</source>
        <translation>Die Breite des Bildes in Pixeln, anstelle von --dpi.</translation>
    </message>
    <message>
        <source>How the pixels are packed: %1.</source>
        <translation>Wie die Pixel gepackt werden: %1.</translation>
    </message>
    <message>
        <source>Of a JPEG or WebP, 1 to 100; %1 if not given.</source>
        <translation>Die eines JPEG oder WebP, 1 bis 100; ohne Angabe %1.</translation>
    </message>
    <message>
        <source>Leave out the page&apos;s background, in a PNG, TIFF or WebP.</source>
        <translation>Den Hintergrund der Seite weglassen, in einem PNG, TIFF oder WebP.</translation>
    </message>
    <message>
        <source>Cut the image to the elements of the page.</source>
        <translation>Das Bild auf die Elemente der Seite zuschneiden.</translation>
    </message>
    <message>
        <source>Tell where on the Earth the data frame of that name lies: in a TIFF itself, else by a world file beside the image.</source>
        <translation>Angeben, wo auf der Erde der Kartenrahmen dieses Namens liegt: in einem TIFF selbst, sonst durch eine World-Datei neben dem Bild.</translation>
    </message>
    <message>
        <source>export: --format takes one of %1, not &quot;%2&quot;.</source>
        <translation>export: --format nimmt eines von %1, nicht &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>export: %1: &quot;.%2&quot; names no image format; use one of %3, or pass --format tiff or another.</source>
        <translation>export: %1: &quot;.%2&quot; nennt kein Bildformat; verwenden Sie eines von %3, oder geben Sie --format tiff oder ein anderes an.</translation>
    </message>
    <message>
        <source>export: --%1 takes a whole number from 1 to %2, not &quot;%3&quot;.</source>
        <translation>export: --%1 nimmt eine ganze Zahl von 1 bis %2, nicht &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>export: give either --dpi or --width.</source>
        <translation>export: Geben Sie entweder --dpi oder --width an.</translation>
    </message>
    <message>
        <source>export: a %1 takes a --dpi of at most %2; its shapes are as fine at any.</source>
        <translation type="vanished">export: Ein %1 nimmt ein --dpi von höchstens %2; seine Formen sind bei jedem Wert gleich fein.</translation>
    </message>
    <message>
        <source>export: --%1 is for images; a %2 has none of it.</source>
        <translation type="vanished">export: --%1 ist für Bilder; bei %2 hat es keine Bedeutung.</translation>
    </message>
    <message>
        <source>export: --transparent needs a PNG, TIFF or WebP; a %1 can&apos;t be transparent.</source>
        <translation type="vanished">export: --transparent braucht ein PNG, TIFF oder WebP; ein %1 kann nicht durchsichtig sein.</translation>
    </message>
    <message>
        <source>export: --quality is for a JPEG or a WebP that is not lossless.</source>
        <translation>export: --quality ist für ein JPEG oder ein WebP, das nicht verlustfrei ist.</translation>
    </message>
    <message>
        <source>export: a %1 is packed in one way only; leave out --compress.</source>
        <translation type="vanished">export: Ein %1 wird nur auf eine Art gepackt; lassen Sie --compress weg.</translation>
    </message>
    <message>
        <source>export: of a %1, --compress takes one of %2, not &quot;%3&quot;.</source>
        <translation type="vanished">export: Bei %1 nimmt --compress eines von %2, nicht &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>What texts are in a PDF or SVG: &quot;text&quot;, or &quot;shapes&quot;, the outlines of letters that need no fonts; &quot;text&quot; if not given.</source>
        <translation>Was Texte in PDF und SVG sind: &quot;text&quot; oder &quot;shapes&quot;, Umrisse der Buchstaben, die keine Schriften brauchen; ohne Angabe &quot;text&quot;.</translation>
    </message>
    <message>
        <source>export: --text takes &quot;text&quot; or &quot;shapes&quot;, not &quot;%1&quot;.</source>
        <translation>export: --text nimmt &quot;text&quot; oder &quot;shapes&quot;, nicht &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>export: --text is for a PDF or SVG.</source>
        <translation>export: --text ist für PDF und SVG.</translation>
    </message>
    <message>
        <source>Of a PDF: draw what lies over the page&apos;s edges so many millimetres beyond them.</source>
        <translation>Bei PDF: was über die Ränder der Seite reicht, so viele Millimeter darüber hinaus zeichnen.</translation>
    </message>
    <message>
        <source>Of a PDF: mark where the paper is to be cut.</source>
        <translation>Bei PDF: bezeichnen, wo das Papier zu schneiden ist.</translation>
    </message>
    <message>
        <source>Of a PDF: the ICC profile of the device that it is meant for, in place of sRGB.</source>
        <translation>Bei PDF: das ICC-Profil des Geräts, für das es bestimmt ist, statt sRGB.</translation>
    </message>
    <message>
        <source>export: --bleed takes millimetres from 0 to %1, not &quot;%2&quot;.</source>
        <translation>export: --bleed nimmt Millimeter von 0 bis %1, nicht „%2“.</translation>
    </message>
    <message>
        <source>export: --%1 is for a PDF alone; leave it out, or write a .pdf.</source>
        <translation>export: --%1 gibt es nur bei PDF; lassen Sie es weg oder schreiben Sie ein .pdf.</translation>
    </message>
    <message>
        <source>export: %1 takes a --dpi of at most %2; its shapes are as fine at any.</source>
        <translation>export: %1 nimmt ein --dpi von höchstens %2; die Formen sind bei jedem Wert gleich fein.</translation>
    </message>
    <message>
        <source>export: --%1 is for images; it means nothing to %2.</source>
        <translation>export: --%1 ist für Bilder; bei %2 hat es keine Bedeutung.</translation>
    </message>
    <message>
        <source>export: --transparent needs a PNG, TIFF or WebP; %1 can&apos;t be transparent.</source>
        <translation>export: --transparent braucht ein PNG, TIFF oder WebP; %1 kann nicht durchsichtig sein.</translation>
    </message>
    <message>
        <source>export: %1 is packed in one way only; leave out --compress.</source>
        <translation>export: %1 wird nur auf eine Art gepackt; lassen Sie --compress weg.</translation>
    </message>
    <message>
        <source>export: of %1, --compress takes one of %2, not &quot;%3&quot;.</source>
        <translation>export: Bei %1 nimmt --compress eines von %2, nicht &quot;%3&quot;.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export as %1</source>
        <translation>Als %1 exportieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="vanished">Export</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Name the file to write.</source>
        <translation>Nennen Sie die Datei, die geschrieben werden soll.</translation>
    </message>
    <message>
        <source>%1 exists already.</source>
        <translation>%1 existiert bereits.</translation>
    </message>
    <message>
        <source>Replace it?</source>
        <translation>Ersetzen?</translation>
    </message>
    <message>
        <source>Plotvane</source>
        <translation>Plotvane</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>E&amp;xportieren</translation>
    </message>
</context>
<context>
    <name>ExportSubcommand</name>
    <message>
        <source>The .kdx document.</source>
        <translation>Das .kdx-Dokument.</translation>
    </message>
    <message>
        <source>Pixels per inch of paper, 1 to %1; %2 if not given.</source>
        <translation type="vanished">Pixel je Zoll Papier, 1 bis %1; %2, wenn nicht angegeben.</translation>
    </message>
    <message>
        <source>Print neither the path nor the progress.</source>
        <translation>Weder den Pfad noch den Fortschritt ausgeben.</translation>
    </message>
    <message>
        <source>Draw the page also where a data source can&apos;t be read; its layer stays empty.</source>
        <translation type="vanished">Die Seite auch zeichnen, wenn eine Datenquelle nicht gelesen werden kann; ihr Layer bleibt leer.</translation>
    </message>
    <message>
        <source>export: --dpi takes a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation type="vanished">export: --dpi erwartet eine ganze Zahl von 1 bis %1, nicht „%2“.</translation>
    </message>
    <message>
        <source>%1: this GDAL can&apos;t write %2; choose another format, or install a GDAL that can.</source>
        <translation type="vanished">%1: Dieses GDAL kann %2 nicht schreiben; wählen Sie ein anderes Format, oder installieren Sie ein GDAL, das es kann.</translation>
    </message>
    <message>
        <source>%1: data sources could not be read, so the page would not be whole; mend them, or pass --allow-missing.</source>
        <translation>%1: Datenquellen konnten nicht gelesen werden, die Seite wäre also nicht vollständig; reparieren Sie sie, oder geben Sie --allow-missing an.</translation>
    </message>
    <message>
        <source>%1: the document has no page to draw.</source>
        <translation type="vanished">%1: Das Dokument hat keine Seite zum Zeichnen.</translation>
    </message>
    <message>
        <source>%1 was not written: interrupted.</source>
        <translation type="vanished">%1 wurde nicht geschrieben: unterbrochen.</translation>
    </message>
    <message>
        <source>The file to write; its suffix names the format: %1. Without one it is a TIFF.</source>
        <translation>Die zu schreibende Datei; ihre Endung nennt das Format: %1. Ohne Endung wird es ein TIFF.</translation>
    </message>
    <message>
        <source>The format, whatever the suffix: %1.</source>
        <translation type="vanished">Das Format, gleich welche Endung: %1.</translation>
    </message>
    <message>
        <source>export: --format takes one of %1, not &quot;%2&quot;.</source>
        <translation type="vanished">export: --format nimmt eines von %1, nicht „%2“.</translation>
    </message>
    <message>
        <source>export: %1: &quot;.%2&quot; names no image format; use one of %3, or pass --format tiff or another.</source>
        <translation type="vanished">export: %1: „.%2“ nennt kein Bildformat; nehmen Sie eine der Endungen %3, oder geben Sie --format tiff oder ein anderes an.</translation>
    </message>
    <message>
        <source>Draw the page also where a data source or a picture can&apos;t be read, or not to its end.</source>
        <translation>Die Seite auch dann zeichnen, wenn eine Datenquelle oder ein Bild nicht oder nicht bis zum Ende gelesen werden kann.</translation>
    </message>
    <message>
        <source>%1: the document has no page to draw; give it one, such as &quot;page&quot;: {&quot;form&quot;: &quot;A4&quot;}.</source>
        <translation type="vanished">%1: Das Dokument hat keine Seite, die gezeichnet werden könnte; geben Sie ihm eine, etwa &quot;page&quot;: {&quot;form&quot;: &quot;A4&quot;}.</translation>
    </message>
    <message>
        <source>%1 was not written: %2.</source>
        <translation type="vanished">%1 wurde nicht geschrieben: %2.</translation>
    </message>
    <message>
        <source>export: a PDF takes a --dpi of at most %1; its shapes are as fine at any.</source>
        <translation type="vanished">export: Eine PDF nimmt ein --dpi von höchstens %1; ihre Formen sind bei jedem gleich fein.</translation>
    </message>
</context>
<context>
    <name>FeatureEvaluator</name>
    <message>
        <source>The size “%1” of %2 is not understood, so symbols keep their own: %3.</source>
        <translation>Die Größe „%1“ für %2 wird nicht verstanden, daher behalten Symbole ihre eigene: %3.</translation>
    </message>
    <message>
        <source>The colour “%1” of %2 is not understood, so symbols keep their own: %3.</source>
        <translation>Die Farbe „%1“ für %2 wird nicht verstanden, daher behalten Symbole ihre eigene: %3.</translation>
    </message>
    <message>
        <source>The angle “%1” of %2 is not understood, so symbols keep their own: %3.</source>
        <translation>Der Winkel „%1“ für %2 wird nicht verstanden, daher behalten Symbole ihren eigenen: %3.</translation>
    </message>
    <message>
        <source>The filter “%1” of rule %2 of %3 is not understood, so that the rule fits nothing: %4.</source>
        <translation>Der Filter „%1“ von Regel %2 für %3 wird nicht verstanden, so dass die Regel auf nichts passt: %4.</translation>
    </message>
</context>
<context>
    <name>FeatureReader</name>
    <message>
        <source>the file “%1”</source>
        <translation>Datei „%1“</translation>
    </message>
    <message>
        <source>layer “%2” of the file “%1”</source>
        <translation>Ebene „%2“ der Datei „%1“</translation>
    </message>
    <message>
        <source>There is no field “%1” in %2; it has: %3.</source>
        <translation>Es gibt kein Feld „%1“ in %2; vorhanden sind: %3.</translation>
    </message>
    <message>
        <source>The coordinate system of %1 %2.</source>
        <translation>Koordinatensystem von %1: %2.</translation>
    </message>
    <message>
        <source>No coordinate system is known for %1; its coordinates are taken as those of the map. Give one in the source&apos;s field “coordinateSystem”.</source>
        <translation type="vanished">Für %1 ist kein Koordinatensystem bekannt; die Koordinaten werden als solche der Karte genommen. Geben Sie eines im Feld „coordinateSystem“ der Quelle an.</translation>
    </message>
    <message>
        <source>The coordinates of %1 can&apos;t be projected to the map&apos;s coordinate system: %2.</source>
        <translation>Die Koordinaten von %1 können nicht in das Koordinatensystem der Karte projiziert werden: %2.</translation>
    </message>
    <message>
        <source>Not all of %1 could be placed on the map: %2.</source>
        <translation>Nicht alles aus %1 konnte auf der Karte platziert werden: %2.</translation>
    </message>
    <message>
        <source>The filter “%1” of %2 is not understood: %3.</source>
        <translation>Der Filter „%1“ von %2 wird nicht verstanden: %3.</translation>
    </message>
    <message>
        <source>Not all of %1 could be read: %2.</source>
        <translation>%1 konnte nicht ganz gelesen werden: %2.</translation>
    </message>
    <message>
        <source>There is nothing to draw in %1: its rows have no geometry, and no columns of coordinates are known. Name such columns in “xField” and “yField”, or one of well-known text in “geometryField”, or join it as a table to a layer; it has: %2.</source>
        <translation>In %1 ist nichts zu zeichnen: Die Zeilen haben keine Geometrie, und Spalten mit Koordinaten sind nicht bekannt. Nennen Sie solche in „xField“ und „yField“ oder eine mit Well-known Text in „geometryField“, oder verknüpfen Sie die Tabelle mit einer Ebene; sie hat: %2.</translation>
    </message>
    <message>
        <source>Nothing of %1 lies where the map&apos;s coordinate system shows the globe, so that the layer is empty; give the map another coordinate system, or the source the one that it has in truth.</source>
        <translation type="vanished">Nichts von %1 liegt dort, wo das Koordinatensystem der Karte den Globus zeigt, sodass die Ebene leer ist; geben Sie der Karte ein anderes Koordinatensystem, oder der Quelle das, das sie in Wahrheit hat.</translation>
    </message>
    <message>
        <source>The globe can&apos;t be projected to the map&apos;s coordinate system: %1.</source>
        <translation type="vanished">Der Globus kann nicht in das Koordinatensystem der Karte projiziert werden: %1.</translation>
    </message>
    <message>
        <source>The reading of %1 was stopped.</source>
        <translation>Das Lesen von %1 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>the globe</source>
        <translation>der Globus</translation>
    </message>
    <message>
        <source>The coordinate system of %1 names a file by its path, which is not opened; give another one in the source&apos;s field “coordinateSystem”.</source>
        <translation type="vanished">Das Koordinatensystem von %1 nennt eine Datei mit ihrem Pfad, die nicht geöffnet wird; geben Sie im Feld „coordinateSystem“ der Quelle ein anderes an.</translation>
    </message>
    <message>
        <source>the table “%1” of the connection “%2”</source>
        <translation>die Tabelle „%1“ der Verbindung „%2“</translation>
    </message>
    <message>
        <source>The coordinate system of %1 can&apos;t be read: %2. Mend the file, or give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation>Das Koordinatensystem von %1 lässt sich nicht lesen: %2. Reparieren Sie die Datei, oder geben Sie das System im Feld „coordinateSystem“ der Quelle an.</translation>
    </message>
    <message>
        <source>To read of %1 only what a map shows, it was indexed in “%2”; that is done once, and again where the file changes.</source>
        <translation>Um von %1 nur das zu lesen, was eine Karte zeigt, wurde dafür in „%2“ ein Index angelegt; das geschieht einmal, und wieder, wenn sich die Datei ändert.</translation>
    </message>
    <message>
        <source>%1 is read whole, since it can&apos;t be indexed in “%2”: %3.</source>
        <translation>%1 wird ganz gelesen, da in „%2“ kein Index dafür angelegt werden kann: %3.</translation>
    </message>
    <message>
        <source>The coordinates of %1 can&apos;t be degrees, as those of its coordinate system are (GeoJSON that names none is in degrees); they are taken as those of the map. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation type="vanished">Die Koordinaten von %1 können keine Grad sein, wie es die ihres Koordinatensystems sind (GeoJSON, das keines nennt, ist in Grad); sie werden als die der Karte genommen. Geben Sie das System im Feld „coordinateSystem“ der Quelle an.</translation>
    </message>
    <message>
        <source>Nothing says how the texts of %1 are encoded; they are taken as Windows-1252. A file “%2” beside it with the name of the encoding would say so.</source>
        <translation type="vanished">Nichts sagt, wie die Texte von %1 kodiert sind; sie werden als Windows-1252 genommen. Eine Datei „%2“ daneben mit dem Namen der Kodierung würde es sagen.</translation>
    </message>
    <message>
        <source>Texts of %1 are not encoded as its format has it, so that � stands for letters; save it anew, as UTF-8 where there is a choice.</source>
        <translation>Texte von %1 sind nicht so kodiert, wie es das Format vorsieht, so dass � für Buchstaben steht; speichern Sie die Datei neu, wo es die Wahl gibt als UTF-8.</translation>
    </message>
    <message>
        <source>How the texts of %1 are encoded is not said, or not truly; they are taken as Windows-1252. A file beside the table, with its name and the suffix “.cpg”, would say so with the name of the encoding in it.</source>
        <translation>Wie die Texte von %1 kodiert sind, ist nicht oder falsch angegeben; sie werden als Windows-1252 gelesen. Eine Datei neben der Tabelle, mit deren Namen und der Endung „.cpg“, würde es mit dem Namen der Kodierung darin sagen.</translation>
    </message>
    <message>
        <source>The coordinate system that %1 names is not known (%2); its coordinates, which can&apos;t be degrees, are taken as those of the map. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation type="vanished">Das Koordinatensystem, das %1 nennt, ist nicht bekannt (%2); ihre Koordinaten, die keine Grad sein können, werden als die der Karte genommen. Geben Sie das System im Feld „coordinateSystem“ der Quelle an.</translation>
    </message>
    <message>
        <source>The coordinate system that %1 names is not known (%2); its coordinates are taken as longitudes and latitudes. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation type="vanished">Das Koordinatensystem, das %1 nennt, ist nicht bekannt (%2); ihre Koordinaten werden als Längen und Breiten genommen. Geben Sie das System im Feld „coordinateSystem“ der Quelle an.</translation>
    </message>
    <message>
        <source>The coordinates of %1 look like degrees, and its coordinate system counts in metres. If they are, give the system in the source&apos;s field “coordinateSystem”, such as EPSG:4326.</source>
        <translation type="vanished">Die Koordinaten von %1 sehen wie Grad aus, und ihr Koordinatensystem zählt in Metern. Wenn sie es sind, geben Sie das System im Feld „coordinateSystem“ der Quelle an, etwa EPSG:4326.</translation>
    </message>
    <message>
        <source>The table of %1, “%2”, is missing, so that its features have no attributes; put it beside the file.</source>
        <translation>Die Tabelle, die zu %1 gehört, „%2“, fehlt, sodass ihre Objekte keine Attribute haben; legen Sie sie neben die Datei.</translation>
    </message>
</context>
<context>
    <name>FeatureScan</name>
    <message>
        <source>%1: the filter “%2” is not understood: %3.</source>
        <translation>%1: Der Filter „%2“ wird nicht verstanden: %3.</translation>
    </message>
    <message>
        <source>Not all of %1 could be read: %2.</source>
        <translation>%1 konnte nicht ganz gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>FeatureTable</name>
    <message>
        <source>The condition “%1” is not understood: %2.</source>
        <translation>Die Bedingung „%1“ wird nicht verstanden: %2.</translation>
    </message>
    <message>
        <source>Not all of %1 could be read: %2.</source>
        <translation>%1 konnte nicht ganz gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>FieldText</name>
    <message>
        <source>line widths</source>
        <translation>Linienbreiten</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 Punkte</translation>
    </message>
</context>
<context>
    <name>FieldValues</name>
    <message>
        <source>There is no field “%1”; choose one of: %2.</source>
        <translation>Es gibt kein Feld „%1“; wählen Sie eines von: %2.</translation>
    </message>
    <message>
        <source>The layer&apos;s filter “%1” is not understood: %2; correct it first.</source>
        <translation>Der Filter „%1“ der Ebene wird nicht verstanden: %2; berichtigen Sie ihn zuerst.</translation>
    </message>
    <message>
        <source>The layer&apos;s values can&apos;t be read: %1.</source>
        <translation>Die Werte der Ebene können nicht gelesen werden: %1.</translation>
    </message>
</context>
<context>
    <name>Fields</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What the map is called.</source>
        <translation>Wie die Karte heißt.</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>Koordinatensystem</translation>
    </message>
    <message>
        <source>That of the map, as a code (“EPSG:8857”), WKT or a PROJ text.</source>
        <translation type="vanished">Das der Karte, als Code („EPSG:8857“), WKT oder PROJ-Text.</translation>
    </message>
    <message>
        <source>Extent</source>
        <translation>Ausdehnung</translation>
    </message>
    <message>
        <source>What the map shows: its left, lower, right and upper side.</source>
        <translation type="vanished">Was die Karte zeigt: ihre linke, untere, rechte und obere Seite.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>The layers of the map, the lowest first.</source>
        <translation>Die Ebenen der Karte, die unterste zuerst.</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>The sheet.</source>
        <translation>Das Blatt.</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Settings of the layout.</source>
        <translation>Einstellungen des Layouts.</translation>
    </message>
    <message>
        <source>Align to margins</source>
        <translation>Am Seitenrand ausrichten</translation>
    </message>
    <message>
        <source>Whether the alignment commands align to the page.</source>
        <translation type="vanished">Ob die Befehle zum Ausrichten an der Seite ausrichten.</translation>
    </message>
    <message>
        <source>Focus map</source>
        <translation>Aktive Karte</translation>
    </message>
    <message>
        <source>The number of the map that new surrounds follow.</source>
        <translation type="vanished">Die Nummer der Karte, der neue Randangaben folgen.</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>Elements that lie on the map, in map units.</source>
        <translation>Elemente, die auf der Karte liegen, in Karteneinheiten.</translation>
    </message>
    <message>
        <source>Relative paths</source>
        <translation>Relative Pfade</translation>
    </message>
    <message>
        <source>Whether files are named relative to the document.</source>
        <translation>Ob Dateien relativ zum Dokument angegeben werden.</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>The maps of the data frames.</source>
        <translation type="vanished">Die Karten der Datenrahmen.</translation>
    </message>
    <message>
        <source>Elements</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>What lies on the page, the lowest first.</source>
        <translation>Was auf der Seite liegt, das unterste zuerst.</translation>
    </message>
    <message>
        <source>What the element is called in lists and by the command line.</source>
        <translation>Wie das Element in Listen und auf der Befehlszeile heißt.</translation>
    </message>
    <message>
        <source>Handle</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>The number of the element, which no other one has.</source>
        <translation type="vanished">Die Nummer des Elements, die kein anderes hat.</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Punktsymbol</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppieren</translation>
    </message>
    <message>
        <source>Data frame</source>
        <translation>Datenrahmen</translation>
    </message>
    <message>
        <source>Map surround</source>
        <translation>Randangabe</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>What kind of element it is.</source>
        <translation>Welche Art von Element es ist.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>The vertices: x and y of the first, of the second, and so on.</source>
        <translation>Die Stützpunkte: x und y des ersten, des zweiten und so weiter.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>The point at which it stands, from the lower left corner.</source>
        <translation type="vanished">Der Punkt, an dem es steht, von der linken unteren Ecke aus.</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>How it is drawn; without a symbol it is not.</source>
        <translation>Wie es gezeichnet wird; ohne Symbol wird es nicht gezeichnet.</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Ringe</translation>
    </message>
    <message>
        <source>Closed lines that bound the area; one within another is a hole.</source>
        <translation>Geschlossene Linien, die die Fläche begrenzen; eine innerhalb einer anderen ist ein Loch.</translation>
    </message>
    <message>
        <source>Its left, lower, right and upper side, from the lower left corner.</source>
        <translation type="vanished">Die linke, untere, rechte und obere Seite, von der linken unteren Ecke aus.</translation>
    </message>
    <message>
        <source>What it says.</source>
        <translation>Was darin steht.</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>How far the text is turned counterclockwise about its position.</source>
        <translation>Wie weit der Text gegen den Uhrzeigersinn um seine Position gedreht ist.</translation>
    </message>
    <message>
        <source>How the letters look.</source>
        <translation>Wie die Schrift aussieht.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>The file of the picture (PNG, JPEG or SVG), relative to the document.</source>
        <translation type="vanished">Die Datei des Bildes (PNG, JPEG oder SVG), relativ zum Dokument.</translation>
    </message>
    <message>
        <source>Members</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>The elements of the group.</source>
        <translation type="vanished">Die Elemente der Gruppe.</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Whether the mouse leaves the data frame and its map alone.</source>
        <translation type="vanished">Ob die Maus den Datenrahmen und seine Karte in Ruhe lässt.</translation>
    </message>
    <message>
        <source>Grids</source>
        <translation>Gitternetze</translation>
    </message>
    <message>
        <source>Grids over the map.</source>
        <translation>Gitternetze über der Karte.</translation>
    </message>
    <message>
        <source>What explains the map: a legend, a scale bar, a scale text or a north arrow.</source>
        <translation>Was die Karte erläutert: eine Legende, eine Maßstabsleiste, eine Maßstabsangabe oder ein Nordpfeil.</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>How far it stands outside the frame; inside where it is negative.</source>
        <translation>Abstand vom Rahmen nach außen; ein negativer Wert liegt innen.</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Rundung</translation>
    </message>
    <message>
        <source>How round the corners are: 0 is square, 100 as round as they can be.</source>
        <translation type="vanished">Wie rund die Ecken sind: 0 ist eckig, 100 so rund wie möglich.</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>How it is filled.</source>
        <translation type="vanished">Wie die Fläche gefüllt ist.</translation>
    </message>
    <message>
        <source>How the border is drawn.</source>
        <translation type="vanished">Wie der Rand gezeichnet wird.</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>How far the shadow lies to the right and upwards.</source>
        <translation>Wie weit der Schatten nach rechts und nach oben versetzt ist.</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>The line around it.</source>
        <translation>Die Linie ringsum.</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>The area behind it.</source>
        <translation>Die Fläche dahinter.</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>The shadow that it throws.</source>
        <translation>Der Schatten, den es wirft.</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>The form of the paper, as in “A4”, or “Custom” for a size of its own.</source>
        <translation>Das Papierformat, etwa „A4“, oder „Custom“ für eine eigene Größe.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>The width of the sheet when it stands upright.</source>
        <translation>Die Breite des Blattes im Hochformat.</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>The height of the sheet when it stands upright.</source>
        <translation>Die Höhe des Blattes im Hochformat.</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Whether the sheet stands upright or lies.</source>
        <translation type="vanished">Ob das Blatt hoch oder quer liegt.</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>The file of the data, relative to the document.</source>
        <translation type="vanished">Die Datei der Daten, relativ zum Dokument.</translation>
    </message>
    <message>
        <source>Layer of the file</source>
        <translation>Ebene der Datei</translation>
    </message>
    <message>
        <source>Its name in the file; the first one where it is empty.</source>
        <translation>Ihr Name in der Datei; ist er leer, die erste Ebene.</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>A condition on the attributes, as in “population &gt; 1000000”.</source>
        <translation type="vanished">Eine Bedingung für die Attribute, etwa „population &gt; 1000000“.</translation>
    </message>
    <message>
        <source>Stands in for that of the file.</source>
        <translation type="vanished">Ersetzt das der Datei.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Where the data come from.</source>
        <translation>Woher die Daten kommen.</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>How features are drawn.</source>
        <translation>Wie Objekte gezeichnet werden.</translation>
    </message>
    <message>
        <source>What the layer is called.</source>
        <translation>Wie die Ebene heißt.</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Sichtbar</translation>
    </message>
    <message>
        <source>Whether the layer shows.</source>
        <translation>Ob die Ebene gezeigt wird.</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Texts at the features; without them, none are written.</source>
        <translation>Texte an den Objekten; fehlen sie, wird nichts beschriftet.</translation>
    </message>
    <message>
        <source>What kind of layer it is.</source>
        <translation>Welche Art von Ebene es ist.</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>Scale bar</source>
        <translation>Maßstabsleiste</translation>
    </message>
    <message>
        <source>Scale text</source>
        <translation>Maßstabsangabe</translation>
    </message>
    <message>
        <source>North arrow</source>
        <translation>Nordpfeil</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>The number of the map in the document; the first one is 0.</source>
        <translation type="vanished">Die Nummer der Karte im Dokument; die erste ist 0.</translation>
    </message>
    <message>
        <source>What explains the map.</source>
        <translation>Was die Karte erläutert.</translation>
    </message>
    <message>
        <source>Whether there are labels.</source>
        <translation>Ob es eine Beschriftung gibt.</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>The attribute whose value is the text.</source>
        <translation>Das Attribut, dessen Wert der Text ist.</translation>
    </message>
    <message>
        <source>Attribute of the priority</source>
        <translation>Attribut für die Priorität</translation>
    </message>
    <message>
        <source>Features with a higher number in it are labelled first.</source>
        <translation type="vanished">Objekte mit einer höheren Zahl darin werden zuerst beschriftet.</translation>
    </message>
    <message>
        <source>What is kept free around a label.</source>
        <translation>Was um eine Beschriftung herum frei bleibt.</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>Klassen</translation>
    </message>
    <message>
        <source>Letters of their own for features of a higher priority.</source>
        <translation>Eigene Schrift für Objekte mit höherer Priorität.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Ab</translation>
    </message>
    <message>
        <source>The lowest priority of the class.</source>
        <translation type="vanished">Die niedrigste Priorität der Klasse.</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Labels of layers with a higher one are placed first.</source>
        <translation>Beschriftungen von Ebenen mit höherer Priorität werden zuerst platziert.</translation>
    </message>
    <message>
        <source>From scale</source>
        <translation>Ab Maßstab</translation>
    </message>
    <message>
        <source>It shows above this scale denominator; 0 is no limit.</source>
        <translation>Sichtbar oberhalb dieser Maßstabszahl; 0 heißt ohne Grenze.</translation>
    </message>
    <message>
        <source>To scale</source>
        <translation>Bis Maßstab</translation>
    </message>
    <message>
        <source>It shows below this scale denominator; 0 is no limit.</source>
        <translation>Sichtbar unterhalb dieser Maßstabszahl; 0 heißt ohne Grenze.</translation>
    </message>
    <message>
        <source>One symbol</source>
        <translation>Ein Symbol</translation>
    </message>
    <message>
        <source>A symbol for each value</source>
        <translation>Ein Symbol je Wert</translation>
    </message>
    <message>
        <source>Symbols by a number</source>
        <translation>Symbole nach einer Zahl</translation>
    </message>
    <message>
        <source>Features that are drawn alike.</source>
        <translation>Objekte, die gleich gezeichnet werden.</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>What a legend calls them.</source>
        <translation type="vanished">Wie eine Legende sie nennt.</translation>
    </message>
    <message>
        <source>How they are drawn.</source>
        <translation type="vanished">Wie sie gezeichnet werden.</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>The values of the attribute that belong to the class.</source>
        <translation type="vanished">Die Werte des Attributs, die zur Klasse gehören.</translation>
    </message>
    <message>
        <source>The lowest number of the class; it ends where the next one begins.</source>
        <translation type="vanished">Die niedrigste Zahl der Klasse; sie endet, wo die nächste beginnt.</translation>
    </message>
    <message>
        <source>Symbol of the others</source>
        <translation>Symbol der übrigen</translation>
    </message>
    <message>
        <source>How features are drawn that are in no class; without a symbol they are not.</source>
        <translation>Wie Objekte gezeichnet werden, die in keiner Klasse sind; ohne Symbol werden sie nicht gezeichnet.</translation>
    </message>
    <message>
        <source>Label of the others</source>
        <translation>Beschriftung der übrigen</translation>
    </message>
    <message>
        <source>What a legend calls features that are in no class.</source>
        <translation>Wie eine Legende Objekte nennt, die in keiner Klasse sind.</translation>
    </message>
    <message>
        <source>Whether all features are drawn alike, or by the value of an attribute.</source>
        <translation type="vanished">Ob alle Objekte gleich oder nach dem Wert eines Attributs gezeichnet werden.</translation>
    </message>
    <message>
        <source>The attribute whose value decides.</source>
        <translation>Das Attribut, dessen Wert entscheidet.</translation>
    </message>
    <message>
        <source>Alternating</source>
        <translation>Abwechselnd</translation>
    </message>
    <message>
        <source>Two rows</source>
        <translation>Zwei Reihen</translation>
    </message>
    <message>
        <source>Line with ticks</source>
        <translation>Linie mit Teilstrichen</translation>
    </message>
    <message>
        <source>Metres or kilometres</source>
        <translation>Meter oder Kilometer</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>Kilometres</source>
        <translation>Kilometer</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>Miles</source>
        <translation>Meilen</translation>
    </message>
    <message>
        <source>Nautical miles</source>
        <translation>Seemeilen</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>What stands above the legend; it may be empty.</source>
        <translation>Was über der Legende steht; der Titel darf leer sein.</translation>
    </message>
    <message>
        <source>Text of the title</source>
        <translation>Schrift des Titels</translation>
    </message>
    <message>
        <source>How the letters of the title look.</source>
        <translation type="vanished">Wie die Schrift des Titels aussieht.</translation>
    </message>
    <message>
        <source>Text of the headings</source>
        <translation>Schrift der Überschriften</translation>
    </message>
    <message>
        <source>How the name of a layer with several classes looks.</source>
        <translation type="vanished">Wie der Name eines Layers mit mehreren Klassen aussieht.</translation>
    </message>
    <message>
        <source>Text of the entries</source>
        <translation>Schrift der Einträge</translation>
    </message>
    <message>
        <source>How the letters of the entries look.</source>
        <translation type="vanished">Wie die Schrift der Einträge aussieht.</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Weggelassen</translation>
    </message>
    <message>
        <source>The names of layers that the legend does not list.</source>
        <translation>Die Namen der Ebenen, die die Legende nicht aufführt.</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>How the bar is drawn.</source>
        <translation type="vanished">Wie die Leiste gezeichnet wird.</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>What the bar counts.</source>
        <translation type="vanished">Was die Leiste zählt.</translation>
    </message>
    <message>
        <source>The height of the bar.</source>
        <translation>Die Höhe der Leiste.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>The colour of the outline and of every second part.</source>
        <translation type="vanished">Die Farbe des Umrisses und jedes zweiten Abschnitts.</translation>
    </message>
    <message>
        <source>Second colour</source>
        <translation>Zweite Farbe</translation>
    </message>
    <message>
        <source>The colour of the other parts.</source>
        <translation>Die Farbe der anderen Abschnitte.</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>The text, with %1 where the scale stands.</source>
        <translation type="vanished">Der Text, mit %1 an der Stelle des Maßstabs.</translation>
    </message>
    <message>
        <source>The marker that points north.</source>
        <translation type="vanished">Das Punktsymbol, das nach Norden zeigt.</translation>
    </message>
    <message>
        <source>True north</source>
        <translation>Geographisch Nord</translation>
    </message>
    <message>
        <source>Whether it points to true north at the map&apos;s centre, and not upwards.</source>
        <translation type="vanished">Ob der Pfeil in der Kartenmitte nach geographisch Nord zeigt statt nach oben.</translation>
    </message>
    <message>
        <source>What the grid is called.</source>
        <translation>Wie das Gitternetz heißt.</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>The distance of two lines; 0 chooses one for the map&apos;s scale.</source>
        <translation type="vanished">Der Abstand zweier Linien; 0 wählt einen passend zum Maßstab der Karte.</translation>
    </message>
    <message>
        <source>Whether the degrees stand beside the lines.</source>
        <translation type="vanished">Ob die Grade neben den Linien stehen.</translation>
    </message>
    <message>
        <source>How the meridians and parallels are drawn.</source>
        <translation type="vanished">Wie die Meridiane und Breitenkreise gezeichnet werden.</translation>
    </message>
    <message>
        <source>Text of the labels</source>
        <translation>Schrift der Beschriftung</translation>
    </message>
    <message>
        <source>How the letters of the labels look.</source>
        <translation type="vanished">Wie die Schrift der Beschriftung aussieht.</translation>
    </message>
    <message>
        <source>What the symbol is called.</source>
        <translation>Wie das Symbol heißt.</translation>
    </message>
    <message>
        <source>The symbol itself.</source>
        <translation type="vanished">Das Symbol selbst.</translation>
    </message>
    <message>
        <source>What the category is called; a slash puts it into another.</source>
        <translation type="vanished">Wie die Kategorie heißt; ein Schrägstrich ordnet sie einer anderen unter.</translation>
    </message>
    <message>
        <source>The symbols of the category.</source>
        <translation>Die Symbole der Kategorie.</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Groups of symbols, in the order in which they are shown.</source>
        <translation>Gruppen von Symbolen, in der Reihenfolge, in der sie gezeigt werden.</translation>
    </message>
    <message>
        <source>What kind of symbol it is.</source>
        <translation>Welche Art von Symbol es ist.</translation>
    </message>
    <message>
        <source>Picture marker</source>
        <translation>Punktsymbol aus Bild</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Durchgezogen</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Dashes</source>
        <translation>Gestrichelt</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Gepunktet</translation>
    </message>
    <message>
        <source>Dash and dot</source>
        <translation>Strich und Punkt</translation>
    </message>
    <message>
        <source>Dash and two dots</source>
        <translation>Strich und zwei Punkte</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Flach</translation>
    </message>
    <message>
        <source>Round</source>
        <translation>Rund</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Pointed</source>
        <translation>Spitz</translation>
    </message>
    <message>
        <source>Bevelled</source>
        <translation>Abgeschrägt</translation>
    </message>
    <message>
        <source>Horizontal lines</source>
        <translation>Waagerechte Linien</translation>
    </message>
    <message>
        <source>Vertical lines</source>
        <translation>Senkrechte Linien</translation>
    </message>
    <message>
        <source>Forward diagonals</source>
        <translation>Nach rechts steigende Linien</translation>
    </message>
    <message>
        <source>Backward diagonals</source>
        <translation>Nach links steigende Linien</translation>
    </message>
    <message>
        <source>Horizontal and vertical lines</source>
        <translation>Waagerechte und senkrechte Linien</translation>
    </message>
    <message>
        <source>Both diagonals</source>
        <translation>Beide Diagonalen</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Raute</translation>
    </message>
    <message>
        <source>Triangle</source>
        <translation>Dreieck</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source>Diagonal cross</source>
        <translation>Diagonales Kreuz</translation>
    </message>
    <message>
        <source>Star</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Baseline</source>
        <translation>Grundlinie</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Whether the line is solid, dashed or not drawn at all.</source>
        <translation>Ob die Linie durchgezogen, gestrichelt oder gar nicht gezeichnet wird.</translation>
    </message>
    <message>
        <source>The colour of the line.</source>
        <translation>Die Farbe der Linie.</translation>
    </message>
    <message>
        <source>The width of the line; one of width 0 is not drawn.</source>
        <translation>Die Breite der Linie; bei Breite 0 wird sie nicht gezeichnet.</translation>
    </message>
    <message>
        <source>How far the line is moved to the left of its direction; to the right where it is negative.</source>
        <translation>Wie weit die Linie nach links von ihrer Richtung versetzt ist; ein negativer Wert versetzt sie nach rechts.</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>Enden</translation>
    </message>
    <message>
        <source>How the line and its dashes end.</source>
        <translation>Wie die Linie und ihre Striche enden.</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Ecken</translation>
    </message>
    <message>
        <source>How the line turns at a vertex.</source>
        <translation>Wie die Linie an einem Stützpunkt abbiegt.</translation>
    </message>
    <message>
        <source>Limit of points</source>
        <translation>Grenze für Spitzen</translation>
    </message>
    <message>
        <source>How far a pointed corner may reach before it is bevelled.</source>
        <translation>Wie weit eine spitze Ecke reichen darf, bevor sie abgeschrägt wird.</translation>
    </message>
    <message>
        <source>Whether the area is filled whole, hatched or not at all.</source>
        <translation>Ob die Fläche ganz, schraffiert oder gar nicht gefüllt wird.</translation>
    </message>
    <message>
        <source>The colour of the filling.</source>
        <translation>Die Farbe der Füllung.</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>The line around the area; without one, none is drawn.</source>
        <translation>Die Linie um die Fläche; ohne Angabe wird keine gezeichnet.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>The longer side of the marker; one of size 0 is not drawn.</source>
        <translation>Die längere Seite des Punktsymbols; bei Größe 0 wird es nicht gezeichnet.</translation>
    </message>
    <message>
        <source>How far the marker is turned counterclockwise.</source>
        <translation>Wie weit das Punktsymbol gegen den Uhrzeigersinn gedreht ist.</translation>
    </message>
    <message>
        <source>The shape of the marker.</source>
        <translation>Die Form des Punktsymbols.</translation>
    </message>
    <message>
        <source>The colour of the marker.</source>
        <translation>Die Farbe des Punktsymbols.</translation>
    </message>
    <message>
        <source>Colour of the outline</source>
        <translation>Farbe des Umrisses</translation>
    </message>
    <message>
        <source>The colour of the line around the marker.</source>
        <translation>Die Farbe der Linie um das Punktsymbol.</translation>
    </message>
    <message>
        <source>Width of the outline</source>
        <translation>Breite des Umrisses</translation>
    </message>
    <message>
        <source>The width of the line around the marker; 0 for none.</source>
        <translation>Die Breite der Linie um das Punktsymbol; 0 für keine.</translation>
    </message>
    <message>
        <source>The picture as SVG; its view box is the marker.</source>
        <translation type="vanished">Das Bild als SVG; seine viewBox ist das Punktsymbol.</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>The name of the font&apos;s family, as in “DejaVu Sans”.</source>
        <translation>Der Name der Schriftfamilie, etwa „DejaVu Sans“.</translation>
    </message>
    <message>
        <source>The size of the font.</source>
        <translation>Die Größe der Schrift.</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <source>Whether the letters are bold.</source>
        <translation>Ob die Schrift fett ist.</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <source>Whether the letters are slanted.</source>
        <translation>Ob die Schrift kursiv ist.</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Zeichenabstand</translation>
    </message>
    <message>
        <source>What is added between two letters.</source>
        <translation>Was zwischen zwei Buchstaben hinzugefügt wird.</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Zeilenabstand</translation>
    </message>
    <message>
        <source>The distance of two lines, as a multiple of the font&apos;s own.</source>
        <translation>Der Abstand zweier Zeilen, als Vielfaches des Abstands der Schriftart.</translation>
    </message>
    <message>
        <source>The colour of the letters.</source>
        <translation>Die Farbe der Schrift.</translation>
    </message>
    <message>
        <source>Halo</source>
        <translation>Lichthof</translation>
    </message>
    <message>
        <source>How far the halo reaches beyond the letters; 0 for none.</source>
        <translation>Wie weit der Lichthof über die Schrift hinausreicht; 0 für keinen.</translation>
    </message>
    <message>
        <source>Colour of the halo</source>
        <translation>Farbe des Lichthofs</translation>
    </message>
    <message>
        <source>The colour behind the letters.</source>
        <translation>Die Farbe hinter der Schrift.</translation>
    </message>
    <message>
        <source>Horizontal alignment</source>
        <translation>Horizontale Ausrichtung</translation>
    </message>
    <message>
        <source>Which part of a line stands at the position.</source>
        <translation>Welcher Teil einer Zeile an der Position steht.</translation>
    </message>
    <message>
        <source>Vertical alignment</source>
        <translation>Vertikale Ausrichtung</translation>
    </message>
    <message>
        <source>Which part of the text&apos;s height stands at the position.</source>
        <translation>Welcher Teil der Höhe des Textes an der Position steht.</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation>%1 liegt nicht zwischen %2 und %3</translation>
    </message>
    <message>
        <source>the text has %1 characters; at most %2</source>
        <translation>der Text hat %1 Zeichen; höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>holds %1 entries; at most %2</source>
        <translation>enthält %1 Einträge; höchstens %2 sind erlaubt</translation>
    </message>
    <message>
        <source>holds an odd count of numbers</source>
        <translation>enthält eine ungerade Anzahl von Zahlen</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>wahr oder falsch</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>null</source>
        <translation>null</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>expected %1, found %2</source>
        <translation>erwartet: %1, gefunden: %2</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>%1 is not a whole number</source>
        <translation>%1 ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>expected %1 numbers, found %2</source>
        <translation>%1 Zahlen erwartet, %2 gefunden</translation>
    </message>
    <message>
        <source>“%1” is not one of %2</source>
        <translation>„%1“ ist keiner der Werte %2</translation>
    </message>
    <message>
        <source>%1 is a choice without a name</source>
        <translation>%1 ist eine Auswahl ohne Namen</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>What the file is.</source>
        <translation>Was die Datei ist.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>The version of the format.</source>
        <translation type="vanished">Die Version des Formats.</translation>
    </message>
    <message>
        <source>Map document</source>
        <translation>Kartendokument</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Style library</source>
        <translation>Stilbibliothek</translation>
    </message>
    <message>
        <source>is empty; enter a name</source>
        <translation>ist leer; geben Sie einen Namen an</translation>
    </message>
    <message>
        <source>holds %1 entries; at least %2</source>
        <translation>enthält %1 Einträge; mindestens %2 sind nötig</translation>
    </message>
    <message>
        <source>needs at least %1 points</source>
        <translation>braucht mindestens %1 Punkte</translation>
    </message>
    <message>
        <source>That of the map: a code as in “EPSG:8857”, WKT or a PROJ text; empty for plain coordinates in metres.</source>
        <translation>Das der Karte: ein Code wie in „EPSG:8857“, WKT oder ein PROJ-Text; leer für einfache Koordinaten in Metern.</translation>
    </message>
    <message>
        <source>What the map shows: its left, lower, right and upper side. It is centred in the data frame and widened to its shape.</source>
        <translation type="vanished">Was die Karte zeigt: die linke, untere, rechte und obere Seite. Der Ausschnitt wird im Datenrahmen zentriert und auf dessen Form erweitert.</translation>
    </message>
    <message>
        <source>Whether elements are aligned with the edges of the page, and not with each other.</source>
        <translation>Ob Elemente an den Rändern der Seite ausgerichtet werden und nicht aneinander.</translation>
    </message>
    <message>
        <source>The number of the map that insertion and navigation work on.</source>
        <translation>Die Nummer der Karte, auf die sich Einfügen und Navigieren beziehen.</translation>
    </message>
    <message>
        <source>The maps, which data frames and surrounds name by their number here, from 0.</source>
        <translation>Die Karten, die Datenrahmen und Kartenelemente mit ihrer Nummer hier nennen, ab 0.</translation>
    </message>
    <message>
        <source>The number by which the element is known, which no other one has; 0 asks for a new one.</source>
        <translation>Die Nummer, unter der das Element bekannt ist und die kein anderes hat; 0 verlangt eine neue.</translation>
    </message>
    <message>
        <source>The point of the map at which it stands.</source>
        <translation>Der Punkt der Karte, an dem es steht.</translation>
    </message>
    <message>
        <source>The point at which it stands, from the lower left corner of the page.</source>
        <translation>Der Punkt, an dem es steht, von der linken unteren Ecke der Seite aus.</translation>
    </message>
    <message>
        <source>Its left, lower, right and upper side on the map.</source>
        <translation>Die linke, untere, rechte und obere Seite auf der Karte.</translation>
    </message>
    <message>
        <source>Its left, lower, right and upper side, from the lower left corner of the page.</source>
        <translation>Die linke, untere, rechte und obere Seite, von der linken unteren Ecke der Seite aus.</translation>
    </message>
    <message>
        <source>The file of the picture (PNG, JPEG or SVG), relative to the document; without one, a crossed frame is drawn.</source>
        <translation type="vanished">Die Datei des Bildes (PNG, JPEG oder SVG), relativ zum Dokument; ohne eine wird ein durchkreuzter Rahmen gezeichnet.</translation>
    </message>
    <message>
        <source>The elements of the group; groups lie at most 16 deep in each other.</source>
        <translation>Die Elemente der Gruppe; Gruppen liegen höchstens 16 tief ineinander.</translation>
    </message>
    <message>
        <source>The radius of the corners, as a part of half the shorter side: 0 is square, 100 as round as they can be.</source>
        <translation>Der Radius der Ecken als Anteil der halben kürzeren Seite: 0 ist eckig, 100 so rund wie möglich.</translation>
    </message>
    <message>
        <source>How it is filled; without a symbol it is not drawn.</source>
        <translation>Wie es gefüllt wird; ohne Symbol wird es nicht gezeichnet.</translation>
    </message>
    <message>
        <source>How the border is drawn; without a symbol it is not.</source>
        <translation>Wie der Rand gezeichnet wird; ohne Symbol wird er nicht gezeichnet.</translation>
    </message>
    <message>
        <source>Whether the sheet stands upright or lies, which swaps its width and height.</source>
        <translation>Ob das Blatt aufrecht steht oder liegt, was Breite und Höhe vertauscht.</translation>
    </message>
    <message>
        <source>The local file of the data (GeoPackage, GeoJSON, Shapefile or FlatGeobuf), relative to the document.</source>
        <translation type="vanished">Die lokale Datei der Daten (GeoPackage, GeoJSON, Shapefile oder FlatGeobuf), relativ zum Dokument.</translation>
    </message>
    <message>
        <source>A condition on the attributes as in SQL, “population &gt; 1000000”; empty for all features.</source>
        <translation>Eine Bedingung an die Attribute wie in SQL, „population &gt; 1000000“; leer für alle Objekte.</translation>
    </message>
    <message>
        <source>Stands in for that of the file where it is not empty.</source>
        <translation>Tritt an die Stelle dessen der Datei, wenn es nicht leer ist.</translation>
    </message>
    <message>
        <source>The number of the map that it shows, which no other data frame shows; the first one is 0.</source>
        <translation>Die Nummer der Karte, die er zeigt und die kein anderer Datenrahmen zeigt; die erste ist 0.</translation>
    </message>
    <message>
        <source>The number of the map that it follows; −1 for none.</source>
        <translation>Die Nummer der Karte, der es folgt; −1 für keine.</translation>
    </message>
    <message>
        <source>A numeric attribute: features with a higher number are labelled first; without one, in their own order.</source>
        <translation type="vanished">Ein Zahlenattribut: Objekte mit einer höheren Zahl werden zuerst beschriftet; ohne es in ihrer eigenen Reihenfolge.</translation>
    </message>
    <message>
        <source>The lowest priority of the class, above that of the class before.</source>
        <translation>Die niedrigste Priorität der Klasse, höher als die der Klasse davor.</translation>
    </message>
    <message>
        <source>What a legend calls the features.</source>
        <translation>Wie eine Legende die Objekte nennt.</translation>
    </message>
    <message>
        <source>How the features are drawn.</source>
        <translation>Wie die Objekte gezeichnet werden.</translation>
    </message>
    <message>
        <source>The values of the attribute that belong to the class; each belongs to one class only.</source>
        <translation>Die Werte des Attributs, die zur Klasse gehören; jeder gehört nur zu einer Klasse.</translation>
    </message>
    <message>
        <source>What a legend calls the features; their values where it is missing.</source>
        <translation>Wie eine Legende die Objekte nennt; ihre Werte, wenn es fehlt.</translation>
    </message>
    <message>
        <source>The lowest number of the class, above that of the class before; it ends where the next one begins.</source>
        <translation>Die kleinste Zahl der Klasse, größer als die der Klasse davor; sie endet, wo die nächste beginnt.</translation>
    </message>
    <message>
        <source>One symbol for all features, one for each value of an attribute, or one for each range of a numeric attribute.</source>
        <translation type="vanished">Ein Symbol für alle Objekte, eines für jeden Wert eines Attributs oder eines für jeden Bereich eines Zahlenattributs.</translation>
    </message>
    <message>
        <source>How the letters of the title look; without a symbol bold and 12 points high.</source>
        <translation>Wie die Buchstaben des Titels aussehen; ohne Symbol fett und 12 Punkt hoch.</translation>
    </message>
    <message>
        <source>How the name of a layer with several classes looks; without a symbol bold and 9 points high.</source>
        <translation>Wie der Name einer Ebene mit mehreren Klassen aussieht; ohne Symbol fett und 9 Punkt hoch.</translation>
    </message>
    <message>
        <source>How the letters of the entries look; without a symbol 8 points high.</source>
        <translation>Wie die Buchstaben der Einträge aussehen; ohne Symbol 8 Punkt hoch.</translation>
    </message>
    <message>
        <source>How the bar is drawn: as one row of boxes, as two, or as a line with ticks.</source>
        <translation>Wie die Leiste gezeichnet wird: als eine Reihe von Kästen, als zwei oder als Linie mit Strichen.</translation>
    </message>
    <message>
        <source>What the bar counts; automatic is metres, or kilometres where each division is one at least.</source>
        <translation>Was die Leiste zählt; automatisch sind es Meter, oder Kilometer, wenn jeder Abschnitt mindestens einer ist.</translation>
    </message>
    <message>
        <source>The colour of outlines, of ticks and of every second part.</source>
        <translation>Die Farbe von Umrissen, Strichen und jedem zweiten Abschnitt.</translation>
    </message>
    <message>
        <source>How the letters look; without a symbol 8 points high.</source>
        <translation>Wie die Buchstaben aussehen; ohne Symbol 8 Punkt hoch.</translation>
    </message>
    <message>
        <source>How the letters look; without a symbol 12 points high.</source>
        <translation>Wie die Buchstaben aussehen; ohne Symbol 12 Punkt hoch.</translation>
    </message>
    <message>
        <source>The marker that points north; without a symbol a plain arrow.</source>
        <translation>Der Marker, der nach Norden zeigt; ohne Symbol ein einfacher Pfeil.</translation>
    </message>
    <message>
        <source>The distance of two lines; 0, or one that would make more than 1,000 lines, chooses one for the map&apos;s scale.</source>
        <translation>Der Abstand zweier Linien; 0 oder einer, der mehr als 1.000 Linien ergäbe, wählt einen passend zum Maßstab.</translation>
    </message>
    <message>
        <source>Whether the degrees stand outside the frame, or where a parallel ends inside it.</source>
        <translation>Ob die Grade außerhalb des Rahmens stehen, oder wo ein Breitenkreis darin endet.</translation>
    </message>
    <message>
        <source>How the meridians and parallels are drawn; without a symbol grey and 0.3 points wide.</source>
        <translation>Wie Meridiane und Breitenkreise gezeichnet werden; ohne Symbol grau und 0,3 Punkt breit.</translation>
    </message>
    <message>
        <source>How the letters of the labels look; without a symbol 6.5 points high.</source>
        <translation>Wie die Buchstaben der Beschriftung aussehen; ohne Symbol 6,5 Punkt hoch.</translation>
    </message>
    <message>
        <source>The symbol, of any kind.</source>
        <translation>Das Symbol, von beliebiger Art.</translation>
    </message>
    <message>
        <source>What the category is called; slashes put it into others, as in “Markers/Towns”.</source>
        <translation>Wie die Kategorie heißt; Schrägstriche legen sie in andere, wie in „Markers/Towns“.</translation>
    </message>
    <message>
        <source>The picture as SVG, which refers to nothing outside itself; its view box is the marker.</source>
        <translation>Das Bild als SVG, das auf nichts außerhalb verweist; seine viewBox ist der Marker.</translation>
    </message>
    <message>
        <source>The version of the format; a newer one is refused.</source>
        <translation>Die Version des Formats; eine neuere wird abgelehnt.</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Überdecken</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Abdunkeln</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aufhellen</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>How much of the layer is seen; features of it do not show through each other.</source>
        <translation>Wie viel von der Ebene zu sehen ist; ihre Objekte scheinen nicht durcheinander durch.</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Überblendung</translation>
    </message>
    <message>
        <source>Whether the layer covers the layers below, or darkens or lightens them.</source>
        <translation>Ob die Ebene die Ebenen darunter überdeckt, abdunkelt oder aufhellt.</translation>
    </message>
    <message>
        <source>Line of dashes</source>
        <translation>Strichlinie</translation>
    </message>
    <message>
        <source>Line of markers</source>
        <translation>Linie aus Punktsymbolen</translation>
    </message>
    <message>
        <source>Layered line</source>
        <translation>Mehrschichtige Linie</translation>
    </message>
    <message>
        <source>Fill of pictures</source>
        <translation>Füllung aus Bildern</translation>
    </message>
    <message>
        <source>Fill of markers</source>
        <translation>Füllung aus Punktsymbolen</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Farbverlauf</translation>
    </message>
    <message>
        <source>Layered fill</source>
        <translation>Mehrschichtige Füllung</translation>
    </message>
    <message>
        <source>Layered marker</source>
        <translation>Mehrschichtiges Punktsymbol</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>Lengths of dashes</source>
        <translation>Strichlängen</translation>
    </message>
    <message>
        <source>The lengths of dashes and gaps in turn, without their ends; an odd count is run through twice.</source>
        <translation>Die Längen von Strichen und Lücken im Wechsel, ohne ihre Enden; eine ungerade Anzahl wird zweimal durchlaufen.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>How far into the dashes and gaps the line begins.</source>
        <translation>Wie weit im Wechsel von Strichen und Lücken die Linie beginnt.</translation>
    </message>
    <message>
        <source>The marker that is repeated.</source>
        <translation>Das Punktsymbol, das sich wiederholt.</translation>
    </message>
    <message>
        <source>How far it is from one marker to the next, a pixel at least.</source>
        <translation>Wie weit es von einem Punktsymbol zum nächsten ist, mindestens ein Pixel.</translation>
    </message>
    <message>
        <source>First marker</source>
        <translation>Erstes Punktsymbol</translation>
    </message>
    <message>
        <source>How far it is from the beginning of the line to its first marker.</source>
        <translation>Wie weit es vom Anfang der Linie zu ihrem ersten Punktsymbol ist.</translation>
    </message>
    <message>
        <source>Turned</source>
        <translation>Gedreht</translation>
    </message>
    <message>
        <source>Whether what is the right of a marker points along the line.</source>
        <translation>Ob die rechte Seite eines Punktsymbols in Richtung der Linie zeigt.</translation>
    </message>
    <message>
        <source>The picture as SVG, which refers to nothing outside itself; its view box is a tile.</source>
        <translation>Das Bild als SVG, das auf nichts außerhalb seiner selbst verweist; seine viewBox ist eine Kachel.</translation>
    </message>
    <message>
        <source>The width of a tile; its height follows from the picture.</source>
        <translation>Die Breite einer Kachel; ihre Höhe ergibt sich aus dem Bild.</translation>
    </message>
    <message>
        <source>How far tiles and pictures are turned counterclockwise.</source>
        <translation>Wie weit Kacheln und Bilder gegen den Uhrzeigersinn gedreht sind.</translation>
    </message>
    <message>
        <source>Column width</source>
        <translation>Spaltenbreite</translation>
    </message>
    <message>
        <source>How far it is from one marker of a row to the next.</source>
        <translation>Wie weit es von einem Punktsymbol einer Reihe zum nächsten ist.</translation>
    </message>
    <message>
        <source>Row height</source>
        <translation>Reihenhöhe</translation>
    </message>
    <message>
        <source>How far it is from one row to the next.</source>
        <translation>Wie weit es von einer Reihe zur nächsten ist.</translation>
    </message>
    <message>
        <source>Staggered</source>
        <translation>Versetzt</translation>
    </message>
    <message>
        <source>Whether every second row is moved by half a column.</source>
        <translation>Ob jede zweite Reihe um eine halbe Spalte verschoben ist.</translation>
    </message>
    <message>
        <source>How far the rows are turned counterclockwise; the markers stay upright.</source>
        <translation>Wie weit die Reihen gegen den Uhrzeigersinn gedreht sind; die Punktsymbole bleiben aufrecht.</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Whether the colours run across the area&apos;s rectangle, or from its middle outwards.</source>
        <translation>Ob die Farben quer durch das Rechteck der Fläche verlaufen oder von seiner Mitte nach außen.</translation>
    </message>
    <message>
        <source>Where a straight gradient runs to, counterclockwise from the right; −90 is down.</source>
        <translation>Wohin ein gerader Verlauf führt, gegen den Uhrzeigersinn von rechts; −90 ist nach unten.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>The colours of the gradient, from its beginning to its end.</source>
        <translation>Die Farben des Verlaufs, von seinem Anfang bis zu seinem Ende.</translation>
    </message>
    <message>
        <source>Where the colour stands between the beginning and the end, not before the last one.</source>
        <translation>Wo die Farbe zwischen Anfang und Ende steht, nicht vor der letzten.</translation>
    </message>
    <message>
        <source>The colour at this place.</source>
        <translation>Die Farbe an dieser Stelle.</translation>
    </message>
    <message>
        <source>Symbols that are drawn one over the other, the first one at the bottom.</source>
        <translation>Symbole, die übereinander gezeichnet werden, das erste zuunterst.</translation>
    </message>
    <message>
        <source>there is no entry %1 in a list of %2</source>
        <translation>einen Eintrag %1 gibt es in einer Liste von %2 nicht</translation>
    </message>
    <message>
        <source>there is no “%1” in a value</source>
        <translation>in einem Wert gibt es kein „%1“</translation>
    </message>
    <message>
        <source>there is no field “%1”; there are %2</source>
        <translation>ein Feld „%1“ gibt es nicht; es gibt %2</translation>
    </message>
    <message>
        <source>What the map shows: its left, lower, right and upper side. It is centred in the data frame and widened to its shape. Of a map that is turned, what it would show straight, about the same centre.</source>
        <translation>Was die Karte zeigt: ihre linke, untere, rechte und obere Seite. Es wird im Datenrahmen zentriert und auf dessen Form erweitert. Bei einer gedrehten Karte das, was sie ungedreht um dieselbe Mitte zeigen würde.</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>How far the map is turned counterclockwise about its centre. The frame stays, and letters, pictures and the patterns of areas stay upright.</source>
        <translation>Wie weit die Karte gegen den Uhrzeigersinn um ihre Mitte gedreht ist. Der Rahmen bleibt, und Buchstaben, Bilder und die Muster von Flächen bleiben aufrecht.</translation>
    </message>
    <message>
        <source>Whether it points to true north at the map&apos;s centre, and not to where up on the map is.</source>
        <translation>Ob er in der Mitte der Karte nach geografisch Nord zeigt und nicht dorthin, wo auf der Karte oben ist.</translation>
    </message>
    <message>
        <source>Other maps</source>
        <translation>Andere Karten</translation>
    </message>
    <message>
        <source>How many maps more the surrounds follow.</source>
        <translation type="vanished">Wie vielen weiteren Karten die Randangaben folgen.</translation>
    </message>
    <message>
        <source>Those of the data frames.</source>
        <translation>Die der Datenrahmen.</translation>
    </message>
    <message>
        <source>The file of the picture (PNG, JPEG, TIFF, WebP or SVG), relative to the document; without one, and without an embedded picture, a crossed frame is drawn.</source>
        <translation>Die Datei des Bildes (PNG, JPEG, TIFF, WebP oder SVG), relativ zum Dokument; ohne sie und ohne eingebettetes Bild wird ein Rahmen mit Kreuz gezeichnet.</translation>
    </message>
    <message>
        <source>Embedded picture</source>
        <translation>Eingebettetes Bild</translation>
    </message>
    <message>
        <source>The picture itself, as a data URI; it is drawn in place of the file, which then only says where the picture came from.</source>
        <translation>Das Bild selbst, als Data-URI; es wird statt der Datei gezeichnet, die dann nur sagt, woher das Bild kam.</translation>
    </message>
    <message>
        <source>How far the picture is turned counterclockwise about its middle.</source>
        <translation>Wie weit das Bild gegen den Uhrzeigersinn um seine Mitte gedreht ist.</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>Yards</source>
        <translation>Yards</translation>
    </message>
    <message>
        <source>US survey feet</source>
        <translation>US-Vermessungsfuß</translation>
    </message>
    <message>
        <source>After the entries</source>
        <translation>Nach den Einträgen</translation>
    </message>
    <message>
        <source>Rounded rectangle</source>
        <translation>Abgerundetes Rechteck</translation>
    </message>
    <message>
        <source>Zigzag</source>
        <translation>Zickzack</translation>
    </message>
    <message>
        <source>Wave</source>
        <translation>Welle</translation>
    </message>
    <message>
        <source>Width of the patches</source>
        <translation>Breite der Muster</translation>
    </message>
    <message>
        <source>How wide a line or a fill is shown.</source>
        <translation>Wie breit eine Linie oder Füllung gezeigt wird.</translation>
    </message>
    <message>
        <source>Height of the patches</source>
        <translation>Höhe der Muster</translation>
    </message>
    <message>
        <source>How high a fill is shown, and a line that is not straight.</source>
        <translation>Wie hoch eine Füllung gezeigt wird, und eine Linie, die nicht gerade ist.</translation>
    </message>
    <message>
        <source>Shape of fills</source>
        <translation>Form der Füllungen</translation>
    </message>
    <message>
        <source>What is filled to show a fill.</source>
        <translation>Was gefüllt wird, um eine Füllung zu zeigen.</translation>
    </message>
    <message>
        <source>Shape of lines</source>
        <translation>Form der Linien</translation>
    </message>
    <message>
        <source>How a line runs through its patch. One that is too wide for the height of the patches is shown straight.</source>
        <translation>Wie eine Linie durch ihr Muster läuft. Eine, die für die Höhe der Muster zu breit ist, wird gerade gezeigt.</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>The name of the layer. The entry stays, and shows nothing, while the map has none of that name.</source>
        <translation>Der Name der Ebene. Der Eintrag bleibt und zeigt nichts, solange die Karte keine dieses Namens hat.</translation>
    </message>
    <message>
        <source>What stands for the layer, or above its classes; empty for the layer&apos;s name, or the label of its only symbol.</source>
        <translation>Was für die Ebene oder über ihren Klassen steht; leer für den Namen der Ebene oder die Beschriftung ihres einzigen Symbols.</translation>
    </message>
    <message>
        <source>The labels of the classes that are shown, in that order; none for all, as the layer has them.</source>
        <translation>Die Beschriftungen der Klassen, die gezeigt werden, in dieser Reihenfolge; keine für alle, wie die Ebene sie hat.</translation>
    </message>
    <message>
        <source>The labels of classes that are not shown.</source>
        <translation>Die Beschriftungen von Klassen, die nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>Drawn with</source>
        <translation>Gezeichnet mit</translation>
    </message>
    <message>
        <source>The names of layers whose symbols are drawn in the same patches, over each other as in the map, such as the casing below a road. Of each, the class with the same label is taken, or its only one. They are not listed by themselves.</source>
        <translation>Die Namen von Ebenen, deren Symbole in denselben Mustern gezeichnet werden, übereinander wie in der Karte, etwa der Rand unter einer Straße. Von jeder gilt die Klasse mit derselben Beschriftung oder ihre einzige. Für sich werden sie nicht aufgeführt.</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Layers in the order in which the legend lists them.</source>
        <translation>Ebenen in der Reihenfolge, in der die Legende sie aufführt.</translation>
    </message>
    <message>
        <source>Other layers</source>
        <translation>Andere Ebenen</translation>
    </message>
    <message>
        <source>What becomes of layers that no entry names: they follow, the topmost first, or are left out.</source>
        <translation>Was aus Ebenen wird, die kein Eintrag nennt: Sie folgen, die oberste zuerst, oder werden weggelassen.</translation>
    </message>
    <message>
        <source>On the map only</source>
        <translation>Nur auf der Karte</translation>
    </message>
    <message>
        <source>Whether only classes are listed of which a feature lies within what the map shows.</source>
        <translation>Ob nur Klassen aufgeführt werden, von denen ein Objekt im gezeigten Teil der Karte liegt.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Into how many columns of about the same height the lines go, a heading always with its first class; 0 takes as many as show the legend largest.</source>
        <translation>In wie viele etwa gleich hohe Spalten die Zeilen kommen, eine Überschrift immer mit ihrer ersten Klasse; 0 nimmt so viele, dass die Legende am größten erscheint.</translation>
    </message>
    <message>
        <source>Width of texts</source>
        <translation>Breite der Texte</translation>
    </message>
    <message>
        <source>The width at which the title, headings and entries are broken into lines, at spaces; 0 for never.</source>
        <translation>Die Breite, bei der Titel, Überschriften und Einträge an Leerzeichen umbrochen werden; 0 für nie.</translation>
    </message>
    <message>
        <source>Above the bar</source>
        <translation>Über der Leiste</translation>
    </message>
    <message>
        <source>Below the bar</source>
        <translation>Unter der Leiste</translation>
    </message>
    <message>
        <source>Text of the unit</source>
        <translation>Text der Einheit</translation>
    </message>
    <message>
        <source>What stands behind the last number; empty for the sign of the unit.</source>
        <translation>Was hinter der letzten Zahl steht; leer für das Zeichen der Einheit.</translation>
    </message>
    <message>
        <source>Divisions</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>How many parts the bar has; 0 chooses.</source>
        <translation>Wie viele Teile die Leiste hat; 0 wählt selbst.</translation>
    </message>
    <message>
        <source>Length of a division</source>
        <translation>Länge eines Abschnitts</translation>
    </message>
    <message>
        <source>The ground that a part of the bar stands for, in the unit, or in metres where that is automatic; 0 chooses a round length. A bar that is then too long for its frame is not drawn; its place tells why.</source>
        <translation>Wie viel Strecke in der Natur ein Teil der Leiste darstellt, in der Einheit, oder in Metern, wo diese automatisch ist; 0 wählt eine runde Länge. Eine Leiste, die dann für ihren Rahmen zu lang ist, wird nicht gezeichnet; an ihrem Platz steht, warum.</translation>
    </message>
    <message>
        <source>Subdivisions</source>
        <translation>Unterteilungen</translation>
    </message>
    <message>
        <source>Into how many parts the first division is divided. It then lies to the left of the 0, as on topographic maps, and the numbers are counted from its right end: four divisions of 250 m are numbered 250, 0, 250, 500 and 750 m. 0 divides nothing, and the bar begins with 0.</source>
        <translation>In wie viele Teile der erste Abschnitt geteilt wird. Er liegt dann links der 0 wie auf topographischen Karten, und die Zahlen zählen von seinem rechten Ende: Vier Abschnitte von 250 m tragen die Zahlen 250, 0, 250, 500 und 750 m. 0 teilt nichts, und die Leiste beginnt mit 0.</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>On which side of the bar its numbers stand.</source>
        <translation>Auf welcher Seite der Leiste ihre Zahlen stehen.</translation>
    </message>
    <message>
        <source>The text, with %1 where the scale stands, and {km/cm} for the kilometres of ground on a centimetre of paper. Before the slash may stand m, km, ft, mi, nmi, cm, yd or ftUS, behind it cm or in.</source>
        <translation>Der Text, mit %1, wo der Maßstab steht, und {km/cm} für die Kilometer in der Natur auf einem Zentimeter Papier. Vor dem Schrägstrich darf m, km, ft, mi, nmi, cm, yd oder ftUS stehen, dahinter cm oder in.</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Barbed arrow</source>
        <translation>Pfeil mit Widerhaken</translation>
    </message>
    <message>
        <source>Open arrow</source>
        <translation>Offener Pfeil</translation>
    </message>
    <message>
        <source>Dot</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Balken</translation>
    </message>
    <message>
        <source>Head at the start</source>
        <translation>Spitze am Anfang</translation>
    </message>
    <message>
        <source>What the first vertex bears.</source>
        <translation>Was der erste Stützpunkt trägt.</translation>
    </message>
    <message>
        <source>Head at the end</source>
        <translation>Spitze am Ende</translation>
    </message>
    <message>
        <source>What the last vertex bears.</source>
        <translation>Was der letzte Stützpunkt trägt.</translation>
    </message>
    <message>
        <source>Size of the heads</source>
        <translation>Größe der Spitzen</translation>
    </message>
    <message>
        <source>How long an arrow head is; bars are as wide, dots half as wide.</source>
        <translation>Wie lang eine Pfeilspitze ist; Balken sind so breit, Punkte halb so breit.</translation>
    </message>
    <message>
        <source>What it says. [scale], [date:yyyy-MM-dd], [document], [map], [crs], [credits] and [page] are filled in while it is drawn.</source>
        <translation type="vanished">Was er sagt. [scale], [date:yyyy-MM-dd], [document], [map], [crs], [credits] und [page] werden beim Zeichnen ausgefüllt.</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Quellennachweis</translation>
    </message>
    <message>
        <source>Whom the data come from; [credits] in a text of the page names them all.</source>
        <translation>Von wem die Daten stammen; [credits] in einem Text der Seite nennt sie alle.</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>Whether it is drawn neither on the screen nor in an export.</source>
        <translation>Ob es weder auf dem Bildschirm noch in einem Export gezeichnet wird.</translation>
    </message>
    <message>
        <source>Whether the mouse leaves it alone, and the map of a data frame.</source>
        <translation>Ob die Maus es in Ruhe lässt, und die Karte eines Datenrahmens.</translation>
    </message>
    <message>
        <source>The number of the other map whose part of the world is marked; −1 for none.</source>
        <translation>Die Nummer der anderen Karte, deren Ausschnitt der Welt markiert wird; −1 für keine.</translation>
    </message>
    <message>
        <source>How the area is drawn; without a symbol as a red line of one point.</source>
        <translation>Wie die Fläche gezeichnet wird; ohne Symbol als rote Linie von einem Punkt.</translation>
    </message>
    <message>
        <source>Overviews</source>
        <translation>Übersichten</translation>
    </message>
    <message>
        <source>What other maps show, marked on this one.</source>
        <translation>Was andere Karten zeigen, auf dieser markiert.</translation>
    </message>
    <message>
        <source>Scale is locked</source>
        <translation>Maßstab ist fest</translation>
    </message>
    <message>
        <source>Whether the map keeps its scale and shows more or less where its frame becomes larger or smaller. The extent then gives the centre alone.</source>
        <translation>Ob die Karte ihren Maßstab behält und mehr oder weniger zeigt, wenn ihr Rahmen größer oder kleiner wird. Die Ausdehnung gibt dann nur die Mitte an.</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>How many times smaller the map is than the ground at its centre. It is stored where it is locked; otherwise the extent decides, and another scale changes that.</source>
        <translation>Wievielmal kleiner die Karte ist als der Boden in ihrer Mitte. Er wird gespeichert, wo er fest ist; sonst entscheidet die Ausdehnung, und ein anderer Maßstab ändert sie.</translation>
    </message>
    <message>
        <source>Longitude and latitude</source>
        <translation>Länge und Breite</translation>
    </message>
    <message>
        <source>Coordinates of the map</source>
        <translation>Koordinaten der Karte</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Ticks at the frame</source>
        <translation>Striche am Rahmen</translation>
    </message>
    <message>
        <source>Crosses where lines would cross</source>
        <translation>Kreuze, wo Linien sich schneiden würden</translation>
    </message>
    <message>
        <source>Minutes and seconds as needed</source>
        <translation>Minuten und Sekunden nach Bedarf</translation>
    </message>
    <message>
        <source>Decimal degrees</source>
        <translation>Dezimalgrad</translation>
    </message>
    <message>
        <source>Degrees and minutes</source>
        <translation>Grad und Minuten</translation>
    </message>
    <message>
        <source>Degrees, minutes and seconds</source>
        <translation>Grad, Minuten und Sekunden</translation>
    </message>
    <message>
        <source>Labels on the left</source>
        <translation>Beschriftung links</translation>
    </message>
    <message>
        <source>Whether lines that end there have their labels to the left of the frame.</source>
        <translation>Ob Linien, die dort enden, links vom Rahmen beschriftet sind.</translation>
    </message>
    <message>
        <source>Labels on the right</source>
        <translation>Beschriftung rechts</translation>
    </message>
    <message>
        <source>Whether lines that end there have their labels to the right of the frame.</source>
        <translation>Ob Linien, die dort enden, rechts vom Rahmen beschriftet sind.</translation>
    </message>
    <message>
        <source>Labels above</source>
        <translation>Beschriftung oben</translation>
    </message>
    <message>
        <source>Whether lines that end there have their labels above the frame.</source>
        <translation>Ob Linien, die dort enden, über dem Rahmen beschriftet sind.</translation>
    </message>
    <message>
        <source>Labels below</source>
        <translation>Beschriftung unten</translation>
    </message>
    <message>
        <source>Whether lines that end there have their labels below the frame.</source>
        <translation>Ob Linien, die dort enden, unter dem Rahmen beschriftet sind.</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>What is constant along a line: longitude or latitude, or a coordinate of the map, as of a grid in metres.</source>
        <translation>Was entlang einer Linie gleich bleibt: Länge oder Breite, oder eine Koordinate der Karte wie in einem Gitter in Metern.</translation>
    </message>
    <message>
        <source>Spacing</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>The distance of two lines of a grid in coordinates of the map, in place of the interval; 0 chooses one.</source>
        <translation>Der Abstand zweier Linien eines Gitters in Koordinaten der Karte, anstelle des Intervalls; 0 wählt einen.</translation>
    </message>
    <message>
        <source>Whether all of the lines, or only a part of them is drawn.</source>
        <translation>Ob die ganzen Linien oder nur ein Teil von ihnen gezeichnet wird.</translation>
    </message>
    <message>
        <source>Size of the marks</source>
        <translation>Größe der Zeichen</translation>
    </message>
    <message>
        <source>How long ticks are, or the arms of a cross from end to end.</source>
        <translation>Wie lang Striche sind, oder die Arme eines Kreuzes von einem Ende zum anderen.</translation>
    </message>
    <message>
        <source>Format of degrees</source>
        <translation>Format der Grade</translation>
    </message>
    <message>
        <source>How longitudes and latitudes are written.</source>
        <translation>Wie Längen und Breiten geschrieben werden.</translation>
    </message>
    <message>
        <source>Signs</source>
        <translation>Vorzeichen</translation>
    </message>
    <message>
        <source>Whether west and south are told by a minus, and not by letters; coordinates of the map are then numbers alone.</source>
        <translation>Ob West und Süd durch ein Minus bezeichnet werden und nicht durch Buchstaben; Koordinaten der Karte sind dann nur Zahlen.</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Ränder</translation>
    </message>
    <message>
        <source>Lines along the edges of the page to which the mouse draws what it moves; they are not printed.</source>
        <translation type="vanished">Linien entlang den Kanten der Seite, an denen die Maus einrastet; sie werden nicht gedruckt.</translation>
    </message>
    <message>
        <source>From the left edge.</source>
        <translation>Von der linken Kante.</translation>
    </message>
    <message>
        <source>From the right edge.</source>
        <translation>Von der rechten Kante.</translation>
    </message>
    <message>
        <source>From the upper edge.</source>
        <translation>Von der oberen Kante.</translation>
    </message>
    <message>
        <source>From the lower edge.</source>
        <translation>Von der unteren Kante.</translation>
    </message>
    <message>
        <source>Vertical guides</source>
        <translation>Senkrechte Hilfslinien</translation>
    </message>
    <message>
        <source>Lines from top to bottom that help to arrange, by their distance from the left edge of the page; they are not printed.</source>
        <translation>Linien von oben nach unten, die beim Anordnen helfen, nach ihrem Abstand von der linken Kante der Seite; sie werden nicht gedruckt.</translation>
    </message>
    <message>
        <source>Horizontal guides</source>
        <translation>Waagrechte Hilfslinien</translation>
    </message>
    <message>
        <source>Lines from left to right, by their distance from the lower edge.</source>
        <translation>Linien von links nach rechts, nach ihrem Abstand von der unteren Kante.</translation>
    </message>
    <message>
        <source>The distance of the lines of a grid to which the mouse draws what it moves; 0 for none.</source>
        <translation type="vanished">Der Abstand der Linien eines Rasters, an dem die Maus einrastet; 0 für keines.</translation>
    </message>
    <message>
        <source>How many maps more surrounds and overviews follow.</source>
        <translation>Wie vielen weiteren Karten Randangaben und Übersichten folgen.</translation>
    </message>
    <message>
        <source>At which its lines are broken on paper; 0 breaks them only where the text does.</source>
        <translation>Bei der seine Zeilen auf dem Papier umbrochen werden; 0 bricht sie nur, wo es der Text tut.</translation>
    </message>
    <message>
        <source>Placeholders</source>
        <translation>Platzhalter</translation>
    </message>
    <message>
        <source>Whether placeholders are filled in, and do not stand as written.</source>
        <translation>Ob Platzhalter ausgefüllt werden und nicht dastehen, wie sie geschrieben sind.</translation>
    </message>
    <message>
        <source>Lines along the edges of the page to which the mouse draws what it moves; they are not printed. Without any width they are 1 cm wide.</source>
        <translation type="vanished">Linien entlang der Ränder der Seite, an denen einrastet, was die Maus bewegt; sie werden nicht gedruckt. Ohne jede Breite sind sie 1 cm breit.</translation>
    </message>
    <message>
        <source>Lines along the edges of the page to which what is moved snaps; they are not printed. Without any width they are 1 cm wide.</source>
        <translation>Linien entlang den Kanten der Seite, an denen einrastet, was bewegt wird; sie werden nicht gedruckt. Ohne jede Breite sind sie 1 cm breit.</translation>
    </message>
    <message>
        <source>The distance of the lines of a grid to which what is moved snaps; 0 for none.</source>
        <translation>Der Abstand der Linien eines Rasters, an dem einrastet, was bewegt wird; 0 für keines.</translation>
    </message>
    <message>
        <source>What the group is called.</source>
        <translation>Wie die Gruppe heißt.</translation>
    </message>
    <message>
        <source>Whether the layers of the group show that are visible themselves.</source>
        <translation>Ob die Ebenen der Gruppe zu sehen sind, die selbst sichtbar sind.</translation>
    </message>
    <message>
        <source>The layers of the group, the lowest first; groups lie at most 16 deep in each other.</source>
        <translation>Die Ebenen der Gruppe, die unterste zuerst; Gruppen liegen höchstens 16 tief ineinander.</translation>
    </message>
    <message>
        <source>The local file of the table (CSV or any other of data), relative to the document.</source>
        <translation>Die lokale Datei der Tabelle (CSV oder eine andere mit Daten), relativ zum Dokument.</translation>
    </message>
    <message>
        <source>Key of the features</source>
        <translation>Schlüssel der Objekte</translation>
    </message>
    <message>
        <source>The attribute that tells which row of the table a feature has.</source>
        <translation>Das Attribut, das sagt, welche Zeile der Tabelle ein Objekt hat.</translation>
    </message>
    <message>
        <source>Key of the table</source>
        <translation>Schlüssel der Tabelle</translation>
    </message>
    <message>
        <source>The field of the table that holds the same values: the same texts, or numbers of the same value. Of several rows with one key the first counts.</source>
        <translation>Das Feld der Tabelle mit denselben Werten: denselben Texten oder Zahlen desselben Werts. Von mehreren Zeilen mit einem Schlüssel zählt die erste.</translation>
    </message>
    <message>
        <source>Prefix</source>
        <translation>Vorsatz</translation>
    </message>
    <message>
        <source>Stands before the names of the table&apos;s fields. Without one, a name that is taken gets the table&apos;s name and an underscore before it.</source>
        <translation>Steht vor den Namen der Felder der Tabelle. Ohne ihn bekommt ein Name, den es schon gibt, den Namen der Tabelle und einen Unterstrich vorangestellt.</translation>
    </message>
    <message>
        <source>The local file of the data (GeoPackage, GeoJSON, Shapefile, FlatGeobuf, GPX, KML, MapInfo, DXF or CSV), relative to the document.</source>
        <translation>Die lokale Datei der Daten (GeoPackage, GeoJSON, Shapefile, FlatGeobuf, GPX, KML, MapInfo, DXF oder CSV), relativ zum Dokument.</translation>
    </message>
    <message>
        <source>Column of x</source>
        <translation>Spalte für x</translation>
    </message>
    <message>
        <source>Of a table: the column that holds eastings or longitudes. Where none is named, the names and values of the columns tell.</source>
        <translation>Bei einer Tabelle: die Spalte mit Ostwerten oder Längen. Ist keine genannt, entscheiden Namen und Werte der Spalten.</translation>
    </message>
    <message>
        <source>Column of y</source>
        <translation>Spalte für y</translation>
    </message>
    <message>
        <source>Of a table: the column that holds northings or latitudes.</source>
        <translation>Bei einer Tabelle: die Spalte mit Nordwerten oder Breiten.</translation>
    </message>
    <message>
        <source>Column of geometries</source>
        <translation>Spalte für Geometrien</translation>
    </message>
    <message>
        <source>Of a table: the column that holds geometries as well-known text.</source>
        <translation>Bei einer Tabelle: die Spalte mit Geometrien als Well-known Text.</translation>
    </message>
    <message>
        <source>Joined tables</source>
        <translation>Verknüpfte Tabellen</translation>
    </message>
    <message>
        <source>Tables whose fields become those of the features: labels, classes and the filter may use them.</source>
        <translation>Tabellen, deren Felder zu denen der Objekte werden: Beschriftungen, Klassen und der Filter können sie verwenden.</translation>
    </message>
    <message>
        <source>Symbols by rules</source>
        <translation>Symbole nach Regeln</translation>
    </message>
    <message>
        <source>Sizes in proportion to a number</source>
        <translation>Größen im Verhältnis zu einer Zahl</translation>
    </message>
    <message>
        <source>The first that fits</source>
        <translation>Die erste, die passt</translation>
    </message>
    <message>
        <source>All that fit</source>
        <translation>Alle, die passen</translation>
    </message>
    <message>
        <source>The area</source>
        <translation>Die Fläche</translation>
    </message>
    <message>
        <source>The area as people see it (Flannery)</source>
        <translation>Die Fläche, wie man sie wahrnimmt (Flannery)</translation>
    </message>
    <message>
        <source>The diameter</source>
        <translation>Der Durchmesser</translation>
    </message>
    <message>
        <source>One within the other</source>
        <translation>Ineinander</translation>
    </message>
    <message>
        <source>One below the other</source>
        <translation>Untereinander</translation>
    </message>
    <message>
        <source>Size by</source>
        <translation>Größe nach</translation>
    </message>
    <message>
        <source>An expression on the attributes as in SQL, “population / 100000”, for the size of the marker or the width of the line in points; where it has no value, the symbol keeps its own.</source>
        <translation>Ein Ausdruck über die Attribute wie in SQL, „population / 100000“, für die Größe des Markers oder die Breite der Linie in Punkt; wo er keinen Wert hat, behält das Symbol seine eigene.</translation>
    </message>
    <message>
        <source>Colour by</source>
        <translation>Farbe nach</translation>
    </message>
    <message>
        <source>An expression for the colour, a text like #rrggbb; where it has no value, the symbol keeps its own.</source>
        <translation>Ein Ausdruck für die Farbe, ein Text wie #rrggbb; wo er keinen Wert hat, behält das Symbol seine eigene.</translation>
    </message>
    <message>
        <source>Angle by</source>
        <translation>Winkel nach</translation>
    </message>
    <message>
        <source>An expression for the angle of the marker in degrees counterclockwise; where it has no value, the symbol keeps its own.</source>
        <translation>Ein Ausdruck für den Winkel des Markers in Grad gegen den Uhrzeigersinn; wo er keinen Wert hat, behält das Symbol seinen eigenen.</translation>
    </message>
    <message>
        <source>Rules that draw</source>
        <translation>Regeln, die zeichnen</translation>
    </message>
    <message>
        <source>Whether a feature is drawn by the first rule that fits it and draws at the map&apos;s scale, or by all such rules, the first one lowest.</source>
        <translation>Ob ein Objekt von der ersten Regel gezeichnet wird, die auf es passt und im Maßstab der Karte zeichnet, oder von allen solchen Regeln, die erste zuunterst.</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Which features are drawn how, and at which scales.</source>
        <translation>Welche Objekte wie und in welchen Maßstäben gezeichnet werden.</translation>
    </message>
    <message>
        <source>In legends</source>
        <translation>In Legenden</translation>
    </message>
    <message>
        <source>Whether legends list the rule.</source>
        <translation>Ob Legenden die Regel aufführen.</translation>
    </message>
    <message>
        <source>The marker, in its size for the reference.</source>
        <translation type="vanished">Der Marker in seiner Größe für die Bezugszahl.</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Bezugszahl</translation>
    </message>
    <message>
        <source>The number at which the marker has the size of its symbol; 0 for the largest number of the layer.</source>
        <translation>Die Zahl, bei der der Marker die Größe seines Symbols hat; 0 für die größte Zahl der Ebene.</translation>
    </message>
    <message>
        <source>Smallest size</source>
        <translation>Kleinste Größe</translation>
    </message>
    <message>
        <source>The size that no marker goes below.</source>
        <translation>Die Größe, die kein Marker unterschreitet.</translation>
    </message>
    <message>
        <source>In proportion</source>
        <translation>Im Verhältnis</translation>
    </message>
    <message>
        <source>What of a marker grows as the number does.</source>
        <translation>Was an einem Marker mit der Zahl wächst.</translation>
    </message>
    <message>
        <source>Markers in legends</source>
        <translation>Marker in Legenden</translation>
    </message>
    <message>
        <source>How a legend shows some sizes with their numbers.</source>
        <translation>Wie eine Legende einige Größen mit ihren Zahlen zeigt.</translation>
    </message>
    <message>
        <source>Numbers in legends</source>
        <translation>Zahlen in Legenden</translation>
    </message>
    <message>
        <source>The numbers whose sizes a legend shows; none for some round ones.</source>
        <translation>Die Zahlen, deren Größen eine Legende zeigt; keine für einige runde.</translation>
    </message>
    <message>
        <source>One symbol for all features, one for each value of an attribute, one for each range of a numeric attribute, symbols by rules, or markers in sizes by a number.</source>
        <translation>Ein Symbol für alle Objekte, eines für jeden Wert eines Attributs, eines für jeden Bereich eines Zahlenattributs, Symbole nach Regeln oder Marker in Größen nach einer Zahl.</translation>
    </message>
    <message>
        <source>A file</source>
        <translation>Eine Datei</translation>
    </message>
    <message>
        <source>The whole globe</source>
        <translation>Der ganze Globus</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>Markers and lines</source>
        <translation>Markierungen und Linien</translation>
    </message>
    <message>
        <source>Whole areas</source>
        <translation>Ganze Flächen</translation>
    </message>
    <message>
        <source>Group of layers</source>
        <translation>Ebenengruppe</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Whether the features come from a file, or the layer is one area that covers the whole globe, as the sea below countries; the other fields are those of a file.</source>
        <translation>Ob die Objekte aus einer Datei kommen oder die Ebene eine Fläche ist, die den ganzen Globus bedeckt, wie das Meer unter Ländern; die anderen Felder sind die einer Datei.</translation>
    </message>
    <message>
        <source>Kept free</source>
        <translation>Freigehalten</translation>
    </message>
    <message>
        <source>What the labels of other layers keep off: nothing, markers and lines, or these and whole areas.</source>
        <translation>Wovon die Beschriftungen anderer Ebenen wegbleiben: nichts, Markierungen und Linien, oder diese und ganze Flächen.</translation>
    </message>
    <message>
        <source>Above the line</source>
        <translation>Über der Linie</translation>
    </message>
    <message>
        <source>On the line</source>
        <translation>Auf der Linie</translation>
    </message>
    <message>
        <source>Curved with the line</source>
        <translation>Gebogen mit der Linie</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Innen</translation>
    </message>
    <message>
        <source>Outside where it does not fit</source>
        <translation>Außen, wo sie nicht passt</translation>
    </message>
    <message>
        <source>Text of an expression</source>
        <translation>Text eines Ausdrucks</translation>
    </message>
    <message>
        <source>An expression on the attributes as in SQL, “concat(name, &apos;, &apos;, country)”, for the text; where it has no value, the attribute&apos;s stands.</source>
        <translation>Ein Ausdruck über die Attribute wie in SQL, „concat(name, &apos;, &apos;, country)“, für den Text; wo er keinen Wert hat, steht der des Attributs.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>A code such as de: where a feature has an attribute of that language beside the one that is named (name:de or name_de beside name), it is the text.</source>
        <translation>Ein Kürzel wie de: Hat ein Objekt neben dem genannten Attribut eines in dieser Sprache (name:de oder name_de neben name), so ist dieses der Text.</translation>
    </message>
    <message>
        <source>Numbers as they are read</source>
        <translation>Zahlen in Leseschreibweise</translation>
    </message>
    <message>
        <source>Whether numbers have the decimal and thousands separators of the user&apos;s language.</source>
        <translation>Ob Zahlen die Dezimal- und Tausendertrennzeichen der Sprache des Benutzers haben.</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>From the mark of a point, or from the line, to the label.</source>
        <translation>Vom Zeichen eines Punktes oder von der Linie zur Beschriftung.</translation>
    </message>
    <message>
        <source>Broken at</source>
        <translation>Umbruch bei</translation>
    </message>
    <message>
        <source>The width at which labels of points are broken into lines; 0 for never.</source>
        <translation>Die Breite, bei der Beschriftungen von Punkten in Zeilen umbrochen werden; 0 für nie.</translation>
    </message>
    <message>
        <source>Places beside points</source>
        <translation>Plätze neben Punkten</translation>
    </message>
    <message>
        <source>Where a label may stand, the most wanted place first: upperRight, upperLeft, lowerRight, lowerLeft, right, left, above, below or centre; where none is named, all but the last in this order.</source>
        <translation type="vanished">Wo eine Beschriftung stehen darf, der liebste Platz zuerst: upperRight, upperLeft, lowerRight, lowerLeft, right, left, above, below oder centre (rechts oben, links oben, rechts unten, links unten, rechts, links, darüber, darunter, darauf); wo keiner genannt ist, alle außer dem letzten in dieser Reihenfolge.</translation>
    </message>
    <message>
        <source>Place along lines</source>
        <translation>Platz an Linien</translation>
    </message>
    <message>
        <source>How the label of a line lies on it; letters stand upright.</source>
        <translation type="vanished">Wie die Beschriftung einer Linie an ihr liegt; die Buchstaben stehen aufrecht.</translation>
    </message>
    <message>
        <source>Repeated after</source>
        <translation>Wiederholt nach</translation>
    </message>
    <message>
        <source>How far from each other the same text stands along lines; with 0, each line has one label.</source>
        <translation>Wie weit voneinander entfernt derselbe Text an Linien steht; bei 0 hat jede Linie eine Beschriftung.</translation>
    </message>
    <message>
        <source>Place at areas</source>
        <translation>Platz an Flächen</translation>
    </message>
    <message>
        <source>Whether a label that does not fit into its area is left out, or stands beside it with a line that leads there.</source>
        <translation type="vanished">Ob eine Beschriftung, die nicht in ihre Fläche passt, wegbleibt oder daneben steht, mit einer Linie, die hinführt.</translation>
    </message>
    <message>
        <source>Least size</source>
        <translation>Mindestgröße</translation>
    </message>
    <message>
        <source>On the page: shorter lines and narrower areas have no labels. 0 for no limit.</source>
        <translation>Auf der Seite: kürzere Linien und schmalere Flächen haben keine Beschriftung. 0 für keine Grenze.</translation>
    </message>
    <message>
        <source>Attribute of the key</source>
        <translation>Attribut des Schlüssels</translation>
    </message>
    <message>
        <source>The attribute by which pinned labels know their features; without one, the number that the file gives them.</source>
        <translation>Das Attribut, an dem festgesetzte Beschriftungen ihre Objekte erkennen; ohne eines die Nummer, die die Datei ihnen gibt.</translation>
    </message>
    <message>
        <source>Pinned labels</source>
        <translation>Festgesetzte Beschriftungen</translation>
    </message>
    <message>
        <source>Labels that stay where they were put, or are hidden.</source>
        <translation>Beschriftungen, die bleiben, wo sie hingesetzt wurden, oder verborgen sind.</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Which feature it is: the value of its key.</source>
        <translation>Welches Objekt es ist: der Wert seines Schlüssels.</translation>
    </message>
    <message>
        <source>Whether the feature has no label at all.</source>
        <translation>Ob das Objekt gar keine Beschriftung hat.</translation>
    </message>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>Of the middle of the text.</source>
        <translation>Der Mitte des Textes.</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>By which the text is turned counterclockwise on the page.</source>
        <translation>Um den der Text auf der Seite gegen den Uhrzeigersinn gedreht ist.</translation>
    </message>
    <message>
        <source>The marker, in its size for the reference; it stands in areas and on lines.</source>
        <translation>Der Marker in seiner Größe für die Bezugszahl; er steht in Flächen und auf Linien.</translation>
    </message>
    <message>
        <source>Colour of the box</source>
        <translation>Farbe des Kastens</translation>
    </message>
    <message>
        <source>The colour of a box behind the text, as callouts have.</source>
        <translation type="vanished">Die Farbe eines Kastens hinter dem Text, wie ihn Sprechblasen haben.</translation>
    </message>
    <message>
        <source>Colour of the box&apos;s line</source>
        <translation>Farbe der Kastenlinie</translation>
    </message>
    <message>
        <source>The colour of the line about the box.</source>
        <translation>Die Farbe der Linie um den Kasten.</translation>
    </message>
    <message>
        <source>Line of the box</source>
        <translation>Linie des Kastens</translation>
    </message>
    <message>
        <source>The width of the line about the box; 0 for none.</source>
        <translation>Die Breite der Linie um den Kasten; 0 für keine.</translation>
    </message>
    <message>
        <source>Padding of the box</source>
        <translation>Innenabstand des Kastens</translation>
    </message>
    <message>
        <source>From the text to the edge of its box.</source>
        <translation>Vom Text zum Rand seines Kastens.</translation>
    </message>
    <message>
        <source>What the document is called: [title] in a text of the page, and the title of files made of it. Without one it is the name of its file.</source>
        <translation>Wie das Dokument heißt: [title] in einem Text der Seite und der Titel von Dateien, die daraus entstehen. Ohne Angabe ist es der Name seiner Datei.</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Who made it: [author] in a text of the page.</source>
        <translation>Wer es gemacht hat: [author] in einem Text der Seite.</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>What it is about.</source>
        <translation>Wovon es handelt.</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Words by which it is to be found.</source>
        <translation>Wörter, unter denen es zu finden sein soll.</translation>
    </message>
    <message>
        <source>The language of its texts, as in “en”, “de-CH” or “zh-Hans”; programs that read a page aloud go by it.</source>
        <translation>Die Sprache seiner Texte, wie „en“, „de-CH“ oder „zh-Hans“; Programme, die eine Seite vorlesen, richten sich danach.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Angaben</translation>
    </message>
    <message>
        <source>What the document says about itself, and files made of it say, too.</source>
        <translation>Was das Dokument über sich sagt und auch Dateien sagen, die daraus entstehen.</translation>
    </message>
    <message>
        <source>What it says. [scale], [date:yyyy-MM-dd], [document], [map], [crs], [credits], [title], [author] and [page] are filled in while it is drawn.</source>
        <translation type="vanished">Was er sagt. [scale], [date:yyyy-MM-dd], [document], [map], [crs], [credits], [title], [author] und [page] werden beim Zeichnen ausgefüllt.</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>A page for each feature of a layer, or for each row of a table.</source>
        <translation>Eine Seite für jedes Objekt einer Ebene oder für jede Zeile einer Tabelle.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>On which pages of a series it stands: first, last, odd, even, numbers as in “1-3,7”, or a condition on the attributes of the page&apos;s feature; empty for all.</source>
        <translation>Auf welchen Seiten einer Serie es steht: first, last, odd, even, Nummern wie „1-3,7“ oder eine Bedingung an die Attribute des Objekts der Seite; leer für alle.</translation>
    </message>
    <message>
        <source>What it says. [scale], [date:yyyy-MM-dd], [document], [map], [crs], [credits], [title], [author], [page], [pages], [field:NAME] and [neighbour:north] are filled in while it is drawn.</source>
        <translation>Was er sagt. [scale], [date:yyyy-MM-dd], [document], [map], [crs], [credits], [title], [author], [page], [pages], [field:NAME] und [neighbour:north] werden beim Zeichnen ausgefüllt.</translation>
    </message>
    <message>
        <source>The name of a layer of the map: each of its features has a page. Empty where a source of its own has the features.</source>
        <translation>Der Name einer Ebene der Karte: jedes ihrer Objekte hat eine Seite. Leer, wo eine eigene Quelle die Objekte hat.</translation>
    </message>
    <message>
        <source>Data of which no map has a layer: each feature or row of a table has a page.</source>
        <translation>Daten, von denen keine Karte eine Ebene hat: jedes Objekt und jede Zeile einer Tabelle hat eine Seite.</translation>
    </message>
    <message>
        <source>A condition on the attributes as in SQL: only features that meet it have a page.</source>
        <translation>Eine Bedingung an die Attribute wie in SQL: nur Objekte, die sie erfüllen, haben eine Seite.</translation>
    </message>
    <message>
        <source>Sorted by</source>
        <translation>Sortiert nach</translation>
    </message>
    <message>
        <source>The attribute by which pages are in order; empty for the order of the data. What has no value comes last.</source>
        <translation>Das Attribut, nach dem die Seiten geordnet sind; leer für die Reihenfolge der Daten. Was keinen Wert hat, kommt zuletzt.</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Absteigend</translation>
    </message>
    <message>
        <source>Whether the highest value comes first.</source>
        <translation>Ob der höchste Wert zuerst kommt.</translation>
    </message>
    <message>
        <source>Name of a page</source>
        <translation>Name einer Seite</translation>
    </message>
    <message>
        <source>What a page is called in lists and bookmarks, as in “[field:name]”. Empty for the value by which pages are sorted, or their number.</source>
        <translation>Wie eine Seite in Listen und Lesezeichen heißt, wie „[field:name]“. Leer für den Wert, nach dem sortiert ist, oder ihre Nummer.</translation>
    </message>
    <message>
        <source>Other maps that follow</source>
        <translation>Andere Karten, die folgen</translation>
    </message>
    <message>
        <source>Maps of further data frames that follow the features, each in its own way.</source>
        <translation>Karten weiterer Datenrahmen, die den Objekten folgen, jede auf ihre Weise.</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>Hervorhebung</translation>
    </message>
    <message>
        <source>With what the feature of the page is drawn over its layer; without it, it is not.</source>
        <translation>Womit das Objekt der Seite über seiner Ebene gezeichnet wird; ohne sie wird es nicht hervorgehoben.</translation>
    </message>
    <message>
        <source>Hide others</source>
        <translation>Andere ausblenden</translation>
    </message>
    <message>
        <source>Whether the other features of the layer are left out, with their labels.</source>
        <translation>Ob die anderen Objekte der Ebene mit ihren Beschriftungen weggelassen werden.</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Außerhalb</translation>
    </message>
    <message>
        <source>With what all that lies outside the feature&apos;s area is covered, as far as it lies below the layer; without it, nothing is.</source>
        <translation>Womit alles bedeckt wird, was außerhalb der Fläche des Objekts und unter der Ebene liegt; ohne es wird nichts bedeckt.</translation>
    </message>
    <message>
        <source>The number of the map that follows the features; −1 for none.</source>
        <translation>Die Nummer der Karte, die den Objekten folgt; −1 für keine.</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>What is left free at each side, in parts of the feature&apos;s size.</source>
        <translation>Was an jeder Seite frei bleibt, in Teilen der Größe des Objekts.</translation>
    </message>
    <message>
        <source>The scale of the map on all pages; 0 for one that the feature fits.</source>
        <translation>Der Maßstab der Karte auf allen Seiten; 0 für einen, in den das Objekt passt.</translation>
    </message>
    <message>
        <source>Scales to choose from</source>
        <translation>Maßstäbe zur Auswahl</translation>
    </message>
    <message>
        <source>The map gets the largest of these that shows the whole feature. Where none does, or none is given, it is fitted freely.</source>
        <translation>Die Karte bekommt den größten von diesen, der das ganze Objekt zeigt. Wo es keiner tut oder keiner angegeben ist, wird sie frei eingepasst.</translation>
    </message>
    <message>
        <source>Main part</source>
        <translation>Hauptteil</translation>
    </message>
    <message>
        <source>Whether the map shows the largest part of the feature with what lies near, and lets far islands go.</source>
        <translation>Ob die Karte den größten Teil des Objekts mit dem zeigt, was nahe liegt, und ferne Inseln weglässt.</translation>
    </message>
    <message>
        <source>Along lines</source>
        <translation>Entlang von Linien</translation>
    </message>
    <message>
        <source>Whether the map is turned so that a line leads from left to right.</source>
        <translation>Ob die Karte so gedreht wird, dass eine Linie von links nach rechts führt.</translation>
    </message>
    <message>
        <source>Rotation by</source>
        <translation>Drehung nach</translation>
    </message>
    <message>
        <source>The attribute that holds by how many degrees the map is turned counterclockwise; empty for none.</source>
        <translation>Das Attribut, das angibt, um wie viele Grad die Karte gegen den Uhrzeigersinn gedreht wird; leer für keines.</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>What was chosen for files made of the page, and for paper.</source>
        <translation>Was für Dateien aus der Seite und für Papier gewählt wurde.</translation>
    </message>
    <message>
        <source>As the page</source>
        <translation>Wie die Seite</translation>
    </message>
    <message>
        <source>Real size, on several sheets if need be</source>
        <translation>Wirkliche Größe, wenn nötig auf mehreren Blättern</translation>
    </message>
    <message>
        <source>Fitted to one sheet</source>
        <translation>Auf ein Blatt eingepasst</translation>
    </message>
    <message>
        <source>Resolution (DPI)</source>
        <translation>Auflösung (DPI)</translation>
    </message>
    <message>
        <source>Pixels per inch of paper: of images, and of pictures in a file of shapes.</source>
        <translation>Pixel je Zoll Papier: von Bildern und von Bildern in einer Datei aus Formen.</translation>
    </message>
    <message>
        <source>Texts as shapes</source>
        <translation>Texte als Formen</translation>
    </message>
    <message>
        <source>Whether letters are drawn as outlines. They look the same everywhere, and can&apos;t be searched or copied.</source>
        <translation>Ob Buchstaben als Umrisse gezeichnet werden. Sie sehen dann überall gleich aus und lassen sich nicht suchen oder kopieren.</translation>
    </message>
    <message>
        <source>Bleed</source>
        <translation type="vanished">Beschnittzugabe</translation>
    </message>
    <message>
        <source>How far the background and what lies over the page&apos;s edges is drawn beyond them in a PDF, so that nothing is left white where paper is cut.</source>
        <translation type="vanished">Wie weit der Hintergrund und was über die Ränder der Seite reicht in einem PDF darüber hinaus gezeichnet wird, damit beim Schneiden nichts weiß bleibt.</translation>
    </message>
    <message>
        <source>Crop marks</source>
        <translation>Schnittmarken</translation>
    </message>
    <message>
        <source>Whether a PDF has marks where the paper is to be cut.</source>
        <translation>Ob ein PDF Marken hat, wo das Papier zu schneiden ist.</translation>
    </message>
    <message>
        <source>Layers can be hidden</source>
        <translation>Ebenen ausblendbar</translation>
    </message>
    <message>
        <source>Whether who reads the file can hide and show the maps&apos; layers.</source>
        <translation>Ob, wer die Datei liest, die Ebenen der Karten aus- und einblenden kann.</translation>
    </message>
    <message>
        <source>Open afterwards</source>
        <translation>Danach öffnen</translation>
    </message>
    <message>
        <source>Whether the window opens the file once it is written.</source>
        <translation>Ob das Fenster die Datei öffnet, sobald sie geschrieben ist.</translation>
    </message>
    <message>
        <source>The paper of the printer: that of the page, or another one.</source>
        <translation>Das Papier des Druckers: das der Seite oder ein anderes.</translation>
    </message>
    <message>
        <source>Whether the page is printed as large as it is, on several sheets to be glued where it is larger than the paper, or made to fit on one.</source>
        <translation>Ob die Seite so groß gedruckt wird, wie sie ist, auf mehrere Blätter zum Kleben, wo sie größer ist als das Papier, oder passend auf eines.</translation>
    </message>
    <message>
        <source>Overlap</source>
        <translation>Überlappung</translation>
    </message>
    <message>
        <source>How far neighbouring sheets show the same, to be glued there.</source>
        <translation>Wie weit benachbarte Blätter dasselbe zeigen, um dort geklebt zu werden.</translation>
    </message>
    <message>
        <source>Marks to cut and glue</source>
        <translation>Marken zum Schneiden und Kleben</translation>
    </message>
    <message>
        <source>Whether several sheets have marks at which they are cut, and lines to which the next one is glued.</source>
        <translation>Ob mehrere Blätter Marken haben, an denen sie geschnitten werden, und Linien, an die das nächste geklebt wird.</translation>
    </message>
    <message>
        <source>Numbers of sheets</source>
        <translation>Nummern der Blätter</translation>
    </message>
    <message>
        <source>Whether several sheets say in which row and column they belong.</source>
        <translation>Ob mehrere Blätter sagen, in welche Zeile und Spalte sie gehören.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>What was chosen for files made of the page.</source>
        <translation>Was für Dateien aus der Seite gewählt wurde.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>What was chosen for the page on paper.</source>
        <translation>Was für die Seite auf Papier gewählt wurde.</translation>
    </message>
    <message>
        <source>Bleed (mm)</source>
        <translation>Beschnitt (mm)</translation>
    </message>
    <message>
        <source>How many millimetres the background and what lies over the page&apos;s edges is drawn beyond them in a PDF, so that nothing is left white where paper is cut.</source>
        <translation>Wie viele Millimeter der Hintergrund und was über die Ränder der Seite reicht in einem PDF darüber hinaus gezeichnet wird, damit beim Schneiden des Papiers nichts weiß bleibt.</translation>
    </message>
    <message>
        <source>Allowed folders</source>
        <translation type="vanished">Erlaubte Ordner</translation>
    </message>
    <message>
        <source>Folders of which documents may use files, also of folders in them, without being told of; one a line.</source>
        <translation type="vanished">Ordner, deren Dateien Dokumente verwenden dürfen, auch solche aus Ordnern darin, ohne dass darauf hingewiesen wird; einer je Zeile.</translation>
    </message>
    <message>
        <source>was not written to its end</source>
        <translation>wurde nicht zu Ende geschrieben</translation>
    </message>
    <message>
        <source>Raster</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>The nearest pixel</source>
        <translation>Das nächste Pixel</translation>
    </message>
    <message>
        <source>Bilinear</source>
        <translation>Bilinear</translation>
    </message>
    <message>
        <source>Cubic</source>
        <translation>Kubisch</translation>
    </message>
    <message>
        <source>Mean of what a pixel covers</source>
        <translation>Mittel dessen, was ein Pixel bedeckt</translation>
    </message>
    <message>
        <source>The local file of the pixels (GeoTIFF, JPEG 2000, GeoPackage or MBTiles, PNG or JPEG with a world file), relative to the document.</source>
        <translation>Die lokale Datei mit den Pixeln (GeoTIFF, JPEG 2000, GeoPackage oder MBTiles, PNG oder JPEG mit einer World-Datei), relativ zum Dokument.</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Keine Daten</translation>
    </message>
    <message>
        <source>Values that mean that there is none, beside what the file says.</source>
        <translation>Werte, die bedeuten, dass es keinen gibt, neben dem, was die Datei sagt.</translation>
    </message>
    <message>
        <source>How the raster is drawn.</source>
        <translation>Wie das Raster gezeichnet wird.</translation>
    </message>
    <message>
        <source>Resampling</source>
        <translation>Umrechnung</translation>
    </message>
    <message>
        <source>How values are found between the pixels of the raster. A palette always takes the nearest one.</source>
        <translation>Wie Werte zwischen den Pixeln des Rasters gefunden werden. Eine Palette nimmt immer das nächste.</translation>
    </message>
    <message>
        <source>Colours of bands</source>
        <translation>Farben aus Kanälen</translation>
    </message>
    <message>
        <source>A colour for each value</source>
        <translation>Eine Farbe für jeden Wert</translation>
    </message>
    <message>
        <source>Colours by a number</source>
        <translation>Farben nach einer Zahl</translation>
    </message>
    <message>
        <source>Hillshade</source>
        <translation>Schummerung</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>Hangneigung</translation>
    </message>
    <message>
        <source>Between two numbers</source>
        <translation>Zwischen zwei Zahlen</translation>
    </message>
    <message>
        <source>From the least to the greatest</source>
        <translation>Vom kleinsten zum größten</translation>
    </message>
    <message>
        <source>By standard deviations</source>
        <translation>Nach Standardabweichungen</translation>
    </message>
    <message>
        <source>By percentiles</source>
        <translation>Nach Perzentilen</translation>
    </message>
    <message>
        <source>Mixed between the values</source>
        <translation>Zwischen den Werten gemischt</translation>
    </message>
    <message>
        <source>One for each class</source>
        <translation>Eine für jede Klasse</translation>
    </message>
    <message>
        <source>The number of the band, counted from 1.</source>
        <translation>Die Nummer des Kanals, gezählt von 1.</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Streckung</translation>
    </message>
    <message>
        <source>Which values get the ends of the colours: 0 and 255 without one, two numbers, or what is found in an overview of the raster.</source>
        <translation>Welche Werte die Enden der Farben bekommen: 0 und 255 ohne Streckung, zwei Zahlen, oder was in einer Übersicht des Rasters gefunden wird.</translation>
    </message>
    <message>
        <source>Least value</source>
        <translation>Kleinster Wert</translation>
    </message>
    <message>
        <source>Where the colours begin, of a stretch between two numbers.</source>
        <translation>Wo die Farben beginnen, bei einer Streckung zwischen zwei Zahlen.</translation>
    </message>
    <message>
        <source>Greatest value</source>
        <translation>Größter Wert</translation>
    </message>
    <message>
        <source>Where the colours end, of a stretch between two numbers.</source>
        <translation>Wo die Farben enden, bei einer Streckung zwischen zwei Zahlen.</translation>
    </message>
    <message>
        <source>Standard deviations</source>
        <translation>Standardabweichungen</translation>
    </message>
    <message>
        <source>To either side of the mean, of a stretch by standard deviations.</source>
        <translation>Nach beiden Seiten des Mittels, bei einer Streckung nach Standardabweichungen.</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>Abgeschnitten</translation>
    </message>
    <message>
        <source>Of the values at either end, of a stretch by percentiles.</source>
        <translation>Von den Werten an beiden Enden, bei einer Streckung nach Perzentilen.</translation>
    </message>
    <message>
        <source>Colour ramp</source>
        <translation>Farbreihe</translation>
    </message>
    <message>
        <source>The row of colours, as it is known by its name.</source>
        <translation>Die Reihe von Farben, wie sie unter ihrem Namen bekannt ist.</translation>
    </message>
    <message>
        <source>Reversed</source>
        <translation>Umgekehrt</translation>
    </message>
    <message>
        <source>Whether the ramp begins with its last colour.</source>
        <translation>Ob die Reihe mit ihrer letzten Farbe beginnt.</translation>
    </message>
    <message>
        <source>Values with their colours, in any order; without any, those of the file or the ramp count.</source>
        <translation>Werte mit ihren Farben, in beliebiger Reihenfolge; ohne sie gelten die der Datei oder der Farbreihe.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>The value, or the first of those that belong to the class.</source>
        <translation>Der Wert, oder der erste von denen, die zur Klasse gehören.</translation>
    </message>
    <message>
        <source>What it is drawn in.</source>
        <translation>Worin er gezeichnet wird.</translation>
    </message>
    <message>
        <source>What a legend calls it; the value where it is empty.</source>
        <translation type="vanished">Wie eine Legende ihn nennt; der Wert, wo es leer ist.</translation>
    </message>
    <message>
        <source>Vertical factor</source>
        <translation>Höhenfaktor</translation>
    </message>
    <message>
        <source>Heights times this are metres: 0.3048 for feet, or more than 1 to show the ground steeper than it is.</source>
        <translation>Höhen mal diesem Faktor sind Meter: 0,3048 für Fuß, oder mehr als 1, um das Gelände steiler zu zeigen, als es ist.</translation>
    </message>
    <message>
        <source>How colours are made of the raster&apos;s values.</source>
        <translation>Wie aus den Werten des Rasters Farben werden.</translation>
    </message>
    <message>
        <source>Red band</source>
        <translation>Kanal für Rot</translation>
    </message>
    <message>
        <source>Green band</source>
        <translation>Kanal für Grün</translation>
    </message>
    <message>
        <source>Blue band</source>
        <translation>Kanal für Blau</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>More than 1 brightens the middle, less darkens it.</source>
        <translation>Mehr als 1 hellt die Mitte auf, weniger dunkelt sie ab.</translation>
    </message>
    <message>
        <source>Whether colours are mixed between the values of classes, or each holds up to the next.</source>
        <translation>Ob Farben zwischen den Werten der Klassen gemischt werden, oder jede bis zur nächsten gilt.</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>Where the light comes from, clockwise from the top of the page.</source>
        <translation>Woher das Licht kommt, im Uhrzeigersinn vom oberen Rand der Seite.</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höhenwinkel</translation>
    </message>
    <message>
        <source>How high the light stands above the horizon.</source>
        <translation>Wie hoch das Licht über dem Horizont steht.</translation>
    </message>
    <message>
        <source>From several directions</source>
        <translation>Aus mehreren Richtungen</translation>
    </message>
    <message>
        <source>Whether light comes from west and north and between, most from the side that shows a slope best; the azimuth does not count then.</source>
        <translation>Ob Licht von Westen, Norden und dazwischen kommt, am meisten von der Seite, die einen Hang am besten zeigt; der Azimut zählt dann nicht.</translation>
    </message>
    <message>
        <source>Steepest</source>
        <translation>Steilste Neigung</translation>
    </message>
    <message>
        <source>The slope that gets the last colour of the ramp.</source>
        <translation>Die Neigung, die die letzte Farbe der Reihe bekommt.</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>More than 0 lightens all colours of the layer, less darkens them.</source>
        <translation>Mehr als 0 hellt alle Farben der Ebene auf, weniger dunkelt sie ab.</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>More than 0 sets colours apart from a middle grey, less brings them to it.</source>
        <translation>Mehr als 0 entfernt Farben von einem mittleren Grau, weniger bringt sie ihm näher.</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>−100 leaves nothing but greys; more than 0 makes colours stronger.</source>
        <translation>−100 lässt nur Grautöne übrig; mehr als 0 macht Farben kräftiger.</translation>
    </message>
    <message>
        <source>Connections</source>
        <translation type="vanished">Verbindungen</translation>
    </message>
    <message>
        <source>Databases by the names that documents have for them.</source>
        <translation type="vanished">Datenbanken unter den Namen, die Dokumente für sie haben.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Stands in for the file where it is not empty: the name of a connection to a PostGIS database, as it is called on the computer that opens the document.</source>
        <translation>Steht anstelle der Datei, wo er nicht leer ist: der Name einer Verbindung zu einer PostGIS-Datenbank, wie sie auf dem Rechner heißt, der das Dokument öffnet.</translation>
    </message>
    <message>
        <source>Its name in the file; the first one where it is empty. Of a connection, the table with its schema, as in “public.roads”.</source>
        <translation>Ihr Name in der Datei; die erste, wo er leer ist. Bei einer Verbindung die Tabelle mit ihrem Schema, wie in „public.roads“.</translation>
    </message>
    <message>
        <source>Where the server can</source>
        <translation>Wo der Server es kann</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Always, by a known authority</source>
        <translation>Immer, mit bekannter Zertifizierungsstelle</translation>
    </message>
    <message>
        <source>Always, by a known authority and for this host</source>
        <translation>Immer, mit bekannter Zertifizierungsstelle und für diesen Rechner</translation>
    </message>
    <message>
        <source>What documents call it: letters, digits, “-”, “_” and “.”.</source>
        <translation>Wie Dokumente sie nennen: Buchstaben, Ziffern, „-“, „_“ und „.“.</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Rechner</translation>
    </message>
    <message>
        <source>The computer that the server runs on, or the folder of its socket; empty for this computer&apos;s own.</source>
        <translation>Der Rechner, auf dem der Server läuft, oder der Ordner seines Sockets; leer für den dieses Rechners.</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>At which the server listens.</source>
        <translation>An dem der Server lauscht.</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>Its name on the server; that of the user where it is empty.</source>
        <translation>Ihr Name auf dem Server; der des Benutzers, wo er leer ist.</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>The server&apos;s user, best one that may only read; your own name where it is empty. The password is asked for, or stands in the file .pgpass.</source>
        <translation>Der Benutzer des Servers, am besten einer, der nur lesen darf; Ihr eigener Name, wo er leer ist. Nach dem Passwort wird gefragt, oder es steht in der Datei .pgpass.</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <translation>Verschlüsselt</translation>
    </message>
    <message>
        <source>Whether what is read is encrypted on its way, and whether the server must prove who it is.</source>
        <translation>Ob das Gelesene unterwegs verschlüsselt ist und ob der Server sich ausweisen muss.</translation>
    </message>
    <message>
        <source>Timeout</source>
        <translation type="vanished">Zeitgrenze</translation>
    </message>
    <message>
        <source>So many seconds the server may take for an answer.</source>
        <translation>So viele Sekunden darf der Server für eine Antwort brauchen.</translation>
    </message>
    <message>
        <source>Open to documents</source>
        <translation>Für Dokumente offen</translation>
    </message>
    <message>
        <source>Whether documents that are opened in the window may read from it without that being asked, whoever made them.</source>
        <translation>Ob Dokumente, die im Fenster geöffnet werden, daraus lesen dürfen, ohne dass gefragt wird, von wem sie auch sind.</translation>
    </message>
    <message>
        <source>Timeout in seconds</source>
        <translation>Zeitgrenze in Sekunden</translation>
    </message>
    <message>
        <source>What a legend calls it; where it is empty, its value, or from where to where it reaches.</source>
        <translation>Wie eine Legende sie nennt; wenn leer, ihr Wert oder von wo bis wo sie reicht.</translation>
    </message>
    <message>
        <source>there is no field “%1”</source>
        <translation>es gibt kein Feld „%1“</translation>
    </message>
    <message>
        <source>Across the border where it does not fit</source>
        <translation>Über die Grenze hinaus, wo sie nicht passt</translation>
    </message>
    <message>
        <source>Where a label may stand, the most wanted place first: upperRight, upperLeft, lowerRight, lowerLeft, right, left, above, below or centre; where none is named, all but the last in this order, and some between them.</source>
        <translation>Wo eine Beschriftung stehen darf, der liebste Platz zuerst: upperRight, upperLeft, lowerRight, lowerLeft, right, left, above, below oder centre (rechts oben, links oben, rechts unten, links unten, rechts, links, darüber, darunter, darauf); wo keiner genannt ist, alle außer dem letzten in dieser Reihenfolge, und einige dazwischen.</translation>
    </message>
    <message>
        <source>Whether a label that does not fit into its area is left out, reaches beyond it, or stands beside it with a line that leads there.</source>
        <translation>Ob eine Beschriftung, die nicht in ihre Fläche passt, wegbleibt, über sie hinausreicht oder daneben steht, mit einer Linie, die hinführt.</translation>
    </message>
    <message>
        <source>A numeric attribute: no label of a feature with a higher number is given up for others; without one, all count alike.</source>
        <translation>Ein Zahlenattribut: Keine Beschriftung eines Objekts mit einer höheren Zahl wird für andere aufgegeben; ohne es zählen alle gleich.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Waagrecht</translation>
    </message>
    <message>
        <source>Along the area</source>
        <translation>Der Fläche nach</translation>
    </message>
    <message>
        <source>Spread over the area</source>
        <translation>Über die Fläche gesperrt</translation>
    </message>
    <message>
        <source>In areas</source>
        <translation>In Flächen</translation>
    </message>
    <message>
        <source>How a label lies in its area: level, along the area&apos;s length, or along it with its letters as far apart as tells how far the area reaches. Where the area holds no such label, it lies level.</source>
        <translation>Wie eine Beschriftung in ihrer Fläche liegt: waagrecht, der Länge der Fläche nach, oder dieser nach mit so weit gesperrten Buchstaben, dass man sieht, wie weit die Fläche reicht. Wo die Fläche keine solche fasst, liegt sie waagrecht.</translation>
    </message>
    <message>
        <source>Level on the line</source>
        <translation>Waagrecht auf der Linie</translation>
    </message>
    <message>
        <source>How the label of a line lies on it; letters stand upright. Level ones turn with no line, as the shields of roads.</source>
        <translation>Wie die Beschriftung einer Linie auf ihr liegt; Buchstaben stehen aufrecht. Waagrechte drehen sich mit keiner Linie, wie die Nummernschilder von Straßen.</translation>
    </message>
    <message>
        <source>Round corners</source>
        <translation>Runde Ecken</translation>
    </message>
    <message>
        <source>Round ends</source>
        <translation>Runde Enden</translation>
    </message>
    <message>
        <source>The colour of a box behind the text, as callouts and shields have.</source>
        <translation>Die Farbe eines Kastens hinter dem Text, wie ihn Sprechblasen und Nummernschilder haben.</translation>
    </message>
    <message>
        <source>Shape of the box</source>
        <translation>Form des Kastens</translation>
    </message>
    <message>
        <source>Whether the box has corners, round corners or round ends.</source>
        <translation>Ob der Kasten Ecken, runde Ecken oder runde Enden hat.</translation>
    </message>
    <message>
        <source>Features of the font</source>
        <translation>Eigenschaften der Schrift</translation>
    </message>
    <message>
        <source>OpenType features by their tags, where the font has them: smcp for small capitals, onum for old-style and lnum for lining figures, tnum for figures of one width, dlig for rare ligatures, ss01 for a stylistic set; liga=0 for no ligatures.</source>
        <translation>OpenType-Eigenschaften nach ihren Kürzeln, wo die Schrift sie hat: smcp für Kapitälchen, onum für Mediäval- und lnum für Versalziffern, tnum für Ziffern gleicher Breite, dlig für seltene Ligaturen, ss01 für eine Stilgruppe; liga=0 für keine Ligaturen.</translation>
    </message>
    <message>
        <source>How the labels of all layers are placed against each other.</source>
        <translation>Wie die Beschriftungen aller Ebenen gegeneinander platziert werden.</translation>
    </message>
    <message>
        <source>Effort</source>
        <translation>Aufwand</translation>
    </message>
    <message>
        <source>How many times as long as usual the search for their places may take. More labels find a place, where many are in each other&apos;s way.</source>
        <translation>Wievielmal so lange wie üblich die Suche nach ihren Plätzen dauern darf. Wo viele einander im Weg sind, finden mehr Beschriftungen Platz.</translation>
    </message>
    <message>
        <source>Label placement</source>
        <translation>Platzierung der Beschriftungen</translation>
    </message>
</context>
<context>
    <name>FileFacts</name>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>None: the layer is the whole globe</source>
        <translation>Keine: Die Ebene ist der ganze Globus</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Layer of the file</source>
        <translation>Ebene der Datei</translation>
    </message>
    <message>
        <source>Geometries</source>
        <translation>Geometrien</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>not counted yet</source>
        <translation>noch nicht gezählt</translation>
    </message>
    <message>
        <source>Extent</source>
        <translation>Ausdehnung</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>Koordinatensystem</translation>
    </message>
    <message>
        <source>The file names none</source>
        <translation>Die Datei nennt keines</translation>
    </message>
    <message>
        <source>Columns of places</source>
        <translation>Spalten der Orte</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>The layer has no file.</source>
        <translation>Die Ebene hat keine Datei.</translation>
    </message>
    <message>
        <source>The file is being read.</source>
        <translation>Die Datei wird gelesen.</translation>
    </message>
    <message>
        <source>The file has no layer “%1”.</source>
        <translation>Die Datei hat keine Ebene „%1“.</translation>
    </message>
    <message>
        <source>The file names no coordinate system.</source>
        <translation>Die Datei nennt kein Koordinatensystem.</translation>
    </message>
    <message>
        <source>The file says: %1.</source>
        <translation>Die Datei sagt: %1.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>Pages %1 and %2 would both be written to %3, so nothing was written; tell them apart, as with “[page]” in the name.</source>
        <translation>Die Seiten %1 und %2 würden beide nach %3 geschrieben, daher wurde nichts geschrieben; unterscheiden Sie sie, etwa mit „[page]“ im Namen.</translation>
    </message>
    <message>
        <source>%1: “[%2]” stands for nothing in the name of a file; use “[page]”, “[page:name]”, “[pages]” or “[field:name]”.</source>
        <translation>%1: „[%2]“ steht im Namen einer Datei für nichts; nehmen Sie „[page]“, „[page:name]“, „[pages]“ oder „[field:name]“.</translation>
    </message>
</context>
<context>
    <name>FileReach</name>
    <message>
        <source>it lies outside the document&apos;s folder; move it there, or pass --allow %1</source>
        <translation>sie liegt außerhalb des Ordners des Dokuments; legen Sie sie dorthin oder geben Sie --allow %1 an</translation>
    </message>
    <message>
        <source>it leads to %1, outside the document&apos;s folder; put a copy there, or pass --allow %2</source>
        <translation>sie führt zu %1, außerhalb des Ordners des Dokuments; legen Sie eine Kopie dorthin oder geben Sie --allow %2 an</translation>
    </message>
</context>
<context>
    <name>FileSaver</name>
    <message>
        <source>its folder does not exist</source>
        <translation type="vanished">der Ordner existiert nicht</translation>
    </message>
    <message>
        <source>there is no room for it</source>
        <translation>es ist kein Platz dafür</translation>
    </message>
    <message>
        <source>this is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>choose a file name</source>
        <translation type="vanished">wählen Sie einen Dateinamen</translation>
    </message>
    <message>
        <source>create the folder or choose another</source>
        <translation type="vanished">legen Sie den Ordner an, oder wählen Sie einen anderen</translation>
    </message>
    <message>
        <source>choose a place where you may write</source>
        <translation>wählen Sie einen Ort, an dem Sie schreiben dürfen</translation>
    </message>
    <message>
        <source>free some space or choose another place</source>
        <translation>schaffen Sie Platz, oder wählen Sie einen anderen Ort</translation>
    </message>
    <message>
        <source>check the disk or choose another place</source>
        <translation>prüfen Sie den Datenträger, oder wählen Sie einen anderen Ort</translation>
    </message>
    <message>
        <source>No file was named; give it a name.</source>
        <translation>Es wurde keine Datei genannt; geben Sie ihr einen Namen.</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>der Ordner %1 existiert nicht</translation>
    </message>
    <message>
        <source>make it first, or choose another</source>
        <translation>legen Sie ihn an oder wählen Sie einen anderen</translation>
    </message>
    <message>
        <source>name a file in it</source>
        <translation>nennen Sie eine Datei darin</translation>
    </message>
    <message>
        <source>choose another name</source>
        <translation>wählen Sie einen anderen Namen</translation>
    </message>
    <message>
        <source>this is no ordinary file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the folder %1 can&apos;t be written (%2)</source>
        <translation>in den Ordner %1 kann nicht geschrieben werden (%2)</translation>
    </message>
    <message>
        <source>choose another</source>
        <translation>wählen Sie einen anderen</translation>
    </message>
    <message>
        <source>this file is write-protected</source>
        <translation>diese Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>choose another name, or unlock it</source>
        <translation>wählen Sie einen anderen Namen oder heben Sie den Schutz auf</translation>
    </message>
    <message>
        <source>choose another place</source>
        <translation>Wählen Sie einen anderen Ort</translation>
    </message>
    <message>
        <source>owner</source>
        <translation>Eigentümer</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>permissions</source>
        <translation>Zugriffsrechte</translation>
    </message>
    <message>
        <source>access control list</source>
        <translation>Zugriffssteuerungsliste</translation>
    </message>
    <message>
        <source>its folder could not be written to the disk (%1), so that a power cut may bring back what was there before</source>
        <translation>sein Ordner konnte nicht auf den Datenträger geschrieben werden (%1), sodass ein Stromausfall den früheren Stand zurückbringen kann</translation>
    </message>
    <message>
        <source>the system did not let it keep these of the file before: %1</source>
        <translation>das System ließ nicht zu, dies von der früheren Datei zu übernehmen: %1</translation>
    </message>
    <message>
        <source>%1 was saved, but %2.</source>
        <translation>%1 wurde gespeichert, aber %2.</translation>
    </message>
    <message>
        <source>; and </source>
        <translation>; und </translation>
    </message>
</context>
<context>
    <name>FontNotes</name>
    <message>
        <source>The font %1 is not installed; another one stands in for it.</source>
        <translation>Die Schrift %1 ist nicht installiert; eine andere steht für sie ein.</translation>
    </message>
    <message>
        <source>No font that is installed has these letters, so that boxes stand for them: %1</source>
        <translation>Keine installierte Schrift hat diese Zeichen, sodass Kästchen für sie stehen: %1</translation>
    </message>
    <message>
        <source>The font lacks a feature that a text asks for: %1.</source>
        <translation>Der Schrift fehlt eine Eigenschaft, die ein Text verlangt: %1.</translation>
    </message>
</context>
<context>
    <name>FrameSettings</name>
    <message>
        <source>a part of a frame of a kind that can&apos;t be stored</source>
        <translation>ein Rahmenteil einer Art, die sich nicht speichern lässt</translation>
    </message>
    <message>
        <source>“%1” is not a paper form; “A4” and “Custom” are</source>
        <translation type="vanished">„%1“ ist kein Papierformat; „A4“ und „Custom“ sind welche</translation>
    </message>
</context>
<context>
    <name>GdalErrors</name>
    <message>
        <source>it is a view that calls itself, reads another file or can&apos;t be understood; store its rows as a table</source>
        <translation type="vanished">es ist eine Sicht, die sich selbst aufruft, eine andere Datei liest oder nicht verstanden wird; speichern Sie ihre Zeilen als Tabelle</translation>
    </message>
    <message>
        <source>it holds a view that calls itself or reads another file; store its rows as a table</source>
        <translation>sie enthält eine Sicht, die sich selbst aufruft oder eine andere Datei liest; speichern Sie ihre Zeilen als Tabelle</translation>
    </message>
    <message>
        <source>its view takes longer than a file of its size explains; store its rows as a table</source>
        <translation>ihre Sicht braucht länger, als die Größe der Datei erklärt; speichern Sie ihre Zeilen als Tabelle</translation>
    </message>
    <message>
        <source>it holds a value that is longer than the file</source>
        <translation>sie enthält einen Wert, der länger ist als die Datei</translation>
    </message>
    <message>
        <source>it is a view that calls itself, reads another file, uses a function that could take for ever, or can&apos;t be understood; store its rows as a table</source>
        <translation>es ist eine Sicht, die sich selbst aufruft, eine andere Datei liest, eine Funktion nutzt, die endlos dauern könnte, oder nicht verstanden wird; speichern Sie ihre Zeilen als Tabelle</translation>
    </message>
    <message>
        <source>PROJ knows no way from one to the other, as where they are those of two celestial bodies</source>
        <translation>PROJ kennt keinen Weg vom einen zum anderen, wie bei denen zweier Himmelskörper</translation>
    </message>
    <message>
        <source>it compares a date with what is none; dates are written like &apos;2024-06-01&apos;, in quotes</source>
        <translation>er vergleicht ein Datum mit etwas, das keines ist; Daten werden wie &apos;2024-06-01&apos; geschrieben, in Anführungszeichen</translation>
    </message>
    <message>
        <source>it compares a field with a value of another kind; texts and dates stand in single quotes, dates like &apos;2024-06-01&apos;, and numbers don&apos;t</source>
        <translation>er vergleicht ein Feld mit einem Wert anderer Art; Texte und Daten stehen in einfachen Anführungszeichen, Daten wie &apos;2024-06-01&apos;, Zahlen nicht</translation>
    </message>
</context>
<context>
    <name>GeometryProjector</name>
    <message>
        <source>they are geocentric, as X, Y and Z; convert the data to longitude and latitude</source>
        <translation>sie sind geozentrisch, als X, Y und Z; wandeln Sie die Daten in Länge und Breite um</translation>
    </message>
    <message>
        <source>PROJ knows no way to project into it</source>
        <translation>PROJ kennt keinen Weg, in es zu projizieren</translation>
    </message>
    <message>
        <source>their own, “%1”, is neither geographic nor projected; give the source the one that they have in truth</source>
        <translation>ihr eigenes, „%1“, ist weder geographisch noch projiziert; geben Sie der Quelle das, das sie in Wahrheit haben</translation>
    </message>
    <message>
        <source>PROJ knows no way back from their own, “%1”</source>
        <translation>PROJ kennt keinen Weg aus ihrem eigenen, „%1“, zurück</translation>
    </message>
</context>
<context>
    <name>Graticule</name>
    <message>
        <source>the graticule “%1” of the map “%2” has an interval of %3 degrees, which makes %4 lines; at most %5 are drawn, so an interval is chosen for it; enter one of %6 degrees or more</source>
        <translation>das Gradnetz „%1“ der Karte „%2“ hat einen Abstand von %3 Grad, was %4 Linien ergibt; höchstens %5 werden gezeichnet, deshalb wird ein Abstand gewählt; geben Sie einen von mindestens %6 Grad ein</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>E</source>
        <translation>O</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>the grid “%1” of the map “%2” has a spacing of %3 map units, which makes %4 lines; at most %5 are drawn, so a spacing is chosen for it; enter one of %6 map units or more</source>
        <translation>das Gitter „%1“ der Karte „%2“ hat einen Abstand von %3 Karteneinheiten, was %4 Linien ergibt; höchstens %5 werden gezeichnet, daher wird ein Abstand dafür gewählt; geben Sie einen von %6 Karteneinheiten oder mehr ein</translation>
    </message>
</context>
<context>
    <name>Grouping</name>
    <message>
        <source>Groups lie at most %1 deep in each other; ungroup some of them first.</source>
        <translation>Gruppen liegen höchstens %1-fach ineinander; heben Sie zuerst einige Gruppierungen auf.</translation>
    </message>
    <message>
        <source>Group the selected elements</source>
        <translation>Die ausgewählten Elemente gruppieren</translation>
    </message>
    <message>
        <source>Ungroup the selected elements</source>
        <translation>Die Gruppierung der ausgewählten Elemente aufheben</translation>
    </message>
</context>
<context>
    <name>Guides</name>
    <message>
        <source>x %1 cm</source>
        <translation>x %1 cm</translation>
    </message>
    <message>
        <source>y %1 cm</source>
        <translation>y %1 cm</translation>
    </message>
</context>
<context>
    <name>HistoryQuestion</name>
    <message>
        <source>Page settings can&apos;t be undone.</source>
        <translation>Seiteneinstellungen lassen sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Where they scale the elements to another page size, what was done before can be neither undone nor redone any more:</source>
        <translation>Wo sie die Elemente an eine andere Seitengröße anpassen, lässt sich danach auch das Bisherige weder rückgängig machen noch wiederholen:</translation>
    </message>
    <message>
        <source>Another layout can&apos;t be undone.</source>
        <translation>Ein anderes Layout lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>With a template&apos;s layout, what was done before can be neither undone nor redone any more:</source>
        <translation>Mit dem Layout einer Vorlage lässt sich auch das Bisherige weder rückgängig machen noch wiederholen:</translation>
    </message>
    <message>
        <source>… and %1 more.</source>
        <translation>… und %1 weitere.</translation>
    </message>
    <message>
        <source>Plotvane</source>
        <translation>Plotvane</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
</context>
<context>
    <name>HostCommands</name>
    <message>
        <source>Delete the selected elements</source>
        <translation>Ausgewählte Elemente löschen</translation>
    </message>
</context>
<context>
    <name>Identify</name>
    <message>
        <source>Band %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>no data</source>
        <translation>keine Daten</translation>
    </message>
</context>
<context>
    <name>IdentifyPanel</name>
    <message>
        <source>Features</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Features at a place of the map</source>
        <translation>Objekte an einer Stelle der Karte</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>There are more features here.</source>
        <translation>Hier sind noch mehr Objekte.</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>E</source>
        <translation>O</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>No features here</source>
        <translation>Keine Objekte hier</translation>
    </message>
</context>
<context>
    <name>ImageTarget</name>
    <message>
        <source>%1: the folder %2 does not exist; make it first.</source>
        <translation type="vanished">%1: Der Ordner %2 existiert nicht; legen Sie ihn zuerst an.</translation>
    </message>
    <message>
        <source>%1: the folder %2 can&apos;t be written (%3); choose another.</source>
        <translation type="vanished">%1: In den Ordner %2 kann nicht geschrieben werden (%3); wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>%1 is a folder; name a file in it.</source>
        <translation type="vanished">%1 ist ein Ordner; nennen Sie eine Datei darin.</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file for the image.</source>
        <translation type="vanished">%1 ist das Dokument selbst; nennen Sie eine andere Datei für das Bild.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2.</source>
        <translation type="vanished">%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 is not an ordinary file; name another.</source>
        <translation type="vanished">%1 ist keine gewöhnliche Datei; nennen Sie eine andere.</translation>
    </message>
    <message>
        <source>%1 is write-protected; name another file or unlock it.</source>
        <translation type="vanished">%1 ist schreibgeschützt; nennen Sie eine andere Datei, oder heben Sie den Schutz auf.</translation>
    </message>
    <message>
        <source>%1: the image would have no pixels; give more DPI.</source>
        <translation>%1: Das Bild hätte keine Pixel; geben Sie mehr DPI an.</translation>
    </message>
    <message>
        <source>%1: the image would be %2 × %3 pixels, and a %4 has at most %5 on a side; give less DPI, or write a TIFF.</source>
        <translation>%1: Das Bild hätte %2 × %3 Pixel, ein %4 aber höchstens %5 je Seite; geben Sie weniger DPI an, oder schreiben Sie ein TIFF.</translation>
    </message>
    <message>
        <source>%1: the image would be %2 × %3 pixels, and a BMP holds at most 4 GB; give less DPI, or write a TIFF.</source>
        <translation>%1: Das Bild hätte %2 × %3 Pixel, ein BMP fasst aber höchstens 4 GB; geben Sie weniger DPI an, oder schreiben Sie ein TIFF.</translation>
    </message>
    <message>
        <source>%1: drawing %2 × %3 pixels takes %4 GB on the disk, and %5 GB are free; give less DPI, or make room.</source>
        <translation>%1: Das Zeichnen von %2 × %3 Pixeln braucht %4 GB auf dem Datenträger, frei sind %5 GB; geben Sie weniger DPI an, oder schaffen Sie Platz.</translation>
    </message>
    <message>
        <source>%1: a JPEG of %2 × %3 pixels takes %4 GB of memory, and this machine has %5 GB; give less DPI, or write a PNG or TIFF.</source>
        <translation type="vanished">%1: Ein JPEG von %2 × %3 Pixeln braucht %4 GB Arbeitsspeicher, dieser Rechner hat %5 GB; geben Sie weniger DPI an, oder schreiben Sie ein PNG oder TIFF.</translation>
    </message>
    <message>
        <source>%1: no working folder can be made in %2: %3.</source>
        <translation>%1: In %2 kann kein Arbeitsordner angelegt werden: %3.</translation>
    </message>
    <message>
        <source>%1 was not written: the image can&apos;t be read again.</source>
        <translation>%1 wurde nicht geschrieben: Das Bild kann nicht wieder gelesen werden.</translation>
    </message>
    <message>
        <source>%1 was not written: the image has not the size that it should have.</source>
        <translation>%1 wurde nicht geschrieben: Das Bild hat nicht die vorgesehene Größe.</translation>
    </message>
    <message>
        <source>%1 was not written: the end of the image is missing; is the disk full?</source>
        <translation>%1 wurde nicht geschrieben: Das Ende des Bildes fehlt; ist der Datenträger voll?</translation>
    </message>
    <message>
        <source>%1 was not written: %2.</source>
        <translation>%1 wurde nicht geschrieben: %2.</translation>
    </message>
    <message>
        <source>the image file could not be created</source>
        <translation>die Bilddatei konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>%1 was not written: %2. Is the disk full?</source>
        <translation>%1 wurde nicht geschrieben: %2. Ist der Datenträger voll?</translation>
    </message>
    <message>
        <source>%1 is a file that the page is drawn from; name another file for the image.</source>
        <translation type="vanished">Aus %1 wird die Seite gezeichnet; nennen Sie eine andere Datei für das Bild.</translation>
    </message>
    <message>
        <source>%1 was not written: its end is missing; is the disk full?</source>
        <translation>%1 wurde nicht geschrieben: Das Ende fehlt; ist die Platte voll?</translation>
    </message>
    <message>
        <source>%1: a %2 of %3 × %4 pixels takes %5 GB of memory, and this machine has %6 GB; give less DPI, or write a PNG or TIFF.</source>
        <translation>%1: Ein %2 von %3 × %4 Pixeln braucht %5 GB Arbeitsspeicher, und dieser Rechner hat %6 GB; wählen Sie weniger DPI, oder schreiben Sie ein PNG oder TIFF.</translation>
    </message>
    <message>
        <source>%1 was written, but not %2, which says where it lies: %3.</source>
        <translation>%1 wurde geschrieben, aber nicht %2, das sagt, wo es liegt: %3.</translation>
    </message>
    <message>
        <source>%1 is the document itself; name another file.</source>
        <translation>%1 ist das Dokument selbst; nennen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>%1 is a file that the page is drawn from; name another file.</source>
        <translation>%1 ist eine Datei, aus der die Seite gezeichnet wird; nennen Sie eine andere Datei.</translation>
    </message>
</context>
<context>
    <name>IndexedLayer</name>
    <message>
        <source>the index in “%1” is damaged; remove that folder, or give --no-cache</source>
        <translation>der Index in „%1“ ist beschädigt; löschen Sie diesen Ordner, oder geben Sie --no-cache an</translation>
    </message>
</context>
<context>
    <name>InfoSubcommand</name>
    <message>
        <source>The .kdx document.</source>
        <translation type="vanished">Das .kdx-Dokument.</translation>
    </message>
    <message>
        <source>Print JSON, for programs.</source>
        <translation>JSON für Programme ausgeben.</translation>
    </message>
    <message>
        <source>%1: the folder holds no file of data.</source>
        <translation>%1: Der Ordner enthält keine Datei mit Daten.</translation>
    </message>
    <message>
        <source>The .kdx document, or a file or folder of data.</source>
        <translation type="vanished">Das .kdx-Dokument oder eine Datei oder ein Ordner mit Daten.</translation>
    </message>
    <message>
        <source>%1: this is neither a map document (.kdx) nor a file of data by its name; name one of these.</source>
        <translation>%1: Das ist dem Namen nach weder ein Kartendokument (.kdx) noch eine Datei mit Daten; nennen Sie eines davon.</translation>
    </message>
    <message>
        <source>With --json, tell of each layer how many of its labels find a place. It reads all features.</source>
        <translation type="vanished">Mit --json zu jeder Ebene angeben, wie viele ihrer Beschriftungen einen Platz finden. Dafür werden alle Objekte gelesen.</translation>
    </message>
    <message>
        <source>The .kdx document, a file or folder of data, or connection:NAME.</source>
        <translation>Das .kdx-Dokument, eine Datei oder ein Ordner mit Daten oder connection:NAME.</translation>
    </message>
    <message>
        <source>%1 has no table &quot;%2&quot; that its user may read; it has: %3.</source>
        <translation>%1 hat keine Tabelle &quot;%2&quot;, die ihr Benutzer lesen darf; es gibt: %3.</translation>
    </message>
    <message>
        <source>Tell of each layer how many of its labels find a place. It reads all features.</source>
        <translation>Zu jeder Ebene sagen, wie viele ihrer Beschriftungen Platz finden. Dabei werden alle Objekte gelesen.</translation>
    </message>
</context>
<context>
    <name>InsertTool</name>
    <message>
        <source>Insert a Picture</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.jpeg *.tif *.tiff *.webp *.svg)</source>
        <translation>Bilder (*.png *.jpg *.jpeg *.tif *.tiff *.webp *.svg)</translation>
    </message>
    <message>
        <source>%1 × %2 cm</source>
        <translation>%1 × %2 cm</translation>
    </message>
    <message>
        <source>%1 cm, %2°</source>
        <translation>%1 cm, %2°</translation>
    </message>
    <message>
        <source>Embed the picture in the document</source>
        <translation>Bild im Dokument einbetten</translation>
    </message>
</context>
<context>
    <name>JoinDialog</name>
    <message>
        <source>Which table is to be joined?</source>
        <translation>Welche Tabelle soll verknüpft werden?</translation>
    </message>
    <message>
        <source>Joined Table</source>
        <translation>Verknüpfte Tabelle</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wählen …</translation>
    </message>
    <message>
        <source>Stands before the names of the table&apos;s fields</source>
        <translation>Steht vor den Namen der Felder der Tabelle</translation>
    </message>
    <message>
        <source>The first rows of the table</source>
        <translation>Die ersten Zeilen der Tabelle</translation>
    </message>
    <message>
        <source>All %1 features found a row.</source>
        <translation>Alle %1 Objekte fanden eine Zeile.</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Testen</translation>
    </message>
    <message>
        <source>Count the features that find a row</source>
        <translation>Zählt die Objekte, die eine Zeile finden</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Layer of the file</source>
        <translation>&amp;Ebene der Datei</translation>
    </message>
    <message>
        <source>&amp;Key of the features</source>
        <translation>&amp;Schlüssel der Objekte</translation>
    </message>
    <message>
        <source>K&amp;ey of the table</source>
        <translation>Schlüssel der &amp;Tabelle</translation>
    </message>
    <message>
        <source>&amp;Prefix</source>
        <translation>&amp;Präfix</translation>
    </message>
</context>
<context>
    <name>JoinKeys</name>
    <message>
        <source>No field of “%1” has the name or the values of a field of the layer; name the keys.</source>
        <translation>Kein Feld von „%1“ hat den Namen oder die Werte eines Felds der Ebene; nennen Sie die Schlüssel.</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>no file was named; choose a %1 file</source>
        <translation>es wurde keine Datei genannt; wählen Sie eine %1-Datei</translation>
    </message>
    <message>
        <source>there is no such file; check the name and the folder</source>
        <translation>diese Datei gibt es nicht; prüfen Sie Namen und Ordner</translation>
    </message>
    <message>
        <source>this is a folder; choose a %1 file in it</source>
        <translation>dies ist ein Ordner; wählen Sie eine %1-Datei darin</translation>
    </message>
    <message>
        <source>this is no ordinary file; choose a %1 file</source>
        <translation>dies ist keine gewöhnliche Datei; wählen Sie eine %1-Datei</translation>
    </message>
    <message>
        <source>line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>%1: this is not JSON (%2); mend the file in a text editor or open another one</source>
        <translation>%1: dies ist kein JSON (%2); berichtigen Sie die Datei in einem Texteditor, oder öffnen Sie eine andere</translation>
    </message>
    <message>
        <source>the file can&apos;t be read (%1); make it readable or choose another one</source>
        <translation>die Datei kann nicht gelesen werden (%1); machen Sie sie lesbar, oder wählen Sie eine andere</translation>
    </message>
    <message>
        <source>the file is larger than %1 MB, too large for a %2; choose another one</source>
        <translation>die Datei ist größer als %1 MB, zu groß für diese Art (%2); wählen Sie eine andere</translation>
    </message>
    <message>
        <source>the file can&apos;t be read (%1); check the disk</source>
        <translation>die Datei kann nicht gelesen werden (%1); prüfen Sie den Datenträger</translation>
    </message>
    <message>
        <source>the file holds a list where a %1 holds an object; choose another one</source>
        <translation>die Datei enthält eine Liste statt eines Objekts (erwartet: %1); wählen Sie eine andere</translation>
    </message>
</context>
<context>
    <name>KeptConnections</name>
    <message>
        <source>The settings could not be written; make %1 writable.</source>
        <translation>Die Einstellungen konnten nicht geschrieben werden; machen Sie %1 beschreibbar.</translation>
    </message>
    <message>
        <source>The connections in %1 could not be read; correct its entry “connections”, or remove it.</source>
        <translation>Die Verbindungen in %1 konnten nicht gelesen werden; berichtigen Sie dort den Eintrag „connections“, oder entfernen Sie ihn.</translation>
    </message>
    <message>
        <source>it is no object</source>
        <translation>sie ist kein Objekt</translation>
    </message>
    <message>
        <source>The connection “%1” in %2 is left out: %3. Correct it there, or remove it with plotvane connections remove %1.</source>
        <translation>Die Verbindung „%1“ in %2 wird ausgelassen: %3. Berichtigen Sie sie dort, oder entfernen Sie sie mit plotvane connections remove %1.</translation>
    </message>
</context>
<context>
    <name>LabelReader</name>
    <message>
        <source>The text “%1” of the labels of %2 is not understood, so they show the attribute: %3.</source>
        <translation>Der Text „%1“ der Beschriftungen von %2 ist nicht verständlich, daher zeigen sie das Attribut: %3.</translation>
    </message>
</context>
<context>
    <name>LabelSettings</name>
    <message>
        <source>names no field; leave out the labels</source>
        <translation type="vanished">nennt kein Feld; lassen Sie die Beschriftung weg</translation>
    </message>
    <message>
        <source>is not above that of the class before</source>
        <translation>liegt nicht über dem der vorigen Klasse</translation>
    </message>
    <message>
        <source>“%1” is no place; there are: %2</source>
        <translation>„%1“ ist kein Platz; es gibt: %2</translation>
    </message>
</context>
<context>
    <name>LayerActions</name>
    <message>
        <source>Groups lie at most %1 deep in each other; ungroup some of them first.</source>
        <translation>Gruppen liegen höchstens %1-fach ineinander; heben Sie zuerst einige Gruppierungen auf.</translation>
    </message>
    <message>
        <source>Raise layers</source>
        <translation>Ebenen anheben</translation>
    </message>
    <message>
        <source>Lower layers</source>
        <translation>Ebenen absenken</translation>
    </message>
    <message>
        <source>A group can&apos;t lie in itself.</source>
        <translation>Eine Gruppe kann nicht in sich selbst liegen.</translation>
    </message>
    <message>
        <source>Move layers</source>
        <translation>Ebenen verschieben</translation>
    </message>
    <message>
        <source>Copy layers</source>
        <translation>Ebenen kopieren</translation>
    </message>
    <message>
        <source>Duplicate layers</source>
        <translation>Ebenen verdoppeln</translation>
    </message>
    <message>
        <source>Remove layers</source>
        <translation>Ebenen entfernen</translation>
    </message>
    <message>
        <source>There is no group next to it; Group makes one.</source>
        <translation>Daneben liegt keine Gruppe; „Gruppieren“ macht eine.</translation>
    </message>
    <message>
        <source>It lies in no group.</source>
        <translation>Das liegt in keiner Gruppe.</translation>
    </message>
    <message>
        <source>Layers and groups of one map can be grouped; choose some.</source>
        <translation>Ebenen und Gruppen einer einzigen Karte lassen sich gruppieren; wählen Sie einige.</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>Group layers</source>
        <translation>Ebenen gruppieren</translation>
    </message>
    <message>
        <source>Groups can be taken apart; choose one.</source>
        <translation>Gruppen lassen sich auflösen; wählen Sie eine.</translation>
    </message>
    <message>
        <source>Ungroup layers</source>
        <translation>Ebenengruppe auflösen</translation>
    </message>
    <message>
        <source>Cut layers</source>
        <translation>Ebenen ausschneiden</translation>
    </message>
    <message>
        <source>The clipboard holds no layers; copy some in the contents.</source>
        <translation>Die Zwischenablage enthält keine Ebenen; kopieren Sie einige im Inhalt.</translation>
    </message>
    <message>
        <source>Paste layers</source>
        <translation>Ebenen einfügen</translation>
    </message>
    <message>
        <source>the data frame is locked; Plotvane_UnlockDataFrame unlocks it.</source>
        <translation>der Datenrahmen ist gesperrt; Plotvane_UnlockDataFrame entsperrt ihn.</translation>
    </message>
    <message>
        <source>Show layers</source>
        <translation>Ebenen zeigen</translation>
    </message>
    <message>
        <source>Hide layers</source>
        <translation>Ebenen ausblenden</translation>
    </message>
    <message>
        <source>Rename “%1”</source>
        <translation>„%1“ umbenennen</translation>
    </message>
    <message>
        <source>There is nothing in it that a map could show.</source>
        <translation>Darin ist nichts, was eine Karte zeigen könnte.</translation>
    </message>
    <message>
        <source>A map can&apos;t show that much or that little.</source>
        <translation>So viel oder so wenig kann eine Karte nicht zeigen.</translation>
    </message>
    <message>
        <source>It has no limits of scale.</source>
        <translation>Sie hat keine Maßstabsgrenzen.</translation>
    </message>
    <message>
        <source>It has no file.</source>
        <translation>Das hat keine Datei.</translation>
    </message>
    <message>
        <source>Repair the source of “%1”</source>
        <translation>Die Quelle von „%1“ reparieren</translation>
    </message>
    <message>
        <source>There are %1 places there; give one from 1 to %1.</source>
        <translation>Dort gibt es %1 Plätze; geben Sie einen von 1 bis %1 an.</translation>
    </message>
</context>
<context>
    <name>LayerAdding</name>
    <message>
        <source>All data (%1)</source>
        <translation>Alle Daten (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1 features read</source>
        <translation>%1 Objekte gelesen</translation>
    </message>
    <message>
        <source>Add Layers</source>
        <translation>Ebenen hinzufügen</translation>
    </message>
    <message>
        <source>There is no file of data in “%1”.</source>
        <translation>In „%1“ ist keine Datei mit Daten.</translation>
    </message>
    <message>
        <source>No connection to a database is known; Edit › Connections… adds one.</source>
        <translation>Es ist keine Verbindung zu einer Datenbank bekannt; fügen Sie eine in Bearbeiten › Verbindungen… hinzu.</translation>
    </message>
    <message>
        <source>Add Layers from Database</source>
        <translation>Ebenen aus Datenbank hinzufügen</translation>
    </message>
    <message>
        <source>Connection:</source>
        <translation>Verbindung:</translation>
    </message>
</context>
<context>
    <name>LayerArchive</name>
    <message>
        <source>is larger than maxScale</source>
        <translation type="vanished">ist größer als maxScale</translation>
    </message>
    <message>
        <source>Layer “%1”: %2</source>
        <translation type="vanished">Layer „%1“: %2</translation>
    </message>
    <message>
        <source>is a layer that can&apos;t be stored</source>
        <translation type="vanished">ist ein Layer, der sich nicht speichern lässt</translation>
    </message>
</context>
<context>
    <name>LayerClasses</name>
    <message>
        <source>the method is one of %1</source>
        <translation>das Verfahren ist eines von %1</translation>
    </message>
    <message>
        <source>“%1” is no option; there are %2</source>
        <translation>„%1“ ist keine Angabe; es gibt %2</translation>
    </message>
    <message>
        <source>“%1” is written as in %2</source>
        <translation>„%1“ wird geschrieben wie in %2</translation>
    </message>
    <message>
        <source>the method “own” needs breaks, as in breaks=10;100</source>
        <translation>das Verfahren „own“ braucht Grenzen wie in breaks=10;100</translation>
    </message>
    <message>
        <source>Only a layer of features has classes; write layer:MAP/LAYER.</source>
        <translation>Nur eine Ebene mit Objekten hat Klassen; schreiben Sie layer:KARTE/EBENE.</translation>
    </message>
    <message>
        <source>each of the breaks is larger than the one before, as in breaks=10;100</source>
        <translation>jede der Grenzen ist größer als die vorige, wie in breaks=10;100</translation>
    </message>
</context>
<context>
    <name>LayerClip</name>
    <message>
        <source>is not “%1”, so these are no layers</source>
        <translation>ist nicht „%1“, also sind das keine Ebenen</translation>
    </message>
    <message>
        <source>the layers were copied by a newer version of Plotvane, as version %1</source>
        <translation>die Ebenen wurden von einer neueren Version von Plotvane kopiert, als Version %1</translation>
    </message>
    <message>
        <source>The layers take %1 MB, and the clipboard takes %2; copy fewer of them.</source>
        <translation>Die Ebenen brauchen %1 MB, und die Zwischenablage nimmt %2; kopieren Sie weniger davon.</translation>
    </message>
    <message>
        <source>The layers can&apos;t be copied: %1.</source>
        <translation>Die Ebenen können nicht kopiert werden: %1.</translation>
    </message>
    <message>
        <source>The layers on the clipboard can&apos;t be read: %1; copy them anew.</source>
        <translation>Die Ebenen in der Zwischenablage können nicht gelesen werden: %1; kopieren Sie sie erneut.</translation>
    </message>
</context>
<context>
    <name>LayerCommands</name>
    <message>
        <source>Where is the file of “%1”?</source>
        <translation>Wo ist die Datei von „%1“?</translation>
    </message>
</context>
<context>
    <name>LayerSettings</name>
    <message>
        <source>Layer “%1”: %2</source>
        <translation>Ebene „%1“: %2</translation>
    </message>
    <message>
        <source>is larger than maxScale</source>
        <translation>ist größer als maxScale</translation>
    </message>
    <message>
        <source>is a layer that can&apos;t be stored</source>
        <translation>ist eine Ebene, die sich nicht speichern lässt</translation>
    </message>
    <message>
        <source>groups are nested more than %1 deep</source>
        <translation>Gruppen liegen mehr als %1 tief ineinander</translation>
    </message>
    <message>
        <source>is missing; name the file of the data</source>
        <translation>fehlt; nennen Sie die Datei der Daten</translation>
    </message>
    <message>
        <source>Layer “%1”: no coordinate system is known for the raster; its coordinates are taken as those of the map. Give one in the source&apos;s field “coordinateSystem”.</source>
        <translation>Ebene „%1“: Für das Raster ist kein Koordinatensystem bekannt; seine Koordinaten gelten als die der Karte. Geben Sie im Feld „coordinateSystem“ der Quelle eines an.</translation>
    </message>
</context>
<context>
    <name>LayerSheet</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>The file names no coordinate system.</source>
        <translation type="vanished">Die Datei nennt kein Koordinatensystem.</translation>
    </message>
    <message>
        <source>The file says: %1.</source>
        <translation type="vanished">Die Datei sagt: %1.</translation>
    </message>
    <message>
        <source>&amp;Opacity</source>
        <translation>&amp;Deckkraft</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Testen</translation>
    </message>
    <message>
        <source>Count the features that pass the filter</source>
        <translation>Zählt die Objekte, die der Filter durchlässt</translation>
    </message>
    <message>
        <source>Edit &amp;Filter…</source>
        <translation>&amp;Filter bearbeiten …</translation>
    </message>
    <message>
        <source>All %1 features found their rows.</source>
        <translation>Alle %1 Objekte fanden ihre Zeilen.</translation>
    </message>
    <message>
        <source>Count the features that find a row</source>
        <translation>Zählt die Objekte, die eine Zeile finden</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wählen …</translation>
    </message>
    <message>
        <source>As the &amp;File Says</source>
        <translation>Wie die &amp;Datei sagt</translation>
    </message>
    <message>
        <source>Count the features that each class takes</source>
        <translation>Zählt die Objekte jeder Klasse</translation>
    </message>
    <message>
        <source>Make C&amp;lasses…</source>
        <translation>&amp;Klassen bilden …</translation>
    </message>
    <message>
        <source>Make classes of the layer by the values of a field</source>
        <translation>Bildet Klassen der Ebene nach den Werten eines Felds</translation>
    </message>
    <message>
        <source>Features: %1.</source>
        <translation>Objekte: %1.</translation>
    </message>
    <message>
        <source>In no class: %1.</source>
        <translation>In keiner Klasse: %1.</translation>
    </message>
    <message>
        <source>Layer “%1”</source>
        <translation>Ebene „%1“</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Joined Tables</source>
        <translation>Verknüpfte Tabellen</translation>
    </message>
    <message>
        <source>Coordinate System</source>
        <translation>Koordinatensystem</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Scales</source>
        <translation>Maßstäbe</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Quellennachweis</translation>
    </message>
    <message>
        <source>No table is joined.</source>
        <translation>Es ist keine Tabelle verknüpft.</translation>
    </message>
</context>
<context>
    <name>LayerSteps</name>
    <message>
        <source>there is no &quot;%1&quot;; write layer:MAP/LAYER, where LAYER may be a group, or map:MAP; plotvane info lists them.</source>
        <translation>„%1“ gibt es nicht; schreiben Sie layer:MAP/LAYER, wobei LAYER eine Gruppe sein darf, oder map:MAP; plotvane info zählt sie auf.</translation>
    </message>
    <message>
        <source>only one layer of features can be counted.</source>
        <translation>nur eine Ebene mit Objekten kann gezählt werden.</translation>
    </message>
    <message>
        <source>only one layer of features can be joined to a table.</source>
        <translation>nur eine Ebene mit Objekten kann mit einer Tabelle verknüpft werden.</translation>
    </message>
</context>
<context>
    <name>LayerStyling</name>
    <message>
        <source>Paths</source>
        <translation>Wege</translation>
    </message>
    <message>
        <source>Streets</source>
        <translation>Straßen</translation>
    </message>
    <message>
        <source>Secondary roads</source>
        <translation>Nebenstraßen</translation>
    </message>
    <message>
        <source>Main roads</source>
        <translation>Hauptstraßen</translation>
    </message>
    <message>
        <source>Motorways</source>
        <translation>Autobahnen</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>drawn by “%1”, the heavier roads wider</source>
        <translation>nach „%1“ gezeichnet, wichtigere Straßen breiter</translation>
    </message>
    <message>
        <source>coloured by “%1”</source>
        <translation>nach „%1“ gefärbt</translation>
    </message>
    <message>
        <source>marks sized by “%1”, in natural breaks (Jenks)</source>
        <translation>Größe der Zeichen nach „%1“, natürliche Klassen (Jenks)</translation>
    </message>
    <message>
        <source>shaded by “%1”, in natural breaks (Jenks)</source>
        <translation>nach „%1“ getönt, natürliche Klassen (Jenks)</translation>
    </message>
    <message>
        <source>Colour %1</source>
        <translation>Farbe %1</translation>
    </message>
    <message>
        <source>coloured so that neighbours differ</source>
        <translation>so gefärbt, dass sich Nachbarn unterscheiden</translation>
    </message>
    <message>
        <source>drawn as its name says</source>
        <translation>so gezeichnet, wie der Name sagt</translation>
    </message>
    <message>
        <source>in one colour</source>
        <translation>in einer Farbe</translation>
    </message>
    <message>
        <source>labelled by “%1”</source>
        <translation>mit „%1“ beschriftet</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1, hillshade</source>
        <translation>%1, Schummerung</translation>
    </message>
    <message>
        <source>has no overviews, so that a picture of all of it takes long; make them, as by gdaladdo</source>
        <translation>hat keine Übersichten, sodass ein Bild vom Ganzen lange dauert; legen Sie welche an, etwa mit gdaladdo</translation>
    </message>
    <message>
        <source>without outlines, for which most of its areas are too small</source>
        <translation>ohne Umrisse, für die die meisten ihrer Flächen zu klein sind</translation>
    </message>
    <message>
        <source>with outlines of its own colour, since most of its areas would be too small to see</source>
        <translation type="vanished">mit Umrissen in seiner eigenen Farbe, da die meisten seiner Flächen sonst zu klein zum Sehen wären</translation>
    </message>
    <message>
        <source>with broad outlines, since most of its areas would be too small to see</source>
        <translation>mit breiten Umrissen, da die meisten seiner Flächen sonst zu klein zum Sehen wären</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Open Recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Plotvane</source>
        <translation>Plotvane</translation>
    </message>
    <message>
        <source>Page Layout</source>
        <translation>Seitenlayout</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>x 000.00 cm  y 000.00 cm</source>
        <translation>x 000.00 cm  y 000.00 cm</translation>
    </message>
    <message>
        <source>Place on the page, from its lower left corner</source>
        <translation>Stelle auf der Seite, von ihrer linken unteren Ecke aus</translation>
    </message>
    <message>
        <source>Zoom 0000 %</source>
        <translation>Zoom 0000 %</translation>
    </message>
    <message>
        <source>Size of the page on the screen; 100 % is its size on paper</source>
        <translation>Größe der Seite auf dem Bildschirm; 100 % ist ihre Größe auf Papier</translation>
    </message>
    <message>
        <source>%1[*] – Plotvane</source>
        <translation>%1[*] – Plotvane</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Zoom %1 %</source>
        <translation>Zoom %1 %</translation>
    </message>
    <message>
        <source>x %1 cm  y %2 cm</source>
        <translation>x %1 cm  y %2 cm</translation>
    </message>
    <message>
        <source>About Plotvane</source>
        <translation>Über Plotvane</translation>
    </message>
    <message>
        <source>&lt;b&gt;Plotvane %1&lt;/b&gt;&lt;p&gt;Lays out printed maps.&lt;/p&gt;&lt;p&gt;MIT licence.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Plotvane %1&lt;/b&gt;&lt;p&gt;Gestaltet gedruckte Karten.&lt;/p&gt;&lt;p&gt;MIT-Lizenz.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Scale of the map in the focus data frame; type another one</source>
        <translation>Maßstab der Karte im aktiven Datenrahmen; hier lässt sich ein anderer eingeben</translation>
    </message>
    <message>
        <source>“%1” is no scale; type one like 1:25,000, 10M or 12.5 million</source>
        <translation>„%1“ ist kein Maßstab; einzugeben ist etwas wie 1:25.000, 10 Mio oder 12,5 Mio</translation>
    </message>
    <message>
        <source>%1[*] (read-only) – Plotvane</source>
        <translation>%1[*] (schreibgeschützt) – Plotvane</translation>
    </message>
    <message>
        <source>Beginning</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
</context>
<context>
    <name>Map</name>
    <message>
        <source>New map</source>
        <translation>Neue Karte</translation>
    </message>
</context>
<context>
    <name>MapDocument</name>
    <message>
        <source>is not “%1”, so this is no map document</source>
        <translation>ist nicht „%1“, also ist dies kein Kartendokument</translation>
    </message>
    <message>
        <source>the document was written by a newer version of Plotvane, as version %1; update Plotvane, or save it there as version %2</source>
        <translation>das Dokument wurde von einer neueren Version von Plotvane geschrieben, als Version %1; aktualisieren Sie Plotvane, oder speichern Sie es dort als Version %2</translation>
    </message>
    <message>
        <source>must be xmin, ymin, xmax, ymax, with xmin &lt; xmax and ymin &lt; ymax</source>
        <translation>muss xmin, ymin, xmax, ymax enthalten, mit xmin &lt; xmax und ymin &lt; ymax</translation>
    </message>
    <message>
        <source>data frames and surrounds can&apos;t lie on a map, only on the page</source>
        <translation type="vanished">Datenrahmen und Randangaben können nicht auf einer Karte liegen, nur auf der Seite</translation>
    </message>
    <message>
        <source>maps[%1]: no data frame shows this map; it is left out and will be missing after the next save</source>
        <translation>maps[%1]: kein Datenrahmen zeigt diese Karte; sie wird weggelassen und fehlt nach dem nächsten Speichern</translation>
    </message>
    <message>
        <source>map document</source>
        <translation>Kartendokument</translation>
    </message>
    <message>
        <source>the old file can&apos;t be read to keep it as a backup (%1); save without a backup</source>
        <translation>die alte Datei kann nicht gelesen werden, um sie als Sicherung zu behalten (%1); speichern Sie ohne Sicherung</translation>
    </message>
    <message>
        <source>: this field is unknown; it has no effect and will be missing after the next save</source>
        <translation>: dieses Feld ist unbekannt; es hat keine Wirkung und fehlt nach dem nächsten Speichern</translation>
    </message>
    <message>
        <source>; change this value, then save again</source>
        <translation>; ändern Sie diesen Wert, und speichern Sie erneut</translation>
    </message>
    <message>
        <source>There is no document to save; open one or make a new one.</source>
        <translation>Es gibt kein Dokument zum Speichern; öffnen Sie eines, oder legen Sie ein neues an.</translation>
    </message>
    <message>
        <source>The document has no file yet; save it under a name.</source>
        <translation>Das Dokument hat noch keine Datei; speichern Sie es unter einem Namen.</translation>
    </message>
    <message>
        <source>; correct the file or open another one</source>
        <translation>; berichtigen Sie die Datei, oder öffnen Sie eine andere</translation>
    </message>
    <message>
        <source>the page&apos;s width is %1 cm; set one of %2 to %3 cm in the page setup, then save again</source>
        <translation>die Seite ist %1 cm breit; stellen Sie in der Seiteneinrichtung eine Breite von %2 bis %3 cm ein, und speichern Sie noch einmal</translation>
    </message>
    <message>
        <source>the page&apos;s height is %1 cm; set one of %2 to %3 cm in the page setup, then save again</source>
        <translation>die Seite ist %1 cm hoch; stellen Sie in der Seiteneinrichtung eine Höhe von %2 bis %3 cm ein, und speichern Sie noch einmal</translation>
    </message>
    <message>
        <source>must be more than 0, as in 25000 for a map of 1:25,000</source>
        <translation>muss größer als 0 sein, wie 25000 für eine Karte 1:25.000</translation>
    </message>
    <message>
        <source>is for a map with “scaleLocked”; without it the bounds say what is shown</source>
        <translation>ist für eine Karte mit „scaleLocked“; ohne das sagen die Grenzen, was gezeigt wird</translation>
    </message>
</context>
<context>
    <name>MapSteps</name>
    <message>
        <source>Zoom the map</source>
        <translation>Karte zoomen</translation>
    </message>
    <message>
        <source>Move the map in its frame</source>
        <translation>Karte im Rahmen verschieben</translation>
    </message>
    <message>
        <source>Set the map&apos;s extent</source>
        <translation>Kartenausschnitt festlegen</translation>
    </message>
    <message>
        <source>Set the map&apos;s scale</source>
        <translation>Kartenmaßstab festlegen</translation>
    </message>
    <message>
        <source>Show the layer “%1”</source>
        <translation>Ebene „%1“ einblenden</translation>
    </message>
    <message>
        <source>Hide the layer “%1”</source>
        <translation>Ebene „%1“ ausblenden</translation>
    </message>
    <message>
        <source>Show the group “%1”</source>
        <translation>Gruppe „%1“ zeigen</translation>
    </message>
    <message>
        <source>Hide the group “%1”</source>
        <translation>Gruppe „%1“ verbergen</translation>
    </message>
</context>
<context>
    <name>MapSurround</name>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Map surround</source>
        <translation>Randangabe</translation>
    </message>
    <message>
        <source>North arrow</source>
        <translation>Nordpfeil</translation>
    </message>
    <message>
        <source>Scale bar</source>
        <translation>Maßstabsleiste</translation>
    </message>
    <message>
        <source>Scale text</source>
        <translation>Maßstabsangabe</translation>
    </message>
    <message>
        <source>must hold %1 where the scale stands, as in “1:%1”</source>
        <translation type="vanished">muss %1 enthalten, wo der Maßstab steht, wie in „1:%1“</translation>
    </message>
    <message>
        <source>%1 is too short to be seen at this scale; enter longer divisions, or 0 to choose their length</source>
        <translation>%1 ist bei diesem Maßstab zu kurz, um gesehen zu werden; geben Sie längere Abschnitte ein, oder 0, um ihre Länge zu wählen</translation>
    </message>
    <message>
        <source>%1 needs %2 cm at this scale, and the frame is %3 cm wide; enter fewer or shorter divisions, or 0 to choose them, or widen the frame</source>
        <translation>%1 braucht bei diesem Maßstab %2 cm, und der Rahmen ist %3 cm breit; geben Sie weniger oder kürzere Abschnitte ein, oder 0, um sie zu wählen, oder verbreitern Sie den Rahmen</translation>
    </message>
    <message>
        <source>“%1” is no place-holder; write a unit of ground (%2), a slash and cm or in, as in “1 cm = {km/cm} km”</source>
        <translation>„%1“ ist kein Platzhalter; schreiben Sie eine Einheit der Natur (%2), einen Schrägstrich und cm oder in, wie in „1 cm = {km/cm} km“</translation>
    </message>
    <message>
        <source>must hold %1 where the scale stands, as in “1:%1”, or a length of ground, as in “1 cm = {km/cm} km”</source>
        <translation>muss %1 enthalten, wo der Maßstab steht, wie in „1:%1“, oder eine Länge im Gelände, wie in „1 cm = {km/cm} km“</translation>
    </message>
</context>
<context>
    <name>MapSystem</name>
    <message>
        <source>None: as the file says</source>
        <translation>Keines: wie die Datei sagt</translation>
    </message>
    <message>
        <source>None: plain coordinates in metres</source>
        <translation>Keines: ebene Koordinaten in Metern</translation>
    </message>
    <message>
        <source>The coordinate system %1.</source>
        <translation>Das Koordinatensystem %1.</translation>
    </message>
    <message>
        <source>Coordinate System</source>
        <translation>Koordinatensystem</translation>
    </message>
</context>
<context>
    <name>MapTemplate</name>
    <message>
        <source>template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>%1: the template has no data frame for the map; give it one.</source>
        <translation>%1: Die Vorlage hat keinen Datenrahmen für die Karte; geben Sie ihr einen.</translation>
    </message>
</context>
<context>
    <name>MapView</name>
    <message>
        <source>The page has no data frame, so there is no map to show.</source>
        <translation>Die Seite hat keinen Datenrahmen, also gibt es keine Karte zu zeigen.</translation>
    </message>
</context>
<context>
    <name>NewElements</name>
    <message>
        <source>Insert a text</source>
        <translation>Text einfügen</translation>
    </message>
    <message>
        <source>Insert a picture</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Insert a line</source>
        <translation>Linie einfügen</translation>
    </message>
    <message>
        <source>Insert an arrow</source>
        <translation>Pfeil einfügen</translation>
    </message>
    <message>
        <source>Insert a polygon</source>
        <translation>Polygon einfügen</translation>
    </message>
    <message>
        <source>Insert a rectangle</source>
        <translation>Rechteck einfügen</translation>
    </message>
    <message>
        <source>Insert an ellipse</source>
        <translation>Ellipse einfügen</translation>
    </message>
    <message>
        <source>Insert a marker</source>
        <translation>Punktsymbol einfügen</translation>
    </message>
    <message>
        <source>%1: the picture is too large to be embedded; link it.</source>
        <translation>%1: Das Bild ist zu groß, um eingebettet zu werden; verknüpfen Sie es.</translation>
    </message>
    <message>
        <source>The text has %1 characters, and an element at most %2; insert a part of it.</source>
        <translation>Der Text hat %1 Zeichen, ein Element höchstens %2; fügen Sie einen Teil davon ein.</translation>
    </message>
</context>
<context>
    <name>NewLayers</name>
    <message>
        <source>%1 (areas)</source>
        <translation type="vanished">%1 (Flächen)</translation>
    </message>
    <message>
        <source>%1 (lines)</source>
        <translation type="vanished">%1 (Linien)</translation>
    </message>
    <message>
        <source>%1 (points)</source>
        <translation type="vanished">%1 (Punkte)</translation>
    </message>
    <message>
        <source>The document has no page that could hold a map.</source>
        <translation>Das Dokument hat keine Seite, auf der eine Karte liegen könnte.</translation>
    </message>
    <message>
        <source>There is nothing to draw in these data.</source>
        <translation>In diesen Daten ist nichts zu zeichnen.</translation>
    </message>
    <message>
        <source>Add the layer “%1”</source>
        <translation>Die Ebene „%1“ hinzufügen</translation>
    </message>
    <message>
        <source>Add %1 layers</source>
        <translation>%1 Ebenen hinzufügen</translation>
    </message>
    <message>
        <source>The file “%1” has no layer “%2”; it has: %3.</source>
        <translation>Die Datei „%1“ hat keine Ebene „%2“; sie hat: %3.</translation>
    </message>
    <message>
        <source>There is no geometry in “%1”, and no column of coordinates: join it as a table to a layer.</source>
        <translation>In „%1“ ist keine Geometrie und keine Spalte mit Koordinaten: Verknüpfen Sie sie als Tabelle mit einer Ebene.</translation>
    </message>
</context>
<context>
    <name>NewMap</name>
    <message>
        <source>No data are named; give a file of data.</source>
        <translation type="vanished">Es sind keine Daten genannt; geben Sie eine Datendatei an.</translation>
    </message>
    <message>
        <source>There is nothing to draw: no layer of the data has geometries.</source>
        <translation type="vanished">Es gibt nichts zu zeichnen: Keine Ebene der Daten hat Geometrien.</translation>
    </message>
    <message>
        <source>There is nothing to draw: the filter “%1” suits no layer of the data.</source>
        <translation>Es gibt nichts zu zeichnen: Der Filter „%1“ passt zu keiner Ebene der Daten.</translation>
    </message>
    <message>
        <source>The layer “%1” of %2 has no features to show.</source>
        <translation>Die Ebene „%1“ von %2 hat keine Objekte, die zu zeigen wären.</translation>
    </message>
    <message>
        <source>The file “%1” has no layer “%2”; it has: %3.</source>
        <translation>Die Datei „%1“ hat keine Ebene „%2“; sie hat: %3.</translation>
    </message>
    <message>
        <source>The coordinate system can&apos;t be taken: %1.</source>
        <translation type="vanished">Das Koordinatensystem kann nicht genommen werden: %1.</translation>
    </message>
    <message>
        <source>As asked for.</source>
        <translation>Wie gewünscht.</translation>
    </message>
    <message>
        <source>plain coordinates</source>
        <translation type="vanished">einfache Koordinaten</translation>
    </message>
    <message>
        <source>The data have no coordinate system.</source>
        <translation type="vanished">Die Daten haben kein Koordinatensystem.</translation>
    </message>
    <message>
        <source>Coordinate system %1 (%2)</source>
        <translation>Koordinatensystem %1 (%2)</translation>
    </message>
    <message>
        <source>“%1” is no paper; take one of: %2.</source>
        <translation type="vanished">„%1“ ist kein Papierformat; nehmen Sie eines von: %2.</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Page %1, %2</source>
        <translation>Seite %1, %2</translation>
    </message>
    <message>
        <source>The data are broader than high.</source>
        <translation>Die Daten sind breiter als hoch.</translation>
    </message>
    <message>
        <source>The data are higher than broad.</source>
        <translation>Die Daten sind höher als breit.</translation>
    </message>
    <message>
        <source>Layer “%1”</source>
        <translation>Ebene „%1“</translation>
    </message>
    <message>
        <source>Sea</source>
        <translation>Meer</translation>
    </message>
    <message>
        <source>template</source>
        <translation type="vanished">Vorlage</translation>
    </message>
    <message>
        <source>%1: the template has no data frame for the map; give it one.</source>
        <translation type="vanished">%1: Die Vorlage hat keinen Datenrahmen für die Karte; geben Sie ihr einen.</translation>
    </message>
    <message>
        <source>Legend in a corner of the map</source>
        <translation>Legende in einer Ecke der Karte</translation>
    </message>
    <message>
        <source>Nothing of the data lies there.</source>
        <translation>Dort liegt nichts von den Daten.</translation>
    </message>
    <message>
        <source>Legend beside the map</source>
        <translation>Legende neben der Karte</translation>
    </message>
    <message>
        <source>It would hide data.</source>
        <translation>Sie würde Daten verdecken.</translation>
    </message>
    <message>
        <source>A north arrow</source>
        <translation>Ein Nordpfeil</translation>
    </message>
    <message>
        <source>No north arrow</source>
        <translation>Kein Nordpfeil</translation>
    </message>
    <message>
        <source>North is up all over the map.</source>
        <translation>Norden ist überall auf der Karte oben.</translation>
    </message>
    <message>
        <source>The graticule shows where north is.</source>
        <translation>Das Gradnetz zeigt, wo Norden ist.</translation>
    </message>
    <message>
        <source>A graticule</source>
        <translation>Ein Gradnetz</translation>
    </message>
    <message>
        <source>No graticule</source>
        <translation>Kein Gradnetz</translation>
    </message>
    <message>
        <source>The scale is small.</source>
        <translation>Der Maßstab ist klein.</translation>
    </message>
    <message>
        <source>The scale is large.</source>
        <translation>Der Maßstab ist groß.</translation>
    </message>
    <message>
        <source>Where on the globe the data are is not known.</source>
        <translation type="vanished">Wo auf dem Globus die Daten liegen, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The layer “%1” is left out. %2</source>
        <translation>Die Ebene „%1“ bleibt weg. %2</translation>
    </message>
    <message>
        <source>There are no features that say where the map is, so it shows the world.</source>
        <translation type="vanished">Keine Objekte sagen, wo die Karte liegt, also zeigt sie die Welt.</translation>
    </message>
    <message>
        <source>Sea around the land</source>
        <translation>Meer um das Land</translation>
    </message>
    <message>
        <source>The data hold all the land that the map shows.</source>
        <translation>Die Daten enthalten alles Land, das die Karte zeigt.</translation>
    </message>
    <message>
        <source>Extent of the bulk of the data</source>
        <translation>Ausdehnung nach dem Großteil der Daten</translation>
    </message>
    <message>
        <source>Texts of the template that stay as they are</source>
        <translation>Texte der Vorlage, die bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>The data are about as broad as high.</source>
        <translation>Die Daten sind etwa so breit wie hoch.</translation>
    </message>
    <message>
        <source>The layer “%1” of “%2” can&apos;t be shown: its coordinates are geocentric, as X, Y and Z; convert the data to longitude and latitude.</source>
        <translation>Die Ebene „%1“ von „%2“ kann nicht gezeigt werden: Ihre Koordinaten sind geozentrisch, als X, Y und Z; rechnen Sie die Daten in Länge und Breite um.</translation>
    </message>
    <message>
        <source>No coordinate system is known for the data, so that the map has none, nor a scale. Give the layers one in their sources&apos; field “coordinateSystem”, and the map with --crs or in its tab Coordinate System.</source>
        <translation>Für die Daten ist kein Koordinatensystem bekannt, so dass die Karte keines hat und auch keinen Maßstab. Geben Sie den Ebenen eines im Feld „coordinateSystem“ ihrer Quellen und der Karte mit --crs oder auf ihrer Karteikarte „Koordinatensystem“.</translation>
    </message>
    <message>
        <source>There is nothing to draw: the data have no geometries, and no columns of coordinates are known in %1. Call two columns of numbers lon and lat, or x and y.</source>
        <translation type="vanished">Es gibt nichts zu zeichnen: Die Daten haben keine Geometrien, und in %1 sind keine Spalten mit Koordinaten bekannt. Nennen Sie zwei Spalten mit Zahlen lon und lat oder x und y.</translation>
    </message>
    <message>
        <source>There is nothing to draw: no layer of %1 has geometries.</source>
        <translation>Es gibt nichts zu zeichnen: Keine Ebene von %1 hat Geometrien.</translation>
    </message>
    <message>
        <source>%1 (it has: %2)</source>
        <translation>%1 (vorhanden: %2)</translation>
    </message>
    <message>
        <source>No columns of coordinates are known in %1. Call two columns of numbers lon and lat, or x and y.</source>
        <translation>In %1 sind keine Spalten mit Koordinaten bekannt. Nennen Sie zwei Spalten mit Zahlen lon und lat oder x und y.</translation>
    </message>
</context>
<context>
    <name>NewMapDialog</name>
    <message>
        <source>Points</source>
        <translation type="vanished">Punkte</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation type="vanished">Linien</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation type="vanished">Flächen</translation>
    </message>
    <message>
        <source>Mixed</source>
        <translation type="vanished">Gemischt</translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="vanished">Tabelle</translation>
    </message>
    <message>
        <source>New Map from Data</source>
        <translation>Neue Karte aus Daten</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Dateien &amp;hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Titel</translation>
    </message>
    <message>
        <source>the name of the data</source>
        <translation>der Name der Daten</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papier</translation>
    </message>
    <message>
        <source>As the data need</source>
        <translation>Wie die Daten es brauchen</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>A&amp;usrichtung</translation>
    </message>
    <message>
        <source>&amp;Coordinate system</source>
        <translation>&amp;Koordinatensystem</translation>
    </message>
    <message>
        <source>one that suits the data; or EPSG:3035</source>
        <translation>eines, das zu den Daten passt; oder EPSG:3035</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filter</translation>
    </message>
    <message>
        <source>all features; or population &gt; 100000</source>
        <translation>alle Objekte; oder population &gt; 100000</translation>
    </message>
    <message>
        <source>T&amp;emplate</source>
        <translation>&amp;Vorlage</translation>
    </message>
    <message>
        <source>none; or a document whose page is taken</source>
        <translation>keine; oder ein Dokument, dessen Seite genommen wird</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>&amp;Make Map</source>
        <translation>Karte &amp;machen</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Coordinate system</source>
        <translation>Koordinatensystem</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Map documents (*.kdx)</source>
        <translation>Kartendokumente (*.kdx)</translation>
    </message>
    <message>
        <source>Add files of data, or drop them here, and check what the map is to show.</source>
        <translation>Fügen Sie Datendateien hinzu oder legen Sie sie hier ab, und haken Sie an, was die Karte zeigen soll.</translation>
    </message>
    <message>
        <source>The coordinate system can&apos;t be taken: %1.</source>
        <translation>Das Koordinatensystem kann nicht genommen werden: %1.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 wird gelesen …</translation>
    </message>
</context>
<context>
    <name>NewSubcommand</name>
    <message>
        <source>new: &quot;%1&quot; is no name of a map document; name a .kdx file.</source>
        <translation>new: „%1“ ist kein Name eines Kartendokuments; nennen Sie eine .kdx-Datei.</translation>
    </message>
    <message>
        <source>%1: there is such a file; name another one, or pass --force to replace it.</source>
        <translation>%1: Diese Datei gibt es; nennen Sie eine andere, oder ersetzen Sie sie mit --force.</translation>
    </message>
    <message>
        <source>The .kdx document to make.</source>
        <translation>Das .kdx-Dokument, das gemacht wird.</translation>
    </message>
    <message>
        <source>More data, as for --data.</source>
        <translation>Weitere Daten, wie bei --data.</translation>
    </message>
    <message>
        <source>A file of data, all its layers or one of them; may be given several times.</source>
        <translation type="vanished">Eine Datendatei, alle ihre Ebenen oder eine davon; mehrmals möglich.</translation>
    </message>
    <message>
        <source>The title; the name of the data if not given.</source>
        <translation>Der Titel; ohne Angabe der Name der Daten.</translation>
    </message>
    <message>
        <source>The paper, such as A3; A4 if not given.</source>
        <translation>Das Papier, etwa A3; ohne Angabe A4.</translation>
    </message>
    <message>
        <source>Let the sheet lie. The shape of the data decides if neither is given.</source>
        <translation>Querformat. Ohne Angabe entscheidet die Form der Daten.</translation>
    </message>
    <message>
        <source>Let the sheet stand upright.</source>
        <translation>Hochformat.</translation>
    </message>
    <message>
        <source>The coordinate system of the map, such as EPSG:3035; one that suits the data if not given.</source>
        <translation>Das Koordinatensystem der Karte, etwa EPSG:3035; ohne Angabe eines, das zu den Daten passt.</translation>
    </message>
    <message>
        <source>A document whose page is taken, with all that lies on it; the map goes into its largest data frame.</source>
        <translation>Ein Dokument, dessen Seite genommen wird, mit allem, was darauf liegt; die Karte kommt in seinen größten Datenrahmen.</translation>
    </message>
    <message>
        <source>Only features of which this is true, such as &quot;population &gt; 100000&quot;.</source>
        <translation>Nur Objekte, für die das gilt, etwa &quot;population &gt; 100000&quot;.</translation>
    </message>
    <message>
        <source>Draw the page into an image, too, at 300 DPI.</source>
        <translation>Die Seite auch in ein Bild zeichnen, mit 300 DPI.</translation>
    </message>
    <message>
        <source>Print what was chosen, and why.</source>
        <translation>Ausgeben, was gewählt wurde und warum.</translation>
    </message>
    <message>
        <source>Replace a document of that name.</source>
        <translation>Ein Dokument dieses Namens ersetzen.</translation>
    </message>
    <message>
        <source>new: data are missing; name a file with --data.</source>
        <translation>new: Es fehlen Daten; nennen Sie eine Datei mit --data.</translation>
    </message>
    <message>
        <source>new: --landscape and --portrait exclude each other.</source>
        <translation>new: --landscape und --portrait schließen einander aus.</translation>
    </message>
    <message>
        <source>A file of data, all its layers or one of them, or a folder; may be given several times.</source>
        <translation>Eine Datendatei, alle ihre Ebenen oder eine davon, oder ein Ordner; mehrmals möglich.</translation>
    </message>
    <message>
        <source>new: the page is that of the template; leave out --paper, --landscape and --portrait.</source>
        <translation>new: Die Seite ist die der Vorlage; lassen Sie --paper, --landscape und --portrait weg.</translation>
    </message>
    <message>
        <source>%1 was made all the same.</source>
        <translation>%1 wurde dennoch angelegt.</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Beibehalten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>OpacitySlider</name>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>OutputCommands</name>
    <message>
        <source>Document Properties</source>
        <translation>Dokumenteigenschaften</translation>
    </message>
    <message>
        <source>Exporting the page…</source>
        <translation>Die Seite wird exportiert …</translation>
    </message>
    <message>
        <source>Cancelled; no file was written.</source>
        <translation>Abgebrochen; es wurde keine Datei geschrieben.</translation>
    </message>
    <message>
        <source>%1 was written.</source>
        <translation>%1 wurde geschrieben.</translation>
    </message>
    <message>
        <source>%1 was written, but no program is known that opens it.</source>
        <translation>%1 wurde geschrieben, aber es ist kein Programm bekannt, das die Datei öffnet.</translation>
    </message>
    <message>
        <source>the suffix of %1 names no format; use one of %2.</source>
        <translation>die Endung von %1 nennt kein Format; nehmen Sie eine von %2.</translation>
    </message>
    <message>
        <source>the page would not be whole; mend the data source or remove what draws it. %1</source>
        <translation>die Seite wäre nicht vollständig; reparieren Sie die Datenquelle oder entfernen Sie, was sie zeichnet. %1</translation>
    </message>
    <message>
        <source>The page that is shown: %1</source>
        <translation>Die angezeigte Seite: %1</translation>
    </message>
    <message>
        <source>All %1 pages of the series</source>
        <translation>Alle %1 Seiten der Serie</translation>
    </message>
    <message>
        <source>The page without its series; show one of the series&apos; pages first to export that.</source>
        <translation>Die Seite ohne ihre Serie; zeigen Sie zuerst eine Seite der Serie an, um diese zu exportieren.</translation>
    </message>
</context>
<context>
    <name>OutputIntent</name>
    <message>
        <source>the profile %1 can&apos;t be read: %2</source>
        <translation>das Profil %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is no ICC profile, or not a whole one; name another file</source>
        <translation>%1 ist kein ICC-Profil oder kein ganzes; nennen Sie eine andere Datei</translation>
    </message>
    <message>
        <source>%1 is not the profile of a screen or a printer; name one that is</source>
        <translation>%1 ist nicht das Profil eines Bildschirms oder Druckers; nennen Sie ein solches</translation>
    </message>
    <message>
        <source>%1 is a profile of %2 colours, and those of the page are RGB; name one for RGB</source>
        <translation>%1 ist ein Profil für %2-Farben, und die der Seite sind RGB; nennen Sie eines für RGB</translation>
    </message>
    <message>
        <source>%1 is a profile of a version that PDF files can&apos;t hold; name one of version 2 or 4</source>
        <translation>%1 ist ein Profil in einer Version, die PDF-Dateien nicht aufnehmen; nennen Sie eines in Version 2 oder 4</translation>
    </message>
</context>
<context>
    <name>OutputWatch</name>
    <message>
        <source>%1 holds a TIFF: this export writes no &quot;.%2&quot;; rename it to .tif, or name an image that ends in %3.</source>
        <translation>%1 enthält ein TIFF: Dieser Export schreibt kein „.%2“; benennen Sie die Datei in .tif um oder nennen Sie ein Bild, das auf %3 endet.</translation>
    </message>
    <message>
        <source>%1 was not written: interrupted.</source>
        <translation>%1 wurde nicht geschrieben: abgebrochen.</translation>
    </message>
</context>
<context>
    <name>OutsideFiles</name>
    <message>
        <source>“%1” is no whole path; write one that begins with “/”</source>
        <translation type="vanished">„%1“ ist kein vollständiger Pfad; schreiben Sie einen, der mit „/“ beginnt</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>The document uses files of other folders: %1.</source>
        <translation type="vanished">Das Dokument verwendet Dateien anderer Ordner: %1.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>Allowed Folders</source>
        <translation type="vanished">Erlaubte Ordner</translation>
    </message>
    <message>
        <source>The document uses files of other folders than its own: %1. “Allow” lets every document use files there from now on without this message; File › Allowed Folders… takes that back.</source>
        <translation>Das Dokument benutzt Dateien anderer Ordner als seines eigenen: %1. „Erlauben“ lässt von nun an jedes Dokument Dateien dort ohne diese Meldung benutzen; Datei › Erlaubte Ordner … nimmt das zurück.</translation>
    </message>
    <message>
        <source>The document wants to read from your databases: %1. “Allow” lets every document do so from now on and reads it anew; Edit › Connections… takes that back.</source>
        <translation>Das Dokument möchte aus Ihren Datenbanken lesen: %1. „Erlauben“ lässt das von nun an jedes Dokument tun und liest sie neu; Bearbeiten › Verbindungen… nimmt das zurück.</translation>
    </message>
    <message>
        <source>The connection “%1” wants a password.</source>
        <translation>Die Verbindung „%1“ verlangt ein Passwort.</translation>
    </message>
    <message>
        <source>Password…</source>
        <translation>Passwort…</translation>
    </message>
</context>
<context>
    <name>OwnLibrary</name>
    <message>
        <source>My symbols</source>
        <translation type="vanished">Meine Symbole</translation>
    </message>
</context>
<context>
    <name>PageChooser</name>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>The page that is shown; type a number, or a part of a name</source>
        <translation>Die gezeigte Seite; tippen Sie eine Nummer oder einen Teil eines Namens</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>of %1</source>
        <translation>von %1</translation>
    </message>
</context>
<context>
    <name>PageClipboard</name>
    <message>
        <source>Cut the selected elements</source>
        <translation>Die ausgewählten Elemente ausschneiden</translation>
    </message>
    <message>
        <source>The clipboard holds nothing that can lie on a page; copy elements, a text or a picture.</source>
        <translation>Die Zwischenablage enthält nichts, was auf einer Seite liegen kann; kopieren Sie Elemente, einen Text oder ein Bild.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>The clipboard holds no elements, which alone have a place; copy some.</source>
        <translation>Die Zwischenablage enthält keine Elemente, und nur sie haben eine Stelle; kopieren Sie welche.</translation>
    </message>
    <message>
        <source>Paste in place</source>
        <translation>An derselben Stelle einfügen</translation>
    </message>
    <message>
        <source>Duplicate the selected elements</source>
        <translation>Die ausgewählten Elemente duplizieren</translation>
    </message>
    <message>
        <source>The picture on the clipboard has more than %1 pixels a side; copy a smaller one.</source>
        <translation>Das Bild in der Zwischenablage hat mehr als %1 Pixel je Seite; kopieren Sie ein kleineres.</translation>
    </message>
    <message>
        <source>The picture on the clipboard can&apos;t be read; save it as a file and paste that.</source>
        <translation>Das Bild in der Zwischenablage kann nicht gelesen werden; speichern Sie es als Datei und fügen Sie diese ein.</translation>
    </message>
    <message>
        <source>The picture on the clipboard is too large to be embedded; save it as a file and paste that.</source>
        <translation>Das Bild in der Zwischenablage ist zu groß, um eingebettet zu werden; speichern Sie es als Datei und fügen Sie diese ein.</translation>
    </message>
    <message>
        <source>The text on the clipboard has %1 characters, and an element at most %2; copy a part of it.</source>
        <translation>Der Text in der Zwischenablage hat %1 Zeichen und ein Element höchstens %2; kopieren Sie einen Teil davon.</translation>
    </message>
    <message>
        <source>The text on the clipboard is blank; copy something else.</source>
        <translation>Der Text in der Zwischenablage ist leer; kopieren Sie etwas anderes.</translation>
    </message>
    <message>
        <source>Data frames and map surrounds can&apos;t lie in a group; leave the group with Escape first.</source>
        <translation>Datenrahmen und Randangaben können nicht in einer Gruppe liegen; verlassen Sie die Gruppe zuerst mit Esc.</translation>
    </message>
    <message>
        <source>The clipboard holds layers; paste them in the contents.</source>
        <translation>Die Zwischenablage enthält Ebenen; fügen Sie sie im Inhalt ein.</translation>
    </message>
</context>
<context>
    <name>PageComposition</name>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Graticule</source>
        <translation>Gradnetz</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Legend</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>1:%1 at the centre of the map</source>
        <translation>1:%1 in der Mitte der Karte</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Quellennachweis</translation>
    </message>
    <message>
        <source>Map data: [credits]</source>
        <translation>Kartendaten: [credits]</translation>
    </message>
</context>
<context>
    <name>PageExport</name>
    <message>
        <source>%1: this GDAL can&apos;t write %2; choose another format, or install a GDAL that can.</source>
        <translation>%1: Diese GDAL-Version kann kein %2 schreiben; wählen Sie ein anderes Format, oder installieren Sie eine GDAL-Version, die es kann.</translation>
    </message>
    <message>
        <source>%1: the document has no page to draw; give it one, such as &quot;page&quot;: {&quot;form&quot;: &quot;A4&quot;}.</source>
        <translation>%1: Das Dokument hat keine Seite, die gezeichnet werden könnte; geben Sie ihm eine, etwa &quot;page&quot;: {&quot;form&quot;: &quot;A4&quot;}.</translation>
    </message>
    <message>
        <source>%1 was not written: interrupted.</source>
        <translation>%1 wurde nicht geschrieben: abgebrochen.</translation>
    </message>
    <message>
        <source>%1 was not written: %2.</source>
        <translation>%1 wurde nicht geschrieben: %2.</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 wurde nicht geschrieben: %2</translation>
    </message>
    <message>
        <source>%1 was not written: its symbols draw over each other many hundred times; make them smaller, fewer or less dense, or give less DPI.</source>
        <translation type="vanished">%1 wurde nicht geschrieben: Seine Symbole liegen viele hundert Mal übereinander; machen Sie sie kleiner, weniger zahlreich oder weniger dicht, oder geben Sie weniger DPI an.</translation>
    </message>
    <message>
        <source>%1 was not written: the font %2 can&apos;t be opened at the moment; start the program again.</source>
        <translation>%1 wurde nicht geschrieben: Die Schrift %2 lässt sich im Augenblick nicht öffnen; starten Sie das Programm neu.</translation>
    </message>
    <message>
        <source>%1 was not written: drawing its page takes far more than its size and its data are worth; simplify lines and areas with many vertices or crossings, make symbols smaller, fewer or less dense, or give less DPI.</source>
        <translation>%1 wurde nicht geschrieben: Die Seite zu zeichnen kostet weit mehr, als ihre Größe und ihre Daten wert sind; vereinfachen Sie Linien und Flächen mit vielen Stützpunkten oder Kreuzungen, machen Sie Symbole kleiner, setzen Sie weniger oder weniger dichte, oder geben Sie weniger DPI an.</translation>
    </message>
    <message>
        <source>The font %1 is not installed; another one stands in for it.</source>
        <translation type="vanished">Die Schrift %1 ist nicht installiert; eine andere steht für sie ein.</translation>
    </message>
    <message>
        <source>No font that is installed has these letters, so that boxes stand for them: %1</source>
        <translation type="vanished">Keine installierte Schrift hat diese Zeichen, sodass Kästchen für sie stehen: %1</translation>
    </message>
</context>
<context>
    <name>PageGesture</name>
    <message>
        <source>Move the selected elements</source>
        <translation>Ausgewählte Elemente verschieben</translation>
    </message>
    <message>
        <source>Resize the selected elements</source>
        <translation>Größe der ausgewählten Elemente ändern</translation>
    </message>
    <message>
        <source>x %1  y %2 cm</source>
        <translation>x %1  y %2 cm</translation>
    </message>
    <message>
        <source>%1 × %2 cm</source>
        <translation>%1 × %2 cm</translation>
    </message>
</context>
<context>
    <name>PageImage</name>
    <message>
        <source>%1 was not written: there are no elements on the page to crop it to.</source>
        <translation>%1 wurde nicht geschrieben: Auf der Seite sind keine Elemente, auf die es zugeschnitten werden könnte.</translation>
    </message>
    <message>
        <source>%1 was not written: the map of &quot;%2&quot; has no coordinate system that is known; give it one.</source>
        <translation>%1 wurde nicht geschrieben: Die Karte von &quot;%2&quot; hat kein bekanntes Koordinatensystem; geben Sie ihr eines.</translation>
    </message>
    <message>
        <source>%1 was not written: no data frame is called &quot;%2&quot;; the page has %3.</source>
        <translation>%1 wurde nicht geschrieben: Kein Kartenrahmen heißt &quot;%2&quot;; auf der Seite sind %3.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Schreiben</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>The document as it is stored</source>
        <translation>Das Dokument, wie es gespeichert ist</translation>
    </message>
</context>
<context>
    <name>PagePrinter</name>
    <message>
        <source>The page was not printed: the file could not be written; is the disk full?</source>
        <translation>Die Seite wurde nicht gedruckt: Die Datei konnte nicht geschrieben werden; ist der Datenträger voll?</translation>
    </message>
    <message>
        <source>The printer %1 does not take the page; look whether it is switched on and ready, or choose another one.</source>
        <translation>Der Drucker %1 nimmt die Seite nicht an; sehen Sie nach, ob er eingeschaltet und bereit ist, oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Row %1 of %2, column %3 of %4</source>
        <translation>Zeile %1 von %2, Spalte %3 von %4</translation>
    </message>
    <message>
        <source>There is no printer; name a .pdf file to print into, or set up a printer.</source>
        <translation>Es gibt keinen Drucker; nennen Sie eine .pdf-Datei, in die gedruckt werden soll, oder richten Sie einen Drucker ein.</translation>
    </message>
    <message>
        <source>There is no printer %1; there are: %2. A .pdf file can be named, too.</source>
        <translation>Einen Drucker %1 gibt es nicht; es gibt: %2. Auch eine .pdf-Datei kann genannt werden.</translation>
    </message>
    <message>
        <source>Nothing was printed: sheet %1 was asked for, and there are %2.</source>
        <translation>Nichts wurde gedruckt: Verlangt war ab Blatt %1, es gibt %2.</translation>
    </message>
</context>
<context>
    <name>PageTexts</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
</context>
<context>
    <name>Paper</name>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
</context>
<context>
    <name>PatternBounds</name>
    <message>
        <source>a pattern of LIKE could be met in too many ways by its long texts; use fewer % in it</source>
        <translation>ein Muster von LIKE kann von ihren langen Texten auf zu viele Arten erfüllt werden; verwenden Sie darin weniger %</translation>
    </message>
</context>
<context>
    <name>PictureElement</name>
    <message>
        <source>The picture has no file; choose one.</source>
        <translation>Das Bild hat keine Datei; wählen Sie eine.</translation>
    </message>
    <message>
        <source>%1: there is no such picture file; put it there.</source>
        <translation>%1: diese Bilddatei gibt es nicht; legen Sie sie dort ab.</translation>
    </message>
    <message>
        <source>%1: the picture is neither PNG nor JPEG nor SVG; save it as one of these.</source>
        <translation type="vanished">%1: das Bild ist weder PNG noch JPEG noch SVG; speichern Sie es als eines davon.</translation>
    </message>
    <message>
        <source>%1: the picture&apos;s size can&apos;t be read; save it anew.</source>
        <translation>%1: die Größe des Bildes kann nicht gelesen werden; speichern Sie es neu.</translation>
    </message>
    <message>
        <source>%1: the picture has %2 × %3 pixels; make it smaller than %4 pixels a side and %5 pixels in all.</source>
        <translation>%1: das Bild hat %2 × %3 Pixel; verkleinern Sie es auf weniger als %4 Pixel je Seite und %5 Pixel insgesamt.</translation>
    </message>
    <message>
        <source>%1: the picture can&apos;t be read: %2.</source>
        <translation>%1: das Bild kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1: the picture can&apos;t be opened.</source>
        <translation>%1: das Bild kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1: the SVG can&apos;t be drawn; save it with a size.</source>
        <translation>%1: das SVG kann nicht gezeichnet werden; speichern Sie es mit einer Größe.</translation>
    </message>
    <message>
        <source>The embedded picture</source>
        <translation>Das eingebettete Bild</translation>
    </message>
    <message>
        <source>%1: the picture is neither PNG nor JPEG, TIFF, WebP or SVG; save it as one of these.</source>
        <translation>%1: Das Bild ist weder PNG noch JPEG, TIFF, WebP oder SVG; speichern Sie es als eines davon.</translation>
    </message>
    <message>
        <source>%1: the picture can&apos;t be opened: %2.</source>
        <translation>%1: Das Bild kann nicht geöffnet werden: %2.</translation>
    </message>
</context>
<context>
    <name>PinnedLabels</name>
    <message>
        <source>Only a layer of features has labels; write layer:MAP/LAYER.</source>
        <translation>Nur eine Ebene mit Objekten hat Beschriftungen; schreiben Sie layer:KARTE/EBENE.</translation>
    </message>
    <message>
        <source>The layer “%1” has no labels; give it some first.</source>
        <translation>Die Ebene „%1“ hat keine Beschriftungen; geben Sie ihr zuerst welche.</translation>
    </message>
    <message>
        <source>No feature of the layer “%1” has the key “%2”.</source>
        <translation>Kein Objekt der Ebene „%1“ hat den Schlüssel „%2“.</translation>
    </message>
</context>
<context>
    <name>PluginLibrary</name>
    <message>
        <source>The plug-in is missing: there is no %1. Build it, or name it in PLOTVANE_PLUGIN.</source>
        <translation>Das Plug-in fehlt: Es gibt kein %1. Bauen Sie es, oder nennen Sie es in PLOTVANE_PLUGIN.</translation>
    </message>
    <message>
        <source> and no </source>
        <translation> und kein </translation>
    </message>
    <message>
        <source>The plug-in can&apos;t be loaded: %1</source>
        <translation>Das Plug-in kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>%1 is no plug-in: it exports no function %2.</source>
        <translation>%1 ist kein Plug-in: Es exportiert keine Funktion %2.</translation>
    </message>
    <message>
        <source>%1: %2 answered no module.</source>
        <translation>%1: %2 hat kein Modul geliefert.</translation>
    </message>
</context>
<context>
    <name>PointTransform</name>
    <message>
        <source>there is no transformation between them</source>
        <translation>zwischen ihnen gibt es keine Transformation</translation>
    </message>
</context>
<context>
    <name>PrintCommands</name>
    <message>
        <source>Print</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Printing the page…</source>
        <translation>Die Seite wird gedruckt …</translation>
    </message>
    <message>
        <source>Cancelled; nothing was printed.</source>
        <translation>Abgebrochen; es wurde nichts gedruckt.</translation>
    </message>
    <message>
        <source>%1 was written.</source>
        <translation>%1 wurde geschrieben.</translation>
    </message>
    <message>
        <source>The page was sent to %1.</source>
        <translation>Die Seite wurde an %1 geschickt.</translation>
    </message>
    <message>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>Drawing the page…</source>
        <translation>Die Seite wird gezeichnet …</translation>
    </message>
    <message>
        <source>Plotvane</source>
        <translation>Plotvane</translation>
    </message>
</context>
<context>
    <name>PrintOptions</name>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>One sheet of %1, the page at %2 %</source>
        <translation>Ein Blatt von %1, die Seite zu %2 %</translation>
    </message>
    <message>
        <source>%1 sheets of %2, in %3 rows and %4 columns</source>
        <translation>%1 Blätter von %2, in %3 Zeilen und %4 Spalten</translation>
    </message>
</context>
<context>
    <name>ProjectionChoice</name>
    <message>
        <source>Equal Earth projection</source>
        <translation>Equal-Earth-Projektion</translation>
    </message>
    <message>
        <source>The data reach round the world, and the Equal Earth projection keeps its areas.</source>
        <translation>Die Daten reichen um die Welt, und die Equal-Earth-Projektion ist flächentreu.</translation>
    </message>
    <message>
        <source>Lambert azimuthal equal-area projection about the pole</source>
        <translation>Lamberts flächentreue Azimutalprojektion um den Pol</translation>
    </message>
    <message>
        <source>The data lie about a pole, where an azimuthal projection shows all directions alike.</source>
        <translation>Die Daten liegen um einen Pol, wo eine Azimutalprojektion alle Richtungen gleich zeigt.</translation>
    </message>
    <message>
        <source>cylindrical equal-area projection, true at %1</source>
        <translation>flächentreue Zylinderprojektion, längentreu bei %1</translation>
    </message>
    <message>
        <source>The data lie in a belt along the equator, which a cylindrical projection shows best.</source>
        <translation>Die Daten liegen in einem Gürtel entlang des Äquators, den eine Zylinderprojektion am besten zeigt.</translation>
    </message>
    <message>
        <source>Albers equal-area conic projection, %1 and %2</source>
        <translation>Albers&apos; flächentreue Kegelprojektion, %1 und %2</translation>
    </message>
    <message>
        <source>The data are broader than high and lie to one side of the equator: a conic projection, its standard parallels a sixth of the height within the edges.</source>
        <translation>Die Daten sind breiter als hoch und liegen auf einer Seite des Äquators: eine Kegelprojektion mit Standardparallelen ein Sechstel der Höhe innerhalb der Ränder.</translation>
    </message>
    <message>
        <source>Lambert azimuthal equal-area projection, %1, %2</source>
        <translation>Lamberts flächentreue Azimutalprojektion, %1, %2</translation>
    </message>
    <message>
        <source>The data are about as broad as high: an azimuthal projection about their middle.</source>
        <translation type="vanished">Die Daten sind etwa so breit wie hoch: eine Azimutalprojektion um ihre Mitte.</translation>
    </message>
    <message>
        <source>The data cover less than %1 km, and this is their zone of UTM.</source>
        <translation>Die Daten reichen über weniger als %1 km, und dies ist ihre UTM-Zone.</translation>
    </message>
    <message>
        <source>The data&apos;s own coordinate system, %1, shows them almost without distortion.</source>
        <translation>Das eigene Koordinatensystem der Daten, %1, zeigt sie fast ohne Verzerrung.</translation>
    </message>
    <message>
        <source>An azimuthal projection about the middle of the data shows them best on all sides.</source>
        <translation>Eine Azimutalprojektion um die Mitte der Daten zeigt sie nach allen Seiten am besten.</translation>
    </message>
    <message>
        <source>plain coordinates</source>
        <translation>einfache Koordinaten</translation>
    </message>
    <message>
        <source>Where on the globe the data are is not known.</source>
        <translation>Wo auf dem Globus die Daten liegen, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>There are no features that say where the map is, so it shows the world.</source>
        <translation>Keine Objekte sagen, wo die Karte liegt, also zeigt sie die Welt.</translation>
    </message>
    <message>
        <source>It is the data&apos;s own; where on the globe they are is not known.</source>
        <translation>Es ist das eigene der Daten; wo auf dem Globus sie liegen, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>It is the data&apos;s own, since they do not lie on the Earth.</source>
        <translation>Es ist das eigene der Daten, da sie nicht auf der Erde liegen.</translation>
    </message>
</context>
<context>
    <name>PropertyPanel</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Nothing to set</source>
        <translation>Nichts einzustellen</translation>
    </message>
    <message>
        <source>%1 elements</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Ebene %1</translation>
    </message>
    <message>
        <source>Map %1</source>
        <translation>Karte %1</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>%1 rows of the contents</source>
        <translation>%1 Zeilen des Inhalts</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Gruppe %1</translation>
    </message>
</context>
<context>
    <name>RasterLayer</name>
    <message>
        <source>The raster “%1” can&apos;t be taken into the map&apos;s coordinate system: %2.</source>
        <translation>Das Raster „%1“ kann nicht in das Koordinatensystem der Karte gebracht werden: %2.</translation>
    </message>
    <message>
        <source>The raster “%1” has %2 bands and no band %3; choose another band.</source>
        <translation>Das Raster „%1“ hat %2 Kanäle und keinen Kanal %3; wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The raster “%1” can&apos;t be read to its end: %2.</source>
        <translation>Das Raster „%1“ kann nicht zu Ende gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>RasterRenderer</name>
    <message>
        <source>The classes stand in for it, so that it does not count.</source>
        <translation>An seiner Stelle gelten die Klassen, sodass es nicht zählt.</translation>
    </message>
</context>
<context>
    <name>RasterSource</name>
    <message>
        <source>The raster “%1” can&apos;t be opened: %2.</source>
        <translation>Das Raster „%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>it does not exist; put it there, or name another file in the layer&apos;s source</source>
        <translation>die Datei gibt es nicht; legen Sie sie dort ab, oder nennen Sie in der Quelle der Ebene eine andere</translation>
    </message>
    <message>
        <source>it is not a file; name one in the layer&apos;s source</source>
        <translation>es ist keine Datei; nennen Sie eine in der Quelle der Ebene</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>it only refers to other files; make one file of it, as by gdal_translate</source>
        <translation>es verweist nur auf andere Dateien; machen Sie eine Datei daraus, etwa mit gdal_translate</translation>
    </message>
    <message>
        <source>a part of it is missing</source>
        <translation>ein Teil davon fehlt</translation>
    </message>
    <message>
        <source>its format is none of those that are known (%1)</source>
        <translation>sein Format ist keines der bekannten (%1)</translation>
    </message>
    <message>
        <source>it holds several rasters; name one of them: %1</source>
        <translation type="vanished">es enthält mehrere Raster; nennen Sie eines davon: %1</translation>
    </message>
    <message>
        <source>it holds no pixels</source>
        <translation>es enthält keine Pixel</translation>
    </message>
    <message>
        <source>it has %1 × %2 pixels in %3 bands; no more than %4 a side in %5 bands are drawn</source>
        <translation>es hat %1 × %2 Pixel in %3 Kanälen; gezeichnet werden höchstens %4 je Seite in %5 Kanälen</translation>
    </message>
    <message>
        <source>it does not say where it lies; give it coordinates, as by a world file beside it</source>
        <translation>es sagt nicht, wo es liegt; geben Sie ihm Koordinaten, etwa durch eine World-Datei daneben</translation>
    </message>
    <message>
        <source>its coordinates make no sense; give it others, as by gdal_edit</source>
        <translation>seine Koordinaten ergeben keinen Sinn; geben Sie ihm andere, etwa mit gdal_edit</translation>
    </message>
    <message>
        <source>its coordinate system names a file by its path, which is not opened; give another one in the source&apos;s field “coordinateSystem”</source>
        <translation>sein Koordinatensystem nennt eine Datei mit ihrem Pfad, die nicht geöffnet wird; geben Sie im Feld „coordinateSystem“ der Quelle ein anderes an</translation>
    </message>
    <message>
        <source>it is stored in pieces of %1 MB; save it in tiles, as by gdal_translate -co TILED=YES</source>
        <translation>es ist in Stücken von %1 MB gespeichert; speichern Sie es in Kacheln, etwa mit gdal_translate -co TILED=YES</translation>
    </message>
    <message>
        <source>it is not whole, or damaged; fetch it again</source>
        <translation>die Datei ist unvollständig oder beschädigt; holen Sie sie noch einmal</translation>
    </message>
    <message>
        <source>it names another file for its overviews, which is not opened; save it without that entry</source>
        <translation>die Datei nennt für ihre Übersichten eine andere, die nicht geöffnet wird; speichern Sie sie ohne diesen Eintrag</translation>
    </message>
</context>
<context>
    <name>RasterStyling</name>
    <message>
        <source>taken for heights, which are tinted</source>
        <translation>als Höhen aufgefasst, die in Stufen gefärbt werden</translation>
    </message>
    <message>
        <source>light from the upper left over the heights</source>
        <translation>Licht von links oben über den Höhen</translation>
    </message>
    <message>
        <source>in the colours of its bands</source>
        <translation>in den Farben ihrer Kanäle</translation>
    </message>
    <message>
        <source>in the colours of its palette</source>
        <translation>in den Farben ihrer Palette</translation>
    </message>
    <message>
        <source>holds no values, so nothing is drawn</source>
        <translation>enthält keine Werte, daher wird nichts gezeichnet</translation>
    </message>
</context>
<context>
    <name>RecoveryCopy</name>
    <message>
        <source>What is not saved would be lost in a crash, since no copy of it can be kept. %1</source>
        <translation>Nicht Gespeichertes ginge bei einem Absturz verloren, da keine Kopie davon angelegt werden kann. %1</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Recover Documents</source>
        <translation>Dokumente wiederherstellen</translation>
    </message>
    <message>
        <source>Plotvane ended with changes that were not saved. A recovered document is as it was then, and counts as not saved; its file stays as it is until you save.</source>
        <translation type="vanished">Plotvane endete mit Änderungen, die nicht gespeichert waren. Ein wiederhergestelltes Dokument ist, wie es zuletzt war, und gilt als nicht gespeichert; seine Datei bleibt unverändert, bis Sie speichern.</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Keep for Later</source>
        <translation>Für später behalten</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>never saved</source>
        <translation>nie gespeichert</translation>
    </message>
    <message>
        <source>Plotvane</source>
        <translation>Plotvane</translation>
    </message>
    <message>
        <source>%1
The copy is kept in %2.</source>
        <translation>%1
Die Kopie bleibt in %2.</translation>
    </message>
    <message>
        <source>Discard the changes of %1?</source>
        <translation>Die Änderungen von %1 verwerfen?</translation>
    </message>
    <message>
        <source>Plotvane ended before these changes were saved. Recover opens the document with them; its file stays as it is until you save.</source>
        <translation>Plotvane endete, bevor diese Änderungen gespeichert waren. „Wiederherstellen“ öffnet das Dokument mit ihnen; seine Datei bleibt, wie sie ist, bis Sie speichern.</translation>
    </message>
    <message>
        <source>%1 was not opened, since a document was recovered. Save that, then open it.</source>
        <translation>%1 wurde nicht geöffnet, weil ein Dokument wiederhergestellt wurde. Speichern Sie dieses und öffnen Sie dann jenes.</translation>
    </message>
</context>
<context>
    <name>Renderer</name>
    <message>
        <source>“%1” is in two classes</source>
        <translation>„%1“ steht in zwei Klassen</translation>
    </message>
    <message>
        <source>is not above that of the class before</source>
        <translation>liegt nicht über dem der vorigen Klasse</translation>
    </message>
    <message>
        <source>names no field</source>
        <translation type="vanished">nennt kein Feld</translation>
    </message>
    <message>
        <source>is larger than maxScale</source>
        <translation>ist größer als maxScale</translation>
    </message>
</context>
<context>
    <name>Ruler</name>
    <message>
        <source>Centimetres on the page; pull a guide out of here</source>
        <translation>Zentimeter auf der Seite; hier lässt sich eine Hilfslinie herausziehen</translation>
    </message>
</context>
<context>
    <name>RunSteps</name>
    <message>
        <source>run: this plug-in does not build %1; plotvane commands lists what it builds.</source>
        <translation>run: Dieses Plug-in baut %1 nicht; plotvane commands zeigt, was es baut.</translation>
    </message>
    <message>
        <source>run: &quot;%1&quot; is neither a step nor a command&apos;s identifier; plotvane run --help lists the steps, and plotvane commands the commands.</source>
        <translation>run: „%1“ ist weder ein Schritt noch die Kennung eines Befehls; plotvane run --help zeigt die Schritte, plotvane commands die Befehle.</translation>
    </message>
    <message>
        <source>run: &quot;%1&quot; is written %2=%3.</source>
        <translation>run: „%1“ wird %2=%3 geschrieben.</translation>
    </message>
    <message>
        <source>run: %1: %2</source>
        <translation>run: %1: %2</translation>
    </message>
    <message>
        <source>run: %1.</source>
        <translation>run: %1.</translation>
    </message>
    <message>
        <source>%1 is disabled; it needs %2.</source>
        <translation>„%1“ ist nicht verfügbar; nötig: %2.</translation>
    </message>
    <message>
        <source>there is no view whose elements could be selected.</source>
        <translation>es gibt keine Ansicht, deren Elemente ausgewählt werden könnten.</translation>
    </message>
    <message>
        <source>no element is named &quot;%1&quot;; plotvane info lists names and handles, and #12 is the one with handle 12.</source>
        <translation>kein Element heißt „%1“; plotvane info zeigt Namen und Kennungen, und #12 ist das mit der Kennung 12.</translation>
    </message>
    <message>
        <source>%1 needs the page layout shown.</source>
        <translation>„%1“ braucht das angezeigte Seitenlayout.</translation>
    </message>
    <message>
        <source>%1 Name another file, or pass --force.</source>
        <translation>%1 Nennen Sie eine andere Datei, oder geben Sie --force an.</translation>
    </message>
    <message>
        <source>%1 was changed by another program since it was read; name another file, or pass --force.</source>
        <translation>%1 wurde von einem anderen Programm geändert, seit es gelesen wurde; nennen Sie eine andere Datei, oder geben Sie --force an.</translation>
    </message>
    <message>
        <source>the page has no data frame, so there is no map to show.</source>
        <translation>die Seite hat keinen Datenrahmen, also gibt es keine Karte zu zeigen.</translation>
    </message>
    <message>
        <source>the data frame is locked; Plotvane_UnlockDataFrame unlocks it.</source>
        <translation>der Datenrahmen ist gesperrt; Plotvane_UnlockDataFrame entsperrt ihn.</translation>
    </message>
    <message>
        <source>a map can&apos;t show that.</source>
        <translation type="vanished">das kann eine Karte nicht zeigen.</translation>
    </message>
    <message>
        <source>the focus map has no layer &quot;%1&quot;; it has: %2.</source>
        <translation>die Karte im aktiven Datenrahmen hat keine Ebene „%1“; sie hat: %2.</translation>
    </message>
    <message>
        <source>no map is named &quot;%1&quot;; plotvane info lists maps and handles, and #12 is the map of the data frame with handle 12.</source>
        <translation>keine Karte heißt „%1“; plotvane info zeigt Karten und Kennungen, und #12 ist die Karte des Datenrahmens mit der Kennung 12.</translation>
    </message>
    <message>
        <source>there is no &quot;%1&quot;; write page, selection, an element&apos;s name or #HANDLE, map:NAME, or layer:MAP/LAYER; plotvane info lists them.</source>
        <translation type="vanished">„%1“ gibt es nicht; page, selection, der Name eines Elements oder #HANDLE, map:NAME oder layer:KARTE/LAYER gehen; plotvane info zählt sie auf.</translation>
    </message>
    <message>
        <source>there is no such field; get=%1 prints all that there are.</source>
        <translation>ein solches Feld gibt es nicht; get=%1 gibt alle aus, die es gibt.</translation>
    </message>
    <message>
        <source>run: %1 belongs to the window; here save=FILE saves the document.</source>
        <translation>run: %1 gehört zum Fenster; hier speichert save=FILE das Dokument.</translation>
    </message>
    <message>
        <source>run: %1 belongs to the window; leave it out.</source>
        <translation>run: %1 gehört zum Fenster; lassen Sie es weg.</translation>
    </message>
    <message>
        <source>the map is shown, and holds nothing named &quot;%1&quot;; view=layout shows the page and its elements.</source>
        <translation>die Karte ist zu sehen und enthält nichts namens „%1“; view=layout zeigt die Seite mit ihren Elementen.</translation>
    </message>
    <message>
        <source>this rectangle has no area; its corners must differ in x and in y.</source>
        <translation type="vanished">dieses Rechteck hat keine Fläche; seine Ecken müssen sich in x und in y unterscheiden.</translation>
    </message>
    <message>
        <source>a map can&apos;t show that much or that little; give other numbers.</source>
        <translation>so viel oder so wenig kann eine Karte nicht zeigen; geben Sie andere Zahlen an.</translation>
    </message>
    <message>
        <source>the page has no map with layers that could be shown or hidden.</source>
        <translation>die Seite hat keine Karte mit Ebenen, die sich zeigen oder verbergen ließen.</translation>
    </message>
    <message>
        <source>this is the name of an image, and what is saved is the document; name a .kdx file, or make an image with Plotvane_Export.</source>
        <translation type="vanished">das ist der Name eines Bildes, gespeichert wird aber das Dokument; nennen Sie eine .kdx-Datei oder machen Sie mit Plotvane_Export ein Bild.</translation>
    </message>
    <message>
        <source>an element can only be added where the page layout is shown.</source>
        <translation>ein Element lässt sich nur hinzufügen, wo das Seitenlayout gezeigt wird.</translation>
    </message>
    <message>
        <source>nothing that can be turned is selected; texts, pictures, markers, lines, polygons and groups of these can.</source>
        <translation>nichts, was sich drehen lässt, ist ausgewählt; Texte, Bilder, Punktsymbole, Linien, Polygone und Gruppen davon lassen sich drehen.</translation>
    </message>
    <message>
        <source>there is no map at this place; on the page, it is given in centimetres.</source>
        <translation>an dieser Stelle ist keine Karte; auf der Seite wird sie in Zentimetern angegeben.</translation>
    </message>
    <message>
        <source>this rectangle has no area; its corners must differ in x and in y</source>
        <translation>dieses Rechteck hat keine Fläche; seine Ecken müssen sich in x und in y unterscheiden</translation>
    </message>
    <message>
        <source>run: %1: %2.</source>
        <translation>run: %1: %2.</translation>
    </message>
    <message>
        <source>this is the name of an image, and what is saved is the document; name a .kdx file, or make an image with Plotvane_Export</source>
        <translation>das ist der Name eines Bildes, gespeichert wird aber das Dokument; nennen Sie eine .kdx-Datei oder machen Sie mit Plotvane_Export ein Bild</translation>
    </message>
    <message>
        <source>there is no &quot;%1&quot;; write document, page, selection, an element&apos;s name or #HANDLE, map:NAME, or layer:MAP/LAYER; plotvane info lists them.</source>
        <translation type="vanished">es gibt kein &quot;%1&quot;; schreiben Sie document, page, selection, den Namen eines Elements oder #HANDLE, map:NAME oder layer:MAP/LAYER; plotvane info führt sie auf.</translation>
    </message>
    <message>
        <source>there is no &quot;%1&quot;; write document, page, series, selection, an element&apos;s name or #HANDLE, map:NAME, or layer:MAP/LAYER; plotvane info lists them.</source>
        <translation>es gibt kein &quot;%1&quot;; schreiben Sie document, page, series, selection, den Namen eines Elements oder #HANDLE, map:NAME oder layer:MAP/LAYER; plotvane info zählt sie auf.</translation>
    </message>
</context>
<context>
    <name>RunSubcommand</name>
    <message>
        <source>The .kdx document.</source>
        <translation>Das .kdx-Dokument.</translation>
    </message>
    <message>
        <source>What to do, in order: a command&apos;s identifier, or one of
%1</source>
        <translation>Was zu tun ist, der Reihe nach: die Kennung eines Befehls oder eines von
%1</translation>
    </message>
    <message>
        <source>Save also over a document that somebody else has opened or changed.</source>
        <translation>Auch über ein Dokument speichern, das jemand anders geöffnet oder geändert hat.</translation>
    </message>
</context>
<context>
    <name>SelectTool</name>
    <message>
        <source>Nudge the selected elements</source>
        <translation>Ausgewählte Elemente schrittweise verschieben</translation>
    </message>
    <message>
        <source>Nudge the vertex</source>
        <translation>Stützpunkt verschieben</translation>
    </message>
    <message>
        <source>Add a vertex</source>
        <translation>Stützpunkt hinzufügen</translation>
    </message>
    <message>
        <source>Delete the vertex</source>
        <translation>Stützpunkt löschen</translation>
    </message>
</context>
<context>
    <name>SeriesDialog</name>
    <message>
        <source>Series of Pages</source>
        <translation>Serie von Seiten</translation>
    </message>
    <message>
        <source>A page for each feature</source>
        <translation>Eine Seite für jedes Objekt</translation>
    </message>
    <message>
        <source>%1 pages:</source>
        <translation>%1 Seiten:</translation>
    </message>
    <message>
        <source>Name a layer, and each of its features has a page.</source>
        <translation>Nennen Sie eine Ebene, und jedes ihrer Objekte hat eine Seite.</translation>
    </message>
    <message>
        <source>Set the features of the series</source>
        <translation>Objekte der Serie setzen</translation>
    </message>
    <message>
        <source>Data of the Series</source>
        <translation>Daten der Serie</translation>
    </message>
</context>
<context>
    <name>SeriesExport</name>
    <message>
        <source>export: --resume passes over files of single pages; give the path a placeholder such as “[page]”.</source>
        <translation>export: --resume übergeht Dateien einzelner Seiten; geben Sie dem Pfad einen Platzhalter wie „[page]“.</translation>
    </message>
    <message>
        <source>%1 has a placeholder, which stands for something else on each page of a series, and the document has no series; name one file, or give the document a series.</source>
        <translation>%1 hat einen Platzhalter, der auf jeder Seite einer Serie für etwas anderes steht, und das Dokument hat keine Serie; nennen Sie eine Datei, oder geben Sie dem Dokument eine Serie.</translation>
    </message>
    <message>
        <source>export: --pages, --part, --jobs and --resume are for a series of pages, and the document has none; leave them out.</source>
        <translation>export: --pages, --part, --jobs und --resume sind für eine Serie von Seiten, und das Dokument hat keine; lassen Sie sie weg.</translation>
    </message>
    <message>
        <source>There is no such page; the series has %1 pages.</source>
        <translation>Es gibt keine solche Seite; die Serie hat %1 Seiten.</translation>
    </message>
    <message>
        <source>export: --jobs draws pages into files of their own; give the path a placeholder such as “[page]”, or leave --jobs out for one file.</source>
        <translation>export: --jobs zeichnet Seiten in eigene Dateien; geben Sie dem Pfad einen Platzhalter wie „[page]“, oder lassen Sie --jobs für eine einzige Datei weg.</translation>
    </message>
    <message>
        <source>%1 would be the file of %2 pages; give the path a placeholder such as “[page]” or “[field:name]”, or choose one page with --pages.</source>
        <translation>%1 wäre die Datei von %2 Seiten; geben Sie dem Pfad einen Platzhalter wie „[page]“ oder „[field:name]“, oder wählen Sie mit --pages eine Seite.</translation>
    </message>
    <message>
        <source>%1 pages were whole already and were passed over.</source>
        <translation>%1 Seiten waren schon vollständig und wurden übergangen.</translation>
    </message>
    <message>
        <source>Not all pages of %1 were written; the sentences before say which, and why.</source>
        <translation>Nicht alle Seiten von %1 wurden geschrieben; die Sätze davor sagen, welche und warum.</translation>
    </message>
    <message>
        <source>Page %1 of %2 %3</source>
        <translation>Seite %1 von %2 %3</translation>
    </message>
    <message>
        <source>Not all pages were written: interrupted.</source>
        <translation>Nicht alle Seiten wurden geschrieben: unterbrochen.</translation>
    </message>
    <message>
        <source>%1 of %2 pages were not written: %3.</source>
        <translation>%1 von %2 Seiten wurden nicht geschrieben: %3.</translation>
    </message>
</context>
<context>
    <name>SeriesOptions</name>
    <message>
        <source>Of a series, these pages: &quot;1-20,45&quot;, &quot;odd&quot;, &quot;last&quot;.</source>
        <translation>Von einer Serie diese Seiten: &quot;1-20,45&quot;, &quot;odd&quot;, &quot;last&quot;.</translation>
    </message>
    <message>
        <source>Of the pages, every Nth from the Kth on: each page is in one of the N parts.</source>
        <translation>Von den Seiten jede N-te von der K-ten an: jede Seite ist in einem der N Teile.</translation>
    </message>
    <message>
        <source>Draw pages in N processes at once.</source>
        <translation>Seiten in N Prozessen zugleich zeichnen.</translation>
    </message>
    <message>
        <source>Pass over pages whose files are whole and newer than the document and its data.</source>
        <translation>Seiten übergehen, deren Dateien vollständig und neuer als das Dokument und seine Daten sind.</translation>
    </message>
    <message>
        <source>export: --pages takes numbers and ranges such as 1-20,45, or first, last, odd, even, not &quot;%1&quot;.</source>
        <translation>export: --pages nimmt Nummern und Bereiche wie 1-20,45 oder first, last, odd, even, nicht &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>export: --part takes K/N with K from 1 to N, as in 3/10, not &quot;%1&quot;.</source>
        <translation>export: --part nimmt K/N mit K von 1 bis N, wie 3/10, nicht &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>export: --jobs takes a whole number from 1 to %1, not &quot;%2&quot;.</source>
        <translation>export: --jobs nimmt eine ganze Zahl von 1 bis %1, nicht &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>SeriesPages</name>
    <message>
        <source>There is no document whose pages could be shown.</source>
        <translation>Es gibt kein Dokument, dessen Seiten gezeigt werden könnten.</translation>
    </message>
    <message>
        <source>The element “%1” stands on all pages: %2</source>
        <translation>Das Element „%1“ steht auf allen Seiten: %2</translation>
    </message>
    <message>
        <source>Page %1 “%2”: its feature has no place that the map could show; leave it out by “series/filter”, or mend its geometry.</source>
        <translation>Seite %1 „%2“: ihr Objekt hat keinen Ort, den die Karte zeigen könnte; lassen Sie es mit „series/filter“ weg, oder berichtigen Sie seine Geometrie.</translation>
    </message>
</context>
<context>
    <name>SeriesRun</name>
    <message>
        <source>Page %1 of %2: %3</source>
        <translation>Seite %1 von %2: %3</translation>
    </message>
</context>
<context>
    <name>SeriesSettings</name>
    <message>
        <source>is missing; name the layer, or a “source”, whose features are to have a page each</source>
        <translation>fehlt; nennen Sie die Ebene oder eine „source“, deren Objekte je eine Seite haben sollen</translation>
    </message>
</context>
<context>
    <name>SeriesView</name>
    <message>
        <source>The document has no series of pages.</source>
        <translation>Das Dokument hat keine Serie von Seiten.</translation>
    </message>
    <message>
        <source>There is no page %1; the series has %2 pages.</source>
        <translation>Es gibt keine Seite %1; die Serie hat %2 Seiten.</translation>
    </message>
    <message>
        <source>No page has the number or the name “%1”; there are %2, from “%3” to “%4”.</source>
        <translation>Keine Seite hat die Nummer oder den Namen „%1“; es gibt %2, von „%3“ bis „%4“.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>There is no display for the window. To make an image of a page without one: plotvane export DOCUMENT IMAGE; plotvane --help tells what else works.</source>
        <translation>Es gibt keine Anzeige für das Fenster. So entsteht ohne eine ein Bild der Seite: plotvane export DOCUMENT IMAGE; plotvane --help nennt, was sonst noch geht.</translation>
    </message>
</context>
<context>
    <name>SourceBounds</name>
    <message>
        <source>it gives longer values than a file of its size can hold</source>
        <translation>sie gibt längere Werte her, als eine Datei ihrer Größe enthalten kann</translation>
    </message>
    <message>
        <source>it gives more features than a file of its size can hold</source>
        <translation>sie gibt mehr Objekte her, als eine Datei ihrer Größe enthalten kann</translation>
    </message>
    <message>
        <source>it gives more than 5 million features or 2 GB; let the layer show a view of it that has fewer</source>
        <translation>sie ergibt mehr als 5 Millionen Objekte oder 2 GB; lassen Sie die Ebene eine Sicht mit weniger zeigen</translation>
    </message>
</context>
<context>
    <name>SourceIndexes</name>
    <message>
        <source>it would take more than a tenth of the room that is free there</source>
        <translation>er nähme mehr als ein Zehntel des Platzes ein, der dort frei ist</translation>
    </message>
    <message>
        <source>it could not be written</source>
        <translation>er konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>nothing can be written there</source>
        <translation>dort kann nichts geschrieben werden</translation>
    </message>
</context>
<context>
    <name>SourceSystem</name>
    <message>
        <source>The coordinate system that %1 names is not known (%2); its coordinates, which can&apos;t be degrees, are taken as those of the map. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation>Das Koordinatensystem, das %1 nennt, ist nicht bekannt (%2); ihre Koordinaten, die keine Grad sein können, werden als die der Karte genommen. Geben Sie das System im Feld „coordinateSystem“ der Quelle an.</translation>
    </message>
    <message>
        <source>The coordinate system that %1 names is not known (%2); its coordinates are taken as longitudes and latitudes. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation>Das Koordinatensystem, das %1 nennt, ist nicht bekannt (%2); ihre Koordinaten werden als Längen und Breiten genommen. Geben Sie das System im Feld „coordinateSystem“ der Quelle an.</translation>
    </message>
    <message>
        <source>The coordinates of %1 can&apos;t be degrees, as those of its coordinate system are (GeoJSON that names none is in degrees); they are taken as those of the map. Give the system in the source&apos;s field “coordinateSystem”.</source>
        <translation>Die Koordinaten von %1 können keine Grad sein, wie es die ihres Koordinatensystems sind (GeoJSON, das keines nennt, ist in Grad); sie werden als die der Karte genommen. Geben Sie das System im Feld „coordinateSystem“ der Quelle an.</translation>
    </message>
    <message>
        <source>The coordinates of %1 look like degrees, and its coordinate system counts in metres. If they are, give the system in the source&apos;s field “coordinateSystem”, such as EPSG:4326.</source>
        <translation>Die Koordinaten von %1 sehen wie Grad aus, und ihr Koordinatensystem zählt in Metern. Wenn sie es sind, geben Sie das System im Feld „coordinateSystem“ der Quelle an, etwa EPSG:4326.</translation>
    </message>
    <message>
        <source>No coordinate system is known for %1; its coordinates are taken as those of the map. Give one in the source&apos;s field “coordinateSystem”.</source>
        <translation>Für %1 ist kein Koordinatensystem bekannt; die Koordinaten werden als solche der Karte genommen. Geben Sie eines im Feld „coordinateSystem“ der Quelle an.</translation>
    </message>
</context>
<context>
    <name>StoredFormat</name>
    <message>
        <source>document for .kdx files, which is meant without it, or style for .style files.</source>
        <translation>document für .kdx-Dateien, was auch ohne Angabe gemeint ist, oder style für .style-Dateien.</translation>
    </message>
    <message>
        <source>the format is document or style, not &quot;%1&quot;.</source>
        <translation>das Format ist document oder style, nicht „%1“.</translation>
    </message>
</context>
<context>
    <name>StyleLibrary</name>
    <message>
        <source>style library</source>
        <translation>Stilbibliothek</translation>
    </message>
    <message>
        <source>is not “%1”, so this is no style library</source>
        <translation>ist nicht „%1“, also ist dies keine Stilbibliothek</translation>
    </message>
    <message>
        <source>the library was written by a newer version of Plotvane, as version %1; update Plotvane</source>
        <translation>die Bibliothek wurde von einer neueren Version von Plotvane geschrieben, als Version %1; aktualisieren Sie Plotvane</translation>
    </message>
    <message>
        <source>is empty; give it a name</source>
        <translation type="vanished">ist leer; geben Sie einen Namen an</translation>
    </message>
    <message>
        <source>; correct the file or choose another one</source>
        <translation>; berichtigen Sie die Datei, oder wählen Sie eine andere</translation>
    </message>
    <message>
        <source>; change this value, then save again</source>
        <translation>; ändern Sie diesen Wert, und speichern Sie erneut</translation>
    </message>
</context>
<context>
    <name>Subcommand</name>
    <message>
        <source>Draw the page of a document into an image file</source>
        <translation>Die Seite eines Dokuments in eine Bilddatei zeichnen</translation>
    </message>
    <message>
        <source>Tell what is on the page of a document</source>
        <translation type="vanished">Angeben, was auf der Seite eines Dokuments liegt</translation>
    </message>
    <message>
        <source>Work on a document step by step, without a window</source>
        <translation>Ein Dokument ohne Fenster Schritt für Schritt bearbeiten</translation>
    </message>
    <message>
        <source>List the commands and whether the plug-in builds them</source>
        <translation>Die Befehle auflisten und ob das Plug-in sie baut</translation>
    </message>
    <message>
        <source>Usage: plotvane [DOCUMENT]              opens the window
       plotvane SUBCOMMAND [options]   works without one</source>
        <translation>Aufruf: plotvane [DOCUMENT]              öffnet das Fenster
        plotvane SUBCOMMAND [options]   arbeitet ohne eines</translation>
    </message>
    <message>
        <source>
plotvane SUBCOMMAND --help tells about one of them; plotvane --version tells the version. --language LANG, on any of these lines, names the language of the texts, such as de; it is the user&apos;s own otherwise.</source>
        <translation>
plotvane SUBCOMMAND --help beschreibt einen davon; plotvane --version nennt die Version. --language LANG nennt in jeder dieser Zeilen die Sprache der Texte, etwa de; sonst ist es die des Benutzers.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a subcommand nor a document; plotvane --help lists the subcommands.</source>
        <translation>„%1“ ist weder ein Unterbefehl noch ein Dokument; plotvane --help zeigt die Unterbefehle.</translation>
    </message>
    <message>
        <source>The result could not be written to standard output.</source>
        <translation>Das Ergebnis konnte nicht auf die Standardausgabe geschrieben werden.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>The language of the texts, such as de; the user&apos;s own if not given.</source>
        <translation>Die Sprache der Texte, etwa de; die des Benutzers, wenn nicht angegeben.</translation>
    </message>
    <message>
        <source>%1 is missing.</source>
        <translation>%1 fehlt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one argument too many.</source>
        <translation>„%1“ ist ein Argument zu viel.</translation>
    </message>
    <message>
        <source>plotvane %1 --help tells how.</source>
        <translation>plotvane %1 --help sagt, wie es geht.</translation>
    </message>
    <message>
        <source>Usage: plotvane %1 [options] %2</source>
        <translation>Aufruf: plotvane %1 [options] %2</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1: there is no such document; check the name and the folder.</source>
        <translation>%1: Dieses Dokument gibt es nicht; bitte Namen und Ordner prüfen.</translation>
    </message>
    <message>
        <source>Print the format of documents or styles as a JSON Schema</source>
        <translation>Das Format von Dokumenten oder Stilen als JSON-Schema ausgeben</translation>
    </message>
    <message>
        <source>Print tables of all fields of documents or styles</source>
        <translation>Tabellen aller Felder von Dokumenten oder Stilen ausgeben</translation>
    </message>
    <message>
        <source>Tell what is on the page of a document, or in a file of data</source>
        <translation>Sagen, was auf der Seite eines Dokuments oder in einer Datendatei ist</translation>
    </message>
    <message>
        <source>Search for coordinate systems by name, code or area</source>
        <translation>Koordinatensysteme nach Name, Code oder Gebiet suchen</translation>
    </message>
    <message>
        <source>Make a map of data, with a page around it</source>
        <translation>Eine Karte aus Daten machen, mit einer Seite darum</translation>
    </message>
    <message>
        <source>Open for the document only files in its folder, below it, and in folders that --allow names.</source>
        <translation>Für das Dokument nur Dateien in seinem Ordner, darunter und in Ordnern öffnen, die --allow nennt.</translation>
    </message>
    <message>
        <source>A folder for --confine; may be given several times.</source>
        <translation>Ein Ordner für --confine; mehrfach möglich.</translation>
    </message>
    <message>
        <source>End it, cleaned up, after so many seconds.</source>
        <translation>Nach so vielen Sekunden beenden und aufräumen.</translation>
    </message>
    <message>
        <source>End it where it takes more than so many megabytes.</source>
        <translation>Beenden, sobald es mehr als so viele Megabyte braucht.</translation>
    </message>
    <message>
        <source>List, add, remove or test connections to PostGIS databases</source>
        <translation>Verbindungen zu PostGIS-Datenbanken auflisten, hinzufügen, entfernen oder testen</translation>
    </message>
    <message>
        <source>A connection for --confine, by its name; may be given several times.</source>
        <translation>Eine Verbindung für --confine, mit ihrem Namen; mehrmals möglich.</translation>
    </message>
    <message>
        <source>Make and use no indexes of large files in the user&apos;s cache.</source>
        <translation>Keine Indizes großer Dateien im Cache des Benutzers anlegen oder verwenden.</translation>
    </message>
</context>
<context>
    <name>SurroundFields</name>
    <message>
        <source>is no map of the document</source>
        <translation>ist keine Karte des Dokuments</translation>
    </message>
    <message>
        <source>a grid of a kind that can&apos;t be stored</source>
        <translation>ein Gitternetz einer Art, die sich nicht speichern lässt</translation>
    </message>
    <message>
        <source>the element “%1” is not drawn: %2</source>
        <translation>das Element „%1“ wird nicht gezeichnet: %2</translation>
    </message>
</context>
<context>
    <name>SvgCheck</name>
    <message>
        <source>the SVG is not well-formed: %1 in line %2</source>
        <translation>das SVG ist nicht wohlgeformt: %1 in Zeile %2</translation>
    </message>
    <message>
        <source>the SVG is empty</source>
        <translation>das SVG ist leer</translation>
    </message>
    <message>
        <source>the SVG declares a document type or entities; remove them</source>
        <translation>das SVG deklariert einen Dokumenttyp oder Entitäten; entfernen Sie sie</translation>
    </message>
    <message>
        <source>the SVG holds a processing instruction; remove it</source>
        <translation>das SVG enthält eine Verarbeitungsanweisung; entfernen Sie sie</translation>
    </message>
    <message>
        <source>the file is not an SVG</source>
        <translation>die Datei ist kein SVG</translation>
    </message>
    <message>
        <source>the SVG has more than %1 elements</source>
        <translation>das SVG hat mehr als %1 Elemente</translation>
    </message>
    <message>
        <source>the SVG&apos;s elements are nested more than %1 deep</source>
        <translation>die Elemente des SVG sind tiefer als %1 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>the SVG holds a script; remove it</source>
        <translation>das SVG enthält ein Skript; entfernen Sie es</translation>
    </message>
    <message>
        <source>the SVG refers to “%1”; put what it needs into the file</source>
        <translation>das SVG verweist auf „%1“; nehmen Sie in die Datei auf, was es braucht</translation>
    </message>
    <message>
        <source>the SVG embeds an image that is neither PNG nor JPEG</source>
        <translation>das SVG bettet ein Bild ein, das weder PNG noch JPEG ist</translation>
    </message>
    <message>
        <source>the SVG embeds an image larger than %1 × %1 pixels</source>
        <translation>das SVG bettet ein Bild ein, das größer als %1 × %1 Pixel ist</translation>
    </message>
    <message>
        <source>the SVG&apos;s style sheet imports another or hides characters; put what it needs into the file</source>
        <translation>das Stylesheet des SVG bindet ein anderes ein oder verbirgt Zeichen; nehmen Sie in die Datei auf, was es braucht</translation>
    </message>
    <message>
        <source>the SVG repeats its parts in a circle or more than %1 times</source>
        <translation>das SVG wiederholt seine Teile im Kreis oder mehr als %1 Mal</translation>
    </message>
    <message>
        <source>the SVG has more than %1 bytes</source>
        <translation>das SVG hat mehr als %1 Bytes</translation>
    </message>
    <message>
        <source>the SVG&apos;s dashes and their offset differ by more than 1 to 1,000,000,000; change stroke-dasharray or stroke-dashoffset</source>
        <translation>die Strichlängen des SVG und ihr Versatz unterscheiden sich um mehr als 1 zu 1.000.000.000; stroke-dasharray oder stroke-dashoffset ändern</translation>
    </message>
</context>
<context>
    <name>SvgMarkerSymbol</name>
    <message>
        <source>the SVG can&apos;t be drawn: it has no size or no content</source>
        <translation type="vanished">das SVG kann nicht gezeichnet werden: es hat keine Größe oder keinen Inhalt</translation>
    </message>
</context>
<context>
    <name>SvgPicture</name>
    <message>
        <source>the SVG can&apos;t be drawn: it has no size or no content</source>
        <translation>das SVG lässt sich nicht zeichnen: Es hat keine Größe oder keinen Inhalt</translation>
    </message>
</context>
<context>
    <name>SymbolArchive</name>
    <message>
        <source>a symbol of a kind that can&apos;t be stored</source>
        <translation type="vanished">ein Symbol einer Art, die sich nicht speichern lässt</translation>
    </message>
    <message>
        <source>“%1” is not one of %2</source>
        <translation type="vanished">„%1“ ist keiner der Werte %2</translation>
    </message>
    <message>
        <source>there is no symbol to store</source>
        <translation type="vanished">es gibt kein Symbol zu speichern</translation>
    </message>
    <message>
        <source>“%1” is not a colour like #rrggbb or #aarrggbb</source>
        <translation type="vanished">„%1“ ist keine Farbe wie #rrggbb oder #aarrggbb</translation>
    </message>
</context>
<context>
    <name>SymbolFields</name>
    <message>
        <source>there is no symbol to store</source>
        <translation>es gibt kein Symbol zu speichern</translation>
    </message>
    <message>
        <source>a symbol of a kind that can&apos;t be stored</source>
        <translation>ein Symbol einer Art, die sich nicht speichern lässt</translation>
    </message>
    <message>
        <source>“%1” is not a colour like #rrggbb or #aarrggbb</source>
        <translation>„%1“ ist keine Farbe wie #rrggbb oder #aarrggbb</translation>
    </message>
    <message>
        <source>is smaller than that of the colour before; sort them</source>
        <translation>ist kleiner als die der Farbe davor; ordnen Sie sie</translation>
    </message>
    <message>
        <source>layers lie within layers more than %1 deep; put them into one list</source>
        <translation>Schichten liegen mehr als %1 tief in Schichten; fassen Sie sie in einer Liste zusammen</translation>
    </message>
</context>
<context>
    <name>SymbolSettings</name>
    <message>
        <source>“%1” is no feature of OpenType; write a tag such as smcp, or liga=0</source>
        <translation>„%1“ ist keine OpenType-Eigenschaft; schreiben Sie ein Kürzel wie smcp oder liga=0</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::ColorButton</name>
    <message>
        <source>Choose Colour</source>
        <translation>Farbe wählen</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::ContentsModel</name>
    <message>
        <source>Shown at every scale</source>
        <translation>In jedem Maßstab sichtbar</translation>
    </message>
    <message>
        <source>Shown at scales larger than %1</source>
        <translation>Sichtbar in größeren Maßstäben als %1</translation>
    </message>
    <message>
        <source>Shown at scales smaller than %1</source>
        <translation>Sichtbar in kleineren Maßstäben als %1</translation>
    </message>
    <message>
        <source>Shown between %1 and %2</source>
        <translation>Sichtbar zwischen %1 und %2</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>No maps on this page</source>
        <translation>Keine Karten auf dieser Seite</translation>
    </message>
    <message>
        <source>Click to work on this map</source>
        <translation>Klicken, um an dieser Karte zu arbeiten</translation>
    </message>
    <message>
        <source>%1; the map is at %2</source>
        <translation>%1; die Karte hat %2</translation>
    </message>
    <message>
        <source>A group hides it</source>
        <translation>Eine Gruppe blendet sie aus</translation>
    </message>
    <message>
        <source>map with the focus</source>
        <translation>Karte mit dem Fokus</translation>
    </message>
    <message>
        <source>map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>sichtbar</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>ausgeblendet</translation>
    </message>
    <message>
        <source>%1 of %2 labels found no place</source>
        <translation>%1 von %2 Beschriftungen fanden keinen Platz</translation>
    </message>
    <message>
        <source>%1 of it were read</source>
        <translation>%1 davon gelesen</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::ContentsTree</name>
    <message>
        <source>Maps and layers</source>
        <translation>Karten und Ebenen</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::EntryModel</name>
    <message>
        <source>Features</source>
        <translation>Objekte</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::EntryTable</name>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Change…</source>
        <translation>Ä&amp;ndern…</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::FieldEditor</name>
    <message>
        <source>Choose a file</source>
        <translation>Eine Datei wählen</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <source>Pictures (*.svg)</source>
        <translation>Bilder (*.svg)</translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Eine Farbe wählen</translation>
    </message>
    <message>
        <source>Choose Colour</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Choose a coordinate system</source>
        <translation>Ein Koordinatensystem wählen</translation>
    </message>
    <message>
        <source>Write it with the fields at hand</source>
        <translation>Mit Hilfe der Felder schreiben</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::FramePropertyWidget</name>
    <message>
        <source>&amp;Border</source>
        <translation>R&amp;and</translation>
    </message>
    <message>
        <source>Line:</source>
        <translation>Linie:</translation>
    </message>
    <message>
        <source>Colour:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Gap:</source>
        <translation>Abstand:</translation>
    </message>
    <message>
        <source>Distance outwards from the rectangle; a negative one lies inside.</source>
        <translation>Abstand vom Rechteck nach außen; ein negativer liegt innen.</translation>
    </message>
    <message>
        <source>Rounding:</source>
        <translation>Rundung:</translation>
    </message>
    <message>
        <source>Corner rounding: 0 % is a right angle, 100 % half the shorter side.</source>
        <translation>Rundung der Ecken: 0 % ist ein rechter Winkel, 100 % die halbe kürzere Seite.</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Back&amp;ground</source>
        <translation>&amp;Hintergrund</translation>
    </message>
    <message>
        <source>Fill:</source>
        <translation>Füllung:</translation>
    </message>
    <message>
        <source>&amp;Shadow</source>
        <translation>&amp;Schatten</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
    <message>
        <source>How far the shadow lies to the right; a negative distance is to the left.</source>
        <translation>Wie weit der Schatten nach rechts versetzt ist; ein negativer Wert versetzt ihn nach links.</translation>
    </message>
    <message>
        <source>Up:</source>
        <translation>Oben:</translation>
    </message>
    <message>
        <source>How far the shadow lies upwards; a negative distance is downwards.</source>
        <translation>Wie weit der Schatten nach oben versetzt ist; ein negativer Wert versetzt ihn nach unten.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Durchgezogen</translation>
    </message>
    <message>
        <source>Dashed</source>
        <translation>Gestrichelt</translation>
    </message>
    <message>
        <source>Dotted</source>
        <translation>Gepunktet</translation>
    </message>
    <message>
        <source>Dash and dot</source>
        <translation>Strich und Punkt</translation>
    </message>
    <message>
        <source>Dash and two dots</source>
        <translation>Strich und zwei Punkte</translation>
    </message>
    <message>
        <source>No line</source>
        <translation>Keine Linie</translation>
    </message>
    <message>
        <source>Horizontal lines</source>
        <translation>Waagerechte Linien</translation>
    </message>
    <message>
        <source>Vertical lines</source>
        <translation>Senkrechte Linien</translation>
    </message>
    <message>
        <source>Lines rising to the right</source>
        <translation>Nach rechts steigende Linien</translation>
    </message>
    <message>
        <source>Lines rising to the left</source>
        <translation>Nach links steigende Linien</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Diagonal grid</source>
        <translation>Diagonales Gitter</translation>
    </message>
    <message>
        <source>No fill</source>
        <translation>Keine Füllung</translation>
    </message>
    <message>
        <source>Plain colour</source>
        <translation>Einfarbig</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::PropertyModel</name>
    <message>
        <source>Upper left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Upper middle</source>
        <translation>Oben Mitte</translation>
    </message>
    <message>
        <source>Upper right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>Mitte rechts</translation>
    </message>
    <message>
        <source>Lower left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Lower middle</source>
        <translation>Unten Mitte</translation>
    </message>
    <message>
        <source>Lower right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>To the right.</source>
        <translation>Nach rechts.</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Upwards.</source>
        <translation>Nach oben.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>From the left side to the right one.</source>
        <translation>Von der linken Seite zur rechten.</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>From the lower side to the upper one.</source>
        <translation>Von der unteren Seite zur oberen.</translation>
    </message>
    <message>
        <source>Measured from</source>
        <translation>Gemessen von</translation>
    </message>
    <message>
        <source>The place of the rectangle that X and Y tell of, and that stays where it is when the size changes.</source>
        <translation>Die Stelle des Rechtecks, von der X und Y sprechen und die bleibt, wo sie ist, wenn sich die Größe ändert.</translation>
    </message>
    <message>
        <source>line widths</source>
        <translation type="vanished">Linienbreiten</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation type="vanished">%1 Zeichen</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation type="vanished">%1 Punkte</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation type="vanished">%1 Einträge</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Entry %1</source>
        <translation>Eintrag %1</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::PropertySheet</name>
    <message>
        <source>Add an entry to the list</source>
        <translation>Der Liste einen Eintrag hinzufügen</translation>
    </message>
    <message>
        <source>Remove this entry from the list</source>
        <translation>Diesen Eintrag aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Move this entry up</source>
        <translation>Diesen Eintrag nach oben schieben</translation>
    </message>
    <message>
        <source>Move this entry down</source>
        <translation>Diesen Eintrag nach unten schieben</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search for a property</source>
        <translation>Eine Eigenschaft suchen</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::StyleBrowser</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search for a symbol</source>
        <translation>Ein Symbol suchen</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Current symbol</source>
        <translation>Gegenwärtiges Symbol</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>The style libraries hold nothing of this kind.</source>
        <translation>Die Stilbibliotheken enthalten nichts von dieser Art.</translation>
    </message>
    <message>
        <source>No name matches.</source>
        <translation>Kein Name passt.</translation>
    </message>
    <message>
        <source>Nothing is chosen.</source>
        <translation>Nichts ist gewählt.</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::StyleSelectorDlg</name>
    <message>
        <source>All</source>
        <translation type="vanished">Alle</translation>
    </message>
    <message>
        <source>The style libraries hold nothing of this kind.</source>
        <translation type="vanished">Die Stilbibliotheken enthalten nichts von dieser Art.</translation>
    </message>
    <message>
        <source>No name matches.</source>
        <translation type="vanished">Kein Name passt zur Suche.</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="vanished">Suchen</translation>
    </message>
    <message>
        <source>Current symbol</source>
        <translation type="vanished">Aktuelles Symbol</translation>
    </message>
    <message>
        <source>Nothing is chosen.</source>
        <translation type="vanished">Nichts ausgewählt.</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::SymbolChooser</name>
    <message>
        <source>The symbol at its size on paper</source>
        <translation>Das Symbol in seiner Größe auf dem Papier</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Save to Library…</source>
        <translation>In der Bibliothek speichern…</translation>
    </message>
    <message>
        <source>Save to Library</source>
        <translation>In der Bibliothek speichern</translation>
    </message>
    <message>
        <source>The name under which the symbol is found:</source>
        <translation>Der Name, unter dem das Symbol zu finden ist:</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::SystemChooser</name>
    <message>
        <source>the present one</source>
        <translation>das jetzige</translation>
    </message>
    <message>
        <source>in the document</source>
        <translation>im Dokument</translation>
    </message>
    <message>
        <source>chosen lately</source>
        <translation>zuletzt gewählt</translation>
    </message>
    <message>
        <source>geographic</source>
        <translation>geografisch</translation>
    </message>
    <message>
        <source>projected</source>
        <translation>projiziert</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Datum</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Gebiet</translation>
    </message>
    <message>
        <source>Coordinate System</source>
        <translation>Koordinatensystem</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Name, code or area, as in “utm 33” or “germany”</source>
        <translation>Name, Code oder Gebiet, etwa „utm 33“ oder „germany“</translation>
    </message>
    <message>
        <source>Search for a coordinate system</source>
        <translation>Nach einem Koordinatensystem suchen</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Alle Arten</translation>
    </message>
    <message>
        <source>Projected</source>
        <translation>Projiziert</translation>
    </message>
    <message>
        <source>Geographic</source>
        <translation>Geografisch</translation>
    </message>
    <message>
        <source>Deprecated, too</source>
        <translation>Auch veraltete</translation>
    </message>
    <message>
        <source>Coordinate systems</source>
        <translation>Koordinatensysteme</translation>
    </message>
    <message>
        <source>Definition</source>
        <translation>Definition</translation>
    </message>
    <message>
        <source>A PROJ text, WKT or a code:</source>
        <translation>Ein PROJ-Text, WKT oder ein Code:</translation>
    </message>
    <message>
        <source>Definition as WKT</source>
        <translation>Definition als WKT</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>This %1.</source>
        <translation>Das hier %1.</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::SystemModel</name>
    <message>
        <source>as it is written</source>
        <translation>wie es dasteht</translation>
    </message>
    <message>
        <source>holds the map</source>
        <translation>enthält die Karte</translation>
    </message>
    <message>
        <source>%1, holds the map</source>
        <translation>%1, enthält die Karte</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::TOCControl</name>
    <message>
        <source>No maps on this page</source>
        <translation type="vanished">Keine Karten auf dieser Seite</translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="vanished">Sonstige</translation>
    </message>
    <message>
        <source>Click to work on this map</source>
        <translation type="vanished">Klicken, um an dieser Karte zu arbeiten</translation>
    </message>
    <message>
        <source>%1 of %2 labels found no place</source>
        <translation type="vanished">%1 von %2 Beschriftungen fanden keinen Platz</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::WorldMap</name>
    <message>
        <source>The world, with the area of use and the map&apos;s extent</source>
        <translation>Die Welt mit dem Verwendungsgebiet und der Ausdehnung der Karte</translation>
    </message>
    <message>
        <source>Blue: where the coordinate system is meant to be used. Orange: what the map shows.</source>
        <translation>Blau: wofür das Koordinatensystem gedacht ist. Orange: was die Karte zeigt.</translation>
    </message>
</context>
<context>
    <name>SystemsSubcommand</name>
    <message>
        <source>Words of the name, the code or the area, in any order.</source>
        <translation>Wörter des Namens, des Codes oder des Gebiets in beliebiger Reihenfolge.</translation>
    </message>
    <message>
        <source>Print JSON, for programs.</source>
        <translation>JSON für Programme ausgeben.</translation>
    </message>
    <message>
        <source>Deprecated systems, too.</source>
        <translation>Auch veraltete Systeme.</translation>
    </message>
    <message>
        <source>systems: no coordinate system has all of &quot;%1&quot;; leave a word out.</source>
        <translation>systems: kein Koordinatensystem hat alles von „%1“; lassen Sie ein Wort weg.</translation>
    </message>
</context>
<context>
    <name>TestBar</name>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stopped before all features were read.</source>
        <translation>Angehalten, bevor alle Objekte gelesen waren.</translation>
    </message>
</context>
<context>
    <name>TextEditing</name>
    <message>
        <source>Delete the text</source>
        <translation>Text löschen</translation>
    </message>
</context>
<context>
    <name>TextEditor</name>
    <message>
        <source>Text on the page</source>
        <translation>Text auf der Seite</translation>
    </message>
    <message>
        <source>With what was pasted the text has %1 characters, and an element at most %2; paste a part of it.</source>
        <translation>Mit dem Eingefügten hat der Text %1 Zeichen, ein Element höchstens %2; fügen Sie einen Teil davon ein.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message>
        <source>No data are named; give a file of data.</source>
        <translation>Es sind keine Daten genannt; geben Sie eine Datendatei an.</translation>
    </message>
    <message>
        <source>The coordinate system can&apos;t be taken: %1.</source>
        <translation>Das Koordinatensystem kann nicht genommen werden: %1.</translation>
    </message>
    <message>
        <source>“%1” is no paper; take one of: %2.</source>
        <translation>„%1“ ist kein Papierformat; nehmen Sie eines von: %2.</translation>
    </message>
</context>
<context>
    <name>TurnGesture</name>
    <message>
        <source>Turn the selected elements</source>
        <translation>Ausgewählte Elemente drehen</translation>
    </message>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
</context>
<context>
    <name>VectorExport</name>
    <message>
        <source>no page of the series can be shown</source>
        <translation>keine Seite der Serie lässt sich zeigen</translation>
    </message>
</context>
<context>
    <name>VertexHandles</name>
    <message>
        <source>x %1  y %2 cm</source>
        <translation>x %1  y %2 cm</translation>
    </message>
    <message>
        <source>Add a vertex</source>
        <translation>Stützpunkt hinzufügen</translation>
    </message>
    <message>
        <source>Move the vertex</source>
        <translation>Stützpunkt bewegen</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>there is not enough memory for it; take less DPI or fewer layers, or give it more.</source>
        <translation>Dafür reicht der Arbeitsspeicher nicht; nehmen Sie weniger DPI oder weniger Ebenen, oder geben Sie mehr Speicher.</translation>
    </message>
    <message>
        <source>%1 was not written: </source>
        <translation>%1 wurde nicht geschrieben: </translation>
    </message>
    <message>
        <source>it took more than the %1 s of --max-seconds.</source>
        <translation>Es dauerte länger als die %1 s von --max-seconds.</translation>
    </message>
    <message>
        <source>it took more than the %1 MB of --max-memory.</source>
        <translation>Es brauchte mehr als die %1 MB von --max-memory.</translation>
    </message>
    <message>
        <source>the program ended by a fault of its own (signal %1). Please report it.</source>
        <translation>Das Programm endete durch einen eigenen Fehler (Signal %1). Bitte melden Sie ihn.</translation>
    </message>
    <message>
        <source>interrupted.</source>
        <translation>abgebrochen.</translation>
    </message>
    <message>
        <source>there is no memory left to go on; what was not saved is offered at the next start.</source>
        <translation>der Arbeitsspeicher reicht nicht, um fortzufahren; was nicht gespeichert war, wird beim nächsten Start angeboten.</translation>
    </message>
</context>
</TS>
