<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>Es gibt keinen Dateimanager, der den Protokollordner anzeigen kann.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Protokollordner öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spitze</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Schaft</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>Strahlenkranz</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Strahlen</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>Leinwand</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>Das Dokument. Zum Verschieben der Ansicht ziehen, zum Zoomen das Mausrad drehen.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>Leinwand auf Dokumentgrenzen &amp;beschränken</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Ebene rastern</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Wolke</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Bauschigkeit</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Ebenen vereinen</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Farbe wählen</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Form in Pfad umwandeln</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Bild zuschneiden</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>Deb&amp;ug</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>&amp;Laufzeitschalter</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>&amp;Fehlender HEVC-Codec</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>Dialog&amp;vorschau</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>HEIF-Hilfe</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Speicherfortschritt</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Neustart nach Sprachwechsel</translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation>Diamant</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>&amp;Dokumentgrenzen anzeigen</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Dokumentgröße</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Dokument an Inhalt anpassen</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Hintergrundfarbe des Dokuments wählen</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
</context>
<context>
    <name>EditActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>Rundung</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Exporteinstellungen</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>WebP</source>
        <translation>WebP</translation>
    </message>
    <message>
        <source>WebP, transparent</source>
        <translation>WebP, transparent</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, transparent</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>Dieses Bild enthält Transparenz. Wählen Sie ein Format mit transparentem Hintergrund, um sie zu erhalten.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Proportionen beibehalten</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Qualität in Prozent</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>PNG-Komprimierung</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max.</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Verlustfreie Dokumentdatei</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Erhält jedes Pixel des bearbeitbaren Dokuments, in einer größeren Datei.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Geschätzte Bildgröße:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Wird berechnet…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>Neben dem Bild wird ein bearbeitbares Zelmora-Dokument (.zelmora) gespeichert.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern…</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
</context>
<context>
    <name>ExportPreview</name>
    <message>
        <source>Encoding preview…</source>
        <translation>Vorschau wird codiert…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>Vorschau wird geladen…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Das ganze Bild anzeigen</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Das Bild in Originalgröße anzeigen</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
</context>
<context>
    <name>FadeOutFilter</name>
    <message>
        <source>alpha, fade, gradient, transparent</source>
        <translation>Alpha, ausblenden, Verlauf, transparent</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>Radial</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Ausblendung</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Ausblendung positionieren</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Ausblendfarbe</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Weichheit</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Dokumentfarbe</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Ausblenden</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Neues Dokument</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Ein Dokument oder Bild öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Bild und Dokument speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Rauschen hinzufügen</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Box-Weichzeichner</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Farbanpassung</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Einfärben</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Gaußscher Weichzeichner</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Lichter zu Alpha</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Innerer Schatten</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Verpixeln</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Anheben</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Sobel-Kanten</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Weiche Abschrägung</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Texturkopie</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Tonwertabbildung</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Wasserspiegelung</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>Halbkreis</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>Sichel</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Herz</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Bögen</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Kerbe</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spitze</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier im &amp;Web</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>&amp;Über Zelmora Atelier</translation>
    </message>
</context>
<context>
    <name>ImageLoadErrorDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>HEIC/HEIF Support Is Unavailable</source>
        <translation>HEIC/HEIF-Unterstützung nicht verfügbar</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Installieren Sie das Paket kimageformat6-plugins, das Qt das Lesen von HEIF ermöglicht, und starten Sie Zelmora Atelier erneut.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>HEIF-Bilderweiterungen</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>HEVC-Videoerweiterungen</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation>Malebene</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;Sprache</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>Starten Sie Zelmora Atelier neu, damit alle Änderungen wirksam werden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>LayerActions</name>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Ein Bild als neue Ebene einfügen</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>&amp;Beispielbild einfügen</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Eine Textebene einfügen</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Form</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Eine Form oder einen Sticker einfügen</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>&amp;Neue Malebene</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Ebene einblenden</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Ebene ausblenden</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>Ebene nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Ebene nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>Ebene ent&amp;fernen</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>Ebene &amp;rastern</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>&amp;Mit Ebene darunter vereinen</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Grundlagen</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kanten</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Umfärben, Tonen, Effekte</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Stilübertragungen</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Fotomontagen, Spaß &amp; Kunst</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>Glitzer &amp; Glanz</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effekt</translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Mischmodus</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Mischmodus</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Wählen Sie eine Ebene aus, um sie zu verwalten.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Noch keine Ebenen.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Ebene %1, ausgeblendet</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Ebene %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>Hat eine Rasterauswahl</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Ebene einblenden</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Ebene ausblenden</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>Mit Ebene darunter vereinen</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Aussehen der Ebene</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>%1, %2 px</source>
        <translation>%1, %2 px</translation>
    </message>
</context>
<context>
    <name>LightningBoltShapeGenerator</name>
    <message>
        <source>Lightning</source>
        <translation>Blitz</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Biegung</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Im Finder anzeigen</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Im Explorer anzeigen</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Bild nach %1 exportiert.
Bearbeitbares Dokument als %2 gespeichert.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Der Ordner mit dem Bild konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Bitte warten Sie, bis der laufende Speichervorgang abgeschlossen ist.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>Aus&amp;wahl</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Lineale</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>&amp;Inspektorposition</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Erscheinungsbild</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Ebene</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>E&amp;infügen</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Bild…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;Form…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Hauptwerkzeugleiste</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Weitere Speicheroptionen</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Mehr vom Verlauf</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Einfügen:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Ebene nach oben verschieben</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Ebene nach unten verschieben</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>HD</source>
        <translation>HD</translation>
    </message>
    <message>
        <source>Full HD</source>
        <translation>Full HD</translation>
    </message>
    <message>
        <source>4K</source>
        <translation>4K</translation>
    </message>
    <message>
        <source>Social</source>
        <translation>Soziale Medien</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Story</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation>Foto 3:2</translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation>Foto 4:3</translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation>Druck, 300 ppi</translation>
    </message>
    <message>
        <source>A4</source>
        <translation>A4</translation>
    </message>
    <message>
        <source>A5</source>
        <translation>A5</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>Letter</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>Neues Dokument</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 Megapixel</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Breite und Höhe tauschen</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Hintergrundfarbe wählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
</context>
<context>
    <name>NewDocumentPreset</name>
    <message>
        <source>%1, %2 by %3 pixels</source>
        <translation>%1, %2 mal %3 Pixel</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Lizenzen</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Shader-Fehler</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Programm: %1
Stufe: %2
Ressource: %3
Ziel: %4
Protokoll:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>Vertex</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>Fragment</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;keine&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;leeres Compilerprotokoll&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>Kompilieren des Vertex-Shaders fehlgeschlagen</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Kompilieren des Fragment-Shaders fehlgeschlagen</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Shader kann nicht geladen werden</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>Programm: %1
Vertex-Ziel: %2
Fragment-Ziel: %3
Protokoll:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;leeres Linkerprotokoll&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Linken des Shaders fehlgeschlagen</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>%1 konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Ungültiger serialisierter QSB-Shader: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>Keine kompatible GLSL-Variante in %1. Versucht: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Bild bemalen</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Farbfleck</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Zacken</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Keine passenden Einträge.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>RemoveSceneObjectCommand</name>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objekt</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>Ebenenname</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Objekt umbenennen</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Ebene rastern</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Bildgröße ändern</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Textgröße ändern</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>Raute</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>Band</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
</context>
<context>
    <name>SceneObjectAdapter</name>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Multiplizieren</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Negativ multiplizieren</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Ineinanderkopieren</translation>
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
        <source>Color Dodge</source>
        <translation>Farbig abwedeln</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Farbig nachbelichten</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Hartes Licht</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Weiches Licht</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Ausschluss</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Luminanz</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>&amp;Rechteckauswahl</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Eine rechteckige Rasterauswahl erstellen</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>&amp;Ellipsenauswahl</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Eine elliptische Rasterauswahl erstellen</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>&amp;Zauberstabauswahl</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Einen zusammenhängenden Farbbereich auswählen</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>&amp;Polygonauswahl</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Den Pfad der Rasterauswahl bearbeiten</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>Die Rasterauswahl aufheben</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>Rasterauswahl &amp;umkehren</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>Auswahl in neue Ebene e&amp;xtrahieren</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>Rasterauswahl auf&amp;heben</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Dokumenthintergrund ändern</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Mischmodus ändern</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Ebene einblenden</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Ebene ausblenden</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Form oder Sticker einfügen</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Formen und Sticker suchen</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Keine passenden Formen oder Sticker.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>Maske, Ausschnitt, zuschneiden, Form</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Form positionieren</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Umriss</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Weiche Kante</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Formeditor</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Auf Form zuschneiden</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Wappenschild</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Spitze</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Wählen Sie eine Ebene aus, um ihre Transformation zu bearbeiten.</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometrie</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>Drehpunkt X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Drehpunkt Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Neigung</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Neigen starten</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Neigung X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Neigung Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Größeneinheit wechseln</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Sprechblase</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Zeiger</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
</context>
<context>
    <name>SplodgeShapeGenerator</name>
    <message>
        <source>Splodge</source>
        <translation>Klecks</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Zacken</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spitze</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>Statusleiste</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>Ebene: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Keine Ebene ausgewählt</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
</context>
<context>
    <name>TextLayer</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>Texturressourcenpaket kann nicht registriert werden: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Unsicherer Pfad zu einem Texturbild abgelehnt: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Texturbild nicht gefunden: %1 (gesucht in: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>unbekannter Fehler des Bilddecoders</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>Texturbild %1 kann nicht aus %2 geladen werden: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Unsicherer Pfad zu Texturdaten abgelehnt: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Texturdaten nicht gefunden: %1 (gesucht in: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Texturdaten für keinen Kandidaten gefunden: %1 (gesucht in: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>unbekannter Lesefehler</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>Datei ist leer</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>Texturdaten %1 können nicht aus %2 gelesen werden: %3</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>ThoughtBubbleShapeGenerator</name>
    <message>
        <source>Thought</source>
        <translation>Gedankenblase</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spitze</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
</context>
<context>
    <name>ToolModeActions</name>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Auswählen</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Ebenen auswählen</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>Nei&amp;gen</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>Die ausgewählte Ebene neigen</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Zuschneiden</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>Die ausgewählte Ebene zuschneiden</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Pfad</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Den ausgewählten Formpfad bearbeiten oder einen neuen Pfad zeichnen</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>Zei&amp;chnen</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Mit einem Freihandpinsel zeichnen</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Radieren</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Pixel aus der ausgewählten Ebene radieren</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>&amp;Klonen</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Pixel klonen</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>&amp;Belichtung</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Pixel mit dem Belichtungspinsel aufhellen oder abdunkeln</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>Auswahl &amp;füllen</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Die aktive Rasterauswahl füllen</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Dreieck</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>Änderungen vor dem Beenden speichern?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>Änderungen vor dem Erstellen eines neuen Dokuments speichern?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>Änderungen vor dem Öffnen eines anderen Dokuments speichern?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>Dieses Dokument enthält nicht gespeicherte Änderungen. Wenn Sie ohne Speichern beenden, gehen die Änderungen verloren.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>Dieses Dokument enthält nicht gespeicherte Änderungen. Wenn Sie ohne Speichern ein neues Dokument erstellen, gehen die Änderungen verloren.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>Dieses Dokument enthält nicht gespeicherte Änderungen. Wenn Sie ohne Speichern ein anderes Dokument öffnen, gehen die Änderungen verloren.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Trotzdem beenden</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Trotzdem erstellen</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Trotzdem öffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>Ein&amp;passen</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Originalgröße</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>Unbegrenzte Lein&amp;wand</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Aus</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>&amp;Oben und links</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>&amp;Unten und rechts</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Links</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Rechts</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Zoom auf 100 % zurücksetzen</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Eckenradius</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Dokument oder Bild öffnen</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Alle unterstützten Dateien (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Alle Bilddateien (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Zelmora-Dokumente (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Bildebene einfügen</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Bild speichern unter</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Datei kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Bild kann nicht eingefügt werden</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Bild kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Wird gespeichert…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>Die .zelmora-Datei ist abgeschnitten oder nicht lesbar: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>Ein .zelmora-Ebenenabschnitt konnte nicht decodiert werden.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>Die .zelmora-Datei enthält eine doppelte Ebenen-ID.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>Der erste .zelmora-Abschnitt enthält keine Dokumenteigenschaften.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>Der Abschnitt mit den Dokumenteigenschaften hat eine ungültige Größe.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>Die Version der Dokumenteigenschaften wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Ein .zelmora-Abschnittskopf ist ungültig.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Dies ist kein .zelmora-Dokument.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Diese Version des .zelmora-Formats wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>Die Abmessungen des .zelmora-Dokuments sind ungültig.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>Die Anzahl der .zelmora-Abschnitte ist ungültig.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>Die .zelmora-Datei enthält doppelte Dokumenteigenschaften.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>Das Quellgerät ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>Die .zelmora-Datei enthält überzählige Daten am Ende.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>Die .zelmora-Datei konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>Ein .zelmora-Abschnitt ist zu groß.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>Das Dokument enthält ein nicht unterstütztes Szenenobjekt.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>Das Dokument enthält eine doppelte Ebenen-ID.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>Das Zielgerät ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>Die Abmessungen des Dokuments können nicht im .zelmora-Format gespeichert werden.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>Das Dokument enthält zu viele Ebenen.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>nicht genügend Arbeitsspeicher</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>nicht genügend Arbeitsspeicher beim Schreiben des Bitstroms</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>ein erforderlicher Encoderparameter fehlt</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>die Encoderkonfiguration ist ungültig</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>die Bildabmessungen sind ungültig</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>eine Encoderpartition ist zu groß</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>die codierten Daten konnten nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>das codierte Bild ist zu groß</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>die Codierung wurde abgebrochen</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>unbekannter Encoderfehler (Code %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Ein Bild kann nicht als WebP dargestellt werden.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>Der WebP-Encoder konnte nicht initialisiert werden.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>Die Konfiguration des WebP-Encoders ist ungültig.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>Das Bild konnte nicht für die WebP-Codierung vorbereitet werden.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>Das Bild konnte nicht für die WebP-Codierung vorbereitet werden: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>WebP konnte nicht codiert werden: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>Der WebP-Encoder hat keine Daten erzeugt.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>Das codierte WebP-Bild ist zu groß.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Ein eingebettetes WebP-Bild hat ungültige Abmessungen.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Ein eingebettetes Bild konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>WebP konnte nicht decodiert werden: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Ein Bild kann nicht als rohe RGBA-Daten dargestellt werden.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Ein rohes RGBA-Bild hat ungültige Abmessungen.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Ein rohes RGBA-Bild hat eine ungültige Bytelänge.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Für ein rohes RGBA-Bild konnte kein Speicher reserviert werden.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>Eine Verlaufsfüllung verwendet einen nicht unterstützten Typ.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>Eine Verlaufsfüllung hat eine ungültige Position.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>Eine Verlaufsfüllung hat eine ungültige Anzahl von Farbstopps.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>Eine Verlaufsfüllung hat einen ungültigen Farbstopp.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>Eine Füllung verwendet eine nicht unterstützte Texturzuordnung.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>Eine Texturfüllung hat eine ungültige Transformation.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Eine Füllungsgenerator-ID ist zu groß.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>Eine Volltonfüllung enthält unerwartete Daten.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>Ein Texturfüllungs-Datensatz ist ungültig.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>Ein Texturparameterblock enthält überzählige Daten am Ende.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>Die Transformation oder Größe einer Texturfüllung ist ungültig.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>Ein Verlaufsfüllungs-Datensatz ist ungültig.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>Ein Füllungsdatensatz ist abgeschnitten oder ungültig.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>Eine Füllung verwendet eine unbekannte Texturzuordnung.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Ein Filter hat eine leere Instanz-ID.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>Ein Filterdatensatz ist abgeschnitten oder ungültig.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>Ein Filterparameterblock enthält überzählige Daten am Ende.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Eine Formgenerator-ID ist leer oder zu groß.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>Ein Datensatz einer parametrischen Form ist ungültig.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Eine Formgenerator-ID ist leer.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>Eine parametrische Form enthält überzählige Daten am Ende.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>Eine Form verwendet einen unbekannten Geometrietyp.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Eine SVG-Ebene hat keine Quelldaten.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Eine Bildebene hat keine unterstützte Quelle.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>Eine Rasterauswahl muss ein bearbeitbarer Pfad sein.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Eine Rasterebene hat ungültige Pixelabmessungen.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Eine SVG-Ebene enthält Rasterabmessungen.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Eine SVG-Ebene enthält ungültige SVG-Daten.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Eine Bildebene verwendet eine unbekannte Quellcodierung.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Eine Bildebene hat ungültige Abmessungen oder Daten.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>Die Nutzdaten einer Bildebene sind ungültig.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Eine Bildebene hat eine unbekannte Rasterflächenregel.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>Das Dokument enthält einen nicht unterstützten Ebenentyp.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>Ein Abschnitt ist kein unterstützter Ebenentyp.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Eine Ebene hat zu viele Filter.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>Eine Ebene enthält eine doppelte Filterinstanz-ID.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Eine Ebene hat ungültige Identitäts- oder Transformationseigenschaften.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Ein Ebenenname oder eine Mischmodus-ID ist zu groß.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>Ein Ebenentyp passt nicht zu seinem Inhalt.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>Ein Ebenenabschnitt ist zu groß.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>Ein Nutzdatenkopf einer Ebene ist ungültig.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Eine Ebene hat eine leere Mischmodus-ID.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>Ein Ebenenabschnitt enthält überzählige Daten am Ende.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Ein Filterstapel einer Ebene konnte nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>Ein Zeichenfolgenwert eines Parameters ist zu groß.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>Eine Lichtliste enthält zu viele Lichter.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>Ein Ressourcenparameter hat eine ungültige Bytelänge.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>Ein boolescher Parameter ist ungültig.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>Ein reeller Parameter ist nicht endlich.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>Ein Parameter enthält eine nicht endliche Zahl.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>Ein Ressourcenparameter muss ein Dateiname sein, kein Pfad.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>Ein Parameter für eine schaltbare Farbe ist ungültig.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>Ein Strichparameter ist ungültig.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>Ein Strich enthält eine ungültige Breite.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>Ein Verlaufsparameter ist ungültig.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>Ein Verlauf enthält eine nicht endliche Position.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>Eine Maskentransformation ist ungültig.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>Eine Maske enthält eine nicht endliche Transformation.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>Ein Lichtlistenparameter ist ungültig.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>Eine Lichtliste enthält ein ungültiges Licht.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>Die .zelmora-Datei verwendet einen unbekannten Parametertyp.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>Ein Parameterwert hat eine ungültige Bytelänge.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>Ein Parameterschlüssel ist doppelt vorhanden.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>Eine Parametersammlung ist zu groß.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Ein Parameterkopf ist abgeschnitten.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>Ein Parameterwert ist abgeschnitten.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>Ein Knoten eines bearbeitbaren Pfads ist ungültig.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>Eine Knoten-ID eines bearbeitbaren Pfads ist doppelt vorhanden.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>Ein Knoten eines bearbeitbaren Pfads verwendet einen unbekannten Typ.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>Eine Kontur eines bearbeitbaren Pfads ist ungültig.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>Ein bearbeitbarer Pfad hat zu viele Konturen.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>Eine Kontur eines bearbeitbaren Pfads hat zu viele Knoten.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>Ein Datensatz eines bearbeitbaren Pfads ist ungültig.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>Ein bearbeitbarer Pfad enthält überzählige Daten am Ende.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>Die .zelmora-Datei enthält eine ungültige Farbe.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>Die .zelmora-Datei enthält eine leere Objektkennung.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>Ein Registerschlüssel ist kein gültiges 7-Bit-ASCII.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>Ein Registerschlüssel ist leer oder nicht nullterminiert.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>Ein Registerschlüssel hat Füllbytes ungleich null.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>Ein Filter- oder Parameterschlüssel passt nicht in sein 32-Byte-Feld.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Filter- und Parameterschlüssel müssen 7-Bit-ASCII verwenden.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>Ein .zelmora-Datensatz überschreitet die 32-Bit-Größengrenze.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Eine Formebene hat ungültige Abmessungen oder einen ungültigen Strich.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>Die Nutzdaten einer Formebene sind ungültig.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>Die Nutzdaten einer Formebene sind abgeschnitten.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Ein Textabsatz ist ungültig.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Ein Textabsatz verwendet eine nicht unterstützte Ausrichtung.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Ein Textabsatz verwendet eine nicht unterstützte Richtung.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>Ein Textabsatz-Datensatz ist ungültig.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Ein Textabsatz verwendet eine unbekannte Ausrichtung.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Ein Textabsatz verwendet eine unbekannte Richtung.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>Ein Textabsatz enthält überzählige Daten am Ende.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Eine Textebene hat ungültige Abmessungen oder zu viele Absätze.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>Die Nutzdaten einer Textebene sind ungültig.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>Eine Textebene enthält überzählige Daten am Ende.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Ein Textlauf ist zu groß.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>Ein Schriftfamilien-Datensatz ist ungültig.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>Ein Schriftfamilienblock enthält überzählige Daten am Ende.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Ein Textlauf verwendet einen unbekannten Schriftstil.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Ein Textlauf verwendet einen unbekannten Großschreibungsmodus.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Ein Textlauf verwendet einen unbekannten Zeichenabstandsmodus.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Ein Textlauf verwendet einen unbekannten Hinting-Modus.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Ein Textlauf hat keine gültige Schriftgröße.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Ein Textlauf hat zu viele Schriftfamilien.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Ein Textlauf hat ungültige numerische Schrifteigenschaften.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>Ein Textlauf-Datensatz ist ungültig.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Ein Textlauf ist abgeschnitten.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>%1 konnte nicht zum Lesen geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>%1 konnte nicht zum Schreiben geöffnet werden: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Das Ziel ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>Das Schreiben von %1 konnte nicht abgeschlossen werden: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>zm::ApplicationInfoController</name>
    <message>
        <source>© %1 %2</source>
        <translation>© %1 %2</translation>
    </message>
</context>
<context>
    <name>zm::DocumentFileController</name>
    <message>
        <source>Could not replace the current document.</source>
        <translation>Das aktuelle Dokument konnte nicht ersetzt werden.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Wählen Sie eine vorhandene Datei.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Die ausgewählte Bilddatei konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>Das ausgewählte SVG-Bild konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows konnte das ausgewählte HEIC/HEIF-Bild nicht decodieren.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Die ausgewählte Bilddatei konnte nicht geladen werden.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>Das ausgewählte Bild hat keine verwendbare Größe.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Aus dem ausgewählten Bild konnte kein Dokument erstellt werden.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Geben Sie eine gültige Breite und Höhe ein.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Es konnte kein neues Dokument erstellt werden.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Nur lokale Dateien werden unterstützt.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Wählen Sie einen Dateinamen, bevor Sie das Dokument speichern.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Dokumentgröße ändern</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Dokumentgrenzen an Inhalt anpassen</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Objekt verschieben</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Wählen Sie eine vorhandene Bilddatei.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier konnte das ausgewählte Bild nicht laden.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Nur lokale Bilddateien werden unterstützt.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>Das ausgewählte Bild konnte dem Dokument nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Zelmora-Beispiel</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier konnte das Beispielbild nicht laden.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>Das Beispielbild konnte dem Dokument nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Ein aktivierter Stilübertragungsfilter kann noch nicht exportiert werden. Deaktivieren oder entfernen Sie den Filter vor dem Exportieren.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Die Vorschau konnte nicht codiert werden: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>Das gespeicherte Bild konnte nicht codiert werden: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>Der Bildpuffer im Arbeitsspeicher konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>Das Bild konnte nicht gerendert werden.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>Der Bildpuffer im Arbeitsspeicher konnte nicht erneut geöffnet werden.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Die codierte Vorschau konnte nicht decodiert werden: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>JPEG-Bilder (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>WebP-Bilder (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>PNG-Bilder (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Das Ziel ist keine reguläre Datei.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>Das Bild konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Warten Sie, bis der laufende Speichervorgang abgeschlossen ist.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>Die Bildvorschau ist nicht bereit.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Nur lokale Speicherziele werden unterstützt.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>Die Dateinamenerweiterung passt nicht zum ausgewählten Bildformat: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Wählen Sie einen Dateinamen für das Bild.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>Das Bild wurde gespeichert, aber die bearbeitbare .zelmora-Datei konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Wählen Sie die Speichereinstellungen, bevor Sie dieses Bild speichern.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Schließen Sie vor dem Speichern das Dialogfeld „Exporteinstellungen“.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Die bearbeitbare .zelmora-Datei konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>Der Encoder hat kein Bild erzeugt.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>Die bearbeitbare .zelmora-Datei wurde gespeichert, aber das Bild konnte nicht aktualisiert werden: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Der Ordner mit dem Bild konnte nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Malebene</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>SPDX-Kennung: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Volltext unter Debian: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Urheberrechtshinweise unter Debian: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MIT-Lizenz</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, Version 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Zeichnet die Oberfläche und liest und schreibt die meisten Bildformate. Dynamisch gelinkt, sodass es ersetzt werden kann: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs und die Plug-ins für Bildformate.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt enthält oder verwendet Werke anderer, darunter FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 und zlib. Deren Hinweise stehen bei denen von Qt.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>BSD-3-Klausel-Lizenz</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Codiert die Bilder in Dokumenten und exportierte WebP-Dateien. Dynamisch gelinkt, mit dem Bestandteil libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Findet das OpenGL des Grafiktreibers, der nicht Teil dieses Programms ist. Dynamisch gelinkt.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, Version 3 oder später, mit der GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>Die C++-Standardbibliothek und die Hilfsroutinen des Compilers, dynamisch gelinkt. Die Ausnahme erlaubt Programmen unter beliebiger Lizenz ihre Verwendung.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, Version 2.1 oder später</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>Die C-Bibliothek des Systems, dynamisch gelinkt.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Deckkraft ändern</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Objekt drehen</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Objekt verschieben</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Objekt neigen</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Drehpunkt festlegen</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Objekt skalieren</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Vertikal spiegeln</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>Einfach</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamisch</translation>
    </message>
</context>
</TS>
