<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Calvero</name>
    <message>
        <source>Click next to continue</source>
        <translation>Cliquez sur « Suivant » pour continuer</translation>
    </message>
    <message>
        <source>Drive Name :</source>
        <translation>Nom du lecteur :</translation>
    </message>
    <message>
        <source>File System :</source>
        <translation>Système de fichiers :</translation>
    </message>
    <message>
        <source>Drive Space :</source>
        <translation>Capacité :</translation>
    </message>
    <message>
        <source>Free Space :</source>
        <translation>Espace libre :</translation>
    </message>
    <message>
        <source>Reload Drives</source>
        <translation>Actualiser les lecteurs</translation>
    </message>
    <message>
        <source>Select wiping method</source>
        <translation>Sélectionnez une méthode d’effacement</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevé</translation>
    </message>
    <message>
        <source>Fast Zero Write (Wipes data with 0's (Zero))</source>
        <translation>Écriture rapide de zéros (remplace les données par des 0)</translation>
    </message>
    <message>
        <source>Random </source>
        <translation>Aléatoire </translation>
    </message>
    <message>
        <source>DOD 5220.22.M (US Dept. of Defence Standard) </source>
        <translation>DOD 5220.22.M (norme du département américain de la Défense) </translation>
    </message>
    <message>
        <source>N.A.V.S.O.- RLL (US Navy Standard) </source>
        <translation>N.A.V.S.O.- RLL (norme de la marine américaine) </translation>
    </message>
    <message>
        <source>N.A.T.O. (North Atlantic Treaty Organization  Standard)</source>
        <translation>N.A.T.O. (norme de l’Alliance atlantique)</translation>
    </message>
    <message>
        <source>V.S.I.T.R.  (German Standard) </source>
        <translation>V.S.I.T.R. (norme allemande) </translation>
    </message>
    <message>
        <source>Peter Guttman Method</source>
        <translation>Méthode Peter Guttman</translation>
    </message>
    <message>
        <source>Peter Guttman + (DoD 5220.22-M)</source>
        <translation>Peter Guttman + (DoD 5220.22-M)</translation>
    </message>
    <message>
        <source>Unsecured Data: </source>
        <translation>Données non protégées : </translation>
    </message>
    <message>
        <source>Erasing free space data securely</source>
        <translation>Effacement sécurisé de l’espace libre</translation>
    </message>
    <message>
        <source>Elapsed Time:</source>
        <translation>Temps écoulé :</translation>
    </message>
    <message>
        <source>Erased Data:</source>
        <translation>Données effacées :</translation>
    </message>
    <message>
        <source>Free Space:</source>
        <translation>Espace libre :</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cloud Control </source>
        <translation>Contrôle cloud </translation>
    </message>
    <message>
        <source>Cloud Control</source>
        <translation>Contrôle cloud</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Ondrel More</source>
        <translation>Ondrel More</translation>
    </message>
    <message>
        <source>Alert!!</source>
        <translation>Attention !</translation>
    </message>
    <message>
        <source>Are you sure , you want to erase the free space of selected drive?</source>
        <translation>Voulez-vous vraiment effacer l’espace libre du lecteur sélectionné ?</translation>
    </message>
    <message>
        <source>YES</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>NO</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Please!! 
 Close all the files related to drive , as well as do not add any data to drive during process.</source>
        <translation>Important !
Fermez tous les fichiers de ce lecteur et n’y ajoutez aucune donnée pendant l’opération.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Unknown Error Occured</source>
        <translation>Une erreur inconnue s’est produite</translation>
    </message>
    <message>
        <source>Relaunch the application</source>
        <translation>Relancer l’application</translation>
    </message>
    <message>
        <source>Read only drive, please select other drives</source>
        <translation>Ce lecteur est en lecture seule. Veuillez en sélectionner un autre.</translation>
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
        <translation>L’effacement a été interrompu</translation>
    </message>
    <message>
        <source>Wiping process is On</source>
        <translation>Effacement en cours</translation>
    </message>
    <message>
        <source>Cancel wiping and then quit the application</source>
        <translation>Annulez l’effacement, puis quittez l’application.</translation>
    </message>
    <message>
        <source>Phase 1: Analyzing Data..</source>
        <translation>Phase 1 : analyse des données…</translation>
    </message>
    <message>
        <source>Phase 2: Securely Erasing Data..</source>
        <translation>Phase 2 : effacement sécurisé des données…</translation>
    </message>
    <message>
        <source>Please wait, finishing current process..</source>
        <translation>Veuillez patienter, fin de l’opération en cours…</translation>
    </message>
    <message>
        <source>Your admin successfuly completed
 Calvero on:%@</source>
        <translation>Votre administrateur a exécuté Calvero avec succès
sur : %@</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Get it now</source>
        <translation>Obtenir maintenant</translation>
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
        <translation>Lecteurs</translation>
    </message>
    <message>
        <source>Select a drive</source>
        <translation>Sélectionnez un lecteur</translation>
    </message>
    <message>
        <source>Mount Path :</source>
        <translation>Point de montage :</translation>
    </message>
    <message>
        <source>Fixed drive</source>
        <translation>Lecteur fixe</translation>
    </message>
    <message>
        <source>Removable drive</source>
        <translation>Lecteur amovible</translation>
    </message>
    <message>
        <source>Network drive</source>
        <translation>Lecteur réseau</translation>
    </message>
    <message>
        <source>No drives found</source>
        <translation>Aucun lecteur trouvé</translation>
    </message>
    <message>
        <source>Connect a drive, then press &quot;Reload Drives&quot;.</source>
        <translation>Connectez un lecteur, puis cliquez sur « Actualiser les lecteurs ».</translation>
    </message>
    <message>
        <source>Space to be erased: </source>
        <translation>Espace à effacer : </translation>
    </message>
    <message>
        <source>Passes: %1</source>
        <translation>Passes : %1</translation>
    </message>
    <message>
        <source>Writes nothing</source>
        <translation>N’écrit rien</translation>
    </message>
    <message>
        <source>Writes nothing: the free space is laid out and given back as it was.</source>
        <translation>N’écrit rien : l’espace libre est réservé, puis rendu tel quel.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>%1 of free space on %2 have been overwritten.</source>
        <translation>%1 d’espace libre sur %2 ont été écrasés.</translation>
    </message>
    <message>
        <source>Only %1 of %2 of free space on %3 have been overwritten. Deleted data may still be readable there.</source>
        <translation>Seuls %1 sur %2 d’espace libre sur %3 ont été écrasés. Des données supprimées peuvent encore y être lisibles.</translation>
    </message>
    <message>
        <source>Nothing was overwritten: this method writes no data.</source>
        <translation>Rien n’a été écrasé : cette méthode n’écrit aucune donnée.</translation>
    </message>
    <message>
        <source>Part of the free space of %1 could not be erased. Deleted data may still be readable there.</source>
        <translation>Une partie de l’espace libre de %1 n’a pas pu être effacée. Des données supprimées peuvent encore y être lisibles.</translation>
    </message>
    <message>
        <source>The free space has been erased, but &quot;%1&quot; could not be removed. Change the permissions and remove it, or erase the drive again.</source>
        <translation>L’espace libre a été effacé, mais « %1 » n’a pas pu être supprimé. Modifiez les autorisations et supprimez-le, ou effacez de nouveau le lecteur.</translation>
    </message>
    <message>
        <source>The drive %1 was removed or has failed. Deleted data may still be readable on it.</source>
        <translation>Le lecteur %1 a été retiré ou est tombé en panne. Des données supprimées peuvent encore y être lisibles.</translation>
    </message>
    <message>
        <source>The storage behind the drive %1 is full or failing. Make room there before the drive is removed. Deleted data may still be readable on the drive.</source>
        <translation>Le support sur lequel repose le lecteur %1 est plein ou défaillant. Libérez-y de la place avant de retirer le lecteur. Des données supprimées peuvent encore être lisibles sur le lecteur.</translation>
    </message>
    <message>
        <source>There is no drive to erase.</source>
        <translation>Il n’y a aucun lecteur dont l’espace libre puisse être effacé.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or ask its administrator.</source>
        <translation>Vous n’êtes pas autorisé à écrire sur ce lecteur. Sélectionnez un autre lecteur ou adressez-vous à son administrateur.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. Select another drive, or run this command in a terminal to erase its free space as administrator.</source>
        <translation>Vous n’êtes pas autorisé à écrire sur ce lecteur. Sélectionnez un autre lecteur ou exécutez cette commande dans un terminal pour effacer son espace libre en tant qu’administrateur.</translation>
    </message>
    <message>
        <source>You are not allowed to write to this drive. A user can change the program %1, so it must not be started as administrator. Have the administrator install Calvero, then try again.</source>
        <translation>Vous n’êtes pas autorisé à écrire sur ce lecteur. Un utilisateur peut modifier le programme %1 ; il ne doit donc pas être lancé en tant qu’administrateur. Faites installer Calvero par l’administrateur, puis réessayez.</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>Copier la commande</translation>
    </message>
    <message>
        <source>This drive is being erased by another process. Wait until it has ended, or select another drive.</source>
        <translation>L’espace libre de ce lecteur est en cours d’effacement par un autre processus. Attendez qu’il se termine ou sélectionnez un autre lecteur.</translation>
    </message>
    <message>
        <source>This drive is not connected any more. Press &quot;Reload Drives&quot;.</source>
        <translation>Ce lecteur n’est plus connecté. Cliquez sur « Actualiser les lecteurs ».</translation>
    </message>
    <message>
        <source>This drive does not respond. Check its connection, then press &quot;Reload Drives&quot;.</source>
        <translation>Ce lecteur ne répond pas. Vérifiez sa connexion, puis cliquez sur « Actualiser les lecteurs ».</translation>
    </message>
    <message>
        <source>The storage below this drive has less room than the drive shows. Make room there, or select another drive.</source>
        <translation>Le stockage sur lequel repose ce lecteur a moins de place que ce que le lecteur affiche. Libérez-y de la place ou sélectionnez un autre lecteur.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that was not made by Calvero. Rename or remove it, then try again.</source>
        <translation>Ce lecteur contient un dossier « %1 » qui n’a pas été créé par Calvero. Renommez-le ou supprimez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>This drive holds a folder &quot;%1&quot; that an earlier run left and that is locked. Unlock or remove it, then try again.</source>
        <translation>Ce lecteur contient un dossier « %1 », laissé par une opération précédente et verrouillé. Déverrouillez-le ou supprimez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>Continues to the erase methods.</source>
        <translation>Passe aux méthodes d’effacement.</translation>
    </message>
    <message>
        <source>Returns to the drives.</source>
        <translation>Revient aux lecteurs.</translation>
    </message>
    <message>
        <source>Starts erasing, after a question.</source>
        <translation>Lance l’effacement après confirmation.</translation>
    </message>
    <message>
        <source>Stops erasing and removes the temporary files.</source>
        <translation>Arrête l’effacement et supprime les fichiers temporaires.</translation>
    </message>
    <message>
        <source>Lists the connected drives again.</source>
        <translation>Actualise la liste des lecteurs connectés.</translation>
    </message>
    <message>
        <source>Closes Calvero and opens Ondrel MORE.</source>
        <translation>Ferme Calvero et ouvre Ondrel MORE.</translation>
    </message>
    <message>
        <source>Opens the help page in the web browser.</source>
        <translation>Ouvre la page d’aide dans le navigateur web.</translation>
    </message>
    <message>
        <source>Opens the cloud portal in the web browser.</source>
        <translation>Ouvre le portail cloud dans le navigateur web.</translation>
    </message>
    <message>
        <source>Opens the page in the web browser.</source>
        <translation>Ouvre la page dans le navigateur web.</translation>
    </message>
    <message>
        <source>Choose the drive whose free space is to be erased.</source>
        <translation>Choisissez le lecteur dont l’espace libre doit être effacé.</translation>
    </message>
</context>
</TS>
