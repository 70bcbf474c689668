<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About zkauthor</source>
        <translation>À propos de zkauthor</translation>
    </message>
    <message>
        <source>zkauthor %1</source>
        <translation>zkauthor %1</translation>
    </message>
    <message>
        <source>Shows and edits interactive teaching models: scenes with parts, their connections and properties.</source>
        <translation>Montre et modifie des modèles pédagogiques interactifs : des scènes avec des pièces, leurs liaisons et leurs propriétés.</translation>
    </message>
    <message>
        <source>Folder of your own parts</source>
        <translation>Dossier de vos propres pièces</translation>
    </message>
    <message>
        <source>How things are done</source>
        <translation>Comment faire</translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>Start an empty document</source>
        <translation>Commencer un document vide</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Open a document</source>
        <translation>Ouvrir un document</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save the document</source>
        <translation>Enregistrer le document</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>Save the document under another name</source>
        <translation>Enregistrer le document sous un autre nom</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Re&amp;venir</translation>
    </message>
    <message>
        <source>Go back to what was last saved</source>
        <translation>Revenir à ce qui a été enregistré en dernier</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Close the document</source>
        <translation>Fermer le document</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Fermer le programme</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Take back the last change</source>
        <translation>Reprendre la dernière modification</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Do again what was taken back</source>
        <translation>Refaire ce qui a été annulé</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>Move the selected parts to the clipboard</source>
        <translation>Déplacer les pièces sélectionnées vers le presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy the selected parts to the clipboard</source>
        <translation>Copier les pièces sélectionnées dans le presse-papiers</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Add the parts on the clipboard</source>
        <translation>Ajouter les pièces du presse-papiers</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>Dup&amp;liquer</translation>
    </message>
    <message>
        <source>Add copies of the selected parts</source>
        <translation>Ajouter des copies des pièces sélectionnées</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Delete the selected parts</source>
        <translation>Supprimer les pièces sélectionnées</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select every part of the scene</source>
        <translation>Sélectionner toutes les pièces de la scène</translation>
    </message>
    <message>
        <source>Select Ne&amp;xt</source>
        <translation>Sélectionner la suiva&amp;nte</translation>
    </message>
    <message>
        <source>Select the next part</source>
        <translation>Sélectionner la pièce suivante</translation>
    </message>
    <message>
        <source>Select Pre&amp;vious</source>
        <translation>Sélectionner la précé&amp;dente</translation>
    </message>
    <message>
        <source>Select the part before</source>
        <translation>Sélectionner la pièce précédente</translation>
    </message>
    <message>
        <source>Rotate Le&amp;ft</source>
        <translation>Tourner à &amp;gauche</translation>
    </message>
    <message>
        <source>Turn the selected parts a quarter to the left</source>
        <translation>Tourner les pièces sélectionnées d&apos;un quart de tour à gauche</translation>
    </message>
    <message>
        <source>R&amp;otate Right</source>
        <translation>Tourner à dro&amp;ite</translation>
    </message>
    <message>
        <source>Turn the selected parts a quarter to the right</source>
        <translation>Tourner les pièces sélectionnées d&apos;un quart de tour à droite</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Agrandir</translation>
    </message>
    <message>
        <source>Show things larger</source>
        <translation>Tout montrer en plus grand</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>Show things smaller</source>
        <translation>Tout montrer en plus petit</translation>
    </message>
    <message>
        <source>&amp;Real Size</source>
        <translation>&amp;Taille réelle</translation>
    </message>
    <message>
        <source>Show things in their real size</source>
        <translation>Tout montrer en taille réelle</translation>
    </message>
    <message>
        <source>&amp;Fit</source>
        <translation>A&amp;juster</translation>
    </message>
    <message>
        <source>Show the whole scene</source>
        <translation>Montrer toute la scène</translation>
    </message>
    <message>
        <source>Open Pop-&amp;up</source>
        <translation>Ouvrir la &amp;bulle</translation>
    </message>
    <message>
        <source>Show the pop-up of the selected part</source>
        <translation>Montrer la bulle de la pièce sélectionnée</translation>
    </message>
    <message>
        <source>New &amp;Scene</source>
        <translation>Nouvelle &amp;scène</translation>
    </message>
    <message>
        <source>Add an empty scene</source>
        <translation>Ajouter une scène vide</translation>
    </message>
    <message>
        <source>Delete S&amp;cene</source>
        <translation>Su&amp;pprimer la scène</translation>
    </message>
    <message>
        <source>Delete the scene on view</source>
        <translation>Supprimer la scène affichée</translation>
    </message>
    <message>
        <source>Pa&amp;ge Setup...</source>
        <translation>&amp;Mise en page...</translation>
    </message>
    <message>
        <source>Paper, margins and scale</source>
        <translation>Papier, marges et échelle</translation>
    </message>
    <message>
        <source>Print Previe&amp;w...</source>
        <translation>Ape&amp;rçu avant impression...</translation>
    </message>
    <message>
        <source>Show the pages as they are printed</source>
        <translation>Montrer les pages telles qu&apos;elles seront imprimées</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>Print the document</source>
        <translation>Imprimer le document</translation>
    </message>
    <message>
        <source>Export to P&amp;DF...</source>
        <translation>Exporter en P&amp;DF...</translation>
    </message>
    <message>
        <source>Write the pages into a PDF file</source>
        <translation>Écrire les pages dans un fichier PDF</translation>
    </message>
    <message>
        <source>E&amp;xport to SVG...</source>
        <translation>Exporter en SV&amp;G...</translation>
    </message>
    <message>
        <source>Write the scene on view as a drawing</source>
        <translation>Écrire la scène affichée sous forme de dessin</translation>
    </message>
    <message>
        <source>&amp;Save as Custom Part...</source>
        <translation>Enregistrer comme pièce &amp;personnelle...</translation>
    </message>
    <message>
        <source>Offer the selected part among the parts from now on</source>
        <translation>Proposer désormais la pièce sélectionnée parmi les pièces</translation>
    </message>
    <message>
        <source>Pr&amp;eferences...</source>
        <translation>Pré&amp;férences...</translation>
    </message>
    <message>
        <source>How the program works for you</source>
        <translation>Comment le programme travaille pour vous</translation>
    </message>
    <message>
        <source>&amp;Licence...</source>
        <translation>&amp;Licence...</translation>
    </message>
    <message>
        <source>Show or enter the licence</source>
        <translation>Montrer ou saisir la licence</translation>
    </message>
    <message>
        <source>&amp;About zkauthor</source>
        <translation>&amp;À propos de zkauthor</translation>
    </message>
    <message>
        <source>What this program is</source>
        <translation>Ce qu&apos;est ce programme</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Documents récen&amp;ts</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insertion</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>E&amp;xécution</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Badge</source>
        <translation>Badge</translation>
    </message>
    <message>
        <source>C&amp;lose Pop-up</source>
        <translation>Fer&amp;mer la bulle</translation>
    </message>
    <message>
        <source>Close the pop-up on view</source>
        <translation>Fermer la bulle affichée</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>Read how things are done</source>
        <translation>Lire comment faire</translation>
    </message>
</context>
<context>
    <name>AddCustomPartDialog</name>
    <message>
        <source>Add custom part</source>
        <translation>Ajouter une pièce personnelle</translation>
    </message>
    <message>
        <source>Part &amp;name:</source>
        <translation>&amp;Nom de la pièce :</translation>
    </message>
    <message>
        <source>The part name must be unique and can contain no spaces.</source>
        <translation>Le nom de la pièce doit être unique et ne peut contenir aucun espace.</translation>
    </message>
    <message>
        <source>Part &amp;label:</source>
        <translation>&amp;Étiquette de la pièce :</translation>
    </message>
    <message>
        <source>The part label appears in the part tree.</source>
        <translation>L&apos;étiquette de la pièce apparaît dans l&apos;arbre des pièces.</translation>
    </message>
    <message>
        <source>Part &amp;group:</source>
        <translation>&amp;Groupe de la pièce :</translation>
    </message>
    <message>
        <source>The part group defines part tree folder the part appears in.</source>
        <translation>Le groupe de la pièce définit le dossier de l&apos;arbre dans lequel elle apparaît.</translation>
    </message>
    <message>
        <source>Part &amp;level:</source>
        <translation>Ni&amp;veau de la pièce :</translation>
    </message>
    <message>
        <source>This define&apos;s the part&apos;s educational level, e.g. keystate.</source>
        <translation>Définit le niveau scolaire de la pièce, par exemple la classe.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Annule&amp;r</translation>
    </message>
    <message>
        <source>The part id %1 is already in use.
Please enter another id</source>
        <translation>L&apos;identifiant %1 est déjà utilisé.
Veuillez en saisir un autre</translation>
    </message>
</context>
<context>
    <name>AddNodesCommand</name>
    <message numerus="yes">
        <source>Adding of %n object(s)</source>
        <translation>
            <numerusform>Ajout de %n objet</numerusform>
            <numerusform>Ajout de %n objets</numerusform>
        </translation>
    </message>
    <message>
        <source>The place to add to is not there any more.</source>
        <translation>L&apos;endroit où ajouter n&apos;existe plus.</translation>
    </message>
    <message>
        <source>An object of the class &quot;%1&quot; cannot stand there.</source>
        <translation>Un objet de la classe « %1 » ne peut pas se trouver là.</translation>
    </message>
    <message>
        <source>An instance id is in use already.</source>
        <translation>Un numéro d&apos;instance est déjà utilisé.</translation>
    </message>
    <message>
        <source>Adding of a part</source>
        <translation>Ajout d&apos;une pièce</translation>
    </message>
    <message>
        <source>There is no such kind of part.</source>
        <translation>Cette sorte de pièce n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Adding of a subpart</source>
        <translation>Ajout d&apos;une sous-pièce</translation>
    </message>
    <message>
        <source>The part is not there any more.</source>
        <translation>La pièce n&apos;existe plus.</translation>
    </message>
    <message>
        <source>The part cannot have a subpart of the class &quot;%1&quot;.</source>
        <translation>La pièce ne peut pas avoir de sous-pièce de la classe « %1 ».</translation>
    </message>
    <message>
        <source>The part has all the subparts of that role that it can have.</source>
        <translation>La pièce a déjà toutes les sous-pièces de ce rôle qu&apos;elle peut avoir.</translation>
    </message>
    <message>
        <source>Adding of a scene</source>
        <translation>Ajout d&apos;une scène</translation>
    </message>
    <message>
        <source>The document has no more instance ids for new objects.</source>
        <translation>Le document n&apos;a plus d&apos;identifiants d&apos;instance pour de nouveaux objets.</translation>
    </message>
</context>
<context>
    <name>AddResourceCommand</name>
    <message>
        <source>Import of %1</source>
        <translation>Importation de %1</translation>
    </message>
    <message>
        <source>There is nothing to import.</source>
        <translation>Il n&apos;y a rien à importer.</translation>
    </message>
</context>
<context>
    <name>AdvancedPalette</name>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>Click Action</source>
        <translation>Action du clic</translation>
    </message>
    <message>
        <source>Duplication</source>
        <translation>Duplication</translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation>Bulle</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Rien</translation>
    </message>
    <message>
        <source>Show the pop-up</source>
        <translation>Montrer la bulle</translation>
    </message>
    <message>
        <source>Open a link</source>
        <translation>Ouvrir un lien</translation>
    </message>
    <message>
        <source>Show a scene</source>
        <translation>Montrer une scène</translation>
    </message>
    <message>
        <source>&amp;Link</source>
        <translation>&amp;Lien</translation>
    </message>
    <message>
        <source>&amp;Scene</source>
        <translation>&amp;Scène</translation>
    </message>
    <message>
        <source>Clic&amp;k</source>
        <translation>Cli&amp;c</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Copies</source>
        <translation>Copi&amp;es</translation>
    </message>
    <message>
        <source>Offset ri&amp;ght</source>
        <translation>Décalage à droi&amp;te</translation>
    </message>
    <message>
        <source>Offset &amp;down</source>
        <translation>Décalage &amp;vers le bas</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>D&amp;upliquer</translation>
    </message>
    <message>
        <source>Adds the copies, each beside the one before it</source>
        <translation>Ajoute les copies, chacune à côté de la précédente</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>What is selected has no pop-up</source>
        <translation>Ce qui est sélectionné n&apos;a pas de bulle</translation>
    </message>
    <message>
        <source>Select a part to see its pop-up</source>
        <translation>Sélectionnez une pièce pour voir sa bulle</translation>
    </message>
    <message>
        <source>Show &amp;Pop-up</source>
        <translation>&amp;Montrer la bulle</translation>
    </message>
    <message>
        <source>Opens when the &amp;mouse rests on it</source>
        <translation>S&apos;ouvre quand la &amp;souris s&apos;y pose</translation>
    </message>
    <message>
        <source>Opens the pop-up without a click.</source>
        <translation>Ouvre la bulle sans clic.</translation>
    </message>
    <message>
        <source>Goes away &amp;after reading</source>
        <translation>Disparaît &amp;après lecture</translation>
    </message>
    <message>
        <source>Hides the button once its pop-up has been closed.</source>
        <translation>Cache le bouton une fois sa bulle fermée.</translation>
    </message>
</context>
<context>
    <name>AssocPalette</name>
    <message>
        <source>Associations</source>
        <translation>Relations</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>Subparts</source>
        <translation>Sous-pièces</translation>
    </message>
    <message>
        <source>Reflections</source>
        <translation>Reflets</translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation>Bulle</translation>
    </message>
    <message>
        <source>Select a part to see what it has to do with.</source>
        <translation>Sélectionnez une pièce pour voir à quoi elle est liée.</translation>
    </message>
    <message>
        <source>Multiple parts selected</source>
        <translation>Plusieurs pièces sélectionnées</translation>
    </message>
    <message>
        <source>New Link</source>
        <translation>Nouveau lien</translation>
    </message>
</context>
<context>
    <name>AssociationList</name>
    <message>
        <source>Remove the reflection</source>
        <translation>Retirer le reflet</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Détacher</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
</context>
<context>
    <name>Associations</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Follows</source>
        <translation>Suit</translation>
    </message>
    <message>
        <source>Followed by</source>
        <translation>Suivie par</translation>
    </message>
    <message>
        <source>%1 of %2 follows %3 of %4</source>
        <translation>%1 de %2 suit %3 de %4</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Pads</source>
        <translation>Pastilles</translation>
    </message>
    <message>
        <source>Body</source>
        <translation>Corps</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation>Bulle</translation>
    </message>
    <message>
        <source>Parts in it</source>
        <translation>Pièces à l&apos;intérieur</translation>
    </message>
    <message>
        <source>Refers to</source>
        <translation>Renvoie à</translation>
    </message>
    <message>
        <source>Reflection of</source>
        <translation>Reflet de</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 dans %2</translation>
    </message>
</context>
<context>
    <name>BrandWidget</name>
    <message>
        <source>About the product</source>
        <translation>À propos du produit</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Dim grey</source>
        <translation>Gris foncé</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Silver</source>
        <translation>Argent</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Marron</translation>
    </message>
    <message>
        <source>Maroon</source>
        <translation>Bordeaux</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Citron vert</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Or</translation>
    </message>
    <message>
        <source>Olive</source>
        <translation>Olive</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Bleu canard</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Bleu ciel</translation>
    </message>
    <message>
        <source>Navy</source>
        <translation>Bleu marine</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Pourpre</translation>
    </message>
    <message>
        <source>Indigo</source>
        <translation>Indigo</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>Rouge foncé</translation>
    </message>
    <message>
        <source>Light red</source>
        <translation>Rouge clair</translation>
    </message>
    <message>
        <source>Light orange</source>
        <translation>Orange clair</translation>
    </message>
    <message>
        <source>Dark yellow</source>
        <translation>Jaune foncé</translation>
    </message>
    <message>
        <source>Light yellow</source>
        <translation>Jaune clair</translation>
    </message>
    <message>
        <source>Dark green</source>
        <translation>Vert foncé</translation>
    </message>
    <message>
        <source>Light green</source>
        <translation>Vert clair</translation>
    </message>
    <message>
        <source>Dark cyan</source>
        <translation>Cyan foncé</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>Cyan clair</translation>
    </message>
    <message>
        <source>Dark blue</source>
        <translation>Bleu foncé</translation>
    </message>
    <message>
        <source>Light blue</source>
        <translation>Bleu clair</translation>
    </message>
    <message>
        <source>Dark violet</source>
        <translation>Violet foncé</translation>
    </message>
    <message>
        <source>Light violet</source>
        <translation>Violet clair</translation>
    </message>
    <message>
        <source>Dark magenta</source>
        <translation>Magenta foncé</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>Gris foncé</translation>
    </message>
    <message>
        <source>Light grey</source>
        <translation>Gris clair</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
</context>
<context>
    <name>ColorPopup</name>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Standard colours</source>
        <translation>Couleurs courantes</translation>
    </message>
    <message>
        <source>Colours in this document</source>
        <translation>Couleurs de ce document</translation>
    </message>
    <message>
        <source>&amp;More...</source>
        <translation>&amp;Autres...</translation>
    </message>
</context>
<context>
    <name>CommandLog</name>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>les déclarations de type de document ne sont pas permises</translation>
    </message>
    <message>
        <source>this is no recorded session</source>
        <translation>ce n&apos;est pas une session enregistrée</translation>
    </message>
    <message>
        <source>the format version is missing or not known</source>
        <translation>la version du format manque ou n&apos;est pas connue</translation>
    </message>
    <message>
        <source>there is no command &lt;%1&gt;</source>
        <translation>il n&apos;y a pas de commande &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the content of &lt;%1&gt; is faulty</source>
        <translation>le contenu de &lt;%1&gt; est incorrect</translation>
    </message>
    <message>
        <source>&lt;%1&gt; failed: %2</source>
        <translation>&lt;%1&gt; a échoué : %2</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>il n&apos;y a rien à annuler</translation>
    </message>
    <message>
        <source>there is nothing to redo</source>
        <translation>il n&apos;y a rien à rétablir</translation>
    </message>
</context>
<context>
    <name>CommandLogPane</name>
    <message>
        <source>Re&amp;cord</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Save Recording...</source>
        <translation>&amp;Sauvegarder l&apos;enregistrement...</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>No command was given yet.</source>
        <translation>Aucune commande n&apos;a encore été donnée.</translation>
    </message>
    <message>
        <source>Record what is done to the document from now on</source>
        <translation>Enregistrer désormais ce qui est fait au document</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Vider</translation>
    </message>
    <message>
        <source>Save Recording</source>
        <translation>Sauvegarder l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Recorded sessions (*.xml)</source>
        <translation>Sessions enregistrées (*.xml)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 ne peut pas être écrit : %2</translation>
    </message>
</context>
<context>
    <name>ConfirmingObserverCheckBox</name>
    <message>
        <source>Change property value</source>
        <translation>Modifier la valeur de la propriété</translation>
    </message>
</context>
<context>
    <name>DebugConsole</name>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
</context>
<context>
    <name>DebugPalette</name>
    <message>
        <source>Debugging</source>
        <translation>Débogage</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Performance</source>
        <translation>Performances</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>Rien n&apos;est sélectionné.</translation>
    </message>
    <message>
        <source>%1 (the first of %2 selected)</source>
        <translation>%1 (la première de %2 sélectionnées)</translation>
    </message>
</context>
<context>
    <name>DeleteNodeCommand</name>
    <message>
        <source>Deletion of %1</source>
        <translation>Suppression de %1</translation>
    </message>
    <message numerus="yes">
        <source>Deletion of %n object(s)</source>
        <translation>
            <numerusform>Suppression de %n objet</numerusform>
            <numerusform>Suppression de %n objets</numerusform>
        </translation>
    </message>
    <message>
        <source>The object is not there any more.</source>
        <translation>L&apos;objet n&apos;existe plus.</translation>
    </message>
    <message>
        <source>The document itself and pop-ups cannot be deleted.</source>
        <translation>Le document lui-même et les bulles ne peuvent pas être supprimés.</translation>
    </message>
    <message>
        <source>The subpart belongs to its part and cannot be deleted.</source>
        <translation>La sous-pièce appartient à sa pièce et ne peut pas être supprimée.</translation>
    </message>
    <message>
        <source>The last scene cannot be deleted.</source>
        <translation>La dernière scène ne peut pas être supprimée.</translation>
    </message>
</context>
<context>
    <name>DocumentFile</name>
    <message>
        <source>this is no document</source>
        <translation>ce n&apos;est pas un document</translation>
    </message>
    <message>
        <source>this is no document: it begins with &lt;%1&gt;</source>
        <translation>ce n&apos;est pas un document : il commence par &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the document has no model</source>
        <translation>le document n&apos;a pas de modèle</translation>
    </message>
    <message>
        <source>the format version is missing or no number</source>
        <translation>la version du format manque ou n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>the format version is %1; this program reads versions up to %2</source>
        <translation>la version du format est %1 ; ce programme lit les versions jusqu&apos;à %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no instance id</source>
        <translation>« %1 » n&apos;est pas un numéro d&apos;instance</translation>
    </message>
    <message>
        <source>a document has one model only</source>
        <translation>un document n&apos;a qu&apos;un modèle</translation>
    </message>
    <message>
        <source>the document has no scene</source>
        <translation>le document n&apos;a pas de scène</translation>
    </message>
    <message>
        <source>&lt;%1&gt; cannot stand here</source>
        <translation>&lt;%1&gt; ne peut pas se trouver ici</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a document&apos;s resource</source>
        <translation>« %1 » n&apos;est pas le nom d&apos;une ressource du document</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no type of resource</source>
        <translation>« %1 » n&apos;est pas un type de ressource</translation>
    </message>
    <message>
        <source>resource &quot;%1&quot; is there twice</source>
        <translation>la ressource « %1 » est présente deux fois</translation>
    </message>
    <message>
        <source>only text can stand here</source>
        <translation>il ne peut y avoir ici que du texte</translation>
    </message>
    <message>
        <source>resource &quot;%1&quot; is larger than 64 MB</source>
        <translation>la ressource « %1 » dépasse 64 Mo</translation>
    </message>
    <message>
        <source>the data of resource &quot;%1&quot; are damaged</source>
        <translation>les données de la ressource « %1 » sont endommagées</translation>
    </message>
    <message>
        <source>the next instance id was %1, which is too low; it is %2 now</source>
        <translation>le prochain numéro d&apos;instance était %1, ce qui est trop petit ; c&apos;est maintenant %2</translation>
    </message>
    <message>
        <source>nodes are nested deeper than %1</source>
        <translation>les nœuds sont imbriqués à plus de %1 niveaux</translation>
    </message>
    <message>
        <source>this is no fragment</source>
        <translation>ce n&apos;est pas un fragment</translation>
    </message>
    <message>
        <source>the format version is missing or not known</source>
        <translation>la version du format manque ou n&apos;est pas connue</translation>
    </message>
    <message numerus="yes">
        <source>%1 %n more warning(s) left out</source>
        <translation>
            <numerusform>%1 %n autre avertissement omis</numerusform>
            <numerusform>%1 %n autres avertissements omis</numerusform>
        </translation>
    </message>
    <message>
        <source>attribute &quot;%1&quot; of &lt;%2&gt; is not known and was dropped</source>
        <translation>l&apos;attribut « %1 » de &lt;%2&gt; n&apos;est pas connu et a été abandonné</translation>
    </message>
    <message>
        <source>the class is missing</source>
        <translation>la classe manque</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no domain</source>
        <translation>« %1 » ne désigne aucun domaine</translation>
    </message>
    <message>
        <source>class &quot;%1&quot; is not known</source>
        <translation>la classe « %1 » n&apos;est pas connue</translation>
    </message>
    <message>
        <source>more than %1 classes are not known</source>
        <translation>plus de %1 classes ne sont pas connues</translation>
    </message>
    <message>
        <source>class &quot;%1&quot; is not known; kept as it is</source>
        <translation>la classe « %1 » n&apos;est pas connue ; conservée telle quelle</translation>
    </message>
    <message>
        <source>class &quot;%1&quot; is of another kind than &lt;%2&gt;</source>
        <translation>la classe « %1 » est d&apos;une autre sorte que &lt;%2&gt;</translation>
    </message>
    <message>
        <source>instance id %1 is used twice</source>
        <translation>le numéro d&apos;instance %1 est utilisé deux fois</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no lock</source>
        <translation>« %1 » n&apos;est pas un verrou</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false</source>
        <translation>« %1 » n&apos;est ni true ni false</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of reflection</source>
        <translation>« %1 » n&apos;est pas une sorte de reflet</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no class</source>
        <translation>&lt;%1&gt; n&apos;a pas de classe</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no instance id</source>
        <translation>&lt;%1&gt; n&apos;a pas de numéro d&apos;instance</translation>
    </message>
    <message>
        <source>a reflection needs both what it reflects and which kind it is</source>
        <translation>un reflet a besoin à la fois de ce qu&apos;il reflète et de sa sorte</translation>
    </message>
    <message numerus="yes">
        <source>there are more than %n nodes</source>
        <translation>
            <numerusform>il y a plus de %n nœud</numerusform>
            <numerusform>il y a plus de %n nœuds</numerusform>
        </translation>
    </message>
    <message>
        <source>&lt;%1&gt; is no node</source>
        <translation>&lt;%1&gt; n&apos;est pas un nœud</translation>
    </message>
    <message>
        <source>text cannot stand here</source>
        <translation>du texte ne peut pas se trouver ici</translation>
    </message>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>les déclarations de type de document ne sont pas permises</translation>
    </message>
    <message>
        <source>this cannot stand here</source>
        <translation>cela ne peut pas se trouver ici</translation>
    </message>
    <message>
        <source>nothing can stand after the end of the document</source>
        <translation>rien ne peut suivre la fin du document</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not known; kept as it is</source>
        <translation>&lt;%1&gt; n&apos;est pas connu ; conservé tel quel</translation>
    </message>
    <message>
        <source>a part has one pop-up only</source>
        <translation>une pièce n&apos;a qu&apos;une bulle</translation>
    </message>
    <message>
        <source>&lt;value&gt; has no key</source>
        <translation>&lt;value&gt; n&apos;a pas de clé</translation>
    </message>
    <message>
        <source>a proxy needs both a node and a key to follow</source>
        <translation>un lien a besoin à la fois d&apos;un nœud et d&apos;une clé à suivre</translation>
    </message>
    <message>
        <source>the text of a value is longer than 64 MB</source>
        <translation>le texte d&apos;une valeur dépasse 64 Mo</translation>
    </message>
    <message>
        <source>this is no %1</source>
        <translation>ce n&apos;est pas du type %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no %2 (property &quot;%3&quot;)</source>
        <translation>« %1 » n&apos;est pas du type %2 (propriété « %3 »)</translation>
    </message>
    <message>
        <source>class &quot;%1&quot; has no property &quot;%2&quot;; kept as it is</source>
        <translation>la classe « %1 » n&apos;a pas de propriété « %2 » ; conservée telle quelle</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; is not kept in files; dropped</source>
        <translation>la propriété « %1 » n&apos;est pas gardée dans les fichiers ; abandonnée</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; is given twice; the first value counts</source>
        <translation>la propriété « %1 » est donnée deux fois ; la première valeur compte</translation>
    </message>
    <message>
        <source>the value of property &quot;%1&quot; is not allowed; kept: %2</source>
        <translation>la valeur de la propriété « %1 » n&apos;est pas permise ; conservée : %2</translation>
    </message>
    <message>
        <source>the id &quot;%1&quot; is used twice; kept</source>
        <translation>l&apos;identifiant « %1 » est utilisé deux fois ; conservé</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; of node %2 follows itself, directly or through others</source>
        <translation>la propriété « %1 » du nœud %2 se suit elle-même, directement ou par d&apos;autres</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; follows one that is not there (&quot;%2&quot; of node %3); kept as it is</source>
        <translation>la propriété « %1 » en suit une qui n&apos;existe pas (« %2 » du nœud %3) ; conservée telle quelle</translation>
    </message>
    <message>
        <source>property &quot;%1&quot; (%2) cannot follow &quot;%3&quot; (%4)</source>
        <translation>la propriété « %1 » (%2) ne peut pas suivre « %3 » (%4)</translation>
    </message>
    <message>
        <source>node %1, which is reflected here, is not there; kept as it is</source>
        <translation>le nœud %1, qui est reflété ici, n&apos;existe pas ; conservé tel quel</translation>
    </message>
    <message>
        <source>elements are nested too deep</source>
        <translation>les éléments sont trop imbriqués</translation>
    </message>
    <message>
        <source>an unknown element is longer than 64 MB</source>
        <translation>un élément inconnu dépasse 64 Mo</translation>
    </message>
</context>
<context>
    <name>DocumentFiles</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Changes not saved</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Enregistrer les modifications de %1 ?</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>%1 could not be saved.</source>
        <translation>%1 n&apos;a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revenir</translation>
    </message>
    <message>
        <source>Lose all changes made since %1 was last saved?</source>
        <translation>Perdre toutes les modifications faites depuis le dernier enregistrement de %1 ?</translation>
    </message>
    <message>
        <source>Changed by another program</source>
        <translation>Modifié par un autre programme</translation>
    </message>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 a été modifié par un autre programme.</translation>
    </message>
    <message>
        <source>Saving replaces what it wrote.</source>
        <translation>L&apos;enregistrement remplace ce qu&apos;il a écrit.</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>Nothing is kept for recovery: %1</source>
        <translation>Rien n&apos;est gardé pour une récupération : %1</translation>
    </message>
    <message>
        <source>The document cannot be recovered.</source>
        <translation>Le document ne peut pas être récupéré.</translation>
    </message>
    <message>
        <source>%1
The file is now %2.</source>
        <translation>%1
Le fichier est maintenant %2.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Lose what can be recovered?</source>
        <translation>Perdre ce qui peut être récupéré ?</translation>
    </message>
</context>
<context>
    <name>DocumentImpl</name>
    <message>
        <source>There is no such part.</source>
        <translation>Cette pièce n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The id names no class of a domain.</source>
        <translation>L&apos;identifiant ne désigne aucune classe d&apos;un domaine.</translation>
    </message>
    <message>
        <source>The id is already in use.</source>
        <translation>L&apos;identifiant est déjà utilisé.</translation>
    </message>
    <message>
        <source>Nothing can be changed while an undo or redo is under way.</source>
        <translation>Rien ne peut être modifié pendant une annulation ou un rétablissement.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>ExpressionParser</name>
    <message>
        <source>The expression is not complete.</source>
        <translation>L&apos;expression n&apos;est pas complète.</translation>
    </message>
    <message>
        <source>A closing bracket is missing.</source>
        <translation>Il manque une parenthèse fermante.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at position %2 is not known.</source>
        <translation>« %1 » à la position %2 n&apos;est pas connu.</translation>
    </message>
    <message>
        <source>The function before position %1 takes another number of arguments.</source>
        <translation>La fonction avant la position %1 prend un autre nombre d&apos;arguments.</translation>
    </message>
    <message>
        <source>The expression is not correct at position %1.</source>
        <translation>L&apos;expression n&apos;est pas correcte à la position %1.</translation>
    </message>
    <message>
        <source>The result is not a number.</source>
        <translation>Le résultat n&apos;est pas un nombre.</translation>
    </message>
    <message>
        <source>The result is too large, or something is divided by zero.</source>
        <translation>Le résultat est trop grand, ou il y a une division par zéro.</translation>
    </message>
    <message>
        <source>The expression is too long.</source>
        <translation>L&apos;expression est trop longue.</translation>
    </message>
    <message>
        <source>There is no number.</source>
        <translation>Il n&apos;y a pas de nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at position %2 is not a unit that can be converted to %3.</source>
        <translation>« %1 » à la position %2 n&apos;est pas une unité convertible en %3.</translation>
    </message>
    <message>
        <source>Too many brackets are open.</source>
        <translation>Trop de parenthèses sont ouvertes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; at position %2 is not expected there.</source>
        <translation>« %1 » n&apos;est pas attendu à la position %2.</translation>
    </message>
</context>
<context>
    <name>FlowchartBar</name>
    <message>
        <source>Flowcharts</source>
        <translation>Organigrammes</translation>
    </message>
    <message>
        <source>&amp;Run Flowcharts</source>
        <translation>&amp;Exécuter les organigrammes</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Start the flowcharts, or stop them</source>
        <translation>Démarrer les organigrammes, ou les arrêter</translation>
    </message>
    <message>
        <source>Run flowcharts</source>
        <translation>Exécuter les organigrammes</translation>
    </message>
    <message>
        <source>Start the flowcharts, or stop them (F5)</source>
        <translation>Démarrer les organigrammes, ou les arrêter (F5)</translation>
    </message>
    <message>
        <source>All flowcharts have come to their end.</source>
        <translation>Tous les organigrammes sont arrivés à leur fin.</translation>
    </message>
    <message>
        <source>There is no flowchart in this document: add a start block first.</source>
        <translation>Il n&apos;y a pas d&apos;organigramme dans ce document : ajoutez d&apos;abord un bloc de départ.</translation>
    </message>
    <message>
        <source>Flowchart</source>
        <translation>Organigramme</translation>
    </message>
</context>
<context>
    <name>FlowchartRunner</name>
    <message>
        <source>The block &quot;%1&quot; waits for &quot;%2&quot;, but nothing has that output name.</source>
        <translation>Le bloc « %1 » attend « %2 », mais rien ne porte ce nom de sortie.</translation>
    </message>
    <message>
        <source>The chart leads to &quot;%1&quot;, which is no block.</source>
        <translation>L&apos;organigramme mène à « %1 », qui n&apos;est pas un bloc.</translation>
    </message>
    <message>
        <source>The block &quot;%1&quot; switches &quot;%2&quot;, but nothing has that output name.</source>
        <translation>Le bloc « %1 » commute « %2 », mais rien ne porte ce nom de sortie.</translation>
    </message>
    <message>
        <source>Nothing follows the block &quot;%1&quot;: the chart ends there.</source>
        <translation>Rien ne suit le bloc « %1 » : l&apos;organigramme s&apos;y termine.</translation>
    </message>
    <message>
        <source>Nothing follows one of the answers of &quot;%1&quot;: the chart ends there.</source>
        <translation>Rien ne suit l&apos;une des réponses de « %1 » : l&apos;organigramme s&apos;y termine.</translation>
    </message>
    <message>
        <source>The procedure &quot;%1&quot; has no start block in its pop-up.</source>
        <translation>La procédure « %1 » n&apos;a pas de bloc de départ dans sa bulle.</translation>
    </message>
    <message>
        <source>The procedure &quot;%1&quot; calls itself again and again.</source>
        <translation>La procédure « %1 » s&apos;appelle elle-même sans fin.</translation>
    </message>
    <message>
        <source>The decision &quot;%1&quot; does not say what it asks.</source>
        <translation>La décision « %1 » ne dit pas ce qu&apos;elle demande.</translation>
    </message>
    <message>
        <source>The decision &quot;%1&quot; asks &quot;%2&quot;, but nothing has that output name.</source>
        <translation>La décision « %1 » interroge « %2 », mais rien ne porte ce nom de sortie.</translation>
    </message>
</context>
<context>
    <name>FlowchartSpeedWidget</name>
    <message>
        <source>Speed of the flowcharts</source>
        <translation>Vitesse des organigrammes</translation>
    </message>
    <message>
        <source>How fast the flowcharts run</source>
        <translation>À quelle vitesse les organigrammes s&apos;exécutent</translation>
    </message>
    <message>
        <source>Flowcharts:</source>
        <translation>Organigrammes :</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Run the next block</source>
        <translation>Exécuter le bloc suivant</translation>
    </message>
</context>
<context>
    <name>FontChooser</name>
    <message>
        <source>Light</source>
        <translation>Léger</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Half bold</source>
        <translation>Demi-gras</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Extra-gras</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>AaBbYyZz 123</source>
        <translation>AaBbYyZz 123</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Échantillon</translation>
    </message>
    <message>
        <source>All fonts...</source>
        <translation>Toutes les polices...</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>%1, family</source>
        <translation>%1, famille</translation>
    </message>
    <message>
        <source>%1, size in points</source>
        <translation>%1, taille en points</translation>
    </message>
    <message>
        <source>Size in points</source>
        <translation>Taille en points</translation>
    </message>
    <message>
        <source>%1, weight</source>
        <translation>%1, graisse</translation>
    </message>
    <message>
        <source>%1, italic</source>
        <translation>%1, italique</translation>
    </message>
    <message>
        <source>The size is a number from 1 to 1000.</source>
        <translation>La taille est un nombre de 1 à 1000.</translation>
    </message>
</context>
<context>
    <name>FormChecker</name>
    <message>
        <source>scenes and pop-ups have no subparts to choose from</source>
        <translation>les scènes et les bulles n&apos;ont pas de sous-pièces à choisir</translation>
    </message>
    <message>
        <source>the list stays empty: nodes of the class have no such subparts, and none can be added</source>
        <translation>la liste reste vide : les nœuds de la classe n&apos;ont pas de telles sous-pièces, et on ne peut pas en ajouter</translation>
    </message>
    <message>
        <source>there is no property &quot;%1&quot; to bind</source>
        <translation>il n&apos;y a pas de propriété « %1 » à lier</translation>
    </message>
    <message>
        <source>there is no property &quot;%1&quot; to bind; did you mean &quot;%2&quot;?</source>
        <translation>il n&apos;y a pas de propriété « %1 » à lier ; vouliez-vous dire « %2 » ?</translation>
    </message>
    <message>
        <source>the key of the property to bind is missing</source>
        <translation>la clé de la propriété à lier manque</translation>
    </message>
    <message>
        <source>there are no subparts &quot;%1&quot; to bind</source>
        <translation>il n&apos;y a pas de sous-pièces « %1 » à lier</translation>
    </message>
    <message>
        <source>not all subparts that can be chosen have the property &quot;%1&quot;</source>
        <translation>toutes les sous-pièces que l&apos;on peut choisir n&apos;ont pas la propriété « %1 »</translation>
    </message>
    <message>
        <source>new nodes have no subparts &quot;%1&quot;: the form is not shown for them</source>
        <translation>les nouveaux nœuds n&apos;ont pas de sous-pièces « %1 » : le formulaire n&apos;est pas montré pour eux</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of the type %2, but the control takes %3</source>
        <translation>« %1 » est du type %2, mais la commande prend %3</translation>
    </message>
    <message>
        <source>the values that &quot;%1&quot; may take cannot be listed</source>
        <translation>les valeurs que « %1 » peut prendre ne peuvent pas être énumérées</translation>
    </message>
    <message>
        <source>the button stands for nothing in the group &apos;%1&apos;: %2</source>
        <translation>le bouton ne représente rien dans le groupe &apos;%1&apos; : %2</translation>
    </message>
    <message>
        <source>the name is taken by what begins in line %1: connections and buddies find only one of them</source>
        <translation>le nom est pris par ce qui commence à la ligne %1 : connexions et partenaires n&apos;en trouvent qu&apos;un</translation>
    </message>
    <message>
        <source>a widget of this class keeps what is in it to itself: the top widget of a form has to be a QWidget</source>
        <translation>un élément de cette classe garde son contenu pour lui : l&apos;élément principal d&apos;un formulaire doit être un QWidget</translation>
    </message>
    <message>
        <source>the form has no section: directly in its top widget there must be a PaletteBoxSection</source>
        <translation>le formulaire n&apos;a pas de section : il doit y avoir une PaletteBoxSection directement dans son élément principal</translation>
    </message>
    <message>
        <source>it stands outside all sections and is never shown</source>
        <translation>il se trouve hors de toutes les sections et n&apos;est jamais montré</translation>
    </message>
    <message>
        <source>the class is missing</source>
        <translation>la classe manque</translation>
    </message>
    <message>
        <source>there is no such class</source>
        <translation>cette classe n&apos;existe pas</translation>
    </message>
    <message>
        <source>there is no such class; did you mean %1?</source>
        <translation>cette classe n&apos;existe pas ; vouliez-vous dire %1 ?</translation>
    </message>
    <message>
        <source>there is no such class; a %1, which it refines, is shown in its place</source>
        <translation>cette classe n&apos;existe pas ; %1, qu&apos;elle spécialise, est montré à sa place</translation>
    </message>
    <message>
        <source>the class has no such property</source>
        <translation>la classe n&apos;a pas cette propriété</translation>
    </message>
    <message>
        <source>the class has no such property; did you mean &quot;%1&quot;?</source>
        <translation>la classe n&apos;a pas cette propriété ; vouliez-vous dire « %1 » ?</translation>
    </message>
    <message>
        <source>there is no value; &lt;%1&gt; is needed</source>
        <translation>il n&apos;y a pas de valeur ; il faut &lt;%1&gt;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is given where &lt;%2&gt; is needed</source>
        <translation>&lt;%1&gt; est donné là où il faut &lt;%2&gt;</translation>
    </message>
    <message>
        <source>%1 is no number</source>
        <translation>%1 n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>at most %1 are possible</source>
        <translation>%1 au plus sont possibles</translation>
    </message>
    <message>
        <source>%1 is neither &quot;true&quot; nor &quot;false&quot;</source>
        <translation>%1 n&apos;est ni « true » ni « false »</translation>
    </message>
    <message>
        <source>%1 is none of %2</source>
        <translation>%1 ne fait pas partie de %2</translation>
    </message>
    <message>
        <source>the picture %1 is no resource of the program: whether it is found depends on the folder in which the program is started</source>
        <translation>l&apos;image %1 n&apos;est pas une ressource du programme : qu&apos;elle soit trouvée dépend du dossier où le programme est lancé</translation>
    </message>
    <message>
        <source>there is no picture %1</source>
        <translation>il n&apos;y a pas d&apos;image %1</translation>
    </message>
    <message>
        <source>there is no widget %1</source>
        <translation>il n&apos;y a pas d&apos;élément %1</translation>
    </message>
    <message>
        <source>there is no widget %1; did you mean &quot;%2&quot;?</source>
        <translation>il n&apos;y a pas d&apos;élément %1 ; vouliez-vous dire « %2 » ?</translation>
    </message>
    <message>
        <source>the text is missing: a control over two texts needs both, not empty</source>
        <translation>le texte manque : une commande pour deux textes a besoin des deux, non vides</translation>
    </message>
    <message>
        <source>the signal %1 does not bring what the slot %2 takes</source>
        <translation>le signal %1 n&apos;apporte pas ce que prend le slot %2</translation>
    </message>
    <message>
        <source>the connection leads nowhere: there is no widget %1</source>
        <translation>la connexion ne mène nulle part : il n&apos;y a pas d&apos;élément %1</translation>
    </message>
    <message>
        <source>the connection leads nowhere: there is no widget %1; did you mean &quot;%2&quot;?</source>
        <translation>la connexion ne mène nulle part : il n&apos;y a pas d&apos;élément %1 ; vouliez-vous dire « %2 » ?</translation>
    </message>
    <message>
        <source>the connection leads nowhere: the class has no signal %1</source>
        <translation>la connexion ne mène nulle part : la classe n&apos;a pas de signal %1</translation>
    </message>
    <message>
        <source>the connection leads nowhere: the class has no slot %1</source>
        <translation>la connexion ne mène nulle part : la classe n&apos;a pas de slot %1</translation>
    </message>
    <message>
        <source>the connection closes a circle: %1 would switch itself for ever</source>
        <translation>la connexion ferme un cercle : %1 se commuterait sans fin</translation>
    </message>
    <message>
        <source>the tab order names %1, but there is no such widget</source>
        <translation>l&apos;ordre de tabulation nomme %1, mais cet élément n&apos;existe pas</translation>
    </message>
    <message>
        <source>the list stays empty: the property needs a validator of the kind &quot;set&quot;</source>
        <translation>la liste reste vide : la propriété a besoin d&apos;une règle de validation de la sorte « set »</translation>
    </message>
    <message>
        <source>the list stays empty: the property&apos;s validator allows no value</source>
        <translation>la liste reste vide : la règle de validation de la propriété n&apos;admet aucune valeur</translation>
    </message>
    <message>
        <source>the list stays empty: the property needs a validator of the kind &quot;resources&quot;</source>
        <translation>la liste reste vide : la propriété a besoin d&apos;une règle de validation de la sorte « resources »</translation>
    </message>
    <message>
        <source>no unit is shown: the property has neither a unit nor a format with units</source>
        <translation>aucune unité n&apos;est montrée : la propriété n&apos;a ni unité ni format avec unités</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of the type %2</source>
        <translation>« %1 » n&apos;est pas une valeur du type %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value that the property may take</source>
        <translation>« %1 » n&apos;est pas une valeur que la propriété puisse prendre</translation>
    </message>
</context>
<context>
    <name>FormDescription</name>
    <message>
        <source>the form has more than %1 widgets, layouts and connections</source>
        <translation>le formulaire a plus de %1 éléments, dispositions et connexions</translation>
    </message>
    <message>
        <source>the elements are nested more than %1 deep</source>
        <translation>les éléments sont imbriqués sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>document types and entities are not understood</source>
        <translation>les types de document et les entités ne sont pas compris</translation>
    </message>
    <message>
        <source>this is no form but &lt;%1&gt;</source>
        <translation>ce n&apos;est pas un formulaire mais &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the form has no widget</source>
        <translation>le formulaire n&apos;a pas d&apos;élément</translation>
    </message>
    <message>
        <source>the form has the version %1, 4.0 is needed</source>
        <translation>le formulaire a la version %1, il faut 4.0</translation>
    </message>
    <message>
        <source>a form has one top widget, this is the second</source>
        <translation>un formulaire a un seul élément principal, celui-ci est le deuxième</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no %2 of a grid; at most %3 are possible</source>
        <translation>« %1 » n&apos;est pas une %2 de grille ; %3 au plus sont possibles</translation>
    </message>
    <message>
        <source>%1 is larger than anything that can be shown</source>
        <translation>%1 est plus grand que tout ce qui peut être montré</translation>
    </message>
    <message>
        <source>the class &quot;%1&quot; refines itself</source>
        <translation>la classe « %1 » se spécialise elle-même</translation>
    </message>
    <message>
        <source>the class &quot;%1&quot; refines too many others</source>
        <translation>la classe « %1 » en spécialise trop d&apos;autres</translation>
    </message>
    <message>
        <source>the form is larger than %1 MB</source>
        <translation>le formulaire dépasse %1 Mo</translation>
    </message>
</context>
<context>
    <name>FormFaultSection</name>
    <message>
        <source>Faulty Form</source>
        <translation>Formulaire défectueux</translation>
    </message>
    <message>
        <source>The form &quot;%1&quot; is faulty and is not shown. What its author has to mend:</source>
        <translation>Le formulaire « %1 » est défectueux et n&apos;est pas montré. Ce que son auteur doit corriger :</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FormGate</name>
    <message>
        <source>there is no form of this name</source>
        <translation>il n&apos;y a pas de formulaire de ce nom</translation>
    </message>
    <message>
        <source>what is selected has no subpart &quot;%1&quot; with the property &quot;%2&quot;</source>
        <translation>ce qui est sélectionné n&apos;a pas de sous-pièce « %1 » avec la propriété « %2 »</translation>
    </message>
    <message>
        <source>the toolkit cannot read the form, or makes no section of it directly in its top widget</source>
        <translation>la bibliothèque ne peut pas lire le formulaire, ou n&apos;en fait aucune section directement dans son élément principal</translation>
    </message>
</context>
<context>
    <name>GetCustomPartLabel</name>
    <message>
        <source>Choose custom part label</source>
        <translation>Choisir l&apos;étiquette de la pièce personnelle</translation>
    </message>
    <message>
        <source>Part &amp;label:</source>
        <translation>&amp;Étiquette de la pièce :</translation>
    </message>
    <message>
        <source>The part label appears in the part tree.</source>
        <translation>L&apos;étiquette de la pièce apparaît dans l&apos;arbre des pièces.</translation>
    </message>
    <message>
        <source>&amp;Save Part</source>
        <translation>&amp;Enregistrer la pièce</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>C&amp;ontents</source>
        <translation>S&amp;ommaire</translation>
    </message>
</context>
<context>
    <name>IdProvider</name>
    <message>
        <source>The id must not be empty.</source>
        <translation>L&apos;identifiant ne doit pas être vide.</translation>
    </message>
    <message>
        <source>The id is longer than 100 characters.</source>
        <translation>L&apos;identifiant dépasse 100 caractères.</translation>
    </message>
    <message>
        <source>The id must not contain blanks.</source>
        <translation>L&apos;identifiant ne doit pas contenir d&apos;espaces.</translation>
    </message>
    <message>
        <source>Another subpart has this id.</source>
        <translation>Une autre sous-pièce a cet identifiant.</translation>
    </message>
    <message>
        <source>Another part has this id.</source>
        <translation>Une autre pièce a cet identifiant.</translation>
    </message>
</context>
<context>
    <name>InsertMenu</name>
    <message>
        <source>Connect the two selected parts</source>
        <translation>Relier les deux pièces sélectionnées</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Inspector</source>
        <translation>Inspecteur</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Classe</translation>
    </message>
    <message>
        <source>Id</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>InstanceId</source>
        <translation>Numéro d&apos;instance</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nœuds</translation>
    </message>
</context>
<context>
    <name>Licence</name>
    <message>
        <source>Please enter the licence code.</source>
        <translation>Veuillez saisir le code de licence.</translation>
    </message>
    <message>
        <source>Typing error in group %1: &quot;%2&quot; does not occur in licence codes.</source>
        <translation>Faute de frappe dans le groupe %1 : « %2 » n&apos;apparaît pas dans les codes de licence.</translation>
    </message>
    <message>
        <source>Typing error in group %1: it has %2 characters instead of %3.</source>
        <translation>Faute de frappe dans le groupe %1 : il a %2 caractères au lieu de %3.</translation>
    </message>
    <message>
        <source>The code is too long: no licence code has so many groups.</source>
        <translation>Le code est trop long : aucun code de licence n&apos;a autant de groupes.</translation>
    </message>
    <message>
        <source>Typing error in group %1: please compare it letter by letter. Groups may also be missing, doubled or exchanged.</source>
        <translation>Faute de frappe dans le groupe %1 : veuillez le comparer lettre par lettre. Des groupes peuvent aussi manquer, être doublés ou intervertis.</translation>
    </message>
    <message>
        <source>The secret key cannot be used.</source>
        <translation>La clé secrète ne peut pas être utilisée.</translation>
    </message>
    <message>
        <source>A licence needs a holder and a product.</source>
        <translation>Une licence a besoin d&apos;un titulaire et d&apos;un produit.</translation>
    </message>
    <message>
        <source>The dates of a licence lie between 2000 and 2179, and it does not expire before it is issued.</source>
        <translation>Les dates d&apos;une licence se situent entre 2000 et 2179, et elle n&apos;expire pas avant d&apos;être émise.</translation>
    </message>
    <message>
        <source>A licence has from 1 to 65535 seats.</source>
        <translation>Une licence a de 1 à 65535 postes.</translation>
    </message>
    <message>
        <source>Holder, product and edition have at most 80 letters each.</source>
        <translation>Le titulaire, le produit et l&apos;édition ont au plus 80 lettres chacun.</translation>
    </message>
    <message>
        <source>Holder, product and edition are too long together.</source>
        <translation>Le titulaire, le produit et l&apos;édition sont trop longs ensemble.</translation>
    </message>
    <message>
        <source>This code was not made for this program: its signature is not right. Please ask whoever gave it to you.</source>
        <translation>Ce code n&apos;a pas été fait pour ce programme : sa signature n&apos;est pas la bonne. Veuillez demander à la personne qui vous l&apos;a donné.</translation>
    </message>
    <message>
        <source>The code has %1 groups, but %2 were entered.</source>
        <translation>Le code a %1 groupes, mais %2 ont été saisis.</translation>
    </message>
    <message>
        <source>This code is for the product %1; this program is %2.</source>
        <translation>Ce code est pour le produit %1 ; ce programme est %2.</translation>
    </message>
    <message>
        <source>This code was issued on %1, but the clock of this computer says that today is %2. Please set the clock.</source>
        <translation>Ce code a été émis le %1, mais l&apos;horloge de cet ordinateur dit que nous sommes le %2. Veuillez régler l&apos;horloge.</translation>
    </message>
    <message>
        <source>This licence expired on %1.</source>
        <translation>Cette licence a expiré le %1.</translation>
    </message>
</context>
<context>
    <name>LicenceDialog</name>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Licenc&amp;e code:</source>
        <translation>&amp;Code de licence :</translation>
    </message>
    <message>
        <source>Licence code</source>
        <translation>Code de licence</translation>
    </message>
    <message>
        <source>Paste the code here, or type it group by group</source>
        <translation>Collez le code ici, ou tapez-le groupe par groupe</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Forget the licence code on this computer</source>
        <translation>Oublier le code de licence sur cet ordinateur</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>A licence code is made of groups of %1 letters and digits. Small letters are as good as capitals.</source>
        <translation>Un code de licence est fait de groupes de %1 lettres et chiffres. Les minuscules valent les majuscules.</translation>
    </message>
    <message>
        <source>The code is right. It is for %1.</source>
        <translation>Le code est juste. Il est pour %1.</translation>
    </message>
    <message numerus="yes">
        <source>Right so far: %n groups.</source>
        <translation>
            <numerusform>Juste jusqu&apos;ici : %n groupe.</numerusform>
            <numerusform>Juste jusqu&apos;ici : %n groupes.</numerusform>
        </translation>
    </message>
    <message>
        <source>How licence codes work</source>
        <translation>Comment fonctionnent les codes de licence</translation>
    </message>
</context>
<context>
    <name>LicenceManager</name>
    <message>
        <source>The program was used on %1 before, but the clock of this computer says that today is %2. Please set the clock.</source>
        <translation>Le programme a déjà été utilisé le %1, mais l&apos;horloge de cet ordinateur dit que nous sommes le %2. Veuillez régler l&apos;horloge.</translation>
    </message>
    <message>
        <source>Unlicensed evaluation.</source>
        <translation>Évaluation sans licence.</translation>
    </message>
    <message>
        <source>Unlicensed evaluation. %1</source>
        <translation>Évaluation sans licence. %1</translation>
    </message>
    <message>
        <source>Licensed to %1.</source>
        <translation>Licence accordée à %1.</translation>
    </message>
    <message>
        <source>Licensed to %1, edition %2.</source>
        <translation>Licence accordée à %1, édition %2.</translation>
    </message>
    <message numerus="yes">
        <source>For %n seats.</source>
        <translation>
            <numerusform>Pour %n poste.</numerusform>
            <numerusform>Pour %n postes.</numerusform>
        </translation>
    </message>
    <message>
        <source>The licence expires today.</source>
        <translation>La licence expire aujourd&apos;hui.</translation>
    </message>
    <message numerus="yes">
        <source>The licence expires in %n days.</source>
        <translation>
            <numerusform>La licence expire dans %n jour.</numerusform>
            <numerusform>La licence expire dans %n jours.</numerusform>
        </translation>
    </message>
    <message>
        <source>unlicensed evaluation</source>
        <translation>évaluation sans licence</translation>
    </message>
    <message>
        <source>licence expires today</source>
        <translation>la licence expire aujourd&apos;hui</translation>
    </message>
    <message numerus="yes">
        <source>licence expires in %n days</source>
        <translation>
            <numerusform>la licence expire dans %n jour</numerusform>
            <numerusform>la licence expire dans %n jours</numerusform>
        </translation>
    </message>
    <message>
        <source>Printed with an unlicensed evaluation copy</source>
        <translation>Imprimé avec une copie d&apos;évaluation sans licence</translation>
    </message>
</context>
<context>
    <name>LineEdit</name>
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
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>LinkPane</name>
    <message>
        <source>Pr&amp;operty that follows another</source>
        <translation>Pr&amp;opriété qui en suit une autre</translation>
    </message>
    <message>
        <source>Property that follows another</source>
        <translation>Propriété qui en suit une autre</translation>
    </message>
    <message>
        <source>What it can follow</source>
        <translation>Ce qu&apos;elle peut suivre</translation>
    </message>
</context>
<context>
    <name>ListEditor</name>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
</context>
<context>
    <name>LockPalette</name>
    <message>
        <source>Property Value Editing</source>
        <translation>Modification des valeurs</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Locking</source>
        <translation>Verrouillage</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Place of the mouse pointer</source>
        <translation>Endroit du pointeur de la souris</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>That could not be done.</source>
        <translation>Cela n&apos;a pas pu être fait.</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler : %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir : %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Rien de sélectionné</translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>%Ln sélectionnée</numerusform>
            <numerusform>%Ln sélectionnées</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 mm</source>
        <translation>%1, %2 mm</translation>
    </message>
    <message>
        <source>There is no part with the id &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de pièce avec l&apos;identifiant « %1 ».</translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>Sélection : %1</translation>
    </message>
    <message>
        <source>%1 (recovered)</source>
        <translation>%1 (récupéré)</translation>
    </message>
</context>
<context>
    <name>MessagesPane</name>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>There was no message yet.</source>
        <translation>Il n&apos;y a pas encore eu de message.</translation>
    </message>
    <message>
        <source>Open &amp;Console Window</source>
        <translation>Ouvrir la &amp;console</translation>
    </message>
</context>
<context>
    <name>ModelsBrowser</name>
    <message>
        <source>document type declarations are not allowed</source>
        <translation>les déclarations de type de document ne sont pas permises</translation>
    </message>
    <message>
        <source>&amp;Add Folder...</source>
        <translation>A&amp;jouter un dossier...</translation>
    </message>
    <message>
        <source>&amp;Remove Folder</source>
        <translation>&amp;Retirer le dossier</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Show the documents of one more folder</source>
        <translation>Montrer les documents d&apos;un dossier de plus</translation>
    </message>
    <message>
        <source>Show the folder no longer; nothing on the disk is touched</source>
        <translation>Ne plus montrer le dossier ; rien ne change sur le disque</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>No folder yet. Add one to see its documents here.</source>
        <translation>Pas encore de dossier. Ajoutez-en un pour voir ses documents ici.</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
</context>
<context>
    <name>ModelsModel</name>
    <message>
        <source>The folder is not there or cannot be read.</source>
        <translation>Le dossier n&apos;existe pas ou ne peut pas être lu.</translation>
    </message>
    <message>
        <source>%1 (no documents)</source>
        <translation>%1 (aucun document)</translation>
    </message>
    <message>
        <source>Cannot be read: %1</source>
        <translation>Illisible : %1</translation>
    </message>
</context>
<context>
    <name>MoveGesture</name>
    <message>
        <source>Move part</source>
        <translation>Déplacement d&apos;une pièce</translation>
    </message>
    <message numerus="yes">
        <source>Move %n parts</source>
        <translation>
            <numerusform>Déplacement de %n pièce</numerusform>
            <numerusform>Déplacement de %n pièces</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NoSelectionPane</name>
    <message>
        <source>Select a part to see and change its properties.</source>
        <translation>Sélectionnez une pièce pour voir et modifier ses propriétés.</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>Propriétés de la scène</translation>
    </message>
    <message>
        <source>Shows the properties of the scene on view</source>
        <translation>Montre les propriétés de la scène affichée</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1 was changed by another program.</source>
        <translation>%1 a été modifié par un autre programme.</translation>
    </message>
    <message>
        <source>Reloading shows what it wrote and loses what you have not saved.</source>
        <translation>Recharger montre ce qu&apos;il a écrit et perd ce que vous n&apos;avez pas enregistré.</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Re&amp;charger</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>&amp;Keep Mine</source>
        <translation>&amp;Garder le mien</translation>
    </message>
    <message>
        <source>%1 was deleted, renamed or moved by another program.</source>
        <translation>%1 a été supprimé, renommé ou déplacé par un autre programme.</translation>
    </message>
    <message>
        <source>What you see is in this window only until it is saved again.</source>
        <translation>Ce que vous voyez n&apos;est que dans cette fenêtre jusqu&apos;au prochain enregistrement.</translation>
    </message>
    <message>
        <source>Save A&amp;gain</source>
        <translation>&amp;Enregistrer de nouveau</translation>
    </message>
    <message>
        <source>Not &amp;Now</source>
        <translation>Pas &amp;maintenant</translation>
    </message>
    <message>
        <source>Re&amp;cover</source>
        <translation>Ré&amp;cupérer</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>Aban&amp;donner</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>Plus &amp;tard</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>ObserverColorPicker</name>
    <message>
        <source>%1, name of the colour</source>
        <translation>%1, nom de la couleur</translation>
    </message>
    <message>
        <source>This names no colour.</source>
        <translation>Cela ne désigne aucune couleur.</translation>
    </message>
</context>
<context>
    <name>ObserverComboBox</name>
    <message>
        <source>true</source>
        <translation>vrai</translation>
    </message>
    <message>
        <source>false</source>
        <translation>faux</translation>
    </message>
</context>
<context>
    <name>ObserverLineEdit</name>
    <message>
        <source>This text does not stand for a value of the kind that is needed here.</source>
        <translation>Ce texte ne représente pas une valeur de la sorte voulue ici.</translation>
    </message>
</context>
<context>
    <name>ObserverPoint</name>
    <message>
        <source>%1, x</source>
        <translation>%1, x</translation>
    </message>
    <message>
        <source>%1, y</source>
        <translation>%1, y</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>it differs from &quot;%1&quot; only by its extension</source>
        <translation>il ne diffère de « %1 » que par son extension</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no attribute &quot;%2&quot;</source>
        <translation>&lt;%1&gt; n&apos;a pas d&apos;attribut « %2 »</translation>
    </message>
    <message>
        <source>&lt;%1&gt; cannot stand in &lt;%2&gt;</source>
        <translation>&lt;%1&gt; ne peut pas se trouver dans &lt;%2&gt;</translation>
    </message>
    <message>
        <source>&lt;%1&gt; cannot have text here</source>
        <translation>&lt;%1&gt; ne peut pas avoir de texte ici</translation>
    </message>
    <message>
        <source>the file is larger than 16 MB</source>
        <translation>le fichier dépasse 16 Mo</translation>
    </message>
    <message>
        <source>the elements are nested too deep</source>
        <translation>les éléments sont trop imbriqués</translation>
    </message>
    <message>
        <source>document types and entities are not understood</source>
        <translation>les types de document et les entités ne sont pas compris</translation>
    </message>
    <message>
        <source>&lt;%1&gt; needs a key without blanks</source>
        <translation>&lt;%1&gt; a besoin d&apos;une clé sans espaces</translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; is made by the program itself</source>
        <translation>la propriété « %1 » est faite par le programme lui-même</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no type of a property</source>
        <translation>« %1 » n&apos;est pas un type de propriété</translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; is inherited with the type %2</source>
        <translation>la propriété « %1 » est héritée avec le type %2</translation>
    </message>
    <message>
        <source>a property has only one &lt;%1&gt;</source>
        <translation>une propriété n&apos;a qu&apos;un &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; is no whole number from %2 on: &quot;%3&quot;</source>
        <translation>l&apos;attribut « %1 » n&apos;est pas un nombre entier à partir de %2 : « %3 »</translation>
    </message>
    <message>
        <source>the attribute &quot;%1&quot; is none of %2: &quot;%3&quot;</source>
        <translation>l&apos;attribut « %1 » n&apos;est aucun de %2 : « %3 »</translation>
    </message>
    <message>
        <source>there is no resource &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de ressource « %1 »</translation>
    </message>
    <message>
        <source>the resource &quot;%1&quot; is of the type %2, not %3</source>
        <translation>la ressource « %1 » est du type %2, pas %3</translation>
    </message>
    <message>
        <source>values of the type %1 have no unit</source>
        <translation>les valeurs du type %1 n&apos;ont pas d&apos;unité</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; is not known</source>
        <translation>l&apos;unité « %1 » n&apos;est pas connue</translation>
    </message>
    <message>
        <source>the flag &quot;%1&quot; is not known</source>
        <translation>l&apos;indicateur « %1 » n&apos;est pas connu</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value of the type %2</source>
        <translation>« %1 » n&apos;est pas une valeur du type %2</translation>
    </message>
    <message>
        <source>a value of the type %1 is a text</source>
        <translation>une valeur du type %1 est un texte</translation>
    </message>
    <message>
        <source>the content is no value of the type %1</source>
        <translation>le contenu n&apos;est pas une valeur du type %1</translation>
    </message>
    <message>
        <source>the property has a default already</source>
        <translation>la propriété a déjà une valeur par défaut</translation>
    </message>
    <message>
        <source>a default of the type %1 stands in an element &lt;default&gt;</source>
        <translation>une valeur par défaut du type %1 se trouve dans un élément &lt;default&gt;</translation>
    </message>
    <message>
        <source>values of the type %1 have no format</source>
        <translation>les valeurs du type %1 n&apos;ont pas de format</translation>
    </message>
    <message>
        <source>the unit &quot;%1&quot; does not measure the same as &quot;%2&quot;</source>
        <translation>l&apos;unité « %1 » ne mesure pas la même chose que « %2 »</translation>
    </message>
    <message>
        <source>a validator needs a kind</source>
        <translation>une règle de validation a besoin d&apos;une sorte</translation>
    </message>
    <message>
        <source>values of the type %1 have no range</source>
        <translation>les valeurs du type %1 n&apos;ont pas d&apos;intervalle</translation>
    </message>
    <message>
        <source>the minimum %1 is greater than the maximum %2</source>
        <translation>le minimum %1 est plus grand que le maximum %2</translation>
    </message>
    <message>
        <source>values of the type %1 cannot be chosen from a set</source>
        <translation>les valeurs du type %1 ne peuvent pas être choisies dans un ensemble</translation>
    </message>
    <message>
        <source>the set is empty</source>
        <translation>l&apos;ensemble est vide</translation>
    </message>
    <message>
        <source>only texts have a pattern</source>
        <translation>seuls les textes ont un motif</translation>
    </message>
    <message>
        <source>the expression &quot;%1&quot; is faulty: %2</source>
        <translation>l&apos;expression « %1 » est incorrecte : %2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>elle est vide</translation>
    </message>
    <message>
        <source>only resources are chosen from resources</source>
        <translation>seules les ressources sont choisies parmi des ressources</translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; does not allow the value &quot;%2&quot;</source>
        <translation>la propriété « %1 » ne permet pas la valeur « %2 »</translation>
    </message>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>le fichier ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>this is no package but &lt;%1&gt;</source>
        <translation>ce n&apos;est pas un paquet mais &lt;%1&gt;</translation>
    </message>
    <message>
        <source>the attribute &quot;format&quot; is missing</source>
        <translation>l&apos;attribut « format » manque</translation>
    </message>
    <message>
        <source>the package has the format %1, this program understands %2</source>
        <translation>le paquet a le format %1, ce programme comprend %2</translation>
    </message>
    <message>
        <source>a package needs a name of letters, digits, &apos;-&apos; and &apos;_&apos;</source>
        <translation>un paquet a besoin d&apos;un nom fait de lettres, de chiffres, de « - » et de « _ »</translation>
    </message>
    <message>
        <source>the package &quot;%1&quot; must stand in a folder of that name</source>
        <translation>le paquet « %1 » doit se trouver dans un dossier de ce nom</translation>
    </message>
    <message>
        <source>no package can have the name &quot;%1&quot;</source>
        <translation>aucun paquet ne peut porter le nom « %1 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no class id such as &quot;electronics/led&quot;</source>
        <translation>« %1 » n&apos;est pas un identifiant de classe comme « electronics/led »</translation>
    </message>
    <message>
        <source>the class &quot;%1&quot; is defined twice</source>
        <translation>la classe « %1 » est définie deux fois</translation>
    </message>
    <message>
        <source>another package defines the class &quot;%1&quot;</source>
        <translation>un autre paquet définit la classe « %1 »</translation>
    </message>
    <message>
        <source>there is no class %1</source>
        <translation>il n&apos;y a pas de classe %1</translation>
    </message>
    <message>
        <source>the class %1 needs itself as a base or subpart</source>
        <translation>la classe %1 a besoin d&apos;elle-même comme base ou sous-pièce</translation>
    </message>
    <message>
        <source>the classes are nested too deep</source>
        <translation>les classes sont trop imbriquées</translation>
    </message>
    <message>
        <source>a class has at most %1 properties, values, forms, substitutions, subparts, rules and bases, with those of its bases</source>
        <translation>une classe a au plus %1 propriétés, valeurs, formulaires, substitutions, sous-pièces, règles et classes de base, y compris ceux de ses classes de base</translation>
    </message>
    <message>
        <source>the classes of a package have at most %1 properties, subparts and so on together</source>
        <translation>les classes d&apos;un paquet ont ensemble au plus %1 propriétés, sous-pièces et autres</translation>
    </message>
    <message>
        <source>a part of the class would have more than %1 subparts</source>
        <translation>une pièce de la classe aurait plus de %1 sous-pièces</translation>
    </message>
    <message>
        <source>a part of the class would have subparts more than %1 deep in one another</source>
        <translation>une pièce de la classe aurait des sous-pièces imbriquées sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>a class without a base needs a kind</source>
        <translation>une classe sans base a besoin d&apos;une sorte</translation>
    </message>
    <message>
        <source>the base %1 is of another kind</source>
        <translation>la base %1 est d&apos;une autre sorte</translation>
    </message>
    <message>
        <source>domains have ids such as &quot;electronics/*&quot;, other classes have not</source>
        <translation>les domaines ont des identifiants comme « electronics/* », les autres classes non</translation>
    </message>
    <message>
        <source>the class %1 is no pop-up</source>
        <translation>la classe %1 n&apos;est pas une bulle</translation>
    </message>
    <message>
        <source>only parts have a pop-up</source>
        <translation>seules les pièces ont une bulle</translation>
    </message>
    <message>
        <source>a class without a pop-up cannot show its pane</source>
        <translation>une classe sans bulle ne peut pas en montrer le volet</translation>
    </message>
    <message>
        <source>the property &quot;%1&quot; is given twice</source>
        <translation>la propriété « %1 » est donnée deux fois</translation>
    </message>
    <message>
        <source>no base of the class has the property &quot;%1&quot;</source>
        <translation>aucune base de la classe n&apos;a la propriété « %1 »</translation>
    </message>
    <message>
        <source>the name of the form is missing</source>
        <translation>le nom du formulaire manque</translation>
    </message>
    <message>
        <source>a substitution needs a string and either a resource or a text</source>
        <translation>une substitution a besoin d&apos;une chaîne et soit d&apos;une ressource, soit d&apos;un texte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is substituted twice</source>
        <translation>« %1 » est remplacé deux fois</translation>
    </message>
    <message>
        <source>only parts and subparts have subparts</source>
        <translation>seules les pièces et les sous-pièces ont des sous-pièces</translation>
    </message>
    <message>
        <source>there are two rules for the same role</source>
        <translation>il y a deux règles pour le même rôle</translation>
    </message>
    <message>
        <source>the class of the subpart is missing</source>
        <translation>la classe de la sous-pièce manque</translation>
    </message>
    <message>
        <source>no subpart can be of the class %1</source>
        <translation>aucune sous-pièce ne peut être de la classe %1</translation>
    </message>
    <message>
        <source>the class %1 has no property &quot;%2&quot;</source>
        <translation>la classe %1 n&apos;a pas de propriété « %2 »</translation>
    </message>
    <message>
        <source>a rule for subparts needs one role</source>
        <translation>une règle pour les sous-pièces a besoin d&apos;un rôle</translation>
    </message>
    <message>
        <source>there is no class &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de classe « %1 »</translation>
    </message>
    <message>
        <source>there is a package &quot;%1&quot; already</source>
        <translation>il y a déjà un paquet « %1 »</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>the class belongs to no domain</source>
        <translation>la classe n&apos;appartient à aucun domaine</translation>
    </message>
    <message>
        <source>there is a class &quot;%1&quot; already</source>
        <translation>il y a déjà une classe « %1 »</translation>
    </message>
    <message>
        <source>the packages &quot;%1&quot; and &quot;%2&quot; would need each other</source>
        <translation>les paquets « %1 » et « %2 » auraient besoin l&apos;un de l&apos;autre</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>le dossier %1 ne peut pas être créé</translation>
    </message>
    <message>
        <source>the package &quot;%1&quot; is not the user&apos;s</source>
        <translation>le paquet « %1 » n&apos;est pas celui de l&apos;utilisateur</translation>
    </message>
</context>
<context>
    <name>PackageCheck</name>
    <message>
        <source>the file cannot be read: %1</source>
        <translation>le fichier ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>the extension stands for no kind of resource: the file is never used</source>
        <translation>l&apos;extension ne correspond à aucune sorte de ressource : le fichier n&apos;est jamais utilisé</translation>
    </message>
    <message>
        <source>nothing names the file</source>
        <translation>rien ne nomme le fichier</translation>
    </message>
</context>
<context>
    <name>PageSetupDialog</name>
    <message>
        <source>Page Setup</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>&amp;Margins (mm):</source>
        <translation>&amp;Marges (mm) :</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Page &amp;Size:</source>
        <translation>&amp;Taille de la page :</translation>
    </message>
    <message>
        <source>O&amp;rientation:</source>
        <translation>O&amp;rientation :</translation>
    </message>
    <message>
        <source>Scale to Page &amp;Width:</source>
        <translation>Mettre à la &amp;largeur de la page :</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Scale &amp;Factor:</source>
        <translation>&amp;Facteur d&apos;échelle :</translation>
    </message>
    <message>
        <source>The first page with its margins</source>
        <translation>La première page avec ses marges</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>%1 margin in millimetres</source>
        <translation>Marge : %1, en millimètres</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>A0 (841 x 1189 mm)</source>
        <translation>A0 (841 x 1189 mm)</translation>
    </message>
    <message>
        <source>A1 (594 x 841 mm)</source>
        <translation>A1 (594 x 841 mm)</translation>
    </message>
    <message>
        <source>A2 (420 x 594 mm)</source>
        <translation>A2 (420 x 594 mm)</translation>
    </message>
    <message>
        <source>A3 (297 x 420 mm)</source>
        <translation>A3 (297 x 420 mm)</translation>
    </message>
    <message>
        <source>A4 (210 x 297 mm)</source>
        <translation>A4 (210 x 297 mm)</translation>
    </message>
    <message>
        <source>A5 (148 x 210 mm)</source>
        <translation>A5 (148 x 210 mm)</translation>
    </message>
    <message>
        <source>A6 (105 x 148 mm)</source>
        <translation>A6 (105 x 148 mm)</translation>
    </message>
    <message>
        <source>A7 (74 x 105 mm)</source>
        <translation>A7 (74 x 105 mm)</translation>
    </message>
    <message>
        <source>A8 (52 x 74 mm)</source>
        <translation>A8 (52 x 74 mm)</translation>
    </message>
    <message>
        <source>A9 (37 x 52 mm)</source>
        <translation>A9 (37 x 52 mm)</translation>
    </message>
    <message>
        <source>B0 (1000 x 1414 mm)</source>
        <translation>B0 (1000 x 1414 mm)</translation>
    </message>
    <message>
        <source>B1 (707 x 1000 mm)</source>
        <translation>B1 (707 x 1000 mm)</translation>
    </message>
    <message>
        <source>B2 (500 x 707 mm)</source>
        <translation>B2 (500 x 707 mm)</translation>
    </message>
    <message>
        <source>B3 (353 x 500 mm)</source>
        <translation>B3 (353 x 500 mm)</translation>
    </message>
    <message>
        <source>B4 (250 x 353 mm)</source>
        <translation>B4 (250 x 353 mm)</translation>
    </message>
    <message>
        <source>B5 (176 x 250 mm)</source>
        <translation>B5 (176 x 250 mm)</translation>
    </message>
    <message>
        <source>B6 (125 x 176 mm)</source>
        <translation>B6 (125 x 176 mm)</translation>
    </message>
    <message>
        <source>B7 (88 x 125 mm)</source>
        <translation>B7 (88 x 125 mm)</translation>
    </message>
    <message>
        <source>B8 (62 x 88 mm)</source>
        <translation>B8 (62 x 88 mm)</translation>
    </message>
    <message>
        <source>B9 (44 x 62 mm)</source>
        <translation>B9 (44 x 62 mm)</translation>
    </message>
    <message>
        <source>B10 (31 x 44 mm)</source>
        <translation>B10 (31 x 44 mm)</translation>
    </message>
    <message>
        <source>C5E (163 x 229 mm)</source>
        <translation>C5E (163 x 229 mm)</translation>
    </message>
    <message>
        <source>DLE (110 x 220 mm)</source>
        <translation>DLE (110 x 220 mm)</translation>
    </message>
    <message>
        <source>Executive (191 x 254 mm)</source>
        <translation>Executive (191 x 254 mm)</translation>
    </message>
    <message>
        <source>Folio (210 x 330 mm)</source>
        <translation>Folio (210 x 330 mm)</translation>
    </message>
    <message>
        <source>Ledger (432 x 279 mm)</source>
        <translation>Ledger (432 x 279 mm)</translation>
    </message>
    <message>
        <source>Legal (216 x 356 mm)</source>
        <translation>Legal (216 x 356 mm)</translation>
    </message>
    <message>
        <source>Letter (216 x 279 mm)</source>
        <translation>Letter (216 x 279 mm)</translation>
    </message>
    <message>
        <source>Tabloid (279 x 432 mm)</source>
        <translation>Tabloid (279 x 432 mm)</translation>
    </message>
    <message>
        <source>Envelope #10 (105 x 241 mm)</source>
        <translation>Enveloppe #10 (105 x 241 mm)</translation>
    </message>
</context>
<context>
    <name>PaletteBoxSection</name>
    <message>
        <source>Section</source>
        <translation>Section</translation>
    </message>
</context>
<context>
    <name>PaletteButtonBar</name>
    <message>
        <source>expanded</source>
        <translation>dépliée</translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation>repliée</translation>
    </message>
</context>
<context>
    <name>Palettes</name>
    <message>
        <source>Side Pane</source>
        <translation>Volet latéral</translation>
    </message>
    <message>
        <source>I&amp;nspector...</source>
        <translation>I&amp;nspecteur...</translation>
    </message>
    <message>
        <source>Show the tree of everything in the document</source>
        <translation>Montrer l&apos;arbre de tout ce qui est dans le document</translation>
    </message>
</context>
<context>
    <name>PanelTopArea</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>Un nom court sans espaces par lequel les autres choses désignent la pièce.</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>Rien de sélectionné</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <extracomment>A number of parts of one kind: &quot;3 × LED&quot;</extracomment>
        <translation>%1 × %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln parts</source>
        <translation>
            <numerusform>%Ln pièce</numerusform>
            <numerusform>%Ln pièces</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PartChoiceModel</name>
    <message>
        <source>All parts</source>
        <translation>Toutes les pièces</translation>
    </message>
</context>
<context>
    <name>PartEditor</name>
    <message>
        <source>Select the two parts that it shall connect first.</source>
        <translation>Sélectionnez d&apos;abord les deux pièces à relier.</translation>
    </message>
    <message>
        <source>What was dropped is not a part.</source>
        <translation>Ce qui a été déposé n&apos;est pas une pièce.</translation>
    </message>
</context>
<context>
    <name>PartHelp</name>
    <message>
        <source>Group: %1</source>
        <translation>Groupe : %1</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
    <message>
        <source>How properties are changed</source>
        <translation>Comment modifier les propriétés</translation>
    </message>
</context>
<context>
    <name>PartIdLineEdit</name>
    <message numerus="yes">
        <source>Rename %n parts</source>
        <translation>
            <numerusform>Renommer %n pièce</numerusform>
            <numerusform>Renommer %n pièces</numerusform>
        </translation>
    </message>
    <message>
        <source>There is one number in an id: write # once.</source>
        <translation>Un identifiant contient un seul numéro : écrivez # une fois.</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
</context>
<context>
    <name>PartsModel</name>
    <message>
        <source>Package: %1</source>
        <translation>Paquet : %1</translation>
    </message>
    <message>
        <source>Key stage: %1</source>
        <translation>Niveau : %1</translation>
    </message>
</context>
<context>
    <name>PartsTree</name>
    <message>
        <source>Search parts</source>
        <translation>Chercher des pièces</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Pièces</translation>
    </message>
    <message>
        <source>There are no parts.</source>
        <translation>Il n&apos;y a pas de pièces.</translation>
    </message>
    <message>
        <source>No part matches the search.</source>
        <translation>Aucune pièce ne correspond à la recherche.</translation>
    </message>
</context>
<context>
    <name>PerfMeter</name>
    <message>
        <source>Performance</source>
        <translation>Performances</translation>
    </message>
</context>
<context>
    <name>PlusMinusButton</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>As each property says</source>
        <translation>Comme le dit chaque propriété</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimètres</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Centimètres</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pouces</translation>
    </message>
    <message>
        <source>The crash report only</source>
        <translation>Seulement dans le rapport d&apos;incident</translation>
    </message>
    <message>
        <source>Standard output</source>
        <translation>Sortie standard</translation>
    </message>
    <message>
        <source>Standard error</source>
        <translation>Sortie d&apos;erreur standard</translation>
    </message>
    <message>
        <source>A file (velmor.log)</source>
        <translation>Dans un fichier (velmor.log)</translation>
    </message>
    <message>
        <source>A window</source>
        <translation>Dans une fenêtre</translation>
    </message>
    <message>
        <source>Nowhere</source>
        <translation>Nulle part</translation>
    </message>
    <message>
        <source>The system&apos;s</source>
        <translation>Celle du système</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Takes effect when the program starts again.</source>
        <translation>Prend effet au prochain démarrage du programme.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue :</translation>
    </message>
    <message>
        <source>Show lengths &amp;in:</source>
        <translation>Montrer les lon&amp;gueurs en :</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Steps kept for &amp;undo:</source>
        <translation>Pas gardés pour l&apos;ann&amp;ulation :</translation>
    </message>
    <message>
        <source>The &amp;wheel zooms scenes (with Ctrl it scrolls them)</source>
        <translation>La &amp;molette change le zoom des scènes (avec Ctrl elle les fait défiler)</translation>
    </message>
    <message>
        <source>&amp;Messages go to:</source>
        <translation>Les m&amp;essages vont :</translation>
    </message>
    <message>
        <source>The preferences hold until the program ends: they cannot be kept.</source>
        <translation>Les préférences valent jusqu&apos;à la fin du programme : elles ne peuvent pas être gardées.</translation>
    </message>
    <message>
        <source>The language of all texts, and how numbers are written.</source>
        <translation>La langue de tous les textes et l’écriture des nombres.</translation>
    </message>
    <message>
        <source>What these settings do</source>
        <translation>Ce que font ces réglages</translation>
    </message>
    <message>
        <source>The unit in which fields of lengths begin; each of them offers the others as well.</source>
        <translation>L&apos;unité avec laquelle commencent les champs de longueur ; chacun propose aussi les autres.</translation>
    </message>
</context>
<context>
    <name>PrintCommand</name>
    <message>
        <source>There is nothing to print, or the margins leave no room on the paper.</source>
        <translation>Il n&apos;y a rien à imprimer, ou les marges ne laissent pas de place sur le papier.</translation>
    </message>
    <message numerus="yes">
        <source>At this scale the document needs %n pages; no more than %1 are exported.</source>
        <translation>
            <numerusform>À cette échelle, le document a besoin de %n page ; pas plus de %1 ne sont exportées.</numerusform>
            <numerusform>À cette échelle, le document a besoin de %n pages ; pas plus de %1 ne sont exportées.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 ne peut pas être écrit : %2</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>The document could not be printed.</source>
        <translation>Le document n&apos;a pas pu être imprimé.</translation>
    </message>
    <message>
        <source>The printer did not take the pages.</source>
        <translation>L&apos;imprimante n&apos;a pas accepté les pages.</translation>
    </message>
    <message>
        <source>Export to PDF</source>
        <translation>Exporter en PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf)</source>
        <translation>Fichiers PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>%1 exporté</translation>
    </message>
    <message>
        <source>%1 could not be written.</source>
        <translation>%1 n&apos;a pas pu être écrit.</translation>
    </message>
    <message>
        <source>Export to SVG</source>
        <translation>Exporter en SVG</translation>
    </message>
    <message>
        <source>SVG drawings (*.svg)</source>
        <translation>Dessins SVG (*.svg)</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
</context>
<context>
    <name>ProductPackage</name>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Models (*.%1)</source>
        <translation>Modèles (*.%1)</translation>
    </message>
</context>
<context>
    <name>PropPalette</name>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Multiple parts selected</source>
        <translation>Plusieurs pièces sélectionnées</translation>
    </message>
    <message>
        <source>This part has no properties</source>
        <translation>Cette pièce n&apos;a pas de propriétés</translation>
    </message>
    <message>
        <source>Scene Properties</source>
        <translation>Propriétés de la scène</translation>
    </message>
</context>
<context>
    <name>PropertyChoiceModel</name>
    <message>
        <source>The property is not there any more.</source>
        <translation>La propriété n&apos;existe plus.</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Pièce</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Can be linked</source>
        <translation>Peut être liée</translation>
    </message>
    <message>
        <source>Linked</source>
        <translation>Liée</translation>
    </message>
    <message>
        <source>Possible</source>
        <translation>Possible</translation>
    </message>
</context>
<context>
    <name>PropertyFilter</name>
    <message>
        <source>One of the properties is gone.</source>
        <translation>L&apos;une des propriétés n&apos;existe plus.</translation>
    </message>
    <message>
        <source>A property cannot follow itself.</source>
        <translation>Une propriété ne peut pas se suivre elle-même.</translation>
    </message>
    <message>
        <source>The properties belong to different documents.</source>
        <translation>Les propriétés appartiennent à des documents différents.</translation>
    </message>
    <message>
        <source>This property cannot be followed.</source>
        <translation>Cette propriété ne peut pas être suivie.</translation>
    </message>
    <message>
        <source>The property is of another type.</source>
        <translation>La propriété est d&apos;un autre type.</translation>
    </message>
    <message>
        <source>The property follows this one already.</source>
        <translation>La propriété suit déjà celle-ci.</translation>
    </message>
</context>
<context>
    <name>PropertyListBox</name>
    <message>
        <source>Search</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Search for a property</source>
        <translation>Chercher une propriété</translation>
    </message>
    <message>
        <source>Part whose properties are listed</source>
        <translation>Pièce dont les propriétés sont énumérées</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Detach</source>
        <translation>Détacher</translation>
    </message>
    <message>
        <source>Follows %1: %2</source>
        <translation>Suit %1 : %2</translation>
    </message>
    <message>
        <source>Nothing is found that could be followed.</source>
        <translation>Rien n&apos;est trouvé qui puisse être suivi.</translation>
    </message>
    <message>
        <source>The selected parts do not follow the same.</source>
        <translation>Les pièces sélectionnées ne suivent pas la même chose.</translation>
    </message>
</context>
<context>
    <name>PropertyTable</name>
    <message>
        <source>Filter properties</source>
        <translation>Filtrer les propriétés</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy &amp;All</source>
        <translation>&amp;Tout copier</translation>
    </message>
</context>
<context>
    <name>PropertyTableModel</name>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Indicateurs</translation>
    </message>
    <message>
        <source>Follows</source>
        <translation>Suit</translation>
    </message>
</context>
<context>
    <name>ProxyCommands</name>
    <message>
        <source>Link of %1</source>
        <translation>Lien de %1</translation>
    </message>
    <message>
        <source>One of the properties is not there any more.</source>
        <translation>L&apos;une des propriétés n&apos;existe plus.</translation>
    </message>
    <message>
        <source>A property that the program works out cannot follow another.</source>
        <translation>Une propriété que le programme calcule ne peut pas en suivre une autre.</translation>
    </message>
    <message>
        <source>Detaching of %1</source>
        <translation>Détachement de %1</translation>
    </message>
    <message>
        <source>The property is not there any more.</source>
        <translation>La propriété n&apos;existe plus.</translation>
    </message>
</context>
<context>
    <name>QXmlStream</name>
    <message>
        <source>Encountered incorrectly encoded content.</source>
        <translation>Contenu mal encodé.</translation>
    </message>
</context>
<context>
    <name>QtColorPicker</name>
    <message>
        <source>Different colours</source>
        <translation>Couleurs différentes</translation>
    </message>
</context>
<context>
    <name>ReaderActions</name>
    <message>
        <source>The link &quot;%1&quot; cannot be opened.</source>
        <translation>Le lien « %1 » ne peut pas être ouvert.</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>No recent files</source>
        <translation>Aucun document récent</translation>
    </message>
</context>
<context>
    <name>RecoveryOffers</name>
    <message>
        <source>What was kept of a document cannot be read.</source>
        <translation>Ce qui a été gardé d&apos;un document ne peut pas être lu.</translation>
    </message>
    <message>
        <source>A document that was never saved can be recovered.</source>
        <translation>Un document jamais enregistré peut être récupéré.</translation>
    </message>
    <message>
        <source>Changes to %1 that were not saved can be recovered.</source>
        <translation>Des modifications de %1 non enregistrées peuvent être récupérées.</translation>
    </message>
    <message>
        <source>The damaged file is %1.</source>
        <translation>Le fichier endommagé est %1.</translation>
    </message>
    <message>
        <source>Last saved: %1.</source>
        <translation>Dernier enregistrement : %1.</translation>
    </message>
    <message>
        <source>Last kept: %1.</source>
        <translation>Dernière sauvegarde : %1.</translation>
    </message>
    <message>
        <source>The file itself is not there any more.</source>
        <translation>Le fichier lui-même n&apos;existe plus.</translation>
    </message>
    <message>
        <source>The file itself is newer: it was changed on %1.</source>
        <translation>Le fichier lui-même est plus récent : il a été modifié le %1.</translation>
    </message>
    <message>
        <source>The file itself was changed since, on %1.</source>
        <translation>Le fichier lui-même a été modifié depuis, le %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryPlace</name>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>Le dossier %1 ne peut pas être écrit.</translation>
    </message>
</context>
<context>
    <name>ReflectCommand</name>
    <message>
        <source>Reflection</source>
        <translation>Reflet</translation>
    </message>
    <message>
        <source>Removal of a reflection</source>
        <translation>Suppression d&apos;un reflet</translation>
    </message>
    <message>
        <source>There is no such part, or no place for the reflection.</source>
        <translation>Il n&apos;y a pas de telle pièce, ou pas de place pour le reflet.</translation>
    </message>
    <message>
        <source>A reflection stands in a scene or a pop-up.</source>
        <translation>Un reflet se trouve dans une scène ou une bulle.</translation>
    </message>
    <message>
        <source>There is no such reflection.</source>
        <translation>Il n&apos;y a pas de tel reflet.</translation>
    </message>
    <message>
        <source>The part has nothing of the kind to reflect.</source>
        <translation>La pièce n&apos;a rien de cette sorte à refléter.</translation>
    </message>
    <message>
        <source>An instance id is in use already.</source>
        <translation>Un numéro d&apos;instance est déjà utilisé.</translation>
    </message>
    <message>
        <source>The document has no more instance ids for new objects.</source>
        <translation>Le document n&apos;a plus d&apos;identifiants d&apos;instance pour de nouveaux objets.</translation>
    </message>
</context>
<context>
    <name>ReflectMenu</name>
    <message>
        <source>&amp;Controls</source>
        <translation>&amp;Commandes</translation>
    </message>
    <message>
        <source>&amp;Pads</source>
        <translation>&amp;Pastilles</translation>
    </message>
    <message>
        <source>&amp;Body</source>
        <translation>Co&amp;rps</translation>
    </message>
</context>
<context>
    <name>RemoveResourceCommand</name>
    <message>
        <source>Removal of %1</source>
        <translation>Suppression de %1</translation>
    </message>
</context>
<context>
    <name>Resource</name>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sons</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textes</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Scripts</source>
        <translation>Scripts</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Polices</translation>
    </message>
    <message>
        <source>Forms</source>
        <translation>Formulaires</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
</context>
<context>
    <name>ResourceChooser</name>
    <message>
        <source>Import a file</source>
        <translation>Importer un fichier</translation>
    </message>
    <message>
        <source>Export to a file</source>
        <translation>Exporter dans un fichier</translation>
    </message>
    <message>
        <source>No resource</source>
        <translation>Aucune ressource</translation>
    </message>
    <message>
        <source>Different</source>
        <translation>Différentes</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Manquante</translation>
    </message>
    <message>
        <source>Preview: %1</source>
        <translation>Aperçu : %1</translation>
    </message>
    <message>
        <source>Only one file can be taken here.</source>
        <translation>Un seul fichier peut être pris ici.</translation>
    </message>
</context>
<context>
    <name>ResourceImport</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de fichier « %1 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder.</source>
        <translation>« %1 » est un dossier.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2</source>
        <translation>Le fichier « %1 » ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is larger than 64 MB.</source>
        <translation>Le fichier « %1 » dépasse 64 Mo.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be used here: it does not hold data of the kind &quot;%2&quot;.</source>
        <translation>Le fichier « %1 » ne peut pas être utilisé ici : il ne contient pas de données de la sorte « %2 ».</translation>
    </message>
    <message>
        <source>Reading files...</source>
        <translation>Lecture des fichiers...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importation</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written: %2</source>
        <translation>Le fichier « %1 » ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a device or a channel to another program, not a file.</source>
        <translation>« %1 » est un périphérique ou un canal vers un autre programme, pas un fichier.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>Le fichier « %1 » est vide.</translation>
    </message>
</context>
<context>
    <name>ResourceListBox</name>
    <message>
        <source>Add files</source>
        <translation>Ajouter des fichiers</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Preview: %1</source>
        <translation>Aperçu : %1</translation>
    </message>
    <message>
        <source>The selected parts have different lists. What is added becomes the list of all.</source>
        <translation>Les pièces sélectionnées ont des listes différentes. Ce qui est ajouté devient la liste de toutes.</translation>
    </message>
</context>
<context>
    <name>ResourceModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 manque</translation>
    </message>
</context>
<context>
    <name>ResourceRename</name>
    <message>
        <source>The name must not be empty.</source>
        <translation>Le nom ne doit pas être vide.</translation>
    </message>
    <message>
        <source>The name must not contain a slash.</source>
        <translation>Le nom ne doit pas contenir de barre oblique.</translation>
    </message>
    <message>
        <source>Another resource has this name.</source>
        <translation>Une autre ressource a ce nom.</translation>
    </message>
</context>
<context>
    <name>SceneView</name>
    <message>
        <source>Scene %1</source>
        <translation>Scène %1</translation>
    </message>
    <message>
        <source>Arrow keys move the selected parts by one millimetre, with Shift by ten.</source>
        <translation>Les touches fléchées déplacent les pièces sélectionnées d&apos;un millimètre, avec Maj de dix.</translation>
    </message>
</context>
<context>
    <name>SelectAllCommand</name>
    <message>
        <source>Selection of everything</source>
        <translation>Sélection de tout</translation>
    </message>
    <message>
        <source>The scene is not there any more.</source>
        <translation>La scène n&apos;existe plus.</translation>
    </message>
</context>
<context>
    <name>SetNodeIndexCommand</name>
    <message>
        <source>Change of order</source>
        <translation>Changement d&apos;ordre</translation>
    </message>
    <message>
        <source>There is no such object to move.</source>
        <translation>Il n&apos;y a pas de tel objet à déplacer.</translation>
    </message>
</context>
<context>
    <name>SetUILockedCommand</name>
    <message numerus="yes">
        <source>Locking of %n object(s)</source>
        <translation>
            <numerusform>Verrouillage de %n objet</numerusform>
            <numerusform>Verrouillage de %n objets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocking of %n object(s)</source>
        <translation>
            <numerusform>Déverrouillage de %n objet</numerusform>
            <numerusform>Déverrouillage de %n objets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SetValueCommand</name>
    <message>
        <source>Change of %1</source>
        <translation>Modification de %1</translation>
    </message>
    <message numerus="yes">
        <source>Change of %1 (%n objects)</source>
        <translation>
            <numerusform>Modification de %1 (%n objet)</numerusform>
            <numerusform>Modification de %1 (%n objets)</numerusform>
        </translation>
    </message>
    <message>
        <source>The object is not there any more.</source>
        <translation>L&apos;objet n&apos;existe plus.</translation>
    </message>
    <message>
        <source>There is no property &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de propriété « %1 ».</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; is worked out by the program and cannot be set.</source>
        <translation>La propriété « %1 » est calculée par le programme et ne peut pas être fixée.</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; follows another one and cannot be set.</source>
        <translation>La propriété « %1 » en suit une autre et ne peut pas être fixée.</translation>
    </message>
    <message>
        <source>The property &quot;%1&quot; cannot hold a value of the type %2.</source>
        <translation>La propriété « %1 » ne peut pas contenir une valeur du type %2.</translation>
    </message>
</context>
<context>
    <name>ShortcutButton</name>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Deletes what is selected</source>
        <translation>Supprime ce qui est sélectionné</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Adds a copy of what is selected</source>
        <translation>Ajoute une copie de ce qui est sélectionné</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <source>Keeps what is selected from being changed</source>
        <translation>Protège des modifications ce qui est sélectionné</translation>
    </message>
    <message>
        <source>Reflect</source>
        <translation>Refléter</translation>
    </message>
    <message>
        <source>Shows the part in another place as well</source>
        <translation>Montre la pièce aussi à un autre endroit</translation>
    </message>
    <message>
        <source>Show Pop-up</source>
        <translation>Montrer la bulle</translation>
    </message>
    <message>
        <source>Opens the pop-up of the part</source>
        <translation>Ouvre la bulle de la pièce</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Tells more about what is selected</source>
        <translation>En dit plus sur ce qui est sélectionné</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>ShowPopupCommand</name>
    <message>
        <source>Showing of a pop-up</source>
        <translation>Ouverture d&apos;une bulle</translation>
    </message>
    <message>
        <source>Hiding of a pop-up</source>
        <translation>Fermeture d&apos;une bulle</translation>
    </message>
    <message>
        <source>The part has no pop-up.</source>
        <translation>La pièce n&apos;a pas de bulle.</translation>
    </message>
</context>
<context>
    <name>SidePane</name>
    <message>
        <source>Side Pane</source>
        <translation>Volet latéral</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modèles</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Pièces</translation>
    </message>
</context>
<context>
    <name>SpacePropertyPane</name>
    <message>
        <source>This scene has no properties</source>
        <translation>Cette scène n&apos;a pas de propriétés</translation>
    </message>
</context>
<context>
    <name>SpaceTabs</name>
    <message>
        <source>Scenes and pop-ups</source>
        <translation>Scènes et bulles</translation>
    </message>
    <message>
        <source>Po&amp;p-ups</source>
        <translation>&amp;Bulles</translation>
    </message>
    <message>
        <source>Open the pop-up of a part</source>
        <translation>Ouvrir la bulle d&apos;une pièce</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Scène</translation>
    </message>
    <message>
        <source>Pop-up</source>
        <translation>Bulle</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No part here has a pop-up</source>
        <translation>Aucune pièce ici n&apos;a de bulle</translation>
    </message>
    <message>
        <source>Double-click a part to open others</source>
        <translation>Un double-clic sur une pièce en ouvre d&apos;autres</translation>
    </message>
</context>
<context>
    <name>StartOptions</name>
    <message>
        <source>Shows and edits interactive teaching models.</source>
        <translation>Montre et modifie des modèles pédagogiques interactifs.</translation>
    </message>
    <message>
        <source>Where messages go: stdout, stderr, file (velmor.log in the current folder), console (a window) or none.</source>
        <translation>Où vont les messages : stdout, stderr, file (velmor.log dans le dossier courant), console (une fenêtre) ou none.</translation>
    </message>
    <message>
        <source>Write a picture of the main window into a PNG file and quit.</source>
        <translation>Écrire une image de la fenêtre principale dans un fichier PNG et quitter.</translation>
    </message>
    <message>
        <source>Select the part with this id for the picture. May be given several times.</source>
        <translation>Sélectionner la pièce de cet identifiant pour l&apos;image. Peut être donné plusieurs fois.</translation>
    </message>
    <message>
        <source>Let the picture show the forms of what is selected from top to bottom, alone.</source>
        <translation>L&apos;image ne montre que les formulaires de la sélection, de haut en bas.</translation>
    </message>
    <message>
        <source>The document to open.</source>
        <translation>Le document à ouvrir.</translation>
    </message>
    <message>
        <source>--log takes stdout, stderr, file, console or none, not &quot;%1&quot;.</source>
        <translation>--log accepte stdout, stderr, file, console ou none, pas « %1 ».</translation>
    </message>
    <message>
        <source>--screenshot needs the name of a file.</source>
        <translation>--screenshot a besoin du nom d&apos;un fichier.</translation>
    </message>
    <message>
        <source>--%1 only works together with --screenshot.</source>
        <translation>--%1 ne fonctionne qu&apos;avec --screenshot.</translation>
    </message>
    <message>
        <source>The language of this run, such as de or fr_FR.</source>
        <translation>La langue de cette exécution, par exemple de ou fr_FR.</translation>
    </message>
    <message numerus="yes">
        <source>Only one document can be opened, but %n were given.</source>
        <translation>
            <numerusform>Un seul document peut être ouvert, mais %n a été indiqué.</numerusform>
            <numerusform>Un seul document peut être ouvert, mais %n ont été indiqués.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tell what is wrong with a form, and quit. The exit code is 0 when nothing is, 1 for errors, 2 when the form cannot be read.</source>
        <translation>Dire ce qui ne va pas dans un formulaire, et quitter. Le code de sortie est 0 si tout va bien, 1 en cas d&apos;erreurs, 2 si le formulaire ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Check the form for this class. May be given several times. Without it, the form is checked for the classes that name it.</source>
        <translation>Vérifier le formulaire pour cette classe. Peut être donné plusieurs fois. Sans cela, le formulaire est vérifié pour les classes qui le nomment.</translation>
    </message>
    <message>
        <source>Tell what is wrong with a package folder and its forms, and quit.</source>
        <translation>Dire ce qui ne va pas dans un dossier de paquet et ses formulaires, et quitter.</translation>
    </message>
    <message>
        <source>--%1 needs the name of a file or folder.</source>
        <translation>--%1 a besoin du nom d&apos;un fichier ou d&apos;un dossier.</translation>
    </message>
    <message>
        <source>--class only works together with --check-form.</source>
        <translation>--class ne fonctionne qu&apos;avec --check-form.</translation>
    </message>
    <message>
        <source>--check-form and --check-package cannot be given together.</source>
        <translation>--check-form et --check-package ne peuvent pas être donnés ensemble.</translation>
    </message>
    <message>
        <source>Dark colours, whatever those of the desktop are.</source>
        <translation>Couleurs sombres, quelles que soient celles du bureau.</translation>
    </message>
    <message>
        <source>Let the picture show the dialog of a menu entry: preferences, page-setup, save-custom-part, licence or about.</source>
        <translation>L’image montre le dialogue d’une entrée de menu : preferences, page-setup, save-custom-part, licence ou about.</translation>
    </message>
    <message>
        <source>Run the flowcharts for so many seconds before the picture.</source>
        <translation>Exécuter les organigrammes pendant ce nombre de secondes avant l’image.</translation>
    </message>
    <message>
        <source>--run takes seconds up to %1, not &quot;%2&quot;.</source>
        <translation>--run attend des secondes jusqu’à %1, pas « %2 ».</translation>
    </message>
    <message>
        <source>Let the picture show a palette alone: lockPalette, assocPalette, advancedPalette, debugPalette or inspector.</source>
        <translation>Montre dans l&apos;image une palette seule : lockPalette, assocPalette, advancedPalette, debugPalette ou inspector.</translation>
    </message>
</context>
<context>
    <name>StatisticsPane</name>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Dernier</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Least</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Greatest</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>Curve of the selected statistic</source>
        <translation>Courbe de la statistique sélectionnée</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>&amp;Remettre à zéro</translation>
    </message>
    <message>
        <source>Forget all samples</source>
        <translation>Oublier toutes les mesures</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>SubpartComboBox</name>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Subpart</source>
        <translation>Sous-pièce</translation>
    </message>
</context>
<context>
    <name>SubpartListView</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Subparts</source>
        <translation>Sous-pièces</translation>
    </message>
    <message>
        <source>Every part of this kind has this subpart</source>
        <translation>Chaque pièce de cette sorte a cette sous-pièce</translation>
    </message>
    <message>
        <source>Remove (Del)</source>
        <translation>Retirer (Suppr)</translation>
    </message>
</context>
<context>
    <name>Unit</name>
    <message>
        <source>metres</source>
        <translation>mètres</translation>
    </message>
    <message>
        <source>millimetres</source>
        <translation>millimètres</translation>
    </message>
    <message>
        <source>centimetres</source>
        <translation>centimètres</translation>
    </message>
    <message>
        <source>kilometres</source>
        <translation>kilomètres</translation>
    </message>
    <message>
        <source>micrometres</source>
        <translation>micromètres</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>pouces</translation>
    </message>
    <message>
        <source>feet</source>
        <translation>pieds</translation>
    </message>
    <message>
        <source>degrees</source>
        <translation>degrés</translation>
    </message>
    <message>
        <source>radians</source>
        <translation>radians</translation>
    </message>
    <message>
        <source>ohms</source>
        <translation>ohms</translation>
    </message>
    <message>
        <source>milliohms</source>
        <translation>milliohms</translation>
    </message>
    <message>
        <source>kilohms</source>
        <translation>kilohms</translation>
    </message>
    <message>
        <source>megohms</source>
        <translation>mégohms</translation>
    </message>
    <message>
        <source>volts</source>
        <translation>volts</translation>
    </message>
    <message>
        <source>millivolts</source>
        <translation>millivolts</translation>
    </message>
    <message>
        <source>kilovolts</source>
        <translation>kilovolts</translation>
    </message>
    <message>
        <source>amperes</source>
        <translation>ampères</translation>
    </message>
    <message>
        <source>milliamperes</source>
        <translation>milliampères</translation>
    </message>
    <message>
        <source>microamperes</source>
        <translation>microampères</translation>
    </message>
    <message>
        <source>watts</source>
        <translation>watts</translation>
    </message>
    <message>
        <source>milliwatts</source>
        <translation>milliwatts</translation>
    </message>
    <message>
        <source>farads</source>
        <translation>farads</translation>
    </message>
    <message>
        <source>microfarads</source>
        <translation>microfarads</translation>
    </message>
    <message>
        <source>nanofarads</source>
        <translation>nanofarads</translation>
    </message>
    <message>
        <source>picofarads</source>
        <translation>picofarads</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>millisecondes</translation>
    </message>
    <message>
        <source>microseconds</source>
        <translation>microsecondes</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>minutes</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>heures</translation>
    </message>
    <message>
        <source>hertz</source>
        <translation>hertz</translation>
    </message>
    <message>
        <source>kilohertz</source>
        <translation>kilohertz</translation>
    </message>
    <message>
        <source>megahertz</source>
        <translation>mégahertz</translation>
    </message>
    <message>
        <source>kilograms</source>
        <translation>kilogrammes</translation>
    </message>
    <message>
        <source>grams</source>
        <translation>grammes</translation>
    </message>
    <message>
        <source>newtons</source>
        <translation>newtons</translation>
    </message>
    <message>
        <source>joules</source>
        <translation>joules</translation>
    </message>
    <message>
        <source>kelvins</source>
        <translation>kelvins</translation>
    </message>
    <message>
        <source>degrees Celsius</source>
        <translation>degrés Celsius</translation>
    </message>
    <message>
        <source>degrees Fahrenheit</source>
        <translation>degrés Fahrenheit</translation>
    </message>
    <message>
        <source>metres per second</source>
        <translation>mètres par seconde</translation>
    </message>
    <message>
        <source>revolutions per minute</source>
        <translation>tours par minute</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>pour cent</translation>
    </message>
</context>
<context>
    <name>UnitChooser</name>
    <message>
        <source>Unit of %1</source>
        <translation>Unité de %1</translation>
    </message>
</context>
<context>
    <name>Validator</name>
    <message>
        <source>A value of type %1 is needed.</source>
        <translation>Il faut une valeur du type %1.</translation>
    </message>
    <message>
        <source>Only values from %1 to %2 are allowed.</source>
        <translation>Seules les valeurs de %1 à %2 sont permises.</translation>
    </message>
    <message>
        <source>Only these values are allowed: %1.</source>
        <translation>Seules ces valeurs sont permises : %1.</translation>
    </message>
    <message>
        <source>Only finite numbers are allowed.</source>
        <translation>Seuls les nombres finis sont permis.</translation>
    </message>
    <message>
        <source>Only values from %1 upwards are allowed.</source>
        <translation>Seules les valeurs à partir de %1 sont permises.</translation>
    </message>
    <message>
        <source>Only values up to %1 are allowed.</source>
        <translation>Seules les valeurs jusqu&apos;à %1 sont permises.</translation>
    </message>
    <message>
        <source>The text does not have the form that is needed here.</source>
        <translation>Le texte n&apos;a pas la forme voulue ici.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not one of the resources offered here.</source>
        <translation>« %1 » n&apos;est pas l&apos;une des ressources proposées ici.</translation>
    </message>
</context>
<context>
    <name>Value</name>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>true</source>
        <translation>vrai</translation>
    </message>
    <message>
        <source>false</source>
        <translation>faux</translation>
    </message>
</context>
<context>
    <name>ValueMapListBox</name>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>key</source>
        <translation>clé</translation>
    </message>
    <message>
        <source>The key must not be empty.</source>
        <translation>La clé ne doit pas être vide.</translation>
    </message>
    <message>
        <source>This text does not stand for a value of the kind &quot;%1&quot;.</source>
        <translation>Ce texte ne représente pas une valeur de la sorte « %1 ».</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>Trier selon cette colonne</translation>
    </message>
    <message>
        <source>The selected parts have different entries. What is added becomes the entries of all.</source>
        <translation>Les pièces sélectionnées ont des entrées différentes. Ce qui est ajouté devient les entrées de toutes.</translation>
    </message>
</context>
<context>
    <name>ValueMapModel</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Whole number</source>
        <translation>Nombre entier</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>Oui ou non</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Sorte</translation>
    </message>
</context>
<context>
    <name>ValueXml</name>
    <message>
        <source>The value is nested too deeply.</source>
        <translation>La valeur est trop imbriquée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of type &quot;%2&quot;.</source>
        <translation>« %1 » n&apos;est pas une valeur du type « %2 ».</translation>
    </message>
    <message>
        <source>Element &quot;%1&quot; is not expected; a list holds &quot;item&quot;s.</source>
        <translation>L&apos;élément « %1 » n&apos;est pas attendu ; une liste contient des « item ».</translation>
    </message>
    <message>
        <source>Text is not expected between &quot;item&quot;s.</source>
        <translation>Aucun texte n&apos;est attendu entre les « item ».</translation>
    </message>
    <message>
        <source>An item cannot have the type &quot;%1&quot; here.</source>
        <translation>Un élément ne peut pas avoir ici le type « %1 ».</translation>
    </message>
</context>
<context>
    <name>XmlGuard</name>
    <message>
        <source>an element has more than %1 attributes</source>
        <translation>un élément a plus de %1 attributs</translation>
    </message>
</context>
<context>
    <name>checkForms</name>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n erreur</numerusform>
            <numerusform>%n erreurs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n avertissement</numerusform>
            <numerusform>%n avertissements</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 n&apos;est pas un fichier.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>There is no class &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de classe « %1 ».</translation>
    </message>
    <message>
        <source>%1 is no package: it has no file package.xml.</source>
        <translation>%1 n&apos;est pas un paquet : il n&apos;a pas de fichier package.xml.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Messages - zkauthor</source>
        <translation>Messages - zkauthor</translation>
    </message>
    <message>
        <source>zkauthor crashed last time. A report is in the file %1.</source>
        <translation>zkauthor s&apos;est arrêté brutalement la dernière fois. Un rapport se trouve dans le fichier %1.</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 ne peut pas être ouvert.</translation>
    </message>
</context>
<context>
    <name>screenshot</name>
    <message>
        <source>The picture %1 cannot be written: %2</source>
        <translation>L&apos;image %1 ne peut pas être écrite : %2</translation>
    </message>
    <message>
        <source>There is no dialog &quot;%1&quot; for what is selected.</source>
        <translation>Il n’y a pas de dialogue « %1 » pour la sélection.</translation>
    </message>
    <message>
        <source>There is no palette &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de palette « %1 ».</translation>
    </message>
</context>
</TS>
