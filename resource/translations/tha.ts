<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>ออก</translation>
    </message>
    <message>
        <source>Copyright © %1 Corvana Inc.\nAll rights reserved.</source>
        <translation>Copyright © %1 Corvana Inc.\nสงวนลิขสิทธิ์</translation>
    </message>
    <message>
        <source>Once log out, connection from this device will be cut off. Are you sure you want to continue?</source>
        <translation>เมื่อออกจากระบบ อุปกรณ์นี้จะถูกตัดการเชื่อมต่อ ต้องการดำเนินการต่อหรือไม่</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ความช่วยเหลือ</translation>
    </message>
    <message>
        <source>Log out</source>
        <translation>ออกจากระบบ</translation>
    </message>
    <message>
        <source>About</source>
        <translation>เกี่ยวกับ</translation>
    </message>
    <message>
        <source>Unable to perform this action because the network connection is unstable or the service is busy. Try again later.</source>
        <translation>ไม่สามารถดำเนินการนี้ได้ เนื่องจากการเชื่อมต่อเครือข่ายไม่เสถียรหรือบริการไม่ว่าง โปรดลองอีกครั้งในภายหลัง</translation>
    </message>
    <message>
        <source>Backup task started.</source>
        <translation>เริ่มงานสำรองข้อมูลแล้ว</translation>
    </message>
    <message>
        <source>Backup task was complete.</source>
        <translation>งานสำรองข้อมูลเสร็จสมบูรณ์</translation>
    </message>
    <message>
        <source>Backup task was canceled.</source>
        <translation>ยกเลิกงานสำรองข้อมูลแล้ว</translation>
    </message>
    <message>
        <source>Backup task failed.</source>
        <translation>งานสำรองข้อมูลล้มเหลว</translation>
    </message>
    <message>
        <source>Backup task was partially successful.</source>
        <translation>งานสำรองข้อมูลสำเร็จบางส่วน</translation>
    </message>
    <message>
        <source>The scheduled backup didn&apos;t start because the device is already backing up.</source>
        <translation>การสำรองข้อมูลตามกำหนดการไม่ได้เริ่ม เนื่องจากอุปกรณ์กำลังสำรองข้อมูลอยู่</translation>
    </message>
    <message>
        <source>Retrieving device information.</source>
        <translation>กำลังดึงข้อมูลอุปกรณ์</translation>
    </message>
    <message>
        <source>Starting to upload device information.</source>
        <translation>เริ่มอัปโหลดข้อมูลอุปกรณ์</translation>
    </message>
    <message>
        <source>Device information successfully uploaded.</source>
        <translation>อัปโหลดข้อมูลอุปกรณ์สำเร็จ</translation>
    </message>
    <message>
        <source>Unable to upload the device information. Please check the network settings and try again later.</source>
        <translation>ไม่สามารถอัปโหลดข้อมูลอุปกรณ์ได้ โปรดตรวจสอบการตั้งค่าเครือข่ายแล้วลองอีกครั้งในภายหลัง</translation>
    </message>
    <message>
        <source>The agent failed to be updated.</source>
        <translation>อัปเดตโปรแกรมไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Successfully executed the pre-freeze script.</source>
        <translation>เรียกใช้สคริปต์ก่อนการตรึงสำเร็จ</translation>
    </message>
    <message>
        <source>Successfully executed the post-thaw script.</source>
        <translation>เรียกใช้สคริปต์หลังการคลายตรึงสำเร็จ</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script files on the client device.</source>
        <translation>ไม่สามารถเข้าถึงไฟล์สคริปต์ก่อนตรึง/หลังคลายตรึงบนอุปกรณ์ไคลเอ็นต์ได้</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script file on Nimbra Backup.</source>
        <translation>ไม่สามารถเข้าถึงไฟล์สคริปต์ก่อนตรึง/หลังคลายตรึงบน Nimbra Backup ได้</translation>
    </message>
    <message>
        <source>The size of the pre-freeze/post-thaw script files exceeds the 32 KB limit.</source>
        <translation>ไฟล์สคริปต์ก่อนตรึง/หลังคลายตรึงมีขนาดเกินขีดจำกัด 32 KB</translation>
    </message>
    <message>
        <source>Unable to upload the script output.</source>
        <translation>ไม่สามารถอัปโหลดผลลัพธ์ของสคริปต์ได้</translation>
    </message>
    <message>
        <source>No available volume to take snapshot for.</source>
        <translation>ไม่มีไดรฟ์ข้อมูลที่สามารถสร้างสแนปชอตได้</translation>
    </message>
    <message>
        <source>Backup task failed because the device time was incorrect. Sync the device time and try again.</source>
        <translation>งานสำรองข้อมูลล้มเหลว เนื่องจากเวลาของอุปกรณ์ไม่ถูกต้อง โปรดซิงค์เวลาของอุปกรณ์แล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Backup task was canceled because Nimbra Backup agent restarted. Possible reasons: Device reboot or unexpected shutdown.</source>
        <translation>ยกเลิกงานสำรองข้อมูลแล้ว เนื่องจากโปรแกรม Nimbra Backup เริ่มทำงานใหม่ สาเหตุที่เป็นไปได้: อุปกรณ์เริ่มระบบใหม่หรือปิดเครื่องโดยไม่คาดคิด</translation>
    </message>
    <message>
        <source>Backup cannot continue until the System Management Controller (SMC) of this Mac is reset. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>การสำรองข้อมูลจะดำเนินการต่อไม่ได้จนกว่าจะตั้งค่าใหม่ให้กับ System Management Controller (SMC) ของ Mac เครื่องนี้ &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;ดูวิธีการ&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Insufficient storage on local disk.</source>
        <translation>พื้นที่บนดิสก์ในเครื่องไม่เพียงพอ</translation>
    </message>
    <message>
        <source>No permissions to the local disk.</source>
        <translation>ไม่มีสิทธิ์เข้าถึงดิสก์ในเครื่อง</translation>
    </message>
    <message>
        <source>Insufficient directory quota.</source>
        <translation>โควตาไดเรกทอรีไม่เพียงพอ</translation>
    </message>
    <message>
        <source>Local file system is read-only.</source>
        <translation>ระบบไฟล์ในเครื่องเป็นแบบอ่านอย่างเดียว</translation>
    </message>
    <message>
        <source>Local disk I/O error.</source>
        <translation>ข้อผิดพลาด I/O ของดิสก์ในเครื่อง</translation>
    </message>
    <message>
        <source>Local backup file corrupted.</source>
        <translation>ไฟล์สำรองข้อมูลในเครื่องเสียหาย</translation>
    </message>
    <message>
        <source>Nimbra Backup storage limit already reached.</source>
        <translation>ใช้พื้นที่จัดเก็บของ Nimbra Backup ถึงขีดจำกัดแล้ว</translation>
    </message>
    <message>
        <source>Insufficient system memory.</source>
        <translation>หน่วยความจำระบบไม่เพียงพอ</translation>
    </message>
    <message>
        <source>Unable to connect to the Nimbra Backup server.</source>
        <translation>ไม่สามารถเชื่อมต่อกับเซิร์ฟเวอร์ Nimbra Backup ได้</translation>
    </message>
    <message>
        <source>DNS resolution failed.</source>
        <translation>การแปลงชื่อ DNS ล้มเหลว</translation>
    </message>
    <message>
        <source>Network socket couldn&apos;t receive data because the Nimbra Backup server is busy.</source>
        <translation>ซ็อกเก็ตเครือข่ายไม่ได้รับข้อมูล เนื่องจากเซิร์ฟเวอร์ Nimbra Backup ไม่ว่าง</translation>
    </message>
    <message>
        <source>Account or password authentication failed.</source>
        <translation>การยืนยันตัวตนของบัญชีหรือรหัสผ่านล้มเหลว</translation>
    </message>
    <message>
        <source>The backup agent requires an update. Download the latest version of the agent from the Nimbra Backup console.</source>
        <translation>ต้องอัปเดตโปรแกรมสำรองข้อมูล โปรดดาวน์โหลดโปรแกรมเวอร์ชันล่าสุดจากคอนโซล Nimbra Backup</translation>
    </message>
    <message>
        <source>Unauthorized account. Contact your Nimbra Backup administrator and sign in again.</source>
        <translation>บัญชีไม่ได้รับอนุญาต โปรดติดต่อผู้ดูแลระบบ Nimbra Backup แล้วลงชื่อเข้าใช้อีกครั้ง</translation>
    </message>
    <message>
        <source>Backup task triggered by {trigger_event}.</source>
        <translation>งานสำรองข้อมูลเริ่มจาก {trigger_event}</translation>
    </message>
    <message>
        <source>Backup task {task} is not allowed to be run during this period of time due to the configured backup window.</source>
        <translation>งานสำรองข้อมูล {task} ไม่สามารถทำงานในช่วงเวลานี้ได้ เนื่องจากช่วงเวลาสำรองข้อมูลที่ตั้งไว้</translation>
    </message>
    <message>
        <source>Task {task} was canceled by the configured backup window.</source>
        <translation>งาน {task} ถูกยกเลิกตามช่วงเวลาสำรองข้อมูลที่ตั้งไว้</translation>
    </message>
    <message>
        <source>Task {task} was resumed due to the configured backup window.</source>
        <translation>งาน {task} ทำงานต่อตามช่วงเวลาสำรองข้อมูลที่ตั้งไว้</translation>
    </message>
    <message>
        <source>Restore task started.</source>
        <translation>เริ่มงานกู้คืนแล้ว</translation>
    </message>
    <message>
        <source>Restore task was canceled.</source>
        <translation>ยกเลิกงานกู้คืนแล้ว</translation>
    </message>
    <message>
        <source>Restore task was complete.</source>
        <translation>งานกู้คืนเสร็จสมบูรณ์</translation>
    </message>
    <message>
        <source>Restore task failed.</source>
        <translation>งานกู้คืนล้มเหลว</translation>
    </message>
    <message>
        <source>Restore task was partially complete.</source>
        <translation>งานกู้คืนเสร็จสมบูรณ์บางส่วน</translation>
    </message>
    <message>
        <source>Account %1 was signed in.</source>
        <translation>บัญชี %1 ลงชื่อเข้าใช้แล้ว</translation>
    </message>
    <message>
        <source>Restore path {path} restored.</source>
        <translation>กู้คืนพาธ {path} แล้ว</translation>
    </message>
    <message>
        <source>The path {path} was skipped (path already exists).</source>
        <translation>ข้ามพาธ {path} แล้ว (มีพาธนี้อยู่แล้ว)</translation>
    </message>
    <message>
        <source>The path {path} was overwritten (path already exists).</source>
        <translation>เขียนทับพาธ {path} แล้ว (มีพาธนี้อยู่แล้ว)</translation>
    </message>
    <message>
        <source>Failed to create the restore path {path}.</source>
        <translation>สร้างพาธสำหรับกู้คืน {path} ไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Unsupported file type: {path}</source>
        <translation>ไม่รองรับประเภทไฟล์: {path}</translation>
    </message>
    <message>
        <source>No permission to restore path {path} because it might be protected by operating system settings, anti-virus software, or others.</source>
        <translation>ไม่มีสิทธิ์กู้คืนพาธ {path} เนื่องจากอาจถูกป้องกันโดยการตั้งค่าระบบปฏิบัติการ ซอฟต์แวร์ป้องกันไวรัส หรืออื่นๆ</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to restore path {path}.</source>
        <translation>รหัสข้อผิดพลาด {error_code}: กู้คืนพาธ {path} ไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Failed to restore the metadata of {path}.</source>
        <translation>กู้คืนข้อมูลเมตาของ {path} ไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Starting to take a snapshot for {volume_name}.</source>
        <translation>เริ่มสร้างสแนปชอตของ {volume_name}</translation>
    </message>
    <message>
        <source>Snapshot for {volume_name} successfully taken.</source>
        <translation>สร้างสแนปชอตของ {volume_name} สำเร็จ</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}.</source>
        <translation>รหัสข้อผิดพลาด {error_code}: สร้างสแนปชอตของ {volume_name} ไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Starting to take a snapshot set for {volume_name}.</source>
        <translation>เริ่มสร้างชุดสแนปชอตของ {volume_name}</translation>
    </message>
    <message>
        <source>Snapshot set for {volume_name} successfully taken.</source>
        <translation>สร้างชุดสแนปชอตของ {volume_name} สำเร็จ</translation>
    </message>
    <message>
        <source>Failed to take snapshot set for {volume_name}. Retrying.</source>
        <translation>สร้างชุดสแนปชอตของ {volume_name} ไม่สำเร็จ กำลังลองใหม่</translation>
    </message>
    <message>
        <source>Reading and uploading the volume content of {volume_name}.</source>
        <translation>กำลังอ่านและอัปโหลดเนื้อหาของไดรฟ์ข้อมูล {volume_name}</translation>
    </message>
    <message>
        <source>Successfully read the content of volume {volume_name}.</source>
        <translation>อ่านเนื้อหาของไดรฟ์ข้อมูล {volume_name} สำเร็จ</translation>
    </message>
    <message>
        <source>Failed to read and upload the volume content of {volume_name}.</source>
        <translation>อ่านและอัปโหลดเนื้อหาของไดรฟ์ข้อมูล {volume_name} ไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors.</source>
        <translation>รหัสข้อผิดพลาด {error_code}: อ่านสแนปชอตไม่สำเร็จ โปรดตรวจสอบและแก้ไขข้อผิดพลาดของดิสก์</translation>
    </message>
    <message>
        <source>Unable to find the snapshot of {volume_name}. The snapshot might be deleted by the operating system, third-party applications, or other reasons. Please try to back up again.</source>
        <translation>ไม่พบสแนปชอตของ {volume_name} สแนปชอตอาจถูกลบโดยระบบปฏิบัติการ แอปของบุคคลที่สาม หรือสาเหตุอื่น โปรดลองสำรองข้อมูลอีกครั้ง</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported dynamic volume type)</source>
        <translation>{volume_name} จะไม่ถูกสำรองข้อมูล (สาเหตุ: ไม่รองรับประเภทไดรฟ์ข้อมูลแบบไดนามิก)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported file system type)</source>
        <translation>{volume_name} จะไม่ถูกสำรองข้อมูล (สาเหตุ: ไม่รองรับประเภทระบบไฟล์)</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions.</source>
        <translation>รหัสข้อผิดพลาด {error_code}: สำรองข้อมูล {volume_name} ไม่สำเร็จ เนื่องจากถูกปฏิเสธการเข้าถึง โปรดตรวจสอบสิทธิ์ของสแนปชอต</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>รหัสข้อผิดพลาด {error_code}: สำรองข้อมูล {volume_name} ไม่สำเร็จ เนื่องจากไม่พบเซกเตอร์ โปรดติดต่อฝ่ายสนับสนุนทางเทคนิคของ Corvana</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>รหัสข้อผิดพลาด {error_code}: สำรองข้อมูล {volume_name} ไม่สำเร็จ เนื่องจากไม่พบพาธ โปรดติดต่อฝ่ายสนับสนุนทางเทคนิคของ Corvana</translation>
    </message>
    <message>
        <source>Failed to back up {volume_name}. (Reason: invalid function, Error Code: {error_code}) Please contact Corvana Technical Support for assistance.</source>
        <translation>สำรองข้อมูล {volume_name} ไม่สำเร็จ (สาเหตุ: ฟังก์ชันไม่ถูกต้อง รหัสข้อผิดพลาด: {error_code}) โปรดติดต่อฝ่ายสนับสนุนทางเทคนิคของ Corvana</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open {volume_name}. Contact Corvana Technical Support for assistance.</source>
        <translation>รหัสข้อผิดพลาด {error_code}: เปิด {volume_name} ไม่สำเร็จ โปรดติดต่อฝ่ายสนับสนุนทางเทคนิคของ Corvana</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the device is busy.</source>
        <translation>รหัสข้อผิดพลาด {error_code}: สำรองข้อมูล {volume_name} ไม่สำเร็จ เนื่องจากอุปกรณ์ไม่ว่าง</translation>
    </message>
    <message>
        <source>Terminated the pre-freeze script {script_result_path} because it timed out.</source>
        <translation>หยุดสคริปต์ก่อนตรึง {script_result_path} แล้ว เนื่องจากหมดเวลา</translation>
    </message>
    <message>
        <source>Terminated the post-thaw script {script_result_path} because it timed out.</source>
        <translation>หยุดสคริปต์หลังคลายตรึง {script_result_path} แล้ว เนื่องจากหมดเวลา</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}. Make sure the Volume Shadow Copy service is running and the volume has enough free space. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>รหัสข้อผิดพลาด {error_code}: สร้างสแนปชอตของ {volume_name} ไม่สำเร็จ โปรดตรวจสอบว่าบริการ Volume Shadow Copy ทำงานอยู่และไดรฟ์ข้อมูลมีพื้นที่ว่างเพียงพอ &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;ดูข้อมูลเพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors, then back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>รหัสข้อผิดพลาด {error_code}: อ่านสแนปชอตไม่สำเร็จ โปรดแก้ไขข้อผิดพลาดของดิสก์ แล้วสำรองข้อมูลอีกครั้ง &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;ดูข้อมูลเพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open the snapshot of {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>รหัสข้อผิดพลาด {error_code}: เปิดสแนปชอตของ {volume_name} ไม่สำเร็จ &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;ดูข้อมูลเพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>รหัสข้อผิดพลาด {error_code}: สำรองข้อมูล {volume_name} ไม่สำเร็จ เนื่องจากถูกปฏิเสธการเข้าถึง โปรดตรวจสอบสิทธิ์ของสแนปชอต &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;ดูข้อมูลเพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>รหัสข้อผิดพลาด {error_code}: สำรองข้อมูล {volume_name} ไม่สำเร็จ เนื่องจากไม่พบเซกเตอร์ &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;ดูข้อมูลเพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>รหัสข้อผิดพลาด {error_code}: สำรองข้อมูล {volume_name} ไม่สำเร็จ เนื่องจากไม่พบพาธ &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;ดูข้อมูลเพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because of an invalid function. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>รหัสข้อผิดพลาด {error_code}: สำรองข้อมูล {volume_name} ไม่สำเร็จ เนื่องจากฟังก์ชันไม่ถูกต้อง &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;ดูข้อมูลเพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>The specified volume in the %1 policy wasn&apos;t backed up. It doesn&apos;t exist on the device.</source>
        <translation>ไดรฟ์ข้อมูลที่ระบุในนโยบาย %1 ไม่ได้รับการสำรองข้อมูล เนื่องจากไม่มีอยู่บนอุปกรณ์</translation>
    </message>
    <message>
        <source>The file system check of {volume_name} found errors. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>การตรวจสอบระบบไฟล์ของ {volume_name} พบข้อผิดพลาด โปรดซ่อมแซมไดรฟ์ข้อมูลแล้วสำรองข้อมูลอีกครั้ง &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;ดูข้อมูลเพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Inode {inode_number} on {volume_name} is corrupted. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>Inode {inode_number} บน {volume_name} เสียหาย โปรดซ่อมแซมไดรฟ์ข้อมูลแล้วสำรองข้อมูลอีกครั้ง &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;ดูข้อมูลเพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because folder {parent_path} does not exist.</source>
        <translation>สร้างพาธสำหรับกู้คืน {path} ไม่สำเร็จ เนื่องจากไม่มีโฟลเดอร์ {parent_path}</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because it conflicts with the file in {parent_path}.</source>
        <translation>สร้างพาธสำหรับกู้คืน {path} ไม่สำเร็จ เนื่องจากขัดแย้งกับไฟล์ใน {parent_path}</translation>
    </message>
    <message>
        <source>{volume_name} has a bad cluster in {interval_start} - {interval_end}. The interval is skipped.</source>
        <translation>{volume_name} มีคลัสเตอร์เสียในช่วง {interval_start} - {interval_end} ข้ามช่วงนี้แล้ว</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of pre-freeze script {script_result_path}.</source>
        <translation>รหัสการออก {exit_code}: ละเว้นการเรียกใช้สคริปต์ก่อนตรึง {script_result_path} ที่ไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Cannot execute the pre-freeze script {script_result_path}.</source>
        <translation>รหัสการออก {exit_code}: ไม่สามารถเรียกใช้สคริปต์ก่อนตรึง {script_result_path}</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of post-thaw script {script_result_path}.</source>
        <translation>รหัสการออก {exit_code}: ละเว้นการเรียกใช้สคริปต์หลังคลายตรึง {script_result_path} ที่ไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Unable to execute the post-thaw script {script_result_path}.</source>
        <translation>รหัสการออก {exit_code}: ไม่สามารถเรียกใช้สคริปต์หลังคลายตรึง {script_result_path}</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported removable media.)</source>
        <translation>{volume_name} จะไม่ถูกสำรองข้อมูล (สาเหตุ: ไม่รองรับสื่อแบบถอดได้)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: External hard drive is excluded in the task.)</source>
        <translation>{volume_name} จะไม่ถูกสำรองข้อมูล (สาเหตุ: งานนี้ไม่รวมฮาร์ดไดรฟ์ภายนอก)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk bus type.)</source>
        <translation>{volume_name} จะไม่ถูกสำรองข้อมูล (สาเหตุ: ไม่รองรับประเภทบัสของดิสก์)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk type.)</source>
        <translation>{volume_name} จะไม่ถูกสำรองข้อมูล (สาเหตุ: ไม่รองรับประเภทดิสก์)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system.)</source>
        <translation>{volume_name} จะไม่ถูกสำรองข้อมูล (สาเหตุ: ไม่รองรับระบบไฟล์)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unidentified file system.)</source>
        <translation>{volume_name} จะไม่ถูกสำรองข้อมูล (สาเหตุ: ไม่รู้จักระบบไฟล์)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unable to obtain volume information.)</source>
        <translation>{volume_name} จะไม่ถูกสำรองข้อมูล (สาเหตุ: ไม่สามารถดึงข้อมูลไดรฟ์ข้อมูลได้)</translation>
    </message>
    <message>
        <source>Unable to find the shadow copy of {volume_name}. The operating system might have deleted it. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>ไม่พบ Shadow Copy ของ {volume_name} ระบบปฏิบัติการอาจลบไปแล้ว &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;ดูข้อมูลเพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Starts creating Nimbra Backup data volume.</source>
        <translation>เริ่มสร้างไดรฟ์ข้อมูลของ Nimbra Backup</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system)</source>
        <translation>{volume_name} จะไม่ถูกสำรองข้อมูล (สาเหตุ: ไม่รองรับระบบไฟล์)</translation>
    </message>
    <message>
        <source>Nimbra Backup needs Full Disk Access to take snapshots. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Nimbra Backup ต้องได้รับสิทธิ์เข้าถึงดิสก์เต็มรูปแบบเพื่อสร้างสแนปชอต &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;ดูวิธีอนุญาต&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>เรียกใช้ asr (Apple Software Restore) บน {volume_name} ไม่สำเร็จ &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;ดูข้อมูลเพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Restart your Mac and run First Aid to repair the disk.</source>
        <translation>เรียกใช้ asr (Apple Software Restore) บน {volume_name} ไม่สำเร็จ โปรดเริ่มระบบ Mac ใหม่ แล้วใช้ First Aid ซ่อมแซมดิสก์</translation>
    </message>
    <message>
        <source>Allow the system extension of Nimbra Backup in Privacy &amp; Security to continue backing up. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>โปรดอนุญาตส่วนขยายระบบของ Nimbra Backup ใน ความเป็นส่วนตัวและความปลอดภัย เพื่อสำรองข้อมูลต่อ &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;ดูวิธีการ&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot find {volume_name} data on Nimbra Backup data volume. Performing full backup instead.</source>
        <translation>ไม่พบข้อมูลของ {volume_name} บนไดรฟ์ข้อมูลของ Nimbra Backup จะสำรองข้อมูลทั้งหมดแทน</translation>
    </message>
    <message>
        <source>Cannot find snapshot of {volume_name}. Performing full backup instead.</source>
        <translation>ไม่พบสแนปชอตของ {volume_name} จะสำรองข้อมูลทั้งหมดแทน</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Performing full backup instead.</source>
        <translation>เรียกใช้ asr (Apple Software Restore) บน {volume_name} ไม่สำเร็จ จะสำรองข้อมูลทั้งหมดแทน</translation>
    </message>
    <message>
        <source>Starts taking snapshots.</source>
        <translation>เริ่มสร้างสแนปชอต</translation>
    </message>
    <message>
        <source>Finished taking snapshots.</source>
        <translation>สร้างสแนปชอตเสร็จแล้ว</translation>
    </message>
    <message>
        <source>Backup failed because the backup account on this Mac could not be authenticated. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>การสำรองข้อมูลล้มเหลว เนื่องจากไม่สามารถยืนยันตัวตนบัญชีสำรองข้อมูลบน Mac เครื่องนี้ได้ &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;ดูข้อมูลเพิ่มเติม&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to mount {volume_name}. (Reason: Encrypted volumes cannot be mounted.)</source>
        <translation>เมานต์ {volume_name} ไม่สำเร็จ (สาเหตุ: ไม่สามารถเมานต์ไดรฟ์ข้อมูลที่เข้ารหัสได้)</translation>
    </message>
    <message>
        <source>Backup failed because Nimbra Backup has no Full Disk Access. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>การสำรองข้อมูลล้มเหลว เนื่องจาก Nimbra Backup ไม่มีสิทธิ์เข้าถึงดิสก์เต็มรูปแบบ &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;ดูวิธีอนุญาต&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot mount the default backup volume. Restart your Mac.</source>
        <translation>ไม่สามารถเมานต์ไดรฟ์ข้อมูลสำรองข้อมูลเริ่มต้นได้ โปรดเริ่มระบบ Mac ใหม่</translation>
    </message>
    <message>
        <source>Keep all versions within the last %1 months</source>
        <translation>เก็บทุกเวอร์ชันภายใน %1 เดือนล่าสุด</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>ว่าง</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>พร้อม</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>กำลังสำรองข้อมูล...</translation>
    </message>
    <message>
        <source>Successful</source>
        <translation>สำเร็จ</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>ล้มเหลว</translation>
    </message>
    <message>
        <source>Partially Successful</source>
        <translation>สำเร็จบางส่วน</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>หยุดชั่วคราว</translation>
    </message>
    <message>
        <source>Restoring...</source>
        <translation>กำลังกู้คืน...</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>กำลังสร้างสแนปชอต...</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>ยกเลิกแล้ว</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>กำลังเชื่อมต่อ...</translation>
    </message>
    <message>
        <source>View backup status</source>
        <translation>ดูสถานะการสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>แก้ไขการเชื่อมต่อ</translation>
    </message>
    <message>
        <source>Sign In Again</source>
        <translation>ลงชื่อเข้าใช้อีกครั้ง</translation>
    </message>
    <message>
        <source>This application is already opened by another user.</source>
        <translation>ผู้ใช้อื่นเปิดแอปพลิเคชันนี้อยู่แล้ว</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection and try again.</source>
        <translation>การเชื่อมต่ออินเทอร์เน็ตผิดพลาด โปรดตรวจสอบการเชื่อมต่ออินเทอร์เน็ตแล้วลองอีกครั้ง</translation>
    </message>
    <message>
        <source>You have used up your quota of capacity. Please contact the administrator for extra space.</source>
        <translation>คุณใช้โควตาพื้นที่จัดเก็บหมดแล้ว โปรดติดต่อผู้ดูแลระบบเพื่อขอพื้นที่เพิ่ม</translation>
    </message>
    <message>
        <source>This device was removed from the account.</source>
        <translation>อุปกรณ์นี้ถูกนำออกจากบัญชีแล้ว</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>โปรแกรม</translation>
    </message>
    <message>
        <source>Nimbra Backup</source>
        <translation>Nimbra Backup</translation>
    </message>
    <message>
        <source>Preparing for backup...</source>
        <translation>กำลังเตรียมสำรองข้อมูล...</translation>
    </message>
    <message>
        <source>Failed to upgrade backup service. Please contact Corvana Technical Support for assistance.</source>
        <translation>อัปเกรดบริการสำรองข้อมูลไม่สำเร็จ โปรดติดต่อฝ่ายสนับสนุนทางเทคนิคของ Corvana</translation>
    </message>
    <message>
        <source>Upgrading backup service database. Please keep this window open if you wish to launch the agent automatically after upgrade.</source>
        <translation>กำลังอัปเกรดฐานข้อมูลของบริการสำรองข้อมูล หากต้องการให้โปรแกรมเปิดโดยอัตโนมัติหลังอัปเกรด โปรดเปิดหน้าต่างนี้ไว้</translation>
    </message>
    <message>
        <source>You&apos;re all set for backup. Do you want to back up this device right now?</source>
        <translation>ทุกอย่างพร้อมสำหรับการสำรองข้อมูลแล้ว ต้องการสำรองข้อมูลอุปกรณ์นี้เลยหรือไม่</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>ไว้ภายหลัง</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>การตั้งค่า</translation>
    </message>
    <message>
        <source>Open Nimbra Backup</source>
        <translation>เปิด Nimbra Backup</translation>
    </message>
    <message>
        <source>Closing this application will not stop the backup service.</source>
        <translation>การปิดแอปพลิเคชันนี้จะไม่หยุดบริการสำรองข้อมูล</translation>
    </message>
    <message>
        <source>The service cannot be activated normally. Please reboot your device and try again. If the problem remains, please contact Corvana Technical Support.</source>
        <translation>ไม่สามารถเริ่มบริการได้ตามปกติ โปรดเริ่มระบบอุปกรณ์ใหม่แล้วลองอีกครั้ง หากยังมีปัญหา โปรดติดต่อฝ่ายสนับสนุนทางเทคนิคของ Corvana</translation>
    </message>
    <message>
        <source>Backup successful</source>
        <translation>สำรองข้อมูลสำเร็จ</translation>
    </message>
    <message>
        <source>Your device was backed up.</source>
        <translation>สำรองข้อมูลอุปกรณ์ของคุณแล้ว</translation>
    </message>
    <message>
        <source>Nimbra Backup %1</source>
        <translation>Nimbra Backup %1</translation>
    </message>
    <message>
        <source>Check the activity logs in the agent for more information.</source>
        <translation>ดูข้อมูลเพิ่มเติมได้ในบันทึกกิจกรรมของโปรแกรม</translation>
    </message>
    <message>
        <source>Storage is almost full</source>
        <translation>พื้นที่จัดเก็บใกล้เต็มแล้ว</translation>
    </message>
    <message>
        <source>You have used 85% of your total storage (%1).</source>
        <translation>คุณใช้พื้นที่จัดเก็บไปแล้ว 85% ของทั้งหมด (%1)</translation>
    </message>
    <message>
        <source>Storage is full</source>
        <translation>พื้นที่จัดเก็บเต็มแล้ว</translation>
    </message>
    <message>
        <source>You have used 95% of your total storage (%1).</source>
        <translation>คุณใช้พื้นที่จัดเก็บไปแล้ว 95% ของทั้งหมด (%1)</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation>นำอุปกรณ์ออกแล้ว</translation>
    </message>
    <message>
        <source>This device has been removed from the account. Go to the Nimbra Backup console for more information.</source>
        <translation>อุปกรณ์นี้ถูกนำออกจากบัญชีแล้ว ดูข้อมูลเพิ่มเติมได้ที่คอนโซล Nimbra Backup</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>ต้องมีสิทธิ์เข้าถึงดิสก์เต็มรูปแบบ</translation>
    </message>
    <message>
        <source>Enable Full Disk Access in Privacy &amp; Security.</source>
        <translation>เปิดสิทธิ์เข้าถึงดิสก์เต็มรูปแบบใน ความเป็นส่วนตัวและความปลอดภัย</translation>
    </message>
    <message>
        <source>System extension required</source>
        <translation>ต้องมีส่วนขยายระบบ</translation>
    </message>
    <message>
        <source>Go to Privacy &amp; Security and enable system extensions for Nimbra Backup.</source>
        <translation>ไปที่ ความเป็นส่วนตัวและความปลอดภัย แล้วเปิดส่วนขยายระบบของ Nimbra Backup</translation>
    </message>
    <message>
        <source>Nimbra Backup console</source>
        <translation>คอนโซล Nimbra Backup</translation>
    </message>
    <message>
        <source>Recovery Portal</source>
        <translation>พอร์ทัลการกู้คืน</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>เมื่อสักครู่</translation>
    </message>
    <message>
        <source>%1 minute ago</source>
        <translation>%1 นาทีที่แล้ว</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 นาทีที่แล้ว</translation>
    </message>
    <message>
        <source>%1 hour ago</source>
        <translation>%1 ชั่วโมงที่แล้ว</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ชั่วโมงที่แล้ว</translation>
    </message>
    <message>
        <source>%1 day ago</source>
        <translation>%1 วันที่แล้ว</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 วันที่แล้ว</translation>
    </message>
    <message>
        <source>Est. finish</source>
        <translation>คาดว่าเสร็จ</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; processed</source>
        <translation>ประมวลผลแล้ว &lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt;</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>ยังไม่ได้สำรองข้อมูล</translation>
    </message>
    <message>
        <source>No backup schedule</source>
        <translation>ไม่มีกำหนดการสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Backup by event</source>
        <translation>สำรองข้อมูลตามเหตุการณ์</translation>
    </message>
    <message>
        <source>Automated daily backup</source>
        <translation>สำรองข้อมูลอัตโนมัติทุกวัน</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>กิจกรรม</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>วันที่และเวลา</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>เหตุการณ์</translation>
    </message>
    <message>
        <source>Last backup:</source>
        <translation>สำรองข้อมูลล่าสุด:</translation>
    </message>
    <message>
        <source>Next backup:</source>
        <translation>สำรองข้อมูลครั้งถัดไป:</translation>
    </message>
    <message>
        <source>Protect your device with Nimbra Backup</source>
        <translation>ปกป้องอุปกรณ์ของคุณด้วย Nimbra Backup</translation>
    </message>
    <message>
        <source>Nimbra Backup provides protection for the entire device. All data, applications, and system configurations will be backed up according to your schedules.</source>
        <translation>Nimbra Backup ปกป้องอุปกรณ์ทั้งเครื่อง ข้อมูล แอปพลิเคชัน และการกำหนดค่าระบบทั้งหมดจะได้รับการสำรองตามกำหนดการของคุณ</translation>
    </message>
    <message>
        <source>Let&apos;s Start</source>
        <translation>เริ่มต้นใช้งาน</translation>
    </message>
    <message>
        <source>Sign in on your browser</source>
        <translation>ลงชื่อเข้าใช้ในเบราว์เซอร์</translation>
    </message>
    <message>
        <source>We&apos;ve opened a new browser tab for you to sign in. Then, we will guide you to the next step.</source>
        <translation>เราได้เปิดแท็บเบราว์เซอร์ใหม่ให้คุณลงชื่อเข้าใช้ จากนั้นเราจะแนะนำขั้นตอนถัดไป</translation>
    </message>
    <message>
        <source>Connecting to server...&#xa0;</source>
        <translation>กำลังเชื่อมต่อกับเซิร์ฟเวอร์...&#xa0;</translation>
    </message>
    <message>
        <source>Server connection error. Try again later.</source>
        <translation>การเชื่อมต่อเซิร์ฟเวอร์ผิดพลาด โปรดลองอีกครั้งในภายหลัง</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection.</source>
        <translation>การเชื่อมต่ออินเทอร์เน็ตผิดพลาด โปรดตรวจสอบการเชื่อมต่ออินเทอร์เน็ต</translation>
    </message>
    <message>
        <source>The current version of the agent is older. Please update the agent.</source>
        <translation>โปรแกรมเวอร์ชันนี้เก่าแล้ว โปรดอัปเดตโปรแกรม</translation>
    </message>
    <message>
        <source>Login status error. Make sure you installed the latest version of the agent and sign in again.</source>
        <translation>สถานะการเข้าสู่ระบบผิดพลาด โปรดตรวจสอบว่าติดตั้งโปรแกรมเวอร์ชันล่าสุดแล้ว แล้วลงชื่อเข้าใช้อีกครั้ง</translation>
    </message>
    <message>
        <source>Invalid certificate. Run Windows Update to renew your certificate. Refer to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;Knowledge Center&lt;/a&gt;.</source>
        <translation>ใบรับรองไม่ถูกต้อง โปรดเรียกใช้ Windows Update เพื่อต่ออายุใบรับรอง ดูที่ &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;ศูนย์ความรู้&lt;/a&gt;</translation>
    </message>
    <message>
        <source>This device conflicts with another device. Sign in again if you want to back up this device instead of the other one. Please note that the other device will no longer be backed up after that.</source>
        <translation>อุปกรณ์นี้ขัดแย้งกับอุปกรณ์อื่น หากต้องการสำรองข้อมูลอุปกรณ์นี้แทนอุปกรณ์อื่น โปรดลงชื่อเข้าใช้อีกครั้ง หลังจากนั้นอุปกรณ์อื่นจะไม่ได้รับการสำรองข้อมูลอีก</translation>
    </message>
    <message>
        <source>Authentication failed. Sign out from the agent and sign in again.</source>
        <translation>การยืนยันตัวตนล้มเหลว โปรดออกจากระบบโปรแกรมแล้วลงชื่อเข้าใช้อีกครั้ง</translation>
    </message>
    <message>
        <source>Device time incorrect. Sync the device time before the next backup.</source>
        <translation>เวลาของอุปกรณ์ไม่ถูกต้อง โปรดซิงค์เวลาของอุปกรณ์ก่อนการสำรองข้อมูลครั้งถัดไป</translation>
    </message>
    <message>
        <source>You haven&apos;t set up the Nimbra Encryption Key. You must set it up on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt; before starting to back up devices.</source>
        <translation>คุณยังไม่ได้ตั้งค่าคีย์เข้ารหัส Nimbra ต้องตั้งค่าใน&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;คอนโซล&lt;/a&gt;ก่อนเริ่มสำรองข้อมูลอุปกรณ์</translation>
    </message>
    <message>
        <source>You haven&apos;t finish setting the Nimbra Encryption Key. Go to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup console&lt;/a&gt; to complete the setup.</source>
        <translation>คุณยังตั้งค่าคีย์เข้ารหัส Nimbra ไม่เสร็จ ไปที่&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;คอนโซล Nimbra Backup&lt;/a&gt;เพื่อตั้งค่าให้เสร็จ</translation>
    </message>
    <message>
        <source>Almost there</source>
        <translation>ใกล้เสร็จแล้ว</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>เสร็จสิ้น</translation>
    </message>
    <message>
        <source>Backup Policy</source>
        <translation>นโยบายการสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Data Center</source>
        <translation>ศูนย์ข้อมูล</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>กำหนดการสำรองข้อมูล</translation>
    </message>
    <message>
        <source>Backup scope</source>
        <translation>ขอบเขตการสำรองข้อมูล</translation>
    </message>
    <message>
        <source>More details can be found on the console.</source>
        <translation>ดูรายละเอียดเพิ่มเติมได้ที่คอนโซล</translation>
    </message>
    <message>
        <source>Default policy (personal computer)</source>
        <translation>นโยบายเริ่มต้น (คอมพิวเตอร์ส่วนบุคคล)</translation>
    </message>
    <message>
        <source>Default policy (physical server)</source>
        <translation>นโยบายเริ่มต้น (เซิร์ฟเวอร์จริง)</translation>
    </message>
    <message>
        <source>We will back up this device right after finishing setting up the agent. You can configure backup policies on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt;.</source>
        <translation>เราจะสำรองข้อมูลอุปกรณ์นี้ทันทีหลังตั้งค่าโปรแกรมเสร็จ คุณกำหนดค่านโยบายการสำรองข้อมูลได้ที่&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;คอนโซล&lt;/a&gt;</translation>
    </message>
    <message>
        <source>North America - Seattle</source>
        <translation>อเมริกาเหนือ - ซีแอตเทิล</translation>
    </message>
    <message>
        <source>Europe - Frankfurt</source>
        <translation>ยุโรป - แฟรงก์เฟิร์ต</translation>
    </message>
    <message>
        <source>APAC - Taiwan</source>
        <translation>เอเชียแปซิฟิก - ไต้หวัน</translation>
    </message>
    <message>
        <source>Entire device (external drives included)</source>
        <translation>ทั้งอุปกรณ์ (รวมไดรฟ์ภายนอก)</translation>
    </message>
    <message>
        <source>Entire device</source>
        <translation>ทั้งอุปกรณ์</translation>
    </message>
    <message>
        <source>System volume</source>
        <translation>ไดรฟ์ข้อมูลระบบ</translation>
    </message>
    <message>
        <source>Specified volumes (%1)</source>
        <translation>ไดรฟ์ข้อมูลที่ระบุ (%1)</translation>
    </message>
    <message>
        <source>Backed up daily at %1</source>
        <translation>สำรองข้อมูลทุกวันเวลา %1</translation>
    </message>
    <message>
        <source>Weekly (%2 every %1)</source>
        <translation>รายสัปดาห์ (ทุก%1 เวลา %2)</translation>
    </message>
    <message>
        <source>Screen lock</source>
        <translation>ล็อกหน้าจอ</translation>
    </message>
    <message>
        <source>Signout</source>
        <translation>ออกจากระบบ</translation>
    </message>
    <message>
        <source>Device power on</source>
        <translation>เปิดเครื่องอุปกรณ์</translation>
    </message>
    <message>
        <source>By event: %1</source>
        <translation>ตามเหตุการณ์: %1</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>สูงสุด</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>จำกัดที่</translation>
    </message>
    <message>
        <source>Minimum: 5; Maximum: 9,999</source>
        <translation>ต่ำสุด: 5; สูงสุด: 9,999</translation>
    </message>
    <message>
        <source>Mbps (%1 MB/s)</source>
        <translation>Mbps (%1 MB/s)</translation>
    </message>
    <message>
        <source>Limit upload speed within a specific time range every day</source>
        <translation>จำกัดความเร็วอัปโหลดในช่วงเวลาที่กำหนดทุกวัน</translation>
    </message>
    <message>
        <source>(Custom)</source>
        <translation>(กำหนดเอง)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>บันทึก</translation>
    </message>
    <message>
        <source>Data upload speed</source>
        <translation>ความเร็วอัปโหลดข้อมูล</translation>
    </message>
    <message>
        <source>Limit the upload speed to prevent backups from taking up your bandwidth. The speed limit will be applied within minutes after you save the settings.</source>
        <translation>จำกัดความเร็วอัปโหลดเพื่อไม่ให้การสำรองข้อมูลใช้แบนด์วิดท์ทั้งหมด การจำกัดความเร็วจะมีผลภายในไม่กี่นาทีหลังบันทึกการตั้งค่า</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>วันถัดไป</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hours</source>
        <translation>ข้อควรทราบ: การอัปโหลดข้อมูล 100 GB อาจใช้เวลาถึง %1 ชั่วโมง</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hour</source>
        <translation>ข้อควรทราบ: การอัปโหลดข้อมูล 100 GB อาจใช้เวลาถึง %1 ชั่วโมง</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minute</source>
        <translation>ข้อควรทราบ: การอัปโหลดข้อมูล 100 GB อาจใช้เวลาถึง %1 นาที</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minutes</source>
        <translation>ข้อควรทราบ: การอัปโหลดข้อมูล 100 GB อาจใช้เวลาถึง %1 นาที</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt; every day. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;หมายเหตุ:&lt;/span&gt;องค์กรของคุณกำหนดความเร็วอัปโหลดสูงสุดไว้ที่ &lt;b&gt;%1 Mbps ระหว่าง %2 ถึง %3&lt;/b&gt; ทุกวัน หากคุณตั้งค่าขีดจำกัดอื่นที่นี่ ระบบจะใช้ขีดจำกัดที่ต่ำกว่า</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt;. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;หมายเหตุ:&lt;/span&gt;องค์กรของคุณกำหนดความเร็วอัปโหลดสูงสุดไว้ที่ &lt;b&gt;%1 Mbps ระหว่าง %2 ถึง %3&lt;/b&gt; หากคุณตั้งค่าขีดจำกัดอื่นที่นี่ ระบบจะใช้ขีดจำกัดที่ต่ำกว่า</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>ข้อกำหนดในการให้บริการ</translation>
    </message>
    <message>
        <source>Privacy Statement</source>
        <translation>นโยบายความเป็นส่วนตัว</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>เวอร์ชัน</translation>
    </message>
    <message>
        <source>Error&#xa0;</source>
        <translation>ข้อผิดพลาด&#xa0;</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>เริ่ม</translation>
    </message>
    <message>
        <source>End at</source>
        <translation>สิ้นสุด</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>วันอาทิตย์</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>วันจันทร์</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>วันอังคาร</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>วันพุธ</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>วันพฤหัสบดี</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>วันศุกร์</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>วันเสาร์</translation>
    </message>
    <message>
        <source>min</source>
        <translation>นาที</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>นาที</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>ชั่วโมง</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>ชั่วโมง</translation>
    </message>
    <message>
        <source>day</source>
        <translation>วัน</translation>
    </message>
    <message>
        <source>days</source>
        <translation>วัน</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>ดูข้อมูลเพิ่มเติม</translation>
    </message>
    <message>
        <source>Knowledge Center</source>
        <translation>ศูนย์ความรู้</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>ยังไม่ได้ตั้งค่า</translation>
    </message>
    <message>
        <source>Service not reachable</source>
        <translation>ไม่สามารถติดต่อบริการได้</translation>
    </message>
    <message>
        <source>Last backup: %1, %2</source>
        <translation>สำรองข้อมูลล่าสุด: %1, %2</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>สำรองข้อมูลตอนนี้</translation>
    </message>
    <message>
        <source>A backup is running</source>
        <translation>กำลังสำรองข้อมูลอยู่</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>คัดลอก</translation>
    </message>
</context>
</TS>
