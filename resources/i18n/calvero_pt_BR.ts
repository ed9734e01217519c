<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>Clique em “Avançar” para continuar</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>Nome da unidade:</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>Sistema de arquivos:</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>Capacidade:</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>Espaço livre:</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>Recarregar unidades</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>Selecione o método de apagamento</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baixo</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Médio</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>Gravação rápida de zeros (sobrescreve os dados com zeros)</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>Aleatório </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M (padrão do Departamento de Defesa dos EUA) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL (padrão da Marinha dos EUA) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O. (padrão da Organização do Tratado do Atlântico Norte)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R. (padrão alemão) </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Método de Peter Guttman</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>Dados desprotegidos: </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>Apagando o espaço livre com segurança</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>Tempo decorrido:</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>Dados apagados:</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>Espaço livre:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>Controle na nuvem </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>Controle na nuvem</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>Atenção!</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>Tem certeza de que deseja apagar o espaço livre da unidade selecionada?</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>Importante!
Feche todos os arquivos desta unidade e não adicione dados a ela durante o processo.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>Ocorreu um erro desconhecido</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>Reiniciar o aplicativo</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>Esta unidade é somente leitura. Selecione outra unidade.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Wiping process aborted</source>
        <translation>O apagamento foi interrompido</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>O apagamento está em andamento</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>Cancele o apagamento e depois feche o aplicativo.</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>Fase 1: analisando os dados…</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>Fase 2: apagando os dados com segurança…</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>Aguarde, finalizando o processo atual…</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>Seu administrador executou o Calvero com êxito
em: %@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>Obter agora</translation>
    </message>
    <message>
        <source>Facebook</source>
        <translation>Facebook</translation>
    </message>
    <message>
        <source>Twitter</source>
        <translation>Twitter</translation>
    </message>
    <message>
        <source>Google+</source>
        <translation>Google+</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>Selecione uma unidade</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>Caminho de montagem:</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>Unidade fixa</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>Unidade removível</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>Unidade de rede</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>Nenhuma unidade encontrada</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>Conecte uma unidade e pressione “Recarregar unidades”.</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>Espaço a ser apagado: </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>Passagens: %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>Não grava nada</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>Não grava nada: o espaço livre é alocado e devolvido como estava.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>%1 de espaço livre em %2 foram sobrescritos.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>Apenas %1 de %2 de espaço livre em %3 foram sobrescritos. Os dados excluídos ainda podem ser lidos lá.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>Nada foi sobrescrito: este método não grava dados.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>Não foi possível apagar uma parte do espaço livre de %1. Talvez ainda seja possível ler dados excluídos nela.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>O espaço livre foi apagado, mas não foi possível remover “%1”. Altere as permissões e remova a pasta, ou apague a unidade novamente.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>A unidade %1 foi removida ou falhou. Talvez ainda seja possível ler dados excluídos nela.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>O armazenamento por trás da unidade %1 está cheio ou falhando. Libere espaço nele antes de remover a unidade. Os dados excluídos ainda podem ser lidos na unidade.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>Não há nenhuma unidade cujo espaço livre possa ser apagado.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>Você não tem permissão para gravar nesta unidade. Selecione outra unidade ou fale com o administrador dela.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>Você não tem permissão para gravar nesta unidade. Selecione outra unidade ou execute este comando em um terminal para apagar o espaço livre dela como administrador.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>Você não tem permissão para gravar nesta unidade. Um usuário pode alterar o programa %1; por isso, ele não deve ser iniciado como administrador. Peça ao administrador que instale o Calvero e tente novamente.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Copiar comando</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>Outro processo está apagando o espaço livre desta unidade. Aguarde até que ele termine ou selecione outra unidade.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>Esta unidade não está mais conectada. Pressione “Recarregar unidades”.</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>Esta unidade não responde. Verifique a conexão e pressione “Recarregar unidades”.</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>O armazenamento em que esta unidade se encontra tem menos espaço do que a unidade mostra. Libere espaço nele ou selecione outra unidade.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>Esta unidade contém uma pasta “%1” que não foi criada pelo Calvero. Renomeie ou remova essa pasta e tente novamente.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>Esta unidade contém uma pasta “%1” que foi deixada por uma operação anterior e que está bloqueada. Desbloqueie ou remova essa pasta e tente novamente.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>Avança para os métodos de apagamento.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>Volta para as unidades.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>Começa a apagar após uma confirmação.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>Para de apagar e remove os arquivos temporários.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>Atualiza a lista de unidades conectadas.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Fecha o Calvero e abre o Ondrel MORE.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>Abre a página de ajuda no navegador.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>Abre o portal na nuvem no navegador.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>Abre a página no navegador.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>Escolha a unidade cujo espaço livre será apagado.</translation>
    </message>
</context>
</TS>
