<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="it_IT">
<context>
    <name>Cartella</name>
    <message>
        <source>Pag %1 blocco %2 = Pag %3 blocco %4</source>
        <translation>Page %1, carton %2 = Page %3, carton %4</translation>
    </message>
    <message>
        <source>Blocchi verificati: %1
Confronti tra blocchi: %2
Celle verificate: %3
Blocchi uguali: %4 (%5%)</source>
        <translation>Cartons vérifiés&#xa0;: %1
Comparaisons entre cartons&#xa0;: %2
Cases vérifiées&#xa0;: %3
Cartons identiques&#xa0;: %4 (%5&#xa0;%)</translation>
    </message>
    <message>
        <source>La cartella e&apos; vuota od ha solo una pagina.
I blocchi di una pagina sono sempre diversi.</source>
        <translation>La série de cartons est vide ou n&apos;a qu&apos;une seule page.
Les cartons d&apos;une page sont toujours différents.</translation>
    </message>
    <message>
        <source>Confronto pagina %1 di %2</source>
        <translation>Comparaison de la page %1 sur %2</translation>
    </message>
    <message>
        <source>numero</source>
        <translation>numéro</translation>
    </message>
    <message>
        <source>testo</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>image</translation>
    </message>
    <message>
        <source>vuota</source>
        <translation>vide</translation>
    </message>
</context>
<context>
    <name>CasellaAccessibile</name>
    <message>
        <source>riga %1, colonna %2, %3, %4</source>
        <translation>ligne %1, colonne %2, %3, %4</translation>
    </message>
    <message>
        <source>spuntata</source>
        <translation>cochée</translation>
    </message>
    <message>
        <source>non spuntata</source>
        <translation>non cochée</translation>
    </message>
</context>
<context>
    <name>CaselleDelegate</name>
    <message>
        <source>%1, chiamato</source>
        <translation>%1, sorti</translation>
    </message>
    <message>
        <source>%1, non chiamato</source>
        <translation>%1, pas sorti</translation>
    </message>
</context>
<context>
    <name>CreateOutputFile</name>
    <message>
        <source>Formato file sconosciuto!</source>
        <translation>Format de fichier inconnu&#xa0;!</translation>
    </message>
    <message>
        <source>Formato %1 non disponibile. Creazione annullata.</source>
        <translation>Format %1 non disponible. Création annulée.</translation>
    </message>
    <message>
        <source>Impossibile scrivere sul file!</source>
        <translation>Impossible d&apos;écrire dans le fichier&#xa0;!</translation>
    </message>
    <message>
        <source>PDF: Stampa pagina %1 di %2 (%3%) in corso...</source>
        <translation>PDF&#xa0;: impression de la page %1 sur %2 (%3&#xa0;%)...</translation>
    </message>
    <message>
        <source>Impossibile continuare a scrivere sul file!</source>
        <translation>Impossible de continuer à écrire dans le fichier&#xa0;!</translation>
    </message>
    <message>
        <source>Stampa PDF completata!</source>
        <translation>Impression PDF terminée&#xa0;!</translation>
    </message>
    <message>
        <source>File creato con successo!

Nome: %1
Percorso: %2

Pagine: %3
Dimensione: %4 Bytes (%5 MB)
----------------------------------------

Dimensioni pagina: %6</source>
        <translation>Fichier créé avec succès&#xa0;!

Nom&#xa0;: %1
Chemin&#xa0;: %2

Pages&#xa0;: %3
Taille&#xa0;: %4 octets (%5 Mo)
----------------------------------------

Dimensions de la page&#xa0;: %6</translation>
    </message>
</context>
<context>
    <name>Diario</name>
    <message>
        <source>La serata è già aperta in un&apos;altra finestra.</source>
        <translation>La soirée est déjà ouverte dans une autre fenêtre.</translation>
    </message>
    <message>
        <source>Non è un file.</source>
        <translation>Ce n&apos;est pas un fichier.</translation>
    </message>
</context>
<context>
    <name>EditPersonale</name>
    <message>
        <source>Pagina</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>La pagina mostrata</source>
        <translation>La page affichée</translation>
    </message>
    <message>
        <source>di</source>
        <translation>sur</translation>
    </message>
    <message>
        <source>Il numero di pagine</source>
        <translation>Le nombre de pages</translation>
    </message>
    <message>
        <source>I numeri di questa pagina sono estratti colonna per colonna, ciascuna con il proprio intervallo</source>
        <translation>Les numéros de cette page sont tirés colonne par colonne, chacune dans son propre intervalle</translation>
    </message>
    <message>
        <source>Ordina numeri sulle colonne</source>
        <translation>Tirer les numéros par colonne</translation>
    </message>
    <message>
        <source>Selezione</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>La selezione comprende tutte le celle della pagina</source>
        <translation>La sélection comprend toutes les cases de la page</translation>
    </message>
    <message>
        <source>Tutte</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>da</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Prima riga della selezione</source>
        <translation>Première ligne de la sélection</translation>
    </message>
    <message>
        <source>a</source>
        <translation>à</translation>
    </message>
    <message>
        <source>Ultima riga della selezione</source>
        <translation>Dernière ligne de la sélection</translation>
    </message>
    <message>
        <source>Colonna</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Prima colonna della selezione</source>
        <translation>Première colonne de la sélection</translation>
    </message>
    <message>
        <source>Ultima colonna della selezione</source>
        <translation>Dernière colonne de la sélection</translation>
    </message>
    <message>
        <source>Spunta le celle della selezione</source>
        <translation>Cocher les cases de la sélection</translation>
    </message>
    <message>
        <source>Riempi</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Toglie la spunta dalle celle della selezione</source>
        <translation>Décocher les cases de la sélection</translation>
    </message>
    <message>
        <source>Svuota</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Inverte la spunta delle celle della selezione</source>
        <translation>Inverser les cases cochées et non cochées de la sélection</translation>
    </message>
    <message>
        <source>Inverti</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Tipo delle celle</source>
        <translation>Type des cases</translation>
    </message>
    <message>
        <source>Celle con un numero</source>
        <translation>Cases avec un numéro</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Celle con un testo</source>
        <translation>Cases avec un texte</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Celle con un&apos;immagine</source>
        <translation>Cases avec une image</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>&lt;p&gt;Imposta il tipo delle celle selezionate sopra!&lt;/p&gt;&lt;p&gt;Per cambiare le singole celle usare il tasto destro del mouse su di esse.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Définir le type des cases sélectionnées ci-dessus&#xa0;!&lt;/p&gt;&lt;p&gt;Pour changer une seule case, cliquer dessus avec le bouton droit de la souris.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Imposta selezionate</source>
        <translation>Appliquer à la sélection</translation>
    </message>
    <message>
        <source>Schema corrente</source>
        <translation>Disposition actuelle</translation>
    </message>
    <message>
        <source>da pag.</source>
        <translation>de la p.</translation>
    </message>
    <message>
        <source>Prima pagina su cui copiare lo schema</source>
        <translation>Première page sur laquelle copier la disposition</translation>
    </message>
    <message>
        <source>Ultima pagina su cui copiare lo schema</source>
        <translation>Dernière page sur laquelle copier la disposition</translation>
    </message>
    <message>
        <source>Copia lo schema su tutte le pagine</source>
        <translation>Copier la disposition sur toutes les pages</translation>
    </message>
    <message>
        <source>tutte</source>
        <translation>toutes</translation>
    </message>
    <message>
        <source>Copia lo schema della pagina mostrata sulle pagine indicate</source>
        <translation>Copier la disposition de la page affichée sur les pages indiquées</translation>
    </message>
    <message>
        <source>Copia</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Crea le pagine e le aggiunge alla cartella</source>
        <translation>Créer les pages et les ajouter à la série de cartons</translation>
    </message>
    <message>
        <source>Crea pagine</source>
        <translation>Créer les pages</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Nuovo</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Per iniziare una nuova mappatura chiudere questa finestra e riaprirla dalla finestra principale</source>
        <translation>Pour commencer une nouvelle disposition, fermer cette fenêtre et la rouvrir depuis la fenêtre principale</translation>
    </message>
    <message>
        <source>Apri</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Apre uno schema di pagine da file</source>
        <translation>Ouvrir une disposition de pages depuis un fichier</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>&lt;p&gt;Salva lo schema delle pagine su file. Una pagina con più di 255 celle non può essere riletta per intero e l&apos;opzione &quot;Ordina numeri sulle colonne&quot; non viene salvata.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Enregistrer la disposition des pages dans un fichier. Une page de plus de 255 cases ne peut pas être relue en entier, et l&apos;option «&#xa0;Tirer les numéros par colonne&#xa0;» n&apos;est pas enregistrée.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Chiude la mappatura manuale</source>
        <translation>Fermer la disposition manuelle</translation>
    </message>
    <message>
        <source>Mappatura manuale</source>
        <translation>Disposition manuelle</translation>
    </message>
    <message>
        <source>Non vi sono pagine da creare!</source>
        <translation>Il n&apos;y a aucune page à créer&#xa0;!</translation>
    </message>
    <message>
        <source>MAPPATURA MANUALE</source>
        <translation>DISPOSITION MANUELLE</translation>
    </message>
    <message>
        <source>Tipo cambiato in: %1</source>
        <translation>Type changé en&#xa0;: %1</translation>
    </message>
    <message>
        <source>I numeri da generare (%1) sono maggiori di quelli disponibili (%2).</source>
        <translation>Il y a plus de numéros à générer (%1) que de numéros disponibles (%2).</translation>
    </message>
    <message>
        <source>Impostazioni corrette</source>
        <translation>Paramètres corrects</translation>
    </message>
    <message>
        <source>Le pagine selezionate verranno sovrascritte con lo schema corrente. Proseguire?</source>
        <translation>La disposition actuelle remplacera celle des pages choisies. Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Copia schema effettuata!</source>
        <translation>Disposition copiée&#xa0;!</translation>
    </message>
    <message>
        <source>Pagine create e aggiunte alla cartella principale!</source>
        <translation>Pages créées et ajoutées à la série de cartons&#xa0;!</translation>
    </message>
    <message>
        <source>Errore durante la creazione delle pagine!

%1</source>
        <translation>Erreur lors de la création des pages&#xa0;!

%1</translation>
    </message>
    <message>
        <source>Sei sicuro di voler chiudere?</source>
        <translation>Voulez-vous vraiment fermer cette fenêtre&#xa0;?</translation>
    </message>
    <message>
        <source>Salva le cartelle su file</source>
        <translation>Enregistrer la disposition dans un fichier</translation>
    </message>
    <message>
        <source>Creazione file annullata!</source>
        <translation>Création du fichier annulée&#xa0;!</translation>
    </message>
    <message>
        <source>Pagina %1 di %2 salvata</source>
        <translation>Page %1 sur %2 enregistrée</translation>
    </message>
    <message>
        <source>File creato con successo!

Nome: %1
Estensione: %2
Percorso: %3

Pagine: %4
Dimensione: %5 Bytes (%6 MB)
</source>
        <translation>Fichier créé avec succès&#xa0;!

Nom&#xa0;: %1
Extension&#xa0;: %2
Chemin&#xa0;: %3

Pages&#xa0;: %4
Taille&#xa0;: %5 octets (%6 Mo)
</translation>
    </message>
    <message>
        <source>Aprendo un nuovo progetto tutto il lavoro in corso di modifica sarà perso. Proseguire?</source>
        <translation>L&apos;ouverture d&apos;une autre disposition fera perdre tout le travail en cours. Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Apre un file di cartelle</source>
        <translation>Ouvrir un fichier de disposition</translation>
    </message>
    <message>
        <source>Apertura file annullata!</source>
        <translation>Ouverture du fichier annulée&#xa0;!</translation>
    </message>
    <message>
        <source>Sto leggendo la pagina %1</source>
        <translation>Lecture de la page %1</translation>
    </message>
    <message>
        <source>Apertura completata!</source>
        <translation>Ouverture terminée&#xa0;!</translation>
    </message>
    <message>
        <source>Sto caricando la pagina %1 di %2</source>
        <translation>Chargement de la page %1 sur %2</translation>
    </message>
    <message>
        <source>Salva lo schema delle pagine su file</source>
        <translation>Enregistrer la disposition des pages dans un fichier</translation>
    </message>
    <message>
        <source>Errore nel salvataggio del file:
%1

%2</source>
        <translation>Erreur lors de l&apos;enregistrement du fichier&#xa0;:
%1

%2</translation>
    </message>
    <message>
        <source>Non è un file di cartelle:
%1</source>
        <translation>Ce n&apos;est pas un fichier de disposition&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Errore nella lettura del file:
%1

%2</source>
        <translation>Erreur lors de la lecture du fichier&#xa0;:
%1

%2</translation>
    </message>
    <message>
        <source>Nessuna riga del file descrive una pagina.</source>
        <translation>Aucune ligne du fichier ne décrit une page.</translation>
    </message>
    <message>
        <source>Non vi sono pagine.
%1</source>
        <translation>Il n&apos;y a aucune page.
%1</translation>
    </message>
    <message>
        <source>Le pagine con troppe celle non saranno rilette per intero dal file.
Pagine: %1</source>
        <translation>Les pages qui ont trop de cases ne pourront pas être relues en entier dans le fichier.
Pages&#xa0;: %1</translation>
    </message>
    <message>
        <source>&lt;p&gt;I numeri spuntati e quelli disponibili. Cambiando pagina il conteggio prosegue da quello di prima, finché non si cambia un tipo o si copia uno schema.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Les numéros cochés et ceux qui sont disponibles. Sur une autre page, le compte continue à partir du précédent, jusqu&apos;à ce qu&apos;un type soit changé ou une disposition copiée.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Un clic o la barra spaziatrice mette o toglie la spunta; trascinando il mouse con il tasto sinistro premuto si spuntano le celle attraversate.&lt;/p&gt;&lt;p&gt;Il tasto destro del mouse o il tasto T passa al tipo successivo, tranne che nelle pagine lette da un file.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Un clic ou la barre d&apos;espace coche ou décoche une case&#xa0;; en faisant glisser la souris, bouton gauche enfoncé, on coche les cases traversées.&lt;/p&gt;&lt;p&gt;Le bouton droit de la souris ou la touche T passe au type suivant, sauf sur les pages lues dans un fichier.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Numeri: %1 di %2</source>
        <translation>Numéros&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</source>
        <translation>Le nombre total de pages demandé (%1)
dépasse le maximum autorisé (%2).</translation>
    </message>
    <message>
        <source>Aiuto</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>Comment utiliser le programme, pas à pas</translation>
    </message>
    <message>
        <source>Copia schema annullata!</source>
        <translation>Copie de la disposition annulée&#xa0;!</translation>
    </message>
</context>
<context>
    <name>ElencoSchede</name>
    <message>
        <source>%1: chiamata %2</source>
        <translation>%1&#xa0;: tirage %2</translation>
    </message>
    <message>
        <source>%1: manca il %2</source>
        <translation>%1&#xa0;: manque le %2</translation>
    </message>
</context>
<context>
    <name>FormatSelection</name>
    <message>
        <source>Dialog</source>
        <translation>Dialogue</translation>
    </message>
    <message>
        <source>Seleziona la lingua:</source>
        <translation>Choisir la langue&#xa0;:</translation>
    </message>
    <message>
        <source>&lt;p&gt;Lingua del programma fino alla chiusura e dei commenti nelle impostazioni; ai prossimi avvii vale la lingua del sistema&lt;/p&gt;</source>
        <translation>&lt;p&gt;Langue du programme jusqu&apos;à sa fermeture et des commentaires dans les paramètres&#xa0;; ensuite, la langue du système s&apos;applique&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Impostazioni di default: </source>
        <translation>Paramètres par défaut&#xa0;: </translation>
    </message>
    <message>
        <source>Impostazioni di default</source>
        <translation>Paramètres par défaut</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Generatore di cartelle per la Quintra.</source>
        <translation>Générateur de cartons pour la Quintra.</translation>
    </message>
    <message>
        <source>Numeri - Minimo</source>
        <translation>Numéros - Minimum</translation>
    </message>
    <message>
        <source>Numeri - Massimo</source>
        <translation>Numéros - Maximum</translation>
    </message>
    <message>
        <source>Classica - Numero blocchi</source>
        <translation>Classique - Cartons par page</translation>
    </message>
    <message>
        <source>Classica - Numero righe per blocco</source>
        <translation>Classique - Lignes par carton</translation>
    </message>
    <message>
        <source>Classica - Numero estrazioni per riga</source>
        <translation>Classique - Cases remplies par ligne</translation>
    </message>
    <message>
        <source>Classica - Numero colonne</source>
        <translation>Classique - Colonnes</translation>
    </message>
    <message>
        <source>Classica - Numero jolly per riga</source>
        <translation>Classique - Images (jokers) par ligne</translation>
    </message>
    <message>
        <source>Testo di base nelle celle</source>
        <translation>Texte par défaut dans les cases</translation>
    </message>
    <message>
        <source>Immagine di base nelle celle</source>
        <translation>Image par défaut dans les cases</translation>
    </message>
    <message>
        <source>Directory di base dove salvare</source>
        <translation>Dossier d&apos;enregistrement par défaut</translation>
    </message>
    <message>
        <source>Lingua di default</source>
        <translation>Langue par défaut</translation>
    </message>
    <message>
        <source>Configurazione</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Impossibile commentare il file, formato errato!</source>
        <translation>Impossible d&apos;ajouter les commentaires au fichier&#xa0;: format incorrect&#xa0;!</translation>
    </message>
    <message>
        <source>Continua con queste impostazioni</source>
        <translation>Continuer avec ces paramètres</translation>
    </message>
    <message>
        <source>Quintra</source>
        <translation>Quintra</translation>
    </message>
</context>
<context>
    <name>GeneraCartellaPersonale</name>
    <message>
        <source>Nessuna pagina da generare!</source>
        <translation>Aucune page à générer&#xa0;!</translation>
    </message>
    <message>
        <source>Nessun numero generato!</source>
        <translation>Aucun numéro généré&#xa0;!</translation>
    </message>
    <message>
        <source>Genera per colonne:
Impossibile generare %1 numeri sulla colonna n^ %2
La colonna vorrebbe %3 numeri diversi tra %4 e %5
ma cio&apos; risulta impossibile in quanto il range e&apos; composto da %6 numeri.</source>
        <translation>Tirage des numéros par colonne&#xa0;:
Trop de numéros (%1) pour la colonne n°&#xa0;%2
La colonne demande autant de numéros différents (%3) entre %4 et %5,
mais c&apos;est impossible car l&apos;intervalle en compte moins (%6).</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</source>
        <translation>Génération des numéros&#xa0;:
Erreur lors de l&apos;ajout de la page %i.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MainWindow</source>
        <translation>MainWindow</translation>
    </message>
    <message>
        <source>Cartella</source>
        <translation>Série de cartons</translation>
    </message>
    <message>
        <source>Numero di pagine</source>
        <translation>Nombre de pages</translation>
    </message>
    <message>
        <source>Numero totale di pagine (cartelle)</source>
        <translation>Nombre total de pages (planches de cartons)</translation>
    </message>
    <message>
        <source>Numero di blocchi per pagina</source>
        <translation>Cartons par page</translation>
    </message>
    <message>
        <source>Numero di righe per blocco</source>
        <translation>Lignes par carton</translation>
    </message>
    <message>
        <source>Numero di colonne</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Numero di celle (colonne) per riga</source>
        <translation>Nombre de cases (colonnes) par ligne</translation>
    </message>
    <message>
        <source>Celle di ogni riga</source>
        <translation>Cases de chaque ligne</translation>
    </message>
    <message>
        <source>Numero di estrazioni per riga</source>
        <translation>Cases remplies par ligne</translation>
    </message>
    <message>
        <source>Numero di celle da riempire (numeri,immagini,scritte) in ogni riga</source>
        <translation>Nombre de cases à remplir (numéros, images, textes) sur chaque ligne</translation>
    </message>
    <message>
        <source>Numero di immagini per riga</source>
        <translation>Images par ligne</translation>
    </message>
    <message>
        <source>Inserisci delle immagini al posto dei numeri nelle celle</source>
        <translation>Mettre des images (jokers) à la place des numéros dans les cases</translation>
    </message>
    <message>
        <source>Numero di scritte per riga</source>
        <translation>Textes par ligne</translation>
    </message>
    <message>
        <source>Inserisci del testo al posto dei numeri nelle celle</source>
        <translation>Mettre du texte à la place des numéros dans les cases</translation>
    </message>
    <message>
        <source>Numeri da estrarre</source>
        <translation>Numéros à tirer</translation>
    </message>
    <message>
        <source>Numero minimo da estrarre</source>
        <translation>Plus petit numéro</translation>
    </message>
    <message>
        <source>Numero massimo da estrarre</source>
        <translation>Plus grand numéro</translation>
    </message>
    <message>
        <source>Disegna a mano quali celle riempire, pagina per pagina</source>
        <translation>Choisir à la main les cases à remplir, page par page</translation>
    </message>
    <message>
        <source>Mappatura manuale</source>
        <translation>Disposition manuelle</translation>
    </message>
    <message>
        <source>Crea le pagine richieste e le aggiunge alla cartella</source>
        <translation>Créer les pages demandées et les ajouter à la série de cartons</translation>
    </message>
    <message>
        <source>Aggiungi pagine</source>
        <translation>Ajouter des pages</translation>
    </message>
    <message>
        <source>Stampa la cartella su file</source>
        <translation>Imprimer la série de cartons dans un fichier</translation>
    </message>
    <message>
        <source>STAMPA</source>
        <translation>IMPRIMER</translation>
    </message>
    <message>
        <source>Pagina</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Pagina visualizzata</source>
        <translation>Page affichée</translation>
    </message>
    <message>
        <source>di</source>
        <translation>sur</translation>
    </message>
    <message>
        <source>Numero di pagine della cartella</source>
        <translation>Nombre de pages de la série de cartons</translation>
    </message>
    <message>
        <source>Elimina la pagina visualizzata</source>
        <translation>Supprimer la page affichée</translation>
    </message>
    <message>
        <source>Elimina</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Formato</source>
        <translation>Format du papier</translation>
    </message>
    <message>
        <source>Formato della carta su cui stampare</source>
        <translation>Format du papier d&apos;impression</translation>
    </message>
    <message>
        <source>Spazio tra i blocchi (mm)</source>
        <translation>Espace entre cartons (mm)</translation>
    </message>
    <message>
        <source>Spazio tra i blocchi della pagina, in millimetri</source>
        <translation>Espace entre les cartons de la page, en millimètres</translation>
    </message>
    <message>
        <source>I comandi di pagina e di blocco agiscono su tutte le pagine</source>
        <translation>Les commandes de page et de carton agissent sur toutes les pages</translation>
    </message>
    <message>
        <source>Applica a tutte</source>
        <translation>Appliquer à toutes</translation>
    </message>
    <message>
        <source>Imposta lo spazio tra i blocchi</source>
        <translation>Définir l&apos;espace entre les cartons</translation>
    </message>
    <message>
        <source>Applica</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Colori</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Colore di sfondo della pagina</source>
        <translation>Couleur de fond de la page</translation>
    </message>
    <message>
        <source>Colora sfondo</source>
        <translation>Couleur du fond</translation>
    </message>
    <message>
        <source>Blocco</source>
        <translation>Carton</translation>
    </message>
    <message>
        <source>Blocco selezionato</source>
        <translation>Carton sélectionné</translation>
    </message>
    <message>
        <source>Blocchi della pagina</source>
        <translation>Cartons de la page</translation>
    </message>
    <message>
        <source>Spessore linea esterna</source>
        <translation>Épaisseur du contour</translation>
    </message>
    <message>
        <source>Spessore della linea esterna del blocco (non ha ancora effetto)</source>
        <translation>Épaisseur du contour du carton (sans effet pour l&apos;instant)</translation>
    </message>
    <message>
        <source>Spessore linea interna</source>
        <translation>Épaisseur de la grille</translation>
    </message>
    <message>
        <source>Spessore delle linee interne del blocco (non ha ancora effetto)</source>
        <translation>Épaisseur de la grille du carton (sans effet pour l&apos;instant)</translation>
    </message>
    <message>
        <source>I comandi di blocco agiscono su tutti i blocchi</source>
        <translation>Les commandes de carton agissent sur tous les cartons</translation>
    </message>
    <message>
        <source>Applica a tutti</source>
        <translation>Appliquer à tous</translation>
    </message>
    <message>
        <source>Applica le impostazioni del blocco (non ha ancora effetto)</source>
        <translation>Appliquer les paramètres du carton (sans effet pour l&apos;instant)</translation>
    </message>
    <message>
        <source>Colore di sfondo delle celle del blocco</source>
        <translation>Couleur de fond des cases du carton</translation>
    </message>
    <message>
        <source>Colore della linea esterna del blocco (non ha ancora effetto)</source>
        <translation>Couleur du contour du carton (sans effet pour l&apos;instant)</translation>
    </message>
    <message>
        <source>Colore delle linee interne del blocco (non ha ancora effetto)</source>
        <translation>Couleur de la grille du carton (sans effet pour l&apos;instant)</translation>
    </message>
    <message>
        <source>Cella</source>
        <translation>Case</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Riga della cella nel suo blocco</source>
        <translation>Ligne de la case dans son carton</translation>
    </message>
    <message>
        <source>Colonna</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Colonna della cella</source>
        <translation>Colonne de la case</translation>
    </message>
    <message>
        <source>Tipo della cella</source>
        <translation>Type de la case</translation>
    </message>
    <message>
        <source>Carattere delle celle selezionate</source>
        <translation>Police des cases sélectionnées</translation>
    </message>
    <message>
        <source>Carattere...</source>
        <translation>Police...</translation>
    </message>
    <message>
        <source>Carattere della cella</source>
        <translation>Police de la case</translation>
    </message>
    <message>
        <source>Sceglie l&apos;immagine della cella selezionata</source>
        <translation>Choisir l&apos;image de la case sélectionnée</translation>
    </message>
    <message>
        <source>I comandi di cella agiscono sulle stesse celle di tutte le pagine</source>
        <translation>Les commandes de case agissent sur les mêmes cases de toutes les pages</translation>
    </message>
    <message>
        <source>Applica le impostazioni della cella (non ha ancora effetto)</source>
        <translation>Appliquer les paramètres de la case (sans effet pour l&apos;instant)</translation>
    </message>
    <message>
        <source>Colore del testo delle celle selezionate</source>
        <translation>Couleur du texte des cases sélectionnées</translation>
    </message>
    <message>
        <source>Colora testo</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Colore di sfondo delle celle selezionate</source>
        <translation>Couleur de fond des cases sélectionnées</translation>
    </message>
    <message>
        <source>Pulisci</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Apri</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Le mappature si aprono dall&apos;editor della mappatura manuale</source>
        <translation>Les dispositions s&apos;ouvrent dans l&apos;éditeur de disposition manuelle</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Le mappature si salvano dall&apos;editor della mappatura manuale</source>
        <translation>Les dispositions s&apos;enregistrent dans l&apos;éditeur de disposition manuelle</translation>
    </message>
    <message>
        <source>Nuova</source>
        <translation>Nouvelle</translation>
    </message>
    <message>
        <source>Crea una nuova cartella</source>
        <translation>Créer une nouvelle série de cartons</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Esce dal programma</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>Confronta blocchi</source>
        <translation>Comparer les cartons</translation>
    </message>
    <message>
        <source>Verifica che non vi siano blocchi uguali</source>
        <translation>Vérifier qu&apos;il n&apos;y a pas de cartons identiques</translation>
    </message>
    <message>
        <source>Opzioni</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Impostazioni del programma</source>
        <translation>Paramètres du programme</translation>
    </message>
    <message>
        <source>Informazioni</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Informazioni sul programma</source>
        <translation>À propos du programme</translation>
    </message>
    <message>
        <source>Welcome to %1 %2!</source>
        <translation>Bienvenue dans %1 %2&#xa0;!</translation>
    </message>
    <message>
        <source>La cartella non contiene pagine!</source>
        <translation>La série de cartons ne contient aucune page&#xa0;!</translation>
    </message>
    <message>
        <source>Aggiungere pagine alla cartella prima di proseguire.</source>
        <translation>Ajouter des pages à la série de cartons avant de continuer.</translation>
    </message>
    <message>
        <source>Creazione file annullata!</source>
        <translation>Création du fichier annulée&#xa0;!</translation>
    </message>
    <message>
        <source>Errore nella creazione del file:
%1</source>
        <translation>Erreur lors de la création du fichier&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Salva le cartelle su file</source>
        <translation>Enregistrer les cartons dans un fichier</translation>
    </message>
    <message>
        <source>Cartella classica</source>
        <translation>Série classique</translation>
    </message>
    <message>
        <source>Sei sicuro di voler uscire?</source>
        <translation>Voulez-vous vraiment quitter le programme&#xa0;?</translation>
    </message>
    <message>
        <source>Generatore di cartelle per la Quintra.
Advanced Bingo cards generator.</source>
        <translation>Générateur de cartons pour la Quintra.
Générateur avancé de cartons de loto.</translation>
    </message>
    <message>
        <source>Modifica valori</source>
        <translation>Modifier les valeurs</translation>
    </message>
    <message>
        <source>Errore durante la modifica del valore nella tabella.</source>
        <translation>Erreur lors de la modification de la valeur dans le tableau.</translation>
    </message>
    <message>
        <source>Problema durante la modifica del valore nella tabella.</source>
        <translation>Problème lors de la modification de la valeur dans le tableau.</translation>
    </message>
    <message>
        <source>Vuoi impostare il valore come STRINGA?</source>
        <translation>Voulez-vous enregistrer la valeur comme TEXTE&#xa0;?</translation>
    </message>
    <message>
        <source>Vuoi impostare il valore come CELLA VUOTA?</source>
        <translation>Voulez-vous en faire une CASE VIDE&#xa0;?</translation>
    </message>
    <message>
        <source>Cella impostata come IMMAGINE.
Il percorso dell&apos;immagine deve essere scelto tramite il pannello a lato.</source>
        <translation>La case est maintenant une IMAGE.
Choisissez son fichier dans le panneau latéral.</translation>
    </message>
    <message>
        <source>L&apos;immagine per la cella selezionata è quella visibile. La si vuole Cambiare?</source>
        <translation>L&apos;image affichée est celle de la case sélectionnée. Voulez-vous la changer&#xa0;?</translation>
    </message>
    <message>
        <source>Apre un&apos;immagine da inserire nella cella</source>
        <translation>Ouvrir une image à mettre dans la case</translation>
    </message>
    <message>
        <source>JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)</source>
        <translation>JPEG (*.jpg *.jpeg);; TIFF (*.tif);; PNG (*.png);; GIF (*.gif);; BITMAP (*.bmp)</translation>
    </message>
    <message>
        <source>L&apos;immagine per la cella selezionata è quella visisbile. Proseguire?</source>
        <translation>L&apos;image affichée sera celle de la case sélectionnée. Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Immagine impostata correttamente.</source>
        <translation>Image mise en place.</translation>
    </message>
    <message>
        <source>Selezione immagine cella</source>
        <translation>Choix de l&apos;image de la case</translation>
    </message>
    <message>
        <source>Sei sicuro di voler cancellare la cartella e crearne una nuova?</source>
        <translation>Voulez-vous vraiment supprimer la série de cartons et en créer une nouvelle&#xa0;?</translation>
    </message>
    <message>
        <source>Creazione annullata.</source>
        <translation>Création annulée.</translation>
    </message>
    <message>
        <source>Cartella di %1 pagine, %2 blocchi %3X%4 generata</source>
        <translation>Série de cartons générée - pages&#xa0;: %1, cartons par page&#xa0;: %2 (%3×%4)</translation>
    </message>
    <message>
        <source>Problemi di impostazione parametri: non posso proseguire!</source>
        <translation>Problèmes dans les paramètres&#xa0;: impossible de continuer&#xa0;!</translation>
    </message>
    <message>
        <source>%1

Vuoi proseguire comunque?</source>
        <translation>%1

Voulez-vous continuer quand même&#xa0;?</translation>
    </message>
    <message>
        <source>Sto cancellando la precedente cartella...</source>
        <translation>Suppression de la série précédente...</translation>
    </message>
    <message>
        <source>Sto creando una cartella di %1 pagine, %2 blocchi %3X%4...</source>
        <translation>Création d&apos;une série de cartons - pages&#xa0;: %1, cartons par page&#xa0;: %2 (%3×%4)...</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante l&apos;aggiunta della pagina %i.</source>
        <translation>Génération des numéros&#xa0;:
Erreur lors de l&apos;ajout de la page %i.</translation>
    </message>
    <message>
        <source>Sono state create solo pagine vuote!</source>
        <translation>Seules des pages vides ont été créées&#xa0;!</translation>
    </message>
    <message>
        <source>Generazione numeri:
Errore durante la generazione della pagina %1.</source>
        <translation>Génération des numéros&#xa0;:
Erreur lors de la génération de la page %1.</translation>
    </message>
    <message>
        <source>Sto creando l&apos;ambiente per la mappatura manuale, attendere...</source>
        <translation>Préparation de la disposition manuelle, veuillez patienter...</translation>
    </message>
    <message>
        <source>Ambiente per la mappatura manuale creato.</source>
        <translation>Disposition manuelle prête.</translation>
    </message>
    <message>
        <source>Celle della pagina</source>
        <translation>Cases de la page</translation>
    </message>
    <message>
        <source>La cartella non contiene la pagina da visualizzare (fuori range)!</source>
        <translation>La série de cartons ne contient pas la page à afficher (hors limites)&#xa0;!</translation>
    </message>
    <message>
        <source>Cartella vuota!</source>
        <translation>Série de cartons vide&#xa0;!</translation>
    </message>
    <message>
        <source>La cartella è vuota!</source>
        <translation>La série de cartons est vide&#xa0;!</translation>
    </message>
    <message>
        <source>Problema nell&apos;eliminazione della pagina!
Pagina non eliminata.</source>
        <translation>Problème lors de la suppression de la page&#xa0;!
Page non supprimée.</translation>
    </message>
    <message>
        <source>Pagina eliminata correttamente.</source>
        <translation>Page supprimée.</translation>
    </message>
    <message>
        <source>Nessuna selezione</source>
        <translation>Aucune sélection</translation>
    </message>
    <message>
        <source>Cella mancante</source>
        <translation>Case manquante</translation>
    </message>
    <message>
        <source>Cella selezionata</source>
        <translation>Case sélectionnée</translation>
    </message>
    <message>
        <source>Selezione multipla</source>
        <translation>Sélection multiple</translation>
    </message>
    <message>
        <source>Impostazioni corrette</source>
        <translation>Paramètres corrects</translation>
    </message>
    <message>
        <source>Estrazioni per riga: Per un corretto funzionamento si consiglia il valore 5.</source>
        <translation>Cases remplies par ligne&#xa0;: la valeur 5 est conseillée pour un bon fonctionnement.</translation>
    </message>
    <message>
        <source>Nessun elemento selezionato!</source>
        <translation>Aucun élément sélectionné&#xa0;!</translation>
    </message>
    <message>
        <source>Modifica colore sfondo blocchi applicata.</source>
        <translation>Couleur de fond des cartons modifiée.</translation>
    </message>
    <message>
        <source>Modifica colore testo cella applicata.</source>
        <translation>Couleur du texte de la case modifiée.</translation>
    </message>
    <message>
        <source>Modifica colore sfondo cella applicata.</source>
        <translation>Couleur de fond de la case modifiée.</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Errore: Le pagine hanno dimensioni diverse.
Alcune celle sono state omesse!</source>
        <translation>Erreur&#xa0;: les pages ont des dimensions différentes.
Certaines cases ont été ignorées&#xa0;!</translation>
    </message>
    <message>
        <source>Modifica applicata.</source>
        <translation>Modification appliquée.</translation>
    </message>
    <message>
        <source>Font impostato correttamente.</source>
        <translation>Police appliquée.</translation>
    </message>
    <message>
        <source>Verifica blocchi uguali:
Pagine cartella non ancora generate.
Impossibile procedere alla verifica!</source>
        <translation>Recherche de cartons identiques&#xa0;:
Les pages de la série n&apos;ont pas encore été générées.
Impossible de lancer la vérification&#xa0;!</translation>
    </message>
    <message>
        <source>Non vi sono blocchi uguali!

%1</source>
        <translation>Il n&apos;y a pas de cartons identiques&#xa0;!

%1</translation>
    </message>
    <message>
        <source>Vi sono %1 blocchi uguali!

%2

Vuoi visualizzarli?</source>
        <translation>Cartons identiques trouvés&#xa0;: %1&#xa0;!

%2

Voulez-vous les afficher&#xa0;?</translation>
    </message>
    <message>
        <source>... e altre coppie di blocchi uguali: %1.</source>
        <translation>... et d&apos;autres paires de cartons identiques&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Anteprima di stampa</source>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>Mostra la pagina come sarà stampata</source>
        <translation>Afficher la page telle qu&apos;elle sera imprimée</translation>
    </message>
    <message>
        <source>Parametri</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Stile</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Visualizza</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>&amp;Strumenti</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Aiuto</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Per ricominciare da capo scegliere &quot;Nuova&quot;</source>
        <translation>Pour recommencer, choisir «&#xa0;Nouvelle&#xa0;»</translation>
    </message>
    <message>
        <source>Linea esterna</source>
        <translation>Contour</translation>
    </message>
    <message>
        <source>Linea interna</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Salva registro...</source>
        <translation>Enregistrer le registre...</translation>
    </message>
    <message>
        <source>Salva le schede in un file di testo, una per riga</source>
        <translation>Enregistrer les cartons dans un fichier texte, un par ligne</translation>
    </message>
    <message>
        <source>Serata...</source>
        <translation>Soirée loto...</translation>
    </message>
    <message>
        <source>Chiama i numeri e controlla le schede</source>
        <translation>Tirer les numéros et vérifier les cartons</translation>
    </message>
    <message>
        <source>Salva il registro su file</source>
        <translation>Enregistrer le registre dans un fichier</translation>
    </message>
    <message>
        <source>Registro salvato.</source>
        <translation>Registre enregistré.</translation>
    </message>
    <message>
        <source>L&apos;immagine di base non può essere letta:
%1

Le celle con immagine resteranno vuote in stampa.</source>
        <translation>L&apos;image par défaut ne peut pas être lue&#xa0;:
%1

Les cases avec image resteront vides à l&apos;impression.</translation>
    </message>
    <message>
        <source>Stampa non riuscita!</source>
        <translation>L&apos;impression a échoué&#xa0;!</translation>
    </message>
    <message>
        <source>Pagine non stampate dopo l&apos;ultima modifica: %1.</source>
        <translation>Pages non imprimées depuis la dernière modification&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Tutte le pagine sono state stampate dopo l&apos;ultima modifica.</source>
        <translation>Toutes les pages ont été imprimées depuis la dernière modification.</translation>
    </message>
    <message>
        <source>Lo spazio tra i blocchi è troppo grande per il foglio: le cartelle escono dalla pagina.
Pagine: %1</source>
        <translation>L&apos;espace entre les cartons est trop grand pour la feuille&#xa0;: les cartons sortent de la page.
Pages&#xa0;: %1</translation>
    </message>
    <message>
        <source>Il colore delle linee non ha ancora effetto!</source>
        <translation>La couleur des lignes est sans effet pour l&apos;instant&#xa0;!</translation>
    </message>
    <message>
        <source>Immagine...</source>
        <translation>Image...</translation>
    </message>
    <message>
        <source>Generazione numeri:
Altre pagine non generate (contate da 1): %1</source>
        <translation>Génération des numéros&#xa0;:
Autres pages non générées (comptées à partir de 1)&#xa0;: %1</translation>
    </message>
    <message>
        <source>Riassumi le altre in un solo messaggio</source>
        <translation>Résumer les autres dans un seul message</translation>
    </message>
    <message>
        <source>Valori di config.ini cambiati:
%1</source>
        <translation>Valeurs de config.ini modifiées&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Numera i blocchi in stampa</source>
        <translation>Numéroter les cartons à l&apos;impression</translation>
    </message>
    <message>
        <source>Stampa accanto a ogni blocco il suo numero, per esempio 12.3</source>
        <translation>Imprimer à côté de chaque carton son numéro, par exemple 12.3</translation>
    </message>
    <message>
        <source>Numeri di blocco non stampati per mancanza di posto: %1.</source>
        <translation>Numéros de carton non imprimés faute de place&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>Comment utiliser le programme, pas à pas</translation>
    </message>
    <message>
        <source>Svuota le celle selezionate</source>
        <translation>Vider les cases sélectionnées</translation>
    </message>
</context>
<context>
    <name>Manuale</name>
    <message>
        <source>Torna dove si leggeva prima</source>
        <translation>Revenir à l&apos;endroit lu auparavant</translation>
    </message>
    <message>
        <source>Indietro</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Mostra l&apos;indice del manuale</source>
        <translation>Afficher le sommaire du manuel</translation>
    </message>
    <message>
        <source>Indice</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Cerca:</source>
        <translation>Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Testo da cercare nel manuale: Invio va al prossimo</source>
        <translation>Texte à chercher dans le manuel&#xa0;; Entrée passe à l&apos;occurrence suivante</translation>
    </message>
    <message>
        <source>Testo del manuale</source>
        <translation>Texte du manuel</translation>
    </message>
    <message>
        <source>Cerca</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Testo non trovato!</source>
        <translation>Texte introuvable&#xa0;!</translation>
    </message>
    <message>
        <source>Quintra - Manuale</source>
        <translation>Quintra - Manuel</translation>
    </message>
    <message>
        <source>Il manuale non è in %1!</source>
        <translation>Le manuel n&apos;est pas dans %1&#xa0;!</translation>
    </message>
</context>
<context>
    <name>MappingFile</name>
    <message>
        <source>nessun contenuto</source>
        <translation>aucun contenu</translation>
    </message>
    <message>
        <source>il primo carattere non indica il numero di righe della pagina</source>
        <translation>le premier caractère n&apos;indique pas le nombre de lignes de la page</translation>
    </message>
    <message>
        <source>caratteri insufficienti per le celle della pagina</source>
        <translation>pas assez de caractères pour les cases de la page</translation>
    </message>
    <message>
        <source>oltre il numero massimo di pagine (%1)</source>
        <translation>au-delà du nombre maximal de pages (%1)</translation>
    </message>
    <message>
        <source>Queste righe del file non descrivono una pagina e sono state saltate:</source>
        <translation>Ces lignes du fichier ne décrivent pas une page et ont été ignorées&#xa0;:</translation>
    </message>
</context>
<context>
    <name>MemoryQuestion</name>
    <message>
        <source>La memoria libera potrebbe non bastare, e il programma chiudersi.
MB necessari: %1
MB liberi: %2

Vuoi proseguire comunque?</source>
        <translation>La mémoire libre pourrait ne pas suffire, et le programme s&apos;arrêter brutalement.
Mo nécessaires&#xa0;: %1
Mo libres&#xa0;: %2

Voulez-vous continuer quand même&#xa0;?</translation>
    </message>
    <message>
        <source>La memoria libera non è bastata: nulla è cambiato.</source>
        <translation>La mémoire libre n&apos;a pas suffi&#xa0;: rien n&apos;a changé.</translation>
    </message>
</context>
<context>
    <name>MsgArea</name>
    <message>
        <source>Area messaggi</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Testo modificato</source>
        <translation>Texte modifié</translation>
    </message>
    <message>
        <source>Vuoi uscire senza salvare?</source>
        <translation>Voulez-vous fermer cette fenêtre sans enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>Salva su file</source>
        <translation>Enregistrer dans un fichier</translation>
    </message>
    <message>
        <source>File salvato con successo.</source>
        <translation>Fichier enregistré.</translation>
    </message>
    <message>
        <source>Errore nel salvataggio del file!</source>
        <translation>Erreur lors de l&apos;enregistrement du fichier&#xa0;!</translation>
    </message>
    <message>
        <source>Le modifiche al testo vanno perse.</source>
        <translation>Les modifications du texte seront perdues.</translation>
    </message>
    <message>
        <source>Il testo non è stato toccato.</source>
        <translation>Le texte n&apos;a pas été modifié.</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Chiude la finestra</source>
        <translation>Fermer la fenêtre</translation>
    </message>
</context>
<context>
    <name>NuovaPartita</name>
    <message>
        <source>Quintra - Nuova partita</source>
        <translation>Quintra - Nouvelle partie</translation>
    </message>
    <message>
        <source>Numeri da</source>
        <translation>Numéros de</translation>
    </message>
    <message>
        <source>Il numero minimo del tabellone</source>
        <translation>Le plus petit numéro du tableau</translation>
    </message>
    <message>
        <source>a</source>
        <translation>à</translation>
    </message>
    <message>
        <source>Il numero massimo del tabellone</source>
        <translation>Le plus grand numéro du tableau</translation>
    </message>
    <message>
        <source>I numeri chiamati (%1) saranno tolti tutti.</source>
        <translation>Tous les numéros sortis (%1) seront retirés.</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>Impostazioni</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Consente di ri-selezionare le opzioni al primo avvio del programma</source>
        <translation>Choisir à nouveau les options du premier démarrage du programme</translation>
    </message>
    <message>
        <source>Impostazioni iniziali (per il prossimo avvio)</source>
        <translation>Paramètres initiaux (au prochain démarrage)</translation>
    </message>
    <message>
        <source>Azzera ed esci</source>
        <translation>Réinitialiser et quitter</translation>
    </message>
    <message>
        <source>Azzera e continua</source>
        <translation>Réinitialiser et continuer</translation>
    </message>
    <message>
        <source>Modifica le impostazioni direttamente</source>
        <translation>Modifier directement les paramètres</translation>
    </message>
    <message>
        <source>Modifica diretta</source>
        <translation>Modification directe</translation>
    </message>
    <message>
        <source>Problema durante la cancellazione del file:
 %1</source>
        <translation>Problème lors de la suppression du fichier&#xa0;:
 %1</translation>
    </message>
    <message>
        <source>File di configurazione eliminato correttamente.</source>
        <translation>Fichier de configuration supprimé.</translation>
    </message>
    <message>
        <source>Proseguire con la cancellazionede del file di configurazione e l&apos;uscita dal programma?</source>
        <translation>Supprimer le fichier de configuration et quitter le programme&#xa0;?</translation>
    </message>
    <message>
        <source>Proseguire con la cancellazionede del file di configurazione?</source>
        <translation>Supprimer le fichier de configuration&#xa0;?</translation>
    </message>
    <message>
        <source>Quintra - Opzioni</source>
        <translation>Quintra - Options</translation>
    </message>
    <message>
        <source>Le impostazioni di config.ini vanno perse.</source>
        <translation>Les paramètres de config.ini seront perdus.</translation>
    </message>
</context>
<context>
    <name>Overwriting</name>
    <message>
        <source>Il file esiste già:
%1

Sostituirlo?</source>
        <translation>Le fichier existe déjà&#xa0;:
%1

Le remplacer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>PagePreview</name>
    <message>
        <source>Mostra la pagina precedente</source>
        <translation>Afficher la page précédente</translation>
    </message>
    <message>
        <source>Precedente</source>
        <translation>Précédente</translation>
    </message>
    <message>
        <source>Mostra la pagina successiva</source>
        <translation>Afficher la page suivante</translation>
    </message>
    <message>
        <source>Successiva</source>
        <translation>Suivante</translation>
    </message>
    <message>
        <source>Ingrandimento:</source>
        <translation>Zoom&#xa0;:</translation>
    </message>
    <message>
        <source>Grandezza in cui la pagina è mostrata</source>
        <translation>Taille d&apos;affichage de la page</translation>
    </message>
    <message>
        <source>Pagina intera</source>
        <translation>Page entière</translation>
    </message>
    <message>
        <source>Larghezza</source>
        <translation>Largeur de la page</translation>
    </message>
    <message>
        <source>Pagina come sarà stampata</source>
        <translation>Page telle qu&apos;elle sera imprimée</translation>
    </message>
    <message>
        <source>Anteprima di stampa</source>
        <translation>Aperçu avant impression</translation>
    </message>
    <message>
        <source>La cartella è vuota!</source>
        <translation>La série de cartons est vide&#xa0;!</translation>
    </message>
    <message>
        <source>Pagina %1 di %2, %3</source>
        <translation>Page %1 sur %2, %3</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100&#xa0;%</translation>
    </message>
</context>
<context>
    <name>PageTable</name>
    <message>
        <source>L&apos;immagine di base non può essere letta.</source>
        <translation>L&apos;image par défaut ne peut pas être lue.</translation>
    </message>
    <message>
        <source>blocco %1, riga %2, colonna %3, %4</source>
        <translation>carton %1, ligne %2, colonne %3, %4</translation>
    </message>
    <message>
        <source>cella mancante</source>
        <translation>case manquante</translation>
    </message>
</context>
<context>
    <name>ParameterRules</name>
    <message>
        <source>Non posso creare %1 celle piene con solo %2 numeri.</source>
        <translation>Pas assez de numéros (%2) pour les cases à remplir (%1).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 jolly in sole %2 colonne.</source>
        <translation>Trop d&apos;images (%1) pour le nombre de colonnes (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte in sole %2 colonne.</source>
        <translation>Trop de textes (%1) pour le nombre de colonnes (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte e immagini in sole %2 colonne.</source>
        <translation>Trop de textes et d&apos;images (%1) pour le nombre de colonnes (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 jolly con sole %2 estrazioni.</source>
        <translation>Trop d&apos;images (%1) pour le nombre de cases remplies par ligne (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte con sole %2 estrazioni.</source>
        <translation>Trop de textes (%1) pour le nombre de cases remplies par ligne (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 scritte e immagini con sole %2 estrazioni.</source>
        <translation>Trop de textes et d&apos;images (%1) pour le nombre de cases remplies par ligne (%2).</translation>
    </message>
    <message>
        <source>Non posso inserire %1 numeri in sole %2 colonne.</source>
        <translation>Trop de cases remplies par ligne (%1) pour le nombre de colonnes (%2).</translation>
    </message>
    <message>
        <source>Le pagine totali richieste (%1)
eccedono il massimo consentito (%2).</source>
        <translation>Le nombre total de pages demandé (%1)
dépasse le maximum autorisé (%2).</translation>
    </message>
    <message>
        <source>Si sconsiglia di proseguire per le seguenti ragioni:
%1 -&gt; caselle totali richieste.
%2 -&gt; caselle totali in memoria.
%3 -&gt; caselle massime gestibili.
(eventuale crash del programma)</source>
        <translation>Il est déconseillé de continuer pour les raisons suivantes&#xa0;:
%1 -&gt; total des cases demandées.
%2 -&gt; total des cases en mémoire.
%3 -&gt; nombre maximal de cases gérables.
(le programme pourrait s&apos;arrêter brutalement)</translation>
    </message>
    <message>
        <source>Nuova: si apre l&apos;editor della mappatura manuale</source>
        <translation>Nouvelle&#xa0;: ouvre l&apos;éditeur de disposition manuelle</translation>
    </message>
    <message>
        <source>Nuova: %1 pagine × %2 blocchi = %3 blocchi</source>
        <translation>Nouvelle - pages × cartons&#xa0;: %1 × %2 = %3</translation>
    </message>
</context>
<context>
    <name>PersonaleChkBox</name>
    <message>
        <source>Numero</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Vuota</source>
        <translation>Vide</translation>
    </message>
</context>
<context>
    <name>Premi</name>
    <message>
        <source>Ambo</source>
        <translation>Ambe</translation>
    </message>
    <message>
        <source>Terno</source>
        <translation>Terne</translation>
    </message>
    <message>
        <source>Quaterna</source>
        <translation>Quaterne</translation>
    </message>
    <message>
        <source>Cinquina</source>
        <translation>Quine</translation>
    </message>
    <message>
        <source>Due cinquine</source>
        <translation>Double quine</translation>
    </message>
    <message>
        <source>Tombola</source>
        <translation>Carton plein</translation>
    </message>
</context>
<context>
    <name>Registro</name>
    <message>
        <source>nessun contenuto</source>
        <translation>aucun contenu</translation>
    </message>
    <message>
        <source>testo troncato (file incompleto)</source>
        <translation>texte tronqué (fichier incomplet)</translation>
    </message>
    <message>
        <source>troppi caratteri per una scheda</source>
        <translation>trop de caractères pour un carton</translation>
    </message>
    <message>
        <source>all&apos;inizio non vi sono numeri validi di pagina e di scheda</source>
        <translation>pas de numéros valides de page et de carton au début</translation>
    </message>
    <message>
        <source>manca il segno | prima delle celle</source>
        <translation>le signe | manque avant les cases</translation>
    </message>
    <message>
        <source>una cella non è né un numero, né un testo tra virgolette, né la parola immagine</source>
        <translation>une case n&apos;est ni un numéro, ni un texte entre guillemets, ni le mot immagine</translation>
    </message>
    <message>
        <source>un numero è maggiore di %1</source>
        <translation>un numéro est supérieur à %1</translation>
    </message>
    <message>
        <source>le virgolette di un testo non sono chiuse, o \ è usato male</source>
        <translation>les guillemets d&apos;un texte ne sont pas fermés, ou \ est mal employé</translation>
    </message>
    <message>
        <source>righe o celle oltre il massimo di %1</source>
        <translation>lignes ou cases au-delà du maximum de %1</translation>
    </message>
    <message>
        <source>numeri di pagina e di scheda già usati</source>
        <translation>numéros de page et de carton déjà utilisés</translation>
    </message>
    <message>
        <source>Queste righe del registro non sono schede e sono state saltate:</source>
        <translation>Ces lignes du registre ne sont pas des cartons et ont été ignorées&#xa0;:</translation>
    </message>
    <message>
        <source>Una scheda ha testi troppo lunghi.</source>
        <translation>Les textes d&apos;un carton sont trop longs.</translation>
    </message>
</context>
<context>
    <name>RigheSaltate</name>
    <message>
        <source>Riga %1: %2.</source>
        <translation>Ligne %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Righe da %1 a %2: %3.</source>
        <translation>Lignes %1 à %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>L&apos;elenco continua fino alla riga %1.</source>
        <translation>La liste continue jusqu&apos;à la ligne %1.</translation>
    </message>
</context>
<context>
    <name>Serata</name>
    <message>
        <source>Quintra - Serata</source>
        <translation>Quintra - Soirée loto</translation>
    </message>
    <message>
        <source>L&apos;ultimo numero chiamato</source>
        <translation>Le dernier numéro sorti</translation>
    </message>
    <message>
        <source>I numeri chiamati prima</source>
        <translation>Les numéros sortis avant</translation>
    </message>
    <message>
        <source>Un clic chiama un numero, un altro lo toglie</source>
        <translation>Un clic annonce un numéro, un autre le retire</translation>
    </message>
    <message>
        <source>Tabellone</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>Chiamata</source>
        <translation>Tirage</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Il numero da chiamare; se è già stato chiamato viene tolto</source>
        <translation>Le numéro à annoncer&#xa0;; s&apos;il est déjà sorti, il est retiré</translation>
    </message>
    <message>
        <source>Chiama a caso uno dei numeri rimasti</source>
        <translation>Tirer au hasard un des numéros restants</translation>
    </message>
    <message>
        <source>Estrai</source>
        <translation>Tirer</translation>
    </message>
    <message>
        <source>Controllo di una scheda</source>
        <translation>Vérification d&apos;un carton</translation>
    </message>
    <message>
        <source>Scheda</source>
        <translation>Carton</translation>
    </message>
    <message>
        <source>Pagina e scheda, per esempio 12.3</source>
        <translation>Page et carton, par exemple 12.3</translation>
    </message>
    <message>
        <source>Mostra la scheda con i numeri chiamati</source>
        <translation>Afficher le carton avec les numéros sortis</translation>
    </message>
    <message>
        <source>Controlla</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Che cosa ha la scheda, e con quale chiamata</source>
        <translation>Ce que le carton a gagné, et à quel tirage</translation>
    </message>
    <message>
        <source>Vincite</source>
        <translation>Gains</translation>
    </message>
    <message>
        <source>Schede</source>
        <translation>Cartons</translation>
    </message>
    <message>
        <source>Le schede con tutti i numeri chiamati</source>
        <translation>Les cartons dont tous les numéros sont sortis</translation>
    </message>
    <message>
        <source>Le schede a cui manca un solo numero</source>
        <translation>Les cartons auxquels il ne manque qu&apos;un numéro</translation>
    </message>
    <message>
        <source>Chiama un numero</source>
        <translation>Saisir un numéro</translation>
    </message>
    <message>
        <source>Controlla una scheda</source>
        <translation>Vérifier un carton</translation>
    </message>
    <message>
        <source>Nuova partita...</source>
        <translation>Nouvelle partie...</translation>
    </message>
    <message>
        <source>Toglie tutti i numeri chiamati e ricomincia</source>
        <translation>Retirer tous les numéros sortis et recommencer</translation>
    </message>
    <message>
        <source>Apri registro...</source>
        <translation>Ouvrir un registre...</translation>
    </message>
    <message>
        <source>Apre un registro</source>
        <translation>Ouvrir un registre</translation>
    </message>
    <message>
        <source>Schermo intero</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>image</translation>
    </message>
    <message>
        <source>%1: chiamata %2, numero %3</source>
        <translation>%1&#xa0;: tirage %2, numéro %3</translation>
    </message>
    <message>
        <source>Nessuna vincita</source>
        <translation>Aucun gain</translation>
    </message>
    <message>
        <source>La partita non si può cominciare.</source>
        <translation>Impossible de commencer la partie.</translation>
    </message>
    <message>
        <source>Nuova partita, numeri da %1 a %2.</source>
        <translation>Nouvelle partie, numéros de %1 à %2.</translation>
    </message>
    <message>
        <source>Il numero %1 non è in gioco: i numeri vanno da %2 a %3!</source>
        <translation>Le numéro %1 n&apos;est pas en jeu&#xa0;: les numéros vont de %2 à %3&#xa0;!</translation>
    </message>
    <message>
        <source>La chiamata non si può salvare, nulla è cambiato.</source>
        <translation>Impossible d&apos;enregistrer le tirage&#xa0;; rien n&apos;a changé.</translation>
    </message>
    <message>
        <source>Chiamato il %1.</source>
        <translation>Sorti&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Tolto il %1.</source>
        <translation>Retiré&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Tutti i numeri sono stati chiamati!</source>
        <translation>Tous les numéros sont sortis&#xa0;!</translation>
    </message>
    <message>
        <source>Scrivere un numero da %1 a %2!</source>
        <translation>Saisir un numéro de %1 à %2&#xa0;!</translation>
    </message>
    <message>
        <source>Scrivere la pagina e la scheda, per esempio 12.3!</source>
        <translation>Saisir la page et le carton, par exemple 12.3&#xa0;!</translation>
    </message>
    <message>
        <source>La scheda %1 non esiste!</source>
        <translation>Il n&apos;y a pas de carton %1&#xa0;!</translation>
    </message>
    <message>
        <source>Scheda %1.</source>
        <translation>Carton %1.</translation>
    </message>
    <message>
        <source>Numeri chiamati: %1 di %2</source>
        <translation>Numéros sortis&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>In attesa di un numero: %1</source>
        <translation>À un numéro près&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nessuna scheda</source>
        <translation>Aucun carton</translation>
    </message>
    <message>
        <source>Scheda %1</source>
        <translation>Carton %1</translation>
    </message>
    <message>
        <source>La serata di prima non si può mettere da parte.</source>
        <translation>Impossible de mettre de côté la soirée précédente.</translation>
    </message>
    <message>
        <source>In %1 c&apos;è una serata con altre schede (numeri chiamati: %2).

Continuare quella? Con No ne comincia una nuova, e quella viene messa da parte.</source>
        <translation>Il y a une soirée avec d&apos;autres cartons (numéros sortis&#xa0;: %2) dans %1.

Continuer celle-là&#xa0;? Avec Non, une nouvelle commence et l&apos;ancienne est mise de côté.</translation>
    </message>
    <message>
        <source>La serata non si può salvare in %1.</source>
        <translation>Impossible d&apos;enregistrer la soirée dans %1.</translation>
    </message>
    <message>
        <source>Dove salvare la serata</source>
        <translation>Dossier de la soirée</translation>
    </message>
    <message>
        <source>Il registro non si può leggere.</source>
        <translation>Impossible de lire le registre.</translation>
    </message>
    <message>
        <source>Il registro non contiene schede.</source>
        <translation>Le registre ne contient aucun carton.</translation>
    </message>
    <message>
        <source>La serata non si può salvare accanto al registro.</source>
        <translation>Impossible d&apos;enregistrer la soirée à côté du registre.</translation>
    </message>
    <message>
        <source>La serata non può continuare.</source>
        <translation>La soirée ne peut pas continuer.</translation>
    </message>
    <message>
        <source>Schede: %1. Numeri da %2 a %3. Chiamati: %4.</source>
        <translation>Cartons&#xa0;: %1. Numéros de %2 à %3. Sortis&#xa0;: %4.</translation>
    </message>
    <message>
        <source>Questo registro è già aperto.</source>
        <translation>Ce registre est déjà ouvert.</translation>
    </message>
    <message>
        <source>&amp;Partita</source>
        <translation>&amp;Partie</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Visualizza</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>Righe illeggibili nel file delle chiamate: %1!</source>
        <translation>Lignes illisibles dans le fichier des tirages&#xa0;: %1&#xa0;!</translation>
    </message>
    <message>
        <source>Tombola: %1</source>
        <translation>Carton plein&#xa0;: %1</translation>
    </message>
    <message>
        <source>Il file delle chiamate non si può leggere.</source>
        <translation>Impossible de lire le fichier des tirages.</translation>
    </message>
    <message>
        <source>Le chiamate di prima sono illeggibili e sono state messe da parte:
%1</source>
        <translation>Les tirages précédents sont illisibles et ont été mis de côté&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Non è un file.</source>
        <translation>Ce n&apos;est pas un fichier.</translation>
    </message>
    <message>
        <source>Il registro non si può leggere fino in fondo. Schede lette: %1.</source>
        <translation>Le registre ne peut pas être lu jusqu&apos;au bout. Cartons lus&#xa0;: %1.</translation>
    </message>
    <message>
        <source>&amp;Aiuto</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Manuale</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Come si usa il programma, passo per passo</source>
        <translation>Comment utiliser le programme, pas à pas</translation>
    </message>
</context>
<context>
    <name>SpokenContent</name>
    <message>
        <source>numero</source>
        <translation>numéro</translation>
    </message>
    <message>
        <source>numero %1</source>
        <translation>numéro %1</translation>
    </message>
    <message>
        <source>testo</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>testo %1</source>
        <translation>texte %1</translation>
    </message>
    <message>
        <source>immagine</source>
        <translation>image</translation>
    </message>
    <message>
        <source>vuota</source>
        <translation>vide</translation>
    </message>
</context>
<context>
    <name>TabelloneModel</name>
    <message>
        <source>nessun numero</source>
        <translation>aucun numéro</translation>
    </message>
</context>
</TS>
