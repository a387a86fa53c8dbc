<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Лицензии</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>Не найден файловый менеджер, который мог бы показать папку журналов.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Веб-сайт</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Открыть папку журналов</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>Добавление «%1»</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Объект</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>Стрелка</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Остриё</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Хвост</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>Вспышка</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Лучи</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Глубина</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>Занято</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Занято</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>Холст</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>Документ. Перетаскивайте, чтобы сдвинуть вид, вращайте колесо, чтобы изменить масштаб.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>О&amp;граничить холст границами документа</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Растрировать слой</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Облако</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Форма</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Пышность</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Объединение слоёв</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Выбор цвета</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Преобразование фигуры в контур</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Кадрирование изображения</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>&amp;Отладка</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>&amp;Флаги выполнения</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>О&amp;тсутствует кодек HEVC</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>&amp;Просмотр диалогов</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>Справка по HEIF</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Ход сохранения</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Перезапуск для смены языка</translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation>Бриллиант</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>По горизонтали</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>По вертикали</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>Показывать гра&amp;ницы документа</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Размер документа</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Подогнать документ под содержимое</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Выбрать цвет фона документа</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Цвет фона</translation>
    </message>
    <message>
        <source>px</source>
        <translation>пкс</translation>
    </message>
</context>
<context>
    <name>EditActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Отменить: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Повторить: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Вырезать</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Вст&amp;авить</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>Эллипс</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>Округлость</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Середина</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Параметры экспорта</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Формат</translation>
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
        <translation>WebP, прозрачный</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, прозрачный</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>Изображение содержит прозрачность. Чтобы сохранить её, выберите формат с прозрачным фоном.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Сохранять пропорции</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Качество</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Качество в процентах</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>Сжатие PNG</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Макс.</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Файл документа без потерь</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Сохраняет каждый пиксель редактируемого документа; файл получается больше.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Примерный размер изображения:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Вычисление…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Недоступно</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>Вместе с изображением сохраняется редактируемый документ Zelmora (.zelmora).</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Сохранить…</translation>
    </message>
    <message>
        <source>px</source>
        <translation>пкс</translation>
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
        <translation>Кодирование просмотра…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>Загрузка просмотра…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Просмотр</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Уменьшить масштаб</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Увеличить масштаб</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Вписать</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Показать изображение целиком</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Показать изображение в натуральную величину</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 пкс</translation>
    </message>
</context>
<context>
    <name>FadeOutFilter</name>
    <message>
        <source>alpha, fade, gradient, transparent</source>
        <translation>альфа, затухание, градиент, прозрачность</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Линейный</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>Радиальный</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Затухание</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Расположить затухание</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Цвет затухания</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Сила</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Кривая</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Мягкость</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Инвертировать</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Цвет документа</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Плавное затухание</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Создать</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Новый документ</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Открыть…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Открыть документ или изображение</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Со&amp;хранить</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Сохранить изображение и документ</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Сохранить &amp;как…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Выход</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Добавить шум</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Прямоугольное размытие</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Коррекция цвета</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Тонирование</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Плавное затухание</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Размытие по Гауссу</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Оттенки серого</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Света в альфа-канал</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Внутренняя тень</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Пикселизация</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Выпуклость</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Края по Собелю</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Мягкая фаска</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Копирование текстуры</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Тональное отображение</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Отражение в воде</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>Полукруг</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>Полумесяц</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Сердце</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Доли</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Выемка</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Остриё</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier в &amp;Интернете</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>&amp;О программе Zelmora Atelier</translation>
    </message>
</context>
<context>
    <name>ImageLoadErrorDialog</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>HEIC/HEIF Support Is Unavailable</source>
        <translation>Поддержка HEIC/HEIF недоступна</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Установите пакет kimageformat6-plugins, который позволяет Qt читать HEIF, и снова запустите Zelmora Atelier.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>Расширения для изображений HEIF</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>Расширения для видео HEVC</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Document</source>
        <translation>Документ</translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation>Слой рисования</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Фигура</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Слой</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>Инспектор</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;Язык</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>Перезапустите Zelmora Atelier, чтобы все изменения вступили в силу.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>LayerActions</name>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Изображение</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Вставить изображение как новый слой</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Вставить &amp;пример изображения</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Текст</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Вставить текстовый слой</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Фигура</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Вставить фигуру или наклейку</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>&amp;Новый слой рисования</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Показать слой</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Скрыть слой</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>Переместить слой &amp;вверх</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Переместить слой вни&amp;з</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>&amp;Удалить слой</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>&amp;Растрировать слой</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>&amp;Объединить с нижним слоем</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Основные</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Края</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Цвет, тон, спецэффекты</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Перенос стиля</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Рамки</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Фотомонтаж, юмор &amp; искусство</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>Блёстки &amp; блеск</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Эффект</translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Непрозрачность</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Режим наложения</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Режим наложения</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Слои</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Слой</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Выберите слой, чтобы работать с ним.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Слои</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Слоёв пока нет.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Слой %1, скрыт</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Слой %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>Есть растровое выделение</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Показать слой</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Скрыть слой</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>Объединить с нижним слоем</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Вид слоя</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 пкс</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Положение</translation>
    </message>
    <message>
        <source>%1, %2 px</source>
        <translation>%1, %2 пкс</translation>
    </message>
</context>
<context>
    <name>LightningBoltShapeGenerator</name>
    <message>
        <source>Lightning</source>
        <translation>Молния</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Изгиб</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Показать в Finder</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Показать в Проводнике</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Изображение экспортировано в %1.
Редактируемый документ сохранён как %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Не удалось открыть папку с изображением.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Дождитесь завершения текущего сохранения.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>Вы&amp;деление</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Линейки</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>Положение &amp;инспектора</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Тема</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>С&amp;лой</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>Вст&amp;авка</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Изображение…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Текст</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;Фигура…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Главная панель инструментов</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Другие способы сохранения</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Ещё из истории</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Вставить:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Перемещение слоя вверх</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Перемещение слоя вниз</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Экран</translation>
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
        <translation>Соцсети</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Квадрат</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>История</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation>Фото 3:2</translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation>Фото 4:3</translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation>Печать, 300 пикс./дюйм</translation>
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
        <translation>Новый документ</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Заготовки</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 пкс   ·   %3   ·   %4 Мпикс</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Поменять местами ширину и высоту</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Фон</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Белый</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Чёрный</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Прозрачный</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Другой</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Выбор цвета фона</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>px</source>
        <translation>пкс</translation>
    </message>
</context>
<context>
    <name>NewDocumentPreset</name>
    <message>
        <source>%1, %2 by %3 pixels</source>
        <translation>%1, %2 на %3 пикселей</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Лицензии</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Ошибка шейдера</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Программа: %1
Этап: %2
Ресурс: %3
Цель: %4
Журнал:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>вершинный</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>фрагментный</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;нет&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;журнал компилятора пуст&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>Не удалось скомпилировать вершинный шейдер</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Не удалось скомпилировать фрагментный шейдер</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Не удалось загрузить шейдер</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>Программа: %1
Вершинная цель: %2
Фрагментная цель: %3
Журнал:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;журнал компоновщика пуст&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Не удалось скомпоновать шейдер</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>Не удалось открыть %1: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Недопустимый сериализованный шейдер QSB: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>В %1 нет совместимого варианта GLSL. Проверены: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Рисование на изображении</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Пятно краски</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Форма</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Длина</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Шипы</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Ничего не найдено.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>Категории</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>Многоугольник</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Стороны</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Открыть &amp;недавние</translation>
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
        <translation>Удаление «%1»</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Объект</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>Имя слоя</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Переименование объекта</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Растрирование слоя</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Изменение размера изображения</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Изменение размера текста</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>Ромб</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>По горизонтали</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>По вертикали</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>Лента</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Форма</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Глубина</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>Прямоугольник</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
</context>
<context>
    <name>SceneObjectAdapter</name>
    <message>
        <source>Normal</source>
        <translation>Обычный</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Умножение</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Экран</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Перекрытие</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Замена тёмным</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Замена светлым</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Осветление основы</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Затемнение основы</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Жёсткий свет</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Мягкий свет</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Разница</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Исключение</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Цветовой тон</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Насыщенность</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Цветность</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Яркость</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>&amp;Прямоугольное выделение</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Создать прямоугольное растровое выделение</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>&amp;Эллиптическое выделение</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Создать эллиптическое растровое выделение</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>&amp;Волшебная палочка</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Выделить смежную область одного цвета</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>&amp;Многоугольное выделение</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Изменить контур растрового выделения</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>Снять растровое выделение</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>&amp;Инвертировать растровое выделение</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>Извлечь выделение в &amp;новый слой</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>&amp;Снять растровое выделение</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Изменение фона документа</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Изменение режима наложения</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Показ слоя</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Скрытие слоя</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Вставка фигуры или наклейки</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Поиск фигур и наклеек</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Подходящих фигур и наклеек нет.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Вставить</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>маска, вырезка, кадрирование, фигура</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Положение</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Расположить фигуру</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Фигура</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Контур</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Растушёвка</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Инвертировать</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Редактор фигур</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Вырезать по фигуре</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Щит</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Форма</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Остриё</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Выберите слой, чтобы изменить его трансформацию.</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Геометрия</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>px</source>
        <translation>пкс</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Ширина</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Высота</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Сохранять соотношение сторон</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Отражение</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Отразить по горизонтали</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Отразить по вертикали</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Поворот</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Угол</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>град.</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>Опорная точка X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Опорная точка Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Наклон</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Начать наклон</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Наклон X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Наклон Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Сменить единицу размера</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Реплика</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Указатель</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Форма</translation>
    </message>
</context>
<context>
    <name>SplodgeShapeGenerator</name>
    <message>
        <source>Splodge</source>
        <translation>Клякса</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Форма</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Звезда</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Шипы</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Остриё</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>Строка состояния</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>Слой: %1 × %2 пкс</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Слой не выбран</translation>
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
        <translation>Текст</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>Не удалось зарегистрировать набор ресурсов текстур: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Отклонён небезопасный путь к изображению текстуры: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Изображение текстуры не найдено: %1 (искали в: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>неизвестная ошибка декодера изображений</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>Не удалось загрузить изображение текстуры %1 из %2: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Отклонён небезопасный путь к данным текстуры: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Данные текстуры не найдены: %1 (искали в: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Данные текстуры не найдены ни для одного варианта: %1 (искали в: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>неизвестная ошибка чтения</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>файл пуст</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>Не удалось загрузить данные текстуры %1 из %2: %3</translation>
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
        <translation>Мысль</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Остриё</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Форма</translation>
    </message>
</context>
<context>
    <name>ToolModeActions</name>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Выбор</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Выбор слоёв</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>&amp;Наклон</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>Наклонить выбранный слой</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Кадрирование</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>Кадрировать выбранный слой</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>К&amp;онтур</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Изменить контур выбранной фигуры или нарисовать новый</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Рисование</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Рисовать кистью от руки</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Стирание</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Стереть пиксели выбранного слоя</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>К&amp;лонирование</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Клонировать пиксели</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>&amp;Экспозиция</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Осветлить или затемнить пиксели кистью экспозиции</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>&amp;Залить выделение</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Залить активное растровое выделение</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Инструменты</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Треугольник</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Стороны</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>Сохранить изменения перед выходом?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>Сохранить изменения перед созданием нового документа?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>Сохранить изменения перед открытием другого документа?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>В документе есть несохранённые изменения. Если выйти без сохранения, они будут потеряны.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>В документе есть несохранённые изменения. Если создать новый документ без сохранения, они будут потеряны.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>В документе есть несохранённые изменения. Если открыть другой документ без сохранения, они будут потеряны.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Всё равно выйти</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Всё равно создать</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Всё равно открыть</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>У&amp;величить</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>У&amp;меньшить</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>Вписать в &amp;окно</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Фактический размер</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>&amp;Полноэкранный режим</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>Режим неограниченного &amp;холста</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Скрыть</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>Сверху и с&amp;лева</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>Снизу и с&amp;права</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Слева</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>С&amp;права</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>С&amp;истемная</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Светлая</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Тёмная</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Увеличить масштаб</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Уменьшить масштаб</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Сбросить масштаб до 100%</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>Виньетка</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Радиус углов</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Открытие документа или изображения</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Все поддерживаемые файлы (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Все файлы изображений (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Документы Zelmora (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Вставка слоя изображения</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Сохранение изображения как</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Не удалось открыть файл</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Не удалось вставить изображение</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Не удалось сохранить изображение</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Сохранение…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>Файл .zelmora обрезан или не читается: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>Не удалось декодировать раздел слоя в файле .zelmora.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>В файле .zelmora повторяется идентификатор слоя.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>Первый раздел .zelmora не содержит свойств документа.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>Раздел свойств документа имеет недопустимый размер.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>Версия данных свойств документа не поддерживается.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Недопустимый заголовок раздела .zelmora.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Это не документ .zelmora.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Эта версия формата .zelmora не поддерживается.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>Недопустимые размеры документа .zelmora.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>Недопустимое число разделов .zelmora.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>В файле .zelmora повторяются свойства документа.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>Исходное устройство недоступно для чтения.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>В конце файла .zelmora есть лишние данные.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>Не удалось записать файл .zelmora: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>Раздел .zelmora слишком велик.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>Документ содержит неподдерживаемый объект сцены.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>В документе повторяется идентификатор слоя.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>Целевое устройство недоступно для записи.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>Размеры документа нельзя сохранить в формате .zelmora.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>В документе слишком много слоёв.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>недостаточно памяти</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>недостаточно памяти при записи потока данных</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>отсутствует обязательный параметр кодировщика</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>недопустимая конфигурация кодировщика</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>недопустимые размеры изображения</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>раздел кодировщика слишком велик</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>не удалось записать закодированные данные</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>закодированное изображение слишком велико</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>кодирование отменено</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>неизвестная ошибка кодировщика (код %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Изображение нельзя представить в формате WebP.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>Не удалось инициализировать кодировщик WebP.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>Недопустимая конфигурация кодировщика WebP.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>Не удалось подготовить изображение к кодированию в WebP.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>Не удалось подготовить изображение к кодированию в WebP: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>Не удалось закодировать WebP: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>Кодировщик WebP не выдал данных.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>Закодированное изображение WebP слишком велико.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Встроенное изображение WebP имеет недопустимые размеры.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Не удалось открыть встроенное изображение.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>Не удалось декодировать WebP: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Изображение нельзя представить в виде необработанных данных RGBA.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Необработанное изображение RGBA имеет недопустимые размеры.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Необработанное изображение RGBA имеет недопустимую длину в байтах.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Не удалось выделить память для необработанного изображения RGBA.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>Градиентная заливка имеет неподдерживаемый тип.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>Градиентная заливка имеет недопустимое положение.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>Градиентная заливка имеет недопустимое число опорных точек.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>Градиентная заливка имеет недопустимую опорную точку цвета.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>Заливка использует неподдерживаемое наложение текстуры.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>Недопустимая трансформация текстурной заливки.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Идентификатор генератора заливки слишком длинный.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>Сплошная заливка содержит непредвиденные данные.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>Недопустимая запись текстурной заливки.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>В конце блока параметров текстуры есть лишние данные.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>Недопустимая трансформация или размер текстурной заливки.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>Недопустимая запись градиентной заливки.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>Запись заливки обрезана или недопустима.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>Заливка использует неизвестное наложение текстуры.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>У фильтра пустой идентификатор экземпляра.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>Запись фильтра обрезана или недопустима.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>В конце блока параметров фильтра есть лишние данные.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Идентификатор генератора фигуры пуст или слишком длинный.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>Недопустимая запись параметрической фигуры.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Идентификатор генератора фигуры пуст.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>В конце параметрической фигуры есть лишние данные.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>Фигура использует неизвестный тип геометрии.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>У слоя SVG нет исходных данных.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>У слоя изображения нет поддерживаемого источника.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>Растровое выделение должно быть редактируемым контуром.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Растровый слой имеет недопустимые размеры в пикселях.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Слой SVG содержит растровые размеры.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Слой SVG содержит недопустимые данные SVG.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Слой изображения использует неизвестную исходную кодировку.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Слой изображения имеет недопустимые размеры или данные.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>Недопустимые данные слоя изображения.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>У слоя изображения неизвестное правило растровой поверхности.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>Документ содержит слой неподдерживаемого типа.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>Тип слоя в разделе не поддерживается.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>У слоя слишком много фильтров.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>В слое повторяется идентификатор экземпляра фильтра.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>У слоя недопустимые свойства идентификации или трансформации.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Имя слоя или идентификатор режима наложения слишком длинные.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>Тип слоя не соответствует его содержимому.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>Раздел слоя слишком велик.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>Недопустимый заголовок данных слоя.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>У слоя пустой идентификатор режима наложения.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>В конце раздела слоя есть лишние данные.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Не удалось восстановить набор фильтров слоя.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>Строковое значение параметра слишком длинное.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>В списке источников света слишком много элементов.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>Параметр ресурса имеет недопустимую длину в байтах.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>Недопустимый логический параметр.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>Вещественный параметр не является конечным числом.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>Параметр содержит неконечное число.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>Параметр ресурса должен быть именем файла, а не путём.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>Недопустимый параметр включаемого цвета.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>Недопустимый параметр обводки.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>Обводка имеет недопустимую толщину.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>Недопустимый параметр градиента.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>Градиент содержит неконечное положение.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>Недопустимая трансформация маски.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>Маска содержит неконечную трансформацию.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>Недопустимый параметр списка источников света.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>Список источников света содержит недопустимый источник.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>Файл .zelmora использует неизвестный тип параметра.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>Значение параметра имеет недопустимую длину в байтах.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>Ключ параметра повторяется.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>Набор параметров слишком велик.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Заголовок параметра обрезан.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>Значение параметра обрезано.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>Недопустимый узел редактируемого контура.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>Идентификатор узла редактируемого контура повторяется.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>Узел редактируемого контура имеет неизвестный тип.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>Недопустимый субконтур редактируемого контура.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>В редактируемом контуре слишком много субконтуров.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>В субконтуре редактируемого контура слишком много узлов.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>Недопустимая запись редактируемого контура.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>В конце редактируемого контура есть лишние данные.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>Файл .zelmora содержит недопустимый цвет.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>Файл .zelmora содержит пустой идентификатор объекта.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>Ключ реестра не является допустимым 7-битным ASCII.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>Ключ реестра пуст или не завершён нулевым символом.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>Ключ реестра дополнен ненулевыми байтами.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>Ключ фильтра или параметра не помещается в 32-байтовое поле.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Ключи фильтров и параметров должны состоять из 7-битных символов ASCII.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>Запись .zelmora превышает 32-битный предел размера.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>У слоя фигуры недопустимые размеры или обводка.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>Недопустимые данные слоя фигуры.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>Данные слоя фигуры обрезаны.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Недопустимый абзац текста.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Абзац текста использует неподдерживаемое выравнивание.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Абзац текста использует неподдерживаемое направление.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>Недопустимая запись абзаца текста.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Абзац текста использует неизвестное выравнивание.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Абзац текста использует неизвестное направление.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>В конце абзаца текста есть лишние данные.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>У текстового слоя недопустимые размеры или слишком много абзацев.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>Недопустимые данные текстового слоя.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>В конце текстового слоя есть лишние данные.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Фрагмент текста слишком велик.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>Недопустимая запись семейства шрифтов.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>В конце блока семейств шрифтов есть лишние данные.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Фрагмент текста использует неизвестное начертание шрифта.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Фрагмент текста использует неизвестный режим регистра букв.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Фрагмент текста использует неизвестный режим межбуквенного интервала.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Фрагмент текста использует неизвестный режим хинтинга шрифта.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>У фрагмента текста нет допустимого размера шрифта.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>У фрагмента текста слишком много семейств шрифтов.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>У фрагмента текста недопустимые числовые свойства шрифта.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>Недопустимая запись фрагмента текста.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Фрагмент текста обрезан.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>Не удалось открыть %1 для чтения: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>Не удалось открыть %1 для записи: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Указанный объект не является обычным файлом.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>Не удалось завершить запись %1: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
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
        <translation>Не удалось заменить текущий документ.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Выберите существующий файл.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Не удалось открыть выбранный файл изображения.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>Не удалось загрузить выбранное изображение SVG.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows не удалось декодировать выбранное изображение HEIC/HEIF.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Не удалось загрузить выбранный файл изображения.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>Размер выбранного изображения непригоден.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Не удалось создать документ из выбранного изображения.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Без названия</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Введите допустимые ширину и высоту.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Не удалось создать новый документ.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Поддерживаются только локальные файлы.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Прежде чем сохранить документ, выберите имя файла.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Изменение размера документа</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Подгонка границ документа под содержимое</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Перемещение объекта</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Выберите существующий файл изображения.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier не удалось загрузить выбранное изображение.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Поддерживаются только локальные файлы изображений.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>Не удалось добавить выбранное изображение в документ.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Пример Zelmora</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier не удалось загрузить пример изображения.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>Не удалось добавить пример изображения в документ.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Контур</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Включённый фильтр переноса стиля пока нельзя экспортировать. Отключите или удалите фильтр перед экспортом.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Не удалось закодировать просмотр: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>Не удалось закодировать сохраняемое изображение: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>Не удалось создать буфер изображения в памяти.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>Не удалось отрисовать изображение.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>Не удалось повторно открыть буфер изображения в памяти.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Не удалось декодировать закодированный просмотр: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>Изображения JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>Изображения WebP (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>Изображения PNG (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Указанный объект не является обычным файлом.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>Не удалось сохранить изображение: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Дождитесь завершения текущего сохранения.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>Просмотр изображения ещё не готов.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Сохранять можно только в локальные папки.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>Расширение имени файла не соответствует выбранному формату изображения: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Выберите имя файла для изображения.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>Изображение сохранено, но не удалось сохранить редактируемый файл .zelmora: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Прежде чем сохранить это изображение, выберите параметры сохранения.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Прежде чем сохранять, закройте окно «Параметры экспорта».</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Не удалось сохранить редактируемый файл .zelmora: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>Кодировщик не создал изображение.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>Редактируемый файл .zelmora сохранён, но не удалось обновить изображение: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Не удалось открыть папку с изображением.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Рисунок</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>Идентификатор SPDX: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Полный текст в Debian: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Уведомления об авторских правах в Debian: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>Лицензия MIT</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, версия 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Отображает интерфейс, читает и записывает большинство форматов изображений. Подключается динамически, поэтому может быть заменён: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs и модули форматов изображений.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt включает или использует чужие разработки, в том числе FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 и zlib. Их уведомления приводятся вместе с уведомлениями Qt.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>Лицензия BSD из 3 пунктов</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Кодирует изображения в документах и экспортируемые файлы WebP. Подключается динамически вместе со своей частью libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Находит OpenGL графического драйвера, который не входит в эту программу. Подключается динамически.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, версия 3 или более поздняя, с исключением для библиотеки времени выполнения GCC</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>Стандартная библиотека C++ и вспомогательные процедуры компилятора, подключаемые динамически. Исключение позволяет использовать их программам под любой лицензией.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, версия 2.1 или более поздняя</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>Системная библиотека C, подключаемая динамически.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Изменение непрозрачности</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Поворот объекта</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Перемещение объекта</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Наклон объекта</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Установка опорной точки трансформации</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Масштабирование объекта</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Отражение по горизонтали</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Отражение по вертикали</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>Основные</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Динамические</translation>
    </message>
</context>
</TS>
