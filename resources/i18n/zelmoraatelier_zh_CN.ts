<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>没有可以显示日志文件夹的文件管理器。</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>打开日志文件夹</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>添加%1</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>对象</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>尖端</translation>
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
        <translation>爆炸形</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>芒数</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>深度</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>正在处理</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>正在处理</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>画布</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>文档。拖动可移动视图，滚动滚轮可缩放。</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>将画布限制在文档边界内(&amp;L)</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>栅格化图层</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>云朵</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>蓬松度</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>合并图层</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>选择颜色</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>将形状转换为路径</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>裁剪图像</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>调试(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>运行时标志(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>缺少 HEVC 编解码器(&amp;M)</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>对话框预览(&amp;P)</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>HEIF 帮助</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>保存进度</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>语言更改重启</translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation>钻石形</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
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
        <translation>显示文档边界(&amp;B)</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>文档大小</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>使文档适合内容</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>选择文档背景颜色</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>背景颜色</translation>
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
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>撤销 %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>重做 %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>椭圆</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>圆度</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中部</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>导出设置</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
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
        <translation>此图像包含透明区域。要保留透明区域，请选择支持透明背景的格式。</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>保持比例</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>质量（百分比）</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>PNG 压缩</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>无损文档文件</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>保留可编辑文档的每个像素，文件会更大。</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>预计图像大小：</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>正在计算…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>可编辑的 Zelmora 文档（.zelmora）将与图像一起保存。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>正在编码预览…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>正在加载预览…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>显示整个图片</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>以实际大小显示图片</translation>
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
        <translation>透明度, 淡出, 渐变, 透明</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>线性</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>径向</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>渐隐</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>定位渐隐</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>渐隐颜色</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>强度</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>柔和度</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>反转</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>文档颜色</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>淡出</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>新建文档</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>打开文档或图像</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>保存图像和文档</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>另存为(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>添加噪点</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>方框模糊</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>颜色调整</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>着色</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>淡出</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>高斯模糊</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>灰度</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>高光转为透明</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>内阴影</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>像素化</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>凸起</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Sobel 边缘</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>柔和斜面</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>纹理复制</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>色调映射</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>水面倒影</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>半圆</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>月牙</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>心形</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>心瓣</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>凹口</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>尖端</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier 网站(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>关于 Zelmora Atelier(&amp;A)</translation>
    </message>
</context>
<context>
    <name>ImageLoadErrorDialog</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>HEIC/HEIF Support Is Unavailable</source>
        <translation>HEIC/HEIF 支持不可用</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>请安装软件包 kimageformat6-plugins（为 Qt 提供 HEIF 读取功能），然后重新启动 Zelmora Atelier。</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>HEIF 图像扩展</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>HEVC 视频扩展</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation>绘画图层</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>检查器</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>语言(&amp;L)</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>请重新启动 Zelmora Atelier 以使所有更改生效。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>LayerActions</name>
    <message>
        <source>&amp;Image</source>
        <translation>图像(&amp;I)</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>将图像作为新图层插入</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>插入示例图像(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>文本(&amp;T)</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>插入文本图层</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>形状(&amp;S)</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>插入形状或贴纸</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>新建绘画图层(&amp;N)</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>显示图层</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>隐藏图层</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>上移图层(&amp;U)</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>下移图层(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>移除图层(&amp;R)</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>栅格化图层(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>与下方图层合并(&amp;M)</translation>
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
        <translation>边缘</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>重新着色、色调、特效</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>风格迁移</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>边框</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>照片合成、趣味 &amp; 艺术</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>闪粉 &amp; 亮片</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>效果</translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
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
        <translation>混合模式</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>混合模式</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>图层</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>选择要管理的图层。</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>尚无图层。</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>图层 %1，已隐藏</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>图层 %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>有栅格选区</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>显示图层</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>隐藏图层</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>与下方图层合并</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>图层外观</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
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
        <translation>闪电</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>弯折</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>在访达中显示</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>在文件资源管理器中显示</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>图像已导出到 %1。
可编辑文档已保存为 %2。</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>无法打开图像所在的文件夹。</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>请等待当前保存完成。</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>选择(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>标尺(&amp;R)</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>检查器位置(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>主题(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>图层(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>插入(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>图像(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>文本(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>形状(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>主工具栏</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>更多保存方式</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>更多历史记录</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>插入：</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>上移图层</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>下移图层</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>HD</source>
        <translation>HD</translation>
    </message>
    <message>
        <source>Full HD</source>
        <translation>全高清</translation>
    </message>
    <message>
        <source>4K</source>
        <translation>4K</translation>
    </message>
    <message>
        <source>Social</source>
        <translation>社交媒体</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>方形</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>快拍</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation>照片 3:2</translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation>照片 4:3</translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation>打印，300 ppi</translation>
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
        <translation>信纸</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>新建文档</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 百万像素</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>交换宽度和高度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>透明</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>选择背景颜色</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
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
        <translation>%1，%2 × %3 像素</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>许可证</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>着色器错误</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>程序：%1
阶段：%2
资源：%3
目标：%4
日志：
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>顶点</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>片段</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;无&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;编译器日志为空&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>顶点着色器编译失败</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>片段着色器编译失败</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>无法加载着色器</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>程序：%1
顶点目标：%2
片段目标：%3
日志：
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;链接器日志为空&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>着色器链接失败</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>无法打开 %1：%2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>无效的序列化 QSB 着色器：%1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>%1 中没有兼容的 GLSL 变体。已尝试：%2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>绘制图像</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>颜料斑</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>尖刺</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>没有匹配的项目。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>类别</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>多边形</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>边数</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>打开最近的文件(&amp;R)</translation>
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
        <translation>移除%1</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>对象</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>图层名称</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>重命名对象</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>栅格化图层</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>调整图像大小</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>调整文本大小</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>菱形</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
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
        <translation>丝带</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>深度</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>矩形</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
</context>
<context>
    <name>SceneObjectAdapter</name>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>正片叠底</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>滤色</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>叠加</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>变暗</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>变亮</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>颜色减淡</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>颜色加深</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>强光</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>柔光</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差值</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>排除</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>明度</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>矩形选择(&amp;R)</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>创建矩形栅格选区</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>椭圆选择(&amp;E)</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>创建椭圆栅格选区</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>魔棒选择(&amp;W)</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>选择连续的颜色区域</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>多边形选择(&amp;P)</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>编辑栅格选区路径</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>清除栅格选区</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>反转栅格选区(&amp;I)</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>将选区提取到新图层(&amp;X)</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>清除栅格选区(&amp;C)</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>更改文档背景</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>更改混合模式</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>显示图层</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>隐藏图层</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>插入形状或贴纸</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>搜索形状和贴纸</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>没有匹配的形状或贴纸。</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>蒙版, 抠图, 裁剪, 形状</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>定位形状</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>羽化</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>反转</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>形状编辑器</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>按形状裁切</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>盾形徽章</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>尖角</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>选择图层以编辑其变换。</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>几何</translation>
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
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>保持宽高比</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>翻转</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>垂直翻转</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>旋转</translation>
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
        <translation>轴心点 X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>轴心点 Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>斜切</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>开始斜切</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>斜切 X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>斜切 Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>切换大小单位</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>对话气泡</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>指向角</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>样式</translation>
    </message>
</context>
<context>
    <name>SplodgeShapeGenerator</name>
    <message>
        <source>Splodge</source>
        <translation>墨渍</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>星形</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>角数</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>尖端</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>状态栏</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>图层：%1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>未选择图层</translation>
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
        <translation>文本</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>无法注册纹理资源包：%1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>已拒绝不安全的纹理图像路径：%1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>找不到纹理图像：%1（已搜索：%2）</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>未知的图像解码器错误</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>无法从 %2 加载纹理图像 %1：%3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>已拒绝不安全的纹理数据路径：%1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>找不到纹理数据：%1（已搜索：%2）</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>所有候选项均找不到纹理数据：%1（已搜索：%2）</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>未知的读取错误</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>无法从 %2 读取纹理数据 %1：%3</translation>
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
        <translation>思考气泡</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>尾巴</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>样式</translation>
    </message>
</context>
<context>
    <name>ToolModeActions</name>
    <message>
        <source>&amp;Select</source>
        <translation>选择(&amp;S)</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>选择图层</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>斜切(&amp;K)</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>斜切所选图层</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>裁剪(&amp;C)</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>裁剪所选图层</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>路径(&amp;P)</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>编辑所选形状路径，或绘制新路径</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>绘制(&amp;D)</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>使用画笔手绘</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>擦除(&amp;E)</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>擦除所选图层的像素</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>仿制(&amp;L)</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>仿制像素</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>曝光(&amp;X)</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>使用曝光画笔提亮或压暗像素</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>填充选区(&amp;F)</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>填充当前栅格选区</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
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
        <translation>边</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>退出前是否保存更改？</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>新建文档前是否保存更改？</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>打开另一个文档前是否保存更改？</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>此文档有未保存的更改。如果不保存就退出，更改将会丢失。</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>此文档有未保存的更改。如果不保存就新建文档，更改将会丢失。</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>此文档有未保存的更改。如果不保存就打开另一个文档，更改将会丢失。</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>仍然退出</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>仍然新建</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>仍然打开</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>缩放至适合(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>实际大小(&amp;A)</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>全屏(&amp;U)</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>无限画布模式(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>关闭(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>上方和左侧(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>下方和右侧(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>左侧(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>右侧(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>跟随系统(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>将缩放重置为 100%</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>晕影</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>圆角半径</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>打开文档或图像</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>所有支持的文件 (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>所有图像文件 (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Zelmora 文档 (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>插入图像图层</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>图像另存为</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>无法打开文件</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>无法插入图像</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>无法保存图像</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>正在保存…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>.zelmora 文件被截断或无法读取：%1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>无法解码 .zelmora 图层区段。</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>.zelmora 文件包含重复的图层 ID。</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>.zelmora 的第一个区段不是文档属性。</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>文档属性区段的大小无效。</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>不支持文档属性负载的版本。</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>.zelmora 区段头无效。</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>这不是 .zelmora 文档。</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>不支持此 .zelmora 格式版本。</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>.zelmora 文档尺寸无效。</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>.zelmora 区段数量无效。</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>.zelmora 文件包含重复的文档属性。</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>源设备不可读。</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>.zelmora 文件末尾有多余数据。</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>无法写入 .zelmora 文件：%1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>.zelmora 区段过大。</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>文档包含不支持的场景对象。</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>文档包含重复的图层 ID。</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>目标设备不可写。</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>文档尺寸无法以 .zelmora 格式存储。</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>文档包含的图层过多。</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>写入比特流时内存不足</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>缺少必需的编码器参数</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>编码器配置无效</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>图像尺寸无效</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>编码器分区过大</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>无法写入编码后的数据</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>编码后的图像过大</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>编码已取消</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>未知的编码器错误（代码 %1）</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>图像无法以 WebP 表示。</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>无法初始化 WebP 编码器。</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>WebP 编码器配置无效。</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>无法为 WebP 编码准备图像。</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>无法为 WebP 编码准备图像：%1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>无法编码 WebP：%1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>WebP 编码器未生成任何数据。</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>编码后的 WebP 图像过大。</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>嵌入的 WebP 尺寸无效。</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>无法打开嵌入的图像。</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>无法解码 WebP：%1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>图像无法以原始 RGBA 数据表示。</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>原始 RGBA 图像的尺寸无效。</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>原始 RGBA 图像的字节长度无效。</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>无法为原始 RGBA 图像分配内存。</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>渐变填充使用了不支持的类型。</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>渐变填充的位置无效。</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>渐变填充的色标数量无效。</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>渐变填充包含无效的色标。</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>填充使用了不支持的纹理映射。</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>纹理填充的变换无效。</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>填充生成器 ID 过长。</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>纯色填充包含意外数据。</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>纹理填充记录无效。</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>纹理参数块末尾有多余数据。</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>纹理填充的变换或大小无效。</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>渐变填充记录无效。</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>填充记录被截断或无效。</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>填充使用了未知的纹理映射。</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>滤镜的实例 ID 为空值。</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>滤镜记录被截断或无效。</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>滤镜参数块末尾有多余数据。</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>形状生成器 ID 为空或过长。</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>参数化形状记录无效。</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>形状生成器 ID 为空。</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>参数化形状末尾有多余数据。</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>形状使用了未知的几何类型。</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>SVG 图层没有源数据。</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>图像图层没有受支持的源。</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>栅格选区必须是可编辑路径。</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>栅格图层的像素尺寸无效。</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>SVG 图层包含栅格尺寸。</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>SVG 图层包含无效的 SVG 数据。</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>图像图层使用了未知的源编码。</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>图像图层的尺寸或数据无效。</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>图像图层负载无效。</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>图像图层的栅格表面策略未知。</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>文档包含不支持的图层类型。</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>区段不是受支持的图层类型。</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>图层的滤镜过多。</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>图层包含重复的滤镜实例 ID。</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>图层的标识或变换属性无效。</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>图层名称或混合模式 ID 过长。</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>图层类型与其内容不符。</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>图层区段过大。</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>图层负载头无效。</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>图层的混合模式 ID 为空。</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>图层区段末尾有多余数据。</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>无法恢复图层滤镜堆栈。</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>参数字符串值过长。</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>光源列表包含的光源过多。</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>资源参数的字节长度无效。</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>布尔参数无效。</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>实数参数不是有限值。</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>参数包含非有限数值。</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>资源参数必须是文件名，而不能是路径。</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>可启用颜色参数无效。</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>描边参数无效。</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>描边包含无效的宽度。</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>渐变参数无效。</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>渐变包含非有限的位置。</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>蒙版变换无效。</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>蒙版包含非有限的变换。</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>光源列表参数无效。</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>光源列表包含无效的光源。</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>.zelmora 文件使用了未知的参数类型。</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>参数值的字节长度无效。</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>参数键重复。</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>参数集合过大。</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>参数头被截断。</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>参数值被截断。</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>可编辑路径的节点无效。</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>可编辑路径的节点 ID 重复。</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>可编辑路径的节点使用了未知类型。</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>可编辑路径的轮廓无效。</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>可编辑路径的轮廓过多。</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>可编辑路径的轮廓包含的节点过多。</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>可编辑路径记录无效。</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>可编辑路径末尾有多余数据。</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>.zelmora 文件包含无效的颜色。</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>.zelmora 文件包含空值对象标识符。</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>注册表键不是有效的 7 位 ASCII。</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>注册表键为空或未以空字符结尾。</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>注册表键的填充不为零。</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>滤镜或参数键超出其 32 字节字段。</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>滤镜和参数键必须使用 7 位 ASCII。</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>.zelmora 记录超出 32 位大小限制。</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>形状图层的尺寸或描边无效。</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>形状图层负载无效。</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>形状图层负载被截断。</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>文本段落无效。</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>文本段落使用了不支持的对齐方式。</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>文本段落使用了不支持的方向。</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>文本段落记录无效。</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>文本段落使用了未知的对齐方式。</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>文本段落使用了未知的方向。</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>文本段落末尾有多余数据。</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>文本图层的尺寸无效或段落过多。</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>文本图层负载无效。</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>文本图层末尾有多余数据。</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>文本片段过大。</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>字体系列记录无效。</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>字体系列块末尾有多余数据。</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>文本片段使用了未知的字体样式。</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>文本片段使用了未知的大小写模式。</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>文本片段使用了未知的字间距模式。</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>文本片段使用了未知的字体微调模式。</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>文本片段没有有效的字号。</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>文本片段的字体系列过多。</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>文本片段的字体数值属性无效。</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>文本片段记录无效。</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>文本片段被截断。</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>无法打开 %1 进行读取：%2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>无法打开 %1 进行写入：%2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>目标不是常规文件。</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>无法完成写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
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
        <translation>无法替换当前文档。</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>请选择现有文件。</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>无法打开所选图像文件。</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>无法加载所选 SVG 图像。</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows 无法解码所选 HEIC/HEIF 图像。</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>无法加载所选图像文件。</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>所选图像的大小不可用。</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>无法用所选图像创建文档。</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>请输入有效的宽度和高度。</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>无法新建文档。</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>仅支持本地文件。</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>保存文档前请选择文件名。</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>调整文档大小</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>使文档边界适合内容</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>移动对象</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>请选择现有图像文件。</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier 无法加载所选图像。</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>仅支持本地图像文件。</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>无法将所选图像添加到文档。</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Zelmora 示例</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier 无法加载示例图像。</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>无法将示例图像添加到文档。</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>目前无法导出已启用的风格迁移滤镜。请在导出前停用或移除该滤镜。</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>无法编码预览：%1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>无法编码要保存的图像：%1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>无法创建内存中的图像缓冲区。</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>无法渲染图像。</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>无法重新打开内存中的图像缓冲区。</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>无法解码已编码的预览：%1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>JPEG 图像 (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>WebP 图像 (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>PNG 图像 (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>目标不是常规文件。</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>无法保存图像：%1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>请等待当前保存完成。</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>图像预览尚未就绪。</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>仅支持保存到本地位置。</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>文件扩展名与所选图像格式不符：%1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>请选择图像的文件名。</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>图像已保存，但无法保存可编辑的 .zelmora 文件：%1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>保存此图像前请选择保存设置。</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>保存前请关闭“导出设置”对话框。</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>无法保存可编辑的 .zelmora 文件：%1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>编码器未生成图像。</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>可编辑的 .zelmora 文件已保存，但无法更新图像：%1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>无法打开图像所在的文件夹。</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>绘画</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>SPDX 标识符：%1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Debian 上的全文：%1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Debian 上的版权声明：%1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MIT 许可证</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU 宽通用公共许可证，第 3 版</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>绘制界面并读写大多数图片格式。采用动态链接，以便替换：Qt Core、Gui、OpenGL、Svg、Concurrent、D-Bus、Network、Qml、Quick、Quick Controls、Quick Layouts、Quick Dialogs，以及图片格式插件。</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt 附带或使用了他人的作品，其中包括 FreeType、HarfBuzz、libpng、libjpeg-turbo、PCRE2 和 zlib。它们的声明与 Qt 自身的声明列在一起。</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>BSD 3 条款许可证</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>对文档中的图片和导出的 WebP 文件进行编码。与其组成部分 libsharpyuv 一起动态链接。</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>查找图形驱动程序的 OpenGL（不属于本程序）。动态链接。</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU 通用公共许可证，第 3 版或更高版本，附带 GCC 运行时库例外条款</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>C++ 标准库和编译器的支持例程，动态链接。例外条款允许采用任何许可证的程序使用它们。</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU 宽通用公共许可证，第 2.1 版或更高版本</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>系统的 C 库，动态链接。</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>更改不透明度</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>旋转对象</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>移动对象</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>斜切对象</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>设置变换轴心点</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>缩放对象</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>垂直翻转</translation>
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
        <translation>动态</translation>
    </message>
</context>
</TS>
