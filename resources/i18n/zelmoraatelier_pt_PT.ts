<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licenças</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>Não há nenhum gestor de ficheiros que mostre a pasta de registos.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Sítio Web</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Abrir pasta de registos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>Adicionar %1</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objeto</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>Seta</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Ponta</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Cauda</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>Explosão</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Raios</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profundidade</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
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
        <translation>Tela</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>O documento. Arraste para mover a vista, rode a roda do rato para ampliar ou reduzir.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>&amp;Limitar tela aos limites do documento</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Rasterizar camada</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Nuvem</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Volume</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Combinar camadas</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Escolher cor</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Converter forma em caminho</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Recortar imagem</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>&amp;Depuração</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>&amp;Indicadores de execução</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>&amp;Codec HEVC em falta</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>&amp;Pré-visualizações de diálogos</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>Ajuda sobre HEIF</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Progresso ao guardar</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Reinício por mudança de idioma</translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation>Losango</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
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
        <translation>Mostrar limites do &amp;documento</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Tamanho do documento</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Ajustar documento ao conteúdo</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fundo</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Escolher cor de fundo do documento</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Cor de fundo</translation>
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
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Desfazer: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Refazer: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
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
        <translation>C&amp;olar</translation>
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
        <translation>Arredondamento</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Meio</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Definições de exportação</translation>
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
        <translation>Esta imagem contém transparência. Escolha um formato com fundo transparente para a preservar.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Manter as proporções</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Qualidade em percentagem</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>Compressão PNG</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Ficheiro de documento sem perdas</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Mantém todos os píxeis do documento editável, num ficheiro maior.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Tamanho estimado da imagem:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>A calcular…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Indisponível</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>É guardado um documento Zelmora editável (.zelmora) juntamente com a imagem.</translation>
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
        <translation>A codificar a pré-visualização…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>A carregar a pré-visualização…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pré-visualização</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Mostrar a imagem completa</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Mostrar a imagem no seu tamanho real</translation>
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
        <translation>alfa, desvanecer, gradiente, transparente</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
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
        <translation>Desvanecimento</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Posicionar desvanecimento</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Cor do desvanecimento</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensidade</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Suavidade</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverter</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Cor do documento</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Desvanecer</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Novo</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Novo documento</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Abrir um documento ou uma imagem</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Guardar imagem e documento</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Adicionar ruído</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Desfocagem em caixa</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Ajuste de cor</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Colorir</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Desvanecer</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Desfocagem gaussiana</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Tons de cinzento</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Realces para alfa</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Sombra interior</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pixelizar</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Elevar</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Contornos Sobel</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Bisel suave</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Cópia de textura</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Mapa de tons</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Reflexo na água</translation>
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
        <translation>Crescente</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Coração</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Lóbulos</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Reentrância</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Ponta</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier na &amp;Web</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>&amp;Acerca do Zelmora Atelier</translation>
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
        <translation>O suporte de HEIC/HEIF não está disponível</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Instale o pacote kimageformat6-plugins, que fornece ao Qt um leitor de HEIF, e inicie novamente o Zelmora Atelier.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>Extensões de imagem HEIF</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>Extensões de vídeo HEVC</translation>
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
        <translation>Camada de pintura</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagem</translation>
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
        <translation>Camada</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>Inspetor</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;Idioma</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>Reinicie o Zelmora Atelier para que todas as alterações tenham efeito.</translation>
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
        <translation>&amp;Imagem</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Inserir uma imagem como nova camada</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Inserir imagem de &amp;exemplo</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texto</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Inserir uma camada de texto</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Forma</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Inserir uma forma ou um autocolante</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>&amp;Nova camada de pintura</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Mostrar camada</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Ocultar camada</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>Mover camada para &amp;cima</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Mover camada para &amp;baixo</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>&amp;Remover camada</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>R&amp;asterizar camada</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>&amp;Unir à camada inferior</translation>
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
        <translation>Margens</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Recolorir, tonalidade, efeitos</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Transferências de estilo</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Molduras</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Fotomontagens, diversão e arte</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>Brilho e cintilação</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Efeito</translation>
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
        <translation>Opacidade</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Modo de mistura</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Modo de mistura</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Camadas</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Mudar o nome</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Camada</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Selecione uma camada para a gerir.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Camadas</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Ainda não há camadas.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Camada %1, oculta</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Camada %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>Tem uma seleção raster</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Mostrar camada</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Ocultar camada</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>Unir à camada inferior</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Aspeto da camada</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
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
        <translation>Relâmpago</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Curvatura</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Mostrar no Finder</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Mostrar no Explorador</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Imagem exportada para %1.
Documento editável guardado como %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Não foi possível abrir a pasta que contém a imagem.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Aguarde que a gravação em curso termine.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Ficheiro</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Selecionar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Réguas</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>&amp;Posição do inspetor</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>Te&amp;ma</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Camada</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Inserir</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Imagem…</translation>
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
        <translation>A&amp;juda</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Barra de ferramentas principal</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Mais formas de guardar</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Mais do histórico</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Inserir:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Mover camada para cima</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Mover camada para baixo</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Ecrã</translation>
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
        <translation>Redes sociais</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrado</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>História</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Fotografia</translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation>Fotografia 3:2</translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation>Fotografia 4:3</translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation>Impressão, 300 ppp</translation>
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
        <translation>Novo documento</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 megapíxeis</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Trocar largura e altura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fundo</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Branco</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Preto</translation>
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
        <translation>Escolher cor de fundo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Criar</translation>
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
        <translation>%1, %2 por %3 píxeis</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Licenças</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Erro de shader</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Programa: %1
Fase: %2
Recurso: %3
Destino: %4
Registo:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>vértices</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>fragmentos</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;nenhum&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;registo do compilador vazio&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>A compilação do shader de vértices falhou</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>A compilação do shader de fragmentos falhou</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Não foi possível carregar o shader</translation>
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
Registo:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;registo do ligador vazio&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>A ligação do shader falhou</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>Não foi possível abrir %1: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Shader QSB serializado inválido: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>Não há nenhuma variante GLSL compatível em %1. Tentativas: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Pintar imagem</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Mancha de tinta</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Comprimento</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Pontas</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Escolher</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Nenhum item correspondente.</translation>
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
        <translation>Categorias</translation>
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
        <translation>Raio dos cantos</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;recente</translation>
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
        <translation>Remover %1</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objeto</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>Nome da camada</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Mudar o nome do objeto</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Rasterizar camada</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Redimensionar imagem</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Redimensionar texto</translation>
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
        <translation>Raio dos cantos</translation>
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
        <translation>Fita</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profundidade</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>Retângulo</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
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
        <translation>Ecrã</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Sobrepor</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Escurecer</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Aclarar</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Subexposição de cor</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Sobre-exposição de cor</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Luz dura</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Luz suave</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferença</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Exclusão</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Matiz</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturação</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Luminosidade</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>Seleção &amp;retangular</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Criar uma seleção raster retangular</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>Seleção &amp;elíptica</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Criar uma seleção raster elíptica</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>Seleção com varinha &amp;mágica</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Selecionar uma região de cor contígua</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>Seleção &amp;poligonal</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Editar o caminho da seleção raster</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>Limpar a seleção raster</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>&amp;Inverter seleção raster</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>E&amp;xtrair seleção para nova camada</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>&amp;Limpar seleção raster</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Alterar fundo do documento</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Alterar modo de mistura</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Mostrar camada</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Ocultar camada</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Inserir forma ou autocolante</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Procurar formas e autocolantes</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Nenhuma forma ou autocolante correspondente.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Inserir</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>máscara, silhueta, recorte, forma</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Posicionar forma</translation>
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
        <translation>Esbatimento</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverter</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Editor de formas</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Recortar com forma</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Emblema em escudo</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Ponta</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Selecione uma camada para editar a sua transformação.</translation>
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
        <translation>Largura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Manter proporções</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Inverter</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Inverter na horizontal</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Inverter na vertical</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotação</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ângulo</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>Pivô X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Pivô Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Inclinação</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Iniciar inclinação</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Inclinação X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Inclinação Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Mudar unidade de tamanho</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Fala</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Ponteiro</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
</context>
<context>
    <name>SplodgeShapeGenerator</name>
    <message>
        <source>Splodge</source>
        <translation>Borrão</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Estrela</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Pontas</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Ponta</translation>
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
        <translation>Camada: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Nenhuma camada selecionada</translation>
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
        <translation>Texto</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>Não foi possível registar o pacote de recursos de texturas: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Caminho de imagem de textura inseguro rejeitado: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Imagem de textura não encontrada: %1 (procurada em: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>erro desconhecido do descodificador de imagem</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>Não foi possível carregar a imagem de textura %1 de %2: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Caminho de dados de textura inseguro rejeitado: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Dados de textura não encontrados: %1 (procurados em: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Dados de textura não encontrados para nenhum candidato: %1 (procurados em: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>erro de leitura desconhecido</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>o ficheiro está vazio</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>Não foi possível ler os dados de textura %1 de %2: %3</translation>
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
        <translation>Pensamento</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Ponta</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
</context>
<context>
    <name>ToolModeActions</name>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Selecionar</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Selecionar camadas</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>Inc&amp;linar</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>Inclinar a camada selecionada</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>Recor&amp;tar</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>Recortar a camada selecionada</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Caminho</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Editar o caminho da forma selecionada ou desenhar um novo caminho</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Desenhar</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Desenhar com um pincel à mão livre</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Apagar</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Apagar píxeis da camada selecionada</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>Cl&amp;onar</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Clonar píxeis</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>E&amp;xposição</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Aclarar ou escurecer píxeis com o pincel de exposição</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>&amp;Preencher seleção</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Preencher a seleção raster ativa</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Triângulo</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Lados</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>Guardar as alterações antes de sair?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>Guardar as alterações antes de criar um novo documento?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>Guardar as alterações antes de abrir outro documento?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>Este documento tem alterações por guardar. Se sair sem guardar, as alterações serão perdidas.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>Este documento tem alterações por guardar. Se criar um novo documento sem guardar, as alterações serão perdidas.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>Este documento tem alterações por guardar. Se abrir outro documento sem guardar, as alterações serão perdidas.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Sair mesmo assim</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Criar mesmo assim</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Abrir mesmo assim</translation>
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
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Red&amp;uzir</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>A&amp;justar à janela</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>Tamanho r&amp;eal</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>E&amp;crã inteiro</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>Modo de &amp;tela ilimitada</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Desativadas</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>Em &amp;cima e à esquerda</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>Em &amp;baixo e à direita</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Esquerda</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Direita</translation>
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
        <translation>&amp;Escuro</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Repor a ampliação a 100%</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>Vinheta</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Raio dos cantos</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Abrir documento ou imagem</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Todos os ficheiros suportados (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Todos os ficheiros de imagem (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Documentos Zelmora (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Inserir camada de imagem</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Guardar imagem como</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Não foi possível abrir o ficheiro</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Não foi possível inserir a imagem</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Não foi possível guardar a imagem</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>A guardar…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>O ficheiro .zelmora está truncado ou ilegível: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>Não foi possível descodificar uma secção de camada .zelmora.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>O ficheiro .zelmora contém um ID de camada duplicado.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>A primeira secção .zelmora não corresponde às propriedades do documento.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>A secção de propriedades do documento tem um tamanho inválido.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>A versão dos dados das propriedades do documento não é suportada.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Um cabeçalho de secção .zelmora é inválido.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Isto não é um documento .zelmora.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Esta versão do formato .zelmora não é suportada.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>As dimensões do documento .zelmora são inválidas.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>O número de secções .zelmora é inválido.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>O ficheiro .zelmora contém propriedades do documento duplicadas.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>O dispositivo de origem não permite leitura.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>O ficheiro .zelmora tem dados excedentes no final.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>Não foi possível escrever o ficheiro .zelmora: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>Uma secção .zelmora é demasiado grande.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>O documento contém um objeto de cena não suportado.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>O documento contém um ID de camada duplicado.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>O dispositivo de destino não permite escrita.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>As dimensões do documento não podem ser guardadas no formato .zelmora.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>O documento contém demasiadas camadas.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>memória insuficiente</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>memória insuficiente ao escrever o fluxo de bits</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>falta um parâmetro obrigatório do codificador</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>a configuração do codificador é inválida</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>as dimensões da imagem são inválidas</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>uma partição do codificador é demasiado grande</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>não foi possível escrever os dados codificados</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>a imagem codificada é demasiado grande</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>a codificação foi cancelada</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>erro desconhecido do codificador (código %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Uma imagem não pode ser representada como WebP.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>Não foi possível inicializar o codificador WebP.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>A configuração do codificador WebP é inválida.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>Não foi possível preparar a imagem para a codificação WebP.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>Não foi possível preparar a imagem para a codificação WebP: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>Não foi possível codificar o WebP: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>O codificador WebP não produziu dados.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>A imagem WebP codificada é demasiado grande.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Um WebP incorporado tem dimensões inválidas.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Não foi possível abrir uma imagem incorporada.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>Não foi possível descodificar o WebP: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Uma imagem não pode ser representada como dados RGBA em bruto.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Uma imagem RGBA em bruto tem dimensões inválidas.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Uma imagem RGBA em bruto tem um comprimento em bytes inválido.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Não foi possível alocar uma imagem RGBA em bruto.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>Um preenchimento de gradiente usa um tipo não suportado.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>Um preenchimento de gradiente tem uma posição inválida.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>Um preenchimento de gradiente tem um número de paragens inválido.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>Um preenchimento de gradiente tem uma paragem de cor inválida.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>Um preenchimento usa um mapeamento de textura não suportado.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>Um preenchimento de textura tem uma transformação inválida.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Um ID de gerador de preenchimento é demasiado grande.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>Um preenchimento sólido contém dados inesperados.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>Um registo de preenchimento de textura é inválido.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>Um bloco de parâmetros de textura tem dados excedentes no final.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>A transformação ou o tamanho de um preenchimento de textura é inválido.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>Um registo de preenchimento de gradiente é inválido.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>Um registo de preenchimento está truncado ou é inválido.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>Um preenchimento usa um mapeamento de textura desconhecido.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Um filtro tem um ID de instância nulo.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>Um registo de filtro está truncado ou é inválido.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>Um bloco de parâmetros de filtro tem dados excedentes no final.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Um ID de gerador de formas está vazio ou é demasiado grande.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>Um registo de forma paramétrica é inválido.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Um ID de gerador de formas está vazio.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>Uma forma paramétrica tem dados excedentes no final.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>Uma forma usa um tipo de geometria desconhecido.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Uma camada SVG não tem dados de origem.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Uma camada de imagem não tem uma origem suportada.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>Uma seleção raster tem de ser um caminho editável.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Uma camada raster tem dimensões em píxeis inválidas.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Uma camada SVG contém dimensões raster.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Uma camada SVG contém dados SVG inválidos.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Uma camada de imagem usa uma codificação de origem desconhecida.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Uma camada de imagem tem dimensões ou dados inválidos.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>Os dados de uma camada de imagem são inválidos.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Uma camada de imagem tem uma política de superfície raster desconhecida.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>O documento contém um tipo de camada não suportado.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>Uma secção não é um tipo de camada suportado.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Uma camada tem demasiados filtros.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>Uma camada contém um ID de instância de filtro duplicado.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Uma camada tem propriedades de identidade ou de transformação inválidas.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>O nome de uma camada ou o ID de um modo de mistura é demasiado grande.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>O tipo de uma camada não corresponde ao seu conteúdo.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>Uma secção de camada é demasiado grande.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>O cabeçalho dos dados de uma camada é inválido.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Uma camada tem um ID de modo de mistura vazio.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>Uma secção de camada tem dados excedentes no final.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Não foi possível restaurar a pilha de filtros de uma camada.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>O valor de texto de um parâmetro é demasiado grande.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>Uma lista de luzes contém demasiadas luzes.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>Um parâmetro de recurso tem um comprimento em bytes inválido.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>Um parâmetro booleano é inválido.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>Um parâmetro real não é finito.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>Um parâmetro contém um número não finito.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>Um parâmetro de recurso tem de ser um nome de ficheiro, não um caminho.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>Um parâmetro de cor ativável é inválido.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>Um parâmetro de traço é inválido.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>Um traço contém uma largura inválida.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>Um parâmetro de gradiente é inválido.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>Um gradiente contém uma posição não finita.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>A transformação de uma máscara é inválida.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>Uma máscara contém uma transformação não finita.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>Um parâmetro de lista de luzes é inválido.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>Uma lista de luzes contém uma luz inválida.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>O ficheiro .zelmora usa um tipo de parâmetro desconhecido.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>O valor de um parâmetro tem um comprimento em bytes inválido.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>A chave de um parâmetro está duplicada.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>Uma coleção de parâmetros é demasiado grande.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>O cabeçalho de um parâmetro está truncado.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>O valor de um parâmetro está truncado.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>Um nó de caminho editável é inválido.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>O ID de um nó de caminho editável está duplicado.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>Um nó de caminho editável usa um tipo desconhecido.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>Um contorno de caminho editável é inválido.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>Um caminho editável tem demasiados contornos.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>Um contorno de caminho editável tem demasiados nós.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>Um registo de caminho editável é inválido.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>Um caminho editável tem dados excedentes no final.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>O ficheiro .zelmora contém uma cor inválida.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>O ficheiro .zelmora contém um identificador de objeto nulo.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>Uma chave de registo não é ASCII de 7 bits válido.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>Uma chave de registo está vazia ou não termina em nulo.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>Uma chave de registo tem preenchimento diferente de zero.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>Uma chave de filtro ou de parâmetro não cabe no seu campo de 32 bytes.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>As chaves de filtros e de parâmetros têm de usar ASCII de 7 bits.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>Um registo .zelmora excede o limite de tamanho de 32 bits.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Uma camada de forma tem dimensões ou traço inválidos.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>Os dados de uma camada de forma são inválidos.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>Os dados de uma camada de forma estão truncados.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Um parágrafo de texto é inválido.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Um parágrafo de texto usa um alinhamento não suportado.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Um parágrafo de texto usa uma direção não suportada.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>Um registo de parágrafo de texto é inválido.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Um parágrafo de texto usa um alinhamento desconhecido.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Um parágrafo de texto usa uma direção desconhecida.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>Um parágrafo de texto tem dados excedentes no final.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Uma camada de texto tem dimensões inválidas ou demasiados parágrafos.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>Os dados de uma camada de texto são inválidos.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>Uma camada de texto tem dados excedentes no final.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Um segmento de texto é demasiado grande.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>Um registo de família de tipos de letra é inválido.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>Um bloco de famílias de tipos de letra tem dados excedentes no final.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Um segmento de texto usa um estilo de tipo de letra desconhecido.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Um segmento de texto usa um modo de maiúsculas desconhecido.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Um segmento de texto usa um modo de espaçamento entre letras desconhecido.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Um segmento de texto usa um modo de ajuste de tipos de letra (hinting) desconhecido.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Um segmento de texto não tem um tamanho de letra válido.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Um segmento de texto tem demasiadas famílias de tipos de letra.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Um segmento de texto tem propriedades numéricas de tipo de letra inválidas.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>Um registo de segmento de texto é inválido.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Um segmento de texto está truncado.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>Não foi possível abrir %1 para leitura: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>Não foi possível abrir %1 para escrita: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>O destino não é um ficheiro normal.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>Não foi possível terminar a escrita de %1: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
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
        <translation>Não foi possível substituir o documento atual.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Escolha um ficheiro existente.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Não foi possível abrir o ficheiro de imagem selecionado.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>Não foi possível carregar a imagem SVG selecionada.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>O Windows não conseguiu descodificar a imagem HEIC/HEIF selecionada.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Não foi possível carregar o ficheiro de imagem selecionado.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>A imagem selecionada não tem um tamanho utilizável.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Não foi possível criar um documento a partir da imagem selecionada.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sem título</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Introduza uma largura e uma altura válidas.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Não foi possível criar um novo documento.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Só são suportados ficheiros locais.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Escolha um nome de ficheiro antes de guardar o documento.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Redimensionar documento</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Ajustar limites do documento ao conteúdo</translation>
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
        <translation>Escolha um ficheiro de imagem existente.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>O Zelmora Atelier não conseguiu carregar a imagem selecionada.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Só são suportados ficheiros de imagem locais.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>Não foi possível adicionar a imagem selecionada ao documento.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Exemplo Zelmora</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>O Zelmora Atelier não conseguiu carregar a imagem de exemplo.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>Não foi possível adicionar a imagem de exemplo ao documento.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Caminho</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Ainda não é possível exportar um filtro de transferência de estilo ativo. Desative ou remova o filtro antes de exportar.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Não foi possível codificar a pré-visualização: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>Não foi possível codificar a imagem guardada: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>Não foi possível criar a memória intermédia da imagem.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>Não foi possível compor a imagem.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>Não foi possível reabrir a memória intermédia da imagem.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Não foi possível descodificar a pré-visualização codificada: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>Imagens JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>Imagens WebP (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>Imagens PNG (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>O destino não é um ficheiro normal.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>Não foi possível guardar a imagem: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Aguarde que a gravação em curso termine.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>A pré-visualização da imagem não está pronta.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Só são suportados destinos de gravação locais.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>A extensão do nome do ficheiro não corresponde ao formato de imagem selecionado: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Escolha um nome de ficheiro para a imagem.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>A imagem foi guardada, mas não foi possível guardar o ficheiro .zelmora editável: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Escolha as definições de gravação antes de guardar esta imagem.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Feche a janela Definições de exportação antes de guardar.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Não foi possível guardar o ficheiro .zelmora editável: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>O codificador não produziu uma imagem.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>O ficheiro .zelmora editável foi guardado, mas não foi possível atualizar a imagem: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Não foi possível abrir a pasta que contém a imagem.</translation>
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
        <translation>Texto integral no Debian: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Avisos de direitos de autor no Debian: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>Licença MIT</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, versão 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Desenha a interface e lê e escreve a maioria dos formatos de imagem. Ligado dinamicamente, para que possa ser substituído: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs e os plug-ins para formatos de imagem.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>O Qt inclui ou usa obras de terceiros, entre as quais FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 e zlib. Os respetivos avisos encontram-se junto dos do próprio Qt.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>Licença BSD de 3 cláusulas</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Codifica as imagens nos documentos e os ficheiros WebP exportados. Ligado dinamicamente, com a sua parte libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Localiza o OpenGL do controlador gráfico, que não faz parte deste programa. Ligado dinamicamente.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, versão 3 ou posterior, com a GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>A biblioteca padrão de C++ e as rotinas de suporte do compilador, ligadas dinamicamente. A exceção permite que programas sob qualquer licença as usem.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, versão 2.1 ou posterior</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>A biblioteca C do sistema, ligada dinamicamente.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Alterar opacidade</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Rodar objeto</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Mover objeto</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Inclinar objeto</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Definir pivô da transformação</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Redimensionar objeto</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Inverter na horizontal</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Inverter na vertical</translation>
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
        <translation>Dinâmicas</translation>
    </message>
</context>
</TS>
