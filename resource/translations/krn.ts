<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Copyright © %1 Corvana Inc.\nAll rights reserved.</source>
        <translation>Copyright © %1 Corvana Inc.\nAll rights reserved.</translation>
    </message>
    <message>
        <source>Once log out, connection from this device will be cut off. Are you sure you want to continue?</source>
        <translation>로그아웃하면 이 장치의 연결이 끊어집니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Log out</source>
        <translation>로그아웃</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Unable to perform this action because the network connection is unstable or the service is busy. Try again later.</source>
        <translation>네트워크 연결이 불안정하거나 서비스가 사용 중이어서 이 작업을 수행할 수 없습니다. 나중에 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Backup task started.</source>
        <translation>백업 작업이 시작되었습니다.</translation>
    </message>
    <message>
        <source>Backup task was complete.</source>
        <translation>백업 작업이 완료되었습니다.</translation>
    </message>
    <message>
        <source>Backup task was canceled.</source>
        <translation>백업 작업이 취소되었습니다.</translation>
    </message>
    <message>
        <source>Backup task failed.</source>
        <translation>백업 작업이 실패했습니다.</translation>
    </message>
    <message>
        <source>Backup task was partially successful.</source>
        <translation>백업 작업이 부분적으로 성공했습니다.</translation>
    </message>
    <message>
        <source>The scheduled backup didn&apos;t start because the device is already backing up.</source>
        <translation>장치가 이미 백업 중이어서 예약된 백업이 시작되지 않았습니다.</translation>
    </message>
    <message>
        <source>Retrieving device information.</source>
        <translation>장치 정보를 가져오는 중입니다.</translation>
    </message>
    <message>
        <source>Starting to upload device information.</source>
        <translation>장치 정보 업로드를 시작합니다.</translation>
    </message>
    <message>
        <source>Device information successfully uploaded.</source>
        <translation>장치 정보를 업로드했습니다.</translation>
    </message>
    <message>
        <source>Unable to upload the device information. Please check the network settings and try again later.</source>
        <translation>장치 정보를 업로드할 수 없습니다. 네트워크 설정을 확인하고 나중에 다시 시도하세요.</translation>
    </message>
    <message>
        <source>The agent failed to be updated.</source>
        <translation>에이전트를 업데이트하지 못했습니다.</translation>
    </message>
    <message>
        <source>Successfully executed the pre-freeze script.</source>
        <translation>고정 전 스크립트를 실행했습니다.</translation>
    </message>
    <message>
        <source>Successfully executed the post-thaw script.</source>
        <translation>해제 후 스크립트를 실행했습니다.</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script files on the client device.</source>
        <translation>클라이언트 장치의 고정 전/해제 후 스크립트 파일에 액세스할 수 없습니다.</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script file on Nimbra Backup.</source>
        <translation>Nimbra Backup의 고정 전/해제 후 스크립트 파일에 액세스할 수 없습니다.</translation>
    </message>
    <message>
        <source>The size of the pre-freeze/post-thaw script files exceeds the 32 KB limit.</source>
        <translation>고정 전/해제 후 스크립트 파일의 크기가 32 KB 제한을 초과합니다.</translation>
    </message>
    <message>
        <source>Unable to upload the script output.</source>
        <translation>스크립트 출력을 업로드할 수 없습니다.</translation>
    </message>
    <message>
        <source>No available volume to take snapshot for.</source>
        <translation>스냅샷을 만들 수 있는 볼륨이 없습니다.</translation>
    </message>
    <message>
        <source>Backup task failed because the device time was incorrect. Sync the device time and try again.</source>
        <translation>장치 시간이 올바르지 않아 백업 작업이 실패했습니다. 장치 시간을 동기화하고 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Backup task was canceled because Nimbra Backup agent restarted. Possible reasons: Device reboot or unexpected shutdown.</source>
        <translation>Nimbra Backup 에이전트가 다시 시작되어 백업 작업이 취소되었습니다. 가능한 원인: 장치 재부팅 또는 예기치 않은 종료.</translation>
    </message>
    <message>
        <source>Backup cannot continue until the System Management Controller (SMC) of this Mac is reset. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>이 Mac의 시스템 관리 컨트롤러(SMC)를 재설정해야 백업을 계속할 수 있습니다. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;방법 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Insufficient storage on local disk.</source>
        <translation>로컬 디스크 공간이 부족합니다.</translation>
    </message>
    <message>
        <source>No permissions to the local disk.</source>
        <translation>로컬 디스크에 대한 권한이 없습니다.</translation>
    </message>
    <message>
        <source>Insufficient directory quota.</source>
        <translation>디렉터리 할당량이 부족합니다.</translation>
    </message>
    <message>
        <source>Local file system is read-only.</source>
        <translation>로컬 파일 시스템이 읽기 전용입니다.</translation>
    </message>
    <message>
        <source>Local disk I/O error.</source>
        <translation>로컬 디스크 I/O 오류입니다.</translation>
    </message>
    <message>
        <source>Local backup file corrupted.</source>
        <translation>로컬 백업 파일이 손상되었습니다.</translation>
    </message>
    <message>
        <source>Nimbra Backup storage limit already reached.</source>
        <translation>Nimbra Backup 저장 공간 한도에 이미 도달했습니다.</translation>
    </message>
    <message>
        <source>Insufficient system memory.</source>
        <translation>시스템 메모리가 부족합니다.</translation>
    </message>
    <message>
        <source>Unable to connect to the Nimbra Backup server.</source>
        <translation>Nimbra Backup 서버에 연결할 수 없습니다.</translation>
    </message>
    <message>
        <source>DNS resolution failed.</source>
        <translation>DNS 확인에 실패했습니다.</translation>
    </message>
    <message>
        <source>Network socket couldn&apos;t receive data because the Nimbra Backup server is busy.</source>
        <translation>Nimbra Backup 서버가 사용 중이어서 네트워크 소켓이 데이터를 받지 못했습니다.</translation>
    </message>
    <message>
        <source>Account or password authentication failed.</source>
        <translation>계정 또는 비밀번호 인증에 실패했습니다.</translation>
    </message>
    <message>
        <source>The backup agent requires an update. Download the latest version of the agent from the Nimbra Backup console.</source>
        <translation>백업 에이전트를 업데이트해야 합니다. Nimbra Backup 콘솔에서 최신 버전의 에이전트를 다운로드하세요.</translation>
    </message>
    <message>
        <source>Unauthorized account. Contact your Nimbra Backup administrator and sign in again.</source>
        <translation>권한이 없는 계정입니다. Nimbra Backup 관리자에게 문의한 후 다시 로그인하세요.</translation>
    </message>
    <message>
        <source>Backup task triggered by {trigger_event}.</source>
        <translation>{trigger_event}(으)로 백업 작업이 시작되었습니다.</translation>
    </message>
    <message>
        <source>Backup task {task} is not allowed to be run during this period of time due to the configured backup window.</source>
        <translation>설정된 백업 시간대로 인해 백업 작업 {task}을(를) 이 시간에 실행할 수 없습니다.</translation>
    </message>
    <message>
        <source>Task {task} was canceled by the configured backup window.</source>
        <translation>설정된 백업 시간대로 인해 작업 {task}이(가) 취소되었습니다.</translation>
    </message>
    <message>
        <source>Task {task} was resumed due to the configured backup window.</source>
        <translation>설정된 백업 시간대에 따라 작업 {task}이(가) 재개되었습니다.</translation>
    </message>
    <message>
        <source>Restore task started.</source>
        <translation>복원 작업이 시작되었습니다.</translation>
    </message>
    <message>
        <source>Restore task was canceled.</source>
        <translation>복원 작업이 취소되었습니다.</translation>
    </message>
    <message>
        <source>Restore task was complete.</source>
        <translation>복원 작업이 완료되었습니다.</translation>
    </message>
    <message>
        <source>Restore task failed.</source>
        <translation>복원 작업이 실패했습니다.</translation>
    </message>
    <message>
        <source>Restore task was partially complete.</source>
        <translation>복원 작업이 부분적으로 완료되었습니다.</translation>
    </message>
    <message>
        <source>Account %1 was signed in.</source>
        <translation>계정 %1(으)로 로그인했습니다.</translation>
    </message>
    <message>
        <source>Restore path {path} restored.</source>
        <translation>경로 {path}을(를) 복원했습니다.</translation>
    </message>
    <message>
        <source>The path {path} was skipped (path already exists).</source>
        <translation>경로 {path}을(를) 건너뛰었습니다(경로가 이미 있음).</translation>
    </message>
    <message>
        <source>The path {path} was overwritten (path already exists).</source>
        <translation>경로 {path}을(를) 덮어썼습니다(경로가 이미 있음).</translation>
    </message>
    <message>
        <source>Failed to create the restore path {path}.</source>
        <translation>복원 경로 {path}을(를) 만들지 못했습니다.</translation>
    </message>
    <message>
        <source>Unsupported file type: {path}</source>
        <translation>지원되지 않는 파일 형식: {path}</translation>
    </message>
    <message>
        <source>No permission to restore path {path} because it might be protected by operating system settings, anti-virus software, or others.</source>
        <translation>경로 {path}을(를) 복원할 권한이 없습니다. 운영 체제 설정, 바이러스 백신 소프트웨어 등으로 보호되어 있을 수 있습니다.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to restore path {path}.</source>
        <translation>오류 코드 {error_code}: 경로 {path}을(를) 복원하지 못했습니다.</translation>
    </message>
    <message>
        <source>Failed to restore the metadata of {path}.</source>
        <translation>{path}의 메타데이터를 복원하지 못했습니다.</translation>
    </message>
    <message>
        <source>Starting to take a snapshot for {volume_name}.</source>
        <translation>{volume_name}의 스냅샷 생성을 시작합니다.</translation>
    </message>
    <message>
        <source>Snapshot for {volume_name} successfully taken.</source>
        <translation>{volume_name}의 스냅샷을 생성했습니다.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}.</source>
        <translation>오류 코드 {error_code}: {volume_name}의 스냅샷을 생성하지 못했습니다.</translation>
    </message>
    <message>
        <source>Starting to take a snapshot set for {volume_name}.</source>
        <translation>{volume_name}의 스냅샷 세트 생성을 시작합니다.</translation>
    </message>
    <message>
        <source>Snapshot set for {volume_name} successfully taken.</source>
        <translation>{volume_name}의 스냅샷 세트를 생성했습니다.</translation>
    </message>
    <message>
        <source>Failed to take snapshot set for {volume_name}. Retrying.</source>
        <translation>{volume_name}의 스냅샷 세트를 생성하지 못했습니다. 다시 시도하는 중입니다.</translation>
    </message>
    <message>
        <source>Reading and uploading the volume content of {volume_name}.</source>
        <translation>볼륨 {volume_name}의 내용을 읽고 업로드하는 중입니다.</translation>
    </message>
    <message>
        <source>Successfully read the content of volume {volume_name}.</source>
        <translation>볼륨 {volume_name}의 내용을 읽었습니다.</translation>
    </message>
    <message>
        <source>Failed to read and upload the volume content of {volume_name}.</source>
        <translation>볼륨 {volume_name}의 내용을 읽고 업로드하지 못했습니다.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors.</source>
        <translation>오류 코드 {error_code}: 스냅샷을 읽지 못했습니다. 디스크 오류를 확인하고 수정하세요.</translation>
    </message>
    <message>
        <source>Unable to find the snapshot of {volume_name}. The snapshot might be deleted by the operating system, third-party applications, or other reasons. Please try to back up again.</source>
        <translation>{volume_name}의 스냅샷을 찾을 수 없습니다. 운영 체제, 타사 앱 또는 기타 원인으로 삭제되었을 수 있습니다. 다시 백업하세요.</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported dynamic volume type)</source>
        <translation>{volume_name}은(는) 백업되지 않습니다. (원인: 지원되지 않는 동적 볼륨 유형)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported file system type)</source>
        <translation>{volume_name}은(는) 백업되지 않습니다. (원인: 지원되지 않는 파일 시스템 유형)</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions.</source>
        <translation>오류 코드 {error_code}: 액세스가 거부되어 {volume_name}을(를) 백업하지 못했습니다. 스냅샷 권한을 확인하세요.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>오류 코드 {error_code}: 섹터를 찾을 수 없어 {volume_name}을(를) 백업하지 못했습니다. Corvana 기술 지원팀에 문의하세요.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>오류 코드 {error_code}: 경로를 찾을 수 없어 {volume_name}을(를) 백업하지 못했습니다. Corvana 기술 지원팀에 문의하세요.</translation>
    </message>
    <message>
        <source>Failed to back up {volume_name}. (Reason: invalid function, Error Code: {error_code}) Please contact Corvana Technical Support for assistance.</source>
        <translation>{volume_name}을(를) 백업하지 못했습니다. (원인: 잘못된 함수, 오류 코드: {error_code}) Corvana 기술 지원팀에 문의하세요.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open {volume_name}. Contact Corvana Technical Support for assistance.</source>
        <translation>오류 코드 {error_code}: {volume_name}을(를) 열지 못했습니다. Corvana 기술 지원팀에 문의하세요.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the device is busy.</source>
        <translation>오류 코드 {error_code}: 장치가 사용 중이어서 {volume_name}을(를) 백업하지 못했습니다.</translation>
    </message>
    <message>
        <source>Terminated the pre-freeze script {script_result_path} because it timed out.</source>
        <translation>고정 전 스크립트 {script_result_path}이(가) 시간 초과로 종료되었습니다.</translation>
    </message>
    <message>
        <source>Terminated the post-thaw script {script_result_path} because it timed out.</source>
        <translation>해제 후 스크립트 {script_result_path}이(가) 시간 초과로 종료되었습니다.</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}. Make sure the Volume Shadow Copy service is running and the volume has enough free space. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>오류 코드 {error_code}: {volume_name}의 스냅샷을 생성하지 못했습니다. 볼륨 섀도 복사본 서비스가 실행 중이고 볼륨의 여유 공간이 충분한지 확인하세요. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;자세히 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors, then back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>오류 코드 {error_code}: 스냅샷을 읽지 못했습니다. 디스크 오류를 수정한 후 다시 백업하세요. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;자세히 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open the snapshot of {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>오류 코드 {error_code}: {volume_name} 스냅샷 열기 실패. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;자세히 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>오류 코드 {error_code}: 액세스가 거부되어 {volume_name}을(를) 백업하지 못했습니다. 스냅샷 권한을 확인하세요. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;자세히 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>오류 코드 {error_code}: 섹터를 찾을 수 없어 {volume_name}을(를) 백업하지 못했습니다. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;자세히 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>오류 코드 {error_code}: 경로를 찾을 수 없어 {volume_name}을(를) 백업하지 못했습니다. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;자세히 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because of an invalid function. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>오류 코드 {error_code}: 잘못된 함수로 인해 {volume_name}을(를) 백업하지 못했습니다. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;자세히 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>The specified volume in the %1 policy wasn&apos;t backed up. It doesn&apos;t exist on the device.</source>
        <translation>%1 정책에 지정된 볼륨이 장치에 없어 백업되지 않았습니다.</translation>
    </message>
    <message>
        <source>The file system check of {volume_name} found errors. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>{volume_name}의 파일 시스템 검사에서 오류가 발견되었습니다. 볼륨을 복구한 후 다시 백업하세요. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;자세히 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Inode {inode_number} on {volume_name} is corrupted. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>inode {inode_number}({volume_name})이(가) 손상되었습니다. 볼륨을 복구한 후 다시 백업하세요. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;자세히 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because folder {parent_path} does not exist.</source>
        <translation>폴더 {parent_path}이(가) 없어 복원 경로 {path}을(를) 만들지 못했습니다.</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because it conflicts with the file in {parent_path}.</source>
        <translation>복원 경로 {path}이(가) {parent_path}의 파일과 충돌하여 만들지 못했습니다.</translation>
    </message>
    <message>
        <source>{volume_name} has a bad cluster in {interval_start} - {interval_end}. The interval is skipped.</source>
        <translation>{volume_name}의 {interval_start} - {interval_end}에 불량 클러스터가 있습니다. 이 구간은 건너뜁니다.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of pre-freeze script {script_result_path}.</source>
        <translation>종료 코드 {exit_code}: 고정 전 스크립트 {script_result_path}의 실행 실패를 무시했습니다.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Cannot execute the pre-freeze script {script_result_path}.</source>
        <translation>종료 코드 {exit_code}: 고정 전 스크립트 {script_result_path}을(를) 실행할 수 없습니다.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of post-thaw script {script_result_path}.</source>
        <translation>종료 코드 {exit_code}: 해제 후 스크립트 {script_result_path}의 실행 실패를 무시했습니다.</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Unable to execute the post-thaw script {script_result_path}.</source>
        <translation>종료 코드 {exit_code}: 해제 후 스크립트 {script_result_path}을(를) 실행할 수 없습니다.</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported removable media.)</source>
        <translation>{volume_name}은(는) 백업되지 않습니다. (원인: 이동식 미디어는 지원되지 않습니다.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: External hard drive is excluded in the task.)</source>
        <translation>{volume_name}은(는) 백업되지 않습니다. (원인: 외장 하드 드라이브가 작업에서 제외되었습니다.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk bus type.)</source>
        <translation>{volume_name}은(는) 백업되지 않습니다. (원인: 지원되지 않는 디스크 버스 유형입니다.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk type.)</source>
        <translation>{volume_name}은(는) 백업되지 않습니다. (원인: 지원되지 않는 디스크 유형입니다.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system.)</source>
        <translation>{volume_name}은(는) 백업되지 않습니다. (원인: 지원되지 않는 파일 시스템입니다.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unidentified file system.)</source>
        <translation>{volume_name}은(는) 백업되지 않습니다. (원인: 확인할 수 없는 파일 시스템입니다.)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unable to obtain volume information.)</source>
        <translation>{volume_name}은(는) 백업되지 않습니다. (원인: 볼륨 정보를 가져올 수 없습니다.)</translation>
    </message>
    <message>
        <source>Unable to find the shadow copy of {volume_name}. The operating system might have deleted it. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>{volume_name}의 섀도 복사본을 찾을 수 없습니다. 운영 체제에서 삭제했을 수 있습니다. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;자세히 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Starts creating Nimbra Backup data volume.</source>
        <translation>Nimbra Backup 데이터 볼륨 생성을 시작합니다.</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system)</source>
        <translation>{volume_name}은(는) 백업되지 않습니다. (원인: 지원되지 않는 파일 시스템)</translation>
    </message>
    <message>
        <source>Nimbra Backup needs Full Disk Access to take snapshots. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>스냅샷을 만들려면 Nimbra Backup에 전체 디스크 접근 권한이 필요합니다. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;허용 방법 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>{volume_name}에서 asr(Apple Software Restore) 실행 실패. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;자세히 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Restart your Mac and run First Aid to repair the disk.</source>
        <translation>{volume_name}에서 asr(Apple Software Restore)을 실행하지 못했습니다. Mac을 재시동하고 First Aid로 디스크를 복구하세요.</translation>
    </message>
    <message>
        <source>Allow the system extension of Nimbra Backup in Privacy &amp; Security to continue backing up. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>백업을 계속하려면 개인정보 보호 및 보안에서 Nimbra Backup의 시스템 확장 프로그램을 허용하세요. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;방법 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot find {volume_name} data on Nimbra Backup data volume. Performing full backup instead.</source>
        <translation>Nimbra Backup 데이터 볼륨에서 {volume_name} 데이터를 찾을 수 없습니다. 대신 전체 백업을 수행합니다.</translation>
    </message>
    <message>
        <source>Cannot find snapshot of {volume_name}. Performing full backup instead.</source>
        <translation>{volume_name}의 스냅샷을 찾을 수 없습니다. 대신 전체 백업을 수행합니다.</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Performing full backup instead.</source>
        <translation>{volume_name}에서 asr(Apple Software Restore)을 실행하지 못했습니다. 대신 전체 백업을 수행합니다.</translation>
    </message>
    <message>
        <source>Starts taking snapshots.</source>
        <translation>스냅샷 생성을 시작합니다.</translation>
    </message>
    <message>
        <source>Finished taking snapshots.</source>
        <translation>스냅샷 생성을 마쳤습니다.</translation>
    </message>
    <message>
        <source>Backup failed because the backup account on this Mac could not be authenticated. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>이 Mac의 백업 계정을 인증할 수 없어 백업이 실패했습니다. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;자세히 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to mount {volume_name}. (Reason: Encrypted volumes cannot be mounted.)</source>
        <translation>{volume_name}을(를) 마운트하지 못했습니다. (원인: 암호화된 볼륨은 마운트할 수 없습니다.)</translation>
    </message>
    <message>
        <source>Backup failed because Nimbra Backup has no Full Disk Access. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Nimbra Backup에 전체 디스크 접근 권한이 없어 백업이 실패했습니다. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;허용 방법 보기&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot mount the default backup volume. Restart your Mac.</source>
        <translation>기본 백업 볼륨을 마운트할 수 없습니다. Mac을 재시동하세요.</translation>
    </message>
    <message>
        <source>Keep all versions within the last %1 months</source>
        <translation>최근 %1개월 동안의 모든 버전 보관</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>유휴</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>백업 중...</translation>
    </message>
    <message>
        <source>Successful</source>
        <translation>성공</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Partially Successful</source>
        <translation>부분 성공</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>Restoring...</source>
        <translation>복원 중...</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>스냅샷 생성 중...</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>연결 중...</translation>
    </message>
    <message>
        <source>View backup status</source>
        <translation>백업 상태 보기</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>연결 편집</translation>
    </message>
    <message>
        <source>Sign In Again</source>
        <translation>다시 로그인</translation>
    </message>
    <message>
        <source>This application is already opened by another user.</source>
        <translation>다른 사용자가 이미 이 애플리케이션을 열었습니다.</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection and try again.</source>
        <translation>인터넷 연결 오류입니다. 인터넷 연결을 확인하고 다시 시도하세요.</translation>
    </message>
    <message>
        <source>You have used up your quota of capacity. Please contact the administrator for extra space.</source>
        <translation>저장 공간 할당량을 모두 사용했습니다. 추가 공간이 필요하면 관리자에게 문의하세요.</translation>
    </message>
    <message>
        <source>This device was removed from the account.</source>
        <translation>이 장치가 계정에서 제거되었습니다.</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>에이전트</translation>
    </message>
    <message>
        <source>Nimbra Backup</source>
        <translation>Nimbra Backup</translation>
    </message>
    <message>
        <source>Preparing for backup...</source>
        <translation>백업 준비 중...</translation>
    </message>
    <message>
        <source>Failed to upgrade backup service. Please contact Corvana Technical Support for assistance.</source>
        <translation>백업 서비스를 업그레이드하지 못했습니다. Corvana 기술 지원팀에 문의하세요.</translation>
    </message>
    <message>
        <source>Upgrading backup service database. Please keep this window open if you wish to launch the agent automatically after upgrade.</source>
        <translation>백업 서비스 데이터베이스를 업그레이드하는 중입니다. 업그레이드 후 에이전트를 자동으로 실행하려면 이 창을 열어 두세요.</translation>
    </message>
    <message>
        <source>You&apos;re all set for backup. Do you want to back up this device right now?</source>
        <translation>백업 준비가 끝났습니다. 지금 이 장치를 백업하시겠습니까?</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Open Nimbra Backup</source>
        <translation>Nimbra Backup 열기</translation>
    </message>
    <message>
        <source>Closing this application will not stop the backup service.</source>
        <translation>이 애플리케이션을 닫아도 백업 서비스는 중지되지 않습니다.</translation>
    </message>
    <message>
        <source>The service cannot be activated normally. Please reboot your device and try again. If the problem remains, please contact Corvana Technical Support.</source>
        <translation>서비스를 정상적으로 시작할 수 없습니다. 장치를 재부팅하고 다시 시도하세요. 문제가 계속되면 Corvana 기술 지원팀에 문의하세요.</translation>
    </message>
    <message>
        <source>Backup successful</source>
        <translation>백업 성공</translation>
    </message>
    <message>
        <source>Your device was backed up.</source>
        <translation>장치를 백업했습니다.</translation>
    </message>
    <message>
        <source>Nimbra Backup %1</source>
        <translation>Nimbra Backup %1</translation>
    </message>
    <message>
        <source>Check the activity logs in the agent for more information.</source>
        <translation>자세한 내용은 에이전트의 활동 로그를 확인하세요.</translation>
    </message>
    <message>
        <source>Storage is almost full</source>
        <translation>저장 공간이 거의 가득 참</translation>
    </message>
    <message>
        <source>You have used 85% of your total storage (%1).</source>
        <translation>전체 저장 공간(%1)의 85%를 사용했습니다.</translation>
    </message>
    <message>
        <source>Storage is full</source>
        <translation>저장 공간이 가득 참</translation>
    </message>
    <message>
        <source>You have used 95% of your total storage (%1).</source>
        <translation>전체 저장 공간(%1)의 95%를 사용했습니다.</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation>장치 제거됨</translation>
    </message>
    <message>
        <source>This device has been removed from the account. Go to the Nimbra Backup console for more information.</source>
        <translation>이 장치가 계정에서 제거되었습니다. 자세한 내용은 Nimbra Backup 콘솔에서 확인하세요.</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>전체 디스크 접근 권한 필요</translation>
    </message>
    <message>
        <source>Enable Full Disk Access in Privacy &amp; Security.</source>
        <translation>개인정보 보호 및 보안에서 전체 디스크 접근 권한을 켜세요.</translation>
    </message>
    <message>
        <source>System extension required</source>
        <translation>시스템 확장 프로그램 필요</translation>
    </message>
    <message>
        <source>Go to Privacy &amp; Security and enable system extensions for Nimbra Backup.</source>
        <translation>개인정보 보호 및 보안에서 Nimbra Backup의 시스템 확장 프로그램을 켜세요.</translation>
    </message>
    <message>
        <source>Nimbra Backup console</source>
        <translation>Nimbra Backup 콘솔</translation>
    </message>
    <message>
        <source>Recovery Portal</source>
        <translation>복구 포털</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>방금</translation>
    </message>
    <message>
        <source>%1 minute ago</source>
        <translation>%1분 전</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1분 전</translation>
    </message>
    <message>
        <source>%1 hour ago</source>
        <translation>%1시간 전</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1시간 전</translation>
    </message>
    <message>
        <source>%1 day ago</source>
        <translation>%1일 전</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1일 전</translation>
    </message>
    <message>
        <source>Est. finish</source>
        <translation>예상 완료</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; processed</source>
        <translation>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; 처리됨</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>아직 백업 안 됨</translation>
    </message>
    <message>
        <source>No backup schedule</source>
        <translation>백업 일정 없음</translation>
    </message>
    <message>
        <source>Backup by event</source>
        <translation>이벤트 발생 시 백업</translation>
    </message>
    <message>
        <source>Automated daily backup</source>
        <translation>매일 자동 백업</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>활동</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>날짜 및 시간</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>Last backup:</source>
        <translation>마지막 백업:</translation>
    </message>
    <message>
        <source>Next backup:</source>
        <translation>다음 백업:</translation>
    </message>
    <message>
        <source>Protect your device with Nimbra Backup</source>
        <translation>Nimbra Backup으로 장치를 보호하세요</translation>
    </message>
    <message>
        <source>Nimbra Backup provides protection for the entire device. All data, applications, and system configurations will be backed up according to your schedules.</source>
        <translation>Nimbra Backup은 장치 전체를 보호합니다. 모든 데이터, 애플리케이션, 시스템 구성이 일정에 따라 백업됩니다.</translation>
    </message>
    <message>
        <source>Let&apos;s Start</source>
        <translation>시작하기</translation>
    </message>
    <message>
        <source>Sign in on your browser</source>
        <translation>브라우저에서 로그인</translation>
    </message>
    <message>
        <source>We&apos;ve opened a new browser tab for you to sign in. Then, we will guide you to the next step.</source>
        <translation>로그인할 수 있도록 새 브라우저 탭을 열었습니다. 로그인하면 다음 단계로 안내해 드립니다.</translation>
    </message>
    <message>
        <source>Connecting to server...&#xa0;</source>
        <translation>서버에 연결 중...&#xa0;</translation>
    </message>
    <message>
        <source>Server connection error. Try again later.</source>
        <translation>서버 연결 오류입니다. 나중에 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection.</source>
        <translation>인터넷 연결 오류입니다. 인터넷 연결을 확인하세요.</translation>
    </message>
    <message>
        <source>The current version of the agent is older. Please update the agent.</source>
        <translation>에이전트 버전이 오래되었습니다. 에이전트를 업데이트하세요.</translation>
    </message>
    <message>
        <source>Login status error. Make sure you installed the latest version of the agent and sign in again.</source>
        <translation>로그인 상태 오류입니다. 최신 버전의 에이전트를 설치했는지 확인하고 다시 로그인하세요.</translation>
    </message>
    <message>
        <source>Invalid certificate. Run Windows Update to renew your certificate. Refer to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;Knowledge Center&lt;/a&gt;.</source>
        <translation>인증서가 올바르지 않습니다. Windows 업데이트를 실행하여 인증서를 갱신하세요. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;지식 센터&lt;/a&gt;를 참조하세요.</translation>
    </message>
    <message>
        <source>This device conflicts with another device. Sign in again if you want to back up this device instead of the other one. Please note that the other device will no longer be backed up after that.</source>
        <translation>이 장치가 다른 장치와 충돌합니다. 다른 장치 대신 이 장치를 백업하려면 다시 로그인하세요. 이후에는 다른 장치가 더 이상 백업되지 않습니다.</translation>
    </message>
    <message>
        <source>Authentication failed. Sign out from the agent and sign in again.</source>
        <translation>인증에 실패했습니다. 에이전트에서 로그아웃한 후 다시 로그인하세요.</translation>
    </message>
    <message>
        <source>Device time incorrect. Sync the device time before the next backup.</source>
        <translation>장치 시간이 올바르지 않습니다. 다음 백업 전에 장치 시간을 동기화하세요.</translation>
    </message>
    <message>
        <source>You haven&apos;t set up the Nimbra Encryption Key. You must set it up on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt; before starting to back up devices.</source>
        <translation>Nimbra 암호화 키를 설정하지 않았습니다. 장치 백업을 시작하기 전에 &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;콘솔&lt;/a&gt;에서 설정해야 합니다.</translation>
    </message>
    <message>
        <source>You haven&apos;t finish setting the Nimbra Encryption Key. Go to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup console&lt;/a&gt; to complete the setup.</source>
        <translation>Nimbra 암호화 키 설정을 마치지 않았습니다. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup 콘솔&lt;/a&gt;에서 설정을 완료하세요.</translation>
    </message>
    <message>
        <source>Almost there</source>
        <translation>거의 다 되었습니다</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Backup Policy</source>
        <translation>백업 정책</translation>
    </message>
    <message>
        <source>Data Center</source>
        <translation>데이터 센터</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>백업 일정</translation>
    </message>
    <message>
        <source>Backup scope</source>
        <translation>백업 범위</translation>
    </message>
    <message>
        <source>More details can be found on the console.</source>
        <translation>자세한 내용은 콘솔에서 확인할 수 있습니다.</translation>
    </message>
    <message>
        <source>Default policy (personal computer)</source>
        <translation>기본 정책(개인용 컴퓨터)</translation>
    </message>
    <message>
        <source>Default policy (physical server)</source>
        <translation>기본 정책(물리 서버)</translation>
    </message>
    <message>
        <source>We will back up this device right after finishing setting up the agent. You can configure backup policies on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt;.</source>
        <translation>에이전트 설정이 끝나면 바로 이 장치를 백업합니다. 백업 정책은 &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;콘솔&lt;/a&gt;에서 구성할 수 있습니다.</translation>
    </message>
    <message>
        <source>North America - Seattle</source>
        <translation>북미 - 시애틀</translation>
    </message>
    <message>
        <source>Europe - Frankfurt</source>
        <translation>유럽 - 프랑크푸르트</translation>
    </message>
    <message>
        <source>APAC - Taiwan</source>
        <translation>아시아 태평양 - 대만</translation>
    </message>
    <message>
        <source>Entire device (external drives included)</source>
        <translation>장치 전체(외장 드라이브 포함)</translation>
    </message>
    <message>
        <source>Entire device</source>
        <translation>장치 전체</translation>
    </message>
    <message>
        <source>System volume</source>
        <translation>시스템 볼륨</translation>
    </message>
    <message>
        <source>Specified volumes (%1)</source>
        <translation>지정한 볼륨(%1)</translation>
    </message>
    <message>
        <source>Backed up daily at %1</source>
        <translation>매일 %1에 백업</translation>
    </message>
    <message>
        <source>Weekly (%2 every %1)</source>
        <translation>매주(%1 %2)</translation>
    </message>
    <message>
        <source>Screen lock</source>
        <translation>화면 잠금</translation>
    </message>
    <message>
        <source>Signout</source>
        <translation>로그아웃</translation>
    </message>
    <message>
        <source>Device power on</source>
        <translation>장치 전원 켜기</translation>
    </message>
    <message>
        <source>By event: %1</source>
        <translation>이벤트: %1</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>최대</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>제한</translation>
    </message>
    <message>
        <source>Minimum: 5; Maximum: 9,999</source>
        <translation>최소: 5, 최대: 9,999</translation>
    </message>
    <message>
        <source>Mbps (%1 MB/s)</source>
        <translation>Mbps(%1 MB/s)</translation>
    </message>
    <message>
        <source>Limit upload speed within a specific time range every day</source>
        <translation>매일 특정 시간대에 업로드 속도 제한</translation>
    </message>
    <message>
        <source>(Custom)</source>
        <translation>(사용자 지정)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Data upload speed</source>
        <translation>데이터 업로드 속도</translation>
    </message>
    <message>
        <source>Limit the upload speed to prevent backups from taking up your bandwidth. The speed limit will be applied within minutes after you save the settings.</source>
        <translation>백업이 대역폭을 모두 차지하지 않도록 업로드 속도를 제한합니다. 설정을 저장하면 몇 분 안에 속도 제한이 적용됩니다.</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>다음 날</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hours</source>
        <translation>주의: 100 GB의 데이터를 업로드하는 데 최대 %1시간이 걸릴 수 있습니다</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hour</source>
        <translation>주의: 100 GB의 데이터를 업로드하는 데 최대 %1시간이 걸릴 수 있습니다</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minute</source>
        <translation>주의: 100 GB의 데이터를 업로드하는 데 최대 %1분이 걸릴 수 있습니다</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minutes</source>
        <translation>주의: 100 GB의 데이터를 업로드하는 데 최대 %1분이 걸릴 수 있습니다</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt; every day. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;참고:&lt;/span&gt;조직에서 관리하는 업로드 속도는 매일 &lt;b&gt;%2~%3 사이 최대 %1 Mbps&lt;/b&gt;로 설정되어 있습니다. 여기서 다른 제한을 설정하면 둘 중 낮은 제한이 적용됩니다.</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt;. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;참고:&lt;/span&gt;조직에서 관리하는 업로드 속도는 &lt;b&gt;%2~%3 사이 최대 %1 Mbps&lt;/b&gt;로 설정되어 있습니다. 여기서 다른 제한을 설정하면 둘 중 낮은 제한이 적용됩니다.</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>서비스 약관</translation>
    </message>
    <message>
        <source>Privacy Statement</source>
        <translation>개인정보 처리방침</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>Error&#xa0;</source>
        <translation>오류&#xa0;</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>시작</translation>
    </message>
    <message>
        <source>End at</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>일요일</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>월요일</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>화요일</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>수요일</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>목요일</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>금요일</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>토요일</translation>
    </message>
    <message>
        <source>min</source>
        <translation>분</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>분</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>day</source>
        <translation>일</translation>
    </message>
    <message>
        <source>days</source>
        <translation>일</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>자세히 보기</translation>
    </message>
    <message>
        <source>Knowledge Center</source>
        <translation>지식 센터</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>설정되지 않음</translation>
    </message>
    <message>
        <source>Service not reachable</source>
        <translation>서비스에 연결할 수 없음</translation>
    </message>
    <message>
        <source>Last backup: %1, %2</source>
        <translation>마지막 백업: %1, %2</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>지금 백업</translation>
    </message>
    <message>
        <source>A backup is running</source>
        <translation>백업이 진행 중입니다</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
</context>
</TS>
