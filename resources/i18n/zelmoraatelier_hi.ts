<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>संस्करण %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>लाइसेंस</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>लॉग फ़ोल्डर दिखाने वाला कोई फ़ाइल प्रबंधक नहीं है।</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>वेबसाइट</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>लॉग फ़ोल्डर खोलें</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>%1 जोड़ना</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>ऑब्जेक्ट</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>तीर</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>नोक</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>पूँछ</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>विस्फोट</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>किरणें</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>गहराई</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>व्यस्त</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>व्यस्त</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>कैनवास</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>दस्तावेज़। दृश्य खिसकाने के लिए खींचें, ज़ूम करने के लिए पहिया घुमाएँ।</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>&amp;कैनवास को दस्तावेज़ की सीमाओं तक रखें</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>लेयर रास्टराइज़ करें</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>बादल</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>रूप</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>फुलाव</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>लेयर मिलाना</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>रंग चुनें</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>आकृति को पथ में बदलना</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>छवि क्रॉप करना</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>डी&amp;बग</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>&amp;रनटाइम फ़्लैग</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>&amp;HEVC कोडेक अनुपलब्ध</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>डायलॉग &amp;पूर्वावलोकन</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>HEIF सहायता</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>सहेजने की प्रगति</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>भाषा के लिए पुनरारंभ</translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation>हीरा</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>क्षैतिज</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>लंबवत</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>दस्तावेज़ की &amp;सीमाएँ दिखाएँ</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>दस्तावेज़ का आकार</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>चौड़ाई</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>ऊँचाई</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>दस्तावेज़ को सामग्री के अनुसार फ़िट करें</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>पृष्ठभूमि</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>रंग</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>दस्तावेज़ की पृष्ठभूमि का रंग चुनें</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>पृष्ठभूमि का रंग</translation>
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
        <translation>&amp;पूर्ववत करें</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>पूर्ववत करें: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>पूर्ववत करें</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;फिर से करें</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>फिर से करें: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>फिर से करें</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;काटें</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>कॉपी क&amp;रें</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;चिपकाएँ</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>दीर्घवृत्त</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>गोलाई</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>मध्य</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>निर्यात सेटिंग</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>फ़ॉर्मैट</translation>
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
        <translation>WebP, पारदर्शी</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, पारदर्शी</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>इस छवि में पारदर्शिता है। उसे बनाए रखने के लिए पारदर्शी पृष्ठभूमि वाला फ़ॉर्मैट चुनें।</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>चौड़ाई</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>अनुपात बनाए रखें</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>ऊँचाई</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>गुणवत्ता</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>गुणवत्ता प्रतिशत में</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>PNG संपीड़न</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>अधिकतम</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>हानिरहित दस्तावेज़ फ़ाइल</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>संपादन योग्य दस्तावेज़ का हर पिक्सेल बनाए रखता है; फ़ाइल बड़ी होती है।</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>छवि का अनुमानित आकार:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>गणना हो रही है…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>अनुपलब्ध</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>छवि के साथ एक संपादन योग्य Zelmora दस्तावेज़ (.zelmora) सहेजा जाता है।</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>सहेजें…</translation>
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
        <translation>पूर्वावलोकन एन्कोड हो रहा है…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>पूर्वावलोकन लोड हो रहा है…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>पूर्वावलोकन</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>ज़ूम आउट करें</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>ज़ूम इन करें</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>फ़िट करें</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>पूरी छवि दिखाएँ</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>छवि को उसके अपने आकार में दिखाएँ</translation>
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
        <translation>अल्फ़ा, फ़ेड, ग्रेडिएंट, पारदर्शी</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>मोड</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>रैखिक</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>त्रिज्यीय</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>फ़ेड</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>फ़ेड की जगह तय करें</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>फ़ेड का रंग</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>तीव्रता</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>वक्र</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>कोमलता</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>उलटें</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>दस्तावेज़ का रंग</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>फ़ेड आउट</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;नया</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>नया दस्तावेज़</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;खोलें…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>दस्तावेज़ या छवि खोलें</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;सहेजें</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>छवि और दस्तावेज़ सहेजें</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>इस &amp;रूप में सहेजें…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;बाहर निकलें</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>नॉइज़ जोड़ें</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>बॉक्स ब्लर</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>रंग समायोजन</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>रंगीन करें</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>फ़ेड आउट</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>गॉसियन ब्लर</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>ग्रेस्केल</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>हाइलाइट से अल्फ़ा</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>भीतरी छाया</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>पिक्सेलेट</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>उभार</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>सोबेल किनारे</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>सॉफ़्ट बेवल</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>टेक्सचर कॉपी</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>टोन मैप</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>पानी में प्रतिबिंब</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>अर्धवृत्त</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>अर्धचंद्र</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>दिल</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>पालियाँ</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>खाँचा</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>नोक</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>&amp;वेब पर Zelmora Atelier</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>Zelmora Atelier के बारे &amp;में</translation>
    </message>
</context>
<context>
    <name>ImageLoadErrorDialog</name>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>HEIC/HEIF Support Is Unavailable</source>
        <translation>HEIC/HEIF समर्थन उपलब्ध नहीं है</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>kimageformat6-plugins पैकेज इंस्टॉल करें, जिससे Qt HEIF पढ़ पाता है, और Zelmora Atelier फिर से शुरू करें।</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>HEIF छवि एक्सटेंशन</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>HEVC वीडियो एक्सटेंशन</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Document</source>
        <translation>दस्तावेज़</translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation>पेंट लेयर</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>छवि</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>टेक्स्ट</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>आकृति</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>लेयर</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>आकार</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>इंस्पेक्टर</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;भाषा</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>सभी बदलाव लागू करने के लिए Zelmora Atelier को पुनरारंभ करें।</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
</context>
<context>
    <name>LayerActions</name>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;छवि</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>छवि को नई लेयर के रूप में डालें</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>&amp;उदाहरण छवि डालें</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;टेक्स्ट</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>टेक्स्ट लेयर डालें</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;आकृति</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>आकृति या स्टिकर डालें</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>&amp;नई पेंट लेयर</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>लेयर दिखाएँ</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>लेयर छिपाएँ</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>लेयर &amp;ऊपर ले जाएँ</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>लेयर नी&amp;चे ले जाएँ</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>लेयर &amp;हटाएँ</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>लेयर &amp;रास्टराइज़ करें</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>नीचे की लेयर में &amp;मिलाएँ</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>बुनियादी</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>किनारे</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>रंग, टोन, विशेष प्रभाव</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>शैली स्थानांतरण</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>फ़्रेम</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>फ़ोटो मोंटाज, मस्ती &amp; कला</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>ग्लिटर &amp; चमक</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>प्रभाव</translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation>नाम</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>अपारदर्शिता</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>ब्लेंड मोड</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>ब्लेंड मोड</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>लेयर</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>नाम बदलें</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>लेयर</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>प्रबंधित करने के लिए कोई लेयर चुनें।</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>लेयर</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>अभी कोई लेयर नहीं है।</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>लेयर %1, छिपी हुई</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>लेयर %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>रास्टर चयन मौजूद है</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>लेयर दिखाएँ</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>लेयर छिपाएँ</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>नीचे की लेयर में मिलाएँ</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>लेयर का रूप</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>प्रकार</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>आकार</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>स्थिति</translation>
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
        <translation>बिजली</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>मोड़</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Finder में दिखाएँ</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>एक्सप्लोरर में दिखाएँ</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>छवि %1 में निर्यात की गई।
संपादन योग्य दस्तावेज़ %2 के रूप में सहेजा गया।</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>छवि वाला फ़ोल्डर नहीं खोला जा सका।</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>कृपया मौजूदा सहेजना पूरा होने तक प्रतीक्षा करें।</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;फ़ाइल</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;संपादन</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;चयन</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;दृश्य</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;रूलर</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>&amp;इंस्पेक्टर की जगह</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;थीम</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;लेयर</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;डालें</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;छवि…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;टेक्स्ट</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;आकृति…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>स&amp;हायता</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>मुख्य टूलबार</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>सहेजने के और तरीके</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>और इतिहास</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>डालें:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>लेयर ऊपर ले जाना</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>लेयर नीचे ले जाना</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>स्क्रीन</translation>
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
        <translation>सोशल मीडिया</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>वर्गाकार</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>स्टोरी</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>फ़ोटो</translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation>फ़ोटो 3:2</translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation>फ़ोटो 4:3</translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation>प्रिंट, 300 ppi</translation>
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
        <translation>लेटर</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>नया दस्तावेज़</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>प्रीसेट</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 मेगापिक्सेल</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>आकार</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>चौड़ाई</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>चौड़ाई और ऊँचाई की अदला-बदली करें</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>ऊँचाई</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>पृष्ठभूमि</translation>
    </message>
    <message>
        <source>White</source>
        <translation>सफ़ेद</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>काला</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>पारदर्शी</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>कस्टम</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>पृष्ठभूमि का रंग चुनें</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>बनाएँ</translation>
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
        <translation>%1, %2 गुणा %3 पिक्सेल</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>लाइसेंस</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>शेडर त्रुटि</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>प्रोग्राम: %1
चरण: %2
संसाधन: %3
लक्ष्य: %4
लॉग:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>वर्टेक्स</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>फ़्रैगमेंट</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;कोई नहीं&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;कंपाइलर लॉग खाली है&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>वर्टेक्स शेडर का संकलन विफल रहा</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>फ़्रैगमेंट शेडर का संकलन विफल रहा</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>शेडर लोड नहीं हो सका</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>प्रोग्राम: %1
वर्टेक्स लक्ष्य: %2
फ़्रैगमेंट लक्ष्य: %3
लॉग:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;लिंकर लॉग खाली है&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>शेडर लिंक करना विफल रहा</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>%1 नहीं खोला जा सका: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>अमान्य क्रमबद्ध QSB शेडर: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>%1 में कोई संगत GLSL संस्करण नहीं है। आज़माए गए: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>छवि पर पेंट करना</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>पेंट का धब्बा</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>रूप</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>लंबाई</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>नोकें</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>खोजें</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>चुनें</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>कोई मेल खाता आइटम नहीं।</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>श्रेणियाँ</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>बहुभुज</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>भुजाएँ</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;हाल की फ़ाइलें खोलें</translation>
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
        <translation>%1 हटाना</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>ऑब्जेक्ट</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>लेयर का नाम</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>ऑब्जेक्ट का नाम बदलना</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>लेयर रास्टराइज़ करना</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>छवि का आकार बदलना</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>टेक्स्ट का आकार बदलना</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>समचतुर्भुज</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>क्षैतिज</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>लंबवत</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>रिबन</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>रूप</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>गहराई</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>आयत</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
</context>
<context>
    <name>SceneObjectAdapter</name>
    <message>
        <source>Normal</source>
        <translation>सामान्य</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>गुणन</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>स्क्रीन</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>ओवरले</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>गहरा करें</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>हल्का करें</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>कलर डॉज</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>कलर बर्न</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>हार्ड लाइट</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>सॉफ़्ट लाइट</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>अंतर</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>अपवर्जन</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>रंगत</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>संतृप्ति</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>रंग</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>दीप्ति</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>&amp;आयताकार चयन</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>आयताकार रास्टर चयन बनाएँ</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>&amp;दीर्घवृत्ताकार चयन</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>दीर्घवृत्ताकार रास्टर चयन बनाएँ</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>&amp;मैजिक वैंड चयन</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>एक रंग का सटा हुआ क्षेत्र चुनें</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>&amp;बहुभुज चयन</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>रास्टर चयन का पथ संपादित करें</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>रास्टर चयन हटाएँ</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>रास्टर चयन &amp;उलटें</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>चयन को &amp;नई लेयर में निकालें</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>रास्टर चयन &amp;हटाएँ</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>दस्तावेज़ की पृष्ठभूमि बदलना</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>ब्लेंड मोड बदलना</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>लेयर दिखाना</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>लेयर छिपाना</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>आकृति या स्टिकर डालें</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>आकृतियाँ और स्टिकर खोजें</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>कोई मेल खाती आकृति या स्टिकर नहीं।</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>डालें</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>मास्क, कटआउट, क्रॉप, आकृति</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>स्थिति</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>आकृति की जगह तय करें</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>आकृति</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>रूपरेखा</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>फ़ेदर</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>उलटें</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>आकृति संपादक</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>आकृति में काटें</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>ढाल बैज</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>रूप</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>नोक</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>रूपांतरण संपादित करने के लिए कोई लेयर चुनें।</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>ज्यामिति</translation>
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
        <translation>चौड़ाई</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>ऊँचाई</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>आकार अनुपात बनाए रखें</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>पलटें</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>क्षैतिज पलटें</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>लंबवत पलटें</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>घुमाव</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>कोण</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>डिग्री</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>धुरी X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>धुरी Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>तिरछापन</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>तिरछा करना शुरू करें</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>तिरछापन X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>तिरछापन Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>आकार की इकाई बदलें</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>संवाद</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>सूचक</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>रूप</translation>
    </message>
</context>
<context>
    <name>SplodgeShapeGenerator</name>
    <message>
        <source>Splodge</source>
        <translation>छींटा</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>रूप</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>तारा</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>नोकें</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>नोक</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>स्थिति पट्टी</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>लेयर: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>कोई लेयर चयनित नहीं</translation>
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
        <translation>टेक्स्ट</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>टेक्सचर संसाधन बंडल पंजीकृत नहीं हो सका: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>टेक्सचर छवि का असुरक्षित पथ अस्वीकृत: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>टेक्सचर छवि नहीं मिली: %1 (यहाँ खोजा गया: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>छवि डिकोडर की अज्ञात त्रुटि</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>टेक्सचर छवि %1 को %2 से लोड नहीं किया जा सका: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>टेक्सचर डेटा का असुरक्षित पथ अस्वीकृत: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>टेक्सचर डेटा नहीं मिला: %1 (यहाँ खोजा गया: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>किसी भी विकल्प के लिए टेक्सचर डेटा नहीं मिला: %1 (यहाँ खोजा गया: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>पढ़ने की अज्ञात त्रुटि</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>फ़ाइल खाली है</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>टेक्सचर डेटा %1 को %2 से लोड नहीं किया जा सका: %3</translation>
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
        <translation>विचार</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>नोक</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>रूप</translation>
    </message>
</context>
<context>
    <name>ToolModeActions</name>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;चुनें</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>लेयर चुनें</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>&amp;तिरछा करें</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>चयनित लेयर को तिरछा करें</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>क्रॉप क&amp;रें</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>चयनित लेयर को क्रॉप करें</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;पथ</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>चयनित आकृति का पथ संपादित करें या नया पथ बनाएँ</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;ड्रॉ करें</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>मुक्तहस्त ब्रश से ड्रॉ करें</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;मिटाएँ</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>चयनित लेयर से पिक्सेल मिटाएँ</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>&amp;क्लोन करें</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>पिक्सेल क्लोन करें</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>&amp;एक्सपोज़र</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>एक्सपोज़र ब्रश से पिक्सेल हल्के या गहरे करें</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>चयन &amp;भरें</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>सक्रिय रास्टर चयन भरें</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>टूल</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>त्रिभुज</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>भुजाएँ</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>बाहर निकलने से पहले बदलाव सहेजें?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>नया दस्तावेज़ बनाने से पहले बदलाव सहेजें?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>दूसरा दस्तावेज़ खोलने से पहले बदलाव सहेजें?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>इस दस्तावेज़ में बिना सहेजे बदलाव हैं। बिना सहेजे बाहर निकलने पर आपके बदलाव खो जाएँगे।</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>इस दस्तावेज़ में बिना सहेजे बदलाव हैं। बिना सहेजे नया दस्तावेज़ बनाने पर आपके बदलाव खो जाएँगे।</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>इस दस्तावेज़ में बिना सहेजे बदलाव हैं। बिना सहेजे दूसरा दस्तावेज़ खोलने पर आपके बदलाव खो जाएँगे।</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>फिर भी बाहर निकलें</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>फिर भी बनाएँ</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>फिर भी खोलें</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>सहेजें</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;बड़ा करें</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;छोटा करें</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>विंडो में &amp;फ़िट करें</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>वास्तविक &amp;आकार</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>&amp;पूर्ण स्क्रीन</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>&amp;असीमित कैनवास मोड</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;बंद</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>&amp;ऊपर और बाएँ</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>&amp;नीचे और दाएँ</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;बाएँ</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;दाएँ</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;सिस्टम</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;लाइट</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;डार्क</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>ज़ूम इन करें</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>ज़ूम आउट करें</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>ज़ूम 100% पर रीसेट करें</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>विनेट</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>कोने की त्रिज्या</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>दस्तावेज़ या छवि खोलें</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>सभी समर्थित फ़ाइलें (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>सभी छवि फ़ाइलें (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Zelmora दस्तावेज़ (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>सभी फ़ाइलें (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>छवि लेयर डालें</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>छवि इस रूप में सहेजें</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>सहेजें</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>फ़ाइल नहीं खोली जा सकी</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>छवि नहीं डाली जा सकी</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>छवि नहीं सहेजी जा सकी</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>सहेजा जा रहा है…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>.zelmora फ़ाइल अधूरी है या पढ़ी नहीं जा सकती: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>.zelmora का एक लेयर खंड डिकोड नहीं हो सका।</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>.zelmora फ़ाइल में किसी लेयर की ID दोहराई गई है।</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>.zelmora का पहला खंड दस्तावेज़ गुण नहीं है।</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>दस्तावेज़ गुण खंड का आकार अमान्य है।</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>दस्तावेज़ गुण डेटा का संस्करण समर्थित नहीं है।</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>.zelmora के एक खंड का हेडर अमान्य है।</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>यह .zelmora दस्तावेज़ नहीं है।</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>.zelmora फ़ॉर्मैट का यह संस्करण समर्थित नहीं है।</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>.zelmora दस्तावेज़ के आयाम अमान्य हैं।</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>.zelmora के खंडों की संख्या अमान्य है।</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>.zelmora फ़ाइल में दस्तावेज़ गुण दोहराए गए हैं।</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>स्रोत डिवाइस पढ़ा नहीं जा सकता।</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>.zelmora फ़ाइल के अंत में अतिरिक्त डेटा है।</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>.zelmora फ़ाइल नहीं लिखी जा सकी: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>.zelmora का एक खंड बहुत बड़ा है।</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>दस्तावेज़ में असमर्थित दृश्य ऑब्जेक्ट है।</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>दस्तावेज़ में किसी लेयर की ID दोहराई गई है।</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>गंतव्य डिवाइस पर लिखा नहीं जा सकता।</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>दस्तावेज़ के आयाम .zelmora फ़ॉर्मैट में सहेजे नहीं जा सकते।</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>दस्तावेज़ में बहुत अधिक लेयर हैं।</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>मेमोरी समाप्त</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>बिटस्ट्रीम लिखते समय मेमोरी समाप्त</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>एन्कोडर का एक आवश्यक पैरामीटर नहीं मिला</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>एन्कोडर का कॉन्फ़िगरेशन अमान्य है</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>छवि के आयाम अमान्य हैं</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>एन्कोडर का एक विभाजन बहुत बड़ा है</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>एन्कोड किया गया डेटा लिखा नहीं जा सका</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>एन्कोड की गई छवि बहुत बड़ी है</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>एन्कोडिंग रद्द की गई</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>एन्कोडर की अज्ञात त्रुटि (कोड %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>एक छवि WebP के रूप में नहीं दर्शाई जा सकती।</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>WebP एन्कोडर प्रारंभ नहीं हो सका।</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>WebP एन्कोडर का कॉन्फ़िगरेशन अमान्य है।</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>छवि WebP एन्कोडिंग के लिए तैयार नहीं की जा सकी।</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>छवि WebP एन्कोडिंग के लिए तैयार नहीं की जा सकी: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>WebP एन्कोड नहीं हो सका: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>WebP एन्कोडर ने कोई डेटा नहीं दिया।</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>एन्कोड की गई WebP छवि बहुत बड़ी है।</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>एक एम्बेड की गई WebP छवि के आयाम अमान्य हैं।</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>एम्बेड की गई एक छवि नहीं खोली जा सकी।</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>WebP डिकोड नहीं हो सका: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>एक छवि अपरिष्कृत RGBA डेटा के रूप में नहीं दर्शाई जा सकती।</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>एक अपरिष्कृत RGBA छवि के आयाम अमान्य हैं।</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>एक अपरिष्कृत RGBA छवि की बाइट लंबाई अमान्य है।</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>अपरिष्कृत RGBA छवि के लिए मेमोरी आवंटित नहीं हो सकी।</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>एक ग्रेडिएंट भराव का प्रकार समर्थित नहीं है।</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>एक ग्रेडिएंट भराव की स्थिति अमान्य है।</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>एक ग्रेडिएंट भराव में रंग बिंदुओं की संख्या अमान्य है।</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>एक ग्रेडिएंट भराव का रंग बिंदु अमान्य है।</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>एक भराव असमर्थित टेक्सचर मैपिंग का उपयोग करता है।</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>एक टेक्सचर भराव का रूपांतरण अमान्य है।</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>एक भराव जनरेटर की ID बहुत बड़ी है।</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>एक ठोस भराव में अप्रत्याशित डेटा है।</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>एक टेक्सचर भराव का रिकॉर्ड अमान्य है।</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>टेक्सचर पैरामीटर के एक ब्लॉक के अंत में अतिरिक्त डेटा है।</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>एक टेक्सचर भराव का रूपांतरण या आकार अमान्य है।</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>एक ग्रेडिएंट भराव का रिकॉर्ड अमान्य है।</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>एक भराव रिकॉर्ड अधूरा या अमान्य है।</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>एक भराव अज्ञात टेक्सचर मैपिंग का उपयोग करता है।</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>एक फ़िल्टर की इंस्टेंस ID शून्य है।</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>एक फ़िल्टर रिकॉर्ड अधूरा या अमान्य है।</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>फ़िल्टर पैरामीटर के एक ब्लॉक के अंत में अतिरिक्त डेटा है।</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>एक आकृति जनरेटर की ID खाली या बहुत बड़ी है।</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>एक पैरामीट्रिक आकृति का रिकॉर्ड अमान्य है।</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>एक आकृति जनरेटर की ID खाली है।</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>एक पैरामीट्रिक आकृति के अंत में अतिरिक्त डेटा है।</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>एक आकृति अज्ञात ज्यामिति प्रकार का उपयोग करती है।</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>एक SVG लेयर में स्रोत डेटा नहीं है।</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>एक छवि लेयर का कोई समर्थित स्रोत नहीं है।</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>रास्टर चयन का संपादन योग्य पथ होना ज़रूरी है।</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>एक रास्टर लेयर के पिक्सेल आयाम अमान्य हैं।</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>एक SVG लेयर में रास्टर आयाम हैं।</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>एक SVG लेयर में अमान्य SVG डेटा है।</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>एक छवि लेयर अज्ञात स्रोत एन्कोडिंग का उपयोग करती है।</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>एक छवि लेयर के आयाम या डेटा अमान्य हैं।</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>एक छवि लेयर का डेटा अमान्य है।</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>एक छवि लेयर की रास्टर सतह नीति अज्ञात है।</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>दस्तावेज़ में असमर्थित प्रकार की लेयर है।</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>एक खंड समर्थित लेयर प्रकार का नहीं है।</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>एक लेयर में बहुत अधिक फ़िल्टर हैं।</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>एक लेयर में फ़िल्टर इंस्टेंस ID दोहराई गई है।</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>एक लेयर के पहचान या रूपांतरण गुण अमान्य हैं।</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>किसी लेयर का नाम या ब्लेंड मोड ID बहुत बड़ी है।</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>एक लेयर का प्रकार उसकी सामग्री से मेल नहीं खाता।</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>एक लेयर खंड बहुत बड़ा है।</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>एक लेयर डेटा का हेडर अमान्य है।</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>एक लेयर की ब्लेंड मोड ID खाली है।</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>एक लेयर खंड के अंत में अतिरिक्त डेटा है।</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>एक लेयर का फ़िल्टर स्टैक पुनर्स्थापित नहीं हो सका।</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>एक पैरामीटर का टेक्स्ट मान बहुत बड़ा है।</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>प्रकाशों की एक सूची में बहुत अधिक प्रकाश हैं।</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>एक एसेट पैरामीटर की बाइट लंबाई अमान्य है।</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>एक बूलियन पैरामीटर अमान्य है।</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>एक वास्तविक पैरामीटर परिमित नहीं है।</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>एक पैरामीटर में अपरिमित संख्या है।</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>एसेट पैरामीटर फ़ाइल का नाम होना चाहिए, पथ नहीं।</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>एक सक्षम-रंग पैरामीटर अमान्य है।</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>एक स्ट्रोक पैरामीटर अमान्य है।</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>एक स्ट्रोक की चौड़ाई अमान्य है।</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>एक ग्रेडिएंट पैरामीटर अमान्य है।</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>एक ग्रेडिएंट में अपरिमित स्थिति है।</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>एक मास्क का रूपांतरण अमान्य है।</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>एक मास्क में अपरिमित रूपांतरण है।</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>प्रकाश सूची का एक पैरामीटर अमान्य है।</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>प्रकाशों की एक सूची में अमान्य प्रकाश है।</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>.zelmora फ़ाइल अज्ञात पैरामीटर प्रकार का उपयोग करती है।</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>एक पैरामीटर मान की बाइट लंबाई अमान्य है।</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>एक पैरामीटर कुंजी दोहराई गई है।</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>पैरामीटर का एक संग्रह बहुत बड़ा है।</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>एक पैरामीटर हेडर अधूरा है।</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>एक पैरामीटर मान अधूरा है।</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>संपादन योग्य पथ का एक नोड अमान्य है।</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>संपादन योग्य पथ के एक नोड की ID दोहराई गई है।</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>संपादन योग्य पथ का एक नोड अज्ञात प्रकार का है।</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>संपादन योग्य पथ की एक कंटूर अमान्य है।</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>एक संपादन योग्य पथ में बहुत अधिक कंटूर हैं।</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>संपादन योग्य पथ की एक कंटूर में बहुत अधिक नोड हैं।</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>एक संपादन योग्य पथ का रिकॉर्ड अमान्य है।</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>एक संपादन योग्य पथ के अंत में अतिरिक्त डेटा है।</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>.zelmora फ़ाइल में अमान्य रंग है।</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>.zelmora फ़ाइल में शून्य ऑब्जेक्ट पहचानकर्ता है।</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>एक रजिस्ट्री कुंजी मान्य 7-बिट ASCII नहीं है।</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>एक रजिस्ट्री कुंजी खाली है या शून्य पर समाप्त नहीं होती।</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>एक रजिस्ट्री कुंजी की पैडिंग शून्य नहीं है।</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>फ़िल्टर या पैरामीटर की एक कुंजी अपने 32-बाइट फ़ील्ड में नहीं समाती।</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>फ़िल्टर और पैरामीटर की कुंजियाँ 7-बिट ASCII में होनी चाहिए।</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>.zelmora का एक रिकॉर्ड 32-बिट आकार सीमा से बड़ा है।</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>एक आकृति लेयर के आयाम या स्ट्रोक अमान्य हैं।</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>एक आकृति लेयर का डेटा अमान्य है।</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>एक आकृति लेयर का डेटा अधूरा है।</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>टेक्स्ट का एक अनुच्छेद अमान्य है।</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>टेक्स्ट का एक अनुच्छेद असमर्थित संरेखण का उपयोग करता है।</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>टेक्स्ट का एक अनुच्छेद असमर्थित दिशा का उपयोग करता है।</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>टेक्स्ट के एक अनुच्छेद का रिकॉर्ड अमान्य है।</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>टेक्स्ट का एक अनुच्छेद अज्ञात संरेखण का उपयोग करता है।</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>टेक्स्ट का एक अनुच्छेद अज्ञात दिशा का उपयोग करता है।</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>टेक्स्ट के एक अनुच्छेद के अंत में अतिरिक्त डेटा है।</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>एक टेक्स्ट लेयर के आयाम अमान्य हैं या उसमें बहुत अधिक अनुच्छेद हैं।</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>एक टेक्स्ट लेयर का डेटा अमान्य है।</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>एक टेक्स्ट लेयर के अंत में अतिरिक्त डेटा है।</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>टेक्स्ट का एक अंश बहुत बड़ा है।</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>एक फ़ॉन्ट परिवार का रिकॉर्ड अमान्य है।</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>फ़ॉन्ट परिवार के एक ब्लॉक के अंत में अतिरिक्त डेटा है।</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>टेक्स्ट का एक अंश अज्ञात फ़ॉन्ट शैली का उपयोग करता है।</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>टेक्स्ट का एक अंश अज्ञात कैपिटल अक्षर मोड का उपयोग करता है।</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>टेक्स्ट का एक अंश अज्ञात अक्षर-अंतराल मोड का उपयोग करता है।</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>टेक्स्ट का एक अंश अज्ञात फ़ॉन्ट हिंटिंग मोड का उपयोग करता है।</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>टेक्स्ट के एक अंश का फ़ॉन्ट आकार मान्य नहीं है।</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>टेक्स्ट के एक अंश में बहुत अधिक फ़ॉन्ट परिवार हैं।</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>टेक्स्ट के एक अंश के संख्यात्मक फ़ॉन्ट गुण अमान्य हैं।</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>टेक्स्ट के एक अंश का रिकॉर्ड अमान्य है।</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>टेक्स्ट का एक अंश अधूरा है।</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>%1 पढ़ने के लिए नहीं खोला जा सका: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>%1 लिखने के लिए नहीं खोला जा सका: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>लक्ष्य कोई सामान्य फ़ाइल नहीं है।</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>%1 लिखना पूरा नहीं हो सका: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>साफ़ करें</translation>
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
        <translation>मौजूदा दस्तावेज़ बदला नहीं जा सका।</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>कोई मौजूदा फ़ाइल चुनें।</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>चुनी गई छवि फ़ाइल नहीं खोली जा सकी।</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>चुनी गई SVG छवि लोड नहीं हो सकी।</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows चुनी गई HEIC/HEIF छवि डिकोड नहीं कर सका।</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>चुनी गई छवि फ़ाइल लोड नहीं हो सकी।</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>चुनी गई छवि का आकार उपयोग योग्य नहीं है।</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>चुनी गई छवि से दस्तावेज़ नहीं बनाया जा सका।</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>छवि</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>शीर्षकहीन</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>मान्य चौड़ाई और ऊँचाई दर्ज करें।</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>नया दस्तावेज़ नहीं बनाया जा सका।</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>केवल स्थानीय फ़ाइलें समर्थित हैं।</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>दस्तावेज़ सहेजने से पहले फ़ाइल का नाम चुनें।</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>दस्तावेज़ का आकार बदलना</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>दस्तावेज़ की सीमाएँ सामग्री के अनुसार फ़िट करना</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>ऑब्जेक्ट खिसकाना</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>कोई मौजूदा छवि फ़ाइल चुनें।</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier चुनी गई छवि लोड नहीं कर सका।</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>केवल स्थानीय छवि फ़ाइलें समर्थित हैं।</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>चुनी गई छवि दस्तावेज़ में नहीं जोड़ी जा सकी।</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Zelmora उदाहरण</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier उदाहरण छवि लोड नहीं कर सका।</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>उदाहरण छवि दस्तावेज़ में नहीं जोड़ी जा सकी।</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>पथ</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>सक्षम शैली स्थानांतरण फ़िल्टर अभी निर्यात नहीं किया जा सकता। निर्यात से पहले फ़िल्टर को अक्षम करें या हटाएँ।</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>पूर्वावलोकन एन्कोड नहीं हो सका: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>सहेजी जा रही छवि एन्कोड नहीं हो सकी: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>मेमोरी में छवि बफ़र नहीं बनाया जा सका।</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>छवि रेंडर नहीं हो सकी।</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>मेमोरी में छवि बफ़र दोबारा नहीं खोला जा सका।</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>एन्कोड किया गया पूर्वावलोकन डिकोड नहीं हो सका: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>JPEG छवियाँ (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>WebP छवियाँ (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>PNG छवियाँ (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>लक्ष्य कोई सामान्य फ़ाइल नहीं है।</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>छवि नहीं सहेजी जा सकी: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>मौजूदा सहेजना पूरा होने तक प्रतीक्षा करें।</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>छवि का पूर्वावलोकन तैयार नहीं है।</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>केवल स्थानीय स्थानों पर सहेजना समर्थित है।</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>फ़ाइल नाम का एक्सटेंशन चुने गए छवि फ़ॉर्मैट से मेल नहीं खाता: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>छवि के लिए फ़ाइल का नाम चुनें।</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>छवि सहेजी गई, लेकिन संपादन योग्य .zelmora फ़ाइल नहीं सहेजी जा सकी: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>यह छवि सहेजने से पहले सहेजने की सेटिंग चुनें।</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>सहेजने से पहले “निर्यात सेटिंग” डायलॉग बंद करें।</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>संपादन योग्य .zelmora फ़ाइल नहीं सहेजी जा सकी: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>एन्कोडर ने कोई छवि नहीं बनाई।</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>संपादन योग्य .zelmora फ़ाइल सहेजी गई, लेकिन छवि अपडेट नहीं हो सकी: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>छवि वाला फ़ोल्डर नहीं खोला जा सका।</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>पेंट</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>SPDX पहचानकर्ता: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Debian पर पूरा पाठ: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Debian पर कॉपीराइट सूचनाएँ: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MIT लाइसेंस</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, संस्करण 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>इंटरफ़ेस बनाता है और अधिकांश छवि फ़ॉर्मैट पढ़ता व लिखता है। डायनेमिक रूप से लिंक किया गया है, ताकि इसे बदला जा सके: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs और छवि फ़ॉर्मैट के प्लग-इन।</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt में दूसरों की कृतियाँ शामिल हैं या उपयोग होती हैं, जैसे FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 और zlib। उनकी सूचनाएँ Qt की अपनी सूचनाओं के साथ दी गई हैं।</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>BSD 3-क्लॉज़ लाइसेंस</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>दस्तावेज़ों की छवियाँ और निर्यात की गई WebP फ़ाइलें एन्कोड करता है। अपने भाग libsharpyuv के साथ डायनेमिक रूप से लिंक किया गया है।</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>ग्राफ़िक्स ड्राइवर का OpenGL ढूँढता है, जो इस प्रोग्राम का भाग नहीं है। डायनेमिक रूप से लिंक किया गया है।</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, संस्करण 3 या बाद का, GCC रनटाइम लाइब्रेरी अपवाद के साथ</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>C++ मानक लाइब्रेरी और कंपाइलर के सहायक रूटीन, डायनेमिक रूप से लिंक किए गए। यह अपवाद किसी भी लाइसेंस वाले प्रोग्रामों को इनका उपयोग करने देता है।</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, संस्करण 2.1 या बाद का</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>सिस्टम की C लाइब्रेरी, डायनेमिक रूप से लिंक की गई।</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>अपारदर्शिता बदलना</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>ऑब्जेक्ट घुमाना</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>ऑब्जेक्ट खिसकाना</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>ऑब्जेक्ट तिरछा करना</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>रूपांतरण की धुरी तय करना</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>ऑब्जेक्ट का माप बदलना</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>क्षैतिज पलटना</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>लंबवत पलटना</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>बुनियादी</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>गतिशील</translation>
    </message>
</context>
</TS>
