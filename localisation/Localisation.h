/// All texts that the program shows to a user, in French; those of other languages are the program's resources.
#pragma once

#include "toolkit/core/Text.h"

#include <initializer_list>

namespace Localisation {

/// A text and the name that translations know it by. Called like a function it gives the text for the user.
struct Text {
    StringView name, french;

    /// Looked up anew at each call: in `language` ("de"), or in the user's language when that is empty, and in French
    /// where the program has no translation.
    String operator()(StringView language = {}) const;
};

/// The text with its placeholders "¿%" filled, one after the other.
String Filled(StringView text, std::initializer_list<StringView> fillings);

// clang-format off
inline constexpr Text Infos_Texte{U"Infos_Texte",
    U"Ce programme gère le fichier “scenery_packs.ini” d'X-Plane.\n"
    U" \n"
    U"Sélectionnez le fichier Modèle qui contient le scenery dans le bon ordre. Ou sélectionnez le chemin de l'Url "
    U"vers un fichier Modèle.\n"
    U" \n"
    U"Éventuellement, sélectionnez un dossier pour sauvegarder l'ancien “scenery_packs.ini”.\n"
    U" \n"
    U"Sélectionnez le fichier “scenery_packs.ini” de votre dossier X-Plane, ce fichier sera réordonné.\n"
    U" \n"
    U"Cliquez Lancer.\n"
    U" \n"
    U"Sélectionnez “Spack After” dans le PopupMenu. Si certaines lignes sont colorées, cela signifie qu'elles sont "
    U"dans “scenery_packs.ini” mais pas dans le scenery Modèle.\n"
    U"Quand “Spack Mod” est sélectionné, si certaines lignes sont colorées, cela signifie qu'elles sont dans le "
    U"scenery Modèle mais pas dans “scenery_packs.ini”.\n"
    U" \n"
    U"Vous pouvez sélectionner une partie du texte dans la Zone de Texte et cliquez le bouton “Enable/Disable” pour "
    U"inverser “SCENERY_PACK” et “SCENERY_PACK_DISABLED”.\n"
    U" \n"
    U"Cliquez le bouton “Sauver” pour sauvegarder le texte contenu dans la zone de texte dans le fichier sélectionné "
    U"dans le PopupMenu. Rien ne sera modifié dans votre fichier jusqu'à ce que vous cliquiez ce bouton."};
inline constexpr Text Infos_Menu{U"Infos_Menu",
    U"Le menu “Texte” ordonne le texte à la main : il déplace les lignes sélectionnées (Alt+Haut, Alt+Bas), les "
    U"double (Ctrl+D) ou les supprime (Ctrl+Maj+K), va à la ligne colorée suivante ou précédente (F8, Maj+F8), au "
    U"texte cherché suivant ou précédent (F3, Maj+F3), lance (F5), montre le dernier rapport, ajoute les dossiers "
    U"absents du texte, désactive les lignes sans dossier et propose un modèle. Ctrl+Z reprend chaque modification, "
    U"Ctrl+Y la rétablit.\n"
    U" \n"
    U"La ligne sous la fenêtre dit où est le curseur et ce que la vue contient, puis ce qui vient d'être fait, ou "
    U"pourquoi une action est refusée."};
inline constexpr Text RdButtSourceA{U"RdButtSourceA", U"Fichier modèle"};
inline constexpr Text Btn_OpenUrl{U"Btn_OpenUrl", U"Ouvrir Url"};
inline constexpr Text StTextScenPack{U"StTextScenPack", U"scenery_packs.ini"};
inline constexpr Text ChBoxArchive{U"ChBoxArchive", U"Sauv anc Spack"};
inline constexpr Text Menu_FichSelFichMod{U"Menu_FichSelFichMod", U"Selectionner fichier modèle"};
inline constexpr Text Menu_FichSelDossArchiv{U"Menu_FichSelDossArchiv", U"Sélectionner dossier archives"};
inline constexpr Text Menu_FichSelFichScenPack{U"Menu_FichSelFichScenPack", U"Selectionner fichier scenery_packs"};
inline constexpr Text RdButtSourceB{U"RdButtSourceB", U"Url modèle"};
inline constexpr Text Btn_SelectDossier{U"Btn_SelectDossier", U"Sélect dossier"};
inline constexpr Text Btn_SelectFichier{U"Btn_SelectFichier", U"Sélect fichier"};
inline constexpr Text Btn_SauvFichier{U"Btn_SauvFichier", U"Sauv fichier"};
inline constexpr Text Btn_SauvFichier_HT{U"Btn_SauvFichier_HT",
    U"Sauvegarder le texte affiché ci-dessous dans le fichier sélectionné dans le PopupMenu (donc le modèle ou le "
    U"Scenery_packs)"};
inline constexpr Text Btn_Annuler{U"Btn_Annuler", U"Annuler"};
inline constexpr Text Btn_Ok{U"Btn_Ok", U"Ok"};
inline constexpr Text Btn_Fermer{U"Btn_Fermer", U"Fermer"};
inline constexpr Text Menu_Edit{U"Menu_Edit", U"Édition"};
inline constexpr Text Menu_EditUndo{U"Menu_EditUndo", U"Annuler"};
inline constexpr Text Menu_EditRedo{U"Menu_EditRedo", U"Rétablir"};
inline constexpr Text Menu_EditClear{U"Menu_EditClear", U"Effacer"};
inline constexpr Text Menu_EditCopy{U"Menu_EditCopy", U"Copier"};
inline constexpr Text Menu_EditCut{U"Menu_EditCut", U"Couper"};
inline constexpr Text Menu_EditPaste{U"Menu_EditPaste", U"Coller"};
inline constexpr Text Menu_EditSelectAll{U"Menu_EditSelectAll", U"Tout sélectionner"};
inline constexpr Text Menu_Fichier{U"Menu_Fichier", U"Fichier"};
inline constexpr Text WinAide_Title{U"WinAide_Title", U"Aide"};
inline constexpr Text Btn_AffDoss{U"Btn_AffDoss", U"Affich Dossier"};
inline constexpr Text Btn_AffDoss_HT{U"Btn_AffDoss_HT",
    U"Appliqué à la première ligne du texte sélectionné\nOuvre (révéle sur Mac) l'élément dans le Finder"};
inline constexpr Text Btn_EnabDis{U"Btn_EnabDis", U"Activer / Désactiver"};
inline constexpr Text Btn_Select_HT{U"Btn_Select_HT", U"⇧ clic sur le bouton pour révéler cet élément"};
inline constexpr Text Btn_EnabDis_HT{U"Btn_EnabDis_HT",
    U"Appliqué au texte sélectionné\nPresser la touche ⇧ pour activer\nPresser la touche ⌃ pour désactiver"};
inline constexpr Text Btn_Arreter{U"Btn_Arreter", U"Arrêter"};
inline constexpr Text Btn_Generer{U"Btn_Generer", U"Générer"};
inline constexpr Text Btn_Historic{U"Btn_Historic", U"Historique"};
inline constexpr Text Btn_Chercher_HT{U"Btn_Chercher_HT", U"Chercher"};
inline constexpr Text PopupAff{U"PopupAff", U"Spack Modèle\nSpack Avant\nSpack Après"};
inline constexpr Text Nb_Lignes{U"Nb_Lignes", U"ligne|lignes"};
inline constexpr Text Nb_Activees{U"Nb_Activees", U"activée|activées"};
inline constexpr Text Nb_Desactivees{U"Nb_Desactivees", U"désactivée|désactivées"};
inline constexpr Text Nb_SansEquiv{U"Nb_SansEquiv", U"sans équivalent|sans équivalent"};
inline constexpr Text Nb_Remarques{U"Nb_Remarques", U"remarque|remarques"};
inline constexpr Text Nb_Modifiees{U"Nb_Modifiees", U"ligne modifiée|lignes modifiées"};
inline constexpr Text Dit_Ligne{U"Dit_Ligne", U"Ligne ¿%"};
inline constexpr Text Dit_Reordonne{U"Dit_Reordonne", U"Réordonné : ¿%"};
inline constexpr Text Dit_Arrete{U"Dit_Arrete", U"Arrêté : rien n'a été réordonné"};
inline constexpr Text Dit_ModeleRefuse{U"Dit_ModeleRefuse", U"Modèle refusé : ¿%"};
inline constexpr Text Dit_SpackRefuse{U"Dit_SpackRefuse", U"scenery_packs.ini refusé : ¿%"};
inline constexpr Text Dit_FinsWindows{U"Dit_FinsWindows", U"fins de ligne Windows"};
inline constexpr Text Dit_Bom{U"Dit_Bom", U"marque d'ordre d'octets (BOM)"};
inline constexpr Text Dit_Vide{U"Dit_Vide", U"vide ou illisible"};
inline constexpr Text Dit_SansEntete{U"Dit_SansEntete", U"ne commence pas comme un scenery_packs.ini"};
inline constexpr Text Dit_Enregistre{U"Dit_Enregistre", U"Enregistré : ¿%"};
inline constexpr Text Dit_Archive{U"Dit_Archive", U"ancien fichier : ¿%"};
inline constexpr Text Dit_PasEnregistre{U"Dit_PasEnregistre", U"Rien n'a été enregistré"};
inline constexpr Text Dit_ModelePasEnregistre{U"Dit_ModelePasEnregistre",
    U"Le modèle affiché n'est pas encore enregistré : enregistrez-le d'abord"};
inline constexpr Text Err_PasDeReponse{U"Err_PasDeReponse", U"Pas de réponse complète en 10 secondes"};
inline constexpr Text Err_ReponseTropLongue{U"Err_ReponseTropLongue",
    U"La réponse a plus de 8 Mio ou de 250 000 lignes"};
inline constexpr Text Err_ReponseCoupee{U"Err_ReponseCoupee", U"La réponse a été coupée"};
inline constexpr Text Dit_Introuvable{U"Dit_Introuvable", U"“¿%” introuvable"};
inline constexpr Text Dit_SeulTrouve{U"Dit_SeulTrouve", U"“¿%” : pas d'autre occurrence"};
inline constexpr Text Dit_RepriseDebut{U"Dit_RepriseDebut", U"Reprise au début du texte"};
inline constexpr Text Dit_RepriseFin{U"Dit_RepriseFin", U"Reprise à la fin du texte"};
inline constexpr Text Dit_RienChercher{U"Dit_RienChercher", U"Rien à chercher : le champ de recherche est vide"};
inline constexpr Text Dit_AucuneMarque{U"Dit_AucuneMarque", U"Aucune ligne sans équivalent dans ce texte"};
inline constexpr Text Dit_PasLa{U"Dit_PasLa", U"N'existe pas : ¿%"};
inline constexpr Text Dit_PasDossier{U"Dit_PasDossier", U"Cette ligne ne nomme pas de dossier de Custom Scenery"};
inline constexpr Text Dit_Occupe{U"Dit_Occupe", U"Un traitement ou un dialogue est en cours : terminez-le d'abord"};
inline constexpr Text Txt_ProbLignPresDxFois{U"Txt_ProbLignPresDxFois",
    U"Problème, la ligne ci-dessous est présente plus d'une fois :"};
inline constexpr Text Txt_ProbLignEquiv{U"Txt_ProbLignEquiv", U"Problème, les lignes ci-dessous sont équivalentes :"};
inline constexpr Text Txt_ScenPlusDuneFois{U"Txt_ScenPlusDuneFois",
    U"Ces Sceneries sont plus d'une fois dans le SceneryModel :"};
inline constexpr Text Txt_UrlDoitCommencer{U"Txt_UrlDoitCommencer",
    U"L'url devrait commencer avec 'http://' o 'https://'."};
inline constexpr Text Txt_DossDsDossPasDsScen{U"Txt_DossDsDossPasDsScen",
    U"Ces dossiers sont dans le dossier “Custom Scenery” mais pas dans “scenery_packs.ini” :"};
inline constexpr Text Txt_ScenDsScenIniPasDsDoss{U"Txt_ScenDsScenIniPasDsDoss",
    U"Ces Sceneries sont dans “scenery_packs.ini” mais pas dans le dossier “Custom Scenery” :"};
inline constexpr Text Txt_ProblemCompInitFinal{U"Txt_ProblemCompInitFinal",
    U"Il y a eu un problème, veuillez comparer le fichier intial avec le fichier final."};
inline constexpr Text Txt_ScenAutreCasse{U"Txt_ScenAutreCasse",
    U"X-Plane ne chargera pas ces Sceneries, leur dossier (entre parenthèses) ayant d'autres majuscules :"};
inline constexpr Text Txt_PlusDsFichier{U"Txt_PlusDsFichier",
    U"Dans le fichier initial, mais pas ou moins souvent dans le fichier final :"};
inline constexpr Text Txt_PlusDsResultat{U"Txt_PlusDsResultat",
    U"Dans le fichier final, mais pas ou moins souvent dans le fichier initial :"};
inline constexpr Text Txt_LignesVides{U"Txt_LignesVides",
    U"Lignes vides : ¿% dans le fichier initial, ¿% dans le fichier final."};
inline constexpr Text Menu_TexteProposer{U"Menu_TexteProposer", U"Proposer un modèle…"};
inline constexpr Text Txt_ChoisirModele{U"Txt_ChoisirModele", U"Enregistrer le modèle proposé sous :"};
inline constexpr Text Dit_PropArretee{U"Dit_PropArretee", U"Arrêté : aucun modèle n'a été proposé"};
inline constexpr Text Dit_OffreModele{U"Dit_OffreModele", U"le menu “Texte” peut en proposer un"};
inline constexpr Text Menu_Texte{U"Menu_Texte", U"Texte"};
inline constexpr Text Txt_PropFait{U"Txt_PropFait", U"Le modèle est proposé, mais pas encore enregistré."};
inline constexpr Text Txt_PropAeroports{U"Txt_PropAeroports", U"Aéroports : ¿%"};
inline constexpr Text Txt_PropAeroportsXP{U"Txt_PropAeroportsXP", U"Aéroports de X-Plane : ¿%"};
inline constexpr Text Txt_PropOverlays{U"Txt_PropOverlays", U"Surcouches (overlays) : ¿%"};
inline constexpr Text Txt_PropInconnus{U"Txt_PropInconnus", U"Inconnus : ¿%"};
inline constexpr Text Txt_PropPlugins{U"Txt_PropPlugins", U"Greffons (plugins) : ¿%"};
inline constexpr Text Txt_PropBibliotheques{U"Txt_PropBibliotheques", U"Bibliothèques : ¿%"};
inline constexpr Text Txt_PropMaillages{U"Txt_PropMaillages", U"Maillages et tuiles photo : ¿%"};
inline constexpr Text Txt_PropDoublons{U"Txt_PropDoublons", U"Omis, une autre ligne nommant la même scène : ¿%"};
inline constexpr Text Txt_PropSansLigne{U"Txt_PropSansLigne", U"Omis, aucune ligne ne pouvant tenir le nom : ¿%"};
inline constexpr Text Txt_RaisonDossAbsent{U"Txt_RaisonDossAbsent", U"le dossier manque"};
inline constexpr Text Txt_RaisonRien{U"Txt_RaisonRien", U"rien n'y dit ce que c'est"};
inline constexpr Text Txt_RaisonIllisible{U"Txt_RaisonIllisible", U"“¿%” ne peut pas être lu : ¿%"};
inline constexpr Text Txt_RaisonTuileAbimee{U"Txt_RaisonTuileAbimee",
    U"tuile abîmée, ou comprimée autrement qu'en LZMA"};
inline constexpr Text Txt_RaisonPasUnPack{U"Txt_RaisonPasUnPack", U"ce n'est pas une ligne de pack"};
inline constexpr Text Dit_PasUtf8{U"Dit_PasUtf8", U"ce n'est pas de l'UTF-8"};
inline constexpr Text Txt_OrdreAide{U"Txt_OrdreAide",
    U"Utilisation : tarnivel-order [--check] MODÈLE SCENERY_PACKS\n"
    U"              tarnivel-order --propose SCENERY_PACKS\n"
    U"              tarnivel-order --help | --version\n"
    U"\n"
    U"Écrit les lignes de SCENERY_PACKS dans l'ordre de MODÈLE sur la sortie standard,\n"
    U"et ce qui ne concorde pas sur celle des erreurs. “-” est l'entrée standard.\n"
    U"Aucun fichier n'est modifié.\n"
    U"\n"
    U"  --check    n'écrit que ce qui ne concorde pas\n"
    U"  --propose  écrit un modèle d'après ce que contiennent les packs\n"
    U"\n"
    U"État de sortie : 0 tout concorde, 1 quelque chose a été signalé,\n"
    U"2 un texte a été refusé ou n'a pu être lu, 64 mauvaise utilisation."};
inline constexpr Text Btn_Cont{U"Btn_Cont", U"Continuer"};
inline constexpr Text Txt_TexteModifie{U"Txt_TexteModifie",
    U"Le texte a été modifié et n'est pas enregistré. Continuer sans enregistrer ?"};
inline constexpr Text Txt_TxtAreaPasScenPack{U"Txt_TxtAreaPasScenPack",
    U"Le TextArea ne contient pas de scenery_packs."};
inline constexpr Text Txt_PasAncFichAsauv{U"Txt_PasAncFichAsauv", U"Il n'y a pas d'ancien fichier à sauvegarder."};
inline constexpr Text Txt_ImpLocDossSauvAnc{U"Txt_ImpLocDossSauvAnc",
    U"Impossible de localiser le dossier où sauvegarder l'ancien fichier."};
inline constexpr Text Txt_ImpLocDossSauvFich{U"Txt_ImpLocDossSauvFich",
    U"Impossible de localiser le dossier où sauvegarder le fichier."};
inline constexpr Text Txt_SurSauv{U"Txt_SurSauv", U"Êtes-vous sûr de vouloir enregistrer “¿%” comme “¿%” ?"};
inline constexpr Text Txt_ErreurEcrNouvScen{U"Txt_ErreurEcrNouvScen",
    U"Erreur pendant l'écriture du nouveau scenery_packs."};
inline constexpr Text Txt_ErreurCopiAncScen{U"Txt_ErreurCopiAncScen",
    U"Erreur pendant la copie de l'ancien (précédent) scenery_packs."};
inline constexpr Text Btn_Quit{U"Btn_Quit", U"Quitter"};
inline constexpr Text WinSpecA_Title{U"WinSpecA_Title", U"Spécial A"};
inline constexpr Text GrBox_HT{U"GrBox_HT",
    U"Glisser déposer un fichier ici (⇧ clic sur le bouton pour révéler ce fichier dans le Finder)"};
inline constexpr Text GrBoxSource{U"GrBoxSource", U"Source"};
inline constexpr Text Btn_ChoisirFich{U"Btn_ChoisirFich", U"Choisir fichier…"};
inline constexpr Text LabOrg{U"LabOrg", U"Original :"};
inline constexpr Text Btn_Trait{U"Btn_Trait", U"Traiter"};
inline constexpr Text Txt_DropQueFichTxt{U"Txt_DropQueFichTxt",
    U"Vous ne pouvez glisser déposer qu'un fichier contenant du texte ici."};
inline constexpr Text Txt_DropQueDoss{U"Txt_DropQueDoss", U"Vous ne pouvez glisser déposer qu'un dossier ici."};
inline constexpr Text Dit_AliasMort{U"Dit_AliasMort", U"Cet alias ne mène nulle part."};
inline constexpr Text Dit_PasGestionnaire{U"Dit_PasGestionnaire", U"Aucun gestionnaire de fichiers ne répond."};
inline constexpr Text Dit_PasDeLien{U"Dit_PasDeLien", U"Aucun programme n'ouvre ce lien : ¿%"};
inline constexpr Text Dit_ParBouton{U"Dit_ParBouton", U"Cette fenêtre se ferme par l'un de ses boutons."};
inline constexpr Text Txt_NomNonGarde{U"Txt_NomNonGarde",
    U"Le nom de cet élément ne peut pas être gardé : il n'est pas en UTF-8, ou un autre élément a presque le même."};
inline constexpr Text Txt_ChoisirUnFich{U"Txt_ChoisirUnFich", U"Choisir un fichier :"};
inline constexpr Text Txt_FiltreTexte{U"Txt_FiltreTexte", U"Fichiers texte"};
inline constexpr Text Txt_FiltreTous{U"Txt_FiltreTous", U"Tous les fichiers"};
inline constexpr Text Txt_ChoisirDossArchiv{U"Txt_ChoisirDossArchiv",
    U"Choisir le dossier où garder les anciens “scenery_packs.ini” :"};
inline constexpr Text Txt_SelectQueFichTxt{U"Txt_SelectQueFichTxt",
    U"Vous pouvez seulement sélectionner un fichier texte."};
inline constexpr Text LabDest1{U"LabDest1", U"Dest 1 :"};
inline constexpr Text LabDest2{U"LabDest2", U"Dest 2 :"};
inline constexpr Text Txt_Attente{U"Txt_Attente", U"…"};
inline constexpr Text Txt_FichOrgNonDef{U"Txt_FichOrgNonDef", U"Le fichier original n'existe pas."};
inline constexpr Text Txt_NomExiste{U"Txt_NomExiste", U"Un fichier nommé “¿%” existe déjà."};
inline constexpr Text Txt_Rempl_Imposs{U"Txt_Rempl_Imposs", U"Remplacement impossible !"};
inline constexpr Text Txt_ErreurEcritFich{U"Txt_ErreurEcritFich",
    U"Il y a eu une erreur pendant l'écriture du fichier."};
inline constexpr Text Txt_FichPasModif{U"Txt_FichPasModif",
    U"Le fichier n'a pas été modifié, souhaitez-vous l'enregistrer tout de même ?"};
inline constexpr Text Btn_Remplacer{U"Btn_Remplacer", U"Remplacer"};
inline constexpr Text Btn_NePasRempl{U"Btn_NePasRempl", U"Ne pas remplacer"};
inline constexpr Text Txt_NbTrouv{U"Txt_NbTrouv", U"Nombre de fois où les textes cherchés ont été trouvés :"};
inline constexpr Text Dit_TropLignes{U"Dit_TropLignes", U"Le tableau ne peut pas avoir plus de 1 000 lignes."};
inline constexpr Text Dit_TropLong{U"Dit_TropLong",
    U"Trop long : une colonne du tableau peut avoir 2 000 000 de caractères."};
inline constexpr Text Dit_TropColonnes{U"Dit_TropColonnes",
    U"Les cellules au-delà de la troisième colonne ont été laissées de côté."};
inline constexpr Text Dit_RienEnlever{U"Dit_RienEnlever",
    U"Aucune ligne n'est sélectionnée, et la dernière n'est pas vide."};
inline constexpr Text Txt_LectureImp{U"Txt_LectureImp", U"Le fichier original ne peut pas être lu."};
inline constexpr Text Txt_TropGrand{U"Txt_TropGrand", U"“¿%” deviendrait trop long et n'est pas écrit."};
inline constexpr Text Txt_MemoireManque{U"Txt_MemoireManque", U"La mémoire ne suffit pas pour ce traitement."};
inline constexpr Text Txt_DossierPlein{U"Txt_DossierPlein",
    U"“¿%” est un dossier. Ce qu'il contient sera supprimé avec lui. Nombre d'éléments : ¿%."};
inline constexpr Text Txt_RemplOriginal{U"Txt_RemplOriginal",
    U"“¿%” est le fichier original lui-même. Son texte d'avant sera perdu."};
inline constexpr Text Dit_TraitArrete{U"Dit_TraitArrete", U"Traitement arrêté, rien n'a été écrit."};
inline constexpr Text Dit_RienEcrit{U"Dit_RienEcrit", U"Rien n'a été écrit."};
inline constexpr Text Dit_EcritDans{U"Dit_EcritDans", U"Écrit : ¿%, dans ¿%."};
inline constexpr Text Btn_CopiList_HT{U"Btn_CopiList_HT", U"Copier la liste dans le presse-papiers"};
inline constexpr Text Txt_OctetsRetires{U"Txt_OctetsRetires",
    U"“¿%” contient des octets qui ne sont pas de l'UTF-8. Les caractères non ASCII en ont été retirés, dans ¿% "
    U"ligne(s). La première est la ligne ¿% :\n¿%"};
inline constexpr Text Txt_SauvTexteAbime{U"Txt_SauvTexteAbime",
    U"Des caractères de ce texte ont été retirés à la lecture, parce que son fichier contient des octets qui ne "
    U"sont pas de l'UTF-8. L'enregistrer quand même ?"};
inline constexpr Text Txt_FichierChange{U"Txt_FichierChange",
    U"“¿%” a changé sur le disque depuis qu'il a été lu. L'enregistrement fera perdre ces changements."};
inline constexpr Text Txt_FormeTexte{U"Txt_FormeTexte",
    U"“¿%” n'est pas un simple texte UTF-8 aux fins de ligne LF : ¿%."};
inline constexpr Text Txt_PrefsGardees{U"Txt_PrefsGardees",
    U"Avant d'être remplacé, l'ancien fichier de réglages sera renommé “¿%”."};
inline constexpr Text Txt_PrefsNonGardees{U"Txt_PrefsNonGardees",
    U"Le dossier “¿%” n'est pas utilisable (¿%) : les réglages ne seront pas gardés."};
inline constexpr Text Txt_PrefsNonReprises{U"Txt_PrefsNonReprises",
    U"Les réglages d'une version plus ancienne n'ont pas pu être déplacés et servent là où ils sont, dans “¿%” : ¿%."};
inline constexpr Text Pref_ChBoxAffBtnSpecA{U"Pref_ChBoxAffBtnSpecA", U"Afficher bouton “Spécial A”"};
inline constexpr Text Menu_Preferences{U"Menu_Preferences", U"Préférences…"};
inline constexpr Text Menu_Rapport{U"Menu_Rapport", U"Dernier rapport"};
inline constexpr Text Menu_Monter{U"Menu_Monter", U"Monter les lignes"};
inline constexpr Text Menu_Descendre{U"Menu_Descendre", U"Descendre les lignes"};
inline constexpr Text Menu_Doubler{U"Menu_Doubler", U"Doubler les lignes"};
inline constexpr Text Menu_Supprimer{U"Menu_Supprimer", U"Supprimer les lignes"};
inline constexpr Text Menu_MarqueSuiv{U"Menu_MarqueSuiv", U"Ligne sans équivalent suivante"};
inline constexpr Text Menu_MarquePrec{U"Menu_MarquePrec", U"Ligne sans équivalent précédente"};
inline constexpr Text Menu_CherchSuiv{U"Menu_CherchSuiv", U"Chercher le suivant"};
inline constexpr Text Menu_CherchPrec{U"Menu_CherchPrec", U"Chercher le précédent"};
inline constexpr Text Menu_Ajouter{U"Menu_Ajouter", U"Ajouter les dossiers absents du texte"};
inline constexpr Text Menu_DesactSansDoss{U"Menu_DesactSansDoss", U"Désactiver les lignes sans dossier"};
inline constexpr Text Nb_Ajoutees{U"Nb_Ajoutees", U"ligne ajoutée|lignes ajoutées"};
inline constexpr Text Dit_PasPlusLoin{U"Dit_PasPlusLoin", U"Impossible de déplacer plus loin"};
inline constexpr Text Dit_PasDeLigne{U"Dit_PasDeLigne", U"Il n'y a pas de ligne ici"};
inline constexpr Text Dit_SansDossiers{U"Dit_SansDossiers", U"Le dossier Custom Scenery n'est pas accessible"};
inline constexpr Text Dit_PasDeRapport{U"Dit_PasDeRapport", U"Rien à signaler"};
inline constexpr Text WinPref_Title{U"WinPref_Title", U"Préférences"};
inline constexpr Text StText_VolSfx{U"StText_VolSfx", U"Effets sonores :"};
inline constexpr Text Btn_Aide_HT{U"Btn_Aide_HT", U"Cette version a été compilée pour ¿% le ¿%"};
// clang-format on

} // namespace Localisation
