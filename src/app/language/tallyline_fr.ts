<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Tallyline</name>
    <message>
        <source>tallyhelp.hlp</source>
        <translation>tallyhelp_fr.hlp</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Open a data file</source>
        <translation>Ouvrir un fichier de données</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Close all open files</source>
        <translation>Fermer tous les fichiers ouverts</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>Save readings as a data file</source>
        <translation>Enregistrer les mesures dans un fichier de données</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>Data&amp;Summary</source>
        <translation>&amp;Résumé des données</translation>
    </message>
    <message>
        <source>Print the summary of a file</source>
        <translation>Imprimer le résumé d'un fichier</translation>
    </message>
    <message>
        <source>Power Summary</source>
        <translation>Résumé de puissance</translation>
    </message>
    <message>
        <source>Print the summary of the power plot</source>
        <translation>Imprimer le résumé de la courbe de puissance</translation>
    </message>
    <message>
        <source>Data&amp;Table</source>
        <translation>&amp;Tableau des données</translation>
    </message>
    <message>
        <source>Print the readings of a file</source>
        <translation>Imprimer les mesures d'un fichier</translation>
    </message>
    <message>
        <source>Power Table</source>
        <translation>Tableau de puissance</translation>
    </message>
    <message>
        <source>Print the values of the power plot</source>
        <translation>Imprimer les valeurs de la courbe de puissance</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Show a chart file (.chd)</source>
        <translation>Afficher un fichier de graphique (.chd)</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>Metering Data Report</source>
        <translation>Rapport de comptage</translation>
    </message>
    <message>
        <source>Write the hourly metering report</source>
        <translation>Écrire le rapport de comptage horaire</translation>
    </message>
    <message>
        <source>Data: Table</source>
        <translation>Données : tableau</translation>
    </message>
    <message>
        <source>Write the readings shown for a spreadsheet</source>
        <translation>Écrire les mesures affichées pour un tableur</translation>
    </message>
    <message>
        <source>Data: 1 Rdg per Line</source>
        <translation>Données : 1 mesure par ligne</translation>
    </message>
    <message>
        <source>Write the table with one interval a line</source>
        <translation>Écrire le tableau avec un intervalle par ligne</translation>
    </message>
    <message>
        <source>Open this file again</source>
        <translation>Rouvrir ce fichier</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>Load Survey</source>
        <translation>Relevé de charge</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>Ouvrir un fichier</translation>
    </message>
    <message>
        <source>Peaks of a station and its feeders</source>
        <translation>Pointes d'un poste et de ses départs</translation>
    </message>
    <message>
        <source>E&amp;dit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Notes</source>
        <translation>&amp;Notes</translation>
    </message>
    <message>
        <source>Edit the notes of a file</source>
        <translation>Modifier les notes d'un fichier</translation>
    </message>
    <message>
        <source>&amp;Force Zoomed Readings</source>
        <translation>&amp;Forcer les mesures du zoom</translation>
    </message>
    <message>
        <source>Replace the readings of the displayed range by one value</source>
        <translation>Remplacer les mesures de la plage affichée par une seule valeur</translation>
    </message>
    <message>
        <source>Data &amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Plot</source>
        <translation>&amp;Courbe</translation>
    </message>
    <message>
        <source>Plot all readings of the open files</source>
        <translation>Tracer toutes les mesures des fichiers ouverts</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tableau</translation>
    </message>
    <message>
        <source>Show the readings of a file</source>
        <translation>Afficher les mesures d'un fichier</translation>
    </message>
    <message>
        <source>&amp;Refresh Graph</source>
        <translation>Retracer la cour&amp;be</translation>
    </message>
    <message>
        <source>Draw the displayed range again</source>
        <translation>Retracer la plage affichée</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Résumé</translation>
    </message>
    <message>
        <source>Show the summary of a file</source>
        <translation>Afficher le résumé d'un fichier</translation>
    </message>
    <message>
        <source>Power View</source>
        <translation>Vue de puissance</translation>
    </message>
    <message>
        <source>Power Plot</source>
        <translation>Courbe de puissance</translation>
    </message>
    <message>
        <source>Plot kilowatts and work out the energy</source>
        <translation>Tracer les kilowatts et calculer l'énergie</translation>
    </message>
    <message>
        <source>Show the values of the power plot</source>
        <translation>Afficher les valeurs de la courbe de puissance</translation>
    </message>
    <message>
        <source>Show the summary of the power plot</source>
        <translation>Afficher le résumé de la courbe de puissance</translation>
    </message>
    <message>
        <source>Load Stud&amp;y</source>
        <translation>&amp;Étude de charge</translation>
    </message>
    <message>
        <source>Demand, duration, phases and capacity of the open files</source>
        <translation>Demande, durée, phases et capacité des fichiers ouverts</translation>
    </message>
    <message>
        <source>&amp;Zoom</source>
        <translation>&amp;Zoom</translation>
    </message>
    <message>
        <source>Narrow the displayed range to the marked span</source>
        <translation>Réduire la plage affichée à la partie marquée</translation>
    </message>
    <message>
        <source>&amp;Instrument</source>
        <translation>A&amp;ppareil</translation>
    </message>
    <message>
        <source>&amp;DownLoad</source>
        <translation>&amp;Télécharger</translation>
    </message>
    <message>
        <source>Fetch the recording of an instrument</source>
        <translation>Récupérer l'enregistrement d'un appareil</translation>
    </message>
    <message>
        <source>&amp;Initialize</source>
        <translation>&amp;Initialiser</translation>
    </message>
    <message>
        <source>Set an instrument up for a new recording</source>
        <translation>Préparer un appareil pour un nouvel enregistrement</translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Récupérer</translation>
    </message>
    <message>
        <source>Fetch a recording after a battery failure</source>
        <translation>Récupérer un enregistrement après une panne de pile</translation>
    </message>
    <message>
        <source>&amp;Status Check</source>
        <translation>&amp;Vérifier l'état</translation>
    </message>
    <message>
        <source>Ask an instrument how it is</source>
        <translation>Demander son état à un appareil</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>Special Test</source>
        <translation>Test spécial</translation>
    </message>
    <message>
        <source>Show the program's state, for support</source>
        <translation>Afficher l'état du programme, pour l'assistance</translation>
    </message>
    <message>
        <source>&amp;Default Dir</source>
        <translation>&amp;Dossier par défaut</translation>
    </message>
    <message>
        <source>Choose where file dialogs start</source>
        <translation>Choisir où commencent les dialogues de fichiers</translation>
    </message>
    <message>
        <source>&amp;Com Port Selection</source>
        <translation>Choix du port &amp;COM</translation>
    </message>
    <message>
        <source>Choose the serial port</source>
        <translation>Choisir le port série</translation>
    </message>
    <message>
        <source>&amp;Instrument Selection</source>
        <translation>Choix de l'&amp;appareil</translation>
    </message>
    <message>
        <source>Choose the instrument type</source>
        <translation>Choisir le type d'appareil</translation>
    </message>
    <message>
        <source>&amp;User Name</source>
        <translation>Nom d'&amp;utilisateur</translation>
    </message>
    <message>
        <source>The name that reports carry</source>
        <translation>Le nom que portent les rapports</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>Éc&amp;helle</translation>
    </message>
    <message>
        <source>Set the lowest value of the y axis for one plot</source>
        <translation>Fixer la valeur minimale de l'axe y pour un tracé</translation>
    </message>
    <message>
        <source>&amp;Annotate</source>
        <translation>A&amp;nnoter</translation>
    </message>
    <message>
        <source>Add &amp;Note</source>
        <translation>Ajouter une &amp;note</translation>
    </message>
    <message>
        <source>Place a text on the chart</source>
        <translation>Placer un texte sur le graphique</translation>
    </message>
    <message>
        <source>&amp;Clear Notes</source>
        <translation>&amp;Effacer les notes</translation>
    </message>
    <message>
        <source>Take all texts off the chart</source>
        <translation>Retirer tous les textes du graphique</translation>
    </message>
    <message>
        <source>&amp;Power Factor</source>
        <translation>&amp;Facteur de puissance</translation>
    </message>
    <message>
        <source>The power factor of power views</source>
        <translation>Le facteur de puissance des vues de puissance</translation>
    </message>
    <message>
        <source>&amp;One-page Plot</source>
        <translation>Courbe sur une &amp;page</translation>
    </message>
    <message>
        <source>Plot everything for one printed page</source>
        <translation>Tout tracer pour une page imprimée</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Système</translation>
    </message>
    <message>
        <source>The language of the computer</source>
        <translation>La langue de l'ordinateur</translation>
    </message>
    <message>
        <source>The window speaks the chosen language when Tallyline is started the next time.</source>
        <translation>La fenêtre parlera la langue choisie au prochain démarrage de Tallyline.</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Open the help</source>
        <translation>Ouvrir l'aide</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>About this program</source>
        <translation>À propos de ce programme</translation>
    </message>
    <message>
        <source>No recording is open</source>
        <translation>Aucun enregistrement n'est ouvert</translation>
    </message>
    <message>
        <source>Open a data file...</source>
        <translation>Ouvrir un fichier de données...</translation>
    </message>
    <message>
        <source>Or drop up to three files on this window.</source>
        <translation>Ou déposez jusqu'à trois fichiers dans cette fenêtre.</translation>
    </message>
    <message>
        <source>Download from an instrument</source>
        <translation>Télécharger depuis un appareil</translation>
    </message>
    <message>
        <source>Fetches a recording over the serial cable.</source>
        <translation>Récupère un enregistrement par le câble série.</translation>
    </message>
    <message>
        <source>Open a sample recording</source>
        <translation>Ouvrir un enregistrement d'exemple</translation>
    </message>
    <message>
        <source>Four weeks of a feeder, to try things out.</source>
        <translation>Quatre semaines d'un départ, pour essayer.</translation>
    </message>
    <message>
        <source>Read the help</source>
        <translation>Lire l'aide</translation>
    </message>
    <message>
        <source>F1 opens it; in an open menu, at the page of that menu.</source>
        <translation>F1 l'ouvre ; dans un menu ouvert, à la page de ce menu.</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>Dismiss this notice</source>
        <translation>Fermer cet avis</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Time under the pointer</source>
        <translation>Heure sous le pointeur</translation>
    </message>
    <message>
        <source>Value under the pointer</source>
        <translation>Valeur sous le pointeur</translation>
    </message>
    <message>
        <source>What is shown is no longer current.</source>
        <translation>Ce qui est affiché n'est plus à jour.</translation>
    </message>
    <message>
        <source>readings %1 to %2 of %3</source>
        <translation>mesures %1 à %2 sur %3</translation>
    </message>
    <message>
        <source>table of %1</source>
        <translation>tableau de %1</translation>
    </message>
    <message>
        <source>summary of %1</source>
        <translation>résumé de %1</translation>
    </message>
    <message>
        <source>Displaying %1</source>
        <translation>Affichage : %1</translation>
    </message>
    <message>
        <source>Displaying table of %1</source>
        <translation>Affichage : tableau de %1</translation>
    </message>
    <message>
        <source>Displaying summary of %1</source>
        <translation>Affichage : résumé de %1</translation>
    </message>
    <message>
        <source>Displaying load study of %1</source>
        <translation>Affichage : étude de charge de %1</translation>
    </message>
    <message>
        <source>power table</source>
        <translation>tableau de puissance</translation>
    </message>
    <message>
        <source>power summary</source>
        <translation>résumé de puissance</translation>
    </message>
    <message>
        <source>a reception that is not saved</source>
        <translation>une réception non enregistrée</translation>
    </message>
    <message>
        <source>The default directory %1 is not there. File dialogs start in the current one; choose another under Options &gt; Default Dir.</source>
        <translation>Le dossier par défaut %1 n'existe pas. Les dialogues de fichiers commencent dans le dossier courant ; choisissez-en un autre sous Options &gt; Dossier par défaut.</translation>
    </message>
    <message>
        <source>%1: %2 forced reading(s), not saved yet.</source>
        <translation>%1 : %2 mesure(s) forcée(s), pas encore enregistrée(s).</translation>
    </message>
    <message>
        <source>%1: %2 forced reading, not saved yet.</source>
        <translation>%1 : %2 mesure forcée, pas encore enregistrée.</translation>
    </message>
    <message>
        <source>%1: %2 forced readings, not saved yet.</source>
        <translation>%1 : %2 mesures forcées, pas encore enregistrées.</translation>
    </message>
    <message>
        <source>%1: %2 reading(s) taken back, not saved yet.</source>
        <translation>%1 : %2 mesure(s) rétablie(s), pas encore enregistrée(s).</translation>
    </message>
    <message>
        <source>%1: %2 reading taken back, not saved yet.</source>
        <translation>%1 : %2 mesure rétablie, pas encore enregistrée.</translation>
    </message>
    <message>
        <source>%1: %2 readings taken back, not saved yet.</source>
        <translation>%1 : %2 mesures rétablies, pas encore enregistrées.</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>Annuler (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message>
        <source>Forced readings of these files were not saved:</source>
        <translation>Les mesures forcées de ces fichiers n'ont pas été enregistrées :</translation>
    </message>
    <message>
        <source>Close without saving them?</source>
        <translation>Fermer sans les enregistrer ?</translation>
    </message>
    <message>
        <source>Drag the note to its place; double-click to edit it; Delete removes it.</source>
        <translation>Faites glisser la note à sa place ; un double-clic la modifie, Suppr la retire.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Validate</source>
        <translation>Valider</translation>
    </message>
    <message>
        <source>Drop</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Give this reception up? It cannot be shown or saved then.</source>
        <translation>Abandonner cette réception ? Elle ne pourra plus être affichée ni enregistrée.</translation>
    </message>
    <message>
        <source>The notes of the file could not be read.</source>
        <translation>Les notes du fichier n'ont pas pu être lues.</translation>
    </message>
    <message>
        <source>%1 item(s) of the file could not be read as numbers; each counts with its leading number, or 0</source>
        <translation>%1 élément(s) du fichier ne sont pas des nombres ; chacun compte pour le nombre par lequel il commence, sinon 0</translation>
    </message>
    <message>
        <source>%1 item of the file could not be read as a number; it counts with its leading number, or 0</source>
        <translation>%1 élément du fichier n'est pas un nombre ; il compte pour le nombre par lequel il commence, sinon 0</translation>
    </message>
    <message>
        <source>%1 items of the file could not be read as numbers; each counts with its leading number, or 0</source>
        <translation>%1 éléments du fichier ne sont pas des nombres ; chacun compte pour le nombre par lequel il commence, sinon 0</translation>
    </message>
    <message>
        <source>%1 is open and holds %2 readings.
Replace it by %3?</source>
        <translation>%1 est ouvert et contient %2 mesures.
Le remplacer par %3 ?</translation>
    </message>
    <message>
        <source>%1 of %2 readings (%3 to %4)</source>
        <translation>%1 mesures sur %2 (de %3 à %4)</translation>
    </message>
    <message>
        <source>%1 readings</source>
        <translation>%1 mesures</translation>
    </message>
    <message>
        <source>Save %1 of %2 readings (%3 to %4)</source>
        <translation>Enregistrer %1 mesures sur %2 (de %3 à %4)</translation>
    </message>
    <message>
        <source>%1 holds %2 of %3 readings (%4 to %5) of %6.</source>
        <translation>%1 contient %2 mesures sur %3 (de %4 à %5) de %6.</translation>
    </message>
    <message>
        <source>%1 ends without its end mark; it may have been cut; %2 readings, the oldest number may be incomplete</source>
        <translation>%1 finit sans marque de fin ; le fichier a pu être coupé ; %2 mesures, le nombre le plus ancien peut être incomplet</translation>
    </message>
    <message>
        <source>%1: ends without its end mark; it may have been cut; %2 readings, the oldest number may be incomplete</source>
        <translation>%1 : finit sans marque de fin ; le fichier a pu être coupé ; %2 mesures, le nombre le plus ancien peut être incomplet</translation>
    </message>
    <message>
        <source>Saved in %1: instrument %2, %3 readings.</source>
        <translation>Enregistré dans %1 : appareil %2, %3 mesures.</translation>
    </message>
    <message>
        <source>Saved in %1: instrument %2, %3 reading.</source>
        <translation>Enregistré dans %1 : appareil %2, %3 mesure.</translation>
    </message>
    <message>
        <source>Saved in %1.</source>
        <translation>Enregistré dans %1.</translation>
    </message>
    <message>
        <source>Power factor taken as %1.</source>
        <translation>Facteur de puissance retenu : %1.</translation>
    </message>
    <message>
        <source>Power factor taken as %1; the entry is not wholly a number.</source>
        <translation>Facteur de puissance retenu : %1 ; la saisie n'est pas entièrement un nombre.</translation>
    </message>
    <message>
        <source>Line voltage taken as %1 volts; 0 counts as none.</source>
        <translation>Tension retenue : %1 volts ; 0 compte comme aucune.</translation>
    </message>
    <message>
        <source>Line voltage taken as %1 volts; the entry must be volts, not KV</source>
        <translation>Tension retenue : %1 volts ; la saisie est en volts, pas en kV</translation>
    </message>
    <message>
        <source>Line voltage taken as %1 volts; the entry must be volts, not KV (%2 for %3 KV)</source>
        <translation>Tension retenue : %1 volts ; la saisie est en volts, pas en kV (%2 pour %3 kV)</translation>
    </message>
    <message>
        <source>Line voltage taken as %1 volts; the entry is not wholly a number.</source>
        <translation>Tension retenue : %1 volts ; la saisie n'est pas entièrement un nombre.</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>One-page plot</source>
        <translation>Courbe sur une page</translation>
    </message>
    <message>
        <source>Text of the note</source>
        <translation>Texte de la note</translation>
    </message>
    <message>
        <source>Enter keeps the text, Shift+Enter breaks the line, Escape leaves it as it was</source>
        <translation>Entrée garde le texte, Maj+Entrée coupe la ligne, Échap le laisse tel quel</translation>
    </message>
    <message>
        <source>Enter note here</source>
        <translation>Enter note here</translation>
    </message>
    <message>
        <source>Open chart</source>
        <translation>Ouvrir un graphique</translation>
    </message>
    <message>
        <source>Open a chart file</source>
        <translation>Ouvrir un fichier de graphique</translation>
    </message>
    <message>
        <source>Save chart</source>
        <translation>Enregistrer le graphique</translation>
    </message>
    <message>
        <source>Save the chart as a chart file</source>
        <translation>Enregistrer le graphique dans un fichier de graphique</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Save the chart as PNG, PDF or SVG</source>
        <translation>Enregistrer le graphique en PNG, PDF ou SVG</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the chart as a picture</source>
        <translation>Copier le graphique comme image</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Print the chart on one page</source>
        <translation>Imprimer le graphique sur une page</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Show how the chart will be printed</source>
        <translation>Montrer comment le graphique sera imprimé</translation>
    </message>
    <message>
        <source>Add note</source>
        <translation>Ajouter une note</translation>
    </message>
    <message>
        <source>Put a text on the chart</source>
        <translation>Mettre un texte sur le graphique</translation>
    </message>
    <message>
        <source>Clear notes</source>
        <translation>Effacer les notes</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>Agrandir l'image</translation>
    </message>
    <message>
        <source>Reduce the picture</source>
        <translation>Réduire l'image</translation>
    </message>
    <message>
        <source>Whole</source>
        <translation>Entier</translation>
    </message>
    <message>
        <source>Show the whole plot</source>
        <translation>Afficher toute la courbe</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Texte à rechercher</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>Fermer la barre de recherche</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Forced readings</source>
        <translation>Mesures forcées</translation>
    </message>
    <message>
        <source>Print preview</source>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>The pages could not be drawn</source>
        <translation>Les pages n'ont pas pu être dessinées</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; failed</source>
        <translation>L'imprimante « %1 » a échoué</translation>
    </message>
    <message>
        <source>There is no printer</source>
        <translation>Il n'y a pas d'imprimante</translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has gone</source>
        <translation>L'imprimante « %1 » a disparu</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Print this text</source>
        <translation>Imprimer ce texte</translation>
    </message>
    <message>
        <source>See the pages before they are printed</source>
        <translation>Voir les pages avant de les imprimer</translation>
    </message>
    <message>
        <source>Copy the selection, or everything</source>
        <translation>Copier la sélection, ou tout</translation>
    </message>
    <message>
        <source>Search this text (Ctrl+F)</source>
        <translation>Chercher dans ce texte (Ctrl+F)</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Leave the zoom and show every reading</source>
        <translation>Quitter le zoom et afficher toutes les mesures</translation>
    </message>
    <message>
        <source>Study</source>
        <translation>Étude</translation>
    </message>
    <message>
        <source>The chart file cannot be read: it is too large</source>
        <translation>Le fichier de graphique ne peut pas être lu : il est trop grand</translation>
    </message>
    <message>
        <source>The chart file cannot be read: it is damaged or no chart file</source>
        <translation>Le fichier de graphique ne peut pas être lu : il est endommagé ou n'en est pas un</translation>
    </message>
    <message>
        <source>The chart file cannot be read: %1</source>
        <translation>Le fichier de graphique ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>It is no chart file of this program</source>
        <translation>Ce n'est pas un fichier de graphique de ce programme</translation>
    </message>
    <message>
        <source>It was written by a newer version of this program</source>
        <translation>Il a été écrit par une version plus récente de ce programme</translation>
    </message>
    <message>
        <source>A note stands outside the chart</source>
        <translation>Une note se trouve hors du graphique</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>« %1 » manque</translation>
    </message>
    <message>
        <source>%1 is no object</source>
        <translation>%1 n'est pas un objet</translation>
    </message>
    <message>
        <source>%1 holds &quot;%2&quot;, which is unknown</source>
        <translation>%1 contient « %2 », qui est inconnu</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no list of at most %2</source>
        <translation>« %1 » n'est pas une liste d'au plus %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no text of a usual length</source>
        <translation>« %1 » n'est pas un texte de longueur usuelle</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation>« %1 » n'est pas un nombre entier</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is out of range</source>
        <translation>« %1 » est hors limites</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds what is no number</source>
        <translation>« %1 » contient ce qui n'est pas un nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a number out of range</source>
        <translation>« %1 » contient un nombre hors limites</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds what is no pair</source>
        <translation>« %1 » contient ce qui n'est pas une paire</translation>
    </message>
    <message>
        <source>&quot;%1&quot; are not nine</source>
        <translation>« %1 » ne sont pas neuf</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds what is no label</source>
        <translation>« %1 » contient ce qui n'est pas une étiquette</translation>
    </message>
    <message>
        <source>A picture is saved as .png, .pdf or .svg: %1</source>
        <translation>Une image s'enregistre en .png, .pdf ou .svg : %1</translation>
    </message>
    <message>
        <source>A picture is between %1 and %2 pixels wide and high, and needs memory for them</source>
        <translation>Une image mesure entre %1 et %2 pixels de large et de haut et il faut de la mémoire pour eux</translation>
    </message>
    <message>
        <source>About Tallyline</source>
        <translation>À propos de Tallyline</translation>
    </message>
    <message>
        <source>Reads, keeps and plots the recordings of portable
electrical load recorders.</source>
        <translation>Lit, conserve et trace les enregistrements
d'enregistreurs de charge électriques portables.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nom d'utilisateur</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>GNU GPL 3 or later</source>
        <translation>GNU GPL 3 ou ultérieure</translation>
    </message>
    <message>
        <source>No Selection Made
Click on filename</source>
        <translation>Aucune sélection
Cliquez sur un nom de fichier</translation>
    </message>
    <message>
        <source>Select Data</source>
        <translation>Choisir les données</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Fichiers ouverts</translation>
    </message>
    <message>
        <source>Scroll the file paths</source>
        <translation>Faire défiler les chemins</translation>
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
        <source>Show scroll data</source>
        <translation>Afficher les détails</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>%1 to %2 %3 readings, range %4</source>
        <translation>%1 à %2 %3 mesures, plage %4</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Lieu : %1</translation>
    </message>
    <message>
        <source>Circuit: %1</source>
        <translation>Circuit : %1</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>Nom : %1</translation>
    </message>
    <message>
        <source>Other: %1</source>
        <translation>Autre : %1</translation>
    </message>
    <message>
        <source>Note Editor</source>
        <translation>Éditeur de notes</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Lieu :</translation>
    </message>
    <message>
        <source>Circuit:</source>
        <translation>Circuit :</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Other:</source>
        <translation>Autre :</translation>
    </message>
    <message>
        <source>A comma ends a note when the file is opened again: what follows it moves into the next field.</source>
        <translation>Une virgule termine une note à la réouverture du fichier : ce qui la suit passe dans le champ suivant.</translation>
    </message>
    <message>
        <source>save</source>
        <translation>enregistrer</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>annuler</translation>
    </message>
    <message>
        <source>Use this folder</source>
        <translation>Prendre ce dossier</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>File dialogs start in this folder:</source>
        <translation>Les dialogues de fichiers commencent dans ce dossier :</translation>
    </message>
    <message>
        <source>To force one or all of the readings in the current zoomed range to a particular value, enter the desired new value in the box below, select the number of readings to change and then press OK.</source>
        <translation>Pour forcer une ou toutes les mesures de la plage zoomée à une valeur donnée, saisissez ci-dessous la nouvelle valeur, choisissez le nombre de mesures à modifier, puis appuyez sur OK.</translation>
    </message>
    <message>
        <source>All Readings (%1)</source>
        <translation>Toutes les mesures (%1)</translation>
    </message>
    <message>
        <source>Leftmost Reading</source>
        <translation>Mesure la plus à gauche</translation>
    </message>
    <message>
        <source>Rightmost Reading</source>
        <translation>Mesure la plus à droite</translation>
    </message>
    <message>
        <source>Force Readings</source>
        <translation>Forcer des mesures</translation>
    </message>
    <message>
        <source>Desired value:</source>
        <translation>Valeur voulue :</translation>
    </message>
    <message>
        <source>No. of readings to change:</source>
        <translation>Nombre de mesures à modifier :</translation>
    </message>
    <message>
        <source>The help file is missing:</source>
        <translation>Le fichier d'aide manque :</translation>
    </message>
    <message>
        <source>The help file is damaged:</source>
        <translation>Le fichier d'aide est endommagé :</translation>
    </message>
    <message>
        <source>The help file cannot be opened:</source>
        <translation>Le fichier d'aide ne peut pas être ouvert :</translation>
    </message>
    <message>
        <source>Tallyline Help</source>
        <translation>Aide de Tallyline</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>data files (*.dat)</source>
        <translation>fichiers de données (*.dat)</translation>
    </message>
    <message>
        <source>Data Displayed</source>
        <translation>Données affichées</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Error - No file available. Need to open a file.</source>
        <translation>Erreur - Aucun fichier disponible. Il faut ouvrir un fichier.</translation>
    </message>
    <message>
        <source>Error - No file available. Need to open a file</source>
        <translation>Erreur - Aucun fichier disponible. Il faut ouvrir un fichier</translation>
    </message>
    <message>
        <source>File not found or disk error</source>
        <translation>Fichier introuvable ou erreur de disque</translation>
    </message>
    <message>
        <source>Enter user name below</source>
        <translation>Saisissez ci-dessous le nom d'utilisateur</translation>
    </message>
    <message>
        <source>Enter line voltage for power calculation
input must be volts, not 'KV'</source>
        <translation>Saisissez la tension pour le calcul de puissance
en volts, pas en « kV »</translation>
    </message>
    <message>
        <source>Enter Power Factor to be used
must be 1 or less</source>
        <translation>Saisissez le facteur de puissance
1 ou moins</translation>
    </message>
    <message>
        <source>Enter min value for Y Scale</source>
        <translation>Saisissez la valeur minimale de l'échelle y</translation>
    </message>
    <message>
        <source>print on one page</source>
        <translation>print on one page</translation>
    </message>
    <message>
        <source>ONE PAGE PLOT IS ENABLED
Click the Print Icon to print this report</source>
        <translation>LA COURBE SUR UNE PAGE EST ACTIVE
Cliquez sur l'icône d'impression pour imprimer</translation>
    </message>
    <message>
        <source>Enter Recorder ID
No More Than 14 Characters

Power Factor In Use %1; Use OPTIONS to Alter</source>
        <translation>Saisissez l'identifiant de l'enregistreur
Au plus 14 caractères

Facteur de puissance utilisé : %1 ; à modifier sous OPTIONS</translation>
    </message>
    <message>
        <source>Software error in mnuItemNotes_Click:
A case that couldn't happen, happened.</source>
        <translation>Erreur logicielle dans mnuItemNotes_Click :
Un cas impossible s'est produit.</translation>
    </message>
    <message>
        <source>Software error in ForceRdgs - 'ginx' is out of range</source>
        <translation>Erreur logicielle dans ForceRdgs - « ginx » est hors limites</translation>
    </message>
    <message>
        <source>Error - New reading is outside the allowable range.
- Must be between 0 and %1</source>
        <translation>Erreur - La nouvelle mesure est hors de la plage admise.
- Elle doit être entre 0 et %1</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Dépassement</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Indice hors limites</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division par zéro</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Type incompatible</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Fichier introuvable</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Erreur d'entrée-sortie du périphérique</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disque plein</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Accès refusé</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Erreur d'accès au chemin ou au fichier</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Chemin introuvable</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>Invalid property value</source>
        <translation>Valeur non valide</translation>
    </message>
    <message>
        <source>Port already open</source>
        <translation>Port déjà ouvert</translation>
    </message>
    <message>
        <source>Invalid port number</source>
        <translation>Numéro de port non valide</translation>
    </message>
    <message>
        <source>Check its name and folder; it may have been moved or renamed.</source>
        <translation>Vérifiez son nom et son dossier ; il a pu être déplacé ou renommé.</translation>
    </message>
    <message>
        <source>Disk error: it could not be read or written to its end. Try again, or use another disk.</source>
        <translation>Erreur de disque : lecture ou écriture interrompue avant la fin. Réessayez ou prenez un autre disque.</translation>
    </message>
    <message>
        <source>Make room on the disk, or choose a folder on another one.</source>
        <translation>Libérez de la place sur le disque ou choisissez un dossier sur un autre.</translation>
    </message>
    <message>
        <source>You have no right to it. Ask for the right, or choose another folder.</source>
        <translation>Vous n'y avez pas droit. Demandez ce droit ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>It is a folder or a device, or cannot be opened. Choose a file.</source>
        <translation>C'est un dossier ou un périphérique, ou il ne s'ouvre pas. Choisissez un fichier.</translation>
    </message>
    <message>
        <source>Its folder is not there. Make it, or choose another one.</source>
        <translation>Son dossier n'existe pas. Créez-le ou choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Error number %1: %2</source>
        <translation>Erreur numéro %1 : %2</translation>
    </message>
    <message>
        <source>It has no header of an instrument.</source>
        <translation>Il n'a pas d'en-tête d'appareil.</translation>
    </message>
    <message>
        <source>The mode letter in its header is none of a to l.</source>
        <translation>La lettre de mode de son en-tête n'est pas entre a et l.</translation>
    </message>
    <message>
        <source>The time in its header is no date and time.</source>
        <translation>L'heure de son en-tête n'est pas une date avec heure.</translation>
    </message>
    <message>
        <source>There are no readings behind its header.</source>
        <translation>Aucune mesure ne suit son en-tête.</translation>
    </message>
    <message>
        <source>One of its readings is larger than a recording can hold.</source>
        <translation>Une de ses mesures est plus grande que ce qu'un enregistrement peut contenir.</translation>
    </message>
    <message>
        <source>Its readings run into each other and cannot be told apart.</source>
        <translation>Ses mesures se touchent et ne peuvent être séparées.</translation>
    </message>
    <message>
        <source>It is far longer than a recording and has no end mark.</source>
        <translation>Il est bien plus long qu'un enregistrement et n'a pas de marque de fin.</translation>
    </message>
    <message>
        <source>The file was not changed. Try another copy of it, or download again.</source>
        <translation>Le fichier n'a pas été modifié. Essayez une autre copie ou téléchargez à nouveau.</translation>
    </message>
    <message>
        <source>Mode mixing not allowed</source>
        <translation>Mélange de modes interdit</translation>
    </message>
    <message>
        <source>Not Voltage file</source>
        <translation>Pas un fichier de tension</translation>
    </message>
    <message>
        <source>Three files are open already. Use Close first.</source>
        <translation>Trois fichiers sont déjà ouverts. Fermez d'abord.</translation>
    </message>
    <message>
        <source>It is of mode %1 (%2 min, %3), what is open of mode %4 (%5 min, %6). Open files of one mode together; use Close before files of another.</source>
        <translation>Il est en mode %1 (%2 min, %3), les fichiers ouverts en mode %4 (%5 min, %6). Ouvrez ensemble des fichiers d'un même mode ; fermez avant ceux d'un autre.</translation>
    </message>
    <message>
        <source>It is a recording of current. Choose a file of a voltage recorder.</source>
        <translation>C'est un enregistrement de courant. Choisissez un fichier d'enregistreur de tension.</translation>
    </message>
    <message>
        <source>Error in processing file</source>
        <translation>Erreur de traitement du fichier</translation>
    </message>
    <message>
        <source>Unknown File Error; Check</source>
        <translation>Erreur de fichier inconnue ; vérifiez</translation>
    </message>
    <message>
        <source>The files are not all of one unit</source>
        <translation>Les fichiers n'ont pas tous la même unité</translation>
    </message>
    <message>
        <source>The files have different intervals</source>
        <translation>Les fichiers ont des intervalles différents</translation>
    </message>
    <message>
        <source>The files start no whole number of intervals apart</source>
        <translation>Les débuts des fichiers ne sont pas séparés d'intervalles entiers</translation>
    </message>
    <message>
        <source>The files have no reading in common</source>
        <translation>Les fichiers n'ont aucune mesure en commun</translation>
    </message>
    <message>
        <source>There is no complete reading</source>
        <translation>Il n'y a pas de mesure complète</translation>
    </message>
    <message>
        <source>It holds %1, %2 %3.</source>
        <translation>Il contient des %1, %2 des %3.</translation>
    </message>
    <message>
        <source>amps</source>
        <translation>ampères</translation>
    </message>
    <message>
        <source>volts</source>
        <translation>volts</translation>
    </message>
    <message>
        <source>It runs from %1 to %2, the first from %3 to %4.</source>
        <translation>Il va de %1 à %2, le premier de %3 à %4.</translation>
    </message>
    <message>
        <source>It starts at %1, the first at %2, and readings are %3 minutes apart.</source>
        <translation>Il commence à %1, le premier à %2, et les mesures sont espacées de %3 minutes.</translation>
    </message>
    <message>
        <source>The zoomed range holds no reading of this file. Nothing was done.</source>
        <translation>La plage zoomée ne contient aucune mesure de ce fichier. Rien n'a été fait.</translation>
    </message>
    <message>
        <source>The range is %1 to %2 of %3. Show all readings first, or choose another file.</source>
        <translation>La plage va de %1 à %2 de %3. Affichez d'abord toutes les mesures ou choisissez un autre fichier.</translation>
    </message>
    <message>
        <source>Shorter: %1 (%2 of %3 readings)</source>
        <translation>Plus court : %1 (%2 mesures sur %3)</translation>
    </message>
    <message>
        <source>Shorter: %1 (%2 of %3 readings).</source>
        <translation>Plus court : %1 (%2 mesures sur %3).</translation>
    </message>
    <message>
        <source>Shorter: %1 (%2 of %3 readings), %4 (%5 of %6 readings)</source>
        <translation>Plus courts : %1 (%2 mesures sur %3), %4 (%5 mesures sur %6)</translation>
    </message>
    <message>
        <source>%1 starts %2 after %3;</source>
        <translation>%1 commence %2 après %3 ;</translation>
    </message>
    <message>
        <source>%1 starts %2 before %3;</source>
        <translation>%1 commence %2 avant %3 ;</translation>
    </message>
    <message>
        <source>readings are combined by number, not by time</source>
        <translation>les mesures sont combinées par numéro, pas par heure</translation>
    </message>
    <message>
        <source>readings are combined by number, not by time.</source>
        <translation>les mesures sont combinées par numéro, pas par heure.</translation>
    </message>
    <message>
        <source>%1 starts %2 after %3; readings are combined by number, not by time</source>
        <translation>%1 commence %2 après %3 ; les mesures sont combinées par numéro, pas par heure</translation>
    </message>
    <message>
        <source>%1 starts %2 before %3; readings are combined by number, not by time</source>
        <translation>%1 commence %2 avant %3 ; les mesures sont combinées par numéro, pas par heure</translation>
    </message>
    <message>
        <source>Different units: %1 is in %2, %3 in %4</source>
        <translation>Unités différentes : %1 en %2, %3 en %4</translation>
    </message>
    <message>
        <source>Different units: %1 is in %2, %3 in %4.</source>
        <translation>Unités différentes : %1 en %2, %3 en %4.</translation>
    </message>
    <message>
        <source>Power of %1 at %2 KV, power factor %3, %4 to %5: %6</source>
        <translation>Puissance de %1 à %2 kV, facteur de puissance %3, de %4 à %5 : %6</translation>
    </message>
    <message>
        <source>Files must all be amps for power to plot</source>
        <translation>Pour tracer la puissance, tous les fichiers doivent être en ampères</translation>
    </message>
    <message>
        <source>Files must be average mode for power to plot</source>
        <translation>Pour tracer la puissance, les fichiers doivent être en mode moyenne</translation>
    </message>
    <message>
        <source>only 15 min, avg mode allowed</source>
        <translation>seulement 15 min, mode moyenne</translation>
    </message>
    <message>
        <source>The export would replace an open data file. Nothing was written.</source>
        <translation>L'exportation remplacerait un fichier de données ouvert. Rien n'a été écrit.</translation>
    </message>
    <message>
        <source>%1 saved OK</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Software Error #2 in Export.bas. Line in gTable$ too short.</source>
        <translation>Erreur logicielle n° 2 dans Export.bas. Ligne de gTable$ trop courte.</translation>
    </message>
    <message>
        <source>NOT A VALID MODE
INTERVAL MUST BE 15 MINUTES</source>
        <translation>MODE NON VALABLE
L'INTERVALLE DOIT ÊTRE DE 15 MINUTES</translation>
    </message>
    <message>
        <source>The readings hold no whole hour after a midnight. No report was written.</source>
        <translation>Les mesures ne contiennent aucune heure entière après minuit. Aucun rapport n'a été écrit.</translation>
    </message>
    <message>
        <source>The power factor in use is above 1; use OPTIONS to alter it. No report was written.</source>
        <translation>Le facteur de puissance utilisé dépasse 1 ; modifiez-le sous OPTIONS. Aucun rapport n'a été écrit.</translation>
    </message>
    <message>
        <source>A Recorder ID can hold no double quotes and no control characters. No report was written.</source>
        <translation>Un identifiant d'enregistreur ne peut contenir ni guillemets ni caractères de commande. Aucun rapport n'a été écrit.</translation>
    </message>
    <message>
        <source>The journal of downloads cannot be written in %1: %2. A download that is not saved is lost when the program ends.</source>
        <translation>Le journal des téléchargements ne peut pas être écrit dans %1 : %2. Un téléchargement non enregistré est perdu quand le programme se termine.</translation>
    </message>
    <message>
        <source>the folder cannot be brought to the disk</source>
        <translation>le dossier ne peut pas être écrit sur le disque</translation>
    </message>
    <message>
        <source>simulated instrument</source>
        <translation>appareil simulé</translation>
    </message>
    <message>
        <source>%1 is not there. Check that the adapter is plugged in.</source>
        <translation>%1 est absent. Vérifiez que l'adaptateur est branché.</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 est utilisé par un autre programme.</translation>
    </message>
    <message>
        <source>There is no permission to use %1. Add yourself to group dialout and log in again.</source>
        <translation>Pas de droit d'utiliser %1. Ajoutez-vous au groupe dialout et reconnectez-vous.</translation>
    </message>
    <message>
        <source>%1 is not a serial line.</source>
        <translation>%1 n'est pas une ligne série.</translation>
    </message>
    <message>
        <source>The serial line %1 takes no more characters. It was closed.</source>
        <translation>La ligne série %1 n'accepte plus de caractères. Elle a été fermée.</translation>
    </message>
    <message>
        <source>The serial line %1 has gone. Was the adapter or its cable pulled out?</source>
        <translation>La ligne série %1 a disparu. L'adaptateur ou son câble a-t-il été débranché ?</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged. The last good copy is used.</source>
        <translation>Le fichier de réglages %1 est endommagé. La dernière bonne copie est utilisée.</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged. What could be read of it is used.</source>
        <translation>Le fichier de réglages %1 est endommagé. Ce qui a pu en être lu est utilisé.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2.</source>
        <translation>Le fichier de réglages %1 ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>The settings cannot be saved in %1: %2. They hold until the program ends.</source>
        <translation>Les réglages ne peuvent pas être enregistrés dans %1 : %2. Ils valent jusqu'à la fin du programme.</translation>
    </message>
    <message>
        <source>Home (%1)</source>
        <translation>Dossier personnel (%1)</translation>
    </message>
    <message>
        <source>CAUTION

For Voltage Recorders press
the display switch until the
reading appears.

Then press OK</source>
        <translation>ATTENTION

Sur les enregistreurs de tension,
appuyez sur la touche d'affichage
jusqu'à ce que la mesure apparaisse.

Appuyez ensuite sur OK</translation>
    </message>
    <message>
        <source>LOW INSTRUMENT BATTERY</source>
        <translation>PILE DE L'APPAREIL FAIBLE</translation>
    </message>
    <message>
        <source>Communication port not valid.
Try selecting a different COM port</source>
        <translation>Port de communication non valide.
Choisissez un autre port COM</translation>
    </message>
    <message>
        <source>Check that the instrument is connected or try selecting some other
instrument type (using Options &gt; Instrument Selection).</source>
        <translation>Vérifiez que l'appareil est branché ou choisissez un autre
type d'appareil (sous Options &gt; Choix de l'appareil).</translation>
    </message>
    <message>
        <source>Insert the cable into the instrument.</source>
        <translation>Branchez le câble sur l'appareil.</translation>
    </message>
    <message>
        <source>Then Press 'OK'.</source>
        <translation>Appuyez ensuite sur « OK ».</translation>
    </message>
    <message>
        <source>Press 'OK'.</source>
        <translation>Appuyez sur « OK ».</translation>
    </message>
    <message>
        <source>Then insert the cable into the instrument.</source>
        <translation>Branchez ensuite le câble sur l'appareil.</translation>
    </message>
    <message>
        <source>(If the interface has a transfer switch,
make sure it's set to 'TRANSFER'.)</source>
        <translation>(Si l'interface a un commutateur,
il doit être sur « TRANSFER ».)</translation>
    </message>
    <message>
        <source>Auto select: Initial port settings = %1</source>
        <translation>Sélection automatique : réglage initial du port = %1</translation>
    </message>
    <message>
        <source>Hit 'Cancel' or use ESC key to quit</source>
        <translation>« Annuler » ou Échap pour quitter</translation>
    </message>
    <message>
        <source>Waiting for the instrument to send its recording.</source>
        <translation>Attente de l'envoi de l'enregistrement par l'appareil.</translation>
    </message>
    <message>
        <source>Now insert the cable into the instrument.</source>
        <translation>Branchez maintenant le câble sur l'appareil.</translation>
    </message>
    <message>
        <source>The instrument is sending. Leave the cable in until the end.</source>
        <translation>L'appareil envoie. Laissez le câble branché jusqu'à la fin.</translation>
    </message>
    <message>
        <source>RETURN THE SWITCH TO 'STANDBY'
OR REMOVE THE CABLE NOW</source>
        <translation>REMETTEZ LE COMMUTATEUR SUR « STANDBY »
OU DÉBRANCHEZ LE CÂBLE</translation>
    </message>
    <message>
        <source>%1 in use
Cancel or Escape to quit</source>
        <translation>%1 utilisé
Annuler ou Échap pour quitter</translation>
    </message>
    <message>
        <source>Cancel or Escape to quit
%1 in use</source>
        <translation>Annuler ou Échap pour quitter
%1 utilisé</translation>
    </message>
    <message>
        <source>Nothing has come since %1. Check that the cable sits firmly at both ends, that a transfer switch is set to TRANSFER, and that %2 and the type %3 are the right ones. Cancel or Escape ends the wait.</source>
        <translation>Rien n'est arrivé depuis %1. Vérifiez que le câble tient bien aux deux bouts, qu'un commutateur est sur TRANSFER et que %2 et le type %3 sont les bons. Annuler ou Échap met fin à l'attente.</translation>
    </message>
    <message>
        <source>Waiting for response from the unit.</source>
        <translation>Attente de la réponse de l'appareil.</translation>
    </message>
    <message>
        <source>Characters received so far:%1</source>
        <translation>Caractères reçus jusqu'ici : %1</translation>
    </message>
    <message>
        <source>Waiting for data...</source>
        <translation>Attente de données...</translation>
    </message>
    <message>
        <source>Terminated by waiting for data</source>
        <translation>Terminé en attendant des données</translation>
    </message>
    <message>
        <source>Treating unit as %1. Got a response. Downloading data...</source>
        <translation>Appareil traité comme %1. Réponse reçue. Téléchargement des données...</translation>
    </message>
    <message>
        <source>Treating unit as %1. Waiting for response...</source>
        <translation>Appareil traité comme %1. Attente de réponse...</translation>
    </message>
    <message>
        <source>Now treating unit as %1. Waiting for response...</source>
        <translation>Appareil maintenant traité comme %1. Attente de réponse...</translation>
    </message>
    <message>
        <source>No response. Changing settings. (Takes about 5 seconds)...</source>
        <translation>Pas de réponse. Changement de réglage. (Environ 5 secondes)...</translation>
    </message>
    <message>
        <source>Bad header. Changing settings. (Takes about 5 seconds)...</source>
        <translation>En-tête incorrect. Changement de réglage. (Environ 5 secondes)...</translation>
    </message>
    <message>
        <source>No response.</source>
        <translation>Pas de réponse.</translation>
    </message>
    <message>
        <source>No response in %1 seconds</source>
        <translation>Pas de réponse en %1 secondes</translation>
    </message>
    <message>
        <source>No response in %1 seconds.</source>
        <translation>Pas de réponse en %1 secondes.</translation>
    </message>
    <message>
        <source>No response in %1 seconds at each of two different baud rates.</source>
        <translation>Pas de réponse en %1 secondes à chacune de deux vitesses.</translation>
    </message>
    <message>
        <source>Check that the instrument is connected.
Otherwise remove the cable from the instrument, and then
try selecting some other instrument type
(using Options &gt; Instrument Selection).</source>
        <translation>Vérifiez que l'appareil est branché.
Sinon débranchez le câble de l'appareil et
choisissez un autre type d'appareil
(sous Options &gt; Choix de l'appareil).</translation>
    </message>
    <message>
        <source>Response from instrument not valid.
Remove the cable from the instrument, and then
try selecting some other instrument type
(using Options &gt; Instrument Selection)</source>
        <translation>Réponse de l'appareil non valide.
Débranchez le câble de l'appareil et
choisissez un autre type d'appareil
(sous Options &gt; Choix de l'appareil)</translation>
    </message>
    <message>
        <source>Ready to start download.</source>
        <translation>Prêt à télécharger.</translation>
    </message>
    <message>
        <source>Total No. of characters received = %1</source>
        <translation>Nombre total de caractères reçus = %1</translation>
    </message>
    <message>
        <source>PROCESSING DATA; WAIT</source>
        <translation>TRAITEMENT DES DONNÉES ; PATIENTEZ</translation>
    </message>
    <message>
        <source>No. of characters processed = %1</source>
        <translation>Caractères traités = %1</translation>
    </message>
    <message>
        <source>PROCEED</source>
        <translation>CONTINUER</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>AVERTISSEMENT</translation>
    </message>
    <message>
        <source>Enter date and time of the field initialization
using format 'mm-dd-yy hh:mm'</source>
        <translation>Saisissez la date et l'heure de l'initialisation sur le terrain
sous la forme « mm-dd-yy hh:mm »</translation>
    </message>
    <message>
        <source>Instrument Information from download</source>
        <translation>Informations de l'appareil téléchargé</translation>
    </message>
    <message>
        <source>REMEMBER TO SAVE THIS DOWNLOAD TO A FILE</source>
        <translation>PENSEZ À ENREGISTRER CE TÉLÉCHARGEMENT</translation>
    </message>
    <message>
        <source>Instrument clock: the same as this computer's</source>
        <translation>Horloge de l'appareil : la même que celle de cet ordinateur</translation>
    </message>
    <message>
        <source>Instrument clock: %1 min ahead of this computer's</source>
        <translation>Horloge de l'appareil : %1 min d'avance sur cet ordinateur</translation>
    </message>
    <message>
        <source>Instrument clock: %1 min behind this computer's</source>
        <translation>Horloge de l'appareil : %1 min de retard sur cet ordinateur</translation>
    </message>
    <message>
        <source>Instrument clock: %1 days ahead of this computer's</source>
        <translation>Horloge de l'appareil : %1 jours d'avance sur cet ordinateur</translation>
    </message>
    <message>
        <source>Instrument clock: %1 days behind this computer's</source>
        <translation>Horloge de l'appareil : %1 jours de retard sur cet ordinateur</translation>
    </message>
    <message>
        <source>Mode: unknown</source>
        <translation>Mode : inconnu</translation>
    </message>
    <message>
        <source>Mode: Min/Max/Avg %1 min interval</source>
        <translation>Mode : min/max/moy., intervalle %1 min</translation>
    </message>
    <message>
        <source>Mode: Average %1 min interval</source>
        <translation>Mode : moyenne, intervalle %1 min</translation>
    </message>
    <message>
        <source>Readings: %1</source>
        <translation>Mesures : %1</translation>
    </message>
    <message>
        <source>They span: %1 d %2 h %3 min</source>
        <translation>Durée couverte : %1 j %2 h %3 min</translation>
    </message>
    <message>
        <source>The memory holds: %1 readings</source>
        <translation>Capacité de la mémoire : %1 mesures</translation>
    </message>
    <message>
        <source>Type: %1 Ser. %2</source>
        <translation>Type : %1 N° %2</translation>
    </message>
    <message>
        <source>Start Time %1</source>
        <translation>Début %1</translation>
    </message>
    <message>
        <source>Downloaded (stopped): %1</source>
        <translation>Téléchargé (arrêté) : %1</translation>
    </message>
    <message>
        <source>Downloaded or stopped at: %1</source>
        <translation>Téléchargé ou arrêté : %1</translation>
    </message>
    <message>
        <source>InsertErrors(): Couldn't find 'T:' in gText$</source>
        <translation>InsertErrors() : « T: » introuvable dans gText$</translation>
    </message>
    <message>
        <source>(no instrument selected)</source>
        <translation>(aucun appareil choisi)</translation>
    </message>
    <message>
        <source>PQX (the original model)</source>
        <translation>PQX (le modèle d'origine)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>PQX-K4 Auto Select</source>
        <translation>PQX-K4 automatique</translation>
    </message>
    <message>
        <source>PQX-K4-AutoDetect</source>
        <translation>PQX-K4-automatique</translation>
    </message>
    <message>
        <source>The mode letter of the recording could not be read (the header ends before it).</source>
        <translation>La lettre de mode de l'enregistrement n'a pas pu être lue (l'en-tête finit avant elle).</translation>
    </message>
    <message>
        <source>The mode letter of the recording could not be read (%1).</source>
        <translation>La lettre de mode de l'enregistrement n'a pas pu être lue (%1).</translation>
    </message>
    <message>
        <source>What the instrument sent is kept. Which interval and mode did it record with?</source>
        <translation>Ce que l'appareil a envoyé est conservé. Avec quel intervalle et quel mode a-t-il enregistré ?</translation>
    </message>
    <message>
        <source>The recording that was downloaded is in no file.</source>
        <translation>L'enregistrement téléchargé n'est dans aucun fichier.</translation>
    </message>
    <message>
        <source>Save it now?</source>
        <translation>L'enregistrer maintenant ?</translation>
    </message>
    <message>
        <source>Give the recording up? It cannot be got back then.</source>
        <translation>Abandonner l'enregistrement ? Il ne pourra plus être retrouvé.</translation>
    </message>
    <message>
        <source>Invalid Port</source>
        <translation>Port non valide</translation>
    </message>
    <message>
        <source>%1: in use by another program</source>
        <translation>%1 : utilisé par un autre programme</translation>
    </message>
    <message>
        <source>%1: no permission: add yourself to group dialout and log in again</source>
        <translation>%1 : pas de droit : ajoutez-vous au groupe dialout et reconnectez-vous</translation>
    </message>
    <message>
        <source>%1: not there</source>
        <translation>%1 : absent</translation>
    </message>
    <message>
        <source>%1: free</source>
        <translation>%1 : libre</translation>
    </message>
    <message>
        <source>%1 character followed the end mark of the recording.
It may be cut short there: download it again before you initialize the instrument.</source>
        <translation>%1 caractère a suivi la marque de fin de l'enregistrement.
Il peut y être coupé : téléchargez-le à nouveau avant d'initialiser l'appareil.</translation>
    </message>
    <message>
        <source>%1 characters followed the end mark of the recording.
It may be cut short there: download it again before you initialize the instrument.</source>
        <translation>%1 caractères ont suivi la marque de fin de l'enregistrement.
Il peut y être coupé : téléchargez-le à nouveau avant d'initialiser l'appareil.</translation>
    </message>
    <message>
        <source>Bad data. Try downloading again.</source>
        <translation>Données incorrectes. Téléchargez à nouveau.</translation>
    </message>
    <message>
        <source>No was taken: the download was not kept.</source>
        <translation>Réponse Non : le téléchargement n'a pas été conservé.</translation>
    </message>
    <message>
        <source>No date was given: the download was not kept.</source>
        <translation>Aucune date donnée : le téléchargement n'a pas été conservé.</translation>
    </message>
    <message>
        <source>being received</source>
        <translation>en cours de réception</translation>
    </message>
    <message>
        <source>interrupted, not saved</source>
        <translation>interrompu, non enregistré</translation>
    </message>
    <message>
        <source>received, not saved</source>
        <translation>reçu, non enregistré</translation>
    </message>
    <message>
        <source>accepted, not saved yet</source>
        <translation>accepté, pas encore enregistré</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>enregistré</translation>
    </message>
    <message>
        <source>dropped</source>
        <translation>abandonné</translation>
    </message>
    <message>
        <source>download</source>
        <translation>téléchargement</translation>
    </message>
    <message>
        <source>recover</source>
        <translation>récupération</translation>
    </message>
    <message>
        <source>%1 %2 on %3, %4 characters: %5</source>
        <translation>%1 %2 sur %3, %4 caractères : %5</translation>
    </message>
    <message>
        <source>%1 download on %2, %3 characters: %4</source>
        <translation>%1 téléchargement sur %2, %3 caractères : %4</translation>
    </message>
    <message>
        <source>%1 download on %2, %3 Ser. %4, %5 characters: %6</source>
        <translation>%1 téléchargement sur %2, %3 n° %4, %5 caractères : %6</translation>
    </message>
    <message>
        <source>%1 recover on %2, %3 characters: %4</source>
        <translation>%1 récupération sur %2, %3 caractères : %4</translation>
    </message>
    <message>
        <source>%1 recover on %2, %3 Ser. %4, %5 characters: %6</source>
        <translation>%1 récupération sur %2, %3 n° %4, %5 caractères : %6</translation>
    </message>
    <message>
        <source>Flag settings per 'runspec.txt' file:</source>
        <translation>Réglages selon le fichier « runspec.txt » :</translation>
    </message>
    <message>
        <source>No valid run specs found in 'runspec.txt'.
- To avoid getting this message either fix file 'runspec.txt'
or delete it.</source>
        <translation>Aucune indication valable dans « runspec.txt ».
- Pour éviter ce message, corrigez le fichier
ou supprimez-le.</translation>
    </message>
    <message>
        <source>WAITING FOR RESPONSE FROM INSTRUMENT</source>
        <translation>ATTENTE DE LA RÉPONSE DE L'APPAREIL</translation>
    </message>
    <message>
        <source>READY</source>
        <translation>PRÊT</translation>
    </message>
    <message>
        <source>Status check complete. You may disconnect the instrument now.
Do you want to do another?</source>
        <translation>Vérification terminée. Vous pouvez débrancher l'appareil.
Voulez-vous en vérifier un autre ?</translation>
    </message>
    <message>
        <source>Do you want to do another?</source>
        <translation>Voulez-vous en faire un autre ?</translation>
    </message>
    <message>
        <source>By the 2nd timeout, the following incomplete header had been received:
Line1 = '%1'. Length=%2</source>
        <translation>Au 2e dépassement de délai, cet en-tête incomplet avait été reçu :
Ligne 1 = '%1'. Longueur=%2</translation>
    </message>
    <message>
        <source>Invalid header fragment received: '%1'</source>
        <translation>Fragment d'en-tête non valide reçu : '%1'</translation>
    </message>
    <message>
        <source>After the 2nd timeout, the following erroneous Line1 characters had been received:%1</source>
        <translation>Après le 2e dépassement de délai, ces caractères erronés de la ligne 1 avaient été reçus : %1</translation>
    </message>
    <message>
        <source>In TLY.mnuItemStatusCheck_Click: Port found open. So I'll close it.</source>
        <translation>Dans TLY.mnuItemStatusCheck_Click : port trouvé ouvert. Il va être fermé.</translation>
    </message>
    <message>
        <source>Status Check OK but...</source>
        <translation>Vérification correcte, mais...</translation>
    </message>
    <message>
        <source>Type: %1 Serial Number %2</source>
        <translation>Type : %1 Numéro de série %2</translation>
    </message>
    <message>
        <source>Mode setting: %1 Time On: %2 (%3) Condition: %4</source>
        <translation>Mode : %1 En marche depuis : %2 (%3) État : %4</translation>
    </message>
    <message>
        <source>Mode setting: Average %1 min Cont Time On: %2 (%3) Condition: %4</source>
        <translation>Mode : moyenne %1 min en continu En marche depuis : %2 (%3) État : %4</translation>
    </message>
    <message>
        <source>Mode setting: Average %1 min Stop Time On: %2 (%3) Condition: %4</source>
        <translation>Mode : moyenne %1 min arrêt En marche depuis : %2 (%3) État : %4</translation>
    </message>
    <message>
        <source>Mode setting: Min/Max/Avg %1 min Cont Time On: %2 (%3) Condition: %4</source>
        <translation>Mode : min/max/moy. %1 min en continu En marche depuis : %2 (%3) État : %4</translation>
    </message>
    <message>
        <source>Mode setting: Min/Max/Avg %1 min Stop Time On: %2 (%3) Condition: %4</source>
        <translation>Mode : min/max/moy. %1 min arrêt En marche depuis : %2 (%3) État : %4</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En marche</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>HVN 40 and 80 have no mode letter; they record 15-minute averages in a continuous loop.</source>
        <translation>Les HVN 40 et 80 n'ont pas de lettre de mode ; ils enregistrent des moyennes de 15 minutes en boucle continue.</translation>
    </message>
    <message>
        <source>Vbatt = %1 volts</source>
        <translation>Vbatt = %1 volts</translation>
    </message>
    <message>
        <source>Auto-selected settings now being used are for the %1</source>
        <translation>Le réglage choisi automatiquement est celui de %1</translation>
    </message>
    <message>
        <source>Downloaded data has the following error(s):</source>
        <translation>Les données téléchargées ont ces erreurs :</translation>
    </message>
    <message>
        <source>• %1 line(s) with an incorrect number of readings</source>
        <translation>• %1 ligne(s) avec un nombre de mesures incorrect</translation>
    </message>
    <message>
        <source>• %1 reading(s) over 999</source>
        <translation>• %1 mesure(s) au-dessus de 999</translation>
    </message>
    <message>
        <source>• %1 terminating ctrl/z characters found (should be exactly 1)</source>
        <translation>• %1 caractères ctrl/z de fin trouvés (il en faut exactement 1)</translation>
    </message>
    <message>
        <source>• %1 bad character(s)</source>
        <translation>• %1 caractère(s) incorrect(s)</translation>
    </message>
    <message>
        <source>(ASCII value of first bad character = %1)</source>
        <translation>(valeur ASCII du premier caractère incorrect = %1)</translation>
    </message>
    <message>
        <source>Do you want to save this file anyway?
(If you click 'No' you can try another Download.)</source>
        <translation>Voulez-vous enregistrer ce fichier malgré tout ?
(Avec « Non » vous pouvez télécharger à nouveau.)</translation>
    </message>
    <message>
        <source>Download had %1 '999' reading(s)
(which was/were converted to '000')</source>
        <translation>Le téléchargement contenait %1 mesure(s) « 999 »
(converties en « 000 »)</translation>
    </message>
    <message>
        <source>Download had %1 '999' reading(s)
(which was/were left as is)</source>
        <translation>Le téléchargement contenait %1 mesure(s) « 999 »
(laissées telles quelles)</translation>
    </message>
    <message>
        <source>DownLoad</source>
        <translation>Téléchargement</translation>
    </message>
    <message>
        <source>Instrument Properties</source>
        <translation>Propriétés de l'appareil</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>Vitesse (bauds)</translation>
    </message>
    <message>
        <source>Maximum Samples</source>
        <translation>Nombre maximal de mesures</translation>
    </message>
    <message>
        <source>%1 (Special Test)</source>
        <translation>%1 (test spécial)</translation>
    </message>
    <message>
        <source>%1 (Original PQX)</source>
        <translation>%1 (PQX d'origine)</translation>
    </message>
    <message>
        <source>%1 (512 kbit eeprom)</source>
        <translation>%1 (eeprom 512 kbit)</translation>
    </message>
    <message>
        <source>%1 (256 kbit eeprom)</source>
        <translation>%1 (eeprom 256 kbit)</translation>
    </message>
    <message>
        <source>%1 (128 kbit eeprom)</source>
        <translation>%1 (eeprom 128 kbit)</translation>
    </message>
    <message>
        <source>Instrument Selection</source>
        <translation>Choix de l'appareil</translation>
    </message>
    <message>
        <source>Must first select an instrument type:</source>
        <translation>Choisissez d'abord un type d'appareil :</translation>
    </message>
    <message>
        <source>Please select the instrument you're using and then Press OK.</source>
        <translation>Choisissez l'appareil que vous utilisez, puis appuyez sur OK.</translation>
    </message>
    <message>
        <source>None of the above</source>
        <translation>Aucun de ceux-ci</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Com Port Selection</source>
        <translation>Choix du port COM</translation>
    </message>
    <message>
        <source>ComPort</source>
        <translation>Port COM</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Périphérique</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>Attribuer</translation>
    </message>
    <message>
        <source>Assign puts another device behind a port: an adapter, or the simulated instrument.</source>
        <translation>Attribuer place autre chose derrière un port : un adaptateur ou l'appareil simulé.</translation>
    </message>
    <message>
        <source>Assign a device to %1</source>
        <translation>Attribuer un périphérique à %1</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Périphériques</translation>
    </message>
    <message>
        <source>%1 (the usual one)</source>
        <translation>%1 (l'habituel)</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Debugging log:</source>
        <translation>Journal de mise au point :</translation>
    </message>
    <message>
        <source>Debugging log</source>
        <translation>Journal de mise au point</translation>
    </message>
    <message>
        <source>What to check</source>
        <translation>Ce qu'il faut vérifier</translation>
    </message>
    <message>
        <source>Status Check</source>
        <translation>Vérification de l'état</translation>
    </message>
    <message>
        <source>Warning! - This Function will clear
All previous Data from the instrument
Select 'OK' to continue, or 'CANCEL' to abort</source>
        <translation>Attention ! - Cette fonction efface
toutes les données de l'appareil
« OK » pour continuer, « ANNULER » pour abandonner</translation>
    </message>
    <message>
        <source>INITIALIZING...
- May take around 15 seconds

(You can cancel at any time)</source>
        <translation>INITIALISATION...
- Peut durer environ 15 secondes

(Vous pouvez annuler à tout moment)</translation>
    </message>
    <message>
        <source>Initializing erases the instrument. Initialize it anyway?</source>
        <translation>L'initialisation efface l'appareil. L'initialiser malgré tout ?</translation>
    </message>
    <message>
        <source>Instrument is initializing...</source>
        <translation>L'appareil s'initialise...</translation>
    </message>
    <message>
        <source>Initialization is complete, but...</source>
        <translation>L'initialisation est terminée, mais...</translation>
    </message>
    <message>
        <source>interrupted, NOT SAVED YET</source>
        <translation>interrompu, PAS ENCORE ENREGISTRÉ</translation>
    </message>
    <message>
        <source>NOT SAVED YET</source>
        <translation>PAS ENCORE ENREGISTRÉ</translation>
    </message>
    <message>
        <source>interrupted, NOT SAVED YET;</source>
        <translation>interrompu, PAS ENCORE ENREGISTRÉ ;</translation>
    </message>
    <message>
        <source>NOT SAVED YET;</source>
        <translation>PAS ENCORE ENREGISTRÉ ;</translation>
    </message>
    <message>
        <source>saved;</source>
        <translation>enregistré ;</translation>
    </message>
    <message>
        <source>refused;</source>
        <translation>refusé ;</translation>
    </message>
    <message>
        <source>dropped;</source>
        <translation>abandonné ;</translation>
    </message>
    <message>
        <source>%1 more NOT SAVED YET</source>
        <translation>%1 de plus PAS ENCORE ENREGISTRÉS</translation>
    </message>
    <message>
        <source>without number (%1):</source>
        <translation>sans numéro (%1) :</translation>
    </message>
    <message>
        <source>No downloads are known on this computer.</source>
        <translation>Aucun téléchargement n'est connu sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Last downloads:</source>
        <translation>Derniers téléchargements :</translation>
    </message>
    <message>
        <source>A download of this instrument is not saved yet:</source>
        <translation>Un téléchargement de cet appareil n'est pas encore enregistré :</translation>
    </message>
    <message>
        <source>HVN 40 or 80 only have 15 min average, continuoue mode</source>
        <translation>Les HVN 40 ou 80 n'ont que la moyenne de 15 min en continu</translation>
    </message>
    <message>
        <source>Initialization complete. New settings as read back from instrument:</source>
        <translation>Initialisation terminée. Nouveau réglage relu de l'appareil :</translation>
    </message>
    <message>
        <source>Mode setting: Average Cont %1 min interval</source>
        <translation>Mode : moyenne, continu, intervalle %1 min</translation>
    </message>
    <message>
        <source>Mode setting: Average Stop %1 min interval</source>
        <translation>Mode : moyenne, arrêt, intervalle %1 min</translation>
    </message>
    <message>
        <source>Mode setting: Min/Max/Avg Cont %1 min interval</source>
        <translation>Mode : min/max/moy., continu, intervalle %1 min</translation>
    </message>
    <message>
        <source>Mode setting: Min/Max/Avg Stop %1 min interval</source>
        <translation>Mode : min/max/moy., arrêt, intervalle %1 min</translation>
    </message>
    <message>
        <source>Time %1</source>
        <translation>Heure %1</translation>
    </message>
    <message>
        <source>CAUTION
DATA MAY NOT BE RECOVERED IF
INSTRUMENT HAD BEEN IN
CONTINUOUS MODE AND MEMORY FILLED</source>
        <translation>ATTENTION
DONNÉES PEUT-ÊTRE NON RÉCUPÉRABLES
SI L'APPAREIL ÉTAIT EN MODE CONTINU
ET LA MÉMOIRE REMPLIE</translation>
    </message>
    <message>
        <source>OK TO REMOVE THE CABLE NOW</source>
        <translation>VOUS POUVEZ DÉBRANCHER LE CÂBLE</translation>
    </message>
    <message>
        <source>The 'Recover' feature is not implemented for the case of the
instrument type being 'Auto Select'.</source>
        <translation>« Récupérer » n'existe pas pour le
type d'appareil « automatique ».</translation>
    </message>
    <message>
        <source>Instead do a 'Status check' to see what instrument type the Tallyline
ends up treating is as. (It will most likely be %1 or %2.)</source>
        <translation>Vérifiez plutôt l'état pour voir comme quel type d'appareil
Tallyline le traite. (Sans doute %1 ou %2.)</translation>
    </message>
    <message>
        <source>Then use Options &gt; Instrument Selection to specifically select
the type of instrument being used, and the 'Recover' feature will
then be available.</source>
        <translation>Choisissez ensuite précisément ce type sous
Options &gt; Choix de l'appareil, et « Récupérer »
sera disponible.</translation>
    </message>
    <message>
        <source>NOT A VALID INSTRUMENT
REMOVE THE CABLE NOW</source>
        <translation>APPAREIL NON VALABLE
DÉBRANCHEZ LE CÂBLE</translation>
    </message>
    <message>
        <source>Not Voltmeter</source>
        <translation>Pas un voltmètre</translation>
    </message>
    <message>
        <source>CONTINUOUS DATA; NOT RECOVERABLE
CANNOT DETERMINE STOPPED TIME</source>
        <translation>DONNÉES CONTINUES ; NON RÉCUPÉRABLES
HEURE D'ARRÊT INDÉTERMINABLE</translation>
    </message>
    <message>
        <source>The recording was cut short before its end mark: the time at which it stopped cannot be worked out. Recover it again.</source>
        <translation>L'enregistrement a été coupé avant sa marque de fin : l'heure d'arrêt ne peut pas être calculée. Récupérez-le à nouveau.</translation>
    </message>
    <message>
        <source>Terminating the initialization</source>
        <translation>Fin de l'initialisation</translation>
    </message>
    <message>
        <source>Initialize</source>
        <translation>Initialisation</translation>
    </message>
    <message>
        <source>NO REPONSE</source>
        <translation>PAS DE RÉPONSE</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>ANNULER</translation>
    </message>
    <message>
        <source>Initialization Options</source>
        <translation>Options d'initialisation</translation>
    </message>
    <message>
        <source>Select Time</source>
        <translation>Choisir l'intervalle</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15 minutes</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5 minutes</translation>
    </message>
    <message>
        <source>1 minute</source>
        <translation>1 minute</translation>
    </message>
    <message>
        <source>Average or Min/Max/Avg</source>
        <translation>Moyenne ou min/max/moy.</translation>
    </message>
    <message>
        <source>Min/Max/Avg</source>
        <translation>Min/max/moy.</translation>
    </message>
    <message>
        <source>Continuous or Stop</source>
        <translation>Continu ou arrêt</translation>
    </message>
    <message>
        <source>Continuous Loop</source>
        <translation>Boucle continue</translation>
    </message>
    <message>
        <source>Stop when memory full</source>
        <translation>Arrêt quand la mémoire est pleine</translation>
    </message>
    <message>
        <source>Last downloads</source>
        <translation>Derniers téléchargements</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>failed battery recovery</source>
        <translation>récupération après panne de pile</translation>
    </message>
    <message>
        <source>Enter Station Name</source>
        <translation>Saisissez le nom du poste</translation>
    </message>
    <message>
        <source>Station Name</source>
        <translation>Nom du poste</translation>
    </message>
    <message>
        <source>Station Peak</source>
        <translation>Pointe du poste</translation>
    </message>
    <message>
        <source>EnterFeeder Name or use default</source>
        <translation>Nom du départ, ou garder celui proposé</translation>
    </message>
    <message>
        <source>Red Phase</source>
        <translation>Phase rouge</translation>
    </message>
    <message>
        <source>WhitePhase</source>
        <translation>Phase blanche</translation>
    </message>
    <message>
        <source>Blue Phase</source>
        <translation>Phase bleue</translation>
    </message>
    <message>
        <source>File of the red phase</source>
        <translation>Fichier de la phase rouge</translation>
    </message>
    <message>
        <source>File of the white phase</source>
        <translation>Fichier de la phase blanche</translation>
    </message>
    <message>
        <source>File of the blue phase</source>
        <translation>Fichier de la phase bleue</translation>
    </message>
    <message>
        <source>Show Result</source>
        <translation>Afficher le résultat</translation>
    </message>
    <message>
        <source>Show Station Peak</source>
        <translation>Afficher la pointe du poste</translation>
    </message>
    <message>
        <source>PRINT ALL FEEDER RESULTS</source>
        <translation>IMPRIMER TOUS LES DÉPARTS</translation>
    </message>
    <message>
        <source>Preview of all feeder results</source>
        <translation>Aperçu de tous les départs</translation>
    </message>
    <message>
        <source>PRINT STATION PEAK</source>
        <translation>IMPRIMER LA POINTE DU POSTE</translation>
    </message>
    <message>
        <source>Preview of the station peak</source>
        <translation>Aperçu de la pointe du poste</translation>
    </message>
    <message>
        <source>CLOSE WINDOW</source>
        <translation>FERMER LA FENÊTRE</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>RÉSULTAT</translation>
    </message>
    <message>
        <source>NEXT FEEDER</source>
        <translation>DÉPART SUIVANT</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Feeder%1</source>
        <translation>Départ%1</translation>
    </message>
    <message>
        <source>TARNWELL STATION FEEDER REPORT</source>
        <translation>TARNWELL STATION FEEDER REPORT</translation>
    </message>
    <message>
        <source>FEEDER AMPS DURING FEEDER PEAK (NON-COINCIDENTAL)</source>
        <translation>COURANTS DES DÉPARTS À LEUR POINTE (NON SIMULTANÉE)</translation>
    </message>
    <message>
        <source>Feeder Phase Amps During Station Peak (Coincidental Peak)</source>
        <translation>Courants de phase des départs à la pointe du poste (pointe simultanée)</translation>
    </message>
    <message>
        <source>STATION NAME: %1</source>
        <translation>NOM DU POSTE : %1</translation>
    </message>
    <message>
        <source>STATION: %1</source>
        <translation>POSTE : %1</translation>
    </message>
    <message>
        <source>Station: %1</source>
        <translation>Poste : %1</translation>
    </message>
    <message>
        <source>Feeder %1</source>
        <translation>Départ %1</translation>
    </message>
    <message>
        <source>Feeder Amperes During Feeder Peak (Non-Coincidental Peak)</source>
        <translation>Courants du départ à sa pointe (pointe non simultanée)</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 is also taken for %4, %5 phase</source>
        <translation>%1, phase %2 : %3 est aussi pris pour %4, phase %5</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 has %4 item(s) that are no numbers; each counts with its leading number, or 0</source>
        <translation>%1, phase %2 : %3 a %4 élément(s) qui ne sont pas des nombres ; chacun compte pour le nombre par lequel il commence, sinon 0</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 starts at %4, %5 at %6</source>
        <translation>%1, phase %2 : %3 commence à %4, %5 à %6</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 has %4 readings, %5 %6; the shortest count is scanned</source>
        <translation>%1, phase %2 : %3 a %4 mesures, %5 %6 ; le plus petit nombre est retenu</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rouge</translation>
    </message>
    <message>
        <source>white</source>
        <translation>blanche</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>bleue</translation>
    </message>
    <message>
        <source>%1: Mode mixing not allowed. Choose a file of the mode of %2.</source>
        <translation>%1 : mélange de modes interdit. Choisissez un fichier du mode de %2.</translation>
    </message>
    <message>
        <source>Not a current file</source>
        <translation>Pas un fichier de courant</translation>
    </message>
    <message>
        <source>It is a recording of voltage. Choose the recording of the phase's current.</source>
        <translation>C'est un enregistrement de tension. Choisissez l'enregistrement du courant de la phase.</translation>
    </message>
    <message>
        <source>%1: a recording of voltage. Choose the recording of the phase's current.</source>
        <translation>%1 : un enregistrement de tension. Choisissez l'enregistrement du courant de la phase.</translation>
    </message>
    <message>
        <source>Load study</source>
        <translation>Étude de charge</translation>
    </message>
    <message>
        <source>Copy Figures</source>
        <translation>Copier les chiffres</translation>
    </message>
    <message>
        <source>Copy all figures as text</source>
        <translation>Copier tous les chiffres comme texte</translation>
    </message>
    <message>
        <source>Picture...</source>
        <translation>Image...</translation>
    </message>
    <message>
        <source>Save the page as a PNG picture</source>
        <translation>Enregistrer la page comme image PNG</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimer...</translation>
    </message>
    <message>
        <source>Print the study</source>
        <translation>Imprimer l'étude</translation>
    </message>
    <message>
        <source>Save the study as PDF</source>
        <translation>Enregistrer l'étude en PDF</translation>
    </message>
    <message>
        <source>Save figures and readings as a workbook</source>
        <translation>Enregistrer chiffres et mesures dans un classeur</translation>
    </message>
    <message>
        <source>Demand window in minutes</source>
        <translation>Fenêtre de demande en minutes</translation>
    </message>
    <message>
        <source>&amp;Window, min</source>
        <translation>&amp;Fenêtre, min</translation>
    </message>
    <message>
        <source>&amp;High limit</source>
        <translation>Limite &amp;haute</translation>
    </message>
    <message>
        <source>Runs of readings above it are marked and listed</source>
        <translation>Les suites de mesures au-dessus sont marquées et listées</translation>
    </message>
    <message>
        <source>&amp;Low limit</source>
        <translation>Limite &amp;basse</translation>
    </message>
    <message>
        <source>Runs of readings below it are marked and listed</source>
        <translation>Les suites de mesures en dessous sont marquées et listées</translation>
    </message>
    <message>
        <source>&amp;Rating, A</source>
        <translation>Courant &amp;nominal, A</translation>
    </message>
    <message>
        <source>Rated current of the circuit: checks its capacity</source>
        <translation>Courant nominal du circuit : vérifie sa capacité</translation>
    </message>
    <message>
        <source>&amp;New load, A</source>
        <translation>Charge a&amp;joutée, A</translation>
    </message>
    <message>
        <source>Load to be connected</source>
        <translation>Charge à raccorder</translation>
    </message>
    <message>
        <source>&amp;Factor</source>
        <translation>Fac&amp;teur</translation>
    </message>
    <message>
        <source>On the highest demand of 15 minutes; 1.25 when empty</source>
        <translation>Sur la plus forte demande de 15 minutes ; 1.25 si vide</translation>
    </message>
    <message>
        <source>Line &amp;voltage, V</source>
        <translation>&amp;Tension, V</translation>
    </message>
    <message>
        <source>Adds the power of the files as a channel</source>
        <translation>Ajoute la puissance des fichiers comme voie</translation>
    </message>
    <message>
        <source>&amp;Power factor</source>
        <translation>Facteur de &amp;puissance</translation>
    </message>
    <message>
        <source>1 when empty</source>
        <translation>1 si vide</translation>
    </message>
    <message>
        <source>H&amp;olidays</source>
        <translation>Jours f&amp;ériés</translation>
    </message>
    <message>
        <source>Dates as YYYY-MM-DD that count as Sundays</source>
        <translation>Dates AAAA-MM-JJ qui comptent comme dimanches</translation>
    </message>
    <message>
        <source>%1: '%2' is no plain number</source>
        <translation>%1 : « %2 » n'est pas un nombre simple</translation>
    </message>
    <message>
        <source>%1: '%2' is not above 0</source>
        <translation>%1 : « %2 » n'est pas supérieur à 0</translation>
    </message>
    <message>
        <source>%1: '%2' is below 0</source>
        <translation>%1 : « %2 » est inférieur à 0</translation>
    </message>
    <message>
        <source>%1: '%2' needs a %3</source>
        <translation>%1 : « %2 » demande aussi %3</translation>
    </message>
    <message>
        <source>%1: '%2' is none of 5, 10, 15, 20, 30 and 60 minutes</source>
        <translation>%1 : « %2 » n'est pas 5, 10, 15, 20, 30 ou 60 minutes</translation>
    </message>
    <message>
        <source>%1: '%2' is not above the low limit</source>
        <translation>%1 : « %2 » n'est pas au-dessus de la limite basse</translation>
    </message>
    <message>
        <source>%1: '%2' is no date; write it as YYYY-MM-DD</source>
        <translation>%1 : « %2 » n'est pas une date ; écrivez AAAA-MM-JJ</translation>
    </message>
    <message>
        <source>'%1' is no plain number</source>
        <translation>« %1 » n'est pas un nombre simple</translation>
    </message>
    <message>
        <source>'%1' is not above 0</source>
        <translation>« %1 » n'est pas supérieur à 0</translation>
    </message>
    <message>
        <source>'%1' is below 0</source>
        <translation>« %1 » est inférieur à 0</translation>
    </message>
    <message>
        <source>'%1' needs a rating</source>
        <translation>« %1 » demande aussi un courant nominal</translation>
    </message>
    <message>
        <source>'%1' needs a voltage</source>
        <translation>« %1 » demande aussi une tension</translation>
    </message>
    <message>
        <source>'%1' is none of 5, 10, 15, 20, 30 and 60 minutes</source>
        <translation>« %1 » n'est pas 5, 10, 15, 20, 30 ou 60 minutes</translation>
    </message>
    <message>
        <source>'%1' is not above the low limit</source>
        <translation>« %1 » n'est pas au-dessus de la limite basse</translation>
    </message>
    <message>
        <source>'%1' is no date; write it as YYYY-MM-DD</source>
        <translation>« %1 » n'est pas une date ; écrivez AAAA-MM-JJ</translation>
    </message>
    <message>
        <source>A capacity check needs files of amps</source>
        <translation>Une vérification de capacité demande des fichiers en ampères</translation>
    </message>
    <message>
        <source>Directory</source>
        <translation>Répertoire</translation>
    </message>
    <message>
        <source>Drop-down</source>
        <translation>Liste déroulante</translation>
    </message>
    <message>
        <source>There are no readings after its header.</source>
        <translation>Aucune mesure ne vient après son en-tête.</translation>
    </message>
    <message>
        <source>An axis is given as two numbers, the lower one first, such as 0 to 400.</source>
        <translation>Un axe se donne par deux nombres, le plus petit d'abord, comme 0 to 400.</translation>
    </message>
    <message>
        <source>The axis stays as it was.</source>
        <translation>L'axe reste comme il était.</translation>
    </message>
    <message>
        <source>A limit line begins with its value, such as 400 Rating.</source>
        <translation>Une ligne de limite commence par sa valeur, comme 400 Rating.</translation>
    </message>
    <message>
        <source>The limit lines stay as they were.</source>
        <translation>Les lignes de limite restent comme elles étaient.</translation>
    </message>
    <message>
        <source>Minimum and maximum of the y axis, such as 0 to 400
Nothing lets the readings decide</source>
        <translation>Minimum et maximum de l'axe y, comme 0 to 400
Rien laisse les mesures décider</translation>
    </message>
    <message>
        <source>Limit lines, each a value and a name, such as 400 Rating; 320 Planning
Nothing takes them away</source>
        <translation>Lignes de limite, chacune une valeur et un nom, comme 400 Rating; 320 Planning
Rien les retire</translation>
    </message>
    <message>
        <source>Axis fixed at %1 to %2 %3</source>
        <translation>Axe fixé de %1 à %2 %3</translation>
    </message>
    <message>
        <source>Readings are combined by time, %1 to %2</source>
        <translation>Les mesures sont combinées par heure, de %1 à %2</translation>
    </message>
    <message>
        <source>Readings are combined by time, %1 to %2.</source>
        <translation>Les mesures sont combinées par heure, de %1 à %2.</translation>
    </message>
    <message>
        <source>no reading</source>
        <translation>pas de mesure</translation>
    </message>
    <message>
        <source>%1: %2 items of the file could not be read</source>
        <translation>%1 : %2 éléments du fichier n'ont pas pu être lus</translation>
    </message>
    <message>
        <source>%1: %2 item of the file could not be read</source>
        <translation>%1 : %2 élément du fichier n'a pas pu être lu</translation>
    </message>
    <message>
        <source>%1 has %2 of %3 readings</source>
        <translation>%1 a %2 mesures sur %3</translation>
    </message>
    <message>
        <source>%1 has no reading for the last %2; its current counts as 0 there</source>
        <translation>%1 n'a pas de mesure pour les %2 derniers ; son courant y compte pour 0</translation>
    </message>
    <message>
        <source>%1 to %2 (%3, %4 readings)</source>
        <translation>%1 à %2 (%3, %4 mesures)</translation>
    </message>
    <message>
        <source>%1 to %2 (%3, %4 reading)</source>
        <translation>%1 à %2 (%3, %4 mesure)</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Chiffres</translation>
    </message>
    <message>
        <source>Figures of the marked span</source>
        <translation>Chiffres de la partie marquée</translation>
    </message>
    <message>
        <source>Figures of the span</source>
        <translation>Chiffres de la partie</translation>
    </message>
    <message>
        <source>Span</source>
        <translation>Partie</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>&amp;Copy figures</source>
        <translation>&amp;Copier les chiffres</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>It took the place of an earlier file.</source>
        <translation>Il a remplacé un fichier antérieur.</translation>
    </message>
    <message>
        <source>Not a current file
It is a recording of voltage. Choose the recording of the phase's current.</source>
        <translation>Pas un fichier de courant
C'est un enregistrement de tension. Choisissez l'enregistrement du courant de la phase.</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 has %4 items that can be read as no number; each counts with its leading number, or 0</source>
        <translation>%1, phase %2 : %3 a %4 éléments qui ne se lisent pas comme nombres ; chacun compte pour le nombre par lequel il commence, sinon 0</translation>
    </message>
    <message>
        <source>%1, %2 phase: %3 has %4 item that can be read as no number; each counts with its leading number, or 0</source>
        <translation>%1, phase %2 : %3 a %4 élément qui ne se lit pas comme nombre ; il compte pour le nombre par lequel il commence, sinon 0</translation>
    </message>
    <message>
        <source>%1 item of the file could not be read as numbers; each counts with its leading number, or 0</source>
        <translation>%1 élément du fichier n'est pas un nombre ; il compte pour le nombre par lequel il commence, sinon 0</translation>
    </message>
    <message>
        <source>&amp;Align by Time</source>
        <translation>&amp;Aligner par heure</translation>
    </message>
    <message>
        <source>Put files side by side by time instead of reading by reading</source>
        <translation>Placer les fichiers côte à côte par heure plutôt que mesure par mesure</translation>
    </message>
    <message>
        <source>Combine by number</source>
        <translation>Combiner par numéro</translation>
    </message>
    <message>
        <source>Align by time</source>
        <translation>Aligner par heure</translation>
    </message>
    <message>
        <source>&amp;Chart</source>
        <translation>Grap&amp;hique</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Précédente</translation>
    </message>
    <message>
        <source>Show the range that was shown before</source>
        <translation>Afficher la plage précédente</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Suivante</translation>
    </message>
    <message>
        <source>Show the range again that was left by Back</source>
        <translation>Réafficher la plage quittée par Précédente</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>Tout a&amp;fficher</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Aller</translation>
    </message>
    <message>
        <source>Previous &amp;Day</source>
        <translation>&amp;Jour précédent</translation>
    </message>
    <message>
        <source>Show the day before</source>
        <translation>Afficher le jour d'avant</translation>
    </message>
    <message>
        <source>&amp;Next Day</source>
        <translation>Jour suiva&amp;nt</translation>
    </message>
    <message>
        <source>Show the day after</source>
        <translation>Afficher le jour d'après</translation>
    </message>
    <message>
        <source>Previous &amp;Week</source>
        <translation>&amp;Semaine précédente</translation>
    </message>
    <message>
        <source>Show the week before, from Monday</source>
        <translation>Afficher la semaine d'avant, à partir du lundi</translation>
    </message>
    <message>
        <source>Next W&amp;eek</source>
        <translation>Semaine s&amp;uivante</translation>
    </message>
    <message>
        <source>Show the week after, from Monday</source>
        <translation>Afficher la semaine d'après, à partir du lundi</translation>
    </message>
    <message>
        <source>Previous &amp;Month</source>
        <translation>&amp;Mois précédent</translation>
    </message>
    <message>
        <source>Show the month before</source>
        <translation>Afficher le mois d'avant</translation>
    </message>
    <message>
        <source>Next M&amp;onth</source>
        <translation>M&amp;ois suivant</translation>
    </message>
    <message>
        <source>Show the month after</source>
        <translation>Afficher le mois d'après</translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translation>&amp;Regarder</translation>
    </message>
    <message>
        <source>&amp;Enlarge</source>
        <translation>A&amp;grandir</translation>
    </message>
    <message>
        <source>Look closer; the range stays</source>
        <translation>Regarder de plus près ; la plage reste</translation>
    </message>
    <message>
        <source>&amp;Reduce</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>Look from farther away</source>
        <translation>Regarder de plus loin</translation>
    </message>
    <message>
        <source>&amp;Whole Picture</source>
        <translation>Image &amp;entière</translation>
    </message>
    <message>
        <source>See the whole of the displayed range</source>
        <translation>Voir toute la plage affichée</translation>
    </message>
    <message>
        <source>&amp;Box</source>
        <translation>&amp;Cadre</translation>
    </message>
    <message>
        <source>Draw a box on the chart that is then looked at closely</source>
        <translation>Tracer un cadre sur le graphique, montré ensuite de près</translation>
    </message>
    <message>
        <source>Ear&amp;lier</source>
        <translation>&amp;Plus tôt</translation>
    </message>
    <message>
        <source>Move the picture to the left</source>
        <translation>Déplacer l'image vers la gauche</translation>
    </message>
    <message>
        <source>La&amp;ter</source>
        <translation>Plus &amp;tard</translation>
    </message>
    <message>
        <source>Move the picture to the right</source>
        <translation>Déplacer l'image vers la droite</translation>
    </message>
    <message>
        <source>&amp;Lines</source>
        <translation>&amp;Lignes</translation>
    </message>
    <message>
        <source>Line &amp;1</source>
        <translation>Ligne &amp;1</translation>
    </message>
    <message>
        <source>Line &amp;2</source>
        <translation>Ligne &amp;2</translation>
    </message>
    <message>
        <source>Line &amp;3</source>
        <translation>Ligne &amp;3</translation>
    </message>
    <message>
        <source>Line &amp;1: %1</source>
        <translation>Ligne &amp;1 : %1</translation>
    </message>
    <message>
        <source>Line &amp;2: %1</source>
        <translation>Ligne &amp;2 : %1</translation>
    </message>
    <message>
        <source>Line &amp;3: %1</source>
        <translation>Ligne &amp;3 : %1</translation>
    </message>
    <message>
        <source>Line 1</source>
        <translation>Ligne 1</translation>
    </message>
    <message>
        <source>Line 2</source>
        <translation>Ligne 2</translation>
    </message>
    <message>
        <source>Line 3</source>
        <translation>Ligne 3</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>Hide or show this line</source>
        <translation>Masquer ou afficher cette ligne</translation>
    </message>
    <message>
        <source>Span F&amp;igures</source>
        <translation>Chiffr&amp;es de la partie</translation>
    </message>
    <message>
        <source>Differences, extremes, mean and energy of the marked span</source>
        <translation>Différences, extrêmes, moyenne et énergie de la partie marquée</translation>
    </message>
    <message>
        <source>Fi&amp;xed Axis...</source>
        <translation>A&amp;xe fixe...</translation>
    </message>
    <message>
        <source>Set both ends of the y axis until they are set otherwise</source>
        <translation>Fixer les deux bouts de l'axe y jusqu'à nouvel ordre</translation>
    </message>
    <message>
        <source>Li&amp;mit Lines...</source>
        <translation>Lignes de li&amp;mite...</translation>
    </message>
    <message>
        <source>Draw ratings across the plot</source>
        <translation>Tracer des valeurs nominales à travers la courbe</translation>
    </message>
    <message>
        <source>&amp;Picture...</source>
        <translation>&amp;Image...</translation>
    </message>
    <message>
        <source>&amp;Save Chart...</source>
        <translation>Enre&amp;gistrer le graphique...</translation>
    </message>
    <message>
        <source>&amp;Copy Ctrl+C</source>
        <translation>&amp;Copier	Ctrl+C</translation>
    </message>
    <message>
        <source>Copy what is shown</source>
        <translation>Copier ce qui est affiché</translation>
    </message>
    <message>
        <source>Pre&amp;view...</source>
        <translation>Aperç&amp;u...</translation>
    </message>
    <message>
        <source>Show how the page will be printed</source>
        <translation>Montrer comment la page sera imprimée</translation>
    </message>
    <message>
        <source>Views</source>
        <translation>Vues</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <source>The readings of a file</source>
        <translation>Les mesures d'un fichier</translation>
    </message>
    <message>
        <source>The facts of a file</source>
        <translation>Les données d'un fichier</translation>
    </message>
    <message>
        <source>Kilowatts of the open files</source>
        <translation>Kilowatts des fichiers ouverts</translation>
    </message>
    <message>
        <source>There are no readings after this.</source>
        <translation>Il n'y a pas de mesures après.</translation>
    </message>
    <message>
        <source>There are no readings before this.</source>
        <translation>Il n'y a pas de mesures avant.</translation>
    </message>
    <message>
        <source>The y axis can begin at a whole number from -32768 to 32767.</source>
        <translation>L'axe y peut commencer à un nombre entier de -32768 à 32767.</translation>
    </message>
    <message>
        <source>%1 of at most %2 characters, about %3 s left</source>
        <translation>%1 caractères sur au plus %2, encore environ %3 s</translation>
    </message>
    <message>
        <source>%1: %2, serial number %3, Vbatt = %4 volts</source>
        <translation>%1 : %2, numéro de série %3, Vbatt = %4 volts</translation>
    </message>
    <message>
        <source>%1: %2, serial number %3, Vbatt = %4 volts, LOW BATTERY</source>
        <translation>%1 : %2, numéro de série %3, Vbatt = %4 volts, PILE FAIBLE</translation>
    </message>
    <message>
        <source>%1: %2, serial number %3</source>
        <translation>%1 : %2, numéro de série %3</translation>
    </message>
    <message>
        <source>%1: Resetting the interface. (Takes about 5 seconds)...</source>
        <translation>%1 : remise à zéro de l'interface. (Environ 5 secondes)...</translation>
    </message>
    <message>
        <source>%1: Listening at %2 baud...</source>
        <translation>%1 : écoute à %2 bauds...</translation>
    </message>
    <message>
        <source>Leave the cable in the instrument, and a transfer switch at TRANSFER.
Nothing is sent to any port. A port takes about 10 seconds.</source>
        <translation>Laissez le câble sur l'appareil et un commutateur sur TRANSFER.
Rien n'est envoyé à aucun port. Un port prend environ 10 secondes.</translation>
    </message>
    <message>
        <source>No instrument was heard. Check that its cable sits firmly at both ends and that a transfer switch is set to TRANSFER, and search again.</source>
        <translation>Aucun appareil n'a été entendu. Vérifiez que son câble tient bien aux deux bouts et qu'un commutateur est sur TRANSFER, puis cherchez à nouveau.</translation>
    </message>
    <message>
        <source>One instrument was heard.</source>
        <translation>Un appareil a été entendu.</translation>
    </message>
    <message>
        <source>%1 instruments were heard.</source>
        <translation>%1 appareils ont été entendus.</translation>
    </message>
    <message>
        <source>No instrument was heard on an adapter. Listen on these ports too?</source>
        <translation>Aucun appareil n'a été entendu sur un adaptateur. Écouter aussi sur ces ports ?</translation>
    </message>
    <message>
        <source>Nothing is sent, but whatever is plugged in there sees its port being opened.</source>
        <translation>Rien n'est envoyé, mais ce qui y est branché voit son port s'ouvrir.</translation>
    </message>
    <message>
        <source>Find Instrument</source>
        <translation>Chercher un appareil</translation>
    </message>
    <message>
        <source>&amp;Find Instrument</source>
        <translation>&amp;Chercher un appareil</translation>
    </message>
    <message>
        <source>Find instrument</source>
        <translation>Chercher un appareil</translation>
    </message>
    <message>
        <source>Listen on all adapters for an instrument</source>
        <translation>Écouter sur tous les adaptateurs</translation>
    </message>
    <message>
        <source>Instruments that were heard</source>
        <translation>Appareils entendus</translation>
    </message>
    <message>
        <source>The memory lasts %1, until %2; then the recording stops.</source>
        <translation>La mémoire dure %1, jusqu'au %2 ; ensuite l'enregistrement s'arrête.</translation>
    </message>
    <message>
        <source>The memory lasts %1, until %2; then the oldest readings are overwritten.</source>
        <translation>La mémoire dure %1, jusqu'au %2 ; ensuite les mesures les plus anciennes sont écrasées.</translation>
    </message>
    <message>
        <source>The memory lasts %1 days and %2 hours, until %3; then the recording stops.</source>
        <translation>La mémoire dure %1 jours et %2 heures, jusqu'au %3 ; ensuite l'enregistrement s'arrête.</translation>
    </message>
    <message>
        <source>The memory lasts %1 days and %2 hours, until %3; then the oldest readings are overwritten.</source>
        <translation>La mémoire dure %1 jours et %2 heures, jusqu'au %3 ; ensuite les mesures les plus anciennes sont écrasées.</translation>
    </message>
    <message>
        <source>How long the memory lasts</source>
        <translation>Combien de temps dure la mémoire</translation>
    </message>
    <message>
        <source>Listens on every free adapter, at both rates.</source>
        <translation>Écoute sur chaque adaptateur libre, aux deux vitesses.</translation>
    </message>
    <message>
        <source>Try the simulated instrument</source>
        <translation>Essayer l'appareil simulé</translation>
    </message>
    <message>
        <source>Sets it up and downloads from it.</source>
        <translation>Le prépare et télécharge depuis lui.</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Fichiers récents</translation>
    </message>
    <message>
        <source>Not saved yet (see the notices above):</source>
        <translation>Pas encore enregistré (voir les avis ci-dessus) :</translation>
    </message>
    <message>
        <source>Arc&amp;hive...</source>
        <translation>A&amp;rchive...</translation>
    </message>
    <message>
        <source>Search all recordings that were ever kept</source>
        <translation>Chercher dans tous les enregistrements conservés</translation>
    </message>
    <message>
        <source>Search the archive</source>
        <translation>Chercher dans l'archive</translation>
    </message>
    <message>
        <source>Every recording that was kept, by circuit, serial number, note or date.</source>
        <translation>Chaque enregistrement conservé, par circuit, numéro de série, note ou date.</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>A&amp;rrêter</translation>
    </message>
    <message>
        <source>Progress of the adding</source>
        <translation>Progression de l'ajout</translation>
    </message>
    <message>
        <source>What was added so far stays; adding again goes on from there</source>
        <translation>Ce qui a été ajouté reste ; un nouvel ajout continue de là</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Arrêt...</translation>
    </message>
    <message>
        <source>Opening the archive...</source>
        <translation>Ouverture de l'archive...</translation>
    </message>
    <message>
        <source>%1 recording(s) written into %2</source>
        <translation>%1 enregistrement(s) écrit(s) dans %2</translation>
    </message>
    <message>
        <source>(the password comes from the password file)</source>
        <translation>(le mot de passe vient du fichier de mots de passe)</translation>
    </message>
    <message>
        <source>Place of the Archive</source>
        <translation>Emplacement de l'archive</translation>
    </message>
    <message>
        <source>Three recordings can be open at a time; %1 are chosen.</source>
        <translation>Trois enregistrements peuvent être ouverts à la fois ; %1 sont choisis.</translation>
    </message>
    <message>
        <source>Folder for the Data Files</source>
        <translation>Dossier des fichiers de données</translation>
    </message>
    <message>
        <source>%1 recording(s) are no longer in the archive.</source>
        <translation>%1 enregistrement(s) ne sont plus dans l'archive.</translation>
    </message>
    <message>
        <source>Add Data Files</source>
        <translation>Ajouter des fichiers de données</translation>
    </message>
    <message>
        <source>Add a Folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>&amp;Downloads and saves go in by themselves</source>
        <translation>Les &amp;téléchargements et enregistrements y entrent d'eux-mêmes</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>Archive - Tallyline</source>
        <translation>Archive - Tallyline</translation>
    </message>
    <message>
        <source>&amp;Recordings</source>
        <translation>&amp;Enregistrements</translation>
    </message>
    <message>
        <source>&amp;Calendar</source>
        <translation>&amp;Calendrier</translation>
    </message>
    <message>
        <source>&amp;Growth</source>
        <translation>Cr&amp;oissance</translation>
    </message>
    <message>
        <source>Add &amp;Files...</source>
        <translation>Ajouter des &amp;fichiers...</translation>
    </message>
    <message>
        <source>Keep data files and their notes in the archive</source>
        <translation>Garder des fichiers de données et leurs notes dans l'archive</translation>
    </message>
    <message>
        <source>Add F&amp;older...</source>
        <translation>Ajouter un &amp;dossier...</translation>
    </message>
    <message>
        <source>Keep all data files of a folder and of the folders below it</source>
        <translation>Garder tous les fichiers de données d'un dossier et de ses sous-dossiers</translation>
    </message>
    <message>
        <source>Pla&amp;ce...</source>
        <translation>Em&amp;placement...</translation>
    </message>
    <message>
        <source>Use another archive</source>
        <translation>Utiliser une autre archive</translation>
    </message>
    <message>
        <source>Open up to three recordings in the main window</source>
        <translation>Ouvrir jusqu'à trois enregistrements dans la fenêtre principale</translation>
    </message>
    <message>
        <source>Open up to three recordings and study them</source>
        <translation>Ouvrir jusqu'à trois enregistrements et les étudier</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>E&amp;xporter...</translation>
    </message>
    <message>
        <source>Write the data files and notes of the chosen recordings into a folder</source>
        <translation>Écrire les fichiers de données et les notes des enregistrements choisis dans un dossier</translation>
    </message>
    <message>
        <source>&amp;Assign...</source>
        <translation>&amp;Attribuer...</translation>
    </message>
    <message>
        <source>Correct station and circuit of the chosen recordings</source>
        <translation>Corriger poste et circuit des enregistrements choisis</translation>
    </message>
    <message>
        <source>Print &amp;List...</source>
        <translation>Imprimer la &amp;liste...</translation>
    </message>
    <message>
        <source>Print the chosen recordings as a list, or all that are shown</source>
        <translation>Imprimer la liste des enregistrements choisis, ou de tous ceux affichés</translation>
    </message>
    <message>
        <source>Recordings are still being added to the archive.
Stop? What was added so far stays; adding again goes on from there.</source>
        <translation>Des enregistrements sont encore en cours d'ajout à l'archive.
Arrêter ? Ce qui a été ajouté reste ; un nouvel ajout continue de là.</translation>
    </message>
    <message>
        <source>%1 recording(s), %2 circuit(s)</source>
        <translation>%1 enregistrement(s), %2 circuit(s)</translation>
    </message>
    <message>
        <source>%1 recording(s), %2 circuit(s), %3 to %4</source>
        <translation>%1 enregistrement(s), %2 circuit(s), de %3 à %4</translation>
    </message>
    <message>
        <source>More than %1 recordings; the first %1 are shown. Narrow the search.</source>
        <translation>Plus de %1 enregistrements ; les %1 premiers sont affichés. Restreignez la recherche.</translation>
    </message>
    <message>
        <source>%1 recording(s)</source>
        <translation>%1 enregistrement(s)</translation>
    </message>
    <message>
        <source>No recording is found</source>
        <translation>Aucun enregistrement trouvé</translation>
    </message>
    <message>
        <source>The archive is empty. Add files, or a folder of recordings.</source>
        <translation>L'archive est vide. Ajoutez des fichiers ou un dossier d'enregistrements.</translation>
    </message>
    <message>
        <source>Make an Archive Here</source>
        <translation>Créer une archive ici</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Other Place...</source>
        <translation>Autre emplacement...</translation>
    </message>
    <message>
        <source>The archive cannot be used now.</source>
        <translation>L'archive n'est pas utilisable maintenant.</translation>
    </message>
    <message>
        <source>%1 recording(s) get this station and circuit.
The files themselves are not altered; without an assignment the names are those of the notes.</source>
        <translation>%1 enregistrement(s) reçoivent ce poste et ce circuit.
Les fichiers eux-mêmes ne changent pas ; sans attribution, les noms sont ceux des notes.</translation>
    </message>
    <message>
        <source>&amp;Station</source>
        <translation>&amp;Poste</translation>
    </message>
    <message>
        <source>&amp;Circuit</source>
        <translation>&amp;Circuit</translation>
    </message>
    <message>
        <source>Calendar of coverage</source>
        <translation>Calendrier de couverture</translation>
    </message>
    <message>
        <source>%1 days</source>
        <translation>%1 jours</translation>
    </message>
    <message>
        <source>Peak and mean by year</source>
        <translation>Pointe et moyenne par année</translation>
    </message>
    <message>
        <source>Growth by year</source>
        <translation>Croissance par année</translation>
    </message>
    <message>
        <source>Choose a recording in the list: the growth of its circuit is shown here.</source>
        <translation>Choisissez un enregistrement dans la liste : la croissance de son circuit s'affiche ici.</translation>
    </message>
    <message>
        <source>%1: %2 recording(s)</source>
        <translation>%1 : %2 enregistrement(s)</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>Search words</source>
        <translation>Mots cherchés</translation>
    </message>
    <message>
        <source>Words of station, circuit, serial number, notes, file or folder</source>
        <translation>Mots de poste, circuit, numéro de série, notes, fichier ou dossier</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Amperes and volts</source>
        <translation>Ampères et volts</translation>
    </message>
    <message>
        <source>Amperes</source>
        <translation>Ampères</translation>
    </message>
    <message>
        <source>Volts</source>
        <translation>Volts</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Chercher</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;De</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;À</translation>
    </message>
    <message>
        <source>A day, a month or a year: 2009-03-15, 2009-03 or 2009</source>
        <translation>Un jour, un mois ou une année : 2009-03-15, 2009-03 ou 2009</translation>
    </message>
    <message>
        <source>(from the archive)</source>
        <translation>(de l'archive)</translation>
    </message>
    <message>
        <source>data files</source>
        <translation>fichiers de données</translation>
    </message>
    <message>
        <source>chart files</source>
        <translation>fichiers de graphique</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>image PNG</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>fichiers PDF</translation>
    </message>
    <message>
        <source>The recovered data has the following error(s):</source>
        <translation>Les données récupérées ont ces erreurs :</translation>
    </message>
    <message>
        <source>• %1 reading(s) that are no numbers</source>
        <translation>• %1 mesure(s) qui ne sont pas des nombres</translation>
    </message>
    <message>
        <source>The time at which it stopped is worked out from the number of readings.
Recover it again before you initialize the instrument.</source>
        <translation>L'heure d'arrêt est calculée à partir du nombre de mesures.
Récupérez à nouveau avant d'initialiser l'appareil.</translation>
    </message>
    <message>
        <source>Mode setting: FAIL; value is %1 ; invalid Time On: %2 (%3) Condition:</source>
        <translation>Mode : ERREUR ; valeur %1 ; non valable En marche depuis : %2 (%3) État :</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Readings...</source>
        <translation>&amp;Mesures...</translation>
    </message>
    <message>
        <source>Write readings, columns and range as you choose, for a spreadsheet</source>
        <translation>Écrire mesures, colonnes et plage au choix pour un tableur</translation>
    </message>
    <message>
        <source>Export Readings</source>
        <translation>Exporter les mesures</translation>
    </message>
    <message>
        <source>Everything: %1 readings, %2 to %3</source>
        <translation>Tout : %1 mesures, du %2 au %3</translation>
    </message>
    <message>
        <source>Everything: %1 reading, %2 to %3</source>
        <translation>Tout : %1 mesure, du %2 au %3</translation>
    </message>
    <message>
        <source>What is shown: %1 readings, %2 to %3</source>
        <translation>Ce qui est affiché : %1 mesures, du %2 au %3</translation>
    </message>
    <message>
        <source>What is shown: %1 reading, %2 to %3</source>
        <translation>Ce qui est affiché : %1 mesure, du %2 au %3</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Plage</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Te&amp;xt for any spreadsheet (CSV)</source>
        <translation>Te&amp;xte pour tout tableur (CSV)</translation>
    </message>
    <message>
        <source>&amp;Workbook with a chart (XLSX)</source>
        <translation>&amp;Classeur avec graphique (XLSX)</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgule</translation>
    </message>
    <message>
        <source>Semicolon</source>
        <translation>Point-virgule</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tabulation</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>Se&amp;parator</source>
        <translation>Sé&amp;parateur</translation>
    </message>
    <message>
        <source>&amp;Decimal sign</source>
        <translation>Signe &amp;décimal</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Heure</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Enregistrer sous...</translation>
    </message>
    <message>
        <source>%1 saved OK
It took the place of an earlier file.</source>
        <translation>%1 enregistré
Il remplace un fichier antérieur.</translation>
    </message>
    <message>
        <source>Workbook</source>
        <translation>Classeur</translation>
    </message>
</context>
</TS>
