<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>Fai clic su «Avanti» per continuare</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>Nome unità:</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>File system:</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>Capacità:</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>Spazio libero:</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>Ricarica unità</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>Seleziona il metodo di cancellazione</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basso</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alto</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>Scrittura rapida di zeri (sovrascrive i dati con zeri)</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>Casuale </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M (standard del Dipartimento della Difesa USA) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL (standard della Marina USA) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O. (standard dell’Alleanza Atlantica)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R. (standard tedesco) </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Metodo Peter Guttman</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>Dati non protetti: </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>Cancellazione sicura dello spazio libero</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>Tempo trascorso:</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>Dati cancellati:</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>Spazio libero:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>Controllo cloud </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>Controllo cloud</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Procedi</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>Attenzione!</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>Cancellare davvero lo spazio libero dell’unità selezionata?</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>Importante!
Chiudi tutti i file presenti su questa unità e non aggiungervi dati durante il processo.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>Si è verificato un errore sconosciuto</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>Riavvia l’applicazione</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>Questa unità è di sola lettura. Seleziona un’altra unità.</translation>
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
        <translation>Il processo di cancellazione è stato interrotto</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>Il processo di cancellazione è in corso</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>Annulla la cancellazione, poi esci dall’applicazione.</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>Fase 1: analisi dei dati…</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>Fase 2: cancellazione sicura dei dati…</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>Attendi, completamento del processo in corso…</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>L’amministratore ha eseguito correttamente Calvero
su: %@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>Ottieni ora</translation>
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
        <translation>Unità</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>Seleziona un’unità</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>Punto di montaggio:</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>Unità fissa</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>Unità rimovibile</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>Unità di rete</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>Nessuna unità trovata</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>Collega un’unità, poi premi «Ricarica unità».</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>Spazio da cancellare: </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>Passate: %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>Non scrive nulla</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>Non scrive nulla: lo spazio libero viene allocato e poi restituito com’era.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>%1 di spazio libero su %2 sono stati sovrascritti.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>Solo %1 di %2 di spazio libero su %3 sono stati sovrascritti. I dati eliminati potrebbero essere ancora leggibili.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>Non è stato sovrascritto nulla: questo metodo non scrive dati.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>Non è stato possibile cancellare una parte dello spazio libero di %1. I dati eliminati potrebbero essere ancora leggibili in quella parte.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>Lo spazio libero è stato cancellato, ma non è stato possibile rimuovere «%1». Cambia le autorizzazioni e rimuovi la cartella, oppure cancella di nuovo l’unità.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>L’unità %1 è stata rimossa o si è guastata. I dati eliminati potrebbero essere ancora leggibili sull’unità.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>L’archiviazione su cui si basa l’unità %1 è piena o guasta. Liberare spazio lì prima di rimuovere l’unità. I dati eliminati potrebbero essere ancora leggibili sull’unità.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>Non c’è nessuna unità il cui spazio libero possa essere cancellato.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>Non sei autorizzato a scrivere su questa unità. Seleziona un’altra unità o rivolgiti al suo amministratore.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>Non sei autorizzato a scrivere su questa unità. Seleziona un’altra unità o esegui questo comando in un terminale per cancellarne lo spazio libero come amministratore.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>Non sei autorizzato a scrivere su questa unità. Un utente può modificare il programma %1, che quindi non deve essere avviato come amministratore. Fai installare Calvero dall’amministratore, poi riprova.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Copia comando</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>Un altro processo sta cancellando lo spazio libero di questa unità. Attendi che termini o seleziona un’altra unità.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>Questa unità non è più collegata. Premi «Ricarica unità».</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>Questa unità non risponde. Controlla il collegamento, poi premi «Ricarica unità».</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>L&apos;archivio su cui si trova questa unità ha meno spazio di quanto l&apos;unità mostri. Libera spazio lì oppure seleziona un&apos;altra unità.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>Questa unità contiene una cartella «%1» che non è stata creata da Calvero. Rinominala o rimuovila, poi riprova.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>Questa unità contiene una cartella «%1» lasciata da un’operazione precedente e bloccata. Sbloccala o rimuovila, poi riprova.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>Passa ai metodi di cancellazione.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>Torna alle unità.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>Avvia la cancellazione dopo una conferma.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>Interrompe la cancellazione e rimuove i file temporanei.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>Aggiorna l’elenco delle unità collegate.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Chiude Calvero e apre Ondrel MORE.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>Apre la pagina della guida nel browser web.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>Apre il portale cloud nel browser web.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>Apre la pagina nel browser web.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>Scegli l’unità di cui cancellare lo spazio libero.</translation>
    </message>
</context>
</TS>
