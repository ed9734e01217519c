<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>Klicken Sie auf „Weiter“, um fortzufahren</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>Laufwerksname:</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>Dateisystem:</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>Kapazität:</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>Freier Speicherplatz:</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>Laufwerke neu laden</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>Löschmethode auswählen</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>Schnelles Nullschreiben (überschreibt Daten mit Nullen)</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>Zufallsdaten </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M (Standard des US-Verteidigungsministeriums) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL (Standard der US-Marine) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O. (Standard der Nordatlantikpakt-Organisation)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R. (deutscher Standard) </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Methode nach Peter Guttman</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>Ungeschützte Daten: </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>Freier Speicherplatz wird sicher gelöscht</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>Verstrichene Zeit:</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>Gelöschte Daten:</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>Freier Speicherplatz:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>Cloud-Steuerung </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>Cloud-Steuerung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>Achtung!</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>Möchten Sie den freien Speicherplatz des ausgewählten Laufwerks wirklich löschen?</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>Bitte beachten!
Schließen Sie alle Dateien auf diesem Laufwerk und speichern Sie während des Vorgangs keine Daten darauf.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>Ein unbekannter Fehler ist aufgetreten</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>Anwendung neu starten</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>Dieses Laufwerk ist schreibgeschützt. Bitte wählen Sie ein anderes Laufwerk aus.</translation>
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
        <translation>Der Löschvorgang wurde abgebrochen</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>Der Löschvorgang läuft</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>Brechen Sie zuerst den Löschvorgang ab und beenden Sie dann die Anwendung.</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>Phase 1: Daten werden analysiert …</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>Phase 2: Daten werden sicher gelöscht …</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>Bitte warten, der laufende Vorgang wird abgeschlossen …</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>Ihr Administrator hat Calvero erfolgreich ausgeführt
auf: %@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>Jetzt holen</translation>
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
        <translation>Laufwerke</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>Laufwerk auswählen</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>Einhängepunkt:</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>Fest eingebautes Laufwerk</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>Wechseldatenträger</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>Netzlaufwerk</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>Keine Laufwerke gefunden</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>Schließen Sie ein Laufwerk an und klicken Sie dann auf „Laufwerke neu laden“.</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>Zu löschender Speicherplatz: </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>Durchgänge: %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>Schreibt nichts</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>Schreibt nichts: Der freie Speicherplatz wird belegt und unverändert wieder freigegeben.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>%1 freier Speicherplatz auf %2 wurden überschrieben.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>Nur %1 von %2 freiem Speicherplatz auf %3 wurden überschrieben. Zuvor gelöschte Daten sind dort möglicherweise noch lesbar.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>Es wurde nichts überschrieben: Diese Methode schreibt keine Daten.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>Ein Teil des freien Speicherplatzes von %1 konnte nicht gelöscht werden. Zuvor gelöschte Daten sind dort möglicherweise noch lesbar.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>Der freie Speicherplatz wurde gelöscht, aber „%1“ konnte nicht entfernt werden. Ändern Sie die Berechtigungen und entfernen Sie ihn, oder löschen Sie das Laufwerk noch einmal.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>Das Laufwerk %1 wurde entfernt oder ist ausgefallen. Zuvor gelöschte Daten sind darauf möglicherweise noch lesbar.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>Der Speicher hinter dem Laufwerk %1 ist voll oder fällt aus. Schaffen Sie dort Platz, bevor Sie das Laufwerk entfernen. Zuvor gelöschte Daten sind auf dem Laufwerk möglicherweise noch lesbar.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>Es ist kein Laufwerk vorhanden, dessen freier Speicherplatz gelöscht werden kann.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>Sie dürfen nicht auf dieses Laufwerk schreiben. Wählen Sie ein anderes Laufwerk aus oder wenden Sie sich an den zuständigen Administrator.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>Sie dürfen nicht auf dieses Laufwerk schreiben. Wählen Sie ein anderes Laufwerk aus oder führen Sie diesen Befehl in einem Terminal aus, um seinen freien Speicherplatz als Administrator zu löschen.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>Sie dürfen nicht auf dieses Laufwerk schreiben. Das Programm %1 kann von einem Benutzer verändert werden und darf deshalb nicht als Administrator gestartet werden. Lassen Sie Calvero vom Administrator installieren und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>Der freie Speicherplatz dieses Laufwerks wird gerade von einem anderen Prozess gelöscht. Warten Sie, bis dieser beendet ist, oder wählen Sie ein anderes Laufwerk aus.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>Dieses Laufwerk ist nicht mehr verbunden. Klicken Sie auf „Laufwerke neu laden“.</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>Dieses Laufwerk reagiert nicht. Prüfen Sie die Verbindung und klicken Sie dann auf „Laufwerke neu laden“.</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>Der Speicher, auf dem dieses Laufwerk liegt, hat weniger Platz, als das Laufwerk anzeigt. Schaffen Sie dort Platz, oder wählen Sie ein anderes Laufwerk aus.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>Dieses Laufwerk enthält einen Ordner „%1“, der nicht von Calvero angelegt wurde. Benennen Sie ihn um oder entfernen Sie ihn und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>Dieses Laufwerk enthält einen Ordner „%1“, den ein früherer Vorgang zurückgelassen hat und der gesperrt ist. Entsperren oder entfernen Sie ihn und versuchen Sie es dann erneut.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>Weiter zu den Löschmethoden.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>Zurück zu den Laufwerken.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>Startet das Löschen nach einer Rückfrage.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>Bricht das Löschen ab und entfernt die temporären Dateien.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>Listet die verbundenen Laufwerke neu auf.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Schließt Calvero und öffnet Ondrel MORE.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>Öffnet die Hilfeseite im Webbrowser.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>Öffnet das Cloud-Portal im Webbrowser.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>Öffnet die Seite im Webbrowser.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>Wählen Sie das Laufwerk aus, dessen freier Speicherplatz gelöscht werden soll.</translation>
    </message>
</context>
</TS>
