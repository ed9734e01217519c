<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>Kliknij „Dalej”, aby kontynuować</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>Nazwa dysku:</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>System plików:</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>Pojemność:</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>Wolne miejsce:</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>Odśwież dyski</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>Wybierz metodę wymazywania</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niski</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Średni</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Wysoki</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>Szybki zapis zer (nadpisuje dane zerami)</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>Losowe dane </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M (standard Departamentu Obrony USA) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL (standard Marynarki Wojennej USA) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O. (standard Organizacji Traktatu Północnoatlantyckiego)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R. (standard niemiecki) </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Metoda Peter Guttman</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>Niezabezpieczone dane: </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>Bezpieczne wymazywanie wolnego miejsca</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>Upłynęło czasu:</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>Wymazane dane:</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>Wolne miejsce:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>Sterowanie z chmury </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>Sterowanie z chmury</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>Uwaga!</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>Czy na pewno chcesz wymazać wolne miejsce na wybranym dysku?</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>Ważne!
Zamknij wszystkie pliki znajdujące się na tym dysku i nie dodawaj do niego danych podczas wymazywania.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>Wystąpił nieznany błąd</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>Uruchom aplikację ponownie</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>Ten dysk jest tylko do odczytu. Wybierz inny dysk.</translation>
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
        <translation>Wymazywanie zostało przerwane</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>Trwa wymazywanie</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>Najpierw anuluj wymazywanie, a potem zamknij aplikację.</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>Faza 1: analizowanie danych…</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>Faza 2: bezpieczne wymazywanie danych…</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>Poczekaj, trwa kończenie bieżącej operacji…</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>Administrator pomyślnie wykonał zadanie Calvero
na dysku: %@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Strona główna</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>Uzyskaj teraz</translation>
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
        <translation>Dyski</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>Wybierz dysk</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>Punkt montowania:</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>Dysk stały</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>Dysk wymienny</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>Dysk sieciowy</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>Nie znaleziono dysków</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>Podłącz dysk, a następnie naciśnij „Odśwież dyski”.</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>Miejsce do wymazania: </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>Liczba przebiegów: %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>Niczego nie zapisuje</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>Niczego nie zapisuje: wolne miejsce zostaje zajęte i zwolnione bez zmian.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>Nadpisano %1 wolnego miejsca na dysku %2.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>Nadpisano tylko %1 z %2 wolnego miejsca na dysku %3. Usunięte dane mogą być tam nadal możliwe do odczytania.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>Niczego nie nadpisano: ta metoda nie zapisuje żadnych danych.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>Nie udało się wymazać części wolnego miejsca na dysku %1. Usunięte dane mogą tam być nadal możliwe do odczytania.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>Wolne miejsce zostało wymazane, ale nie udało się usunąć folderu „%1”. Zmień uprawnienia i usuń go albo wymaż dysk ponownie.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>Dysk %1 został odłączony lub uległ awarii. Usunięte dane mogą być na nim nadal możliwe do odczytania.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>Pamięć masowa, na której znajduje się dysk %1, jest pełna lub uszkodzona. Zwolnij na niej miejsce, zanim usuniesz dysk. Usunięte dane mogą być na dysku nadal możliwe do odczytania.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>Nie ma dysku, na którym można wymazać wolne miejsce.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>Nie masz uprawnień do zapisu na tym dysku. Wybierz inny dysk lub zwróć się do jego administratora.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>Nie masz uprawnień do zapisu na tym dysku. Wybierz inny dysk lub uruchom to polecenie w terminalu, aby wymazać jego wolne miejsce jako administrator.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>Nie masz uprawnień do zapisu na tym dysku. Użytkownik może zmienić program %1, dlatego nie wolno go uruchamiać jako administrator. Poproś administratora o zainstalowanie programu Calvero, a potem spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Polecenie</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Kopiuj polecenie</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>Wolne miejsce na tym dysku jest właśnie wymazywane przez inny proces. Zaczekaj na jego zakończenie lub wybierz inny dysk.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>Ten dysk nie jest już podłączony. Naciśnij „Odśwież dyski”.</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>Ten dysk nie odpowiada. Sprawdź jego podłączenie, a następnie naciśnij „Odśwież dyski”.</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>Pamięć masowa, na której znajduje się ten dysk, ma mniej miejsca, niż dysk pokazuje. Zwolnij tam miejsce lub wybierz inny dysk.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>Na tym dysku znajduje się folder „%1”, który nie został utworzony przez program Calvero. Zmień jego nazwę lub usuń go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>Na tym dysku znajduje się folder „%1”, pozostawiony przez wcześniejszą operację i zablokowany. Odblokuj go lub usuń i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>Przechodzi do metod wymazywania.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>Wraca do dysków.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>Rozpoczyna wymazywanie po potwierdzeniu.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>Zatrzymuje wymazywanie i usuwa pliki tymczasowe.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>Odświeża listę podłączonych dysków.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Zamyka program Calvero i otwiera Ondrel MORE.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>Otwiera stronę pomocy w przeglądarce.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>Otwiera portal w chmurze w przeglądarce.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>Otwiera stronę w przeglądarce.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>Wybierz dysk, na którym chcesz wymazać wolne miejsce.</translation>
    </message>
</context>
</TS>
