<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Copyright © %1 Corvana Inc.\nAll rights reserved.</source>
        <translation>Copyright © %1 Corvana Inc.\n保留所有权利。</translation>
    </message>
    <message>
        <source>Once log out, connection from this device will be cut off. Are you sure you want to continue?</source>
        <translation>注销后，此设备的连接将被断开。确定要继续吗？</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Log out</source>
        <translation>注销</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Unable to perform this action because the network connection is unstable or the service is busy. Try again later.</source>
        <translation>网络连接不稳定或服务繁忙，无法执行此操作。请稍后重试。</translation>
    </message>
    <message>
        <source>Backup task started.</source>
        <translation>备份任务已开始。</translation>
    </message>
    <message>
        <source>Backup task was complete.</source>
        <translation>备份任务已完成。</translation>
    </message>
    <message>
        <source>Backup task was canceled.</source>
        <translation>备份任务已取消。</translation>
    </message>
    <message>
        <source>Backup task failed.</source>
        <translation>备份任务失败。</translation>
    </message>
    <message>
        <source>Backup task was partially successful.</source>
        <translation>备份任务部分成功。</translation>
    </message>
    <message>
        <source>The scheduled backup didn&apos;t start because the device is already backing up.</source>
        <translation>设备正在备份，计划的备份未启动。</translation>
    </message>
    <message>
        <source>Retrieving device information.</source>
        <translation>正在获取设备信息。</translation>
    </message>
    <message>
        <source>Starting to upload device information.</source>
        <translation>开始上传设备信息。</translation>
    </message>
    <message>
        <source>Device information successfully uploaded.</source>
        <translation>设备信息上传成功。</translation>
    </message>
    <message>
        <source>Unable to upload the device information. Please check the network settings and try again later.</source>
        <translation>无法上传设备信息。请检查网络设置，稍后重试。</translation>
    </message>
    <message>
        <source>The agent failed to be updated.</source>
        <translation>代理程序更新失败。</translation>
    </message>
    <message>
        <source>Successfully executed the pre-freeze script.</source>
        <translation>已成功执行冻结前脚本。</translation>
    </message>
    <message>
        <source>Successfully executed the post-thaw script.</source>
        <translation>已成功执行解冻后脚本。</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script files on the client device.</source>
        <translation>无法访问客户端设备上的冻结前/解冻后脚本文件。</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script file on Nimbra Backup.</source>
        <translation>无法访问 Nimbra Backup 上的冻结前/解冻后脚本文件。</translation>
    </message>
    <message>
        <source>The size of the pre-freeze/post-thaw script files exceeds the 32 KB limit.</source>
        <translation>冻结前/解冻后脚本文件的大小超过 32 KB 的上限。</translation>
    </message>
    <message>
        <source>Unable to upload the script output.</source>
        <translation>无法上传脚本输出。</translation>
    </message>
    <message>
        <source>No available volume to take snapshot for.</source>
        <translation>没有可创建快照的卷。</translation>
    </message>
    <message>
        <source>Backup task failed because the device time was incorrect. Sync the device time and try again.</source>
        <translation>设备时间不正确，备份任务失败。请同步设备时间后重试。</translation>
    </message>
    <message>
        <source>Backup task was canceled because Nimbra Backup agent restarted. Possible reasons: Device reboot or unexpected shutdown.</source>
        <translation>Nimbra Backup 代理程序已重启，备份任务已取消。可能的原因：设备重启或意外关机。</translation>
    </message>
    <message>
        <source>Backup cannot continue until the System Management Controller (SMC) of this Mac is reset. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>需要重置此 Mac 的系统管理控制器 (SMC) 才能继续备份。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;了解操作方法&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Insufficient storage on local disk.</source>
        <translation>本地磁盘空间不足。</translation>
    </message>
    <message>
        <source>No permissions to the local disk.</source>
        <translation>没有本地磁盘的权限。</translation>
    </message>
    <message>
        <source>Insufficient directory quota.</source>
        <translation>目录配额不足。</translation>
    </message>
    <message>
        <source>Local file system is read-only.</source>
        <translation>本地文件系统为只读。</translation>
    </message>
    <message>
        <source>Local disk I/O error.</source>
        <translation>本地磁盘 I/O 错误。</translation>
    </message>
    <message>
        <source>Local backup file corrupted.</source>
        <translation>本地备份文件已损坏。</translation>
    </message>
    <message>
        <source>Nimbra Backup storage limit already reached.</source>
        <translation>已达到 Nimbra Backup 存储空间上限。</translation>
    </message>
    <message>
        <source>Insufficient system memory.</source>
        <translation>系统内存不足。</translation>
    </message>
    <message>
        <source>Unable to connect to the Nimbra Backup server.</source>
        <translation>无法连接到 Nimbra Backup 服务器。</translation>
    </message>
    <message>
        <source>DNS resolution failed.</source>
        <translation>DNS 解析失败。</translation>
    </message>
    <message>
        <source>Network socket couldn&apos;t receive data because the Nimbra Backup server is busy.</source>
        <translation>Nimbra Backup 服务器繁忙，网络套接字无法接收数据。</translation>
    </message>
    <message>
        <source>Account or password authentication failed.</source>
        <translation>帐户或密码验证失败。</translation>
    </message>
    <message>
        <source>The backup agent requires an update. Download the latest version of the agent from the Nimbra Backup console.</source>
        <translation>备份代理程序需要更新。请从 Nimbra Backup 控制台下载最新版本的代理程序。</translation>
    </message>
    <message>
        <source>Unauthorized account. Contact your Nimbra Backup administrator and sign in again.</source>
        <translation>帐户未获授权。请联系 Nimbra Backup 管理员，然后重新登录。</translation>
    </message>
    <message>
        <source>Backup task triggered by {trigger_event}.</source>
        <translation>备份任务由 {trigger_event} 触发。</translation>
    </message>
    <message>
        <source>Backup task {task} is not allowed to be run during this period of time due to the configured backup window.</source>
        <translation>根据设置的备份时段，备份任务 {task} 不能在此时间段运行。</translation>
    </message>
    <message>
        <source>Task {task} was canceled by the configured backup window.</source>
        <translation>任务 {task} 已因设置的备份时段而取消。</translation>
    </message>
    <message>
        <source>Task {task} was resumed due to the configured backup window.</source>
        <translation>任务 {task} 已根据设置的备份时段恢复。</translation>
    </message>
    <message>
        <source>Restore task started.</source>
        <translation>还原任务已开始。</translation>
    </message>
    <message>
        <source>Restore task was canceled.</source>
        <translation>还原任务已取消。</translation>
    </message>
    <message>
        <source>Restore task was complete.</source>
        <translation>还原任务已完成。</translation>
    </message>
    <message>
        <source>Restore task failed.</source>
        <translation>还原任务失败。</translation>
    </message>
    <message>
        <source>Restore task was partially complete.</source>
        <translation>还原任务部分完成。</translation>
    </message>
    <message>
        <source>Account %1 was signed in.</source>
        <translation>帐户 %1 已登录。</translation>
    </message>
    <message>
        <source>Restore path {path} restored.</source>
        <translation>已还原路径 {path}。</translation>
    </message>
    <message>
        <source>The path {path} was skipped (path already exists).</source>
        <translation>已跳过路径 {path}（路径已存在）。</translation>
    </message>
    <message>
        <source>The path {path} was overwritten (path already exists).</source>
        <translation>已覆盖路径 {path}（路径已存在）。</translation>
    </message>
    <message>
        <source>Failed to create the restore path {path}.</source>
        <translation>无法创建还原路径 {path}。</translation>
    </message>
    <message>
        <source>Unsupported file type: {path}</source>
        <translation>不支持的文件类型：{path}</translation>
    </message>
    <message>
        <source>No permission to restore path {path} because it might be protected by operating system settings, anti-virus software, or others.</source>
        <translation>没有还原路径 {path} 的权限，它可能受到操作系统设置、杀毒软件或其他程序的保护。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to restore path {path}.</source>
        <translation>错误代码 {error_code}：无法还原路径 {path}。</translation>
    </message>
    <message>
        <source>Failed to restore the metadata of {path}.</source>
        <translation>无法还原 {path} 的元数据。</translation>
    </message>
    <message>
        <source>Starting to take a snapshot for {volume_name}.</source>
        <translation>开始为 {volume_name} 创建快照。</translation>
    </message>
    <message>
        <source>Snapshot for {volume_name} successfully taken.</source>
        <translation>已成功为 {volume_name} 创建快照。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}.</source>
        <translation>错误代码 {error_code}：无法为 {volume_name} 创建快照。</translation>
    </message>
    <message>
        <source>Starting to take a snapshot set for {volume_name}.</source>
        <translation>开始为 {volume_name} 创建快照集。</translation>
    </message>
    <message>
        <source>Snapshot set for {volume_name} successfully taken.</source>
        <translation>已成功为 {volume_name} 创建快照集。</translation>
    </message>
    <message>
        <source>Failed to take snapshot set for {volume_name}. Retrying.</source>
        <translation>无法为 {volume_name} 创建快照集。正在重试。</translation>
    </message>
    <message>
        <source>Reading and uploading the volume content of {volume_name}.</source>
        <translation>正在读取并上传卷 {volume_name} 的内容。</translation>
    </message>
    <message>
        <source>Successfully read the content of volume {volume_name}.</source>
        <translation>已成功读取卷 {volume_name} 的内容。</translation>
    </message>
    <message>
        <source>Failed to read and upload the volume content of {volume_name}.</source>
        <translation>无法读取并上传卷 {volume_name} 的内容。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors.</source>
        <translation>错误代码 {error_code}：无法读取快照。请检查并修复磁盘错误。</translation>
    </message>
    <message>
        <source>Unable to find the snapshot of {volume_name}. The snapshot might be deleted by the operating system, third-party applications, or other reasons. Please try to back up again.</source>
        <translation>找不到 {volume_name} 的快照。快照可能已被操作系统、第三方应用程序或其他原因删除。请重新备份。</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported dynamic volume type)</source>
        <translation>{volume_name} 不会被备份。（原因：不支持的动态卷类型）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported file system type)</source>
        <translation>{volume_name} 不会被备份。（原因：不支持的文件系统类型）</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions.</source>
        <translation>错误代码 {error_code}：访问被拒绝，无法备份 {volume_name}。请检查快照权限。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>错误代码 {error_code}：找不到扇区，无法备份 {volume_name}。请联系 Corvana 技术支持。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>错误代码 {error_code}：找不到路径，无法备份 {volume_name}。请联系 Corvana 技术支持。</translation>
    </message>
    <message>
        <source>Failed to back up {volume_name}. (Reason: invalid function, Error Code: {error_code}) Please contact Corvana Technical Support for assistance.</source>
        <translation>无法备份 {volume_name}。（原因：无效的函数，错误代码：{error_code}）请联系 Corvana 技术支持。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open {volume_name}. Contact Corvana Technical Support for assistance.</source>
        <translation>错误代码 {error_code}：无法打开 {volume_name}。请联系 Corvana 技术支持。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the device is busy.</source>
        <translation>错误代码 {error_code}：设备繁忙，无法备份 {volume_name}。</translation>
    </message>
    <message>
        <source>Terminated the pre-freeze script {script_result_path} because it timed out.</source>
        <translation>冻结前脚本 {script_result_path} 超时，已终止。</translation>
    </message>
    <message>
        <source>Terminated the post-thaw script {script_result_path} because it timed out.</source>
        <translation>解冻后脚本 {script_result_path} 超时，已终止。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}. Make sure the Volume Shadow Copy service is running and the volume has enough free space. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>错误代码 {error_code}：无法为 {volume_name} 创建快照。请确保卷影复制服务正在运行，且卷有足够的可用空间。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;了解更多&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors, then back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>错误代码 {error_code}：无法读取快照。请检查并修复磁盘错误，然后重新备份。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;了解更多&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open the snapshot of {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>错误代码 {error_code}：无法打开 {volume_name} 的快照。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;了解更多&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>错误代码 {error_code}：访问被拒绝，无法备份 {volume_name}。请检查快照权限。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;了解更多&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>错误代码 {error_code}：找不到扇区，无法备份 {volume_name}。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;了解更多&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>错误代码 {error_code}：找不到路径，无法备份 {volume_name}。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;了解更多&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because of an invalid function. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>错误代码 {error_code}：函数无效，无法备份 {volume_name}。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;了解更多&lt;/a&gt;</translation>
    </message>
    <message>
        <source>The specified volume in the %1 policy wasn&apos;t backed up. It doesn&apos;t exist on the device.</source>
        <translation>%1 策略中指定的卷未备份，因为设备上不存在该卷。</translation>
    </message>
    <message>
        <source>The file system check of {volume_name} found errors. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>{volume_name} 的文件系统检查发现错误。请修复该卷后重新备份。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;了解更多&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Inode {inode_number} on {volume_name} is corrupted. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Inode {inode_number}（位于 {volume_name}）已损坏。请修复该卷后重新备份。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;了解更多&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because folder {parent_path} does not exist.</source>
        <translation>文件夹 {parent_path} 不存在，无法创建还原路径 {path}。</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because it conflicts with the file in {parent_path}.</source>
        <translation>还原路径 {path} 与 {parent_path} 中的文件冲突，无法创建。</translation>
    </message>
    <message>
        <source>{volume_name} has a bad cluster in {interval_start} - {interval_end}. The interval is skipped.</source>
        <translation>{volume_name} 在 {interval_start} - {interval_end} 中有坏簇。已跳过此区间。</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of pre-freeze script {script_result_path}.</source>
        <translation>退出代码 {exit_code}：已忽略冻结前脚本 {script_result_path} 的执行失败。</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Cannot execute the pre-freeze script {script_result_path}.</source>
        <translation>退出代码 {exit_code}：无法执行冻结前脚本 {script_result_path}。</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of post-thaw script {script_result_path}.</source>
        <translation>退出代码 {exit_code}：已忽略解冻后脚本 {script_result_path} 的执行失败。</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Unable to execute the post-thaw script {script_result_path}.</source>
        <translation>退出代码 {exit_code}：无法执行解冻后脚本 {script_result_path}。</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported removable media.)</source>
        <translation>{volume_name} 不会被备份。（原因：不支持可移动介质。）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: External hard drive is excluded in the task.)</source>
        <translation>{volume_name} 不会被备份。（原因：任务已排除外部硬盘。）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk bus type.)</source>
        <translation>{volume_name} 不会被备份。（原因：不支持的磁盘总线类型。）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk type.)</source>
        <translation>{volume_name} 不会被备份。（原因：不支持的磁盘类型。）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system.)</source>
        <translation>{volume_name} 不会被备份。（原因：不支持的文件系统。）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unidentified file system.)</source>
        <translation>{volume_name} 不会被备份。（原因：无法识别的文件系统。）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unable to obtain volume information.)</source>
        <translation>{volume_name} 不会被备份。（原因：无法获取卷信息。）</translation>
    </message>
    <message>
        <source>Unable to find the shadow copy of {volume_name}. The operating system might have deleted it. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>找不到 {volume_name} 的卷影副本，可能已被操作系统删除。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;了解更多&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Starts creating Nimbra Backup data volume.</source>
        <translation>开始创建 Nimbra Backup 数据卷。</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system)</source>
        <translation>{volume_name} 不会被备份。（原因：不支持的文件系统）</translation>
    </message>
    <message>
        <source>Nimbra Backup needs Full Disk Access to take snapshots. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Nimbra Backup 需要“完全磁盘访问权限”才能创建快照。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;了解如何允许&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>无法在 {volume_name} 上运行 asr (Apple Software Restore)。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;了解更多&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Restart your Mac and run First Aid to repair the disk.</source>
        <translation>无法在 {volume_name} 上运行 asr (Apple Software Restore)。请重启 Mac 并运行“急救”修复磁盘。</translation>
    </message>
    <message>
        <source>Allow the system extension of Nimbra Backup in Privacy &amp; Security to continue backing up. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>请在“隐私与安全性”中允许 Nimbra Backup 的系统扩展以继续备份。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;了解操作方法&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot find {volume_name} data on Nimbra Backup data volume. Performing full backup instead.</source>
        <translation>在 Nimbra Backup 数据卷上找不到 {volume_name} 的数据。将改为执行完整备份。</translation>
    </message>
    <message>
        <source>Cannot find snapshot of {volume_name}. Performing full backup instead.</source>
        <translation>找不到 {volume_name} 的快照。将改为执行完整备份。</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Performing full backup instead.</source>
        <translation>无法在 {volume_name} 上运行 asr (Apple Software Restore)。将改为执行完整备份。</translation>
    </message>
    <message>
        <source>Starts taking snapshots.</source>
        <translation>开始创建快照。</translation>
    </message>
    <message>
        <source>Finished taking snapshots.</source>
        <translation>快照创建完成。</translation>
    </message>
    <message>
        <source>Backup failed because the backup account on this Mac could not be authenticated. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>无法验证此 Mac 上的备份帐户，备份失败。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;了解更多&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to mount {volume_name}. (Reason: Encrypted volumes cannot be mounted.)</source>
        <translation>无法装载 {volume_name}。（原因：无法装载加密卷。）</translation>
    </message>
    <message>
        <source>Backup failed because Nimbra Backup has no Full Disk Access. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Nimbra Backup 没有“完全磁盘访问权限”，备份失败。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;了解如何允许&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot mount the default backup volume. Restart your Mac.</source>
        <translation>无法装载默认备份卷。请重启 Mac。</translation>
    </message>
    <message>
        <source>Keep all versions within the last %1 months</source>
        <translation>保留最近 %1 个月内的所有版本</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>正在备份...</translation>
    </message>
    <message>
        <source>Successful</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Partially Successful</source>
        <translation>部分成功</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Restoring...</source>
        <translation>正在还原...</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>正在创建快照...</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>View backup status</source>
        <translation>查看备份状态</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>编辑连接</translation>
    </message>
    <message>
        <source>Sign In Again</source>
        <translation>重新登录</translation>
    </message>
    <message>
        <source>This application is already opened by another user.</source>
        <translation>此应用程序已由其他用户打开。</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection and try again.</source>
        <translation>网络连接错误。请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>You have used up your quota of capacity. Please contact the administrator for extra space.</source>
        <translation>您的存储配额已用完。请联系管理员获取更多空间。</translation>
    </message>
    <message>
        <source>This device was removed from the account.</source>
        <translation>此设备已从帐户中移除。</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>代理程序</translation>
    </message>
    <message>
        <source>Nimbra Backup</source>
        <translation>Nimbra Backup</translation>
    </message>
    <message>
        <source>Preparing for backup...</source>
        <translation>正在准备备份...</translation>
    </message>
    <message>
        <source>Failed to upgrade backup service. Please contact Corvana Technical Support for assistance.</source>
        <translation>备份服务升级失败。请联系 Corvana 技术支持。</translation>
    </message>
    <message>
        <source>Upgrading backup service database. Please keep this window open if you wish to launch the agent automatically after upgrade.</source>
        <translation>正在升级备份服务数据库。如果希望升级后自动启动代理程序，请保持此窗口打开。</translation>
    </message>
    <message>
        <source>You&apos;re all set for backup. Do you want to back up this device right now?</source>
        <translation>备份已准备就绪。要立即备份此设备吗？</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Open Nimbra Backup</source>
        <translation>打开 Nimbra Backup</translation>
    </message>
    <message>
        <source>Closing this application will not stop the backup service.</source>
        <translation>关闭此应用程序不会停止备份服务。</translation>
    </message>
    <message>
        <source>The service cannot be activated normally. Please reboot your device and try again. If the problem remains, please contact Corvana Technical Support.</source>
        <translation>服务无法正常启动。请重启设备后重试。如果问题仍然存在，请联系 Corvana 技术支持。</translation>
    </message>
    <message>
        <source>Backup successful</source>
        <translation>备份成功</translation>
    </message>
    <message>
        <source>Your device was backed up.</source>
        <translation>您的设备已备份。</translation>
    </message>
    <message>
        <source>Nimbra Backup %1</source>
        <translation>Nimbra Backup %1</translation>
    </message>
    <message>
        <source>Check the activity logs in the agent for more information.</source>
        <translation>请在代理程序的活动日志中查看更多信息。</translation>
    </message>
    <message>
        <source>Storage is almost full</source>
        <translation>存储空间即将用完</translation>
    </message>
    <message>
        <source>You have used 85% of your total storage (%1).</source>
        <translation>您已使用总存储空间 (%1) 的 85%。</translation>
    </message>
    <message>
        <source>Storage is full</source>
        <translation>存储空间已满</translation>
    </message>
    <message>
        <source>You have used 95% of your total storage (%1).</source>
        <translation>您已使用总存储空间 (%1) 的 95%。</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation>设备已移除</translation>
    </message>
    <message>
        <source>This device has been removed from the account. Go to the Nimbra Backup console for more information.</source>
        <translation>此设备已从帐户中移除。请前往 Nimbra Backup 控制台了解详情。</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>需要完全磁盘访问权限</translation>
    </message>
    <message>
        <source>Enable Full Disk Access in Privacy &amp; Security.</source>
        <translation>请在“隐私与安全性”中启用“完全磁盘访问权限”。</translation>
    </message>
    <message>
        <source>System extension required</source>
        <translation>需要系统扩展</translation>
    </message>
    <message>
        <source>Go to Privacy &amp; Security and enable system extensions for Nimbra Backup.</source>
        <translation>请前往“隐私与安全性”，为 Nimbra Backup 启用系统扩展。</translation>
    </message>
    <message>
        <source>Nimbra Backup console</source>
        <translation>Nimbra Backup 控制台</translation>
    </message>
    <message>
        <source>Recovery Portal</source>
        <translation>恢复门户</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>%1 minute ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>%1 hour ago</source>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>%1 day ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>Est. finish</source>
        <translation>预计完成</translation>
    </message>
    <message>
        <source>:</source>
        <translation>：</translation>
    </message>
    <message>
        <source>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; processed</source>
        <translation>已处理 &lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>尚未备份</translation>
    </message>
    <message>
        <source>No backup schedule</source>
        <translation>无备份计划</translation>
    </message>
    <message>
        <source>Backup by event</source>
        <translation>按事件备份</translation>
    </message>
    <message>
        <source>Automated daily backup</source>
        <translation>每日自动备份</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Last backup:</source>
        <translation>上次备份：</translation>
    </message>
    <message>
        <source>Next backup:</source>
        <translation>下次备份：</translation>
    </message>
    <message>
        <source>Protect your device with Nimbra Backup</source>
        <translation>使用 Nimbra Backup 保护您的设备</translation>
    </message>
    <message>
        <source>Nimbra Backup provides protection for the entire device. All data, applications, and system configurations will be backed up according to your schedules.</source>
        <translation>Nimbra Backup 为整台设备提供保护。所有数据、应用程序和系统配置都将按照您的计划进行备份。</translation>
    </message>
    <message>
        <source>Let&apos;s Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Sign in on your browser</source>
        <translation>在浏览器中登录</translation>
    </message>
    <message>
        <source>We&apos;ve opened a new browser tab for you to sign in. Then, we will guide you to the next step.</source>
        <translation>我们已为您打开新的浏览器标签页以便登录，之后将引导您进行下一步。</translation>
    </message>
    <message>
        <source>Connecting to server...&#xa0;</source>
        <translation>正在连接服务器...&#xa0;</translation>
    </message>
    <message>
        <source>Server connection error. Try again later.</source>
        <translation>服务器连接错误。请稍后重试。</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection.</source>
        <translation>网络连接错误。请检查网络连接。</translation>
    </message>
    <message>
        <source>The current version of the agent is older. Please update the agent.</source>
        <translation>当前代理程序版本过旧。请更新代理程序。</translation>
    </message>
    <message>
        <source>Login status error. Make sure you installed the latest version of the agent and sign in again.</source>
        <translation>登录状态错误。请确认已安装最新版本的代理程序，然后重新登录。</translation>
    </message>
    <message>
        <source>Invalid certificate. Run Windows Update to renew your certificate. Refer to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;Knowledge Center&lt;/a&gt;.</source>
        <translation>证书无效。请运行 Windows 更新以更新证书。请参阅&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;知识中心&lt;/a&gt;。</translation>
    </message>
    <message>
        <source>This device conflicts with another device. Sign in again if you want to back up this device instead of the other one. Please note that the other device will no longer be backed up after that.</source>
        <translation>此设备与另一台设备冲突。如果要改为备份此设备而非另一台设备，请重新登录。请注意，之后另一台设备将不再备份。</translation>
    </message>
    <message>
        <source>Authentication failed. Sign out from the agent and sign in again.</source>
        <translation>验证失败。请从代理程序注销后重新登录。</translation>
    </message>
    <message>
        <source>Device time incorrect. Sync the device time before the next backup.</source>
        <translation>设备时间不正确。请在下次备份前同步设备时间。</translation>
    </message>
    <message>
        <source>You haven&apos;t set up the Nimbra Encryption Key. You must set it up on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt; before starting to back up devices.</source>
        <translation>您尚未设置 Nimbra 加密密钥。开始备份设备前，必须先在&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;控制台&lt;/a&gt;上完成设置。</translation>
    </message>
    <message>
        <source>You haven&apos;t finish setting the Nimbra Encryption Key. Go to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup console&lt;/a&gt; to complete the setup.</source>
        <translation>您尚未完成 Nimbra 加密密钥的设置。请前往&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup 控制台&lt;/a&gt;完成设置。</translation>
    </message>
    <message>
        <source>Almost there</source>
        <translation>即将完成</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Backup Policy</source>
        <translation>备份策略</translation>
    </message>
    <message>
        <source>Data Center</source>
        <translation>数据中心</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>备份计划</translation>
    </message>
    <message>
        <source>Backup scope</source>
        <translation>备份范围</translation>
    </message>
    <message>
        <source>More details can be found on the console.</source>
        <translation>更多详情请查看控制台。</translation>
    </message>
    <message>
        <source>Default policy (personal computer)</source>
        <translation>默认策略（个人电脑）</translation>
    </message>
    <message>
        <source>Default policy (physical server)</source>
        <translation>默认策略（物理服务器）</translation>
    </message>
    <message>
        <source>We will back up this device right after finishing setting up the agent. You can configure backup policies on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt;.</source>
        <translation>代理程序设置完成后，我们将立即备份此设备。您可以在&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;控制台&lt;/a&gt;上配置备份策略。</translation>
    </message>
    <message>
        <source>North America - Seattle</source>
        <translation>北美 - 西雅图</translation>
    </message>
    <message>
        <source>Europe - Frankfurt</source>
        <translation>欧洲 - 法兰克福</translation>
    </message>
    <message>
        <source>APAC - Taiwan</source>
        <translation>亚太 - 台湾</translation>
    </message>
    <message>
        <source>Entire device (external drives included)</source>
        <translation>整台设备（包括外部驱动器）</translation>
    </message>
    <message>
        <source>Entire device</source>
        <translation>整台设备</translation>
    </message>
    <message>
        <source>System volume</source>
        <translation>系统卷</translation>
    </message>
    <message>
        <source>Specified volumes (%1)</source>
        <translation>指定的卷 (%1)</translation>
    </message>
    <message>
        <source>Backed up daily at %1</source>
        <translation>每天 %1 备份</translation>
    </message>
    <message>
        <source>Weekly (%2 every %1)</source>
        <translation>每周（每%1 %2）</translation>
    </message>
    <message>
        <source>Screen lock</source>
        <translation>屏幕锁定</translation>
    </message>
    <message>
        <source>Signout</source>
        <translation>注销</translation>
    </message>
    <message>
        <source>Device power on</source>
        <translation>设备开机</translation>
    </message>
    <message>
        <source>By event: %1</source>
        <translation>按事件：%1</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>限制为</translation>
    </message>
    <message>
        <source>Minimum: 5; Maximum: 9,999</source>
        <translation>最小值：5；最大值：9,999</translation>
    </message>
    <message>
        <source>Mbps (%1 MB/s)</source>
        <translation>Mbps (%1 MB/s)</translation>
    </message>
    <message>
        <source>Limit upload speed within a specific time range every day</source>
        <translation>每天在特定时间段内限制上传速度</translation>
    </message>
    <message>
        <source>(Custom)</source>
        <translation>（自定义）</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Data upload speed</source>
        <translation>数据上传速度</translation>
    </message>
    <message>
        <source>Limit the upload speed to prevent backups from taking up your bandwidth. The speed limit will be applied within minutes after you save the settings.</source>
        <translation>限制上传速度，避免备份占用您的带宽。保存设置后，速度限制将在几分钟内生效。</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>次日</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hours</source>
        <translation>注意：上传 100 GB 数据最多可能需要 %1 小时</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hour</source>
        <translation>注意：上传 100 GB 数据最多可能需要 %1 小时</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minute</source>
        <translation>注意：上传 100 GB 数据最多可能需要 %1 分钟</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minutes</source>
        <translation>注意：上传 100 GB 数据最多可能需要 %1 分钟</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt; every day. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;注意：&lt;/span&gt;您的组织将上传速度设为每天 &lt;b&gt;%2 至 %3 之间最高 %1 Mbps&lt;/b&gt;。如果您在此设置其他限制，系统将采用两者中较低的限制。</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt;. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;注意：&lt;/span&gt;您的组织将上传速度设为 &lt;b&gt;%2 至 %3 之间最高 %1 Mbps&lt;/b&gt;。如果您在此设置其他限制，系统将采用两者中较低的限制。</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>服务条款</translation>
    </message>
    <message>
        <source>Privacy Statement</source>
        <translation>隐私声明</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Error&#xa0;</source>
        <translation>错误&#xa0;</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>End at</source>
        <translation>结束时间</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>min</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>day</source>
        <translation>天</translation>
    </message>
    <message>
        <source>days</source>
        <translation>天</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>了解更多</translation>
    </message>
    <message>
        <source>Knowledge Center</source>
        <translation>知识中心</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>尚未设置</translation>
    </message>
    <message>
        <source>Service not reachable</source>
        <translation>无法连接到服务</translation>
    </message>
    <message>
        <source>Last backup: %1, %2</source>
        <translation>上次备份：%1，%2</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>立即备份</translation>
    </message>
    <message>
        <source>A backup is running</source>
        <translation>备份正在进行中</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
</TS>
