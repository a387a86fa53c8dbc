<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>ログフォルダーを表示できるファイルマネージャーがありません。</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Webサイト</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>ログフォルダーを開く</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>%1を追加</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>オブジェクト</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>矢印</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>先端</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>尾部</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>バースト</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>放射の数</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>深さ</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>処理中</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>処理中</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>キャンバス</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>ドキュメントです。ドラッグで表示を移動し、ホイールでズームします。</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>キャンバスをドキュメントの境界内に制限(&amp;L)</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>レイヤーをラスタライズ</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>雲</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>形</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>ふくらみ</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>レイヤーを結合</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>カラーを選択</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>シェイプをパスに変換</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>画像を切り抜き</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>デバッグ(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>実行時フラグ(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>HEVCコーデックなし(&amp;M)</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>ダイアログのプレビュー(&amp;P)</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>HEIFのヘルプ</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>保存の進行状況</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>言語変更の再起動</translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation>ダイヤモンド</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>ドキュメントの境界を表示(&amp;B)</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>ドキュメントのサイズ</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>ドキュメントを内容に合わせる</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>ドキュメントの背景色を選択</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>背景色</translation>
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
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>元に戻す: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>やり直し: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>楕円</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>丸み</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中央</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>書き出し設定</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
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
        <translation>WebP（透明）</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG（透明）</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>この画像には透明部分があります。透明を維持するには、透明な背景に対応した形式を選択してください。</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>縦横比を維持</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>画質</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>画質（パーセント）</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>PNGの圧縮</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>可逆圧縮のドキュメントファイル</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>編集可能なドキュメントの全ピクセルを保持します。ファイルは大きくなります。</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>推定画像サイズ:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>計算中…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>利用できません</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>編集可能なZelmoraドキュメント（.zelmora）が画像と一緒に保存されます。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
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
        <translation>プレビューをエンコード中…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>プレビューを読み込み中…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>ズームアウト</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>ズームイン</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>画像全体を表示</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>画像を実際のサイズで表示</translation>
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
        <translation>アルファ, フェード, グラデーション, 透明</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>線形</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>円形</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>フェード</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>フェードを配置</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>フェードの色</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>強さ</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>カーブ</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>柔らかさ</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>反転</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>ドキュメントの色</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>フェードアウト</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>新規(&amp;N)</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>新規ドキュメント</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>ドキュメントまたは画像を開く</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>画像とドキュメントを保存</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>名前を付けて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>ノイズを加える</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>ボックスぼかし</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>色調補正</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>着色</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>フェードアウト</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>ガウスぼかし</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>ハイライトを透明に</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>シャドウ（内側）</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>モザイク</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>浮き出し</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>ソーベルエッジ</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>ソフトベベル</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>テクスチャのコピー</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>トーンマップ</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>水面の反射</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>半円</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>三日月</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>ハート</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>上部の丸み</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>くぼみ</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>先端</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora AtelierのWebサイト(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>Zelmora Atelierについて(&amp;A)</translation>
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
        <translation>HEIC/HEIFに対応していません</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>QtでHEIFを読み込むためのパッケージkimageformat6-pluginsをインストールし、Zelmora Atelierを再起動してください。</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>HEIF画像拡張機能</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>HEVCビデオ拡張機能</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Document</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation>ペイントレイヤー</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>シェイプ</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>インスペクター</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>言語(&amp;L)</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>すべての変更を反映するには、Zelmora Atelierを再起動してください。</translation>
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
        <translation>画像(&amp;I)</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>画像を新規レイヤーとして挿入</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>サンプル画像を挿入(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>テキスト(&amp;T)</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>テキストレイヤーを挿入</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>シェイプ(&amp;S)</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>シェイプまたはステッカーを挿入</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>新規ペイントレイヤー(&amp;N)</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>レイヤーを表示</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>レイヤーを非表示</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>レイヤーを上へ移動(&amp;U)</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>レイヤーを下へ移動(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>レイヤーを削除(&amp;R)</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>レイヤーをラスタライズ(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>下のレイヤーと結合(&amp;M)</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>エッジ</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>色変更・トーン・特殊効果</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>スタイル変換</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>フォトモンタージュ、楽しさ &amp; アート</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>ラメ &amp; きらめき</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>効果</translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>描画モード</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>描画モード</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>レイヤー</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>管理するレイヤーを選択してください。</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>レイヤーはまだありません。</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>レイヤー「%1」、非表示</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>レイヤー「%1」</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>ラスター選択範囲あり</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>レイヤーを表示</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>レイヤーを非表示</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>下のレイヤーと結合</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>レイヤーの外観</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
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
        <translation>稲妻</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>曲がり</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Finderで表示</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>エクスプローラーで表示</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>画像を%1に書き出しました。
編集可能なドキュメントを%2として保存しました。</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>画像を含むフォルダーを開けませんでした。</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>現在の保存が完了するまでお待ちください。</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>選択(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>定規(&amp;R)</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>インスペクターの位置(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>テーマ(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>レイヤー(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>挿入(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>画像(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>テキスト(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>シェイプ(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>メインツールバー</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>その他の保存方法</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>その他の履歴</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>挿入:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>レイヤーを上へ移動</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>レイヤーを下へ移動</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>HD</source>
        <translation>HD</translation>
    </message>
    <message>
        <source>Full HD</source>
        <translation>フルHD</translation>
    </message>
    <message>
        <source>4K</source>
        <translation>4K</translation>
    </message>
    <message>
        <source>Social</source>
        <translation>SNS</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>正方形</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>ストーリー</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation>写真 3:2</translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation>写真 4:3</translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation>印刷、300 ppi</translation>
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
        <translation>レター</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>新規ドキュメント</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 メガピクセル</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>幅と高さを入れ替え</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黒</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>透明</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>背景色を選択</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
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
        <translation>%1、%2 × %3ピクセル</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>ライセンス</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>シェーダーエラー</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>プログラム: %1
ステージ: %2
リソース: %3
ターゲット: %4
ログ:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>頂点</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>フラグメント</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;なし&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;コンパイラーのログは空です&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>頂点シェーダーのコンパイルに失敗しました</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>フラグメントシェーダーのコンパイルに失敗しました</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>シェーダーを読み込めません</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>プログラム: %1
頂点ターゲット: %2
フラグメントターゲット: %3
ログ:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;リンカーのログは空です&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>シェーダーのリンクに失敗しました</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>%1を開けませんでした: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>シリアル化されたQSBシェーダーが無効です: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>%1に互換性のあるGLSLバリアントがありません。試行: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>画像にペイント</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>ペイントのしみ</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>形</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>とげ</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>一致する項目がありません。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>カテゴリー</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>多角形</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>辺の数</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近使ったファイルを開く(&amp;R)</translation>
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
        <translation>%1を削除</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>オブジェクト</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>レイヤー名</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>オブジェクト名を変更</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>レイヤーをラスタライズ</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>画像サイズを変更</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>テキストサイズを変更</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>ひし形</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>リボン</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>形</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>深さ</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>長方形</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
</context>
<context>
    <name>SceneObjectAdapter</name>
    <message>
        <source>Normal</source>
        <translation>通常</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>乗算</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>スクリーン</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>オーバーレイ</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>比較（暗）</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>比較（明）</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>覆い焼きカラー</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>焼き込みカラー</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>ハードライト</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>ソフトライト</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差の絶対値</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>輝度</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>長方形選択(&amp;R)</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>長方形のラスター選択範囲を作成</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>楕円形選択(&amp;E)</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>楕円形のラスター選択範囲を作成</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>マジックワンド選択(&amp;W)</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>色が連続する領域を選択</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>多角形選択(&amp;P)</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>ラスター選択範囲のパスを編集</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>ラスター選択範囲を解除</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>ラスター選択範囲を反転(&amp;I)</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>選択範囲を新規レイヤーに抽出(&amp;X)</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>ラスター選択範囲を解除(&amp;C)</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>ドキュメントの背景を変更</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>描画モードを変更</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>レイヤーを表示</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>レイヤーを非表示</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>シェイプまたはステッカーを挿入</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>シェイプとステッカーを検索</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>一致するシェイプまたはステッカーがありません。</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>挿入</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>マスク, 切り抜き, トリミング, シェイプ</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>シェイプを配置</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>シェイプ</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>輪郭線</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>ぼかし</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>反転</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>シェイプエディター</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>シェイプで切り抜き</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>盾形バッジ</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>形</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>先端</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>変形を編集するレイヤーを選択してください。</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>ジオメトリ</translation>
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
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>縦横比を維持</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>反転</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>度</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>基準点 X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>基準点 Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>傾斜</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>傾斜を開始</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>傾斜 X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>傾斜 Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>サイズの単位を切り替え</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>吹き出し</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>しっぽ</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>形</translation>
    </message>
</context>
<context>
    <name>SplodgeShapeGenerator</name>
    <message>
        <source>Splodge</source>
        <translation>しみ</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>形</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>星</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>頂点の数</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>先端</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>ステータスバー</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>レイヤー: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>レイヤーが選択されていません</translation>
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
        <translation>テキスト</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>テクスチャのリソースバンドルを登録できません: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>安全でないテクスチャ画像のパスを拒否しました: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>テクスチャ画像が見つかりません: %1（検索場所: %2）</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>不明な画像デコーダーエラー</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>テクスチャ画像%1を%2から読み込めません: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>安全でないテクスチャデータのパスを拒否しました: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>テクスチャデータが見つかりません: %1（検索場所: %2）</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>どの候補にもテクスチャデータが見つかりません: %1（検索場所: %2）</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>不明な読み取りエラー</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>テクスチャデータ%1を%2から読み取れません: %3</translation>
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
        <translation>考え中の吹き出し</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>しっぽ</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>形</translation>
    </message>
</context>
<context>
    <name>ToolModeActions</name>
    <message>
        <source>&amp;Select</source>
        <translation>選択(&amp;S)</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>レイヤーを選択</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>傾斜(&amp;K)</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>選択したレイヤーを傾斜させる</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>切り抜き(&amp;C)</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>選択したレイヤーを切り抜く</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>パス(&amp;P)</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>選択したシェイプのパスを編集、または新規パスを描画</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>描画(&amp;D)</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>ブラシで自由に描画</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>消去(&amp;E)</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>選択したレイヤーのピクセルを消去</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>クローン(&amp;L)</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>ピクセルをクローン</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>露出(&amp;X)</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>露出ブラシでピクセルを明るくまたは暗くする</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>選択範囲を塗りつぶし(&amp;F)</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>現在のラスター選択範囲を塗りつぶす</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>三角形</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>辺</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>終了する前に変更を保存しますか？</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>新規ドキュメントを作成する前に変更を保存しますか？</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>別のドキュメントを開く前に変更を保存しますか？</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>このドキュメントには保存されていない変更があります。保存せずに終了すると、変更は失われます。</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>このドキュメントには保存されていない変更があります。保存せずに新規ドキュメントを作成すると、変更は失われます。</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>このドキュメントには保存されていない変更があります。保存せずに別のドキュメントを開くと、変更は失われます。</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>保存せずに終了</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>保存せずに作成</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>保存せずに開く</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>ズームイン(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>ズームアウト(&amp;O)</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>画面に合わせる(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>実際のサイズ(&amp;A)</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>全画面表示(&amp;U)</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>無制限キャンバスモード(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>オフ(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>上と左(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>下と右(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>左(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>右(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>システム(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>ライト(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>ダーク(&amp;D)</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>ズームイン</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>ズームアウト</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>ズームを100%に戻す</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>ビネット</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>角の半径</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>ドキュメントまたは画像を開く</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>対応するすべてのファイル (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>すべての画像ファイル (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Zelmoraドキュメント (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>画像レイヤーを挿入</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>画像に名前を付けて保存</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>ファイルを開けません</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>画像を挿入できません</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>画像を保存できません</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>保存中…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>.zelmoraファイルが途中で切れているか、読み取れません: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>.zelmoraのレイヤーセクションをデコードできませんでした。</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>.zelmoraファイルに重複したレイヤーIDがあります。</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>.zelmoraの最初のセクションがドキュメントプロパティではありません。</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>ドキュメントプロパティのセクションのサイズが無効です。</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>ドキュメントプロパティのペイロードのバージョンに対応していません。</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>.zelmoraのセクションヘッダーが無効です。</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>これは.zelmoraドキュメントではありません。</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>この.zelmora形式のバージョンには対応していません。</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>.zelmoraドキュメントの寸法が無効です。</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>.zelmoraのセクション数が無効です。</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>.zelmoraファイルのドキュメントプロパティが重複しています。</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>読み取り元のデバイスを読み取れません。</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>.zelmoraファイルの末尾に余分なデータがあります。</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>.zelmoraファイルに書き込めませんでした: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>.zelmoraのセクションが大きすぎます。</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>ドキュメントに未対応のシーンオブジェクトが含まれています。</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>ドキュメントに重複したレイヤーIDがあります。</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>書き込み先のデバイスに書き込めません。</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>ドキュメントの寸法は.zelmora形式では保存できません。</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>ドキュメントのレイヤーが多すぎます。</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>メモリ不足</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>ビットストリームの書き込み中にメモリが不足しました</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>必要なエンコーダーパラメーターがありません</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>エンコーダーの設定が無効です</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>画像の寸法が無効です</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>エンコーダーのパーティションが大きすぎます</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>エンコードしたデータを書き込めませんでした</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>エンコードした画像が大きすぎます</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>エンコードがキャンセルされました</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>不明なエンコーダーエラー（コード %1）</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>画像をWebPとして表現できません。</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>WebPエンコーダーを初期化できませんでした。</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>WebPエンコーダーの設定が無効です。</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>WebPエンコード用に画像を準備できませんでした。</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>WebPエンコード用に画像を準備できませんでした: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>WebPをエンコードできませんでした: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>WebPエンコーダーがデータを出力しませんでした。</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>エンコードしたWebP画像が大きすぎます。</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>埋め込まれたWebPの寸法が無効です。</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>埋め込まれた画像を開けませんでした。</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>WebPをデコードできませんでした: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>画像を生のRGBAデータとして表現できません。</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>生のRGBA画像の寸法が無効です。</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>生のRGBA画像のバイト長が無効です。</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>生のRGBA画像のメモリを確保できませんでした。</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>グラデーションの塗りの種類に対応していません。</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>グラデーションの塗りの位置が無効です。</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>グラデーションの塗りの分岐点の数が無効です。</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>グラデーションの塗りに無効な色の分岐点があります。</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>塗りのテクスチャマッピングに対応していません。</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>テクスチャの塗りの変形が無効です。</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>塗りジェネレーターのIDが長すぎます。</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>単色の塗りに予期しないデータが含まれています。</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>テクスチャの塗りのレコードが無効です。</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>テクスチャのパラメーターブロックの末尾に余分なデータがあります。</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>テクスチャの塗りの変形またはサイズが無効です。</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>グラデーションの塗りのレコードが無効です。</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>塗りのレコードが途中で切れているか、無効です。</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>塗りのテクスチャマッピングが不明です。</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>フィルターのインスタンスIDがnullです。</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>フィルターのレコードが途中で切れているか、無効です。</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>フィルターのパラメーターブロックの末尾に余分なデータがあります。</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>シェイプジェネレーターのIDが空か、長すぎます。</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>パラメトリックシェイプのレコードが無効です。</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>シェイプジェネレーターのIDが空です。</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>パラメトリックシェイプの末尾に余分なデータがあります。</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>シェイプのジオメトリの種類が不明です。</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>SVGレイヤーにソースデータがありません。</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>画像レイヤーに利用可能なソースがありません。</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>ラスター選択範囲は編集可能なパスでなければなりません。</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>ラスターレイヤーのピクセル寸法が無効です。</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>SVGレイヤーにラスターの寸法が含まれています。</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>SVGレイヤーに無効なSVGデータが含まれています。</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>画像レイヤーのソースエンコーディングが不明です。</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>画像レイヤーの寸法またはデータが無効です。</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>画像レイヤーのペイロードが無効です。</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>画像レイヤーのラスターサーフェスポリシーが不明です。</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>ドキュメントに未対応の種類のレイヤーが含まれています。</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>セクションのレイヤーの種類に対応していません。</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>レイヤーのフィルターが多すぎます。</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>レイヤーに重複したフィルターインスタンスIDがあります。</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>レイヤーの識別情報または変形のプロパティが無効です。</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>レイヤー名または描画モードIDが長すぎます。</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>レイヤーの種類が内容と一致しません。</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>レイヤーセクションが大きすぎます。</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>レイヤーのペイロードヘッダーが無効です。</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>レイヤーの描画モードIDが空です。</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>レイヤーセクションの末尾に余分なデータがあります。</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>レイヤーのフィルタースタックを復元できませんでした。</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>パラメーターの文字列値が長すぎます。</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>ライトリストのライトが多すぎます。</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>アセットパラメーターのバイト長が無効です。</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>ブール値のパラメーターが無効です。</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>実数のパラメーターが有限値ではありません。</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>パラメーターに有限ではない数値が含まれています。</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>アセットパラメーターには、パスではなくファイル名を指定する必要があります。</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>有効/無効付きカラーのパラメーターが無効です。</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>線のパラメーターが無効です。</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>線の幅が無効です。</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>グラデーションのパラメーターが無効です。</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>グラデーションに有限ではない位置が含まれています。</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>マスクの変形が無効です。</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>マスクに有限ではない変形が含まれています。</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>ライトリストのパラメーターが無効です。</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>ライトリストに無効なライトがあります。</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>.zelmoraファイルのパラメーターの種類が不明です。</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>パラメーター値のバイト長が無効です。</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>パラメーターキーが重複しています。</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>パラメーターコレクションが大きすぎます。</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>パラメーターヘッダーが途中で切れています。</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>パラメーター値が途中で切れています。</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>編集可能パスのノードが無効です。</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>編集可能パスのノードIDが重複しています。</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>編集可能パスのノードの種類が不明です。</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>編集可能パスの輪郭が無効です。</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>編集可能パスの輪郭が多すぎます。</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>編集可能パスの輪郭のノードが多すぎます。</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>編集可能パスのレコードが無効です。</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>編集可能パスの末尾に余分なデータがあります。</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>.zelmoraファイルに無効な色があります。</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>.zelmoraファイルにnullのオブジェクト識別子があります。</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>レジストリキーが有効な7ビットASCIIではありません。</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>レジストリキーが空か、null終端ではありません。</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>レジストリキーのパディングがゼロではありません。</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>フィルターまたはパラメーターのキーが32バイトのフィールドに収まりません。</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>フィルターとパラメーターのキーには7ビットASCIIを使用する必要があります。</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>.zelmoraのレコードが32ビットのサイズ制限を超えています。</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>シェイプレイヤーの寸法または線が無効です。</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>シェイプレイヤーのペイロードが無効です。</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>シェイプレイヤーのペイロードが途中で切れています。</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>テキストの段落が無効です。</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>テキストの段落の配置に対応していません。</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>テキストの段落の方向に対応していません。</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>テキストの段落のレコードが無効です。</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>テキストの段落の配置が不明です。</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>テキストの段落の方向が不明です。</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>テキストの段落の末尾に余分なデータがあります。</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>テキストレイヤーの寸法が無効か、段落が多すぎます。</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>テキストレイヤーのペイロードが無効です。</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>テキストレイヤーの末尾に余分なデータがあります。</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>テキストランが大きすぎます。</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>フォントファミリーのレコードが無効です。</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>フォントファミリーのブロックの末尾に余分なデータがあります。</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>テキストランのフォントスタイルが不明です。</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>テキストランの大文字/小文字モードが不明です。</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>テキストランの文字間隔モードが不明です。</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>テキストランのフォントヒンティングモードが不明です。</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>テキストランに有効なフォントサイズがありません。</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>テキストランのフォントファミリーが多すぎます。</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>テキストランのフォントの数値プロパティが無効です。</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>テキストランのレコードが無効です。</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>テキストランが途中で切れています。</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>%1を読み取り用に開けませんでした: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>%1を書き込み用に開けませんでした: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>対象は通常のファイルではありません。</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>%1の書き込みを完了できませんでした: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>クリア</translation>
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
        <translation>現在のドキュメントを置き換えられませんでした。</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>既存のファイルを選択してください。</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>選択した画像ファイルを開けませんでした。</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>選択したSVG画像を読み込めませんでした。</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>選択したHEIC/HEIF画像をWindowsでデコードできませんでした。</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>選択した画像ファイルを読み込めませんでした。</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>選択した画像のサイズは使用できません。</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>選択した画像からドキュメントを作成できませんでした。</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>無題</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>有効な幅と高さを入力してください。</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>新規ドキュメントを作成できませんでした。</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>ローカルファイルのみに対応しています。</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>ドキュメントを保存する前に、ファイル名を選択してください。</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>ドキュメントのサイズを変更</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>ドキュメントの境界を内容に合わせる</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>オブジェクトを移動</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>既存の画像ファイルを選択してください。</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelierは選択した画像を読み込めませんでした。</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>ローカルの画像ファイルのみに対応しています。</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>選択した画像をドキュメントに追加できませんでした。</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Zelmoraサンプル</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelierはサンプル画像を読み込めませんでした。</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>サンプル画像をドキュメントに追加できませんでした。</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>有効なスタイル変換フィルターはまだ書き出せません。書き出す前にフィルターを無効にするか、削除してください。</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>プレビューをエンコードできませんでした: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>保存する画像をエンコードできませんでした: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>メモリ内の画像バッファーを作成できませんでした。</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>画像をレンダリングできませんでした。</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>メモリ内の画像バッファーを再度開けませんでした。</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>エンコードしたプレビューをデコードできませんでした: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>JPEG画像 (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>WebP画像 (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>PNG画像 (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>対象は通常のファイルではありません。</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>画像を保存できませんでした: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>現在の保存が完了するまでお待ちください。</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>画像のプレビューの準備ができていません。</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>保存先はローカルのみに対応しています。</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>ファイル名の拡張子が選択した画像形式と一致しません: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>画像のファイル名を選択してください。</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>画像は保存されましたが、編集可能な.zelmoraファイルを保存できませんでした: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>この画像を保存する前に、保存設定を選択してください。</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>保存する前に、「書き出し設定」ダイアログを閉じてください。</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>編集可能な.zelmoraファイルを保存できませんでした: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>エンコーダーが画像を出力しませんでした。</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>編集可能な.zelmoraファイルは保存されましたが、画像を更新できませんでした: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>画像を含むフォルダーを開けませんでした。</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>ペイント</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>SPDX識別子: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Debianでの全文: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Debianでの著作権表示: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MITライセンス</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License バージョン3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>インターフェイスを描画し、ほとんどの画像形式を読み書きします。置き換えられるように動的にリンクされています: Qt Core、Gui、OpenGL、Svg、Concurrent、D-Bus、Network、Qml、Quick、Quick Controls、Quick Layouts、Quick Dialogs、および画像形式のプラグイン。</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qtには、FreeType、HarfBuzz、libpng、libjpeg-turbo、PCRE2、zlibなど、第三者の著作物が同梱または使用されています。それらの表示はQt自体の表示とともに記載されています。</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>BSD 3条項ライセンス</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>ドキュメント内の画像と書き出されるWebPファイルをエンコードします。付属のlibsharpyuvとともに動的にリンクされています。</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>グラフィックドライバーのOpenGLを検出します。ドライバーのOpenGLはこのプログラムの一部ではありません。動的にリンクされています。</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License バージョン3以降、GCCランタイムライブラリ例外付き</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>C++標準ライブラリとコンパイラーの補助ルーチンです。動的にリンクされています。例外条項により、どのライセンスのプログラムでも使用できます。</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License バージョン2.1以降</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>システムのCライブラリです。動的にリンクされています。</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>不透明度を変更</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>オブジェクトを回転</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>オブジェクトを移動</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>オブジェクトを傾斜</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>変形の基準点を設定</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>オブジェクトを拡大・縮小</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>上下反転</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>ダイナミック</translation>
    </message>
</context>
</TS>
