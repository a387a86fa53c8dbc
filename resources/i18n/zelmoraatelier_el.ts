<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Έκδοση %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Άδειες χρήσης</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>Δεν υπάρχει διαχειριστής αρχείων για την εμφάνιση του φακέλου καταγραφής.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Ιστότοπος</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Άνοιγμα φακέλου καταγραφής</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Κλείσιμο</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>Προσθήκη «%1»</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Αντικείμενο</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>Βέλος</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Αιχμή</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Ουρά</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>Έκρηξη</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Ακτίνες</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Βάθος</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>Απασχολημένο</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Απασχολημένο</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>Καμβάς</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>Το έγγραφο. Σύρετε για μετακίνηση της προβολής, περιστρέψτε τον τροχό για ζουμ.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>Περιορισμός καμ&amp;βά στα όρια του εγγράφου</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Ραστεροποίηση επιπέδου</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Σύννεφο</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Μορφή</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Φούσκωμα</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Συνδυασμός επιπέδων</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Επιλογή χρώματος</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Μετατροπή σχήματος σε διαδρομή</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Περικοπή εικόνας</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>Αποσφα&amp;λμάτωση</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>&amp;Σημαίες εκτέλεσης</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>Λείπει ο &amp;κωδικοποιητής HEVC</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>&amp;Προεπισκοπήσεις διαλόγων</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>Βοήθεια για HEIF</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Πρόοδος αποθήκευσης</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Επανεκκίνηση για αλλαγή γλώσσας</translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation>Διαμάντι</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Οριζόντια</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Κατακόρυφα</translation>
    </message>
</context>
<context>
    <name>DocumentBoundsAction</name>
    <message>
        <source>Show Document &amp;Bounds</source>
        <translation>&amp;Εμφάνιση ορίων εγγράφου</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Μέγεθος εγγράφου</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Πλάτος</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Ύψος</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Προσαρμογή εγγράφου στο περιεχόμενο</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Φόντο</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Χρώμα</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Επιλογή χρώματος φόντου εγγράφου</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Χρώμα φόντου</translation>
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
        <translation>&amp;Αναίρεση</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Αναίρεση: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Αναίρεση</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Επανάληψη</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Επανάληψη: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Επανάληψη</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Α&amp;ποκοπή</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Αντι&amp;γραφή</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Επι&amp;κόλληση</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>Έλλειψη</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>Στρογγυλότητα</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Μέση</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Ρυθμίσεις εξαγωγής</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Μορφή</translation>
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
        <translation>WebP, διαφανές</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, διαφανές</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>Η εικόνα περιέχει διαφάνεια. Επιλέξτε μορφή με διαφανές φόντο για να διατηρηθεί.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Πλάτος</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Διατήρηση αναλογιών</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Ύψος</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Ποιότητα</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Ποιότητα επί τοις εκατό</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>Συμπίεση PNG</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Μέγ.</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Αρχείο εγγράφου χωρίς απώλειες</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Διατηρεί κάθε εικονοστοιχείο του επεξεργάσιμου εγγράφου, σε μεγαλύτερο αρχείο.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Εκτιμώμενο μέγεθος εικόνας:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Υπολογισμός…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Μη διαθέσιμο</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>Μαζί με την εικόνα αποθηκεύεται ένα επεξεργάσιμο έγγραφο Zelmora (.zelmora).</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Αποθήκευση…</translation>
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
        <translation>Κωδικοποίηση προεπισκόπησης…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>Φόρτωση προεπισκόπησης…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Προεπισκόπηση</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Σμίκρυνση</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Μεγέθυνση</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Προσαρμογή</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Εμφάνιση ολόκληρης της εικόνας</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Εμφάνιση της εικόνας στο κανονικό της μέγεθος</translation>
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
        <translation>άλφα, σβήσιμο, διαβάθμιση, διαφανές</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Λειτουργία</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Γραμμικό</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>Ακτινικό</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Σβήσιμο</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Τοποθέτηση σβησίματος</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Χρώμα σβησίματος</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Ένταση</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Καμπύλη</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Απαλότητα</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Αντιστροφή</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Χρώμα εγγράφου</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Σταδιακό σβήσιμο</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Νέο</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Νέο έγγραφο</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Άνοι&amp;γμα…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Άνοιγμα εγγράφου ή εικόνας</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Απο&amp;θήκευση</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Αποθήκευση εικόνας και εγγράφου</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Αποθήκευση &amp;ως…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Έ&amp;ξοδος</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Προσθήκη θορύβου</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Θόλωμα πλαισίου</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Ρύθμιση χρώματος</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Χρωματισμός</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Σταδιακό σβήσιμο</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Γκαουσιανό θόλωμα</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Κλίμακα του γκρι</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Φωτεινά σημεία σε άλφα</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Εσωτερική σκιά</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Εικονοστοιχειοποίηση</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Ανύψωση</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Ακμές Sobel</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Απαλή λοξότμηση</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Αντιγραφή υφής</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Χαρτογράφηση τόνων</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Αντανάκλαση στο νερό</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>Ημικύκλιο</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>Μισοφέγγαρο</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Καρδιά</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Λοβοί</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Εσοχή</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Αιχμή</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Το Zelmora Atelier στο &amp;διαδίκτυο</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>&amp;Σχετικά με το Zelmora Atelier</translation>
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
        <translation>Η υποστήριξη HEIC/HEIF δεν είναι διαθέσιμη</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Εγκαταστήστε το πακέτο kimageformat6-plugins, που δίνει στο Qt δυνατότητα ανάγνωσης HEIF, και εκκινήστε ξανά το Zelmora Atelier.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>Επεκτάσεις εικόνας HEIF</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>Επεκτάσεις βίντεο HEVC</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Document</source>
        <translation>Έγγραφο</translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation>Επίπεδο ζωγραφικής</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Εικόνα</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Κείμενο</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Σχήμα</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Επίπεδο</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Μέγεθος</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>Επιθεωρητής</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>&amp;Γλώσσα</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>Επανεκκινήστε το Zelmora Atelier για να εφαρμοστούν όλες οι αλλαγές.</translation>
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
        <translation>&amp;Εικόνα</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Εισαγωγή εικόνας ως νέου επιπέδου</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Εισαγωγή εικόνας &amp;παραδείγματος</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Κείμενο</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Εισαγωγή επιπέδου κειμένου</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Σχήμα</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Εισαγωγή σχήματος ή αυτοκόλλητου</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>&amp;Νέο επίπεδο ζωγραφικής</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Εμφάνιση επιπέδου</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Απόκρυψη επιπέδου</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>Μετακίνηση επιπέδου &amp;επάνω</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Μετακίνηση επιπέδου &amp;κάτω</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>&amp;Αφαίρεση επιπέδου</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>&amp;Ραστεροποίηση επιπέδου</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>&amp;Συγχώνευση με το από κάτω επίπεδο</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Βασικά</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Ακμές</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Χρώμα, τόνος, εφέ</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Μεταφορές στιλ</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Κορνίζες</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Φωτομοντάζ, διασκέδαση &amp; τέχνη</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>Γκλίτερ &amp; λάμψη</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Εφέ</translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation>Όνομα</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Αδιαφάνεια</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Λειτουργία ανάμειξης</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Λειτουργία ανάμειξης</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Επίπεδα</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Μετονομασία</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Επίπεδο</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Επιλέξτε ένα επίπεδο για να το διαχειριστείτε.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Επίπεδα</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Δεν υπάρχουν ακόμη επίπεδα.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Επίπεδο %1, κρυφό</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Επίπεδο %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>Έχει επιλογή ράστερ</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Εμφάνιση επιπέδου</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Απόκρυψη επιπέδου</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>Συγχώνευση με το από κάτω επίπεδο</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Εμφάνιση του επιπέδου</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Είδος</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Μέγεθος</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Θέση</translation>
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
        <translation>Κεραυνός</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Κάμψη</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Εμφάνιση στο Finder</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Εμφάνιση στην Εξερεύνηση αρχείων</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Η εικόνα εξήχθη στο %1.
Το επεξεργάσιμο έγγραφο αποθηκεύτηκε ως %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Δεν ήταν δυνατό το άνοιγμα του φακέλου που περιέχει την εικόνα.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Περιμένετε να ολοκληρωθεί η τρέχουσα αποθήκευση.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Αρχείο</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Επεξεργασία</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>Ε&amp;πιλογή</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Π&amp;ροβολή</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Χάρακες</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>&amp;Θέση επιθεωρητή</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>Θέμ&amp;α</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>Επίπε&amp;δο</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>Ε&amp;ισαγωγή</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Εικόνα…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Κείμενο</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;Σχήμα…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Βοήθεια</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Κύρια γραμμή εργαλείων</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Περισσότεροι τρόποι αποθήκευσης</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Περισσότερο ιστορικό</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Εισαγωγή:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Μετακίνηση επιπέδου επάνω</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Μετακίνηση επιπέδου κάτω</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Οθόνη</translation>
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
        <translation>Κοινωνικά δίκτυα</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Τετράγωνο</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Ιστορία</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Φωτογραφία</translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation>Φωτογραφία 3:2</translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation>Φωτογραφία 4:3</translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation>Εκτύπωση, 300 ppi</translation>
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
        <translation>Νέο έγγραφο</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Προεπιλογές</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 megapixel</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Μέγεθος</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Πλάτος</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Εναλλαγή πλάτους και ύψους</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Ύψος</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Φόντο</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Λευκό</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Μαύρο</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Διαφανές</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Προσαρμοσμένο</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Επιλογή χρώματος φόντου</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Δημιουργία</translation>
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
        <translation>%1, %2 επί %3 εικονοστοιχεία</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Άδειες χρήσης</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Σφάλμα σκιαστή</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Πρόγραμμα: %1
Στάδιο: %2
Πόρος: %3
Στόχος: %4
Καταγραφή:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>κορυφές</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>θραύσματα</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;κανένα&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;κενή καταγραφή μεταγλωττιστή&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>Η μεταγλώττιση του σκιαστή κορυφών απέτυχε</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Η μεταγλώττιση του σκιαστή θραυσμάτων απέτυχε</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Δεν ήταν δυνατή η φόρτωση του σκιαστή</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>Πρόγραμμα: %1
Στόχος κορυφών: %2
Στόχος θραυσμάτων: %3
Καταγραφή:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;κενή καταγραφή συνδέτη&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Η σύνδεση του σκιαστή απέτυχε</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>Δεν ήταν δυνατό το άνοιγμα του %1: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Μη έγκυρος σειριοποιημένος σκιαστής QSB: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>Δεν υπάρχει συμβατή παραλλαγή GLSL στο %1. Δοκιμάστηκαν: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Ζωγραφική σε εικόνα</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Κηλίδα χρώματος</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Μορφή</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Μήκος</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Αιχμές</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Αναζήτηση</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Επιλογή</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Δεν βρέθηκαν στοιχεία.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>Κατηγορίες</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>Πολύγωνο</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Πλευρές</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Άνοιγμα &amp;πρόσφατου</translation>
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
        <translation>Αφαίρεση «%1»</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Αντικείμενο</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>Όνομα επιπέδου</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Μετονομασία αντικειμένου</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Ραστεροποίηση επιπέδου</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Αλλαγή μεγέθους εικόνας</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Αλλαγή μεγέθους κειμένου</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>Ρόμβος</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Οριζόντια</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Κατακόρυφα</translation>
    </message>
</context>
<context>
    <name>RibbonShapeGenerator</name>
    <message>
        <source>Ribbon</source>
        <translation>Κορδέλα</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Μορφή</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Βάθος</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>Ορθογώνιο</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
</context>
<context>
    <name>SceneObjectAdapter</name>
    <message>
        <source>Normal</source>
        <translation>Κανονική</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Πολλαπλασιασμός</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Οθόνη</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Επικάλυψη</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Σκοτείνιασμα</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Φώτισμα</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Ξάνοιγμα χρώματος</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Κάψιμο χρώματος</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Σκληρό φως</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Απαλό φως</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Διαφορά</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Εξαίρεση</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Απόχρωση</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Κορεσμός</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Χρώμα</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Φωτεινότητα</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>&amp;Ορθογώνια επιλογή</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Δημιουργία ορθογώνιας επιλογής ράστερ</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>&amp;Ελλειπτική επιλογή</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Δημιουργία ελλειπτικής επιλογής ράστερ</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>Επιλογή με &amp;μαγικό ραβδί</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Επιλογή συνεχόμενης χρωματικής περιοχής</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>&amp;Πολυγωνική επιλογή</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Επεξεργασία της διαδρομής της επιλογής ράστερ</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>Απαλοιφή της επιλογής ράστερ</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>Α&amp;ντιστροφή επιλογής ράστερ</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>Ε&amp;ξαγωγή επιλογής σε νέο επίπεδο</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>&amp;Απαλοιφή επιλογής ράστερ</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Αλλαγή φόντου εγγράφου</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Αλλαγή λειτουργίας ανάμειξης</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Εμφάνιση επιπέδου</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Απόκρυψη επιπέδου</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Εισαγωγή σχήματος ή αυτοκόλλητου</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Αναζήτηση σχημάτων και αυτοκόλλητων</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Δεν βρέθηκαν σχήματα ή αυτοκόλλητα.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Εισαγωγή</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>μάσκα, αποκοπή, περικοπή, σχήμα</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Θέση</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Τοποθέτηση σχήματος</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Σχήμα</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Περίγραμμα</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Άμβλυνση</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Αντιστροφή</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Επεξεργαστής σχήματος</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Αποκοπή σε σχήμα</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Ασπίδα</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Μορφή</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Αιχμή</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Επιλέξτε ένα επίπεδο για να επεξεργαστείτε τον μετασχηματισμό του.</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Γεωμετρία</translation>
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
        <translation>Πλάτος</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Ύψος</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Διατήρηση λόγου διαστάσεων</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Αναστροφή</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Οριζόντια αναστροφή</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Κατακόρυφη αναστροφή</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Περιστροφή</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Γωνία</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>μοίρες</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>Άξονας X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Άξονας Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Στρέβλωση</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Έναρξη στρέβλωσης</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Στρέβλωση X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Στρέβλωση Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Αλλαγή μονάδας μεγέθους</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Ομιλία</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Δείκτης</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Μορφή</translation>
    </message>
</context>
<context>
    <name>SplodgeShapeGenerator</name>
    <message>
        <source>Splodge</source>
        <translation>Πιτσιλιά</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Μορφή</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Αστέρι</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Αιχμές</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Αιχμή</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>Γραμμή κατάστασης</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>Επίπεδο: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Δεν έχει επιλεγεί επίπεδο</translation>
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
        <translation>Κείμενο</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>Δεν ήταν δυνατή η καταχώριση της δέσμης πόρων υφής: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Απορρίφθηκε μη ασφαλής διαδρομή εικόνας υφής: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Η εικόνα υφής δεν βρέθηκε: %1 (αναζήτηση σε: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>άγνωστο σφάλμα αποκωδικοποιητή εικόνας</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>Δεν ήταν δυνατή η φόρτωση της εικόνας υφής %1 από %2: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Απορρίφθηκε μη ασφαλής διαδρομή δεδομένων υφής: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Τα δεδομένα υφής δεν βρέθηκαν: %1 (αναζήτηση σε: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Δεν βρέθηκαν δεδομένα υφής για κανένα υποψήφιο: %1 (αναζήτηση σε: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>άγνωστο σφάλμα ανάγνωσης</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>το αρχείο είναι κενό</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>Δεν ήταν δυνατή η φόρτωση των δεδομένων υφής %1 από %2: %3</translation>
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
        <translation>Σκέψη</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Αιχμή</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Μορφή</translation>
    </message>
</context>
<context>
    <name>ToolModeActions</name>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Επιλογή</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Επιλογή επιπέδων</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>Στ&amp;ρέβλωση</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>Στρέβλωση του επιλεγμένου επιπέδου</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Περικοπή</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>Περικοπή του επιλεγμένου επιπέδου</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Διαδρομή</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Επεξεργασία της διαδρομής του επιλεγμένου σχήματος ή σχεδίαση νέας</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>Σ&amp;χεδίαση</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Σχεδίαση με πινέλο ελεύθερου χεριού</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Σβήσιμο</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Σβήσιμο εικονοστοιχείων από το επιλεγμένο επίπεδο</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>&amp;Κλωνοποίηση</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Κλωνοποίηση εικονοστοιχείων</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>Έκ&amp;θεση</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Φώτισμα ή σκοτείνιασμα εικονοστοιχείων με το πινέλο έκθεσης</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>&amp;Γέμισμα επιλογής</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Γέμισμα της ενεργής επιλογής ράστερ</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Εργαλεία</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Τρίγωνο</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Πλευρές</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>Αποθήκευση των αλλαγών πριν από την έξοδο;</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>Αποθήκευση των αλλαγών πριν από τη δημιουργία νέου εγγράφου;</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>Αποθήκευση των αλλαγών πριν από το άνοιγμα άλλου εγγράφου;</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>Το έγγραφο έχει μη αποθηκευμένες αλλαγές. Αν πραγματοποιήσετε έξοδο χωρίς αποθήκευση, οι αλλαγές θα χαθούν.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>Το έγγραφο έχει μη αποθηκευμένες αλλαγές. Αν δημιουργήσετε νέο έγγραφο χωρίς αποθήκευση, οι αλλαγές θα χαθούν.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>Το έγγραφο έχει μη αποθηκευμένες αλλαγές. Αν ανοίξετε άλλο έγγραφο χωρίς αποθήκευση, οι αλλαγές θα χαθούν.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Έξοδος ούτως ή άλλως</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Δημιουργία ούτως ή άλλως</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Άνοιγμα ούτως ή άλλως</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Ακύρωση</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Αποθήκευση</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Μεγέθυνση</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Σμίκρυνση</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>&amp;Προσαρμογή στο παράθυρο</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>Π&amp;ραγματικό μέγεθος</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>Πλήρης &amp;οθόνη</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>Λειτουργία απεριόριστου &amp;καμβά</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Απόκρυψη</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>&amp;Επάνω και αριστερά</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>&amp;Κάτω και δεξιά</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Αριστερά</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Δεξιά</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Συστήματος</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Ανοιχτό</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>Σ&amp;κούρο</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Μεγέθυνση</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Σμίκρυνση</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Επαναφορά ζουμ στο 100%</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>Βινιέτα</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Ακτίνα γωνιών</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Άνοιγμα εγγράφου ή εικόνας</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Όλα τα υποστηριζόμενα αρχεία (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Όλα τα αρχεία εικόνας (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Έγγραφα Zelmora (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Όλα τα αρχεία (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Εισαγωγή επιπέδου εικόνας</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Αποθήκευση εικόνας ως</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Αποθήκευση</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Δεν ήταν δυνατό το άνοιγμα του αρχείου</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Δεν ήταν δυνατή η εισαγωγή της εικόνας</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Δεν ήταν δυνατή η αποθήκευση της εικόνας</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Αποθήκευση…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>Το αρχείο .zelmora είναι περικομμένο ή μη αναγνώσιμο: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>Δεν ήταν δυνατή η αποκωδικοποίηση μιας ενότητας επιπέδου .zelmora.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>Το αρχείο .zelmora περιέχει διπλότυπο αναγνωριστικό επιπέδου.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>Η πρώτη ενότητα .zelmora δεν είναι ιδιότητες εγγράφου.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>Η ενότητα ιδιοτήτων εγγράφου έχει μη έγκυρο μέγεθος.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>Η έκδοση των δεδομένων ιδιοτήτων εγγράφου δεν υποστηρίζεται.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Μια κεφαλίδα ενότητας .zelmora δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Αυτό δεν είναι έγγραφο .zelmora.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Αυτή η έκδοση της μορφής .zelmora δεν υποστηρίζεται.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>Οι διαστάσεις του εγγράφου .zelmora δεν είναι έγκυρες.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>Το πλήθος ενοτήτων .zelmora δεν είναι έγκυρο.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>Το αρχείο .zelmora περιέχει διπλότυπες ιδιότητες εγγράφου.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>Η συσκευή προέλευσης δεν είναι αναγνώσιμη.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>Το αρχείο .zelmora έχει πλεονάζοντα δεδομένα στο τέλος.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>Δεν ήταν δυνατή η εγγραφή του αρχείου .zelmora: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>Μια ενότητα .zelmora είναι πολύ μεγάλη.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>Το έγγραφο περιέχει μη υποστηριζόμενο αντικείμενο σκηνής.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>Το έγγραφο περιέχει διπλότυπο αναγνωριστικό επιπέδου.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>Η συσκευή προορισμού δεν είναι εγγράψιμη.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>Οι διαστάσεις του εγγράφου δεν μπορούν να αποθηκευτούν σε μορφή .zelmora.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>Το έγγραφο περιέχει πάρα πολλά επίπεδα.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>ανεπαρκής μνήμη</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>ανεπαρκής μνήμη κατά την εγγραφή της ροής δεδομένων</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>λείπει μια απαιτούμενη παράμετρος κωδικοποιητή</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>η διαμόρφωση του κωδικοποιητή δεν είναι έγκυρη</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>οι διαστάσεις της εικόνας δεν είναι έγκυρες</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>ένα διαμέρισμα του κωδικοποιητή είναι πολύ μεγάλο</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>δεν ήταν δυνατή η εγγραφή των κωδικοποιημένων δεδομένων</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>η κωδικοποιημένη εικόνα είναι πολύ μεγάλη</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>η κωδικοποίηση ακυρώθηκε</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>άγνωστο σφάλμα κωδικοποιητή (κωδικός %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Μια εικόνα δεν μπορεί να αποδοθεί ως WebP.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>Δεν ήταν δυνατή η προετοιμασία του κωδικοποιητή WebP.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>Η διαμόρφωση του κωδικοποιητή WebP δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>Δεν ήταν δυνατή η προετοιμασία της εικόνας για κωδικοποίηση WebP.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>Δεν ήταν δυνατή η προετοιμασία της εικόνας για κωδικοποίηση WebP: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>Δεν ήταν δυνατή η κωδικοποίηση WebP: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>Ο κωδικοποιητής WebP δεν παρήγαγε δεδομένα.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>Η κωδικοποιημένη εικόνα WebP είναι πολύ μεγάλη.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Μια ενσωματωμένη εικόνα WebP έχει μη έγκυρες διαστάσεις.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Δεν ήταν δυνατό το άνοιγμα μιας ενσωματωμένης εικόνας.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>Δεν ήταν δυνατή η αποκωδικοποίηση WebP: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Μια εικόνα δεν μπορεί να αποδοθεί ως ανεπεξέργαστα δεδομένα RGBA.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Μια ανεπεξέργαστη εικόνα RGBA έχει μη έγκυρες διαστάσεις.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Μια ανεπεξέργαστη εικόνα RGBA έχει μη έγκυρο μήκος σε byte.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Δεν ήταν δυνατή η δέσμευση μνήμης για ανεπεξέργαστη εικόνα RGBA.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>Ένα γέμισμα διαβάθμισης χρησιμοποιεί μη υποστηριζόμενο τύπο.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>Ένα γέμισμα διαβάθμισης έχει μη έγκυρη θέση.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>Ένα γέμισμα διαβάθμισης έχει μη έγκυρο πλήθος σημείων χρώματος.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>Ένα γέμισμα διαβάθμισης έχει μη έγκυρο σημείο χρώματος.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>Ένα γέμισμα χρησιμοποιεί μη υποστηριζόμενη αντιστοίχιση υφής.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>Ένα γέμισμα υφής έχει μη έγκυρο μετασχηματισμό.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Ένα αναγνωριστικό γεννήτριας γεμίσματος είναι πολύ μεγάλο.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>Ένα συμπαγές γέμισμα περιέχει μη αναμενόμενα δεδομένα.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>Μια εγγραφή γεμίσματος υφής δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>Ένα μπλοκ παραμέτρων υφής έχει πλεονάζοντα δεδομένα στο τέλος.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>Ο μετασχηματισμός ή το μέγεθος ενός γεμίσματος υφής δεν είναι έγκυρα.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>Μια εγγραφή γεμίσματος διαβάθμισης δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>Μια εγγραφή γεμίσματος είναι περικομμένη ή μη έγκυρη.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>Ένα γέμισμα χρησιμοποιεί άγνωστη αντιστοίχιση υφής.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Ένα φίλτρο έχει μηδενικό αναγνωριστικό παρουσίας.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>Μια εγγραφή φίλτρου είναι περικομμένη ή μη έγκυρη.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>Ένα μπλοκ παραμέτρων φίλτρου έχει πλεονάζοντα δεδομένα στο τέλος.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Ένα αναγνωριστικό γεννήτριας σχήματος είναι κενό ή πολύ μεγάλο.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>Μια εγγραφή παραμετρικού σχήματος δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Ένα αναγνωριστικό γεννήτριας σχήματος είναι κενό.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>Ένα παραμετρικό σχήμα έχει πλεονάζοντα δεδομένα στο τέλος.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>Ένα σχήμα χρησιμοποιεί άγνωστο τύπο γεωμετρίας.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Ένα επίπεδο SVG δεν έχει δεδομένα προέλευσης.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Ένα επίπεδο εικόνας δεν έχει υποστηριζόμενη προέλευση.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>Μια επιλογή ράστερ πρέπει να είναι επεξεργάσιμη διαδρομή.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Ένα επίπεδο ράστερ έχει μη έγκυρες διαστάσεις σε εικονοστοιχεία.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Ένα επίπεδο SVG περιέχει διαστάσεις ράστερ.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Ένα επίπεδο SVG περιέχει μη έγκυρα δεδομένα SVG.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Ένα επίπεδο εικόνας χρησιμοποιεί άγνωστη κωδικοποίηση προέλευσης.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Ένα επίπεδο εικόνας έχει μη έγκυρες διαστάσεις ή δεδομένα.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>Τα δεδομένα ενός επιπέδου εικόνας δεν είναι έγκυρα.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Ένα επίπεδο εικόνας έχει άγνωστη πολιτική επιφάνειας ράστερ.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>Το έγγραφο περιέχει μη υποστηριζόμενο τύπο επιπέδου.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>Μια ενότητα δεν είναι υποστηριζόμενος τύπος επιπέδου.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Ένα επίπεδο έχει πάρα πολλά φίλτρα.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>Ένα επίπεδο περιέχει διπλότυπο αναγνωριστικό παρουσίας φίλτρου.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Ένα επίπεδο έχει μη έγκυρες ιδιότητες ταυτότητας ή μετασχηματισμού.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Το όνομα ενός επιπέδου ή το αναγνωριστικό λειτουργίας ανάμειξης είναι πολύ μεγάλο.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>Ο τύπος ενός επιπέδου δεν αντιστοιχεί στο περιεχόμενό του.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>Μια ενότητα επιπέδου είναι πολύ μεγάλη.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>Μια κεφαλίδα δεδομένων επιπέδου δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Ένα επίπεδο έχει κενό αναγνωριστικό λειτουργίας ανάμειξης.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>Μια ενότητα επιπέδου έχει πλεονάζοντα δεδομένα στο τέλος.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Δεν ήταν δυνατή η επαναφορά μιας στοίβας φίλτρων επιπέδου.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>Μια τιμή κειμένου παραμέτρου είναι πολύ μεγάλη.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>Μια λίστα φώτων περιέχει πάρα πολλά φώτα.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>Μια παράμετρος πόρου έχει μη έγκυρο μήκος σε byte.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>Μια λογική παράμετρος δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>Μια πραγματική παράμετρος δεν είναι πεπερασμένη.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>Μια παράμετρος περιέχει μη πεπερασμένο αριθμό.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>Μια παράμετρος πόρου πρέπει να είναι όνομα αρχείου, όχι διαδρομή.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>Μια παράμετρος ενεργού χρώματος δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>Μια παράμετρος πινελιάς δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>Μια πινελιά έχει μη έγκυρο πλάτος.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>Μια παράμετρος διαβάθμισης δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>Μια διαβάθμιση περιέχει μη πεπερασμένη θέση.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>Ο μετασχηματισμός μιας μάσκας δεν είναι έγκυρος.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>Μια μάσκα περιέχει μη πεπερασμένο μετασχηματισμό.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>Μια παράμετρος λίστας φώτων δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>Μια λίστα φώτων περιέχει μη έγκυρο φως.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>Το αρχείο .zelmora χρησιμοποιεί άγνωστο τύπο παραμέτρου.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>Μια τιμή παραμέτρου έχει μη έγκυρο μήκος σε byte.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>Ένα κλειδί παραμέτρου είναι διπλότυπο.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>Μια συλλογή παραμέτρων είναι πολύ μεγάλη.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Μια κεφαλίδα παραμέτρου είναι περικομμένη.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>Μια τιμή παραμέτρου είναι περικομμένη.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>Ένας κόμβος επεξεργάσιμης διαδρομής δεν είναι έγκυρος.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>Ένα αναγνωριστικό κόμβου επεξεργάσιμης διαδρομής είναι διπλότυπο.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>Ένας κόμβος επεξεργάσιμης διαδρομής χρησιμοποιεί άγνωστο τύπο.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>Ένα περίγραμμα επεξεργάσιμης διαδρομής δεν είναι έγκυρο.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>Μια επεξεργάσιμη διαδρομή έχει πάρα πολλά περιγράμματα.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>Ένα περίγραμμα επεξεργάσιμης διαδρομής έχει πάρα πολλούς κόμβους.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>Μια εγγραφή επεξεργάσιμης διαδρομής δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>Μια επεξεργάσιμη διαδρομή έχει πλεονάζοντα δεδομένα στο τέλος.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>Το αρχείο .zelmora περιέχει μη έγκυρο χρώμα.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>Το αρχείο .zelmora περιέχει μηδενικό αναγνωριστικό αντικειμένου.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>Ένα κλειδί μητρώου δεν είναι έγκυρο ASCII 7 bit.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>Ένα κλειδί μητρώου είναι κενό ή δεν τερματίζεται με μηδενικό χαρακτήρα.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>Ένα κλειδί μητρώου έχει μη μηδενικό συμπλήρωμα.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>Ένα κλειδί φίλτρου ή παραμέτρου δεν χωρά στο πεδίο των 32 byte.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Τα κλειδιά φίλτρων και παραμέτρων πρέπει να χρησιμοποιούν ASCII 7 bit.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>Μια εγγραφή .zelmora υπερβαίνει το όριο μεγέθους των 32 bit.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Ένα επίπεδο σχήματος έχει μη έγκυρες διαστάσεις ή πινελιά.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>Τα δεδομένα ενός επιπέδου σχήματος δεν είναι έγκυρα.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>Τα δεδομένα ενός επιπέδου σχήματος είναι περικομμένα.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Μια παράγραφος κειμένου δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Μια παράγραφος κειμένου χρησιμοποιεί μη υποστηριζόμενη στοίχιση.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Μια παράγραφος κειμένου χρησιμοποιεί μη υποστηριζόμενη κατεύθυνση.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>Μια εγγραφή παραγράφου κειμένου δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Μια παράγραφος κειμένου χρησιμοποιεί άγνωστη στοίχιση.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Μια παράγραφος κειμένου χρησιμοποιεί άγνωστη κατεύθυνση.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>Μια παράγραφος κειμένου έχει πλεονάζοντα δεδομένα στο τέλος.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Ένα επίπεδο κειμένου έχει μη έγκυρες διαστάσεις ή πάρα πολλές παραγράφους.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>Τα δεδομένα ενός επιπέδου κειμένου δεν είναι έγκυρα.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>Ένα επίπεδο κειμένου έχει πλεονάζοντα δεδομένα στο τέλος.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Ένα τμήμα κειμένου είναι πολύ μεγάλο.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>Μια εγγραφή οικογένειας γραμματοσειρών δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>Ένα μπλοκ οικογενειών γραμματοσειρών έχει πλεονάζοντα δεδομένα στο τέλος.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Ένα τμήμα κειμένου χρησιμοποιεί άγνωστο στιλ γραμματοσειράς.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Ένα τμήμα κειμένου χρησιμοποιεί άγνωστη λειτουργία κεφαλαίων.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Ένα τμήμα κειμένου χρησιμοποιεί άγνωστη λειτουργία διαστήματος γραμμάτων.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Ένα τμήμα κειμένου χρησιμοποιεί άγνωστη λειτουργία βελτιστοποίησης γραμματοσειράς (hinting).</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Ένα τμήμα κειμένου δεν έχει έγκυρο μέγεθος γραμματοσειράς.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Ένα τμήμα κειμένου έχει πάρα πολλές οικογένειες γραμματοσειρών.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Ένα τμήμα κειμένου έχει μη έγκυρες αριθμητικές ιδιότητες γραμματοσειράς.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>Μια εγγραφή τμήματος κειμένου δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Ένα τμήμα κειμένου είναι περικομμένο.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>Δεν ήταν δυνατό το άνοιγμα του %1 για ανάγνωση: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>Δεν ήταν δυνατό το άνοιγμα του %1 για εγγραφή: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Ο προορισμός δεν είναι κανονικό αρχείο.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>Δεν ήταν δυνατή η ολοκλήρωση της εγγραφής του %1: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Απαλοιφή</translation>
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
        <translation>Δεν ήταν δυνατή η αντικατάσταση του τρέχοντος εγγράφου.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Επιλέξτε ένα υπάρχον αρχείο.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Δεν ήταν δυνατό το άνοιγμα του επιλεγμένου αρχείου εικόνας.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>Δεν ήταν δυνατή η φόρτωση της επιλεγμένης εικόνας SVG.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Τα Windows δεν μπόρεσαν να αποκωδικοποιήσουν την επιλεγμένη εικόνα HEIC/HEIF.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Δεν ήταν δυνατή η φόρτωση του επιλεγμένου αρχείου εικόνας.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>Η επιλεγμένη εικόνα δεν έχει αξιοποιήσιμο μέγεθος.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Δεν ήταν δυνατή η δημιουργία εγγράφου από την επιλεγμένη εικόνα.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Εικόνα</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Χωρίς τίτλο</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Εισαγάγετε έγκυρο πλάτος και ύψος.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Δεν ήταν δυνατή η δημιουργία νέου εγγράφου.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Υποστηρίζονται μόνο τοπικά αρχεία.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Επιλέξτε όνομα αρχείου πριν αποθηκεύσετε το έγγραφο.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Αλλαγή μεγέθους εγγράφου</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Προσαρμογή ορίων εγγράφου στο περιεχόμενο</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Μετακίνηση αντικειμένου</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Επιλέξτε ένα υπάρχον αρχείο εικόνας.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Το Zelmora Atelier δεν μπόρεσε να φορτώσει την επιλεγμένη εικόνα.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Υποστηρίζονται μόνο τοπικά αρχεία εικόνας.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>Δεν ήταν δυνατή η προσθήκη της επιλεγμένης εικόνας στο έγγραφο.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Παράδειγμα Zelmora</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Το Zelmora Atelier δεν μπόρεσε να φορτώσει την εικόνα παραδείγματος.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>Δεν ήταν δυνατή η προσθήκη της εικόνας παραδείγματος στο έγγραφο.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Διαδρομή</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Ένα ενεργό φίλτρο μεταφοράς στιλ δεν μπορεί ακόμη να εξαχθεί. Απενεργοποιήστε ή αφαιρέστε το φίλτρο πριν από την εξαγωγή.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Δεν ήταν δυνατή η κωδικοποίηση της προεπισκόπησης: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>Δεν ήταν δυνατή η κωδικοποίηση της αποθηκευμένης εικόνας: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>Δεν ήταν δυνατή η δημιουργία του buffer εικόνας στη μνήμη.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>Δεν ήταν δυνατή η απόδοση της εικόνας.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>Δεν ήταν δυνατό το εκ νέου άνοιγμα του buffer εικόνας στη μνήμη.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Δεν ήταν δυνατή η αποκωδικοποίηση της κωδικοποιημένης προεπισκόπησης: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>Εικόνες JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>Εικόνες WebP (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>Εικόνες PNG (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>Ο προορισμός δεν είναι κανονικό αρχείο.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>Δεν ήταν δυνατή η αποθήκευση της εικόνας: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Περιμένετε να ολοκληρωθεί η τρέχουσα αποθήκευση.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>Η προεπισκόπηση της εικόνας δεν είναι έτοιμη.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Υποστηρίζονται μόνο τοπικοί προορισμοί αποθήκευσης.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>Η επέκταση του ονόματος αρχείου δεν αντιστοιχεί στην επιλεγμένη μορφή εικόνας: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Επιλέξτε όνομα αρχείου για την εικόνα.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>Η εικόνα αποθηκεύτηκε, αλλά δεν ήταν δυνατή η αποθήκευση του επεξεργάσιμου αρχείου .zelmora: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Επιλέξτε ρυθμίσεις αποθήκευσης πριν αποθηκεύσετε αυτή την εικόνα.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Κλείστε το παράθυρο «Ρυθμίσεις εξαγωγής» πριν από την αποθήκευση.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Δεν ήταν δυνατή η αποθήκευση του επεξεργάσιμου αρχείου .zelmora: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>Ο κωδικοποιητής δεν παρήγαγε εικόνα.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>Το επεξεργάσιμο αρχείο .zelmora αποθηκεύτηκε, αλλά δεν ήταν δυνατή η ενημέρωση της εικόνας: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Δεν ήταν δυνατό το άνοιγμα του φακέλου που περιέχει την εικόνα.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Ζωγραφική</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>Αναγνωριστικό SPDX: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Πλήρες κείμενο στο Debian: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Σημειώσεις πνευματικών δικαιωμάτων στο Debian: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>Άδεια MIT</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, έκδοση 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Σχεδιάζει τη διεπαφή και διαβάζει και γράφει τις περισσότερες μορφές εικόνας. Συνδέεται δυναμικά, ώστε να μπορεί να αντικατασταθεί: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs και τα πρόσθετα για μορφές εικόνας.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Το Qt περιλαμβάνει ή χρησιμοποιεί έργα τρίτων, μεταξύ των οποίων τα FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 και zlib. Οι σημειώσεις τους βρίσκονται μαζί με εκείνες του Qt.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>Άδεια BSD 3 ρητρών</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Κωδικοποιεί τις εικόνες στα έγγραφα και τα εξαγόμενα αρχεία WebP. Συνδέεται δυναμικά, μαζί με το τμήμα του libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Εντοπίζει το OpenGL του προγράμματος οδήγησης γραφικών, που δεν αποτελεί μέρος αυτού του προγράμματος. Συνδέεται δυναμικά.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>GNU General Public License, έκδοση 3 ή μεταγενέστερη, με την εξαίρεση για τη βιβλιοθήκη χρόνου εκτέλεσης του GCC</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>Η τυπική βιβλιοθήκη C++ και οι ρουτίνες υποστήριξης του μεταγλωττιστή, με δυναμική σύνδεση. Η εξαίρεση επιτρέπει τη χρήση τους από προγράμματα με οποιαδήποτε άδεια.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>GNU Lesser General Public License, έκδοση 2.1 ή μεταγενέστερη</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>Η βιβλιοθήκη C του συστήματος, με δυναμική σύνδεση.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Αλλαγή αδιαφάνειας</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Περιστροφή αντικειμένου</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Μετακίνηση αντικειμένου</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Στρέβλωση αντικειμένου</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Ορισμός άξονα μετασχηματισμού</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Κλιμάκωση αντικειμένου</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Οριζόντια αναστροφή</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Κατακόρυφη αναστροφή</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>Βασικά</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Δυναμικά</translation>
    </message>
</context>
</TS>
