<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Copyright © %1 Corvana Inc.\nAll rights reserved.</source>
        <translation>Copyright © %1 Corvana Inc.\nAlle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>Once log out, connection from this device will be cut off. Are you sure you want to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Log out</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Unable to perform this action because the network connection is unstable or the service is busy. Try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup task started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup task was complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup task was canceled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup task failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup task was partially successful.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scheduled backup didn&apos;t start because the device is already backing up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Retrieving device information.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting to upload device information.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device information successfully uploaded.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to upload the device information. Please check the network settings and try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The agent failed to be updated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Successfully executed the pre-freeze script.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Successfully executed the post-thaw script.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script files on the client device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script file on Nimbra Backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The size of the pre-freeze/post-thaw script files exceeds the 32 KB limit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to upload the script output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No available volume to take snapshot for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup task failed because the device time was incorrect. Sync the device time and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup task was canceled because Nimbra Backup agent restarted. Possible reasons: Device reboot or unexpected shutdown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup cannot continue until the System Management Controller (SMC) of this Mac is reset. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insufficient storage on local disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No permissions to the local disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insufficient directory quota.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local file system is read-only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local disk I/O error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local backup file corrupted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra Backup storage limit already reached.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insufficient system memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to connect to the Nimbra Backup server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DNS resolution failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network socket couldn&apos;t receive data because the Nimbra Backup server is busy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account or password authentication failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The backup agent requires an update. Download the latest version of the agent from the Nimbra Backup console.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unauthorized account. Contact your Nimbra Backup administrator and sign in again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup task triggered by {trigger_event}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup task {task} is not allowed to be run during this period of time due to the configured backup window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Task {task} was canceled by the configured backup window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Task {task} was resumed due to the configured backup window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore task started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore task was canceled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore task was complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore task failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore task was partially complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account %1 was signed in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore path {path} restored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The path {path} was skipped (path already exists).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The path {path} was overwritten (path already exists).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to create the restore path {path}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsupported file type: {path}</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No permission to restore path {path} because it might be protected by operating system settings, anti-virus software, or others.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to restore path {path}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to restore the metadata of {path}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting to take a snapshot for {volume_name}.</source>
        <translation>Snapshot für {volume_name} wird erstellt.</translation>
    </message>
    <message>
        <source>Snapshot for {volume_name} successfully taken.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting to take a snapshot set for {volume_name}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot set for {volume_name} successfully taken.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to take snapshot set for {volume_name}. Retrying.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading and uploading the volume content of {volume_name}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Successfully read the content of volume {volume_name}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to read and upload the volume content of {volume_name}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to find the snapshot of {volume_name}. The snapshot might be deleted by the operating system, third-party applications, or other reasons. Please try to back up again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported dynamic volume type)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported file system type)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to back up {volume_name}. (Reason: invalid function, Error Code: {error_code}) Please contact Corvana Technical Support for assistance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open {volume_name}. Contact Corvana Technical Support for assistance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the device is busy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terminated the pre-freeze script {script_result_path} because it timed out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terminated the post-thaw script {script_result_path} because it timed out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}. Make sure the Volume Shadow Copy service is running and the volume has enough free space. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors, then back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open the snapshot of {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because of an invalid function. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The specified volume in the %1 policy wasn&apos;t backed up. It doesn&apos;t exist on the device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file system check of {volume_name} found errors. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inode {inode_number} on {volume_name} is corrupted. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because folder {parent_path} does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because it conflicts with the file in {parent_path}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{volume_name} has a bad cluster in {interval_start} - {interval_end}. The interval is skipped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of pre-freeze script {script_result_path}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Cannot execute the pre-freeze script {script_result_path}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of post-thaw script {script_result_path}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Unable to execute the post-thaw script {script_result_path}.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported removable media.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: External hard drive is excluded in the task.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk bus type.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk type.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unidentified file system.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unable to obtain volume information.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to find the shadow copy of {volume_name}. The operating system might have deleted it. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts creating Nimbra Backup data volume.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra Backup needs Full Disk Access to take snapshots. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Restart your Mac and run First Aid to repair the disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow the system extension of Nimbra Backup in Privacy &amp; Security to continue backing up. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot find {volume_name} data on Nimbra Backup data volume. Performing full backup instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot find snapshot of {volume_name}. Performing full backup instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Performing full backup instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts taking snapshots.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finished taking snapshots.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup failed because the backup account on this Mac could not be authenticated. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to mount {volume_name}. (Reason: Encrypted volumes cannot be mounted.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup failed because Nimbra Backup has no Full Disk Access. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot mount the default backup volume. Restart your Mac.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep all versions within the last %1 months</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Idle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Successful</source>
        <translation>Erfolgreich</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Partially Successful</source>
        <translation>Teilweise erfolgreich</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restoring...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View backup status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign In Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This application is already opened by another user.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have used up your quota of capacity. Please contact the administrator for extra space.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This device was removed from the account.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Agent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing for backup...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to upgrade backup service. Please contact Corvana Technical Support for assistance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upgrading backup service database. Please keep this window open if you wish to launch the agent automatically after upgrade.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You&apos;re all set for backup. Do you want to back up this device right now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Open Nimbra Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closing this application will not stop the backup service.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The service cannot be activated normally. Please reboot your device and try again. If the problem remains, please contact Corvana Technical Support.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup successful</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your device was backed up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra Backup %1</source>
        <translation>Nimbra Backup %1</translation>
    </message>
    <message>
        <source>Check the activity logs in the agent for more information.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Storage is almost full</source>
        <translation>Speicher fast voll</translation>
    </message>
    <message>
        <source>You have used 85% of your total storage (%1).</source>
        <translation>Sie haben 85 % Ihres gesamten Speichers (%1) belegt.</translation>
    </message>
    <message>
        <source>Storage is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have used 95% of your total storage (%1).</source>
        <translation type="unfinished">Sie haben 85 % Ihres gesamten Speichers (%1) belegt. {95%?} {1)?}</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This device has been removed from the account. Go to the Nimbra Backup console for more information.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable Full Disk Access in Privacy &amp; Security.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System extension required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to Privacy &amp; Security and enable system extensions for Nimbra Backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra Backup console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recovery Portal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message>
        <source>%1 minute ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>vor %1 Minuten</translation>
    </message>
    <message>
        <source>%1 hour ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 day ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Est. finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; processed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No backup schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup by event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automated daily backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Activity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last backup:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next backup:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protect your device with Nimbra Backup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nimbra Backup provides protection for the entire device. All data, applications, and system configurations will be backed up according to your schedules.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let&apos;s Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign in on your browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>We&apos;ve opened a new browser tab for you to sign in. Then, we will guide you to the next step.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting to server...&#xa0;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server connection error. Try again later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The current version of the agent is older. Please update the agent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login status error. Make sure you installed the latest version of the agent and sign in again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid certificate. Run Windows Update to renew your certificate. Refer to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;Knowledge Center&lt;/a&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This device conflicts with another device. Sign in again if you want to back up this device instead of the other one. Please note that the other device will no longer be backed up after that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication failed. Sign out from the agent and sign in again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device time incorrect. Sync the device time before the next backup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You haven&apos;t set up the Nimbra Encryption Key. You must set it up on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt; before starting to back up devices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You haven&apos;t finish setting the Nimbra Encryption Key. Go to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup console&lt;/a&gt; to complete the setup.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Almost there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Backup Policy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backup scope</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More details can be found on the console.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default policy (personal computer)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default policy (physical server)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>We will back up this device right after finishing setting up the agent. You can configure backup policies on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>North America - Seattle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Europe - Frankfurt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>APAC - Taiwan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entire device (external drives included)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entire device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specified volumes (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Backed up daily at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weekly (%2 every %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device power on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By event: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum: 5; Maximum: 9,999</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mbps (%1 MB/s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit upload speed within a specific time range every day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Custom)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Data upload speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit the upload speed to prevent backups from taking up your bandwidth. The speed limit will be applied within minutes after you save the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt; every day. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt;. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Privacy Statement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error&#xa0;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Knowledge Center</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
