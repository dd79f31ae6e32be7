<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="fr">
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
        <translation>This program takes care of X-Plane's “scenery_packs.ini” file.
 
Select the model file, which lists the sceneries in the right order. Or choose “Model URL” and give the URL of a model file.
 
If you like, select a folder that keeps a copy of the old “scenery_packs.ini”.
 
Select the “scenery_packs.ini” file of your X-Plane folder: this is the file that will be reordered.
 
Click “Generate”.
 
Select “Packs after” in the pop-up menu. Coloured lines are in “scenery_packs.ini” but not in the model.
When “Packs model” is selected, coloured lines are in the model but not in “scenery_packs.ini”.
 
You can select a part of the text in the text area and click the “Enable / Disable” button to swap “SCENERY_PACK” and “SCENERY_PACK_DISABLED”.
 
Click the “Save file” button to save the text of the text area to the file selected in the pop-up menu. Nothing changes in your file until you click this button.</translation>
    </message>
    <message id="Localisation.Infos_Menu">
        <source>Le menu “Texte” ordonne le texte à la main : il déplace les lignes sélectionnées (Alt+Haut, Alt+Bas), les double (Ctrl+D) ou les supprime (Ctrl+Maj+K), va à la ligne colorée suivante ou précédente (F8, Maj+F8), au texte cherché suivant ou précédent (F3, Maj+F3), lance (F5), montre le dernier rapport, ajoute les dossiers absents du texte, désactive les lignes sans dossier et propose un modèle. Ctrl+Z reprend chaque modification, Ctrl+Y la rétablit.
 
La ligne sous la fenêtre dit où est le curseur et ce que la vue contient, puis ce qui vient d'être fait, ou pourquoi une action est refusée.</source>
        <extracomment>The end of the help text; the menu is named as it is translated below.</extracomment>
        <translation>The menu “Text” puts the text in order by hand: it moves the selected lines (Alt+Up, Alt+Down), doubles them (Ctrl+D) or deletes them (Ctrl+Shift+K), goes to the next or previous coloured line (F8, Shift+F8) and to the next or previous match of the search (F3, Shift+F3), generates (F5), shows the last report, adds the folders that the text lacks, disables lines without a folder and proposes a model. Ctrl+Z takes each change back, Ctrl+Y makes it again.
 
The line below the window tells where the caret is and what the view holds, then what was just done, or why an action is refused.</translation>
    </message>
    <message id="Localisation.RdButtSourceA">
        <source>Fichier modèle</source>
        <extracomment>Radio button, room for 104 pixels: about 14 characters.</extracomment>
        <translation>Model file</translation>
    </message>
    <message id="Localisation.Btn_OpenUrl">
        <source>Ouvrir Url</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Open URL</translation>
    </message>
    <message id="Localisation.StTextScenPack">
        <source>scenery_packs.ini</source>
        <extracomment>A file name: do not translate.</extracomment>
        <translation>scenery_packs.ini</translation>
    </message>
    <message id="Localisation.ChBoxArchive">
        <source>Sauv anc Spack</source>
        <extracomment>Check box (copy the old file into the archive folder before saving), room for 104 pixels: about 14 characters.</extracomment>
        <translation>Back up old file</translation>
    </message>
    <message id="Localisation.Menu_FichSelFichMod">
        <source>Selectionner fichier modèle</source>
        <translation>Select model file</translation>
    </message>
    <message id="Localisation.Menu_FichSelDossArchiv">
        <source>Sélectionner dossier archives</source>
        <translation>Select archive folder</translation>
    </message>
    <message id="Localisation.Menu_FichSelFichScenPack">
        <source>Selectionner fichier scenery_packs</source>
        <translation>Select scenery_packs file</translation>
    </message>
    <message id="Localisation.RdButtSourceB">
        <source>Url modèle</source>
        <extracomment>Radio button, room for 104 pixels: about 14 characters.</extracomment>
        <translation>Model URL</translation>
    </message>
    <message id="Localisation.Btn_SelectDossier">
        <source>Sélect dossier</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Select folder</translation>
    </message>
    <message id="Localisation.Btn_SelectFichier">
        <source>Sélect fichier</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Select file</translation>
    </message>
    <message id="Localisation.Btn_SauvFichier">
        <source>Sauv fichier</source>
        <extracomment>Button and menu item, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Save file</translation>
    </message>
    <message id="Localisation.Btn_SauvFichier_HT">
        <source>Sauvegarder le texte affiché ci-dessous dans le fichier sélectionné dans le PopupMenu (donc le modèle ou le Scenery_packs)</source>
        <translation>Save the text shown below to the file selected in the pop-up menu (that is, the model or the scenery_packs)</translation>
    </message>
    <message id="Localisation.Btn_Annuler">
        <source>Annuler</source>
        <extracomment>Button, room for 88 pixels: about 12 characters.</extracomment>
        <translation>Cancel</translation>
    </message>
    <message id="Localisation.Btn_Ok">
        <source>Ok</source>
        <extracomment>Button, room for 57 pixels: about 7 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="Localisation.Btn_Fermer">
        <source>Fermer</source>
        <extracomment>Button, room for 62 pixels: about 9 characters.</extracomment>
        <translation>Close</translation>
    </message>
    <message id="Localisation.Menu_Edit">
        <source>Édition</source>
        <translation>Edit</translation>
    </message>
    <message id="Localisation.Menu_EditUndo">
        <source>Annuler</source>
        <translation>Undo</translation>
    </message>
    <message id="Localisation.Menu_EditRedo">
        <source>Rétablir</source>
        <translation>Redo</translation>
    </message>
    <message id="Localisation.Menu_EditClear">
        <source>Effacer</source>
        <translation>Delete</translation>
    </message>
    <message id="Localisation.Menu_EditCopy">
        <source>Copier</source>
        <translation>Copy</translation>
    </message>
    <message id="Localisation.Menu_EditCut">
        <source>Couper</source>
        <translation>Cut</translation>
    </message>
    <message id="Localisation.Menu_EditPaste">
        <source>Coller</source>
        <translation>Paste</translation>
    </message>
    <message id="Localisation.Menu_EditSelectAll">
        <source>Tout sélectionner</source>
        <translation>Select all</translation>
    </message>
    <message id="Localisation.Menu_Fichier">
        <source>Fichier</source>
        <translation>File</translation>
    </message>
    <message id="Localisation.WinAide_Title">
        <source>Aide</source>
        <translation>Help</translation>
    </message>
    <message id="Localisation.Btn_AffDoss">
        <source>Affich Dossier</source>
        <extracomment>Button, room for 108 pixels: about 15 characters.</extracomment>
        <translation>Show folder</translation>
    </message>
    <message id="Localisation.Btn_AffDoss_HT">
        <source>Appliqué à la première ligne du texte sélectionné
Ouvre (révéle sur Mac) l'élément dans le Finder</source>
        <translation>Applies to the first line of the selected text
Opens the item (on a Mac: reveals it) in the file manager</translation>
    </message>
    <message id="Localisation.Btn_EnabDis">
        <source>Activer / Désactiver</source>
        <extracomment>Button, room for 128 pixels: about 17 characters.</extracomment>
        <translation>Enable / Disable</translation>
    </message>
    <message id="Localisation.Btn_Select_HT">
        <source>⇧ clic sur le bouton pour révéler cet élément</source>
        <translation>⇧ Shift-click the button to reveal this item</translation>
    </message>
    <message id="Localisation.Btn_EnabDis_HT">
        <source>Appliqué au texte sélectionné
Presser la touche ⇧ pour activer
Presser la touche ⌃ pour désactiver</source>
        <translation>Applies to the selected text
Hold down ⇧ Shift to enable
Hold down ⌃ Control to disable</translation>
    </message>
    <message id="Localisation.Btn_Arreter">
        <source>Arrêter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Stop</translation>
    </message>
    <message id="Localisation.Btn_Generer">
        <source>Générer</source>
        <extracomment>Button, room for 114 pixels: about 15 characters.</extracomment>
        <translation>Generate</translation>
    </message>
    <message id="Localisation.Btn_Historic">
        <source>Historique</source>
        <translation>Version history</translation>
    </message>
    <message id="Localisation.Btn_Chercher_HT">
        <source>Chercher</source>
        <translation>Search</translation>
    </message>
    <message id="Localisation.PopupAff">
        <source>Spack Modèle
Spack Avant
Spack Après</source>
        <extracomment>Three rows of a pop-up menu, room for 96 pixels each: about 13 characters. The texts: the model, the file before and after the run.</extracomment>
        <translation>Packs model
Packs before
Packs after</translation>
    </message>
    <message id="Localisation.Nb_Lignes">
        <source>ligne|lignes</source>
        <translation>line|lines</translation>
    </message>
    <message id="Localisation.Nb_Activees">
        <source>activée|activées</source>
        <translation>enabled|enabled</translation>
    </message>
    <message id="Localisation.Nb_Desactivees">
        <source>désactivée|désactivées</source>
        <translation>disabled|disabled</translation>
    </message>
    <message id="Localisation.Nb_SansEquiv">
        <source>sans équivalent|sans équivalent</source>
        <translation>unmatched|unmatched</translation>
    </message>
    <message id="Localisation.Nb_Remarques">
        <source>remarque|remarques</source>
        <translation>report|reports</translation>
    </message>
    <message id="Localisation.Nb_Modifiees">
        <source>ligne modifiée|lignes modifiées</source>
        <translation>line changed|lines changed</translation>
    </message>
    <message id="Localisation.Dit_Ligne">
        <source>Ligne ¿%</source>
        <translation>Line ¿%</translation>
    </message>
    <message id="Localisation.Dit_Reordonne">
        <source>Réordonné : ¿%</source>
        <translation>Reordered: ¿%</translation>
    </message>
    <message id="Localisation.Dit_Arrete">
        <source>Arrêté : rien n'a été réordonné</source>
        <translation>Stopped: nothing was reordered</translation>
    </message>
    <message id="Localisation.Dit_ModeleRefuse">
        <source>Modèle refusé : ¿%</source>
        <translation>Model refused: ¿%</translation>
    </message>
    <message id="Localisation.Dit_SpackRefuse">
        <source>scenery_packs.ini refusé : ¿%</source>
        <translation>scenery_packs.ini refused: ¿%</translation>
    </message>
    <message id="Localisation.Dit_FinsWindows">
        <source>fins de ligne Windows</source>
        <translation>Windows line ends</translation>
    </message>
    <message id="Localisation.Dit_Bom">
        <source>marque d'ordre d'octets (BOM)</source>
        <translation>byte-order mark (BOM)</translation>
    </message>
    <message id="Localisation.Dit_Vide">
        <source>vide ou illisible</source>
        <translation>empty or unreadable</translation>
    </message>
    <message id="Localisation.Dit_SansEntete">
        <source>ne commence pas comme un scenery_packs.ini</source>
        <translation>does not begin like a scenery_packs.ini</translation>
    </message>
    <message id="Localisation.Dit_Enregistre">
        <source>Enregistré : ¿%</source>
        <translation>Saved: ¿%</translation>
    </message>
    <message id="Localisation.Dit_Archive">
        <source>ancien fichier : ¿%</source>
        <translation>old file: ¿%</translation>
    </message>
    <message id="Localisation.Dit_PasEnregistre">
        <source>Rien n'a été enregistré</source>
        <translation>Nothing was saved</translation>
    </message>
    <message id="Localisation.Dit_ModelePasEnregistre">
        <source>Le modèle affiché n'est pas encore enregistré : enregistrez-le d'abord</source>
        <translation>The model shown isn't saved yet: save it first</translation>
    </message>
    <message id="Localisation.Err_PasDeReponse">
        <source>Pas de réponse complète en 10 secondes</source>
        <translation>No complete answer within 10 seconds</translation>
    </message>
    <message id="Localisation.Err_ReponseTropLongue">
        <source>La réponse a plus de 8 Mio ou de 250 000 lignes</source>
        <translation>The answer has more than 8 MiB or 250,000 lines</translation>
    </message>
    <message id="Localisation.Err_ReponseCoupee">
        <source>La réponse a été coupée</source>
        <translation>The answer broke off</translation>
    </message>
    <message id="Localisation.Dit_Introuvable">
        <source>“¿%” introuvable</source>
        <translation>“¿%” not found</translation>
    </message>
    <message id="Localisation.Dit_SeulTrouve">
        <source>“¿%” : pas d'autre occurrence</source>
        <translation>“¿%”: no other occurrence</translation>
    </message>
    <message id="Localisation.Dit_RepriseDebut">
        <source>Reprise au début du texte</source>
        <translation>Resumed from the top of the text</translation>
    </message>
    <message id="Localisation.Dit_RepriseFin">
        <source>Reprise à la fin du texte</source>
        <translation>Resumed from the end of the text</translation>
    </message>
    <message id="Localisation.Dit_RienChercher">
        <source>Rien à chercher : le champ de recherche est vide</source>
        <translation>Nothing to search for: the search field is empty</translation>
    </message>
    <message id="Localisation.Dit_AucuneMarque">
        <source>Aucune ligne sans équivalent dans ce texte</source>
        <translation>No unmatched line in this text</translation>
    </message>
    <message id="Localisation.Dit_PasLa">
        <source>N'existe pas : ¿%</source>
        <translation>Does not exist: ¿%</translation>
    </message>
    <message id="Localisation.Dit_PasDossier">
        <source>Cette ligne ne nomme pas de dossier de Custom Scenery</source>
        <translation>This line names no folder of Custom Scenery</translation>
    </message>
    <message id="Localisation.Dit_Occupe">
        <source>Un traitement ou un dialogue est en cours : terminez-le d'abord</source>
        <translation>A run or a dialog is open: end it first</translation>
    </message>
    <message id="Localisation.Txt_ProbLignPresDxFois">
        <source>Problème, la ligne ci-dessous est présente plus d'une fois :</source>
        <translation>Problem: the line below is present more than once:</translation>
    </message>
    <message id="Localisation.Txt_ProbLignEquiv">
        <source>Problème, les lignes ci-dessous sont équivalentes :</source>
        <translation>Problem: the lines below are equivalent:</translation>
    </message>
    <message id="Localisation.Txt_ScenPlusDuneFois">
        <source>Ces Sceneries sont plus d'une fois dans le SceneryModel :</source>
        <translation>These sceneries are in the model more than once:</translation>
    </message>
    <message id="Localisation.Txt_UrlDoitCommencer">
        <source>L'url devrait commencer avec 'http://' o 'https://'.</source>
        <translation>The URL should begin with 'http://' or 'https://'.</translation>
    </message>
    <message id="Localisation.Txt_DossDsDossPasDsScen">
        <source>Ces dossiers sont dans le dossier “Custom Scenery” mais pas dans “scenery_packs.ini” :</source>
        <translation>These folders are in the “Custom Scenery” folder but not in “scenery_packs.ini”:</translation>
    </message>
    <message id="Localisation.Txt_ScenDsScenIniPasDsDoss">
        <source>Ces Sceneries sont dans “scenery_packs.ini” mais pas dans le dossier “Custom Scenery” :</source>
        <translation>These sceneries are in “scenery_packs.ini” but not in the “Custom Scenery” folder:</translation>
    </message>
    <message id="Localisation.Txt_ProblemCompInitFinal">
        <source>Il y a eu un problème, veuillez comparer le fichier intial avec le fichier final.</source>
        <translation>There was a problem; please compare the initial file with the final file.</translation>
    </message>
    <message id="Localisation.Txt_ScenAutreCasse">
        <source>X-Plane ne chargera pas ces Sceneries, leur dossier (entre parenthèses) ayant d'autres majuscules :</source>
        <translation>X-Plane won't load these sceneries, since their folder (in brackets) has other capitals:</translation>
    </message>
    <message id="Localisation.Txt_PlusDsFichier">
        <source>Dans le fichier initial, mais pas ou moins souvent dans le fichier final :</source>
        <translation>In the initial file, but not or less often in the final file:</translation>
    </message>
    <message id="Localisation.Txt_PlusDsResultat">
        <source>Dans le fichier final, mais pas ou moins souvent dans le fichier initial :</source>
        <translation>In the final file, but not or less often in the initial file:</translation>
    </message>
    <message id="Localisation.Txt_LignesVides">
        <source>Lignes vides : ¿% dans le fichier initial, ¿% dans le fichier final.</source>
        <translation>Blank lines: ¿% in the initial file, ¿% in the final file.</translation>
    </message>
    <message id="Localisation.Menu_TexteProposer">
        <source>Proposer un modèle…</source>
        <translation>Propose a Model…</translation>
    </message>
    <message id="Localisation.Txt_ChoisirModele">
        <source>Enregistrer le modèle proposé sous :</source>
        <translation>Save the proposed model as:</translation>
    </message>
    <message id="Localisation.Dit_PropArretee">
        <source>Arrêté : aucun modèle n'a été proposé</source>
        <translation>Stopped: no model was proposed</translation>
    </message>
    <message id="Localisation.Dit_OffreModele">
        <source>le menu “Texte” peut en proposer un</source>
        <translation>the “Text” menu can propose one</translation>
    </message>
    <message id="Localisation.Menu_Texte">
        <source>Texte</source>
        <translation>Text</translation>
    </message>
    <message id="Localisation.Txt_PropFait">
        <source>Le modèle est proposé, mais pas encore enregistré.</source>
        <translation>The model is proposed, but not saved yet.</translation>
    </message>
    <message id="Localisation.Txt_PropAeroports">
        <source>Aéroports : ¿%</source>
        <translation>Airports: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropAeroportsXP">
        <source>Aéroports de X-Plane : ¿%</source>
        <translation>Airports of X-Plane: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropOverlays">
        <source>Surcouches (overlays) : ¿%</source>
        <translation>Overlays: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropInconnus">
        <source>Inconnus : ¿%</source>
        <translation>Unknown: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropPlugins">
        <source>Greffons (plugins) : ¿%</source>
        <translation>Plugins: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropBibliotheques">
        <source>Bibliothèques : ¿%</source>
        <translation>Libraries: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropMaillages">
        <source>Maillages et tuiles photo : ¿%</source>
        <translation>Base meshes and photo tiles: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropDoublons">
        <source>Omis, une autre ligne nommant la même scène : ¿%</source>
        <translation>Left out, since another line names the same scenery: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropSansLigne">
        <source>Omis, aucune ligne ne pouvant tenir le nom : ¿%</source>
        <translation>Left out, since no line can hold the name: ¿%</translation>
    </message>
    <message id="Localisation.Txt_RaisonDossAbsent">
        <source>le dossier manque</source>
        <translation>the folder is missing</translation>
    </message>
    <message id="Localisation.Txt_RaisonRien">
        <source>rien n'y dit ce que c'est</source>
        <translation>nothing in it tells what it is</translation>
    </message>
    <message id="Localisation.Txt_RaisonIllisible">
        <source>“¿%” ne peut pas être lu : ¿%</source>
        <translation>“¿%” can't be read: ¿%</translation>
    </message>
    <message id="Localisation.Txt_RaisonTuileAbimee">
        <source>tuile abîmée, ou comprimée autrement qu'en LZMA</source>
        <translation>damaged tile, or packed otherwise than by LZMA</translation>
    </message>
    <message id="Localisation.Txt_RaisonPasUnPack">
        <source>ce n'est pas une ligne de pack</source>
        <translation>this is no line of a pack</translation>
    </message>
    <message id="Localisation.Dit_PasUtf8">
        <source>ce n'est pas de l'UTF-8</source>
        <translation>this is not UTF-8</translation>
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
        <translation>Usage: tarnivel-order [--check] MODEL SCENERY_PACKS
       tarnivel-order --propose SCENERY_PACKS
       tarnivel-order --help | --version

Writes the lines of SCENERY_PACKS in the order of MODEL to standard output,
and what doesn't agree to standard error. “-” is standard input.
No file is changed.

  --check    writes nothing but what doesn't agree
  --propose  writes a model made from what the packs hold

Exit status: 0 all agrees, 1 something was reported,
2 a text was refused or could not be read, 64 wrong use.</translation>
    </message>
    <message id="Localisation.Btn_Cont">
        <source>Continuer</source>
        <translation>Continue</translation>
    </message>
    <message id="Localisation.Txt_TexteModifie">
        <source>Le texte a été modifié et n'est pas enregistré. Continuer sans enregistrer ?</source>
        <translation>The text has been edited and not saved. Go on without saving?</translation>
    </message>
    <message id="Localisation.Txt_TxtAreaPasScenPack">
        <source>Le TextArea ne contient pas de scenery_packs.</source>
        <translation>The text area does not hold a scenery_packs.</translation>
    </message>
    <message id="Localisation.Txt_PasAncFichAsauv">
        <source>Il n'y a pas d'ancien fichier à sauvegarder.</source>
        <translation>There is no old file to keep.</translation>
    </message>
    <message id="Localisation.Txt_ImpLocDossSauvAnc">
        <source>Impossible de localiser le dossier où sauvegarder l'ancien fichier.</source>
        <translation>The folder for the old file cannot be found.</translation>
    </message>
    <message id="Localisation.Txt_ImpLocDossSauvFich">
        <source>Impossible de localiser le dossier où sauvegarder le fichier.</source>
        <translation>The folder to save the file in cannot be found.</translation>
    </message>
    <message id="Localisation.Txt_SurSauv">
        <source>Êtes-vous sûr de vouloir enregistrer “¿%” comme “¿%” ?</source>
        <extracomment>The placeholders: the name on screen, the name of the file.</extracomment>
        <translation>Are you sure that you want to save “¿%” as “¿%”?</translation>
    </message>
    <message id="Localisation.Txt_ErreurEcrNouvScen">
        <source>Erreur pendant l'écriture du nouveau scenery_packs.</source>
        <translation>Error while writing the new scenery_packs.</translation>
    </message>
    <message id="Localisation.Txt_ErreurCopiAncScen">
        <source>Erreur pendant la copie de l'ancien (précédent) scenery_packs.</source>
        <translation>Error while copying the old (previous) scenery_packs.</translation>
    </message>
    <message id="Localisation.Btn_Quit">
        <source>Quitter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Quit</translation>
    </message>
    <message id="Localisation.WinSpecA_Title">
        <source>Spécial A</source>
        <extracomment>Window title and button, room for 88 pixels: about 12 characters.</extracomment>
        <translation>Special A</translation>
    </message>
    <message id="Localisation.GrBox_HT">
        <source>Glisser déposer un fichier ici (⇧ clic sur le bouton pour révéler ce fichier dans le Finder)</source>
        <translation>Drag and drop a file here (⇧ Shift-click the button to reveal this file in the file manager)</translation>
    </message>
    <message id="Localisation.GrBoxSource">
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message id="Localisation.Btn_ChoisirFich">
        <source>Choisir fichier…</source>
        <extracomment>Button, room for 140 pixels: about 19 characters.</extracomment>
        <translation>Choose file…</translation>
    </message>
    <message id="Localisation.LabOrg">
        <source>Original :</source>
        <extracomment>Label, room for 58 pixels: about 8 characters.</extracomment>
        <translation>Original:</translation>
    </message>
    <message id="Localisation.Btn_Trait">
        <source>Traiter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Process</translation>
    </message>
    <message id="Localisation.Txt_DropQueFichTxt">
        <source>Vous ne pouvez glisser déposer qu'un fichier contenant du texte ici.</source>
        <translation>Only a file that holds text can be dropped here.</translation>
    </message>
    <message id="Localisation.Txt_DropQueDoss">
        <source>Vous ne pouvez glisser déposer qu'un dossier ici.</source>
        <translation>Only a folder can be dropped here.</translation>
    </message>
    <message id="Localisation.Dit_AliasMort">
        <source>Cet alias ne mène nulle part.</source>
        <translation>This alias leads nowhere.</translation>
    </message>
    <message id="Localisation.Dit_PasGestionnaire">
        <source>Aucun gestionnaire de fichiers ne répond.</source>
        <translation>No file manager answers.</translation>
    </message>
    <message id="Localisation.Dit_PasDeLien">
        <source>Aucun programme n'ouvre ce lien : ¿%</source>
        <translation>No program opens this link: ¿%</translation>
    </message>
    <message id="Localisation.Dit_ParBouton">
        <source>Cette fenêtre se ferme par l'un de ses boutons.</source>
        <translation>Close this window with one of its buttons.</translation>
    </message>
    <message id="Localisation.Txt_NomNonGarde">
        <source>Le nom de cet élément ne peut pas être gardé : il n'est pas en UTF-8, ou un autre élément a presque le même.</source>
        <translation>The name of this item can't be kept: it is no UTF-8, or another item has almost the same.</translation>
    </message>
    <message id="Localisation.Txt_ChoisirUnFich">
        <source>Choisir un fichier :</source>
        <translation>Choose a file:</translation>
    </message>
    <message id="Localisation.Txt_FiltreTexte">
        <source>Fichiers texte</source>
        <translation>Text files</translation>
    </message>
    <message id="Localisation.Txt_FiltreTous">
        <source>Tous les fichiers</source>
        <translation>All files</translation>
    </message>
    <message id="Localisation.Txt_ChoisirDossArchiv">
        <source>Choisir le dossier où garder les anciens “scenery_packs.ini” :</source>
        <translation>Choose the folder to keep the old “scenery_packs.ini” in:</translation>
    </message>
    <message id="Localisation.Txt_SelectQueFichTxt">
        <source>Vous pouvez seulement sélectionner un fichier texte.</source>
        <translation>Only a text file can be selected.</translation>
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
        <translation>The original file does not exist.</translation>
    </message>
    <message id="Localisation.Txt_NomExiste">
        <source>Un fichier nommé “¿%” existe déjà.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>A file named “¿%” already exists.</translation>
    </message>
    <message id="Localisation.Txt_Rempl_Imposs">
        <source>Remplacement impossible !</source>
        <translation>The replacement is impossible!</translation>
    </message>
    <message id="Localisation.Txt_ErreurEcritFich">
        <source>Il y a eu une erreur pendant l'écriture du fichier.</source>
        <translation>There was an error while writing the file.</translation>
    </message>
    <message id="Localisation.Txt_FichPasModif">
        <source>Le fichier n'a pas été modifié, souhaitez-vous l'enregistrer tout de même ?</source>
        <translation>The file was not changed. Do you want to save it all the same?</translation>
    </message>
    <message id="Localisation.Btn_Remplacer">
        <source>Remplacer</source>
        <translation>Replace</translation>
    </message>
    <message id="Localisation.Btn_NePasRempl">
        <source>Ne pas remplacer</source>
        <translation>Don't replace</translation>
    </message>
    <message id="Localisation.Txt_NbTrouv">
        <source>Nombre de fois où les textes cherchés ont été trouvés :</source>
        <translation>Number of times that the searched texts were found:</translation>
    </message>
    <message id="Localisation.Dit_TropLignes">
        <source>Le tableau ne peut pas avoir plus de 1 000 lignes.</source>
        <translation>The table can't have more than 1,000 rows.</translation>
    </message>
    <message id="Localisation.Dit_TropLong">
        <source>Trop long : une colonne du tableau peut avoir 2 000 000 de caractères.</source>
        <translation>Too long: a column of the table can have 2,000,000 characters.</translation>
    </message>
    <message id="Localisation.Dit_TropColonnes">
        <source>Les cellules au-delà de la troisième colonne ont été laissées de côté.</source>
        <translation>The cells beyond the third column were left out.</translation>
    </message>
    <message id="Localisation.Dit_RienEnlever">
        <source>Aucune ligne n'est sélectionnée, et la dernière n'est pas vide.</source>
        <translation>No row is selected, and the last one isn't empty.</translation>
    </message>
    <message id="Localisation.Txt_LectureImp">
        <source>Le fichier original ne peut pas être lu.</source>
        <translation>The original file can't be read.</translation>
    </message>
    <message id="Localisation.Txt_TropGrand">
        <source>“¿%” deviendrait trop long et n'est pas écrit.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>“¿%” would grow too long and is not written.</translation>
    </message>
    <message id="Localisation.Txt_MemoireManque">
        <source>La mémoire ne suffit pas pour ce traitement.</source>
        <translation>There is not enough memory for this treatment.</translation>
    </message>
    <message id="Localisation.Txt_DossierPlein">
        <source>“¿%” est un dossier. Ce qu'il contient sera supprimé avec lui. Nombre d'éléments : ¿%.</source>
        <extracomment>The placeholders: the name of a folder, and how many items are in it.</extracomment>
        <translation>“¿%” is a folder. What is in it will be deleted with it. Number of items: ¿%.</translation>
    </message>
    <message id="Localisation.Txt_RemplOriginal">
        <source>“¿%” est le fichier original lui-même. Son texte d'avant sera perdu.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>“¿%” is the original file itself. Its old text will be lost.</translation>
    </message>
    <message id="Localisation.Dit_TraitArrete">
        <source>Traitement arrêté, rien n'a été écrit.</source>
        <translation>Processing stopped, nothing was written.</translation>
    </message>
    <message id="Localisation.Dit_RienEcrit">
        <source>Rien n'a été écrit.</source>
        <translation>Nothing was written.</translation>
    </message>
    <message id="Localisation.Dit_EcritDans">
        <source>Écrit : ¿%, dans ¿%.</source>
        <extracomment>The placeholders: names of files, and the path of their folder.</extracomment>
        <translation>Written: ¿%, in ¿%.</translation>
    </message>
    <message id="Localisation.Btn_CopiList_HT">
        <source>Copier la liste dans le presse-papiers</source>
        <translation>Copy the list to the clipboard</translation>
    </message>
    <message id="Localisation.Txt_OctetsRetires">
        <source>“¿%” contient des octets qui ne sont pas de l'UTF-8. Les caractères non ASCII en ont été retirés, dans ¿% ligne(s). La première est la ligne ¿% :
¿%</source>
        <extracomment>What bytes that are no UTF-8 cost. Placeholders: file or address, number of lines, number of the first line, that line.</extracomment>
        <translation>“¿%” contains bytes that are not UTF-8. Its characters beyond ASCII were taken out, in ¿% line(s). The first is line ¿%:
¿%</translation>
    </message>
    <message id="Localisation.Txt_SauvTexteAbime">
        <source>Des caractères de ce texte ont été retirés à la lecture, parce que son fichier contient des octets qui ne sont pas de l'UTF-8. L'enregistrer quand même ?</source>
        <extracomment>Question before a save.</extracomment>
        <translation>Characters of this text were taken out when it was read, because its file contains bytes that are not UTF-8. Save it all the same?</translation>
    </message>
    <message id="Localisation.Txt_FichierChange">
        <source>“¿%” a changé sur le disque depuis qu'il a été lu. L'enregistrement fera perdre ces changements.</source>
        <extracomment>Question before a save. Placeholder: the file's path.</extracomment>
        <translation>“¿%” has changed on disk since it was read. Saving will lose these changes.</translation>
    </message>
    <message id="Localisation.Txt_FormeTexte">
        <source>“¿%” n'est pas un simple texte UTF-8 aux fins de ligne LF : ¿%.</source>
        <extracomment>In the status line. Placeholders: file or address, and what it is, as in “BOM, CR LF” or “UTF-16”.</extracomment>
        <translation>“¿%” is not plain UTF-8 text with LF line ends: ¿%.</translation>
    </message>
    <message id="Localisation.Txt_PrefsGardees">
        <source>Avant d'être remplacé, l'ancien fichier de réglages sera renommé “¿%”.</source>
        <extracomment>Told when the settings could not be read as they are. Placeholder: a file name.</extracomment>
        <translation>Before it is replaced, the old settings file will be renamed “¿%”.</translation>
    </message>
    <message id="Localisation.Txt_PrefsNonGardees">
        <source>Le dossier “¿%” n'est pas utilisable (¿%) : les réglages ne seront pas gardés.</source>
        <extracomment>Told at the start. Placeholders: the folder's path, the reason.</extracomment>
        <translation>The folder “¿%” cannot be used (¿%): the settings will not be kept.</translation>
    </message>
    <message id="Localisation.Txt_PrefsNonReprises">
        <source>Les réglages d'une version plus ancienne n'ont pas pu être déplacés et servent là où ils sont, dans “¿%” : ¿%.</source>
        <extracomment>Told at the start. Placeholders: the place of an older version's settings, the reason.</extracomment>
        <translation>The settings of an older version could not be moved and are used where they are, in “¿%”: ¿%.</translation>
    </message>
    <message id="Localisation.Pref_ChBoxAffBtnSpecA">
        <source>Afficher bouton “Spécial A”</source>
        <extracomment>Check box, room for 338 pixels: about 46 characters.</extracomment>
        <translation>Show the “Special A” button</translation>
    </message>
    <message id="Localisation.Menu_Preferences">
        <source>Préférences…</source>
        <translation>Preferences…</translation>
    </message>
    <message id="Localisation.Menu_Rapport">
        <source>Dernier rapport</source>
        <translation>Last report</translation>
    </message>
    <message id="Localisation.Menu_Monter">
        <source>Monter les lignes</source>
        <translation>Move lines up</translation>
    </message>
    <message id="Localisation.Menu_Descendre">
        <source>Descendre les lignes</source>
        <translation>Move lines down</translation>
    </message>
    <message id="Localisation.Menu_Doubler">
        <source>Doubler les lignes</source>
        <translation>Duplicate lines</translation>
    </message>
    <message id="Localisation.Menu_Supprimer">
        <source>Supprimer les lignes</source>
        <translation>Delete lines</translation>
    </message>
    <message id="Localisation.Menu_MarqueSuiv">
        <source>Ligne sans équivalent suivante</source>
        <translation>Next unmatched line</translation>
    </message>
    <message id="Localisation.Menu_MarquePrec">
        <source>Ligne sans équivalent précédente</source>
        <translation>Previous unmatched line</translation>
    </message>
    <message id="Localisation.Menu_CherchSuiv">
        <source>Chercher le suivant</source>
        <translation>Find next</translation>
    </message>
    <message id="Localisation.Menu_CherchPrec">
        <source>Chercher le précédent</source>
        <translation>Find previous</translation>
    </message>
    <message id="Localisation.Menu_Ajouter">
        <source>Ajouter les dossiers absents du texte</source>
        <translation>Add unlisted folders</translation>
    </message>
    <message id="Localisation.Menu_DesactSansDoss">
        <source>Désactiver les lignes sans dossier</source>
        <translation>Disable lines without a folder</translation>
    </message>
    <message id="Localisation.Nb_Ajoutees">
        <source>ligne ajoutée|lignes ajoutées</source>
        <translation>line added|lines added</translation>
    </message>
    <message id="Localisation.Dit_PasPlusLoin">
        <source>Impossible de déplacer plus loin</source>
        <translation>Can't be moved any further</translation>
    </message>
    <message id="Localisation.Dit_PasDeLigne">
        <source>Il n'y a pas de ligne ici</source>
        <translation>There is no line here</translation>
    </message>
    <message id="Localisation.Dit_SansDossiers">
        <source>Le dossier Custom Scenery n'est pas accessible</source>
        <translation>The folder Custom Scenery is not accessible</translation>
    </message>
    <message id="Localisation.Dit_PasDeRapport">
        <source>Rien à signaler</source>
        <translation>Nothing to report</translation>
    </message>
    <message id="Localisation.WinPref_Title">
        <source>Préférences</source>
        <translation>Preferences</translation>
    </message>
    <message id="Localisation.StText_VolSfx">
        <source>Effets sonores :</source>
        <extracomment>Label, room for 130 pixels: about 17 characters.</extracomment>
        <translation>Sound effects:</translation>
    </message>
    <message id="Localisation.Btn_Aide_HT">
        <source>Cette version a été compilée pour ¿% le ¿%</source>
        <extracomment>The placeholders: the kind of build, its date.</extracomment>
        <translation>This version was compiled for ¿% on ¿%</translation>
    </message>
</context>
</TS>
