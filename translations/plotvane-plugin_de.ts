<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AddGridCommand</name>
    <message>
        <source>Grid</source>
        <translation>Gitternetz</translation>
    </message>
    <message>
        <source>Grid already exists, continue to add new grid?</source>
        <translation>Es ist bereits ein Gitternetz vorhanden. Trotzdem ein neues hinzufügen?</translation>
    </message>
    <message>
        <source>Add a grid</source>
        <translation>Gitternetz hinzufügen</translation>
    </message>
</context>
<context>
    <name>AddLegendCommand</name>
    <message>
        <source>Add a legend</source>
        <translation>Legende hinzufügen</translation>
    </message>
</context>
<context>
    <name>AddMapFrameElementTool</name>
    <message>
        <source>Add Data Frame</source>
        <translation>Datenrahmen hinzufügen</translation>
    </message>
</context>
<context>
    <name>AddNorthArrowCommand</name>
    <message>
        <source>North Arrow Properties</source>
        <translation>Eigenschaften des Nordpfeils</translation>
    </message>
</context>
<context>
    <name>AddScaleBarCommand</name>
    <message>
        <source>Add a scale bar</source>
        <translation>Maßstabsleiste hinzufügen</translation>
    </message>
</context>
<context>
    <name>AddScaleTextCommand</name>
    <message>
        <source>Add a text of description of the scale</source>
        <translation>Maßstabsangabe hinzufügen</translation>
    </message>
</context>
<context>
    <name>BottomAlignmentElement</name>
    <message>
        <source>Align the selected elements to ther bottom</source>
        <translation>Ausgewählte Elemente unten ausrichten</translation>
    </message>
</context>
<context>
    <name>BringForwardElements</name>
    <message>
        <source>Bring the selected elements forward</source>
        <translation>Ausgewählte Elemente eine Ebene nach vorn bringen</translation>
    </message>
</context>
<context>
    <name>BringToFrontElements</name>
    <message>
        <source>Bring the selected elements to the front</source>
        <translation>Ausgewählte Elemente in den Vordergrund bringen</translation>
    </message>
</context>
<context>
    <name>CenterAlignmentElement</name>
    <message>
        <source>Align the selected elements to the horizontal center</source>
        <translation>Ausgewählte Elemente horizontal zentrieren</translation>
    </message>
</context>
<context>
    <name>ConvertToGraphics</name>
    <message>
        <source>ConvertToGraphics</source>
        <translation>In Grafik umwandeln</translation>
    </message>
</context>
<context>
    <name>DistributeHorizontallyElements</name>
    <message>
        <source>Distribute the selected elements evenly in the horizontal direction</source>
        <translation>Ausgewählte Elemente horizontal gleichmäßig verteilen</translation>
    </message>
</context>
<context>
    <name>DistributeVerticallyElements</name>
    <message>
        <source>Distribute the selected elements evenly in the vertical direction</source>
        <translation>Ausgewählte Elemente vertikal gleichmäßig verteilen</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Invalid path!</source>
        <translation>Ungültiger Pfad!</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Export complete!</source>
        <translation>Export abgeschlossen!</translation>
    </message>
    <message>
        <source>Drawing.......</source>
        <translation>Seite wird gezeichnet …</translation>
    </message>
    <message>
        <source>Processing.......</source>
        <translation>Bilddatei wird geschrieben …</translation>
    </message>
</context>
<context>
    <name>ExportParaDlg</name>
    <message>
        <source>Export Map</source>
        <translation>Karte exportieren</translation>
    </message>
    <message>
        <source>Output file:</source>
        <translation>Ausgabedatei:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>…</translation>
    </message>
    <message>
        <source>DPI:</source>
        <translation>DPI:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>pixel</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>PushButton</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>PreView</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
</context>
<context>
    <name>FitHeighttoMarginsElements</name>
    <message>
        <source>Make the selected elements the same height as the printer margin</source>
        <translation>Höhe der ausgewählten Elemente an den Seitenrand anpassen</translation>
    </message>
</context>
<context>
    <name>FitWidthtoMarginsElements</name>
    <message>
        <source>Make the selected elements the same width as the printer margin</source>
        <translation>Breite der ausgewählten Elemente an den Seitenrand anpassen</translation>
    </message>
</context>
<context>
    <name>FittoMarginsElements</name>
    <message>
        <source>Make the selected elements the same size as the printer margin</source>
        <translation>Größe der ausgewählten Elemente an den Seitenrand anpassen</translation>
    </message>
</context>
<context>
    <name>LeftAlignmentElement</name>
    <message>
        <source>Aligh the selected elements to the left</source>
        <translation>Ausgewählte Elemente linksbündig ausrichten</translation>
    </message>
</context>
<context>
    <name>MakeSameHeightElements</name>
    <message>
        <source>Make the selected elements the same height</source>
        <translation>Ausgewählte Elemente auf gleiche Höhe bringen</translation>
    </message>
</context>
<context>
    <name>MakeSameSizeElements</name>
    <message>
        <source>Make the selected elements the same size</source>
        <translation>Ausgewählte Elemente auf gleiche Größe bringen</translation>
    </message>
</context>
<context>
    <name>MakeSameWidthElements</name>
    <message>
        <source>Make the selected elements the same width</source>
        <translation>Ausgewählte Elemente auf gleiche Breite bringen</translation>
    </message>
</context>
<context>
    <name>OpenProjectCommand</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>kdx File(*.kdx)</source>
        <translation>kdx-Datei (*.kdx)</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Open File Failed!</source>
        <translation>Die Datei konnte nicht geöffnet werden!</translation>
    </message>
</context>
<context>
    <name>PageSettingsDlg</name>
    <message>
        <source>Page Settings</source>
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>Tab 1</source>
        <translation>Registerkarte 1</translation>
    </message>
    <message>
        <source>Tab 2</source>
        <translation>Registerkarte 2</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Map Page Size</source>
        <translation>Seitengröße</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
</context>
<context>
    <name>PageSizeTabPage</name>
    <message>
        <source>PageSizeTabPage</source>
        <translation>Seitengröße</translation>
    </message>
    <message>
        <source>Paper:</source>
        <translation>Papier:</translation>
    </message>
    <message>
        <source>Page Width:</source>
        <translation>Seitenbreite:</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>Page Height:</source>
        <translation>Seitenhöhe:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Ausrichtung:</translation>
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
        <source>Scale Map Elements proportionally to changes in Page Size</source>
        <translation>Kartenelemente beim Ändern der Seitengröße proportional anpassen</translation>
    </message>
</context>
<context>
    <name>PreView</name>
    <message>
        <source>PreView</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Scaled:</source>
        <translation>Zoom:</translation>
    </message>
</context>
<context>
    <name>RightAlignmentElement</name>
    <message>
        <source>Align the selected elements to the right</source>
        <translation>Ausgewählte Elemente rechtsbündig ausrichten</translation>
    </message>
</context>
<context>
    <name>SendBackwardElements</name>
    <message>
        <source>Send the selected elements backward</source>
        <translation>Ausgewählte Elemente eine Ebene nach hinten stellen</translation>
    </message>
</context>
<context>
    <name>SendToBackElements</name>
    <message>
        <source>Send the selected elements to the back</source>
        <translation>Ausgewählte Elemente in den Hintergrund stellen</translation>
    </message>
</context>
<context>
    <name>TopAlignmentElement</name>
    <message>
        <source>Align the selected elements to the top</source>
        <translation>Ausgewählte Elemente oben ausrichten</translation>
    </message>
</context>
<context>
    <name>VerticalCenterAlignmentElement</name>
    <message>
        <source>Align the selected elements to the vertical center</source>
        <translation>Ausgewählte Elemente vertikal zentrieren</translation>
    </message>
</context>
</TS>
