<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licencje</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>Brak menedżera plików, który mógłby pokazać folder dziennika.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Strona internetowa</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Otwórz folder dziennika</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>Dodaj: %1</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Obiekt</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>Strzałka</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Grot</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Trzon</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>Wybuch</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Promienie</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Głębokość</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>Zajęty</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Zajęty</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>Płótno</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>Dokument. Przeciągnij, aby przesunąć widok; obróć kółko myszy, aby zmienić powiększenie.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>&amp;Ogranicz płótno do granic dokumentu</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Rasteryzuj warstwę</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Chmura</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Puszystość</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Połącz warstwy</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Wybierz kolor</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Przekształć kształt w ścieżkę</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Kadruj obraz</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>&amp;Debugowanie</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>&amp;Flagi uruchomieniowe</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>&amp;Brakujący kodek HEVC</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>P&amp;odgląd okien dialogowych</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>Pomoc dotycząca HEIF</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Postęp zapisywania</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Ponowne uruchomienie po zmianie języka</translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation>Karo</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>W poziomie</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>W pionie</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>Pokaż &amp;granice dokumentu</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Rozmiar dokumentu</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Dopasuj dokument do zawartości</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Tło</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Wybierz kolor tła dokumentu</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Kolor tła</translation>
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
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Cofnij: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Ponów: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Wytnij</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Wk&amp;lej</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>Elipsa</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>Zaokrąglenie</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Środek</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Ustawienia eksportu</translation>
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
        <translation>WebP, przezroczysty</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, przezroczysty</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>Ten obraz zawiera przezroczystość. Aby ją zachować, wybierz format z przezroczystym tłem.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Zachowaj proporcje</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Jakość</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Jakość w procentach</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>Kompresja PNG</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Maks.</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Bezstratny plik dokumentu</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Zachowuje każdy piksel edytowalnego dokumentu, w większym pliku.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Szacowany rozmiar obrazu:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Obliczanie…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Niedostępne</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>Wraz z obrazem zapisywany jest edytowalny dokument Zelmora (.zelmora).</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Zapisz…</translation>
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
        <translation>Kodowanie podglądu…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>Wczytywanie podglądu…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Pomniejsz</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Dopasuj</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Pokaż cały obraz</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Pokaż obraz w rzeczywistym rozmiarze</translation>
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
        <translation>alfa, zanikanie, gradient, przezroczysty</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Tryb</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Liniowy</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>Promienisty</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Zanikanie</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Ustaw zanikanie</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Kolor zanikania</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Siła</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Krzywa</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Miękkość</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Odwróć</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Kolor dokumentu</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Zanikanie</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nowy</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Nowy dokument</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Otwórz…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Otwórz dokument lub obraz</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Zapisz</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Zapisz obraz i dokument</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Zapisz &amp;jako…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Dodaj szum</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Rozmycie pudełkowe</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Korekta kolorów</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Koloryzacja</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Zanikanie</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Rozmycie gaussowskie</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Skala szarości</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Światła na kanał alfa</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Cień wewnętrzny</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pikselizacja</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Uwypuklenie</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Krawędzie Sobela</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Miękki skos</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Kopia tekstury</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Mapowanie tonów</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Odbicie w wodzie</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>Półkole</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>Sierp</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Serce</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Łuki</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Wcięcie</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Wierzchołek</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier w &amp;internecie</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>&amp;O programie Zelmora Atelier</translation>
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
        <translation>Obsługa HEIC/HEIF jest niedostępna</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Zainstaluj pakiet kimageformat6-plugins, który udostępnia bibliotece Qt odczyt formatu HEIF, i uruchom ponownie Zelmora Atelier.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>Rozszerzenia obrazów HEIF</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>Rozszerzenia wideo HEVC</translation>
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
        <translation>Warstwa malarska</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Kształt</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Warstwa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
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
        <translation>&amp;Język</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>Uruchom ponownie Zelmora Atelier, aby zastosować wszystkie zmiany.</translation>
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
        <translation>&amp;Obraz</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Wstaw obraz jako nową warstwę</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Wstaw &amp;przykładowy obraz</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Tekst</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Wstaw warstwę tekstową</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Kształt</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Wstaw kształt lub naklejkę</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>&amp;Nowa warstwa malarska</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Pokaż warstwę</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Ukryj warstwę</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>Przenieś warstwę w &amp;górę</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Przenieś warstwę w &amp;dół</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>&amp;Usuń warstwę</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>&amp;Rasteryzuj warstwę</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>&amp;Scal z warstwą poniżej</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Podstawowe</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Krawędzie</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Kolorowanie, tony, efekty</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Transfery stylu</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Ramki</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Fotomontaże, zabawa i sztuka</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>Brokat i błyskotki</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Efekt</translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Krycie</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Tryb mieszania</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Tryb mieszania</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Warstwy</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Warstwa</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Wybierz warstwę, aby nią zarządzać.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Warstwy</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Brak warstw.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Warstwa %1, ukryta</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Warstwa %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>Ma zaznaczenie rastrowe</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Pokaż warstwę</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Ukryj warstwę</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>Scal z warstwą poniżej</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Wygląd warstwy</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Rodzaj</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Położenie</translation>
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
        <translation>Błyskawica</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Wygięcie</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Pokaż w Finderze</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Pokaż w Eksploratorze</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Obraz wyeksportowano do %1.
Edytowalny dokument zapisano jako %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Nie można otworzyć folderu zawierającego obraz.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Poczekaj na zakończenie bieżącego zapisu.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Zaznaczenie</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Widok</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Linijki</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>Położenie &amp;inspektora</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Motyw</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>W&amp;arstwa</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Wstaw</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Obraz…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Tekst</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;Kształt…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Główny pasek narzędzi</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Więcej sposobów zapisu</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Więcej historii</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Wstaw:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Przenieś warstwę w górę</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Przenieś warstwę w dół</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Ekran</translation>
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
        <translation>Społecznościowe</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Kwadrat</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Relacja</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation>Zdjęcie 3:2</translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation>Zdjęcie 4:3</translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation>Druk, 300 ppi</translation>
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
        <translation>Nowy dokument</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Ustawienia wstępne</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 Mpx</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Zamień szerokość z wysokością</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Tło</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Biały</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Czarny</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Przezroczysty</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Własny</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Wybierz kolor tła</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Utwórz</translation>
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
        <translation>%1, %2 na %3 pikseli</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Licencje</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Błąd shadera</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Program: %1
Etap: %2
Zasób: %3
Cel: %4
Dziennik:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>wierzchołki</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>fragmenty</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;brak&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;pusty dziennik kompilatora&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>Kompilacja shadera wierzchołków nie powiodła się</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Kompilacja shadera fragmentów nie powiodła się</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Nie można wczytać shadera</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>Program: %1
Cel wierzchołków: %2
Cel fragmentów: %3
Dziennik:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;pusty dziennik konsolidatora&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Konsolidacja shadera nie powiodła się</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>Nie można otworzyć %1: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Nieprawidłowy zserializowany shader QSB: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>Brak zgodnego wariantu GLSL w %1. Wypróbowano: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Maluj obraz</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Plama farby</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Długość</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Kolce</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Wybierz</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Brak pasujących elementów.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>Kategorie</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>Wielokąt</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Boki</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Otwórz o&amp;statnie</translation>
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
        <translation>Usuń: %1</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Obiekt</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>Nazwa warstwy</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Zmień nazwę obiektu</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Rasteryzuj warstwę</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Zmień rozmiar obrazu</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Zmień rozmiar tekstu</translation>
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
        <translation>Promień narożnika</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>W poziomie</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>W pionie</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>Wstążka</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Głębokość</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>Prostokąt</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
</context>
<context>
    <name>SceneObjectAdapter</name>
    <message>
        <source>Normal</source>
        <translation>Zwykły</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Mnożenie</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Mnożenie odwrotności</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Nakładka</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Ciemniej</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Jaśniej</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Rozjaśnianie</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Ściemnianie</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Ostre światło</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Łagodne światło</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Różnica</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Wykluczenie</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Barwa</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Nasycenie</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Jasność</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>Zaznaczenie &amp;prostokątne</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Utwórz prostokątne zaznaczenie rastrowe</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>Zaznaczenie &amp;eliptyczne</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Utwórz eliptyczne zaznaczenie rastrowe</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>Magiczna &amp;różdżka</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Zaznacz ciągły obszar koloru</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>Zaznaczenie &amp;wielokątne</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Edytuj ścieżkę zaznaczenia rastrowego</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>Wyczyść zaznaczenie rastrowe</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>&amp;Odwróć zaznaczenie rastrowe</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>Wyo&amp;drębnij zaznaczenie na nową warstwę</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>W&amp;yczyść zaznaczenie rastrowe</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Zmień tło dokumentu</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Zmień tryb mieszania</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Pokaż warstwę</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Ukryj warstwę</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Wstaw kształt lub naklejkę</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Szukaj kształtów i naklejek</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Brak pasujących kształtów i naklejek.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Wstaw</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>maska, wycinanka, kadrowanie, kształt</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Położenie</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Ustaw kształt</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Kształt</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Zmiękczenie krawędzi</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Odwróć</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Edytor kształtu</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Przytnij do kształtu</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Odznaka tarcza</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Ostrze</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Wybierz warstwę, aby edytować jej przekształcenie.</translation>
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
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Zachowaj proporcje</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Odbij</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Odbij w poziomie</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Odbij w pionie</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Obrót</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Kąt</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>Oś obrotu X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Oś obrotu Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Pochylenie</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Rozpocznij pochylanie</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Pochylenie X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Pochylenie Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Przełącz jednostkę rozmiaru</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Dymek</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Ogonek</translation>
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
        <translation>Kleks</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Forma</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Gwiazda</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Ramiona</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Wierzchołek</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>Pasek stanu</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>Warstwa: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Nie wybrano warstwy</translation>
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
        <translation>Nie można zarejestrować pakietu zasobów tekstur: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Odrzucono niebezpieczną ścieżkę obrazu tekstury: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Nie znaleziono obrazu tekstury: %1 (przeszukano: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>nieznany błąd dekodera obrazów</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>Nie można wczytać obrazu tekstury %1 z %2: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Odrzucono niebezpieczną ścieżkę danych tekstury: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Nie znaleziono danych tekstury: %1 (przeszukano: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Nie znaleziono danych tekstury dla żadnego z kandydatów: %1 (przeszukano: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>nieznany błąd odczytu</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>plik jest pusty</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>Nie można odczytać danych tekstury %1 z %2: %3</translation>
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
        <translation>Myśl</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Ogonek</translation>
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
        <translation>&amp;Zaznacz</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Wybierz warstwy</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>P&amp;ochyl</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>Pochyl wybraną warstwę</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Kadruj</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>Kadruj wybraną warstwę</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>Ś&amp;cieżka</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Edytuj ścieżkę wybranego kształtu lub narysuj nową</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Rysuj</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Rysuj odręcznie pędzlem</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Wymaż</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Wymaż piksele z wybranej warstwy</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>K&amp;lonuj</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Klonuj piksele</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>&amp;Ekspozycja</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Rozjaśniaj lub przyciemniaj piksele pędzlem ekspozycji</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>Wy&amp;pełnij zaznaczenie</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Wypełnij aktywne zaznaczenie rastrowe</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Narzędzia</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Trójkąt</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Boki</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>Zapisać zmiany przed zakończeniem?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>Zapisać zmiany przed utworzeniem nowego dokumentu?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>Zapisać zmiany przed otwarciem innego dokumentu?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>Ten dokument zawiera niezapisane zmiany. Jeśli zakończysz bez zapisywania, zmiany zostaną utracone.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>Ten dokument zawiera niezapisane zmiany. Jeśli utworzysz nowy dokument bez zapisywania, zmiany zostaną utracone.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>Ten dokument zawiera niezapisane zmiany. Jeśli otworzysz inny dokument bez zapisywania, zmiany zostaną utracone.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Zakończ mimo to</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Utwórz mimo to</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Otwórz mimo to</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Powiększ</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Pomni&amp;ejsz</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>&amp;Dopasuj do okna</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Rzeczywisty rozmiar</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>Pełny e&amp;kran</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>Tryb &amp;nieograniczonego płótna</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Wyłączone</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>U &amp;góry i po lewej</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>U &amp;dołu i po prawej</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>Po &amp;lewej</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>Po &amp;prawej</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Systemowy</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Jasny</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Ciemny</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Pomniejsz</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Przywróć powiększenie 100%</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>Winieta</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Promień narożnika</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Otwórz dokument lub obraz</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Wszystkie obsługiwane pliki (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Wszystkie pliki obrazów (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Dokumenty Zelmora (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Wstaw warstwę obrazu</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Zapisz obraz jako</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Nie można otworzyć pliku</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Nie można wstawić obrazu</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Nie można zapisać obrazu</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Zapisywanie…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>Plik .zelmora jest ucięty lub nieczytelny: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>Nie można zdekodować sekcji warstwy .zelmora.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>Plik .zelmora zawiera zduplikowany identyfikator warstwy.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>Pierwsza sekcja .zelmora nie zawiera właściwości dokumentu.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>Sekcja właściwości dokumentu ma nieprawidłowy rozmiar.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>Wersja danych właściwości dokumentu nie jest obsługiwana.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Nagłówek sekcji .zelmora jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>To nie jest dokument .zelmora.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Ta wersja formatu .zelmora nie jest obsługiwana.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>Wymiary dokumentu .zelmora są nieprawidłowe.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>Liczba sekcji .zelmora jest nieprawidłowa.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>Plik .zelmora zawiera zduplikowane właściwości dokumentu.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>Nie można odczytać danych z urządzenia źródłowego.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>Plik .zelmora zawiera nadmiarowe dane na końcu.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>Nie można zapisać pliku .zelmora: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>Sekcja .zelmora jest za duża.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>Dokument zawiera nieobsługiwany obiekt sceny.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>Dokument zawiera zduplikowany identyfikator warstwy.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>Nie można zapisać danych na urządzeniu docelowym.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>Wymiarów dokumentu nie można zapisać w formacie .zelmora.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>Dokument zawiera zbyt wiele warstw.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>brak pamięci</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>brak pamięci podczas zapisywania strumienia bitów</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>brak wymaganego parametru kodera</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>konfiguracja kodera jest nieprawidłowa</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>wymiary obrazu są nieprawidłowe</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>partycja kodera jest za duża</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>nie można zapisać zakodowanych danych</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>zakodowany obraz jest za duży</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>kodowanie zostało anulowane</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>nieznany błąd kodera (kod %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Obrazu nie można przedstawić w formacie WebP.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>Nie można zainicjować kodera WebP.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>Konfiguracja kodera WebP jest nieprawidłowa.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>Nie można przygotować obrazu do kodowania WebP.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>Nie można przygotować obrazu do kodowania WebP: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>Nie można zakodować WebP: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>Koder WebP nie zwrócił żadnych danych.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>Zakodowany obraz WebP jest za duży.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Osadzony obraz WebP ma nieprawidłowe wymiary.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Nie można otworzyć osadzonego obrazu.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>Nie można zdekodować WebP: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Obrazu nie można przedstawić jako surowych danych RGBA.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Surowy obraz RGBA ma nieprawidłowe wymiary.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Surowy obraz RGBA ma nieprawidłową długość w bajtach.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Nie można przydzielić pamięci dla surowego obrazu RGBA.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>Wypełnienie gradientowe używa nieobsługiwanego typu.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>Wypełnienie gradientowe ma nieprawidłowe położenie.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>Wypełnienie gradientowe ma nieprawidłową liczbę punktów.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>Wypełnienie gradientowe ma nieprawidłowy punkt koloru.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>Wypełnienie używa nieobsługiwanego mapowania tekstury.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>Wypełnienie teksturą ma nieprawidłowe przekształcenie.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Identyfikator generatora wypełnienia jest za długi.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>Jednolite wypełnienie zawiera nieoczekiwane dane.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>Rekord wypełnienia teksturą jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>Blok parametrów tekstury zawiera nadmiarowe dane na końcu.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>Przekształcenie lub rozmiar wypełnienia teksturą jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>Rekord wypełnienia gradientowego jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>Rekord wypełnienia jest ucięty lub nieprawidłowy.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>Wypełnienie używa nieznanego mapowania tekstury.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Filtr ma zerowy identyfikator instancji.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>Rekord filtra jest ucięty lub nieprawidłowy.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>Blok parametrów filtra zawiera nadmiarowe dane na końcu.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Identyfikator generatora kształtu jest pusty lub za długi.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>Rekord kształtu parametrycznego jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Identyfikator generatora kształtu jest pusty.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>Kształt parametryczny zawiera nadmiarowe dane na końcu.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>Kształt używa nieznanego typu geometrii.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Warstwa SVG nie ma danych źródłowych.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Warstwa obrazu nie ma obsługiwanego źródła.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>Zaznaczenie rastrowe musi być edytowalną ścieżką.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Warstwa rastrowa ma nieprawidłowe wymiary w pikselach.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Warstwa SVG zawiera wymiary rastrowe.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Warstwa SVG zawiera nieprawidłowe dane SVG.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Warstwa obrazu używa nieznanego kodowania źródła.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Warstwa obrazu ma nieprawidłowe wymiary lub dane.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>Dane warstwy obrazu są nieprawidłowe.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Warstwa obrazu ma nieznane zasady powierzchni rastrowej.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>Dokument zawiera nieobsługiwany typ warstwy.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>Sekcja nie jest obsługiwanym typem warstwy.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Warstwa ma zbyt wiele filtrów.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>Warstwa zawiera zduplikowany identyfikator instancji filtra.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Warstwa ma nieprawidłowe właściwości tożsamości lub przekształcenia.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Nazwa warstwy lub identyfikator trybu mieszania są za długie.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>Typ warstwy nie odpowiada jej zawartości.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>Sekcja warstwy jest za duża.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>Nagłówek danych warstwy jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Warstwa ma pusty identyfikator trybu mieszania.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>Sekcja warstwy zawiera nadmiarowe dane na końcu.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Nie można przywrócić stosu filtrów warstwy.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>Wartość tekstowa parametru jest za długa.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>Lista świateł zawiera zbyt wiele świateł.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>Parametr zasobu ma nieprawidłową długość w bajtach.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>Parametr logiczny jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>Parametr rzeczywisty nie jest skończony.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>Parametr zawiera liczbę nieskończoną.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>Parametr zasobu musi być nazwą pliku, a nie ścieżką.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>Parametr włączanego koloru jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>Parametr obrysu jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>Obrys ma nieprawidłową szerokość.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>Parametr gradientu jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>Gradient zawiera nieskończone położenie.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>Przekształcenie maski jest nieprawidłowe.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>Maska zawiera nieskończone przekształcenie.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>Parametr listy świateł jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>Lista świateł zawiera nieprawidłowe światło.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>Plik .zelmora używa nieznanego typu parametru.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>Wartość parametru ma nieprawidłową długość w bajtach.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>Klucz parametru jest zduplikowany.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>Kolekcja parametrów jest za duża.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Nagłówek parametru jest ucięty.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>Wartość parametru jest ucięta.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>Węzeł edytowalnej ścieżki jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>Identyfikator węzła edytowalnej ścieżki jest zduplikowany.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>Węzeł edytowalnej ścieżki używa nieznanego typu.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>Kontur edytowalnej ścieżki jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>Edytowalna ścieżka ma zbyt wiele konturów.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>Kontur edytowalnej ścieżki ma zbyt wiele węzłów.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>Rekord edytowalnej ścieżki jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>Edytowalna ścieżka zawiera nadmiarowe dane na końcu.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>Plik .zelmora zawiera nieprawidłowy kolor.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>Plik .zelmora zawiera zerowy identyfikator obiektu.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>Klucz rejestru nie jest prawidłowym 7-bitowym tekstem ASCII.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>Klucz rejestru jest pusty lub nie jest zakończony znakiem zerowym.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>Klucz rejestru ma niezerowe dopełnienie.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>Klucz filtra lub parametru nie mieści się w 32-bajtowym polu.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Klucze filtrów i parametrów muszą używać 7-bitowego kodu ASCII.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>Rekord .zelmora przekracza 32-bitowy limit rozmiaru.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Warstwa kształtu ma nieprawidłowe wymiary lub obrys.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>Dane warstwy kształtu są nieprawidłowe.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>Dane warstwy kształtu są ucięte.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Akapit tekstu jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Akapit tekstu używa nieobsługiwanego wyrównania.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Akapit tekstu używa nieobsługiwanego kierunku.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>Rekord akapitu tekstu jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Akapit tekstu używa nieznanego wyrównania.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Akapit tekstu używa nieznanego kierunku.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>Akapit tekstu zawiera nadmiarowe dane na końcu.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Warstwa tekstowa ma nieprawidłowe wymiary lub zbyt wiele akapitów.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>Dane warstwy tekstowej są nieprawidłowe.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>Warstwa tekstowa zawiera nadmiarowe dane na końcu.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Fragment tekstu jest za duży.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>Rekord rodziny czcionek jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>Blok rodzin czcionek zawiera nadmiarowe dane na końcu.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Fragment tekstu używa nieznanego stylu czcionki.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Fragment tekstu używa nieznanego trybu wielkości liter.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Fragment tekstu używa nieznanego trybu odstępów między literami.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Fragment tekstu używa nieznanego trybu hintingu czcionki.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Fragment tekstu nie ma prawidłowego rozmiaru czcionki.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Fragment tekstu ma zbyt wiele rodzin czcionek.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Fragment tekstu ma nieprawidłowe liczbowe właściwości czcionki.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>Rekord fragmentu tekstu jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Fragment tekstu jest ucięty.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>Nie można otworzyć %1 do odczytu: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>Nie można otworzyć %1 do zapisu: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Cel nie jest zwykłym plikiem.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>Nie można dokończyć zapisu %1: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Wyczyść</translation>
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
        <translation>Nie można zastąpić bieżącego dokumentu.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Wybierz istniejący plik.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Nie można otworzyć wybranego pliku obrazu.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>Nie można wczytać wybranego obrazu SVG.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>System Windows nie może zdekodować wybranego obrazu HEIC/HEIF.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Nie można wczytać wybranego pliku obrazu.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>Wybrany obraz nie ma użytecznego rozmiaru.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Nie można utworzyć dokumentu z wybranego obrazu.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Bez tytułu</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Podaj prawidłową szerokość i wysokość.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Nie można utworzyć nowego dokumentu.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Obsługiwane są tylko pliki lokalne.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Przed zapisaniem dokumentu wybierz nazwę pliku.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Zmień rozmiar dokumentu</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Dopasuj granice dokumentu do zawartości</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Przesuń obiekt</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Wybierz istniejący plik obrazu.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier nie może wczytać wybranego obrazu.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Obsługiwane są tylko lokalne pliki obrazów.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>Nie można dodać wybranego obrazu do dokumentu.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Przykład Zelmora</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier nie może wczytać przykładowego obrazu.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>Nie można dodać przykładowego obrazu do dokumentu.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ścieżka</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Nie można jeszcze wyeksportować włączonego filtra transferu stylu. Przed eksportem wyłącz lub usuń ten filtr.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Nie można zakodować podglądu: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>Nie można zakodować zapisywanego obrazu: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>Nie można utworzyć bufora obrazu w pamięci.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>Nie można wyrenderować obrazu.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>Nie można ponownie otworzyć bufora obrazu w pamięci.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Nie można zdekodować zakodowanego podglądu: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>Obrazy JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>Obrazy WebP (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>Obrazy PNG (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Cel nie jest zwykłym plikiem.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>Nie można zapisać obrazu: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Poczekaj na zakończenie bieżącego zapisu.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>Podgląd obrazu nie jest gotowy.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Obsługiwane są tylko lokalne miejsca zapisu.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>Rozszerzenie nazwy pliku nie odpowiada wybranemu formatowi obrazu: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Wybierz nazwę pliku obrazu.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>Obraz został zapisany, ale nie można zapisać edytowalnego pliku .zelmora: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Przed zapisaniem tego obrazu wybierz ustawienia zapisu.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Przed zapisaniem zamknij okno Ustawienia eksportu.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Nie można zapisać edytowalnego pliku .zelmora: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>Koder nie utworzył obrazu.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>Edytowalny plik .zelmora został zapisany, ale nie można zaktualizować obrazu: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Nie można otworzyć folderu zawierającego obraz.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Malowanie</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>Identyfikator SPDX: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Pełny tekst w systemie Debian: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Informacje o prawach autorskich w systemie Debian: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>Licencja MIT</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, wersja 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Rysuje interfejs oraz odczytuje i zapisuje większość formatów obrazów. Łączona dynamicznie, dzięki czemu można ją zastąpić: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs oraz wtyczki formatów obrazów.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt zawiera lub wykorzystuje dzieła innych autorów, między innymi FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 i zlib. Ich noty prawne znajdują się wśród not Qt.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>Licencja BSD z 3 klauzulami</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Koduje obrazy w dokumentach i eksportowane pliki WebP. Łączona dynamicznie, wraz z częścią libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Odnajduje OpenGL sterownika graficznego, który nie jest częścią tego programu. Łączona dynamicznie.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, wersja 3 lub późniejsza, z wyjątkiem GCC Runtime Library Exception</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>Biblioteka standardowa C++ i procedury pomocnicze kompilatora, łączone dynamicznie. Wyjątek pozwala używać ich w programach na dowolnej licencji.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, wersja 2.1 lub późniejsza</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>Systemowa biblioteka C, łączona dynamicznie.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Zmień krycie</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Obróć obiekt</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Przesuń obiekt</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Pochyl obiekt</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Ustaw oś przekształcenia</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Skaluj obiekt</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Odbij w poziomie</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Odbij w pionie</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>Podstawowe</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamiczne</translation>
    </message>
</context>
</TS>
