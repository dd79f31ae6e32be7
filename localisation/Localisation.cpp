#include "localisation/Localisation.h"

#include "toolkit/core/System.h"

namespace Localisation {
namespace {

/// The default texts are stored behind this mark, which shows a text that was taken from here without a look-up.
constexpr char32_t defaultMark = U'‡';

String LookUp(StringView name, StringView markedDefault, StringView language)
{
    String key = U"Localisation.";
    key += name;
    String text = SystemGetLocalizedString(key, markedDefault, language);
    if (!text.empty() && text.front() == defaultMark) text.erase(0, 1);
    return text;
}

} // namespace

String Infos_Texte(StringView language)
{
    return LookUp(U"Infos_Texte",
                  U"‡Ce programme gère le fichier “scenery_packs.ini” d'X-Plane.\n"
                  U" \n"
                  U"Sélectionnez le fichier Modèle qui contient le scenery dans le bon ordre. Ou sélectionnez le "
                  U"chemin de l'Url vers un fichier Modèle.\n"
                  U" \n"
                  U"Éventuellement, sélectionnez un dossier pour sauvegarder l'ancien “scenery_packs.ini”.\n"
                  U" \n"
                  U"Sélectionnez le fichier “scenery_packs.ini” de votre dossier X-Plane, ce fichier sera réordonné.\n"
                  U" \n"
                  U"Cliquez Lancer.\n"
                  U" \n"
                  U"Sélectionnez “Spack After” dans le PopupMenu. Si certaines lignes sont colorées, cela signifie "
                  U"qu'elles sont dans “scenery_packs.ini” mais pas dans le scenery Modèle.\n"
                  U"Quand “Spack Mod” est sélectionné, si certaines lignes sont colorées, cela signifie qu'elles sont "
                  U"dans le scenery Modèle mais pas dans “scenery_packs.ini”.\n"
                  U" \n"
                  U"Vous pouvez sélectionner une partie du texte dans la Zone de Texte et cliquez le bouton "
                  U"“Enable/Disable” pour inverser “SCENERY_PACK” et “SCENERY_PACK_DISABLED”.\n"
                  U" \n"
                  U"Cliquez le bouton “Sauver” pour sauvegarder le texte contenu dans la zone de texte dans le fichier "
                  U"sélectionné dans le PopupMenu. Rien ne sera modifié dans votre fichier jusqu'à ce que vous "
                  U"cliquiez ce bouton.",
                  language);
}

String RdButtSourceA(StringView language) { return LookUp(U"RdButtSourceA", U"‡Fichier modèle", language); }

String Btn_OpenUrl(StringView language) { return LookUp(U"Btn_OpenUrl", U"‡Ouvrir Url", language); }

String StTextScenPack(StringView language) { return LookUp(U"StTextScenPack", U"‡scenery_packs.ini", language); }

String ChBoxArchive(StringView language) { return LookUp(U"ChBoxArchive", U"‡Sauv anc Spack", language); }

String Menu_FichSelFichMod(StringView language)
{
    return LookUp(U"Menu_FichSelFichMod", U"‡Selectionner fichier modèle", language);
}

String Menu_FichSelDossArchiv(StringView language)
{
    return LookUp(U"Menu_FichSelDossArchiv", U"‡Sélectionner dossier archives", language);
}

String Menu_FichSelFichScenPack(StringView language)
{
    return LookUp(U"Menu_FichSelFichScenPack", U"‡Selectionner fichier scenery_packs", language);
}

String RdButtSourceB(StringView language) { return LookUp(U"RdButtSourceB", U"‡Url modèle", language); }

String Btn_SelectDossier(StringView language) { return LookUp(U"Btn_SelectDossier", U"‡Sélect dossier", language); }

String Btn_SelectFichier(StringView language) { return LookUp(U"Btn_SelectFichier", U"‡Sélect fichier", language); }

String Btn_SauvFichier(StringView language) { return LookUp(U"Btn_SauvFichier", U"‡Sauv fichier", language); }

String Btn_SauvFichier_HT(StringView language)
{
    return LookUp(U"Btn_SauvFichier_HT",
                  U"‡Sauvegarder le texte affiché ci-dessous dans le fichier sélectionné dans le PopupMenu (donc le "
                  U"modèle ou le Scenery_packs)",
                  language);
}

String Btn_Annuler(StringView language) { return LookUp(U"Btn_Annuler", U"‡Annuler", language); }

String Btn_Ok(StringView language) { return LookUp(U"Btn_Ok", U"‡Ok", language); }

String Btn_Fermer(StringView language) { return LookUp(U"Btn_Fermer", U"‡Fermer", language); }

String Menu_Edit(StringView language) { return LookUp(U"Menu_Edit", U"‡Édition", language); }

String Menu_EditClear(StringView language) { return LookUp(U"Menu_EditClear", U"‡Effacer", language); }

String Menu_EditCopy(StringView language) { return LookUp(U"Menu_EditCopy", U"‡Copier", language); }

String Menu_EditCut(StringView language) { return LookUp(U"Menu_EditCut", U"‡Couper", language); }

String Menu_EditPaste(StringView language) { return LookUp(U"Menu_EditPaste", U"‡Coller", language); }

String Menu_EditSelectAll(StringView language)
{
    return LookUp(U"Menu_EditSelectAll", U"‡Tout sélectionner", language);
}

String Menu_Fichier(StringView language) { return LookUp(U"Menu_Fichier", U"‡Fichier", language); }

String WinAide_Title(StringView language) { return LookUp(U"WinAide_Title", U"‡Aide", language); }

String Btn_AffDoss(StringView language) { return LookUp(U"Btn_AffDoss", U"‡Affich Dossier", language); }

String Btn_AffDoss_HT(StringView language)
{
    return LookUp(
        U"Btn_AffDoss_HT",
        U"‡Appliqué à la première ligne du texte sélectionné\nOuvre (révéle sur Mac) l'élément dans le Finder",
        language);
}

String Btn_EnabDis(StringView language) { return LookUp(U"Btn_EnabDis", U"‡Activer / Désactiver", language); }

String Btn_Select_HT(StringView language)
{
    return LookUp(U"Btn_Select_HT", U"‡⇧ clic sur le bouton pour révéler cet élément", language);
}

String Btn_EnabDis_HT(StringView language)
{
    return LookUp(
        U"Btn_EnabDis_HT",
        U"‡Appliqué au texte sélectionné\nPresser la touche ⇧ pour activer\nPresser la touche ⌃ pour désactiver",
        language);
}

String Btn_Arreter(StringView language) { return LookUp(U"Btn_Arreter", U"‡Arrêter", language); }

String Btn_Generer(StringView language) { return LookUp(U"Btn_Generer", U"‡Générer", language); }

String Btn_Historic(StringView language) { return LookUp(U"Btn_Historic", U"‡Historique", language); }

String Btn_Chercher_HT(StringView language) { return LookUp(U"Btn_Chercher_HT", U"‡Chercher", language); }

String PopupAff(StringView language)
{
    return LookUp(U"PopupAff", U"‡Spack Modèle\nSpack Avant\nSpack Après", language);
}

String Txt_ProbLignPresDxFois(StringView language)
{
    return LookUp(U"Txt_ProbLignPresDxFois", U"‡Problème, la ligne ci-dessous est présente plus d'une fois :",
                  language);
}

String Txt_ProbLignEquiv(StringView language)
{
    return LookUp(U"Txt_ProbLignEquiv", U"‡Problème, les lignes ci-dessous sont équivalentes :", language);
}

String Txt_ScenPlusDuneFois(StringView language)
{
    return LookUp(U"Txt_ScenPlusDuneFois", U"‡Ces Sceneries sont plus d'une fois dans le SceneryModel :", language);
}

String Txt_UrlDoitCommencer(StringView language)
{
    return LookUp(U"Txt_UrlDoitCommencer", U"‡L'url devrait commencer avec 'http://' o 'https://'.", language);
}

String Txt_DossDsDossPasDsScen(StringView language)
{
    return LookUp(U"Txt_DossDsDossPasDsScen",
                  U"‡Ces dossiers sont dans le dossier “Custom Scenery” mais pas dans “scenery_packs.ini” :", language);
}

String Txt_ScenDsScenIniPasDsDoss(StringView language)
{
    return LookUp(U"Txt_ScenDsScenIniPasDsDoss",
                  U"‡Ces Sceneries sont dans “scenery_packs.ini” mais pas dans le dossier “Custom Scenery” :",
                  language);
}

String Txt_ProblemCompInitFinal(StringView language)
{
    return LookUp(U"Txt_ProblemCompInitFinal",
                  U"‡Il y a eu un problème, veuillez comparer le fichier intial avec le fichier final.", language);
}

String Btn_Cont(StringView language) { return LookUp(U"Btn_Cont", U"‡Continuer", language); }

String Txt_TxtAreaPasScenPack(StringView language)
{
    return LookUp(U"Txt_TxtAreaPasScenPack", U"‡Le TextArea ne contient pas de scenery_packs.", language);
}

String Txt_PasAncFichAsauv(StringView language)
{
    return LookUp(U"Txt_PasAncFichAsauv", U"‡Il n'y a pas d'ancien fichier à sauvegarder.", language);
}

String Txt_ImpLocDossSauvAnc(StringView language)
{
    return LookUp(U"Txt_ImpLocDossSauvAnc", U"‡Impossible de localiser le dossier où sauvegarder l'ancien fichier.",
                  language);
}

String Txt_ImpLocDossSauvFich(StringView language)
{
    return LookUp(U"Txt_ImpLocDossSauvFich", U"‡Impossible de localiser le dossier où sauvegarder le fichier.",
                  language);
}

String Txt_SurSauv(StringView language)
{
    return LookUp(U"Txt_SurSauv", U"‡Êtes-vous sûr de vouloir enregistrer “¿%” comme “¿%” ?", language);
}

String Txt_ErreurEcrNouvScen(StringView language)
{
    return LookUp(U"Txt_ErreurEcrNouvScen", U"‡Erreur pendant l'écriture du nouveau scenery_packs.", language);
}

String Txt_ErreurCopiAncScen(StringView language)
{
    return LookUp(U"Txt_ErreurCopiAncScen", U"‡Erreur pendant la copie de l'ancien (précédent) scenery_packs.",
                  language);
}

String Btn_Quit(StringView language) { return LookUp(U"Btn_Quit", U"‡Quitter", language); }

String WinSpecA_Title(StringView language) { return LookUp(U"WinSpecA_Title", U"‡Spécial A", language); }

String GrBox_HT(StringView language)
{
    return LookUp(U"GrBox_HT",
                  U"‡Glisser déposer un fichier ici (⇧ clic sur le bouton pour révéler ce fichier dans le Finder)",
                  language);
}

String GrBoxSource(StringView language) { return LookUp(U"GrBoxSource", U"‡Source", language); }

String Btn_ChoisirFich(StringView language) { return LookUp(U"Btn_ChoisirFich", U"‡Choisir fichier…", language); }

String LabOrg(StringView language) { return LookUp(U"LabOrg", U"‡Original :", language); }

String Btn_Trait(StringView language) { return LookUp(U"Btn_Trait", U"‡Traiter", language); }

String Txt_DropQueFichTxt(StringView language)
{
    return LookUp(U"Txt_DropQueFichTxt", U"‡Vous ne pouvez glisser déposer qu'un fichier contenant du texte ici.",
                  language);
}

String Txt_ChoisirUnFich(StringView language)
{
    return LookUp(U"Txt_ChoisirUnFich", U"‡Choisir un fichier :", language);
}

String Txt_SelectQueFichTxt(StringView language)
{
    return LookUp(U"Txt_SelectQueFichTxt", U"‡Vous pouvez seulement sélectionner un fichier texte.", language);
}

String LabDest1(StringView language) { return LookUp(U"LabDest1", U"‡Dest 1 :", language); }

String LabDest2(StringView language) { return LookUp(U"LabDest2", U"‡Dest 2 :", language); }

String Txt_Attente(StringView language) { return LookUp(U"Txt_Attente", U"‡…", language); }

String Txt_FichOrgNonDef(StringView language)
{
    return LookUp(U"Txt_FichOrgNonDef", U"‡Le fichier original n'existe pas.", language);
}

String Txt_NomExiste(StringView language)
{
    return LookUp(U"Txt_NomExiste", U"‡Un fichier nommé “¿%” existe déjà.", language);
}

String Txt_Rempl_Imposs(StringView language)
{
    return LookUp(U"Txt_Rempl_Imposs", U"‡Remplacement impossible !", language);
}

String Txt_ErreurEcritFich(StringView language)
{
    return LookUp(U"Txt_ErreurEcritFich", U"‡Il y a eu une erreur pendant l'écriture du fichier.", language);
}

String Txt_FichPasModif(StringView language)
{
    return LookUp(U"Txt_FichPasModif", U"‡Le fichier n'a pas été modifié, souhaitez-vous l'enregistrer tout de même ?",
                  language);
}

String Btn_Remplacer(StringView language) { return LookUp(U"Btn_Remplacer", U"‡Remplacer", language); }

String Btn_NePasRempl(StringView language) { return LookUp(U"Btn_NePasRempl", U"‡Ne pas remplacer", language); }

String Txt_NbTrouv(StringView language)
{
    return LookUp(U"Txt_NbTrouv", U"‡Nombre de fois où les textes cherchés ont été trouvés :", language);
}

String Btn_CopiList_HT(StringView language)
{
    return LookUp(U"Btn_CopiList_HT", U"‡Copier la liste dans le presse-papiers", language);
}

String Pref_ChBoxAffBtnSpecA(StringView language)
{
    return LookUp(U"Pref_ChBoxAffBtnSpecA", U"‡Afficher bouton “Spécial A”", language);
}

String Menu_Preferences(StringView language) { return LookUp(U"Menu_Preferences", U"‡Préférences…", language); }

String WinPref_Title(StringView language) { return LookUp(U"WinPref_Title", U"‡Préférences", language); }

String StText_VolSfx(StringView language) { return LookUp(U"StText_VolSfx", U"‡Effets sonores :", language); }

String Btn_Aide_HT(StringView language)
{
    return LookUp(U"Btn_Aide_HT", U"‡Cette version a été compilée pour ¿% le ¿%", language);
}

} // namespace Localisation
