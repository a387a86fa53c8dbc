<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>라이선스</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>로그 폴더를 표시할 수 있는 파일 관리자가 없습니다.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>웹사이트</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>로그 폴더 열기</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>%1 추가</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>개체</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>화살표</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>끝</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>꼬리</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>폭발형</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>광선 수</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>깊이</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>처리 중</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>처리 중</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>캔버스</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>문서입니다. 드래그하면 보기가 이동하고, 휠을 돌리면 확대/축소됩니다.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>캔버스를 문서 경계로 제한(&amp;L)</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>레이어 래스터화</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>구름</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>형태</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>부풀기</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>레이어 병합</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>색상 선택</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>도형을 패스로 변환</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>이미지 자르기</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>디버그(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>런타임 플래그(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>HEVC 코덱 없음(&amp;M)</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>대화 상자 미리 보기(&amp;P)</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>HEIF 도움말</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>저장 진행률</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>언어 변경 재시작</translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation>다이아몬드</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>가로</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>세로</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>문서 경계 표시(&amp;B)</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>문서 크기</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>너비</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>문서를 내용에 맞추기</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>배경</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>문서 배경색 선택</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>배경색</translation>
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
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>%1 실행 취소</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>%1 다시 실행</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>잘라내기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>붙여넣기(&amp;P)</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>타원</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>둥글기</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>중간</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>내보내기 설정</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>형식</translation>
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
        <translation>WebP(투명)</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG(투명)</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>이 이미지에는 투명한 부분이 있습니다. 투명도를 유지하려면 투명 배경을 지원하는 형식을 선택하세요.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>너비</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>비율 유지</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>품질</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>품질(퍼센트)</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>PNG 압축</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>최대</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>무손실 문서 파일</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>편집 가능한 문서의 모든 픽셀을 유지하며 파일이 커집니다.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>예상 이미지 크기:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>계산 중…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>사용할 수 없음</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>편집 가능한 Zelmora 문서(.zelmora)가 이미지와 함께 저장됩니다.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>저장…</translation>
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
        <translation>미리 보기 인코딩 중…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>미리 보기 불러오는 중…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>맞춤</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>전체 그림 표시</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>그림을 실제 크기로 표시</translation>
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
        <translation>알파, 페이드, 그라데이션, 투명</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>모드</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>선형</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>방사형</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>페이드</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>페이드 위치 지정</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>페이드 색상</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>강도</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>곡선</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>부드러움</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>반전</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>문서 색상</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>페이드 아웃</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>새로 만들기(&amp;N)</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>새 문서</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>열기(&amp;O)…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>문서 또는 이미지 열기</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>저장(&amp;S)</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>이미지와 문서 저장</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>다른 이름으로 저장(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>노이즈 추가</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>상자 흐림</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>색상 조정</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>색상화</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>페이드 아웃</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>가우시안 흐림</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>회색조</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>밝은 영역을 투명하게</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>내부 그림자</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>픽셀화</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>돌출</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>소벨 가장자리</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>부드러운 경사</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>텍스처 복사</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>톤 매핑</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>물 반사</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>반원</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>초승달</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>하트</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>윗부분</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>홈</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>끝</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier 웹사이트(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>Zelmora Atelier 정보(&amp;A)</translation>
    </message>
</context>
<context>
    <name>ImageLoadErrorDialog</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>HEIC/HEIF Support Is Unavailable</source>
        <translation>HEIC/HEIF 지원을 사용할 수 없음</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Qt에서 HEIF를 읽을 수 있게 해 주는 kimageformat6-plugins 패키지를 설치한 다음 Zelmora Atelier를 다시 시작하세요.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>HEIF 이미지 확장</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>HEVC 비디오 확장</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Document</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation>페인트 레이어</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>도형</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>레이어</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>속성 패널</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>언어(&amp;L)</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>모든 변경 사항을 적용하려면 Zelmora Atelier를 다시 시작하세요.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>LayerActions</name>
    <message>
        <source>&amp;Image</source>
        <translation>이미지(&amp;I)</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>이미지를 새 레이어로 삽입</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>예제 이미지 삽입(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>텍스트(&amp;T)</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>텍스트 레이어 삽입</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>도형(&amp;S)</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>도형 또는 스티커 삽입</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>새 페인트 레이어(&amp;N)</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>레이어 표시</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>레이어 숨기기</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>레이어를 위로 이동(&amp;U)</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>레이어를 아래로 이동(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>레이어 제거(&amp;R)</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>레이어 래스터화(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>아래 레이어와 병합(&amp;M)</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>가장자리</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>색상 변경, 톤, 특수 효과</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>스타일 변환</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>프레임</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>사진 합성, 재미 &amp; 예술</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>글리터 &amp; 반짝이</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>효과</translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>불투명도</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>혼합 모드</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>혼합 모드</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>레이어</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>이름 바꾸기</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>레이어</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>관리할 레이어를 선택하세요.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>레이어</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>아직 레이어가 없습니다.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>레이어 %1, 숨김</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>레이어 %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>래스터 선택 영역 있음</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>레이어 표시</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>레이어 숨기기</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>아래 레이어와 병합</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>레이어 모양</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>위치</translation>
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
        <translation>번개</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>꺾임</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Finder에서 보기</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>탐색기에서 보기</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>이미지를 %1(으)로 내보냈습니다.
편집 가능한 문서를 %2(으)로 저장했습니다.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>이미지가 있는 폴더를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>현재 저장이 끝날 때까지 기다려 주세요.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>선택(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>눈금자(&amp;R)</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>속성 패널 위치(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>테마(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>레이어(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>삽입(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>이미지(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>텍스트(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>도형(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>기본 도구 모음</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>다른 저장 방법</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>더 많은 작업 내역</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>삽입:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>레이어를 위로 이동</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>레이어를 아래로 이동</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>화면</translation>
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
        <translation>소셜 미디어</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>정사각형</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>스토리</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation>사진 3:2</translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation>사진 4:3</translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation>인쇄, 300ppi</translation>
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
        <translation>레터</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>새 문서</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>사전 설정</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4메가픽셀</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>너비</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>너비와 높이 바꾸기</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>배경</translation>
    </message>
    <message>
        <source>White</source>
        <translation>흰색</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>검은색</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>투명</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>사용자 지정</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>배경색 선택</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>만들기</translation>
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
        <translation>%1, %2 × %3픽셀</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>라이선스</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>셰이더 오류</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>프로그램: %1
단계: %2
리소스: %3
대상: %4
로그:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>정점</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>프래그먼트</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;없음&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;컴파일러 로그 없음&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>정점 셰이더를 컴파일하지 못했습니다</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>프래그먼트 셰이더를 컴파일하지 못했습니다</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>셰이더를 불러올 수 없습니다</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>프로그램: %1
정점 대상: %2
프래그먼트 대상: %3
로그:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;링커 로그 없음&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>셰이더를 링크하지 못했습니다</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>%1을(를) 열 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>직렬화된 QSB 셰이더가 올바르지 않습니다: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>%1에 호환되는 GLSL 변형이 없습니다. 시도한 항목: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>이미지에 칠하기</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>물감 얼룩</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>형태</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>길이</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>뾰족한 끝</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>일치하는 항목이 없습니다.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>범주</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>다각형</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>변의 수</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>최근 파일 열기(&amp;R)</translation>
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
        <translation>%1 제거</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>개체</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>레이어 이름</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>개체 이름 바꾸기</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>레이어 래스터화</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>이미지 크기 조정</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>텍스트 크기 조정</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>마름모</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>가로</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>세로</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>리본</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>형태</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>깊이</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>직사각형</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
</context>
<context>
    <name>SceneObjectAdapter</name>
    <message>
        <source>Normal</source>
        <translation>표준</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>곱하기</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>스크린</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>오버레이</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>어둡게 하기</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>밝게 하기</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>색상 닷지</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>색상 번</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>하드 라이트</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>소프트 라이트</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>차이</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>제외</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>색조</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>채도</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>색상</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>광도</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>사각형 선택(&amp;R)</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>사각형 래스터 선택 영역 만들기</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>타원 선택(&amp;E)</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>타원형 래스터 선택 영역 만들기</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>마술봉 선택(&amp;W)</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>인접한 색상 영역 선택</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>다각형 선택(&amp;P)</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>래스터 선택 영역 패스 편집</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>래스터 선택 영역을 해제합니다</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>래스터 선택 반전(&amp;I)</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>선택 영역을 새 레이어로 추출(&amp;X)</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>래스터 선택 해제(&amp;C)</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>문서 배경 변경</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>혼합 모드 변경</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>레이어 표시</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>레이어 숨기기</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>도형 또는 스티커 삽입</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>도형 및 스티커 검색</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>일치하는 도형이나 스티커가 없습니다.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>삽입</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>마스크, 오려내기, 자르기, 도형</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>도형 위치 지정</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>도형</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>윤곽선</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>페더</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>반전</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>도형 편집기</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>도형으로 오려내기</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>방패 배지</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>형태</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>뾰족한 끝</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>변형을 편집할 레이어를 선택하세요.</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>지오메트리</translation>
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
        <translation>너비</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>높이</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>가로세로 비율 유지</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>뒤집기</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>가로로 뒤집기</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>세로로 뒤집기</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>각도</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>도</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>기준점 X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>기준점 Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>기울이기</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>기울이기 시작</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>기울이기 X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>기울이기 Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>크기 단위 전환</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>말풍선</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>꼬리</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>형태</translation>
    </message>
</context>
<context>
    <name>SplodgeShapeGenerator</name>
    <message>
        <source>Splodge</source>
        <translation>얼룩</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>형태</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>별</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>꼭짓점 수</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>끝</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>상태 표시줄</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>레이어: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>선택한 레이어 없음</translation>
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
        <translation>텍스트</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>텍스처 리소스 번들을 등록할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>안전하지 않은 텍스처 이미지 경로를 거부했습니다: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>텍스처 이미지를 찾을 수 없습니다: %1(검색 위치: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>알 수 없는 이미지 디코더 오류</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>%2에서 텍스처 이미지 %1을(를) 불러올 수 없습니다: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>안전하지 않은 텍스처 데이터 경로를 거부했습니다: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>텍스처 데이터를 찾을 수 없습니다: %1(검색 위치: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>모든 후보에서 텍스처 데이터를 찾을 수 없습니다: %1(검색 위치: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>알 수 없는 읽기 오류</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>파일이 비어 있습니다</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>%2에서 텍스처 데이터 %1을(를) 읽을 수 없습니다: %3</translation>
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
        <translation>생각 풍선</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>꼬리</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>형태</translation>
    </message>
</context>
<context>
    <name>ToolModeActions</name>
    <message>
        <source>&amp;Select</source>
        <translation>선택(&amp;S)</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>레이어 선택</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>기울이기(&amp;K)</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>선택한 레이어 기울이기</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>자르기(&amp;C)</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>선택한 레이어 자르기</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>패스(&amp;P)</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>선택한 도형 패스를 편집하거나 새 패스 그리기</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>그리기(&amp;D)</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>브러시로 자유롭게 그리기</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>지우기(&amp;E)</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>선택한 레이어의 픽셀 지우기</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>복제(&amp;L)</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>픽셀 복제</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>노출(&amp;X)</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>노출 브러시로 픽셀을 밝게 또는 어둡게 하기</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>선택 영역 채우기(&amp;F)</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>현재 래스터 선택 영역 채우기</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>도구</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>삼각형</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>변</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>종료하기 전에 변경 내용을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>새 문서를 만들기 전에 변경 내용을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>다른 문서를 열기 전에 변경 내용을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>이 문서에 저장하지 않은 변경 내용이 있습니다. 저장하지 않고 종료하면 변경 내용이 사라집니다.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>이 문서에 저장하지 않은 변경 내용이 있습니다. 저장하지 않고 새 문서를 만들면 변경 내용이 사라집니다.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>이 문서에 저장하지 않은 변경 내용이 있습니다. 저장하지 않고 다른 문서를 열면 변경 내용이 사라집니다.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>그래도 종료</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>그래도 만들기</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>그래도 열기</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>확대(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>축소(&amp;O)</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>화면에 맞추기(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>실제 크기(&amp;A)</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>전체 화면(&amp;U)</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>무제한 캔버스 모드(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>끄기(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>위쪽 및 왼쪽(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>아래쪽 및 오른쪽(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>왼쪽(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>오른쪽(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>시스템(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>밝게(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>어둡게(&amp;D)</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>확대/축소를 100%로 재설정</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>비네트</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>모서리 반경</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>문서 또는 이미지 열기</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>지원되는 모든 파일 (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>모든 이미지 파일 (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Zelmora 문서 (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>모든 파일 (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>이미지 레이어 삽입</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>다른 이름으로 이미지 저장</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>파일을 열 수 없음</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>이미지를 삽입할 수 없음</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>이미지를 저장할 수 없음</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>저장 중…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>.zelmora 파일이 잘렸거나 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>.zelmora 레이어 섹션을 디코딩할 수 없습니다.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>.zelmora 파일에 중복된 레이어 ID가 있습니다.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>.zelmora의 첫 번째 섹션이 문서 속성이 아닙니다.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>문서 속성 섹션의 크기가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>문서 속성 페이로드 버전이 지원되지 않습니다.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>.zelmora 섹션 헤더가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>.zelmora 문서가 아닙니다.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>이 .zelmora 형식 버전은 지원되지 않습니다.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>.zelmora 문서 크기가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>.zelmora 섹션 수가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>.zelmora 파일에 중복된 문서 속성이 있습니다.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>원본 장치를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>.zelmora 파일 끝에 불필요한 데이터가 있습니다.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>.zelmora 파일을 쓸 수 없습니다: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>.zelmora 섹션이 너무 큽니다.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>문서에 지원되지 않는 장면 개체가 있습니다.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>문서에 중복된 레이어 ID가 있습니다.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>대상 장치에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>문서 크기를 .zelmora 형식으로 저장할 수 없습니다.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>문서에 레이어가 너무 많습니다.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>메모리 부족</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>비트스트림을 쓰는 동안 메모리 부족</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>필수 인코더 매개변수가 없습니다</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>인코더 설정이 올바르지 않습니다</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>이미지 크기가 올바르지 않습니다</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>인코더 파티션이 너무 큽니다</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>인코딩된 데이터를 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>인코딩된 이미지가 너무 큽니다</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>인코딩이 취소되었습니다</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>알 수 없는 인코더 오류(코드 %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>이미지를 WebP로 표현할 수 없습니다.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>WebP 인코더를 초기화할 수 없습니다.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>WebP 인코더 설정이 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>WebP 인코딩을 위해 이미지를 준비할 수 없습니다.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>WebP 인코딩을 위해 이미지를 준비할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>WebP를 인코딩할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>WebP 인코더가 데이터를 생성하지 않았습니다.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>인코딩된 WebP 이미지가 너무 큽니다.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>포함된 WebP의 크기가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>포함된 이미지를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>WebP를 디코딩할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>이미지를 원시 RGBA 데이터로 표현할 수 없습니다.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>원시 RGBA 이미지의 크기가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>원시 RGBA 이미지의 바이트 길이가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>원시 RGBA 이미지를 할당할 수 없습니다.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>그라데이션 채우기가 지원되지 않는 유형을 사용합니다.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>그라데이션 채우기의 위치가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>그라데이션 채우기의 중지점 수가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>그라데이션 채우기의 색상 중지점이 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>채우기가 지원되지 않는 텍스처 매핑을 사용합니다.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>텍스처 채우기의 변형이 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>채우기 생성기 ID가 너무 깁니다.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>단색 채우기에 예기치 않은 데이터가 있습니다.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>텍스처 채우기 레코드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>텍스처 매개변수 블록 끝에 불필요한 데이터가 있습니다.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>텍스처 채우기의 변형 또는 크기가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>그라데이션 채우기 레코드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>채우기 레코드가 잘렸거나 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>채우기가 알 수 없는 텍스처 매핑을 사용합니다.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>필터의 인스턴스 ID가 null입니다.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>필터 레코드가 잘렸거나 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>필터 매개변수 블록 끝에 불필요한 데이터가 있습니다.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>도형 생성기 ID가 비어 있거나 너무 깁니다.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>매개변수 도형 레코드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>도형 생성기 ID가 비어 있습니다.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>매개변수 도형 끝에 불필요한 데이터가 있습니다.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>도형이 알 수 없는 지오메트리 유형을 사용합니다.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>SVG 레이어에 원본 데이터가 없습니다.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>이미지 레이어에 지원되는 원본이 없습니다.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>래스터 선택 영역은 편집 가능한 패스여야 합니다.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>래스터 레이어의 픽셀 크기가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>SVG 레이어에 래스터 크기가 있습니다.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>SVG 레이어에 올바르지 않은 SVG 데이터가 있습니다.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>이미지 레이어가 알 수 없는 원본 인코딩을 사용합니다.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>이미지 레이어의 크기 또는 데이터가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>이미지 레이어 페이로드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>이미지 레이어의 래스터 표면 정책을 알 수 없습니다.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>문서에 지원되지 않는 레이어 유형이 있습니다.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>섹션이 지원되는 레이어 유형이 아닙니다.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>레이어에 필터가 너무 많습니다.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>레이어에 중복된 필터 인스턴스 ID가 있습니다.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>레이어의 식별 또는 변형 속성이 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>레이어 이름 또는 혼합 모드 ID가 너무 깁니다.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>레이어 유형이 내용과 일치하지 않습니다.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>레이어 섹션이 너무 큽니다.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>레이어 페이로드 헤더가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>레이어의 혼합 모드 ID가 비어 있습니다.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>레이어 섹션 끝에 불필요한 데이터가 있습니다.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>레이어 필터 스택을 복원할 수 없습니다.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>매개변수 문자열 값이 너무 깁니다.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>조명 목록에 조명이 너무 많습니다.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>에셋 매개변수의 바이트 길이가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>부울 매개변수가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>실수 매개변수가 유한한 값이 아닙니다.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>매개변수에 유한하지 않은 숫자가 있습니다.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>에셋 매개변수는 경로가 아닌 파일 이름이어야 합니다.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>사용 여부가 있는 색상 매개변수가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>획 매개변수가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>획의 너비가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>그라데이션 매개변수가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>그라데이션에 유한하지 않은 위치가 있습니다.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>마스크 변형이 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>마스크에 유한하지 않은 변형이 있습니다.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>조명 목록 매개변수가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>조명 목록에 올바르지 않은 조명이 있습니다.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>.zelmora 파일이 알 수 없는 매개변수 유형을 사용합니다.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>매개변수 값의 바이트 길이가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>매개변수 키가 중복되었습니다.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>매개변수 모음이 너무 큽니다.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>매개변수 헤더가 잘렸습니다.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>매개변수 값이 잘렸습니다.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>편집 가능한 패스의 노드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>편집 가능한 패스의 노드 ID가 중복되었습니다.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>편집 가능한 패스의 노드가 알 수 없는 유형을 사용합니다.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>편집 가능한 패스의 윤곽이 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>편집 가능한 패스에 윤곽이 너무 많습니다.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>편집 가능한 패스의 윤곽에 노드가 너무 많습니다.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>편집 가능한 패스 레코드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>편집 가능한 패스 끝에 불필요한 데이터가 있습니다.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>.zelmora 파일에 올바르지 않은 색상이 있습니다.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>.zelmora 파일에 null 개체 식별자가 있습니다.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>레지스트리 키가 올바른 7비트 ASCII가 아닙니다.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>레지스트리 키가 비어 있거나 null로 끝나지 않습니다.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>레지스트리 키의 패딩이 0이 아닙니다.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>필터 또는 매개변수 키가 32바이트 필드에 맞지 않습니다.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>필터 및 매개변수 키는 7비트 ASCII를 사용해야 합니다.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>.zelmora 레코드가 32비트 크기 제한을 초과합니다.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>도형 레이어의 크기 또는 획이 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>도형 레이어 페이로드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>도형 레이어 페이로드가 잘렸습니다.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>텍스트 단락이 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>텍스트 단락이 지원되지 않는 맞춤을 사용합니다.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>텍스트 단락이 지원되지 않는 방향을 사용합니다.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>텍스트 단락 레코드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>텍스트 단락이 알 수 없는 맞춤을 사용합니다.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>텍스트 단락이 알 수 없는 방향을 사용합니다.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>텍스트 단락 끝에 불필요한 데이터가 있습니다.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>텍스트 레이어의 크기가 올바르지 않거나 단락이 너무 많습니다.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>텍스트 레이어 페이로드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>텍스트 레이어 끝에 불필요한 데이터가 있습니다.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>텍스트 구간이 너무 큽니다.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>글꼴 패밀리 레코드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>글꼴 패밀리 블록 끝에 불필요한 데이터가 있습니다.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>텍스트 구간이 알 수 없는 글꼴 스타일을 사용합니다.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>텍스트 구간이 알 수 없는 대/소문자 모드를 사용합니다.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>텍스트 구간이 알 수 없는 자간 모드를 사용합니다.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>텍스트 구간이 알 수 없는 글꼴 힌팅 모드를 사용합니다.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>텍스트 구간에 올바른 글꼴 크기가 없습니다.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>텍스트 구간에 글꼴 패밀리가 너무 많습니다.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>텍스트 구간의 글꼴 숫자 속성이 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>텍스트 구간 레코드가 올바르지 않습니다.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>텍스트 구간이 잘렸습니다.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>읽기 위해 %1을(를) 열 수 없습니다: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>쓰기 위해 %1을(를) 열 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>대상이 일반 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>%1 쓰기를 완료할 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
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
        <translation>현재 문서를 바꿀 수 없습니다.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>기존 파일을 선택하세요.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>선택한 이미지 파일을 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>선택한 SVG 이미지를 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows에서 선택한 HEIC/HEIF 이미지를 디코딩할 수 없습니다.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>선택한 이미지 파일을 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>선택한 이미지의 크기를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>선택한 이미지로 문서를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>제목 없음</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>올바른 너비와 높이를 입력하세요.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>새 문서를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>로컬 파일만 지원됩니다.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>문서를 저장하기 전에 파일 이름을 선택하세요.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>문서 크기 조정</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>문서 경계를 내용에 맞추기</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>개체 이동</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>기존 이미지 파일을 선택하세요.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier에서 선택한 이미지를 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>로컬 이미지 파일만 지원됩니다.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>선택한 이미지를 문서에 추가할 수 없습니다.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Zelmora 예제</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier에서 예제 이미지를 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>예제 이미지를 문서에 추가할 수 없습니다.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>패스</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>사용 중인 스타일 변환 필터는 아직 내보낼 수 없습니다. 내보내기 전에 필터를 끄거나 제거하세요.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>미리 보기를 인코딩할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>저장할 이미지를 인코딩할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>메모리 내 이미지 버퍼를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>이미지를 렌더링할 수 없습니다.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>메모리 내 이미지 버퍼를 다시 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>인코딩된 미리 보기를 디코딩할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>JPEG 이미지 (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>WebP 이미지 (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>PNG 이미지 (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>대상이 일반 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>이미지를 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>현재 저장이 끝날 때까지 기다려 주세요.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>이미지 미리 보기가 준비되지 않았습니다.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>로컬 저장 위치만 지원됩니다.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>파일 확장자가 선택한 이미지 형식과 일치하지 않습니다: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>이미지의 파일 이름을 선택하세요.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>이미지는 저장되었지만 편집 가능한 .zelmora 파일을 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>이 이미지를 저장하기 전에 저장 설정을 선택하세요.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>저장하기 전에 내보내기 설정 대화 상자를 닫으세요.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>편집 가능한 .zelmora 파일을 저장할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>인코더가 이미지를 생성하지 않았습니다.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>편집 가능한 .zelmora 파일은 저장되었지만 이미지를 업데이트할 수 없습니다: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>이미지가 있는 폴더를 열 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>페인트</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>SPDX 식별자: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Debian의 전체 텍스트: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Debian의 저작권 고지: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>MIT 라이선스</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU 약소 일반 공중 사용 허가서, 버전 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>인터페이스를 그리고 대부분의 그림 형식을 읽고 씁니다. 교체할 수 있도록 동적으로 링크되어 있습니다: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs 및 그림 형식 플러그인.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt는 FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2, zlib 등 타사 저작물을 포함하거나 사용합니다. 해당 고지는 Qt 자체의 고지와 함께 제공됩니다.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>BSD 3조항 라이선스</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>문서의 그림과 내보낸 WebP 파일을 인코딩합니다. 구성 요소인 libsharpyuv와 함께 동적으로 링크되어 있습니다.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>그래픽 드라이버의 OpenGL을 찾습니다. 이 OpenGL은 이 프로그램의 일부가 아닙니다. 동적으로 링크되어 있습니다.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU 일반 공중 사용 허가서, 버전 3 이상, GCC 런타임 라이브러리 예외 포함</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>C++ 표준 라이브러리와 컴파일러의 지원 루틴으로, 동적으로 링크되어 있습니다. 예외 조항에 따라 어떤 라이선스의 프로그램에서든 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU 약소 일반 공중 사용 허가서, 버전 2.1 이상</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>시스템의 C 라이브러리로, 동적으로 링크되어 있습니다.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>불투명도 변경</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>개체 회전</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>개체 이동</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>개체 기울이기</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>변형 기준점 설정</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>개체 크기 조절</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>가로로 뒤집기</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>세로로 뒤집기</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>동적</translation>
    </message>
</context>
</TS>
