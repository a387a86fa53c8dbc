<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Versjon %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Lisenser</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>Det finnes ingen filbehandler som kan vise loggmappen.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Nettsted</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Åpne loggmappe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Lukk</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>Legg til %1</translation>
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
        <translation>Pil</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spiss</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Skaft</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>Eksplosjon</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Stråler</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Dybde</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>Opptatt</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Opptatt</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>Lerret</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>Dokumentet. Dra for å flytte visningen, og drei hjulet for å zoome.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>&amp;Begrens lerretet til dokumentet</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Rasteriser lag</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Sky</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Luftighet</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Slå sammen lag</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Velg farge</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Konverter form til bane</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Beskjær bilde</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>F&amp;eilsøking</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>&amp;Kjøretidsflagg</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>&amp;Manglende HEVC-kodek</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>Dialog&amp;forhåndsvisninger</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>HEIF-hjelp</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Lagringsfremdrift</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Omstart for språkbytte</translation>
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
        <translation>Hjørneradius</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Vannrett</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Loddrett</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>Vis dokument&amp;grenser</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Dokumentstørrelse</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Bredde</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Høyde</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Tilpass dokumentet til innholdet</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Bakgrunn</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farge</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Velg bakgrunnsfarge for dokumentet</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Bakgrunnsfarge</translation>
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
        <translation>&amp;Angre</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Angre %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Angre</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Gjør om</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Gjør om %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gjør om</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Klipp &amp;ut</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Lim inn</translation>
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
        <translation>Rundhet</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Midten</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Eksportinnstillinger</translation>
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
        <translation>WebP, gjennomsiktig</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, gjennomsiktig</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>Bildet inneholder gjennomsiktighet. Velg et format med gjennomsiktig bakgrunn for å beholde den.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Bredde</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Behold proporsjonene</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Høyde</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kvalitet</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Kvalitet i prosent</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>PNG-komprimering</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Maks</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Tapsfri dokumentfil</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Beholder hver piksel i det redigerbare dokumentet, i en større fil.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Beregnet bildestørrelse:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Beregner…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Ikke tilgjengelig</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>Et redigerbart Zelmora-dokument (.zelmora) lagres sammen med bildet.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Lagre…</translation>
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
        <translation>Koder forhåndsvisning…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>Laster inn forhåndsvisning…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Forhåndsvisning</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom ut</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom inn</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Tilpass</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Vis hele bildet</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Vis bildet i sin egen størrelse</translation>
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
        <translation>alfa, toning, gradient, gjennomsiktig</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineær</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>Radial</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Toning</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Plasser toning</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Toningsfarge</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Styrke</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Mykhet</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverter</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Dokumentfarge</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Ton ut</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Ny</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Nytt dokument</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Åpne…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Åpne et dokument eller bilde</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Lagre</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Lagre bilde og dokument</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Lagre &amp;som…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Avslutt</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Legg til støy</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Boksuskarphet</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Fargejustering</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Fargelegg</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Ton ut</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Gaussisk uskarphet</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Gråtoner</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Høylys til alfa</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Indre skygge</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pikseler</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Hev</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Sobel-kanter</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Myk skråkant</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Teksturkopi</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Tonetilordning</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Vannspeiling</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>Halvsirkel</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>Månesigd</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Hjerte</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Buer</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Kløft</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spiss</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier på &amp;nettet</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>&amp;Om Zelmora Atelier</translation>
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
        <translation>Støtte for HEIC/HEIF er ikke tilgjengelig</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Installer pakken kimageformat6-plugins, som gir Qt en HEIF-leser, og start Zelmora Atelier på nytt.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>HEIF Image Extensions</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>HEVC Video Extensions</translation>
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
        <translation>Malelag</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bilde</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Lag</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>Inspektør</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;Språk</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>Start Zelmora Atelier på nytt for at alle endringene skal tre i kraft.</translation>
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
        <translation>&amp;Bilde</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Sett inn et bilde som et nytt lag</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Sett inn &amp;eksempelbilde</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Tekst</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Sett inn et tekstlag</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Form</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Sett inn en form eller et klistremerke</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>Nytt &amp;malelag</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Vis lag</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Skjul lag</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>Flytt lag &amp;opp</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Flytt lag &amp;ned</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>&amp;Fjern lag</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>&amp;Rasteriser lag</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>Slå s&amp;ammen med laget under</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Grunnleggende</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kanter</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Farge, tone og effekter</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Stiloverføringer</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Rammer</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Fotomontasjer, moro &amp; kunst</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>Glitter &amp; bling</translation>
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
        <translation>Navn</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Dekkevne</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Blandingsmodus</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Blandingsmodus</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Lag</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Gi nytt navn</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Lag</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Marker et lag for å behandle det.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Lag</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Ingen lag ennå.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Laget %1, skjult</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Laget %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>Har en rastermarkering</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Vis lag</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Skjul lag</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>Slå sammen med laget under</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Lagets utseende</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Plassering</translation>
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
        <translation>Lyn</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Bøy</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Vis i Finder</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Vis i Filutforsker</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Bildet ble eksportert til %1.
Det redigerbare dokumentet ble lagret som %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Kunne ikke åpne mappen som inneholder bildet.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Vent til pågående lagring er ferdig.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fil</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Rediger</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Marker</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Vis</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Linjaler</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>I&amp;nspektørens plassering</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Lag</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Sett inn</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Bilde…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Tekst</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;Form…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hjelp</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Hovedverktøylinje</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Flere måter å lagre på</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Mer av historikken</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Sett inn:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Flytt lag opp</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Flytt lag ned</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Skjerm</translation>
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
        <translation>Sosiale medier</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Kvadrat</translation>
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
        <translation>Utskrift, 300 ppi</translation>
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
        <translation>Nytt dokument</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Forhåndsinnstillinger</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 megapiksler</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Bredde</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Bytt om bredde og høyde</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Høyde</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Bakgrunn</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Hvit</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Svart</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Gjennomsiktig</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Egendefinert</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Velg bakgrunnsfarge</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Opprett</translation>
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
        <translation>%1, %2 ganger %3 piksler</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Lisenser</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Shader-feil</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Program: %1
Trinn: %2
Ressurs: %3
Mål: %4
Logg:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>vertex</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>fragment</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;ingen&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;tom kompilatorlogg&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>Kompilering av vertex-shader mislyktes</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Kompilering av fragment-shader mislyktes</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Kan ikke laste inn shader</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>Program: %1
Vertex-mål: %2
Fragment-mål: %3
Logg:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;tom lenkerlogg&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Lenking av shader mislyktes</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>Kunne ikke åpne %1: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Ugyldig serialisert QSB-shader: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>Ingen kompatibel GLSL-variant i %1. Prøvde: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Mal bilde</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Malingsflekk</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lengde</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Tagger</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Velg</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Ingen samsvarende elementer.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>Kategorier</translation>
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
        <translation>Sider</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Åpne n&amp;ylige</translation>
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
        <translation>Fjern %1</translation>
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
        <translation>Lagnavn</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Gi objekt nytt navn</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Rasteriser lag</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Endre bildestørrelse</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Endre tekststørrelse</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>Rombe</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Vannrett</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Loddrett</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>Bånd</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Dybde</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>Rektangel</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
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
        <translation>Multipliser</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Skjerm</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Overlegg</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Mørkere</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Lysere</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Fargeavskygging</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Fargeetterbelysning</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Hardt lys</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Mykt lys</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differanse</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Utelukking</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Fargetone</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Metning</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farge</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Lysstyrke</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>&amp;Rektangulær markering</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Opprett en rektangulær rastermarkering</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>&amp;Elliptisk markering</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Opprett en elliptisk rastermarkering</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>&amp;Tryllestavmarkering</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Marker et sammenhengende fargeområde</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>&amp;Polygonmarkering</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Rediger banen til rastermarkeringen</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>Fjern rastermarkeringen</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>&amp;Inverter rastermarkering</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>Trekk ut markering til &amp;nytt lag</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>Fjern ra&amp;stermarkering</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Endre dokumentbakgrunn</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Endre blandingsmodus</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Vis lag</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Skjul lag</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Sett inn form eller klistremerke</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Søk i former og klistremerker</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Ingen samsvarende former eller klistremerker.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Sett inn</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>maske, utklipp, beskjær, form</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Plassering</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Plasser form</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Omriss</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Myk kant</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverter</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Formredigering</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Klipp til form</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Skjoldmerke</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Spiss</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Marker et lag for å redigere transformasjonen.</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometri</translation>
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
        <translation>Bredde</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Høyde</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Behold størrelsesforholdet</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Vend</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Vend vannrett</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Vend loddrett</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotasjon</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Vinkel</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>Dreiepunkt X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Dreiepunkt Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Skråstilling</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Start skråstilling</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Skråstilling X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Skråstilling Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Bytt størrelsesenhet</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Snakkeboble</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Peker</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
</context>
<context>
    <name>SplodgeShapeGenerator</name>
    <message>
        <source>Splodge</source>
        <translation>Klatt</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Stjerne</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Tagger</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spiss</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>Statuslinje</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>Lag: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Ingen lag er markert</translation>
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
        <translation>Tekst</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>Kan ikke registrere teksturressurspakken: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Avviste usikker bane til teksturbilde: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Fant ikke teksturbildet: %1 (søkte i: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>ukjent feil i bildedekoderen</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>Kan ikke laste inn teksturbildet %1 fra %2: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Avviste usikker bane til teksturdata: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Fant ikke teksturdata: %1 (søkte i: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Fant ikke teksturdata for noen kandidat: %1 (søkte i: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>ukjent lesefeil</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>filen er tom</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>Kan ikke lese teksturdata %1 fra %2: %3</translation>
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
        <translation>Tankeboble</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spiss</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
</context>
<context>
    <name>ToolModeActions</name>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Marker</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Marker lag</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>Skr&amp;åstill</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>Skråstill det markerte laget</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Beskjær</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>Beskjær det markerte laget</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>B&amp;ane</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Rediger banen til den markerte formen, eller tegn en ny bane</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Tegn</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Tegn med en frihåndspensel</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Visk ut</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Visk ut piksler fra det markerte laget</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>&amp;Klon</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Klon piksler</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>&amp;Eksponering</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Gjør piksler lysere eller mørkere med eksponeringspenselen</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>&amp;Fyll markering</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Fyll den aktive rastermarkeringen</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Verktøy</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Trekant</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Sider</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>Vil du lagre endringene før du avslutter?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>Vil du lagre endringene før du oppretter et nytt dokument?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>Vil du lagre endringene før du åpner et annet dokument?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>Dokumentet har endringer som ikke er lagret. Hvis du avslutter uten å lagre, går endringene tapt.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>Dokumentet har endringer som ikke er lagret. Hvis du oppretter et nytt dokument uten å lagre, går endringene tapt.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>Dokumentet har endringer som ikke er lagret. Hvis du åpner et annet dokument uten å lagre, går endringene tapt.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Avslutt likevel</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Opprett likevel</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Åpne likevel</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Lagre</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;inn</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Zoom ut</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>Til&amp;pass til vinduet</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Faktisk størrelse</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>Fulls&amp;kjerm</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>&amp;Ubegrenset lerret</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Av</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>&amp;Øverst og til venstre</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>&amp;Nederst og til høyre</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Venstre</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Høyre</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Lyst</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Mørkt</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom inn</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom ut</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Tilbakestill zoom til 100 %</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>Vignett</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Åpne dokument eller bilde</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Alle støttede filer (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Alle bildefiler (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Zelmora-dokumenter (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle filer (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Sett inn bildelag</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Lagre bilde som</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Lagre</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Kan ikke åpne filen</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Kan ikke sette inn bildet</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Kan ikke lagre bildet</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Lagrer…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>.zelmora-filen er avkortet eller kan ikke leses: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>Kunne ikke dekode en lagseksjon i .zelmora-filen.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>.zelmora-filen inneholder en duplisert lag-ID.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>Den første .zelmora-seksjonen inneholder ikke dokumentegenskaper.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>Seksjonen med dokumentegenskaper har en ugyldig størrelse.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>Dataversjonen for dokumentegenskapene støttes ikke.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Et seksjonshode i .zelmora-filen er ugyldig.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Dette er ikke et .zelmora-dokument.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Denne versjonen av .zelmora-formatet støttes ikke.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>Målene på .zelmora-dokumentet er ugyldige.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>Antall seksjoner i .zelmora-filen er ugyldig.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>.zelmora-filen inneholder dupliserte dokumentegenskaper.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>Kildeenheten er ikke lesbar.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>.zelmora-filen har overflødige data til slutt.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>Kunne ikke skrive .zelmora-filen: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>En .zelmora-seksjon er for stor.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>Dokumentet inneholder et sceneobjekt som ikke støttes.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>Dokumentet inneholder en duplisert lag-ID.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>Målenheten er ikke skrivbar.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>Dokumentets mål kan ikke lagres i .zelmora-format.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>Dokumentet inneholder for mange lag.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>ikke mer minne</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>ikke mer minne under skriving av bitstrømmen</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>en nødvendig koderparameter mangler</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>koderkonfigurasjonen er ugyldig</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>bildemålene er ugyldige</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>en koderpartisjon er for stor</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>de kodede dataene kunne ikke skrives</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>det kodede bildet er for stort</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>kodingen ble avbrutt</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>ukjent koderfeil (kode %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Et bilde kan ikke representeres som WebP.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>Kunne ikke initialisere WebP-koderen.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>Konfigurasjonen av WebP-koderen er ugyldig.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>Kunne ikke klargjøre bildet for WebP-koding.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>Kunne ikke klargjøre bildet for WebP-koding: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>Kunne ikke kode WebP: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>WebP-koderen ga ingen data.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>Det kodede WebP-bildet er for stort.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Et innebygd WebP-bilde har ugyldige mål.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Kunne ikke åpne et innebygd bilde.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>Kunne ikke dekode WebP: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Et bilde kan ikke representeres som rå RGBA-data.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Et rått RGBA-bilde har ugyldige mål.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Et rått RGBA-bilde har en ugyldig bytelengde.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Kunne ikke tildele minne til et rått RGBA-bilde.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>En gradientfyll bruker en type som ikke støttes.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>En gradientfyll har en ugyldig plassering.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>En gradientfyll har et ugyldig antall fargestopp.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>En gradientfyll har et ugyldig fargestopp.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>En fyll bruker en teksturtilordning som ikke støttes.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>En teksturfyll har en ugyldig transformasjon.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>En generator-ID for en fyll er for stor.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>En ensfarget fyll inneholder uventede data.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>En post for teksturfyll er ugyldig.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>En teksturparameterblokk har overflødige data til slutt.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>Transformasjonen eller størrelsen til en teksturfyll er ugyldig.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>En post for gradientfyll er ugyldig.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>En post for fyll er avkortet eller ugyldig.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>En fyll bruker en ukjent teksturtilordning.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Et filter har en tom forekomst-ID.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>En filterpost er avkortet eller ugyldig.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>En filterparameterblokk har overflødige data til slutt.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>En generator-ID for en form er tom eller for stor.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>En post for en parametrisk form er ugyldig.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>En generator-ID for en form er tom.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>En parametrisk form har overflødige data til slutt.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>En form bruker en ukjent geometritype.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Et SVG-lag mangler kildedata.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Et bildelag har ingen støttet kilde.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>En rastermarkering må være en redigerbar bane.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Et rasterlag har ugyldige pikselmål.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Et SVG-lag inneholder rastermål.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Et SVG-lag inneholder ugyldige SVG-data.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Et bildelag bruker en ukjent kildekoding.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Et bildelag har ugyldige mål eller data.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>Dataene i et bildelag er ugyldige.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Et bildelag har en ukjent regel for rasterflaten.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>Dokumentet inneholder en lagtype som ikke støttes.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>En seksjon er ikke en støttet lagtype.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Et lag har for mange filtre.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>Et lag inneholder en duplisert ID for en filterforekomst.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Et lag har ugyldige identitets- eller transformasjonsegenskaper.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Et lagnavn eller en ID for en blandingsmodus er for stor.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>En lagtype stemmer ikke med innholdet.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>En lagseksjon er for stor.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>Datahodet til et lag er ugyldig.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Et lag har en tom ID for blandingsmodus.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>En lagseksjon har overflødige data til slutt.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Kunne ikke gjenopprette filterstabelen til et lag.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>En strengverdi for en parameter er for stor.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>En lysliste inneholder for mange lyskilder.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>En ressursparameter har en ugyldig bytelengde.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>En boolsk parameter er ugyldig.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>En reell parameter er ikke endelig.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>En parameter inneholder et tall som ikke er endelig.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>En ressursparameter må være et filnavn, ikke en filbane.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>En parameter for aktivert farge er ugyldig.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>En strekparameter er ugyldig.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>En strek inneholder en ugyldig bredde.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>En gradientparameter er ugyldig.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>En gradient inneholder en plassering som ikke er endelig.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>En masketransformasjon er ugyldig.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>En maske inneholder en transformasjon som ikke er endelig.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>En parameter for en lysliste er ugyldig.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>En lysliste inneholder en ugyldig lyskilde.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>.zelmora-filen bruker en ukjent parametertype.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>En parameterverdi har en ugyldig bytelengde.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>En parameternøkkel er duplisert.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>En parametersamling er for stor.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Et parameterhode er avkortet.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>En parameterverdi er avkortet.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>En node i en redigerbar bane er ugyldig.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>En node-ID i en redigerbar bane er duplisert.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>En node i en redigerbar bane bruker en ukjent type.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>En kontur i en redigerbar bane er ugyldig.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>En redigerbar bane har for mange konturer.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>En kontur i en redigerbar bane har for mange noder.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>En post for en redigerbar bane er ugyldig.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>En redigerbar bane har overflødige data til slutt.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>.zelmora-filen inneholder en ugyldig farge.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>.zelmora-filen inneholder en tom objektidentifikator.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>En registernøkkel er ikke gyldig 7-biters ASCII.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>En registernøkkel er tom eller ikke nullterminert.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>En registernøkkel har utfylling som ikke er null.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>En filter- eller parameternøkkel får ikke plass i feltet på 32 byte.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Filter- og parameternøkler må bruke 7-biters ASCII.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>En .zelmora-post overskrider størrelsesgrensen på 32 biter.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Et formlag har ugyldige mål eller en ugyldig strek.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>Dataene i et formlag er ugyldige.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>Dataene i et formlag er avkortet.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Et tekstavsnitt er ugyldig.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Et tekstavsnitt bruker en justering som ikke støttes.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Et tekstavsnitt bruker en retning som ikke støttes.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>En post for et tekstavsnitt er ugyldig.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Et tekstavsnitt bruker en ukjent justering.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Et tekstavsnitt bruker en ukjent retning.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>Et tekstavsnitt har overflødige data til slutt.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Et tekstlag har ugyldige mål eller for mange avsnitt.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>Dataene i et tekstlag er ugyldige.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>Et tekstlag har overflødige data til slutt.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Et tekstsegment er for stort.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>En post for en skriftfamilie er ugyldig.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>En blokk for skriftfamilier har overflødige data til slutt.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Et tekstsegment bruker en ukjent skriftstil.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Et tekstsegment bruker en ukjent modus for store bokstaver.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Et tekstsegment bruker en ukjent modus for bokstavavstand.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Et tekstsegment bruker en ukjent modus for skrifthinting.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Et tekstsegment har ingen gyldig skriftstørrelse.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Et tekstsegment har for mange skriftfamilier.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Et tekstsegment har ugyldige numeriske skriftegenskaper.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>En post for et tekstsegment er ugyldig.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Et tekstsegment er avkortet.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>Kunne ikke åpne %1 for lesing: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>Kunne ikke åpne %1 for skriving: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Målet er ikke en vanlig fil.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>Kunne ikke fullføre skrivingen av %1: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Tøm</translation>
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
        <translation>Kunne ikke erstatte det gjeldende dokumentet.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Velg en eksisterende fil.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Kunne ikke åpne den valgte bildefilen.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>Kunne ikke laste inn det valgte SVG-bildet.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows kunne ikke dekode det valgte HEIC/HEIF-bildet.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Kunne ikke laste inn den valgte bildefilen.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>Det valgte bildet har ikke en brukbar størrelse.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Kunne ikke opprette et dokument fra det valgte bildet.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bilde</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Uten navn</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Angi en gyldig bredde og høyde.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Kunne ikke opprette et nytt dokument.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Bare lokale filer støttes.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Velg et filnavn før du lagrer dokumentet.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Endre dokumentstørrelse</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Tilpass dokumentgrenser til innhold</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Flytt objekt</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Velg en eksisterende bildefil.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier kunne ikke laste inn det valgte bildet.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Bare lokale bildefiler støttes.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>Kunne ikke legge til det valgte bildet i dokumentet.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Zelmora-eksempel</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier kunne ikke laste inn eksempelbildet.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>Kunne ikke legge til eksempelbildet i dokumentet.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Bane</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Et aktivert stiloverføringsfilter kan ikke eksporteres ennå. Deaktiver eller fjern filteret før du eksporterer.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Kunne ikke kode forhåndsvisningen: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>Kunne ikke kode det lagrede bildet: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>Kunne ikke opprette bildebufferen i minnet.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>Kunne ikke gjengi bildet.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>Kunne ikke åpne bildebufferen i minnet på nytt.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Kunne ikke dekode den kodede forhåndsvisningen: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>JPEG-bilder (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>WebP-bilder (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>PNG-bilder (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Målet er ikke en vanlig fil.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>Kunne ikke lagre bildet: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Vent til pågående lagring er ferdig.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>Forhåndsvisningen av bildet er ikke klar.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Det er bare mulig å lagre på lokale steder.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>Filendelsen stemmer ikke med det valgte bildeformatet: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Velg et filnavn for bildet.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>Bildet ble lagret, men den redigerbare .zelmora-filen kunne ikke lagres: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Velg lagringsinnstillinger før du lagrer bildet.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Lukk dialogboksen Eksportinnstillinger før du lagrer.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Kunne ikke lagre den redigerbare .zelmora-filen: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>Koderen laget ikke noe bilde.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>Den redigerbare .zelmora-filen ble lagret, men bildet kunne ikke oppdateres: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Kunne ikke åpne mappen som inneholder bildet.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Maling</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>SPDX-identifikator: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Fullstendig tekst på Debian: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Opphavsrettsmerknader på Debian: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MIT-lisensen</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, versjon 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Tegner grensesnittet og leser og skriver de fleste bildeformater. Lenkes dynamisk, slik at det kan byttes ut: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs og programtilleggene for bildeformater.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt inneholder eller bruker verk av andre, blant dem FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 og zlib. Merknadene deres står sammen med Qts egne.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>BSD 3-Clause-lisensen</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Koder bildene i dokumenter og eksporterte WebP-filer. Lenkes dynamisk, med delen libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Finner grafikkdriverens OpenGL, som ikke er en del av dette programmet. Lenkes dynamisk.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, versjon 3 eller nyere, med GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>C++-standardbiblioteket og støtterutinene til kompilatoren, dynamisk lenket. Unntaket lar programmer under enhver lisens bruke dem.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, versjon 2.1 eller nyere</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>Systemets C-bibliotek, dynamisk lenket.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Endre dekkevne</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Roter objekt</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Flytt objekt</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Skråstill objekt</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Angi dreiepunkt</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Skaler objekt</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Vend vannrett</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Vend loddrett</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>Grunnleggende</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamiske</translation>
    </message>
</context>
</TS>
