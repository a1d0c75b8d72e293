<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Paper</name>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::ColorButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Farbe wählen</translation>
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
        <source>Color:</source>
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
        <source>Plain color</source>
        <translation>Einfarbig</translation>
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
        <translation type="vanished">Stile</translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="vanished">Suchen</translation>
    </message>
    <message>
        <source>Current symbol</source>
        <translation type="vanished">Aktuelles Symbol</translation>
    </message>
</context>
<context>
    <name>SysAdapterUI::TOCControl</name>
    <message>
        <source>No maps on this page</source>
        <translation type="vanished">Keine Karten auf dieser Seite</translation>
    </message>
</context>
</TS>
