<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Copyright © %1 Corvana Inc.\nAll rights reserved.</source>
        <translation>Copyright © %1 Corvana Inc.\nTodos los derechos reservados.</translation>
    </message>
    <message>
        <source>Once log out, connection from this device will be cut off. Are you sure you want to continue?</source>
        <translation>Al cerrar la sesión, este dispositivo quedará desconectado. ¿Seguro que quiere continuar?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Log out</source>
        <translation>Cerrar sesión</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Unable to perform this action because the network connection is unstable or the service is busy. Try again later.</source>
        <translation>No se puede realizar esta acción porque la conexión de red es inestable o el servicio está ocupado. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Backup task started.</source>
        <translation>Copia de seguridad iniciada.</translation>
    </message>
    <message>
        <source>Backup task was complete.</source>
        <translation>Copia de seguridad completada.</translation>
    </message>
    <message>
        <source>Backup task was canceled.</source>
        <translation>Copia de seguridad cancelada.</translation>
    </message>
    <message>
        <source>Backup task failed.</source>
        <translation>Error en la copia de seguridad.</translation>
    </message>
    <message>
        <source>Backup task was partially successful.</source>
        <translation>Copia de seguridad completada parcialmente.</translation>
    </message>
    <message>
        <source>The scheduled backup didn&apos;t start because the device is already backing up.</source>
        <translation>La copia programada no se inició porque ya se está haciendo una copia del dispositivo.</translation>
    </message>
    <message>
        <source>Retrieving device information.</source>
        <translation>Obteniendo la información del dispositivo.</translation>
    </message>
    <message>
        <source>Starting to upload device information.</source>
        <translation>Subiendo la información del dispositivo.</translation>
    </message>
    <message>
        <source>Device information successfully uploaded.</source>
        <translation>Información del dispositivo subida correctamente.</translation>
    </message>
    <message>
        <source>Unable to upload the device information. Please check the network settings and try again later.</source>
        <translation>No se pudo subir la información del dispositivo. Compruebe la configuración de red e inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The agent failed to be updated.</source>
        <translation>No se pudo actualizar el agente.</translation>
    </message>
    <message>
        <source>Successfully executed the pre-freeze script.</source>
        <translation>Script previo a la congelación ejecutado correctamente.</translation>
    </message>
    <message>
        <source>Successfully executed the post-thaw script.</source>
        <translation>Script posterior a la descongelación ejecutado correctamente.</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script files on the client device.</source>
        <translation>No se puede acceder a los archivos de script previo/posterior en el dispositivo cliente.</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script file on Nimbra Backup.</source>
        <translation>No se puede acceder al archivo de script previo/posterior en Nimbra Backup.</translation>
    </message>
    <message>
        <source>The size of the pre-freeze/post-thaw script files exceeds the 32 KB limit.</source>
        <translation>Los archivos de script previo/posterior superan el límite de 32 KB.</translation>
    </message>
    <message>
        <source>Unable to upload the script output.</source>
        <translation>No se pudo subir la salida del script.</translation>
    </message>
    <message>
        <source>No available volume to take snapshot for.</source>
        <translation>No hay ningún volumen disponible para la instantánea.</translation>
    </message>
    <message>
        <source>Backup task failed because the device time was incorrect. Sync the device time and try again.</source>
        <translation>Error en la copia de seguridad: la hora del dispositivo era incorrecta. Sincronice la hora del dispositivo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Backup task was canceled because Nimbra Backup agent restarted. Possible reasons: Device reboot or unexpected shutdown.</source>
        <translation>Copia cancelada porque el agente de Nimbra Backup se reinició. Posibles causas: reinicio del dispositivo o apagado inesperado.</translation>
    </message>
    <message>
        <source>Backup cannot continue until the System Management Controller (SMC) of this Mac is reset. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>La copia de seguridad no puede continuar hasta que se restablezca el controlador de gestión del sistema (SMC) de este Mac. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;Cómo hacerlo&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Insufficient storage on local disk.</source>
        <translation>Espacio insuficiente en el disco local.</translation>
    </message>
    <message>
        <source>No permissions to the local disk.</source>
        <translation>Sin permisos en el disco local.</translation>
    </message>
    <message>
        <source>Insufficient directory quota.</source>
        <translation>Cuota de directorio insuficiente.</translation>
    </message>
    <message>
        <source>Local file system is read-only.</source>
        <translation>El sistema de archivos local es de solo lectura.</translation>
    </message>
    <message>
        <source>Local disk I/O error.</source>
        <translation>Error de E/S del disco local.</translation>
    </message>
    <message>
        <source>Local backup file corrupted.</source>
        <translation>Archivo de copia de seguridad local dañado.</translation>
    </message>
    <message>
        <source>Nimbra Backup storage limit already reached.</source>
        <translation>Ya se alcanzó el límite de almacenamiento de Nimbra Backup.</translation>
    </message>
    <message>
        <source>Insufficient system memory.</source>
        <translation>Memoria del sistema insuficiente.</translation>
    </message>
    <message>
        <source>Unable to connect to the Nimbra Backup server.</source>
        <translation>No se puede conectar con el servidor de Nimbra Backup.</translation>
    </message>
    <message>
        <source>DNS resolution failed.</source>
        <translation>Error en la resolución DNS.</translation>
    </message>
    <message>
        <source>Network socket couldn&apos;t receive data because the Nimbra Backup server is busy.</source>
        <translation>No se recibieron datos porque el servidor de Nimbra Backup está ocupado.</translation>
    </message>
    <message>
        <source>Account or password authentication failed.</source>
        <translation>Error de autenticación de la cuenta o la contraseña.</translation>
    </message>
    <message>
        <source>The backup agent requires an update. Download the latest version of the agent from the Nimbra Backup console.</source>
        <translation>El agente de copia de seguridad necesita una actualización. Descargue la última versión del agente desde la consola de Nimbra Backup.</translation>
    </message>
    <message>
        <source>Unauthorized account. Contact your Nimbra Backup administrator and sign in again.</source>
        <translation>Cuenta no autorizada. Póngase en contacto con el administrador de Nimbra Backup e inicie sesión de nuevo.</translation>
    </message>
    <message>
        <source>Backup task triggered by {trigger_event}.</source>
        <translation>Copia de seguridad iniciada por {trigger_event}.</translation>
    </message>
    <message>
        <source>Backup task {task} is not allowed to be run during this period of time due to the configured backup window.</source>
        <translation>La copia {task} no puede ejecutarse en este horario por la ventana de copia configurada.</translation>
    </message>
    <message>
        <source>Task {task} was canceled by the configured backup window.</source>
        <translation>La tarea {task} se canceló por la ventana de copia configurada.</translation>
    </message>
    <message>
        <source>Task {task} was resumed due to the configured backup window.</source>
        <translation>La tarea {task} se reanudó por la ventana de copia configurada.</translation>
    </message>
    <message>
        <source>Restore task started.</source>
        <translation>Restauración iniciada.</translation>
    </message>
    <message>
        <source>Restore task was canceled.</source>
        <translation>Restauración cancelada.</translation>
    </message>
    <message>
        <source>Restore task was complete.</source>
        <translation>Restauración completada.</translation>
    </message>
    <message>
        <source>Restore task failed.</source>
        <translation>Error en la restauración.</translation>
    </message>
    <message>
        <source>Restore task was partially complete.</source>
        <translation>Restauración completada parcialmente.</translation>
    </message>
    <message>
        <source>Account %1 was signed in.</source>
        <translation>La cuenta %1 inició sesión.</translation>
    </message>
    <message>
        <source>Restore path {path} restored.</source>
        <translation>Ruta {path} restaurada.</translation>
    </message>
    <message>
        <source>The path {path} was skipped (path already exists).</source>
        <translation>Se omitió la ruta {path} (ya existe).</translation>
    </message>
    <message>
        <source>The path {path} was overwritten (path already exists).</source>
        <translation>Se sobrescribió la ruta {path} (ya existía).</translation>
    </message>
    <message>
        <source>Failed to create the restore path {path}.</source>
        <translation>No se pudo crear la ruta de restauración {path}.</translation>
    </message>
    <message>
        <source>Unsupported file type: {path}</source>
        <translation>Tipo de archivo no compatible: {path}</translation>
    </message>
    <message>
        <source>No permission to restore path {path} because it might be protected by operating system settings, anti-virus software, or others.</source>
        <translation>Sin permiso para restaurar {path}. Puede estar protegida por la configuración del sistema, un antivirus u otro programa.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to restore path {path}.</source>
        <translation>Código de error {error_code}: no se pudo restaurar la ruta {path}.</translation>
    </message>
    <message>
        <source>Failed to restore the metadata of {path}.</source>
        <translation>No se pudieron restaurar los metadatos de {path}.</translation>
    </message>
    <message>
        <source>Starting to take a snapshot for {volume_name}.</source>
        <translation>Creando una instantánea de {volume_name}.</translation>
    </message>
    <message>
        <source>Snapshot for {volume_name} successfully taken.</source>
        <translation>Instantánea de {volume_name} creada correctamente.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}.</source>
        <translation>Código de error {error_code}: falló la instantánea de {volume_name}.</translation>
    </message>
    <message>
        <source>Starting to take a snapshot set for {volume_name}.</source>
        <translation>Creando un conjunto de instantáneas de {volume_name}.</translation>
    </message>
    <message>
        <source>Snapshot set for {volume_name} successfully taken.</source>
        <translation>Conjunto de instantáneas de {volume_name} creado correctamente.</translation>
    </message>
    <message>
        <source>Failed to take snapshot set for {volume_name}. Retrying.</source>
        <translation>No se pudo crear el conjunto de instantáneas de {volume_name}. Reintentando.</translation>
    </message>
    <message>
        <source>Reading and uploading the volume content of {volume_name}.</source>
        <translation>Leyendo y subiendo el contenido del volumen {volume_name}.</translation>
    </message>
    <message>
        <source>Successfully read the content of volume {volume_name}.</source>
        <translation>Contenido del volumen {volume_name} leído correctamente.</translation>
    </message>
    <message>
        <source>Failed to read and upload the volume content of {volume_name}.</source>
        <translation>No se pudo leer ni subir el contenido del volumen {volume_name}.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors.</source>
        <translation>Código de error {error_code}: no se pudo leer la instantánea. Compruebe y corrija los errores del disco.</translation>
    </message>
    <message>
        <source>Unable to find the snapshot of {volume_name}. The snapshot might be deleted by the operating system, third-party applications, or other reasons. Please try to back up again.</source>
        <translation>No se encuentra la instantánea de {volume_name}. Puede que la haya eliminado el sistema operativo, una aplicación de terceros u otra causa. Vuelva a hacer la copia de seguridad.</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported dynamic volume type)</source>
        <translation>No se hará copia de {volume_name}. (Motivo: tipo de volumen dinámico no compatible)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported file system type)</source>
        <translation>No se hará copia de {volume_name}. (Motivo: sistema de archivos no compatible)</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions.</source>
        <translation>Código de error {error_code}: no se pudo copiar {volume_name} porque se denegó el acceso. Compruebe los permisos de instantáneas.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>Código de error {error_code}: no se pudo copiar {volume_name} porque no se encuentra el sector. Póngase en contacto con el soporte técnico de Corvana.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>Código de error {error_code}: no se pudo copiar {volume_name} porque no se encuentra la ruta. Póngase en contacto con el soporte técnico de Corvana.</translation>
    </message>
    <message>
        <source>Failed to back up {volume_name}. (Reason: invalid function, Error Code: {error_code}) Please contact Corvana Technical Support for assistance.</source>
        <translation>No se pudo copiar {volume_name}. (Motivo: función no válida, código de error: {error_code}) Póngase en contacto con el soporte técnico de Corvana.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open {volume_name}. Contact Corvana Technical Support for assistance.</source>
        <translation>Código de error {error_code}: no se pudo abrir {volume_name}. Póngase en contacto con el soporte técnico de Corvana.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the device is busy.</source>
        <translation>Código de error {error_code}: no se pudo copiar {volume_name} porque el dispositivo está ocupado.</translation>
    </message>
    <message>
        <source>Terminated the pre-freeze script {script_result_path} because it timed out.</source>
        <translation>Se detuvo el script previo {script_result_path} porque superó el tiempo de espera.</translation>
    </message>
    <message>
        <source>Terminated the post-thaw script {script_result_path} because it timed out.</source>
        <translation>Se detuvo el script posterior {script_result_path} porque superó el tiempo de espera.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}. Make sure the Volume Shadow Copy service is running and the volume has enough free space. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Código de error {error_code}: falló la instantánea de {volume_name}. Asegúrese de que el servicio Instantáneas de volumen está en ejecución y de que el volumen tiene espacio libre. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors, then back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Código de error {error_code}: no se pudo leer la instantánea. Corrija los errores del disco y vuelva a hacer la copia. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open the snapshot of {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Error {error_code}: no se abrió la instantánea de {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Código de error {error_code}: no se pudo copiar {volume_name} porque se denegó el acceso. Compruebe los permisos de instantáneas. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Código de error {error_code}: no se pudo copiar {volume_name} porque no se encuentra el sector. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Código de error {error_code}: no se pudo copiar {volume_name} porque no se encuentra la ruta. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because of an invalid function. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Código de error {error_code}: no se pudo copiar {volume_name} por una función no válida. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>The specified volume in the %1 policy wasn&apos;t backed up. It doesn&apos;t exist on the device.</source>
        <translation>No se copió el volumen indicado en la directiva %1. No existe en el dispositivo.</translation>
    </message>
    <message>
        <source>The file system check of {volume_name} found errors. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>La comprobación del sistema de archivos de {volume_name} encontró errores. Repare el volumen y vuelva a hacer la copia. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Inode {inode_number} on {volume_name} is corrupted. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>El inodo {inode_number} de {volume_name} está dañado. Repare el volumen y vuelva a hacer la copia. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because folder {parent_path} does not exist.</source>
        <translation>No se pudo crear la ruta de restauración {path} porque la carpeta {parent_path} no existe.</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because it conflicts with the file in {parent_path}.</source>
        <translation>No se pudo crear la ruta de restauración {path} porque entra en conflicto con el archivo de {parent_path}.</translation>
    </message>
    <message>
        <source>{volume_name} has a bad cluster in {interval_start} - {interval_end}. The interval is skipped.</source>
        <translation>{volume_name} tiene un clúster dañado en {interval_start} - {interval_end}. Se omite ese intervalo.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of pre-freeze script {script_result_path}.</source>
        <translation>Código de salida {exit_code}: se ignoró el fallo del script previo {script_result_path}.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Cannot execute the pre-freeze script {script_result_path}.</source>
        <translation>Código de salida {exit_code}: no se puede ejecutar el script previo {script_result_path}.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of post-thaw script {script_result_path}.</source>
        <translation>Código de salida {exit_code}: se ignoró el fallo del script posterior {script_result_path}.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Unable to execute the post-thaw script {script_result_path}.</source>
        <translation>Código de salida {exit_code}: no se puede ejecutar el script posterior {script_result_path}.</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported removable media.)</source>
        <translation>No se hará copia de {volume_name}. (Motivo: soporte extraíble no compatible.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: External hard drive is excluded in the task.)</source>
        <translation>No se hará copia de {volume_name}. (Motivo: los discos externos están excluidos de la tarea.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk bus type.)</source>
        <translation>No se hará copia de {volume_name}. (Motivo: tipo de bus de disco no compatible.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk type.)</source>
        <translation>No se hará copia de {volume_name}. (Motivo: tipo de disco no compatible.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system.)</source>
        <translation>No se hará copia de {volume_name}. (Motivo: sistema de archivos no compatible.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unidentified file system.)</source>
        <translation>No se hará copia de {volume_name}. (Motivo: sistema de archivos no identificado.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unable to obtain volume information.)</source>
        <translation>No se hará copia de {volume_name}. (Motivo: no se pudo obtener la información del volumen.)</translation>
    </message>
    <message>
        <source>Unable to find the shadow copy of {volume_name}. The operating system might have deleted it. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>No se encuentra la instantánea de volumen de {volume_name}. Puede que la haya eliminado el sistema operativo. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Starts creating Nimbra Backup data volume.</source>
        <translation>Creando el volumen de datos de Nimbra Backup.</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system)</source>
        <translation>No se hará copia de {volume_name}. (Motivo: sistema de archivos no compatible)</translation>
    </message>
    <message>
        <source>Nimbra Backup needs Full Disk Access to take snapshots. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Nimbra Backup necesita acceso total al disco para crear instantáneas. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Cómo permitirlo&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>No se pudo ejecutar asr (Apple Software Restore) en {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Restart your Mac and run First Aid to repair the disk.</source>
        <translation>No se pudo ejecutar asr (Apple Software Restore) en {volume_name}. Reinicie el Mac y repare el disco con Primera ayuda.</translation>
    </message>
    <message>
        <source>Allow the system extension of Nimbra Backup in Privacy &amp; Security to continue backing up. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>Permita la extensión del sistema de Nimbra Backup en Privacidad y seguridad para continuar con la copia. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;Cómo hacerlo&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot find {volume_name} data on Nimbra Backup data volume. Performing full backup instead.</source>
        <translation>No se encuentran datos de {volume_name} en el volumen de datos de Nimbra Backup. Se hará una copia completa.</translation>
    </message>
    <message>
        <source>Cannot find snapshot of {volume_name}. Performing full backup instead.</source>
        <translation>No se encuentra la instantánea de {volume_name}. Se hará una copia completa.</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Performing full backup instead.</source>
        <translation>No se pudo ejecutar asr (Apple Software Restore) en {volume_name}. Se hará una copia completa.</translation>
    </message>
    <message>
        <source>Starts taking snapshots.</source>
        <translation>Creando instantáneas.</translation>
    </message>
    <message>
        <source>Finished taking snapshots.</source>
        <translation>Instantáneas creadas.</translation>
    </message>
    <message>
        <source>Backup failed because the backup account on this Mac could not be authenticated. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Error en la copia: no se pudo autenticar la cuenta de copia de seguridad de este Mac. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;Más información&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to mount {volume_name}. (Reason: Encrypted volumes cannot be mounted.)</source>
        <translation>No se pudo montar {volume_name}. (Motivo: los volúmenes cifrados no se pueden montar.)</translation>
    </message>
    <message>
        <source>Backup failed because Nimbra Backup has no Full Disk Access. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Error en la copia: Nimbra Backup no tiene acceso total al disco. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Cómo permitirlo&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot mount the default backup volume. Restart your Mac.</source>
        <translation>No se puede montar el volumen de copia predeterminado. Reinicie el Mac.</translation>
    </message>
    <message>
        <source>Keep all versions within the last %1 months</source>
        <translation>Conservar todas las versiones de los últimos %1 meses</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inactivo</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Copiando...</translation>
    </message>
    <message>
        <source>Successful</source>
        <translation>Correcta</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Partially Successful</source>
        <translation>Correcta en parte</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Restoring...</source>
        <translation>Restaurando...</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>Creando instantánea...</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>Cancelada</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>View backup status</source>
        <translation>Ver estado de la copia</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar conexión</translation>
    </message>
    <message>
        <source>Sign In Again</source>
        <translation>Volver a iniciar sesión</translation>
    </message>
    <message>
        <source>This application is already opened by another user.</source>
        <translation>Otro usuario ya tiene abierta esta aplicación.</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection and try again.</source>
        <translation>Error de conexión a Internet. Compruebe su conexión a Internet e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>You have used up your quota of capacity. Please contact the administrator for extra space.</source>
        <translation>Ha agotado su cuota de almacenamiento. Póngase en contacto con el administrador para obtener más espacio.</translation>
    </message>
    <message>
        <source>This device was removed from the account.</source>
        <translation>Este dispositivo se quitó de la cuenta.</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>Agente</translation>
    </message>
    <message>
        <source>Nimbra Backup</source>
        <translation>Nimbra Backup</translation>
    </message>
    <message>
        <source>Preparing for backup...</source>
        <translation>Preparando la copia...</translation>
    </message>
    <message>
        <source>Failed to upgrade backup service. Please contact Corvana Technical Support for assistance.</source>
        <translation>No se pudo actualizar el servicio de copia de seguridad. Póngase en contacto con el soporte técnico de Corvana.</translation>
    </message>
    <message>
        <source>Upgrading backup service database. Please keep this window open if you wish to launch the agent automatically after upgrade.</source>
        <translation>Actualizando la base de datos del servicio de copia de seguridad. Deje esta ventana abierta si quiere que el agente se inicie automáticamente después.</translation>
    </message>
    <message>
        <source>You&apos;re all set for backup. Do you want to back up this device right now?</source>
        <translation>Todo está listo. ¿Quiere hacer ahora una copia de seguridad de este dispositivo?</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Open Nimbra Backup</source>
        <translation>Abrir Nimbra Backup</translation>
    </message>
    <message>
        <source>Closing this application will not stop the backup service.</source>
        <translation>Cerrar esta aplicación no detiene el servicio de copia de seguridad.</translation>
    </message>
    <message>
        <source>The service cannot be activated normally. Please reboot your device and try again. If the problem remains, please contact Corvana Technical Support.</source>
        <translation>El servicio no puede iniciarse con normalidad. Reinicie el dispositivo e inténtelo de nuevo. Si el problema continúa, póngase en contacto con el soporte técnico de Corvana.</translation>
    </message>
    <message>
        <source>Backup successful</source>
        <translation>Copia de seguridad correcta</translation>
    </message>
    <message>
        <source>Your device was backed up.</source>
        <translation>Se hizo la copia de seguridad de su dispositivo.</translation>
    </message>
    <message>
        <source>Nimbra Backup %1</source>
        <translation>Nimbra Backup %1</translation>
    </message>
    <message>
        <source>Check the activity logs in the agent for more information.</source>
        <translation>Consulte el registro de actividad del agente para obtener más información.</translation>
    </message>
    <message>
        <source>Storage is almost full</source>
        <translation>Almacenamiento casi lleno</translation>
    </message>
    <message>
        <source>You have used 85% of your total storage (%1).</source>
        <translation>Ha usado el 85% de su almacenamiento total (%1).</translation>
    </message>
    <message>
        <source>Storage is full</source>
        <translation>Almacenamiento lleno</translation>
    </message>
    <message>
        <source>You have used 95% of your total storage (%1).</source>
        <translation>Ha usado el 95% de su almacenamiento total (%1).</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation>Dispositivo quitado</translation>
    </message>
    <message>
        <source>This device has been removed from the account. Go to the Nimbra Backup console for more information.</source>
        <translation>Este dispositivo se quitó de la cuenta. Consulte la consola de Nimbra Backup para obtener más información.</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>Se necesita acceso total al disco</translation>
    </message>
    <message>
        <source>Enable Full Disk Access in Privacy &amp; Security.</source>
        <translation>Active el acceso total al disco en Privacidad y seguridad.</translation>
    </message>
    <message>
        <source>System extension required</source>
        <translation>Se necesita una extensión del sistema</translation>
    </message>
    <message>
        <source>Go to Privacy &amp; Security and enable system extensions for Nimbra Backup.</source>
        <translation>Vaya a Privacidad y seguridad y active las extensiones del sistema de Nimbra Backup.</translation>
    </message>
    <message>
        <source>Nimbra Backup console</source>
        <translation>Consola de Nimbra Backup</translation>
    </message>
    <message>
        <source>Recovery Portal</source>
        <translation>Portal de recuperación</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Justo ahora</translation>
    </message>
    <message>
        <source>%1 minute ago</source>
        <translation>Hace %1 minuto</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Hace %1 minutos</translation>
    </message>
    <message>
        <source>%1 hour ago</source>
        <translation>Hace %1 hora</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Hace %1 horas</translation>
    </message>
    <message>
        <source>%1 day ago</source>
        <translation>Hace %1 día</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Hace %1 días</translation>
    </message>
    <message>
        <source>Est. finish</source>
        <translation>Fin estimado</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; processed</source>
        <translation>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; procesados</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Aún sin copia de seguridad</translation>
    </message>
    <message>
        <source>No backup schedule</source>
        <translation>Sin programación</translation>
    </message>
    <message>
        <source>Backup by event</source>
        <translation>Copia por evento</translation>
    </message>
    <message>
        <source>Automated daily backup</source>
        <translation>Copia diaria automática</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>Actividad</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Last backup:</source>
        <translation>Última copia:</translation>
    </message>
    <message>
        <source>Next backup:</source>
        <translation>Próxima copia:</translation>
    </message>
    <message>
        <source>Protect your device with Nimbra Backup</source>
        <translation>Proteja su dispositivo con Nimbra Backup</translation>
    </message>
    <message>
        <source>Nimbra Backup provides protection for the entire device. All data, applications, and system configurations will be backed up according to your schedules.</source>
        <translation>Nimbra Backup protege todo el dispositivo. Todos los datos, aplicaciones y configuraciones del sistema se copiarán según sus programaciones.</translation>
    </message>
    <message>
        <source>Let&apos;s Start</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Sign in on your browser</source>
        <translation>Inicie sesión en el navegador</translation>
    </message>
    <message>
        <source>We&apos;ve opened a new browser tab for you to sign in. Then, we will guide you to the next step.</source>
        <translation>Hemos abierto una pestaña nueva del navegador para que inicie sesión. Después le guiaremos al siguiente paso.</translation>
    </message>
    <message>
        <source>Connecting to server...&#xa0;</source>
        <translation>Conectando con el servidor...&#xa0;</translation>
    </message>
    <message>
        <source>Server connection error. Try again later.</source>
        <translation>Error de conexión con el servidor. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection.</source>
        <translation>Error de conexión a Internet. Compruebe su conexión a Internet.</translation>
    </message>
    <message>
        <source>The current version of the agent is older. Please update the agent.</source>
        <translation>La versión del agente está desactualizada. Actualice el agente.</translation>
    </message>
    <message>
        <source>Login status error. Make sure you installed the latest version of the agent and sign in again.</source>
        <translation>Error en el estado de la sesión. Asegúrese de tener instalada la última versión del agente y vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>Invalid certificate. Run Windows Update to renew your certificate. Refer to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;Knowledge Center&lt;/a&gt;.</source>
        <translation>Certificado no válido. Ejecute Windows Update para renovar el certificado. Consulte el &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;Centro de conocimiento&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>This device conflicts with another device. Sign in again if you want to back up this device instead of the other one. Please note that the other device will no longer be backed up after that.</source>
        <translation>Este dispositivo entra en conflicto con otro. Vuelva a iniciar sesión si quiere hacer copia de este dispositivo en lugar del otro. Después, el otro dispositivo dejará de copiarse.</translation>
    </message>
    <message>
        <source>Authentication failed. Sign out from the agent and sign in again.</source>
        <translation>Error de autenticación. Cierre la sesión del agente y vuelva a iniciarla.</translation>
    </message>
    <message>
        <source>Device time incorrect. Sync the device time before the next backup.</source>
        <translation>La hora del dispositivo es incorrecta. Sincronícela antes de la próxima copia.</translation>
    </message>
    <message>
        <source>You haven&apos;t set up the Nimbra Encryption Key. You must set it up on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt; before starting to back up devices.</source>
        <translation>Aún no ha configurado la clave de cifrado de Nimbra. Debe configurarla en la &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;consola&lt;/a&gt; antes de hacer copias de dispositivos.</translation>
    </message>
    <message>
        <source>You haven&apos;t finish setting the Nimbra Encryption Key. Go to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup console&lt;/a&gt; to complete the setup.</source>
        <translation>No ha terminado de configurar la clave de cifrado de Nimbra. Vaya a la &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;consola de Nimbra Backup&lt;/a&gt; para completarla.</translation>
    </message>
    <message>
        <source>Almost there</source>
        <translation>Casi listo</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Backup Policy</source>
        <translation>Directiva de copia</translation>
    </message>
    <message>
        <source>Data Center</source>
        <translation>Centro de datos</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>Programación</translation>
    </message>
    <message>
        <source>Backup scope</source>
        <translation>Alcance de la copia</translation>
    </message>
    <message>
        <source>More details can be found on the console.</source>
        <translation>Encontrará más detalles en la consola.</translation>
    </message>
    <message>
        <source>Default policy (personal computer)</source>
        <translation>Directiva predeterminada (ordenador personal)</translation>
    </message>
    <message>
        <source>Default policy (physical server)</source>
        <translation>Directiva predeterminada (servidor físico)</translation>
    </message>
    <message>
        <source>We will back up this device right after finishing setting up the agent. You can configure backup policies on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt;.</source>
        <translation>Haremos una copia de este dispositivo en cuanto termine de configurar el agente. Puede configurar las directivas de copia en la &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;consola&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>North America - Seattle</source>
        <translation>Norteamérica - Seattle</translation>
    </message>
    <message>
        <source>Europe - Frankfurt</source>
        <translation>Europa - Fráncfort</translation>
    </message>
    <message>
        <source>APAC - Taiwan</source>
        <translation>APAC - Taiwán</translation>
    </message>
    <message>
        <source>Entire device (external drives included)</source>
        <translation>Todo el dispositivo (con unidades externas)</translation>
    </message>
    <message>
        <source>Entire device</source>
        <translation>Todo el dispositivo</translation>
    </message>
    <message>
        <source>System volume</source>
        <translation>Volumen del sistema</translation>
    </message>
    <message>
        <source>Specified volumes (%1)</source>
        <translation>Volúmenes elegidos (%1)</translation>
    </message>
    <message>
        <source>Backed up daily at %1</source>
        <translation>Copia diaria a las %1</translation>
    </message>
    <message>
        <source>Weekly (%2 every %1)</source>
        <translation>Semanal (%1 a las %2)</translation>
    </message>
    <message>
        <source>Screen lock</source>
        <translation>Bloqueo de pantalla</translation>
    </message>
    <message>
        <source>Signout</source>
        <translation>Cierre de sesión</translation>
    </message>
    <message>
        <source>Device power on</source>
        <translation>Encendido del dispositivo</translation>
    </message>
    <message>
        <source>By event: %1</source>
        <translation>Por evento: %1</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Limitar a</translation>
    </message>
    <message>
        <source>Minimum: 5; Maximum: 9,999</source>
        <translation>Mínimo: 5; máximo: 9999</translation>
    </message>
    <message>
        <source>Mbps (%1 MB/s)</source>
        <translation>Mbps (%1 MB/s)</translation>
    </message>
    <message>
        <source>Limit upload speed within a specific time range every day</source>
        <translation>Limitar la velocidad de subida en una franja horaria cada día</translation>
    </message>
    <message>
        <source>(Custom)</source>
        <translation>(Personalizado)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Data upload speed</source>
        <translation>Velocidad de subida</translation>
    </message>
    <message>
        <source>Limit the upload speed to prevent backups from taking up your bandwidth. The speed limit will be applied within minutes after you save the settings.</source>
        <translation>Limite la velocidad de subida para que las copias no ocupen todo su ancho de banda. El límite se aplicará unos minutos después de guardar la configuración.</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>Día siguiente</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hours</source>
        <translation>Atención: subir 100 GB de datos puede tardar hasta %1 horas</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hour</source>
        <translation>Atención: subir 100 GB de datos puede tardar hasta %1 hora</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minute</source>
        <translation>Atención: subir 100 GB de datos puede tardar hasta %1 minuto</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minutes</source>
        <translation>Atención: subir 100 GB de datos puede tardar hasta %1 minutos</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt; every day. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;Nota:&lt;/span&gt;Su organización limita la velocidad de subida a un máximo de &lt;b&gt;%1 Mbps entre %2 y %3&lt;/b&gt; cada día. Si establece aquí otro límite, el sistema usará el menor de los dos.</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt;. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;Nota:&lt;/span&gt;Su organización limita la velocidad de subida a un máximo de &lt;b&gt;%1 Mbps entre %2 y %3&lt;/b&gt;. Si establece aquí otro límite, el sistema usará el menor de los dos.</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>Condiciones del servicio</translation>
    </message>
    <message>
        <source>Privacy Statement</source>
        <translation>Declaración de privacidad</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Error&#xa0;</source>
        <translation>Error&#xa0;</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End at</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
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
        <translation>hora</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>horas</translation>
    </message>
    <message>
        <source>day</source>
        <translation>día</translation>
    </message>
    <message>
        <source>days</source>
        <translation>días</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Más información</translation>
    </message>
    <message>
        <source>Knowledge Center</source>
        <translation>Centro de conocimiento</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>Sin configurar</translation>
    </message>
    <message>
        <source>Service not reachable</source>
        <translation>Servicio no disponible</translation>
    </message>
    <message>
        <source>Last backup: %1, %2</source>
        <translation>Última copia: %1, %2</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Hacer copia ahora</translation>
    </message>
    <message>
        <source>A backup is running</source>
        <translation>Hay una copia en curso</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
</TS>
