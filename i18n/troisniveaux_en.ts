<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="fr">
<context>
    <name>Accessibilite</name>
    <message>
        <source>deux</source>
        <translation>two</translation>
    </message>
    <message>
        <source>trois</source>
        <translation>three</translation>
    </message>
    <message>
        <source>quatre</source>
        <translation>four</translation>
    </message>
    <message>
        <source>cinq</source>
        <translation>five</translation>
    </message>
    <message>
        <source>six</source>
        <translation>six</translation>
    </message>
    <message>
        <source>sept</source>
        <translation>seven</translation>
    </message>
    <message>
        <source>huit</source>
        <translation>eight</translation>
    </message>
    <message>
        <source>neuf</source>
        <translation>nine</translation>
    </message>
    <message>
        <source>dix</source>
        <translation>ten</translation>
    </message>
    <message>
        <source>valet</source>
        <translation>jack</translation>
    </message>
    <message>
        <source>dame</source>
        <translation>queen</translation>
    </message>
    <message>
        <source>roi</source>
        <translation>king</translation>
    </message>
    <message>
        <source>as</source>
        <translation>ace</translation>
    </message>
    <message>
        <source>trèfle</source>
        <translation>clubs</translation>
    </message>
    <message>
        <source>carreau</source>
        <translation>diamonds</translation>
    </message>
    <message>
        <source>cœur</source>
        <translation>hearts</translation>
    </message>
    <message>
        <source>pique</source>
        <translation>spades</translation>
    </message>
    <message>
        <source>%1 de %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Solution de l&apos;ordinateur</source>
        <translation>The computer&apos;s solution</translation>
    </message>
    <message>
        <source>Règles du jeu</source>
        <translation>Rules of the game</translation>
    </message>
    <message>
        <source>Page précédente</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>Page suivante</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>Trois Niveaux</source>
        <translation>Trois Niveaux</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Noms des joueurs</source>
        <translation>Players&apos; names</translation>
    </message>
    <message>
        <source>Horloge</source>
        <translation>Clock</translation>
    </message>
    <message>
        <source>Connexion</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>%1, levée</source>
        <translation>%1, picked up</translation>
    </message>
    <message>
        <source>presser</source>
        <translation>hurry</translation>
    </message>
    <message>
        <source>L&apos;ordinateur finit sa recherche sans attendre</source>
        <translation>The computer finishes its search at once</translation>
    </message>
    <message>
        <source>carte cachée</source>
        <translation>hidden card</translation>
    </message>
    <message>
        <source>%1, niveau %2</source>
        <translation>%1, level %2</translation>
    </message>
    <message>
        <source>Recherche de l&apos;ordinateur</source>
        <translation>The computer&apos;s search</translation>
    </message>
    <message>
        <source>Nom du joueur %1</source>
        <translation>Name of player %1</translation>
    </message>
    <message>
        <source>jeu de %1</source>
        <translation>%1&apos;s hand</translation>
    </message>
    <message>
        <source>score de %1 : %2</source>
        <translation>%1&apos;s score: %2</translation>
    </message>
    <message>
        <source>total de la donne de %1 : %2</source>
        <translation>%1&apos;s deal total: %2</translation>
    </message>
    <message>
        <source>%1 : %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, niveau %2 : %3</source>
        <translation>%1, level %2: %3</translation>
    </message>
    <message>
        <source>%1, niveau %2 contre %3 : %4</source>
        <translation>%1, level %2 against %3: %4</translation>
    </message>
    <message>
        <source>paiements de %1 au niveau %2</source>
        <translation>%1&apos;s payments at level %2</translation>
    </message>
    <message>
        <source>page %1 sur %2</source>
        <translation>page %1 of %2</translation>
    </message>
    <message>
        <source>horloge</source>
        <translation>clock</translation>
    </message>
    <message>
        <source>horloge : %1</source>
        <translation>clock: %1</translation>
    </message>
    <message>
        <source>Fin de la donne.</source>
        <translation>End of the deal.</translation>
    </message>
    <message>
        <source>%1 : total de la donne %2, score %3.</source>
        <translation>%1: deal total %2, score %3.</translation>
    </message>
    <message>
        <source>%1 : %2, total de la donne %3, score %4.</source>
        <translation>%1: %2, deal total %3, score %4.</translation>
    </message>
    <message>
        <source>Solution de l&apos;ordinateur pour %1.</source>
        <translation>The computer&apos;s solution for %1.</translation>
    </message>
    <message>
        <source>Niveau %1 : %2</source>
        <translation>Level %1: %2</translation>
    </message>
</context>
<context>
    <name>Cartes</name>
    <message>
        <source>V</source>
        <translation>J</translation>
    </message>
    <message>
        <source>D</source>
        <translation>Q</translation>
    </message>
    <message>
        <source>R</source>
        <translation>K</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
</context>
<context>
    <name>Clavier</name>
    <message>
        <source>touche %1</source>
        <translation>%1 key</translation>
    </message>
    <message>
        <source>Solution de l&apos;ordinateur</source>
        <translation>The computer&apos;s solution</translation>
    </message>
    <message>
        <source>Règles du jeu</source>
        <translation>Rules of the game</translation>
    </message>
    <message>
        <source>Page précédente</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>Page suivante</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>L&apos;ordinateur cherche : un clic ici ou la touche %1 lui fait finir sa recherche sans attendre</source>
        <translation>The computer is thinking: a click here or the %1 key makes it finish its search at once</translation>
    </message>
    <message>
        <source>Entrée</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Échap</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Espace</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>Page préc.</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>Page suiv.</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>Maj+</source>
        <translation>Shift+</translation>
    </message>
</context>
<context>
    <name>Historique</name>
    <message>
        <source>Historique des scores</source>
        <translation>Score history</translation>
    </message>
    <message>
        <source>FERMER</source>
        <translation>CLOSE</translation>
    </message>
    <message>
        <source>Fermer l&apos;historique — touche F9</source>
        <translation>Close the history — F9 key</translation>
    </message>
    <message>
        <source>Joueur</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Donnes</source>
        <translation>Deals</translation>
    </message>
    <message>
        <source>Moyenne</source>
        <translation>Average</translation>
    </message>
    <message>
        <source>Meilleure</source>
        <translation>Best</translation>
    </message>
    <message>
        <source>Pire</source>
        <translation>Worst</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>HISTORIQUE DES SCORES</source>
        <translation>SCORE HISTORY</translation>
    </message>
    <message>
        <source>donnes %1 à %2</source>
        <translation>deals %1 to %2</translation>
    </message>
    <message>
        <source>Aucune donne dans l&apos;historique.</source>
        <translation>No deal in the history yet.</translation>
    </message>
    <message>
        <source>Pas encore d&apos;historique : il commence à la prochaine donne.</source>
        <translation>No history yet: it starts with the next deal.</translation>
    </message>
    <message>
        <source>%1 ligne(s) illisible(s) du fichier passée(s)</source>
        <translation>%1 unreadable line(s) of the file skipped</translation>
    </message>
    <message>
        <source>,</source>
        <comment>decimal separator</comment>
        <translation>.</translation>
    </message>
</context>
<context>
    <name>Jeux</name>
    <message>
        <source>Jeu de TroisNiveaux : aucun autre jeu de cartes installé</source>
        <translation>Trois Niveaux deck: no other card deck is installed</translation>
    </message>
    <message>
        <source>Le jeu « %1 » ne peut pas être lu : jeu de TroisNiveaux</source>
        <translation>The deck “%1” cannot be read: back to the Trois Niveaux deck</translation>
    </message>
    <message>
        <source>Jeu de TroisNiveaux</source>
        <translation>Trois Niveaux deck</translation>
    </message>
</context>
<context>
    <name>LigneDeCommande</name>
    <message>
        <source>Utilisation : troisniveaux [--langue fr|en] [--help | --version]

Trois Niveaux, un jeu de cartes contre trois joueurs de l&apos;ordinateur : treize cartes
à poser sur trois niveaux (5, 5 et 3), chacun plus fort que le suivant.

  --langue LANGUE  joue dans cette langue (%1)
  -h, --help       affiche cette aide et s&apos;arrête
  -V, --version    affiche la version et s&apos;arrête

Fichiers (Noms, Scores, Temps1, Temps2, Tirage, Historique) : à côté du programme quand
un fichier Noms s&apos;y trouve, sinon dans le dossier de données de l&apos;utilisateur
(~/.local/share/troisniveaux, ou $XDG_DATA_HOME/troisniveaux), créé au premier
lancement avec les noms et scores par défaut.
</source>
        <translation>Usage: troisniveaux [--langue fr|en] [--help | --version]

Trois Niveaux, a card game against three computer players: thirteen cards
to lay out on three levels (5, 5 and 3), each stronger than the next.

  --langue LANGUAGE  plays in this language (%1)
  -h, --help         prints this help and exits
  -V, --version      prints the version and exits

Files (Noms, Scores, Temps1, Temps2, Tirage, Historique): beside the program
when a Noms file is there, otherwise in the player&apos;s data folder
(~/.local/share/troisniveaux, or $XDG_DATA_HOME/troisniveaux), made at the
first start with the default names and scores.
</translation>
    </message>
    <message>
        <source>troisniveaux : langue inconnue « %1 » (langues : %2)
</source>
        <translation>troisniveaux: unknown language “%1” (languages: %2)
</translation>
    </message>
    <message>
        <source>troisniveaux : option inconnue « %1 »
</source>
        <translation>troisniveaux: unknown option “%1”
</translation>
    </message>
    <message>
        <source>troisniveaux : argument inattendu « %1 »
</source>
        <translation>troisniveaux: unexpected argument “%1”
</translation>
    </message>
    <message>
        <source>Essayez « troisniveaux --help » pour en savoir plus.
</source>
        <translation>Try “troisniveaux --help” for more information.
</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source> La partie ne peut pas commencer.</source>
        <translation> The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) est introuvable. La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2) cannot be found. The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) n&apos;est pas un fichier ordinaire. La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2) is not an ordinary file. The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) ne peut pas être lu (droits insuffisants ?). La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2) cannot be read (not enough permissions?). The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) est trop grand pour être un fichier du jeu (plus de 1 Mo). La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2) is too large to be one of the game&apos;s files (over 1 MB). The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) ne contient aucun nom. La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2) holds no name. The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) ne contient aucun score. La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2) holds no score. The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) contient un seul nom au lieu de quatre. La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2) holds only one name instead of four. The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) contient un seul score au lieu de quatre. La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2) holds only one score instead of four. The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) contient seulement deux noms au lieu de quatre. La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2) holds only two names instead of four. The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) contient seulement deux scores au lieu de quatre. La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2) holds only two scores instead of four. The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) contient seulement trois noms au lieu de quatre. La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2) holds only three names instead of four. The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) contient seulement trois scores au lieu de quatre. La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2) holds only three scores instead of four. The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) : la ligne %3 n&apos;est pas un nom entre guillemets. La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2): line %3 is not a name between double quotes. The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) : la ligne %3 n&apos;est pas un nombre entier. La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2): line %3 is not a whole number. The game cannot start.</translation>
    </message>
    <message>
        <source>Le fichier « %1 » (%2) : la ligne %3 contient un nombre trop grand (un score va de -2147483648 à 2147483647). La partie ne peut pas commencer.</source>
        <translation>The file “%1” (%2): line %3 holds a number too large (a score goes from -2147483648 to 2147483647). The game cannot start.</translation>
    </message>
    <message>
        <source>Impossible d&apos;enregistrer le fichier « %1 » (%2) : %3. La partie continue ; le fichier a pu rester incomplet.</source>
        <translation>The file “%1” (%2) could not be saved: %3. The game goes on; the file may have been left incomplete.</translation>
    </message>
    <message>
        <source>Impossible d&apos;enregistrer le fichier « %1 » (%2) : %3. La partie continue ; l&apos;ancien fichier est conservé.</source>
        <translation>The file “%1” (%2) could not be saved: %3. The game goes on; the old file is kept.</translation>
    </message>
    <message>
        <source>L&apos;historique des scores ne peut pas être enregistré dans le fichier « %1 » (%2). La partie continue sans lui.</source>
        <translation>The score history cannot be saved in the file “%1” (%2). The game goes on without it.</translation>
    </message>
    <message>
        <source>Le dossier « %1 » ne peut pas être créé.</source>
        <translation>The folder “%1” cannot be created.</translation>
    </message>
    <message>
        <source>Le dossier « %1 » refuse la création d&apos;un dossier (%2).</source>
        <translation>The folder “%1” does not allow a folder to be created in it (%2).</translation>
    </message>
    <message>
        <source>Le fichier « %1 » ne peut pas être copié dans « %2 » (%3).</source>
        <translation>The file “%1” cannot be copied into “%2” (%3).</translation>
    </message>
    <message>
        <source>Les fichiers « Noms » et « Scores » livrés avec le jeu sont introuvables (cherchés dans : %1). Le dossier « %2 » ne peut pas être préparé.</source>
        <translation>The “Noms” and “Scores” files that come with the game cannot be found (looked for in: %1). The folder “%2” cannot be prepared.</translation>
    </message>
    <message>
        <source>un dossier porte ce nom</source>
        <translation>a folder has that name</translation>
    </message>
    <message>
        <source>ce nom n&apos;est pas celui d&apos;un fichier ordinaire (un tube, un périphérique ou un lien vers l&apos;un d&apos;eux)</source>
        <translation>that name is not an ordinary file&apos;s (a pipe, a device or a link to one)</translation>
    </message>
    <message>
        <source>le disque est plein</source>
        <translation>the disk is full</translation>
    </message>
    <message>
        <source>la taille permise aux fichiers est dépassée</source>
        <translation>the size allowed for files is exceeded</translation>
    </message>
    <message>
        <source>le disque est en lecture seule</source>
        <translation>the disk is read-only</translation>
    </message>
    <message>
        <source>le dossier est protégé en écriture</source>
        <translation>the folder is write-protected</translation>
    </message>
    <message>
        <source>le fichier est protégé en écriture</source>
        <translation>the file is write-protected</translation>
    </message>
    <message>
        <source>le système a refusé l&apos;écriture</source>
        <translation>the system refused to write</translation>
    </message>
    <message>
        <source>aucun dossier</source>
        <translation>no folder</translation>
    </message>
    <message>
        <source>Impossible d&apos;enregistrer le fichier « %1 » (%2) : %3. La partie continue sans ce fichier.</source>
        <translation>The file “%1” (%2) could not be saved: %3. The game goes on without this file.</translation>
    </message>
    <message>
        <source>le dossier des données n&apos;existe plus</source>
        <translation>the data folder no longer exists</translation>
    </message>
</context>
<context>
    <name>Regles</name>
    <message>
        <source>ORIGINES :<byte value="xd"/>Un ami Vietnamien m&apos;a présenté un jeu en me disant : Les Asiatiques ne jouent qu&apos;à ça !<byte value="xd"/>Les origines et le véritable nom de ce jeu lui étant inconnus, il a décidé de le nommer : Trois Niveaux. Le Trois Niveaux se pratique, comme au tarot ou au bridge, autour d&apos;une table de 4 </source>
        <translation>ORIGINS:
A Vietnamese friend showed me a game, telling me: In Asia, this is all people play!
As he knew neither where the game came from nor its real name, he decided to call it Trois Niveaux (Three Levels). Like tarot or bridge, Trois Niveaux is played around a table of 4 </translation>
    </message>
    <message>
        <source>joueurs. Les tours de jeu rapides en font un jeu très agréable et idéal pour jouer la tournée ou quelques menus écus...<byte value="xd"/><byte value="xd"/>REGLES :<byte value="xd"/>Chaque joueur reçoit 13 cartes et doit établir 3 mains, 1 main par niveau, en tenant compte de la seule règle suivante :</source>
        <translation>players. Its quick rounds make it a very pleasant game, just right for playing for a round of drinks or a few coins...

RULES:
Each player is dealt 13 cards and must make 3 hands, 1 hand per level, keeping to one single rule:</translation>
    </message>
    <message>
        <source>Le niveau 1 (5 cartes) doit être plus fort que le niveau 2 (5 cartes)et ce dernier plus fort que le niveau 3 (3 cartes) selon les valeurs hiérarchiques du poker traditionnel.<byte value="xd"/>   Valeurs décroissantes :<byte value="xd"/>     QF (Quinte Flush)<byte value="xd"/>     Carré<byte value="xd"/>     Full<byte value="xd"/></source>
        <translation>Level 1 (5 cards) must be stronger than level 2 (5 cards), and level 2 stronger than level 3 (3 cards), by the usual ranking of poker hands.
   From highest to lowest:
     ST FLUSH (straight flush)
     Quads (four of a kind)
     Full (full house)
</translation>
    </message>
    <message>
        <source>     Flush<byte value="xd"/>     Quinte<byte value="xd"/>     Brelan<byte value="xd"/>     2 Paires<byte value="xd"/>     1 Paire<byte value="xd"/>     Rien<byte value="xd"/>Exemples :<byte value="xd"/>- Niveau 2 : 1 Paire et niveau 3 : 1 Paire =&gt; La paire du niveau 2 doit être supérieure à celle au niveau 3.</source>
        <translation>     Flush
     Straight
     Trips (three of a kind)
     2 Pairs
     Pair
     Nothing
Examples:
- Level 2: Pair and level 3: Pair =&gt; The pair on level 2 must be higher than the pair on level 3.</translation>
    </message>
    <message>
        <source>- Niveau 2 : Rien et Niveau 3 : Rien =&gt;  La carte la plus forte du niveau 2 doit être supérieure à la carte la plus forte du Niveau 3, si elles ont la même valeur, la 2ème carte est pris en compte et, éventuellement la 3ème.<byte value="xd"/>- Niveau 1 : Flush et Niveau 2 : Flush =&gt; La carte la plus forte du niveau 2 doit être supérieure à la carte <byte value="xd"/></source>
        <translation>- Level 2: Nothing and level 3: Nothing =&gt; The highest card of level 2 must beat the highest card of level 3; if they are equal, the 2nd card counts, and if need be the 3rd.
- Level 1: Flush and level 2: Flush =&gt; The highest card of level 1 must beat the highest card 
</translation>
    </message>
    <message>
        <source>la plus forte du niveau 3, si elles ont la même valeur, la 2ème carte est pris en compte et, éventuellement la 3ème, la 4ème et la 5ème.<byte value="xd"/>Si le joueur n&apos;observe pas cette règle, ses 3 mains sont nulles.<byte value="xd"/><byte value="xd"/>Chacun des 3 niveaux est ensuite comparé aux 3 niveaux des <byte value="xd"/></source>
        <translation>of level 2; if they are equal, the 2nd card counts, and if need be the 3rd, the 4th and the 5th.
If a player breaks this rule, his 3 hands are worth nothing.

Each of the 3 levels is then compared with the same level of the 3 
</translation>
    </message>
    <message>
        <source>adversaires.<byte value="xd"/>Un niveau gagnant génère des points positifs, un niveau perdant, des points négatifs selon le barême suivant :<byte value="xd"/>NIVEAU 1 :<byte value="xd"/>QF         : 5 Points<byte value="xd"/>Carré   : 4 Points<byte value="xd"/>Autres : 1 Point<byte value="xd"/>NIVEAU 2 :<byte value="xd"/></source>
        <translation>opponents.
A winning level earns points, a losing level costs points, by this scale:
LEVEL 1:
ST FLUSH : 5 Points
Quads       : 4 Points
Others      : 1 Point
LEVEL 2:
</translation>
    </message>
    <message>
        <source>QF          : 10 Points<byte value="xd"/>Carré    : 4 Points<byte value="xd"/>Full        : 2 Points<byte value="xd"/>Autres : 1 Point<byte value="xd"/>NIVEAU 3 :<byte value="xd"/>Brelan  : 3 Points<byte value="xd"/>Autres : 1 Point<byte value="xd"/><byte value="xd"/>Il existe 4 associations particulières de mains.<byte value="xd"/></source>
        <translation>ST FLUSH : 10 Points
Quads       : 4 Points
Full           : 2 Points
Others      : 1 Point
LEVEL 3:
Trips         : 3 Points
Others      : 1 Point

There are also 4 special hands.
</translation>
    </message>
    <message>
        <source>Elles sont gagnantes sur toutes les autres mains ; les voici, ci-après,  classées par ordre décroissant de valeur :<byte value="xd"/>- MEGA QUINTE (2, 3, 4, 5, 6, 7, 8, 9, 10, V, D, R et A) =&gt;  5 Points par niveau et sur chaque adversaire, soit 45 Points au total.<byte value="xd"/>- 6 PAIRES (6 Paires et 1 carte quelconque) =&gt; 2 Points par niveau<byte value="xd"/></source>
        <translation>They beat every other hand; here they are, from highest to lowest:
- MEGA QUINTE (all 13 ranks: 2, 3, 4, 5, 6, 7, 8, 9, 10, J, Q, K and A) =&gt; 5 Points per level against each opponent, 45 Points in all.
- 6 PAIRS (6 Pairs and any 1 card) =&gt; 2 Points per level
</translation>
    </message>
    <message>
        <source>et sur chaque adversaire, soit 18 Points au total.<byte value="xd"/>- TOUT FLUSH (Flush sur les 3 niveaux) =&gt;  2 Points par niveau et sur chaque adversaire, soit 18 Points au total.<byte value="xd"/>- TOUT QUINTE (Quinte sur les 3 niveaux) =&gt;  2 Points par niveau et sur chaque adversaire, soit 18 Points au total.<byte value="xd"/></source>
        <translation>against each opponent, 18 Points in all.
- 3 FLUSHES (a Flush on all 3 levels) =&gt; 2 Points per level against each opponent, 18 Points in all.
- 3 STRAIGHTS (a Straight on all 3 levels) =&gt; 2 Points per level against each opponent, 18 Points in all.
</translation>
    </message>
    <message>
        <source>Ne vous y trompez pas, les règles sont simples mais le jeu n&apos;est pas facile. Les nombreuses possibilités générées et les choix tactiques créeront rapidement des écarts. Attention, l&apos;ordinateur qui gère vos 3 adversaires, joue très bien.<byte value="xd"/><byte value="xd"/>2 Modes de jeu sont à votre <byte value="xd"/></source>
        <translation>Make no mistake: the rules are simple, but the game is not easy. The many possibilities and the tactical choices soon open up gaps between players. Be warned: the computer that plays your 3 opponents plays very well.

2 game modes are at your 
</translation>
    </message>
    <message>
        <source>disposition :<byte value="xd"/>- DEBUTANT :<byte value="xd"/>Vous disposez d&apos;un délai de réflexion supplémentaire car l&apos;ordinateur calcule vos 3 Niveaux et vous propose sa solution, sur votre demande, à la fin de la donne.<byte value="xd"/>TOUT FLUSH et TOUT QUINTE sont reconnus pour vous à la fin de la <byte value="xd"/></source>
        <translation>disposal:
- BEGINNER:
You get extra time to think, as the computer works out your 3 levels and, if you ask, shows you its solution at the end of the deal.
3 FLUSHES and 3 STRAIGHTS are spotted for you at the end of the 
</translation>
    </message>
    <message>
        <source>donne.<byte value="xd"/>- EXPERT :<byte value="xd"/>Temps de réflextion restreint.<byte value="xd"/>TOUT FLUSH et TOUT QUINTE ne sont pas reconnus. Vous devez donc les jouez.<byte value="xd"/><byte value="xd"/>MEGA QUINTE et 6 PAIRES :<byte value="xd"/>Pour des raisons de commodités d&apos;affichage, sont reconnus de </source>
        <translation>deal.
- EXPERT:
Less time to think.
3 FLUSHES and 3 STRAIGHTS are not spotted for you: you have to lay them out yourself.

MEGA QUINTE and 6 PAIRS:
To keep the display simple, they are recognised </translation>
    </message>
    <message>
        <source>manière automatique à la fin de la donne, et ce, en mode DEBUTANT et en mode EXPERT.</source>
        <translation>automatically at the end of the deal, in both BEGINNER and EXPERT modes.</translation>
    </message>
</context>
<context>
    <name>Resolution</name>
    <message>
        <source>La résolution doit être changée en 1024 X 768</source>
        <translation>The screen resolution must be changed to 1024 X 768</translation>
    </message>
    <message>
        <source>Elle sera restituée en sortant du programme</source>
        <translation>It will be restored when you leave the game</translation>
    </message>
    <message>
        <source>Je suis d&apos;accord</source>
        <translation>I agree</translation>
    </message>
    <message>
        <source>Je ne suis pas d&apos;accord</source>
        <translation>I do not agree</translation>
    </message>
</context>
<context>
    <name>Table</name>
    <message>
        <source>RIEN</source>
        <translation>NOTHING</translation>
    </message>
    <message>
        <source>1 PAIRE</source>
        <translation>PAIR</translation>
    </message>
    <message>
        <source>2 PAIRES</source>
        <translation>2 PAIRS</translation>
    </message>
    <message>
        <source>BRELAN</source>
        <translation>TRIPS</translation>
    </message>
    <message>
        <source>QUINTE</source>
        <translation>STRAIGHT</translation>
    </message>
    <message>
        <source>FLUSH</source>
        <translation>FLUSH</translation>
    </message>
    <message>
        <source>FULL</source>
        <translation>FULL</translation>
    </message>
    <message>
        <source>CARRE</source>
        <translation>QUADS</translation>
    </message>
    <message>
        <source>QF</source>
        <translation>ST FLUSH</translation>
    </message>
    <message>
        <source>MEGA QUINTE</source>
        <translation>MEGA QUINTE</translation>
    </message>
    <message>
        <source>6 PAIRES</source>
        <translation>6 PAIRS</translation>
    </message>
    <message>
        <source>TOUT FLUSH</source>
        <translation>3 FLUSHES</translation>
    </message>
    <message>
        <source>TOUT QUINTE</source>
        <translation>3 STRAIGHTS</translation>
    </message>
    <message>
        <source>ERREUR !</source>
        <translation>INVALID!</translation>
    </message>
    <message>
        <source>NIVEAU 1</source>
        <translation>LEVEL 1</translation>
    </message>
    <message>
        <source>NIVEAU 2</source>
        <translation>LEVEL 2</translation>
    </message>
    <message>
        <source>NIVEAU 3</source>
        <translation>LEVEL 3</translation>
    </message>
    <message>
        <source>JOUER</source>
        <translation>PLAY</translation>
    </message>
    <message>
        <source>SCORES A 0</source>
        <translation>SCORES = 0</translation>
    </message>
    <message>
        <source>JOUEURS</source>
        <translation>PLAYERS</translation>
    </message>
    <message>
        <source>DEBUTANT</source>
        <translation>BEGINNER</translation>
    </message>
    <message>
        <source>REJOUE</source>
        <translation>REPLAY</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>STOP</translation>
    </message>
    <message>
        <source>QUITTER</source>
        <translation>QUIT</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>GO</source>
        <translation>GO</translation>
    </message>
    <message>
        <source>ENREGISTRE</source>
        <translation>SAVE</translation>
    </message>
    <message>
        <source>ANNULE</source>
        <translation>CANCEL</translation>
    </message>
    <message>
        <source> Vous devez être connecté à internet pour utiliser ce logiciel</source>
        <translation> You must be connected to the internet to use this program</translation>
    </message>
    <message>
        <source>EXPERT</source>
        <translation>EXPERT</translation>
    </message>
</context>
</TS>
