<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="fr">
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
        <translation>Este programa gestiona el archivo “scenery_packs.ini” de X-Plane.
 
Seleccione el archivo modelo, que contiene los escenarios en el orden correcto. O elija “URL modelo” e indique la URL de un archivo modelo.
 
Si lo desea, seleccione una carpeta para guardar el antiguo “scenery_packs.ini”.
 
Seleccione el archivo “scenery_packs.ini” de su carpeta de X-Plane: este es el archivo que se reordenará.
 
Pulse “Generar”.
 
Seleccione “Packs después” en el menú emergente. Las líneas de color están en “scenery_packs.ini” pero no en el modelo.
Cuando está seleccionado “Packs modelo”, las líneas de color están en el modelo pero no en “scenery_packs.ini”.
 
Puede seleccionar una parte del texto en el área de texto y pulsar el botón “Activar / Desactivar” para intercambiar “SCENERY_PACK” y “SCENERY_PACK_DISABLED”.
 
Pulse el botón “Guardar” para guardar el texto del área de texto en el archivo seleccionado en el menú emergente. Nada cambia en su archivo hasta que pulse este botón.</translation>
    </message>
    <message id="Localisation.Infos_Menu">
        <source>Le menu “Texte” ordonne le texte à la main : il déplace les lignes sélectionnées (Alt+Haut, Alt+Bas), les double (Ctrl+D) ou les supprime (Ctrl+Maj+K), va à la ligne colorée suivante ou précédente (F8, Maj+F8), au texte cherché suivant ou précédent (F3, Maj+F3), lance (F5), montre le dernier rapport, ajoute les dossiers absents du texte, désactive les lignes sans dossier et propose un modèle. Ctrl+Z reprend chaque modification, Ctrl+Y la rétablit.
 
La ligne sous la fenêtre dit où est le curseur et ce que la vue contient, puis ce qui vient d'être fait, ou pourquoi une action est refusée.</source>
        <extracomment>The end of the help text; the menu is named as it is translated below.</extracomment>
        <translation>El menú “Texto” ordena el texto a mano: mueve las líneas seleccionadas (Alt+Arriba, Alt+Abajo), las duplica (Ctrl+D) o las elimina (Ctrl+Mayús+K), va a la línea de color siguiente o anterior (F8, Mayús+F8) y al texto buscado siguiente o anterior (F3, Mayús+F3), genera (F5), muestra el último informe, añade las carpetas que faltan en el texto, desactiva las líneas sin carpeta y propone un modelo. Ctrl+Z deshace cada cambio, Ctrl+Y lo rehace.
 
La línea bajo la ventana dice dónde está el cursor y qué contiene la vista, y luego lo que se acaba de hacer o por qué se rechaza una acción.</translation>
    </message>
    <message id="Localisation.RdButtSourceA">
        <source>Fichier modèle</source>
        <extracomment>Radio button, room for 104 pixels: about 14 characters.</extracomment>
        <translation>Archivo modelo</translation>
    </message>
    <message id="Localisation.Btn_OpenUrl">
        <source>Ouvrir Url</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Abrir URL</translation>
    </message>
    <message id="Localisation.StTextScenPack">
        <source>scenery_packs.ini</source>
        <extracomment>A file name: do not translate.</extracomment>
        <translation>scenery_packs.ini</translation>
    </message>
    <message id="Localisation.ChBoxArchive">
        <source>Sauv anc Spack</source>
        <extracomment>Check box (copy the old file into the archive folder before saving), room for 104 pixels: about 14 characters.</extracomment>
        <translation>Archivar antiguo</translation>
    </message>
    <message id="Localisation.Menu_FichSelFichMod">
        <source>Selectionner fichier modèle</source>
        <translation>Seleccionar archivo modelo</translation>
    </message>
    <message id="Localisation.Menu_FichSelDossArchiv">
        <source>Sélectionner dossier archives</source>
        <translation>Seleccionar carpeta de archivado</translation>
    </message>
    <message id="Localisation.Menu_FichSelFichScenPack">
        <source>Selectionner fichier scenery_packs</source>
        <translation>Seleccionar archivo scenery_packs</translation>
    </message>
    <message id="Localisation.RdButtSourceB">
        <source>Url modèle</source>
        <extracomment>Radio button, room for 104 pixels: about 14 characters.</extracomment>
        <translation>URL modelo</translation>
    </message>
    <message id="Localisation.Btn_SelectDossier">
        <source>Sélect dossier</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Elegir carpeta</translation>
    </message>
    <message id="Localisation.Btn_SelectFichier">
        <source>Sélect fichier</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Elegir archivo</translation>
    </message>
    <message id="Localisation.Btn_SauvFichier">
        <source>Sauv fichier</source>
        <extracomment>Button and menu item, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Guardar</translation>
    </message>
    <message id="Localisation.Btn_SauvFichier_HT">
        <source>Sauvegarder le texte affiché ci-dessous dans le fichier sélectionné dans le PopupMenu (donc le modèle ou le Scenery_packs)</source>
        <translation>Guardar el texto mostrado abajo en el archivo seleccionado en el menú emergente (es decir, el modelo o el scenery_packs)</translation>
    </message>
    <message id="Localisation.Btn_Annuler">
        <source>Annuler</source>
        <extracomment>Button, room for 88 pixels: about 12 characters.</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message id="Localisation.Btn_Ok">
        <source>Ok</source>
        <extracomment>Button, room for 57 pixels: about 7 characters.</extracomment>
        <translation>Aceptar</translation>
    </message>
    <message id="Localisation.Btn_Fermer">
        <source>Fermer</source>
        <extracomment>Button, room for 62 pixels: about 9 characters.</extracomment>
        <translation>Cerrar</translation>
    </message>
    <message id="Localisation.Menu_Edit">
        <source>Édition</source>
        <translation>Edición</translation>
    </message>
    <message id="Localisation.Menu_EditUndo">
        <source>Annuler</source>
        <translation>Deshacer</translation>
    </message>
    <message id="Localisation.Menu_EditRedo">
        <source>Rétablir</source>
        <translation>Rehacer</translation>
    </message>
    <message id="Localisation.Menu_EditClear">
        <source>Effacer</source>
        <translation>Eliminar</translation>
    </message>
    <message id="Localisation.Menu_EditCopy">
        <source>Copier</source>
        <translation>Copiar</translation>
    </message>
    <message id="Localisation.Menu_EditCut">
        <source>Couper</source>
        <translation>Cortar</translation>
    </message>
    <message id="Localisation.Menu_EditPaste">
        <source>Coller</source>
        <translation>Pegar</translation>
    </message>
    <message id="Localisation.Menu_EditSelectAll">
        <source>Tout sélectionner</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message id="Localisation.Menu_Fichier">
        <source>Fichier</source>
        <translation>Archivo</translation>
    </message>
    <message id="Localisation.WinAide_Title">
        <source>Aide</source>
        <translation>Ayuda</translation>
    </message>
    <message id="Localisation.Btn_AffDoss">
        <source>Affich Dossier</source>
        <extracomment>Button, room for 108 pixels: about 15 characters.</extracomment>
        <translation>Mostrar carpeta</translation>
    </message>
    <message id="Localisation.Btn_AffDoss_HT">
        <source>Appliqué à la première ligne du texte sélectionné
Ouvre (révéle sur Mac) l'élément dans le Finder</source>
        <translation>Se aplica a la primera línea del texto seleccionado
Abre el elemento (en un Mac: lo muestra) en el gestor de archivos</translation>
    </message>
    <message id="Localisation.Btn_EnabDis">
        <source>Activer / Désactiver</source>
        <extracomment>Button, room for 128 pixels: about 17 characters.</extracomment>
        <translation>Activar / Desactivar</translation>
    </message>
    <message id="Localisation.Btn_Select_HT">
        <source>⇧ clic sur le bouton pour révéler cet élément</source>
        <translation>⇧ Mayús + clic en el botón para mostrar este elemento</translation>
    </message>
    <message id="Localisation.Btn_EnabDis_HT">
        <source>Appliqué au texte sélectionné
Presser la touche ⇧ pour activer
Presser la touche ⌃ pour désactiver</source>
        <translation>Se aplica al texto seleccionado
Mantenga pulsada la tecla ⇧ Mayús para activar
Mantenga pulsada la tecla ⌃ Control para desactivar</translation>
    </message>
    <message id="Localisation.Btn_Arreter">
        <source>Arrêter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Detener</translation>
    </message>
    <message id="Localisation.Btn_Generer">
        <source>Générer</source>
        <extracomment>Button, room for 114 pixels: about 15 characters.</extracomment>
        <translation>Generar</translation>
    </message>
    <message id="Localisation.Btn_Historic">
        <source>Historique</source>
        <translation>Historial de versiones</translation>
    </message>
    <message id="Localisation.Btn_Chercher_HT">
        <source>Chercher</source>
        <translation>Buscar</translation>
    </message>
    <message id="Localisation.PopupAff">
        <source>Spack Modèle
Spack Avant
Spack Après</source>
        <extracomment>Three rows of a pop-up menu, room for 96 pixels each: about 13 characters. The texts: the model, the file before and after the run.</extracomment>
        <translation>Packs modelo
Packs antes
Packs después</translation>
    </message>
    <message id="Localisation.Nb_Lignes">
        <source>ligne|lignes</source>
        <translation>línea|líneas</translation>
    </message>
    <message id="Localisation.Nb_Activees">
        <source>activée|activées</source>
        <translation>activada|activadas</translation>
    </message>
    <message id="Localisation.Nb_Desactivees">
        <source>désactivée|désactivées</source>
        <translation>desactivada|desactivadas</translation>
    </message>
    <message id="Localisation.Nb_SansEquiv">
        <source>sans équivalent|sans équivalent</source>
        <translation>sin equivalente|sin equivalente</translation>
    </message>
    <message id="Localisation.Nb_Remarques">
        <source>remarque|remarques</source>
        <translation>observación|observaciones</translation>
    </message>
    <message id="Localisation.Nb_Modifiees">
        <source>ligne modifiée|lignes modifiées</source>
        <translation>línea cambiada|líneas cambiadas</translation>
    </message>
    <message id="Localisation.Dit_Ligne">
        <source>Ligne ¿%</source>
        <translation>Línea ¿%</translation>
    </message>
    <message id="Localisation.Dit_Reordonne">
        <source>Réordonné : ¿%</source>
        <translation>Reordenado: ¿%</translation>
    </message>
    <message id="Localisation.Dit_Arrete">
        <source>Arrêté : rien n'a été réordonné</source>
        <translation>Detenido: no se ha reordenado nada</translation>
    </message>
    <message id="Localisation.Dit_ModeleRefuse">
        <source>Modèle refusé : ¿%</source>
        <translation>Modelo rechazado: ¿%</translation>
    </message>
    <message id="Localisation.Dit_SpackRefuse">
        <source>scenery_packs.ini refusé : ¿%</source>
        <translation>scenery_packs.ini rechazado: ¿%</translation>
    </message>
    <message id="Localisation.Dit_FinsWindows">
        <source>fins de ligne Windows</source>
        <translation>finales de línea de Windows</translation>
    </message>
    <message id="Localisation.Dit_Bom">
        <source>marque d'ordre d'octets (BOM)</source>
        <translation>marca de orden de bytes (BOM)</translation>
    </message>
    <message id="Localisation.Dit_Vide">
        <source>vide ou illisible</source>
        <translation>vacío o ilegible</translation>
    </message>
    <message id="Localisation.Dit_SansEntete">
        <source>ne commence pas comme un scenery_packs.ini</source>
        <translation>no empieza como un scenery_packs.ini</translation>
    </message>
    <message id="Localisation.Dit_Enregistre">
        <source>Enregistré : ¿%</source>
        <translation>Guardado: ¿%</translation>
    </message>
    <message id="Localisation.Dit_Archive">
        <source>ancien fichier : ¿%</source>
        <translation>archivo anterior: ¿%</translation>
    </message>
    <message id="Localisation.Dit_PasEnregistre">
        <source>Rien n'a été enregistré</source>
        <translation>No se ha guardado nada</translation>
    </message>
    <message id="Localisation.Dit_ModelePasEnregistre">
        <source>Le modèle affiché n'est pas encore enregistré : enregistrez-le d'abord</source>
        <translation>El modelo mostrado aún no está guardado: guárdelo primero</translation>
    </message>
    <message id="Localisation.Err_PasDeReponse">
        <source>Pas de réponse complète en 10 secondes</source>
        <translation>Sin respuesta completa en 10 segundos</translation>
    </message>
    <message id="Localisation.Err_ReponseTropLongue">
        <source>La réponse a plus de 8 Mio ou de 250 000 lignes</source>
        <translation>La respuesta tiene más de 8 MiB o de 250 000 líneas</translation>
    </message>
    <message id="Localisation.Err_ReponseCoupee">
        <source>La réponse a été coupée</source>
        <translation>La respuesta se cortó</translation>
    </message>
    <message id="Localisation.Dit_Introuvable">
        <source>“¿%” introuvable</source>
        <translation>“¿%” no se encuentra</translation>
    </message>
    <message id="Localisation.Dit_SeulTrouve">
        <source>“¿%” : pas d'autre occurrence</source>
        <translation>“¿%” no aparece más veces</translation>
    </message>
    <message id="Localisation.Dit_RepriseDebut">
        <source>Reprise au début du texte</source>
        <translation>Se continúa desde el principio del texto</translation>
    </message>
    <message id="Localisation.Dit_RepriseFin">
        <source>Reprise à la fin du texte</source>
        <translation>Se continúa desde el final del texto</translation>
    </message>
    <message id="Localisation.Dit_RienChercher">
        <source>Rien à chercher : le champ de recherche est vide</source>
        <translation>Nada que buscar: el campo de búsqueda está vacío</translation>
    </message>
    <message id="Localisation.Dit_AucuneMarque">
        <source>Aucune ligne sans équivalent dans ce texte</source>
        <translation>Ninguna línea sin equivalente en este texto</translation>
    </message>
    <message id="Localisation.Dit_PasLa">
        <source>N'existe pas : ¿%</source>
        <translation>No existe: ¿%</translation>
    </message>
    <message id="Localisation.Dit_PasDossier">
        <source>Cette ligne ne nomme pas de dossier de Custom Scenery</source>
        <translation>Esta línea no nombra ninguna carpeta de Custom Scenery</translation>
    </message>
    <message id="Localisation.Dit_Occupe">
        <source>Un traitement ou un dialogue est en cours : terminez-le d'abord</source>
        <translation>Hay un proceso o un diálogo abierto: termínelo primero</translation>
    </message>
    <message id="Localisation.Txt_ProbLignPresDxFois">
        <source>Problème, la ligne ci-dessous est présente plus d'une fois :</source>
        <translation>Problema: la línea siguiente está presente más de una vez:</translation>
    </message>
    <message id="Localisation.Txt_ProbLignEquiv">
        <source>Problème, les lignes ci-dessous sont équivalentes :</source>
        <translation>Problema: las líneas siguientes son equivalentes:</translation>
    </message>
    <message id="Localisation.Txt_ScenPlusDuneFois">
        <source>Ces Sceneries sont plus d'une fois dans le SceneryModel :</source>
        <translation>Estos escenarios están más de una vez en el modelo:</translation>
    </message>
    <message id="Localisation.Txt_UrlDoitCommencer">
        <source>L'url devrait commencer avec 'http://' o 'https://'.</source>
        <translation>La URL debería empezar por 'http://' o 'https://'.</translation>
    </message>
    <message id="Localisation.Txt_DossDsDossPasDsScen">
        <source>Ces dossiers sont dans le dossier “Custom Scenery” mais pas dans “scenery_packs.ini” :</source>
        <translation>Estas carpetas están en la carpeta “Custom Scenery” pero no en “scenery_packs.ini”:</translation>
    </message>
    <message id="Localisation.Txt_ScenDsScenIniPasDsDoss">
        <source>Ces Sceneries sont dans “scenery_packs.ini” mais pas dans le dossier “Custom Scenery” :</source>
        <translation>Estos escenarios están en “scenery_packs.ini” pero no en la carpeta “Custom Scenery”:</translation>
    </message>
    <message id="Localisation.Txt_ProblemCompInitFinal">
        <source>Il y a eu un problème, veuillez comparer le fichier intial avec le fichier final.</source>
        <translation>Ha habido un problema; compare el archivo inicial con el archivo final.</translation>
    </message>
    <message id="Localisation.Txt_ScenAutreCasse">
        <source>X-Plane ne chargera pas ces Sceneries, leur dossier (entre parenthèses) ayant d'autres majuscules :</source>
        <translation>X-Plane no cargará estos escenarios, pues su carpeta (entre paréntesis) tiene otras mayúsculas:</translation>
    </message>
    <message id="Localisation.Txt_PlusDsFichier">
        <source>Dans le fichier initial, mais pas ou moins souvent dans le fichier final :</source>
        <translation>En el archivo inicial, pero no o menos veces en el archivo final:</translation>
    </message>
    <message id="Localisation.Txt_PlusDsResultat">
        <source>Dans le fichier final, mais pas ou moins souvent dans le fichier initial :</source>
        <translation>En el archivo final, pero no o menos veces en el archivo inicial:</translation>
    </message>
    <message id="Localisation.Txt_LignesVides">
        <source>Lignes vides : ¿% dans le fichier initial, ¿% dans le fichier final.</source>
        <translation>Líneas vacías: ¿% en el archivo inicial, ¿% en el archivo final.</translation>
    </message>
    <message id="Localisation.Menu_TexteProposer">
        <source>Proposer un modèle…</source>
        <translation>Proponer un modelo…</translation>
    </message>
    <message id="Localisation.Txt_ChoisirModele">
        <source>Enregistrer le modèle proposé sous :</source>
        <translation>Guardar el modelo propuesto como:</translation>
    </message>
    <message id="Localisation.Dit_PropArretee">
        <source>Arrêté : aucun modèle n'a été proposé</source>
        <translation>Detenido: no se ha propuesto ningún modelo</translation>
    </message>
    <message id="Localisation.Dit_OffreModele">
        <source>le menu “Texte” peut en proposer un</source>
        <translation>el menú “Texto” puede proponer uno</translation>
    </message>
    <message id="Localisation.Menu_Texte">
        <source>Texte</source>
        <translation>Texto</translation>
    </message>
    <message id="Localisation.Txt_PropFait">
        <source>Le modèle est proposé, mais pas encore enregistré.</source>
        <translation>El modelo está propuesto, pero aún no guardado.</translation>
    </message>
    <message id="Localisation.Txt_PropAeroports">
        <source>Aéroports : ¿%</source>
        <translation>Aeropuertos: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropAeroportsXP">
        <source>Aéroports de X-Plane : ¿%</source>
        <translation>Aeropuertos de X-Plane: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropOverlays">
        <source>Surcouches (overlays) : ¿%</source>
        <translation>Superposiciones (overlays): ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropInconnus">
        <source>Inconnus : ¿%</source>
        <translation>Desconocidos: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropPlugins">
        <source>Greffons (plugins) : ¿%</source>
        <translation>Complementos (plugins): ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropBibliotheques">
        <source>Bibliothèques : ¿%</source>
        <translation>Bibliotecas: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropMaillages">
        <source>Maillages et tuiles photo : ¿%</source>
        <translation>Mallas base y teselas de foto: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropDoublons">
        <source>Omis, une autre ligne nommant la même scène : ¿%</source>
        <translation>Omitidos, pues otra línea nombra el mismo escenario: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropSansLigne">
        <source>Omis, aucune ligne ne pouvant tenir le nom : ¿%</source>
        <translation>Omitidos, pues ninguna línea puede contener el nombre: ¿%</translation>
    </message>
    <message id="Localisation.Txt_RaisonDossAbsent">
        <source>le dossier manque</source>
        <translation>falta la carpeta</translation>
    </message>
    <message id="Localisation.Txt_RaisonRien">
        <source>rien n'y dit ce que c'est</source>
        <translation>nada en ella dice qué es</translation>
    </message>
    <message id="Localisation.Txt_RaisonIllisible">
        <source>“¿%” ne peut pas être lu : ¿%</source>
        <translation>«¿%» no se puede leer: ¿%</translation>
    </message>
    <message id="Localisation.Txt_RaisonTuileAbimee">
        <source>tuile abîmée, ou comprimée autrement qu'en LZMA</source>
        <translation>tesela dañada, o comprimida de otro modo que con LZMA</translation>
    </message>
    <message id="Localisation.Txt_RaisonPasUnPack">
        <source>ce n'est pas une ligne de pack</source>
        <translation>no es una línea de paquete</translation>
    </message>
    <message id="Localisation.Dit_PasUtf8">
        <source>ce n'est pas de l'UTF-8</source>
        <translation>no es UTF-8</translation>
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
        <translation>Uso: tarnivel-order [--check] MODELO SCENERY_PACKS
     tarnivel-order --propose SCENERY_PACKS
     tarnivel-order --help | --version

Escribe las líneas de SCENERY_PACKS en el orden de MODELO en la salida
estándar, y lo que no concuerda en la de errores. “-” es la entrada estándar.
No se modifica ningún archivo.

  --check    escribe solo lo que no concuerda
  --propose  escribe un modelo según lo que contienen los paquetes

Estado de salida: 0 todo concuerda, 1 se ha señalado algo,
2 un texto fue rechazado o no se pudo leer, 64 uso incorrecto.</translation>
    </message>
    <message id="Localisation.Btn_Cont">
        <source>Continuer</source>
        <translation>Continuar</translation>
    </message>
    <message id="Localisation.Txt_TexteModifie">
        <source>Le texte a été modifié et n'est pas enregistré. Continuer sans enregistrer ?</source>
        <translation>El texto se ha modificado y no se ha guardado. ¿Continuar sin guardar?</translation>
    </message>
    <message id="Localisation.Txt_TxtAreaPasScenPack">
        <source>Le TextArea ne contient pas de scenery_packs.</source>
        <translation>El área de texto no contiene un scenery_packs.</translation>
    </message>
    <message id="Localisation.Txt_PasAncFichAsauv">
        <source>Il n'y a pas d'ancien fichier à sauvegarder.</source>
        <translation>No hay ningún archivo antiguo que guardar.</translation>
    </message>
    <message id="Localisation.Txt_ImpLocDossSauvAnc">
        <source>Impossible de localiser le dossier où sauvegarder l'ancien fichier.</source>
        <translation>No se encuentra la carpeta donde guardar el archivo antiguo.</translation>
    </message>
    <message id="Localisation.Txt_ImpLocDossSauvFich">
        <source>Impossible de localiser le dossier où sauvegarder le fichier.</source>
        <translation>No se encuentra la carpeta donde guardar el archivo.</translation>
    </message>
    <message id="Localisation.Txt_SurSauv">
        <source>Êtes-vous sûr de vouloir enregistrer “¿%” comme “¿%” ?</source>
        <extracomment>The placeholders: the name on screen, the name of the file.</extracomment>
        <translation>¿Seguro que desea guardar “¿%” como “¿%”?</translation>
    </message>
    <message id="Localisation.Txt_ErreurEcrNouvScen">
        <source>Erreur pendant l'écriture du nouveau scenery_packs.</source>
        <translation>Error al escribir el nuevo scenery_packs.</translation>
    </message>
    <message id="Localisation.Txt_ErreurCopiAncScen">
        <source>Erreur pendant la copie de l'ancien (précédent) scenery_packs.</source>
        <translation>Error al copiar el antiguo (anterior) scenery_packs.</translation>
    </message>
    <message id="Localisation.Btn_Quit">
        <source>Quitter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Salir</translation>
    </message>
    <message id="Localisation.WinSpecA_Title">
        <source>Spécial A</source>
        <extracomment>Window title and button, room for 88 pixels: about 12 characters.</extracomment>
        <translation>Especial A</translation>
    </message>
    <message id="Localisation.GrBox_HT">
        <source>Glisser déposer un fichier ici (⇧ clic sur le bouton pour révéler ce fichier dans le Finder)</source>
        <translation>Arrastre y suelte un archivo aquí (⇧ Mayús + clic en el botón para mostrar este archivo en el gestor de archivos)</translation>
    </message>
    <message id="Localisation.GrBoxSource">
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message id="Localisation.Btn_ChoisirFich">
        <source>Choisir fichier…</source>
        <extracomment>Button, room for 140 pixels: about 19 characters.</extracomment>
        <translation>Elegir archivo…</translation>
    </message>
    <message id="Localisation.LabOrg">
        <source>Original :</source>
        <extracomment>Label, room for 58 pixels: about 8 characters.</extracomment>
        <translation>Original:</translation>
    </message>
    <message id="Localisation.Btn_Trait">
        <source>Traiter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Procesar</translation>
    </message>
    <message id="Localisation.Txt_DropQueFichTxt">
        <source>Vous ne pouvez glisser déposer qu'un fichier contenant du texte ici.</source>
        <translation>Aquí solo puede soltar un archivo que contenga texto.</translation>
    </message>
    <message id="Localisation.Txt_DropQueDoss">
        <source>Vous ne pouvez glisser déposer qu'un dossier ici.</source>
        <translation>Aquí solo puede soltar una carpeta.</translation>
    </message>
    <message id="Localisation.Dit_AliasMort">
        <source>Cet alias ne mène nulle part.</source>
        <translation>Este alias no lleva a ninguna parte.</translation>
    </message>
    <message id="Localisation.Dit_PasGestionnaire">
        <source>Aucun gestionnaire de fichiers ne répond.</source>
        <translation>Ningún gestor de archivos responde.</translation>
    </message>
    <message id="Localisation.Dit_PasDeLien">
        <source>Aucun programme n'ouvre ce lien : ¿%</source>
        <translation>Ningún programa abre este enlace: ¿%</translation>
    </message>
    <message id="Localisation.Dit_ParBouton">
        <source>Cette fenêtre se ferme par l'un de ses boutons.</source>
        <translation>Cierre esta ventana con uno de sus botones.</translation>
    </message>
    <message id="Localisation.Txt_NomNonGarde">
        <source>Le nom de cet élément ne peut pas être gardé : il n'est pas en UTF-8, ou un autre élément a presque le même.</source>
        <translation>El nombre de este elemento no se puede conservar: no está en UTF-8 u otro elemento tiene casi el mismo.</translation>
    </message>
    <message id="Localisation.Txt_ChoisirUnFich">
        <source>Choisir un fichier :</source>
        <translation>Elija un archivo:</translation>
    </message>
    <message id="Localisation.Txt_FiltreTexte">
        <source>Fichiers texte</source>
        <translation>Archivos de texto</translation>
    </message>
    <message id="Localisation.Txt_FiltreTous">
        <source>Tous les fichiers</source>
        <translation>Todos los archivos</translation>
    </message>
    <message id="Localisation.Txt_ChoisirDossArchiv">
        <source>Choisir le dossier où garder les anciens “scenery_packs.ini” :</source>
        <translation>Elija la carpeta donde guardar los “scenery_packs.ini” antiguos:</translation>
    </message>
    <message id="Localisation.Txt_SelectQueFichTxt">
        <source>Vous pouvez seulement sélectionner un fichier texte.</source>
        <translation>Solo puede seleccionar un archivo de texto.</translation>
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
        <translation>El archivo original no existe.</translation>
    </message>
    <message id="Localisation.Txt_NomExiste">
        <source>Un fichier nommé “¿%” existe déjà.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>Ya existe un archivo llamado “¿%”.</translation>
    </message>
    <message id="Localisation.Txt_Rempl_Imposs">
        <source>Remplacement impossible !</source>
        <translation>¡No se puede reemplazar!</translation>
    </message>
    <message id="Localisation.Txt_ErreurEcritFich">
        <source>Il y a eu une erreur pendant l'écriture du fichier.</source>
        <translation>Se ha producido un error al escribir el archivo.</translation>
    </message>
    <message id="Localisation.Txt_FichPasModif">
        <source>Le fichier n'a pas été modifié, souhaitez-vous l'enregistrer tout de même ?</source>
        <translation>El archivo no se ha modificado. ¿Desea guardarlo de todos modos?</translation>
    </message>
    <message id="Localisation.Btn_Remplacer">
        <source>Remplacer</source>
        <translation>Reemplazar</translation>
    </message>
    <message id="Localisation.Btn_NePasRempl">
        <source>Ne pas remplacer</source>
        <translation>No reemplazar</translation>
    </message>
    <message id="Localisation.Txt_NbTrouv">
        <source>Nombre de fois où les textes cherchés ont été trouvés :</source>
        <translation>Número de veces que se han encontrado los textos buscados:</translation>
    </message>
    <message id="Localisation.Dit_TropLignes">
        <source>Le tableau ne peut pas avoir plus de 1 000 lignes.</source>
        <translation>La tabla no puede tener más de 1000 filas.</translation>
    </message>
    <message id="Localisation.Dit_TropLong">
        <source>Trop long : une colonne du tableau peut avoir 2 000 000 de caractères.</source>
        <translation>Demasiado largo: una columna de la tabla puede tener 2 000 000 de caracteres.</translation>
    </message>
    <message id="Localisation.Dit_TropColonnes">
        <source>Les cellules au-delà de la troisième colonne ont été laissées de côté.</source>
        <translation>Se han omitido las celdas más allá de la tercera columna.</translation>
    </message>
    <message id="Localisation.Dit_RienEnlever">
        <source>Aucune ligne n'est sélectionnée, et la dernière n'est pas vide.</source>
        <translation>No hay ninguna fila seleccionada y la última no está vacía.</translation>
    </message>
    <message id="Localisation.Txt_LectureImp">
        <source>Le fichier original ne peut pas être lu.</source>
        <translation>No se puede leer el archivo original.</translation>
    </message>
    <message id="Localisation.Txt_TropGrand">
        <source>“¿%” deviendrait trop long et n'est pas écrit.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>“¿%” sería demasiado largo y no se escribe.</translation>
    </message>
    <message id="Localisation.Txt_MemoireManque">
        <source>La mémoire ne suffit pas pour ce traitement.</source>
        <translation>No hay memoria suficiente para este tratamiento.</translation>
    </message>
    <message id="Localisation.Txt_DossierPlein">
        <source>“¿%” est un dossier. Ce qu'il contient sera supprimé avec lui. Nombre d'éléments : ¿%.</source>
        <extracomment>The placeholders: the name of a folder, and how many items are in it.</extracomment>
        <translation>“¿%” es una carpeta. Su contenido se eliminará con ella. Número de elementos: ¿%.</translation>
    </message>
    <message id="Localisation.Txt_RemplOriginal">
        <source>“¿%” est le fichier original lui-même. Son texte d'avant sera perdu.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>“¿%” es el propio archivo original. Su texto anterior se perderá.</translation>
    </message>
    <message id="Localisation.Dit_TraitArrete">
        <source>Traitement arrêté, rien n'a été écrit.</source>
        <translation>Tratamiento detenido, no se ha escrito nada.</translation>
    </message>
    <message id="Localisation.Dit_RienEcrit">
        <source>Rien n'a été écrit.</source>
        <translation>No se ha escrito nada.</translation>
    </message>
    <message id="Localisation.Dit_EcritDans">
        <source>Écrit : ¿%, dans ¿%.</source>
        <extracomment>The placeholders: names of files, and the path of their folder.</extracomment>
        <translation>Escrito: ¿%, en ¿%.</translation>
    </message>
    <message id="Localisation.Btn_CopiList_HT">
        <source>Copier la liste dans le presse-papiers</source>
        <translation>Copiar la lista al portapapeles</translation>
    </message>
    <message id="Localisation.Txt_OctetsRetires">
        <source>“¿%” contient des octets qui ne sont pas de l'UTF-8. Les caractères non ASCII en ont été retirés, dans ¿% ligne(s). La première est la ligne ¿% :
¿%</source>
        <extracomment>What bytes that are no UTF-8 cost. Placeholders: file or address, number of lines, number of the first line, that line.</extracomment>
        <translation>“¿%” contiene bytes que no son UTF-8. Se han quitado los caracteres que no son ASCII, en ¿% línea(s). La primera es la línea ¿%:
¿%</translation>
    </message>
    <message id="Localisation.Txt_SauvTexteAbime">
        <source>Des caractères de ce texte ont été retirés à la lecture, parce que son fichier contient des octets qui ne sont pas de l'UTF-8. L'enregistrer quand même ?</source>
        <extracomment>Question before a save.</extracomment>
        <translation>Se quitaron caracteres de este texto al leerlo, porque su archivo contiene bytes que no son UTF-8. ¿Guardarlo de todos modos?</translation>
    </message>
    <message id="Localisation.Txt_FichierChange">
        <source>“¿%” a changé sur le disque depuis qu'il a été lu. L'enregistrement fera perdre ces changements.</source>
        <extracomment>Question before a save. Placeholder: the file's path.</extracomment>
        <translation>“¿%” ha cambiado en el disco desde que se leyó. Al guardar se perderán esos cambios.</translation>
    </message>
    <message id="Localisation.Txt_FormeTexte">
        <source>“¿%” n'est pas un simple texte UTF-8 aux fins de ligne LF : ¿%.</source>
        <extracomment>In the status line. Placeholders: file or address, and what it is, as in “BOM, CR LF” or “UTF-16”.</extracomment>
        <translation>“¿%” no es un texto UTF-8 simple con finales de línea LF: ¿%.</translation>
    </message>
    <message id="Localisation.Txt_PrefsGardees">
        <source>Avant d'être remplacé, l'ancien fichier de réglages sera renommé “¿%”.</source>
        <extracomment>Told when the settings could not be read as they are. Placeholder: a file name.</extracomment>
        <translation>Antes de ser reemplazado, el archivo de ajustes antiguo pasará a llamarse “¿%”.</translation>
    </message>
    <message id="Localisation.Txt_PrefsNonGardees">
        <source>Le dossier “¿%” n'est pas utilisable (¿%) : les réglages ne seront pas gardés.</source>
        <extracomment>Told at the start. Placeholders: the folder's path, the reason.</extracomment>
        <translation>La carpeta “¿%” no se puede usar (¿%): los ajustes no se conservarán.</translation>
    </message>
    <message id="Localisation.Txt_PrefsNonReprises">
        <source>Les réglages d'une version plus ancienne n'ont pas pu être déplacés et servent là où ils sont, dans “¿%” : ¿%.</source>
        <extracomment>Told at the start. Placeholders: the place of an older version's settings, the reason.</extracomment>
        <translation>Los ajustes de una versión anterior no se han podido mover y se usan donde están, en “¿%”: ¿%.</translation>
    </message>
    <message id="Localisation.Pref_ChBoxAffBtnSpecA">
        <source>Afficher bouton “Spécial A”</source>
        <extracomment>Check box, room for 338 pixels: about 46 characters.</extracomment>
        <translation>Mostrar el botón “Especial A”</translation>
    </message>
    <message id="Localisation.Menu_Preferences">
        <source>Préférences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message id="Localisation.Menu_Rapport">
        <source>Dernier rapport</source>
        <translation>Último informe</translation>
    </message>
    <message id="Localisation.Menu_Monter">
        <source>Monter les lignes</source>
        <translation>Subir las líneas</translation>
    </message>
    <message id="Localisation.Menu_Descendre">
        <source>Descendre les lignes</source>
        <translation>Bajar las líneas</translation>
    </message>
    <message id="Localisation.Menu_Doubler">
        <source>Doubler les lignes</source>
        <translation>Duplicar las líneas</translation>
    </message>
    <message id="Localisation.Menu_Supprimer">
        <source>Supprimer les lignes</source>
        <translation>Eliminar las líneas</translation>
    </message>
    <message id="Localisation.Menu_MarqueSuiv">
        <source>Ligne sans équivalent suivante</source>
        <translation>Línea sin equivalente siguiente</translation>
    </message>
    <message id="Localisation.Menu_MarquePrec">
        <source>Ligne sans équivalent précédente</source>
        <translation>Línea sin equivalente anterior</translation>
    </message>
    <message id="Localisation.Menu_CherchSuiv">
        <source>Chercher le suivant</source>
        <translation>Buscar siguiente</translation>
    </message>
    <message id="Localisation.Menu_CherchPrec">
        <source>Chercher le précédent</source>
        <translation>Buscar anterior</translation>
    </message>
    <message id="Localisation.Menu_Ajouter">
        <source>Ajouter les dossiers absents du texte</source>
        <translation>Añadir las carpetas que faltan</translation>
    </message>
    <message id="Localisation.Menu_DesactSansDoss">
        <source>Désactiver les lignes sans dossier</source>
        <translation>Desactivar las líneas sin carpeta</translation>
    </message>
    <message id="Localisation.Nb_Ajoutees">
        <source>ligne ajoutée|lignes ajoutées</source>
        <translation>línea añadida|líneas añadidas</translation>
    </message>
    <message id="Localisation.Dit_PasPlusLoin">
        <source>Impossible de déplacer plus loin</source>
        <translation>No se puede mover más allá</translation>
    </message>
    <message id="Localisation.Dit_PasDeLigne">
        <source>Il n'y a pas de ligne ici</source>
        <translation>Aquí no hay ninguna línea</translation>
    </message>
    <message id="Localisation.Dit_SansDossiers">
        <source>Le dossier Custom Scenery n'est pas accessible</source>
        <translation>No se puede acceder a la carpeta Custom Scenery</translation>
    </message>
    <message id="Localisation.Dit_PasDeRapport">
        <source>Rien à signaler</source>
        <translation>Nada que señalar</translation>
    </message>
    <message id="Localisation.WinPref_Title">
        <source>Préférences</source>
        <translation>Preferencias</translation>
    </message>
    <message id="Localisation.StText_VolSfx">
        <source>Effets sonores :</source>
        <extracomment>Label, room for 130 pixels: about 17 characters.</extracomment>
        <translation>Efectos sonoros:</translation>
    </message>
    <message id="Localisation.Btn_Aide_HT">
        <source>Cette version a été compilée pour ¿% le ¿%</source>
        <extracomment>The placeholders: the kind of build, its date.</extracomment>
        <translation>Esta versión se compiló para ¿% el ¿%</translation>
    </message>
</context>
</TS>
