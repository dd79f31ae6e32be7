<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="fr">
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
        <translation>Este programa gere o ficheiro “scenery_packs.ini” do X-Plane.
 
Selecione o ficheiro modelo, que contém os cenários pela ordem certa. Ou escolha “URL modelo” e indique o URL de um ficheiro modelo.
 
Se quiser, selecione uma pasta para guardar o antigo “scenery_packs.ini”.
 
Selecione o ficheiro “scenery_packs.ini” da sua pasta do X-Plane: é este o ficheiro que será reordenado.
 
Clique em “Gerar”.
 
Selecione “Packs depois” na lista. As linhas a cores estão em “scenery_packs.ini” mas não no modelo.
Quando “Packs modelo” está selecionado, as linhas a cores estão no modelo mas não em “scenery_packs.ini”.
 
Pode selecionar uma parte do texto na área de texto e clicar no botão “Ativar / Desativar” para trocar “SCENERY_PACK” e “SCENERY_PACK_DISABLED”.
 
Clique no botão “Guardar” para guardar o texto da área de texto no ficheiro selecionado na lista. Nada muda no seu ficheiro até clicar neste botão.</translation>
    </message>
    <message id="Localisation.Infos_Menu">
        <source>Le menu “Texte” ordonne le texte à la main : il déplace les lignes sélectionnées (Alt+Haut, Alt+Bas), les double (Ctrl+D) ou les supprime (Ctrl+Maj+K), va à la ligne colorée suivante ou précédente (F8, Maj+F8), au texte cherché suivant ou précédent (F3, Maj+F3), lance (F5), montre le dernier rapport, ajoute les dossiers absents du texte, désactive les lignes sans dossier et propose un modèle. Ctrl+Z reprend chaque modification, Ctrl+Y la rétablit.
 
La ligne sous la fenêtre dit où est le curseur et ce que la vue contient, puis ce qui vient d'être fait, ou pourquoi une action est refusée.</source>
        <extracomment>The end of the help text; the menu is named as it is translated below.</extracomment>
        <translation>O menu “Texto” ordena o texto à mão: move as linhas selecionadas (Alt+Cima, Alt+Baixo), duplica-as (Ctrl+D) ou elimina-as (Ctrl+Shift+K), vai para a linha a cores seguinte ou anterior (F8, Shift+F8) e para o texto procurado seguinte ou anterior (F3, Shift+F3), gera (F5), mostra o último relatório, acrescenta as pastas que faltam no texto, desativa as linhas sem pasta e propõe um modelo. Ctrl+Z anula cada alteração, Ctrl+Y repete-a.
 
A linha sob a janela diz onde está o cursor e o que a vista contém, depois o que acabou de ser feito ou por que uma ação é recusada.</translation>
    </message>
    <message id="Localisation.RdButtSourceA">
        <source>Fichier modèle</source>
        <extracomment>Radio button, room for 104 pixels: about 14 characters.</extracomment>
        <translation>Ficheiro modelo</translation>
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
        <translation>Arquivar antigo</translation>
    </message>
    <message id="Localisation.Menu_FichSelFichMod">
        <source>Selectionner fichier modèle</source>
        <translation>Selecionar ficheiro modelo</translation>
    </message>
    <message id="Localisation.Menu_FichSelDossArchiv">
        <source>Sélectionner dossier archives</source>
        <translation>Selecionar pasta de arquivo</translation>
    </message>
    <message id="Localisation.Menu_FichSelFichScenPack">
        <source>Selectionner fichier scenery_packs</source>
        <translation>Selecionar ficheiro scenery_packs</translation>
    </message>
    <message id="Localisation.RdButtSourceB">
        <source>Url modèle</source>
        <extracomment>Radio button, room for 104 pixels: about 14 characters.</extracomment>
        <translation>URL modelo</translation>
    </message>
    <message id="Localisation.Btn_SelectDossier">
        <source>Sélect dossier</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Selec. pasta</translation>
    </message>
    <message id="Localisation.Btn_SelectFichier">
        <source>Sélect fichier</source>
        <extracomment>Button, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Selec. ficheiro</translation>
    </message>
    <message id="Localisation.Btn_SauvFichier">
        <source>Sauv fichier</source>
        <extracomment>Button and menu item, room for 98 pixels: about 13 characters.</extracomment>
        <translation>Guardar</translation>
    </message>
    <message id="Localisation.Btn_SauvFichier_HT">
        <source>Sauvegarder le texte affiché ci-dessous dans le fichier sélectionné dans le PopupMenu (donc le modèle ou le Scenery_packs)</source>
        <translation>Guardar o texto mostrado em baixo no ficheiro selecionado na lista (ou seja, o modelo ou o scenery_packs)</translation>
    </message>
    <message id="Localisation.Btn_Annuler">
        <source>Annuler</source>
        <extracomment>Button, room for 88 pixels: about 12 characters.</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message id="Localisation.Btn_Ok">
        <source>Ok</source>
        <extracomment>Button, room for 57 pixels: about 7 characters.</extracomment>
        <translation>OK</translation>
    </message>
    <message id="Localisation.Btn_Fermer">
        <source>Fermer</source>
        <extracomment>Button, room for 62 pixels: about 9 characters.</extracomment>
        <translation>Fechar</translation>
    </message>
    <message id="Localisation.Menu_Edit">
        <source>Édition</source>
        <translation>Editar</translation>
    </message>
    <message id="Localisation.Menu_EditUndo">
        <source>Annuler</source>
        <translation>Desfazer</translation>
    </message>
    <message id="Localisation.Menu_EditRedo">
        <source>Rétablir</source>
        <translation>Refazer</translation>
    </message>
    <message id="Localisation.Menu_EditClear">
        <source>Effacer</source>
        <translation>Apagar</translation>
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
        <translation>Colar</translation>
    </message>
    <message id="Localisation.Menu_EditSelectAll">
        <source>Tout sélectionner</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message id="Localisation.Menu_Fichier">
        <source>Fichier</source>
        <translation>Ficheiro</translation>
    </message>
    <message id="Localisation.WinAide_Title">
        <source>Aide</source>
        <translation>Ajuda</translation>
    </message>
    <message id="Localisation.Btn_AffDoss">
        <source>Affich Dossier</source>
        <extracomment>Button, room for 108 pixels: about 15 characters.</extracomment>
        <translation>Mostrar pasta</translation>
    </message>
    <message id="Localisation.Btn_AffDoss_HT">
        <source>Appliqué à la première ligne du texte sélectionné
Ouvre (révéle sur Mac) l'élément dans le Finder</source>
        <translation>Aplica-se à primeira linha do texto selecionado
Abre o elemento (no Mac: mostra-o) no gestor de ficheiros</translation>
    </message>
    <message id="Localisation.Btn_EnabDis">
        <source>Activer / Désactiver</source>
        <extracomment>Button, room for 128 pixels: about 17 characters.</extracomment>
        <translation>Ativar / Desativar</translation>
    </message>
    <message id="Localisation.Btn_Select_HT">
        <source>⇧ clic sur le bouton pour révéler cet élément</source>
        <translation>⇧ Shift + clique no botão para mostrar este elemento</translation>
    </message>
    <message id="Localisation.Btn_EnabDis_HT">
        <source>Appliqué au texte sélectionné
Presser la touche ⇧ pour activer
Presser la touche ⌃ pour désactiver</source>
        <translation>Aplica-se ao texto selecionado
Mantenha premida a tecla ⇧ Shift para ativar
Mantenha premida a tecla ⌃ Ctrl para desativar</translation>
    </message>
    <message id="Localisation.Btn_Arreter">
        <source>Arrêter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Parar</translation>
    </message>
    <message id="Localisation.Btn_Generer">
        <source>Générer</source>
        <extracomment>Button, room for 114 pixels: about 15 characters.</extracomment>
        <translation>Gerar</translation>
    </message>
    <message id="Localisation.Btn_Historic">
        <source>Historique</source>
        <translation>Histórico de versões</translation>
    </message>
    <message id="Localisation.Btn_Chercher_HT">
        <source>Chercher</source>
        <translation>Procurar</translation>
    </message>
    <message id="Localisation.PopupAff">
        <source>Spack Modèle
Spack Avant
Spack Après</source>
        <extracomment>Three rows of a pop-up menu, room for 96 pixels each: about 13 characters. The texts: the model, the file before and after the run.</extracomment>
        <translation>Packs modelo
Packs antes
Packs depois</translation>
    </message>
    <message id="Localisation.Nb_Lignes">
        <source>ligne|lignes</source>
        <translation>linha|linhas</translation>
    </message>
    <message id="Localisation.Nb_Activees">
        <source>activée|activées</source>
        <translation>ativada|ativadas</translation>
    </message>
    <message id="Localisation.Nb_Desactivees">
        <source>désactivée|désactivées</source>
        <translation>desativada|desativadas</translation>
    </message>
    <message id="Localisation.Nb_SansEquiv">
        <source>sans équivalent|sans équivalent</source>
        <translation>sem equivalente|sem equivalente</translation>
    </message>
    <message id="Localisation.Nb_Remarques">
        <source>remarque|remarques</source>
        <translation>observação|observações</translation>
    </message>
    <message id="Localisation.Nb_Modifiees">
        <source>ligne modifiée|lignes modifiées</source>
        <translation>linha alterada|linhas alteradas</translation>
    </message>
    <message id="Localisation.Dit_Ligne">
        <source>Ligne ¿%</source>
        <translation>Linha ¿%</translation>
    </message>
    <message id="Localisation.Dit_Reordonne">
        <source>Réordonné : ¿%</source>
        <translation>Reordenado: ¿%</translation>
    </message>
    <message id="Localisation.Dit_Arrete">
        <source>Arrêté : rien n'a été réordonné</source>
        <translation>Parado: nada foi reordenado</translation>
    </message>
    <message id="Localisation.Dit_ModeleRefuse">
        <source>Modèle refusé : ¿%</source>
        <translation>Modelo recusado: ¿%</translation>
    </message>
    <message id="Localisation.Dit_SpackRefuse">
        <source>scenery_packs.ini refusé : ¿%</source>
        <translation>scenery_packs.ini recusado: ¿%</translation>
    </message>
    <message id="Localisation.Dit_FinsWindows">
        <source>fins de ligne Windows</source>
        <translation>fins de linha do Windows</translation>
    </message>
    <message id="Localisation.Dit_Bom">
        <source>marque d'ordre d'octets (BOM)</source>
        <translation>marca de ordem de bytes (BOM)</translation>
    </message>
    <message id="Localisation.Dit_Vide">
        <source>vide ou illisible</source>
        <translation>vazio ou ilegível</translation>
    </message>
    <message id="Localisation.Dit_SansEntete">
        <source>ne commence pas comme un scenery_packs.ini</source>
        <translation>não começa como um scenery_packs.ini</translation>
    </message>
    <message id="Localisation.Dit_Enregistre">
        <source>Enregistré : ¿%</source>
        <translation>Guardado: ¿%</translation>
    </message>
    <message id="Localisation.Dit_Archive">
        <source>ancien fichier : ¿%</source>
        <translation>ficheiro antigo: ¿%</translation>
    </message>
    <message id="Localisation.Dit_PasEnregistre">
        <source>Rien n'a été enregistré</source>
        <translation>Nada foi guardado</translation>
    </message>
    <message id="Localisation.Dit_ModelePasEnregistre">
        <source>Le modèle affiché n'est pas encore enregistré : enregistrez-le d'abord</source>
        <translation>O modelo mostrado ainda não está guardado: guarde-o primeiro</translation>
    </message>
    <message id="Localisation.Err_PasDeReponse">
        <source>Pas de réponse complète en 10 secondes</source>
        <translation>Sem resposta completa em 10 segundos</translation>
    </message>
    <message id="Localisation.Err_ReponseTropLongue">
        <source>La réponse a plus de 8 Mio ou de 250 000 lignes</source>
        <translation>A resposta tem mais de 8 MiB ou de 250 000 linhas</translation>
    </message>
    <message id="Localisation.Err_ReponseCoupee">
        <source>La réponse a été coupée</source>
        <translation>A resposta foi cortada</translation>
    </message>
    <message id="Localisation.Dit_Introuvable">
        <source>“¿%” introuvable</source>
        <translation>“¿%” não encontrado</translation>
    </message>
    <message id="Localisation.Dit_SeulTrouve">
        <source>“¿%” : pas d'autre occurrence</source>
        <translation>“¿%”: sem outra ocorrência</translation>
    </message>
    <message id="Localisation.Dit_RepriseDebut">
        <source>Reprise au début du texte</source>
        <translation>Retomado a partir do início do texto</translation>
    </message>
    <message id="Localisation.Dit_RepriseFin">
        <source>Reprise à la fin du texte</source>
        <translation>Retomado a partir do fim do texto</translation>
    </message>
    <message id="Localisation.Dit_RienChercher">
        <source>Rien à chercher : le champ de recherche est vide</source>
        <translation>Nada a procurar: o campo de pesquisa está vazio</translation>
    </message>
    <message id="Localisation.Dit_AucuneMarque">
        <source>Aucune ligne sans équivalent dans ce texte</source>
        <translation>Nenhuma linha sem equivalente neste texto</translation>
    </message>
    <message id="Localisation.Dit_PasLa">
        <source>N'existe pas : ¿%</source>
        <translation>Não existe: ¿%</translation>
    </message>
    <message id="Localisation.Dit_PasDossier">
        <source>Cette ligne ne nomme pas de dossier de Custom Scenery</source>
        <translation>Esta linha não indica nenhuma pasta de Custom Scenery</translation>
    </message>
    <message id="Localisation.Dit_Occupe">
        <source>Un traitement ou un dialogue est en cours : terminez-le d'abord</source>
        <translation>Há um tratamento ou um diálogo aberto: termine-o primeiro</translation>
    </message>
    <message id="Localisation.Txt_ProbLignPresDxFois">
        <source>Problème, la ligne ci-dessous est présente plus d'une fois :</source>
        <translation>Problema: a linha seguinte está presente mais de uma vez:</translation>
    </message>
    <message id="Localisation.Txt_ProbLignEquiv">
        <source>Problème, les lignes ci-dessous sont équivalentes :</source>
        <translation>Problema: as linhas seguintes são equivalentes:</translation>
    </message>
    <message id="Localisation.Txt_ScenPlusDuneFois">
        <source>Ces Sceneries sont plus d'une fois dans le SceneryModel :</source>
        <translation>Estes cenários estão mais de uma vez no modelo:</translation>
    </message>
    <message id="Localisation.Txt_UrlDoitCommencer">
        <source>L'url devrait commencer avec 'http://' o 'https://'.</source>
        <translation>O URL deve começar por 'http://' ou 'https://'.</translation>
    </message>
    <message id="Localisation.Txt_DossDsDossPasDsScen">
        <source>Ces dossiers sont dans le dossier “Custom Scenery” mais pas dans “scenery_packs.ini” :</source>
        <translation>Estas pastas estão na pasta “Custom Scenery” mas não em “scenery_packs.ini”:</translation>
    </message>
    <message id="Localisation.Txt_ScenDsScenIniPasDsDoss">
        <source>Ces Sceneries sont dans “scenery_packs.ini” mais pas dans le dossier “Custom Scenery” :</source>
        <translation>Estes cenários estão em “scenery_packs.ini” mas não na pasta “Custom Scenery”:</translation>
    </message>
    <message id="Localisation.Txt_ProblemCompInitFinal">
        <source>Il y a eu un problème, veuillez comparer le fichier intial avec le fichier final.</source>
        <translation>Ocorreu um problema; compare o ficheiro inicial com o ficheiro final.</translation>
    </message>
    <message id="Localisation.Txt_ScenAutreCasse">
        <source>X-Plane ne chargera pas ces Sceneries, leur dossier (entre parenthèses) ayant d'autres majuscules :</source>
        <translation>O X-Plane não carregará estes cenários, porque a sua pasta (entre parênteses) tem outras maiúsculas:</translation>
    </message>
    <message id="Localisation.Txt_PlusDsFichier">
        <source>Dans le fichier initial, mais pas ou moins souvent dans le fichier final :</source>
        <translation>No ficheiro inicial, mas não ou menos vezes no ficheiro final:</translation>
    </message>
    <message id="Localisation.Txt_PlusDsResultat">
        <source>Dans le fichier final, mais pas ou moins souvent dans le fichier initial :</source>
        <translation>No ficheiro final, mas não ou menos vezes no ficheiro inicial:</translation>
    </message>
    <message id="Localisation.Txt_LignesVides">
        <source>Lignes vides : ¿% dans le fichier initial, ¿% dans le fichier final.</source>
        <translation>Linhas vazias: ¿% no ficheiro inicial, ¿% no ficheiro final.</translation>
    </message>
    <message id="Localisation.Menu_TexteProposer">
        <source>Proposer un modèle…</source>
        <translation>Propor um modelo…</translation>
    </message>
    <message id="Localisation.Txt_ChoisirModele">
        <source>Enregistrer le modèle proposé sous :</source>
        <translation>Guardar o modelo proposto como:</translation>
    </message>
    <message id="Localisation.Dit_PropArretee">
        <source>Arrêté : aucun modèle n'a été proposé</source>
        <translation>Parado: não foi proposto nenhum modelo</translation>
    </message>
    <message id="Localisation.Dit_OffreModele">
        <source>le menu “Texte” peut en proposer un</source>
        <translation>o menu “Texto” pode propor um</translation>
    </message>
    <message id="Localisation.Menu_Texte">
        <source>Texte</source>
        <translation>Texto</translation>
    </message>
    <message id="Localisation.Txt_PropFait">
        <source>Le modèle est proposé, mais pas encore enregistré.</source>
        <translation>O modelo está proposto, mas ainda não guardado.</translation>
    </message>
    <message id="Localisation.Txt_PropAeroports">
        <source>Aéroports : ¿%</source>
        <translation>Aeroportos: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropAeroportsXP">
        <source>Aéroports de X-Plane : ¿%</source>
        <translation>Aeroportos do X-Plane: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropOverlays">
        <source>Surcouches (overlays) : ¿%</source>
        <translation>Sobreposições (overlays): ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropInconnus">
        <source>Inconnus : ¿%</source>
        <translation>Desconhecidos: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropPlugins">
        <source>Greffons (plugins) : ¿%</source>
        <translation>Extensões (plugins): ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropBibliotheques">
        <source>Bibliothèques : ¿%</source>
        <translation>Bibliotecas: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropMaillages">
        <source>Maillages et tuiles photo : ¿%</source>
        <translation>Malhas de base e mosaicos de foto: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropDoublons">
        <source>Omis, une autre ligne nommant la même scène : ¿%</source>
        <translation>Omitidos, porque outra linha indica o mesmo cenário: ¿%</translation>
    </message>
    <message id="Localisation.Txt_PropSansLigne">
        <source>Omis, aucune ligne ne pouvant tenir le nom : ¿%</source>
        <translation>Omitidos, porque nenhuma linha pode conter o nome: ¿%</translation>
    </message>
    <message id="Localisation.Txt_RaisonDossAbsent">
        <source>le dossier manque</source>
        <translation>falta a pasta</translation>
    </message>
    <message id="Localisation.Txt_RaisonRien">
        <source>rien n'y dit ce que c'est</source>
        <translation>nada diz o que é</translation>
    </message>
    <message id="Localisation.Txt_RaisonIllisible">
        <source>“¿%” ne peut pas être lu : ¿%</source>
        <translation>“¿%” não pode ser lido: ¿%</translation>
    </message>
    <message id="Localisation.Txt_RaisonTuileAbimee">
        <source>tuile abîmée, ou comprimée autrement qu'en LZMA</source>
        <translation>mosaico danificado, ou comprimido de outro modo que não LZMA</translation>
    </message>
    <message id="Localisation.Txt_RaisonPasUnPack">
        <source>ce n'est pas une ligne de pack</source>
        <translation>não é a linha de um pacote</translation>
    </message>
    <message id="Localisation.Dit_PasUtf8">
        <source>ce n'est pas de l'UTF-8</source>
        <translation>não é UTF-8</translation>
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
        <translation>Utilização: tarnivel-order [--check] MODELO SCENERY_PACKS
            tarnivel-order --propose SCENERY_PACKS
            tarnivel-order --help | --version

Escreve as linhas de SCENERY_PACKS na ordem de MODELO na saída padrão,
e o que não coincide na saída de erros. “-” é a entrada padrão.
Nenhum ficheiro é alterado.

  --check    escreve apenas o que não coincide
  --propose  escreve um modelo segundo o que os pacotes contêm

Estado de saída: 0 tudo coincide, 1 algo foi assinalado,
2 um texto foi recusado ou não pôde ser lido, 64 utilização errada.</translation>
    </message>
    <message id="Localisation.Btn_Cont">
        <source>Continuer</source>
        <translation>Continuar</translation>
    </message>
    <message id="Localisation.Txt_TexteModifie">
        <source>Le texte a été modifié et n'est pas enregistré. Continuer sans enregistrer ?</source>
        <translation>O texto foi modificado e não foi guardado. Continuar sem guardar?</translation>
    </message>
    <message id="Localisation.Txt_TxtAreaPasScenPack">
        <source>Le TextArea ne contient pas de scenery_packs.</source>
        <translation>A área de texto não contém um scenery_packs.</translation>
    </message>
    <message id="Localisation.Txt_PasAncFichAsauv">
        <source>Il n'y a pas d'ancien fichier à sauvegarder.</source>
        <translation>Não há nenhum ficheiro antigo para guardar.</translation>
    </message>
    <message id="Localisation.Txt_ImpLocDossSauvAnc">
        <source>Impossible de localiser le dossier où sauvegarder l'ancien fichier.</source>
        <translation>Não foi possível localizar a pasta onde guardar o ficheiro antigo.</translation>
    </message>
    <message id="Localisation.Txt_ImpLocDossSauvFich">
        <source>Impossible de localiser le dossier où sauvegarder le fichier.</source>
        <translation>Não foi possível localizar a pasta onde guardar o ficheiro.</translation>
    </message>
    <message id="Localisation.Txt_SurSauv">
        <source>Êtes-vous sûr de vouloir enregistrer “¿%” comme “¿%” ?</source>
        <extracomment>The placeholders: the name on screen, the name of the file.</extracomment>
        <translation>Tem a certeza de que quer guardar “¿%” como “¿%”?</translation>
    </message>
    <message id="Localisation.Txt_ErreurEcrNouvScen">
        <source>Erreur pendant l'écriture du nouveau scenery_packs.</source>
        <translation>Erro ao escrever o novo scenery_packs.</translation>
    </message>
    <message id="Localisation.Txt_ErreurCopiAncScen">
        <source>Erreur pendant la copie de l'ancien (précédent) scenery_packs.</source>
        <translation>Erro ao copiar o antigo (anterior) scenery_packs.</translation>
    </message>
    <message id="Localisation.Btn_Quit">
        <source>Quitter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Sair</translation>
    </message>
    <message id="Localisation.WinSpecA_Title">
        <source>Spécial A</source>
        <extracomment>Window title and button, room for 88 pixels: about 12 characters.</extracomment>
        <translation>Especial A</translation>
    </message>
    <message id="Localisation.GrBox_HT">
        <source>Glisser déposer un fichier ici (⇧ clic sur le bouton pour révéler ce fichier dans le Finder)</source>
        <translation>Arraste e largue um ficheiro aqui (⇧ Shift + clique no botão para mostrar este ficheiro no gestor de ficheiros)</translation>
    </message>
    <message id="Localisation.GrBoxSource">
        <source>Source</source>
        <translation>Origem</translation>
    </message>
    <message id="Localisation.Btn_ChoisirFich">
        <source>Choisir fichier…</source>
        <extracomment>Button, room for 140 pixels: about 19 characters.</extracomment>
        <translation>Escolher ficheiro…</translation>
    </message>
    <message id="Localisation.LabOrg">
        <source>Original :</source>
        <extracomment>Label, room for 58 pixels: about 8 characters.</extracomment>
        <translation>Original:</translation>
    </message>
    <message id="Localisation.Btn_Trait">
        <source>Traiter</source>
        <extracomment>Button, room for 68 pixels: about 9 characters.</extracomment>
        <translation>Processar</translation>
    </message>
    <message id="Localisation.Txt_DropQueFichTxt">
        <source>Vous ne pouvez glisser déposer qu'un fichier contenant du texte ici.</source>
        <translation>Só pode largar aqui um ficheiro que contenha texto.</translation>
    </message>
    <message id="Localisation.Txt_DropQueDoss">
        <source>Vous ne pouvez glisser déposer qu'un dossier ici.</source>
        <translation>Só pode largar aqui uma pasta.</translation>
    </message>
    <message id="Localisation.Dit_AliasMort">
        <source>Cet alias ne mène nulle part.</source>
        <translation>Este atalho não leva a lado nenhum.</translation>
    </message>
    <message id="Localisation.Dit_PasGestionnaire">
        <source>Aucun gestionnaire de fichiers ne répond.</source>
        <translation>Nenhum gestor de ficheiros responde.</translation>
    </message>
    <message id="Localisation.Dit_PasDeLien">
        <source>Aucun programme n'ouvre ce lien : ¿%</source>
        <translation>Nenhum programa abre esta ligação: ¿%</translation>
    </message>
    <message id="Localisation.Dit_ParBouton">
        <source>Cette fenêtre se ferme par l'un de ses boutons.</source>
        <translation>Feche esta janela com um dos seus botões.</translation>
    </message>
    <message id="Localisation.Txt_NomNonGarde">
        <source>Le nom de cet élément ne peut pas être gardé : il n'est pas en UTF-8, ou un autre élément a presque le même.</source>
        <translation>O nome deste item não pode ser guardado: não está em UTF-8, ou outro item tem quase o mesmo.</translation>
    </message>
    <message id="Localisation.Txt_ChoisirUnFich">
        <source>Choisir un fichier :</source>
        <translation>Escolha um ficheiro:</translation>
    </message>
    <message id="Localisation.Txt_FiltreTexte">
        <source>Fichiers texte</source>
        <translation>Ficheiros de texto</translation>
    </message>
    <message id="Localisation.Txt_FiltreTous">
        <source>Tous les fichiers</source>
        <translation>Todos os ficheiros</translation>
    </message>
    <message id="Localisation.Txt_ChoisirDossArchiv">
        <source>Choisir le dossier où garder les anciens “scenery_packs.ini” :</source>
        <translation>Escolha a pasta onde guardar os “scenery_packs.ini” antigos:</translation>
    </message>
    <message id="Localisation.Txt_SelectQueFichTxt">
        <source>Vous pouvez seulement sélectionner un fichier texte.</source>
        <translation>Só pode selecionar um ficheiro de texto.</translation>
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
        <translation>O ficheiro original não existe.</translation>
    </message>
    <message id="Localisation.Txt_NomExiste">
        <source>Un fichier nommé “¿%” existe déjà.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>Já existe um ficheiro com o nome “¿%”.</translation>
    </message>
    <message id="Localisation.Txt_Rempl_Imposs">
        <source>Remplacement impossible !</source>
        <translation>Não é possível substituir!</translation>
    </message>
    <message id="Localisation.Txt_ErreurEcritFich">
        <source>Il y a eu une erreur pendant l'écriture du fichier.</source>
        <translation>Ocorreu um erro ao escrever o ficheiro.</translation>
    </message>
    <message id="Localisation.Txt_FichPasModif">
        <source>Le fichier n'a pas été modifié, souhaitez-vous l'enregistrer tout de même ?</source>
        <translation>O ficheiro não foi alterado. Quer guardá-lo mesmo assim?</translation>
    </message>
    <message id="Localisation.Btn_Remplacer">
        <source>Remplacer</source>
        <translation>Substituir</translation>
    </message>
    <message id="Localisation.Btn_NePasRempl">
        <source>Ne pas remplacer</source>
        <translation>Não substituir</translation>
    </message>
    <message id="Localisation.Txt_NbTrouv">
        <source>Nombre de fois où les textes cherchés ont été trouvés :</source>
        <translation>Número de vezes que os textos procurados foram encontrados:</translation>
    </message>
    <message id="Localisation.Dit_TropLignes">
        <source>Le tableau ne peut pas avoir plus de 1 000 lignes.</source>
        <translation>A tabela não pode ter mais de 1000 linhas.</translation>
    </message>
    <message id="Localisation.Dit_TropLong">
        <source>Trop long : une colonne du tableau peut avoir 2 000 000 de caractères.</source>
        <translation>Demasiado longo: uma coluna da tabela pode ter 2 000 000 de caracteres.</translation>
    </message>
    <message id="Localisation.Dit_TropColonnes">
        <source>Les cellules au-delà de la troisième colonne ont été laissées de côté.</source>
        <translation>As células além da terceira coluna foram deixadas de fora.</translation>
    </message>
    <message id="Localisation.Dit_RienEnlever">
        <source>Aucune ligne n'est sélectionnée, et la dernière n'est pas vide.</source>
        <translation>Nenhuma linha está selecionada e a última não está vazia.</translation>
    </message>
    <message id="Localisation.Txt_LectureImp">
        <source>Le fichier original ne peut pas être lu.</source>
        <translation>Não é possível ler o ficheiro original.</translation>
    </message>
    <message id="Localisation.Txt_TropGrand">
        <source>“¿%” deviendrait trop long et n'est pas écrit.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>“¿%” ficaria demasiado longo e não é escrito.</translation>
    </message>
    <message id="Localisation.Txt_MemoireManque">
        <source>La mémoire ne suffit pas pour ce traitement.</source>
        <translation>Não há memória suficiente para este tratamento.</translation>
    </message>
    <message id="Localisation.Txt_DossierPlein">
        <source>“¿%” est un dossier. Ce qu'il contient sera supprimé avec lui. Nombre d'éléments : ¿%.</source>
        <extracomment>The placeholders: the name of a folder, and how many items are in it.</extracomment>
        <translation>“¿%” é uma pasta. O seu conteúdo será eliminado com ela. Número de itens: ¿%.</translation>
    </message>
    <message id="Localisation.Txt_RemplOriginal">
        <source>“¿%” est le fichier original lui-même. Son texte d'avant sera perdu.</source>
        <extracomment>The placeholder: the name of a file.</extracomment>
        <translation>“¿%” é o próprio ficheiro original. O seu texto anterior será perdido.</translation>
    </message>
    <message id="Localisation.Dit_TraitArrete">
        <source>Traitement arrêté, rien n'a été écrit.</source>
        <translation>Tratamento parado, nada foi escrito.</translation>
    </message>
    <message id="Localisation.Dit_RienEcrit">
        <source>Rien n'a été écrit.</source>
        <translation>Nada foi escrito.</translation>
    </message>
    <message id="Localisation.Dit_EcritDans">
        <source>Écrit : ¿%, dans ¿%.</source>
        <extracomment>The placeholders: names of files, and the path of their folder.</extracomment>
        <translation>Escrito: ¿%, em ¿%.</translation>
    </message>
    <message id="Localisation.Btn_CopiList_HT">
        <source>Copier la liste dans le presse-papiers</source>
        <translation>Copiar a lista para a área de transferência</translation>
    </message>
    <message id="Localisation.Txt_OctetsRetires">
        <source>“¿%” contient des octets qui ne sont pas de l'UTF-8. Les caractères non ASCII en ont été retirés, dans ¿% ligne(s). La première est la ligne ¿% :
¿%</source>
        <extracomment>What bytes that are no UTF-8 cost. Placeholders: file or address, number of lines, number of the first line, that line.</extracomment>
        <translation>“¿%” contém bytes que não são UTF-8. Os caracteres que não são ASCII foram retirados, em ¿% linha(s). A primeira é a linha ¿%:
¿%</translation>
    </message>
    <message id="Localisation.Txt_SauvTexteAbime">
        <source>Des caractères de ce texte ont été retirés à la lecture, parce que son fichier contient des octets qui ne sont pas de l'UTF-8. L'enregistrer quand même ?</source>
        <extracomment>Question before a save.</extracomment>
        <translation>Foram retirados caracteres deste texto ao lê-lo, porque o seu ficheiro contém bytes que não são UTF-8. Guardá-lo mesmo assim?</translation>
    </message>
    <message id="Localisation.Txt_FichierChange">
        <source>“¿%” a changé sur le disque depuis qu'il a été lu. L'enregistrement fera perdre ces changements.</source>
        <extracomment>Question before a save. Placeholder: the file's path.</extracomment>
        <translation>“¿%” mudou no disco desde que foi lido. Ao guardar, essas mudanças perdem-se.</translation>
    </message>
    <message id="Localisation.Txt_FormeTexte">
        <source>“¿%” n'est pas un simple texte UTF-8 aux fins de ligne LF : ¿%.</source>
        <extracomment>In the status line. Placeholders: file or address, and what it is, as in “BOM, CR LF” or “UTF-16”.</extracomment>
        <translation>“¿%” não é um simples texto UTF-8 com fins de linha LF: ¿%.</translation>
    </message>
    <message id="Localisation.Txt_PrefsGardees">
        <source>Avant d'être remplacé, l'ancien fichier de réglages sera renommé “¿%”.</source>
        <extracomment>Told when the settings could not be read as they are. Placeholder: a file name.</extracomment>
        <translation>Antes de ser substituído, o ficheiro de definições antigo passará a chamar-se “¿%”.</translation>
    </message>
    <message id="Localisation.Txt_PrefsNonGardees">
        <source>Le dossier “¿%” n'est pas utilisable (¿%) : les réglages ne seront pas gardés.</source>
        <extracomment>Told at the start. Placeholders: the folder's path, the reason.</extracomment>
        <translation>A pasta “¿%” não pode ser usada (¿%): as definições não serão mantidas.</translation>
    </message>
    <message id="Localisation.Txt_PrefsNonReprises">
        <source>Les réglages d'une version plus ancienne n'ont pas pu être déplacés et servent là où ils sont, dans “¿%” : ¿%.</source>
        <extracomment>Told at the start. Placeholders: the place of an older version's settings, the reason.</extracomment>
        <translation>As definições de uma versão anterior não puderam ser movidas e são usadas onde estão, em “¿%”: ¿%.</translation>
    </message>
    <message id="Localisation.Pref_ChBoxAffBtnSpecA">
        <source>Afficher bouton “Spécial A”</source>
        <extracomment>Check box, room for 338 pixels: about 46 characters.</extracomment>
        <translation>Mostrar o botão “Especial A”</translation>
    </message>
    <message id="Localisation.Menu_Preferences">
        <source>Préférences…</source>
        <translation>Preferências…</translation>
    </message>
    <message id="Localisation.Menu_Rapport">
        <source>Dernier rapport</source>
        <translation>Último relatório</translation>
    </message>
    <message id="Localisation.Menu_Monter">
        <source>Monter les lignes</source>
        <translation>Subir as linhas</translation>
    </message>
    <message id="Localisation.Menu_Descendre">
        <source>Descendre les lignes</source>
        <translation>Descer as linhas</translation>
    </message>
    <message id="Localisation.Menu_Doubler">
        <source>Doubler les lignes</source>
        <translation>Duplicar as linhas</translation>
    </message>
    <message id="Localisation.Menu_Supprimer">
        <source>Supprimer les lignes</source>
        <translation>Eliminar as linhas</translation>
    </message>
    <message id="Localisation.Menu_MarqueSuiv">
        <source>Ligne sans équivalent suivante</source>
        <translation>Linha sem equivalente seguinte</translation>
    </message>
    <message id="Localisation.Menu_MarquePrec">
        <source>Ligne sans équivalent précédente</source>
        <translation>Linha sem equivalente anterior</translation>
    </message>
    <message id="Localisation.Menu_CherchSuiv">
        <source>Chercher le suivant</source>
        <translation>Procurar seguinte</translation>
    </message>
    <message id="Localisation.Menu_CherchPrec">
        <source>Chercher le précédent</source>
        <translation>Procurar anterior</translation>
    </message>
    <message id="Localisation.Menu_Ajouter">
        <source>Ajouter les dossiers absents du texte</source>
        <translation>Adicionar as pastas em falta</translation>
    </message>
    <message id="Localisation.Menu_DesactSansDoss">
        <source>Désactiver les lignes sans dossier</source>
        <translation>Desativar as linhas sem pasta</translation>
    </message>
    <message id="Localisation.Nb_Ajoutees">
        <source>ligne ajoutée|lignes ajoutées</source>
        <translation>linha adicionada|linhas adicionadas</translation>
    </message>
    <message id="Localisation.Dit_PasPlusLoin">
        <source>Impossible de déplacer plus loin</source>
        <translation>Não se pode mover mais</translation>
    </message>
    <message id="Localisation.Dit_PasDeLigne">
        <source>Il n'y a pas de ligne ici</source>
        <translation>Aqui não há nenhuma linha</translation>
    </message>
    <message id="Localisation.Dit_SansDossiers">
        <source>Le dossier Custom Scenery n'est pas accessible</source>
        <translation>A pasta Custom Scenery não está acessível</translation>
    </message>
    <message id="Localisation.Dit_PasDeRapport">
        <source>Rien à signaler</source>
        <translation>Nada a assinalar</translation>
    </message>
    <message id="Localisation.WinPref_Title">
        <source>Préférences</source>
        <translation>Preferências</translation>
    </message>
    <message id="Localisation.StText_VolSfx">
        <source>Effets sonores :</source>
        <extracomment>Label, room for 130 pixels: about 17 characters.</extracomment>
        <translation>Efeitos sonoros:</translation>
    </message>
    <message id="Localisation.Btn_Aide_HT">
        <source>Cette version a été compilée pour ¿% le ¿%</source>
        <extracomment>The placeholders: the kind of build, its date.</extracomment>
        <translation>Esta versão foi compilada para ¿% em ¿%</translation>
    </message>
</context>
</TS>
