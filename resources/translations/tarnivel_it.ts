<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="fr">
<context>
    <name></name>
    <message id="Localisation.Infos_Texte">
        <source>Ce programme gère le fichier “scenery_packs.ini” d'X-Plane.
 
Sélectionnez le fichier Modèle qui contient le scenery dans le bon ordre. Ou sélectionnez le chemin de l'Url vers un fichier Modèle.
 
Éventuellement, sélectionnez un dossier pour sauvegarder l'ancien “scenery_packs.ini”.
 
Sélectionnez le fichier “scenery_packs.ini” de votre dossier X-Plane, ce fichier sera réordonné.
 
Cliquez Lancer.
 
Sélectionnez “Spack After” dans le PopupMenu. Si certaines lignes sont colorées, cela signifie qu'elles sont dans “scenery_packs.ini” mais pas dans le scenery Modèle.
Quand “Spack Mod” est sélectionné, si certaines lignes sont colorées, cela signifie qu'elles sont dans le scenery Modèle mais pas dans “scenery_packs.ini”.
 
Vous pouvez sélectionner une partie du texte dans la Zone de Texte et cliquez le bouton “Enable/Disable” pour inverser “SCENERY_PACK” et “SCENERY_PACK_DISABLED”.
 
Cliquez le bouton “Sauver” pour sauvegarder le texte contenu dans la zone de texte dans le fichier sélectionné dans le PopupMenu. Rien ne sera modifié dans votre fichier jusqu'à ce que vous cliquiez ce bouton.</source>
        <extracomment>The help text. Lines of a single blank stay as they are; buttons are named as they are translated below.</extracomment>
        <translation>Questo programma gestisce il file “scenery_packs.ini” di X-Plane.
 
Selezionare il file modello, che contiene gli scenari nell'ordine giusto. Oppure scegliere “URL modello” e indicare l'URL di un file modello.
 
Se lo si desidera, selezionare una cartella in cui conservare il vecchio “scenery_packs.ini”.
 
Selezionare il file “scenery_packs.ini” della propria cartella di X-Plane: è il file che verrà riordinato.
 
Fare clic su “Genera”.
 
Selezionare “Pack dopo” nel menu a comparsa. Le righe colorate sono in “scenery_packs.ini” ma non nel modello.
Quando è selezionato “Pack modello”, le righe colorate sono nel modello ma non in “scenery_packs.ini”.
 
Si può selezionare una parte del testo nell'area di testo e fare clic sul pulsante “Attiva / Disattiva” per scambiare “SCENERY_PACK” e “SCENERY_PACK_DISABLED”.
 
Fare clic sul pulsante “Salva file” per salvare il testo dell'area di testo nel file selezionato nel menu a comparsa. Il file non viene modificato finché non si fa clic su questo pulsante.</translation>
    </message>
    <message id="Localisation.Infos_Menu">
        <source>Le menu “Texte” ordonne le texte à la main : il déplace les lignes sélectionnées (Alt+Haut, Alt+Bas), les double (Ctrl+D) ou les supprime (Ctrl+Maj+K), va à la ligne colorée suivante ou précédente (F8, Maj+F8), au texte cherché suivant ou précédent (F3, Maj+F3), lance (F5), montre le dernier rapport, ajoute les dossiers absents du texte, désactive les lignes sans dossier et propose un modèle. Ctrl+Z reprend chaque modification, Ctrl+Y la rétablit.
 
La ligne sous la fenêtre dit où est le curseur et ce que la vue contient, puis ce qui vient d'être fait, ou pourquoi une action est refusée.</source>
        <extracomment>The end of the help text; the menu is named as it is translated below.</extracomment>
        <translation>Il menu “Testo” ordina il testo a mano: sposta le righe selezionate (Alt+Su, Alt+Giù), le duplica (Ctrl+D) o le elimina (Ctrl+Maiusc+K), va alla riga colorata successiva o precedente (F8, Maiusc+F8) e al testo cercato successivo o precedente (F3, Maiusc+F3), genera (F5), mostra l'ultimo rapporto, aggiunge le cartelle che mancano nel testo, disattiva le righe senza cartella e propone un modello. Ctrl+Z annulla ogni modifica, Ctrl+Y la ripristina.
 
La riga sotto la finestra dice dove si trova il cursore e che cosa contiene la vista, poi che cosa è stato appena fatto o perché un'azione è rifiutata.</translation>
    </message>
    <message id="Localisation.RdButtSourceA">
        <source>Fichier modèle</source>
        <extracomment>Radio button, room for 104 pixels: about 14 characters.</extracomment>
        <translation>File modello</translation>
    </message>
    <message id="Localisation.Btn_OpenUrl">
        <source>Ouvrir Url</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Apri URL</translation>
    </message>
    <message id="Localisation.StTextScenPack">
        <source>scenery_packs.ini</source>
        <extracomment>A file name: do not translate.</extracomment>
        <translation>scenery_packs.ini</translation>
    </message>
    <message id="Localisation.ChBoxArchive">
        <source>Sauv anc Spack</source>
        <extracomment>Check box (copy the old file into the archive folder before saving), room for 104 pixels: about 14 characters.</extracomment>
        <translation>Archivia vecchio</translation>
    </message>
    <message id="Localisation.Menu_FichSelFichMod">
        <source>Selectionner fichier modèle</source>
        <translation>Seleziona file modello</translation>
    </message>
    <message id="Localisation.Menu_FichSelDossArchiv">
        <source>Sélectionner dossier archives</source>
        <translation>Seleziona cartella archivio</translation>
    </message>
    <message id="Localisation.Menu_FichSelFichScenPack">
        <source>Selectionner fichier scenery_packs</source>
        <translation>Seleziona file scenery_packs</translation>
    </message>
    <message id="Localisation.RdButtSourceB">
        <source>Url modèle</source>
        <extracomment>Radio button, room for 104 pixels: about 14 characters.</extracomment>
        <translation>URL modello</translation>
    </message>
    <message id="Localisation.Btn_SelectDossier">
        <source>Sélect dossier</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Scegli cartella</translation>
    </message>
    <message id="Localisation.Btn_SelectFichier">
        <source>Sélect fichier</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Scegli file</translation>
    </message>
    <message id="Localisation.Btn_SauvFichier">
        <source>Sauv fichier</source>
        <extracomment>Button and menu item, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Salva file</translation>
    </message>
    <message id="Localisation.Btn_SauvFichier_HT">
        <source>Sauvegarder le texte affiché ci-dessous dans le fichier sélectionné dans le PopupMenu (donc le modèle ou le Scenery_packs)</source>
        <translation>Salva il testo mostrato qui sotto nel file selezionato nel menu a comparsa (cioè il modello o lo scenery_packs)</translation>
    </message>
    <message id="Localisation.Btn_Annuler">
        <source>Annuler</source>
        <extracomment>Button, room for 88 pixels: about 12 characters.</extracomment>
        <translation>Annulla</translation>
    </message>
    <message id="Localisation.Btn_Ok">
        <source>Ok</source>
        <extracomment>Button, room for 57 pixels: about 7 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="Localisation.Btn_Fermer">
        <source>Fermer</source>
        <extracomment>Button, room for 62 pixels: about 9 characters.</extracomment>
        <translation>Chiudi</translation>
    </message>
    <message id="Localisation.Menu_Edit">
        <source>Édition</source>
        <translation>Modifica</translation>
    </message>
    <message id="Localisation.Menu_EditUndo">
        <source>Annuler</source>
        <translation>Annulla</translation>
    </message>
    <message id="Localisation.Menu_EditRedo">
        <source>Rétablir</source>
        <translation>Ripeti</translation>
    </message>
    <message id="Localisation.Menu_EditClear">
        <source>Effacer</source>
        <translation>Elimina</translation>
    </message>
    <message id="Localisation.Menu_EditCopy">
        <source>Copier</source>
        <translation>Copia</translation>
    </message>
    <message id="Localisation.Menu_EditCut">
        <source>Couper</source>
        <translation>Taglia</translation>
    </message>
    <message id="Localisation.Menu_EditPaste">
        <source>Coller</source>
        <translation>Incolla</translation>
    </message>
    <message id="Localisation.Menu_EditSelectAll">
        <source>Tout sélectionner</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message id="Localisation.Menu_Fichier">
        <source>Fichier</source>
        <translation>File</translation>
    </message>
    <message id="Localisation.WinAide_Title">
        <source>Aide</source>
        <translation>Aiuto</translation>
    </message>
    <message id="Localisation.Btn_AffDoss">
        <source>Affich Dossier</source>
        <extracomment>Button, room for 108 pixels: about 15 characters.</extracomment>
        <translation>Mostra cartella</translation>
    </message>
    <message id="Localisation.Btn_AffDoss_HT">
        <source>Appliqué à la première ligne du texte sélectionné
Ouvre (révéle sur Mac) l'élément dans le Finder</source>
        <translation>Si applica alla prima riga del testo selezionato
Apre l'elemento (su Mac: lo mostra) nel gestore di file</translation>
    </message>
    <message id="Localisation.Btn_EnabDis">
        <source>Activer / Désactiver</source>
        <extracomment>Button, room for 128 pixels: about 17 characters.</extracomment>
        <translation>Attiva / Disattiva</translation>
    </message>
    <message id="Localisation.Btn_Select_HT">
        <source>⇧ clic sur le bouton pour révéler cet élément</source>
        <translation>⇧ Maiusc + clic sul pulsante per mostrare questo elemento</translation>
    </message>
    <message id="Localisation.Btn_EnabDis_HT">
        <source>Appliqué au texte sélectionné
Presser la touche ⇧ pour activer
Presser la touche ⌃ pour désactiver</source>
        <translation>Si applica al testo selezionato
Tenere premuto il tasto ⇧ Maiusc per attivare
Tenere premuto il tasto ⌃ Ctrl per disattivare</translation>
    </message>
    <message id="Localisation.Btn_Arreter">
        <source>Arrêter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Ferma</translation>
    </message>
    <message id="Localisation.Btn_Generer">
        <source>Générer</source>
        <extracomment>Button, room for 114 pixels: about 15 characters.</extracomment>
        <translation>Genera</translation>
    </message>
    <message id="Localisation.Btn_Historic">
        <source>Historique</source>
        <translation>Cronologia delle versioni</translation>
    </message>
    <message id="Localisation.Btn_Chercher_HT">
        <source>Chercher</source>
        <translation>Cerca</translation>
    </message>
    <message id="Localisation.PopupAff">
        <source>Spack Modèle
Spack Avant
Spack Après</source>
        <extracomment>Three rows of a pop-up menu, room for 96 pixels each: about 13 characters. The texts: the model, the file before and after the run.</extracomment>
        <translation>Pack modello
Pack prima
Pack dopo</translation>
    </message>
    <message id="Localisation.Nb_Lignes">
        <source>ligne|lignes</source>
        <translation>riga|righe</translation>
    </message>
    <message id="Localisation.Nb_Activees">
        <source>activée|activées</source>
        <translation>attivata|attivate</translation>
    </message>
    <message id="Localisation.Nb_Desactivees">
        <source>désactivée|désactivées</source>
        <translation>disattivata|disattivate</translation>
    </message>
    <message id="Localisation.Nb_SansEquiv">
        <source>sans équivalent|sans équivalent</source>
        <translation>senza equivalente|senza equivalente</translation>
    </message>
    <message id="Localisation.Nb_Remarques">
        <source>remarque|remarques</source>
        <translation>segnalazione|segnalazioni</translation>
    </message>
    <message id="Localisation.Nb_Modifiees">
        <source>ligne modifiée|lignes modifiées</source>
        <translation>riga modificata|righe modificate</translation>
    </message>
    <message id="Localisation.Dit_Ligne">
        <source>Ligne ¿%</source>
        <translation>Riga ¿%</translation>
    </message>
    <message id="Localisation.Dit_Reordonne">
        <source>Réordonné : ¿%</source>
        <translation>Riordinato: ¿%</translation>
    </message>
    <message id="Localisation.Dit_Arrete">
        <source>Arrêté : rien n'a été réordonné</source>
        <translation>Fermato: nulla è stato riordinato</translation>
    </message>
    <message id="Localisation.Dit_ModeleRefuse">
        <source>Modèle refusé : ¿%</source>
        <translation>Modello rifiutato: ¿%</translation>
    </message>
    <message id="Localisation.Dit_SpackRefuse">
        <source>scenery_packs.ini refusé : ¿%</source>
        <translation>scenery_packs.ini rifiutato: ¿%</translation>
    </message>
    <message id="Localisation.Dit_FinsWindows">
        <source>fins de ligne Windows</source>
        <translation>fini di riga Windows</translation>
    </message>
    <message id="Localisation.Dit_Bom">
        <source>marque d'ordre d'octets (BOM)</source>
        <translation>indicatore di ordine dei byte (BOM)</translation>
    </message>
    <message id="Localisation.Dit_Vide">
        <source>vide ou illisible</source>
        <translation>vuoto o illeggibile</translation>
    </message>
    <message id="Localisation.Dit_SansEntete">
        <source>ne commence pas comme un scenery_packs.ini</source>
        <translation>non comincia come uno scenery_packs.ini</translation>
    </message>
    <message id="Localisation.Dit_Enregistre">
        <source>Enregistré : ¿%</source>
        <translation>Salvato: ¿%</translation>
    </message>
    <message id="Localisation.Dit_Archive">
        <source>ancien fichier : ¿%</source>
        <translation>vecchio file: ¿%</translation>
    </message>
    <message id="Localisation.Dit_PasEnregistre">
        <source>Rien n'a été enregistré</source>
        <translation>Nulla è stato salvato</translation>
    </message>
    <message id="Localisation.Dit_ModelePasEnregistre">
        <source>Le modèle affiché n'est pas encore enregistré : enregistrez-le d'abord</source>
        <translation>Il modello mostrato non è ancora salvato: salvatelo prima</translation>
    </message>
    <message id="Localisation.Err_PasDeReponse">
        <source>Pas de réponse complète en 10 secondes</source>
        <translation>Nessuna risposta completa in 10 secondi</translation>
    </message>
    <message id="Localisation.Err_ReponseTropLongue">
        <source>La réponse a plus de 8 Mio ou de 250 000 lignes</source>
        <translation>La risposta ha più di 8 MiB o di 250.000 righe</translation>
    </message>
    <message id="Localisation.Err_ReponseCoupee">
        <source>La réponse a été coupée</source>
        <translation>La risposta si è interrotta</translation>
    </message>
    <message id="Localisation.Dit_Introuvable">
        <source>“¿%” introuvable</source>
        <translation>“¿%” non trovato</translation>
    </message>
    <message id="Localisation.Dit_SeulTrouve">
        <source>“¿%” : pas d'autre occurrence</source>
        <translation>“¿%”: nessun'altra occorrenza</translation>
    </message>
    <message id="Localisation.Dit_RepriseDebut">
        <source>Reprise au début du texte</source>
        <translation>Ripreso dall'inizio del testo</translation>
    </message>
    <message id="Localisation.Dit_RepriseFin">
        <source>Reprise à la fin du texte</source>
        <translation>Ripreso dalla fine del testo</translation>
    </message>
    <message id="Localisation.Dit_RienChercher">
        <source>Rien à chercher : le champ de recherche est vide</source>
        <translation>Nulla da cercare: il campo di ricerca è vuoto</translation>
    </message>
    <message id="Localisation.Dit_AucuneMarque">
        <source>Aucune ligne sans équivalent dans ce texte</source>
        <translation>Nessuna riga senza equivalente in questo testo</translation>
    </message>
    <message id="Localisation.Dit_PasLa">
        <source>N'existe pas : ¿%</source>
        <translation>Non esiste: ¿%</translation>
    </message>
    <message id="Localisation.Dit_PasDossier">
        <source>Cette ligne ne nomme pas de dossier de Custom Scenery</source>
        <translation>Questa riga non indica alcuna cartella di Custom Scenery</translation>
    </message>
    <message id="Localisation.Dit_Occupe">
        <source>Un traitement ou un dialogue est en cours : terminez-le d'abord</source>
        <translation>Un’elaborazione o una finestra di dialogo è aperta: terminatela prima</translation>
    </message>
    <message id="Localisation.Txt_ProbLignPresDxFois">
        <source>Problème, la ligne ci-dessous est présente plus d'une fois :</source>
        <translation>Problema: la riga qui sotto è presente più di una volta:</translation>
    </message>
    <message id="Localisation.Txt_ProbLignEquiv">
        <source>Problème, les lignes ci-dessous sont équivalentes :</source>
        <translation>Problema: le righe qui sotto sono equivalenti:</translation>
    </message>
    <message id="Localisation.Txt_ScenPlusDuneFois">
        <source>Ces Sceneries sont plus d'une fois dans le SceneryModel :</source>
        <translation>Questi scenari sono presenti più di una volta nel modello:</translation>
    </message>
    <message id="Localisation.Txt_UrlDoitCommencer">
        <source>L'url devrait commencer avec 'http://' o 'https://'.</source>
        <translation>L'URL dovrebbe iniziare con 'http://' o 'https://'.</translation>
    </message>
    <message id="Localisation.Txt_DossDsDossPasDsScen">
        <source>Ces dossiers sont dans le dossier “Custom Scenery” mais pas dans “scenery_packs.ini” :</source>
        <translation>Queste cartelle sono nella cartella “Custom Scenery” ma non in “scenery_packs.ini”:</translation>
    </message>
    <message id="Localisation.Txt_ScenDsScenIniPasDsDoss">
        <source>Ces Sceneries sont dans “scenery_packs.ini” mais pas dans le dossier “Custom Scenery” :</source>
        <translation>Questi scenari sono in “scenery_packs.ini” ma non nella cartella “Custom Scenery”:</translation>
    </message>
    <message id="Localisation.Txt_ProblemCompInitFinal">
        <source>Il y a eu un problème, veuillez comparer le fichier intial avec le fichier final.</source>
        <translation>Si è verificato un problema: confrontare il file iniziale con il file finale.</translation>
    </message>
    <message id="Localisation.Txt_ScenAutreCasse">
        <source>X-Plane ne chargera pas ces Sceneries, leur dossier (entre parenthèses) ayant d'autres majuscules :</source>
        <translation>X-Plane non caricherà questi scenari, perché la loro cartella (tra parentesi) ha altre maiuscole:</translation>
    </message>
    <message id="Localisation.Txt_PlusDsFichier">
        <source>Dans le fichier initial, mais pas ou moins souvent dans le fichier final :</source>
        <translation>Nel file iniziale, ma non o meno spesso nel file finale:</translation>
    </message>
    <message id="Localisation.Txt_PlusDsResultat">
        <source>Dans le fichier final, mais pas ou moins souvent dans le fichier initial :</source>
        <translation>Nel file finale, ma non o meno spesso nel file iniziale:</translation>
    </message>
    <message id="Localisation.Txt_LignesVides">
        <source>Lignes vides : ¿% dans le fichier initial, ¿% dans le fichier final.</source>
        <translation>Righe vuote: ¿% nel file iniziale, ¿% nel file finale.</translation>
    </message>
    <message id="Localisation.Menu_TexteProposer">
        <source>Proposer un modèle…</source>
        <translation>Proponi un modello…</translation>
    </message>
    <message id="Localisation.Txt_ChoisirModele">
        <source>Enregistrer le modèle proposé sous :</source>
        <translation>Salva il modello proposto come:</translation>
    </message>
    <message id="Localisation.Dit_PropArretee">
        <source>Arrêté : aucun modèle n'a été proposé</source>
        <translation>Fermato: nessun modello è stato proposto</translation>
    </message>
    <message id="Localisation.Dit_OffreModele">
        <source>le menu “Texte” peut en proposer un</source>
        <translation>il menu “Testo” può proporne uno</translation>
    </message>
    <message id="Localisation.Menu_Texte">
        <source>Texte</source>
        <translation>Testo</translation>
    </message>
    <message id="Localisation.Txt_PropFait">
        <source>Le modèle est proposé, mais pas encore enregistré.</source>
        <translation>Il modello è proposto, ma non ancora salvato.</translation>
    </message>
    <message id="Localisation.Txt_PropAeroports">
        <source>Aéroports : ¿%</source>
        <translation>Aeroporti: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropAeroportsXP">
        <source>Aéroports de X-Plane : ¿%</source>
        <translation>Aeroporti di X-Plane: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropOverlays">
        <source>Surcouches (overlays) : ¿%</source>
        <translation>Sovrapposizioni (overlay): ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropInconnus">
        <source>Inconnus : ¿%</source>
        <translation>Sconosciuti: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropPlugins">
        <source>Greffons (plugins) : ¿%</source>
        <translation>Estensioni (plugin): ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropBibliotheques">
        <source>Bibliothèques : ¿%</source>
        <translation>Librerie: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropMaillages">
        <source>Maillages et tuiles photo : ¿%</source>
        <translation>Mesh di base e riquadri fotografici: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropDoublons">
        <source>Omis, une autre ligne nommant la même scène : ¿%</source>
        <translation>Omessi, perché un'altra riga nomina lo stesso scenario: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropSansLigne">
        <source>Omis, aucune ligne ne pouvant tenir le nom : ¿%</source>
        <translation>Omessi, perché nessuna riga può contenere il nome: ¿%</translation>
    </message>
    <message id="Localisation.Txt_RaisonDossAbsent">
        <source>le dossier manque</source>
        <translation>manca la cartella</translation>
    </message>
    <message id="Localisation.Txt_RaisonRien">
        <source>rien n'y dit ce que c'est</source>
        <translation>niente dice che cosa sia</translation>
    </message>
    <message id="Localisation.Txt_RaisonIllisible">
        <source>“¿%” ne peut pas être lu : ¿%</source>
        <translation>«¿%» non può essere letto: ¿%</translation>
    </message>
    <message id="Localisation.Txt_RaisonTuileAbimee">
        <source>tuile abîmée, ou comprimée autrement qu'en LZMA</source>
        <translation>riquadro danneggiato, o compresso in modo diverso da LZMA</translation>
    </message>
    <message id="Localisation.Txt_RaisonPasUnPack">
        <source>ce n'est pas une ligne de pack</source>
        <translation>non è la riga di un pacchetto</translation>
    </message>
    <message id="Localisation.Dit_PasUtf8">
        <source>ce n'est pas de l'UTF-8</source>
        <translation>non è UTF-8</translation>
    </message>
    <message id="Localisation.Txt_OrdreAide">
        <source>Utilisation : tarnivel-order [--check] MODÈLE SCENERY_PACKS
              tarnivel-order --propose SCENERY_PACKS
              tarnivel-order --help | --version

Écrit les lignes de SCENERY_PACKS dans l'ordre de MODÈLE sur la sortie standard,
et ce qui ne concorde pas sur celle des erreurs. “-” est l'entrée standard.
Aucun fichier n'est modifié.

  --check    n'écrit que ce qui ne concorde pas
  --propose  écrit un modèle d'après ce que contiennent les packs

État de sortie : 0 tout concorde, 1 quelque chose a été signalé,
2 un texte a été refusé ou n'a pu être lu, 64 mauvaise utilisation.</source>
        <translation>Uso: tarnivel-order [--check] MODELLO SCENERY_PACKS
     tarnivel-order --propose SCENERY_PACKS
     tarnivel-order --help | --version

Scrive le righe di SCENERY_PACKS nell'ordine di MODELLO sullo standard output,
e ciò che non concorda sullo standard error. “-” è lo standard input.
Nessun file viene modificato.

  --check    scrive solo ciò che non concorda
  --propose  scrive un modello secondo ciò che i pacchetti contengono

Stato di uscita: 0 tutto concorda, 1 qualcosa è stato segnalato,
2 un testo è stato rifiutato o non è leggibile, 64 uso errato.</translation>
    </message>
    <message id="Localisation.Btn_Cont">
        <source>Continuer</source>
        <translation>Continua</translation>
    </message>
    <message id="Localisation.Txt_TexteModifie">
        <source>Le texte a été modifié et n'est pas enregistré. Continuer sans enregistrer ?</source>
        <translation>Il testo è stato modificato e non salvato. Continuare senza salvare?</translation>
    </message>
    <message id="Localisation.Txt_TxtAreaPasScenPack">
        <source>Le TextArea ne contient pas de scenery_packs.</source>
        <translation>L'area di testo non contiene uno scenery_packs.</translation>
    </message>
    <message id="Localisation.Txt_PasAncFichAsauv">
        <source>Il n'y a pas d'ancien fichier à sauvegarder.</source>
        <translation>Non c'è alcun vecchio file da conservare.</translation>
    </message>
    <message id="Localisation.Txt_ImpLocDossSauvAnc">
        <source>Impossible de localiser le dossier où sauvegarder l'ancien fichier.</source>
        <translation>Impossibile trovare la cartella in cui conservare il vecchio file.</translation>
    </message>
    <message id="Localisation.Txt_ImpLocDossSauvFich">
        <source>Impossible de localiser le dossier où sauvegarder le fichier.</source>
        <translation>Impossibile trovare la cartella in cui salvare il file.</translation>
    </message>
    <message id="Localisation.Txt_SurSauv">
        <source>Êtes-vous sûr de vouloir enregistrer “¿%” comme “¿%” ?</source>
        <extracomment>The placeholders: the name on screen, the name of the file.</extracomment>
        <translation>Salvare davvero “¿%” come “¿%”?</translation>
    </message>
    <message id="Localisation.Txt_ErreurEcrNouvScen">
        <source>Erreur pendant l'écriture du nouveau scenery_packs.</source>
        <translation>Errore durante la scrittura del nuovo scenery_packs.</translation>
    </message>
    <message id="Localisation.Txt_ErreurCopiAncScen">
        <source>Erreur pendant la copie de l'ancien (précédent) scenery_packs.</source>
        <translation>Errore durante la copia del vecchio (precedente) scenery_packs.</translation>
    </message>
    <message id="Localisation.Btn_Quit">
        <source>Quitter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Esci</translation>
    </message>
    <message id="Localisation.WinSpecA_Title">
        <source>Spécial A</source>
        <extracomment>Window title and button, room for 88 pixels: about 12 characters.</extracomment>
        <translation>Speciale A</translation>
    </message>
    <message id="Localisation.GrBox_HT">
        <source>Glisser déposer un fichier ici (⇧ clic sur le bouton pour révéler ce fichier dans le Finder)</source>
        <translation>Trascinare qui un file (⇧ Maiusc + clic sul pulsante per mostrare questo file nel gestore di file)</translation>
    </message>
    <message id="Localisation.GrBoxSource">
        <source>Source</source>
        <translation>Sorgente</translation>
    </message>
    <message id="Localisation.Btn_ChoisirFich">
        <source>Choisir fichier…</source>
        <extracomment>Button, room for 140 pixels: about 19 characters.</extracomment>
        <translation>Scegli file…</translation>
    </message>
    <message id="Localisation.LabOrg">
        <source>Original :</source>
        <extracomment>Label, room for 58 pixels: about 8 characters.</extracomment>
        <translation>Origine:</translation>
    </message>
    <message id="Localisation.Btn_Trait">
        <source>Traiter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Elabora</translation>
    </message>
    <message id="Localisation.Txt_DropQueFichTxt">
        <source>Vous ne pouvez glisser déposer qu'un fichier contenant du texte ici.</source>
        <translation>Qui si può trascinare solo un file che contiene testo.</translation>
    </message>
    <message id="Localisation.Txt_DropQueDoss">
        <source>Vous ne pouvez glisser déposer qu'un dossier ici.</source>
        <translation>Qui si può trascinare solo una cartella.</translation>
    </message>
    <message id="Localisation.Dit_AliasMort">
        <source>Cet alias ne mène nulle part.</source>
        <translation>Questo alias non porta da nessuna parte.</translation>
    </message>
    <message id="Localisation.Dit_PasGestionnaire">
        <source>Aucun gestionnaire de fichiers ne répond.</source>
        <translation>Nessun gestore di file risponde.</translation>
    </message>
    <message id="Localisation.Dit_PasDeLien">
        <source>Aucun programme n'ouvre ce lien : ¿%</source>
        <translation>Nessun programma apre questo link: ¿%</translation>
    </message>
    <message id="Localisation.Dit_ParBouton">
        <source>Cette fenêtre se ferme par l'un de ses boutons.</source>
        <translation>Chiudete questa finestra con uno dei suoi pulsanti.</translation>
    </message>
    <message id="Localisation.Txt_NomNonGarde">
        <source>Le nom de cet élément ne peut pas être gardé : il n'est pas en UTF-8, ou un autre élément a presque le même.</source>
        <translation>Il nome di questo elemento non può essere conservato: non è in UTF-8, oppure un altro elemento ha quasi lo stesso.</translation>
    </message>
    <message id="Localisation.Txt_ChoisirUnFich">
        <source>Choisir un fichier :</source>
        <translation>Scegliere un file:</translation>
    </message>
    <message id="Localisation.Txt_FiltreTexte">
        <source>Fichiers texte</source>
        <translation>File di testo</translation>
    </message>
    <message id="Localisation.Txt_FiltreTous">
        <source>Tous les fichiers</source>
        <translation>Tutti i file</translation>
    </message>
    <message id="Localisation.Txt_ChoisirDossArchiv">
        <source>Choisir le dossier où garder les anciens “scenery_packs.ini” :</source>
        <translation>Scegliere la cartella in cui conservare i vecchi “scenery_packs.ini”:</translation>
    </message>
    <message id="Localisation.Txt_SelectQueFichTxt">
        <source>Vous pouvez seulement sélectionner un fichier texte.</source>
        <translation>Si può selezionare solo un file di testo.</translation>
    </message>
    <message id="Localisation.LabDest1">
        <source>Dest 1 :</source>
        <extracomment>Label, room for 58 pixels: about 8 characters.</extracomment>
        <translation>Dest. 1:</translation>
    </message>
    <message id="Localisation.LabDest2">
        <source>Dest 2 :</source>
        <extracomment>Label, room for 58 pixels: about 8 characters.</extracomment>
        <translation>Dest. 2:</translation>
    </message>
    <message id="Localisation.Txt_Attente">
        <source>…</source>
        <translation>…</translation>
    </message>
    <message id="Localisation.Txt_FichOrgNonDef">
        <source>Le fichier original n'existe pas.</source>
        <translation>Il file originale non esiste.</translation>
    </message>
    <message id="Localisation.Txt_NomExiste">
        <source>Un fichier nommé “¿%” existe déjà.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>Esiste già un file di nome “¿%”.</translation>
    </message>
    <message id="Localisation.Txt_Rempl_Imposs">
        <source>Remplacement impossible !</source>
        <translation>Sostituzione impossibile!</translation>
    </message>
    <message id="Localisation.Txt_ErreurEcritFich">
        <source>Il y a eu une erreur pendant l'écriture du fichier.</source>
        <translation>Si è verificato un errore durante la scrittura del file.</translation>
    </message>
    <message id="Localisation.Txt_FichPasModif">
        <source>Le fichier n'a pas été modifié, souhaitez-vous l'enregistrer tout de même ?</source>
        <translation>Il file non è stato modificato. Salvarlo comunque?</translation>
    </message>
    <message id="Localisation.Btn_Remplacer">
        <source>Remplacer</source>
        <translation>Sostituisci</translation>
    </message>
    <message id="Localisation.Btn_NePasRempl">
        <source>Ne pas remplacer</source>
        <translation>Non sostituire</translation>
    </message>
    <message id="Localisation.Txt_NbTrouv">
        <source>Nombre de fois où les textes cherchés ont été trouvés :</source>
        <translation>Numero di volte in cui i testi cercati sono stati trovati:</translation>
    </message>
    <message id="Localisation.Dit_TropLignes">
        <source>Le tableau ne peut pas avoir plus de 1 000 lignes.</source>
        <translation>La tabella non può avere più di 1.000 righe.</translation>
    </message>
    <message id="Localisation.Dit_TropLong">
        <source>Trop long : une colonne du tableau peut avoir 2 000 000 de caractères.</source>
        <translation>Troppo lungo: una colonna della tabella può avere 2.000.000 di caratteri.</translation>
    </message>
    <message id="Localisation.Dit_TropColonnes">
        <source>Les cellules au-delà de la troisième colonne ont été laissées de côté.</source>
        <translation>Le celle oltre la terza colonna sono state tralasciate.</translation>
    </message>
    <message id="Localisation.Dit_RienEnlever">
        <source>Aucune ligne n'est sélectionnée, et la dernière n'est pas vide.</source>
        <translation>Nessuna riga è selezionata e l'ultima non è vuota.</translation>
    </message>
    <message id="Localisation.Txt_LectureImp">
        <source>Le fichier original ne peut pas être lu.</source>
        <translation>Il file originale non può essere letto.</translation>
    </message>
    <message id="Localisation.Txt_TropGrand">
        <source>“¿%” deviendrait trop long et n'est pas écrit.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>“¿%” diventerebbe troppo lungo e non viene scritto.</translation>
    </message>
    <message id="Localisation.Txt_MemoireManque">
        <source>La mémoire ne suffit pas pour ce traitement.</source>
        <translation>La memoria non basta per questo trattamento.</translation>
    </message>
    <message id="Localisation.Txt_DossierPlein">
        <source>“¿%” est un dossier. Ce qu'il contient sera supprimé avec lui. Nombre d'éléments : ¿%.</source>
        <extracomment>The placeholders: the name of a folder, and how many items are in it.</extracomment>
        <translation>“¿%” è una cartella. Il suo contenuto verrà eliminato con essa. Numero di elementi: ¿%.</translation>
    </message>
    <message id="Localisation.Txt_RemplOriginal">
        <source>“¿%” est le fichier original lui-même. Son texte d'avant sera perdu.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>“¿%” è il file originale stesso. Il suo testo precedente andrà perso.</translation>
    </message>
    <message id="Localisation.Dit_TraitArrete">
        <source>Traitement arrêté, rien n'a été écrit.</source>
        <translation>Elaborazione interrotta, non è stato scritto nulla.</translation>
    </message>
    <message id="Localisation.Dit_RienEcrit">
        <source>Rien n'a été écrit.</source>
        <translation>Non è stato scritto nulla.</translation>
    </message>
    <message id="Localisation.Dit_EcritDans">
        <source>Écrit : ¿%, dans ¿%.</source>
        <extracomment>The placeholders: names of files, and the path of their folder.</extracomment>
        <translation>Scritto: ¿%, in ¿%.</translation>
    </message>
    <message id="Localisation.Btn_CopiList_HT">
        <source>Copier la liste dans le presse-papiers</source>
        <translation>Copia l'elenco negli appunti</translation>
    </message>
    <message id="Localisation.Txt_OctetsRetires">
        <source>“¿%” contient des octets qui ne sont pas de l'UTF-8. Les caractères non ASCII en ont été retirés, dans ¿% ligne(s). La première est la ligne ¿% :
¿%</source>
        <extracomment>What bytes that are no UTF-8 cost. Placeholders: file or address, number of lines, number of the first line, that line.</extracomment>
        <translation>“¿%” contiene byte che non sono UTF-8. I caratteri non ASCII sono stati tolti, in ¿% riga/righe. La prima è la riga ¿%:
¿%</translation>
    </message>
    <message id="Localisation.Txt_SauvTexteAbime">
        <source>Des caractères de ce texte ont été retirés à la lecture, parce que son fichier contient des octets qui ne sont pas de l'UTF-8. L'enregistrer quand même ?</source>
        <extracomment>Question before a save.</extracomment>
        <translation>Alla lettura sono stati tolti caratteri da questo testo, perché il suo file contiene byte che non sono UTF-8. Registrarlo comunque?</translation>
    </message>
    <message id="Localisation.Txt_FichierChange">
        <source>“¿%” a changé sur le disque depuis qu'il a été lu. L'enregistrement fera perdre ces changements.</source>
        <extracomment>Question before a save. Placeholder: the file's path.</extracomment>
        <translation>“¿%” è cambiato sul disco da quando è stato letto. Registrando si perderanno queste modifiche.</translation>
    </message>
    <message id="Localisation.Txt_FormeTexte">
        <source>“¿%” n'est pas un simple texte UTF-8 aux fins de ligne LF : ¿%.</source>
        <extracomment>In the status line. Placeholders: file or address, and what it is, as in “BOM, CR LF” or “UTF-16”.</extracomment>
        <translation>“¿%” non è un semplice testo UTF-8 con fine riga LF: ¿%.</translation>
    </message>
    <message id="Localisation.Txt_PrefsGardees">
        <source>Avant d'être remplacé, l'ancien fichier de réglages sera renommé “¿%”.</source>
        <extracomment>Told when the settings could not be read as they are. Placeholder: a file name.</extracomment>
        <translation>Prima di essere sostituito, il vecchio file delle impostazioni sarà rinominato “¿%”.</translation>
    </message>
    <message id="Localisation.Txt_PrefsNonGardees">
        <source>Le dossier “¿%” n'est pas utilisable (¿%) : les réglages ne seront pas gardés.</source>
        <extracomment>Told at the start. Placeholders: the folder's path, the reason.</extracomment>
        <translation>La cartella “¿%” non è utilizzabile (¿%): le impostazioni non saranno conservate.</translation>
    </message>
    <message id="Localisation.Txt_PrefsNonReprises">
        <source>Les réglages d'une version plus ancienne n'ont pas pu être déplacés et servent là où ils sont, dans “¿%” : ¿%.</source>
        <extracomment>Told at the start. Placeholders: the place of an older version's settings, the reason.</extracomment>
        <translation>Le impostazioni di una versione precedente non sono state spostate e si usano dove sono, in “¿%”: ¿%.</translation>
    </message>
    <message id="Localisation.Pref_ChBoxAffBtnSpecA">
        <source>Afficher bouton “Spécial A”</source>
        <extracomment>Check box, room for 338 pixels: about 46 characters.</extracomment>
        <translation>Mostra il pulsante “Speciale A”</translation>
    </message>
    <message id="Localisation.Menu_Preferences">
        <source>Préférences…</source>
        <translation>Preferenze…</translation>
    </message>
    <message id="Localisation.Menu_Rapport">
        <source>Dernier rapport</source>
        <translation>Ultimo rapporto</translation>
    </message>
    <message id="Localisation.Menu_Monter">
        <source>Monter les lignes</source>
        <translation>Sposta le righe in su</translation>
    </message>
    <message id="Localisation.Menu_Descendre">
        <source>Descendre les lignes</source>
        <translation>Sposta le righe in giù</translation>
    </message>
    <message id="Localisation.Menu_Doubler">
        <source>Doubler les lignes</source>
        <translation>Raddoppia le righe</translation>
    </message>
    <message id="Localisation.Menu_Supprimer">
        <source>Supprimer les lignes</source>
        <translation>Elimina le righe</translation>
    </message>
    <message id="Localisation.Menu_MarqueSuiv">
        <source>Ligne sans équivalent suivante</source>
        <translation>Riga senza equivalente successiva</translation>
    </message>
    <message id="Localisation.Menu_MarquePrec">
        <source>Ligne sans équivalent précédente</source>
        <translation>Riga senza equivalente precedente</translation>
    </message>
    <message id="Localisation.Menu_CherchSuiv">
        <source>Chercher le suivant</source>
        <translation>Trova successivo</translation>
    </message>
    <message id="Localisation.Menu_CherchPrec">
        <source>Chercher le précédent</source>
        <translation>Trova precedente</translation>
    </message>
    <message id="Localisation.Menu_Ajouter">
        <source>Ajouter les dossiers absents du texte</source>
        <translation>Aggiungi le cartelle mancanti</translation>
    </message>
    <message id="Localisation.Menu_DesactSansDoss">
        <source>Désactiver les lignes sans dossier</source>
        <translation>Disattiva le righe senza cartella</translation>
    </message>
    <message id="Localisation.Nb_Ajoutees">
        <source>ligne ajoutée|lignes ajoutées</source>
        <translation>riga aggiunta|righe aggiunte</translation>
    </message>
    <message id="Localisation.Dit_PasPlusLoin">
        <source>Impossible de déplacer plus loin</source>
        <translation>Non si può spostare oltre</translation>
    </message>
    <message id="Localisation.Dit_PasDeLigne">
        <source>Il n'y a pas de ligne ici</source>
        <translation>Qui non c'è nessuna riga</translation>
    </message>
    <message id="Localisation.Dit_SansDossiers">
        <source>Le dossier Custom Scenery n'est pas accessible</source>
        <translation>La cartella Custom Scenery non è accessibile</translation>
    </message>
    <message id="Localisation.Dit_PasDeRapport">
        <source>Rien à signaler</source>
        <translation>Nulla da segnalare</translation>
    </message>
    <message id="Localisation.WinPref_Title">
        <source>Préférences</source>
        <translation>Preferenze</translation>
    </message>
    <message id="Localisation.StText_VolSfx">
        <source>Effets sonores :</source>
        <extracomment>Label, room for 130 pixels: about 17 characters.</extracomment>
        <translation>Effetti sonori:</translation>
    </message>
    <message id="Localisation.Btn_Aide_HT">
        <source>Cette version a été compilée pour ¿% le ¿%</source>
        <extracomment>The placeholders: the kind of build, its date.</extracomment>
        <translation>Questa versione è stata compilata per ¿% il ¿%</translation>
    </message>
</context>
</TS>
