<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>CActionMenu</name>
    <message>
        <source>&amp;Action</source>
        <translation>A&amp;ction</translation>
    </message>
    <message>
        <source>Can&apos;t Undo</source>
        <translation>Annulation impossible</translation>
    </message>
    <message>
        <source>Can&apos;t Redo</source>
        <translation>Rétablissement impossible</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler : %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir : %1</translation>
    </message>
</context>
<context>
    <name>CBoardRenderer</name>
    <message>
        <source>The board has no picture to draw on</source>
        <translation>Le plateau n&apos;a pas d&apos;image sur laquelle dessiner</translation>
    </message>
    <message>
        <source>The scale must be a positive number</source>
        <translation>L&apos;échelle doit être un nombre positif</translation>
    </message>
    <message>
        <source>A picture of %1 x %2 pixels is too large to make</source>
        <translation>Une image de %1 x %2 pixels est trop grande</translation>
    </message>
    <message>
        <source>There is not enough memory for the picture</source>
        <translation>Il n&apos;y a pas assez de mémoire pour l&apos;image</translation>
    </message>
</context>
<context>
    <name>CBoardReview</name>
    <message>
        <source>Space or Right: next change. Left: back. Escape: end.</source>
        <translation>Espace ou Droite : modification suivante. Gauche : retour. Échap : fin.</translation>
    </message>
    <message>
        <source>%1 → %2: %3</source>
        <translation>%1 → %2 : %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>CCommandGuard</name>
    <message>
        <source>There is not enough memory to complete this command.</source>
        <translation>Il n&apos;y a pas assez de mémoire pour exécuter cette commande.</translation>
    </message>
</context>
<context>
    <name>CContextMgr</name>
    <message>
        <source>Searching for Games...</source>
        <translation>Recherche des jeux...</translation>
    </message>
    <message>
        <source>Module &apos;%1&apos; was loaded...</source>
        <translation>Module « %1 » chargé...</translation>
    </message>
</context>
<context>
    <name>CFileCheck</name>
    <message>
        <source>&apos;%1&apos; is not a game of this module.</source>
        <translation>« %1 » n&apos;est pas une partie de ce module.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; could not be read: %2</source>
        <translation>« %1 » n&apos;a pas pu être lu : %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; holds another game; only files of the same game can be compared.</source>
        <translation>« %1 » contient une autre partie ; seuls les fichiers d&apos;une même partie peuvent être comparés.</translation>
    </message>
    <message>
        <source>Earlier maps unchanged since %1</source>
        <translation>Cartes antérieures inchangées depuis %1</translation>
    </message>
    <message>
        <source>1 earlier map differs from %1</source>
        <translation>1 carte antérieure diffère de %1</translation>
    </message>
    <message>
        <source>%1 earlier maps differ from %2</source>
        <translation>%1 cartes antérieures diffèrent de %2</translation>
    </message>
</context>
<context>
    <name>CFileDialogs</name>
    <message>
        <source>All Files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Game As</source>
        <translation>Enregistrer la partie sous</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
</context>
<context>
    <name>CFileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New Game</source>
        <translation>&amp;Nouvelle partie</translation>
    </message>
    <message>
        <source>&amp;Open Game...</source>
        <translation>&amp;Ouvrir une partie...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir une partie &amp;récente</translation>
    </message>
    <message>
        <source>&amp;Save Game</source>
        <translation>&amp;Enregistrer la partie</translation>
    </message>
    <message>
        <source>Save Game &amp;As...</source>
        <translation>Enregistrer la partie &amp;sous...</translation>
    </message>
    <message>
        <source>&amp;Export Map Picture...</source>
        <translation>E&amp;xporter l&apos;image de la carte...</translation>
    </message>
    <message>
        <source>Sen&amp;d to Opponent...</source>
        <translation>Envo&amp;yer à l&apos;adversaire...</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimer...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; no longer exists. It has been removed from the list of recent games.</source>
        <translation>Le fichier « %1 » n&apos;existe plus. Il a été retiré de la liste des parties récentes.</translation>
    </message>
    <message>
        <source>Export the picture at the current zoom (%1 %)?

No exports it at 100 %.</source>
        <translation>Exporter l&apos;image au zoom actuel (%1 %) ?

Non l&apos;exporte à 100 %.</translation>
    </message>
    <message>
        <source>PNG Pictures (*.png)|*.png</source>
        <translation>Images PNG (*.png)|*.png</translation>
    </message>
    <message>
        <source>The picture could not be saved.

%1</source>
        <translation>L&apos;image n&apos;a pas pu être enregistrée.

%1</translation>
    </message>
    <message>
        <source>No mail program could be started. The folder that holds &apos;%1&apos; has been opened, so you can attach the game yourself.</source>
        <translation>Aucun programme de messagerie n&apos;a pu être lancé. Le dossier qui contient « %1 » a été ouvert pour que vous joigniez la partie vous-même.</translation>
    </message>
    <message>
        <source>No mail program could be started. Attach the game file yourself:

%1</source>
        <translation>Aucun programme de messagerie n&apos;a pu être lancé. Joignez vous-même le fichier de partie :

%1</translation>
    </message>
    <message>
        <source>Compare With &amp;File...</source>
        <translation>&amp;Comparer avec un fichier...</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>L&apos;image n&apos;a pas pu être enregistrée.</translation>
    </message>
</context>
<context>
    <name>CGame</name>
    <message>
        <source>A game cannot store more than 32767 map groups</source>
        <translation>Une partie ne peut pas enregistrer plus de 32767 archives</translation>
    </message>
    <message>
        <source>The game holds more than %1 maps, more than Korvane can open</source>
        <translation>La partie contient plus de %1 cartes, plus que Korvane ne peut en ouvrir</translation>
    </message>
</context>
<context>
    <name>CGameCommands</name>
    <message>
        <source>You currently don&apos;t have any Korvane Modules loaded on your system!</source>
        <translation>Aucun module Korvane n&apos;est actuellement chargé sur votre système !</translation>
    </message>
    <message>
        <source>Creating a new game...</source>
        <translation>Création d&apos;une nouvelle partie...</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; is either invalid or you do not have the corresponding Module installed.</source>
        <translation>Le fichier « %1 » est invalide, ou le module correspondant n&apos;est pas installé.</translation>
    </message>
    <message>
        <source>Opening &apos;%1&apos;...</source>
        <translation>Ouverture de « %1 »...</translation>
    </message>
    <message>
        <source>The module &apos;%1&apos; cannot start a new game.

%2</source>
        <translation>Le module « %1 » ne peut pas commencer une nouvelle partie.

%2</translation>
    </message>
</context>
<context>
    <name>CGameFile</name>
    <message>
        <source>The game could not be compressed (zlib error %1)</source>
        <translation>La partie n&apos;a pas pu être compressée (erreur zlib %1)</translation>
    </message>
    <message>
        <source>it is not a Korvane game file</source>
        <translation>ce n&apos;est pas un fichier de partie Korvane</translation>
    </message>
    <message>
        <source>the file ends inside its header</source>
        <translation>le fichier s&apos;arrête au milieu de son en-tête</translation>
    </message>
    <message>
        <source>its declared body length (%1 bytes) cannot be right</source>
        <translation>la longueur de données annoncée (%1 octets) ne peut pas être juste</translation>
    </message>
    <message>
        <source>its compressed body is damaged</source>
        <translation>ses données compressées sont endommagées</translation>
    </message>
</context>
<context>
    <name>CGameMenu</name>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Partie</translation>
    </message>
    <message>
        <source>Game &amp;Properties...</source>
        <translation>&amp;Propriétés de la partie...</translation>
    </message>
    <message>
        <source>Can&apos;t Add Map</source>
        <translation>Ajout de carte impossible</translation>
    </message>
    <message>
        <source>Can&apos;t Remove Map</source>
        <translation>Suppression de carte impossible</translation>
    </message>
    <message>
        <source>&amp;Map Properties...</source>
        <translation>Propriétés de la &amp;carte...</translation>
    </message>
    <message>
        <source>&amp;Add Map...</source>
        <translation>&amp;Ajouter une carte...</translation>
    </message>
    <message>
        <source>&amp;Remove &apos;%1&apos;</source>
        <translation>&amp;Supprimer « %1 »</translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation>Tour %1</translation>
    </message>
    <message>
        <source>Removal of &apos;%1&apos; cannot be undone.

Do you want to continue ?</source>
        <translation>La suppression de « %1 » ne pourra pas être annulée.

Voulez-vous continuer ?</translation>
    </message>
</context>
<context>
    <name>CHelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>&amp;Email Us...</source>
        <translation>Nous &amp;écrire...</translation>
    </message>
    <message>
        <source>&amp;Visit Us On The Web...</source>
        <translation>&amp;Visiter notre site web...</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>À &amp;propos...</translation>
    </message>
</context>
<context>
    <name>CKorvane</name>
    <message>
        <source>Initializing...</source>
        <translation>Initialisation...</translation>
    </message>
    <message>
        <source>Finished...</source>
        <translation>Terminé...</translation>
    </message>
</context>
<context>
    <name>CMap</name>
    <message>
        <source>A map cannot store more than %1 %2; this one has %3</source>
        <translation>Une carte ne peut pas enregistrer plus de %1 %2 ; celle-ci en a %3</translation>
    </message>
    <message>
        <source>The counter &quot;%1&quot; is not part of the active game module, so the map cannot be read</source>
        <translation>Le pion « %1 » ne fait pas partie du module actif, la carte ne peut donc pas être lue</translation>
    </message>
    <message>
        <source>The counter &quot;%1&quot; of a unit is not part of the active game module</source>
        <translation>Le pion « %1 » ne fait pas partie du module actif</translation>
    </message>
    <message>
        <source>The units of a map cannot be swapped out while no game module is active</source>
        <translation>Les pions d&apos;une carte ne peuvent pas être mis de côté tant qu&apos;aucun module n&apos;est actif</translation>
    </message>
    <message>
        <source>not every byte could be written (is the disk full?)</source>
        <translation>tous les octets n&apos;ont pas pu être écrits (le disque est-il plein ?)</translation>
    </message>
    <message>
        <source>The swap file %1 cannot be written: %2</source>
        <translation>Le fichier d&apos;échange %1 ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>The swap file %1 cannot be read: %2</source>
        <translation>Le fichier d&apos;échange %1 ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>it is empty or too large</source>
        <translation>il est vide ou trop grand</translation>
    </message>
    <message>
        <source>it was written for the game module &quot;%1&quot;, which is no longer active</source>
        <translation>il a été écrit pour le module « %1 », qui n&apos;est plus actif</translation>
    </message>
    <message>
        <source>a unit names the counter number %1 of %2</source>
        <translation>un pion désigne le pion numéro %1 sur %2</translation>
    </message>
</context>
<context>
    <name>CMapChange</name>
    <message>
        <source>Arrow</source>
        <translation>Flèche</translation>
    </message>
    <message>
        <source>%1 added from (%2, %3) to (%4, %5)</source>
        <translation>%1 ajoutée de (%2, %3) à (%4, %5)</translation>
    </message>
    <message>
        <source>%1 from (%2, %3) to (%4, %5) removed</source>
        <translation>%1 de (%2, %3) à (%4, %5) retirée</translation>
    </message>
    <message>
        <source>%1 moved from (%2, %3)–(%4, %5) to (%6, %7)–(%8, %9)</source>
        <translation>%1 déplacée de (%2, %3)–(%4, %5) à (%6, %7)–(%8, %9)</translation>
    </message>
    <message>
        <source>%1 moved from (%2, %3) to (%4, %5), now %6</source>
        <translation>%1 déplacé de (%2, %3) à (%4, %5), maintenant %6</translation>
    </message>
    <message>
        <source>%1 moved from (%2, %3) to (%4, %5)</source>
        <translation>%1 déplacé de (%2, %3) à (%4, %5)</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
    <message>
        <source>(no caption)</source>
        <translation>(sans libellé)</translation>
    </message>
    <message>
        <source>%1 at (%2, %3) changed</source>
        <translation>%1 modifié en (%2, %3)</translation>
    </message>
    <message>
        <source>%1 added at (%2, %3)</source>
        <translation>%1 ajouté en (%2, %3)</translation>
    </message>
    <message>
        <source>%1 removed from (%2, %3)</source>
        <translation>%1 retiré de (%2, %3)</translation>
    </message>
</context>
<context>
    <name>CMapComparison</name>
    <message>
        <source>1 arrow moved</source>
        <translation>1 flèche déplacée</translation>
    </message>
    <message>
        <source>%1 arrows moved</source>
        <translation>%1 flèches déplacées</translation>
    </message>
    <message>
        <source>1 arrow added</source>
        <translation>1 flèche ajoutée</translation>
    </message>
    <message>
        <source>%1 arrows added</source>
        <translation>%1 flèches ajoutées</translation>
    </message>
    <message>
        <source>1 arrow removed</source>
        <translation>1 flèche retirée</translation>
    </message>
    <message>
        <source>%1 arrows removed</source>
        <translation>%1 flèches retirées</translation>
    </message>
    <message>
        <source>text changed</source>
        <translation>texte modifié</translation>
    </message>
    <message>
        <source>name changed</source>
        <translation>nom modifié</translation>
    </message>
    <message>
        <source>No changes</source>
        <translation>Aucune modification</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Map name changed from &quot;%1&quot; to &quot;%2&quot;</source>
        <translation>Nom de la carte changé de « %1 » en « %2 »</translation>
    </message>
    <message>
        <source>Map text changed</source>
        <translation>Texte de la carte modifié</translation>
    </message>
    <message numerus="yes">
        <source>%n moved</source>
        <translation>
            <numerusform>%n déplacé</numerusform>
            <numerusform>%n déplacés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n added</source>
        <translation>
            <numerusform>%n ajouté</numerusform>
            <numerusform>%n ajoutés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n removed</source>
        <translation>
            <numerusform>%n retiré</numerusform>
            <numerusform>%n retirés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n changed</source>
        <translation>
            <numerusform>%n modifié</numerusform>
            <numerusform>%n modifiés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CMapExport</name>
    <message>
        <source>there is no map to draw</source>
        <translation>il n&apos;y a pas de carte à dessiner</translation>
    </message>
    <message>
        <source>the picture cannot be encoded: %1</source>
        <translation>l&apos;image ne peut pas être encodée : %1</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <translation>ne peut pas être écrit : %1</translation>
    </message>
</context>
<context>
    <name>CMapGroup</name>
    <message>
        <source>A group cannot store more than 32767 maps</source>
        <translation>Une archive ne peut pas enregistrer plus de 32767 cartes</translation>
    </message>
</context>
<context>
    <name>CModuleDefinition</name>
    <message>
        <source>%1 has no %2</source>
        <translation>%1 n&apos;a pas de %2</translation>
    </message>
    <message>
        <source>%1 must be a whole number from %2 to %3, not &apos;%4&apos;</source>
        <translation>%1 doit être un nombre entier de %2 à %3, et non « %4 »</translation>
    </message>
    <message>
        <source>%1 must be true, false, 1 or 0, not &apos;%2&apos;</source>
        <translation>%1 doit valoir true, false, 1 ou 0, et non « %2 »</translation>
    </message>
    <message>
        <source>The program&apos;s module grammar is missing</source>
        <translation>La grammaire des modules du programme est absente</translation>
    </message>
    <message>
        <source>The program&apos;s module grammar cannot be read</source>
        <translation>La grammaire des modules du programme ne peut pas être lue</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Impossible de lire %1 : %2</translation>
    </message>
    <message>
        <source>%1 is too large for a module definition</source>
        <translation>%1 est trop grand pour une définition de module</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 est vide</translation>
    </message>
    <message>
        <source>The document is not well-formed XML</source>
        <translation>Le document n&apos;est pas du XML bien formé</translation>
    </message>
    <message>
        <source>The document brings a DOCTYPE of its own; module definitions follow the program&apos;s grammar only</source>
        <translation>Le document apporte son propre DOCTYPE ; les définitions de module suivent uniquement la grammaire du programme</translation>
    </message>
    <message>
        <source>Out of memory while checking the module definition</source>
        <translation>Mémoire insuffisante pendant la vérification de la définition du module</translation>
    </message>
    <message>
        <source>The document does not follow the module grammar</source>
        <translation>Le document ne suit pas la grammaire des modules</translation>
    </message>
    <message>
        <source>The root element is &lt;%1&gt;, not &lt;module_def&gt;</source>
        <translation>L&apos;élément racine est &lt;%1&gt;, et non &lt;module_def&gt;</translation>
    </message>
    <message>
        <source>The root element is missing, not &lt;module_def&gt;</source>
        <translation>L&apos;élément racine est absent, au lieu de &lt;module_def&gt;</translation>
    </message>
    <message>
        <source>format_version &apos;%1&apos; is not supported; this program reads version %2</source>
        <translation>format_version « %1 » n&apos;est pas prise en charge ; ce programme lit la version %2</translation>
    </message>
    <message>
        <source>&lt;min_kr_version&gt; &apos;%1&apos; is not a version such as 1.0.0</source>
        <translation>&lt;min_kr_version&gt; « %1 » n&apos;est pas une version comme 1.0.0</translation>
    </message>
    <message>
        <source>The module needs Korvane %1 or later; this is %2</source>
        <translation>Le module demande Korvane %1 ou plus récent ; celui-ci est %2</translation>
    </message>
    <message>
        <source>A token has an empty token_id</source>
        <translation>Un pion a un token_id vide</translation>
    </message>
    <message>
        <source>Token &apos;%1&apos; has the unknown type &apos;%2&apos;</source>
        <translation>Le pion « %1 » a le type inconnu « %2 »</translation>
    </message>
    <message>
        <source>Token id &apos;%1&apos; is used twice</source>
        <translation>L&apos;identifiant de pion « %1 » est utilisé deux fois</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>Unexpected failure: %1</source>
        <translation>Échec inattendu : %1</translation>
    </message>
    <message>
        <source>The header must be loaded before the body</source>
        <translation>L&apos;en-tête doit être chargé avant le corps</translation>
    </message>
    <message>
        <source>&lt;game_id&gt; needs a unique_id and a version</source>
        <translation>&lt;game_id&gt; demande un unique_id et une version</translation>
    </message>
    <message>
        <source>&lt;label_font_size&gt; must be a size from 1 to 1000, not &apos;%1&apos;</source>
        <translation>&lt;label_font_size&gt; doit être une taille de 1 à 1000, et non « %1 »</translation>
    </message>
    <message>
        <source>&lt;mask_html_color&gt; must be a colour such as #FF00FF, not &apos;%1&apos;</source>
        <translation>&lt;mask_html_color&gt; doit être une couleur comme #FF00FF, et non « %1 »</translation>
    </message>
</context>
<context>
    <name>CModuleInstaller</name>
    <message>
        <source>%1 is already installed.</source>
        <translation>%1 est déjà installé.</translation>
    </message>
    <message>
        <source>Module already exists</source>
        <translation>Le module existe déjà</translation>
    </message>
    <message>
        <source>%1 already exits.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>You must restart Korvane for these settings to take effect.</source>
        <translation>Vous devez redémarrer Korvane pour que ces réglages prennent effet.</translation>
    </message>
    <message>
        <source>%1 cannot be installed: the folder %2 does not exist. Nothing has been installed.</source>
        <translation>%1 ne peut pas être installé : le dossier %2 n&apos;existe pas. Rien n&apos;a été installé.</translation>
    </message>
</context>
<context>
    <name>CNameCheck</name>
    <message>
        <source>Name cannot be blank.</source>
        <translation>Le nom ne peut pas être vide.</translation>
    </message>
    <message>
        <source>Name cannot contain any of the following characters:<byte value="xd"/>	\/:*?&quot;&lt;&gt;|&amp;</source>
        <translation>Le nom ne peut contenir aucun des caractères suivants :<byte value="xd"/>	\/:*?&quot;&lt;&gt;|&amp;</translation>
    </message>
    <message>
        <source>A Map named &apos;%1&apos; already exists.</source>
        <translation>Une carte nommée « %1 » existe déjà.</translation>
    </message>
</context>
<context>
    <name>CPersistMgr</name>
    <message>
        <source>Korvane Game Files  (*.krf)|*.krf</source>
        <translation>Fichiers de partie Korvane  (*.krf)|*.krf</translation>
    </message>
    <message>
        <source>Disk write error!</source>
        <translation>Erreur d&apos;écriture sur le disque !</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 autres</translation>
    </message>
    <message>
        <source>Game files keep texts in the Western (Windows-1252) character set. These texts hold characters outside it, which will be saved as &quot;?&quot;:

%1

Do you want to save the game anyway?</source>
        <translation>Les fichiers de partie gardent les textes dans le jeu de caractères occidental (Windows-1252). Ces textes contiennent des caractères hors de ce jeu, qui seront enregistrés comme « ? » :

%1

Voulez-vous quand même enregistrer la partie ?</translation>
    </message>
    <message>
        <source>The current game has been modified.  Do you want to save the changes to this game?</source>
        <translation>La partie en cours a été modifiée.  Voulez-vous enregistrer les modifications de cette partie ?</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; cannot be opened.

%2</source>
        <translation>Le fichier « %1 » ne peut pas être ouvert.

%2</translation>
    </message>
    <message>
        <source>it is too large to be a Korvane game file</source>
        <translation>il est trop grand pour être un fichier de partie Korvane</translation>
    </message>
    <message>
        <source>it was saved with the game module &apos;%1&apos;, which is not the active one</source>
        <translation>il a été enregistré avec le module « %1 », qui n&apos;est pas le module actif</translation>
    </message>
    <message>
        <source>File &apos;%1&apos; is either invalid or you do not have the corresponding Module installed.</source>
        <translation>Le fichier « %1 » est invalide, ou le module correspondant n&apos;est pas installé.</translation>
    </message>
    <message>
        <source>Korvane Map Files (*.krf, *.cmf)</source>
        <translation>Fichiers de cartes Korvane (*.krf, *.cmf)</translation>
    </message>
    <message>
        <source>Legacy Korvane Map Files</source>
        <translation>Anciens fichiers de cartes Korvane</translation>
    </message>
</context>
<context>
    <name>CRecordReader</name>
    <message>
        <source>arrow</source>
        <translation>flèche</translation>
    </message>
    <message>
        <source>game</source>
        <translation>partie</translation>
    </message>
    <message>
        <source>map groups</source>
        <translation>archives</translation>
    </message>
    <message>
        <source>maps</source>
        <translation>cartes</translation>
    </message>
    <message>
        <source>units</source>
        <translation>pions</translation>
    </message>
    <message>
        <source>arrows</source>
        <translation>flèches</translation>
    </message>
    <message>
        <source>map</source>
        <translation>carte</translation>
    </message>
    <message>
        <source>map group</source>
        <translation>archive</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>pion</translation>
    </message>
    <message>
        <source>The data ends in the middle of a record: the file is truncated or damaged</source>
        <translation>Les données s&apos;arrêtent au milieu d&apos;un enregistrement : le fichier est tronqué ou endommagé</translation>
    </message>
    <message>
        <source>A text of negative length (%1) was found: the file is damaged</source>
        <translation>Un texte de longueur négative (%1) a été trouvé : le fichier est endommagé</translation>
    </message>
    <message>
        <source>The %1 record has version %2, which this program does not know: it was written by a newer version of Korvane</source>
        <translation>L&apos;enregistrement « %1 » a la version %2, que ce programme ne connaît pas : il a été écrit par une version plus récente de Korvane</translation>
    </message>
    <message>
        <source>The %1 record has the invalid version %2: the file is damaged</source>
        <translation>L&apos;enregistrement « %1 » a la version invalide %2 : le fichier est endommagé</translation>
    </message>
    <message>
        <source>A negative number of %1 (%2) was found: the file is damaged</source>
        <translation>Un nombre négatif de %1 (%2) a été trouvé : le fichier est endommagé</translation>
    </message>
    <message>
        <source>The data claims %1 %2, more than the remaining %3 bytes can hold: the file is damaged</source>
        <translation>Les données annoncent %1 %2, plus que les %3 octets restants ne peuvent en contenir : le fichier est endommagé</translation>
    </message>
</context>
<context>
    <name>CRecoveryMgr</name>
    <message>
        <source>Restore unsaved changes to &apos;%1&apos; from %2?</source>
        <translation>Restaurer les modifications non enregistrées de « %1 » du %2 ?</translation>
    </message>
    <message>
        <source>The unsaved changes cannot be restored: the game module &apos;%1&apos; is not installed.</source>
        <translation>Les modifications non enregistrées ne peuvent pas être restaurées : le module « %1 » n&apos;est pas installé.</translation>
    </message>
</context>
<context>
    <name>CResFileMgr</name>
    <message>
        <source>Cannot open the pack %1: %2</source>
        <translation>Impossible d&apos;ouvrir le paquet %1 : %2</translation>
    </message>
    <message>
        <source>The pack %1 is larger than 2 GB</source>
        <translation>Le paquet %1 dépasse 2 Go</translation>
    </message>
    <message>
        <source>The pack %1 is shorter than its header</source>
        <translation>Le paquet %1 est plus court que son en-tête</translation>
    </message>
    <message>
        <source>Cannot read the header of %1</source>
        <translation>Impossible de lire l&apos;en-tête de %1</translation>
    </message>
    <message>
        <source>The directory of %1 (%2 bytes) does not fit in the file</source>
        <translation>Le répertoire de %1 (%2 octets) ne tient pas dans le fichier</translation>
    </message>
    <message>
        <source>The directory of %1 claims an impossible length of %2 bytes</source>
        <translation>Le répertoire de %1 annonce une longueur impossible de %2 octets</translation>
    </message>
    <message>
        <source>The directory of %1 is damaged</source>
        <translation>Le répertoire de %1 est endommagé</translation>
    </message>
    <message>
        <source>The directory of %1 claims an impossible entry count of %2</source>
        <translation>Le répertoire de %1 annonce un nombre d&apos;entrées impossible : %2</translation>
    </message>
    <message>
        <source>The directory of %1 ends inside entry %2</source>
        <translation>Le répertoire de %1 s&apos;arrête au milieu de l&apos;entrée %2</translation>
    </message>
    <message>
        <source>Entry %1 of %2 has a name that leads out of any folder it is unpacked to</source>
        <translation>L&apos;entrée %1 de %2 a un nom qui sort de tout dossier où elle est décompressée</translation>
    </message>
    <message>
        <source>Entry %1 of %2 has an impossible length</source>
        <translation>L&apos;entrée %1 de %2 a une longueur impossible</translation>
    </message>
    <message>
        <source>Entry %1 of %2 points outside the file</source>
        <translation>L&apos;entrée %1 de %2 pointe hors du fichier</translation>
    </message>
    <message>
        <source>a name a pack may not hold</source>
        <translation>un nom qu&apos;un paquet ne peut pas contenir</translation>
    </message>
    <message>
        <source>a second entry of that name (the first is used)</source>
        <translation>une seconde entrée de ce nom (la première est utilisée)</translation>
    </message>
    <message>
        <source>The pack %1 has no entry %2</source>
        <translation>Le paquet %1 n&apos;a pas d&apos;entrée %2</translation>
    </message>
    <message>
        <source>Cannot read the pack %1</source>
        <translation>Impossible de lire le paquet %1</translation>
    </message>
    <message>
        <source>The pack %1 ends inside entry %2</source>
        <translation>Le paquet %1 s&apos;arrête au milieu de l&apos;entrée %2</translation>
    </message>
    <message>
        <source>Entry %1 of %2 is damaged</source>
        <translation>L&apos;entrée %1 de %2 est endommagée</translation>
    </message>
    <message>
        <source>Entry %1 of %2 is not a picture: %3</source>
        <translation>L&apos;entrée %1 de %2 n&apos;est pas une image : %3</translation>
    </message>
    <message>
        <source>No place was given for the copy of %1</source>
        <translation>Aucun emplacement n&apos;a été donné pour la copie de %1</translation>
    </message>
    <message>
        <source>Cannot create the cache directory %1</source>
        <translation>Impossible de créer le dossier de cache %1</translation>
    </message>
    <message>
        <source>Cannot write the cache file %1: %2</source>
        <translation>Impossible d&apos;écrire le fichier de cache %1 : %2</translation>
    </message>
    <message>
        <source>it cannot be renamed into place</source>
        <translation>il ne peut pas être renommé à sa place</translation>
    </message>
    <message>
        <source>Cannot copy %1 to %2</source>
        <translation>Impossible de copier %1 vers %2</translation>
    </message>
</context>
<context>
    <name>CReviewWindows</name>
    <message>
        <source>Show maps</source>
        <translation>Afficher les cartes</translation>
    </message>
</context>
<context>
    <name>CStandardGame</name>
    <message>
        <source>The module file %1 has no usable module.def: %2</source>
        <translation>Le fichier de module %1 n&apos;a pas de module.def utilisable : %2</translation>
    </message>
    <message>
        <source>nothing was given</source>
        <translation>rien n&apos;a été fourni</translation>
    </message>
    <message>
        <source>The context %1 was activated before it was initialised</source>
        <translation>Le module %1 a été activé avant d&apos;être initialisé</translation>
    </message>
    <message>
        <source>Loading the &apos;%1&apos; Module...</source>
        <translation>Chargement du module « %1 »...</translation>
    </message>
    <message>
        <source>The module %1 cannot be loaded: %2</source>
        <translation>Le module %1 ne peut pas être chargé : %2</translation>
    </message>
    <message>
        <source>The module %1 has more tokens than a game can keep</source>
        <translation>Le module %1 a plus de pions qu&apos;une partie ne peut en garder</translation>
    </message>
    <message>
        <source>Loading the Map...</source>
        <translation>Chargement de la carte...</translation>
    </message>
    <message>
        <source>The board picture %1 of the module %2 cannot be read: %3</source>
        <translation>L&apos;image du plateau %1 du module %2 ne peut pas être lue : %3</translation>
    </message>
    <message>
        <source>Loading Token %1 of %2...</source>
        <translation>Chargement du pion %1 sur %2...</translation>
    </message>
    <message>
        <source>The module %1 must be active to create a game</source>
        <translation>Le module %1 doit être actif pour créer une partie</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>The initial game %1 of the module %2 cannot be read: %3</source>
        <translation>La partie initiale %1 du module %2 ne peut pas être lue : %3</translation>
    </message>
    <message>
        <source>The initial game %1 of the module %2 holds no map</source>
        <translation>La partie initiale %1 du module %2 ne contient aucune carte</translation>
    </message>
</context>
<context>
    <name>CTokenBase</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>&amp;Add 1</source>
        <translation>&amp;Ajouter 1</translation>
    </message>
    <message>
        <source>&amp;Subtract 1</source>
        <translation>&amp;Retirer 1</translation>
    </message>
    <message>
        <source>Split Off &amp;1</source>
        <translation>Détacher &amp;1</translation>
    </message>
    <message>
        <source>Split Off &amp;2 </source>
        <translation>Détacher &amp;2 </translation>
    </message>
    <message>
        <source>Split Off &amp;5</source>
        <translation>Détacher &amp;5</translation>
    </message>
    <message>
        <source>Split Off 1&amp;0</source>
        <translation>Détacher 1&amp;0</translation>
    </message>
    <message>
        <source>&amp;Custom Split</source>
        <translation>&amp;Partage personnalisé</translation>
    </message>
    <message>
        <source>Toggle &amp;Moved</source>
        <translation>Basculer « &amp;déplacé »</translation>
    </message>
</context>
<context>
    <name>CToolsMenu</name>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Install Module...</source>
        <translation>&amp;Installer un module...</translation>
    </message>
</context>
<context>
    <name>CUserDefinedGame</name>
    <message>
        <source>Custom Korvane Map Files</source>
        <translation>Fichiers de cartes Korvane personnalisés</translation>
    </message>
</context>
<context>
    <name>CViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Map Text</source>
        <translation>&amp;Texte de la carte</translation>
    </message>
    <message>
        <source>&amp;Full Screen...</source>
        <translation>&amp;Plein écran...</translation>
    </message>
    <message>
        <source>Archi&amp;ve</source>
        <translation>&amp;Archive</translation>
    </message>
    <message>
        <source>&amp;Current</source>
        <translation>Archive &amp;actuelle</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom arr&amp;ière</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>Taille &amp;réelle</translation>
    </message>
    <message>
        <source>Fit to &amp;Window</source>
        <translation>Ajuster à la &amp;fenêtre</translation>
    </message>
    <message>
        <source>&amp;Previous Map</source>
        <translation>Carte pré&amp;cédente</translation>
    </message>
    <message>
        <source>&amp;Next Map</source>
        <translation>Carte &amp;suivante</translation>
    </message>
    <message>
        <source>F&amp;irst Map</source>
        <translation>Pre&amp;mière carte</translation>
    </message>
    <message>
        <source>&amp;Last Map</source>
        <translation>&amp;Dernière carte</translation>
    </message>
    <message>
        <source>&amp;%1.  &apos;%2&apos;  to  &apos;%3&apos;</source>
        <translation>&amp;%1.  « %2 »  à  « %3 »</translation>
    </message>
    <message>
        <source>&amp;%1.  &apos;%2&apos;</source>
        <translation>&amp;%1.  « %2 »</translation>
    </message>
    <message>
        <source>Show &amp;Changes</source>
        <translation>Affic&amp;her les modifications</translation>
    </message>
    <message>
        <source>Compare &amp;With...</source>
        <translation>Compar&amp;er avec...</translation>
    </message>
    <message>
        <source>&amp;Replay Changes</source>
        <translation>Rejo&amp;uer les modifications</translation>
    </message>
</context>
<context>
    <name>IAction</name>
    <message>
        <source>The arrow &quot;%1&quot; is not part of the active game module</source>
        <translation>La flèche « %1 » ne fait pas partie du module actif</translation>
    </message>
    <message>
        <source>The arrow %1 is not on map %2</source>
        <translation>La flèche %1 n&apos;est pas sur la carte %2</translation>
    </message>
    <message>
        <source>Place New Arrow</source>
        <translation>Placer une nouvelle flèche</translation>
    </message>
    <message>
        <source>The counter &quot;%1&quot; is not part of the active game module</source>
        <translation>Le pion « %1 » ne fait pas partie du module actif</translation>
    </message>
    <message>
        <source>The unit %1 is not on map %2</source>
        <translation>Le pion %1 n&apos;est pas sur la carte %2</translation>
    </message>
    <message>
        <source>Place New Unit</source>
        <translation>Placer un nouveau pion</translation>
    </message>
    <message>
        <source>Clear All Arrows</source>
        <translation>Effacer toutes les flèches</translation>
    </message>
    <message>
        <source>No arrow to delete</source>
        <translation>Aucune flèche à supprimer</translation>
    </message>
    <message>
        <source>Delete Arrow</source>
        <translation>Supprimer la flèche</translation>
    </message>
    <message>
        <source>No unit to delete</source>
        <translation>Aucun pion à supprimer</translation>
    </message>
    <message>
        <source>No unit to restore</source>
        <translation>Aucun pion à restaurer</translation>
    </message>
    <message>
        <source>Delete Unit</source>
        <translation>Supprimer le pion</translation>
    </message>
    <message>
        <source>Edit Game Properties</source>
        <translation>Modifier les propriétés de la partie</translation>
    </message>
    <message>
        <source>Edit Map Properties</source>
        <translation>Modifier les propriétés de la carte</translation>
    </message>
    <message>
        <source>Edit Map Text</source>
        <translation>Modifier le texte de la carte</translation>
    </message>
    <message>
        <source>Edit Unit</source>
        <translation>Modifier le pion</translation>
    </message>
    <message>
        <source>There is no open game to change</source>
        <translation>Aucune partie ouverte à modifier</translation>
    </message>
    <message>
        <source>The map %1 is not part of the open game</source>
        <translation>La carte %1 ne fait pas partie de la partie ouverte</translation>
    </message>
    <message>
        <source>The units of map %1 are not loaded</source>
        <translation>Les pions de la carte %1 ne sont pas chargés</translation>
    </message>
    <message>
        <source>The arrows of map %1 are not loaded</source>
        <translation>Les flèches de la carte %1 ne sont pas chargées</translation>
    </message>
    <message>
        <source>Move Arrow</source>
        <translation>Déplacer la flèche</translation>
    </message>
    <message>
        <source>Move Unit</source>
        <translation>Déplacer le pion</translation>
    </message>
    <message>
        <source>The game has no archive to add a map to</source>
        <translation>La partie n&apos;a pas d&apos;archive à laquelle ajouter une carte</translation>
    </message>
    <message>
        <source>New Map</source>
        <translation>Nouvelle carte</translation>
    </message>
    <message>
        <source>Reset Moved</source>
        <translation>Réinitialiser les marques « déplacé »</translation>
    </message>
    <message>
        <source>Clear All Arro&amp;ws</source>
        <translation>Effacer toutes les &amp;flèches</translation>
    </message>
    <message>
        <source>Reset &amp;Moved</source>
        <translation>Réinitialiser les marques « &amp;déplacé »</translation>
    </message>
    <message>
        <source>Split Off %1</source>
        <translation>Détacher %1</translation>
    </message>
    <message>
        <source>Merge Units</source>
        <translation>Fusionner les pions</translation>
    </message>
    <message>
        <source>Tear Off %1</source>
        <translation>Arracher %1</translation>
    </message>
    <message>
        <source>The map &apos;%1&apos; cannot be removed</source>
        <translation>La carte « %1 » ne peut pas être supprimée</translation>
    </message>
    <message>
        <source>Remove Map</source>
        <translation>Supprimer la carte</translation>
    </message>
</context>
<context>
    <name>MMain</name>
    <message>
        <source>The module &apos;%1&apos; cannot be loaded.

%2</source>
        <translation>Le module « %1 » ne peut pas être chargé.

%2</translation>
    </message>
</context>
<context>
    <name>UDialogButtons</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>UTokenPalette</name>
    <message>
        <source>Counters</source>
        <translation>Pions</translation>
    </message>
</context>
<context>
    <name>frmChanges</name>
    <message>
        <source>Changes</source>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>Turn on View &gt; Show Changes to list what changed since the map before.</source>
        <translation>Activez Affichage &gt; Afficher les modifications pour lister ce qui a changé depuis la carte précédente.</translation>
    </message>
    <message>
        <source>This is the game&apos;s first map: there is no map before it.</source>
        <translation>C&apos;est la première carte de la partie : aucune carte ne la précède.</translation>
    </message>
</context>
<context>
    <name>frmCompareWith</name>
    <message>
        <source>Compare With</source>
        <translation>Comparer avec</translation>
    </message>
    <message>
        <source>Show the changes since this map:</source>
        <translation>Afficher les modifications depuis cette carte :</translation>
    </message>
    <message>
        <source>Archive %1</source>
        <translation>Archive %1</translation>
    </message>
</context>
<context>
    <name>frmEditNumUnit</name>
    <message>
        <source>Edit Value</source>
        <translation>Modifier la valeur</translation>
    </message>
    <message>
        <source>&amp;New value:</source>
        <translation>&amp;Nouvelle valeur :</translation>
    </message>
</context>
<context>
    <name>frmEditTextUnit</name>
    <message>
        <source>Text cannot be blank.</source>
        <translation>Le texte ne peut pas être vide.</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <translation>Modifier le texte</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texte :</translation>
    </message>
    <message>
        <source>&amp;Details:</source>
        <translation>&amp;Détails :</translation>
    </message>
</context>
<context>
    <name>frmFileComparison</name>
    <message>
        <source>Compare With File</source>
        <translation>Comparer avec un fichier</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <source>The open game compared with %1, map by map (archive and position).</source>
        <translation>La partie ouverte comparée à %1, carte par carte (archive et position).</translation>
    </message>
    <message>
        <source>same</source>
        <translation>identique</translation>
    </message>
    <message>
        <source>changed: %1</source>
        <translation>modifiée : %1</translation>
    </message>
    <message>
        <source>only in the open game</source>
        <translation>seulement dans la partie ouverte</translation>
    </message>
    <message>
        <source>only in %1</source>
        <translation>seulement dans %1</translation>
    </message>
    <message>
        <source>Archive %1, map %2: %3</source>
        <translation>Archive %1, carte %2 : %3</translation>
    </message>
</context>
<context>
    <name>frmGameProps</name>
    <message>
        <source>Game Properties</source>
        <translation>Propriétés de la partie</translation>
    </message>
</context>
<context>
    <name>frmMapProps</name>
    <message>
        <source>Map Properties</source>
        <translation>Propriétés de la carte</translation>
    </message>
    <message>
        <source>&amp;Protected (no changes to this map)</source>
        <translation>&amp;Protégée (aucune modification de cette carte)</translation>
    </message>
</context>
<context>
    <name>frmMapText</name>
    <message>
        <source>Map Text</source>
        <translation>Texte de la carte</translation>
    </message>
</context>
<context>
    <name>frmNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>&amp;Remarks:</source>
        <translation>&amp;Remarques :</translation>
    </message>
</context>
<context>
    <name>frmNewGame</name>
    <message>
        <source>New Game</source>
        <translation>Nouvelle partie</translation>
    </message>
    <message>
        <source>&amp;Game:</source>
        <translation>&amp;Jeu :</translation>
    </message>
</context>
<context>
    <name>frmNewMap</name>
    <message>
        <source>Add Map</source>
        <translation>Ajouter une carte</translation>
    </message>
</context>
<context>
    <name>frmProgress</name>
    <message>
        <source>Please Wait...</source>
        <translation>Veuillez patienter...</translation>
    </message>
</context>
<context>
    <name>frmSplash</name>
    <message>
        <source>Korvane is free software: you can redistribute it and/or modify it under the terms of the GNU General Public License as published by the Free Software Foundation, either version 3 of the License, or (at your option) any later version.

Korvane is distributed in the hope that it will be useful, but WITHOUT ANY WARRANTY; without even the implied warranty of MERCHANTABILITY or FITNESS FOR A PARTICULAR PURPOSE. See the GNU General Public License for more details.

Qt is used under the GNU Lesser General Public License version 3, zlib under the zlib licence and libxml2 under the MIT licence.</source>
        <translation>Korvane est un logiciel libre : vous pouvez le redistribuer et/ou le modifier selon les termes de la GNU General Public License telle que publiée par la Free Software Foundation, soit la version 3 de la licence, soit (à votre choix) toute version ultérieure.

Korvane est distribué dans l&apos;espoir qu&apos;il sera utile, mais SANS AUCUNE GARANTIE ; sans même la garantie implicite de QUALITÉ MARCHANDE ou d&apos;ADÉQUATION À UN USAGE PARTICULIER. Consultez la GNU General Public License pour plus de détails.

Qt est utilisé sous la GNU Lesser General Public License version 3, zlib sous la licence zlib et libxml2 sous la licence MIT.</translation>
    </message>
    <message>
        <source>About Korvane</source>
        <translation>À propos de Korvane</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Maps and counters for board games played by mail</source>
        <translation>Cartes et pions pour jeux de plateau par correspondance</translation>
    </message>
    <message>
        <source>Built with %1.</source>
        <translation>Construit avec %1.</translation>
    </message>
</context>
<context>
    <name>frmSplitUnit</name>
    <message>
        <source>Split Stack</source>
        <translation>Diviser la pile</translation>
    </message>
    <message>
        <source>Stack count:</source>
        <translation>Taille de la pile :</translation>
    </message>
    <message>
        <source>&amp;Split off:</source>
        <translation>&amp;Détacher :</translation>
    </message>
</context>
<context>
    <name>mdcBoard</name>
    <message>
        <source>No game is open.

Start one with File &gt; New Game (%1)
or continue one with File &gt; Open Game (%2).</source>
        <translation>Aucune partie n&apos;est ouverte.

Commencez-en une avec Fichier &gt; Nouvelle partie (%1)
ou reprenez-en une avec Fichier &gt; Ouvrir une partie (%2).</translation>
    </message>
</context>
<context>
    <name>mdiMain</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
</context>
</TS>
