<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>Klik op ‘Volgende’ om door te gaan</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>Schijfnaam:</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>Bestandssysteem:</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>Capaciteit:</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>Vrije ruimte:</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>Schijven opnieuw laden</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>Kies een wismethode</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Laag</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Gemiddeld</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoog</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>Snel nullen schrijven (overschrijft gegevens met nullen)</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>Willekeurig </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M (norm van het Amerikaanse ministerie van Defensie) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL (norm van de Amerikaanse marine) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O. (norm van de Noord-Atlantische Verdragsorganisatie)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R. (Duitse norm) </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Methode van Peter Guttman</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>Onbeveiligde gegevens: </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>Vrije ruimte wordt veilig gewist</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>Verstreken tijd:</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>Gewiste gegevens:</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>Vrije ruimte:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>Cloudbeheer </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>Cloudbeheer</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>Let op!</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>Weet u zeker dat u de vrije ruimte van de geselecteerde schijf wilt wissen?</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>Belangrijk!
Sluit alle bestanden op deze schijf en zet er tijdens het wissen geen gegevens op.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>Er is een onbekende fout opgetreden</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>Toepassing opnieuw starten</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>Deze schijf is alleen-lezen. Selecteer een andere schijf.</translation>
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
        <translation>Het wissen is afgebroken</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>Bezig met wissen</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>Annuleer eerst het wissen en sluit daarna de toepassing.</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>Fase 1: gegevens worden geanalyseerd…</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>Fase 2: gegevens worden veilig gewist…</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>Een ogenblik geduld, het huidige proces wordt voltooid…</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>Uw beheerder heeft Calvero met succes uitgevoerd
op: %@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>Nu ophalen</translation>
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
        <translation>Schijven</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>Selecteer een schijf</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>Koppelpunt:</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>Vaste schijf</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>Verwisselbare schijf</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>Netwerkschijf</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>Geen schijven gevonden</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>Sluit een schijf aan en klik daarna op ‘Schijven opnieuw laden’.</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>Te wissen ruimte: </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>Aantal rondes: %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>Schrijft niets</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>Schrijft niets: de vrije ruimte wordt in beslag genomen en ongewijzigd weer vrijgegeven.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>%1 vrije ruimte op %2 is overschreven.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>Slechts %1 van %2 vrije ruimte op %3 is overschreven. Verwijderde gegevens zijn daar mogelijk nog leesbaar.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>Er is niets overschreven: deze methode schrijft geen gegevens.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>Een deel van de vrije ruimte van %1 kon niet worden gewist. Verwijderde gegevens zijn daar mogelijk nog leesbaar.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>De vrije ruimte is gewist, maar ‘%1’ kon niet worden verwijderd. Wijzig de rechten en verwijder de map, of wis de schijf opnieuw.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>De schijf %1 is losgekoppeld of defect geraakt. Verwijderde gegevens zijn daarop mogelijk nog leesbaar.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>De opslag achter de schijf %1 is vol of defect. Maak daar ruimte voordat u de schijf verwijdert. Verwijderde gegevens zijn mogelijk nog leesbaar op de schijf.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>Er is geen schijf waarvan de vrije ruimte kan worden gewist.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>U mag niet naar deze schijf schrijven. Selecteer een andere schijf of neem contact op met de beheerder ervan.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>U mag niet naar deze schijf schrijven. Selecteer een andere schijf of voer deze opdracht uit in een terminal om de vrije ruimte ervan als beheerder te wissen.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>U mag niet naar deze schijf schrijven. Een gebruiker kan het programma %1 wijzigen, dus mag het niet als beheerder worden gestart. Laat Calvero door de beheerder installeren en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Opdracht</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Opdracht kopiëren</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>De vrije ruimte van deze schijf wordt al door een ander proces gewist. Wacht tot dat klaar is of selecteer een andere schijf.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>Deze schijf is niet meer aangesloten. Klik op ‘Schijven opnieuw laden’.</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>Deze schijf reageert niet. Controleer de aansluiting en klik daarna op ‘Schijven opnieuw laden’.</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>De opslag waarop deze schijf staat, heeft minder ruimte dan de schijf aangeeft. Maak daar ruimte vrij of kies een andere schijf.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>Deze schijf bevat een map ‘%1’ die niet door Calvero is gemaakt. Hernoem of verwijder deze map en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>Deze schijf bevat een map ‘%1’ die een eerdere uitvoering heeft achtergelaten en die vergrendeld is. Ontgrendel of verwijder deze map en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>Gaat verder naar de wismethoden.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>Gaat terug naar de schijven.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>Begint na bevestiging met wissen.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>Stopt het wissen en verwijdert de tijdelijke bestanden.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>Vernieuwt de lijst met aangesloten schijven.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Sluit Calvero en opent Ondrel MORE.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>Opent de helppagina in de webbrowser.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>Opent het cloudportaal in de webbrowser.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>Opent de pagina in de webbrowser.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>Kies de schijf waarvan u de vrije ruimte wilt wissen.</translation>
    </message>
</context>
</TS>
