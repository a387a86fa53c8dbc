<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Object</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tail</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>px</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Middle</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebP, transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportPreview</name>
    <message>
        <source>Encoding preview…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FadeOutFilter</name>
    <message>
        <source>alpha, fade, gradient, transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Softness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageLoadErrorDialog</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HEIC/HEIF Support Is Unavailable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayerActions</name>
    <message>
        <source>&amp;Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effect</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 px</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LightningBoltShapeGenerator</name>
    <message>
        <source>Lightning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full HD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4K</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Social</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Square</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Story</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NewDocumentPreset</name>
    <message>
        <source>%1, %2 by %3 pixels</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vertex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fragment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RemoveSceneObjectCommand</name>
    <message>
        <source>Remove %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Object</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneObjectAdapter</name>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Darken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear Raster Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>deg</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SplodgeShapeGenerator</name>
    <message>
        <source>Splodge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextLayer</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ThoughtBubbleShapeGenerator</name>
    <message>
        <source>Thought</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolModeActions</name>
    <message>
        <source>&amp;Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zm::ApplicationInfoController</name>
    <message>
        <source>© %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zm::DocumentFileController</name>
    <message>
        <source>Could not replace the current document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
