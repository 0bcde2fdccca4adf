<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Copyright © %1 Corvana Inc.\nAll rights reserved.</source>
        <translation>Copyright © %1 Corvana Inc.\nTous droits réservés.</translation>
    </message>
    <message>
        <source>Once log out, connection from this device will be cut off. Are you sure you want to continue?</source>
        <translation>Après la déconnexion, cet appareil ne sera plus connecté. Voulez-vous vraiment continuer ?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Log out</source>
        <translation>Se déconnecter</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Unable to perform this action because the network connection is unstable or the service is busy. Try again later.</source>
        <translation>Impossible d’effectuer cette action : la connexion réseau est instable ou le service est occupé. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Backup task started.</source>
        <translation>Sauvegarde démarrée.</translation>
    </message>
    <message>
        <source>Backup task was complete.</source>
        <translation>Sauvegarde terminée.</translation>
    </message>
    <message>
        <source>Backup task was canceled.</source>
        <translation>Sauvegarde annulée.</translation>
    </message>
    <message>
        <source>Backup task failed.</source>
        <translation>Échec de la sauvegarde.</translation>
    </message>
    <message>
        <source>Backup task was partially successful.</source>
        <translation>Sauvegarde partiellement réussie.</translation>
    </message>
    <message>
        <source>The scheduled backup didn&apos;t start because the device is already backing up.</source>
        <translation>La sauvegarde planifiée n’a pas démarré, car une sauvegarde de l’appareil est déjà en cours.</translation>
    </message>
    <message>
        <source>Retrieving device information.</source>
        <translation>Récupération des informations de l’appareil.</translation>
    </message>
    <message>
        <source>Starting to upload device information.</source>
        <translation>Envoi des informations de l’appareil.</translation>
    </message>
    <message>
        <source>Device information successfully uploaded.</source>
        <translation>Informations de l’appareil envoyées.</translation>
    </message>
    <message>
        <source>Unable to upload the device information. Please check the network settings and try again later.</source>
        <translation>Impossible d’envoyer les informations de l’appareil. Vérifiez les paramètres réseau et réessayez plus tard.</translation>
    </message>
    <message>
        <source>The agent failed to be updated.</source>
        <translation>La mise à jour de l’agent a échoué.</translation>
    </message>
    <message>
        <source>Successfully executed the pre-freeze script.</source>
        <translation>Script pré-gel exécuté.</translation>
    </message>
    <message>
        <source>Successfully executed the post-thaw script.</source>
        <translation>Script post-dégel exécuté.</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script files on the client device.</source>
        <translation>Impossible d’accéder aux fichiers de script pré-gel/post-dégel sur l’appareil client.</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script file on Nimbra Backup.</source>
        <translation>Impossible d’accéder au fichier de script pré-gel/post-dégel sur Nimbra Backup.</translation>
    </message>
    <message>
        <source>The size of the pre-freeze/post-thaw script files exceeds the 32 KB limit.</source>
        <translation>La taille des fichiers de script pré-gel/post-dégel dépasse la limite de 32 Ko.</translation>
    </message>
    <message>
        <source>Unable to upload the script output.</source>
        <translation>Impossible d’envoyer la sortie du script.</translation>
    </message>
    <message>
        <source>No available volume to take snapshot for.</source>
        <translation>Aucun volume disponible pour un instantané.</translation>
    </message>
    <message>
        <source>Backup task failed because the device time was incorrect. Sync the device time and try again.</source>
        <translation>Échec de la sauvegarde : l’heure de l’appareil était incorrecte. Synchronisez l’heure de l’appareil et réessayez.</translation>
    </message>
    <message>
        <source>Backup task was canceled because Nimbra Backup agent restarted. Possible reasons: Device reboot or unexpected shutdown.</source>
        <translation>Sauvegarde annulée, car l’agent Nimbra Backup a redémarré. Causes possibles : redémarrage de l’appareil ou arrêt inattendu.</translation>
    </message>
    <message>
        <source>Backup cannot continue until the System Management Controller (SMC) of this Mac is reset. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>La sauvegarde ne peut pas continuer tant que le contrôleur de gestion du système (SMC) de ce Mac n’est pas réinitialisé. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;Comment faire&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Insufficient storage on local disk.</source>
        <translation>Espace insuffisant sur le disque local.</translation>
    </message>
    <message>
        <source>No permissions to the local disk.</source>
        <translation>Aucune autorisation sur le disque local.</translation>
    </message>
    <message>
        <source>Insufficient directory quota.</source>
        <translation>Quota de dossier insuffisant.</translation>
    </message>
    <message>
        <source>Local file system is read-only.</source>
        <translation>Le système de fichiers local est en lecture seule.</translation>
    </message>
    <message>
        <source>Local disk I/O error.</source>
        <translation>Erreur d’E/S du disque local.</translation>
    </message>
    <message>
        <source>Local backup file corrupted.</source>
        <translation>Fichier de sauvegarde local endommagé.</translation>
    </message>
    <message>
        <source>Nimbra Backup storage limit already reached.</source>
        <translation>La limite de stockage Nimbra Backup est déjà atteinte.</translation>
    </message>
    <message>
        <source>Insufficient system memory.</source>
        <translation>Mémoire système insuffisante.</translation>
    </message>
    <message>
        <source>Unable to connect to the Nimbra Backup server.</source>
        <translation>Impossible de se connecter au serveur Nimbra Backup.</translation>
    </message>
    <message>
        <source>DNS resolution failed.</source>
        <translation>Échec de la résolution DNS.</translation>
    </message>
    <message>
        <source>Network socket couldn&apos;t receive data because the Nimbra Backup server is busy.</source>
        <translation>Aucune donnée reçue, car le serveur Nimbra Backup est occupé.</translation>
    </message>
    <message>
        <source>Account or password authentication failed.</source>
        <translation>Échec de l’authentification du compte ou du mot de passe.</translation>
    </message>
    <message>
        <source>The backup agent requires an update. Download the latest version of the agent from the Nimbra Backup console.</source>
        <translation>L’agent de sauvegarde doit être mis à jour. Téléchargez sa dernière version depuis la console Nimbra Backup.</translation>
    </message>
    <message>
        <source>Unauthorized account. Contact your Nimbra Backup administrator and sign in again.</source>
        <translation>Compte non autorisé. Contactez votre administrateur Nimbra Backup et reconnectez-vous.</translation>
    </message>
    <message>
        <source>Backup task triggered by {trigger_event}.</source>
        <translation>Sauvegarde déclenchée par {trigger_event}.</translation>
    </message>
    <message>
        <source>Backup task {task} is not allowed to be run during this period of time due to the configured backup window.</source>
        <translation>La sauvegarde {task} ne peut pas s’exécuter à cette heure en raison de la plage de sauvegarde configurée.</translation>
    </message>
    <message>
        <source>Task {task} was canceled by the configured backup window.</source>
        <translation>La tâche {task} a été annulée par la plage de sauvegarde configurée.</translation>
    </message>
    <message>
        <source>Task {task} was resumed due to the configured backup window.</source>
        <translation>La tâche {task} a repris selon la plage de sauvegarde configurée.</translation>
    </message>
    <message>
        <source>Restore task started.</source>
        <translation>Restauration démarrée.</translation>
    </message>
    <message>
        <source>Restore task was canceled.</source>
        <translation>Restauration annulée.</translation>
    </message>
    <message>
        <source>Restore task was complete.</source>
        <translation>Restauration terminée.</translation>
    </message>
    <message>
        <source>Restore task failed.</source>
        <translation>Échec de la restauration.</translation>
    </message>
    <message>
        <source>Restore task was partially complete.</source>
        <translation>Restauration partiellement terminée.</translation>
    </message>
    <message>
        <source>Account %1 was signed in.</source>
        <translation>Le compte %1 s’est connecté.</translation>
    </message>
    <message>
        <source>Restore path {path} restored.</source>
        <translation>Chemin {path} restauré.</translation>
    </message>
    <message>
        <source>The path {path} was skipped (path already exists).</source>
        <translation>Le chemin {path} a été ignoré (il existe déjà).</translation>
    </message>
    <message>
        <source>The path {path} was overwritten (path already exists).</source>
        <translation>Le chemin {path} a été remplacé (il existait déjà).</translation>
    </message>
    <message>
        <source>Failed to create the restore path {path}.</source>
        <translation>Impossible de créer le chemin de restauration {path}.</translation>
    </message>
    <message>
        <source>Unsupported file type: {path}</source>
        <translation>Type de fichier non pris en charge : {path}</translation>
    </message>
    <message>
        <source>No permission to restore path {path} because it might be protected by operating system settings, anti-virus software, or others.</source>
        <translation>Aucune autorisation pour restaurer {path} : il est peut-être protégé par les paramètres du système, un antivirus ou autre.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to restore path {path}.</source>
        <translation>Erreur {error_code} : impossible de restaurer le chemin {path}.</translation>
    </message>
    <message>
        <source>Failed to restore the metadata of {path}.</source>
        <translation>Impossible de restaurer les métadonnées de {path}.</translation>
    </message>
    <message>
        <source>Starting to take a snapshot for {volume_name}.</source>
        <translation>Création d’un instantané de {volume_name}.</translation>
    </message>
    <message>
        <source>Snapshot for {volume_name} successfully taken.</source>
        <translation>Instantané de {volume_name} créé.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}.</source>
        <translation>Erreur {error_code} : échec de l’instantané de {volume_name}.</translation>
    </message>
    <message>
        <source>Starting to take a snapshot set for {volume_name}.</source>
        <translation>Création d’un jeu d’instantanés de {volume_name}.</translation>
    </message>
    <message>
        <source>Snapshot set for {volume_name} successfully taken.</source>
        <translation>Jeu d’instantanés de {volume_name} créé.</translation>
    </message>
    <message>
        <source>Failed to take snapshot set for {volume_name}. Retrying.</source>
        <translation>Impossible de créer le jeu d’instantanés de {volume_name}. Nouvelle tentative.</translation>
    </message>
    <message>
        <source>Reading and uploading the volume content of {volume_name}.</source>
        <translation>Lecture et envoi du contenu du volume {volume_name}.</translation>
    </message>
    <message>
        <source>Successfully read the content of volume {volume_name}.</source>
        <translation>Contenu du volume {volume_name} lu.</translation>
    </message>
    <message>
        <source>Failed to read and upload the volume content of {volume_name}.</source>
        <translation>Impossible de lire et d’envoyer le contenu du volume {volume_name}.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors.</source>
        <translation>Erreur {error_code} : impossible de lire l’instantané. Vérifiez et corrigez les erreurs du disque.</translation>
    </message>
    <message>
        <source>Unable to find the snapshot of {volume_name}. The snapshot might be deleted by the operating system, third-party applications, or other reasons. Please try to back up again.</source>
        <translation>Instantané de {volume_name} introuvable. Il a peut-être été supprimé par le système d’exploitation, une application tierce ou pour une autre raison. Relancez la sauvegarde.</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported dynamic volume type)</source>
        <translation>{volume_name} ne sera pas sauvegardé. (Raison : type de volume dynamique non pris en charge)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported file system type)</source>
        <translation>{volume_name} ne sera pas sauvegardé. (Raison : système de fichiers non pris en charge)</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions.</source>
        <translation>Erreur {error_code} : sauvegarde de {volume_name} impossible, accès refusé. Vérifiez les autorisations des instantanés.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>Erreur {error_code} : sauvegarde de {volume_name} impossible, secteur introuvable. Contactez l’assistance technique Corvana.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>Erreur {error_code} : sauvegarde de {volume_name} impossible, chemin introuvable. Contactez l’assistance technique Corvana.</translation>
    </message>
    <message>
        <source>Failed to back up {volume_name}. (Reason: invalid function, Error Code: {error_code}) Please contact Corvana Technical Support for assistance.</source>
        <translation>Impossible de sauvegarder {volume_name}. (Raison : fonction non valide, code d’erreur : {error_code}) Contactez l’assistance technique Corvana.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open {volume_name}. Contact Corvana Technical Support for assistance.</source>
        <translation>Erreur {error_code} : impossible d’ouvrir {volume_name}. Contactez l’assistance technique Corvana.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the device is busy.</source>
        <translation>Erreur {error_code} : sauvegarde de {volume_name} impossible, appareil occupé.</translation>
    </message>
    <message>
        <source>Terminated the pre-freeze script {script_result_path} because it timed out.</source>
        <translation>Script pré-gel {script_result_path} arrêté : délai dépassé.</translation>
    </message>
    <message>
        <source>Terminated the post-thaw script {script_result_path} because it timed out.</source>
        <translation>Script post-dégel {script_result_path} arrêté : délai dépassé.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}. Make sure the Volume Shadow Copy service is running and the volume has enough free space. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Erreur {error_code} : échec de l’instantané de {volume_name}. Vérifiez que le service Cliché instantané de volume est actif et que le volume a assez d’espace libre. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors, then back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Erreur {error_code} : impossible de lire l’instantané. Corrigez les erreurs du disque, puis relancez la sauvegarde. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open the snapshot of {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Erreur {error_code} : instantané de {volume_name} non ouvert. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Erreur {error_code} : sauvegarde de {volume_name} impossible, accès refusé. Vérifiez les autorisations des instantanés. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Erreur {error_code} : sauvegarde de {volume_name} impossible, secteur introuvable. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Erreur {error_code} : sauvegarde de {volume_name} impossible, chemin introuvable. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because of an invalid function. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Erreur {error_code} : sauvegarde de {volume_name} impossible, fonction non valide. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>The specified volume in the %1 policy wasn&apos;t backed up. It doesn&apos;t exist on the device.</source>
        <translation>Le volume indiqué dans la stratégie %1 n’a pas été sauvegardé. Il n’existe pas sur l’appareil.</translation>
    </message>
    <message>
        <source>The file system check of {volume_name} found errors. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>La vérification du système de fichiers de {volume_name} a détecté des erreurs. Réparez le volume et relancez la sauvegarde. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Inode {inode_number} on {volume_name} is corrupted. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>L’inode {inode_number} de {volume_name} est endommagé. Réparez le volume et relancez la sauvegarde. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because folder {parent_path} does not exist.</source>
        <translation>Impossible de créer le chemin de restauration {path} : le dossier {parent_path} n’existe pas.</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because it conflicts with the file in {parent_path}.</source>
        <translation>Impossible de créer le chemin de restauration {path} : conflit avec le fichier de {parent_path}.</translation>
    </message>
    <message>
        <source>{volume_name} has a bad cluster in {interval_start} - {interval_end}. The interval is skipped.</source>
        <translation>{volume_name} : cluster défectueux dans {interval_start} - {interval_end}. Intervalle ignoré.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of pre-freeze script {script_result_path}.</source>
        <translation>Code de sortie {exit_code} : échec du script pré-gel {script_result_path} ignoré.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Cannot execute the pre-freeze script {script_result_path}.</source>
        <translation>Code de sortie {exit_code} : impossible d’exécuter le script pré-gel {script_result_path}.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of post-thaw script {script_result_path}.</source>
        <translation>Code de sortie {exit_code} : échec du script post-dégel {script_result_path} ignoré.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Unable to execute the post-thaw script {script_result_path}.</source>
        <translation>Code de sortie {exit_code} : impossible d’exécuter le script post-dégel {script_result_path}.</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported removable media.)</source>
        <translation>{volume_name} ne sera pas sauvegardé. (Raison : support amovible non pris en charge.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: External hard drive is excluded in the task.)</source>
        <translation>{volume_name} ne sera pas sauvegardé. (Raison : les disques externes sont exclus de la tâche.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk bus type.)</source>
        <translation>{volume_name} ne sera pas sauvegardé. (Raison : type de bus de disque non pris en charge.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk type.)</source>
        <translation>{volume_name} ne sera pas sauvegardé. (Raison : type de disque non pris en charge.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system.)</source>
        <translation>{volume_name} ne sera pas sauvegardé. (Raison : système de fichiers non pris en charge.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unidentified file system.)</source>
        <translation>{volume_name} ne sera pas sauvegardé. (Raison : système de fichiers non identifié.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unable to obtain volume information.)</source>
        <translation>{volume_name} ne sera pas sauvegardé. (Raison : informations du volume indisponibles.)</translation>
    </message>
    <message>
        <source>Unable to find the shadow copy of {volume_name}. The operating system might have deleted it. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Cliché instantané de {volume_name} introuvable. Le système d’exploitation l’a peut-être supprimé. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Starts creating Nimbra Backup data volume.</source>
        <translation>Création du volume de données Nimbra Backup.</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system)</source>
        <translation>{volume_name} ne sera pas sauvegardé. (Raison : système de fichiers non pris en charge)</translation>
    </message>
    <message>
        <source>Nimbra Backup needs Full Disk Access to take snapshots. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Nimbra Backup a besoin de l’accès complet au disque pour créer des instantanés. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Comment l’autoriser&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Échec d’asr (Apple Software Restore) sur {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Restart your Mac and run First Aid to repair the disk.</source>
        <translation>Échec d’asr (Apple Software Restore) sur {volume_name}. Redémarrez votre Mac et réparez le disque avec S.O.S.</translation>
    </message>
    <message>
        <source>Allow the system extension of Nimbra Backup in Privacy &amp; Security to continue backing up. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>Autorisez l’extension système de Nimbra Backup dans Confidentialité et sécurité pour poursuivre la sauvegarde. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;Comment faire&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot find {volume_name} data on Nimbra Backup data volume. Performing full backup instead.</source>
        <translation>Données de {volume_name} introuvables sur le volume de données Nimbra Backup. Une sauvegarde complète est effectuée à la place.</translation>
    </message>
    <message>
        <source>Cannot find snapshot of {volume_name}. Performing full backup instead.</source>
        <translation>Instantané de {volume_name} introuvable. Une sauvegarde complète est effectuée à la place.</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Performing full backup instead.</source>
        <translation>Échec d’asr (Apple Software Restore) sur {volume_name}. Une sauvegarde complète est effectuée à la place.</translation>
    </message>
    <message>
        <source>Starts taking snapshots.</source>
        <translation>Création des instantanés.</translation>
    </message>
    <message>
        <source>Finished taking snapshots.</source>
        <translation>Instantanés créés.</translation>
    </message>
    <message>
        <source>Backup failed because the backup account on this Mac could not be authenticated. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Échec de la sauvegarde : le compte de sauvegarde de ce Mac n’a pas pu être authentifié. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;En savoir plus&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to mount {volume_name}. (Reason: Encrypted volumes cannot be mounted.)</source>
        <translation>Impossible de monter {volume_name}. (Raison : les volumes chiffrés ne peuvent pas être montés.)</translation>
    </message>
    <message>
        <source>Backup failed because Nimbra Backup has no Full Disk Access. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Échec de la sauvegarde : Nimbra Backup n’a pas l’accès complet au disque. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Comment l’autoriser&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot mount the default backup volume. Restart your Mac.</source>
        <translation>Impossible de monter le volume de sauvegarde par défaut. Redémarrez votre Mac.</translation>
    </message>
    <message>
        <source>Keep all versions within the last %1 months</source>
        <translation>Conserver toutes les versions des %1 derniers mois</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inactif</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sauvegarde en cours...</translation>
    </message>
    <message>
        <source>Successful</source>
        <translation>Réussie</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Partially Successful</source>
        <translation>Partiellement réussie</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Restoring...</source>
        <translation>Restauration en cours...</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Création d’un instantané...</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Annulée</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion...</translation>
    </message>
    <message>
        <source>View backup status</source>
        <translation>Afficher l’état de la sauvegarde</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>Sign In Again</source>
        <translation>Se reconnecter</translation>
    </message>
    <message>
        <source>This application is already opened by another user.</source>
        <translation>Cette application est déjà ouverte par un autre utilisateur.</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection and try again.</source>
        <translation>Erreur de connexion Internet. Vérifiez votre connexion Internet et réessayez.</translation>
    </message>
    <message>
        <source>You have used up your quota of capacity. Please contact the administrator for extra space.</source>
        <translation>Vous avez utilisé tout votre quota de stockage. Contactez l’administrateur pour obtenir plus d’espace.</translation>
    </message>
    <message>
        <source>This device was removed from the account.</source>
        <translation>Cet appareil a été supprimé du compte.</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>Agent</translation>
    </message>
    <message>
        <source>Nimbra Backup</source>
        <translation>Nimbra Backup</translation>
    </message>
    <message>
        <source>Preparing for backup...</source>
        <translation>Préparation de la sauvegarde...</translation>
    </message>
    <message>
        <source>Failed to upgrade backup service. Please contact Corvana Technical Support for assistance.</source>
        <translation>Échec de la mise à niveau du service de sauvegarde. Contactez l’assistance technique Corvana.</translation>
    </message>
    <message>
        <source>Upgrading backup service database. Please keep this window open if you wish to launch the agent automatically after upgrade.</source>
        <translation>Mise à niveau de la base de données du service de sauvegarde. Laissez cette fenêtre ouverte pour que l’agent démarre automatiquement ensuite.</translation>
    </message>
    <message>
        <source>You&apos;re all set for backup. Do you want to back up this device right now?</source>
        <translation>Tout est prêt pour la sauvegarde. Voulez-vous sauvegarder cet appareil maintenant ?</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Open Nimbra Backup</source>
        <translation>Ouvrir Nimbra Backup</translation>
    </message>
    <message>
        <source>Closing this application will not stop the backup service.</source>
        <translation>Fermer cette application n’arrête pas le service de sauvegarde.</translation>
    </message>
    <message>
        <source>The service cannot be activated normally. Please reboot your device and try again. If the problem remains, please contact Corvana Technical Support.</source>
        <translation>Le service ne peut pas démarrer normalement. Redémarrez votre appareil et réessayez. Si le problème persiste, contactez l’assistance technique Corvana.</translation>
    </message>
    <message>
        <source>Backup successful</source>
        <translation>Sauvegarde réussie</translation>
    </message>
    <message>
        <source>Your device was backed up.</source>
        <translation>Votre appareil a été sauvegardé.</translation>
    </message>
    <message>
        <source>Nimbra Backup %1</source>
        <translation>Nimbra Backup %1</translation>
    </message>
    <message>
        <source>Check the activity logs in the agent for more information.</source>
        <translation>Consultez le journal d’activité de l’agent pour en savoir plus.</translation>
    </message>
    <message>
        <source>Storage is almost full</source>
        <translation>Stockage presque plein</translation>
    </message>
    <message>
        <source>You have used 85% of your total storage (%1).</source>
        <translation>Vous avez utilisé 85 % de votre stockage total (%1).</translation>
    </message>
    <message>
        <source>Storage is full</source>
        <translation>Stockage plein</translation>
    </message>
    <message>
        <source>You have used 95% of your total storage (%1).</source>
        <translation>Vous avez utilisé 95 % de votre stockage total (%1).</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation>Appareil supprimé</translation>
    </message>
    <message>
        <source>This device has been removed from the account. Go to the Nimbra Backup console for more information.</source>
        <translation>Cet appareil a été supprimé du compte. Consultez la console Nimbra Backup pour en savoir plus.</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>Accès complet au disque requis</translation>
    </message>
    <message>
        <source>Enable Full Disk Access in Privacy &amp; Security.</source>
        <translation>Activez l’accès complet au disque dans Confidentialité et sécurité.</translation>
    </message>
    <message>
        <source>System extension required</source>
        <translation>Extension système requise</translation>
    </message>
    <message>
        <source>Go to Privacy &amp; Security and enable system extensions for Nimbra Backup.</source>
        <translation>Ouvrez Confidentialité et sécurité et activez les extensions système de Nimbra Backup.</translation>
    </message>
    <message>
        <source>Nimbra Backup console</source>
        <translation>Console Nimbra Backup</translation>
    </message>
    <message>
        <source>Recovery Portal</source>
        <translation>Portail de récupération</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>À l’instant</translation>
    </message>
    <message>
        <source>%1 minute ago</source>
        <translation>Il y a %1 minute</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Il y a %1 minutes</translation>
    </message>
    <message>
        <source>%1 hour ago</source>
        <translation>Il y a %1 heure</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Il y a %1 heures</translation>
    </message>
    <message>
        <source>%1 day ago</source>
        <translation>Il y a %1 jour</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Il y a %1 jours</translation>
    </message>
    <message>
        <source>Est. finish</source>
        <translation>Fin estimée</translation>
    </message>
    <message>
        <source>:</source>
        <translation> :</translation>
    </message>
    <message>
        <source>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; processed</source>
        <translation>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; traités</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Pas encore sauvegardé</translation>
    </message>
    <message>
        <source>No backup schedule</source>
        <translation>Aucune planification</translation>
    </message>
    <message>
        <source>Backup by event</source>
        <translation>Sauvegarde sur événement</translation>
    </message>
    <message>
        <source>Automated daily backup</source>
        <translation>Sauvegarde quotidienne automatique</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Activité</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Last backup:</source>
        <translation>Dernière sauvegarde :</translation>
    </message>
    <message>
        <source>Next backup:</source>
        <translation>Prochaine sauvegarde :</translation>
    </message>
    <message>
        <source>Protect your device with Nimbra Backup</source>
        <translation>Protégez votre appareil avec Nimbra Backup</translation>
    </message>
    <message>
        <source>Nimbra Backup provides protection for the entire device. All data, applications, and system configurations will be backed up according to your schedules.</source>
        <translation>Nimbra Backup protège l’ensemble de votre appareil. Toutes les données, applications et configurations système seront sauvegardées selon vos planifications.</translation>
    </message>
    <message>
        <source>Let&apos;s Start</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Sign in on your browser</source>
        <translation>Connectez-vous dans votre navigateur</translation>
    </message>
    <message>
        <source>We&apos;ve opened a new browser tab for you to sign in. Then, we will guide you to the next step.</source>
        <translation>Nous avons ouvert un nouvel onglet pour que vous vous connectiez. Nous vous guiderons ensuite vers l’étape suivante.</translation>
    </message>
    <message>
        <source>Connecting to server...&#xa0;</source>
        <translation>Connexion au serveur...&#xa0;</translation>
    </message>
    <message>
        <source>Server connection error. Try again later.</source>
        <translation>Erreur de connexion au serveur. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection.</source>
        <translation>Erreur de connexion Internet. Vérifiez votre connexion Internet.</translation>
    </message>
    <message>
        <source>The current version of the agent is older. Please update the agent.</source>
        <translation>Cette version de l’agent est obsolète. Mettez l’agent à jour.</translation>
    </message>
    <message>
        <source>Login status error. Make sure you installed the latest version of the agent and sign in again.</source>
        <translation>Erreur d’état de connexion. Vérifiez que la dernière version de l’agent est installée et reconnectez-vous.</translation>
    </message>
    <message>
        <source>Invalid certificate. Run Windows Update to renew your certificate. Refer to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;Knowledge Center&lt;/a&gt;.</source>
        <translation>Certificat non valide. Lancez Windows Update pour renouveler votre certificat. Consultez le &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;Centre de connaissances&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This device conflicts with another device. Sign in again if you want to back up this device instead of the other one. Please note that the other device will no longer be backed up after that.</source>
        <translation>Cet appareil est en conflit avec un autre appareil. Reconnectez-vous pour sauvegarder cet appareil à la place de l’autre. L’autre appareil ne sera alors plus sauvegardé.</translation>
    </message>
    <message>
        <source>Authentication failed. Sign out from the agent and sign in again.</source>
        <translation>Échec de l’authentification. Déconnectez-vous de l’agent et reconnectez-vous.</translation>
    </message>
    <message>
        <source>Device time incorrect. Sync the device time before the next backup.</source>
        <translation>Heure de l’appareil incorrecte. Synchronisez l’heure de l’appareil avant la prochaine sauvegarde.</translation>
    </message>
    <message>
        <source>You haven&apos;t set up the Nimbra Encryption Key. You must set it up on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt; before starting to back up devices.</source>
        <translation>Vous n’avez pas configuré la clé de chiffrement Nimbra. Configurez-la dans la &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt; avant de sauvegarder des appareils.</translation>
    </message>
    <message>
        <source>You haven&apos;t finish setting the Nimbra Encryption Key. Go to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup console&lt;/a&gt; to complete the setup.</source>
        <translation>La configuration de la clé de chiffrement Nimbra n’est pas terminée. Terminez-la dans la &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console Nimbra Backup&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>Almost there</source>
        <translation>Presque terminé</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Backup Policy</source>
        <translation>Stratégie de sauvegarde</translation>
    </message>
    <message>
        <source>Data Center</source>
        <translation>Centre de données</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Planification</translation>
    </message>
    <message>
        <source>Backup scope</source>
        <translation>Étendue de la sauvegarde</translation>
    </message>
    <message>
        <source>More details can be found on the console.</source>
        <translation>Plus de détails dans la console.</translation>
    </message>
    <message>
        <source>Default policy (personal computer)</source>
        <translation>Stratégie par défaut (ordinateur personnel)</translation>
    </message>
    <message>
        <source>Default policy (physical server)</source>
        <translation>Stratégie par défaut (serveur physique)</translation>
    </message>
    <message>
        <source>We will back up this device right after finishing setting up the agent. You can configure backup policies on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt;.</source>
        <translation>Nous sauvegarderons cet appareil dès la fin de la configuration de l’agent. Vous pouvez définir les stratégies de sauvegarde dans la &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>North America - Seattle</source>
        <translation>Amérique du Nord - Seattle</translation>
    </message>
    <message>
        <source>Europe - Frankfurt</source>
        <translation>Europe - Francfort</translation>
    </message>
    <message>
        <source>APAC - Taiwan</source>
        <translation>APAC - Taïwan</translation>
    </message>
    <message>
        <source>Entire device (external drives included)</source>
        <translation>Appareil entier (disques externes inclus)</translation>
    </message>
    <message>
        <source>Entire device</source>
        <translation>Appareil entier</translation>
    </message>
    <message>
        <source>System volume</source>
        <translation>Volume système</translation>
    </message>
    <message>
        <source>Specified volumes (%1)</source>
        <translation>Volumes choisis (%1)</translation>
    </message>
    <message>
        <source>Backed up daily at %1</source>
        <translation>Sauvegarde quotidienne à %1</translation>
    </message>
    <message>
        <source>Weekly (%2 every %1)</source>
        <translation>Hebdomadaire (%1 à %2)</translation>
    </message>
    <message>
        <source>Screen lock</source>
        <translation>Verrouillage de l’écran</translation>
    </message>
    <message>
        <source>Signout</source>
        <translation>Déconnexion</translation>
    </message>
    <message>
        <source>Device power on</source>
        <translation>Démarrage de l’appareil</translation>
    </message>
    <message>
        <source>By event: %1</source>
        <translation>Sur événement : %1</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Limiter à</translation>
    </message>
    <message>
        <source>Minimum: 5; Maximum: 9,999</source>
        <translation>Minimum : 5 ; maximum : 9 999</translation>
    </message>
    <message>
        <source>Mbps (%1 MB/s)</source>
        <translation>Mbit/s (%1 Mo/s)</translation>
    </message>
    <message>
        <source>Limit upload speed within a specific time range every day</source>
        <translation>Limiter la vitesse d’envoi sur une plage horaire chaque jour</translation>
    </message>
    <message>
        <source>(Custom)</source>
        <translation>(Personnalisé)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Data upload speed</source>
        <translation>Vitesse d’envoi des données</translation>
    </message>
    <message>
        <source>Limit the upload speed to prevent backups from taking up your bandwidth. The speed limit will be applied within minutes after you save the settings.</source>
        <translation>Limitez la vitesse d’envoi pour que les sauvegardes n’occupent pas toute votre bande passante. La limite s’applique quelques minutes après l’enregistrement.</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>Lendemain</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hours</source>
        <translation>Attention : l’envoi de 100 Go de données peut prendre jusqu’à %1 heures</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hour</source>
        <translation>Attention : l’envoi de 100 Go de données peut prendre jusqu’à %1 heure</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minute</source>
        <translation>Attention : l’envoi de 100 Go de données peut prendre jusqu’à %1 minute</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minutes</source>
        <translation>Attention : l’envoi de 100 Go de données peut prendre jusqu’à %1 minutes</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt; every day. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;Remarque :&lt;/span&gt;Votre organisation limite la vitesse d’envoi à &lt;b&gt;%1 Mbit/s entre %2 et %3&lt;/b&gt; chaque jour. Si vous définissez ici une autre limite, la plus basse des deux s’applique.</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt;. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;Remarque :&lt;/span&gt;Votre organisation limite la vitesse d’envoi à &lt;b&gt;%1 Mbit/s entre %2 et %3&lt;/b&gt;. Si vous définissez ici une autre limite, la plus basse des deux s’applique.</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message>
        <source>Privacy Statement</source>
        <translation>Déclaration de confidentialité</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Error&#xa0;</source>
        <translation>Erreur&#xa0;</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End at</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>min</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>heure</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>heures</translation>
    </message>
    <message>
        <source>day</source>
        <translation>jour</translation>
    </message>
    <message>
        <source>days</source>
        <translation>jours</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>En savoir plus</translation>
    </message>
    <message>
        <source>Knowledge Center</source>
        <translation>Centre de connaissances</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>Non configuré</translation>
    </message>
    <message>
        <source>Service not reachable</source>
        <translation>Service injoignable</translation>
    </message>
    <message>
        <source>Last backup: %1, %2</source>
        <translation>Dernière sauvegarde : %1, %2</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Sauvegarder maintenant</translation>
    </message>
    <message>
        <source>A backup is running</source>
        <translation>Une sauvegarde est en cours</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
</TS>
