<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fil" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Bersyon %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Mga Lisensya</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>Walang file manager na makapagpapakita sa folder ng log.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Buksan ang Folder ng Log</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Isara</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>Idagdag ang %1</translation>
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
        <translation>Arrow</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Dulo</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Buntot</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>Pagsabog</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Mga Sinag</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Lalim</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>Abala</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Abala</translation>
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
        <translation>Ang dokumento. I-drag para ilipat ang view, paikutin ang gulong para mag-zoom.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>&amp;Limitahan ang Canvas sa Dokumento</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>I-rasterize ang Layer</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Ulap</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Anyo</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Pagkaalsa</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Pagsamahin ang mga Layer</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Pumili ng Kulay</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Gawing Path ang Hugis</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>I-crop ang Larawan</translation>
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
        <translation>Mga &amp;Runtime Flag</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>&amp;Walang HEVC Codec</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>Mga &amp;Preview ng Dialog</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>Tulong sa HEIF</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Progreso ng Pag-save</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Pag-restart para sa Wika</translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation>Diyamante</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Pahalang</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Patayo</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>Ipakita ang &amp;Hangganan ng Dokumento</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Laki ng Dokumento</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Lapad</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Taas</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Iangkop ang Dokumento sa Nilalaman</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kulay</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Pumili ng Kulay ng Background ng Dokumento</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Kulay ng background</translation>
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
        <translation>&amp;I-undo</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>I-undo: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>I-undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>I-&amp;redo</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>I-redo: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>I-redo</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>I-cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopyahin</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>I-&amp;paste</translation>
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
        <translation>Pagkabilog</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Gitna</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Mga Setting ng Pag-export</translation>
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
        <translation>May transparency ang larawang ito. Pumili ng format na may transparent na background para mapanatili ito.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Lapad</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Panatilihin ang proporsyon</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Taas</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kalidad</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Kalidad sa porsiyento</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>PNG compression</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Lossless na file ng dokumento</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Pinapanatili ang bawat pixel ng nae-edit na dokumento, sa mas malaking file.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Tinatayang Laki ng Larawan:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Kinakalkula…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Hindi available</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>May sine-save na nae-edit na dokumento ng Zelmora (.zelmora) kasama ng larawan.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Kanselahin</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>I-save…</translation>
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
        <translation>Ine-encode ang preview…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>Nilo-load ang preview…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Mag-zoom out</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Mag-zoom in</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Pagkasyahin</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Ipakita ang buong larawan</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Ipakita ang larawan sa sarili nitong laki</translation>
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
        <translation>alpha, fade, gradient, transparent</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
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
        <translation>Fade</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Iposisyon ang Fade</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Kulay ng fade</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Lakas</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurba</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Lambot</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Baligtarin</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Kulay ng dokumento</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>I-fade Out</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Bago</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Bagong dokumento</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>B&amp;uksan…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Magbukas ng dokumento o larawan</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;I-save</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>I-save ang larawan at dokumento</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>I-s&amp;ave Bilang…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Lumabas</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Magdagdag ng noise</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Box blur</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Ayusin ang kulay</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Kulayan</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>I-fade out</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Gaussian blur</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Grayscale</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Gawing alpha ang highlights</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Panloob na anino</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>I-pixelate</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Iangat</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Sobel edge</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Malambot na bevel</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Kopya ng texture</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Tone map</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Repleksyon sa tubig</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>Kalahating Bilog</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>Gasuklay</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Puso</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Mga Umbok</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Hati</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Dulo</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier sa &amp;Web</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>&amp;Tungkol sa Zelmora Atelier</translation>
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
        <translation>Hindi Available ang Suporta sa HEIC/HEIF</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>I-install ang package na kimageformat6-plugins, na nagbibigay sa Qt ng HEIF reader, at simulan muli ang Zelmora Atelier.</translation>
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
        <translation>Dokumento</translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation>Paint Layer</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Larawan</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Hugis</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Laki</translation>
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
        <translation>Wi&amp;ka</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>I-restart ang Zelmora Atelier para magkabisa ang lahat ng pagbabago.</translation>
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
        <translation>&amp;Larawan</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Maglagay ng larawan bilang bagong layer</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Maglagay ng &amp;Halimbawang Larawan</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Maglagay ng text layer</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Hugis</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Maglagay ng hugis o sticker</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>Bagong Pai&amp;nt Layer</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Ipakita ang Layer</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Itago ang Layer</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>Ilipat Pataas ang &amp;Layer</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Ilipat Paba&amp;ba ang Layer</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>&amp;Alisin ang Layer</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>I-&amp;rasterize ang Layer</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>I-&amp;merge sa Layer sa Ibaba</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Mga Pangunahin</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Mga Gilid</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Kulay, Tono at FX</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Mga Style Transfer</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Mga Frame</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Photomontage, Katuwaan &amp; Sining</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>Glitter &amp; Bling</translation>
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
        <translation>Pangalan</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Blend Mode</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Blend mode</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Mga Layer</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Palitan ang Pangalan</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Pumili ng layer para pamahalaan ito.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Mga Layer</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Wala pang layer.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Layer na %1, nakatago</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Layer na %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>May raster na seleksyon</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Ipakita ang layer</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Itago ang layer</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>I-merge sa layer sa ibaba</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Itsura ng layer</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Uri</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Laki</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posisyon</translation>
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
        <translation>Kidlat</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Baluktot</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Ipakita sa Finder</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Ipakita sa Explorer</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Na-export ang larawan sa %1.
Na-save ang nae-edit na dokumento bilang %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Hindi mabuksan ang folder na naglalaman ng larawan.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Hintaying matapos ang kasalukuyang pag-save.</translation>
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
        <translation>&amp;I-edit</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Pumili</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Tingnan</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>Mga &amp;Ruler</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>Posisyon ng I&amp;nspector</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Layer</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Ilagay</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Larawan…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;Hugis…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>T&amp;ulong</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Pangunahing tool bar</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Iba pang paraan ng pag-save</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Higit pa sa history</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Ilagay:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Ilipat Pataas ang Layer</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Ilipat Pababa ang Layer</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Screen</translation>
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
        <translation>Parisukat</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Story</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Litrato</translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation>Litrato 3:2</translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation>Litrato 4:3</translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation>Print, 300 ppi</translation>
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
        <translation>Bagong Dokumento</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Mga Preset</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 megapixel</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Laki</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Lapad</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Pagpalitin ang lapad at taas</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Taas</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Puti</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Itim</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Pumili ng Kulay ng Background</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Kanselahin</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Gumawa</translation>
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
        <translation>%1, %2 por %3 pixel</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Mga Lisensya</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Error sa shader</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Program: %1
Yugto: %2
Resource: %3
Target: %4
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
        <translation>&lt;wala&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;walang laman ang log ng compiler&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>Hindi na-compile ang vertex shader</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Hindi na-compile ang fragment shader</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Hindi ma-load ang shader</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>Program: %1
Target ng vertex: %2
Target ng fragment: %3
Log:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;walang laman ang log ng linker&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Hindi na-link ang shader</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>Hindi mabuksan ang %1: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Hindi valid na serialized QSB shader: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>Walang compatible na GLSL variant sa %1. Sinubukan: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Pintahan ang Larawan</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Patak ng Pintura</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Anyo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Haba</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Mga Tulis</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Maghanap</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Piliin</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Walang tumutugmang item.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Kanselahin</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>Mga Kategorya</translation>
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
        <translation>Mga Gilid</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Buksan ang &amp;Kamakailan</translation>
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
        <translation>Alisin ang %1</translation>
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
        <translation>Pangalan ng layer</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Palitan ang Pangalan ng Object</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>I-rasterize ang Layer</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Baguhin ang Laki ng Larawan</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Baguhin ang Laki ng Text</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>Rhombus</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Pahalang</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Patayo</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>Laso</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Anyo</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Lalim</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>Parihaba</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
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
        <translation>Multiply</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Screen</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Overlay</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Darken</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Lighten</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Color Dodge</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Color Burn</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Hard Light</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Soft Light</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Exclusion</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Hue</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Luminosity</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>&amp;Parihabang Seleksyon</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Gumawa ng parihabang raster na seleksyon</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>&amp;Eliptikong Seleksyon</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Gumawa ng eliptikong raster na seleksyon</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>Seleksyong &amp;Magic Wand</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Pumili ng magkakadikit na bahaging may parehong kulay</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>Seleksyong Pol&amp;ygon</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>I-edit ang path ng raster na seleksyon</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>I-clear ang raster na seleksyon</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>&amp;Baligtarin ang Raster na Seleksyon</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>I-e&amp;xtract ang Seleksyon sa Bagong Layer</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>I-&amp;clear ang Raster na Seleksyon</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Baguhin ang Background ng Dokumento</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Baguhin ang Blend Mode</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Ipakita ang Layer</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Itago ang Layer</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Maglagay ng Hugis o Sticker</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Maghanap ng mga hugis at sticker</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Walang tumutugmang hugis o sticker.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Ilagay</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>mask, gupit, crop, hugis</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posisyon</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Iposisyon ang Hugis</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Hugis</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Balangkas</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Feather</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Baligtarin</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Editor ng Hugis</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Gupitin sa Hugis</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Kalasag</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Anyo</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Tulis</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Pumili ng layer para i-edit ang transform nito.</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometry</translation>
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
        <translation>Lapad</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Taas</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Panatilihin ang Aspect Ratio</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>I-flip</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>I-flip nang Pahalang</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>I-flip nang Patayo</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Anggulo</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>deg</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>Pivot X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Pivot Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Skew</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Simulan ang skew</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Skew X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Skew Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Palitan ang unit ng laki</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Usapan</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Pointer</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Anyo</translation>
    </message>
</context>
<context>
    <name>SplodgeShapeGenerator</name>
    <message>
        <source>Splodge</source>
        <translation>Mantsa</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Anyo</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Bituin</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Mga Tulis</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Dulo</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>Status bar</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>Layer: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Walang napiling layer</translation>
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
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>Hindi mairehistro ang resource bundle ng texture: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Tinanggihan ang hindi ligtas na path ng larawan ng texture: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Hindi nahanap ang larawan ng texture: %1 (hinanap sa: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>hindi kilalang error ng image decoder</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>Hindi ma-load ang larawan ng texture na %1 mula sa %2: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Tinanggihan ang hindi ligtas na path ng data ng texture: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Hindi nahanap ang data ng texture: %1 (hinanap sa: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Hindi nahanap ang data ng texture para sa alinmang kandidato: %1 (hinanap sa: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>hindi kilalang error sa pagbasa</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>walang laman ang file</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>Hindi mabasa ang data ng texture na %1 mula sa %2: %3</translation>
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
        <translation>Kaisipan</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Dulo</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Anyo</translation>
    </message>
</context>
<context>
    <name>ToolModeActions</name>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Pumili</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Pumili ng mga layer</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>I-&amp;skew</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>I-skew ang napiling layer</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>I-&amp;crop</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>I-crop ang napiling layer</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>P&amp;ath</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>I-edit ang path ng napiling hugis, o gumuhit ng bagong path</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Gumuhit</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Gumuhit gamit ang freehand brush</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Burahin</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Burahin ang mga pixel sa napiling layer</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>I-c&amp;lone</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Mag-clone ng mga pixel</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>E&amp;xposure</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Paliwanagin o padilimin ang mga pixel gamit ang Exposure brush</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>Pu&amp;nan ang Seleksyon</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Punan ang aktibong raster na seleksyon</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Mga Tool</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Tatsulok</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Mga Gilid</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radius ng Sulok</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>I-save ang mga pagbabago bago lumabas?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>I-save ang mga pagbabago bago gumawa ng bagong dokumento?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>I-save ang mga pagbabago bago magbukas ng ibang dokumento?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>May mga hindi na-save na pagbabago ang dokumentong ito. Kung lalabas ka nang hindi nagse-save, mawawala ang iyong mga pagbabago.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>May mga hindi na-save na pagbabago ang dokumentong ito. Kung gagawa ka ng bagong dokumento nang hindi nagse-save, mawawala ang iyong mga pagbabago.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>May mga hindi na-save na pagbabago ang dokumentong ito. Kung magbubukas ka ng ibang dokumento nang hindi nagse-save, mawawala ang iyong mga pagbabago.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Lumabas Pa Rin</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Gumawa Pa Rin</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Buksan Pa Rin</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Kanselahin</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>I-save</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Mag-zoom &amp;In</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Mag-zoom &amp;Out</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>&amp;Pagkasyahin sa View</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Aktuwal na Laki</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>F&amp;ull Screen</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>&amp;Walang-limitasyong Canvas</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Naka-off</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>&amp;Itaas at Kaliwa</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>I&amp;baba at Kanan</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>Ka&amp;liwa</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>Ka&amp;nan</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Maliwanag</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>Ma&amp;dilim</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Mag-zoom in</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Mag-zoom out</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>I-reset ang zoom sa 100%</translation>
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
        <translation>Radius ng Sulok</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Magbukas ng Dokumento o Larawan</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Lahat ng suportadong file (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Lahat ng file ng larawan (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Mga dokumento ng Zelmora (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Lahat ng file (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Maglagay ng Layer ng Larawan</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>I-save ang Larawan Bilang</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>I-save</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Hindi Mabuksan ang File</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Hindi Mailagay ang Larawan</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Hindi Ma-save ang Larawan</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Sine-save…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>Putol o hindi mabasa ang .zelmora file: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>Hindi ma-decode ang isang seksyon ng layer ng .zelmora.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>May nadobleng layer ID ang .zelmora file.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>Hindi mga property ng dokumento ang unang seksyon ng .zelmora.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>Hindi valid ang laki ng seksyon ng mga property ng dokumento.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>Hindi suportado ang bersyon ng data ng mga property ng dokumento.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Hindi valid ang isang header ng seksyon ng .zelmora.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Hindi ito .zelmora na dokumento.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Hindi suportado ang bersyong ito ng .zelmora format.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>Hindi valid ang mga sukat ng .zelmora na dokumento.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>Hindi valid ang bilang ng seksyon ng .zelmora.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>May nadobleng mga property ng dokumento ang .zelmora file.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>Hindi nababasa ang source device.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>May sobrang data sa dulo ang .zelmora file.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>Hindi maisulat ang .zelmora file: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>Masyadong malaki ang isang seksyon ng .zelmora.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>May hindi suportadong scene object ang dokumento.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>May nadobleng layer ID ang dokumento.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>Hindi nasusulatan ang destination device.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>Hindi maiimbak sa .zelmora format ang mga sukat ng dokumento.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>Masyadong maraming layer ang dokumento.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>ubos na ang memory</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>naubos ang memory habang isinusulat ang bitstream</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>kulang ng isang kinakailangang parameter ng encoder</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>hindi valid ang configuration ng encoder</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>hindi valid ang mga sukat ng larawan</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>masyadong malaki ang isang partition ng encoder</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>hindi maisulat ang na-encode na data</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>masyadong malaki ang na-encode na larawan</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>kinansela ang pag-encode</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>hindi kilalang error ng encoder (code %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Hindi maipapakita bilang WebP ang isang larawan.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>Hindi masimulan ang WebP encoder.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>Hindi valid ang configuration ng WebP encoder.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>Hindi maihanda ang larawan para sa pag-encode sa WebP.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>Hindi maihanda ang larawan para sa pag-encode sa WebP: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>Hindi ma-encode ang WebP: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>Walang nagawang data ang WebP encoder.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>Masyadong malaki ang na-encode na larawang WebP.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Hindi valid ang mga sukat ng isang naka-embed na WebP.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Hindi mabuksan ang isang naka-embed na larawan.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>Hindi ma-decode ang WebP: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Hindi maipapakita bilang raw RGBA data ang isang larawan.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Hindi valid ang mga sukat ng isang raw RGBA na larawan.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Hindi valid ang haba sa byte ng isang raw RGBA na larawan.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Hindi makapaglaan ng memory para sa raw RGBA na larawan.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>Gumagamit ng hindi suportadong uri ang isang gradient fill.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>Hindi valid ang posisyon ng isang gradient fill.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>Hindi valid ang bilang ng stop ng isang gradient fill.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>May hindi valid na color stop ang isang gradient fill.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>Gumagamit ng hindi suportadong texture mapping ang isang fill.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>Hindi valid ang transform ng isang texture fill.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Masyadong malaki ang isang generator ID ng fill.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>May hindi inaasahang data ang isang solid fill.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>Hindi valid ang isang record ng texture fill.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>May sobrang data sa dulo ang isang block ng parameter ng texture.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>Hindi valid ang transform o laki ng isang texture fill.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>Hindi valid ang isang record ng gradient fill.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>Putol o hindi valid ang isang record ng fill.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>Gumagamit ng hindi kilalang texture mapping ang isang fill.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Null ang instance ID ng isang filter.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>Putol o hindi valid ang isang record ng filter.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>May sobrang data sa dulo ang isang block ng parameter ng filter.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Walang laman o masyadong malaki ang isang generator ID ng hugis.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>Hindi valid ang isang record ng parametric na hugis.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Walang laman ang isang generator ID ng hugis.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>May sobrang data sa dulo ang isang parametric na hugis.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>Gumagamit ng hindi kilalang uri ng geometry ang isang hugis.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Walang source data ang isang SVG layer.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Walang suportadong source ang isang layer ng larawan.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>Dapat ay nae-edit na path ang isang raster na seleksyon.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Hindi valid ang mga sukat sa pixel ng isang raster layer.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>May mga sukat na raster ang isang SVG layer.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>May hindi valid na SVG data ang isang SVG layer.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Gumagamit ng hindi kilalang source encoding ang isang layer ng larawan.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Hindi valid ang mga sukat o data ng isang layer ng larawan.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>Hindi valid ang payload ng isang layer ng larawan.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Hindi kilala ang patakaran sa raster surface ng isang layer ng larawan.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>May hindi suportadong uri ng layer ang dokumento.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>Hindi suportadong uri ng layer ang isang seksyon.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Masyadong maraming filter ang isang layer.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>May nadobleng instance ID ng filter ang isang layer.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Hindi valid ang mga property ng pagkakakilanlan o transform ng isang layer.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Masyadong malaki ang pangalan ng layer o ID ng blend mode.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>Hindi tugma sa nilalaman ang isang uri ng layer.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>Masyadong malaki ang isang seksyon ng layer.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>Hindi valid ang header ng payload ng isang layer.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Walang laman ang ID ng blend mode ng isang layer.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>May sobrang data sa dulo ang isang seksyon ng layer.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Hindi maibalik ang filter stack ng isang layer.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>Masyadong malaki ang isang string value ng parameter.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>Masyadong maraming ilaw ang isang listahan ng ilaw.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>Hindi valid ang haba sa byte ng isang parameter ng asset.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>Hindi valid ang isang Boolean parameter.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>Hindi finite ang isang real parameter.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>May hindi finite na numero ang isang parameter.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>Dapat ay pangalan ng file, hindi path, ang isang parameter ng asset.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>Hindi valid ang isang parameter ng naka-enable na kulay.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>Hindi valid ang isang parameter ng stroke.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>May hindi valid na lapad ang isang stroke.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>Hindi valid ang isang parameter ng gradient.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>May hindi finite na posisyon ang isang gradient.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>Hindi valid ang isang transform ng mask.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>May hindi finite na transform ang isang mask.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>Hindi valid ang isang parameter ng listahan ng ilaw.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>May hindi valid na ilaw ang isang listahan ng ilaw.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>Gumagamit ng hindi kilalang uri ng parameter ang .zelmora file.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>Hindi valid ang haba sa byte ng isang value ng parameter.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>Nadoble ang isang key ng parameter.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>Masyadong malaki ang isang koleksyon ng parameter.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Putol ang isang header ng parameter.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>Putol ang isang value ng parameter.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>Hindi valid ang isang node ng nae-edit na path.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>Nadoble ang isang node ID ng nae-edit na path.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>Gumagamit ng hindi kilalang uri ang isang node ng nae-edit na path.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>Hindi valid ang isang contour ng nae-edit na path.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>Masyadong maraming contour ang isang nae-edit na path.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>Masyadong maraming node ang isang contour ng nae-edit na path.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>Hindi valid ang isang record ng nae-edit na path.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>May sobrang data sa dulo ang isang nae-edit na path.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>May hindi valid na kulay ang .zelmora file.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>May null na object identifier ang .zelmora file.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>Hindi valid na 7-bit ASCII ang isang registry key.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>Walang laman o hindi null-terminated ang isang registry key.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>May hindi zero na padding ang isang registry key.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>Hindi kasya sa 32-byte na field ang isang key ng filter o parameter.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Dapat gumamit ng 7-bit ASCII ang mga key ng filter at parameter.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>Lampas sa 32-bit na limitasyon sa laki ang isang record ng .zelmora.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Hindi valid ang mga sukat o stroke ng isang layer ng hugis.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>Hindi valid ang payload ng isang layer ng hugis.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>Putol ang payload ng isang layer ng hugis.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Hindi valid ang isang talata ng text.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Gumagamit ng hindi suportadong alignment ang isang talata ng text.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Gumagamit ng hindi suportadong direksyon ang isang talata ng text.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>Hindi valid ang isang record ng talata ng text.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Gumagamit ng hindi kilalang alignment ang isang talata ng text.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Gumagamit ng hindi kilalang direksyon ang isang talata ng text.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>May sobrang data sa dulo ang isang talata ng text.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Hindi valid ang mga sukat o masyadong maraming talata ang isang text layer.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>Hindi valid ang payload ng isang text layer.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>May sobrang data sa dulo ang isang text layer.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Masyadong malaki ang isang text run.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>Hindi valid ang isang record ng font family.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>May sobrang data sa dulo ang isang block ng font family.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Gumagamit ng hindi kilalang estilo ng font ang isang text run.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Gumagamit ng hindi kilalang capitalization mode ang isang text run.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Gumagamit ng hindi kilalang letter-spacing mode ang isang text run.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Gumagamit ng hindi kilalang font hinting mode ang isang text run.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Walang valid na laki ng font ang isang text run.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Masyadong maraming font family ang isang text run.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Hindi valid ang mga numerong property ng font ng isang text run.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>Hindi valid ang isang record ng text run.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Putol ang isang text run.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>Hindi mabuksan ang %1 para basahin: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>Hindi mabuksan ang %1 para sulatan: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Hindi regular na file ang target.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>Hindi natapos ang pagsulat ng %1: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>I-clear</translation>
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
        <translation>Hindi mapalitan ang kasalukuyang dokumento.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Pumili ng umiiral na file.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Hindi mabuksan ang napiling file ng larawan.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>Hindi ma-load ang napiling larawang SVG.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Hindi ma-decode ng Windows ang napiling larawang HEIC/HEIF.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Hindi ma-load ang napiling file ng larawan.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>Walang magagamit na laki ang napiling larawan.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Hindi makagawa ng dokumento mula sa napiling larawan.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Larawan</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Walang Pamagat</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Maglagay ng valid na lapad at taas.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Hindi makagawa ng bagong dokumento.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Mga lokal na file lang ang suportado.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Pumili ng pangalan ng file bago i-save ang dokumento.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Baguhin ang Laki ng Dokumento</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Iangkop ang Hangganan ng Dokumento sa Nilalaman</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Ilipat ang Object</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Pumili ng umiiral na file ng larawan.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Hindi ma-load ng Zelmora Atelier ang napiling larawan.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Mga lokal na file ng larawan lang ang suportado.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>Hindi maidagdag sa dokumento ang napiling larawan.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Halimbawa ng Zelmora</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Hindi ma-load ng Zelmora Atelier ang halimbawang larawan.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>Hindi maidagdag sa dokumento ang halimbawang larawan.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Path</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Hindi pa mae-export ang naka-enable na style transfer filter. I-disable o alisin ang filter bago mag-export.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Hindi ma-encode ang preview: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>Hindi ma-encode ang sine-save na larawan: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>Hindi malikha ang image buffer sa memory.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>Hindi ma-render ang larawan.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>Hindi mabuksang muli ang image buffer sa memory.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Hindi ma-decode ang na-encode na preview: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>Mga larawang JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>Mga larawang WebP (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>Mga larawang PNG (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Hindi regular na file ang target.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>Hindi ma-save ang larawan: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Hintaying matapos ang kasalukuyang pag-save.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>Hindi pa handa ang preview ng larawan.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Mga lokal na destinasyon lang ng pag-save ang suportado.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>Hindi tugma ang extension ng pangalan ng file sa napiling format ng larawan: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Pumili ng pangalan ng file para sa larawan.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>Na-save ang larawan, pero hindi ma-save ang nae-edit na .zelmora file: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Pumili ng mga setting ng pag-save bago i-save ang larawang ito.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Isara ang dialog na Mga Setting ng Pag-export bago mag-save.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Hindi ma-save ang nae-edit na .zelmora file: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>Walang nagawang larawan ang encoder.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>Na-save ang nae-edit na .zelmora file, pero hindi ma-update ang larawan: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Hindi mabuksan ang folder na naglalaman ng larawan.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Paint</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>SPDX identifier: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Buong teksto sa Debian: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Mga abiso sa copyright sa Debian: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MIT License</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, bersyon 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Iginuguhit ang interface at binabasa at isinusulat ang karamihan ng format ng larawan. Dynamic na naka-link para mapalitan: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, at ang mga plug-in para sa mga format ng larawan.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>May dala o ginagamit ang Qt na mga gawa ng iba, kabilang ang FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 at zlib. Kasama ng mga abiso ng Qt ang mga abiso nila.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>BSD 3-Clause License</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Ine-encode ang mga larawan sa mga dokumento at na-export na WebP file. Dynamic na naka-link, kasama ang bahagi nitong libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Hinahanap ang OpenGL ng graphics driver, na hindi bahagi ng program na ito. Dynamic na naka-link.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, bersyon 3 o mas bago, na may GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>Ang C++ standard library at ang mga support routine ng compiler, dynamic na naka-link. Hinahayaan ng exception na gamitin ang mga ito ng mga program sa ilalim ng anumang lisensya.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, bersyon 2.1 o mas bago</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>Ang C library ng system, dynamic na naka-link.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Baguhin ang Opacity</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>I-rotate ang Object</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Ilipat ang Object</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>I-skew ang Object</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Itakda ang Transform Pivot</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>I-scale ang Object</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>I-flip nang Pahalang</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>I-flip nang Patayo</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>Pangunahin</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamic</translation>
    </message>
</context>
</TS>
