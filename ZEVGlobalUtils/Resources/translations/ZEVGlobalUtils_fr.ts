<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ZEVGlobalUtils</name>
    <message>
        <source>Wildcard</source>
        <translation>Joker</translation>
    </message>
    <message>
        <source>Any Characters</source>
        <translation>N’importe quels caractères</translation>
    </message>
    <message>
        <source>Any Character</source>
        <translation>N’importe quel caractère</translation>
    </message>
    <message>
        <source>Any Word</source>
        <translation>N’importe quel mot</translation>
    </message>
    <message>
        <source>White Space</source>
        <translation>Espace blanc</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>Chiffres</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulation</translation>
    </message>
    <message>
        <source>Email Address</source>
        <translation>Adresse électronique</translation>
    </message>
    <message>
        <source>Web Address</source>
        <translation>Adresse web</translation>
    </message>
    <message>
        <source>Line Break</source>
        <translation>Saut de ligne</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Char</source>
        <translation>Caractère</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Mot</translation>
    </message>
    <message>
        <source>Wildcards</source>
        <translation>Jokers</translation>
    </message>
    <message>
        <source>Contains</source>
        <translation>Contient</translation>
    </message>
    <message>
        <source>Begins With</source>
        <translation>Commence par</translation>
    </message>
    <message>
        <source>Matches Word</source>
        <translation>Mot entier</translation>
    </message>
    <message>
        <source>Ends With</source>
        <translation>Se termine par</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Expression rationnelle</translation>
    </message>
    <message>
        <source>Matches Contents</source>
        <translation>Contenu entier</translation>
    </message>
    <message>
        <source>Case Sensitive</source>
        <translation>Respecter la casse</translation>
    </message>
    <message>
        <source>The operation couldn’t be completed. (%1 error %2.)</source>
        <translation>L’opération n’a pas pu être effectuée. (%1, erreur %2)</translation>
    </message>
    <message>
        <source>The expression “%1” is not valid: %2.</source>
        <translation>L’expression «&#xa0;%1&#xa0;» n’est pas valable&#xa0;: %2.</translation>
    </message>
    <message>
        <source>(Character %1)</source>
        <translation>(caractère %1)</translation>
    </message>
    <message>
        <source>a backslash stands before a character that it does not go with</source>
        <translation>une barre oblique inverse précède un caractère qui ne l’admet pas</translation>
    </message>
    <message>
        <source>a parenthesis has no partner</source>
        <translation>une parenthèse n’a pas de correspondante</translation>
    </message>
    <message>
        <source>a bracket is not closed</source>
        <translation>un crochet n’est pas fermé</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>elle est trop grande</translation>
    </message>
    <message>
        <source>a repetition in braces is not well formed</source>
        <translation>une répétition entre accolades est mal formée</translation>
    </message>
    <message>
        <source>it refers to a group that it does not have</source>
        <translation>elle renvoie à un groupe qui n’existe pas</translation>
    </message>
    <message>
        <source>a look-behind has no limit to its length</source>
        <translation>la longueur d’une assertion arrière n’est pas limitée</translation>
    </message>
    <message>
        <source>a range of characters runs backwards</source>
        <translation>un intervalle de caractères est inversé</translation>
    </message>
    <message>
        <source>it is not well formed</source>
        <translation>elle est mal formée</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>Zéro ko</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1&#xa0;octet</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1&#xa0;octets</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;Go</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;To</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;Po</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1&#xa0;Eo</translation>
    </message>
    <message>
        <source>Unknown Type (0x%x)</source>
        <translation>Type inconnu (0x%x)</translation>
    </message>
    <message>
        <source>The image “%1” could not be written: %2.</source>
        <translation>L’image «&#xa0;%1&#xa0;» n’a pas pu être écrite&#xa0;: %2.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>%lu matches</source>
        <translation>%lu&#xa0;correspondances</translation>
    </message>
    <message>
        <source>%d Results Found</source>
        <translation>%d&#xa0;résultats trouvés</translation>
    </message>
    <message>
        <source>“%1” is not a whole number.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre entier.</translation>
    </message>
    <message>
        <source>The number is too small.</source>
        <translation>Le nombre est trop petit.</translation>
    </message>
    <message>
        <source>The number is too large.</source>
        <translation>Le nombre est trop grand.</translation>
    </message>
    <message>
        <source>Insert Pattern</source>
        <translation>Insérer un motif</translation>
    </message>
    <message>
        <source>Saved Patterns</source>
        <translation>Motifs enregistrés</translation>
    </message>
    <message>
        <source>Remove From Saved</source>
        <translation>Retirer des motifs enregistrés</translation>
    </message>
    <message>
        <source>Save Current</source>
        <translation>Enregistrer le motif actuel</translation>
    </message>
    <message>
        <source>Show Menu</source>
        <translation>Afficher le menu</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>No Results</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Find Menu</source>
        <translation>Menu de recherche</translation>
    </message>
    <message>
        <source>Saved queries</source>
        <translation>Recherches enregistrées</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Replace &amp;with:</source>
        <translation>Remplacer &amp;par&#xa0;:</translation>
    </message>
    <message>
        <source>Replace Menu</source>
        <translation>Menu de remplacement</translation>
    </message>
    <message>
        <source>Saved patterns</source>
        <translation>Motifs enregistrés</translation>
    </message>
    <message>
        <source>Replace With</source>
        <translation>Remplacer par</translation>
    </message>
    <message>
        <source>Matching Type</source>
        <translation>Type de correspondance</translation>
    </message>
    <message>
        <source>&amp;Case Sensitive</source>
        <translation>Respecter la &amp;casse</translation>
    </message>
    <message>
        <source>Replace A&amp;ll</source>
        <translation>&amp;Tout remplacer</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>Re&amp;mplacer</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>Précé&amp;dent</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>Rec&amp;hercher</translation>
    </message>
    <message>
        <source>Saved patterns and options</source>
        <translation>Motifs enregistrés et options</translation>
    </message>
    <message>
        <source>Previous Match</source>
        <translation>Correspondance précédente</translation>
    </message>
    <message>
        <source>Next Match</source>
        <translation>Correspondance suivante</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>T&amp;erminé</translation>
    </message>
    <message>
        <source>Replace and Fi&amp;nd</source>
        <translation>Remplacer et rec&amp;hercher</translation>
    </message>
    <message>
        <source>Find &amp; Replace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>Wrap Around</source>
        <translation>Reprendre au début</translation>
    </message>
    <message>
        <source>Saved Queries</source>
        <translation>Recherches enregistrées</translation>
    </message>
    <message>
        <source>Save Query</source>
        <translation>Enregistrer la recherche</translation>
    </message>
    <message>
        <source>The search was too complex: matches are missing.</source>
        <translation>La recherche était trop complexe&#xa0;: il manque des correspondances.</translation>
    </message>
    <message>
        <source>Searching… Press Escape to stop.</source>
        <translation>Recherche en cours… Échap pour l’arrêter.</translation>
    </message>
    <message>
        <source>The search was stopped: matches may be missing.</source>
        <translation>La recherche a été arrêtée&#xa0;: il manque peut-être des correspondances.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Tout remplacer</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>Rec&amp;hercher…</translation>
    </message>
    <message>
        <source>Find and &amp;Replace…</source>
        <translation>Rechercher et re&amp;mplacer…</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Rechercher le &amp;suivant</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Rechercher le &amp;précédent</translation>
    </message>
    <message>
        <source>Use &amp;Selection for Find</source>
        <translation>&amp;Utiliser la sélection pour la recherche</translation>
    </message>
    <message>
        <source>the folder “%1” does not exist</source>
        <translation>le dossier «&#xa0;%1&#xa0;» n’existe pas</translation>
    </message>
    <message>
        <source>“%1” is not a folder</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un dossier</translation>
    </message>
    <message>
        <source>you do not have permission to change the folder “%1”</source>
        <translation>vous n’avez pas l’autorisation de modifier le dossier «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>you do not have permission to read “%1”</source>
        <translation>vous n’avez pas l’autorisation de lire «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>“%1” may not be removed from where it is</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être retiré de son emplacement</translation>
    </message>
    <message>
        <source>a folder cannot be put into itself</source>
        <translation>un dossier ne peut pas être placé dans lui-même</translation>
    </message>
    <message>
        <source>it lies in the folder “%1”, whose place it would take</source>
        <translation>il se trouve dans le dossier «&#xa0;%1&#xa0;», dont il prendrait la place</translation>
    </message>
    <message>
        <source>the volume does not allow the name “%1”</source>
        <translation>le volume n’accepte pas le nom «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>the volume takes “%1” for the name of another item in the same folder</source>
        <translation>le volume confond «&#xa0;%1&#xa0;» avec le nom d’un autre élément du même dossier</translation>
    </message>
    <message>
        <source>“%1” has more attributes than the volume can keep</source>
        <translation>«&#xa0;%1&#xa0;» a plus d’attributs que le volume ne peut en conserver</translation>
    </message>
    <message>
        <source>“%1” is a socket or a device</source>
        <translation>«&#xa0;%1&#xa0;» est un socket ou un périphérique</translation>
    </message>
    <message>
        <source>“%1” is a link or a pipe, which the volume does not have</source>
        <translation>«&#xa0;%1&#xa0;» est un lien ou un tube, que le volume ne connaît pas</translation>
    </message>
    <message>
        <source>others could read “%1” on the volume, which keeps no permissions</source>
        <translation>d’autres pourraient lire «&#xa0;%1&#xa0;» sur le volume, qui ne conserve pas les autorisations</translation>
    </message>
    <message>
        <source>“%1” has changed meanwhile, and was kept</source>
        <translation>«&#xa0;%1&#xa0;» a changé entre-temps et a été conservé</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>«&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>the item does not exist</source>
        <translation>l’élément n’existe pas</translation>
    </message>
    <message>
        <source>you do not have permission</source>
        <translation>vous n’avez pas l’autorisation nécessaire</translation>
    </message>
    <message>
        <source>an item with this name already exists</source>
        <translation>un élément de ce nom existe déjà</translation>
    </message>
    <message>
        <source>there is not enough room</source>
        <translation>il n’y a pas assez de place</translation>
    </message>
    <message>
        <source>the volume can only be read</source>
        <translation>le volume est en lecture seule</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>l’opération a été annulée</translation>
    </message>
    <message>
        <source>“%1” could not be moved: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être déplacé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” could not be copied: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être copié&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” could not be changed: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas pu être modifié&#xa0;: %2.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Appliquer à tous</translation>
    </message>
    <message>
        <source>Allow Access</source>
        <translation>Autoriser l’accès</translation>
    </message>
    <message>
        <source>-SandboxExceptionKey-</source>
        <translation>Pour travailler avec les fichiers de ce dossier, il faut pouvoir y accéder. Choisissez le dossier pour l’autoriser.</translation>
    </message>
    <message>
        <source>-SandboxSuggestion-</source>
        <translation>Si vous choisissez plutôt votre dossier personnel, la question ne vous sera plus posée pour les dossiers qu’il contient.</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Conserver les deux</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>An item named “%@” already exists in this location.</source>
        <translation>Un élément nommé «&#xa0;%@&#xa0;» existe déjà à cet emplacement.</translation>
    </message>
    <message>
        <source>Do you want to replace it with the one you’re moving?</source>
        <translation>Voulez-vous le remplacer par celui que vous déplacez&#xa0;?</translation>
    </message>
    <message>
        <source>Existing item:</source>
        <translation>Élément existant&#xa0;:</translation>
    </message>
    <message>
        <source>New item:</source>
        <translation>Nouvel élément&#xa0;:</translation>
    </message>
    <message>
        <source>Drop Image Here</source>
        <translation>Déposer une image ici</translation>
    </message>
    <message>
        <source>Artwork</source>
        <translation>Pochette</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Reading the image</source>
        <translation>Lecture de l’image</translation>
    </message>
    <message>
        <source>Show more</source>
        <translation>Afficher plus</translation>
    </message>
    <message>
        <source>Last Used</source>
        <translation>Dernier utilisé</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Clear Recents</source>
        <translation>Effacer la liste</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Choose an Application</source>
        <translation>Choisir une application</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Autre…</translation>
    </message>
    <message>
        <source>animated</source>
        <translation>animée</translation>
    </message>
    <message>
        <source>no known image format</source>
        <translation>format d’image inconnu</translation>
    </message>
    <message>
        <source>no decoder for %1</source>
        <translation>pas de décodeur pour %1</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>endommagée</translation>
    </message>
    <message>
        <source>too large to be shown</source>
        <translation>trop grande pour être affichée</translation>
    </message>
</context>
</TS>
