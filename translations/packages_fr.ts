<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BatteryForm</name>
    <message>
        <source>Battery</source>
        <translation>Pile</translation>
    </message>
    <message>
        <source>The voltage of the fresh battery.</source>
        <translation>La tension de la pile neuve.</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>How many cells the battery is made of.</source>
        <translation>De combien de cellules la pile est faite.</translation>
    </message>
    <message>
        <source>The resistance of the battery itself.</source>
        <translation>La résistance de la pile elle-même.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>How wires are joined to the battery.</source>
        <translation>Comment les fils sont reliés à la pile.</translation>
    </message>
    <message>
        <source>Draws the signs of the poles at the pins.</source>
        <translation>Dessine les signes des pôles aux broches.</translation>
    </message>
    <message>
        <source>Show &amp;plus and minus</source>
        <translation>Montrer &amp;plus et moins</translation>
    </message>
    <message>
        <source>The battery can be charged again.</source>
        <translation>La pile peut être rechargée.</translation>
    </message>
    <message>
        <source>Re&amp;chargeable</source>
        <translation>Re&amp;chargeable</translation>
    </message>
    <message>
        <source>Case and pins</source>
        <translation>Boîtier et broches</translation>
    </message>
    <message>
        <source>Shows the cells inside the case.</source>
        <translation>Montre les cellules à l&apos;intérieur du boîtier.</translation>
    </message>
    <message>
        <source>See-&amp;through case</source>
        <translation>Boîtier &amp;transparent</translation>
    </message>
    <message>
        <source>Writes the name of each pin beside it.</source>
        <translation>Écrit le nom de chaque broche à côté.</translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation>&amp;Noms aux broches</translation>
    </message>
</context>
<context>
    <name>BeltForm</name>
    <message>
        <source>Belt</source>
        <translation>Courroie</translation>
    </message>
    <message>
        <source>The wheels turn against each other.</source>
        <translation>Les roues tournent en sens contraires.</translation>
    </message>
    <message>
        <source>&amp;Crossed</source>
        <translation>C&amp;roisée</translation>
    </message>
    <message>
        <source>The belt cannot slip.</source>
        <translation>La courroie ne peut pas glisser.</translation>
    </message>
    <message>
        <source>&amp;Toothed</source>
        <translation>&amp;Crantée</translation>
    </message>
    <message>
        <source>A cord does not stretch; otherwise the belt is made of rubber.</source>
        <translation>Une corde ne s&apos;étire pas ; sinon la courroie est en caoutchouc.</translation>
    </message>
    <message>
        <source>C&amp;ord</source>
        <translation>C&amp;orde</translation>
    </message>
</context>
<context>
    <name>BlockForm</name>
    <message>
        <source>Logic block</source>
        <translation>Bloc logique</translation>
    </message>
    <message>
        <source>Logic</source>
        <translation>Logique</translation>
    </message>
    <message>
        <source>How the block works out its output from its inputs.</source>
        <translation>Comment le bloc calcule sa sortie à partir de ses entrées.</translation>
    </message>
    <message>
        <source>How long the output takes to follow the inputs.</source>
        <translation>Combien de temps la sortie met à suivre les entrées.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>Turns the output round.</source>
        <translation>Inverse la sortie.</translation>
    </message>
    <message>
        <source>&amp;Inverted output</source>
        <translation>Sortie &amp;inversée</translation>
    </message>
    <message>
        <source>Draws the truth table below the block.</source>
        <translation>Dessine la table de vérité sous le bloc.</translation>
    </message>
    <message>
        <source>Show the &amp;truth table</source>
        <translation>Montrer la &amp;table de vérité</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
    <message>
        <source>Draws the curved shape instead of the box.</source>
        <translation>Dessine la forme courbe au lieu du rectangle.</translation>
    </message>
    <message>
        <source>&amp;American symbol</source>
        <translation>Symbole &amp;américain</translation>
    </message>
    <message>
        <source>Writes the name of each pin beside it.</source>
        <translation>Écrit le nom de chaque broche à côté.</translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation>&amp;Noms aux broches</translation>
    </message>
    <message>
        <source>Truth table</source>
        <translation>Table de vérité</translation>
    </message>
    <message>
        <source>The output for every combination of the inputs.</source>
        <translation>La sortie pour chaque combinaison des entrées.</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>Broches</translation>
    </message>
    <message>
        <source>The pins of the block. The fields below belong to the selected ones.</source>
        <translation>Les broches du bloc. Les champs ci-dessous appartiennent aux broches sélectionnées.</translation>
    </message>
    <message>
        <source>Which pole of the supply belongs to the pin.</source>
        <translation>Quel pôle de l&apos;alimentation appartient à la broche.</translation>
    </message>
    <message>
        <source>Writes the name of the pin beside it.</source>
        <translation>Écrit le nom de la broche à côté.</translation>
    </message>
    <message>
        <source>Name beside the pin</source>
        <translation>Nom à côté de la broche</translation>
    </message>
    <message>
        <source>Flowchart block</source>
        <translation>Bloc d&apos;organigramme</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloc</translation>
    </message>
    <message>
        <source>A remark for the readers of the chart.</source>
        <translation>Une remarque pour les lecteurs de l&apos;organigramme.</translation>
    </message>
    <message>
        <source>The colour inside the block.</source>
        <translation>La couleur à l&apos;intérieur du bloc.</translation>
    </message>
    <message>
        <source>Shows where the chart is.</source>
        <translation>Montre où en est l&apos;organigramme.</translation>
    </message>
    <message>
        <source>Lights &amp;up while it runs</source>
        <translation>S&apos;&amp;allume pendant l&apos;exécution</translation>
    </message>
    <message>
        <source>Writes the remark beside the block.</source>
        <translation>Écrit la remarque à côté du bloc.</translation>
    </message>
    <message>
        <source>Show the co&amp;mment</source>
        <translation>Montrer la re&amp;marque</translation>
    </message>
    <message>
        <source>The chart halts before this block until it is stepped on.</source>
        <translation>L&apos;organigramme s&apos;arrête avant ce bloc jusqu&apos;au pas suivant.</translation>
    </message>
    <message>
        <source>Stops &amp;here</source>
        <translation>S&apos;arrête &amp;ici</translation>
    </message>
    <message>
        <source>The chart will halt before this block each time. Stop here?</source>
        <translation>L&apos;organigramme s&apos;arrêtera chaque fois avant ce bloc. S&apos;arrêter ici ?</translation>
    </message>
</context>
<context>
    <name>BuzzerForm</name>
    <message>
        <source>Buzzer</source>
        <translation>Vibreur</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>The buzzer sounds as soon as the model starts.</source>
        <translation>Le vibreur sonne dès que le modèle démarre.</translation>
    </message>
    <message>
        <source>&amp;Sounds at the start</source>
        <translation>&amp;Sonne au départ</translation>
    </message>
    <message>
        <source>The sound goes on and off.</source>
        <translation>Le son va et vient.</translation>
    </message>
    <message>
        <source>&amp;Pulsed</source>
        <translation>&amp;Intermittent</translation>
    </message>
    <message>
        <source>&amp;Loudness:</source>
        <translation>&amp;Volume :</translation>
    </message>
    <message>
        <source>Sounds loudly while pressed in, softly otherwise.</source>
        <translation>Sonne fort quand il est enfoncé, doucement sinon.</translation>
    </message>
    <message>
        <source>Loud</source>
        <translation>Fort</translation>
    </message>
    <message>
        <source>How high the tone is.</source>
        <translation>La hauteur du son.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>The picture that stands for the sound.</source>
        <translation>L&apos;image qui représente le son.</translation>
    </message>
    <message>
        <source>Pictures shown in turn while the buzzer sounds.</source>
        <translation>Images montrées tour à tour pendant que le vibreur sonne.</translation>
    </message>
</context>
<context>
    <name>CamForm</name>
    <message>
        <source>Cam</source>
        <translation>Came</translation>
    </message>
    <message>
        <source>Follower</source>
        <translation>Poussoir</translation>
    </message>
    <message>
        <source>How far the cam moves its follower.</source>
        <translation>De combien la came déplace son poussoir.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>The follower ends in a roller; otherwise in a flat foot.</source>
        <translation>Le poussoir se termine par un galet ; sinon par un pied plat.</translation>
    </message>
    <message>
        <source>&amp;Roller</source>
        <translation>&amp;Galet</translation>
    </message>
    <message>
        <source>A spring presses the follower on the cam.</source>
        <translation>Un ressort presse le poussoir sur la came.</translation>
    </message>
    <message>
        <source>Return &amp;spring</source>
        <translation>&amp;Ressort de rappel</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>The outline of the cam.</source>
        <translation>Le contour de la came.</translation>
    </message>
</context>
<context>
    <name>CollectionsForm</name>
    <message>
        <source>Collections</source>
        <translation>Collections</translation>
    </message>
    <message>
        <source>Subparts</source>
        <translation>Sous-pièces</translation>
    </message>
    <message>
        <source>Pins</source>
        <translation>Broches</translation>
    </message>
    <message>
        <source>The pins of the part.</source>
        <translation>Les broches de la pièce.</translation>
    </message>
    <message>
        <source>The text shown with the selected pin.</source>
        <translation>Le texte montré avec la broche sélectionnée.</translation>
    </message>
    <message>
        <source>Whether the selected pin is seen.</source>
        <translation>Si la broche sélectionnée est visible.</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>The control whose place stands below.</source>
        <translation>La commande dont l&apos;endroit est donné dessous.</translation>
    </message>
    <message>
        <source>Where the chosen control is.</source>
        <translation>Où se trouve la commande choisie.</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Ressources</translation>
    </message>
    <message>
        <source>One picture.</source>
        <translation>Une image.</translation>
    </message>
    <message>
        <source>One of a few resources.</source>
        <translation>Une ressource parmi quelques-unes.</translation>
    </message>
    <message>
        <source>Any number of pictures.</source>
        <translation>Autant d&apos;images que l&apos;on veut.</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Keys and values.</source>
        <translation>Clés et valeurs.</translation>
    </message>
    <message>
        <source>The font of a text.</source>
        <translation>La police d&apos;un texte.</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>A number that can follow another.</source>
        <translation>Un nombre qui peut en suivre un autre.</translation>
    </message>
    <message>
        <source>What the level can follow.</source>
        <translation>Ce que le niveau peut suivre.</translation>
    </message>
</context>
<context>
    <name>ComponentForm</name>
    <message>
        <source>Component</source>
        <translation>Composant</translation>
    </message>
    <message>
        <source>Label and state</source>
        <translation>Étiquette et état</translation>
    </message>
    <message>
        <source>Letters and a number, for example R1.</source>
        <translation>Des lettres et un nombre, par exemple R1.</translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the part; empty when none does.</source>
        <translation>Le nom sous lequel les organigrammes commutent la pièce ; vide si aucun ne le fait.</translation>
    </message>
    <message>
        <source>Written beside the part</source>
        <translation>Écrit à côté de la pièce</translation>
    </message>
    <message>
        <source>Writes the reference, such as R1, beside the part.</source>
        <translation>Écrit le repère, comme R1, à côté de la pièce.</translation>
    </message>
    <message>
        <source>&amp;Reference</source>
        <translation>&amp;Repère</translation>
    </message>
    <message>
        <source>Writes the main value, such as 330 Ω, beside the part.</source>
        <translation>Écrit la valeur principale, comme 330 Ω, à côté de la pièce.</translation>
    </message>
    <message>
        <source>Val&amp;ue</source>
        <translation>Val&amp;eur</translation>
    </message>
    <message>
        <source>Where the label stands, seen from the part.</source>
        <translation>Où se trouve l&apos;étiquette, vue de la pièce.</translation>
    </message>
    <message>
        <source>Place of the label</source>
        <translation>Place de l&apos;étiquette</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>Au-dessus</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Au-dessous</translation>
    </message>
    <message>
        <source>On the left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>On the right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>A broken part lets no current through. Learners can look for the fault.</source>
        <translation>Une pièce en panne ne laisse passer aucun courant. Les élèves peuvent chercher la panne.</translation>
    </message>
    <message>
        <source>Brok&amp;en</source>
        <translation>En pa&amp;nne</translation>
    </message>
    <message>
        <source>A broken part lets no current through. Break it?</source>
        <translation>Une pièce en panne ne laisse passer aucun courant. La mettre en panne ?</translation>
    </message>
</context>
<context>
    <name>ConnectionForm</name>
    <message>
        <source>Connection</source>
        <translation>Liaison</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Trait</translation>
    </message>
    <message>
        <source>How thick the line is drawn.</source>
        <translation>L&apos;épaisseur du trait.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>The colour of the line.</source>
        <translation>La couleur du trait.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>Un nom court sans espaces par lequel les autres choses désignent la pièce.</translation>
    </message>
    <message>
        <source>The text shown with it.</source>
        <translation>Le texte montré avec elle.</translation>
    </message>
    <message>
        <source>Parts that are not visible still work, but the reader does not see them.</source>
        <translation>Les pièces invisibles fonctionnent encore, mais le lecteur ne les voit pas.</translation>
    </message>
    <message>
        <source>&amp;Visible while the model runs</source>
        <translation>&amp;Visible pendant l&apos;exécution du modèle</translation>
    </message>
</context>
<context>
    <name>DecisionForm</name>
    <message>
        <source>Decision</source>
        <translation>Décision</translation>
    </message>
    <message>
        <source>The output name of the switch or sensor that is asked.</source>
        <translation>Le nom de sortie de l&apos;interrupteur ou du capteur interrogé.</translation>
    </message>
    <message>
        <source>What is asked about the input.</source>
        <translation>Ce qui est demandé sur l&apos;entrée.</translation>
    </message>
    <message>
        <source>The number that the input is compared with.</source>
        <translation>Le nombre auquel l&apos;entrée est comparée.</translation>
    </message>
    <message>
        <source>Goes on at the right when the answer is yes; otherwise downwards.</source>
        <translation>Continue à droite quand la réponse est oui ; sinon vers le bas.</translation>
    </message>
    <message>
        <source>&amp;Yes branch to the right</source>
        <translation>Branche &amp;oui à droite</translation>
    </message>
    <message>
        <source>The chart waits here.</source>
        <translation>L&apos;organigramme attend ici.</translation>
    </message>
    <message>
        <source>&amp;Asks until the answer is yes</source>
        <translation>&amp;Demande jusqu&apos;à ce que la réponse soit oui</translation>
    </message>
    <message>
        <source>Writes Yes and No at the branches.</source>
        <translation>Écrit Oui et Non aux branches.</translation>
    </message>
    <message>
        <source>&amp;Write the answers</source>
        <translation>É&amp;crire les réponses</translation>
    </message>
</context>
<context>
    <name>ElementForm</name>
    <message>
        <source>Element</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>Un nom court sans espaces par lequel les autres choses désignent la pièce.</translation>
    </message>
    <message>
        <source>The text shown with it.</source>
        <translation>Le texte montré avec elle.</translation>
    </message>
    <message>
        <source>Where the centre is.</source>
        <translation>Où est le centre.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>Width and height.</source>
        <translation>Largeur et hauteur.</translation>
    </message>
    <message>
        <source>How far it is turned clockwise.</source>
        <translation>De combien il est tourné dans le sens horaire.</translation>
    </message>
    <message>
        <source>Parts that are not visible still work, but the reader does not see them.</source>
        <translation>Les pièces invisibles fonctionnent encore, mais le lecteur ne les voit pas.</translation>
    </message>
    <message>
        <source>&amp;Visible while the model runs</source>
        <translation>&amp;Visible pendant l&apos;exécution du modèle</translation>
    </message>
</context>
<context>
    <name>FlowchartsSpaceForm</name>
    <message>
        <source>Flowcharts</source>
        <translation>Organigrammes</translation>
    </message>
    <message>
        <source>How fast the flowcharts of the space run.</source>
        <translation>À quelle vitesse s&apos;exécutent les organigrammes de l&apos;espace.</translation>
    </message>
</context>
<context>
    <name>GalleryForm</name>
    <message>
        <source>Gallery of controls</source>
        <translation>Galerie des commandes</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Commandes</translation>
    </message>
    <message>
        <source>Check boxes and buttons</source>
        <translation>Cases et boutons</translation>
    </message>
    <message>
        <source>Checked while the property is true.</source>
        <translation>Cochée tant que la propriété est vraie.</translation>
    </message>
    <message>
        <source>&amp;Switched on</source>
        <translation>&amp;Allumé</translation>
    </message>
    <message>
        <source>Asks before it writes.</source>
        <translation>Demande avant d&apos;écrire.</translation>
    </message>
    <message>
        <source>Trusted, as&amp;ked first</source>
        <translation>De confiance, a&amp;vec question</translation>
    </message>
    <message>
        <source>Do you really trust this part?</source>
        <translation>Faites-vous vraiment confiance à cette pièce ?</translation>
    </message>
    <message>
        <source>Do you no longer trust this part?</source>
        <translation>Ne faites-vous plus confiance à cette pièce ?</translation>
    </message>
    <message>
        <source>Switches between two words.</source>
        <translation>Alterne entre deux mots.</translation>
    </message>
    <message>
        <source>&amp;Loud</source>
        <translation>&amp;Fort</translation>
    </message>
    <message>
        <source>The property is true for as long as the button is held down.</source>
        <translation>La propriété est vraie tant que le bouton est maintenu.</translation>
    </message>
    <message>
        <source>Hold &amp;down</source>
        <translation>&amp;Maintenir</translation>
    </message>
    <message>
        <source>The property is true while the button is pressed in.</source>
        <translation>La propriété est vraie tant que le bouton est enfoncé.</translation>
    </message>
    <message>
        <source>Press i&amp;n</source>
        <translation>&amp;Enfoncer</translation>
    </message>
    <message>
        <source>The same word as the check box above.</source>
        <translation>Le même mot que la case ci-dessus.</translation>
    </message>
    <message>
        <source>L&amp;oud</source>
        <translation>F&amp;ort</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Choix</translation>
    </message>
    <message>
        <source>A yes or no in words.</source>
        <translation>Un oui ou non en mots.</translation>
    </message>
    <message>
        <source>Forwards</source>
        <translation>En avant</translation>
    </message>
    <message>
        <source>Backwards</source>
        <translation>En arrière</translation>
    </message>
    <message>
        <source>Pictures and texts in the place of words.</source>
        <translation>Des images et des textes à la place des mots.</translation>
    </message>
    <message>
        <source>Three colours.</source>
        <translation>Trois couleurs.</translation>
    </message>
    <message>
        <source>Whole numbers.</source>
        <translation>Des nombres entiers.</translation>
    </message>
    <message>
        <source>Numbers.</source>
        <translation>Des nombres.</translation>
    </message>
    <message>
        <source>Points.</source>
        <translation>Des points.</translation>
    </message>
    <message>
        <source>Wind</source>
        <translation>Vent</translation>
    </message>
    <message>
        <source>Windy</source>
        <translation>Venteux</translation>
    </message>
    <message>
        <source>Enabled while the weather is windy.</source>
        <translation>Disponible quand le temps est venteux.</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textes</translation>
    </message>
    <message>
        <source>Any text.</source>
        <translation>N&apos;importe quel texte.</translation>
    </message>
    <message>
        <source>A capital letter and a digit; red while it is none.</source>
        <translation>Une majuscule et un chiffre ; rouge tant que ce n&apos;est pas le cas.</translation>
    </message>
    <message>
        <source>A whole number or a sum such as 1900+87.</source>
        <translation>Un nombre entier ou une somme comme 1900+87.</translation>
    </message>
    <message>
        <source>Looks like a link until it is edited.</source>
        <translation>A l&apos;air d&apos;un lien jusqu&apos;à ce qu&apos;on le modifie.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>Disabled, because nobody can edit the property.</source>
        <translation>Indisponible, car personne ne peut modifier la propriété.</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>A whole number; the longer a button is held, the faster it runs.</source>
        <translation>Un nombre entier ; plus un bouton est maintenu, plus il défile vite.</translation>
    </message>
    <message>
        <source>A number in the unit beside it; other units can be typed as well.</source>
        <translation>Un nombre dans l&apos;unité à côté ; d&apos;autres unités peuvent aussi être tapées.</translation>
    </message>
    <message>
        <source>The step follows from the range and the unit.</source>
        <translation>Le pas découle de l&apos;intervalle et de l&apos;unité.</translation>
    </message>
    <message>
        <source>x above y, in the unit beside them.</source>
        <translation>x au-dessus de y, dans l&apos;unité à côté.</translation>
    </message>
    <message>
        <source>A whole number, written while you drag.</source>
        <translation>Un nombre entier, écrit pendant que vous faites glisser.</translation>
    </message>
    <message>
        <source>The range follows the unit beside it.</source>
        <translation>L&apos;intervalle suit l&apos;unité à côté.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Any colour: chosen, typed by name or dropped.</source>
        <translation>N&apos;importe quelle couleur : choisie, tapée par son nom ou déposée.</translation>
    </message>
    <message>
        <source>A button alone, without the system&apos;s dialog.</source>
        <translation>Un bouton seul, sans le dialogue du système.</translation>
    </message>
    <message>
        <source>One of several</source>
        <translation>Un parmi plusieurs</translation>
    </message>
    <message>
        <source>Each button stands for one word.</source>
        <translation>Chaque bouton représente un mot.</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>S&amp;mall</source>
        <translation>Pe&amp;tit</translation>
    </message>
    <message>
        <source>Medi&amp;um</source>
        <translation>Mo&amp;yen</translation>
    </message>
    <message>
        <source>Lar&amp;ge</source>
        <translation>&amp;Grand</translation>
    </message>
    <message>
        <source>What belongs to this choice is enabled while it is chosen.</source>
        <translation>Ce qui va avec ce choix est disponible tant qu&apos;il est choisi.</translation>
    </message>
    <message>
        <source>O&amp;wn width</source>
        <translation>&amp;Largeur propre</translation>
    </message>
    <message>
        <source>The width of your own format.</source>
        <translation>La largeur de votre propre format.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>What is in the box is enabled while it is checked.</source>
        <translation>Ce qui est dans le cadre est disponible tant qu&apos;il est coché.</translation>
    </message>
    <message>
        <source>Guarded &amp;by</source>
        <translation>Gardé &amp;par</translation>
    </message>
    <message>
        <source>Who keeps watch.</source>
        <translation>Qui monte la garde.</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>The text itself.</source>
        <translation>Le texte lui-même.</translation>
    </message>
    <message>
        <source>The number as the spin box above shows it.</source>
        <translation>Le nombre tel que le montre le champ ci-dessus.</translation>
    </message>
    <message>
        <source>Both coordinates.</source>
        <translation>Les deux coordonnées.</translation>
    </message>
    <message>
        <source>The colour as documents write it.</source>
        <translation>La couleur telle que les documents l&apos;écrivent.</translation>
    </message>
    <message>
        <source>Loud, as a button</source>
        <translation>Fort, en bouton</translation>
    </message>
</context>
<context>
    <name>GearForm</name>
    <message>
        <source>Gear</source>
        <translation>Roue dentée</translation>
    </message>
    <message>
        <source>Teeth</source>
        <translation>Dents</translation>
    </message>
    <message>
        <source>The number of teeth.</source>
        <translation>Le nombre de dents.</translation>
    </message>
    <message>
        <source>The angle at which the teeth press on each other.</source>
        <translation>L&apos;angle sous lequel les dents se pressent.</translation>
    </message>
    <message>
        <source>The pitch diameter divided by the number of teeth; gears that mesh have the same.</source>
        <translation>Le diamètre primitif divisé par le nombre de dents ; les roues qui engrènent ont le même.</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Module</translation>
    </message>
    <message>
        <source>0.5 mm</source>
        <translation>0,5 mm</translation>
    </message>
    <message>
        <source>1 mm</source>
        <translation>1 mm</translation>
    </message>
    <message>
        <source>1.5 mm</source>
        <translation>1,5 mm</translation>
    </message>
    <message>
        <source>2 mm</source>
        <translation>2 mm</translation>
    </message>
    <message>
        <source>Otherwise only the pitch circle is drawn.</source>
        <translation>Sinon seul le cercle primitif est dessiné.</translation>
    </message>
    <message>
        <source>&amp;Draw the teeth</source>
        <translation>&amp;Dessiner les dents</translation>
    </message>
    <message>
        <source>Slanting teeth run more quietly.</source>
        <translation>Les dents inclinées tournent plus silencieusement.</translation>
    </message>
    <message>
        <source>&amp;Slanting teeth</source>
        <translation>Dents &amp;inclinées</translation>
    </message>
    <message>
        <source>Slanting teeth lean to the left; otherwise to the right.</source>
        <translation>Les dents inclinées penchent à gauche ; sinon à droite.</translation>
    </message>
    <message>
        <source>&amp;Left-handed</source>
        <translation>Pas à &amp;gauche</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Roue</translation>
    </message>
    <message>
        <source>How wide the teeth are along the axle.</source>
        <translation>La largeur des dents le long de l&apos;axe.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>How far the hub is from the middle of the wheel.</source>
        <translation>À quelle distance le moyeu est du milieu de la roue.</translation>
    </message>
</context>
<context>
    <name>InfoForm</name>
    <message>
        <source>Explanation</source>
        <translation>Explication</translation>
    </message>
    <message>
        <source>Opens the pop-up without a click.</source>
        <translation>Ouvre la bulle sans clic.</translation>
    </message>
    <message>
        <source>Opens when the &amp;mouse rests on it</source>
        <translation>S&apos;ouvre quand la &amp;souris s&apos;y pose</translation>
    </message>
    <message>
        <source>Hides the button once its pop-up has been closed.</source>
        <translation>Cache le bouton une fois sa bulle fermée.</translation>
    </message>
    <message>
        <source>Goes away &amp;after reading</source>
        <translation>Disparaît &amp;après lecture</translation>
    </message>
</context>
<context>
    <name>LedForm</name>
    <message>
        <source>LED</source>
        <translation>LED</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Lumière</translation>
    </message>
    <message>
        <source>The colour of the light.</source>
        <translation>La couleur de la lumière.</translation>
    </message>
    <message>
        <source>How brightly the LED shines, in percent.</source>
        <translation>La luminosité de la LED, en pour cent.</translation>
    </message>
    <message>
        <source>The LED shines as soon as the model starts.</source>
        <translation>La LED brille dès que le modèle démarre.</translation>
    </message>
    <message>
        <source>&amp;Lit at the start</source>
        <translation>&amp;Allumée au départ</translation>
    </message>
    <message>
        <source>The LED goes on and off by itself.</source>
        <translation>La LED s&apos;allume et s&apos;éteint d&apos;elle-même.</translation>
    </message>
    <message>
        <source>&amp;Blinking</source>
        <translation>&amp;Clignotante</translation>
    </message>
    <message>
        <source>The time from one flash to the next.</source>
        <translation>Le temps d&apos;un éclat au suivant.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>Shines all round; a clear lens throws a narrow beam.</source>
        <translation>Brille tout autour ; une lentille claire jette un faisceau étroit.</translation>
    </message>
    <message>
        <source>&amp;Milky lens</source>
        <translation>&amp;Lentille laiteuse</translation>
    </message>
    <message>
        <source>Electrical</source>
        <translation>Électricité</translation>
    </message>
    <message>
        <source>The voltage at which the LED begins to shine.</source>
        <translation>La tension à laquelle la LED commence à briller.</translation>
    </message>
    <message>
        <source>A greater current destroys the LED.</source>
        <translation>Un courant plus fort détruit la LED.</translation>
    </message>
    <message>
        <source>How wide the lens is.</source>
        <translation>La largeur de la lentille.</translation>
    </message>
    <message>
        <source>Diameter of the lens</source>
        <translation>Diamètre de la lentille</translation>
    </message>
    <message>
        <source>3 mm</source>
        <translation>3 mm</translation>
    </message>
    <message>
        <source>5 mm</source>
        <translation>5 mm</translation>
    </message>
    <message>
        <source>10 mm</source>
        <translation>10 mm</translation>
    </message>
    <message>
        <source>Legs and pads</source>
        <translation>Pattes et pastilles</translation>
    </message>
    <message>
        <source>Writes anode and cathode beside the pins.</source>
        <translation>Écrit anode et cathode à côté des broches.</translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation>&amp;Noms aux broches</translation>
    </message>
    <message>
        <source>Lines the holes of the solder pads with metal.</source>
        <translation>Revêt de métal les trous des pastilles.</translation>
    </message>
    <message>
        <source>&amp;Plated through</source>
        <translation>&amp;Métallisé</translation>
    </message>
    <message>
        <source>Shows what lies behind the lens.</source>
        <translation>Montre ce qui est derrière la lentille.</translation>
    </message>
    <message>
        <source>See-&amp;through lens</source>
        <translation>Lentille &amp;transparente</translation>
    </message>
</context>
<context>
    <name>LightSensorForm</name>
    <message>
        <source>Light sensor</source>
        <translation>Capteur de lumière</translation>
    </message>
    <message>
        <source>How bright it is at the start, in percent.</source>
        <translation>La luminosité au départ, en pour cent.</translation>
    </message>
    <message>
        <source>The brightness at which the sensor counts as dark.</source>
        <translation>La luminosité à partir de laquelle il fait sombre pour le capteur.</translation>
    </message>
    <message>
        <source>The resistance when no light falls on the sensor.</source>
        <translation>La résistance quand aucune lumière ne tombe sur le capteur.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>The resistance in full light.</source>
        <translation>La résistance en pleine lumière.</translation>
    </message>
    <message>
        <source>Gives its signal when it is dark; otherwise when it is bright.</source>
        <translation>Donne son signal quand il fait sombre ; sinon quand il fait clair.</translation>
    </message>
    <message>
        <source>Signal in the &amp;dark</source>
        <translation>Signal dans le &amp;noir</translation>
    </message>
    <message>
        <source>The reader sets the brightness with the slider below the sensor.</source>
        <translation>Le lecteur règle la luminosité avec le curseur sous le capteur.</translation>
    </message>
    <message>
        <source>&amp;Follows its slider</source>
        <translation>&amp;Suit son curseur</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>Curseur</translation>
    </message>
    <message>
        <source>Otherwise only the model itself moves the slider.</source>
        <translation>Sinon seul le modèle lui-même déplace le curseur.</translation>
    </message>
    <message>
        <source>Can be &amp;worked by the reader</source>
        <translation>Peut être &amp;manœuvré par le lecteur</translation>
    </message>
</context>
<context>
    <name>LinkForm</name>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Arrow and route</source>
        <translation>Flèche et tracé</translation>
    </message>
    <message>
        <source>Draws an arrow head at the end.</source>
        <translation>Dessine une pointe de flèche à la fin.</translation>
    </message>
    <message>
        <source>&amp;Arrow head</source>
        <translation>&amp;Pointe de flèche</translation>
    </message>
    <message>
        <source>Draws a dashed line.</source>
        <translation>Dessine un trait tireté.</translation>
    </message>
    <message>
        <source>&amp;Dashed</source>
        <translation>&amp;Tireté</translation>
    </message>
    <message>
        <source>Runs along right angles; otherwise straight from block to block.</source>
        <translation>Suit des angles droits ; sinon tout droit de bloc à bloc.</translation>
    </message>
    <message>
        <source>&amp;Right angles only</source>
        <translation>&amp;Angles droits seulement</translation>
    </message>
</context>
<context>
    <name>MachinePartForm</name>
    <message>
        <source>Machine part</source>
        <translation>Pièce mécanique</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Mouvement</translation>
    </message>
    <message>
        <source>A part that is not free is fixed to the base.</source>
        <translation>Une pièce qui n&apos;est pas libre est fixée à la base.</translation>
    </message>
    <message>
        <source>&amp;Free to turn</source>
        <translation>&amp;Libre de tourner</translation>
    </message>
    <message>
        <source>An arrow shows the way the part turns.</source>
        <translation>Une flèche montre le sens de rotation de la pièce.</translation>
    </message>
    <message>
        <source>Show the direct&amp;ion</source>
        <translation>Montrer le s&amp;ens</translation>
    </message>
    <message>
        <source>Writes the turning speed on the part.</source>
        <translation>Écrit la vitesse de rotation sur la pièce.</translation>
    </message>
    <message>
        <source>Show the sp&amp;eed</source>
        <translation>Montrer la vi&amp;tesse</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Matière</translation>
    </message>
    <message>
        <source>What the part is made of.</source>
        <translation>De quoi la pièce est faite.</translation>
    </message>
    <message>
        <source>The mass of the part.</source>
        <translation>La masse de la pièce.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>The colour of the part.</source>
        <translation>La couleur de la pièce.</translation>
    </message>
</context>
<context>
    <name>MeterForm</name>
    <message>
        <source>Meter</source>
        <translation>Appareil de mesure</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>What the meter measures.</source>
        <translation>Ce que mesure l&apos;appareil.</translation>
    </message>
    <message>
        <source>The colour of the needle.</source>
        <translation>La couleur de l&apos;aiguille.</translation>
    </message>
    <message>
        <source>&amp;Display:</source>
        <translation>&amp;Affichage :</translation>
    </message>
    <message>
        <source>Shows figures while pressed in, a needle over a scale otherwise.</source>
        <translation>Montre des chiffres quand il est enfoncé, sinon une aiguille sur une échelle.</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Chiffres</translation>
    </message>
    <message>
        <source>The reading stays as it is.</source>
        <translation>La mesure reste telle quelle.</translation>
    </message>
    <message>
        <source>&amp;Hold the reading</source>
        <translation>&amp;Garder la mesure</translation>
    </message>
    <message>
        <source>Shows the greatest reading so far as well.</source>
        <translation>Montre aussi la plus grande mesure jusqu&apos;ici.</translation>
    </message>
    <message>
        <source>Show the &amp;peak</source>
        <translation>Montrer la &amp;crête</translation>
    </message>
    <message>
        <source>Handling</source>
        <translation>Manœuvre</translation>
    </message>
    <message>
        <source>Otherwise only the model itself turns the range knob.</source>
        <translation>Sinon seul le modèle lui-même tourne le bouton de calibre.</translation>
    </message>
    <message>
        <source>Range can be &amp;worked by the reader</source>
        <translation>Calibre &amp;manœuvrable par le lecteur</translation>
    </message>
</context>
<context>
    <name>MotorForm</name>
    <message>
        <source>Motor</source>
        <translation>Moteur</translation>
    </message>
    <message>
        <source>&amp;Drive:</source>
        <translation>&amp;Entraînement :</translation>
    </message>
    <message>
        <source>The motor turns as soon as the model starts.</source>
        <translation>Le moteur tourne dès que le modèle démarre.</translation>
    </message>
    <message>
        <source>Runs at the start</source>
        <translation>Tourne au départ</translation>
    </message>
    <message>
        <source>How fast the motor turns without load.</source>
        <translation>La vitesse du moteur sans charge.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>The voltage for which the motor is made.</source>
        <translation>La tension pour laquelle le moteur est fait.</translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the motor; empty when none does.</source>
        <translation>Le nom sous lequel les organigrammes commutent le moteur ; vide si aucun ne le fait.</translation>
    </message>
    <message>
        <source>Otherwise the motor turns clockwise.</source>
        <translation>Sinon le moteur tourne dans le sens horaire.</translation>
    </message>
    <message>
        <source>Turns &amp;counterclockwise</source>
        <translation>Tourne en sens &amp;antihoraire</translation>
    </message>
    <message>
        <source>A gear box makes the shaft turn more slowly and more strongly.</source>
        <translation>Un réducteur fait tourner l&apos;arbre plus lentement et avec plus de force.</translation>
    </message>
    <message>
        <source>With &amp;gear box</source>
        <translation>Avec &amp;réducteur</translation>
    </message>
    <message>
        <source>How many turns of the motor make one turn of the shaft.</source>
        <translation>Combien de tours du moteur font un tour de l&apos;arbre.</translation>
    </message>
</context>
<context>
    <name>Package</name>
    <message>
        <source>Basics</source>
        <extracomment>Name of a package of parts</extracomment>
        <translation>Bases</translation>
    </message>
    <message>
        <source>Electronics</source>
        <translation>Électronique</translation>
    </message>
    <message>
        <source>Flowcharts</source>
        <translation>Organigrammes</translation>
    </message>
    <message>
        <source>Mechanics</source>
        <translation>Mécanique</translation>
    </message>
</context>
<context>
    <name>PartsTree</name>
    <message>
        <source>Explanations</source>
        <translation>Explications</translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation>Démonstration</translation>
    </message>
    <message>
        <source>Supply</source>
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Composants</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Sorties</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Wiring</source>
        <translation>Câblage</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Déroulement</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Entraînements</translation>
    </message>
    <message>
        <source>Wheels</source>
        <translation>Roues</translation>
    </message>
</context>
<context>
    <name>PictureForm</name>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>The picture shown.</source>
        <translation>L&apos;image montrée.</translation>
    </message>
    <message>
        <source>Keeps the ratio of width and height when the picture is resized.</source>
        <translation>Garde le rapport de la largeur et de la hauteur quand la taille de l&apos;image change.</translation>
    </message>
    <message>
        <source>Keep &amp;proportions</source>
        <translation>&amp;Garder les proportions</translation>
    </message>
    <message>
        <source>Exchanges left and right.</source>
        <translation>Échange la gauche et la droite.</translation>
    </message>
    <message>
        <source>&amp;Mirrored</source>
        <translation>En &amp;miroir</translation>
    </message>
    <message>
        <source>Draws a thin frame round the picture.</source>
        <translation>Dessine un cadre fin autour de l&apos;image.</translation>
    </message>
    <message>
        <source>Draw a &amp;frame</source>
        <translation>Dessiner un &amp;cadre</translation>
    </message>
    <message>
        <source>Where the picture comes from and who made it.</source>
        <translation>D&apos;où vient l&apos;image et qui l&apos;a faite.</translation>
    </message>
    <message>
        <source>More pictures</source>
        <translation>Autres images</translation>
    </message>
    <message>
        <source>Pictures shown in turn after the first one.</source>
        <translation>Images montrées tour à tour après la première.</translation>
    </message>
</context>
<context>
    <name>PopupForm</name>
    <message>
        <source>Pop-up</source>
        <translation>Bulle</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>Un nom court sans espaces par lequel les autres choses désignent la pièce.</translation>
    </message>
    <message>
        <source>The heading shown above the pop-up.</source>
        <translation>L&apos;en-tête au-dessus de la bulle.</translation>
    </message>
    <message>
        <source>The pop-up is open from the start; otherwise its part opens it.</source>
        <translation>La bulle est ouverte dès le début ; sinon sa pièce l&apos;ouvre.</translation>
    </message>
    <message>
        <source>&amp;Open when the model starts</source>
        <translation>&amp;Ouverte au démarrage du modèle</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspect</translation>
    </message>
    <message>
        <source>Width and height of the space.</source>
        <translation>Largeur et hauteur de l&apos;espace.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>The colour behind the parts.</source>
        <translation>La couleur derrière les pièces.</translation>
    </message>
    <message>
        <source>Draws a grid of 5 mm behind the parts.</source>
        <translation>Dessine une grille de 5 mm derrière les pièces.</translation>
    </message>
    <message>
        <source>Show a &amp;grid</source>
        <translation>Montrer une &amp;grille</translation>
    </message>
    <message>
        <source>Name of the pop-up</source>
        <translation>Nom de la bulle</translation>
    </message>
</context>
<context>
    <name>ProcedureForm</name>
    <message>
        <source>Procedure</source>
        <translation>Procédure</translation>
    </message>
    <message>
        <source>How often the chart in the pop-up is run.</source>
        <translation>Combien de fois l&apos;organigramme de la bulle est exécuté.</translation>
    </message>
    <message>
        <source>Opens the pop-up with its chart while the procedure runs.</source>
        <translation>Ouvre la bulle avec son organigramme pendant que la procédure s&apos;exécute.</translation>
    </message>
    <message>
        <source>&amp;Opens while it runs</source>
        <translation>S&apos;&amp;ouvre pendant l&apos;exécution</translation>
    </message>
    <message>
        <source>Otherwise a stop block inside ends the whole chart.</source>
        <translation>Sinon un bloc d&apos;arrêt à l&apos;intérieur termine tout l&apos;organigramme.</translation>
    </message>
    <message>
        <source>Stop ends only the &amp;procedure</source>
        <translation>L&apos;arrêt ne termine que la &amp;procédure</translation>
    </message>
</context>
<context>
    <name>PulleyForm</name>
    <message>
        <source>Pulley</source>
        <translation>Poulie</translation>
    </message>
    <message>
        <source>Groove</source>
        <translation>Gorge</translation>
    </message>
    <message>
        <source>The diameter at which the belt runs.</source>
        <translation>Le diamètre sur lequel passe la courroie.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>For belts with a V section; otherwise the groove is round.</source>
        <translation>Pour les courroies de section en V ; sinon la gorge est ronde.</translation>
    </message>
    <message>
        <source>V-&amp;shaped groove</source>
        <translation>Gorge en &amp;V</translation>
    </message>
    <message>
        <source>Rims keep the belt in the groove.</source>
        <translation>Des rebords gardent la courroie dans la gorge.</translation>
    </message>
    <message>
        <source>With &amp;rims</source>
        <translation>Avec &amp;rebords</translation>
    </message>
    <message>
        <source>The belt slips when the load is too great.</source>
        <translation>La courroie glisse quand la charge est trop grande.</translation>
    </message>
    <message>
        <source>&amp;Belt may slip</source>
        <translation>La &amp;courroie peut glisser</translation>
    </message>
</context>
<context>
    <name>PushButtonForm</name>
    <message>
        <source>Push button</source>
        <translation>Bouton-poussoir</translation>
    </message>
    <message>
        <source>The colour of the cap.</source>
        <translation>La couleur du capuchon.</translation>
    </message>
    <message>
        <source>A lamp shines in the cap while the button is held down.</source>
        <translation>Une lampe brille dans le capuchon tant que le bouton est maintenu.</translation>
    </message>
    <message>
        <source>Cap &amp;lights up</source>
        <translation>Le capuchon s&apos;&amp;allume</translation>
    </message>
    <message>
        <source>&amp;Try it:</source>
        <translation>&amp;Essayer :</translation>
    </message>
    <message>
        <source>Closes the contact for as long as this button is held down.</source>
        <translation>Ferme le contact tant que ce bouton est maintenu.</translation>
    </message>
    <message>
        <source>Hold down</source>
        <translation>Maintenir</translation>
    </message>
</context>
<context>
    <name>ResistorForm</name>
    <message>
        <source>Resistor</source>
        <translation>Résistance</translation>
    </message>
    <message>
        <source>The resistance as it is printed on the part.</source>
        <translation>La résistance telle qu&apos;elle est imprimée sur la pièce.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>How far the true resistance may be from the printed one, in percent.</source>
        <translation>De combien la vraie résistance peut s&apos;écarter de celle imprimée, en pour cent.</translation>
    </message>
    <message>
        <source>The power that the part stands without burning.</source>
        <translation>La puissance que la pièce supporte sans brûler.</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
    <message>
        <source>Draws the coloured bands that tell the resistance.</source>
        <translation>Dessine les anneaux colorés qui indiquent la résistance.</translation>
    </message>
    <message>
        <source>Colour &amp;bands</source>
        <translation>&amp;Anneaux de couleur</translation>
    </message>
    <message>
        <source>Draws the American zigzag line instead of the box.</source>
        <translation>Dessine la ligne en zigzag américaine au lieu du rectangle.</translation>
    </message>
    <message>
        <source>&amp;Zigzag symbol</source>
        <translation>Symbole en &amp;zigzag</translation>
    </message>
    <message>
        <source>Solder pads</source>
        <translation>Pastilles</translation>
    </message>
    <message>
        <source>Square pads mark a place on the board; otherwise they are round.</source>
        <translation>Des pastilles carrées marquent une place sur la carte ; sinon elles sont rondes.</translation>
    </message>
    <message>
        <source>S&amp;quare pads</source>
        <translation>&amp;Pastilles carrées</translation>
    </message>
    <message>
        <source>Lines the holes with metal.</source>
        <translation>Revêt les trous de métal.</translation>
    </message>
    <message>
        <source>&amp;Plated through</source>
        <translation>&amp;Métallisé</translation>
    </message>
</context>
<context>
    <name>SceneForm</name>
    <message>
        <source>Scene</source>
        <translation>Scène</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to it.</source>
        <translation>Un nom court sans espaces par lequel les autres choses désignent la pièce.</translation>
    </message>
    <message>
        <source>The heading shown above the scene.</source>
        <translation>L&apos;en-tête au-dessus de la scène.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspect</translation>
    </message>
    <message>
        <source>Width and height of the space.</source>
        <translation>Largeur et hauteur de l&apos;espace.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>The colour behind the parts.</source>
        <translation>La couleur derrière les pièces.</translation>
    </message>
    <message>
        <source>Draws a grid of 5 mm behind the parts.</source>
        <translation>Dessine une grille de 5 mm derrière les pièces.</translation>
    </message>
    <message>
        <source>Show a &amp;grid</source>
        <translation>Montrer une &amp;grille</translation>
    </message>
</context>
<context>
    <name>ShaftForm</name>
    <message>
        <source>Shaft</source>
        <translation>Arbre</translation>
    </message>
    <message>
        <source>The diameter of the shaft.</source>
        <translation>Le diamètre de l&apos;arbre.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>How far the shaft twists under full load.</source>
        <translation>De combien l&apos;arbre se tord en pleine charge.</translation>
    </message>
    <message>
        <source>The shaft is a tube.</source>
        <translation>L&apos;arbre est un tube.</translation>
    </message>
    <message>
        <source>&amp;Hollow</source>
        <translation>&amp;Creux</translation>
    </message>
    <message>
        <source>A key makes the wheels turn with the shaft.</source>
        <translation>Une clavette fait tourner les roues avec l&apos;arbre.</translation>
    </message>
    <message>
        <source>With &amp;key</source>
        <translation>Avec c&amp;lavette</translation>
    </message>
    <message>
        <source>Otherwise the ends are plain.</source>
        <translation>Sinon les bouts sont droits.</translation>
    </message>
    <message>
        <source>&amp;Rounded ends</source>
        <translation>Bouts a&amp;rrondis</translation>
    </message>
    <message>
        <source>Wheels</source>
        <translation>Roues</translation>
    </message>
    <message>
        <source>The wheels turn on the shaft rather than with it.</source>
        <translation>Les roues tournent sur l&apos;arbre plutôt qu&apos;avec lui.</translation>
    </message>
    <message>
        <source>&amp;Wheels run freely</source>
        <translation>R&amp;oues folles</translation>
    </message>
</context>
<context>
    <name>StartForm</name>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>The chart runs as soon as the model starts.</source>
        <translation>L&apos;organigramme s&apos;exécute dès que le modèle démarre.</translation>
    </message>
    <message>
        <source>Starts by itsel&amp;f</source>
        <translation>&amp;Démarre de lui-même</translation>
    </message>
    <message>
        <source>One input that is on starts the chart; otherwise all must be on.</source>
        <translation>Une entrée active démarre l&apos;organigramme ; sinon toutes doivent l&apos;être.</translation>
    </message>
    <message>
        <source>&amp;Any input is enough</source>
        <translation>Une seule &amp;entrée suffit</translation>
    </message>
    <message>
        <source>How long the chart waits before its first block.</source>
        <translation>Combien de temps l&apos;organigramme attend avant son premier bloc.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
</context>
<context>
    <name>StepForm</name>
    <message>
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>What the block does with its output.</source>
        <translation>Ce que le bloc fait de sa sortie.</translation>
    </message>
    <message>
        <source>The output name of the components that the block switches.</source>
        <translation>Le nom de sortie des composants que le bloc commute.</translation>
    </message>
    <message>
        <source>How long the step lasts.</source>
        <translation>Combien de temps dure le pas.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>How strongly the output is switched on, in percent.</source>
        <translation>Avec quelle force la sortie est allumée, en pour cent.</translation>
    </message>
    <message>
        <source>Switches the output on; otherwise it is switched off.</source>
        <translation>Allume la sortie ; sinon elle est éteinte.</translation>
    </message>
    <message>
        <source>Switches &amp;on</source>
        <translation>A&amp;llume</translation>
    </message>
    <message>
        <source>The chart goes on only when the time is over.</source>
        <translation>L&apos;organigramme ne continue que lorsque le temps est écoulé.</translation>
    </message>
    <message>
        <source>&amp;Waits for the end</source>
        <translation>&amp;Attend la fin</translation>
    </message>
    <message>
        <source>Leaves just this output on.</source>
        <translation>Ne laisse allumée que cette sortie.</translation>
    </message>
    <message>
        <source>Switches all o&amp;ther outputs off</source>
        <translation>É&amp;teint toutes les autres sorties</translation>
    </message>
</context>
<context>
    <name>StopForm</name>
    <message>
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>The chart begins again from its start.</source>
        <translation>L&apos;organigramme recommence depuis son départ.</translation>
    </message>
    <message>
        <source>&amp;Starts again</source>
        <translation>&amp;Recommence</translation>
    </message>
    <message>
        <source>A chart that starts again never ends by itself. Start again?</source>
        <translation>Un organigramme qui recommence ne finit jamais de lui-même. Recommencer ?</translation>
    </message>
    <message>
        <source>The chart will end here. End it?</source>
        <translation>L&apos;organigramme finira ici. Le finir ?</translation>
    </message>
    <message>
        <source>Otherwise they stay as they are.</source>
        <translation>Sinon elles restent telles quelles.</translation>
    </message>
    <message>
        <source>Switches all &amp;outputs off</source>
        <translation>É&amp;teint toutes les sorties</translation>
    </message>
    <message>
        <source>What is shown to the reader at the end.</source>
        <translation>Ce qui est montré au lecteur à la fin.</translation>
    </message>
</context>
<context>
    <name>SwitchForm</name>
    <message>
        <source>Switch</source>
        <translation>Interrupteur</translation>
    </message>
    <message>
        <source>&amp;Contact:</source>
        <translation>&amp;Contact :</translation>
    </message>
    <message>
        <source>Lets current through as soon as the model starts.</source>
        <translation>Laisse passer le courant dès que le modèle démarre.</translation>
    </message>
    <message>
        <source>Closed at the start</source>
        <translation>Fermé au départ</translation>
    </message>
    <message>
        <source>&amp;Kind:</source>
        <translation>&amp;Sorte :</translation>
    </message>
    <message>
        <source>Whether the contact stays as it is set, or opens again when it is let go.</source>
        <translation>Si le contact reste comme on le met, ou s&apos;ouvre de nouveau quand on le lâche.</translation>
    </message>
    <message>
        <source>Springs back</source>
        <translation>Revient tout seul</translation>
    </message>
    <message>
        <source>Stays where it is put</source>
        <translation>Reste où on le met</translation>
    </message>
    <message>
        <source>The resistance of the closed contact.</source>
        <translation>La résistance du contact fermé.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>How long the contact chatters when it closes.</source>
        <translation>Combien de temps le contact rebondit en se fermant.</translation>
    </message>
    <message>
        <source>Draws the lever with its hinge on the right; otherwise on the left.</source>
        <translation>Dessine le levier avec sa charnière à droite ; sinon à gauche.</translation>
    </message>
    <message>
        <source>&amp;Hinge on the right</source>
        <translation>C&amp;harnière à droite</translation>
    </message>
    <message>
        <source>Handling</source>
        <translation>Manœuvre</translation>
    </message>
    <message>
        <source>The key that works the switch while the model runs; one capital letter or digit.</source>
        <translation>La touche qui manœuvre l&apos;interrupteur pendant l&apos;exécution du modèle ; une majuscule ou un chiffre.</translation>
    </message>
    <message>
        <source>Otherwise only the model itself works the switch.</source>
        <translation>Sinon seul le modèle lui-même manœuvre l&apos;interrupteur.</translation>
    </message>
    <message>
        <source>Can be &amp;worked by the reader</source>
        <translation>Peut être &amp;manœuvré par le lecteur</translation>
    </message>
    <message>
        <source>Writes the name of each pin beside it.</source>
        <translation>Écrit le nom de chaque broche à côté.</translation>
    </message>
    <message>
        <source>&amp;Names at the pins</source>
        <translation>&amp;Noms aux broches</translation>
    </message>
</context>
<context>
    <name>TextForm</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Lettres</translation>
    </message>
    <message>
        <source>What is written; it is wrapped at the width of the part.</source>
        <translation>Ce qui est écrit ; cela va à la ligne à la largeur de la pièce.</translation>
    </message>
    <message>
        <source>Height of a line of the text.</source>
        <translation>Hauteur d&apos;une ligne du texte.</translation>
    </message>
    <message>
        <source>The unit shown; a click offers others.</source>
        <translation>L&apos;unité montrée ; un clic en propose d&apos;autres.</translation>
    </message>
    <message>
        <source>Where the lines stand within the width.</source>
        <translation>Où sont les lignes dans la largeur.</translation>
    </message>
    <message>
        <source>The colour of the letters.</source>
        <translation>La couleur des lettres.</translation>
    </message>
    <message>
        <source>&amp;Weight:</source>
        <translation>&amp;Graisse :</translation>
    </message>
    <message>
        <source>Writes the text in bold letters.</source>
        <translation>Écrit le texte en lettres grasses.</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>&amp;Slant:</source>
        <translation>&amp;Inclinaison :</translation>
    </message>
    <message>
        <source>Writes the text in sloping letters.</source>
        <translation>Écrit le texte en lettres penchées.</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Draws a thin frame round the text.</source>
        <translation>Dessine un cadre fin autour du texte.</translation>
    </message>
    <message>
        <source>Draw a &amp;frame</source>
        <translation>Dessiner un &amp;cadre</translation>
    </message>
</context>
<context>
    <name>WireForm</name>
    <message>
        <source>Wire</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>The cross-section of the copper.</source>
        <translation>La section du cuivre.</translation>
    </message>
    <message>
        <source>The wire has a coloured cover.</source>
        <translation>Le fil a une gaine colorée.</translation>
    </message>
    <message>
        <source>&amp;Insulated</source>
        <translation>&amp;Isolé</translation>
    </message>
    <message>
        <source>Many thin wires make it easy to bend.</source>
        <translation>Beaucoup de fils fins le rendent souple.</translation>
    </message>
    <message>
        <source>&amp;Stranded</source>
        <translation>&amp;Multibrin</translation>
    </message>
    <message>
        <source>Runs along right angles; otherwise straight from pin to pin.</source>
        <translation>Suit des angles droits ; sinon tout droit de broche à broche.</translation>
    </message>
    <message>
        <source>&amp;Right angles only</source>
        <translation>&amp;Angles droits seulement</translation>
    </message>
</context>
<context>
    <name>core/body</name>
    <message>
        <source>Body</source>
        <translation>Corps</translation>
    </message>
</context>
<context>
    <name>core/collections</name>
    <message>
        <source>Gallery of collections</source>
        <translation>Galerie des collections</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>One picture.</source>
        <translation>Une image.</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>One of a few pictures.</source>
        <translation>Une image parmi quelques-unes.</translation>
    </message>
    <message>
        <source>Sun</source>
        <translation>Soleil</translation>
    </message>
    <message>
        <source>Rain</source>
        <translation>Pluie</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Any number of pictures.</source>
        <translation>Autant d&apos;images que l&apos;on veut.</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>Keys and values.</source>
        <translation>Clés et valeurs.</translation>
    </message>
    <message>
        <source>Lettering</source>
        <translation>Lettrage</translation>
    </message>
    <message>
        <source>The font of a text.</source>
        <translation>La police d&apos;un texte.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>A number that can follow another.</source>
        <translation>Un nombre qui peut en suivre un autre.</translation>
    </message>
</context>
<context>
    <name>core/connection</name>
    <message>
        <source>Connection</source>
        <translation>Liaison</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>The pin at which the connection begins.</source>
        <translation>La broche où commence la liaison.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>The pin at which the connection ends.</source>
        <translation>La broche où finit la liaison.</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Épaisseur du trait</translation>
    </message>
    <message>
        <source>How thick the line is drawn.</source>
        <translation>L&apos;épaisseur du trait.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>The colour of the line.</source>
        <translation>La couleur du trait.</translation>
    </message>
</context>
<context>
    <name>core/control</name>
    <message>
        <source>Control</source>
        <translation>Commande</translation>
    </message>
</context>
<context>
    <name>core/domain</name>
    <message>
        <source>Domain</source>
        <translation>Domaine</translation>
    </message>
</context>
<context>
    <name>core/element</name>
    <message>
        <source>Element</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to the element.</source>
        <translation>Un nom court sans espaces par lequel les autres choses désignent l&apos;élément.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>The text shown with the element.</source>
        <translation>Le texte montré avec l&apos;élément.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Where the centre of the element is.</source>
        <translation>Où est le centre de l&apos;élément.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Width and height of the element.</source>
        <translation>Largeur et hauteur de l&apos;élément.</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>How far the element is turned clockwise.</source>
        <translation>De combien l&apos;élément est tourné dans le sens horaire.</translation>
    </message>
    <message>
        <source>Turning</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>How the element may be turned: freely, by right angles, or not at all.</source>
        <translation>Comment l&apos;élément peut être tourné : librement, par angles droits ou pas du tout.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>quarter</source>
        <translation>quart de tour</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>fixe</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Whether the element is seen while the model runs.</source>
        <translation>Si l&apos;élément est visible pendant l&apos;exécution du modèle.</translation>
    </message>
</context>
<context>
    <name>core/gallery</name>
    <message>
        <source>Gallery of controls</source>
        <translation>Galerie des commandes</translation>
    </message>
    <message>
        <source>Switched on</source>
        <translation>Allumé</translation>
    </message>
    <message>
        <source>A yes or no.</source>
        <translation>Un oui ou non.</translation>
    </message>
    <message>
        <source>Trusted</source>
        <translation>De confiance</translation>
    </message>
    <message>
        <source>A yes or no that is asked about before it changes.</source>
        <translation>Un oui ou non sur lequel on interroge avant qu&apos;il change.</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>One of two words.</source>
        <translation>Un mot parmi deux.</translation>
    </message>
    <message>
        <source>quiet</source>
        <translation>doux</translation>
    </message>
    <message>
        <source>loud</source>
        <translation>fort</translation>
    </message>
    <message>
        <source>Held down</source>
        <translation>Maintenu</translation>
    </message>
    <message>
        <source>True for as long as a button is held down.</source>
        <translation>Vrai tant qu&apos;un bouton est maintenu.</translation>
    </message>
    <message>
        <source>Latched</source>
        <translation>Enclenché</translation>
    </message>
    <message>
        <source>True while a button is pressed in.</source>
        <translation>Vrai tant qu&apos;un bouton est enfoncé.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>A yes or no with words of its own.</source>
        <translation>Un oui ou non avec ses propres mots.</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>One of several words, shown as pictures and texts.</source>
        <translation>Un mot parmi plusieurs, montrés en images et en textes.</translation>
    </message>
    <message>
        <source>sun</source>
        <translation>soleil</translation>
    </message>
    <message>
        <source>rain</source>
        <translation>pluie</translation>
    </message>
    <message>
        <source>wind</source>
        <translation>vent</translation>
    </message>
    <message>
        <source>fog</source>
        <translation>brouillard</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Force</translation>
    </message>
    <message>
        <source>How strongly the wind blows, from 0 to 12.</source>
        <translation>Avec quelle force le vent souffle, de 0 à 12.</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>One of a few colours.</source>
        <translation>Une couleur parmi quelques-unes.</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Joueurs</translation>
    </message>
    <message>
        <source>One of a few whole numbers.</source>
        <translation>Un nombre entier parmi quelques-uns.</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>One of a few numbers.</source>
        <translation>Un nombre parmi quelques-uns.</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Coin</translation>
    </message>
    <message>
        <source>One of a few points.</source>
        <translation>Un point parmi quelques-uns.</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Any text.</source>
        <translation>N&apos;importe quel texte.</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>A capital letter and a digit.</source>
        <translation>Une majuscule et un chiffre.</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>A whole number.</source>
        <translation>Un nombre entier.</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>A length in the unit that you choose.</source>
        <translation>Une longueur dans l&apos;unité que vous choisissez.</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>A text that nobody can change.</source>
        <translation>Un texte que personne ne peut changer.</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Morceaux</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>A weight in the unit that you choose.</source>
        <translation>Un poids dans l&apos;unité que vous choisissez.</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>Pente</translation>
    </message>
    <message>
        <source>An angle; the step follows from what is allowed, in the unit shown.</source>
        <translation>Un angle ; le pas découle de ce qui est permis, dans l&apos;unité montrée.</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Endroit</translation>
    </message>
    <message>
        <source>A point in the unit that you choose.</source>
        <translation>Un point dans l&apos;unité que vous choisissez.</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>A whole number from 0 to 100.</source>
        <translation>Un nombre entier de 0 à 100.</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>Paint</source>
        <translation>Peinture</translation>
    </message>
    <message>
        <source>Any colour.</source>
        <translation>N&apos;importe quelle couleur.</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Format de coupe</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>One of several words, or a width of its own.</source>
        <translation>Un mot parmi plusieurs, ou une largeur propre.</translation>
    </message>
    <message>
        <source>small</source>
        <translation>petit</translation>
    </message>
    <message>
        <source>medium</source>
        <translation>moyen</translation>
    </message>
    <message>
        <source>large</source>
        <translation>grand</translation>
    </message>
    <message>
        <source>own</source>
        <translation>propre</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>The width of a format of its own.</source>
        <translation>La largeur d&apos;un format propre.</translation>
    </message>
    <message>
        <source>Guarded</source>
        <translation>Gardé</translation>
    </message>
    <message>
        <source>Whether what belongs to a guard is in use.</source>
        <translation>Si ce qui va avec un garde est utilisé.</translation>
    </message>
    <message>
        <source>Name of the guard</source>
        <translation>Nom du garde</translation>
    </message>
    <message>
        <source>Who keeps watch.</source>
        <translation>Qui monte la garde.</translation>
    </message>
    <message>
        <source>Windy</source>
        <translation>Venteux</translation>
    </message>
    <message>
        <source>Fog, &lt;i&gt;fine&lt;/i&gt; H&lt;sub&gt;2&lt;/sub&gt;O</source>
        <translation>Brouillard, &lt;i&gt;fin&lt;/i&gt; H&lt;sub&gt;2&lt;/sub&gt;O</translation>
    </message>
</context>
<context>
    <name>core/info</name>
    <message>
        <source>Explanation</source>
        <translation>Explication</translation>
    </message>
    <message>
        <source>Opens on</source>
        <translation>S&apos;ouvre par</translation>
    </message>
    <message>
        <source>What the reader does to open the explanation.</source>
        <translation>Ce que fait le lecteur pour ouvrir l&apos;explication.</translation>
    </message>
    <message>
        <source>click</source>
        <translation>clic</translation>
    </message>
    <message>
        <source>hover</source>
        <translation>survol</translation>
    </message>
    <message>
        <source>Only once</source>
        <translation>Une seule fois</translation>
    </message>
    <message>
        <source>Whether the button goes away when the explanation has been read.</source>
        <translation>Si le bouton disparaît quand l&apos;explication a été lue.</translation>
    </message>
    <message>
        <source>Been read</source>
        <translation>Lu</translation>
    </message>
    <message>
        <source>Whether the reader has closed the explanation, while the model runs.</source>
        <translation>Si le lecteur a fermé l’explication pendant que le modèle fonctionne.</translation>
    </message>
</context>
<context>
    <name>core/model</name>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>The name of the model, as people read it.</source>
        <translation>Le nom du modèle, tel que les gens le lisent.</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Who made the model.</source>
        <translation>Qui a fait le modèle.</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>What a teacher should know before using the model.</source>
        <translation>Ce qu&apos;un enseignant devrait savoir avant d&apos;utiliser le modèle.</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Whether the running model stands still for a moment.</source>
        <translation>Si le modèle en cours s&apos;arrête un instant.</translation>
    </message>
</context>
<context>
    <name>core/pad</name>
    <message>
        <source>Pad</source>
        <translation>Pastille</translation>
    </message>
</context>
<context>
    <name>core/part</name>
    <message>
        <source>Part</source>
        <translation>Pièce</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Clic</translation>
    </message>
    <message>
        <source>What a click on the part does while the model runs, besides what the part itself does.</source>
        <translation>Ce que fait un clic sur la pièce pendant l&apos;exécution du modèle, outre ce que fait la pièce elle-même.</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>show pop-up</source>
        <translation>montrer la bulle</translation>
    </message>
    <message>
        <source>open link</source>
        <translation>ouvrir le lien</translation>
    </message>
    <message>
        <source>show scene</source>
        <translation>montrer la scène</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>The address that a click opens.</source>
        <translation>L&apos;adresse qu&apos;ouvre un clic.</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Scène</translation>
    </message>
    <message>
        <source>The scene that a click shows.</source>
        <translation>La scène que montre un clic.</translation>
    </message>
</context>
<context>
    <name>core/picture</name>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>The picture shown.</source>
        <translation>L&apos;image montrée.</translation>
    </message>
    <message>
        <source>More pictures</source>
        <translation>Autres images</translation>
    </message>
    <message>
        <source>Pictures shown in turn after the first one.</source>
        <translation>Images montrées tour à tour après la première.</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>Garder les proportions</translation>
    </message>
    <message>
        <source>Whether the picture keeps the ratio of width and height.</source>
        <translation>Si l&apos;image garde le rapport de la largeur et de la hauteur.</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>En miroir</translation>
    </message>
    <message>
        <source>Whether left and right are exchanged.</source>
        <translation>Si la gauche et la droite sont échangées.</translation>
    </message>
    <message>
        <source>Framed</source>
        <translation>Encadrée</translation>
    </message>
    <message>
        <source>Whether a thin frame is drawn round the picture.</source>
        <translation>Si un cadre fin est dessiné autour de l&apos;image.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Where the picture comes from and who made it.</source>
        <translation>D&apos;où vient l&apos;image et qui l&apos;a faite.</translation>
    </message>
</context>
<context>
    <name>core/pin</name>
    <message>
        <source>Pin</source>
        <translation>Broche</translation>
    </message>
</context>
<context>
    <name>core/popup</name>
    <message>
        <source>Pop-up</source>
        <translation>Bulle</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouverte</translation>
    </message>
    <message>
        <source>Whether the pop-up is shown now.</source>
        <translation>Si la bulle est montrée maintenant.</translation>
    </message>
    <message>
        <source>Open at the start</source>
        <translation>Ouverte au départ</translation>
    </message>
    <message>
        <source>Whether the pop-up is open when the model starts.</source>
        <translation>Si la bulle est ouverte quand le modèle démarre.</translation>
    </message>
</context>
<context>
    <name>core/scene</name>
    <message>
        <source>Scene</source>
        <translation>Scène</translation>
    </message>
</context>
<context>
    <name>core/space</name>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>A short name without blanks by which other things refer to the space.</source>
        <translation>Un nom court sans espaces par lequel les autres choses désignent l&apos;espace.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>The heading shown above the space.</source>
        <translation>L&apos;en-tête au-dessus de l&apos;espace.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Width and height of the space.</source>
        <translation>Largeur et hauteur de l&apos;espace.</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>The colour behind the parts.</source>
        <translation>La couleur derrière les pièces.</translation>
    </message>
    <message>
        <source>Grid shown</source>
        <translation>Grille montrée</translation>
    </message>
    <message>
        <source>Whether a grid of 5 mm is drawn behind the parts.</source>
        <translation>Si une grille de 5 mm est dessinée derrière les pièces.</translation>
    </message>
</context>
<context>
    <name>core/subpart</name>
    <message>
        <source>Subpart</source>
        <translation>Sous-pièce</translation>
    </message>
    <message>
        <source>Roles</source>
        <translation>Rôles</translation>
    </message>
    <message>
        <source>What the subpart is to its part, where that differs from its class.</source>
        <translation>Ce que la sous-pièce est pour sa pièce, quand cela diffère de sa classe.</translation>
    </message>
</context>
<context>
    <name>core/text</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>What is written; it is wrapped at the width of the part.</source>
        <translation>Ce qui est écrit ; cela va à la ligne à la largeur de la pièce.</translation>
    </message>
    <message>
        <source>Letter height</source>
        <translation>Hauteur des lettres</translation>
    </message>
    <message>
        <source>Height of a line of the text.</source>
        <translation>Hauteur d&apos;une ligne du texte.</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Whether the letters are bold.</source>
        <translation>Si les lettres sont grasses.</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Italique</translation>
    </message>
    <message>
        <source>Whether the letters slope.</source>
        <translation>Si les lettres penchent.</translation>
    </message>
    <message>
        <source>Framed</source>
        <translation>Encadrée</translation>
    </message>
    <message>
        <source>Whether a thin frame is drawn round the text.</source>
        <translation>Si un cadre fin est dessiné autour du texte.</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alignement</translation>
    </message>
    <message>
        <source>Where the lines stand within the width.</source>
        <translation>Où sont les lignes dans la largeur.</translation>
    </message>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>center</source>
        <translation>centre</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>The colour of the letters.</source>
        <translation>La couleur des lettres.</translation>
    </message>
</context>
<context>
    <name>electronics/*</name>
    <message>
        <source>Electronics</source>
        <translation>Électronique</translation>
    </message>
    <message>
        <source>Current shown</source>
        <translation>Courant montré</translation>
    </message>
    <message>
        <source>Whether moving dots show the current in the wires.</source>
        <translation>Si des points mobiles montrent le courant dans les fils.</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symboles</translation>
    </message>
    <message>
        <source>Which family of circuit symbols is drawn.</source>
        <translation>Quelle famille de symboles est dessinée.</translation>
    </message>
    <message>
        <source>European</source>
        <translation>Européens</translation>
    </message>
    <message>
        <source>American</source>
        <translation>Américains</translation>
    </message>
</context>
<context>
    <name>electronics/battery</name>
    <message>
        <source>Battery</source>
        <translation>Pile</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tension</translation>
    </message>
    <message>
        <source>The voltage of the fresh battery.</source>
        <translation>La tension de la pile neuve.</translation>
    </message>
    <message>
        <source>Cells</source>
        <translation>Cellules</translation>
    </message>
    <message>
        <source>How many cells the battery is made of.</source>
        <translation>De combien de cellules la pile est faite.</translation>
    </message>
    <message>
        <source>Internal resistance</source>
        <translation>Résistance interne</translation>
    </message>
    <message>
        <source>The resistance of the battery itself.</source>
        <translation>La résistance de la pile elle-même.</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>Bornes</translation>
    </message>
    <message>
        <source>How wires are joined to the battery.</source>
        <translation>Comment les fils sont reliés à la pile.</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Pince</translation>
    </message>
    <message>
        <source>Wire</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Polarity shown</source>
        <translation>Polarité montrée</translation>
    </message>
    <message>
        <source>Whether plus and minus are drawn at the pins.</source>
        <translation>Si plus et moins sont dessinés aux broches.</translation>
    </message>
    <message>
        <source>Rechargeable</source>
        <translation>Rechargeable</translation>
    </message>
    <message>
        <source>Whether the battery can be charged again.</source>
        <translation>Si la pile peut être rechargée.</translation>
    </message>
</context>
<context>
    <name>electronics/block</name>
    <message>
        <source>Logic block</source>
        <translation>Bloc logique</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Opération</translation>
    </message>
    <message>
        <source>How the block works out its output from its inputs.</source>
        <translation>Comment le bloc calcule sa sortie à partir de ses entrées.</translation>
    </message>
    <message>
        <source>AND</source>
        <translation>ET</translation>
    </message>
    <message>
        <source>OR</source>
        <translation>OU</translation>
    </message>
    <message>
        <source>NOT</source>
        <translation>NON</translation>
    </message>
    <message>
        <source>NAND</source>
        <translation>NAND</translation>
    </message>
    <message>
        <source>NOR</source>
        <translation>NOR</translation>
    </message>
    <message>
        <source>XOR</source>
        <translation>XOR</translation>
    </message>
    <message>
        <source>Inverted output</source>
        <translation>Sortie inversée</translation>
    </message>
    <message>
        <source>Whether the output is turned round.</source>
        <translation>Si la sortie est inversée.</translation>
    </message>
    <message>
        <source>Truth table shown</source>
        <translation>Table de vérité montrée</translation>
    </message>
    <message>
        <source>Whether the truth table is drawn below the block.</source>
        <translation>Si la table de vérité est dessinée sous le bloc.</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symboles</translation>
    </message>
    <message>
        <source>A box with a sign, or the curved shapes.</source>
        <translation>Un rectangle avec un signe, ou les formes courbes.</translation>
    </message>
    <message>
        <source>European</source>
        <translation>Européens</translation>
    </message>
    <message>
        <source>American</source>
        <translation>Américains</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Retard</translation>
    </message>
    <message>
        <source>How long the output takes to follow the inputs.</source>
        <translation>Combien de temps la sortie met à suivre les entrées.</translation>
    </message>
    <message>
        <source>Input names</source>
        <translation>Noms des entrées</translation>
    </message>
    <message>
        <source>What is written beside the inputs, from top to bottom.</source>
        <translation>Ce qui est écrit à côté des entrées, de haut en bas.</translation>
    </message>
    <message>
        <source>Truth table</source>
        <translation>Table de vérité</translation>
    </message>
    <message>
        <source>The output for every combination of the inputs.</source>
        <translation>La sortie pour chaque combinaison des entrées.</translation>
    </message>
    <message>
        <source>NOT AND</source>
        <translation>NON ET</translation>
    </message>
    <message>
        <source>NOT OR</source>
        <translation>NON OU</translation>
    </message>
    <message>
        <source>EITHER OR</source>
        <translation>OU EXCLUSIF</translation>
    </message>
</context>
<context>
    <name>electronics/buzzer</name>
    <message>
        <source>Buzzer</source>
        <translation>Vibreur</translation>
    </message>
    <message>
        <source>Sounds at the start</source>
        <translation>Sonne au départ</translation>
    </message>
    <message>
        <source>Whether the buzzer sounds when the model starts.</source>
        <translation>Si le vibreur sonne quand le modèle démarre.</translation>
    </message>
    <message>
        <source>Pulsed</source>
        <translation>Intermittent</translation>
    </message>
    <message>
        <source>Whether the sound goes on and off.</source>
        <translation>Si le son va et vient.</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Whether the buzzer sounds softly or loudly.</source>
        <translation>Si le vibreur sonne doucement ou fort.</translation>
    </message>
    <message>
        <source>soft</source>
        <translation>doux</translation>
    </message>
    <message>
        <source>loud</source>
        <translation>fort</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>How high the tone is.</source>
        <translation>La hauteur du son.</translation>
    </message>
    <message>
        <source>Melody</source>
        <translation>Mélodie</translation>
    </message>
    <message>
        <source>The notes that are played in turn, as numbers of half tones; 60 is the middle C.</source>
        <translation>Les notes jouées tour à tour, en numéros de demi-tons ; 60 est le do central.</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>Signe</translation>
    </message>
    <message>
        <source>The picture that stands for the sound.</source>
        <translation>L&apos;image qui représente le son.</translation>
    </message>
    <message>
        <source>Bell</source>
        <translation>Cloche</translation>
    </message>
    <message>
        <source>Horn</source>
        <translation>Klaxon</translation>
    </message>
    <message>
        <source>Siren</source>
        <translation>Sirène</translation>
    </message>
    <message>
        <source>Pictures while sounding</source>
        <translation>Images pendant le son</translation>
    </message>
    <message>
        <source>Pictures shown in turn while the buzzer sounds.</source>
        <translation>Images montrées tour à tour pendant que le vibreur sonne.</translation>
    </message>
</context>
<context>
    <name>electronics/case</name>
    <message>
        <source>Case</source>
        <translation>Boîtier</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>Whether what lies behind the case is seen.</source>
        <translation>Si ce qui est derrière le boîtier est visible.</translation>
    </message>
</context>
<context>
    <name>electronics/component</name>
    <message>
        <source>Component</source>
        <translation>Composant</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Repère</translation>
    </message>
    <message>
        <source>Letters and number by which the component is called in the circuit, for example R1.</source>
        <translation>Les lettres et le nombre par lesquels le composant est désigné dans le circuit, par exemple R1.</translation>
    </message>
    <message>
        <source>Reference shown</source>
        <translation>Repère montré</translation>
    </message>
    <message>
        <source>Whether the reference is written beside the component.</source>
        <translation>Si le repère est écrit à côté du composant.</translation>
    </message>
    <message>
        <source>Value shown</source>
        <translation>Valeur montrée</translation>
    </message>
    <message>
        <source>Whether the main value is written beside the component.</source>
        <translation>Si la valeur principale est écrite à côté du composant.</translation>
    </message>
    <message>
        <source>Label place</source>
        <translation>Place de l&apos;étiquette</translation>
    </message>
    <message>
        <source>Where the label stands, seen from the centre.</source>
        <translation>Où se trouve l&apos;étiquette, vue du centre.</translation>
    </message>
    <message>
        <source>Output name</source>
        <translation>Nom de sortie</translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the component; empty when none does.</source>
        <translation>Le nom sous lequel les organigrammes commutent le composant ; vide si aucun ne le fait.</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>Niveau actuel</translation>
    </message>
    <message>
        <source>How strongly a running flowchart has switched the component on, in percent; -1 while none has.</source>
        <translation>Avec quelle force un organigramme en cours a allumé le composant, en pour cent ; -1 tant qu&apos;aucun ne l&apos;a fait.</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>En panne</translation>
    </message>
    <message>
        <source>A broken component lets no current through.</source>
        <translation>Un composant en panne ne laisse passer aucun courant.</translation>
    </message>
</context>
<context>
    <name>electronics/control</name>
    <message>
        <source>Control</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Where the control stands, in percent.</source>
        <translation>Où se trouve la commande, en pour cent.</translation>
    </message>
    <message>
        <source>Can be worked</source>
        <translation>Manœuvrable</translation>
    </message>
    <message>
        <source>Whether the reader may move the control while the model runs.</source>
        <translation>Si le lecteur peut déplacer la commande pendant l&apos;exécution du modèle.</translation>
    </message>
</context>
<context>
    <name>electronics/led</name>
    <message>
        <source>LED</source>
        <translation>LED</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>The colour of the light.</source>
        <translation>La couleur de la lumière.</translation>
    </message>
    <message>
        <source>Lit at the start</source>
        <translation>Allumée au départ</translation>
    </message>
    <message>
        <source>Whether the LED shines when the model starts.</source>
        <translation>Si la LED brille quand le modèle démarre.</translation>
    </message>
    <message>
        <source>Blinking</source>
        <translation>Clignotante</translation>
    </message>
    <message>
        <source>Whether the LED goes on and off by itself.</source>
        <translation>Si la LED s&apos;allume et s&apos;éteint d&apos;elle-même.</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Lentille</translation>
    </message>
    <message>
        <source>Clear lenses throw a narrow beam, milky ones shine all round.</source>
        <translation>Les lentilles claires jettent un faisceau étroit, les laiteuses brillent tout autour.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Claire</translation>
    </message>
    <message>
        <source>Milky</source>
        <translation>Laiteuse</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>How brightly the LED shines, in percent.</source>
        <translation>La luminosité de la LED, en pour cent.</translation>
    </message>
    <message>
        <source>Blink period</source>
        <translation>Période de clignotement</translation>
    </message>
    <message>
        <source>The time from one flash to the next.</source>
        <translation>Le temps d&apos;un éclat au suivant.</translation>
    </message>
    <message>
        <source>Blink pattern</source>
        <translation>Motif de clignotement</translation>
    </message>
    <message>
        <source>Times in seconds for which the LED is on and off in turn.</source>
        <translation>Temps en secondes pendant lesquels la LED est tour à tour allumée et éteinte.</translation>
    </message>
    <message>
        <source>Forward voltage</source>
        <translation>Tension directe</translation>
    </message>
    <message>
        <source>The voltage at which the LED begins to shine.</source>
        <translation>La tension à laquelle la LED commence à briller.</translation>
    </message>
    <message>
        <source>Greatest current</source>
        <translation>Courant maximal</translation>
    </message>
    <message>
        <source>A greater current destroys the LED.</source>
        <translation>Un courant plus fort détruit la LED.</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <source>The diameter of the lens.</source>
        <translation>Le diamètre de la lentille.</translation>
    </message>
</context>
<context>
    <name>electronics/light-sensor</name>
    <message>
        <source>Light sensor</source>
        <translation>Capteur de lumière</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Lumière</translation>
    </message>
    <message>
        <source>How bright it is at the start, in percent.</source>
        <translation>La luminosité au départ, en pour cent.</translation>
    </message>
    <message>
        <source>Switches at</source>
        <translation>Bascule à</translation>
    </message>
    <message>
        <source>The brightness at which the sensor counts as dark.</source>
        <translation>La luminosité à partir de laquelle il fait sombre pour le capteur.</translation>
    </message>
    <message>
        <source>Signal when</source>
        <translation>Signal quand il fait</translation>
    </message>
    <message>
        <source>Whether the sensor gives its signal in the dark or in the light.</source>
        <translation>Si le capteur donne son signal dans le noir ou à la lumière.</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>sombre</translation>
    </message>
    <message>
        <source>bright</source>
        <translation>clair</translation>
    </message>
    <message>
        <source>Follows its slider</source>
        <translation>Suit son curseur</translation>
    </message>
    <message>
        <source>Whether the reader sets the brightness with the slider.</source>
        <translation>Si le lecteur règle la luminosité avec le curseur.</translation>
    </message>
    <message>
        <source>Resistance in the dark</source>
        <translation>Résistance dans le noir</translation>
    </message>
    <message>
        <source>The resistance when no light falls on the sensor.</source>
        <translation>La résistance quand aucune lumière ne tombe sur le capteur.</translation>
    </message>
    <message>
        <source>Resistance in the light</source>
        <translation>Résistance à la lumière</translation>
    </message>
    <message>
        <source>The resistance in full light.</source>
        <translation>La résistance en pleine lumière.</translation>
    </message>
    <message>
        <source>Characteristic</source>
        <translation>Caractéristique</translation>
    </message>
    <message>
        <source>Pairs of brightness in lux and resistance in ohms between which the sensor interpolates.</source>
        <translation>Couples de luminosité en lux et de résistance en ohms entre lesquels le capteur interpole.</translation>
    </message>
</context>
<context>
    <name>electronics/meter</name>
    <message>
        <source>Meter</source>
        <translation>Appareil de mesure</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>What the meter measures.</source>
        <translation>Ce que mesure l&apos;appareil.</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>Tension</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Courant</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>Résistance</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Figures, or a needle over a scale.</source>
        <translation>Des chiffres, ou une aiguille sur une échelle.</translation>
    </message>
    <message>
        <source>digital</source>
        <translation>numérique</translation>
    </message>
    <message>
        <source>needle</source>
        <translation>aiguille</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Whether the reading stays as it is.</source>
        <translation>Si la mesure reste telle quelle.</translation>
    </message>
    <message>
        <source>Peak shown</source>
        <translation>Crête montrée</translation>
    </message>
    <message>
        <source>Whether the greatest reading so far is shown as well.</source>
        <translation>Si la plus grande mesure jusqu&apos;ici est montrée aussi.</translation>
    </message>
    <message>
        <source>Needle colour</source>
        <translation>Couleur de l&apos;aiguille</translation>
    </message>
    <message>
        <source>The colour of the needle.</source>
        <translation>La couleur de l&apos;aiguille.</translation>
    </message>
    <message>
        <source>Measures at</source>
        <translation>Mesure à</translation>
    </message>
    <message>
        <source>The pin at which the meter measures.</source>
        <translation>La broche où l&apos;appareil mesure.</translation>
    </message>
    <message>
        <source>Scale marks</source>
        <translation>Traits de l&apos;échelle</translation>
    </message>
    <message>
        <source>Where the scale has long marks, in the quantity&apos;s basic unit.</source>
        <translation>Où l&apos;échelle a de longs traits, dans l&apos;unité de base de la grandeur.</translation>
    </message>
    <message>
        <source>Voltage (V)</source>
        <translation>Tension (V)</translation>
    </message>
    <message>
        <source>Current (A)</source>
        <translation>Courant (A)</translation>
    </message>
    <message>
        <source>Resistance (Ω)</source>
        <translation>Résistance (Ω)</translation>
    </message>
</context>
<context>
    <name>electronics/pad</name>
    <message>
        <source>Solder pad</source>
        <translation>Pastille</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forme</translation>
    </message>
    <message>
        <source>The outline of the copper.</source>
        <translation>Le contour du cuivre.</translation>
    </message>
    <message>
        <source>round</source>
        <translation>ronde</translation>
    </message>
    <message>
        <source>square</source>
        <translation>carrée</translation>
    </message>
    <message>
        <source>oval</source>
        <translation>ovale</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <source>How wide the copper is.</source>
        <translation>La largeur du cuivre.</translation>
    </message>
    <message>
        <source>Plated through</source>
        <translation>Métallisée</translation>
    </message>
    <message>
        <source>Whether the hole is lined with metal.</source>
        <translation>Si le trou est revêtu de métal.</translation>
    </message>
</context>
<context>
    <name>electronics/pin</name>
    <message>
        <source>Pin</source>
        <translation>Broche</translation>
    </message>
    <message>
        <source>Polarity</source>
        <translation>Polarité</translation>
    </message>
    <message>
        <source>Which pole of the supply belongs here, if it matters.</source>
        <translation>Quel pôle de l&apos;alimentation va ici, si cela compte.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>positive</source>
        <translation>positif</translation>
    </message>
    <message>
        <source>negative</source>
        <translation>négatif</translation>
    </message>
    <message>
        <source>Name shown</source>
        <translation>Nom montré</translation>
    </message>
    <message>
        <source>Whether the pin&apos;s name is written beside it.</source>
        <translation>Si le nom de la broche est écrit à côté.</translation>
    </message>
</context>
<context>
    <name>electronics/push-button</name>
    <message>
        <source>Push button</source>
        <translation>Bouton-poussoir</translation>
    </message>
    <message>
        <source>Cap colour</source>
        <translation>Couleur du capuchon</translation>
    </message>
    <message>
        <source>The colour of the cap.</source>
        <translation>La couleur du capuchon.</translation>
    </message>
    <message>
        <source>Lights up</source>
        <translation>S&apos;allume</translation>
    </message>
    <message>
        <source>Whether a lamp in the cap shines while the button is held.</source>
        <translation>Si une lampe brille dans le capuchon tant que le bouton est maintenu.</translation>
    </message>
</context>
<context>
    <name>electronics/resistor</name>
    <message>
        <source>Resistor</source>
        <translation>Résistance</translation>
    </message>
    <message>
        <source>Resistance</source>
        <translation>Résistance</translation>
    </message>
    <message>
        <source>The resistance as it is printed on the part.</source>
        <translation>La résistance telle qu&apos;elle est imprimée sur la pièce.</translation>
    </message>
    <message>
        <source>Tolerance in %</source>
        <translation>Tolérance en %</translation>
    </message>
    <message>
        <source>How far the true resistance may be from the printed one, in percent.</source>
        <translation>De combien la vraie résistance peut s&apos;écarter de celle imprimée, en pour cent.</translation>
    </message>
    <message>
        <source>Power rating</source>
        <translation>Puissance admissible</translation>
    </message>
    <message>
        <source>The power that the part stands without burning.</source>
        <translation>La puissance que la pièce supporte sans brûler.</translation>
    </message>
    <message>
        <source>Colour bands</source>
        <translation>Anneaux de couleur</translation>
    </message>
    <message>
        <source>Whether the colour bands are drawn.</source>
        <translation>Si les anneaux de couleur sont dessinés.</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>The box, or the zigzag line.</source>
        <translation>Le rectangle, ou la ligne en zigzag.</translation>
    </message>
    <message>
        <source>European</source>
        <translation>Européens</translation>
    </message>
    <message>
        <source>American</source>
        <translation>Américains</translation>
    </message>
</context>
<context>
    <name>electronics/switch</name>
    <message>
        <source>Switch</source>
        <translation>Interrupteur</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>Fermé</translation>
    </message>
    <message>
        <source>Whether the switch lets current through at the start.</source>
        <translation>Si l&apos;interrupteur laisse passer le courant au départ.</translation>
    </message>
    <message>
        <source>Springs back</source>
        <translation>Revient tout seul</translation>
    </message>
    <message>
        <source>Whether the switch stays closed only while it is held.</source>
        <translation>Si l&apos;interrupteur ne reste fermé que tant qu&apos;il est maintenu.</translation>
    </message>
    <message>
        <source>Lever side</source>
        <translation>Côté du levier</translation>
    </message>
    <message>
        <source>On which side the lever has its hinge.</source>
        <translation>De quel côté le levier a sa charnière.</translation>
    </message>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>Contact resistance</source>
        <translation>Résistance de contact</translation>
    </message>
    <message>
        <source>The resistance of the closed contact.</source>
        <translation>La résistance du contact fermé.</translation>
    </message>
    <message>
        <source>Bounce time</source>
        <translation>Durée des rebonds</translation>
    </message>
    <message>
        <source>How long the contact chatters when it closes.</source>
        <translation>Combien de temps le contact rebondit en se fermant.</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>The key that works the switch while the model runs; one capital letter or digit.</source>
        <translation>La touche qui manœuvre l&apos;interrupteur pendant l&apos;exécution du modèle ; une majuscule ou un chiffre.</translation>
    </message>
</context>
<context>
    <name>electronics/wire</name>
    <message>
        <source>Wire</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Insulated</source>
        <translation>Isolé</translation>
    </message>
    <message>
        <source>Whether the wire has a coloured cover.</source>
        <translation>Si le fil a une gaine colorée.</translation>
    </message>
    <message>
        <source>Stranded</source>
        <translation>Multibrin</translation>
    </message>
    <message>
        <source>Whether the wire is made of many thin ones.</source>
        <translation>Si le fil est fait de beaucoup de fils fins.</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Parcours</translation>
    </message>
    <message>
        <source>Along right angles, or straight from pin to pin.</source>
        <translation>Par angles droits, ou tout droit de broche à broche.</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>droit</translation>
    </message>
    <message>
        <source>square</source>
        <translation>à angles droits</translation>
    </message>
    <message>
        <source>Cross-section in mm²</source>
        <translation>Section en mm²</translation>
    </message>
    <message>
        <source>The copper&apos;s cross-section in square millimetres.</source>
        <translation>La section du cuivre en millimètres carrés.</translation>
    </message>
    <message>
        <source>Bends</source>
        <translation>Coudes</translation>
    </message>
    <message>
        <source>The points over which the wire runs, from its beginning to its end.</source>
        <translation>Les points par lesquels passe le fil, de son début à sa fin.</translation>
    </message>
</context>
<context>
    <name>flowcharts/*</name>
    <message>
        <source>Flowcharts</source>
        <translation>Organigrammes</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>How fast the flowcharts of the space run.</source>
        <translation>À quelle vitesse s&apos;exécutent les organigrammes de l&apos;espace.</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lente</translation>
    </message>
    <message>
        <source>Manual step</source>
        <translation>Pas à pas</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Held down to run the next block at the speed Manual step.</source>
        <translation>Maintenu pour exécuter le bloc suivant à la vitesse Pas à pas.</translation>
    </message>
</context>
<context>
    <name>flowcharts/block</name>
    <message>
        <source>Flowchart block</source>
        <translation>Bloc d&apos;organigramme</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>A remark for the readers of the chart.</source>
        <translation>Une remarque pour les lecteurs de l&apos;organigramme.</translation>
    </message>
    <message>
        <source>Comment shown</source>
        <translation>Commentaire montré</translation>
    </message>
    <message>
        <source>Whether the remark is written beside the block.</source>
        <translation>Si la remarque est écrite à côté du bloc.</translation>
    </message>
    <message>
        <source>Lights up</source>
        <translation>S&apos;allume</translation>
    </message>
    <message>
        <source>Whether the block lights up while it runs.</source>
        <translation>Si le bloc s&apos;allume pendant qu&apos;il s&apos;exécute.</translation>
    </message>
    <message>
        <source>Stops here</source>
        <translation>S&apos;arrête ici</translation>
    </message>
    <message>
        <source>Whether the chart halts before the block, until it is stepped on.</source>
        <translation>Si l&apos;organigramme s&apos;arrête avant le bloc, jusqu&apos;au pas suivant.</translation>
    </message>
    <message>
        <source>Runs now</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Whether a running chart is at the block.</source>
        <translation>Si un organigramme en cours est à ce bloc.</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplissage</translation>
    </message>
    <message>
        <source>The colour inside the block.</source>
        <translation>La couleur à l&apos;intérieur du bloc.</translation>
    </message>
</context>
<context>
    <name>flowcharts/decision</name>
    <message>
        <source>Decision</source>
        <translation>Décision</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>The output name of the switch or sensor that is asked.</source>
        <translation>Le nom de sortie de l&apos;interrupteur ou du capteur interrogé.</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>What is asked about the input.</source>
        <translation>Ce qui est demandé sur l&apos;entrée.</translation>
    </message>
    <message>
        <source>is on</source>
        <translation>est allumé</translation>
    </message>
    <message>
        <source>is off</source>
        <translation>est éteint</translation>
    </message>
    <message>
        <source>is greater than</source>
        <translation>est plus grand que</translation>
    </message>
    <message>
        <source>is less than</source>
        <translation>est plus petit que</translation>
    </message>
    <message>
        <source>Compared with</source>
        <translation>Comparé à</translation>
    </message>
    <message>
        <source>The number that the input is compared with.</source>
        <translation>Le nombre auquel l&apos;entrée est comparée.</translation>
    </message>
    <message>
        <source>Yes branch</source>
        <translation>Branche oui</translation>
    </message>
    <message>
        <source>Where the chart goes on when the answer is yes.</source>
        <translation>Où l&apos;organigramme continue quand la réponse est oui.</translation>
    </message>
    <message>
        <source>down</source>
        <translation>bas</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>Asks until yes</source>
        <translation>Demande jusqu&apos;à oui</translation>
    </message>
    <message>
        <source>Whether the block waits until the answer is yes.</source>
        <translation>Si le bloc attend que la réponse soit oui.</translation>
    </message>
    <message>
        <source>Answers shown</source>
        <translation>Réponses montrées</translation>
    </message>
    <message>
        <source>Whether Yes and No are written at the branches.</source>
        <translation>Si Oui et Non sont écrits aux branches.</translation>
    </message>
    <message>
        <source>Watched part</source>
        <translation>Pièce observée</translation>
    </message>
    <message>
        <source>The part whose state is asked when no input is named.</source>
        <translation>La pièce dont l&apos;état est demandé quand aucune entrée n&apos;est nommée.</translation>
    </message>
    <message>
        <source>is on?</source>
        <translation>est allumé ?</translation>
    </message>
    <message>
        <source>is off?</source>
        <translation>est éteint ?</translation>
    </message>
</context>
<context>
    <name>flowcharts/link</name>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flèche</translation>
    </message>
    <message>
        <source>Whether the end has an arrow head.</source>
        <translation>Si la fin a une pointe de flèche.</translation>
    </message>
    <message>
        <source>Dashed</source>
        <translation>Tireté</translation>
    </message>
    <message>
        <source>Whether the line is dashed.</source>
        <translation>Si le trait est tireté.</translation>
    </message>
    <message>
        <source>Route</source>
        <translation>Parcours</translation>
    </message>
    <message>
        <source>Straight from block to block, or along right angles.</source>
        <translation>Tout droit de bloc à bloc, ou par angles droits.</translation>
    </message>
    <message>
        <source>square</source>
        <translation>à angles droits</translation>
    </message>
    <message>
        <source>straight</source>
        <translation>droit</translation>
    </message>
    <message>
        <source>Bends</source>
        <translation>Coudes</translation>
    </message>
    <message>
        <source>The points over which the line runs, from its beginning to its end.</source>
        <translation>Les points par lesquels passe le trait, de son début à sa fin.</translation>
    </message>
</context>
<context>
    <name>flowcharts/procedure</name>
    <message>
        <source>Procedure</source>
        <translation>Procédure</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Répétitions</translation>
    </message>
    <message>
        <source>How often the chart in the pop-up is run.</source>
        <translation>Combien de fois l&apos;organigramme de la bulle est exécuté.</translation>
    </message>
    <message>
        <source>Opens while it runs</source>
        <translation>S&apos;ouvre pendant l&apos;exécution</translation>
    </message>
    <message>
        <source>Whether the pop-up with the chart opens while the procedure runs.</source>
        <translation>Si la bulle avec l&apos;organigramme s&apos;ouvre pendant que la procédure s&apos;exécute.</translation>
    </message>
    <message>
        <source>Ends alone</source>
        <translation>Finit seule</translation>
    </message>
    <message>
        <source>Whether a stop block inside ends only the procedure rather than the whole chart.</source>
        <translation>Si un bloc d&apos;arrêt à l&apos;intérieur ne termine que la procédure plutôt que tout l&apos;organigramme.</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>The names of the numbers handed to the procedure.</source>
        <translation>Les noms des nombres transmis à la procédure.</translation>
    </message>
</context>
<context>
    <name>flowcharts/start</name>
    <message>
        <source>Start</source>
        <translation>Départ</translation>
    </message>
    <message>
        <source>Starts by itself</source>
        <translation>Démarre de lui-même</translation>
    </message>
    <message>
        <source>Whether the chart runs as soon as the model starts.</source>
        <translation>Si l&apos;organigramme s&apos;exécute dès que le modèle démarre.</translation>
    </message>
    <message>
        <source>Starts when</source>
        <translation>Démarre quand</translation>
    </message>
    <message>
        <source>Whether one or all of the named inputs must be on for the chart to start.</source>
        <translation>Si une ou toutes les entrées nommées doivent être actives pour que l&apos;organigramme démarre.</translation>
    </message>
    <message>
        <source>any input</source>
        <translation>une entrée</translation>
    </message>
    <message>
        <source>all inputs</source>
        <translation>toutes les entrées</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>The names of the switches and sensors that start the chart.</source>
        <translation>Les noms des interrupteurs et capteurs qui démarrent l&apos;organigramme.</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Retard</translation>
    </message>
    <message>
        <source>How long the chart waits before its first block.</source>
        <translation>Combien de temps l&apos;organigramme attend avant son premier bloc.</translation>
    </message>
</context>
<context>
    <name>flowcharts/step</name>
    <message>
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>What the block does with its output.</source>
        <translation>Ce que le bloc fait de sa sortie.</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Commuter</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Éclat</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>Fondu</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Attente</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>The output name of the components that the block switches.</source>
        <translation>Le nom de sortie des composants que le bloc commute.</translation>
    </message>
    <message>
        <source>Switches on</source>
        <translation>Allume</translation>
    </message>
    <message>
        <source>Whether the block switches the output on rather than off.</source>
        <translation>Si le bloc allume la sortie plutôt que de l&apos;éteindre.</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>Attend</translation>
    </message>
    <message>
        <source>Whether the chart goes on only when the time is over.</source>
        <translation>Si l&apos;organigramme ne continue que lorsque le temps est écoulé.</translation>
    </message>
    <message>
        <source>Other outputs</source>
        <translation>Autres sorties</translation>
    </message>
    <message>
        <source>Whether all other outputs are switched off at the same time.</source>
        <translation>Si toutes les autres sorties sont éteintes en même temps.</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>inchangées</translation>
    </message>
    <message>
        <source>off</source>
        <translation>éteintes</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>How long the step lasts.</source>
        <translation>Combien de temps dure le pas.</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>How strongly the output is switched on, in percent.</source>
        <translation>Avec quelle force la sortie est allumée, en pour cent.</translation>
    </message>
    <message>
        <source>More outputs</source>
        <translation>Sorties supplémentaires</translation>
    </message>
    <message>
        <source>Further outputs, each with the state that it takes.</source>
        <translation>D&apos;autres sorties, chacune avec l&apos;état qu&apos;elle prend.</translation>
    </message>
    <message>
        <source>Wait only</source>
        <translation>Attendre seulement</translation>
    </message>
</context>
<context>
    <name>flowcharts/stop</name>
    <message>
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Starts again</source>
        <translation>Recommence</translation>
    </message>
    <message>
        <source>Whether the chart begins again from its start.</source>
        <translation>Si l&apos;organigramme recommence depuis son départ.</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>Sorties</translation>
    </message>
    <message>
        <source>Whether the outputs stay as they are at the end, or are switched off.</source>
        <translation>Si les sorties restent telles quelles à la fin, ou sont éteintes.</translation>
    </message>
    <message>
        <source>keep</source>
        <translation>garder</translation>
    </message>
    <message>
        <source>switch off</source>
        <translation>éteindre</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>What is shown to the reader at the end.</source>
        <translation>Ce qui est montré au lecteur à la fin.</translation>
    </message>
</context>
<context>
    <name>flowcharts/terminal</name>
    <message>
        <source>Terminal</source>
        <translation>Borne</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Whether the chart comes in or goes out here.</source>
        <translation>Si l&apos;organigramme entre ou sort ici.</translation>
    </message>
    <message>
        <source>in</source>
        <translation>entrée</translation>
    </message>
    <message>
        <source>out</source>
        <translation>sortie</translation>
    </message>
    <message>
        <source>Arrow shown</source>
        <translation>Flèche montrée</translation>
    </message>
    <message>
        <source>Whether an arrow head is drawn at the terminal.</source>
        <translation>Si une pointe de flèche est dessinée à la borne.</translation>
    </message>
</context>
<context>
    <name>mechanics/axle</name>
    <message>
        <source>Axle</source>
        <translation>Axe</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <source>The diameter of the axle.</source>
        <translation>Le diamètre de l&apos;axe.</translation>
    </message>
    <message>
        <source>Runs freely</source>
        <translation>Tourne librement</translation>
    </message>
    <message>
        <source>Whether the wheel turns on the axle rather than with it.</source>
        <translation>Si la roue tourne sur l&apos;axe plutôt qu&apos;avec lui.</translation>
    </message>
</context>
<context>
    <name>mechanics/belt</name>
    <message>
        <source>Belt</source>
        <translation>Courroie</translation>
    </message>
    <message>
        <source>Crossed</source>
        <translation>Croisée</translation>
    </message>
    <message>
        <source>Whether the belt is crossed, so that the wheels turn against each other.</source>
        <translation>Si la courroie est croisée, de sorte que les roues tournent en sens contraires.</translation>
    </message>
    <message>
        <source>Toothed</source>
        <translation>Crantée</translation>
    </message>
    <message>
        <source>Whether the belt has teeth and cannot slip.</source>
        <translation>Si la courroie a des crans et ne peut pas glisser.</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Matière</translation>
    </message>
    <message>
        <source>Rubber that stretches, or cord that does not.</source>
        <translation>Du caoutchouc qui s&apos;étire, ou de la corde qui ne s&apos;étire pas.</translation>
    </message>
    <message>
        <source>rubber</source>
        <translation>caoutchouc</translation>
    </message>
    <message>
        <source>cord</source>
        <translation>corde</translation>
    </message>
</context>
<context>
    <name>mechanics/cam</name>
    <message>
        <source>Cam</source>
        <translation>Came</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>The outline of the cam.</source>
        <translation>Le contour de la came.</translation>
    </message>
    <message>
        <source>Pear</source>
        <translation>Poire</translation>
    </message>
    <message>
        <source>Eccentric circle</source>
        <translation>Cercle excentré</translation>
    </message>
    <message>
        <source>Snail</source>
        <translation>Escargot</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Levée</translation>
    </message>
    <message>
        <source>How far the cam moves its follower.</source>
        <translation>De combien la came déplace son poussoir.</translation>
    </message>
    <message>
        <source>Return spring</source>
        <translation>Ressort de rappel</translation>
    </message>
    <message>
        <source>Whether a spring presses the follower on the cam.</source>
        <translation>Si un ressort presse le poussoir sur la came.</translation>
    </message>
    <message>
        <source>Follower</source>
        <translation>Poussoir</translation>
    </message>
    <message>
        <source>A flat foot, or a roller.</source>
        <translation>Un pied plat, ou un galet.</translation>
    </message>
    <message>
        <source>flat</source>
        <translation>plat</translation>
    </message>
    <message>
        <source>roller</source>
        <translation>galet</translation>
    </message>
    <message>
        <source>Lift table</source>
        <translation>Table des levées</translation>
    </message>
    <message>
        <source>The lift in millimetres at some angles in degrees.</source>
        <translation>La levée en millimètres à quelques angles en degrés.</translation>
    </message>
</context>
<context>
    <name>mechanics/gear</name>
    <message>
        <source>Gear</source>
        <translation>Roue dentée</translation>
    </message>
    <message>
        <source>Teeth</source>
        <translation>Dents</translation>
    </message>
    <message>
        <source>The number of teeth.</source>
        <translation>Le nombre de dents.</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>Module</translation>
    </message>
    <message>
        <source>The pitch diameter divided by the number of teeth; gears that mesh have the same.</source>
        <translation>Le diamètre primitif divisé par le nombre de dents ; les roues qui engrènent ont le même.</translation>
    </message>
    <message>
        <source>Pressure angle</source>
        <translation>Angle de pression</translation>
    </message>
    <message>
        <source>The angle at which the teeth press on each other.</source>
        <translation>L&apos;angle sous lequel les dents se pressent.</translation>
    </message>
    <message>
        <source>Face width</source>
        <translation>Largeur de denture</translation>
    </message>
    <message>
        <source>How wide the teeth are along the axle.</source>
        <translation>La largeur des dents le long de l&apos;axe.</translation>
    </message>
    <message>
        <source>Teeth drawn</source>
        <translation>Dents dessinées</translation>
    </message>
    <message>
        <source>Whether the teeth are drawn, or only the pitch circle.</source>
        <translation>Si les dents sont dessinées, ou seulement le cercle primitif.</translation>
    </message>
    <message>
        <source>Slanting teeth</source>
        <translation>Dents inclinées</translation>
    </message>
    <message>
        <source>Whether the teeth stand aslant to the axle.</source>
        <translation>Si les dents sont inclinées par rapport à l&apos;axe.</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Sens de l&apos;hélice</translation>
    </message>
    <message>
        <source>Which way slanting teeth lean.</source>
        <translation>De quel côté penchent les dents inclinées.</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>left</source>
        <translation>gauche</translation>
    </message>
    <message>
        <source>Meshes with</source>
        <translation>Engrène avec</translation>
    </message>
    <message>
        <source>The gear whose teeth these ones drive.</source>
        <translation>La roue dentée que ces dents entraînent.</translation>
    </message>
    <message>
        <source>Hub offset</source>
        <translation>Décalage du moyeu</translation>
    </message>
    <message>
        <source>How far the hub is from the middle of the wheel.</source>
        <translation>À quelle distance le moyeu est du milieu de la roue.</translation>
    </message>
</context>
<context>
    <name>mechanics/machine-part</name>
    <message>
        <source>Machine part</source>
        <translation>Pièce mécanique</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Matière</translation>
    </message>
    <message>
        <source>What the part is made of.</source>
        <translation>De quoi la pièce est faite.</translation>
    </message>
    <message>
        <source>Acetal</source>
        <translation>Acétal</translation>
    </message>
    <message>
        <source>Nylon</source>
        <translation>Nylon</translation>
    </message>
    <message>
        <source>Wood</source>
        <translation>Bois</translation>
    </message>
    <message>
        <source>Brass</source>
        <translation>Laiton</translation>
    </message>
    <message>
        <source>Steel</source>
        <translation>Acier</translation>
    </message>
    <message>
        <source>Mass</source>
        <translation>Masse</translation>
    </message>
    <message>
        <source>The mass of the part.</source>
        <translation>La masse de la pièce.</translation>
    </message>
    <message>
        <source>Held fast</source>
        <translation>Bloquée</translation>
    </message>
    <message>
        <source>Whether the part is fixed to the base and cannot turn.</source>
        <translation>Si la pièce est fixée à la base et ne peut pas tourner.</translation>
    </message>
    <message>
        <source>Direction shown</source>
        <translation>Sens montré</translation>
    </message>
    <message>
        <source>Whether an arrow shows the way the part turns.</source>
        <translation>Si une flèche montre le sens de rotation de la pièce.</translation>
    </message>
    <message>
        <source>Speed shown</source>
        <translation>Vitesse montrée</translation>
    </message>
    <message>
        <source>Whether the turning speed is written on the part.</source>
        <translation>Si la vitesse de rotation est écrite sur la pièce.</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Teinte</translation>
    </message>
    <message>
        <source>The colour of the part.</source>
        <translation>La couleur de la pièce.</translation>
    </message>
</context>
<context>
    <name>mechanics/motor</name>
    <message>
        <source>Motor</source>
        <translation>Moteur</translation>
    </message>
    <message>
        <source>Runs at the start</source>
        <translation>Tourne au départ</translation>
    </message>
    <message>
        <source>Whether the motor runs when the model starts.</source>
        <translation>Si le moteur tourne quand le modèle démarre.</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Which way the motor turns.</source>
        <translation>Dans quel sens tourne le moteur.</translation>
    </message>
    <message>
        <source>clockwise</source>
        <translation>horaire</translation>
    </message>
    <message>
        <source>counterclockwise</source>
        <translation>antihoraire</translation>
    </message>
    <message>
        <source>With gear box</source>
        <translation>Avec réducteur</translation>
    </message>
    <message>
        <source>Whether a gear box is built in.</source>
        <translation>Si un réducteur est intégré.</translation>
    </message>
    <message>
        <source>Gear box ratio</source>
        <translation>Rapport de réduction</translation>
    </message>
    <message>
        <source>How many turns of the motor make one turn of the shaft.</source>
        <translation>Combien de tours du moteur font un tour de l&apos;arbre.</translation>
    </message>
    <message>
        <source>Supply voltage</source>
        <translation>Tension d&apos;alimentation</translation>
    </message>
    <message>
        <source>The voltage for which the motor is made.</source>
        <translation>La tension pour laquelle le moteur est fait.</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>How fast the motor turns without load.</source>
        <translation>La vitesse du moteur sans charge.</translation>
    </message>
    <message>
        <source>Output name</source>
        <translation>Nom de sortie</translation>
    </message>
    <message>
        <source>The name by which flowcharts switch the motor; empty when none does.</source>
        <translation>Le nom sous lequel les organigrammes commutent le moteur ; vide si aucun ne le fait.</translation>
    </message>
    <message>
        <source>Level now</source>
        <translation>Niveau actuel</translation>
    </message>
    <message>
        <source>How strongly a running flowchart has switched the motor on, in percent; -1 while none has.</source>
        <translation>Avec quelle force un organigramme en cours a allumé le moteur, en pour cent ; -1 tant qu&apos;aucun ne l&apos;a fait.</translation>
    </message>
    <message>
        <source>Powered by</source>
        <translation>Alimenté par</translation>
    </message>
    <message>
        <source>The battery that drives the motor.</source>
        <translation>La pile qui entraîne le moteur.</translation>
    </message>
</context>
<context>
    <name>mechanics/pulley</name>
    <message>
        <source>Pulley</source>
        <translation>Poulie</translation>
    </message>
    <message>
        <source>Groove diameter</source>
        <translation>Diamètre de la gorge</translation>
    </message>
    <message>
        <source>The diameter at which the belt runs.</source>
        <translation>Le diamètre sur lequel passe la courroie.</translation>
    </message>
    <message>
        <source>Groove</source>
        <translation>Gorge</translation>
    </message>
    <message>
        <source>The shape of the groove.</source>
        <translation>La forme de la gorge.</translation>
    </message>
    <message>
        <source>round</source>
        <translation>ronde</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>With rims</source>
        <translation>Avec rebords</translation>
    </message>
    <message>
        <source>Whether rims keep the belt in the groove.</source>
        <translation>Si des rebords gardent la courroie dans la gorge.</translation>
    </message>
    <message>
        <source>Belt slips</source>
        <translation>La courroie glisse</translation>
    </message>
    <message>
        <source>Whether the belt may slip when the load is too great.</source>
        <translation>Si la courroie peut glisser quand la charge est trop grande.</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Étages</translation>
    </message>
    <message>
        <source>The groove diameters of a stepped pulley in metres, the greatest first.</source>
        <translation>Les diamètres des gorges d&apos;une poulie étagée en mètres, le plus grand d&apos;abord.</translation>
    </message>
</context>
<context>
    <name>mechanics/shaft</name>
    <message>
        <source>Shaft</source>
        <translation>Arbre</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <source>The diameter of the shaft.</source>
        <translation>Le diamètre de l&apos;arbre.</translation>
    </message>
    <message>
        <source>Hollow</source>
        <translation>Creux</translation>
    </message>
    <message>
        <source>Whether the shaft is a tube.</source>
        <translation>Si l&apos;arbre est un tube.</translation>
    </message>
    <message>
        <source>With key</source>
        <translation>Avec clavette</translation>
    </message>
    <message>
        <source>Whether a key makes the wheels turn with the shaft.</source>
        <translation>Si une clavette fait tourner les roues avec l&apos;arbre.</translation>
    </message>
    <message>
        <source>Ends</source>
        <translation>Bouts</translation>
    </message>
    <message>
        <source>Plain ends, or rounded ones.</source>
        <translation>Des bouts droits, ou arrondis.</translation>
    </message>
    <message>
        <source>plain</source>
        <translation>droits</translation>
    </message>
    <message>
        <source>rounded</source>
        <translation>arrondis</translation>
    </message>
    <message>
        <source>Bearings</source>
        <translation>Paliers</translation>
    </message>
    <message>
        <source>Where the shaft is held, seen from its centre.</source>
        <translation>Où l&apos;arbre est tenu, vu de son centre.</translation>
    </message>
    <message>
        <source>Twist</source>
        <translation>Torsion</translation>
    </message>
    <message>
        <source>How far the shaft twists under full load.</source>
        <translation>De combien l&apos;arbre se tord en pleine charge.</translation>
    </message>
</context>
</TS>
