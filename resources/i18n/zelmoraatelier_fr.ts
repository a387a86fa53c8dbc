<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Licenses</source>
        <translation>Licences</translation>
    </message>
    <message>
        <source>There is no file manager that shows the log folder.</source>
        <translation>Aucun gestionnaire de fichiers ne peut afficher le dossier des journaux.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Site Web</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Ouvrir le dossier des journaux</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>AddSceneObjectCommand</name>
    <message>
        <source>Add %1</source>
        <translation>Ajouter %1</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>objet</translation>
    </message>
</context>
<context>
    <name>ArrowShapeGenerator</name>
    <message>
        <source>Arrow</source>
        <translation>Flèche</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Pointe</translation>
    </message>
    <message>
        <source>Tail</source>
        <translation>Queue</translation>
    </message>
</context>
<context>
    <name>BurstShapeGenerator</name>
    <message>
        <source>Burst</source>
        <translation>Explosion</translation>
    </message>
    <message>
        <source>Rays</source>
        <translation>Rayons</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
</context>
<context>
    <name>BusyCover</name>
    <message>
        <source>Busy</source>
        <translation>Occupé</translation>
    </message>
</context>
<context>
    <name>BusyRing</name>
    <message>
        <source>Busy</source>
        <translation>Occupé</translation>
    </message>
</context>
<context>
    <name>Canvas</name>
    <message>
        <source>Canvas</source>
        <translation>Zone de travail</translation>
    </message>
    <message>
        <source>The document. Drag to move the view, turn the wheel to zoom.</source>
        <translation>Le document. Faites glisser pour déplacer la vue, tournez la molette pour zoomer.</translation>
    </message>
</context>
<context>
    <name>CanvasClipModeAction</name>
    <message>
        <source>&amp;Limit Canvas to Document Bounds</source>
        <translation>&amp;Limiter la zone de travail au document</translation>
    </message>
</context>
<context>
    <name>CanvasContextMenu</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Pixelliser le calque</translation>
    </message>
</context>
<context>
    <name>CloudShapeGenerator</name>
    <message>
        <source>Cloud</source>
        <translation>Nuage</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Puffiness</source>
        <translation>Gonflement</translation>
    </message>
</context>
<context>
    <name>CollapseLayerDownCommand</name>
    <message>
        <source>Combine Layers</source>
        <translation>Fusionner les calques</translation>
    </message>
</context>
<context>
    <name>ColorPickerButton</name>
    <message>
        <source>Choose Color</source>
        <translation>Choisir une couleur</translation>
    </message>
</context>
<context>
    <name>ConvertShapeToPathCommand</name>
    <message>
        <source>Convert Shape to Path</source>
        <translation>Convertir la forme en tracé</translation>
    </message>
</context>
<context>
    <name>CropImageLayerCommand</name>
    <message>
        <source>Crop Image</source>
        <translation>Recadrer l’image</translation>
    </message>
</context>
<context>
    <name>DebugMenu</name>
    <message>
        <source>&amp;Debug</source>
        <translation>Dé&amp;bogage</translation>
    </message>
    <message>
        <source>&amp;Runtime Flags</source>
        <translation>&amp;Options d’exécution</translation>
    </message>
    <message>
        <source>&amp;Missing HEVC Codec</source>
        <translation>Codec HEVC &amp;manquant</translation>
    </message>
    <message>
        <source>Dialog &amp;Previews</source>
        <translation>&amp;Aperçus des boîtes de dialogue</translation>
    </message>
    <message>
        <source>HEIF Help</source>
        <translation>Aide HEIF</translation>
    </message>
    <message>
        <source>Save Progress</source>
        <translation>Progression de l’enregistrement</translation>
    </message>
    <message>
        <source>Language Restart</source>
        <translation>Redémarrage après changement de langue</translation>
    </message>
</context>
<context>
    <name>DiamondShapeGenerator</name>
    <message>
        <source>Diamond</source>
        <translation>Diamant</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
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
        <translation>Afficher les limites du &amp;document</translation>
    </message>
</context>
<context>
    <name>DocumentPanel</name>
    <message>
        <source>Document Size</source>
        <translation>Taille du document</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Fit Document to Content</source>
        <translation>Ajuster le document au contenu</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Choose Document Background Color</source>
        <translation>Choisir la couleur d’arrière-plan du document</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Couleur d’arrière-plan</translation>
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
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rétablir&#xa0;: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
</context>
<context>
    <name>EllipseShapeGenerator</name>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Roundness</source>
        <translation>Rondeur</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Milieu</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export Settings</source>
        <translation>Paramètres d’exportation</translation>
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
        <translation>WebP, transparent</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>PNG, transparent</source>
        <translation>PNG, transparent</translation>
    </message>
    <message>
        <source>This image contains transparency. Choose a transparent-background format to preserve it.</source>
        <translation>Cette image contient de la transparence. Choisissez un format à fond transparent pour la conserver.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Conserver les proportions</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Quality in percent</source>
        <translation>Qualité en pourcentage</translation>
    </message>
    <message>
        <source>PNG compression</source>
        <translation>Compression PNG</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Lossless document file</source>
        <translation>Fichier de document sans perte</translation>
    </message>
    <message>
        <source>Keeps every pixel of the editable document, in a larger file.</source>
        <translation>Conserve chaque pixel du document modifiable, dans un fichier plus volumineux.</translation>
    </message>
    <message>
        <source>Estimated Image Size:</source>
        <translation>Taille estimée de l’image&#xa0;:</translation>
    </message>
    <message>
        <source>Calculating…</source>
        <translation>Calcul…</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <translation>Indisponible</translation>
    </message>
    <message>
        <source>An editable Zelmora document (.zelmora) is saved alongside the image.</source>
        <translation>Un document Zelmora modifiable (.zelmora) est enregistré à côté de l’image.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
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
        <translation>Encodage de l’aperçu…</translation>
    </message>
    <message>
        <source>Loading preview…</source>
        <translation>Chargement de l’aperçu…</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Show the whole picture</source>
        <translation>Afficher l’image entière</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100&#xa0;%</translation>
    </message>
    <message>
        <source>Show the picture in its own size</source>
        <translation>Afficher l’image à sa taille réelle</translation>
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
        <translation>alpha, fondu, dégradé, transparent</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linéaire</translation>
    </message>
    <message>
        <source>Radial</source>
        <translation>Radial</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Fondu</translation>
    </message>
    <message>
        <source>Position Fade</source>
        <translation>Positionner le fondu</translation>
    </message>
    <message>
        <source>Fade color</source>
        <translation>Couleur du fondu</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Douceur</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Document color</source>
        <translation>Couleur du document</translation>
    </message>
    <message>
        <source>Fade Out</source>
        <translation>Fondu</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>New document</source>
        <translation>Nouveau document</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open a document or image</source>
        <translation>Ouvrir un document ou une image</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save image and document</source>
        <translation>Enregistrer l’image et le document</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
<context>
    <name>FilterShaderCatalog</name>
    <message>
        <source>Add noise</source>
        <translation>Ajout de bruit</translation>
    </message>
    <message>
        <source>Box blur</source>
        <translation>Flou rectangulaire</translation>
    </message>
    <message>
        <source>Color adjust</source>
        <translation>Réglage des couleurs</translation>
    </message>
    <message>
        <source>Colorize</source>
        <translation>Colorisation</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Fondu</translation>
    </message>
    <message>
        <source>Gaussian blur</source>
        <translation>Flou gaussien</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Niveaux de gris</translation>
    </message>
    <message>
        <source>Highlights to alpha</source>
        <translation>Hautes lumières en alpha</translation>
    </message>
    <message>
        <source>Inner shadow</source>
        <translation>Ombre interne</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>Mosaïque</translation>
    </message>
    <message>
        <source>Raise</source>
        <translation>Relief</translation>
    </message>
    <message>
        <source>Sobel edge</source>
        <translation>Contours de Sobel</translation>
    </message>
    <message>
        <source>Soft bevel</source>
        <translation>Biseau doux</translation>
    </message>
    <message>
        <source>Texture copy</source>
        <translation>Copie de texture</translation>
    </message>
    <message>
        <source>Tone map</source>
        <translation>Mappage tonal</translation>
    </message>
    <message>
        <source>Water reflection</source>
        <translation>Reflet dans l’eau</translation>
    </message>
</context>
<context>
    <name>HalfCircleShapeGenerator</name>
    <message>
        <source>Half Circle</source>
        <translation>Demi-cercle</translation>
    </message>
    <message>
        <source>Crescent</source>
        <translation>Croissant</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
</context>
<context>
    <name>HeartShapeGenerator</name>
    <message>
        <source>Heart</source>
        <translation>Cœur</translation>
    </message>
    <message>
        <source>Lobes</source>
        <translation>Lobes</translation>
    </message>
    <message>
        <source>Cleft</source>
        <translation>Échancrure</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Pointe</translation>
    </message>
</context>
<context>
    <name>HelpActions</name>
    <message>
        <source>Zelmora Atelier on the &amp;Web</source>
        <translation>Zelmora Atelier sur le &amp;Web</translation>
    </message>
    <message>
        <source>&amp;About Zelmora Atelier</source>
        <translation>À &amp;propos de Zelmora Atelier</translation>
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
        <translation>La prise en charge HEIC/HEIF est indisponible</translation>
    </message>
    <message>
        <source>Install the package kimageformat6-plugins, which gives Qt a HEIF reader, and start Zelmora Atelier again.</source>
        <translation>Installez le paquet kimageformat6-plugins, qui fournit à Qt un lecteur HEIF, puis relancez Zelmora Atelier.</translation>
    </message>
    <message>
        <source>HEIF Image Extensions</source>
        <translation>Extensions d’image HEIF</translation>
    </message>
    <message>
        <source>HEVC Video Extensions</source>
        <translation>Extensions vidéo HEVC</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Paint Layer</source>
        <translation>Calque de peinture</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forme</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Calque</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
</context>
<context>
    <name>InspectorTabBar</name>
    <message>
        <source>Inspector</source>
        <translation>Inspecteur</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Lan&amp;guage</source>
        <translation>Lan&amp;gue</translation>
    </message>
</context>
<context>
    <name>LanguageRestartDialog</name>
    <message>
        <source>Restart Zelmora Atelier for all changes to take effect.</source>
        <translation>Redémarrez Zelmora Atelier pour que toutes les modifications prennent effet.</translation>
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
        <translation>&amp;Image</translation>
    </message>
    <message>
        <source>Insert an image as a new layer</source>
        <translation>Insérer une image comme nouveau calque</translation>
    </message>
    <message>
        <source>Insert &amp;Example Image</source>
        <translation>Insérer une image d’&amp;exemple</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texte</translation>
    </message>
    <message>
        <source>Insert a text layer</source>
        <translation>Insérer un calque de texte</translation>
    </message>
    <message>
        <source>&amp;Shape</source>
        <translation>&amp;Forme</translation>
    </message>
    <message>
        <source>Insert a shape or sticker</source>
        <translation>Insérer une forme ou un autocollant</translation>
    </message>
    <message>
        <source>&amp;New Paint Layer</source>
        <translation>&amp;Nouveau calque de peinture</translation>
    </message>
    <message>
        <source>Show Layer</source>
        <translation>Afficher le calque</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Masquer le calque</translation>
    </message>
    <message>
        <source>Move Layer &amp;Up</source>
        <translation>Déplacer le calque vers le &amp;haut</translation>
    </message>
    <message>
        <source>Move Layer &amp;Down</source>
        <translation>Déplacer le calque vers le &amp;bas</translation>
    </message>
    <message>
        <source>&amp;Remove Layer</source>
        <translation>&amp;Supprimer le calque</translation>
    </message>
    <message>
        <source>R&amp;asterize Layer</source>
        <translation>Pi&amp;xelliser le calque</translation>
    </message>
    <message>
        <source>&amp;Merge with Layer Below</source>
        <translation>&amp;Fusionner avec le calque inférieur</translation>
    </message>
</context>
<context>
    <name>LayerFilterAdapter</name>
    <message>
        <source>Basics</source>
        <translation>Bases</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Contours</translation>
    </message>
    <message>
        <source>Recolor, Tone, add FX</source>
        <translation>Couleur, tonalité, effets</translation>
    </message>
    <message>
        <source>Styletransfers</source>
        <translation>Transferts de style</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Cadres</translation>
    </message>
    <message>
        <source>Photomontages, Fun &amp; Art</source>
        <translation>Photomontages, fun &amp; art</translation>
    </message>
    <message>
        <source>Glitter &amp; Bling</source>
        <translation>Paillettes &amp; strass</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effet</translation>
    </message>
</context>
<context>
    <name>LayerForm</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Blend Mode</source>
        <translation>Mode de fusion</translation>
    </message>
    <message>
        <source>Blend mode</source>
        <translation>Mode de fusion</translation>
    </message>
</context>
<context>
    <name>LayerList</name>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
</context>
<context>
    <name>LayerMenu</name>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
</context>
<context>
    <name>LayerPanel</name>
    <message>
        <source>Layer</source>
        <translation>Calque</translation>
    </message>
    <message>
        <source>Select a layer to manage it.</source>
        <translation>Sélectionnez un calque pour le gérer.</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Calques</translation>
    </message>
    <message>
        <source>No layers yet.</source>
        <translation>Aucun calque pour l’instant.</translation>
    </message>
</context>
<context>
    <name>LayerRow</name>
    <message>
        <source>Layer %1, hidden</source>
        <translation>Calque %1, masqué</translation>
    </message>
    <message>
        <source>Layer %1</source>
        <translation>Calque %1</translation>
    </message>
    <message>
        <source>Has a raster selection</source>
        <translation>Contient une sélection de pixels</translation>
    </message>
    <message>
        <source>Show layer</source>
        <translation>Afficher le calque</translation>
    </message>
    <message>
        <source>Hide layer</source>
        <translation>Masquer le calque</translation>
    </message>
    <message>
        <source>Merge with layer below</source>
        <translation>Fusionner avec le calque inférieur</translation>
    </message>
</context>
<context>
    <name>LayerSummary</name>
    <message>
        <source>Look of the layer</source>
        <translation>Apparence du calque</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
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
        <translation>Éclair</translation>
    </message>
    <message>
        <source>Bend</source>
        <translation>Courbure</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Show in Finder</source>
        <translation>Afficher dans le Finder</translation>
    </message>
    <message>
        <source>Show in Explorer</source>
        <translation>Afficher dans l’Explorateur</translation>
    </message>
    <message>
        <source>Image exported to %1.
Editable document saved as %2.</source>
        <translation>Image exportée vers %1.
Document modifiable enregistré sous %2.</translation>
    </message>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Impossible d’ouvrir le dossier contenant l’image.</translation>
    </message>
    <message>
        <source>%1%2 - %3</source>
        <translation>%1%2 - %3</translation>
    </message>
    <message>
        <source>Please wait for the current save to finish.</source>
        <translation>Veuillez attendre la fin de l’enregistrement en cours.</translation>
    </message>
</context>
<context>
    <name>MainMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>&amp;Sélection</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Rulers</source>
        <translation>&amp;Règles</translation>
    </message>
    <message>
        <source>I&amp;nspector Position</source>
        <translation>Position de l’i&amp;nspecteur</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Thème</translation>
    </message>
    <message>
        <source>&amp;Layer</source>
        <translation>&amp;Calque</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insérer</translation>
    </message>
    <message>
        <source>&amp;Image…</source>
        <translation>&amp;Image…</translation>
    </message>
    <message>
        <source>&amp;Text</source>
        <translation>&amp;Texte</translation>
    </message>
    <message>
        <source>&amp;Shape…</source>
        <translation>&amp;Forme…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>Main tool bar</source>
        <translation>Barre d’outils principale</translation>
    </message>
    <message>
        <source>More ways to save</source>
        <translation>Autres façons d’enregistrer</translation>
    </message>
    <message>
        <source>More of the history</source>
        <translation>Suite de l’historique</translation>
    </message>
    <message>
        <source>Insert:</source>
        <translation>Insérer&#xa0;:</translation>
    </message>
</context>
<context>
    <name>MoveSceneObjectCommand</name>
    <message>
        <source>Move Layer Up</source>
        <translation>Déplacer le calque vers le haut</translation>
    </message>
    <message>
        <source>Move Layer Down</source>
        <translation>Déplacer le calque vers le bas</translation>
    </message>
</context>
<context>
    <name>NewDocumentDialog</name>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
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
        <translation>Réseaux sociaux</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Story</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Photo 3:2</source>
        <translation>Photo 3:2</translation>
    </message>
    <message>
        <source>Photo 4:3</source>
        <translation>Photo 4:3</translation>
    </message>
    <message>
        <source>Print, 300 ppi</source>
        <translation>Impression, 300 ppp</translation>
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
        <translation>Lettre</translation>
    </message>
    <message>
        <source>New Document</source>
        <translation>Nouveau document</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Préréglages</translation>
    </message>
    <message>
        <source>%1 × %2 px   ·   %3   ·   %4 megapixels</source>
        <translation>%1 × %2 px   ·   %3   ·   %4 mégapixels</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Swap width and height</source>
        <translation>Permuter la largeur et la hauteur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arrière-plan</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Choose Background Color</source>
        <translation>Choisir la couleur d’arrière-plan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
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
        <translation>%1, %2 sur %3 pixels</translation>
    </message>
</context>
<context>
    <name>NoticeList</name>
    <message>
        <source>Licenses</source>
        <translation>Licences</translation>
    </message>
</context>
<context>
    <name>OpenGLProgram</name>
    <message>
        <source>Shader error</source>
        <translation>Erreur de shader</translation>
    </message>
    <message>
        <source>Program: %1
Stage: %2
Resource: %3
Target: %4
Log:
%5</source>
        <translation>Programme&#xa0;: %1
Étape&#xa0;: %2
Ressource&#xa0;: %3
Cible&#xa0;: %4
Journal&#xa0;:
%5</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>sommet</translation>
    </message>
    <message>
        <source>fragment</source>
        <translation>fragment</translation>
    </message>
    <message>
        <source>&lt;none&gt;</source>
        <translation>&lt;aucun&gt;</translation>
    </message>
    <message>
        <source>&lt;empty compiler log&gt;</source>
        <translation>&lt;journal du compilateur vide&gt;</translation>
    </message>
    <message>
        <source>Vertex shader compilation failed</source>
        <translation>Échec de la compilation du vertex shader</translation>
    </message>
    <message>
        <source>Fragment shader compilation failed</source>
        <translation>Échec de la compilation du fragment shader</translation>
    </message>
    <message>
        <source>Unable to load shader</source>
        <translation>Impossible de charger le shader</translation>
    </message>
    <message>
        <source>Program: %1
Vertex target: %2
Fragment target: %3
Log:
%4</source>
        <translation>Programme&#xa0;: %1
Cible du vertex shader&#xa0;: %2
Cible du fragment shader&#xa0;: %3
Journal&#xa0;:
%4</translation>
    </message>
    <message>
        <source>&lt;empty linker log&gt;</source>
        <translation>&lt;journal de l’éditeur de liens vide&gt;</translation>
    </message>
    <message>
        <source>Shader link failed</source>
        <translation>Échec de l’édition de liens du shader</translation>
    </message>
    <message>
        <source>Could not open %1: %2</source>
        <translation>Impossible d’ouvrir %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Invalid serialized QSB shader: %1</source>
        <translation>Shader QSB sérialisé non valide&#xa0;: %1</translation>
    </message>
    <message>
        <source>No compatible GLSL variant in %1. Tried: %2</source>
        <translation>Aucune variante GLSL compatible dans %1. Essais&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>PaintImageLayerCommand</name>
    <message>
        <source>Paint Image</source>
        <translation>Peindre sur l’image</translation>
    </message>
</context>
<context>
    <name>PaintSpotShapeGenerator</name>
    <message>
        <source>Paint Spot</source>
        <translation>Tache de peinture</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Pointes</translation>
    </message>
</context>
<context>
    <name>PickerDialog</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>No matching items.</source>
        <translation>Aucun élément correspondant.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>PickerNavigation</name>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
</context>
<context>
    <name>PolygonShapeGenerator</name>
    <message>
        <source>Polygon</source>
        <translation>Polygone</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Côtés</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
</context>
<context>
    <name>RecentFilesMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
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
        <translation>Supprimer %1</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>objet</translation>
    </message>
</context>
<context>
    <name>RenameField</name>
    <message>
        <source>Layer name</source>
        <translation>Nom du calque</translation>
    </message>
</context>
<context>
    <name>RenameSceneObjectCommand</name>
    <message>
        <source>Rename Object</source>
        <translation>Renommer l’objet</translation>
    </message>
</context>
<context>
    <name>ReplaceSceneObjectCommand</name>
    <message>
        <source>Rasterize Layer</source>
        <translation>Pixelliser le calque</translation>
    </message>
</context>
<context>
    <name>ResizeImageLayerCommand</name>
    <message>
        <source>Resize Image</source>
        <translation>Redimensionner l’image</translation>
    </message>
</context>
<context>
    <name>ResizeTextLayerCommand</name>
    <message>
        <source>Resize Text</source>
        <translation>Redimensionner le texte</translation>
    </message>
</context>
<context>
    <name>RhombusShapeGenerator</name>
    <message>
        <source>Rhombus</source>
        <translation>Losange</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
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
        <translation>Ruban</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
</context>
<context>
    <name>RoundedRectShapeGenerator</name>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
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
        <translation>Produit</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Superposition</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Incrustation</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Obscurcir</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Éclaircir</translation>
    </message>
    <message>
        <source>Color Dodge</source>
        <translation>Densité couleur -</translation>
    </message>
    <message>
        <source>Color Burn</source>
        <translation>Densité couleur +</translation>
    </message>
    <message>
        <source>Hard Light</source>
        <translation>Lumière crue</translation>
    </message>
    <message>
        <source>Soft Light</source>
        <translation>Lumière tamisée</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Exclusion</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Luminosity</source>
        <translation>Luminosité</translation>
    </message>
</context>
<context>
    <name>SelectionActions</name>
    <message>
        <source>&amp;Rectangular Selection</source>
        <translation>Sélection &amp;rectangulaire</translation>
    </message>
    <message>
        <source>Create a rectangular raster selection</source>
        <translation>Créer une sélection de pixels rectangulaire</translation>
    </message>
    <message>
        <source>&amp;Elliptical Selection</source>
        <translation>Sélection &amp;elliptique</translation>
    </message>
    <message>
        <source>Create an elliptical raster selection</source>
        <translation>Créer une sélection de pixels elliptique</translation>
    </message>
    <message>
        <source>Magic &amp;Wand Selection</source>
        <translation>Baguette &amp;magique</translation>
    </message>
    <message>
        <source>Select a contiguous color region</source>
        <translation>Sélectionner une zone de couleur contiguë</translation>
    </message>
    <message>
        <source>&amp;Polygon Selection</source>
        <translation>Sélection &amp;polygonale</translation>
    </message>
    <message>
        <source>Edit the raster selection path</source>
        <translation>Modifier le tracé de la sélection de pixels</translation>
    </message>
    <message>
        <source>Clear the raster selection</source>
        <translation>Désélectionner les pixels</translation>
    </message>
    <message>
        <source>&amp;Invert Raster Selection</source>
        <translation>&amp;Inverser la sélection de pixels</translation>
    </message>
    <message>
        <source>E&amp;xtract Selection to New Layer</source>
        <translation>E&amp;xtraire la sélection vers un nouveau calque</translation>
    </message>
    <message>
        <source>C&amp;lear Raster Selection</source>
        <translation>&amp;Désélectionner les pixels</translation>
    </message>
</context>
<context>
    <name>SetDocumentBackgroundCommand</name>
    <message>
        <source>Change Document Background</source>
        <translation>Modifier l’arrière-plan du document</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectBlendModeCommand</name>
    <message>
        <source>Change Blend Mode</source>
        <translation>Modifier le mode de fusion</translation>
    </message>
</context>
<context>
    <name>SetSceneObjectVisibilityCommand</name>
    <message>
        <source>Show Layer</source>
        <translation>Afficher le calque</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Masquer le calque</translation>
    </message>
</context>
<context>
    <name>ShapePickerDialog</name>
    <message>
        <source>Insert Shape or Sticker</source>
        <translation>Insérer une forme ou un autocollant</translation>
    </message>
    <message>
        <source>Search shapes and stickers</source>
        <translation>Rechercher des formes et autocollants</translation>
    </message>
    <message>
        <source>No matching shapes or stickers.</source>
        <translation>Aucune forme ni aucun autocollant correspondant.</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insérer</translation>
    </message>
</context>
<context>
    <name>ShapeToolFilter</name>
    <message>
        <source>mask, cutout, crop, shape</source>
        <translation>masque, découpe, recadrage, forme</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Position Shape</source>
        <translation>Positionner la forme</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forme</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Feather</source>
        <translation>Contour progressif</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Shape Editor</source>
        <translation>Éditeur de forme</translation>
    </message>
    <message>
        <source>Cut to Shape</source>
        <translation>Découper selon une forme</translation>
    </message>
</context>
<context>
    <name>ShieldBadgeShapeGenerator</name>
    <message>
        <source>Shield Badge</source>
        <translation>Écusson</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Pointe</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
</context>
<context>
    <name>SizePanel</name>
    <message>
        <source>Select a layer to edit its transform.</source>
        <translation>Sélectionnez un calque pour modifier sa transformation.</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>Géométrie</translation>
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
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Conserver les proportions</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Symétrie</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Symétrie horizontale</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Symétrie verticale</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Pivot X</source>
        <translation>Pivot X</translation>
    </message>
    <message>
        <source>Pivot Y</source>
        <translation>Pivot Y</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Incliner</translation>
    </message>
    <message>
        <source>Start skew</source>
        <translation>Commencer l’inclinaison</translation>
    </message>
    <message>
        <source>Skew X</source>
        <translation>Inclinaison X</translation>
    </message>
    <message>
        <source>Skew Y</source>
        <translation>Inclinaison Y</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Switch size unit</source>
        <translation>Changer l’unité de taille</translation>
    </message>
</context>
<context>
    <name>SpeechBubbleShapeGenerator</name>
    <message>
        <source>Speech</source>
        <translation>Bulle de parole</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Pointe</translation>
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
        <translation>Tache</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Variante</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
</context>
<context>
    <name>StarShapeGenerator</name>
    <message>
        <source>Star</source>
        <translation>Étoile</translation>
    </message>
    <message>
        <source>Spikes</source>
        <translation>Branches</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Arrondi</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>Status bar</source>
        <translation>Barre d’état</translation>
    </message>
    <message>
        <source>Layer: %1 × %2 px</source>
        <translation>Calque&#xa0;: %1 × %2 px</translation>
    </message>
    <message>
        <source>No layer selected</source>
        <translation>Aucun calque sélectionné</translation>
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
        <translation>Texte</translation>
    </message>
</context>
<context>
    <name>TextureLoader</name>
    <message>
        <source>Unable to register texture resource bundle: %1</source>
        <translation>Impossible d’enregistrer le lot de ressources de texture&#xa0;: %1</translation>
    </message>
    <message>
        <source>Rejected unsafe texture image path: %1</source>
        <translation>Chemin d’image de texture non sûr refusé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Texture image not found: %1 (searched: %2)</source>
        <translation>Image de texture introuvable&#xa0;: %1 (emplacements parcourus&#xa0;: %2)</translation>
    </message>
    <message>
        <source>unknown image decoder error</source>
        <translation>erreur inconnue du décodeur d’image</translation>
    </message>
    <message>
        <source>Unable to load texture image %1 from %2: %3</source>
        <translation>Impossible de charger l’image de texture %1 depuis %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Rejected unsafe texture data path: %1</source>
        <translation>Chemin de données de texture non sûr refusé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Texture data not found: %1 (searched: %2)</source>
        <translation>Données de texture introuvables&#xa0;: %1 (emplacements parcourus&#xa0;: %2)</translation>
    </message>
    <message>
        <source>Texture data not found for any candidate: %1 (searched: %2)</source>
        <translation>Données de texture introuvables pour tous les candidats&#xa0;: %1 (emplacements parcourus&#xa0;: %2)</translation>
    </message>
    <message>
        <source>unknown read error</source>
        <translation>erreur de lecture inconnue</translation>
    </message>
    <message>
        <source>file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>Unable to read texture data %1 from %2: %3</source>
        <translation>Impossible de lire les données de texture %1 depuis %2&#xa0;: %3</translation>
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
        <translation>Bulle de pensée</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
    <message>
        <source>Tip</source>
        <translation>Pointe</translation>
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
        <translation>&amp;Sélectionner</translation>
    </message>
    <message>
        <source>Select layers</source>
        <translation>Sélectionner des calques</translation>
    </message>
    <message>
        <source>S&amp;kew</source>
        <translation>In&amp;cliner</translation>
    </message>
    <message>
        <source>Skew the selected layer</source>
        <translation>Incliner le calque sélectionné</translation>
    </message>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Recadrer</translation>
    </message>
    <message>
        <source>Crop the selected layer</source>
        <translation>Recadrer le calque sélectionné</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Tracé</translation>
    </message>
    <message>
        <source>Edit the selected shape path, or draw a new path</source>
        <translation>Modifier le tracé de la forme sélectionnée ou dessiner un nouveau tracé</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Dessiner</translation>
    </message>
    <message>
        <source>Draw with a freehand brush</source>
        <translation>Dessiner au pinceau à main levée</translation>
    </message>
    <message>
        <source>&amp;Erase</source>
        <translation>&amp;Gommer</translation>
    </message>
    <message>
        <source>Erase pixels from the selected layer</source>
        <translation>Effacer des pixels du calque sélectionné</translation>
    </message>
    <message>
        <source>C&amp;lone</source>
        <translation>C&amp;loner</translation>
    </message>
    <message>
        <source>Clone pixels</source>
        <translation>Cloner des pixels</translation>
    </message>
    <message>
        <source>E&amp;xposure</source>
        <translation>E&amp;xposition</translation>
    </message>
    <message>
        <source>Lighten or darken pixels with the Exposure brush</source>
        <translation>Éclaircir ou assombrir des pixels avec le pinceau Exposition</translation>
    </message>
    <message>
        <source>&amp;Fill Selection</source>
        <translation>Re&amp;mplir la sélection</translation>
    </message>
    <message>
        <source>Fill the active raster selection</source>
        <translation>Remplir la sélection de pixels active</translation>
    </message>
</context>
<context>
    <name>ToolRail</name>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
</context>
<context>
    <name>TriangleShapeGenerator</name>
    <message>
        <source>Triangle</source>
        <translation>Triangle</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>Côtés</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
</context>
<context>
    <name>UnsavedChangesDialog</name>
    <message>
        <source>Save changes before exiting?</source>
        <translation>Enregistrer les modifications avant de quitter&#xa0;?</translation>
    </message>
    <message>
        <source>Save changes before creating a new document?</source>
        <translation>Enregistrer les modifications avant de créer un nouveau document&#xa0;?</translation>
    </message>
    <message>
        <source>Save changes before opening another document?</source>
        <translation>Enregistrer les modifications avant d’ouvrir un autre document&#xa0;?</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you exit without saving, your changes will be lost.</source>
        <translation>Ce document contient des modifications non enregistrées. Si vous quittez sans enregistrer, vos modifications seront perdues.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you create a new document without saving, your changes will be lost.</source>
        <translation>Ce document contient des modifications non enregistrées. Si vous créez un nouveau document sans enregistrer, vos modifications seront perdues.</translation>
    </message>
    <message>
        <source>This document has unsaved changes. If you open another document without saving, your changes will be lost.</source>
        <translation>Ce document contient des modifications non enregistrées. Si vous ouvrez un autre document sans enregistrer, vos modifications seront perdues.</translation>
    </message>
    <message>
        <source>Exit Anyway</source>
        <translation>Quitter quand même</translation>
    </message>
    <message>
        <source>Create Anyway</source>
        <translation>Créer quand même</translation>
    </message>
    <message>
        <source>Open Anyway</source>
        <translation>Ouvrir quand même</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom &amp;arrière</translation>
    </message>
    <message>
        <source>Zoom to &amp;Fit</source>
        <translation>A&amp;juster à la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>Taille ré&amp;elle</translation>
    </message>
    <message>
        <source>F&amp;ull Screen</source>
        <translation>&amp;Plein écran</translation>
    </message>
    <message>
        <source>Unlimited &amp;Canvas Mode</source>
        <translation>Zone de travail &amp;illimitée</translation>
    </message>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Masquées</translation>
    </message>
    <message>
        <source>&amp;Top and Left</source>
        <translation>En &amp;haut et à gauche</translation>
    </message>
    <message>
        <source>&amp;Bottom and Right</source>
        <translation>En &amp;bas et à droite</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>À &amp;gauche</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>À &amp;droite</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Système</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>S&amp;ombre</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Reset zoom to 100%</source>
        <translation>Rétablir le zoom à 100&#xa0;%</translation>
    </message>
</context>
<context>
    <name>VignetteShapeGenerator</name>
    <message>
        <source>Vignette</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Corner Radius</source>
        <translation>Rayon des coins</translation>
    </message>
</context>
<context>
    <name>WindowDialogs</name>
    <message>
        <source>Open Document or Image</source>
        <translation>Ouvrir un document ou une image</translation>
    </message>
    <message>
        <source>All supported files (%1 *.zelmora)</source>
        <translation>Tous les fichiers pris en charge (%1 *.zelmora)</translation>
    </message>
    <message>
        <source>All image files (%1)</source>
        <translation>Tous les fichiers image (%1)</translation>
    </message>
    <message>
        <source>Zelmora documents (*.zelmora)</source>
        <translation>Documents Zelmora (*.zelmora)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Insert Image Layer</source>
        <translation>Insérer un calque d’image</translation>
    </message>
    <message>
        <source>Save Image As</source>
        <translation>Enregistrer l’image sous</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Unable to Open File</source>
        <translation>Impossible d’ouvrir le fichier</translation>
    </message>
    <message>
        <source>Unable to Insert Image</source>
        <translation>Impossible d’insérer l’image</translation>
    </message>
    <message>
        <source>Unable to Save Image</source>
        <translation>Impossible d’enregistrer l’image</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Enregistrement…</translation>
    </message>
</context>
<context>
    <name>ZelmoraDocumentIO</name>
    <message>
        <source>The .zelmora file is truncated or unreadable: %1</source>
        <translation>Le fichier .zelmora est tronqué ou illisible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Could not decode a .zelmora layer section.</source>
        <translation>Impossible de décoder une section de calque .zelmora.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a duplicated layer ID.</source>
        <translation>Le fichier .zelmora contient un identifiant de calque en double.</translation>
    </message>
    <message>
        <source>The first .zelmora section is not document properties.</source>
        <translation>La première section .zelmora ne contient pas les propriétés du document.</translation>
    </message>
    <message>
        <source>The document-properties section has an invalid size.</source>
        <translation>La section des propriétés du document a une taille non valide.</translation>
    </message>
    <message>
        <source>The document-properties payload version is unsupported.</source>
        <translation>La version des données de propriétés du document n’est pas prise en charge.</translation>
    </message>
    <message>
        <source>A .zelmora section header is invalid.</source>
        <translation>Un en-tête de section .zelmora n’est pas valide.</translation>
    </message>
    <message>
        <source>This is not a .zelmora document.</source>
        <translation>Ce n’est pas un document .zelmora.</translation>
    </message>
    <message>
        <source>This .zelmora format version is not supported.</source>
        <translation>Cette version du format .zelmora n’est pas prise en charge.</translation>
    </message>
    <message>
        <source>The .zelmora document dimensions are invalid.</source>
        <translation>Les dimensions du document .zelmora ne sont pas valides.</translation>
    </message>
    <message>
        <source>The .zelmora section count is invalid.</source>
        <translation>Le nombre de sections .zelmora n’est pas valide.</translation>
    </message>
    <message>
        <source>The .zelmora file contains duplicate document properties.</source>
        <translation>Le fichier .zelmora contient des propriétés de document en double.</translation>
    </message>
    <message>
        <source>The source device is not readable.</source>
        <translation>Le périphérique source n’est pas lisible.</translation>
    </message>
    <message>
        <source>The .zelmora file has trailing data.</source>
        <translation>Le fichier .zelmora contient des données superflues à la fin.</translation>
    </message>
    <message>
        <source>Could not write the .zelmora file: %1</source>
        <translation>Impossible d’écrire le fichier .zelmora&#xa0;: %1</translation>
    </message>
    <message>
        <source>A .zelmora section is too large.</source>
        <translation>Une section .zelmora est trop volumineuse.</translation>
    </message>
    <message>
        <source>The document contains an unsupported scene object.</source>
        <translation>Le document contient un objet de scène non pris en charge.</translation>
    </message>
    <message>
        <source>The document contains a duplicated layer ID.</source>
        <translation>Le document contient un identifiant de calque en double.</translation>
    </message>
    <message>
        <source>The destination device is not writable.</source>
        <translation>Le périphérique de destination n’est pas accessible en écriture.</translation>
    </message>
    <message>
        <source>The document dimensions cannot be stored in .zelmora format.</source>
        <translation>Les dimensions du document ne peuvent pas être stockées au format .zelmora.</translation>
    </message>
    <message>
        <source>The document contains too many layers.</source>
        <translation>Le document contient trop de calques.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>out of memory while writing the bitstream</source>
        <translation>mémoire insuffisante lors de l’écriture du flux binaire</translation>
    </message>
    <message>
        <source>a required encoder parameter is missing</source>
        <translation>un paramètre requis de l’encodeur est manquant</translation>
    </message>
    <message>
        <source>the encoder configuration is invalid</source>
        <translation>la configuration de l’encodeur n’est pas valide</translation>
    </message>
    <message>
        <source>the image dimensions are invalid</source>
        <translation>les dimensions de l’image ne sont pas valides</translation>
    </message>
    <message>
        <source>an encoder partition is too large</source>
        <translation>une partition de l’encodeur est trop volumineuse</translation>
    </message>
    <message>
        <source>the encoded data could not be written</source>
        <translation>les données encodées n’ont pas pu être écrites</translation>
    </message>
    <message>
        <source>the encoded image is too large</source>
        <translation>l’image encodée est trop volumineuse</translation>
    </message>
    <message>
        <source>encoding was cancelled</source>
        <translation>l’encodage a été annulé</translation>
    </message>
    <message>
        <source>unknown encoder error (code %1)</source>
        <translation>erreur inconnue de l’encodeur (code %1)</translation>
    </message>
    <message>
        <source>An image cannot be represented as WebP.</source>
        <translation>Une image ne peut pas être représentée au format WebP.</translation>
    </message>
    <message>
        <source>Could not initialize the WebP encoder.</source>
        <translation>Impossible d’initialiser l’encodeur WebP.</translation>
    </message>
    <message>
        <source>The WebP encoder configuration is invalid.</source>
        <translation>La configuration de l’encodeur WebP n’est pas valide.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding.</source>
        <translation>Impossible de préparer l’image pour l’encodage WebP.</translation>
    </message>
    <message>
        <source>Could not prepare the image for WebP encoding: %1</source>
        <translation>Impossible de préparer l’image pour l’encodage WebP&#xa0;: %1</translation>
    </message>
    <message>
        <source>Could not encode WebP: %1</source>
        <translation>Impossible d’encoder le WebP&#xa0;: %1</translation>
    </message>
    <message>
        <source>The WebP encoder produced no data.</source>
        <translation>L’encodeur WebP n’a produit aucune donnée.</translation>
    </message>
    <message>
        <source>The encoded WebP image is too large.</source>
        <translation>L’image WebP encodée est trop volumineuse.</translation>
    </message>
    <message>
        <source>An embedded WebP has invalid dimensions.</source>
        <translation>Une image WebP intégrée a des dimensions non valides.</translation>
    </message>
    <message>
        <source>Could not open an embedded image.</source>
        <translation>Impossible d’ouvrir une image intégrée.</translation>
    </message>
    <message>
        <source>Could not decode WebP: %1</source>
        <translation>Impossible de décoder le WebP&#xa0;: %1</translation>
    </message>
    <message>
        <source>An image cannot be represented as raw RGBA data.</source>
        <translation>Une image ne peut pas être représentée sous forme de données RGBA brutes.</translation>
    </message>
    <message>
        <source>A raw RGBA image has invalid dimensions.</source>
        <translation>Une image RGBA brute a des dimensions non valides.</translation>
    </message>
    <message>
        <source>A raw RGBA image has an invalid byte length.</source>
        <translation>Une image RGBA brute a une longueur en octets non valide.</translation>
    </message>
    <message>
        <source>Could not allocate a raw RGBA image.</source>
        <translation>Impossible d’allouer une image RGBA brute.</translation>
    </message>
    <message>
        <source>A gradient fill uses an unsupported type.</source>
        <translation>Un remplissage en dégradé utilise un type non pris en charge.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid position.</source>
        <translation>Un remplissage en dégradé a une position non valide.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid stop count.</source>
        <translation>Un remplissage en dégradé a un nombre de points d’arrêt non valide.</translation>
    </message>
    <message>
        <source>A gradient fill has an invalid color stop.</source>
        <translation>Un remplissage en dégradé a un point de couleur non valide.</translation>
    </message>
    <message>
        <source>A fill uses an unsupported texture mapping.</source>
        <translation>Un remplissage utilise un placage de texture non pris en charge.</translation>
    </message>
    <message>
        <source>A texture fill has an invalid transform.</source>
        <translation>Un remplissage de texture a une transformation non valide.</translation>
    </message>
    <message>
        <source>A fill generator ID is too large.</source>
        <translation>Un identifiant de générateur de remplissage est trop long.</translation>
    </message>
    <message>
        <source>A solid fill contains unexpected data.</source>
        <translation>Un remplissage uni contient des données inattendues.</translation>
    </message>
    <message>
        <source>A texture fill record is invalid.</source>
        <translation>Un enregistrement de remplissage de texture n’est pas valide.</translation>
    </message>
    <message>
        <source>A texture parameter block has trailing data.</source>
        <translation>Un bloc de paramètres de texture contient des données superflues à la fin.</translation>
    </message>
    <message>
        <source>A texture fill transform or size is invalid.</source>
        <translation>La transformation ou la taille d’un remplissage de texture n’est pas valide.</translation>
    </message>
    <message>
        <source>A gradient fill record is invalid.</source>
        <translation>Un enregistrement de remplissage en dégradé n’est pas valide.</translation>
    </message>
    <message>
        <source>A fill record is truncated or invalid.</source>
        <translation>Un enregistrement de remplissage est tronqué ou non valide.</translation>
    </message>
    <message>
        <source>A fill uses an unknown texture mapping.</source>
        <translation>Un remplissage utilise un placage de texture inconnu.</translation>
    </message>
    <message>
        <source>A filter has a null instance ID.</source>
        <translation>Un filtre a un identifiant d’instance nul.</translation>
    </message>
    <message>
        <source>A filter record is truncated or invalid.</source>
        <translation>Un enregistrement de filtre est tronqué ou non valide.</translation>
    </message>
    <message>
        <source>A filter parameter block has trailing data.</source>
        <translation>Un bloc de paramètres de filtre contient des données superflues à la fin.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty or too large.</source>
        <translation>Un identifiant de générateur de forme est vide ou trop long.</translation>
    </message>
    <message>
        <source>A parametric shape record is invalid.</source>
        <translation>Un enregistrement de forme paramétrique n’est pas valide.</translation>
    </message>
    <message>
        <source>A shape generator ID is empty.</source>
        <translation>Un identifiant de générateur de forme est vide.</translation>
    </message>
    <message>
        <source>A parametric shape has trailing data.</source>
        <translation>Une forme paramétrique contient des données superflues à la fin.</translation>
    </message>
    <message>
        <source>A shape uses an unknown geometry type.</source>
        <translation>Une forme utilise un type de géométrie inconnu.</translation>
    </message>
    <message>
        <source>An SVG layer has no source data.</source>
        <translation>Un calque SVG n’a pas de données source.</translation>
    </message>
    <message>
        <source>An image layer has no supported source.</source>
        <translation>Un calque d’image n’a pas de source prise en charge.</translation>
    </message>
    <message>
        <source>A raster selection must be an editable path.</source>
        <translation>Une sélection de pixels doit être un tracé modifiable.</translation>
    </message>
    <message>
        <source>A raster layer has invalid pixel dimensions.</source>
        <translation>Un calque de pixels a des dimensions en pixels non valides.</translation>
    </message>
    <message>
        <source>An SVG layer contains raster dimensions.</source>
        <translation>Un calque SVG contient des dimensions en pixels.</translation>
    </message>
    <message>
        <source>An SVG layer contains invalid SVG data.</source>
        <translation>Un calque SVG contient des données SVG non valides.</translation>
    </message>
    <message>
        <source>An image layer uses an unknown source encoding.</source>
        <translation>Un calque d’image utilise un encodage source inconnu.</translation>
    </message>
    <message>
        <source>An image layer has invalid dimensions or data.</source>
        <translation>Un calque d’image a des dimensions ou des données non valides.</translation>
    </message>
    <message>
        <source>An image layer payload is invalid.</source>
        <translation>Les données d’un calque d’image ne sont pas valides.</translation>
    </message>
    <message>
        <source>An image layer has an unknown raster surface policy.</source>
        <translation>Un calque d’image a une règle de surface de pixels inconnue.</translation>
    </message>
    <message>
        <source>The document contains an unsupported layer type.</source>
        <translation>Le document contient un type de calque non pris en charge.</translation>
    </message>
    <message>
        <source>A section is not a supported layer type.</source>
        <translation>Une section n’est pas un type de calque pris en charge.</translation>
    </message>
    <message>
        <source>A layer has too many filters.</source>
        <translation>Un calque a trop de filtres.</translation>
    </message>
    <message>
        <source>A layer contains a duplicated filter instance ID.</source>
        <translation>Un calque contient un identifiant d’instance de filtre en double.</translation>
    </message>
    <message>
        <source>A layer has invalid identity or transform properties.</source>
        <translation>Un calque a des propriétés d’identité ou de transformation non valides.</translation>
    </message>
    <message>
        <source>A layer name or blend-mode ID is too large.</source>
        <translation>Un nom de calque ou un identifiant de mode de fusion est trop long.</translation>
    </message>
    <message>
        <source>A layer type does not match its content.</source>
        <translation>Un type de calque ne correspond pas à son contenu.</translation>
    </message>
    <message>
        <source>A layer section is too large.</source>
        <translation>Une section de calque est trop volumineuse.</translation>
    </message>
    <message>
        <source>A layer payload header is invalid.</source>
        <translation>Un en-tête de données de calque n’est pas valide.</translation>
    </message>
    <message>
        <source>A layer has an empty blend-mode ID.</source>
        <translation>Un calque a un identifiant de mode de fusion vide.</translation>
    </message>
    <message>
        <source>A layer section has trailing data.</source>
        <translation>Une section de calque contient des données superflues à la fin.</translation>
    </message>
    <message>
        <source>Could not restore a layer filter stack.</source>
        <translation>Impossible de restaurer la pile de filtres d’un calque.</translation>
    </message>
    <message>
        <source>A parameter string value is too large.</source>
        <translation>Une valeur de paramètre textuelle est trop longue.</translation>
    </message>
    <message>
        <source>A light list contains too many lights.</source>
        <translation>Une liste de lumières contient trop de lumières.</translation>
    </message>
    <message>
        <source>An asset parameter has an invalid byte length.</source>
        <translation>Un paramètre de ressource a une longueur en octets non valide.</translation>
    </message>
    <message>
        <source>A Boolean parameter is invalid.</source>
        <translation>Un paramètre booléen n’est pas valide.</translation>
    </message>
    <message>
        <source>A real parameter is not finite.</source>
        <translation>Un paramètre réel n’est pas fini.</translation>
    </message>
    <message>
        <source>A parameter contains a non-finite number.</source>
        <translation>Un paramètre contient un nombre non fini.</translation>
    </message>
    <message>
        <source>An asset parameter must be a file name, not a path.</source>
        <translation>Un paramètre de ressource doit être un nom de fichier, pas un chemin.</translation>
    </message>
    <message>
        <source>An enabled-color parameter is invalid.</source>
        <translation>Un paramètre de couleur activable n’est pas valide.</translation>
    </message>
    <message>
        <source>A stroke parameter is invalid.</source>
        <translation>Un paramètre de contour n’est pas valide.</translation>
    </message>
    <message>
        <source>A stroke contains an invalid width.</source>
        <translation>Un contour contient une épaisseur non valide.</translation>
    </message>
    <message>
        <source>A gradient parameter is invalid.</source>
        <translation>Un paramètre de dégradé n’est pas valide.</translation>
    </message>
    <message>
        <source>A gradient contains a non-finite position.</source>
        <translation>Un dégradé contient une position non finie.</translation>
    </message>
    <message>
        <source>A mask transform is invalid.</source>
        <translation>Une transformation de masque n’est pas valide.</translation>
    </message>
    <message>
        <source>A mask contains a non-finite transform.</source>
        <translation>Un masque contient une transformation non finie.</translation>
    </message>
    <message>
        <source>A light list parameter is invalid.</source>
        <translation>Un paramètre de liste de lumières n’est pas valide.</translation>
    </message>
    <message>
        <source>A light list contains an invalid light.</source>
        <translation>Une liste de lumières contient une lumière non valide.</translation>
    </message>
    <message>
        <source>The .zelmora file uses an unknown parameter type.</source>
        <translation>Le fichier .zelmora utilise un type de paramètre inconnu.</translation>
    </message>
    <message>
        <source>A parameter value has an invalid byte length.</source>
        <translation>Une valeur de paramètre a une longueur en octets non valide.</translation>
    </message>
    <message>
        <source>A parameter key is duplicated.</source>
        <translation>Une clé de paramètre est en double.</translation>
    </message>
    <message>
        <source>A parameter collection is too large.</source>
        <translation>Une collection de paramètres est trop volumineuse.</translation>
    </message>
    <message>
        <source>A parameter header is truncated.</source>
        <translation>Un en-tête de paramètre est tronqué.</translation>
    </message>
    <message>
        <source>A parameter value is truncated.</source>
        <translation>Une valeur de paramètre est tronquée.</translation>
    </message>
    <message>
        <source>An editable path node is invalid.</source>
        <translation>Un nœud de tracé modifiable n’est pas valide.</translation>
    </message>
    <message>
        <source>An editable path node ID is duplicated.</source>
        <translation>Un identifiant de nœud de tracé modifiable est en double.</translation>
    </message>
    <message>
        <source>An editable path node uses an unknown type.</source>
        <translation>Un nœud de tracé modifiable utilise un type inconnu.</translation>
    </message>
    <message>
        <source>An editable path contour is invalid.</source>
        <translation>Un contour de tracé modifiable n’est pas valide.</translation>
    </message>
    <message>
        <source>An editable path has too many contours.</source>
        <translation>Un tracé modifiable a trop de contours.</translation>
    </message>
    <message>
        <source>An editable path contour has too many nodes.</source>
        <translation>Un contour de tracé modifiable a trop de nœuds.</translation>
    </message>
    <message>
        <source>An editable path record is invalid.</source>
        <translation>Un enregistrement de tracé modifiable n’est pas valide.</translation>
    </message>
    <message>
        <source>An editable path has trailing data.</source>
        <translation>Un tracé modifiable contient des données superflues à la fin.</translation>
    </message>
    <message>
        <source>The .zelmora file contains an invalid color.</source>
        <translation>Le fichier .zelmora contient une couleur non valide.</translation>
    </message>
    <message>
        <source>The .zelmora file contains a null object identifier.</source>
        <translation>Le fichier .zelmora contient un identifiant d’objet nul.</translation>
    </message>
    <message>
        <source>A registry key is not valid 7-bit ASCII.</source>
        <translation>Une clé de registre n’est pas en ASCII 7 bits valide.</translation>
    </message>
    <message>
        <source>A registry key is empty or not null-terminated.</source>
        <translation>Une clé de registre est vide ou ne se termine pas par un caractère nul.</translation>
    </message>
    <message>
        <source>A registry key has nonzero padding.</source>
        <translation>Une clé de registre a un remplissage final non nul.</translation>
    </message>
    <message>
        <source>A filter or parameter key does not fit its 32-byte field.</source>
        <translation>Une clé de filtre ou de paramètre ne tient pas dans son champ de 32 octets.</translation>
    </message>
    <message>
        <source>Filter and parameter keys must use 7-bit ASCII.</source>
        <translation>Les clés de filtre et de paramètre doivent être en ASCII 7 bits.</translation>
    </message>
    <message>
        <source>A .zelmora record exceeds the 32-bit size limit.</source>
        <translation>Un enregistrement .zelmora dépasse la limite de taille de 32 bits.</translation>
    </message>
    <message>
        <source>A shape layer has invalid dimensions or stroke.</source>
        <translation>Un calque de forme a des dimensions ou un contour non valides.</translation>
    </message>
    <message>
        <source>A shape layer payload is invalid.</source>
        <translation>Les données d’un calque de forme ne sont pas valides.</translation>
    </message>
    <message>
        <source>A shape layer payload is truncated.</source>
        <translation>Les données d’un calque de forme sont tronquées.</translation>
    </message>
    <message>
        <source>A text paragraph is invalid.</source>
        <translation>Un paragraphe de texte n’est pas valide.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported alignment.</source>
        <translation>Un paragraphe de texte utilise un alignement non pris en charge.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unsupported direction.</source>
        <translation>Un paragraphe de texte utilise une direction non prise en charge.</translation>
    </message>
    <message>
        <source>A text paragraph record is invalid.</source>
        <translation>Un enregistrement de paragraphe de texte n’est pas valide.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown alignment.</source>
        <translation>Un paragraphe de texte utilise un alignement inconnu.</translation>
    </message>
    <message>
        <source>A text paragraph uses an unknown direction.</source>
        <translation>Un paragraphe de texte utilise une direction inconnue.</translation>
    </message>
    <message>
        <source>A text paragraph has trailing data.</source>
        <translation>Un paragraphe de texte contient des données superflues à la fin.</translation>
    </message>
    <message>
        <source>A text layer has invalid dimensions or too many paragraphs.</source>
        <translation>Un calque de texte a des dimensions non valides ou trop de paragraphes.</translation>
    </message>
    <message>
        <source>A text layer payload is invalid.</source>
        <translation>Les données d’un calque de texte ne sont pas valides.</translation>
    </message>
    <message>
        <source>A text layer has trailing data.</source>
        <translation>Un calque de texte contient des données superflues à la fin.</translation>
    </message>
    <message>
        <source>A text run is too large.</source>
        <translation>Un segment de texte est trop long.</translation>
    </message>
    <message>
        <source>A font family record is invalid.</source>
        <translation>Un enregistrement de famille de polices n’est pas valide.</translation>
    </message>
    <message>
        <source>A font family block has trailing data.</source>
        <translation>Un bloc de familles de polices contient des données superflues à la fin.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font style.</source>
        <translation>Un segment de texte utilise un style de police inconnu.</translation>
    </message>
    <message>
        <source>A text run uses an unknown capitalization mode.</source>
        <translation>Un segment de texte utilise un mode de capitales inconnu.</translation>
    </message>
    <message>
        <source>A text run uses an unknown letter-spacing mode.</source>
        <translation>Un segment de texte utilise un mode d’interlettrage inconnu.</translation>
    </message>
    <message>
        <source>A text run uses an unknown font hinting mode.</source>
        <translation>Un segment de texte utilise un mode d’ajustement de police inconnu.</translation>
    </message>
    <message>
        <source>A text run has no valid font size.</source>
        <translation>Un segment de texte n’a pas de taille de police valide.</translation>
    </message>
    <message>
        <source>A text run has too many font families.</source>
        <translation>Un segment de texte a trop de familles de polices.</translation>
    </message>
    <message>
        <source>A text run has invalid numeric font properties.</source>
        <translation>Un segment de texte a des propriétés numériques de police non valides.</translation>
    </message>
    <message>
        <source>A text run record is invalid.</source>
        <translation>Un enregistrement de segment de texte n’est pas valide.</translation>
    </message>
    <message>
        <source>A text run is truncated.</source>
        <translation>Un segment de texte est tronqué.</translation>
    </message>
    <message>
        <source>Could not open %1 for reading: %2</source>
        <translation>Impossible d’ouvrir %1 en lecture&#xa0;: %2</translation>
    </message>
    <message>
        <source>Could not open %1 for writing: %2</source>
        <translation>Impossible d’ouvrir %1 en écriture&#xa0;: %2</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>La cible n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>Could not finish writing %1: %2</source>
        <translation>Impossible de terminer l’écriture de %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ZmSearchField</name>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
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
        <translation>Impossible de remplacer le document actuel.</translation>
    </message>
    <message>
        <source>Choose an existing file.</source>
        <translation>Choisissez un fichier existant.</translation>
    </message>
    <message>
        <source>Could not open the selected image file.</source>
        <translation>Impossible d’ouvrir le fichier image sélectionné.</translation>
    </message>
    <message>
        <source>Could not load the selected SVG image.</source>
        <translation>Impossible de charger l’image SVG sélectionnée.</translation>
    </message>
    <message>
        <source>Windows could not decode the selected HEIC/HEIF image.</source>
        <translation>Windows n’a pas pu décoder l’image HEIC/HEIF sélectionnée.</translation>
    </message>
    <message>
        <source>Could not load the selected image file.</source>
        <translation>Impossible de charger le fichier image sélectionné.</translation>
    </message>
    <message>
        <source>The selected image does not have a usable size.</source>
        <translation>L’image sélectionnée n’a pas de taille utilisable.</translation>
    </message>
    <message>
        <source>Could not create a document from the selected image.</source>
        <translation>Impossible de créer un document à partir de l’image sélectionnée.</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Enter a valid width and height.</source>
        <translation>Saisissez une largeur et une hauteur valides.</translation>
    </message>
    <message>
        <source>Could not create a new document.</source>
        <translation>Impossible de créer un nouveau document.</translation>
    </message>
    <message>
        <source>Only local files are supported.</source>
        <translation>Seuls les fichiers locaux sont pris en charge.</translation>
    </message>
    <message>
        <source>Choose a file name before saving the document.</source>
        <translation>Choisissez un nom de fichier avant d’enregistrer le document.</translation>
    </message>
</context>
<context>
    <name>zm::DocumentPropertiesAdapter</name>
    <message>
        <source>Resize Document</source>
        <translation>Redimensionner le document</translation>
    </message>
    <message>
        <source>Fit Document Bounds to Content</source>
        <translation>Ajuster les limites du document au contenu</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Déplacer l’objet</translation>
    </message>
</context>
<context>
    <name>zm::EditorController</name>
    <message>
        <source>Choose an existing image file.</source>
        <translation>Choisissez un fichier image existant.</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the selected image.</source>
        <translation>Zelmora Atelier n’a pas pu charger l’image sélectionnée.</translation>
    </message>
    <message>
        <source>Only local image files are supported.</source>
        <translation>Seuls les fichiers image locaux sont pris en charge.</translation>
    </message>
    <message>
        <source>Could not add the selected image to the document.</source>
        <translation>Impossible d’ajouter l’image sélectionnée au document.</translation>
    </message>
    <message>
        <source>Zelmora Example</source>
        <translation>Exemple Zelmora</translation>
    </message>
    <message>
        <source>Zelmora Atelier could not load the example image.</source>
        <translation>Zelmora Atelier n’a pas pu charger l’image d’exemple.</translation>
    </message>
    <message>
        <source>Could not add the example image to the document.</source>
        <translation>Impossible d’ajouter l’image d’exemple au document.</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Tracé</translation>
    </message>
</context>
<context>
    <name>zm::ExportController</name>
    <message>
        <source>An enabled style transfer filter cannot be exported yet. Disable or remove the filter before exporting.</source>
        <translation>Un filtre de transfert de style activé ne peut pas encore être exporté. Désactivez ou supprimez le filtre avant d’exporter.</translation>
    </message>
    <message>
        <source>Could not encode the preview: %1</source>
        <translation>Impossible d’encoder l’aperçu&#xa0;: %1</translation>
    </message>
    <message>
        <source>Could not encode the saved image: %1</source>
        <translation>Impossible d’encoder l’image enregistrée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Could not create the in-memory image buffer.</source>
        <translation>Impossible de créer le tampon d’image en mémoire.</translation>
    </message>
    <message>
        <source>Could not render the image.</source>
        <translation>Impossible de faire le rendu de l’image.</translation>
    </message>
    <message>
        <source>Could not reopen the in-memory image buffer.</source>
        <translation>Impossible de rouvrir le tampon d’image en mémoire.</translation>
    </message>
    <message>
        <source>Could not decode the encoded preview: %1</source>
        <translation>Impossible de décoder l’aperçu encodé&#xa0;: %1</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>Images JPEG (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>WebP images (*.webp)</source>
        <translation>Images WebP (*.webp)</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>Images PNG (*.png)</translation>
    </message>
    <message>
        <source>The target is not a regular file.</source>
        <translation>La cible n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>Could not save the image: %1</source>
        <translation>Impossible d’enregistrer l’image&#xa0;: %1</translation>
    </message>
    <message>
        <source>Wait for the current save to finish.</source>
        <translation>Attendez la fin de l’enregistrement en cours.</translation>
    </message>
    <message>
        <source>The image preview is not ready.</source>
        <translation>L’aperçu de l’image n’est pas prêt.</translation>
    </message>
    <message>
        <source>Only local save destinations are supported.</source>
        <translation>Seules les destinations d’enregistrement locales sont prises en charge.</translation>
    </message>
    <message>
        <source>The filename extension does not match the selected image format: %1</source>
        <translation>L’extension du nom de fichier ne correspond pas au format d’image sélectionné&#xa0;: %1</translation>
    </message>
    <message>
        <source>Choose a filename for the image.</source>
        <translation>Choisissez un nom de fichier pour l’image.</translation>
    </message>
    <message>
        <source>The image was saved, but the editable .zelmora file could not be saved: %1</source>
        <translation>L’image a été enregistrée, mais le fichier .zelmora modifiable n’a pas pu l’être&#xa0;: %1</translation>
    </message>
    <message>
        <source>Choose save settings before saving this image.</source>
        <translation>Choisissez les paramètres d’enregistrement avant d’enregistrer cette image.</translation>
    </message>
    <message>
        <source>Close the Export Settings dialog before saving.</source>
        <translation>Fermez la boîte de dialogue Paramètres d’exportation avant d’enregistrer.</translation>
    </message>
    <message>
        <source>Could not save the editable .zelmora file: %1</source>
        <translation>Impossible d’enregistrer le fichier .zelmora modifiable&#xa0;: %1</translation>
    </message>
    <message>
        <source>The encoder did not produce an image.</source>
        <translation>L’encodeur n’a pas produit d’image.</translation>
    </message>
    <message>
        <source>The editable .zelmora file was saved, but the image could not be updated: %1</source>
        <translation>Le fichier .zelmora modifiable a été enregistré, mais l’image n’a pas pu être mise à jour&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>zm::FileManagerController</name>
    <message>
        <source>Could not open the folder containing the image.</source>
        <translation>Impossible d’ouvrir le dossier contenant l’image.</translation>
    </message>
</context>
<context>
    <name>zm::ImageLayer</name>
    <message>
        <source>Paint</source>
        <translation>Peinture</translation>
    </message>
</context>
<context>
    <name>zm::NoticeCatalogModel</name>
    <message>
        <source>SPDX identifier: %1</source>
        <translation>Identifiant SPDX&#xa0;: %1</translation>
    </message>
    <message>
        <source>Full text on Debian: %1</source>
        <translation>Texte intégral sous Debian&#xa0;: %1</translation>
    </message>
    <message>
        <source>Copyright notices on Debian: %1</source>
        <translation>Mentions de droits d’auteur sous Debian&#xa0;: %1</translation>
    </message>
    <message>
        <source>MIT License</source>
        <translation>Licence MIT</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>Licence publique générale limitée GNU (LGPL), version 3</translation>
    </message>
    <message>
        <source>Draws the interface and reads and writes most picture formats. Linked dynamically, so that it can be replaced: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs, and the plug-ins for picture formats.</source>
        <translation>Dessine l’interface et lit et écrit la plupart des formats d’image. Lié dynamiquement, afin de pouvoir être remplacé&#xa0;: Qt Core, Gui, OpenGL, Svg, Concurrent, D-Bus, Network, Qml, Quick, Quick Controls, Quick Layouts, Quick Dialogs et les modules pour les formats d’image.</translation>
    </message>
    <message>
        <source>Qt brings or uses works of others, among them FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 and zlib. Their notices stand with Qt&apos;s own.</source>
        <translation>Qt fournit ou utilise des travaux de tiers, parmi lesquels FreeType, HarfBuzz, libpng, libjpeg-turbo, PCRE2 et zlib. Leurs mentions figurent avec celles de Qt.</translation>
    </message>
    <message>
        <source>BSD 3-Clause License</source>
        <translation>Licence BSD à 3 clauses</translation>
    </message>
    <message>
        <source>Encodes the pictures in documents and exported WebP files. Linked dynamically, with its part libsharpyuv.</source>
        <translation>Encode les images des documents et des fichiers WebP exportés. Lié dynamiquement, avec sa composante libsharpyuv.</translation>
    </message>
    <message>
        <source>Finds the OpenGL of the graphics driver, which is not part of this program. Linked dynamically.</source>
        <translation>Trouve l’OpenGL du pilote graphique, qui ne fait pas partie de ce programme. Lié dynamiquement.</translation>
    </message>
    <message>
        <source>GNU General Public License, version 3 or later, with the GCC Runtime Library Exception</source>
        <translation>Licence publique générale GNU (GPL), version 3 ou ultérieure, avec l’exception pour la bibliothèque d’exécution GCC</translation>
    </message>
    <message>
        <source>The C++ standard library and the support routines of the compiler, linked dynamically. The exception lets programs under any license use them.</source>
        <translation>La bibliothèque standard C++ et les routines d’assistance du compilateur, liées dynamiquement. L’exception permet aux programmes sous toute licence de les utiliser.</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1 or later</source>
        <translation>Licence publique générale limitée GNU (LGPL), version 2.1 ou ultérieure</translation>
    </message>
    <message>
        <source>The C library of the system, linked dynamically.</source>
        <translation>La bibliothèque C du système, liée dynamiquement.</translation>
    </message>
</context>
<context>
    <name>zm::SceneObjectAdapter</name>
    <message>
        <source>Change Opacity</source>
        <translation>Modifier l’opacité</translation>
    </message>
    <message>
        <source>Rotate Object</source>
        <translation>Faire pivoter l’objet</translation>
    </message>
    <message>
        <source>Move Object</source>
        <translation>Déplacer l’objet</translation>
    </message>
    <message>
        <source>Skew Object</source>
        <translation>Incliner l’objet</translation>
    </message>
    <message>
        <source>Set Transform Pivot</source>
        <translation>Définir le pivot de transformation</translation>
    </message>
    <message>
        <source>Scale Object</source>
        <translation>Mettre l’objet à l’échelle</translation>
    </message>
    <message>
        <source>Flip Horizontally</source>
        <translation>Symétrie horizontale</translation>
    </message>
    <message>
        <source>Flip Vertically</source>
        <translation>Symétrie verticale</translation>
    </message>
</context>
<context>
    <name>zm::ShapePickerModel</name>
    <message>
        <source>Basic</source>
        <translation>De base</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamiques</translation>
    </message>
</context>
</TS>
