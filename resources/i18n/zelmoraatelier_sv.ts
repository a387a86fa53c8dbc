<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
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
        <translation>Det finns ingen filhanterare som kan visa loggmappen.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Webbplats</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Öppna loggmapp</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>Lägg till %1</translation>
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
        <translation>Hörnradie</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spets</translation>
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
        <translation>Explosion</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Strålar</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Djup</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hörnradie</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>Upptagen</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Upptagen</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>Arbetsyta</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>Dokumentet. Dra för att flytta vyn och vrid hjulet för att zooma.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>&amp;Begränsa arbetsytan till dokumentet</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Rastrera lager</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Moln</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Fluffighet</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Kombinera lager</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Välj färg</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Konvertera form till bana</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Beskär bild</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>&amp;Felsökning</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>&amp;Körningsflaggor</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>HEVC-kodek &amp;saknas</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>Dialog&amp;förhandsvisningar</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>HEIF-hjälp</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Förlopp för sparande</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Omstart för språkbyte</translation>
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
        <translation>Hörnradie</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horisontellt</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikalt</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>Visa dokument&amp;gränser</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Dokumentstorlek</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Bredd</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höjd</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Anpassa dokumentet till innehållet</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Bakgrund</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Färg</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Välj dokumentets bakgrundsfärg</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Bakgrundsfärg</translation>
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
        <translation>&amp;Ångra</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Ångra %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Gör om</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Gör om %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gör om</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Klipp &amp;ut</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiera</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Klistra &amp;in</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>Ellips</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>Rundhet</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitten</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Exportinställningar</translation>
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
        <translation>WebP, genomskinlig</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, genomskinlig</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>Bilden innehåller genomskinlighet. Välj ett format med genomskinlig bakgrund för att behålla den.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Bredd</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Behåll proportionerna</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höjd</translation>
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
        <translation>Max</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Förlustfri dokumentfil</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Behåller varje pixel i det redigerbara dokumentet, i en större fil.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Beräknad bildstorlek:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Beräknar…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Ej tillgänglig</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>Ett redigerbart Zelmora-dokument (.zelmora) sparas tillsammans med bilden.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Spara…</translation>
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
        <translation>Kodar förhandsvisning…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>Läser in förhandsvisning…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Förhandsvisning</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zooma ut</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zooma in</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Anpassa</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Visa hela bilden</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Visa bilden i dess egen storlek</translation>
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
        <translation>alfa, tona, gradient, genomskinlig</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Läge</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linjär</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>Radiell</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Toning</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Placera toning</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Toningsfärg</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Styrka</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurva</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Mjukhet</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertera</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Dokumentfärg</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Tona ut</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nytt</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Nytt dokument</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Öppna…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Öppna ett dokument eller en bild</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Spara</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Spara bild och dokument</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Spara so&amp;m…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Avsluta</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Lägg till brus</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Lådoskärpa</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Färgjustering</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Färglägg</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Tona ut</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Gaussisk oskärpa</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Gråskala</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Högdagrar till alfa</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Inre skugga</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pixla</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Upphöj</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Sobel-kanter</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Mjuk avfasning</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Texturkopia</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Tonmappning</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Vattenspegling</translation>
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
        <translation>Månskära</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hörnradie</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Hjärta</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Bågar</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Skåra</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spets</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier på &amp;webben</translation>
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
        <translation>Stöd för HEIC/HEIF är inte tillgängligt</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Installera paketet kimageformat6-plugins, som ger Qt en HEIF-läsare, och starta Zelmora Atelier igen.</translation>
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
        <translation>Målarlager</translation>
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
        <translation>Lager</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>Inspektör</translation>
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
        <translation>Starta om Zelmora Atelier för att alla ändringar ska börja gälla.</translation>
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
        <translation>Infoga en bild som ett nytt lager</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Infoga &amp;exempelbild</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Infoga ett textlager</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Form</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Infoga en form eller dekal</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>Nytt &amp;målarlager</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Visa lager</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Dölj lager</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>Flytta lager u&amp;pp</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Flytta lager ne&amp;d</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>&amp;Ta bort lager</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>&amp;Rastrera lager</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>Slå ihop med &amp;lagret under</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Grunder</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kanter</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Färg, ton och effekter</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Stilöverföringar</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Ramar</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Fotomontage, skoj &amp; konst</translation>
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
        <translation>Namn</translation>
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
        <translation>Blandningsläge</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Blandningsläge</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Lager</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Byt namn</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Lager</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Markera ett lager för att hantera det.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Lager</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Inga lager än.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Lagret %1, dolt</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Lagret %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>Har en rastermarkering</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Visa lager</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Dölj lager</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>Slå ihop med lagret under</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Lagrets utseende</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
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
        <translation>Blixt</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Böj</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hörnradie</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Visa i Finder</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Visa i Utforskaren</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Bilden exporterades till %1.
Det redigerbara dokumentet sparades som %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Det gick inte att öppna mappen som innehåller bilden.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Vänta tills det pågående sparandet är klart.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arkiv</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Redigera</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Markera</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visa</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Linjaler</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>I&amp;nspektörens placering</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Lager</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Infoga</translation>
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
        <translation>&amp;Hjälp</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Huvudverktygsfält</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Fler sätt att spara</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Mer av historiken</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Infoga:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Flytta lager upp</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Flytta lager ned</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Skärm</translation>
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
        <translation>Sociala medier</translation>
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
        <translation>Förinställningar</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 megapixel</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Bredd</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Byt plats på bredd och höjd</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höjd</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Bakgrund</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Vit</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Svart</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Genomskinlig</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Anpassad</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Välj bakgrundsfärg</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Skapa</translation>
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
        <translation>%1, %2 gånger %3 pixlar</translation>
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
        <translation>Shaderfel</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Program: %1
Steg: %2
Resurs: %3
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
        <translation>Vertexshadern kunde inte kompileras</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Fragmentshadern kunde inte kompileras</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Det gick inte att läsa in shadern</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>Program: %1
Vertexmål: %2
Fragmentmål: %3
Logg:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;tom länkarlogg&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Shadern kunde inte länkas</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>Det gick inte att öppna %1: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Ogiltig serialiserad QSB-shader: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>Ingen kompatibel GLSL-variant i %1. Försökte med: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Måla bild</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Färgfläck</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Längd</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Taggar</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Välj</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Inga matchande objekt.</translation>
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
        <translation>Sidor</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hörnradie</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Öppna &amp;tidigare</translation>
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
        <translation>Ta bort %1</translation>
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
        <translation>Lagernamn</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Byt namn på objekt</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Rastrera lager</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Ändra bildstorlek</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Ändra textstorlek</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>Romb</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hörnradie</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horisontellt</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikalt</translation>
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
        <translation>Variant</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Djup</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hörnradie</translation>
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
        <translation>Hörnradie</translation>
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
        <translation>Multiplicera</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Täcka över</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Mörkare</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Ljusare</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Färgskugga</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Färgefterbelysning</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Hårt ljus</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Mjukt ljus</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differens</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Uteslutning</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Nyans</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Mättnad</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Färg</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Luminans</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>&amp;Rektangulär markering</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Skapa en rektangulär rastermarkering</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>&amp;Elliptisk markering</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Skapa en elliptisk rastermarkering</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>&amp;Trollstavsmarkering</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Markera ett sammanhängande färgområde</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>&amp;Polygonmarkering</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Redigera rastermarkeringens bana</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>Rensa rastermarkeringen</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>In&amp;vertera rastermarkering</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>E&amp;xtrahera markering till nytt lager</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>Ren&amp;sa rastermarkering</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Ändra dokumentbakgrund</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Ändra blandningsläge</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Visa lager</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Dölj lager</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Infoga form eller dekal</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Sök former och dekaler</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Inga matchande former eller dekaler.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Infoga</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>mask, utklipp, beskär, form</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Placera form</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Mjuk kant</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertera</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Formredigerare</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Klipp till form</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Sköldemblem</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Spets</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hörnradie</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Markera ett lager för att redigera dess transformering.</translation>
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
        <translation>Bredd</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höjd</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Behåll proportionerna</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Vänd</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Vänd horisontellt</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Vänd vertikalt</translation>
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
        <translation>Vridpunkt X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Vridpunkt Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Skevning</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Börja skeva</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Skevning X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Skevning Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Byt storleksenhet</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Pratbubbla</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hörnradie</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Pekare</translation>
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
        <translation>Plump</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hörnradie</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Stjärna</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Taggar</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spets</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>Statusfält</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>Lager: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Inget lager markerat</translation>
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
        <translation>Det gick inte att registrera texturresurspaketet: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>En osäker sökväg till en texturbild avvisades: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Texturbilden hittades inte: %1 (sökte i: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>okänt fel i bildavkodaren</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>Det gick inte att läsa in texturbilden %1 från %2: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>En osäker sökväg till texturdata avvisades: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Texturdata hittades inte: %1 (sökte i: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Texturdata hittades inte för någon kandidat: %1 (sökte i: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>okänt läsfel</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>filen är tom</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>Det gick inte att läsa texturdata %1 från %2: %3</translation>
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
        <translation>Tankebubbla</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hörnradie</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Spets</translation>
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
        <translation>&amp;Markera</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Markera lager</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>&amp;Skeva</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>Skeva det markerade lagret</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Beskär</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>Beskär det markerade lagret</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>B&amp;ana</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Redigera den markerade formens bana eller rita en ny bana</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Rita</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Rita med en frihandspensel</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>Su&amp;dda</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Sudda pixlar från det markerade lagret</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>&amp;Klona</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Klona pixlar</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>E&amp;xponering</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Gör pixlar ljusare eller mörkare med exponeringspenseln</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>&amp;Fyll markering</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Fyll den aktiva rastermarkeringen</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Verktyg</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Triangel</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Sidor</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hörnradie</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>Vill du spara ändringarna innan du avslutar?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>Vill du spara ändringarna innan du skapar ett nytt dokument?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>Vill du spara ändringarna innan du öppnar ett annat dokument?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>Dokumentet har ändringar som inte har sparats. Om du avslutar utan att spara går ändringarna förlorade.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>Dokumentet har ändringar som inte har sparats. Om du skapar ett nytt dokument utan att spara går ändringarna förlorade.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>Dokumentet har ändringar som inte har sparats. Om du öppnar ett annat dokument utan att spara går ändringarna förlorade.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Avsluta ändå</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Skapa ändå</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Öppna ändå</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zooma &amp;in</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zooma &amp;ut</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>&amp;Anpassa till fönstret</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Verklig storlek</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>&amp;Helskärm</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>&amp;Obegränsad arbetsyta</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Av</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>&amp;Överst och till vänster</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>&amp;Nederst och till höger</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Vänster</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Höger</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Ljust</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Mörkt</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zooma in</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zooma ut</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Återställ zoomen till 100 %</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>Vinjett</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hörnradie</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Öppna dokument eller bild</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Alla filer som stöds (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Alla bildfiler (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Zelmora-dokument (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alla filer (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Infoga bildlager</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Spara bild som</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Det gick inte att öppna filen</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Det gick inte att infoga bilden</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Det gick inte att spara bilden</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Sparar…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>.zelmora-filen är avkortad eller kan inte läsas: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>Det gick inte att avkoda en lagersektion i .zelmora-filen.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>.zelmora-filen innehåller ett dubblerat lager-ID.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>Den första .zelmora-sektionen innehåller inte dokumentegenskaper.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>Sektionen med dokumentegenskaper har en ogiltig storlek.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>Dataversionen för dokumentegenskaperna stöds inte.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Ett sektionshuvud i .zelmora-filen är ogiltigt.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Detta är inte ett .zelmora-dokument.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Denna version av .zelmora-formatet stöds inte.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>.zelmora-dokumentets mått är ogiltiga.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>Antalet sektioner i .zelmora-filen är ogiltigt.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>.zelmora-filen innehåller dubbla dokumentegenskaper.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>Källenheten är inte läsbar.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>.zelmora-filen har överflödiga data i slutet.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>Det gick inte att skriva .zelmora-filen: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>En .zelmora-sektion är för stor.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>Dokumentet innehåller ett scenobjekt som inte stöds.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>Dokumentet innehåller ett dubblerat lager-ID.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>Målenheten är inte skrivbar.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>Dokumentets mått kan inte lagras i .zelmora-format.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>Dokumentet innehåller för många lager.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>slut på minne</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>slut på minne när bitströmmen skrevs</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>en nödvändig kodarparameter saknas</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>kodarens konfiguration är ogiltig</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>bildens mått är ogiltiga</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>en kodarpartition är för stor</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>de kodade data kunde inte skrivas</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>den kodade bilden är för stor</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>kodningen avbröts</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>okänt kodarfel (kod %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>En bild kan inte representeras som WebP.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>Det gick inte att initiera WebP-kodaren.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>WebP-kodarens konfiguration är ogiltig.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>Det gick inte att förbereda bilden för WebP-kodning.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>Det gick inte att förbereda bilden för WebP-kodning: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>Det gick inte att koda WebP: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>WebP-kodaren gav inga data.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>Den kodade WebP-bilden är för stor.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>En inbäddad WebP-bild har ogiltiga mått.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Det gick inte att öppna en inbäddad bild.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>Det gick inte att avkoda WebP: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>En bild kan inte representeras som råa RGBA-data.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>En rå RGBA-bild har ogiltiga mått.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>En rå RGBA-bild har en ogiltig bytelängd.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Det gick inte att allokera en rå RGBA-bild.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>En gradientfyllning använder en typ som inte stöds.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>En gradientfyllning har en ogiltig position.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>En gradientfyllning har ett ogiltigt antal färgstopp.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>En gradientfyllning har ett ogiltigt färgstopp.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>En fyllning använder en texturmappning som inte stöds.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>En texturfyllning har en ogiltig transformering.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Ett generator-ID för en fyllning är för stort.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>En enfärgad fyllning innehåller oväntade data.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>En post för texturfyllning är ogiltig.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>Ett texturparameterblock har överflödiga data i slutet.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>En texturfyllnings transformering eller storlek är ogiltig.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>En post för gradientfyllning är ogiltig.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>En post för fyllning är avkortad eller ogiltig.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>En fyllning använder en okänd texturmappning.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Ett filter har ett tomt instans-ID.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>En filterpost är avkortad eller ogiltig.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>Ett filterparameterblock har överflödiga data i slutet.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Ett generator-ID för en form är tomt eller för stort.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>En post för en parametrisk form är ogiltig.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Ett generator-ID för en form är tomt.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>En parametrisk form har överflödiga data i slutet.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>En form använder en okänd geometrityp.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Ett SVG-lager saknar källdata.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Ett bildlager har ingen källa som stöds.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>En rastermarkering måste vara en redigerbar bana.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Ett rasterlager har ogiltiga pixelmått.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Ett SVG-lager innehåller rastermått.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Ett SVG-lager innehåller ogiltiga SVG-data.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Ett bildlager använder en okänd källkodning.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Ett bildlager har ogiltiga mått eller data.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>Ett bildlagers data är ogiltiga.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Ett bildlager har en okänd princip för rasterytan.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>Dokumentet innehåller en lagertyp som inte stöds.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>En sektion är inte en lagertyp som stöds.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Ett lager har för många filter.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>Ett lager innehåller ett dubblerat filterinstans-ID.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Ett lager har ogiltiga identitets- eller transformeringsegenskaper.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Ett lagernamn eller ID för ett blandningsläge är för stort.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>En lagertyp stämmer inte med innehållet.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>En lagersektion är för stor.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>Ett lagers datahuvud är ogiltigt.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Ett lager har ett tomt ID för blandningsläge.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>En lagersektion har överflödiga data i slutet.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Det gick inte att återställa en filterstack för ett lager.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>Ett strängvärde för en parameter är för stort.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>En ljuslista innehåller för många ljuskällor.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>En resursparameter har en ogiltig bytelängd.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>En boolesk parameter är ogiltig.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>En reell parameter är inte ändlig.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>En parameter innehåller ett tal som inte är ändligt.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>En resursparameter måste vara ett filnamn, inte en sökväg.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>En parameter för aktiverad färg är ogiltig.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>En streckparameter är ogiltig.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>Ett streck innehåller en ogiltig bredd.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>En gradientparameter är ogiltig.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>En gradient innehåller en position som inte är ändlig.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>En masktransformering är ogiltig.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>En mask innehåller en transformering som inte är ändlig.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>En ljuslisteparameter är ogiltig.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>En ljuslista innehåller en ogiltig ljuskälla.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>.zelmora-filen använder en okänd parametertyp.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>Ett parametervärde har en ogiltig bytelängd.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>En parameternyckel är dubblerad.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>En parametersamling är för stor.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Ett parameterhuvud är avkortat.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>Ett parametervärde är avkortat.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>En nod i en redigerbar bana är ogiltig.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>Ett nod-ID i en redigerbar bana är dubblerat.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>En nod i en redigerbar bana använder en okänd typ.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>En kontur i en redigerbar bana är ogiltig.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>En redigerbar bana har för många konturer.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>En kontur i en redigerbar bana har för många noder.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>En post för en redigerbar bana är ogiltig.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>En redigerbar bana har överflödiga data i slutet.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>.zelmora-filen innehåller en ogiltig färg.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>.zelmora-filen innehåller en tom objektidentifierare.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>En registernyckel är inte giltig 7-bitars ASCII.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>En registernyckel är tom eller inte nollterminerad.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>En registernyckel har utfyllnad som inte är noll.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>En filter- eller parameternyckel ryms inte i sitt fält på 32 byte.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Filter- och parameternycklar måste använda 7-bitars ASCII.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>En .zelmora-post överskrider storleksgränsen på 32 bitar.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Ett formlager har ogiltiga mått eller ett ogiltigt streck.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>Ett formlagers data är ogiltiga.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>Ett formlagers data är avkortade.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Ett textstycke är ogiltigt.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Ett textstycke använder en justering som inte stöds.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Ett textstycke använder en riktning som inte stöds.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>En post för ett textstycke är ogiltig.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Ett textstycke använder en okänd justering.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Ett textstycke använder en okänd riktning.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>Ett textstycke har överflödiga data i slutet.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Ett textlager har ogiltiga mått eller för många stycken.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>Ett textlagers data är ogiltiga.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>Ett textlager har överflödiga data i slutet.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Ett textsegment är för stort.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>En post för en teckensnittsfamilj är ogiltig.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>Ett block för teckensnittsfamiljer har överflödiga data i slutet.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Ett textsegment använder en okänd teckensnittsstil.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Ett textsegment använder ett okänt läge för versaler.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Ett textsegment använder ett okänt läge för teckenavstånd.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Ett textsegment använder ett okänt läge för teckensnittshintning.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Ett textsegment har ingen giltig teckenstorlek.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Ett textsegment har för många teckensnittsfamiljer.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Ett textsegment har ogiltiga numeriska teckensnittsegenskaper.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>En post för ett textsegment är ogiltig.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Ett textsegment är avkortat.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>Det gick inte att öppna %1 för läsning: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>Det gick inte att öppna %1 för skrivning: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Målet är inte en vanlig fil.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>Det gick inte att slutföra skrivningen av %1: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Rensa</translation>
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
        <translation>Det gick inte att ersätta det aktuella dokumentet.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Välj en befintlig fil.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Det gick inte att öppna den valda bildfilen.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>Det gick inte att läsa in den valda SVG-bilden.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows kunde inte avkoda den valda HEIC/HEIF-bilden.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Det gick inte att läsa in den valda bildfilen.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>Den valda bilden har ingen användbar storlek.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Det gick inte att skapa ett dokument från den valda bilden.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Namnlös</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Ange en giltig bredd och höjd.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Det gick inte att skapa ett nytt dokument.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Endast lokala filer stöds.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Välj ett filnamn innan du sparar dokumentet.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Ändra dokumentstorlek</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Anpassa dokumentgränser till innehåll</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Flytta objekt</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Välj en befintlig bildfil.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier kunde inte läsa in den valda bilden.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Endast lokala bildfiler stöds.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>Det gick inte att lägga till den valda bilden i dokumentet.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Zelmora-exempel</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier kunde inte läsa in exempelbilden.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>Det gick inte att lägga till exempelbilden i dokumentet.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Bana</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Ett aktiverat stilöverföringsfilter kan inte exporteras än. Inaktivera eller ta bort filtret innan du exporterar.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Det gick inte att koda förhandsvisningen: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>Det gick inte att koda den sparade bilden: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>Det gick inte att skapa bildbufferten i minnet.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>Det gick inte att rendera bilden.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>Det gick inte att öppna bildbufferten i minnet på nytt.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Det gick inte att avkoda den kodade förhandsvisningen: %1</translation>
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
        <translation>Målet är inte en vanlig fil.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>Det gick inte att spara bilden: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Vänta tills det pågående sparandet är klart.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>Förhandsvisningen av bilden är inte klar.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Det går bara att spara på lokala platser.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>Filnamnstillägget stämmer inte med det valda bildformatet: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Välj ett filnamn för bilden.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>Bilden sparades, men den redigerbara .zelmora-filen kunde inte sparas: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Välj inställningar för sparande innan du sparar bilden.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Stäng dialogrutan Exportinställningar innan du sparar.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Det gick inte att spara den redigerbara .zelmora-filen: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>Kodaren gav ingen bild.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>Den redigerbara .zelmora-filen sparades, men bilden kunde inte uppdateras: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Det gick inte att öppna mappen som innehåller bilden.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Målning</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>SPDX-identifierare: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Fullständig text på Debian: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Upphovsrättsmeddelanden på Debian: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MIT-licensen</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, version 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Ritar gränssnittet samt läser och skriver de flesta bildformat. Länkas dynamiskt så att det kan bytas ut: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs och insticksmodulerna för bildformat.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt innehåller eller använder verk av andra, bland dem FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 och zlib. Deras meddelanden finns tillsammans med Qt:s egna.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>BSD 3-Clause-licensen</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Kodar bilderna i dokument och exporterade WebP-filer. Länkas dynamiskt, med sin del libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Hittar grafikdrivrutinens OpenGL, som inte är en del av detta program. Länkas dynamiskt.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, version 3 eller senare, med GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>C++-standardbiblioteket och kompilatorns stödrutiner, länkade dynamiskt. Undantaget låter program under valfri licens använda dem.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, version 2.1 eller senare</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>Systemets C-bibliotek, dynamiskt länkat.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Ändra opacitet</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Rotera objekt</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Flytta objekt</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Skeva objekt</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Ange vridpunkt</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Skala objekt</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Vänd horisontellt</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Vänd vertikalt</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>Grundläggande</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamiska</translation>
    </message>
</context>
</TS>
