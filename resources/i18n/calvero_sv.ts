<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>Klicka på ”Nästa” för att fortsätta</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>Enhetsnamn:</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>Filsystem:</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>Kapacitet:</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>Ledigt utrymme:</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>Läs in enheter igen</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>Välj raderingsmetod</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Låg</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medel</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hög</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>Snabb nollskrivning (skriver över data med nollor)</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>Slumpmässig </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M (amerikanska försvarsdepartementets standard) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL (amerikanska flottans standard) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O. (Nordatlantiska fördragsorganisationens standard)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R. (tysk standard) </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Peter Guttman-metoden</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>Oskyddade data: </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>Ledigt utrymme raderas säkert</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>Förfluten tid:</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>Raderade data:</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>Ledigt utrymme:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>Molnstyrning </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>Molnstyrning</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>Varning!</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>Vill du verkligen radera det lediga utrymmet på den valda enheten?</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>Viktigt!
Stäng alla filer på enheten och lägg inte till några data på den medan raderingen pågår.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>Ett okänt fel har inträffat</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>Starta om programmet</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>Enheten är skrivskyddad. Välj en annan enhet.</translation>
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
        <translation>Raderingen avbröts</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>Radering pågår</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>Avbryt raderingen och avsluta sedan programmet.</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>Fas 1: Data analyseras …</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>Fas 2: Data raderas säkert …</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>Vänta, den pågående åtgärden slutförs …</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>Administratören har kört Calvero utan fel
på: %@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Hem</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>Skaffa nu</translation>
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
        <translation>Enheter</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>Välj en enhet</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>Monteringssökväg:</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>Fast enhet</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>Flyttbar enhet</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>Nätverksenhet</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>Inga enheter hittades</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>Anslut en enhet och tryck sedan på ”Läs in enheter igen”.</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>Utrymme att radera: </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>Antal omgångar: %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>Skriver ingenting</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>Skriver ingenting: det lediga utrymmet tas i anspråk och lämnas tillbaka oförändrat.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>%1 ledigt utrymme på %2 har skrivits över.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>Endast %1 av %2 ledigt utrymme på %3 har skrivits över. Borttagna data kan fortfarande vara läsbara där.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>Ingenting skrevs över: den här metoden skriver inga data.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>En del av det lediga utrymmet på %1 kunde inte raderas. Borttagna data kan fortfarande vara läsbara där.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>Det lediga utrymmet har raderats, men ”%1” kunde inte tas bort. Ändra behörigheterna och ta bort mappen, eller radera enheten en gång till.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>Enheten %1 har kopplats från eller slutat fungera. Borttagna data kan fortfarande vara läsbara på den.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>Lagringen bakom enheten %1 är full eller håller på att gå sönder. Frigör utrymme där innan du tar bort enheten. Borttagna data kan fortfarande vara läsbara på enheten.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>Det finns ingen enhet vars lediga utrymme kan raderas.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>Du har inte behörighet att skriva till den här enheten. Välj en annan enhet eller kontakta enhetens administratör.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>Du har inte behörighet att skriva till den här enheten. Välj en annan enhet eller kör det här kommandot i en terminal för att radera dess lediga utrymme som administratör.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>Du har inte behörighet att skriva till den här enheten. En användare kan ändra programmet %1, så det får inte startas som administratör. Låt administratören installera Calvero och försök sedan igen.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Kommando</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Kopiera kommando</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>Det lediga utrymmet på den här enheten raderas redan av en annan process. Vänta tills den är klar eller välj en annan enhet.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>Enheten är inte längre ansluten. Tryck på ”Läs in enheter igen”.</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>Enheten svarar inte. Kontrollera anslutningen och tryck sedan på ”Läs in enheter igen”.</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>Lagringen som enheten ligger på har mindre plats än vad enheten visar. Frigör plats där eller välj en annan enhet.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>Enheten innehåller en mapp ”%1” som inte har skapats av Calvero. Byt namn på den eller ta bort den och försök sedan igen.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>Enheten innehåller en mapp ”%1” som en tidigare körning har lämnat kvar och som är låst. Lås upp den eller ta bort den och försök sedan igen.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>Går vidare till raderingsmetoderna.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>Går tillbaka till enheterna.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>Startar raderingen efter en bekräftelse.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>Stoppar raderingen och tar bort de tillfälliga filerna.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>Uppdaterar listan över anslutna enheter.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Stänger Calvero och öppnar Ondrel MORE.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>Öppnar hjälpsidan i webbläsaren.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>Öppnar molnportalen i webbläsaren.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>Öppnar sidan i webbläsaren.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>Välj den enhet vars lediga utrymme ska raderas.</translation>
    </message>
</context>
</TS>
