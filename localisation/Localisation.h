/// All texts that the program shows to a user.
///
/// Each is a function of its own, so that a misspelt name doesn't compile. It looks the text up anew at each call: in
/// `language`, or in the user's language when that is empty, and in French where the program has no translation.
#pragma once

#include "toolkit/core/Text.h"

namespace Localisation {
String Infos_Texte(StringView language = {});
String RdButtSourceA(StringView language = {});
String Btn_OpenUrl(StringView language = {});
String StTextScenPack(StringView language = {});
String ChBoxArchive(StringView language = {});
String Menu_FichSelFichMod(StringView language = {});
String Menu_FichSelDossArchiv(StringView language = {});
String Menu_FichSelFichScenPack(StringView language = {});
String RdButtSourceB(StringView language = {});
String Btn_SelectDossier(StringView language = {});
String Btn_SelectFichier(StringView language = {});
String Btn_SauvFichier(StringView language = {});
String Btn_SauvFichier_HT(StringView language = {});
String Btn_Annuler(StringView language = {});
String Btn_Ok(StringView language = {});
String Btn_Fermer(StringView language = {});
String Menu_Edit(StringView language = {});
String Menu_EditClear(StringView language = {});
String Menu_EditCopy(StringView language = {});
String Menu_EditCut(StringView language = {});
String Menu_EditPaste(StringView language = {});
String Menu_EditSelectAll(StringView language = {});
String Menu_Fichier(StringView language = {});
String WinAide_Title(StringView language = {});
String Btn_AffDoss(StringView language = {});
String Btn_AffDoss_HT(StringView language = {});
String Btn_EnabDis(StringView language = {});
String Btn_Select_HT(StringView language = {});
String Btn_EnabDis_HT(StringView language = {});
String Btn_Arreter(StringView language = {});
String Btn_Generer(StringView language = {});
String Btn_Historic(StringView language = {});
String Btn_Chercher_HT(StringView language = {});
String PopupAff(StringView language = {});
String Txt_ProbLignPresDxFois(StringView language = {});
String Txt_ProbLignEquiv(StringView language = {});
String Txt_ScenPlusDuneFois(StringView language = {});
String Txt_UrlDoitCommencer(StringView language = {});
String Txt_DossDsDossPasDsScen(StringView language = {});
String Txt_ScenDsScenIniPasDsDoss(StringView language = {});
String Txt_ProblemCompInitFinal(StringView language = {});
String Btn_Cont(StringView language = {});
String Txt_TxtAreaPasScenPack(StringView language = {});
String Txt_PasAncFichAsauv(StringView language = {});
String Txt_ImpLocDossSauvAnc(StringView language = {});
String Txt_ImpLocDossSauvFich(StringView language = {});
String Txt_SurSauv(StringView language = {});
String Txt_ErreurEcrNouvScen(StringView language = {});
String Txt_ErreurCopiAncScen(StringView language = {});
String Btn_Quit(StringView language = {});
String WinSpecA_Title(StringView language = {});
String GrBox_HT(StringView language = {});
String GrBoxSource(StringView language = {});
String Btn_ChoisirFich(StringView language = {});
String LabOrg(StringView language = {});
String Btn_Trait(StringView language = {});
String Txt_DropQueFichTxt(StringView language = {});
String Txt_ChoisirUnFich(StringView language = {});
String Txt_SelectQueFichTxt(StringView language = {});
String LabDest1(StringView language = {});
String LabDest2(StringView language = {});
String Txt_Attente(StringView language = {});
String Txt_FichOrgNonDef(StringView language = {});
String Txt_NomExiste(StringView language = {});
String Txt_Rempl_Imposs(StringView language = {});
String Txt_ErreurEcritFich(StringView language = {});
String Txt_FichPasModif(StringView language = {});
String Btn_Remplacer(StringView language = {});
String Btn_NePasRempl(StringView language = {});
String Txt_NbTrouv(StringView language = {});
String Btn_CopiList_HT(StringView language = {});
String Pref_ChBoxAffBtnSpecA(StringView language = {});
String Menu_Preferences(StringView language = {});
String WinPref_Title(StringView language = {});
String StText_VolSfx(StringView language = {});
String Btn_Aide_HT(StringView language = {});
} // namespace Localisation
