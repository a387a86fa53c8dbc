<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Lisanslar</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>Günlük klasörünü gösterecek bir dosya yöneticisi yok.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Web sitesi</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Günlük Klasörünü Aç</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>%1 Ekle</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Nesne</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Uç</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Kuyruk</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>Patlama</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Işınlar</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Derinlik</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>Meşgul</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Meşgul</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>Tuval</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>Belge. Görünümü taşımak için sürükleyin, yakınlaştırmak için tekerleği çevirin.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>&amp;Tuvali Belge Sınırlarıyla Kısıtla</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Katmanı Rasterleştir</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Bulut</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Biçim</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Kabarıklık</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Katmanları Birleştir</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Renk Seç</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Şekli Yola Dönüştür</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Görüntüyü Kırp</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>&amp;Hata Ayıklama</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>Çalışma &amp;Zamanı Bayrakları</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>&amp;Eksik HEVC Kodeki</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>İletişim &amp;Kutusu Önizlemeleri</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>HEIF Yardımı</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Kaydetme İlerlemesi</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Dil İçin Yeniden Başlatma</translation>
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
        <translation>Köşe Yarıçapı</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Yatay</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Dikey</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>&amp;Belge Sınırlarını Göster</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Belge Boyutu</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Genişlik</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Yükseklik</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Belgeyi İçeriğe Sığdır</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arka Plan</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Renk</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Belgenin Arka Plan Rengini Seç</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Arka plan rengi</translation>
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
        <translation>&amp;Geri Al</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Geri Al: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Geri Al</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Yinele: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Yinele</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>K&amp;es</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopyala</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ya&amp;pıştır</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>Elips</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>Yuvarlaklık</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Orta</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Dışa Aktarma Ayarları</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Biçim</translation>
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
        <translation>WebP, saydam</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, saydam</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>Bu görüntü saydamlık içeriyor. Saydamlığı korumak için saydam arka planlı bir biçim seçin.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Genişlik</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Oranları koru</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Yükseklik</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kalite</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Yüzde olarak kalite</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>PNG sıkıştırması</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>En fazla</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Kayıpsız belge dosyası</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Düzenlenebilir belgenin her pikselini daha büyük bir dosyada korur.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Tahmini Görüntü Boyutu:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Hesaplanıyor…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Kullanılamıyor</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>Görüntüyle birlikte düzenlenebilir bir Zelmora belgesi (.zelmora) kaydedilir.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Kaydet…</translation>
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
        <translation>Önizleme kodlanıyor…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>Önizleme yükleniyor…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Önizleme</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uzaklaştır</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%%1</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Yakınlaştır</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Sığdır</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Görüntünün tamamını göster</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Görüntüyü kendi boyutunda göster</translation>
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
        <translation>alfa, solma, degrade, saydam</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Doğrusal</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>Dairesel</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Solma</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Solmayı Konumlandır</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Solma rengi</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Güç</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Eğri</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Yumuşaklık</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Ters Çevir</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Belge rengi</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Soldur</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Yeni</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Yeni belge</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Aç…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Belge veya görüntü aç</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Kaydet</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Görüntüyü ve belgeyi kaydet</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>&amp;Farklı Kaydet…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Çık</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Gürültü ekle</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Kutu bulanıklığı</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Renk ayarı</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Renklendir</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Soldur</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Gauss bulanıklığı</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Gri tonlama</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Parlak alanları alfaya dönüştür</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>İç gölge</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Pikselleştir</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Kabart</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Sobel kenarları</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Yumuşak eğim</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Doku kopyası</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Ton eşleme</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Su yansıması</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>Yarım Daire</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>Hilal</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Kalp</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Loblar</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Çentik</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Uç</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier &amp;Web’de</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>Zelmora Atelier &amp;Hakkında</translation>
    </message>
</context>
<context>
    <name>ImageLoadErrorDialog</name>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>HEIC/HEIF Support Is Unavailable</source>
        <translation>HEIC/HEIF Desteği Kullanılamıyor</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Qt’ye HEIF okuyucusu sağlayan kimageformat6-plugins paketini kurun ve Zelmora Atelier programını yeniden başlatın.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>HEIF Görüntü Uzantıları</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>HEVC Video Uzantıları</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Document</source>
        <translation>Belge</translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation>Boyama Katmanı</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Görüntü</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Şekil</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Katman</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>Denetçi</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>Di&amp;l</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>Tüm değişikliklerin etkili olması için Zelmora Atelier programını yeniden başlatın.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
</context>
<context>
    <name>LayerActions</name>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Görüntü</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Yeni katman olarak görüntü ekle</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Örnek &amp;Görüntü Ekle</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Metin</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Metin katmanı ekle</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Şekil</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Şekil veya çıkartma ekle</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>&amp;Yeni Boyama Katmanı</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Katmanı Göster</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Katmanı Gizle</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>Katmanı Y&amp;ukarı Taşı</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Katmanı &amp;Aşağı Taşı</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>Katmanı Kal&amp;dır</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>Katmanı Ra&amp;sterleştir</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>Alttaki Katmanla &amp;Birleştir</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Temel</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kenarlar</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Renk, Ton, Efekt</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Stil Aktarımları</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Çerçeveler</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Fotomontaj, Eğlence ve Sanat</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>Işıltı ve Parıltı</translation>
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
        <translation>Ad</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opaklık</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%%1</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Karıştırma Modu</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Karıştırma modu</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Katmanlar</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Yeniden Adlandır</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Katman</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Yönetmek için bir katman seçin.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Katmanlar</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Henüz katman yok.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Katman %1, gizli</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Katman %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>Raster seçimi var</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Katmanı göster</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Katmanı gizle</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>Alttaki katmanla birleştir</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Katmanın görünüşü</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Konum</translation>
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
        <translation>Şimşek</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Bükülme</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Finder’da Göster</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Gezgin’de Göster</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Görüntü şuraya aktarıldı: %1.
Düzenlenebilir belge şu adla kaydedildi: %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Görüntünün bulunduğu klasör açılamadı.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Lütfen geçerli kaydetme işleminin bitmesini bekleyin.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Dü&amp;zen</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Seç</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Görünüm</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Cetveller</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>&amp;Denetçi Konumu</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>T&amp;ema</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Katman</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Ekle</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Görüntü…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Metin</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;Şekil…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Yardım</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Ana araç çubuğu</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Diğer kaydetme yolları</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Geçmişin devamı</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Ekle:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Katmanı Yukarı Taşı</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Katmanı Aşağı Taşı</translation>
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
        <translation>Sosyal Medya</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Kare</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Hikâye</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Fotoğraf</translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation>Fotoğraf 3:2</translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation>Fotoğraf 4:3</translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation>Baskı, 300 ppi</translation>
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
        <translation>Yeni Belge</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Ön Ayarlar</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 megapiksel</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Genişlik</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Genişlik ile yüksekliği değiştir</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Yükseklik</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arka Plan</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Beyaz</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Siyah</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Saydam</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Özel</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Arka Plan Rengini Seç</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Oluştur</translation>
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
        <translation>%1, %2 × %3 piksel</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Lisanslar</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Gölgelendirici hatası</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Program: %1
Aşama: %2
Kaynak: %3
Hedef: %4
Günlük:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>köşe</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>parça</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;yok&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;boş derleyici günlüğü&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>Köşe gölgelendiricisi derlenemedi</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Parça gölgelendiricisi derlenemedi</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Gölgelendirici yüklenemedi</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>Program: %1
Köşe hedefi: %2
Parça hedefi: %3
Günlük:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;boş bağlayıcı günlüğü&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Gölgelendirici bağlanamadı</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>%1 açılamadı: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Geçersiz serileştirilmiş QSB gölgelendiricisi: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>%1 içinde uyumlu bir GLSL çeşidi yok. Denenenler: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Görüntüyü Boya</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Boya Lekesi</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Biçim</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Uzunluk</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Dikenler</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Seç</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Eşleşen öğe yok.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>Kategoriler</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>Çokgen</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Kenarlar</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Son Kullanılanları Aç</translation>
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
        <translation>%1 Kaldır</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Nesne</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>Katman adı</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Nesneyi Yeniden Adlandır</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Katmanı Rasterleştir</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Görüntüyü Yeniden Boyutlandır</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Metni Yeniden Boyutlandır</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>Eşkenar Dörtgen</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Yatay</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Dikey</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>Kurdele</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Biçim</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Derinlik</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>Dikdörtgen</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
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
        <translation>Çoğalt</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Ekran</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Kaplama</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Koyulaştır</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Açıklaştır</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Renk Soldurma</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Renk Yakma</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Sert Işık</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Yumuşak Işık</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Fark</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Dışlama</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Renk Tonu</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Doygunluk</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Renk</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Parlaklık</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>&amp;Dikdörtgen Seçim</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Dikdörtgen bir raster seçim oluştur</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>&amp;Elips Seçim</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Elips biçiminde bir raster seçim oluştur</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>&amp;Sihirli Değnekle Seçim</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Bitişik bir renk bölgesi seç</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>Ço&amp;kgen Seçim</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Raster seçimin yolunu düzenle</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>Raster seçimi temizle</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>Raster Seçimi &amp;Tersine Çevir</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>Seçimi &amp;Yeni Katmana Çıkar</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>Raster Seçimi Te&amp;mizle</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Belge Arka Planını Değiştir</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Karıştırma Modunu Değiştir</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Katmanı Göster</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Katmanı Gizle</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Şekil veya Çıkartma Ekle</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Şekil ve çıkartma ara</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Eşleşen şekil veya çıkartma yok.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Ekle</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>maske, dekupe, kırpma, şekil</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Konum</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Şekli Konumlandır</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Şekil</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Dış Çizgi</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Geçiş Yumuşatma</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Ters Çevir</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Şekil Düzenleyici</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Şekle Göre Kes</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Kalkan Rozeti</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Biçim</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Uç</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Dönüşümünü düzenlemek için bir katman seçin.</translation>
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
        <translation>Genişlik</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Yükseklik</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>En Boy Oranını Koru</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Çevir</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Yatay Çevir</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Dikey Çevir</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Döndürme</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Açı</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>Eksen X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Eksen Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Eğriltme</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Eğriltmeyi başlat</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Eğriltme X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Eğriltme Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Boyut birimini değiştir</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Konuşma</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Kuyruk</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Biçim</translation>
    </message>
</context>
<context>
    <name>SplodgeShapeGenerator</name>
    <message>
        <source>Splodge</source>
        <translation>Leke</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Biçim</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Yıldız</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Kollar</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Uç</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>Durum çubuğu</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>Katman: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Katman seçilmedi</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%%1</translation>
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
        <translation>Metin</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>Doku kaynak paketi kaydedilemedi: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Güvenli olmayan doku görüntüsü yolu reddedildi: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Doku görüntüsü bulunamadı: %1 (aranan yerler: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>bilinmeyen görüntü kod çözücü hatası</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>%1 doku görüntüsü yüklenemedi (%2): %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Güvenli olmayan doku verisi yolu reddedildi: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Doku verisi bulunamadı: %1 (aranan yerler: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Hiçbir aday için doku verisi bulunamadı: %1 (aranan yerler: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>bilinmeyen okuma hatası</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>dosya boş</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>%1 doku verisi okunamadı (%2): %3</translation>
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
        <translation>Düşünce</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Uç</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Biçim</translation>
    </message>
</context>
<context>
    <name>ToolModeActions</name>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Seç</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Katmanları seç</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>Eğ&amp;rilt</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>Seçili katmanı eğrilt</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Kırp</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>Seçili katmanı kırp</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Yol</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Seçili şeklin yolunu düzenle veya yeni bir yol çiz</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>Çi&amp;z</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Serbest fırçayla çiz</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>Si&amp;l</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Seçili katmandan pikselleri sil</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>Klo&amp;nla</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Pikselleri klonla</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>&amp;Pozlama</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Pozlama fırçasıyla pikselleri açıklaştır veya koyulaştır</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>Seçimi &amp;Doldur</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Etkin raster seçimi doldur</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Araçlar</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Üçgen</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Kenarlar</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>Çıkmadan önce değişiklikler kaydedilsin mi?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>Yeni belge oluşturmadan önce değişiklikler kaydedilsin mi?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>Başka bir belge açmadan önce değişiklikler kaydedilsin mi?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>Bu belgede kaydedilmemiş değişiklikler var. Kaydetmeden çıkarsanız değişiklikleriniz kaybolur.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>Bu belgede kaydedilmemiş değişiklikler var. Kaydetmeden yeni bir belge oluşturursanız değişiklikleriniz kaybolur.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>Bu belgede kaydedilmemiş değişiklikler var. Kaydetmeden başka bir belge açarsanız değişiklikleriniz kaybolur.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Yine de Çık</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Yine de Oluştur</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Yine de Aç</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Yakınlaştır</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Uzaklaştır</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>&amp;Pencereye Sığdır</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>&amp;Gerçek Boyut</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>Ta&amp;m Ekran</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>&amp;Sınırsız Tuval Modu</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Kapalı</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>Üst ve &amp;Sol</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>&amp;Alt ve Sağ</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Sol</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>S&amp;ağ</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Sistem</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Açık</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Koyu</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Yakınlaştır</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uzaklaştır</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Yakınlaştırmayı yüzde yüze sıfırla</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>Vinyet</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Köşe Yarıçapı</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Belge veya Görüntü Aç</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Desteklenen tüm dosyalar (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Tüm görüntü dosyaları (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Zelmora belgeleri (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Görüntü Katmanı Ekle</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Görüntüyü Farklı Kaydet</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Dosya Açılamadı</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Görüntü Eklenemedi</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Görüntü Kaydedilemedi</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Kaydediliyor…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>.zelmora dosyası yarım veya okunamıyor: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>Bir .zelmora katman bölümünün kodu çözülemedi.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>.zelmora dosyası yinelenen bir katman kimliği içeriyor.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>İlk .zelmora bölümü belge özellikleri değil.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>Belge özellikleri bölümünün boyutu geçersiz.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>Belge özellikleri verisinin sürümü desteklenmiyor.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Bir .zelmora bölüm başlığı geçersiz.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Bu bir .zelmora belgesi değil.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Bu .zelmora biçim sürümü desteklenmiyor.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>.zelmora belgesinin boyutları geçersiz.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>.zelmora bölüm sayısı geçersiz.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>.zelmora dosyası yinelenen belge özellikleri içeriyor.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>Kaynak aygıt okunamıyor.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>.zelmora dosyasının sonunda fazladan veri var.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>.zelmora dosyası yazılamadı: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>Bir .zelmora bölümü çok büyük.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>Belge desteklenmeyen bir sahne nesnesi içeriyor.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>Belge yinelenen bir katman kimliği içeriyor.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>Hedef aygıta yazılamıyor.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>Belge boyutları .zelmora biçiminde saklanamıyor.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>Belge çok fazla katman içeriyor.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>bellek yetersiz</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>bit akışı yazılırken bellek yetersiz kaldı</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>gerekli bir kodlayıcı parametresi eksik</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>kodlayıcı yapılandırması geçersiz</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>görüntü boyutları geçersiz</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>bir kodlayıcı bölmesi çok büyük</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>kodlanan veri yazılamadı</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>kodlanan görüntü çok büyük</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>kodlama iptal edildi</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>bilinmeyen kodlayıcı hatası (kod %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Bir görüntü WebP olarak gösterilemiyor.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>WebP kodlayıcısı başlatılamadı.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>WebP kodlayıcısının yapılandırması geçersiz.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>Görüntü WebP kodlaması için hazırlanamadı.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>Görüntü WebP kodlaması için hazırlanamadı: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>WebP kodlanamadı: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>WebP kodlayıcısı veri üretmedi.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>Kodlanan WebP görüntüsü çok büyük.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Gömülü bir WebP’nin boyutları geçersiz.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Gömülü bir görüntü açılamadı.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>WebP kodu çözülemedi: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Bir görüntü ham RGBA verisi olarak gösterilemiyor.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Ham bir RGBA görüntüsünün boyutları geçersiz.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Ham bir RGBA görüntüsünün bayt uzunluğu geçersiz.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Ham bir RGBA görüntüsü için bellek ayrılamadı.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>Bir degrade dolgu desteklenmeyen bir tür kullanıyor.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>Bir degrade dolgunun konumu geçersiz.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>Bir degrade dolgunun durak sayısı geçersiz.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>Bir degrade dolgunun renk durağı geçersiz.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>Bir dolgu desteklenmeyen bir doku eşlemesi kullanıyor.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>Bir doku dolgusunun dönüşümü geçersiz.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Bir dolgu üreteci kimliği çok büyük.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>Düz bir dolgu beklenmeyen veri içeriyor.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>Bir doku dolgusu kaydı geçersiz.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>Bir doku parametre bloğunun sonunda fazladan veri var.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>Bir doku dolgusunun dönüşümü veya boyutu geçersiz.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>Bir degrade dolgu kaydı geçersiz.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>Bir dolgu kaydı yarım veya geçersiz.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>Bir dolgu bilinmeyen bir doku eşlemesi kullanıyor.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Bir filtrenin örnek kimliği boş.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>Bir filtre kaydı yarım veya geçersiz.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>Bir filtre parametre bloğunun sonunda fazladan veri var.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Bir şekil üreteci kimliği boş veya çok büyük.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>Bir parametrik şekil kaydı geçersiz.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Bir şekil üreteci kimliği boş.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>Bir parametrik şeklin sonunda fazladan veri var.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>Bir şekil bilinmeyen bir geometri türü kullanıyor.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Bir SVG katmanının kaynak verisi yok.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Bir görüntü katmanının desteklenen bir kaynağı yok.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>Raster seçim düzenlenebilir bir yol olmalıdır.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Bir raster katmanın piksel boyutları geçersiz.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Bir SVG katmanı raster boyutları içeriyor.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Bir SVG katmanı geçersiz SVG verisi içeriyor.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Bir görüntü katmanı bilinmeyen bir kaynak kodlaması kullanıyor.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Bir görüntü katmanının boyutları veya verisi geçersiz.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>Bir görüntü katmanının verisi geçersiz.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Bir görüntü katmanının raster yüzey ilkesi bilinmiyor.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>Belge desteklenmeyen bir katman türü içeriyor.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>Bir bölüm desteklenen bir katman türü değil.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Bir katmanda çok fazla filtre var.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>Bir katman yinelenen bir filtre örnek kimliği içeriyor.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Bir katmanın kimlik veya dönüşüm özellikleri geçersiz.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Bir katman adı veya karıştırma modu kimliği çok büyük.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>Bir katmanın türü içeriğiyle eşleşmiyor.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>Bir katman bölümü çok büyük.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>Bir katman verisinin başlığı geçersiz.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Bir katmanın karıştırma modu kimliği boş.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>Bir katman bölümünün sonunda fazladan veri var.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Bir katmanın filtre yığını geri yüklenemedi.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>Bir parametrenin metin değeri çok büyük.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>Bir ışık listesi çok fazla ışık içeriyor.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>Bir varlık parametresinin bayt uzunluğu geçersiz.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>Bir Boole parametresi geçersiz.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>Bir gerçek sayı parametresi sonlu değil.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>Bir parametre sonlu olmayan bir sayı içeriyor.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>Varlık parametresi bir yol değil, dosya adı olmalıdır.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>Etkinleştirilebilir bir renk parametresi geçersiz.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>Bir kontur parametresi geçersiz.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>Bir kontur geçersiz bir genişlik içeriyor.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>Bir degrade parametresi geçersiz.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>Bir degrade sonlu olmayan bir konum içeriyor.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>Bir maske dönüşümü geçersiz.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>Bir maske sonlu olmayan bir dönüşüm içeriyor.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>Bir ışık listesi parametresi geçersiz.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>Bir ışık listesi geçersiz bir ışık içeriyor.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>.zelmora dosyası bilinmeyen bir parametre türü kullanıyor.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>Bir parametre değerinin bayt uzunluğu geçersiz.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>Bir parametre anahtarı yineleniyor.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>Bir parametre koleksiyonu çok büyük.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Bir parametre başlığı yarım.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>Bir parametre değeri yarım.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>Düzenlenebilir bir yol düğümü geçersiz.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>Düzenlenebilir bir yol düğümünün kimliği yineleniyor.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>Düzenlenebilir bir yol düğümü bilinmeyen bir tür kullanıyor.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>Düzenlenebilir bir yol çevriti geçersiz.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>Düzenlenebilir bir yolda çok fazla çevrit var.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>Düzenlenebilir bir yol çevritinde çok fazla düğüm var.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>Düzenlenebilir bir yol kaydı geçersiz.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>Düzenlenebilir bir yolun sonunda fazladan veri var.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>.zelmora dosyası geçersiz bir renk içeriyor.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>.zelmora dosyası boş bir nesne kimliği içeriyor.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>Bir kayıt anahtarı geçerli 7 bit ASCII değil.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>Bir kayıt anahtarı boş veya null ile bitmiyor.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>Bir kayıt anahtarında sıfır olmayan dolgu var.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>Bir filtre veya parametre anahtarı 32 baytlık alanına sığmıyor.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Filtre ve parametre anahtarları 7 bit ASCII kullanmalıdır.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>Bir .zelmora kaydı 32 bitlik boyut sınırını aşıyor.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Bir şekil katmanının boyutları veya konturu geçersiz.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>Bir şekil katmanının verisi geçersiz.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>Bir şekil katmanının verisi yarım.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Bir metin paragrafı geçersiz.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Bir metin paragrafı desteklenmeyen bir hizalama kullanıyor.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Bir metin paragrafı desteklenmeyen bir yön kullanıyor.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>Bir metin paragrafı kaydı geçersiz.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Bir metin paragrafı bilinmeyen bir hizalama kullanıyor.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Bir metin paragrafı bilinmeyen bir yön kullanıyor.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>Bir metin paragrafının sonunda fazladan veri var.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Bir metin katmanının boyutları geçersiz veya çok fazla paragrafı var.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>Bir metin katmanının verisi geçersiz.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>Bir metin katmanının sonunda fazladan veri var.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Bir metin parçası çok büyük.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>Bir yazı tipi ailesi kaydı geçersiz.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>Bir yazı tipi ailesi bloğunun sonunda fazladan veri var.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Bir metin parçası bilinmeyen bir yazı tipi stili kullanıyor.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Bir metin parçası bilinmeyen bir büyük harf modu kullanıyor.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Bir metin parçası bilinmeyen bir harf aralığı modu kullanıyor.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Bir metin parçası bilinmeyen bir yazı tipi ipucu (hinting) modu kullanıyor.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Bir metin parçasının geçerli bir yazı tipi boyutu yok.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Bir metin parçasında çok fazla yazı tipi ailesi var.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Bir metin parçasının sayısal yazı tipi özellikleri geçersiz.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>Bir metin parçası kaydı geçersiz.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Bir metin parçası yarım.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>%1 okumak için açılamadı: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>%1 yazmak için açılamadı: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Hedef normal bir dosya değil.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>%1 yazma işlemi tamamlanamadı: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Temizle</translation>
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
        <translation>Geçerli belge değiştirilemedi.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Var olan bir dosya seçin.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Seçilen görüntü dosyası açılamadı.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>Seçilen SVG görüntüsü yüklenemedi.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows, seçilen HEIC/HEIF görüntüsünün kodunu çözemedi.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Seçilen görüntü dosyası yüklenemedi.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>Seçilen görüntünün kullanılabilir bir boyutu yok.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Seçilen görüntüden belge oluşturulamadı.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Görüntü</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Adsız</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Geçerli bir genişlik ve yükseklik girin.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Yeni belge oluşturulamadı.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Yalnızca yerel dosyalar desteklenir.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Belgeyi kaydetmeden önce bir dosya adı seçin.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Belgeyi Yeniden Boyutlandır</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Belge Sınırlarını İçeriğe Sığdır</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Nesneyi Taşı</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Var olan bir görüntü dosyası seçin.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier seçilen görüntüyü yükleyemedi.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Yalnızca yerel görüntü dosyaları desteklenir.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>Seçilen görüntü belgeye eklenemedi.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Zelmora Örneği</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier örnek görüntüyü yükleyemedi.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>Örnek görüntü belgeye eklenemedi.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Yol</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Etkin bir stil aktarımı filtresi henüz dışa aktarılamıyor. Dışa aktarmadan önce filtreyi devre dışı bırakın veya kaldırın.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Önizleme kodlanamadı: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>Kaydedilen görüntü kodlanamadı: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>Bellekteki görüntü arabelleği oluşturulamadı.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>Görüntü işlenemedi.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>Bellekteki görüntü arabelleği yeniden açılamadı.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Kodlanan önizlemenin kodu çözülemedi: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>JPEG görüntüleri (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>WebP görüntüleri (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>PNG görüntüleri (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Hedef normal bir dosya değil.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>Görüntü kaydedilemedi: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Geçerli kaydetme işleminin bitmesini bekleyin.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>Görüntü önizlemesi hazır değil.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Yalnızca yerel kaydetme hedefleri desteklenir.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>Dosya adı uzantısı seçilen görüntü biçimiyle eşleşmiyor: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Görüntü için bir dosya adı seçin.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>Görüntü kaydedildi ancak düzenlenebilir .zelmora dosyası kaydedilemedi: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Bu görüntüyü kaydetmeden önce kaydetme ayarlarını seçin.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Kaydetmeden önce Dışa Aktarma Ayarları penceresini kapatın.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Düzenlenebilir .zelmora dosyası kaydedilemedi: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>Kodlayıcı bir görüntü üretmedi.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>Düzenlenebilir .zelmora dosyası kaydedildi ancak görüntü güncellenemedi: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Görüntünün bulunduğu klasör açılamadı.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Boyama</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>SPDX tanımlayıcısı: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Debian’da tam metin: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Debian’da telif hakkı bildirimleri: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MIT Lisansı</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, sürüm 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Arayüzü çizer, çoğu görüntü biçimini okur ve yazar. Değiştirilebilmesi için dinamik olarak bağlanmıştır: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs ve görüntü biçimi eklentileri.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt; FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 ve zlib dâhil başkalarının çalışmalarını içerir veya kullanır. Bunların bildirimleri Qt’nin kendi bildirimleriyle birlikte yer alır.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>BSD 3 Maddeli Lisansı</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Belgelerdeki görüntüleri ve dışa aktarılan WebP dosyalarını kodlar. libsharpyuv parçasıyla birlikte dinamik olarak bağlanmıştır.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Bu programın parçası olmayan grafik sürücüsünün OpenGL’ini bulur. Dinamik olarak bağlanmıştır.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, sürüm 3 veya üstü, GCC Runtime Library Exception ile</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>C++ standart kitaplığı ve derleyicinin destek yordamları; dinamik olarak bağlanmıştır. İstisna, herhangi bir lisansa sahip programların bunları kullanmasına izin verir.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, sürüm 2.1 veya üstü</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>Sistemin C kitaplığı; dinamik olarak bağlanmıştır.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Opaklığı Değiştir</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Nesneyi Döndür</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Nesneyi Taşı</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Nesneyi Eğrilt</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Dönüşüm Eksenini Ayarla</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Nesneyi Ölçekle</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Yatay Çevir</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Dikey Çevir</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>Temel</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dinamik</translation>
    </message>
</context>
</TS>
