<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Copyright © %1 Corvana Inc.\nAll rights reserved.</source>
        <translation>Copyright © %1 Corvana Inc.\n保留所有權利。</translation>
    </message>
    <message>
        <source>Once log out, connection from this device will be cut off. Are you sure you want to continue?</source>
        <translation>登出後，此裝置的連線將會中斷。確定要繼續嗎？</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Log out</source>
        <translation>登出</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Unable to perform this action because the network connection is unstable or the service is busy. Try again later.</source>
        <translation>網路連線不穩定或服務忙碌中，無法執行此動作。請稍後再試。</translation>
    </message>
    <message>
        <source>Backup task started.</source>
        <translation>備份工作已開始。</translation>
    </message>
    <message>
        <source>Backup task was complete.</source>
        <translation>備份工作已完成。</translation>
    </message>
    <message>
        <source>Backup task was canceled.</source>
        <translation>備份工作已取消。</translation>
    </message>
    <message>
        <source>Backup task failed.</source>
        <translation>備份工作失敗。</translation>
    </message>
    <message>
        <source>Backup task was partially successful.</source>
        <translation>備份工作部分成功。</translation>
    </message>
    <message>
        <source>The scheduled backup didn&apos;t start because the device is already backing up.</source>
        <translation>裝置正在備份中，因此排程的備份未啟動。</translation>
    </message>
    <message>
        <source>Retrieving device information.</source>
        <translation>正在取得裝置資訊。</translation>
    </message>
    <message>
        <source>Starting to upload device information.</source>
        <translation>開始上傳裝置資訊。</translation>
    </message>
    <message>
        <source>Device information successfully uploaded.</source>
        <translation>裝置資訊已成功上傳。</translation>
    </message>
    <message>
        <source>Unable to upload the device information. Please check the network settings and try again later.</source>
        <translation>無法上傳裝置資訊。請檢查網路設定，稍後再試。</translation>
    </message>
    <message>
        <source>The agent failed to be updated.</source>
        <translation>代理程式更新失敗。</translation>
    </message>
    <message>
        <source>Successfully executed the pre-freeze script.</source>
        <translation>已成功執行凍結前指令碼。</translation>
    </message>
    <message>
        <source>Successfully executed the post-thaw script.</source>
        <translation>已成功執行解凍後指令碼。</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script files on the client device.</source>
        <translation>無法存取用戶端裝置上的凍結前/解凍後指令碼檔案。</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script file on Nimbra Backup.</source>
        <translation>無法存取 Nimbra Backup 上的凍結前/解凍後指令碼檔案。</translation>
    </message>
    <message>
        <source>The size of the pre-freeze/post-thaw script files exceeds the 32 KB limit.</source>
        <translation>凍結前/解凍後指令碼檔案的大小超過 32 KB 的上限。</translation>
    </message>
    <message>
        <source>Unable to upload the script output.</source>
        <translation>無法上傳指令碼輸出。</translation>
    </message>
    <message>
        <source>No available volume to take snapshot for.</source>
        <translation>沒有可建立快照的磁碟區。</translation>
    </message>
    <message>
        <source>Backup task failed because the device time was incorrect. Sync the device time and try again.</source>
        <translation>裝置時間不正確，備份工作失敗。請同步裝置時間後再試一次。</translation>
    </message>
    <message>
        <source>Backup task was canceled because Nimbra Backup agent restarted. Possible reasons: Device reboot or unexpected shutdown.</source>
        <translation>Nimbra Backup 代理程式已重新啟動，備份工作已取消。可能原因：裝置重新開機或意外關機。</translation>
    </message>
    <message>
        <source>Backup cannot continue until the System Management Controller (SMC) of this Mac is reset. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>必須重設此 Mac 的系統管理控制器 (SMC) 才能繼續備份。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;了解操作方式&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Insufficient storage on local disk.</source>
        <translation>本機磁碟空間不足。</translation>
    </message>
    <message>
        <source>No permissions to the local disk.</source>
        <translation>沒有本機磁碟的權限。</translation>
    </message>
    <message>
        <source>Insufficient directory quota.</source>
        <translation>目錄配額不足。</translation>
    </message>
    <message>
        <source>Local file system is read-only.</source>
        <translation>本機檔案系統為唯讀。</translation>
    </message>
    <message>
        <source>Local disk I/O error.</source>
        <translation>本機磁碟 I/O 錯誤。</translation>
    </message>
    <message>
        <source>Local backup file corrupted.</source>
        <translation>本機備份檔案已損毀。</translation>
    </message>
    <message>
        <source>Nimbra Backup storage limit already reached.</source>
        <translation>已達到 Nimbra Backup 儲存空間上限。</translation>
    </message>
    <message>
        <source>Insufficient system memory.</source>
        <translation>系統記憶體不足。</translation>
    </message>
    <message>
        <source>Unable to connect to the Nimbra Backup server.</source>
        <translation>無法連線至 Nimbra Backup 伺服器。</translation>
    </message>
    <message>
        <source>DNS resolution failed.</source>
        <translation>DNS 解析失敗。</translation>
    </message>
    <message>
        <source>Network socket couldn&apos;t receive data because the Nimbra Backup server is busy.</source>
        <translation>Nimbra Backup 伺服器忙碌中，網路通訊端無法接收資料。</translation>
    </message>
    <message>
        <source>Account or password authentication failed.</source>
        <translation>帳號或密碼驗證失敗。</translation>
    </message>
    <message>
        <source>The backup agent requires an update. Download the latest version of the agent from the Nimbra Backup console.</source>
        <translation>備份代理程式需要更新。請從 Nimbra Backup 主控台下載最新版本的代理程式。</translation>
    </message>
    <message>
        <source>Unauthorized account. Contact your Nimbra Backup administrator and sign in again.</source>
        <translation>帳號未獲授權。請聯絡 Nimbra Backup 管理員，然後重新登入。</translation>
    </message>
    <message>
        <source>Backup task triggered by {trigger_event}.</source>
        <translation>備份工作由 {trigger_event} 觸發。</translation>
    </message>
    <message>
        <source>Backup task {task} is not allowed to be run during this period of time due to the configured backup window.</source>
        <translation>依據設定的備份時段，備份工作 {task} 不得在此時段執行。</translation>
    </message>
    <message>
        <source>Task {task} was canceled by the configured backup window.</source>
        <translation>工作 {task} 已因設定的備份時段而取消。</translation>
    </message>
    <message>
        <source>Task {task} was resumed due to the configured backup window.</source>
        <translation>工作 {task} 已依據設定的備份時段繼續執行。</translation>
    </message>
    <message>
        <source>Restore task started.</source>
        <translation>還原工作已開始。</translation>
    </message>
    <message>
        <source>Restore task was canceled.</source>
        <translation>還原工作已取消。</translation>
    </message>
    <message>
        <source>Restore task was complete.</source>
        <translation>還原工作已完成。</translation>
    </message>
    <message>
        <source>Restore task failed.</source>
        <translation>還原工作失敗。</translation>
    </message>
    <message>
        <source>Restore task was partially complete.</source>
        <translation>還原工作部分完成。</translation>
    </message>
    <message>
        <source>Account %1 was signed in.</source>
        <translation>帳號 %1 已登入。</translation>
    </message>
    <message>
        <source>Restore path {path} restored.</source>
        <translation>已還原路徑 {path}。</translation>
    </message>
    <message>
        <source>The path {path} was skipped (path already exists).</source>
        <translation>已略過路徑 {path}（路徑已存在）。</translation>
    </message>
    <message>
        <source>The path {path} was overwritten (path already exists).</source>
        <translation>已覆寫路徑 {path}（路徑已存在）。</translation>
    </message>
    <message>
        <source>Failed to create the restore path {path}.</source>
        <translation>無法建立還原路徑 {path}。</translation>
    </message>
    <message>
        <source>Unsupported file type: {path}</source>
        <translation>不支援的檔案類型：{path}</translation>
    </message>
    <message>
        <source>No permission to restore path {path} because it might be protected by operating system settings, anti-virus software, or others.</source>
        <translation>沒有還原路徑 {path} 的權限，它可能受到作業系統設定、防毒軟體或其他程式的保護。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to restore path {path}.</source>
        <translation>錯誤代碼 {error_code}：無法還原路徑 {path}。</translation>
    </message>
    <message>
        <source>Failed to restore the metadata of {path}.</source>
        <translation>無法還原 {path} 的中繼資料。</translation>
    </message>
    <message>
        <source>Starting to take a snapshot for {volume_name}.</source>
        <translation>開始為 {volume_name} 建立快照。</translation>
    </message>
    <message>
        <source>Snapshot for {volume_name} successfully taken.</source>
        <translation>已成功為 {volume_name} 建立快照。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}.</source>
        <translation>錯誤代碼 {error_code}：無法為 {volume_name} 建立快照。</translation>
    </message>
    <message>
        <source>Starting to take a snapshot set for {volume_name}.</source>
        <translation>開始為 {volume_name} 建立快照集。</translation>
    </message>
    <message>
        <source>Snapshot set for {volume_name} successfully taken.</source>
        <translation>已成功為 {volume_name} 建立快照集。</translation>
    </message>
    <message>
        <source>Failed to take snapshot set for {volume_name}. Retrying.</source>
        <translation>無法為 {volume_name} 建立快照集。正在重試。</translation>
    </message>
    <message>
        <source>Reading and uploading the volume content of {volume_name}.</source>
        <translation>正在讀取並上傳磁碟區 {volume_name} 的內容。</translation>
    </message>
    <message>
        <source>Successfully read the content of volume {volume_name}.</source>
        <translation>已成功讀取磁碟區 {volume_name} 的內容。</translation>
    </message>
    <message>
        <source>Failed to read and upload the volume content of {volume_name}.</source>
        <translation>無法讀取並上傳磁碟區 {volume_name} 的內容。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors.</source>
        <translation>錯誤代碼 {error_code}：無法讀取快照。請檢查並修復磁碟錯誤。</translation>
    </message>
    <message>
        <source>Unable to find the snapshot of {volume_name}. The snapshot might be deleted by the operating system, third-party applications, or other reasons. Please try to back up again.</source>
        <translation>找不到 {volume_name} 的快照。快照可能已被作業系統、第三方應用程式或其他原因刪除。請重新備份。</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported dynamic volume type)</source>
        <translation>{volume_name} 不會備份。（原因：不支援的動態磁碟區類型）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported file system type)</source>
        <translation>{volume_name} 不會備份。（原因：不支援的檔案系統類型）</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions.</source>
        <translation>錯誤代碼 {error_code}：存取遭拒，無法備份 {volume_name}。請檢查快照權限。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>錯誤代碼 {error_code}：找不到磁區，無法備份 {volume_name}。請聯絡 Corvana 技術支援。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>錯誤代碼 {error_code}：找不到路徑，無法備份 {volume_name}。請聯絡 Corvana 技術支援。</translation>
    </message>
    <message>
        <source>Failed to back up {volume_name}. (Reason: invalid function, Error Code: {error_code}) Please contact Corvana Technical Support for assistance.</source>
        <translation>無法備份 {volume_name}。（原因：無效的函式，錯誤代碼：{error_code}）請聯絡 Corvana 技術支援。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open {volume_name}. Contact Corvana Technical Support for assistance.</source>
        <translation>錯誤代碼 {error_code}：無法開啟 {volume_name}。請聯絡 Corvana 技術支援。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the device is busy.</source>
        <translation>錯誤代碼 {error_code}：裝置忙碌中，無法備份 {volume_name}。</translation>
    </message>
    <message>
        <source>Terminated the pre-freeze script {script_result_path} because it timed out.</source>
        <translation>凍結前指令碼 {script_result_path} 逾時，已終止。</translation>
    </message>
    <message>
        <source>Terminated the post-thaw script {script_result_path} because it timed out.</source>
        <translation>解凍後指令碼 {script_result_path} 逾時，已終止。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}. Make sure the Volume Shadow Copy service is running and the volume has enough free space. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>錯誤代碼 {error_code}：無法為 {volume_name} 建立快照。請確認磁碟區陰影複製服務正在執行，且磁碟區有足夠的可用空間。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;深入了解&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors, then back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>錯誤代碼 {error_code}：無法讀取快照。請檢查並修復磁碟錯誤，然後重新備份。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;深入了解&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open the snapshot of {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>錯誤代碼 {error_code}：無法開啟 {volume_name} 的快照。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;深入了解&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>錯誤代碼 {error_code}：存取遭拒，無法備份 {volume_name}。請檢查快照權限。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;深入了解&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>錯誤代碼 {error_code}：找不到磁區，無法備份 {volume_name}。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;深入了解&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>錯誤代碼 {error_code}：找不到路徑，無法備份 {volume_name}。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;深入了解&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because of an invalid function. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>錯誤代碼 {error_code}：函式無效，無法備份 {volume_name}。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;深入了解&lt;/a&gt;</translation>
    </message>
    <message>
        <source>The specified volume in the %1 policy wasn&apos;t backed up. It doesn&apos;t exist on the device.</source>
        <translation>%1 原則中指定的磁碟區未備份，因為裝置上沒有此磁碟區。</translation>
    </message>
    <message>
        <source>The file system check of {volume_name} found errors. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>{volume_name} 的檔案系統檢查發現錯誤。請修復磁碟區後重新備份。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;深入了解&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Inode {inode_number} on {volume_name} is corrupted. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Inode {inode_number}（位於 {volume_name}）已損毀。請修復磁碟區後重新備份。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;深入了解&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because folder {parent_path} does not exist.</source>
        <translation>資料夾 {parent_path} 不存在，無法建立還原路徑 {path}。</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because it conflicts with the file in {parent_path}.</source>
        <translation>還原路徑 {path} 與 {parent_path} 中的檔案衝突，無法建立。</translation>
    </message>
    <message>
        <source>{volume_name} has a bad cluster in {interval_start} - {interval_end}. The interval is skipped.</source>
        <translation>{volume_name} 在 {interval_start} - {interval_end} 中有損壞的叢集。已略過此區間。</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of pre-freeze script {script_result_path}.</source>
        <translation>結束代碼 {exit_code}：已忽略凍結前指令碼 {script_result_path} 的執行失敗。</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Cannot execute the pre-freeze script {script_result_path}.</source>
        <translation>結束代碼 {exit_code}：無法執行凍結前指令碼 {script_result_path}。</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of post-thaw script {script_result_path}.</source>
        <translation>結束代碼 {exit_code}：已忽略解凍後指令碼 {script_result_path} 的執行失敗。</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Unable to execute the post-thaw script {script_result_path}.</source>
        <translation>結束代碼 {exit_code}：無法執行解凍後指令碼 {script_result_path}。</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported removable media.)</source>
        <translation>{volume_name} 不會備份。（原因：不支援卸除式媒體。）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: External hard drive is excluded in the task.)</source>
        <translation>{volume_name} 不會備份。（原因：工作已排除外接硬碟。）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk bus type.)</source>
        <translation>{volume_name} 不會備份。（原因：不支援的磁碟匯流排類型。）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk type.)</source>
        <translation>{volume_name} 不會備份。（原因：不支援的磁碟類型。）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system.)</source>
        <translation>{volume_name} 不會備份。（原因：不支援的檔案系統。）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unidentified file system.)</source>
        <translation>{volume_name} 不會備份。（原因：無法辨識的檔案系統。）</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unable to obtain volume information.)</source>
        <translation>{volume_name} 不會備份。（原因：無法取得磁碟區資訊。）</translation>
    </message>
    <message>
        <source>Unable to find the shadow copy of {volume_name}. The operating system might have deleted it. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>找不到 {volume_name} 的陰影複製，可能已被作業系統刪除。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;深入了解&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Starts creating Nimbra Backup data volume.</source>
        <translation>開始建立 Nimbra Backup 資料磁碟區。</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system)</source>
        <translation>{volume_name} 不會備份。（原因：不支援的檔案系統）</translation>
    </message>
    <message>
        <source>Nimbra Backup needs Full Disk Access to take snapshots. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Nimbra Backup 需要「完整磁碟取用權限」才能建立快照。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;了解如何允許&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>無法在 {volume_name} 上執行 asr (Apple Software Restore)。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;深入了解&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Restart your Mac and run First Aid to repair the disk.</source>
        <translation>無法在 {volume_name} 上執行 asr (Apple Software Restore)。請重新啟動 Mac 並執行「急救」修復磁碟。</translation>
    </message>
    <message>
        <source>Allow the system extension of Nimbra Backup in Privacy &amp; Security to continue backing up. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>請在「隱私權與安全性」中允許 Nimbra Backup 的系統延伸功能，以繼續備份。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;了解操作方式&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot find {volume_name} data on Nimbra Backup data volume. Performing full backup instead.</source>
        <translation>在 Nimbra Backup 資料磁碟區上找不到 {volume_name} 的資料。將改為執行完整備份。</translation>
    </message>
    <message>
        <source>Cannot find snapshot of {volume_name}. Performing full backup instead.</source>
        <translation>找不到 {volume_name} 的快照。將改為執行完整備份。</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Performing full backup instead.</source>
        <translation>無法在 {volume_name} 上執行 asr (Apple Software Restore)。將改為執行完整備份。</translation>
    </message>
    <message>
        <source>Starts taking snapshots.</source>
        <translation>開始建立快照。</translation>
    </message>
    <message>
        <source>Finished taking snapshots.</source>
        <translation>快照建立完成。</translation>
    </message>
    <message>
        <source>Backup failed because the backup account on this Mac could not be authenticated. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>無法驗證此 Mac 上的備份帳號，備份失敗。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;深入了解&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to mount {volume_name}. (Reason: Encrypted volumes cannot be mounted.)</source>
        <translation>無法掛載 {volume_name}。（原因：無法掛載加密的磁碟區。）</translation>
    </message>
    <message>
        <source>Backup failed because Nimbra Backup has no Full Disk Access. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Nimbra Backup 沒有「完整磁碟取用權限」，備份失敗。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;了解如何允許&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot mount the default backup volume. Restart your Mac.</source>
        <translation>無法掛載預設備份磁碟區。請重新啟動 Mac。</translation>
    </message>
    <message>
        <source>Keep all versions within the last %1 months</source>
        <translation>保留最近 %1 個月內的所有版本</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>閒置</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就緒</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>正在備份...</translation>
    </message>
    <message>
        <source>Successful</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Partially Successful</source>
        <translation>部分成功</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Restoring...</source>
        <translation>正在還原...</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>正在建立快照...</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在連線...</translation>
    </message>
    <message>
        <source>View backup status</source>
        <translation>檢視備份狀態</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>編輯連線</translation>
    </message>
    <message>
        <source>Sign In Again</source>
        <translation>重新登入</translation>
    </message>
    <message>
        <source>This application is already opened by another user.</source>
        <translation>此應用程式已由其他使用者開啟。</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection and try again.</source>
        <translation>網路連線錯誤。請檢查網路連線後再試一次。</translation>
    </message>
    <message>
        <source>You have used up your quota of capacity. Please contact the administrator for extra space.</source>
        <translation>您的儲存空間配額已用完。請聯絡管理員以取得更多空間。</translation>
    </message>
    <message>
        <source>This device was removed from the account.</source>
        <translation>此裝置已從帳號中移除。</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>代理程式</translation>
    </message>
    <message>
        <source>Nimbra Backup</source>
        <translation>Nimbra Backup</translation>
    </message>
    <message>
        <source>Preparing for backup...</source>
        <translation>正在準備備份...</translation>
    </message>
    <message>
        <source>Failed to upgrade backup service. Please contact Corvana Technical Support for assistance.</source>
        <translation>備份服務升級失敗。請聯絡 Corvana 技術支援。</translation>
    </message>
    <message>
        <source>Upgrading backup service database. Please keep this window open if you wish to launch the agent automatically after upgrade.</source>
        <translation>正在升級備份服務資料庫。若希望升級後自動啟動代理程式，請保持此視窗開啟。</translation>
    </message>
    <message>
        <source>You&apos;re all set for backup. Do you want to back up this device right now?</source>
        <translation>備份已準備就緒。要立即備份此裝置嗎？</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>稍後再說</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Open Nimbra Backup</source>
        <translation>開啟 Nimbra Backup</translation>
    </message>
    <message>
        <source>Closing this application will not stop the backup service.</source>
        <translation>關閉此應用程式不會停止備份服務。</translation>
    </message>
    <message>
        <source>The service cannot be activated normally. Please reboot your device and try again. If the problem remains, please contact Corvana Technical Support.</source>
        <translation>服務無法正常啟動。請重新啟動裝置後再試一次。若問題仍然存在，請聯絡 Corvana 技術支援。</translation>
    </message>
    <message>
        <source>Backup successful</source>
        <translation>備份成功</translation>
    </message>
    <message>
        <source>Your device was backed up.</source>
        <translation>您的裝置已完成備份。</translation>
    </message>
    <message>
        <source>Nimbra Backup %1</source>
        <translation>Nimbra Backup %1</translation>
    </message>
    <message>
        <source>Check the activity logs in the agent for more information.</source>
        <translation>請在代理程式的活動記錄中查看更多資訊。</translation>
    </message>
    <message>
        <source>Storage is almost full</source>
        <translation>儲存空間即將用完</translation>
    </message>
    <message>
        <source>You have used 85% of your total storage (%1).</source>
        <translation>您已使用總儲存空間 (%1) 的 85%。</translation>
    </message>
    <message>
        <source>Storage is full</source>
        <translation>儲存空間已滿</translation>
    </message>
    <message>
        <source>You have used 95% of your total storage (%1).</source>
        <translation>您已使用總儲存空間 (%1) 的 95%。</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation>裝置已移除</translation>
    </message>
    <message>
        <source>This device has been removed from the account. Go to the Nimbra Backup console for more information.</source>
        <translation>此裝置已從帳號中移除。請前往 Nimbra Backup 主控台了解詳情。</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>需要完整磁碟取用權限</translation>
    </message>
    <message>
        <source>Enable Full Disk Access in Privacy &amp; Security.</source>
        <translation>請在「隱私權與安全性」中啟用「完整磁碟取用權限」。</translation>
    </message>
    <message>
        <source>System extension required</source>
        <translation>需要系統延伸功能</translation>
    </message>
    <message>
        <source>Go to Privacy &amp; Security and enable system extensions for Nimbra Backup.</source>
        <translation>請前往「隱私權與安全性」，為 Nimbra Backup 啟用系統延伸功能。</translation>
    </message>
    <message>
        <source>Nimbra Backup console</source>
        <translation>Nimbra Backup 主控台</translation>
    </message>
    <message>
        <source>Recovery Portal</source>
        <translation>復原入口網站</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>剛剛</translation>
    </message>
    <message>
        <source>%1 minute ago</source>
        <translation>%1 分鐘前</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分鐘前</translation>
    </message>
    <message>
        <source>%1 hour ago</source>
        <translation>%1 小時前</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 小時前</translation>
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
        <translation>預計完成</translation>
    </message>
    <message>
        <source>:</source>
        <translation>：</translation>
    </message>
    <message>
        <source>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; processed</source>
        <translation>已處理 &lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>尚未備份</translation>
    </message>
    <message>
        <source>No backup schedule</source>
        <translation>無備份排程</translation>
    </message>
    <message>
        <source>Backup by event</source>
        <translation>依事件備份</translation>
    </message>
    <message>
        <source>Automated daily backup</source>
        <translation>每日自動備份</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>活動</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>日期與時間</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Last backup:</source>
        <translation>上次備份：</translation>
    </message>
    <message>
        <source>Next backup:</source>
        <translation>下次備份：</translation>
    </message>
    <message>
        <source>Protect your device with Nimbra Backup</source>
        <translation>使用 Nimbra Backup 保護您的裝置</translation>
    </message>
    <message>
        <source>Nimbra Backup provides protection for the entire device. All data, applications, and system configurations will be backed up according to your schedules.</source>
        <translation>Nimbra Backup 為整台裝置提供保護。所有資料、應用程式和系統設定都會依照您的排程備份。</translation>
    </message>
    <message>
        <source>Let&apos;s Start</source>
        <translation>開始使用</translation>
    </message>
    <message>
        <source>Sign in on your browser</source>
        <translation>在瀏覽器中登入</translation>
    </message>
    <message>
        <source>We&apos;ve opened a new browser tab for you to sign in. Then, we will guide you to the next step.</source>
        <translation>我們已為您開啟新的瀏覽器分頁以便登入，接著會引導您進行下一步。</translation>
    </message>
    <message>
        <source>Connecting to server...&#xa0;</source>
        <translation>正在連線至伺服器...&#xa0;</translation>
    </message>
    <message>
        <source>Server connection error. Try again later.</source>
        <translation>伺服器連線錯誤。請稍後再試。</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection.</source>
        <translation>網路連線錯誤。請檢查網路連線。</translation>
    </message>
    <message>
        <source>The current version of the agent is older. Please update the agent.</source>
        <translation>目前的代理程式版本過舊。請更新代理程式。</translation>
    </message>
    <message>
        <source>Login status error. Make sure you installed the latest version of the agent and sign in again.</source>
        <translation>登入狀態錯誤。請確認已安裝最新版本的代理程式，然後重新登入。</translation>
    </message>
    <message>
        <source>Invalid certificate. Run Windows Update to renew your certificate. Refer to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;Knowledge Center&lt;/a&gt;.</source>
        <translation>憑證無效。請執行 Windows Update 以更新憑證。請參閱&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;知識中心&lt;/a&gt;。</translation>
    </message>
    <message>
        <source>This device conflicts with another device. Sign in again if you want to back up this device instead of the other one. Please note that the other device will no longer be backed up after that.</source>
        <translation>此裝置與另一台裝置衝突。若要改為備份此裝置而非另一台裝置，請重新登入。請注意，之後另一台裝置將不再備份。</translation>
    </message>
    <message>
        <source>Authentication failed. Sign out from the agent and sign in again.</source>
        <translation>驗證失敗。請從代理程式登出後重新登入。</translation>
    </message>
    <message>
        <source>Device time incorrect. Sync the device time before the next backup.</source>
        <translation>裝置時間不正確。請在下次備份前同步裝置時間。</translation>
    </message>
    <message>
        <source>You haven&apos;t set up the Nimbra Encryption Key. You must set it up on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt; before starting to back up devices.</source>
        <translation>您尚未設定 Nimbra 加密金鑰。開始備份裝置前，必須先在&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;主控台&lt;/a&gt;上完成設定。</translation>
    </message>
    <message>
        <source>You haven&apos;t finish setting the Nimbra Encryption Key. Go to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup console&lt;/a&gt; to complete the setup.</source>
        <translation>您尚未完成 Nimbra 加密金鑰的設定。請前往&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup 主控台&lt;/a&gt;完成設定。</translation>
    </message>
    <message>
        <source>Almost there</source>
        <translation>即將完成</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Backup Policy</source>
        <translation>備份原則</translation>
    </message>
    <message>
        <source>Data Center</source>
        <translation>資料中心</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>備份排程</translation>
    </message>
    <message>
        <source>Backup scope</source>
        <translation>備份範圍</translation>
    </message>
    <message>
        <source>More details can be found on the console.</source>
        <translation>更多詳細資訊請參閱主控台。</translation>
    </message>
    <message>
        <source>Default policy (personal computer)</source>
        <translation>預設原則（個人電腦）</translation>
    </message>
    <message>
        <source>Default policy (physical server)</source>
        <translation>預設原則（實體伺服器）</translation>
    </message>
    <message>
        <source>We will back up this device right after finishing setting up the agent. You can configure backup policies on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt;.</source>
        <translation>代理程式設定完成後，我們會立即備份此裝置。您可以在&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;主控台&lt;/a&gt;上設定備份原則。</translation>
    </message>
    <message>
        <source>North America - Seattle</source>
        <translation>北美 - 西雅圖</translation>
    </message>
    <message>
        <source>Europe - Frankfurt</source>
        <translation>歐洲 - 法蘭克福</translation>
    </message>
    <message>
        <source>APAC - Taiwan</source>
        <translation>亞太 - 台灣</translation>
    </message>
    <message>
        <source>Entire device (external drives included)</source>
        <translation>整台裝置（包含外接磁碟機）</translation>
    </message>
    <message>
        <source>Entire device</source>
        <translation>整台裝置</translation>
    </message>
    <message>
        <source>System volume</source>
        <translation>系統磁碟區</translation>
    </message>
    <message>
        <source>Specified volumes (%1)</source>
        <translation>指定的磁碟區 (%1)</translation>
    </message>
    <message>
        <source>Backed up daily at %1</source>
        <translation>每天 %1 備份</translation>
    </message>
    <message>
        <source>Weekly (%2 every %1)</source>
        <translation>每週（每%1 %2）</translation>
    </message>
    <message>
        <source>Screen lock</source>
        <translation>螢幕鎖定</translation>
    </message>
    <message>
        <source>Signout</source>
        <translation>登出</translation>
    </message>
    <message>
        <source>Device power on</source>
        <translation>裝置開機</translation>
    </message>
    <message>
        <source>By event: %1</source>
        <translation>依事件：%1</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>限制為</translation>
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
        <translation>每天在特定時段內限制上傳速度</translation>
    </message>
    <message>
        <source>(Custom)</source>
        <translation>（自訂）</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Data upload speed</source>
        <translation>資料上傳速度</translation>
    </message>
    <message>
        <source>Limit the upload speed to prevent backups from taking up your bandwidth. The speed limit will be applied within minutes after you save the settings.</source>
        <translation>限制上傳速度，避免備份佔用您的頻寬。儲存設定後，速度限制會在幾分鐘內生效。</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>隔天</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hours</source>
        <translation>注意：上傳 100 GB 資料最多可能需要 %1 小時</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hour</source>
        <translation>注意：上傳 100 GB 資料最多可能需要 %1 小時</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minute</source>
        <translation>注意：上傳 100 GB 資料最多可能需要 %1 分鐘</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minutes</source>
        <translation>注意：上傳 100 GB 資料最多可能需要 %1 分鐘</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt; every day. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;注意：&lt;/span&gt;您的組織將上傳速度設為每天 &lt;b&gt;%2 至 %3 之間最高 %1 Mbps&lt;/b&gt;。若您在此設定其他限制，系統將採用兩者中較低的限制。</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt;. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;注意：&lt;/span&gt;您的組織將上傳速度設為 &lt;b&gt;%2 至 %3 之間最高 %1 Mbps&lt;/b&gt;。若您在此設定其他限制，系統將採用兩者中較低的限制。</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>服務條款</translation>
    </message>
    <message>
        <source>Privacy Statement</source>
        <translation>隱私權聲明</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Error&#xa0;</source>
        <translation>錯誤&#xa0;</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>End at</source>
        <translation>結束時間</translation>
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
        <translation>分鐘</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>分鐘</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>小時</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>小時</translation>
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
        <translation>深入了解</translation>
    </message>
    <message>
        <source>Knowledge Center</source>
        <translation>知識中心</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>尚未設定</translation>
    </message>
    <message>
        <source>Service not reachable</source>
        <translation>無法連線至服務</translation>
    </message>
    <message>
        <source>Last backup: %1, %2</source>
        <translation>上次備份：%1，%2</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>立即備份</translation>
    </message>
    <message>
        <source>A backup is running</source>
        <translation>備份正在進行中</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
</context>
</TS>
