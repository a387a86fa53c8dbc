<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licenties</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>Er is geen bestandsbeheerder die de logmap kan tonen.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Logmap openen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>%1 toevoegen</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Object</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>Pijl</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Punt</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Schacht</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>Stralenkrans</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Stralen</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Diepte</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>Bezig</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Bezig</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>Canvas</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>Het document. Sleep om de weergave te verplaatsen, draai het muiswiel om te zoomen.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>Canvas tot document&amp;grenzen beperken</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Laag rasteren</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Wolk</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Bolling</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Lagen combineren</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Kleur kiezen</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Vorm naar pad omzetten</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Afbeelding bijsnijden</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>&amp;Foutopsporing</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>&amp;Runtimevlaggen</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>Ontbrekende &amp;HEVC-codec</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>Dialoog&amp;voorbeelden</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>HEIF-hulp</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Voortgang van opslaan</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Herstart na taalwijziging</translation>
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
        <translation>Hoekradius</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontaal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticaal</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>&amp;Documentgrenzen tonen</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Documentgrootte</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Document aan inhoud aanpassen</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Achtergrond</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Achtergrondkleur van document kiezen</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Achtergrondkleur</translation>
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
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Ongedaan maken: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Opn&amp;ieuw</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Opnieuw: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>K&amp;nippen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Plakken</translation>
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
        <translation>Rondheid</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Midden</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Exportinstellingen</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Indeling</translation>
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
        <translation>WebP, transparant</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, transparant</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>Deze afbeelding bevat transparantie. Kies een indeling met transparante achtergrond om die te behouden.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Verhoudingen behouden</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kwaliteit</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Kwaliteit in procenten</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>PNG-compressie</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max.</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Documentbestand zonder verlies</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Behoudt elke pixel van het bewerkbare document, in een groter bestand.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Geschatte bestandsgrootte:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Berekenen…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Niet beschikbaar</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>Naast de afbeelding wordt een bewerkbaar Zelmora-document (.zelmora) opgeslagen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Opslaan…</translation>
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
        <translation>Voorbeeld coderen…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>Voorbeeld laden…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uitzoomen</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Inzoomen</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Passend</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>De hele afbeelding tonen</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>De afbeelding op ware grootte tonen</translation>
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
        <translation>alfa, vervagen, verloop, transparant</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineair</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>Radiaal</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Vervaging</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Vervaging plaatsen</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Vervagingskleur</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Sterkte</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curve</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Zachtheid</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Omkeren</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Documentkleur</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Vervagen</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nieuw</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Nieuw document</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Openen…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Een document of afbeelding openen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Op&amp;slaan</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Afbeelding en document opslaan</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Opslaan &amp;als…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>A&amp;fsluiten</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Ruis toevoegen</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Vak vervagen</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Kleur aanpassen</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Inkleuren</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Vervagen</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Gaussiaans vervagen</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Grijswaarden</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Hooglichten naar alfa</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Schaduw binnen</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pixeleren</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Verhogen</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Sobel-randen</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Zachte schuine kant</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Textuurkopie</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Tonemapping</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Waterreflectie</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>Halve cirkel</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>Maansikkel</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Hart</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Lobben</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Inkeping</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Punt</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier op het &amp;web</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>&amp;Over Zelmora Atelier</translation>
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
        <translation>HEIC/HEIF-ondersteuning niet beschikbaar</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Installeer het pakket kimageformat6-plugins, waarmee Qt HEIF kan lezen, en start Zelmora Atelier opnieuw.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>HEIF-afbeeldingsextensies</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>HEVC-video-extensies</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation>Tekenlaag</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Afbeelding</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Vorm</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Laag</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>Inspector</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>T&amp;aal</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>Start Zelmora Atelier opnieuw om alle wijzigingen door te voeren.</translation>
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
        <translation>&amp;Afbeelding</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Een afbeelding als nieuwe laag invoegen</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Voorbeeld&amp;afbeelding invoegen</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Tekst</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Een tekstlaag invoegen</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Vorm</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Een vorm of sticker invoegen</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>&amp;Nieuwe tekenlaag</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Laag tonen</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Laag verbergen</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>Laag &amp;omhoog</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Laag om&amp;laag</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>Laag &amp;verwijderen</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>Laag &amp;rasteren</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>Sa&amp;menvoegen met laag eronder</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Basis</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Randen</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Herkleuren, tonen, effecten</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Stijloverdracht</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Lijsten</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Fotomontages, fun &amp; kunst</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>Glitter &amp; bling</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effect</translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Dekking</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Overvloeimodus</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Overvloeimodus</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Lagen</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Naam wijzigen</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Laag</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Selecteer een laag om deze te beheren.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Lagen</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Nog geen lagen.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Laag %1, verborgen</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Laag %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>Heeft een rasterselectie</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Laag tonen</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Laag verbergen</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>Samenvoegen met laag eronder</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Uiterlijk van de laag</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Soort</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
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
        <translation>Bliksem</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Buiging</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Tonen in Finder</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Tonen in Verkenner</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Afbeelding geëxporteerd naar %1.
Bewerkbaar document opgeslagen als %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>De map met de afbeelding kan niet worden geopend.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Wacht tot het huidige opslaan is voltooid.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>B&amp;ewerken</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Selecteren</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Weergave</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Linialen</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>&amp;Inspectorpositie</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Thema</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Laag</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Invoegen</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Afbeelding…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Tekst</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;Vorm…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Hoofdwerkbalk</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Meer manieren om op te slaan</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Meer van de geschiedenis</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Invoegen:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Laag omhoog verplaatsen</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Laag omlaag verplaatsen</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Scherm</translation>
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
        <translation>Sociale media</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Vierkant</translation>
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
        <translation>Afdruk, 300 ppi</translation>
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
        <translation>Nieuw document</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Voorinstellingen</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 megapixel</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Breedte en hoogte omwisselen</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Achtergrond</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Wit</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Zwart</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparant</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Aangepast</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Achtergrondkleur kiezen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Maken</translation>
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
        <translation>%1, %2 bij %3 pixels</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Licenties</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Shaderfout</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Programma: %1
Fase: %2
Bron: %3
Doel: %4
Logboek:
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
        <translation>&lt;geen&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;leeg compilerlogboek&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>Compileren van vertexshader mislukt</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Compileren van fragmentshader mislukt</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Kan shader niet laden</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>Programma: %1
Vertexdoel: %2
Fragmentdoel: %3
Logboek:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;leeg linkerlogboek&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Koppelen van shader mislukt</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>%1 kan niet worden geopend: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Ongeldige geserialiseerde QSB-shader: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>Geen compatibele GLSL-variant in %1. Geprobeerd: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Op afbeelding tekenen</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Verfvlek</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lengte</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Punten</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Kiezen</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Geen overeenkomende items.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>Categorieën</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>Veelhoek</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Zijden</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Recent geopend</translation>
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
        <translation>%1 verwijderen</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Object</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>Laagnaam</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Naam van object wijzigen</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Laag rasteren</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Grootte van afbeelding wijzigen</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Grootte van tekst wijzigen</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>Ruit</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontaal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticaal</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>Lint</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Diepte</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>Rechthoek</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
</context>
<context>
    <name>SceneObjectAdapter</name>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Vermenigvuldigen</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bleken</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Bedekken</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Donkerder</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Lichter</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Kleur tegenhouden</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Kleur doordrukken</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Fel licht</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Zwak licht</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Verschil</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Uitsluiting</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Kleurtoon</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Verzadiging</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Lichtsterkte</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>&amp;Rechthoekige selectie</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Een rechthoekige rasterselectie maken</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>&amp;Elliptische selectie</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Een elliptische rasterselectie maken</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>&amp;Toverstafselectie</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Een aaneengesloten kleurgebied selecteren</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>&amp;Veelhoekselectie</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Het pad van de rasterselectie bewerken</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>De rasterselectie wissen</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>Rasterselectie &amp;omkeren</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>Selectie naar nieuwe laag e&amp;xtraheren</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>Rasterselectie &amp;wissen</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Documentachtergrond wijzigen</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Overvloeimodus wijzigen</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Laag tonen</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Laag verbergen</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Vorm of sticker invoegen</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Vormen en stickers zoeken</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Geen overeenkomende vormen of stickers.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Invoegen</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>masker, uitsnede, bijsnijden, vorm</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Vorm plaatsen</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Vorm</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Omtrek</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Doezelen</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Omkeren</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Vormeditor</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Op vorm uitsnijden</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Schildembleem</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punt</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Selecteer een laag om de transformatie te bewerken.</translation>
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
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Hoogte-breedteverhouding behouden</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Spiegelen</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Horizontaal spiegelen</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Verticaal spiegelen</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotatie</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Hoek</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>Draaipunt X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Draaipunt Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Scheefheid</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Scheeftrekken starten</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Scheefheid X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Scheefheid Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Grootte-eenheid wisselen</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Tekstballon</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Wijzer</translation>
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
        <translation>Klodder</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variant</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Ster</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Punten</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Punt</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>Statusbalk</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>Laag: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Geen laag geselecteerd</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
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
        <translation>Kan bronbundel met texturen niet registreren: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Onveilig pad naar textuurafbeelding geweigerd: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Textuurafbeelding niet gevonden: %1 (gezocht in: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>onbekende fout van de afbeeldingsdecoder</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>Kan textuurafbeelding %1 niet laden uit %2: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Onveilig pad naar textuurgegevens geweigerd: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Textuurgegevens niet gevonden: %1 (gezocht in: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Voor geen enkele kandidaat textuurgegevens gevonden: %1 (gezocht in: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>onbekende leesfout</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>bestand is leeg</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>Kan textuurgegevens %1 niet lezen uit %2: %3</translation>
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
        <translation>Gedachteballon</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Punt</translation>
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
        <translation>S&amp;electeren</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Lagen selecteren</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>&amp;Scheeftrekken</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>De geselecteerde laag scheeftrekken</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Bijsnijden</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>De geselecteerde laag bijsnijden</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Pad</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Het geselecteerde vormpad bewerken of een nieuw pad tekenen</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Tekenen</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Met een penseel uit de vrije hand tekenen</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Gummen</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Pixels uit de geselecteerde laag gummen</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>&amp;Klonen</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Pixels klonen</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>Be&amp;lichting</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Pixels lichter of donkerder maken met het belichtingspenseel</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>Selectie &amp;vullen</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>De actieve rasterselectie vullen</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Gereedschappen</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Driehoek</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Zijden</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Hoekradius</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>Wijzigingen opslaan voor het afsluiten?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>Wijzigingen opslaan voor het maken van een nieuw document?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>Wijzigingen opslaan voor het openen van een ander document?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>Dit document bevat niet-opgeslagen wijzigingen. Als u afsluit zonder op te slaan, gaan de wijzigingen verloren.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>Dit document bevat niet-opgeslagen wijzigingen. Als u een nieuw document maakt zonder op te slaan, gaan de wijzigingen verloren.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>Dit document bevat niet-opgeslagen wijzigingen. Als u een ander document opent zonder op te slaan, gaan de wijzigingen verloren.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Toch afsluiten</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Toch maken</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Toch openen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>In&amp;zoomen</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Uitzoomen</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>&amp;Passend maken</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Ware grootte</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>&amp;Volledig scherm</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>Onbeperkt &amp;canvas</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Uit</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>&amp;Boven en links</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>&amp;Onder en rechts</translation>
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
        <translation>&amp;Systeem</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Licht</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Donker</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Inzoomen</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uitzoomen</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Zoom herstellen naar 100%</translation>
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
        <translation>Hoekradius</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Document of afbeelding openen</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Alle ondersteunde bestanden (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Alle afbeeldingsbestanden (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Zelmora-documenten (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle bestanden (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Afbeeldingslaag invoegen</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Afbeelding opslaan als</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Kan bestand niet openen</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Kan afbeelding niet invoegen</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Kan afbeelding niet opslaan</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Opslaan…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>Het .zelmora-bestand is afgekapt of onleesbaar: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>Een .zelmora-laagsectie kan niet worden gedecodeerd.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>Het .zelmora-bestand bevat een dubbele laag-ID.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>De eerste .zelmora-sectie bevat geen documenteigenschappen.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>De sectie met documenteigenschappen heeft een ongeldige grootte.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>De versie van de documenteigenschappen wordt niet ondersteund.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Een .zelmora-sectiekop is ongeldig.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Dit is geen .zelmora-document.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Deze versie van de .zelmora-indeling wordt niet ondersteund.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>De afmetingen van het .zelmora-document zijn ongeldig.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>Het aantal .zelmora-secties is ongeldig.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>Het .zelmora-bestand bevat dubbele documenteigenschappen.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>Het bronapparaat is niet leesbaar.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>Het .zelmora-bestand bevat overtollige gegevens aan het einde.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>Het .zelmora-bestand kan niet worden geschreven: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>Een .zelmora-sectie is te groot.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>Het document bevat een niet-ondersteund scèneobject.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>Het document bevat een dubbele laag-ID.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>Het doelapparaat is niet beschrijfbaar.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>De afmetingen van het document kunnen niet in de .zelmora-indeling worden opgeslagen.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>Het document bevat te veel lagen.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>onvoldoende geheugen</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>onvoldoende geheugen bij het schrijven van de bitstroom</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>een vereiste encoderparameter ontbreekt</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>de encoderconfiguratie is ongeldig</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>de afmetingen van de afbeelding zijn ongeldig</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>een encoderpartitie is te groot</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>de gecodeerde gegevens kunnen niet worden geschreven</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>de gecodeerde afbeelding is te groot</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>het coderen is geannuleerd</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>onbekende encoderfout (code %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Een afbeelding kan niet als WebP worden weergegeven.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>De WebP-encoder kan niet worden geïnitialiseerd.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>De configuratie van de WebP-encoder is ongeldig.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>De afbeelding kan niet worden voorbereid voor WebP-codering.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>De afbeelding kan niet worden voorbereid voor WebP-codering: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>WebP kan niet worden gecodeerd: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>De WebP-encoder heeft geen gegevens geproduceerd.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>De gecodeerde WebP-afbeelding is te groot.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Een ingesloten WebP-afbeelding heeft ongeldige afmetingen.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Een ingesloten afbeelding kan niet worden geopend.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>WebP kan niet worden gedecodeerd: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Een afbeelding kan niet als onbewerkte RGBA-gegevens worden weergegeven.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Een onbewerkte RGBA-afbeelding heeft ongeldige afmetingen.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Een onbewerkte RGBA-afbeelding heeft een ongeldige bytelengte.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Er kan geen geheugen worden gereserveerd voor een onbewerkte RGBA-afbeelding.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>Een verloopvulling gebruikt een niet-ondersteund type.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>Een verloopvulling heeft een ongeldige positie.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>Een verloopvulling heeft een ongeldig aantal kleurstops.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>Een verloopvulling heeft een ongeldige kleurstop.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>Een vulling gebruikt een niet-ondersteunde textuurtoewijzing.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>Een textuurvulling heeft een ongeldige transformatie.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Een vullingsgenerator-ID is te groot.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>Een effen vulling bevat onverwachte gegevens.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>Een record van een textuurvulling is ongeldig.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>Een textuurparameterblok bevat overtollige gegevens aan het einde.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>De transformatie of grootte van een textuurvulling is ongeldig.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>Een record van een verloopvulling is ongeldig.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>Een vullingsrecord is afgekapt of ongeldig.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>Een vulling gebruikt een onbekende textuurtoewijzing.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Een filter heeft een lege instantie-ID.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>Een filterrecord is afgekapt of ongeldig.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>Een filterparameterblok bevat overtollige gegevens aan het einde.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Een vormgenerator-ID is leeg of te groot.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>Een record van een parametrische vorm is ongeldig.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Een vormgenerator-ID is leeg.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>Een parametrische vorm bevat overtollige gegevens aan het einde.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>Een vorm gebruikt een onbekend geometrietype.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Een SVG-laag heeft geen brongegevens.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Een afbeeldingslaag heeft geen ondersteunde bron.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>Een rasterselectie moet een bewerkbaar pad zijn.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Een rasterlaag heeft ongeldige pixelafmetingen.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Een SVG-laag bevat rasterafmetingen.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Een SVG-laag bevat ongeldige SVG-gegevens.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Een afbeeldingslaag gebruikt een onbekende broncodering.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Een afbeeldingslaag heeft ongeldige afmetingen of gegevens.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>De inhoud van een afbeeldingslaag is ongeldig.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Een afbeeldingslaag heeft een onbekend rasteroppervlakbeleid.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>Het document bevat een niet-ondersteund laagtype.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>Een sectie is geen ondersteund laagtype.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Een laag heeft te veel filters.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>Een laag bevat een dubbele filterinstantie-ID.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Een laag heeft ongeldige identiteits- of transformatie-eigenschappen.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Een laagnaam of overvloeimodus-ID is te groot.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>Een laagtype komt niet overeen met de inhoud.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>Een laagsectie is te groot.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>De kop van een laaginhoud is ongeldig.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Een laag heeft een lege overvloeimodus-ID.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>Een laagsectie bevat overtollige gegevens aan het einde.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Een filterstapel van een laag kan niet worden hersteld.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>Een tekenreekswaarde van een parameter is te groot.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>Een lichtlijst bevat te veel lichten.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>Een bronparameter heeft een ongeldige bytelengte.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>Een booleaanse parameter is ongeldig.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>Een reële parameter is niet eindig.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>Een parameter bevat een niet-eindig getal.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>Een bronparameter moet een bestandsnaam zijn, geen pad.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>Een parameter voor een schakelbare kleur is ongeldig.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>Een lijnparameter is ongeldig.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>Een lijn bevat een ongeldige breedte.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>Een verloopparameter is ongeldig.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>Een verloop bevat een niet-eindige positie.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>Een maskertransformatie is ongeldig.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>Een masker bevat een niet-eindige transformatie.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>Een lichtlijstparameter is ongeldig.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>Een lichtlijst bevat een ongeldig licht.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>Het .zelmora-bestand gebruikt een onbekend parametertype.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>Een parameterwaarde heeft een ongeldige bytelengte.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>Een parametersleutel komt dubbel voor.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>Een parameterverzameling is te groot.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Een parameterkop is afgekapt.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>Een parameterwaarde is afgekapt.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>Een knooppunt van een bewerkbaar pad is ongeldig.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>Een knooppunt-ID van een bewerkbaar pad komt dubbel voor.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>Een knooppunt van een bewerkbaar pad gebruikt een onbekend type.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>Een contour van een bewerkbaar pad is ongeldig.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>Een bewerkbaar pad heeft te veel contouren.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>Een contour van een bewerkbaar pad heeft te veel knooppunten.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>Een record van een bewerkbaar pad is ongeldig.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>Een bewerkbaar pad bevat overtollige gegevens aan het einde.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>Het .zelmora-bestand bevat een ongeldige kleur.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>Het .zelmora-bestand bevat een lege object-ID.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>Een registersleutel is geen geldige 7-bits ASCII.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>Een registersleutel is leeg of eindigt niet op een nulteken.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>Een registersleutel heeft opvulbytes die niet nul zijn.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>Een filter- of parametersleutel past niet in het veld van 32 bytes.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Filter- en parametersleutels moeten 7-bits ASCII gebruiken.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>Een .zelmora-record overschrijdt de 32-bits groottelimiet.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Een vormlaag heeft ongeldige afmetingen of een ongeldige lijn.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>De inhoud van een vormlaag is ongeldig.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>De inhoud van een vormlaag is afgekapt.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Een tekstalinea is ongeldig.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Een tekstalinea gebruikt een niet-ondersteunde uitlijning.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Een tekstalinea gebruikt een niet-ondersteunde richting.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>Een record van een tekstalinea is ongeldig.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Een tekstalinea gebruikt een onbekende uitlijning.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Een tekstalinea gebruikt een onbekende richting.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>Een tekstalinea bevat overtollige gegevens aan het einde.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Een tekstlaag heeft ongeldige afmetingen of te veel alinea&apos;s.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>De inhoud van een tekstlaag is ongeldig.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>Een tekstlaag bevat overtollige gegevens aan het einde.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Een tekstsegment is te groot.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>Een record van een lettertypefamilie is ongeldig.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>Een lettertypefamilieblok bevat overtollige gegevens aan het einde.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Een tekstsegment gebruikt een onbekende tekenstijl.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Een tekstsegment gebruikt een onbekende hoofdlettermodus.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Een tekstsegment gebruikt een onbekende letterafstandsmodus.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Een tekstsegment gebruikt een onbekende hintingmodus.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Een tekstsegment heeft geen geldige tekengrootte.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Een tekstsegment heeft te veel lettertypefamilies.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Een tekstsegment heeft ongeldige numerieke lettertype-eigenschappen.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>Een record van een tekstsegment is ongeldig.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Een tekstsegment is afgekapt.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>%1 kan niet worden geopend om te lezen: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>%1 kan niet worden geopend om te schrijven: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Het doel is geen gewoon bestand.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>Het schrijven van %1 kan niet worden voltooid: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Wissen</translation>
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
        <translation>Het huidige document kan niet worden vervangen.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Kies een bestaand bestand.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Het geselecteerde afbeeldingsbestand kan niet worden geopend.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>De geselecteerde SVG-afbeelding kan niet worden geladen.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows kan de geselecteerde HEIC/HEIF-afbeelding niet decoderen.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Het geselecteerde afbeeldingsbestand kan niet worden geladen.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>De geselecteerde afbeelding heeft geen bruikbare grootte.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Van de geselecteerde afbeelding kan geen document worden gemaakt.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Afbeelding</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Naamloos</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Voer een geldige breedte en hoogte in.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Er kan geen nieuw document worden gemaakt.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Alleen lokale bestanden worden ondersteund.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Kies een bestandsnaam voordat u het document opslaat.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Documentgrootte wijzigen</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Documentgrenzen aan inhoud aanpassen</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Object verplaatsen</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Kies een bestaand afbeeldingsbestand.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier kan de geselecteerde afbeelding niet laden.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Alleen lokale afbeeldingsbestanden worden ondersteund.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>De geselecteerde afbeelding kan niet aan het document worden toegevoegd.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Zelmora-voorbeeld</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier kan de voorbeeldafbeelding niet laden.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>De voorbeeldafbeelding kan niet aan het document worden toegevoegd.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pad</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Een ingeschakeld stijloverdrachtfilter kan nog niet worden geëxporteerd. Schakel het filter uit of verwijder het voor het exporteren.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Het voorbeeld kan niet worden gecodeerd: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>De opgeslagen afbeelding kan niet worden gecodeerd: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>De afbeeldingsbuffer in het geheugen kan niet worden gemaakt.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>De afbeelding kan niet worden gerenderd.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>De afbeeldingsbuffer in het geheugen kan niet opnieuw worden geopend.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Het gecodeerde voorbeeld kan niet worden gedecodeerd: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>JPEG-afbeeldingen (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>WebP-afbeeldingen (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>PNG-afbeeldingen (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Het doel is geen gewoon bestand.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>De afbeelding kan niet worden opgeslagen: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Wacht tot het huidige opslaan is voltooid.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>Het afbeeldingsvoorbeeld is niet gereed.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Alleen lokale opslaglocaties worden ondersteund.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>De bestandsextensie komt niet overeen met de geselecteerde afbeeldingsindeling: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Kies een bestandsnaam voor de afbeelding.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>De afbeelding is opgeslagen, maar het bewerkbare .zelmora-bestand kan niet worden opgeslagen: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Kies opslaginstellingen voordat u deze afbeelding opslaat.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Sluit het dialoogvenster Exportinstellingen voor het opslaan.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Het bewerkbare .zelmora-bestand kan niet worden opgeslagen: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>De encoder heeft geen afbeelding geproduceerd.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>Het bewerkbare .zelmora-bestand is opgeslagen, maar de afbeelding kan niet worden bijgewerkt: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>De map met de afbeelding kan niet worden geopend.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Tekenlaag</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>SPDX-ID: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Volledige tekst op Debian: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Auteursrechtvermeldingen op Debian: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MIT-licentie</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, versie 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Tekent de interface en leest en schrijft de meeste afbeeldingsindelingen. Dynamisch gekoppeld, zodat het kan worden vervangen: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs en de plug-ins voor afbeeldingsindelingen.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt bevat of gebruikt werken van anderen, waaronder FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 en zlib. Hun vermeldingen staan bij die van Qt zelf.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>BSD-licentie met 3 clausules</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Codeert de afbeeldingen in documenten en geëxporteerde WebP-bestanden. Dynamisch gekoppeld, met het onderdeel libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Vindt de OpenGL van het grafische stuurprogramma, dat geen deel uitmaakt van dit programma. Dynamisch gekoppeld.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, versie 3 of later, met de GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>De C++-standaardbibliotheek en de ondersteunende routines van de compiler, dynamisch gekoppeld. Dankzij de uitzondering mogen programma&apos;s onder elke licentie ze gebruiken.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, versie 2.1 of later</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>De C-bibliotheek van het systeem, dynamisch gekoppeld.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Dekking wijzigen</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Object roteren</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Object verplaatsen</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Object scheeftrekken</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Draaipunt instellen</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Object schalen</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Horizontaal spiegelen</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Verticaal spiegelen</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>Basis</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamisch</translation>
    </message>
</context>
</TS>
