<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>Click next to continue</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>Drive Name :</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>File System :</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>Drive Space :</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>Free Space :</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>Reload Drives</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>Select wiping method</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>Fast Zero Write (Wipes data with 0's (Zero))</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>Random </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M (US Dept. of Defence Standard) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL (US Navy Standard) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O. (North Atlantic Treaty Organization  Standard)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R.  (German Standard) </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Peter Guttman Method</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>Unsecured Data: </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>Erasing free space data securely</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>Elapsed Time:</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>Erased Data:</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>Free Space:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>Cloud Control </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>Cloud Control</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Proceed</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>Alert!!</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>Are you sure , you want to erase the free space of selected drive?</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>YES</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>NO</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>Unknown Error Occured</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>Relaunch the application</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>Read only drive, please select other drives</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Wiping process aborted</source>
        <translation>Wiping process aborted</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>Wiping process is On</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>Cancel wiping and then quit the application</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>Phase 1: Analyzing Data..</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>Phase 2: Securely Erasing Data..</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>Please wait, finishing current process..</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>Your admin successfuly completed
 Calvero on:%@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>Get it now</translation>
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
        <translation>Drives</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>Select a drive</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>Mount Path :</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>Fixed drive</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>Removable drive</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>Network drive</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>No drives found</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>Connect a drive, then press &quot;Reload Drives&quot;.</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>Space to be erased: </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>Passes: %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>Writes nothing</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>Writes nothing: the free space is laid out and given back as it was.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>%1 of free space on %2 have been overwritten.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>Nothing was overwritten: this method writes no data.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>The drive %1 was removed or has failed. Deleted data may still be readable on it.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>There is no drive to erase.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>You are not allowed to write to this drive. Select another drive, or ask its administrator.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Command</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Copy Command</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>This drive is being erased by another process. Wait until it has ended, or select another drive.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>This drive is not connected any more. Press &quot;Reload Drives&quot;.</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>Continues to the erase methods.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>Returns to the drives.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>Starts erasing, after a question.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>Stops erasing and removes the temporary files.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>Lists the connected drives again.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Closes Calvero and opens Ondrel MORE.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>Opens the help page in the web browser.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>Opens the cloud portal in the web browser.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>Opens the page in the web browser.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>Choose the drive whose free space is to be erased.</translation>
    </message>
</context>
</TS>
