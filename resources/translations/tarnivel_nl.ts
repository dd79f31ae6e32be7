<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="fr">
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
        <translation>Dit programma beheert het bestand “scenery_packs.ini” van X-Plane.
 
Kies het modelbestand, waarin de scenery in de juiste volgorde staat. Of kies “Model-URL” en geef de URL van een modelbestand op.
 
Kies desgewenst een map waarin de oude “scenery_packs.ini” wordt bewaard.
 
Kies het bestand “scenery_packs.ini” uit uw X-Plane-map: dit bestand wordt opnieuw geordend.
 
Klik op “Genereren”.
 
Kies “Packs na” in het pop-upmenu. Gekleurde regels staan in “scenery_packs.ini”, maar niet in het model.
Als “Packs model” is gekozen, staan gekleurde regels in het model, maar niet in “scenery_packs.ini”.
 
U kunt in het tekstvak een deel van de tekst selecteren en op de knop “In-/uitschakelen” klikken om “SCENERY_PACK” en “SCENERY_PACK_DISABLED” om te wisselen.
 
Klik op de knop “Opslaan” om de tekst in het tekstvak op te slaan in het bestand dat in het pop-upmenu is gekozen. Er verandert niets in uw bestand totdat u op deze knop klikt.</translation>
    </message>
    <message id="Localisation.Infos_Menu">
        <source>Le menu “Texte” ordonne le texte à la main : il déplace les lignes sélectionnées (Alt+Haut, Alt+Bas), les double (Ctrl+D) ou les supprime (Ctrl+Maj+K), va à la ligne colorée suivante ou précédente (F8, Maj+F8), au texte cherché suivant ou précédent (F3, Maj+F3), lance (F5), montre le dernier rapport, ajoute les dossiers absents du texte, désactive les lignes sans dossier et propose un modèle. Ctrl+Z reprend chaque modification, Ctrl+Y la rétablit.
 
La ligne sous la fenêtre dit où est le curseur et ce que la vue contient, puis ce qui vient d'être fait, ou pourquoi une action est refusée.</source>
        <extracomment>The end of the help text; the menu is named as it is translated below.</extracomment>
        <translation>Met het menu “Tekst” ordent u de tekst met de hand: het verplaatst de geselecteerde regels (Alt+Omhoog, Alt+Omlaag), verdubbelt ze (Ctrl+D) of verwijdert ze (Ctrl+Shift+K), gaat naar de volgende of vorige gekleurde regel (F8, Shift+F8) en naar de volgende of vorige gezochte tekst (F3, Shift+F3), genereert (F5), toont het laatste rapport, voegt de mappen toe die in de tekst ontbreken, schakelt regels zonder map uit en stelt een model voor. Ctrl+Z maakt elke wijziging ongedaan, Ctrl+Y voert ze opnieuw uit.
 
De regel onder het venster zegt waar de cursor staat en wat de weergave bevat, daarna wat er zojuist is gedaan of waarom een actie wordt geweigerd.</translation>
    </message>
    <message id="Localisation.RdButtSourceA">
        <source>Fichier modèle</source>
        <extracomment>Radio button, room for 104 pixels: about 14 characters.</extracomment>
        <translation>Modelbestand</translation>
    </message>
    <message id="Localisation.Btn_OpenUrl">
        <source>Ouvrir Url</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>URL openen</translation>
    </message>
    <message id="Localisation.StTextScenPack">
        <source>scenery_packs.ini</source>
        <extracomment>A file name: do not translate.</extracomment>
        <translation>scenery_packs.ini</translation>
    </message>
    <message id="Localisation.ChBoxArchive">
        <source>Sauv anc Spack</source>
        <extracomment>Check box (copy the old file into the archive folder before saving), room for 104 pixels: about 14 characters.</extracomment>
        <translation>Oude bewaren</translation>
    </message>
    <message id="Localisation.Menu_FichSelFichMod">
        <source>Selectionner fichier modèle</source>
        <translation>Modelbestand selecteren</translation>
    </message>
    <message id="Localisation.Menu_FichSelDossArchiv">
        <source>Sélectionner dossier archives</source>
        <translation>Archiefmap selecteren</translation>
    </message>
    <message id="Localisation.Menu_FichSelFichScenPack">
        <source>Selectionner fichier scenery_packs</source>
        <translation>scenery_packs-bestand selecteren</translation>
    </message>
    <message id="Localisation.RdButtSourceB">
        <source>Url modèle</source>
        <extracomment>Radio button, room for 104 pixels: about 14 characters.</extracomment>
        <translation>Model-URL</translation>
    </message>
    <message id="Localisation.Btn_SelectDossier">
        <source>Sélect dossier</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Map kiezen</translation>
    </message>
    <message id="Localisation.Btn_SelectFichier">
        <source>Sélect fichier</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Bestand kiezen</translation>
    </message>
    <message id="Localisation.Btn_SauvFichier">
        <source>Sauv fichier</source>
        <extracomment>Button and menu item, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Opslaan</translation>
    </message>
    <message id="Localisation.Btn_SauvFichier_HT">
        <source>Sauvegarder le texte affiché ci-dessous dans le fichier sélectionné dans le PopupMenu (donc le modèle ou le Scenery_packs)</source>
        <translation>De tekst hieronder opslaan in het bestand dat in het pop-upmenu is gekozen (dus het model of de scenery_packs)</translation>
    </message>
    <message id="Localisation.Btn_Annuler">
        <source>Annuler</source>
        <extracomment>Button, room for 88 pixels: about 12 characters.</extracomment>
        <translation>Annuleren</translation>
    </message>
    <message id="Localisation.Btn_Ok">
        <source>Ok</source>
        <extracomment>Button, room for 57 pixels: about 7 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="Localisation.Btn_Fermer">
        <source>Fermer</source>
        <extracomment>Button, room for 62 pixels: about 9 characters.</extracomment>
        <translation>Sluiten</translation>
    </message>
    <message id="Localisation.Menu_Edit">
        <source>Édition</source>
        <translation>Bewerken</translation>
    </message>
    <message id="Localisation.Menu_EditUndo">
        <source>Annuler</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message id="Localisation.Menu_EditRedo">
        <source>Rétablir</source>
        <translation>Opnieuw</translation>
    </message>
    <message id="Localisation.Menu_EditClear">
        <source>Effacer</source>
        <translation>Verwijderen</translation>
    </message>
    <message id="Localisation.Menu_EditCopy">
        <source>Copier</source>
        <translation>Kopiëren</translation>
    </message>
    <message id="Localisation.Menu_EditCut">
        <source>Couper</source>
        <translation>Knippen</translation>
    </message>
    <message id="Localisation.Menu_EditPaste">
        <source>Coller</source>
        <translation>Plakken</translation>
    </message>
    <message id="Localisation.Menu_EditSelectAll">
        <source>Tout sélectionner</source>
        <translation>Alles selecteren</translation>
    </message>
    <message id="Localisation.Menu_Fichier">
        <source>Fichier</source>
        <translation>Bestand</translation>
    </message>
    <message id="Localisation.WinAide_Title">
        <source>Aide</source>
        <translation>Help</translation>
    </message>
    <message id="Localisation.Btn_AffDoss">
        <source>Affich Dossier</source>
        <extracomment>Button, room for 108 pixels: about 15 characters.</extracomment>
        <translation>Map tonen</translation>
    </message>
    <message id="Localisation.Btn_AffDoss_HT">
        <source>Appliqué à la première ligne du texte sélectionné
Ouvre (révéle sur Mac) l'élément dans le Finder</source>
        <translation>Geldt voor de eerste regel van de geselecteerde tekst
Opent het onderdeel (op een Mac: toont het) in het bestandsbeheer</translation>
    </message>
    <message id="Localisation.Btn_EnabDis">
        <source>Activer / Désactiver</source>
        <extracomment>Button, room for 128 pixels: about 17 characters.</extracomment>
        <translation>In-/uitschakelen</translation>
    </message>
    <message id="Localisation.Btn_Select_HT">
        <source>⇧ clic sur le bouton pour révéler cet élément</source>
        <translation>Klik met ⇧ Shift op de knop om dit onderdeel te tonen</translation>
    </message>
    <message id="Localisation.Btn_EnabDis_HT">
        <source>Appliqué au texte sélectionné
Presser la touche ⇧ pour activer
Presser la touche ⌃ pour désactiver</source>
        <translation>Geldt voor de geselecteerde tekst
Houd ⇧ Shift ingedrukt om in te schakelen
Houd ⌃ Ctrl ingedrukt om uit te schakelen</translation>
    </message>
    <message id="Localisation.Btn_Arreter">
        <source>Arrêter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Stoppen</translation>
    </message>
    <message id="Localisation.Btn_Generer">
        <source>Générer</source>
        <extracomment>Button, room for 114 pixels: about 15 characters.</extracomment>
        <translation>Genereren</translation>
    </message>
    <message id="Localisation.Btn_Historic">
        <source>Historique</source>
        <translation>Versiegeschiedenis</translation>
    </message>
    <message id="Localisation.Btn_Chercher_HT">
        <source>Chercher</source>
        <translation>Zoeken</translation>
    </message>
    <message id="Localisation.PopupAff">
        <source>Spack Modèle
Spack Avant
Spack Après</source>
        <extracomment>Three rows of a pop-up menu, room for 96 pixels each: about 13 characters. The texts: the model, the file before and after the run.</extracomment>
        <translation>Packs model
Packs voor
Packs na</translation>
    </message>
    <message id="Localisation.Nb_Lignes">
        <source>ligne|lignes</source>
        <translation>regel|regels</translation>
    </message>
    <message id="Localisation.Nb_Activees">
        <source>activée|activées</source>
        <translation>ingeschakeld|ingeschakeld</translation>
    </message>
    <message id="Localisation.Nb_Desactivees">
        <source>désactivée|désactivées</source>
        <translation>uitgeschakeld|uitgeschakeld</translation>
    </message>
    <message id="Localisation.Nb_SansEquiv">
        <source>sans équivalent|sans équivalent</source>
        <translation>zonder tegenhanger|zonder tegenhanger</translation>
    </message>
    <message id="Localisation.Nb_Remarques">
        <source>remarque|remarques</source>
        <translation>melding|meldingen</translation>
    </message>
    <message id="Localisation.Nb_Modifiees">
        <source>ligne modifiée|lignes modifiées</source>
        <translation>regel gewijzigd|regels gewijzigd</translation>
    </message>
    <message id="Localisation.Dit_Ligne">
        <source>Ligne ¿%</source>
        <translation>Regel ¿%</translation>
    </message>
    <message id="Localisation.Dit_Reordonne">
        <source>Réordonné : ¿%</source>
        <translation>Herordend: ¿%</translation>
    </message>
    <message id="Localisation.Dit_Arrete">
        <source>Arrêté : rien n'a été réordonné</source>
        <translation>Gestopt: er is niets herordend</translation>
    </message>
    <message id="Localisation.Dit_ModeleRefuse">
        <source>Modèle refusé : ¿%</source>
        <translation>Model geweigerd: ¿%</translation>
    </message>
    <message id="Localisation.Dit_SpackRefuse">
        <source>scenery_packs.ini refusé : ¿%</source>
        <translation>scenery_packs.ini geweigerd: ¿%</translation>
    </message>
    <message id="Localisation.Dit_FinsWindows">
        <source>fins de ligne Windows</source>
        <translation>Windows-regeleinden</translation>
    </message>
    <message id="Localisation.Dit_Bom">
        <source>marque d'ordre d'octets (BOM)</source>
        <translation>bytevolgordemarkering (BOM)</translation>
    </message>
    <message id="Localisation.Dit_Vide">
        <source>vide ou illisible</source>
        <translation>leeg of onleesbaar</translation>
    </message>
    <message id="Localisation.Dit_SansEntete">
        <source>ne commence pas comme un scenery_packs.ini</source>
        <translation>begint niet als een scenery_packs.ini</translation>
    </message>
    <message id="Localisation.Dit_Enregistre">
        <source>Enregistré : ¿%</source>
        <translation>Opgeslagen: ¿%</translation>
    </message>
    <message id="Localisation.Dit_Archive">
        <source>ancien fichier : ¿%</source>
        <translation>oud bestand: ¿%</translation>
    </message>
    <message id="Localisation.Dit_PasEnregistre">
        <source>Rien n'a été enregistré</source>
        <translation>Er is niets opgeslagen</translation>
    </message>
    <message id="Localisation.Dit_ModelePasEnregistre">
        <source>Le modèle affiché n'est pas encore enregistré : enregistrez-le d'abord</source>
        <translation>Het getoonde model is nog niet opgeslagen: sla het eerst op</translation>
    </message>
    <message id="Localisation.Err_PasDeReponse">
        <source>Pas de réponse complète en 10 secondes</source>
        <translation>Geen volledig antwoord binnen 10 seconden</translation>
    </message>
    <message id="Localisation.Err_ReponseTropLongue">
        <source>La réponse a plus de 8 Mio ou de 250 000 lignes</source>
        <translation>Het antwoord heeft meer dan 8 MiB of 250.000 regels</translation>
    </message>
    <message id="Localisation.Err_ReponseCoupee">
        <source>La réponse a été coupée</source>
        <translation>Het antwoord is afgebroken</translation>
    </message>
    <message id="Localisation.Dit_Introuvable">
        <source>“¿%” introuvable</source>
        <translation>“¿%” niet gevonden</translation>
    </message>
    <message id="Localisation.Dit_SeulTrouve">
        <source>“¿%” : pas d'autre occurrence</source>
        <translation>“¿%” komt verder niet voor</translation>
    </message>
    <message id="Localisation.Dit_RepriseDebut">
        <source>Reprise au début du texte</source>
        <translation>Verder vanaf het begin van de tekst</translation>
    </message>
    <message id="Localisation.Dit_RepriseFin">
        <source>Reprise à la fin du texte</source>
        <translation>Verder vanaf het einde van de tekst</translation>
    </message>
    <message id="Localisation.Dit_RienChercher">
        <source>Rien à chercher : le champ de recherche est vide</source>
        <translation>Niets te zoeken: het zoekveld is leeg</translation>
    </message>
    <message id="Localisation.Dit_AucuneMarque">
        <source>Aucune ligne sans équivalent dans ce texte</source>
        <translation>Geen regel zonder tegenhanger in deze tekst</translation>
    </message>
    <message id="Localisation.Dit_PasLa">
        <source>N'existe pas : ¿%</source>
        <translation>Bestaat niet: ¿%</translation>
    </message>
    <message id="Localisation.Dit_PasDossier">
        <source>Cette ligne ne nomme pas de dossier de Custom Scenery</source>
        <translation>Deze regel noemt geen map van Custom Scenery</translation>
    </message>
    <message id="Localisation.Dit_Occupe">
        <source>Un traitement ou un dialogue est en cours : terminez-le d'abord</source>
        <translation>Er is een bewerking of een dialoogvenster open: sluit dat eerst af</translation>
    </message>
    <message id="Localisation.Txt_ProbLignPresDxFois">
        <source>Problème, la ligne ci-dessous est présente plus d'une fois :</source>
        <translation>Probleem: de volgende regel komt meer dan eens voor:</translation>
    </message>
    <message id="Localisation.Txt_ProbLignEquiv">
        <source>Problème, les lignes ci-dessous sont équivalentes :</source>
        <translation>Probleem: de volgende regels zijn gelijkwaardig:</translation>
    </message>
    <message id="Localisation.Txt_ScenPlusDuneFois">
        <source>Ces Sceneries sont plus d'une fois dans le SceneryModel :</source>
        <translation>Deze scenery staat meer dan eens in het model:</translation>
    </message>
    <message id="Localisation.Txt_UrlDoitCommencer">
        <source>L'url devrait commencer avec 'http://' o 'https://'.</source>
        <translation>De URL moet beginnen met 'http://' of 'https://'.</translation>
    </message>
    <message id="Localisation.Txt_DossDsDossPasDsScen">
        <source>Ces dossiers sont dans le dossier “Custom Scenery” mais pas dans “scenery_packs.ini” :</source>
        <translation>Deze mappen staan in de map “Custom Scenery”, maar niet in “scenery_packs.ini”:</translation>
    </message>
    <message id="Localisation.Txt_ScenDsScenIniPasDsDoss">
        <source>Ces Sceneries sont dans “scenery_packs.ini” mais pas dans le dossier “Custom Scenery” :</source>
        <translation>Deze scenery staat in “scenery_packs.ini”, maar niet in de map “Custom Scenery”:</translation>
    </message>
    <message id="Localisation.Txt_ProblemCompInitFinal">
        <source>Il y a eu un problème, veuillez comparer le fichier intial avec le fichier final.</source>
        <translation>Er was een probleem. Vergelijk het oorspronkelijke bestand met het uiteindelijke bestand.</translation>
    </message>
    <message id="Localisation.Txt_ScenAutreCasse">
        <source>X-Plane ne chargera pas ces Sceneries, leur dossier (entre parenthèses) ayant d'autres majuscules :</source>
        <translation>X-Plane laadt deze sceneries niet, omdat hun map (tussen haakjes) andere hoofdletters heeft:</translation>
    </message>
    <message id="Localisation.Txt_PlusDsFichier">
        <source>Dans le fichier initial, mais pas ou moins souvent dans le fichier final :</source>
        <translation>In het oorspronkelijke bestand, maar niet of minder vaak in het uiteindelijke bestand:</translation>
    </message>
    <message id="Localisation.Txt_PlusDsResultat">
        <source>Dans le fichier final, mais pas ou moins souvent dans le fichier initial :</source>
        <translation>In het uiteindelijke bestand, maar niet of minder vaak in het oorspronkelijke bestand:</translation>
    </message>
    <message id="Localisation.Txt_LignesVides">
        <source>Lignes vides : ¿% dans le fichier initial, ¿% dans le fichier final.</source>
        <translation>Lege regels: ¿% in het oorspronkelijke bestand, ¿% in het uiteindelijke bestand.</translation>
    </message>
    <message id="Localisation.Menu_TexteProposer">
        <source>Proposer un modèle…</source>
        <translation>Model voorstellen…</translation>
    </message>
    <message id="Localisation.Txt_ChoisirModele">
        <source>Enregistrer le modèle proposé sous :</source>
        <translation>Het voorgestelde model opslaan als:</translation>
    </message>
    <message id="Localisation.Dit_PropArretee">
        <source>Arrêté : aucun modèle n'a été proposé</source>
        <translation>Gestopt: er is geen model voorgesteld</translation>
    </message>
    <message id="Localisation.Dit_OffreModele">
        <source>le menu “Texte” peut en proposer un</source>
        <translation>het menu “Tekst” kan er een voorstellen</translation>
    </message>
    <message id="Localisation.Menu_Texte">
        <source>Texte</source>
        <translation>Tekst</translation>
    </message>
    <message id="Localisation.Txt_PropFait">
        <source>Le modèle est proposé, mais pas encore enregistré.</source>
        <translation>Het model is voorgesteld, maar nog niet opgeslagen.</translation>
    </message>
    <message id="Localisation.Txt_PropAeroports">
        <source>Aéroports : ¿%</source>
        <translation>Luchthavens: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropAeroportsXP">
        <source>Aéroports de X-Plane : ¿%</source>
        <translation>Luchthavens van X-Plane: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropOverlays">
        <source>Surcouches (overlays) : ¿%</source>
        <translation>Lagen erbovenop (overlays): ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropInconnus">
        <source>Inconnus : ¿%</source>
        <translation>Onbekend: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropPlugins">
        <source>Greffons (plugins) : ¿%</source>
        <translation>Uitbreidingen (plugins): ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropBibliotheques">
        <source>Bibliothèques : ¿%</source>
        <translation>Bibliotheken: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropMaillages">
        <source>Maillages et tuiles photo : ¿%</source>
        <translation>Basisnetten en fototegels: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropDoublons">
        <source>Omis, une autre ligne nommant la même scène : ¿%</source>
        <translation>Weggelaten, omdat een andere regel dezelfde scenery noemt: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropSansLigne">
        <source>Omis, aucune ligne ne pouvant tenir le nom : ¿%</source>
        <translation>Weggelaten, omdat geen regel de naam kan bevatten: ¿%</translation>
    </message>
    <message id="Localisation.Txt_RaisonDossAbsent">
        <source>le dossier manque</source>
        <translation>de map ontbreekt</translation>
    </message>
    <message id="Localisation.Txt_RaisonRien">
        <source>rien n'y dit ce que c'est</source>
        <translation>niets erin zegt wat het is</translation>
    </message>
    <message id="Localisation.Txt_RaisonIllisible">
        <source>“¿%” ne peut pas être lu : ¿%</source>
        <translation>‘¿%’ kan niet worden gelezen: ¿%</translation>
    </message>
    <message id="Localisation.Txt_RaisonTuileAbimee">
        <source>tuile abîmée, ou comprimée autrement qu'en LZMA</source>
        <translation>tegel beschadigd, of anders ingepakt dan met LZMA</translation>
    </message>
    <message id="Localisation.Txt_RaisonPasUnPack">
        <source>ce n'est pas une ligne de pack</source>
        <translation>dit is geen regel van een pakket</translation>
    </message>
    <message id="Localisation.Dit_PasUtf8">
        <source>ce n'est pas de l'UTF-8</source>
        <translation>dit is geen UTF-8</translation>
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
        <translation>Gebruik: tarnivel-order [--check] MODEL SCENERY_PACKS
         tarnivel-order --propose SCENERY_PACKS
         tarnivel-order --help | --version

Schrijft de regels van SCENERY_PACKS in de volgorde van MODEL naar de
standaarduitvoer, en wat niet overeenstemt naar de standaardfoutuitvoer.
“-” is de standaardinvoer. Er wordt geen bestand gewijzigd.

  --check    schrijft alleen wat niet overeenstemt
  --propose  schrijft een model naar wat de pakketten bevatten

Afsluitstatus: 0 alles stemt overeen, 1 er is iets gemeld,
2 een tekst is geweigerd of kon niet worden gelezen, 64 verkeerd gebruik.</translation>
    </message>
    <message id="Localisation.Btn_Cont">
        <source>Continuer</source>
        <translation>Doorgaan</translation>
    </message>
    <message id="Localisation.Txt_TexteModifie">
        <source>Le texte a été modifié et n'est pas enregistré. Continuer sans enregistrer ?</source>
        <translation>De tekst is gewijzigd en niet opgeslagen. Doorgaan zonder op te slaan?</translation>
    </message>
    <message id="Localisation.Txt_TxtAreaPasScenPack">
        <source>Le TextArea ne contient pas de scenery_packs.</source>
        <translation>Het tekstvak bevat geen scenery_packs.</translation>
    </message>
    <message id="Localisation.Txt_PasAncFichAsauv">
        <source>Il n'y a pas d'ancien fichier à sauvegarder.</source>
        <translation>Er is geen oud bestand om te bewaren.</translation>
    </message>
    <message id="Localisation.Txt_ImpLocDossSauvAnc">
        <source>Impossible de localiser le dossier où sauvegarder l'ancien fichier.</source>
        <translation>De map voor het oude bestand is niet gevonden.</translation>
    </message>
    <message id="Localisation.Txt_ImpLocDossSauvFich">
        <source>Impossible de localiser le dossier où sauvegarder le fichier.</source>
        <translation>De map om het bestand in op te slaan is niet gevonden.</translation>
    </message>
    <message id="Localisation.Txt_SurSauv">
        <source>Êtes-vous sûr de vouloir enregistrer “¿%” comme “¿%” ?</source>
        <extracomment>The placeholders: the name on screen, the name of the file.</extracomment>
        <translation>Weet u zeker dat u “¿%” wilt opslaan als “¿%”?</translation>
    </message>
    <message id="Localisation.Txt_ErreurEcrNouvScen">
        <source>Erreur pendant l'écriture du nouveau scenery_packs.</source>
        <translation>Fout bij het schrijven van de nieuwe scenery_packs.</translation>
    </message>
    <message id="Localisation.Txt_ErreurCopiAncScen">
        <source>Erreur pendant la copie de l'ancien (précédent) scenery_packs.</source>
        <translation>Fout bij het kopiëren van de oude (vorige) scenery_packs.</translation>
    </message>
    <message id="Localisation.Btn_Quit">
        <source>Quitter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Afsluiten</translation>
    </message>
    <message id="Localisation.WinSpecA_Title">
        <source>Spécial A</source>
        <extracomment>Window title and button, room for 88 pixels: about 12 characters.</extracomment>
        <translation>Speciaal A</translation>
    </message>
    <message id="Localisation.GrBox_HT">
        <source>Glisser déposer un fichier ici (⇧ clic sur le bouton pour révéler ce fichier dans le Finder)</source>
        <translation>Sleep een bestand hierheen (klik met ⇧ Shift op de knop om dit bestand in het bestandsbeheer te tonen)</translation>
    </message>
    <message id="Localisation.GrBoxSource">
        <source>Source</source>
        <translation>Bron</translation>
    </message>
    <message id="Localisation.Btn_ChoisirFich">
        <source>Choisir fichier…</source>
        <extracomment>Button, room for 140 pixels: about 19 characters.</extracomment>
        <translation>Bestand kiezen…</translation>
    </message>
    <message id="Localisation.LabOrg">
        <source>Original :</source>
        <extracomment>Label, room for 58 pixels: about 8 characters.</extracomment>
        <translation>Orig.:</translation>
    </message>
    <message id="Localisation.Btn_Trait">
        <source>Traiter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Verwerken</translation>
    </message>
    <message id="Localisation.Txt_DropQueFichTxt">
        <source>Vous ne pouvez glisser déposer qu'un fichier contenant du texte ici.</source>
        <translation>Hier kunt u alleen een bestand met tekst neerzetten.</translation>
    </message>
    <message id="Localisation.Txt_DropQueDoss">
        <source>Vous ne pouvez glisser déposer qu'un dossier ici.</source>
        <translation>U kunt hier alleen een map neerzetten.</translation>
    </message>
    <message id="Localisation.Dit_AliasMort">
        <source>Cet alias ne mène nulle part.</source>
        <translation>Deze alias leidt nergens heen.</translation>
    </message>
    <message id="Localisation.Dit_PasGestionnaire">
        <source>Aucun gestionnaire de fichiers ne répond.</source>
        <translation>Er antwoordt geen bestandsbeheerder.</translation>
    </message>
    <message id="Localisation.Dit_PasDeLien">
        <source>Aucun programme n'ouvre ce lien : ¿%</source>
        <translation>Geen programma opent deze link: ¿%</translation>
    </message>
    <message id="Localisation.Dit_ParBouton">
        <source>Cette fenêtre se ferme par l'un de ses boutons.</source>
        <translation>Sluit dit venster met een van de knoppen.</translation>
    </message>
    <message id="Localisation.Txt_NomNonGarde">
        <source>Le nom de cet élément ne peut pas être gardé : il n'est pas en UTF-8, ou un autre élément a presque le même.</source>
        <translation>De naam van dit onderdeel kan niet worden bewaard: hij is geen UTF-8, of een ander onderdeel heet bijna hetzelfde.</translation>
    </message>
    <message id="Localisation.Txt_ChoisirUnFich">
        <source>Choisir un fichier :</source>
        <translation>Kies een bestand:</translation>
    </message>
    <message id="Localisation.Txt_FiltreTexte">
        <source>Fichiers texte</source>
        <translation>Tekstbestanden</translation>
    </message>
    <message id="Localisation.Txt_FiltreTous">
        <source>Tous les fichiers</source>
        <translation>Alle bestanden</translation>
    </message>
    <message id="Localisation.Txt_ChoisirDossArchiv">
        <source>Choisir le dossier où garder les anciens “scenery_packs.ini” :</source>
        <translation>Kies de map waarin de oude “scenery_packs.ini” bewaard worden:</translation>
    </message>
    <message id="Localisation.Txt_SelectQueFichTxt">
        <source>Vous pouvez seulement sélectionner un fichier texte.</source>
        <translation>U kunt alleen een tekstbestand selecteren.</translation>
    </message>
    <message id="Localisation.LabDest1">
        <source>Dest 1 :</source>
        <extracomment>Label, room for 58 pixels: about 8 characters.</extracomment>
        <translation>Doel 1:</translation>
    </message>
    <message id="Localisation.LabDest2">
        <source>Dest 2 :</source>
        <extracomment>Label, room for 58 pixels: about 8 characters.</extracomment>
        <translation>Doel 2:</translation>
    </message>
    <message id="Localisation.Txt_Attente">
        <source>…</source>
        <translation>…</translation>
    </message>
    <message id="Localisation.Txt_FichOrgNonDef">
        <source>Le fichier original n'existe pas.</source>
        <translation>Het oorspronkelijke bestand bestaat niet.</translation>
    </message>
    <message id="Localisation.Txt_NomExiste">
        <source>Un fichier nommé “¿%” existe déjà.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>Er bestaat al een bestand met de naam “¿%”.</translation>
    </message>
    <message id="Localisation.Txt_Rempl_Imposs">
        <source>Remplacement impossible !</source>
        <translation>Vervangen is niet mogelijk!</translation>
    </message>
    <message id="Localisation.Txt_ErreurEcritFich">
        <source>Il y a eu une erreur pendant l'écriture du fichier.</source>
        <translation>Er is een fout opgetreden bij het schrijven van het bestand.</translation>
    </message>
    <message id="Localisation.Txt_FichPasModif">
        <source>Le fichier n'a pas été modifié, souhaitez-vous l'enregistrer tout de même ?</source>
        <translation>Het bestand is niet gewijzigd. Wilt u het toch opslaan?</translation>
    </message>
    <message id="Localisation.Btn_Remplacer">
        <source>Remplacer</source>
        <translation>Vervangen</translation>
    </message>
    <message id="Localisation.Btn_NePasRempl">
        <source>Ne pas remplacer</source>
        <translation>Niet vervangen</translation>
    </message>
    <message id="Localisation.Txt_NbTrouv">
        <source>Nombre de fois où les textes cherchés ont été trouvés :</source>
        <translation>Zo vaak zijn de gezochte teksten gevonden:</translation>
    </message>
    <message id="Localisation.Dit_TropLignes">
        <source>Le tableau ne peut pas avoir plus de 1 000 lignes.</source>
        <translation>De tabel kan niet meer dan 1.000 rijen hebben.</translation>
    </message>
    <message id="Localisation.Dit_TropLong">
        <source>Trop long : une colonne du tableau peut avoir 2 000 000 de caractères.</source>
        <translation>Te lang: een kolom van de tabel kan 2.000.000 tekens hebben.</translation>
    </message>
    <message id="Localisation.Dit_TropColonnes">
        <source>Les cellules au-delà de la troisième colonne ont été laissées de côté.</source>
        <translation>De cellen voorbij de derde kolom zijn weggelaten.</translation>
    </message>
    <message id="Localisation.Dit_RienEnlever">
        <source>Aucune ligne n'est sélectionnée, et la dernière n'est pas vide.</source>
        <translation>Er is geen rij geselecteerd en de laatste is niet leeg.</translation>
    </message>
    <message id="Localisation.Txt_LectureImp">
        <source>Le fichier original ne peut pas être lu.</source>
        <translation>Het originele bestand kan niet gelezen worden.</translation>
    </message>
    <message id="Localisation.Txt_TropGrand">
        <source>“¿%” deviendrait trop long et n'est pas écrit.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>“¿%” zou te lang worden en wordt niet geschreven.</translation>
    </message>
    <message id="Localisation.Txt_MemoireManque">
        <source>La mémoire ne suffit pas pour ce traitement.</source>
        <translation>Er is niet genoeg geheugen voor deze bewerking.</translation>
    </message>
    <message id="Localisation.Txt_DossierPlein">
        <source>“¿%” est un dossier. Ce qu'il contient sera supprimé avec lui. Nombre d'éléments : ¿%.</source>
        <extracomment>The placeholders: the name of a folder, and how many items are in it.</extracomment>
        <translation>“¿%” is een map. Wat erin zit, wordt samen met de map verwijderd. Aantal onderdelen: ¿%.</translation>
    </message>
    <message id="Localisation.Txt_RemplOriginal">
        <source>“¿%” est le fichier original lui-même. Son texte d'avant sera perdu.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>“¿%” is het originele bestand zelf. De oude tekst gaat verloren.</translation>
    </message>
    <message id="Localisation.Dit_TraitArrete">
        <source>Traitement arrêté, rien n'a été écrit.</source>
        <translation>Verwerking gestopt, er is niets geschreven.</translation>
    </message>
    <message id="Localisation.Dit_RienEcrit">
        <source>Rien n'a été écrit.</source>
        <translation>Er is niets geschreven.</translation>
    </message>
    <message id="Localisation.Dit_EcritDans">
        <source>Écrit : ¿%, dans ¿%.</source>
        <extracomment>The placeholders: names of files, and the path of their folder.</extracomment>
        <translation>Geschreven: ¿%, in ¿%.</translation>
    </message>
    <message id="Localisation.Btn_CopiList_HT">
        <source>Copier la liste dans le presse-papiers</source>
        <translation>De lijst naar het klembord kopiëren</translation>
    </message>
    <message id="Localisation.Txt_OctetsRetires">
        <source>“¿%” contient des octets qui ne sont pas de l'UTF-8. Les caractères non ASCII en ont été retirés, dans ¿% ligne(s). La première est la ligne ¿% :
¿%</source>
        <extracomment>What bytes that are no UTF-8 cost. Placeholders: file or address, number of lines, number of the first line, that line.</extracomment>
        <translation>“¿%” bevat bytes die geen UTF-8 zijn. De tekens buiten ASCII zijn weggehaald, in ¿% regel(s). De eerste is regel ¿%:
¿%</translation>
    </message>
    <message id="Localisation.Txt_SauvTexteAbime">
        <source>Des caractères de ce texte ont été retirés à la lecture, parce que son fichier contient des octets qui ne sont pas de l'UTF-8. L'enregistrer quand même ?</source>
        <extracomment>Question before a save.</extracomment>
        <translation>Bij het lezen zijn tekens uit deze tekst weggehaald, omdat het bestand bytes bevat die geen UTF-8 zijn. Toch opslaan?</translation>
    </message>
    <message id="Localisation.Txt_FichierChange">
        <source>“¿%” a changé sur le disque depuis qu'il a été lu. L'enregistrement fera perdre ces changements.</source>
        <extracomment>Question before a save. Placeholder: the file's path.</extracomment>
        <translation>“¿%” is op de schijf veranderd sinds het gelezen is. Bij opslaan gaan die veranderingen verloren.</translation>
    </message>
    <message id="Localisation.Txt_FormeTexte">
        <source>“¿%” n'est pas un simple texte UTF-8 aux fins de ligne LF : ¿%.</source>
        <extracomment>In the status line. Placeholders: file or address, and what it is, as in “BOM, CR LF” or “UTF-16”.</extracomment>
        <translation>“¿%” is geen gewone UTF-8-tekst met regeleinden LF: ¿%.</translation>
    </message>
    <message id="Localisation.Txt_PrefsGardees">
        <source>Avant d'être remplacé, l'ancien fichier de réglages sera renommé “¿%”.</source>
        <extracomment>Told when the settings could not be read as they are. Placeholder: a file name.</extracomment>
        <translation>Voordat het vervangen wordt, krijgt het oude instellingenbestand de naam “¿%”.</translation>
    </message>
    <message id="Localisation.Txt_PrefsNonGardees">
        <source>Le dossier “¿%” n'est pas utilisable (¿%) : les réglages ne seront pas gardés.</source>
        <extracomment>Told at the start. Placeholders: the folder's path, the reason.</extracomment>
        <translation>De map “¿%” is niet bruikbaar (¿%): de instellingen worden niet bewaard.</translation>
    </message>
    <message id="Localisation.Txt_PrefsNonReprises">
        <source>Les réglages d'une version plus ancienne n'ont pas pu être déplacés et servent là où ils sont, dans “¿%” : ¿%.</source>
        <extracomment>Told at the start. Placeholders: the place of an older version's settings, the reason.</extracomment>
        <translation>De instellingen van een oudere versie konden niet worden verplaatst en worden gebruikt waar ze zijn, in “¿%”: ¿%.</translation>
    </message>
    <message id="Localisation.Pref_ChBoxAffBtnSpecA">
        <source>Afficher bouton “Spécial A”</source>
        <extracomment>Check box, room for 338 pixels: about 46 characters.</extracomment>
        <translation>De knop “Speciaal A” tonen</translation>
    </message>
    <message id="Localisation.Menu_Preferences">
        <source>Préférences…</source>
        <translation>Voorkeuren…</translation>
    </message>
    <message id="Localisation.Menu_Rapport">
        <source>Dernier rapport</source>
        <translation>Laatste rapport</translation>
    </message>
    <message id="Localisation.Menu_Monter">
        <source>Monter les lignes</source>
        <translation>Regels omhoog</translation>
    </message>
    <message id="Localisation.Menu_Descendre">
        <source>Descendre les lignes</source>
        <translation>Regels omlaag</translation>
    </message>
    <message id="Localisation.Menu_Doubler">
        <source>Doubler les lignes</source>
        <translation>Regels verdubbelen</translation>
    </message>
    <message id="Localisation.Menu_Supprimer">
        <source>Supprimer les lignes</source>
        <translation>Regels verwijderen</translation>
    </message>
    <message id="Localisation.Menu_MarqueSuiv">
        <source>Ligne sans équivalent suivante</source>
        <translation>Volgende regel zonder tegenhanger</translation>
    </message>
    <message id="Localisation.Menu_MarquePrec">
        <source>Ligne sans équivalent précédente</source>
        <translation>Vorige regel zonder tegenhanger</translation>
    </message>
    <message id="Localisation.Menu_CherchSuiv">
        <source>Chercher le suivant</source>
        <translation>Volgende zoeken</translation>
    </message>
    <message id="Localisation.Menu_CherchPrec">
        <source>Chercher le précédent</source>
        <translation>Vorige zoeken</translation>
    </message>
    <message id="Localisation.Menu_Ajouter">
        <source>Ajouter les dossiers absents du texte</source>
        <translation>Ontbrekende mappen toevoegen</translation>
    </message>
    <message id="Localisation.Menu_DesactSansDoss">
        <source>Désactiver les lignes sans dossier</source>
        <translation>Regels zonder map uitschakelen</translation>
    </message>
    <message id="Localisation.Nb_Ajoutees">
        <source>ligne ajoutée|lignes ajoutées</source>
        <translation>regel toegevoegd|regels toegevoegd</translation>
    </message>
    <message id="Localisation.Dit_PasPlusLoin">
        <source>Impossible de déplacer plus loin</source>
        <translation>Kan niet verder worden verplaatst</translation>
    </message>
    <message id="Localisation.Dit_PasDeLigne">
        <source>Il n'y a pas de ligne ici</source>
        <translation>Hier staat geen regel</translation>
    </message>
    <message id="Localisation.Dit_SansDossiers">
        <source>Le dossier Custom Scenery n'est pas accessible</source>
        <translation>De map Custom Scenery is niet toegankelijk</translation>
    </message>
    <message id="Localisation.Dit_PasDeRapport">
        <source>Rien à signaler</source>
        <translation>Niets te melden</translation>
    </message>
    <message id="Localisation.WinPref_Title">
        <source>Préférences</source>
        <translation>Voorkeuren</translation>
    </message>
    <message id="Localisation.StText_VolSfx">
        <source>Effets sonores :</source>
        <extracomment>Label, room for 130 pixels: about 17 characters.</extracomment>
        <translation>Geluidseffecten:</translation>
    </message>
    <message id="Localisation.Btn_Aide_HT">
        <source>Cette version a été compilée pour ¿% le ¿%</source>
        <extracomment>The placeholders: the kind of build, its date.</extracomment>
        <translation>Deze versie is gecompileerd voor ¿% op ¿%</translation>
    </message>
</context>
</TS>
