<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licenser</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>Der er ingen filhåndtering, som kan vise logmappen.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Websted</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Åbn logmappe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Luk</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>Tilføj %1</translation>
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
        <translation>Spids</translation>
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
        <translation>Strålekrans</translation>
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
        <translation>Optaget</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Optaget</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>Lærred</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>Dokumentet. Træk for at flytte visningen, drej hjulet for at zoome.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>&amp;Begræns lærred til dokumentgrænser</translation>
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
        <translation>Fylde</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Kombiner lag</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Vælg farve</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Konverter figur til sti</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Beskær billede</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>Fejl&amp;søgning</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>&amp;Kørselsflag</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>&amp;Manglende HEVC-codec</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>&amp;Dialogeksempler</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>HEIF-hjælp</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Lagringsforløb</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Genstart efter sprogskift</translation>
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
        <translation>Vandret</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Lodret</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>Vis &amp;dokumentgrænser</translation>
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
        <translation>Højde</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Tilpas dokument til indhold</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Baggrund</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farve</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Vælg dokumentets baggrundsfarve</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Baggrundsfarve</translation>
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
        <translation>&amp;Fortryd</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Fortryd: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Fortryd</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Gentag</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Gentag: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gentag</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Klip</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opiér</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Sæt ind</translation>
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
        <translation>Rundhed</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Midte</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Eksportindstillinger</translation>
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
        <translation>WebP, gennemsigtig</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, gennemsigtig</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>Dette billede indeholder gennemsigtighed. Vælg et format med gennemsigtig baggrund for at bevare den.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Bredde</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Bevar proportionerne</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Højde</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kvalitet</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Kvalitet i procent</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>PNG-komprimering</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Maks.</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Tabsfri dokumentfil</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Bevarer hver pixel i det redigerbare dokument, i en større fil.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Anslået billedstørrelse:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Beregner…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Ikke tilgængelig</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>Et redigerbart Zelmora-dokument (.zelmora) gemmes sammen med billedet.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Gem…</translation>
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
        <translation>Indlæser forhåndsvisning…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Forhåndsvisning</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom ud</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom ind</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Tilpas</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Vis hele billedet</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Vis billedet i dets egen størrelse</translation>
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
        <translation>alfa, udtoning, gradient, gennemsigtig</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Tilstand</translation>
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
        <translation>Udtoning</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Placer udtoning</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Udtoningsfarve</translation>
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
        <translation>Blødhed</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverter</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Dokumentfarve</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Udton</translation>
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
        <translation>Nyt dokument</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Å&amp;bn…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Åbn et dokument eller billede</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Gem</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Gem billede og dokument</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Gem &amp;som…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afslut</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Tilføj støj</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Bokssløring</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Farvejustering</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Farvelæg</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Udton</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Gaussisk sløring</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Gråtoner</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Højlys til alfa</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Indre skygge</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pixelér</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Hæv</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Sobel-kanter</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Blød facet</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Teksturkopi</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Tonekortlægning</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Vandspejling</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>Halvcirkel</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>Halvmåne</translation>
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
        <translation>Spids</translation>
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
        <translation>HEIC/HEIF-understøttelse er ikke tilgængelig</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Installer pakken kimageformat6-plugins, som giver Qt en HEIF-læser, og start Zelmora Atelier igen.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>HEIF-billedudvidelser</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>HEVC-videoudvidelser</translation>
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
        <translation>Billede</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Figur</translation>
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
        <translation>&amp;Sprog</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>Genstart Zelmora Atelier, for at alle ændringer kan træde i kraft.</translation>
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
        <translation>&amp;Billede</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Indsæt et billede som et nyt lag</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Indsæt &amp;eksempelbillede</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Tekst</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Indsæt et tekstlag</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Figur</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Indsæt en figur eller et klistermærke</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>&amp;Nyt malelag</translation>
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
        <translation>Flyt lag &amp;op</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Flyt lag n&amp;ed</translation>
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
        <translation>F&amp;let med laget nedenunder</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Grundlæggende</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kanter</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Omfarv, ton, tilføj effekter</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Stiloverførsler</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Rammer</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Fotomontager, sjov &amp; kunst</translation>
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
        <translation>Opacitet</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Blandingstilstand</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Blandingstilstand</translation>
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
        <translation>Omdøb</translation>
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
        <translation>Vælg et lag for at administrere det.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Lag</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Ingen lag endnu.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Lag %1, skjult</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Lag %1</translation>
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
        <translation>Flet med laget nedenunder</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Lagets udseende</translation>
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
        <translation>Placering</translation>
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
        <translation>Bøjning</translation>
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
        <translation>Vis i Stifinder</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Billedet er eksporteret til %1.
Det redigerbare dokument er gemt som %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Mappen med billedet kunne ikke åbnes.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Vent, til den igangværende lagring er færdig.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Filer</translation>
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
        <translation>&amp;Linealer</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>Inspektør&amp;placering</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>Te&amp;ma</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Lag</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Indsæt</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Billede…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Tekst</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;Figur…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hjælp</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Hovedværktøjslinje</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Flere måder at gemme på</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Mere af historikken</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Indsæt:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Flyt lag op</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Flyt lag ned</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Skærm</translation>
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
        <translation>Sociale medier</translation>
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
        <translation>Tryk, 300 ppi</translation>
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
        <translation>Nyt dokument</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Forudindstillinger</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 megapixel</translation>
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
        <translation>Byt om på bredde og højde</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Højde</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Baggrund</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Hvid</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Sort</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Gennemsigtig</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Brugerdefineret</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Vælg baggrundsfarve</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Opret</translation>
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
        <translation>%1, %2 gange %3 pixel</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Licenser</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Shader-fejl</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Program: %1
Trin: %2
Ressource: %3
Mål: %4
Log:
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
        <translation>&lt;tom compilerlog&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>Kompilering af vertex-shader mislykkedes</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Kompilering af fragment-shader mislykkedes</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Shader kan ikke indlæses</translation>
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
Log:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;tom linkerlog&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Sammenkædning af shader mislykkedes</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>%1 kunne ikke åbnes: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Ugyldig serialiseret QSB-shader: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>Ingen kompatibel GLSL-variant i %1. Forsøgt: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Mal på billede</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Malerplet</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Længde</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Takker</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Vælg</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Ingen matchende elementer.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
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
        <translation>Åbn s&amp;eneste</translation>
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
        <translation>Omdøb objekt</translation>
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
        <translation>Ændr billedstørrelse</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Ændr tekststørrelse</translation>
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
        <translation>Vandret</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Lodret</translation>
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
        <translation>Multiplicer</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Negativ multiplikation</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Overlejring</translation>
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
        <translation>Farveafskærmning</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Farveefterbelysning</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Hårdt lys</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Blødt lys</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Forskel</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Udelukkelse</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farvetone</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Mætning</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farve</translation>
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
        <translation>R&amp;ektangulær markering</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Opret en rektangulær rastermarkering</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>E&amp;lliptisk markering</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Opret en elliptisk rastermarkering</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>Tr&amp;yllestavsmarkering</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Marker et sammenhængende farveområde</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>&amp;Polygonmarkering</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Rediger rastermarkeringens sti</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>Ryd rastermarkeringen</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>&amp;Inverter rastermarkering</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>&amp;Udtræk markering til nyt lag</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>&amp;Ryd rastermarkering</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Ændr dokumentbaggrund</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Ændr blandingstilstand</translation>
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
        <translation>Indsæt figur eller klistermærke</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Søg efter figurer og klistermærker</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Ingen matchende figurer eller klistermærker.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Indsæt</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>maske, udskæring, beskær, figur</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Placering</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Placer figur</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Figur</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Omrids</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Blød kant</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverter</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Figureditor</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Beskær til figur</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Skjoldemblem</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Spids</translation>
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
        <translation>Vælg et lag for at redigere dets transformation.</translation>
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
        <translation>Højde</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Bevar højde-bredde-forhold</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Vend</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Vend vandret</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Vend lodret</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
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
        <translation>Drejepunkt X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Drejepunkt Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Skævvridning</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Start skævvridning</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Skævvridning X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Skævvridning Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Skift størrelsesenhed</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Taleboble</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hjørneradius</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Pegespids</translation>
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
        <translation>Klat</translation>
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
        <translation>Takker</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spids</translation>
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
        <translation>Intet lag valgt</translation>
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
        <translation>Ressourcepakken med teksturer kan ikke registreres: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Usikker sti til teksturbillede afvist: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Teksturbillede ikke fundet: %1 (søgt i: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>ukendt fejl i billeddekoderen</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>Teksturbilledet %1 kan ikke indlæses fra %2: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Usikker sti til teksturdata afvist: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Teksturdata ikke fundet: %1 (søgt i: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Teksturdata ikke fundet for nogen kandidat: %1 (søgt i: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>ukendt læsefejl</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>filen er tom</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>Teksturdata %1 kan ikke læses fra %2: %3</translation>
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
        <translation>Spids</translation>
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
        <translation>&amp;Vælg</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Vælg lag</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>S&amp;kævvrid</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>Skævvrid det valgte lag</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Beskær</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>Beskær det valgte lag</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Sti</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Rediger den valgte figurs sti, eller tegn en ny sti</translation>
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
        <translation>Visk &amp;ud</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Visk pixel ud fra det valgte lag</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>K&amp;lon</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Klon pixel</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>&amp;Eksponering</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Gør pixel lysere eller mørkere med eksponeringspenslen</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>Ud&amp;fyld markering</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Udfyld den aktive rastermarkering</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Værktøjer</translation>
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
        <translation>Vil du gemme ændringerne, før du afslutter?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>Vil du gemme ændringerne, før du opretter et nyt dokument?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>Vil du gemme ændringerne, før du åbner et andet dokument?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>Dette dokument har ændringer, der ikke er gemt. Hvis du afslutter uden at gemme, går ændringerne tabt.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>Dette dokument har ændringer, der ikke er gemt. Hvis du opretter et nyt dokument uden at gemme, går ændringerne tabt.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>Dette dokument har ændringer, der ikke er gemt. Hvis du åbner et andet dokument uden at gemme, går ændringerne tabt.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Afslut alligevel</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Opret alligevel</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Åbn alligevel</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Gem</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;ind</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom &amp;ud</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>&amp;Tilpas til vindue</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Faktisk størrelse</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>Fuld s&amp;kærm</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>Ube&amp;grænset lærred</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Fra</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>Ø&amp;verst og til venstre</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>&amp;Nederst og til højre</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Venstre</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Højre</translation>
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
        <translation>Zoom ind</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom ud</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Nulstil zoom til 100 %</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>Vignet</translation>
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
        <translation>Åbn dokument eller billede</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Alle understøttede filer (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Alle billedfiler (%1)</translation>
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
        <translation>Indsæt billedlag</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Gem billede som</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Gem</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Filen kan ikke åbnes</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Billedet kan ikke indsættes</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Billedet kan ikke gemmes</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Gemmer…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>.zelmora-filen er afkortet eller ulæselig: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>En .zelmora-lagsektion kunne ikke afkodes.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>.zelmora-filen indeholder et lag-id, der forekommer flere gange.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>Den første .zelmora-sektion er ikke dokumentegenskaber.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>Sektionen med dokumentegenskaber har en ugyldig størrelse.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>Versionen af dokumentegenskaberne understøttes ikke.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Et .zelmora-sektionshoved er ugyldigt.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Dette er ikke et .zelmora-dokument.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Denne version af .zelmora-formatet understøttes ikke.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>.zelmora-dokumentets mål er ugyldige.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>Antallet af .zelmora-sektioner er ugyldigt.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>.zelmora-filen indeholder dokumentegenskaber mere end én gang.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>Kildeenheden kan ikke læses.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>.zelmora-filen har overskydende data til sidst.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>.zelmora-filen kunne ikke skrives: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>En .zelmora-sektion er for stor.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>Dokumentet indeholder et sceneobjekt, der ikke understøttes.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>Dokumentet indeholder et lag-id, der forekommer flere gange.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>Der kan ikke skrives til destinationsenheden.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>Dokumentets mål kan ikke gemmes i .zelmora-formatet.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>Dokumentet indeholder for mange lag.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>ikke mere hukommelse</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>ikke mere hukommelse under skrivning af bitstrømmen</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>en påkrævet koderparameter mangler</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>koderens konfiguration er ugyldig</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>billedets mål er ugyldige</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>en koderpartition er for stor</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>de kodede data kunne ikke skrives</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>det kodede billede er for stort</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>kodningen blev annulleret</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>ukendt fejl i koderen (kode %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Et billede kan ikke gengives som WebP.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>WebP-koderen kunne ikke initialiseres.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>WebP-koderens konfiguration er ugyldig.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>Billedet kunne ikke forberedes til WebP-kodning.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>Billedet kunne ikke forberedes til WebP-kodning: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>WebP kunne ikke kodes: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>WebP-koderen leverede ingen data.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>Det kodede WebP-billede er for stort.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Et indlejret WebP-billede har ugyldige mål.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Et indlejret billede kunne ikke åbnes.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>WebP kunne ikke afkodes: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Et billede kan ikke gengives som rå RGBA-data.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Et råt RGBA-billede har ugyldige mål.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Et råt RGBA-billede har en ugyldig bytelængde.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Der kunne ikke tildeles hukommelse til et råt RGBA-billede.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>En gradientudfyldning bruger en type, der ikke understøttes.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>En gradientudfyldning har en ugyldig position.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>En gradientudfyldning har et ugyldigt antal farvestop.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>En gradientudfyldning har et ugyldigt farvestop.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>En udfyldning bruger en teksturtilknytning, der ikke understøttes.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>En teksturudfyldning har en ugyldig transformation.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Et id for en udfyldningsgenerator er for stort.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>En ensfarvet udfyldning indeholder uventede data.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>En post for teksturudfyldning er ugyldig.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>En blok med teksturparametre har overskydende data til sidst.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>En teksturudfyldnings transformation eller størrelse er ugyldig.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>En post for gradientudfyldning er ugyldig.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>En udfyldningspost er afkortet eller ugyldig.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>En udfyldning bruger en ukendt teksturtilknytning.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Et filter har et tomt instans-id.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>En filterpost er afkortet eller ugyldig.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>En blok med filterparametre har overskydende data til sidst.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Et id for en figurgenerator er tomt eller for stort.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>En post for en parametrisk figur er ugyldig.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Et id for en figurgenerator er tomt.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>En parametrisk figur har overskydende data til sidst.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>En figur bruger en ukendt geometritype.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Et SVG-lag har ingen kildedata.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Et billedlag har ingen understøttet kilde.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>En rastermarkering skal være en redigerbar sti.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Et rasterlag har ugyldige pixelmål.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Et SVG-lag indeholder rastermål.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Et SVG-lag indeholder ugyldige SVG-data.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Et billedlag bruger en ukendt kildekodning.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Et billedlag har ugyldige mål eller data.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>Et billedlags indhold er ugyldigt.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Et billedlag har en ukendt regel for rasterflade.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>Dokumentet indeholder en lagtype, der ikke understøttes.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>En sektion er ikke en understøttet lagtype.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Et lag har for mange filtre.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>Et lag indeholder et filterinstans-id, der forekommer flere gange.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Et lag har ugyldige identitets- eller transformationsegenskaber.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Et lagnavn eller id for en blandingstilstand er for stort.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>En lagtype passer ikke til indholdet.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>En lagsektion er for stor.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>Hovedet for et lags indhold er ugyldigt.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Et lag har et tomt id for blandingstilstand.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>En lagsektion har overskydende data til sidst.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Et lags filterstak kunne ikke gendannes.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>En parameters strengværdi er for stor.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>En lysliste indeholder for mange lys.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>En ressourceparameter har en ugyldig bytelængde.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>En boolesk parameter er ugyldig.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>En reel parameter er ikke endelig.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>En parameter indeholder et tal, der ikke er endeligt.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>En ressourceparameter skal være et filnavn, ikke en sti.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>En parameter for en farve, der kan slås til, er ugyldig.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>En stregparameter er ugyldig.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>En streg indeholder en ugyldig bredde.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>En gradientparameter er ugyldig.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>En gradient indeholder en position, der ikke er endelig.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>En masketransformation er ugyldig.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>En maske indeholder en transformation, der ikke er endelig.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>En lyslisteparameter er ugyldig.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>En lysliste indeholder et ugyldigt lys.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>.zelmora-filen bruger en ukendt parametertype.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>En parameterværdi har en ugyldig bytelængde.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>En parameternøgle forekommer flere gange.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>En parametersamling er for stor.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Et parameterhoved er afkortet.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>En parameterværdi er afkortet.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>En node i en redigerbar sti er ugyldig.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>Et node-id i en redigerbar sti forekommer flere gange.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>En node i en redigerbar sti bruger en ukendt type.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>En kontur i en redigerbar sti er ugyldig.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>En redigerbar sti har for mange konturer.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>En kontur i en redigerbar sti har for mange noder.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>En post for en redigerbar sti er ugyldig.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>En redigerbar sti har overskydende data til sidst.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>.zelmora-filen indeholder en ugyldig farve.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>.zelmora-filen indeholder et tomt objekt-id.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>En registernøgle er ikke gyldig 7-bit ASCII.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>En registernøgle er tom eller ikke nulafsluttet.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>En registernøgle har udfyldningsbyte, der ikke er nul.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>En filter- eller parameternøgle passer ikke i sit felt på 32 byte.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Filter- og parameternøgler skal bruge 7-bit ASCII.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>En .zelmora-post overskrider 32-bit-størrelsesgrænsen.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Et figurlag har ugyldige mål eller en ugyldig streg.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>Et figurlags indhold er ugyldigt.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>Et figurlags indhold er afkortet.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Et tekstafsnit er ugyldigt.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Et tekstafsnit bruger en justering, der ikke understøttes.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Et tekstafsnit bruger en retning, der ikke understøttes.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>En post for et tekstafsnit er ugyldig.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Et tekstafsnit bruger en ukendt justering.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Et tekstafsnit bruger en ukendt retning.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>Et tekstafsnit har overskydende data til sidst.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Et tekstlag har ugyldige mål eller for mange afsnit.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>Et tekstlags indhold er ugyldigt.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>Et tekstlag har overskydende data til sidst.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Et tekstsegment er for stort.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>En post for en skrifttypefamilie er ugyldig.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>En blok med skrifttypefamilier har overskydende data til sidst.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Et tekstsegment bruger en ukendt skriftstil.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Et tekstsegment bruger en ukendt tilstand for store bogstaver.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Et tekstsegment bruger en ukendt tilstand for bogstavafstand.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Et tekstsegment bruger en ukendt tilstand for skrifthinting.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Et tekstsegment har ingen gyldig skriftstørrelse.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Et tekstsegment har for mange skrifttypefamilier.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Et tekstsegment har ugyldige numeriske skriftegenskaber.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>En post for et tekstsegment er ugyldig.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Et tekstsegment er afkortet.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>%1 kunne ikke åbnes til læsning: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>%1 kunne ikke åbnes til skrivning: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Målet er ikke en almindelig fil.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>Skrivningen af %1 kunne ikke fuldføres: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Ryd</translation>
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
        <translation>Det aktuelle dokument kunne ikke erstattes.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Vælg en eksisterende fil.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Den valgte billedfil kunne ikke åbnes.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>Det valgte SVG-billede kunne ikke indlæses.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows kunne ikke afkode det valgte HEIC/HEIF-billede.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Den valgte billedfil kunne ikke indlæses.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>Det valgte billede har ikke en brugbar størrelse.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Der kunne ikke oprettes et dokument ud fra det valgte billede.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Billede</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Uden titel</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Angiv en gyldig bredde og højde.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Der kunne ikke oprettes et nyt dokument.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Kun lokale filer understøttes.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Vælg et filnavn, før dokumentet gemmes.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Ændr dokumentstørrelse</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Tilpas dokumentgrænser til indhold</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Flyt objekt</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Vælg en eksisterende billedfil.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier kunne ikke indlæse det valgte billede.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Kun lokale billedfiler understøttes.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>Det valgte billede kunne ikke føjes til dokumentet.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Zelmora-eksempel</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier kunne ikke indlæse eksempelbilledet.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>Eksempelbilledet kunne ikke føjes til dokumentet.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Sti</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Et aktiveret stiloverførselsfilter kan endnu ikke eksporteres. Deaktiver eller fjern filteret før eksport.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Forhåndsvisningen kunne ikke kodes: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>Det gemte billede kunne ikke kodes: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>Billedbufferen i hukommelsen kunne ikke oprettes.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>Billedet kunne ikke gengives.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>Billedbufferen i hukommelsen kunne ikke åbnes igen.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Den kodede forhåndsvisning kunne ikke afkodes: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>JPEG-billeder (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>WebP-billeder (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>PNG-billeder (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Målet er ikke en almindelig fil.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>Billedet kunne ikke gemmes: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Vent, til den igangværende lagring er færdig.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>Forhåndsvisningen af billedet er ikke klar.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Der kan kun gemmes på lokale placeringer.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>Filtypenavnet passer ikke til det valgte billedformat: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Vælg et filnavn til billedet.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>Billedet blev gemt, men den redigerbare .zelmora-fil kunne ikke gemmes: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Vælg indstillinger for lagring, før dette billede gemmes.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Luk dialogboksen Eksportindstillinger, før du gemmer.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Den redigerbare .zelmora-fil kunne ikke gemmes: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>Koderen leverede ikke et billede.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>Den redigerbare .zelmora-fil blev gemt, men billedet kunne ikke opdateres: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Mappen med billedet kunne ikke åbnes.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Malelag</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>SPDX-id: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Fuld tekst på Debian: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Ophavsretsmeddelelser på Debian: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MIT-licens</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, version 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Tegner brugerfladen og læser og skriver de fleste billedformater. Linket dynamisk, så det kan udskiftes: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs og plug-ins til billedformater.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt medbringer eller bruger andres værker, blandt andet FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 og zlib. Deres meddelelser står sammen med Qt&apos;s egne.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>BSD-licens med 3 klausuler</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Koder billederne i dokumenter og eksporterede WebP-filer. Linket dynamisk, med delen libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Finder grafikdriverens OpenGL, som ikke er en del af dette program. Linket dynamisk.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, version 3 eller senere, med GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>C++-standardbiblioteket og compilerens hjælperutiner, linket dynamisk. Undtagelsen tillader programmer under enhver licens at bruge dem.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, version 2.1 eller senere</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>Systemets C-bibliotek, linket dynamisk.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Ændr opacitet</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Roter objekt</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Flyt objekt</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Skævvrid objekt</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Angiv drejepunkt</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Skaler objekt</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Vend vandret</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Vend lodret</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>Enkle</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamiske</translation>
    </message>
</context>
</TS>
