<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licencias</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>No hay ningún gestor de archivos que pueda mostrar la carpeta de registros.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Abrir carpeta de registros</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>Añadir %1</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>objeto</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>Flecha</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquinas</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Punta</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Cola</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>Explosión</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Rayos</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profundidad</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquinas</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>Lienzo</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>El documento. Arrastre para mover la vista y gire la rueda para cambiar el zoom.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>&amp;Limitar el lienzo al documento</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Rasterizar capa</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Nube</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Volumen</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Combinar capas</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Elegir color</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Convertir forma en trazado</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Recortar imagen</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>&amp;Depuración</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>Opciones de &amp;ejecución</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>Falta el códec &amp;HEVC</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>&amp;Vistas previas de diálogos</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>Ayuda de HEIF</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Progreso del guardado</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Reinicio por cambio de idioma</translation>
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
        <translation>Radio de esquinas</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>Mostrar los límites del &amp;documento</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Tamaño del documento</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Ajustar documento al contenido</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Elegir color de fondo del documento</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Color de fondo</translation>
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
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Deshacer: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rehacer: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>Elipse</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>Redondez</translation>
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
        <translation>Ajustes de exportación</translation>
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
        <translation>WebP, transparente</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, transparente</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>Esta imagen contiene transparencia. Elija un formato con fondo transparente para conservarla.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Mantener las proporciones</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Calidad en porcentaje</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>Compresión PNG</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Archivo de documento sin pérdida</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Conserva cada píxel del documento editable, en un archivo más grande.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Tamaño estimado de la imagen:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Calculando…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>No disponible</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>Junto a la imagen se guarda un documento Zelmora editable (.zelmora).</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Guardar…</translation>
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
        <translation>Codificando vista previa…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>Cargando vista previa…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Mostrar la imagen completa</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100&#xa0;%</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Mostrar la imagen a tamaño real</translation>
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
        <translation>alfa, fundido, degradado, transparente</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineal</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>Radial</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Fundido</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Colocar fundido</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Color del fundido</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensidad</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Suavidad</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertir</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Color del documento</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Fundido</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Documento nuevo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Abrir un documento o una imagen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Guardar imagen y documento</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Añadir ruido</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Desenfoque de rectángulo</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Ajuste de color</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Colorear</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Fundido</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Desenfoque gaussiano</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Escala de grises</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Luces altas a alfa</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Sombra interior</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pixelar</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Relieve</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Bordes de Sobel</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Bisel suave</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Copia de textura</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Mapeo tonal</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Reflejo en el agua</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>Semicírculo</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>Creciente</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquinas</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Corazón</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Lóbulos</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Hendidura</translation>
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
        <translation>Zelmora Atelier en la &amp;Web</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>&amp;Acerca de Zelmora Atelier</translation>
    </message>
</context>
<context>
    <name>ImageLoadErrorDialog</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>HEIC/HEIF Support Is Unavailable</source>
        <translation>La compatibilidad con HEIC/HEIF no está disponible</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Instale el paquete kimageformat6-plugins, que proporciona a Qt un lector de HEIF, y vuelva a iniciar Zelmora Atelier.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>Extensiones de imagen HEIF</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>Extensiones de vídeo HEVC</translation>
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
        <translation>Capa de pintura</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
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
        <translation>Idio&amp;ma</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>Reinicie Zelmora Atelier para que se apliquen todos los cambios.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>LayerActions</name>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Imagen</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Insertar una imagen como capa nueva</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Insertar &amp;imagen de ejemplo</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texto</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Insertar una capa de texto</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Forma</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Insertar una forma o pegatina</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>&amp;Nueva capa de pintura</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Mostrar capa</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Ocultar capa</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>S&amp;ubir capa</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>&amp;Bajar capa</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>&amp;Eliminar capa</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>Rasteri&amp;zar capa</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>&amp;Combinar con la capa inferior</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Básicos</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Bordes</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Color, tono y efectos</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Transferencias de estilo</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Marcos</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Fotomontajes, diversión &amp; arte</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>Purpurina &amp; brillos</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Efecto</translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Modo de fusión</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Modo de fusión</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Seleccione una capa para gestionarla.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Capas</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Aún no hay capas.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Capa %1, oculta</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Capa %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>Tiene una selección de píxeles</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Mostrar capa</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Ocultar capa</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>Combinar con la capa inferior</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Aspecto de la capa</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
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
        <translation>Rayo</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Curvatura</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquinas</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar en el Finder</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Mostrar en el Explorador</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Imagen exportada a %1.
Documento editable guardado como %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>No se pudo abrir la carpeta que contiene la imagen.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Espere a que termine el guardado en curso.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Selección</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Reglas</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>Posición del i&amp;nspector</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Capa</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insertar</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Imagen…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texto</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;Forma…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Barra de herramientas principal</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Más formas de guardar</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Más del historial</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Insertar:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Subir capa</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Bajar capa</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Pantalla</translation>
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
        <translation>Redes sociales</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Cuadrado</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Historia</translation>
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
        <translation>Impresión, 300 ppp</translation>
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
        <translation>Carta</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>Documento nuevo</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Ajustes predefinidos</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 megapíxeles</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Intercambiar anchura y altura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparente</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Elegir color de fondo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
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
        <translation>%1, %2 por %3 píxeles</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Licencias</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Error de shader</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Programa: %1
Etapa: %2
Recurso: %3
Destino: %4
Registro:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>vértice</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>fragmento</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;ninguno&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;registro del compilador vacío&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>Error al compilar el shader de vértices</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Error al compilar el shader de fragmentos</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>No se puede cargar el shader</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>Programa: %1
Destino de vértices: %2
Destino de fragmentos: %3
Registro:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;registro del enlazador vacío&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Error al enlazar el shader</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>No se pudo abrir %1: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Shader QSB serializado no válido: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>No hay ninguna variante GLSL compatible en %1. Probadas: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Pintar en la imagen</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Mancha de pintura</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Puntas</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Ningún elemento coincide.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>Polígono</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Lados</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquinas</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
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
        <translation>Eliminar %1</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>objeto</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>Nombre de la capa</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Cambiar nombre del objeto</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Rasterizar capa</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Cambiar tamaño de la imagen</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Cambiar tamaño del texto</translation>
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
        <translation>Radio de esquinas</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>Cinta</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profundidad</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquinas</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>Rectángulo</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquinas</translation>
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
        <translation>Multiplicar</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Trama</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Superponer</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Oscurecer</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aclarar</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Sobreexponer color</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Subexponer color</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Luz fuerte</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Luz suave</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Exclusión</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Luminosidad</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>Selección &amp;rectangular</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Crear una selección de píxeles rectangular</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>Selección &amp;elíptica</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Crear una selección de píxeles elíptica</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>&amp;Varita mágica</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Seleccionar una zona de color contigua</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>Selección &amp;poligonal</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Editar el trazado de la selección de píxeles</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>Deseleccionar los píxeles</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>&amp;Invertir selección de píxeles</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>E&amp;xtraer selección a una capa nueva</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>&amp;Deseleccionar píxeles</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Cambiar fondo del documento</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Cambiar modo de fusión</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Mostrar capa</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Ocultar capa</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Insertar forma o pegatina</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Buscar formas y pegatinas</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Ninguna forma o pegatina coincide.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insertar</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>máscara, silueta, recorte, forma</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Colocar forma</translation>
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
        <translation>Calado</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invertir</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Editor de formas</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Recortar con forma</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Escudo</translation>
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
        <translation>Radio de esquinas</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Seleccione una capa para editar su transformación.</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Geometría</translation>
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
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Mantener proporciones</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Voltear</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Voltear horizontalmente</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Voltear verticalmente</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotación</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>Pivote X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Pivote Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Sesgar</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Iniciar sesgado</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Sesgo X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Sesgo Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Cambiar unidad de tamaño</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Bocadillo de diálogo</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquinas</translation>
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
        <translation>Mancha</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquinas</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Estrella</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Puntas</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Redondeo</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>Barra de estado</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>Capa: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Ninguna capa seleccionada</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
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
        <translation>Texto</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>No se puede registrar el paquete de recursos de textura: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Ruta de imagen de textura no segura rechazada: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>No se encontró la imagen de textura: %1 (se buscó en: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>error desconocido del decodificador de imágenes</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>No se puede cargar la imagen de textura %1 desde %2: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Ruta de datos de textura no segura rechazada: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>No se encontraron los datos de textura: %1 (se buscó en: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>No se encontraron datos de textura para ningún candidato: %1 (se buscó en: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>error de lectura desconocido</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>No se pueden leer los datos de textura %1 desde %2: %3</translation>
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
        <translation>Bocadillo de pensamiento</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquinas</translation>
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
        <translation>&amp;Seleccionar</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Seleccionar capas</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>Ses&amp;gar</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>Sesgar la capa seleccionada</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Recortar</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>Recortar la capa seleccionada</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Trazado</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Editar el trazado de la forma seleccionada o dibujar uno nuevo</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Dibujar</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Dibujar a mano alzada con el pincel</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Borrar píxeles de la capa seleccionada</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>C&amp;lonar</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Clonar píxeles</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>E&amp;xposición</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Aclarar u oscurecer píxeles con el pincel Exposición</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>R&amp;ellenar selección</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Rellenar la selección de píxeles activa</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Triángulo</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Lados</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquinas</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>¿Guardar los cambios antes de salir?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>¿Guardar los cambios antes de crear un documento nuevo?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>¿Guardar los cambios antes de abrir otro documento?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>Este documento tiene cambios sin guardar. Si sale sin guardar, los cambios se perderán.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>Este documento tiene cambios sin guardar. Si crea un documento nuevo sin guardar, los cambios se perderán.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>Este documento tiene cambios sin guardar. Si abre otro documento sin guardar, los cambios se perderán.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Salir de todos modos</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Crear de todos modos</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Abrir de todos modos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>A&amp;cercar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Al&amp;ejar</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>A&amp;justar a la ventana</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>T&amp;amaño real</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>&amp;Pantalla completa</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>Modo de lienzo &amp;ilimitado</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Ocultas</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>&amp;Arriba e izquierda</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>A&amp;bajo y derecha</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Izquierda</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Derecha</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Sistema</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Oscuro</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Restablecer zoom al 100&#xa0;%</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>Viñeta</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Radio de esquinas</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Abrir documento o imagen</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Todos los archivos compatibles (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Todos los archivos de imagen (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Documentos Zelmora (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Insertar capa de imagen</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Guardar imagen como</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>No se puede abrir el archivo</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>No se puede insertar la imagen</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>No se puede guardar la imagen</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Guardando…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>El archivo .zelmora está truncado o no se puede leer: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>No se pudo decodificar una sección de capa .zelmora.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>El archivo .zelmora contiene un identificador de capa duplicado.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>La primera sección .zelmora no contiene las propiedades del documento.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>La sección de propiedades del documento tiene un tamaño no válido.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>La versión de los datos de propiedades del documento no es compatible.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Una cabecera de sección .zelmora no es válida.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Este no es un documento .zelmora.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Esta versión del formato .zelmora no es compatible.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>Las dimensiones del documento .zelmora no son válidas.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>El número de secciones .zelmora no es válido.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>El archivo .zelmora contiene propiedades de documento duplicadas.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>No se puede leer el dispositivo de origen.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>El archivo .zelmora tiene datos sobrantes al final.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>No se pudo escribir el archivo .zelmora: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>Una sección .zelmora es demasiado grande.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>El documento contiene un objeto de escena no compatible.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>El documento contiene un identificador de capa duplicado.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>No se puede escribir en el dispositivo de destino.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>Las dimensiones del documento no se pueden guardar en formato .zelmora.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>El documento contiene demasiadas capas.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>memoria insuficiente</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>memoria insuficiente al escribir el flujo de bits</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>falta un parámetro obligatorio del codificador</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>la configuración del codificador no es válida</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>las dimensiones de la imagen no son válidas</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>una partición del codificador es demasiado grande</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>no se pudieron escribir los datos codificados</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>la imagen codificada es demasiado grande</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>se canceló la codificación</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>error desconocido del codificador (código %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Una imagen no se puede representar como WebP.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>No se pudo inicializar el codificador WebP.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>La configuración del codificador WebP no es válida.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>No se pudo preparar la imagen para la codificación WebP.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>No se pudo preparar la imagen para la codificación WebP: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>No se pudo codificar el WebP: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>El codificador WebP no generó datos.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>La imagen WebP codificada es demasiado grande.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Una imagen WebP incrustada tiene dimensiones no válidas.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>No se pudo abrir una imagen incrustada.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>No se pudo decodificar el WebP: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Una imagen no se puede representar como datos RGBA sin procesar.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Una imagen RGBA sin procesar tiene dimensiones no válidas.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Una imagen RGBA sin procesar tiene una longitud en bytes no válida.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>No se pudo asignar memoria para una imagen RGBA sin procesar.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>Un relleno de degradado usa un tipo no compatible.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>Un relleno de degradado tiene una posición no válida.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>Un relleno de degradado tiene un número de paradas no válido.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>Un relleno de degradado tiene una parada de color no válida.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>Un relleno usa un mapeo de textura no compatible.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>Un relleno de textura tiene una transformación no válida.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Un identificador de generador de relleno es demasiado largo.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>Un relleno sólido contiene datos inesperados.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>Un registro de relleno de textura no es válido.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>Un bloque de parámetros de textura tiene datos sobrantes al final.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>La transformación o el tamaño de un relleno de textura no es válido.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>Un registro de relleno de degradado no es válido.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>Un registro de relleno está truncado o no es válido.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>Un relleno usa un mapeo de textura desconocido.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Un filtro tiene un identificador de instancia nulo.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>Un registro de filtro está truncado o no es válido.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>Un bloque de parámetros de filtro tiene datos sobrantes al final.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Un identificador de generador de formas está vacío o es demasiado largo.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>Un registro de forma paramétrica no es válido.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Un identificador de generador de formas está vacío.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>Una forma paramétrica tiene datos sobrantes al final.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>Una forma usa un tipo de geometría desconocido.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Una capa SVG no tiene datos de origen.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Una capa de imagen no tiene un origen compatible.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>Una selección de píxeles debe ser un trazado editable.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Una capa de píxeles tiene dimensiones en píxeles no válidas.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Una capa SVG contiene dimensiones en píxeles.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Una capa SVG contiene datos SVG no válidos.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Una capa de imagen usa una codificación de origen desconocida.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Una capa de imagen tiene dimensiones o datos no válidos.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>Los datos de una capa de imagen no son válidos.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Una capa de imagen tiene una política de superficie de píxeles desconocida.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>El documento contiene un tipo de capa no compatible.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>Una sección no es un tipo de capa compatible.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Una capa tiene demasiados filtros.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>Una capa contiene un identificador de instancia de filtro duplicado.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Una capa tiene propiedades de identidad o transformación no válidas.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Un nombre de capa o un identificador de modo de fusión es demasiado largo.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>Un tipo de capa no coincide con su contenido.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>Una sección de capa es demasiado grande.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>Una cabecera de datos de capa no es válida.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Una capa tiene un identificador de modo de fusión vacío.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>Una sección de capa tiene datos sobrantes al final.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>No se pudo restaurar la pila de filtros de una capa.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>Un valor de texto de un parámetro es demasiado largo.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>Una lista de luces contiene demasiadas luces.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>Un parámetro de recurso tiene una longitud en bytes no válida.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>Un parámetro booleano no es válido.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>Un parámetro real no es finito.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>Un parámetro contiene un número no finito.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>Un parámetro de recurso debe ser un nombre de archivo, no una ruta.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>Un parámetro de color activable no es válido.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>Un parámetro de contorno no es válido.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>Un contorno contiene un grosor no válido.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>Un parámetro de degradado no es válido.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>Un degradado contiene una posición no finita.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>Una transformación de máscara no es válida.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>Una máscara contiene una transformación no finita.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>Un parámetro de lista de luces no es válido.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>Una lista de luces contiene una luz no válida.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>El archivo .zelmora usa un tipo de parámetro desconocido.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>Un valor de parámetro tiene una longitud en bytes no válida.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>Una clave de parámetro está duplicada.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>Una colección de parámetros es demasiado grande.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Una cabecera de parámetro está truncada.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>Un valor de parámetro está truncado.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>Un nodo de trazado editable no es válido.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>Un identificador de nodo de trazado editable está duplicado.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>Un nodo de trazado editable usa un tipo desconocido.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>Un contorno de trazado editable no es válido.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>Un trazado editable tiene demasiados contornos.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>Un contorno de trazado editable tiene demasiados nodos.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>Un registro de trazado editable no es válido.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>Un trazado editable tiene datos sobrantes al final.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>El archivo .zelmora contiene un color no válido.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>El archivo .zelmora contiene un identificador de objeto nulo.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>Una clave de registro no es ASCII de 7 bits válido.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>Una clave de registro está vacía o no termina en un carácter nulo.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>Una clave de registro tiene un relleno distinto de cero.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>Una clave de filtro o parámetro no cabe en su campo de 32 bytes.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Las claves de filtro y parámetro deben usar ASCII de 7 bits.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>Un registro .zelmora supera el límite de tamaño de 32 bits.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Una capa de forma tiene dimensiones o un contorno no válidos.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>Los datos de una capa de forma no son válidos.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>Los datos de una capa de forma están truncados.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Un párrafo de texto no es válido.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Un párrafo de texto usa una alineación no compatible.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Un párrafo de texto usa una dirección no compatible.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>Un registro de párrafo de texto no es válido.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Un párrafo de texto usa una alineación desconocida.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Un párrafo de texto usa una dirección desconocida.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>Un párrafo de texto tiene datos sobrantes al final.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Una capa de texto tiene dimensiones no válidas o demasiados párrafos.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>Los datos de una capa de texto no son válidos.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>Una capa de texto tiene datos sobrantes al final.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Un fragmento de texto es demasiado largo.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>Un registro de familia tipográfica no es válido.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>Un bloque de familias tipográficas tiene datos sobrantes al final.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Un fragmento de texto usa un estilo de fuente desconocido.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Un fragmento de texto usa un modo de mayúsculas desconocido.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Un fragmento de texto usa un modo de espaciado entre letras desconocido.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Un fragmento de texto usa un modo de optimización de fuente desconocido.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Un fragmento de texto no tiene un tamaño de fuente válido.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Un fragmento de texto tiene demasiadas familias tipográficas.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Un fragmento de texto tiene propiedades numéricas de fuente no válidas.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>Un registro de fragmento de texto no es válido.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Un fragmento de texto está truncado.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>No se pudo abrir %1 para lectura: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>No se pudo abrir %1 para escritura: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>El destino no es un archivo normal.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>No se pudo terminar de escribir %1: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
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
        <translation>No se pudo reemplazar el documento actual.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Elija un archivo existente.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>No se pudo abrir el archivo de imagen seleccionado.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>No se pudo cargar la imagen SVG seleccionada.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows no pudo decodificar la imagen HEIC/HEIF seleccionada.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>No se pudo cargar el archivo de imagen seleccionado.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>La imagen seleccionada no tiene un tamaño utilizable.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>No se pudo crear un documento a partir de la imagen seleccionada.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Introduzca una anchura y una altura válidas.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>No se pudo crear un documento nuevo.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Solo se admiten archivos locales.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Elija un nombre de archivo antes de guardar el documento.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Cambiar tamaño del documento</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Ajustar límites del documento al contenido</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Mover objeto</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Elija un archivo de imagen existente.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier no pudo cargar la imagen seleccionada.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Solo se admiten archivos de imagen locales.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>No se pudo añadir la imagen seleccionada al documento.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Ejemplo de Zelmora</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier no pudo cargar la imagen de ejemplo.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>No se pudo añadir la imagen de ejemplo al documento.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Trazado</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Aún no se puede exportar un filtro de transferencia de estilo activado. Desactive o elimine el filtro antes de exportar.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>No se pudo codificar la vista previa: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>No se pudo codificar la imagen guardada: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>No se pudo crear el búfer de imagen en memoria.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>No se pudo renderizar la imagen.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>No se pudo volver a abrir el búfer de imagen en memoria.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>No se pudo decodificar la vista previa codificada: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>Imágenes JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>Imágenes WebP (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>Imágenes PNG (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>El destino no es un archivo normal.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>No se pudo guardar la imagen: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Espere a que termine el guardado en curso.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>La vista previa de la imagen no está lista.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Solo se admiten destinos de guardado locales.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>La extensión del nombre de archivo no coincide con el formato de imagen seleccionado: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Elija un nombre de archivo para la imagen.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>La imagen se guardó, pero no se pudo guardar el archivo .zelmora editable: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Elija los ajustes de guardado antes de guardar esta imagen.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Cierre el diálogo Ajustes de exportación antes de guardar.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>No se pudo guardar el archivo .zelmora editable: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>El codificador no generó ninguna imagen.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>El archivo .zelmora editable se guardó, pero no se pudo actualizar la imagen: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>No se pudo abrir la carpeta que contiene la imagen.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Pintura</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>Identificador SPDX: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Texto completo en Debian: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Avisos de derechos de autor en Debian: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>Licencia MIT</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>Licencia Pública General Reducida de GNU (LGPL), versión 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Dibuja la interfaz y lee y escribe la mayoría de los formatos de imagen. Enlazado dinámicamente, para que se pueda reemplazar: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs y los complementos para formatos de imagen.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt incluye o usa obras de terceros, entre ellas FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 y zlib. Sus avisos figuran junto a los del propio Qt.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>Licencia BSD de 3 cláusulas</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Codifica las imágenes de los documentos y los archivos WebP exportados. Enlazado dinámicamente, con su componente libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Localiza el OpenGL del controlador gráfico, que no forma parte de este programa. Enlazado dinámicamente.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>Licencia Pública General de GNU (GPL), versión 3 o posterior, con la excepción de la biblioteca de ejecución de GCC</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>La biblioteca estándar de C++ y las rutinas de apoyo del compilador, enlazadas dinámicamente. La excepción permite que las usen programas con cualquier licencia.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>Licencia Pública General Reducida de GNU (LGPL), versión 2.1 o posterior</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>La biblioteca C del sistema, enlazada dinámicamente.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Cambiar opacidad</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Girar objeto</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Mover objeto</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Sesgar objeto</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Definir pivote de transformación</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Escalar objeto</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Voltear horizontalmente</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Voltear verticalmente</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>Básicas</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dinámicas</translation>
    </message>
</context>
</TS>
