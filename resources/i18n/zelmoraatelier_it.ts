<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licenze</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>Nessun gestore di file può mostrare la cartella dei log.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Apri cartella dei log</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>Aggiunta di %1</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>oggetto</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>Freccia</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Punta</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Coda</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>Esplosione</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Raggi</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondità</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>Occupato</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Occupato</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>Area di disegno</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>Il documento. Trascinare per spostare la vista, ruotare la rotellina per lo zoom.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>&amp;Limita l&apos;area di disegno al documento</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Rasterizza livello</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Nuvola</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Rigonfiamento</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Unione livelli</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Scegli colore</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Conversione forma in tracciato</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Ritaglio immagine</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>&amp;Debug</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>Opzioni di &amp;runtime</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>Codec HEVC &amp;mancante</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>Ante&amp;prime delle finestre di dialogo</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>Aiuto HEIF</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Avanzamento del salvataggio</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Riavvio per cambio lingua</translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation>Diamante</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticale</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>Mostra i limiti del &amp;documento</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Dimensioni documento</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Adatta documento al contenuto</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Scegli colore di sfondo del documento</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Colore di sfondo</translation>
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
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Annulla: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Ripeti: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>Ellisse</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>Rotondità</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Centro</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Impostazioni di esportazione</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
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
        <translation>WebP, trasparente</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, trasparente</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>Questa immagine contiene trasparenza. Scegliere un formato con sfondo trasparente per conservarla.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Mantieni le proporzioni</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Qualità in percentuale</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>Compressione PNG</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>File del documento senza perdita</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Conserva ogni pixel del documento modificabile, in un file più grande.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Dimensione stimata dell&apos;immagine:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Calcolo in corso…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Non disponibile</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>Insieme all&apos;immagine viene salvato un documento Zelmora modificabile (.zelmora).</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Salva…</translation>
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
        <translation>Codifica dell&apos;anteprima…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>Caricamento dell&apos;anteprima…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Mostra l&apos;immagine intera</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Mostra l&apos;immagine a dimensioni reali</translation>
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
        <translation>alfa, dissolvenza, sfumatura, trasparente</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modalità</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineare</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>Radiale</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Dissolvenza</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Posiziona dissolvenza</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Colore dissolvenza</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensità</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Morbidezza</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverti</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Colore del documento</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Dissolvenza</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuovo</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Nuovo documento</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Apri…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Apri un documento o un&apos;immagine</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Salva immagine e documento</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Salva &amp;con nome…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Aggiungi rumore</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Sfocatura a riquadro</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Regolazione colore</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Colora</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Dissolvenza</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Sfocatura gaussiana</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Scala di grigi</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Alte luci in alfa</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Ombra interna</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Effetto pixel</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Rilievo</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Contorni di Sobel</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Smusso morbido</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Copia texture</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Mappatura tonale</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Riflesso nell&apos;acqua</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>Semicerchio</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>Mezzaluna</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Cuore</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Lobi</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Incavo</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Punta</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier sul &amp;Web</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>&amp;Informazioni su Zelmora Atelier</translation>
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
        <translation>Il supporto HEIC/HEIF non è disponibile</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Installare il pacchetto kimageformat6-plugins, che fornisce a Qt un lettore HEIF, e riavviare Zelmora Atelier.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>Estensioni immagine HEIF</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>Estensioni video HEVC</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation>Livello di disegno</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Livello</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensioni</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>Ispettore</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>Ling&amp;ua</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>Riavviare Zelmora Atelier per rendere effettive tutte le modifiche.</translation>
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
        <translation>&amp;Immagine</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Inserisci un&apos;immagine come nuovo livello</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Inserisci immagine di &amp;esempio</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Testo</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Inserisci un livello di testo</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Forma</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Inserisci una forma o un adesivo</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>&amp;Nuovo livello di disegno</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Mostra livello</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Nascondi livello</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>Sposta livello in &amp;alto</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Sposta livello in &amp;basso</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>&amp;Rimuovi livello</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>Rasteri&amp;zza livello</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>&amp;Unisci con il livello sottostante</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Di base</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Bordi</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Colore, tono, effetti</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Trasferimenti di stile</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Cornici</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Fotomontaggi, divertimento &amp; arte</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>Glitter &amp; strass</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effetto</translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacità</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Metodo di fusione</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Metodo di fusione</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Livelli</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Livello</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Selezionare un livello per gestirlo.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Livelli</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Ancora nessun livello.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Livello %1, nascosto</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Livello %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>Contiene una selezione di pixel</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Mostra livello</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Nascondi livello</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>Unisci con il livello sottostante</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Aspetto del livello</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensioni</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
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
        <translation>Fulmine</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Curvatura</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Mostra nel Finder</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Mostra in Esplora file</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Immagine esportata in %1.
Documento modificabile salvato come %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Impossibile aprire la cartella che contiene l&apos;immagine.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Attendere il completamento del salvataggio in corso.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Selezione</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Righelli</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>Posizio&amp;ne dell&apos;ispettore</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Livello</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Inserisci</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Immagine…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Testo</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;Forma…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Barra degli strumenti principale</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Altri modi per salvare</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Altro della cronologia</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Inserisci:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Spostamento livello in alto</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Spostamento livello in basso</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Schermo</translation>
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
        <translation>Social</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrato</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Storia</translation>
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
        <translation>Stampa, 300 ppi</translation>
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
        <translation>Lettera</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>Nuovo documento</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Predefiniti</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 megapixel</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensioni</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Scambia larghezza e altezza</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Bianco</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Trasparente</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Scegli colore di sfondo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crea</translation>
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
        <translation>%1, %2 per %3 pixel</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Licenze</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Errore dello shader</translation>
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
Risorsa: %3
Destinazione: %4
Log:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>vertice</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>frammento</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;nessuno&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;log del compilatore vuoto&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>Compilazione del vertex shader non riuscita</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Compilazione del fragment shader non riuscita</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Impossibile caricare lo shader</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>Programma: %1
Destinazione vertex: %2
Destinazione fragment: %3
Log:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;log del linker vuoto&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Collegamento dello shader non riuscito</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>Impossibile aprire %1: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Shader QSB serializzato non valido: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>Nessuna variante GLSL compatibile in %1. Tentativi: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Disegno sull&apos;immagine</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Macchia di vernice</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lunghezza</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Punte</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Scegli</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Nessun elemento corrispondente.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>Categorie</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>Poligono</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Lati</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Apri &amp;recenti</translation>
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
        <translation>Rimozione di %1</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>oggetto</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>Nome del livello</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Ridenominazione oggetto</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Rasterizzazione livello</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Ridimensionamento immagine</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Ridimensionamento testo</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>Rombo</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Orizzontale</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticale</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>Nastro</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondità</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>Rettangolo</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
</context>
<context>
    <name>SceneObjectAdapter</name>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Moltiplica</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Scolora</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Sovrapponi</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Scurisci</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Schiarisci</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Scherma colore</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Brucia colore</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Luce intensa</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Luce soffusa</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenza</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Esclusione</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tonalità</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Luminosità</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>Selezione &amp;rettangolare</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Crea una selezione di pixel rettangolare</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>Selezione &amp;ellittica</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Crea una selezione di pixel ellittica</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>&amp;Bacchetta magica</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Seleziona un&apos;area di colore contigua</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>Selezione &amp;poligonale</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Modifica il tracciato della selezione di pixel</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>Deseleziona i pixel</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>&amp;Inverti selezione di pixel</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>E&amp;strai selezione in un nuovo livello</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>&amp;Deseleziona pixel</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Modifica sfondo del documento</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Modifica metodo di fusione</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Visualizzazione livello</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Occultamento livello</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Inserisci forma o adesivo</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Cerca forme e adesivi</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Nessuna forma o adesivo corrispondente.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inserisci</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>maschera, scontorno, ritaglio, forma</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Posiziona forma</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contorno</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Sfumatura</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverti</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Editor di forme</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Ritaglia con forma</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Scudo</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punta</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Selezionare un livello per modificarne la trasformazione.</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometria</translation>
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
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Mantieni proporzioni</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Rifletti</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Rifletti orizzontalmente</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Rifletti verticalmente</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>Perno X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Perno Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Inclina</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Avvia inclinazione</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Inclinazione X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Inclinazione Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Cambia unità delle dimensioni</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Fumetto</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Punta</translation>
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
        <translation>Macchia</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Stella</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Punte</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Arrotondamento</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>Barra di stato</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>Livello: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Nessun livello selezionato</translation>
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
        <translation>Testo</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>Impossibile registrare il pacchetto di risorse texture: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Percorso immagine texture non sicuro rifiutato: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Immagine texture non trovata: %1 (ricerca in: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>errore sconosciuto del decodificatore di immagini</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>Impossibile caricare l&apos;immagine texture %1 da %2: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Percorso dati texture non sicuro rifiutato: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Dati texture non trovati: %1 (ricerca in: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Dati texture non trovati per alcun candidato: %1 (ricerca in: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>errore di lettura sconosciuto</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>il file è vuoto</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>Impossibile leggere i dati texture %1 da %2: %3</translation>
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
        <translation>Nuvoletta di pensiero</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Punta</translation>
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
        <translation>&amp;Seleziona</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Seleziona i livelli</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>Inc&amp;lina</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>Inclina il livello selezionato</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>Rita&amp;glia</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>Ritaglia il livello selezionato</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Tracciato</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Modifica il tracciato della forma selezionata o disegna un nuovo tracciato</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Disegna</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Disegna a mano libera con il pennello</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Cancella</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Cancella pixel dal livello selezionato</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>Cl&amp;ona</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Clona pixel</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>&amp;Esposizione</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Schiarisci o scurisci i pixel con il pennello Esposizione</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>&amp;Riempi selezione</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Riempi la selezione di pixel attiva</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Triangolo</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Lati</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>Salvare le modifiche prima di uscire?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>Salvare le modifiche prima di creare un nuovo documento?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>Salvare le modifiche prima di aprire un altro documento?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>Questo documento contiene modifiche non salvate. Uscendo senza salvare, le modifiche andranno perse.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>Questo documento contiene modifiche non salvate. Creando un nuovo documento senza salvare, le modifiche andranno perse.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>Questo documento contiene modifiche non salvate. Aprendo un altro documento senza salvare, le modifiche andranno perse.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Esci comunque</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Crea comunque</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Apri comunque</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ingr&amp;andisci</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ridu&amp;ci</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>Adatta alla &amp;finestra</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>Dimensioni r&amp;eali</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>&amp;Schermo intero</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>Area di disegno &amp;illimitata</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Nascosti</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>In &amp;alto e a sinistra</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>In &amp;basso e a destra</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>A &amp;sinistra</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>A &amp;destra</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Sistema</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Chiaro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>Sc&amp;uro</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Ripristina zoom al 100%</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>Vignetta</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raggio angoli</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Apri documento o immagine</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Tutti i file supportati (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Tutti i file immagine (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Documenti Zelmora (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Inserisci livello immagine</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Salva immagine con nome</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Impossibile aprire il file</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Impossibile inserire l&apos;immagine</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Impossibile salvare l&apos;immagine</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Salvataggio…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>Il file .zelmora è troncato o illeggibile: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>Impossibile decodificare una sezione di livello .zelmora.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>Il file .zelmora contiene un ID di livello duplicato.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>La prima sezione .zelmora non contiene le proprietà del documento.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>La sezione delle proprietà del documento ha una dimensione non valida.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>La versione dei dati delle proprietà del documento non è supportata.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Un&apos;intestazione di sezione .zelmora non è valida.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Questo non è un documento .zelmora.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Questa versione del formato .zelmora non è supportata.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>Le dimensioni del documento .zelmora non sono valide.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>Il numero di sezioni .zelmora non è valido.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>Il file .zelmora contiene proprietà del documento duplicate.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>Il dispositivo di origine non è leggibile.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>Il file .zelmora contiene dati in eccesso alla fine.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>Impossibile scrivere il file .zelmora: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>Una sezione .zelmora è troppo grande.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>Il documento contiene un oggetto di scena non supportato.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>Il documento contiene un ID di livello duplicato.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>Il dispositivo di destinazione non è scrivibile.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>Le dimensioni del documento non possono essere memorizzate nel formato .zelmora.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>Il documento contiene troppi livelli.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>memoria esaurita</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>memoria esaurita durante la scrittura del flusso di bit</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>manca un parametro obbligatorio del codificatore</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>la configurazione del codificatore non è valida</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>le dimensioni dell&apos;immagine non sono valide</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>una partizione del codificatore è troppo grande</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>impossibile scrivere i dati codificati</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>l&apos;immagine codificata è troppo grande</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>la codifica è stata annullata</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>errore sconosciuto del codificatore (codice %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Un&apos;immagine non può essere rappresentata come WebP.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>Impossibile inizializzare il codificatore WebP.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>La configurazione del codificatore WebP non è valida.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>Impossibile preparare l&apos;immagine per la codifica WebP.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>Impossibile preparare l&apos;immagine per la codifica WebP: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>Impossibile codificare il WebP: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>Il codificatore WebP non ha prodotto dati.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>L&apos;immagine WebP codificata è troppo grande.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Un&apos;immagine WebP incorporata ha dimensioni non valide.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Impossibile aprire un&apos;immagine incorporata.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>Impossibile decodificare il WebP: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Un&apos;immagine non può essere rappresentata come dati RGBA grezzi.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Un&apos;immagine RGBA grezza ha dimensioni non valide.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Un&apos;immagine RGBA grezza ha una lunghezza in byte non valida.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Impossibile allocare un&apos;immagine RGBA grezza.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>Un riempimento sfumato usa un tipo non supportato.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>Un riempimento sfumato ha una posizione non valida.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>Un riempimento sfumato ha un numero di interruzioni non valido.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>Un riempimento sfumato ha un&apos;interruzione di colore non valida.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>Un riempimento usa una mappatura texture non supportata.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>Un riempimento texture ha una trasformazione non valida.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Un ID di generatore di riempimento è troppo lungo.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>Un riempimento in tinta unita contiene dati imprevisti.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>Un record di riempimento texture non è valido.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>Un blocco di parametri texture contiene dati in eccesso alla fine.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>La trasformazione o la dimensione di un riempimento texture non è valida.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>Un record di riempimento sfumato non è valido.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>Un record di riempimento è troncato o non valido.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>Un riempimento usa una mappatura texture sconosciuta.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Un filtro ha un ID di istanza nullo.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>Un record di filtro è troncato o non valido.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>Un blocco di parametri del filtro contiene dati in eccesso alla fine.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Un ID di generatore di forme è vuoto o troppo lungo.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>Un record di forma parametrica non è valido.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Un ID di generatore di forme è vuoto.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>Una forma parametrica contiene dati in eccesso alla fine.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>Una forma usa un tipo di geometria sconosciuto.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Un livello SVG non ha dati di origine.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Un livello immagine non ha un&apos;origine supportata.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>Una selezione di pixel deve essere un tracciato modificabile.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Un livello di pixel ha dimensioni in pixel non valide.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Un livello SVG contiene dimensioni in pixel.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Un livello SVG contiene dati SVG non validi.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Un livello immagine usa una codifica di origine sconosciuta.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Un livello immagine ha dimensioni o dati non validi.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>I dati di un livello immagine non sono validi.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Un livello immagine ha un criterio di superficie in pixel sconosciuto.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>Il documento contiene un tipo di livello non supportato.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>Una sezione non è un tipo di livello supportato.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Un livello ha troppi filtri.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>Un livello contiene un ID di istanza di filtro duplicato.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Un livello ha proprietà di identità o trasformazione non valide.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Un nome di livello o un ID di metodo di fusione è troppo lungo.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>Un tipo di livello non corrisponde al suo contenuto.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>Una sezione di livello è troppo grande.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>Un&apos;intestazione dei dati di livello non è valida.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Un livello ha un ID di metodo di fusione vuoto.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>Una sezione di livello contiene dati in eccesso alla fine.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Impossibile ripristinare la pila di filtri di un livello.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>Un valore stringa di un parametro è troppo lungo.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>Un elenco di luci contiene troppe luci.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>Un parametro di risorsa ha una lunghezza in byte non valida.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>Un parametro booleano non è valido.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>Un parametro reale non è finito.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>Un parametro contiene un numero non finito.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>Un parametro di risorsa deve essere un nome di file, non un percorso.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>Un parametro di colore attivabile non è valido.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>Un parametro di traccia non è valido.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>Una traccia contiene uno spessore non valido.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>Un parametro di sfumatura non è valido.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>Una sfumatura contiene una posizione non finita.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>Una trasformazione di maschera non è valida.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>Una maschera contiene una trasformazione non finita.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>Un parametro di elenco di luci non è valido.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>Un elenco di luci contiene una luce non valida.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>Il file .zelmora usa un tipo di parametro sconosciuto.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>Un valore di parametro ha una lunghezza in byte non valida.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>Una chiave di parametro è duplicata.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>Una raccolta di parametri è troppo grande.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Un&apos;intestazione di parametro è troncata.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>Un valore di parametro è troncato.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>Un nodo di tracciato modificabile non è valido.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>Un ID di nodo di tracciato modificabile è duplicato.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>Un nodo di tracciato modificabile usa un tipo sconosciuto.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>Un contorno di tracciato modificabile non è valido.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>Un tracciato modificabile ha troppi contorni.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>Un contorno di tracciato modificabile ha troppi nodi.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>Un record di tracciato modificabile non è valido.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>Un tracciato modificabile contiene dati in eccesso alla fine.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>Il file .zelmora contiene un colore non valido.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>Il file .zelmora contiene un identificatore di oggetto nullo.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>Una chiave di registro non è ASCII a 7 bit valido.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>Una chiave di registro è vuota o non termina con un carattere nullo.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>Una chiave di registro ha un riempimento diverso da zero.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>Una chiave di filtro o parametro non rientra nel suo campo di 32 byte.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Le chiavi di filtro e parametro devono usare ASCII a 7 bit.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>Un record .zelmora supera il limite di dimensione a 32 bit.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Un livello forma ha dimensioni o traccia non valide.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>I dati di un livello forma non sono validi.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>I dati di un livello forma sono troncati.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Un paragrafo di testo non è valido.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Un paragrafo di testo usa un allineamento non supportato.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Un paragrafo di testo usa una direzione non supportata.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>Un record di paragrafo di testo non è valido.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Un paragrafo di testo usa un allineamento sconosciuto.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Un paragrafo di testo usa una direzione sconosciuta.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>Un paragrafo di testo contiene dati in eccesso alla fine.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Un livello di testo ha dimensioni non valide o troppi paragrafi.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>I dati di un livello di testo non sono validi.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>Un livello di testo contiene dati in eccesso alla fine.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Un segmento di testo è troppo lungo.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>Un record di famiglia di caratteri non è valido.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>Un blocco di famiglie di caratteri contiene dati in eccesso alla fine.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Un segmento di testo usa uno stile di carattere sconosciuto.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Un segmento di testo usa una modalità di maiuscole sconosciuta.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Un segmento di testo usa una modalità di spaziatura tra lettere sconosciuta.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Un segmento di testo usa una modalità di hinting dei caratteri sconosciuta.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Un segmento di testo non ha una dimensione del carattere valida.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Un segmento di testo ha troppe famiglie di caratteri.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Un segmento di testo ha proprietà numeriche del carattere non valide.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>Un record di segmento di testo non è valido.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Un segmento di testo è troncato.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>Impossibile aprire %1 in lettura: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>Impossibile aprire %1 in scrittura: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>La destinazione non è un file normale.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>Impossibile completare la scrittura di %1: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Cancella</translation>
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
        <translation>Impossibile sostituire il documento corrente.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Scegliere un file esistente.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Impossibile aprire il file immagine selezionato.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>Impossibile caricare l&apos;immagine SVG selezionata.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows non è riuscito a decodificare l&apos;immagine HEIC/HEIF selezionata.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Impossibile caricare il file immagine selezionato.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>L&apos;immagine selezionata non ha dimensioni utilizzabili.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Impossibile creare un documento dall&apos;immagine selezionata.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Senza titolo</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Inserire una larghezza e un&apos;altezza valide.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Impossibile creare un nuovo documento.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Sono supportati solo i file locali.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Scegliere un nome di file prima di salvare il documento.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Ridimensionamento documento</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Adattamento documento al contenuto</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Spostamento oggetto</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Scegliere un file immagine esistente.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier non è riuscito a caricare l&apos;immagine selezionata.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Sono supportati solo i file immagine locali.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>Impossibile aggiungere l&apos;immagine selezionata al documento.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Esempio Zelmora</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier non è riuscito a caricare l&apos;immagine di esempio.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>Impossibile aggiungere l&apos;immagine di esempio al documento.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Tracciato</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Un filtro di trasferimento di stile attivo non può ancora essere esportato. Disattivare o rimuovere il filtro prima di esportare.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Impossibile codificare l&apos;anteprima: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>Impossibile codificare l&apos;immagine salvata: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>Impossibile creare il buffer di immagine in memoria.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>Impossibile eseguire il rendering dell&apos;immagine.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>Impossibile riaprire il buffer di immagine in memoria.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Impossibile decodificare l&apos;anteprima codificata: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>Immagini JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>Immagini WebP (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>Immagini PNG (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>La destinazione non è un file normale.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>Impossibile salvare l&apos;immagine: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Attendere il completamento del salvataggio in corso.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>L&apos;anteprima dell&apos;immagine non è pronta.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Sono supportate solo destinazioni di salvataggio locali.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>L&apos;estensione del nome di file non corrisponde al formato immagine selezionato: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Scegliere un nome di file per l&apos;immagine.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>L&apos;immagine è stata salvata, ma non è stato possibile salvare il file .zelmora modificabile: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Scegliere le impostazioni di salvataggio prima di salvare questa immagine.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Chiudere la finestra Impostazioni di esportazione prima di salvare.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Impossibile salvare il file .zelmora modificabile: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>Il codificatore non ha prodotto un&apos;immagine.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>Il file .zelmora modificabile è stato salvato, ma non è stato possibile aggiornare l&apos;immagine: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Impossibile aprire la cartella che contiene l&apos;immagine.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Disegno</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>Identificatore SPDX: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Testo completo su Debian: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Note di copyright su Debian: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>Licenza MIT</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, versione 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Disegna l&apos;interfaccia e legge e scrive la maggior parte dei formati immagine. Collegato dinamicamente, in modo da poter essere sostituito: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs e i plug-in per i formati immagine.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt include o usa opere di terzi, tra cui FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 e zlib. Le relative note si trovano insieme a quelle di Qt.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>Licenza BSD a 3 clausole</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Codifica le immagini nei documenti e i file WebP esportati. Collegato dinamicamente, con il suo componente libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Individua l&apos;OpenGL del driver grafico, che non fa parte di questo programma. Collegato dinamicamente.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, versione 3 o successiva, con l&apos;eccezione per la libreria di runtime GCC</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>La libreria standard C++ e le routine di supporto del compilatore, collegate dinamicamente. L&apos;eccezione ne consente l&apos;uso a programmi con qualsiasi licenza.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, versione 2.1 o successiva</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>La libreria C di sistema, collegata dinamicamente.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Modifica opacità</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Rotazione oggetto</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Spostamento oggetto</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Inclinazione oggetto</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Impostazione perno di trasformazione</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Ridimensionamento oggetto</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Riflessione orizzontale</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Riflessione verticale</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>Di base</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dinamiche</translation>
    </message>
</context>
</TS>
