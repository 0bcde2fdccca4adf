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
        <translation>Nach dem Abmelden wird die Verbindung dieses Geräts getrennt. Möchten Sie wirklich fortfahren?</translation>
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
        <translation>Die Aktion ist nicht möglich, weil die Netzwerkverbindung instabil oder der Dienst ausgelastet ist. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Backup task started.</source>
        <translation>Backup gestartet.</translation>
    </message>
    <message>
        <source>Backup task was complete.</source>
        <translation>Backup abgeschlossen.</translation>
    </message>
    <message>
        <source>Backup task was canceled.</source>
        <translation>Backup abgebrochen.</translation>
    </message>
    <message>
        <source>Backup task failed.</source>
        <translation>Backup fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Backup task was partially successful.</source>
        <translation>Backup teilweise erfolgreich.</translation>
    </message>
    <message>
        <source>The scheduled backup didn&apos;t start because the device is already backing up.</source>
        <translation>Das geplante Backup wurde nicht gestartet, weil das Gerät bereits gesichert wird.</translation>
    </message>
    <message>
        <source>Retrieving device information.</source>
        <translation>Geräteinformationen werden abgerufen.</translation>
    </message>
    <message>
        <source>Starting to upload device information.</source>
        <translation>Geräteinformationen werden hochgeladen.</translation>
    </message>
    <message>
        <source>Device information successfully uploaded.</source>
        <translation>Geräteinformationen erfolgreich hochgeladen.</translation>
    </message>
    <message>
        <source>Unable to upload the device information. Please check the network settings and try again later.</source>
        <translation>Die Geräteinformationen konnten nicht hochgeladen werden. Prüfen Sie die Netzwerkeinstellungen und versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The agent failed to be updated.</source>
        <translation>Der Agent konnte nicht aktualisiert werden.</translation>
    </message>
    <message>
        <source>Successfully executed the pre-freeze script.</source>
        <translation>Pre-Freeze-Skript erfolgreich ausgeführt.</translation>
    </message>
    <message>
        <source>Successfully executed the post-thaw script.</source>
        <translation>Post-Thaw-Skript erfolgreich ausgeführt.</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script files on the client device.</source>
        <translation>Kein Zugriff auf die Pre-Freeze-/Post-Thaw-Skriptdateien auf dem Clientgerät.</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script file on Nimbra Backup.</source>
        <translation>Kein Zugriff auf die Pre-Freeze-/Post-Thaw-Skriptdatei in Nimbra Backup.</translation>
    </message>
    <message>
        <source>The size of the pre-freeze/post-thaw script files exceeds the 32 KB limit.</source>
        <translation>Die Pre-Freeze-/Post-Thaw-Skriptdateien überschreiten die Größengrenze von 32 KB.</translation>
    </message>
    <message>
        <source>Unable to upload the script output.</source>
        <translation>Die Skriptausgabe konnte nicht hochgeladen werden.</translation>
    </message>
    <message>
        <source>No available volume to take snapshot for.</source>
        <translation>Kein Volume verfügbar, von dem ein Snapshot erstellt werden kann.</translation>
    </message>
    <message>
        <source>Backup task failed because the device time was incorrect. Sync the device time and try again.</source>
        <translation>Backup fehlgeschlagen, weil die Gerätezeit falsch war. Synchronisieren Sie die Gerätezeit und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Backup task was canceled because Nimbra Backup agent restarted. Possible reasons: Device reboot or unexpected shutdown.</source>
        <translation>Backup abgebrochen, weil der Nimbra Backup-Agent neu gestartet wurde. Mögliche Gründe: Neustart des Geräts oder unerwartetes Herunterfahren.</translation>
    </message>
    <message>
        <source>Backup cannot continue until the System Management Controller (SMC) of this Mac is reset. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>Das Backup kann erst fortgesetzt werden, wenn der System Management Controller (SMC) dieses Mac zurückgesetzt wurde. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;Anleitung&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Insufficient storage on local disk.</source>
        <translation>Nicht genügend Speicherplatz auf dem lokalen Datenträger.</translation>
    </message>
    <message>
        <source>No permissions to the local disk.</source>
        <translation>Keine Berechtigung für den lokalen Datenträger.</translation>
    </message>
    <message>
        <source>Insufficient directory quota.</source>
        <translation>Verzeichniskontingent nicht ausreichend.</translation>
    </message>
    <message>
        <source>Local file system is read-only.</source>
        <translation>Das lokale Dateisystem ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Local disk I/O error.</source>
        <translation>E/A-Fehler auf dem lokalen Datenträger.</translation>
    </message>
    <message>
        <source>Local backup file corrupted.</source>
        <translation>Lokale Backup-Datei beschädigt.</translation>
    </message>
    <message>
        <source>Nimbra Backup storage limit already reached.</source>
        <translation>Das Speicherlimit von Nimbra Backup ist bereits erreicht.</translation>
    </message>
    <message>
        <source>Insufficient system memory.</source>
        <translation>Nicht genügend Arbeitsspeicher.</translation>
    </message>
    <message>
        <source>Unable to connect to the Nimbra Backup server.</source>
        <translation>Keine Verbindung zum Nimbra Backup-Server möglich.</translation>
    </message>
    <message>
        <source>DNS resolution failed.</source>
        <translation>DNS-Auflösung fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Network socket couldn&apos;t receive data because the Nimbra Backup server is busy.</source>
        <translation>Es konnten keine Daten empfangen werden, weil der Nimbra Backup-Server ausgelastet ist.</translation>
    </message>
    <message>
        <source>Account or password authentication failed.</source>
        <translation>Authentifizierung von Konto oder Passwort fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The backup agent requires an update. Download the latest version of the agent from the Nimbra Backup console.</source>
        <translation>Der Backup-Agent muss aktualisiert werden. Laden Sie die neueste Version des Agents von der Nimbra Backup-Konsole herunter.</translation>
    </message>
    <message>
        <source>Unauthorized account. Contact your Nimbra Backup administrator and sign in again.</source>
        <translation>Nicht autorisiertes Konto. Wenden Sie sich an Ihren Nimbra Backup-Administrator und melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>Backup task triggered by {trigger_event}.</source>
        <translation>Backup ausgelöst durch {trigger_event}.</translation>
    </message>
    <message>
        <source>Backup task {task} is not allowed to be run during this period of time due to the configured backup window.</source>
        <translation>Backup {task} darf wegen des eingestellten Backup-Zeitfensters zu dieser Zeit nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>Task {task} was canceled by the configured backup window.</source>
        <translation>Aufgabe {task} wurde durch das eingestellte Backup-Zeitfenster abgebrochen.</translation>
    </message>
    <message>
        <source>Task {task} was resumed due to the configured backup window.</source>
        <translation>Aufgabe {task} wurde aufgrund des eingestellten Backup-Zeitfensters fortgesetzt.</translation>
    </message>
    <message>
        <source>Restore task started.</source>
        <translation>Wiederherstellung gestartet.</translation>
    </message>
    <message>
        <source>Restore task was canceled.</source>
        <translation>Wiederherstellung abgebrochen.</translation>
    </message>
    <message>
        <source>Restore task was complete.</source>
        <translation>Wiederherstellung abgeschlossen.</translation>
    </message>
    <message>
        <source>Restore task failed.</source>
        <translation>Wiederherstellung fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Restore task was partially complete.</source>
        <translation>Wiederherstellung teilweise abgeschlossen.</translation>
    </message>
    <message>
        <source>Account %1 was signed in.</source>
        <translation>Konto %1 wurde angemeldet.</translation>
    </message>
    <message>
        <source>Restore path {path} restored.</source>
        <translation>Pfad {path} wiederhergestellt.</translation>
    </message>
    <message>
        <source>The path {path} was skipped (path already exists).</source>
        <translation>Der Pfad {path} wurde übersprungen (Pfad existiert bereits).</translation>
    </message>
    <message>
        <source>The path {path} was overwritten (path already exists).</source>
        <translation>Der Pfad {path} wurde überschrieben (Pfad existiert bereits).</translation>
    </message>
    <message>
        <source>Failed to create the restore path {path}.</source>
        <translation>Der Wiederherstellungspfad {path} konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Unsupported file type: {path}</source>
        <translation>Nicht unterstützter Dateityp: {path}</translation>
    </message>
    <message>
        <source>No permission to restore path {path} because it might be protected by operating system settings, anti-virus software, or others.</source>
        <translation>Keine Berechtigung zum Wiederherstellen von {path}. Der Pfad ist möglicherweise durch Systemeinstellungen, Virenschutz oder Ähnliches geschützt.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to restore path {path}.</source>
        <translation>Fehlercode {error_code}: Pfad {path} konnte nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Failed to restore the metadata of {path}.</source>
        <translation>Die Metadaten von {path} konnten nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>Starting to take a snapshot for {volume_name}.</source>
        <translation>Snapshot für {volume_name} wird erstellt.</translation>
    </message>
    <message>
        <source>Snapshot for {volume_name} successfully taken.</source>
        <translation>Snapshot für {volume_name} erfolgreich erstellt.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}.</source>
        <translation>Fehlercode {error_code}: Snapshot für {volume_name} konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Starting to take a snapshot set for {volume_name}.</source>
        <translation>Snapshot-Satz für {volume_name} wird erstellt.</translation>
    </message>
    <message>
        <source>Snapshot set for {volume_name} successfully taken.</source>
        <translation>Snapshot-Satz für {volume_name} erfolgreich erstellt.</translation>
    </message>
    <message>
        <source>Failed to take snapshot set for {volume_name}. Retrying.</source>
        <translation>Snapshot-Satz für {volume_name} konnte nicht erstellt werden. Neuer Versuch läuft.</translation>
    </message>
    <message>
        <source>Reading and uploading the volume content of {volume_name}.</source>
        <translation>Inhalt des Volumes {volume_name} wird gelesen und hochgeladen.</translation>
    </message>
    <message>
        <source>Successfully read the content of volume {volume_name}.</source>
        <translation>Inhalt des Volumes {volume_name} erfolgreich gelesen.</translation>
    </message>
    <message>
        <source>Failed to read and upload the volume content of {volume_name}.</source>
        <translation>Inhalt des Volumes {volume_name} konnte nicht gelesen und hochgeladen werden.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors.</source>
        <translation>Fehlercode {error_code}: Der Snapshot konnte nicht gelesen werden. Prüfen und beheben Sie die Datenträgerfehler.</translation>
    </message>
    <message>
        <source>Unable to find the snapshot of {volume_name}. The snapshot might be deleted by the operating system, third-party applications, or other reasons. Please try to back up again.</source>
        <translation>Der Snapshot von {volume_name} wurde nicht gefunden. Er wurde möglicherweise vom Betriebssystem, von Drittanbieter-Apps oder aus anderen Gründen gelöscht. Starten Sie das Backup erneut.</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported dynamic volume type)</source>
        <translation>{volume_name} wird nicht gesichert. (Grund: nicht unterstützter dynamischer Volume-Typ)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported file system type)</source>
        <translation>{volume_name} wird nicht gesichert. (Grund: nicht unterstütztes Dateisystem)</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions.</source>
        <translation>Fehlercode {error_code}: {volume_name} konnte nicht gesichert werden, weil der Zugriff verweigert wurde. Prüfen Sie die Snapshot-Berechtigungen.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>Fehlercode {error_code}: {volume_name} konnte nicht gesichert werden, weil der Sektor nicht gefunden wurde. Wenden Sie sich an den technischen Support von Corvana.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>Fehlercode {error_code}: {volume_name} konnte nicht gesichert werden, weil der Pfad nicht gefunden wurde. Wenden Sie sich an den technischen Support von Corvana.</translation>
    </message>
    <message>
        <source>Failed to back up {volume_name}. (Reason: invalid function, Error Code: {error_code}) Please contact Corvana Technical Support for assistance.</source>
        <translation>{volume_name} konnte nicht gesichert werden. (Grund: ungültige Funktion, Fehlercode: {error_code}) Wenden Sie sich an den technischen Support von Corvana.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open {volume_name}. Contact Corvana Technical Support for assistance.</source>
        <translation>Fehlercode {error_code}: {volume_name} konnte nicht geöffnet werden. Wenden Sie sich an den technischen Support von Corvana.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the device is busy.</source>
        <translation>Fehlercode {error_code}: {volume_name} konnte nicht gesichert werden, weil das Gerät belegt ist.</translation>
    </message>
    <message>
        <source>Terminated the pre-freeze script {script_result_path} because it timed out.</source>
        <translation>Das Pre-Freeze-Skript {script_result_path} wurde wegen Zeitüberschreitung beendet.</translation>
    </message>
    <message>
        <source>Terminated the post-thaw script {script_result_path} because it timed out.</source>
        <translation>Das Post-Thaw-Skript {script_result_path} wurde wegen Zeitüberschreitung beendet.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}. Make sure the Volume Shadow Copy service is running and the volume has enough free space. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Fehlercode {error_code}: Snapshot für {volume_name} konnte nicht erstellt werden. Der Volumeschattenkopie-Dienst muss laufen und das Volume genug freien Speicher haben. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;Weitere Infos&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors, then back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Fehlercode {error_code}: Der Snapshot konnte nicht gelesen werden. Beheben Sie die Datenträgerfehler und starten Sie das Backup erneut. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;Weitere Infos&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open the snapshot of {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Fehlercode {error_code}: Snapshot von {volume_name} nicht geöffnet. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;Weitere Infos&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Fehlercode {error_code}: {volume_name} konnte nicht gesichert werden, weil der Zugriff verweigert wurde. Prüfen Sie die Snapshot-Berechtigungen. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;Weitere Infos&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Fehlercode {error_code}: {volume_name} konnte nicht gesichert werden, weil der Sektor nicht gefunden wurde. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;Weitere Infos&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Fehlercode {error_code}: {volume_name} konnte nicht gesichert werden, weil der Pfad nicht gefunden wurde. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;Weitere Infos&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because of an invalid function. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Fehlercode {error_code}: {volume_name} konnte wegen einer ungültigen Funktion nicht gesichert werden. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;Weitere Infos&lt;/a&gt;</translation>
    </message>
    <message>
        <source>The specified volume in the %1 policy wasn&apos;t backed up. It doesn&apos;t exist on the device.</source>
        <translation>Das in der Richtlinie %1 angegebene Volume wurde nicht gesichert. Es ist auf dem Gerät nicht vorhanden.</translation>
    </message>
    <message>
        <source>The file system check of {volume_name} found errors. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Die Dateisystemprüfung von {volume_name} hat Fehler gefunden. Reparieren Sie das Volume und starten Sie das Backup erneut. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;Weitere Infos&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Inode {inode_number} on {volume_name} is corrupted. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Inode {inode_number} auf {volume_name} ist beschädigt. Reparieren Sie das Volume und starten Sie das Backup erneut. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;Weitere Infos&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because folder {parent_path} does not exist.</source>
        <translation>Der Wiederherstellungspfad {path} konnte nicht erstellt werden, weil der Ordner {parent_path} nicht existiert.</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because it conflicts with the file in {parent_path}.</source>
        <translation>Der Wiederherstellungspfad {path} konnte nicht erstellt werden, weil er mit der Datei in {parent_path} in Konflikt steht.</translation>
    </message>
    <message>
        <source>{volume_name} has a bad cluster in {interval_start} - {interval_end}. The interval is skipped.</source>
        <translation>{volume_name} hat einen fehlerhaften Cluster in {interval_start} - {interval_end}. Der Bereich wird übersprungen.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of pre-freeze script {script_result_path}.</source>
        <translation>Exitcode {exit_code}: Fehlgeschlagene Ausführung des Pre-Freeze-Skripts {script_result_path} ignoriert.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Cannot execute the pre-freeze script {script_result_path}.</source>
        <translation>Exitcode {exit_code}: Das Pre-Freeze-Skript {script_result_path} kann nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of post-thaw script {script_result_path}.</source>
        <translation>Exitcode {exit_code}: Fehlgeschlagene Ausführung des Post-Thaw-Skripts {script_result_path} ignoriert.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Unable to execute the post-thaw script {script_result_path}.</source>
        <translation>Exitcode {exit_code}: Das Post-Thaw-Skript {script_result_path} kann nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported removable media.)</source>
        <translation>{volume_name} wird nicht gesichert. (Grund: Wechselmedien werden nicht unterstützt.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: External hard drive is excluded in the task.)</source>
        <translation>{volume_name} wird nicht gesichert. (Grund: Externe Festplatten sind von der Aufgabe ausgeschlossen.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk bus type.)</source>
        <translation>{volume_name} wird nicht gesichert. (Grund: Nicht unterstützter Festplatten-Bustyp.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk type.)</source>
        <translation>{volume_name} wird nicht gesichert. (Grund: Nicht unterstützter Festplattentyp.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system.)</source>
        <translation>{volume_name} wird nicht gesichert. (Grund: Nicht unterstütztes Dateisystem.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unidentified file system.)</source>
        <translation>{volume_name} wird nicht gesichert. (Grund: Unbekanntes Dateisystem.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unable to obtain volume information.)</source>
        <translation>{volume_name} wird nicht gesichert. (Grund: Volume-Informationen nicht abrufbar.)</translation>
    </message>
    <message>
        <source>Unable to find the shadow copy of {volume_name}. The operating system might have deleted it. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Die Schattenkopie von {volume_name} wurde nicht gefunden. Das Betriebssystem hat sie möglicherweise gelöscht. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;Weitere Infos&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Starts creating Nimbra Backup data volume.</source>
        <translation>Datenvolume von Nimbra Backup wird erstellt.</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system)</source>
        <translation>{volume_name} wird nicht gesichert. (Grund: Nicht unterstütztes Dateisystem)</translation>
    </message>
    <message>
        <source>Nimbra Backup needs Full Disk Access to take snapshots. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Nimbra Backup benötigt Festplattenvollzugriff, um Snapshots zu erstellen. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;So erlauben Sie ihn&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>asr (Apple Software Restore) auf {volume_name} fehlgeschlagen. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;Weitere Infos&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Restart your Mac and run First Aid to repair the disk.</source>
        <translation>asr (Apple Software Restore) konnte auf {volume_name} nicht ausgeführt werden. Starten Sie den Mac neu und reparieren Sie das Volume mit Erste Hilfe.</translation>
    </message>
    <message>
        <source>Allow the system extension of Nimbra Backup in Privacy &amp; Security to continue backing up. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>Erlauben Sie die Systemerweiterung von Nimbra Backup unter „Datenschutz &amp; Sicherheit“, um das Backup fortzusetzen. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;Anleitung&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot find {volume_name} data on Nimbra Backup data volume. Performing full backup instead.</source>
        <translation>Daten von {volume_name} wurden auf dem Datenvolume von Nimbra Backup nicht gefunden. Stattdessen wird ein vollständiges Backup erstellt.</translation>
    </message>
    <message>
        <source>Cannot find snapshot of {volume_name}. Performing full backup instead.</source>
        <translation>Snapshot von {volume_name} nicht gefunden. Stattdessen wird ein vollständiges Backup erstellt.</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Performing full backup instead.</source>
        <translation>asr (Apple Software Restore) konnte auf {volume_name} nicht ausgeführt werden. Stattdessen wird ein vollständiges Backup erstellt.</translation>
    </message>
    <message>
        <source>Starts taking snapshots.</source>
        <translation>Snapshots werden erstellt.</translation>
    </message>
    <message>
        <source>Finished taking snapshots.</source>
        <translation>Snapshots erstellt.</translation>
    </message>
    <message>
        <source>Backup failed because the backup account on this Mac could not be authenticated. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Backup fehlgeschlagen, weil das Backup-Konto auf diesem Mac nicht authentifiziert werden konnte. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;Weitere Infos&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to mount {volume_name}. (Reason: Encrypted volumes cannot be mounted.)</source>
        <translation>{volume_name} konnte nicht aktiviert werden. (Grund: Verschlüsselte Volumes können nicht aktiviert werden.)</translation>
    </message>
    <message>
        <source>Backup failed because Nimbra Backup has no Full Disk Access. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Backup fehlgeschlagen, weil Nimbra Backup keinen Festplattenvollzugriff hat. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;So erlauben Sie ihn&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot mount the default backup volume. Restart your Mac.</source>
        <translation>Das Standard-Backup-Volume kann nicht aktiviert werden. Starten Sie den Mac neu.</translation>
    </message>
    <message>
        <source>Keep all versions within the last %1 months</source>
        <translation>Alle Versionen der letzten %1 Monate behalten</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Backup läuft...</translation>
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
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Restoring...</source>
        <translation>Wird wiederhergestellt...</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Snapshot wird erstellt...</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbindung wird hergestellt...</translation>
    </message>
    <message>
        <source>View backup status</source>
        <translation>Backup-Status anzeigen</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Verbindung bearbeiten</translation>
    </message>
    <message>
        <source>Sign In Again</source>
        <translation>Erneut anmelden</translation>
    </message>
    <message>
        <source>This application is already opened by another user.</source>
        <translation>Diese Anwendung ist bereits von einem anderen Benutzer geöffnet.</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection and try again.</source>
        <translation>Fehler bei der Internetverbindung. Prüfen Sie Ihre Internetverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>You have used up your quota of capacity. Please contact the administrator for extra space.</source>
        <translation>Ihr Speicherkontingent ist aufgebraucht. Wenden Sie sich für zusätzlichen Speicher an Ihren Administrator.</translation>
    </message>
    <message>
        <source>This device was removed from the account.</source>
        <translation>Dieses Gerät wurde aus dem Konto entfernt.</translation>
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
        <translation>Backup wird vorbereitet...</translation>
    </message>
    <message>
        <source>Failed to upgrade backup service. Please contact Corvana Technical Support for assistance.</source>
        <translation>Der Backup-Dienst konnte nicht aktualisiert werden. Wenden Sie sich an den technischen Support von Corvana.</translation>
    </message>
    <message>
        <source>Upgrading backup service database. Please keep this window open if you wish to launch the agent automatically after upgrade.</source>
        <translation>Die Datenbank des Backup-Dienstes wird aktualisiert. Lassen Sie dieses Fenster geöffnet, wenn der Agent danach automatisch starten soll.</translation>
    </message>
    <message>
        <source>You&apos;re all set for backup. Do you want to back up this device right now?</source>
        <translation>Alles ist bereit für Ihr Backup. Möchten Sie dieses Gerät jetzt sichern?</translation>
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
        <translation>Nimbra Backup öffnen</translation>
    </message>
    <message>
        <source>Closing this application will not stop the backup service.</source>
        <translation>Das Schließen dieser Anwendung beendet den Backup-Dienst nicht.</translation>
    </message>
    <message>
        <source>The service cannot be activated normally. Please reboot your device and try again. If the problem remains, please contact Corvana Technical Support.</source>
        <translation>Der Dienst kann nicht normal gestartet werden. Starten Sie das Gerät neu und versuchen Sie es erneut. Besteht das Problem weiterhin, wenden Sie sich an den technischen Support von Corvana.</translation>
    </message>
    <message>
        <source>Backup successful</source>
        <translation>Backup erfolgreich</translation>
    </message>
    <message>
        <source>Your device was backed up.</source>
        <translation>Ihr Gerät wurde gesichert.</translation>
    </message>
    <message>
        <source>Nimbra Backup %1</source>
        <translation>Nimbra Backup %1</translation>
    </message>
    <message>
        <source>Check the activity logs in the agent for more information.</source>
        <translation>Weitere Informationen finden Sie im Aktivitätsprotokoll des Agents.</translation>
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
        <translation>Speicher voll</translation>
    </message>
    <message>
        <source>You have used 95% of your total storage (%1).</source>
        <translation>Sie haben 95 % Ihres gesamten Speichers (%1) belegt.</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation>Gerät entfernt</translation>
    </message>
    <message>
        <source>This device has been removed from the account. Go to the Nimbra Backup console for more information.</source>
        <translation>Dieses Gerät wurde aus dem Konto entfernt. Weitere Informationen finden Sie in der Nimbra Backup-Konsole.</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>Festplattenvollzugriff erforderlich</translation>
    </message>
    <message>
        <source>Enable Full Disk Access in Privacy &amp; Security.</source>
        <translation>Aktivieren Sie den Festplattenvollzugriff unter „Datenschutz &amp; Sicherheit“.</translation>
    </message>
    <message>
        <source>System extension required</source>
        <translation>Systemerweiterung erforderlich</translation>
    </message>
    <message>
        <source>Go to Privacy &amp; Security and enable system extensions for Nimbra Backup.</source>
        <translation>Öffnen Sie „Datenschutz &amp; Sicherheit“ und aktivieren Sie die Systemerweiterungen für Nimbra Backup.</translation>
    </message>
    <message>
        <source>Nimbra Backup console</source>
        <translation>Nimbra Backup-Konsole</translation>
    </message>
    <message>
        <source>Recovery Portal</source>
        <translation>Wiederherstellungsportal</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message>
        <source>%1 minute ago</source>
        <translation>vor %1 Minute</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>vor %1 Minuten</translation>
    </message>
    <message>
        <source>%1 hour ago</source>
        <translation>vor %1 Stunde</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>vor %1 Stunden</translation>
    </message>
    <message>
        <source>%1 day ago</source>
        <translation>vor %1 Tag</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>vor %1 Tagen</translation>
    </message>
    <message>
        <source>Est. finish</source>
        <translation>Voraussichtl. Ende</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; processed</source>
        <translation>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; verarbeitet</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Noch kein Backup</translation>
    </message>
    <message>
        <source>No backup schedule</source>
        <translation>Kein Backup-Zeitplan</translation>
    </message>
    <message>
        <source>Backup by event</source>
        <translation>Backup bei Ereignis</translation>
    </message>
    <message>
        <source>Automated daily backup</source>
        <translation>Automatisches tägliches Backup</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Aktivität</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Last backup:</source>
        <translation>Letztes Backup:</translation>
    </message>
    <message>
        <source>Next backup:</source>
        <translation>Nächstes Backup:</translation>
    </message>
    <message>
        <source>Protect your device with Nimbra Backup</source>
        <translation>Schützen Sie Ihr Gerät mit Nimbra Backup</translation>
    </message>
    <message>
        <source>Nimbra Backup provides protection for the entire device. All data, applications, and system configurations will be backed up according to your schedules.</source>
        <translation>Nimbra Backup schützt Ihr gesamtes Gerät. Alle Daten, Anwendungen und Systemeinstellungen werden nach Ihren Zeitplänen gesichert.</translation>
    </message>
    <message>
        <source>Let&apos;s Start</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>Sign in on your browser</source>
        <translation>Im Browser anmelden</translation>
    </message>
    <message>
        <source>We&apos;ve opened a new browser tab for you to sign in. Then, we will guide you to the next step.</source>
        <translation>Wir haben einen neuen Browser-Tab geöffnet, in dem Sie sich anmelden. Danach führen wir Sie zum nächsten Schritt.</translation>
    </message>
    <message>
        <source>Connecting to server...&#xa0;</source>
        <translation>Verbindung zum Server wird hergestellt...&#xa0;</translation>
    </message>
    <message>
        <source>Server connection error. Try again later.</source>
        <translation>Fehler bei der Serververbindung. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection.</source>
        <translation>Fehler bei der Internetverbindung. Prüfen Sie Ihre Internetverbindung.</translation>
    </message>
    <message>
        <source>The current version of the agent is older. Please update the agent.</source>
        <translation>Die Version des Agents ist veraltet. Aktualisieren Sie den Agent.</translation>
    </message>
    <message>
        <source>Login status error. Make sure you installed the latest version of the agent and sign in again.</source>
        <translation>Fehler beim Anmeldestatus. Installieren Sie die neueste Version des Agents und melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>Invalid certificate. Run Windows Update to renew your certificate. Refer to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;Knowledge Center&lt;/a&gt;.</source>
        <translation>Ungültiges Zertifikat. Erneuern Sie Ihr Zertifikat mit Windows Update. Siehe &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;Wissensdatenbank&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This device conflicts with another device. Sign in again if you want to back up this device instead of the other one. Please note that the other device will no longer be backed up after that.</source>
        <translation>Dieses Gerät steht in Konflikt mit einem anderen Gerät. Melden Sie sich erneut an, wenn Sie statt des anderen Geräts dieses sichern möchten. Das andere Gerät wird danach nicht mehr gesichert.</translation>
    </message>
    <message>
        <source>Authentication failed. Sign out from the agent and sign in again.</source>
        <translation>Authentifizierung fehlgeschlagen. Melden Sie sich vom Agent ab und erneut an.</translation>
    </message>
    <message>
        <source>Device time incorrect. Sync the device time before the next backup.</source>
        <translation>Gerätezeit falsch. Synchronisieren Sie die Gerätezeit vor dem nächsten Backup.</translation>
    </message>
    <message>
        <source>You haven&apos;t set up the Nimbra Encryption Key. You must set it up on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt; before starting to back up devices.</source>
        <translation>Sie haben den Nimbra-Verschlüsselungsschlüssel noch nicht eingerichtet. Richten Sie ihn in der &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Konsole&lt;/a&gt; ein, bevor Sie Geräte sichern.</translation>
    </message>
    <message>
        <source>You haven&apos;t finish setting the Nimbra Encryption Key. Go to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup console&lt;/a&gt; to complete the setup.</source>
        <translation>Die Einrichtung des Nimbra-Verschlüsselungsschlüssels ist noch nicht abgeschlossen. Schließen Sie sie in der &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup-Konsole&lt;/a&gt; ab.</translation>
    </message>
    <message>
        <source>Almost there</source>
        <translation>Fast geschafft</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Backup Policy</source>
        <translation>Backup-Richtlinie</translation>
    </message>
    <message>
        <source>Data Center</source>
        <translation>Rechenzentrum</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Backup-Zeitplan</translation>
    </message>
    <message>
        <source>Backup scope</source>
        <translation>Backup-Umfang</translation>
    </message>
    <message>
        <source>More details can be found on the console.</source>
        <translation>Weitere Details finden Sie in der Konsole.</translation>
    </message>
    <message>
        <source>Default policy (personal computer)</source>
        <translation>Standardrichtlinie (PC)</translation>
    </message>
    <message>
        <source>Default policy (physical server)</source>
        <translation>Standardrichtlinie (physischer Server)</translation>
    </message>
    <message>
        <source>We will back up this device right after finishing setting up the agent. You can configure backup policies on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt;.</source>
        <translation>Wir sichern dieses Gerät, sobald die Einrichtung des Agents abgeschlossen ist. Backup-Richtlinien können Sie in der &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Konsole&lt;/a&gt; festlegen.</translation>
    </message>
    <message>
        <source>North America - Seattle</source>
        <translation>Nordamerika - Seattle</translation>
    </message>
    <message>
        <source>Europe - Frankfurt</source>
        <translation>Europa - Frankfurt</translation>
    </message>
    <message>
        <source>APAC - Taiwan</source>
        <translation>APAC - Taiwan</translation>
    </message>
    <message>
        <source>Entire device (external drives included)</source>
        <translation>Gesamtes Gerät (inkl. externer Laufwerke)</translation>
    </message>
    <message>
        <source>Entire device</source>
        <translation>Gesamtes Gerät</translation>
    </message>
    <message>
        <source>System volume</source>
        <translation>Systemvolume</translation>
    </message>
    <message>
        <source>Specified volumes (%1)</source>
        <translation>Ausgewählte Volumes (%1)</translation>
    </message>
    <message>
        <source>Backed up daily at %1</source>
        <translation>Tägliches Backup um %1</translation>
    </message>
    <message>
        <source>Weekly (%2 every %1)</source>
        <translation>Wöchentlich (%1 um %2)</translation>
    </message>
    <message>
        <source>Screen lock</source>
        <translation>Bildschirmsperre</translation>
    </message>
    <message>
        <source>Signout</source>
        <translation>Abmeldung</translation>
    </message>
    <message>
        <source>Device power on</source>
        <translation>Gerätestart</translation>
    </message>
    <message>
        <source>By event: %1</source>
        <translation>Bei Ereignis: %1</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Begrenzen auf</translation>
    </message>
    <message>
        <source>Minimum: 5; Maximum: 9,999</source>
        <translation>Minimum: 5; Maximum: 9.999</translation>
    </message>
    <message>
        <source>Mbps (%1 MB/s)</source>
        <translation>Mbit/s (%1 MB/s)</translation>
    </message>
    <message>
        <source>Limit upload speed within a specific time range every day</source>
        <translation>Upload-Geschwindigkeit täglich in einem Zeitraum begrenzen</translation>
    </message>
    <message>
        <source>(Custom)</source>
        <translation>(Benutzerdefiniert)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Data upload speed</source>
        <translation>Upload-Geschwindigkeit</translation>
    </message>
    <message>
        <source>Limit the upload speed to prevent backups from taking up your bandwidth. The speed limit will be applied within minutes after you save the settings.</source>
        <translation>Begrenzen Sie die Upload-Geschwindigkeit, damit Backups nicht Ihre ganze Bandbreite belegen. Die Begrenzung gilt wenige Minuten nach dem Speichern.</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>Folgetag</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hours</source>
        <translation>Hinweis: Das Hochladen von 100 GB kann bis zu %1 Stunden dauern</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hour</source>
        <translation>Hinweis: Das Hochladen von 100 GB kann bis zu %1 Stunde dauern</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minute</source>
        <translation>Hinweis: Das Hochladen von 100 GB kann bis zu %1 Minute dauern</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minutes</source>
        <translation>Hinweis: Das Hochladen von 100 GB kann bis zu %1 Minuten dauern</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt; every day. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;Hinweis:&lt;/span&gt;Ihre Organisation begrenzt die Upload-Geschwindigkeit täglich auf &lt;b&gt;%1 Mbit/s zwischen %2 und %3&lt;/b&gt;. Legen Sie hier ein anderes Limit fest, gilt das niedrigere der beiden.</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt;. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;Hinweis:&lt;/span&gt;Ihre Organisation begrenzt die Upload-Geschwindigkeit auf &lt;b&gt;%1 Mbit/s zwischen %2 und %3&lt;/b&gt;. Legen Sie hier ein anderes Limit fest, gilt das niedrigere der beiden.</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>Nutzungsbedingungen</translation>
    </message>
    <message>
        <source>Privacy Statement</source>
        <translation>Datenschutzerklärung</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Error&#xa0;</source>
        <translation>Fehler&#xa0;</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End at</source>
        <translation>Ende</translation>
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
        <translation>Min.</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>Std.</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>Std.</translation>
    </message>
    <message>
        <source>day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Weitere Infos</translation>
    </message>
    <message>
        <source>Knowledge Center</source>
        <translation>Wissensdatenbank</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>Nicht eingerichtet</translation>
    </message>
    <message>
        <source>Service not reachable</source>
        <translation>Dienst nicht erreichbar</translation>
    </message>
    <message>
        <source>Last backup: %1, %2</source>
        <translation>Letzte Sicherung: %1, %2</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Jetzt sichern</translation>
    </message>
    <message>
        <source>A backup is running</source>
        <translation>Eine Sicherung läuft</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
</TS>
