<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>global</name>
    <message>
        <source>Cancel</source>
        <translation>キ⁠ャ⁠ン⁠セ⁠ル</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Copyright © %1 Corvana Inc.\nAll rights reserved.</source>
        <translation>Copyright © %1 Corvana Inc.\nAll rights reserved.</translation>
    </message>
    <message>
        <source>Once log out, connection from this device will be cut off. Are you sure you want to continue?</source>
        <translation>ロ⁠グ⁠ア⁠ウ⁠トすると、このデ⁠バ⁠イ⁠スの接続は切断されます。続行しますか？</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘ⁠ル⁠プ</translation>
    </message>
    <message>
        <source>Log out</source>
        <translation>ロ⁠グ⁠ア⁠ウ⁠ト</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バ⁠ー⁠ジ⁠ョ⁠ン情報</translation>
    </message>
    <message>
        <source>Unable to perform this action because the network connection is unstable or the service is busy. Try again later.</source>
        <translation>ネ⁠ッ⁠ト⁠ワ⁠ー⁠ク接続が不安定か、サ⁠ー⁠ビ⁠スがビ⁠ジ⁠ー状態のため、この操作を実行できません。しばらくしてからやり直してください。</translation>
    </message>
    <message>
        <source>Backup task started.</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠タ⁠ス⁠クを開始しました。</translation>
    </message>
    <message>
        <source>Backup task was complete.</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠タ⁠ス⁠クが完了しました。</translation>
    </message>
    <message>
        <source>Backup task was canceled.</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠タ⁠ス⁠クがキ⁠ャ⁠ン⁠セ⁠ルされました。</translation>
    </message>
    <message>
        <source>Backup task failed.</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠タ⁠ス⁠クが失敗しました。</translation>
    </message>
    <message>
        <source>Backup task was partially successful.</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠タ⁠ス⁠クは一部成功しました。</translation>
    </message>
    <message>
        <source>The scheduled backup didn&apos;t start because the device is already backing up.</source>
        <translation>デ⁠バ⁠イ⁠スはすでにバ⁠ッ⁠ク⁠ア⁠ッ⁠プ中のため、ス⁠ケ⁠ジ⁠ュ⁠ー⁠ルされたバ⁠ッ⁠ク⁠ア⁠ッ⁠プは開始されませんでした。</translation>
    </message>
    <message>
        <source>Retrieving device information.</source>
        <translation>デ⁠バ⁠イ⁠ス情報を取得しています。</translation>
    </message>
    <message>
        <source>Starting to upload device information.</source>
        <translation>デ⁠バ⁠イ⁠ス情報のア⁠ッ⁠プ⁠ロ⁠ー⁠ドを開始します。</translation>
    </message>
    <message>
        <source>Device information successfully uploaded.</source>
        <translation>デ⁠バ⁠イ⁠ス情報をア⁠ッ⁠プ⁠ロ⁠ー⁠ドしました。</translation>
    </message>
    <message>
        <source>Unable to upload the device information. Please check the network settings and try again later.</source>
        <translation>デ⁠バ⁠イ⁠ス情報をア⁠ッ⁠プ⁠ロ⁠ー⁠ドできませんでした。ネ⁠ッ⁠ト⁠ワ⁠ー⁠ク設定を確認し、しばらくしてからやり直してください。</translation>
    </message>
    <message>
        <source>The agent failed to be updated.</source>
        <translation>エ⁠ー⁠ジ⁠ェ⁠ン⁠トを更新できませんでした。</translation>
    </message>
    <message>
        <source>Successfully executed the pre-freeze script.</source>
        <translation>フ⁠リ⁠ー⁠ズ前ス⁠ク⁠リ⁠プ⁠トを実行しました。</translation>
    </message>
    <message>
        <source>Successfully executed the post-thaw script.</source>
        <translation>ソ⁠ー後ス⁠ク⁠リ⁠プ⁠トを実行しました。</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script files on the client device.</source>
        <translation>ク⁠ラ⁠イ⁠ア⁠ン⁠ト⁠デ⁠バ⁠イ⁠ス上のフ⁠リ⁠ー⁠ズ前/ソ⁠ー後ス⁠ク⁠リ⁠プ⁠ト⁠フ⁠ァ⁠イ⁠ルにア⁠ク⁠セ⁠スできません。</translation>
    </message>
    <message>
        <source>Unable to access the pre-freeze/post-thaw script file on Nimbra Backup.</source>
        <translation>Nimbra Backup 上のフ⁠リ⁠ー⁠ズ前/ソ⁠ー後ス⁠ク⁠リ⁠プ⁠ト⁠フ⁠ァ⁠イ⁠ルにア⁠ク⁠セ⁠スできません。</translation>
    </message>
    <message>
        <source>The size of the pre-freeze/post-thaw script files exceeds the 32 KB limit.</source>
        <translation>フ⁠リ⁠ー⁠ズ前/ソ⁠ー後ス⁠ク⁠リ⁠プ⁠ト⁠フ⁠ァ⁠イ⁠ルのサ⁠イ⁠ズが上限の 32 KB を超えています。</translation>
    </message>
    <message>
        <source>Unable to upload the script output.</source>
        <translation>ス⁠ク⁠リ⁠プ⁠トの出力をア⁠ッ⁠プ⁠ロ⁠ー⁠ドできません。</translation>
    </message>
    <message>
        <source>No available volume to take snapshot for.</source>
        <translation>ス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トを作成できるボ⁠リ⁠ュ⁠ー⁠ムがありません。</translation>
    </message>
    <message>
        <source>Backup task failed because the device time was incorrect. Sync the device time and try again.</source>
        <translation>デ⁠バ⁠イ⁠スの時刻が正しくないため、バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠タ⁠ス⁠クが失敗しました。デ⁠バ⁠イ⁠スの時刻を同期してやり直してください。</translation>
    </message>
    <message>
        <source>Backup task was canceled because Nimbra Backup agent restarted. Possible reasons: Device reboot or unexpected shutdown.</source>
        <translation>Nimbra Backup エ⁠ー⁠ジ⁠ェ⁠ン⁠トが再起動したため、バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠タ⁠ス⁠クがキ⁠ャ⁠ン⁠セ⁠ルされました。考えられる原因：デ⁠バ⁠イ⁠スの再起動または予期しないシ⁠ャ⁠ッ⁠ト⁠ダ⁠ウ⁠ン。</translation>
    </message>
    <message>
        <source>Backup cannot continue until the System Management Controller (SMC) of this Mac is reset. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>この Mac のシ⁠ス⁠テ⁠ム管理コ⁠ン⁠ト⁠ロ⁠ー⁠ラ (SMC) をリ⁠セ⁠ッ⁠トするまでバ⁠ッ⁠ク⁠ア⁠ッ⁠プを続行できません。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/reset-smc&quot;&gt;方法を見る&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Insufficient storage on local disk.</source>
        <translation>ロ⁠ー⁠カ⁠ル⁠デ⁠ィ⁠ス⁠クの空き容量が不足しています。</translation>
    </message>
    <message>
        <source>No permissions to the local disk.</source>
        <translation>ロ⁠ー⁠カ⁠ル⁠デ⁠ィ⁠ス⁠クへのア⁠ク⁠セ⁠ス許可がありません。</translation>
    </message>
    <message>
        <source>Insufficient directory quota.</source>
        <translation>デ⁠ィ⁠レ⁠ク⁠ト⁠リのク⁠ォ⁠ー⁠タが不足しています。</translation>
    </message>
    <message>
        <source>Local file system is read-only.</source>
        <translation>ロ⁠ー⁠カ⁠ル⁠フ⁠ァ⁠イ⁠ル⁠シ⁠ス⁠テ⁠ムは読み取り専用です。</translation>
    </message>
    <message>
        <source>Local disk I/O error.</source>
        <translation>ロ⁠ー⁠カ⁠ル⁠デ⁠ィ⁠ス⁠クの I/O エ⁠ラ⁠ーです。</translation>
    </message>
    <message>
        <source>Local backup file corrupted.</source>
        <translation>ロ⁠ー⁠カ⁠ルのバ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠フ⁠ァ⁠イ⁠ルが破損しています。</translation>
    </message>
    <message>
        <source>Nimbra Backup storage limit already reached.</source>
        <translation>Nimbra Backup のス⁠ト⁠レ⁠ー⁠ジ上限に達しています。</translation>
    </message>
    <message>
        <source>Insufficient system memory.</source>
        <translation>シ⁠ス⁠テ⁠ム⁠メ⁠モ⁠リが不足しています。</translation>
    </message>
    <message>
        <source>Unable to connect to the Nimbra Backup server.</source>
        <translation>Nimbra Backup サ⁠ー⁠バ⁠ーに接続できません。</translation>
    </message>
    <message>
        <source>DNS resolution failed.</source>
        <translation>DNS の名前解決に失敗しました。</translation>
    </message>
    <message>
        <source>Network socket couldn&apos;t receive data because the Nimbra Backup server is busy.</source>
        <translation>Nimbra Backup サ⁠ー⁠バ⁠ーがビ⁠ジ⁠ー状態のため、デ⁠ー⁠タを受信できませんでした。</translation>
    </message>
    <message>
        <source>Account or password authentication failed.</source>
        <translation>ア⁠カ⁠ウ⁠ン⁠トまたはパ⁠ス⁠ワ⁠ー⁠ドの認証に失敗しました。</translation>
    </message>
    <message>
        <source>The backup agent requires an update. Download the latest version of the agent from the Nimbra Backup console.</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠エ⁠ー⁠ジ⁠ェ⁠ン⁠トの更新が必要です。Nimbra Backup コ⁠ン⁠ソ⁠ー⁠ルから最新バ⁠ー⁠ジ⁠ョ⁠ンのエ⁠ー⁠ジ⁠ェ⁠ン⁠トをダ⁠ウ⁠ン⁠ロ⁠ー⁠ドしてください。</translation>
    </message>
    <message>
        <source>Unauthorized account. Contact your Nimbra Backup administrator and sign in again.</source>
        <translation>権限のないア⁠カ⁠ウ⁠ン⁠トです。Nimbra Backup の管理者に連絡し、もう一度サ⁠イ⁠ン⁠イ⁠ンしてください。</translation>
    </message>
    <message>
        <source>Backup task triggered by {trigger_event}.</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠タ⁠ス⁠クが {trigger_event} によって開始されました。</translation>
    </message>
    <message>
        <source>Backup task {task} is not allowed to be run during this period of time due to the configured backup window.</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠タ⁠ス⁠ク {task} は、設定されたバ⁠ッ⁠ク⁠ア⁠ッ⁠プ時間帯のため、この時間には実行できません。</translation>
    </message>
    <message>
        <source>Task {task} was canceled by the configured backup window.</source>
        <translation>タ⁠ス⁠ク {task} は設定されたバ⁠ッ⁠ク⁠ア⁠ッ⁠プ時間帯によりキ⁠ャ⁠ン⁠セ⁠ルされました。</translation>
    </message>
    <message>
        <source>Task {task} was resumed due to the configured backup window.</source>
        <translation>タ⁠ス⁠ク {task} は設定されたバ⁠ッ⁠ク⁠ア⁠ッ⁠プ時間帯により再開されました。</translation>
    </message>
    <message>
        <source>Restore task started.</source>
        <translation>復元タ⁠ス⁠クを開始しました。</translation>
    </message>
    <message>
        <source>Restore task was canceled.</source>
        <translation>復元タ⁠ス⁠クがキ⁠ャ⁠ン⁠セ⁠ルされました。</translation>
    </message>
    <message>
        <source>Restore task was complete.</source>
        <translation>復元タ⁠ス⁠クが完了しました。</translation>
    </message>
    <message>
        <source>Restore task failed.</source>
        <translation>復元タ⁠ス⁠クが失敗しました。</translation>
    </message>
    <message>
        <source>Restore task was partially complete.</source>
        <translation>復元タ⁠ス⁠クは一部完了しました。</translation>
    </message>
    <message>
        <source>Account %1 was signed in.</source>
        <translation>ア⁠カ⁠ウ⁠ン⁠ト %1 がサ⁠イ⁠ン⁠イ⁠ンしました。</translation>
    </message>
    <message>
        <source>Restore path {path} restored.</source>
        <translation>パ⁠ス {path} を復元しました。</translation>
    </message>
    <message>
        <source>The path {path} was skipped (path already exists).</source>
        <translation>パ⁠ス {path} をス⁠キ⁠ッ⁠プしました (パ⁠スはすでに存在します)。</translation>
    </message>
    <message>
        <source>The path {path} was overwritten (path already exists).</source>
        <translation>パ⁠ス {path} を上書きしました (パ⁠スはすでに存在します)。</translation>
    </message>
    <message>
        <source>Failed to create the restore path {path}.</source>
        <translation>復元パ⁠ス {path} を作成できませんでした。</translation>
    </message>
    <message>
        <source>Unsupported file type: {path}</source>
        <translation>サ⁠ポ⁠ー⁠トされていないフ⁠ァ⁠イ⁠ルの種類：{path}</translation>
    </message>
    <message>
        <source>No permission to restore path {path} because it might be protected by operating system settings, anti-virus software, or others.</source>
        <translation>パ⁠ス {path} を復元する権限がありません。OS の設定やウ⁠イ⁠ル⁠ス対策ソ⁠フ⁠トなどで保護されている可能性があります。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to restore path {path}.</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：パ⁠ス {path} を復元できませんでした。</translation>
    </message>
    <message>
        <source>Failed to restore the metadata of {path}.</source>
        <translation>{path} のメ⁠タ⁠デ⁠ー⁠タを復元できませんでした。</translation>
    </message>
    <message>
        <source>Starting to take a snapshot for {volume_name}.</source>
        <translation>{volume_name} のス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トの作成を開始します。</translation>
    </message>
    <message>
        <source>Snapshot for {volume_name} successfully taken.</source>
        <translation>{volume_name} のス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トを作成しました。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}.</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：{volume_name} のス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トを作成できませんでした。</translation>
    </message>
    <message>
        <source>Starting to take a snapshot set for {volume_name}.</source>
        <translation>{volume_name} のス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠ト⁠セ⁠ッ⁠トの作成を開始します。</translation>
    </message>
    <message>
        <source>Snapshot set for {volume_name} successfully taken.</source>
        <translation>{volume_name} のス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠ト⁠セ⁠ッ⁠トを作成しました。</translation>
    </message>
    <message>
        <source>Failed to take snapshot set for {volume_name}. Retrying.</source>
        <translation>{volume_name} のス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠ト⁠セ⁠ッ⁠トを作成できませんでした。再試行しています。</translation>
    </message>
    <message>
        <source>Reading and uploading the volume content of {volume_name}.</source>
        <translation>ボ⁠リ⁠ュ⁠ー⁠ム {volume_name} の内容を読み取ってア⁠ッ⁠プ⁠ロ⁠ー⁠ドしています。</translation>
    </message>
    <message>
        <source>Successfully read the content of volume {volume_name}.</source>
        <translation>ボ⁠リ⁠ュ⁠ー⁠ム {volume_name} の内容を読み取りました。</translation>
    </message>
    <message>
        <source>Failed to read and upload the volume content of {volume_name}.</source>
        <translation>ボ⁠リ⁠ュ⁠ー⁠ム {volume_name} の内容を読み取ってア⁠ッ⁠プ⁠ロ⁠ー⁠ドできませんでした。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors.</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：ス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トを読み取れませんでした。デ⁠ィ⁠ス⁠クのエ⁠ラ⁠ーを確認して修復してください。</translation>
    </message>
    <message>
        <source>Unable to find the snapshot of {volume_name}. The snapshot might be deleted by the operating system, third-party applications, or other reasons. Please try to back up again.</source>
        <translation>{volume_name} のス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トが見つかりません。OS やサ⁠ー⁠ド⁠パ⁠ー⁠テ⁠ィ製ア⁠プ⁠リなどによって削除された可能性があります。もう一度バ⁠ッ⁠ク⁠ア⁠ッ⁠プしてください。</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported dynamic volume type)</source>
        <translation>{volume_name} はバ⁠ッ⁠ク⁠ア⁠ッ⁠プされません。(理由：サ⁠ポ⁠ー⁠トされていないダ⁠イ⁠ナ⁠ミ⁠ッ⁠ク⁠ボ⁠リ⁠ュ⁠ー⁠ムの種類)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: unsupported file system type)</source>
        <translation>{volume_name} はバ⁠ッ⁠ク⁠ア⁠ッ⁠プされません。(理由：サ⁠ポ⁠ー⁠トされていないフ⁠ァ⁠イ⁠ル⁠シ⁠ス⁠テ⁠ムの種類)</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions.</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：{volume_name} をバ⁠ッ⁠ク⁠ア⁠ッ⁠プできませんでした。ア⁠ク⁠セ⁠スが拒否されました。ス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トの権限を確認してください。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：{volume_name} をバ⁠ッ⁠ク⁠ア⁠ッ⁠プできませんでした。セ⁠ク⁠タ⁠ーが見つかりません。Corvana テ⁠ク⁠ニ⁠カ⁠ル⁠サ⁠ポ⁠ー⁠トにお問い合わせください。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. Contact Corvana Technical Support for assistance.</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：{volume_name} をバ⁠ッ⁠ク⁠ア⁠ッ⁠プできませんでした。パ⁠スが見つかりません。Corvana テ⁠ク⁠ニ⁠カ⁠ル⁠サ⁠ポ⁠ー⁠トにお問い合わせください。</translation>
    </message>
    <message>
        <source>Failed to back up {volume_name}. (Reason: invalid function, Error Code: {error_code}) Please contact Corvana Technical Support for assistance.</source>
        <translation>{volume_name} をバ⁠ッ⁠ク⁠ア⁠ッ⁠プできませんでした。(理由：無効な関数、エ⁠ラ⁠ー⁠コ⁠ー⁠ド：{error_code}) Corvana テ⁠ク⁠ニ⁠カ⁠ル⁠サ⁠ポ⁠ー⁠トにお問い合わせください。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open {volume_name}. Contact Corvana Technical Support for assistance.</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：{volume_name} を開けませんでした。Corvana テ⁠ク⁠ニ⁠カ⁠ル⁠サ⁠ポ⁠ー⁠トにお問い合わせください。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the device is busy.</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：{volume_name} をバ⁠ッ⁠ク⁠ア⁠ッ⁠プできませんでした。デ⁠バ⁠イ⁠スがビ⁠ジ⁠ー状態です。</translation>
    </message>
    <message>
        <source>Terminated the pre-freeze script {script_result_path} because it timed out.</source>
        <translation>フ⁠リ⁠ー⁠ズ前ス⁠ク⁠リ⁠プ⁠ト {script_result_path} がタ⁠イ⁠ム⁠ア⁠ウ⁠トしたため終了しました。</translation>
    </message>
    <message>
        <source>Terminated the post-thaw script {script_result_path} because it timed out.</source>
        <translation>ソ⁠ー後ス⁠ク⁠リ⁠プ⁠ト {script_result_path} がタ⁠イ⁠ム⁠ア⁠ウ⁠トしたため終了しました。</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to take a snapshot for {volume_name}. Make sure the Volume Shadow Copy service is running and the volume has enough free space. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：{volume_name} のス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トを作成できませんでした。ボ⁠リ⁠ュ⁠ー⁠ム シ⁠ャ⁠ド⁠ウ コ⁠ピ⁠ー サ⁠ー⁠ビ⁠スが実行中で、ボ⁠リ⁠ュ⁠ー⁠ムに十分な空き容量があることを確認してください。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-failed&quot;&gt;詳細&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to read the snapshot. Check and fix the disk errors, then back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：ス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トを読み取れませんでした。デ⁠ィ⁠ス⁠クのエ⁠ラ⁠ーを修復してから、もう一度バ⁠ッ⁠ク⁠ア⁠ッ⁠プしてください。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/read-snapshot-error&quot;&gt;詳細&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to open the snapshot of {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>エ⁠ラ⁠ー {error_code}: {volume_name} のス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠ト開けず。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/snapshot-open-error&quot;&gt;詳細&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because access was denied. Check the snapshot permissions. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：{volume_name} をバ⁠ッ⁠ク⁠ア⁠ッ⁠プできませんでした。ア⁠ク⁠セ⁠スが拒否されました。ス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トの権限を確認してください。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/access-denied&quot;&gt;詳細&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the sector can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：{volume_name} をバ⁠ッ⁠ク⁠ア⁠ッ⁠プできませんでした。セ⁠ク⁠タ⁠ーが見つかりません。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/sector-not-found&quot;&gt;詳細&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because the path can&apos;t be found. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：{volume_name} をバ⁠ッ⁠ク⁠ア⁠ッ⁠プできませんでした。パ⁠スが見つかりません。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/path-not-found&quot;&gt;詳細&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Error code {error_code}: Failed to back up {volume_name} because of an invalid function. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>エ⁠ラ⁠ー⁠コ⁠ー⁠ド {error_code}：{volume_name} をバ⁠ッ⁠ク⁠ア⁠ッ⁠プできませんでした。無効な関数です。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/invalid-function&quot;&gt;詳細&lt;/a&gt;</translation>
    </message>
    <message>
        <source>The specified volume in the %1 policy wasn&apos;t backed up. It doesn&apos;t exist on the device.</source>
        <translation>%1 ポ⁠リ⁠シ⁠ーで指定されたボ⁠リ⁠ュ⁠ー⁠ムはデ⁠バ⁠イ⁠ス上に存在しないため、バ⁠ッ⁠ク⁠ア⁠ッ⁠プされませんでした。</translation>
    </message>
    <message>
        <source>The file system check of {volume_name} found errors. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>{volume_name} のフ⁠ァ⁠イ⁠ル⁠シ⁠ス⁠テ⁠ム⁠チ⁠ェ⁠ッ⁠クでエ⁠ラ⁠ーが見つかりました。ボ⁠リ⁠ュ⁠ー⁠ムを修復してから、もう一度バ⁠ッ⁠ク⁠ア⁠ッ⁠プしてください。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/volume-check-failed&quot;&gt;詳細&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Inode {inode_number} on {volume_name} is corrupted. Repair the volume and back up again. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>inode {inode_number} ({volume_name}) が破損しています。ボ⁠リ⁠ュ⁠ー⁠ムを修復してから、もう一度バ⁠ッ⁠ク⁠ア⁠ッ⁠プしてください。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/inode-corrupted&quot;&gt;詳細&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because folder {parent_path} does not exist.</source>
        <translation>フ⁠ォ⁠ル⁠ダ⁠ー {parent_path} が存在しないため、復元パ⁠ス {path} を作成できませんでした。</translation>
    </message>
    <message>
        <source>Failed to create the restoration path {path} because it conflicts with the file in {parent_path}.</source>
        <translation>復元パ⁠ス {path} は {parent_path} 内のフ⁠ァ⁠イ⁠ルと競合するため、作成できませんでした。</translation>
    </message>
    <message>
        <source>{volume_name} has a bad cluster in {interval_start} - {interval_end}. The interval is skipped.</source>
        <translation>{volume_name} の {interval_start} - {interval_end} に不良ク⁠ラ⁠ス⁠タ⁠ーがあります。この範囲はス⁠キ⁠ッ⁠プされます。</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of pre-freeze script {script_result_path}.</source>
        <translation>終了コ⁠ー⁠ド {exit_code}：フ⁠リ⁠ー⁠ズ前ス⁠ク⁠リ⁠プ⁠ト {script_result_path} の実行失敗を無視しました。</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Cannot execute the pre-freeze script {script_result_path}.</source>
        <translation>終了コ⁠ー⁠ド {exit_code}：フ⁠リ⁠ー⁠ズ前ス⁠ク⁠リ⁠プ⁠ト {script_result_path} を実行できません。</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Ignored the unsuccessful execution of post-thaw script {script_result_path}.</source>
        <translation>終了コ⁠ー⁠ド {exit_code}：ソ⁠ー後ス⁠ク⁠リ⁠プ⁠ト {script_result_path} の実行失敗を無視しました。</translation>
    </message>
    <message>
        <source>Exit code {exit_code}: Unable to execute the post-thaw script {script_result_path}.</source>
        <translation>終了コ⁠ー⁠ド {exit_code}：ソ⁠ー後ス⁠ク⁠リ⁠プ⁠ト {script_result_path} を実行できません。</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported removable media.)</source>
        <translation>{volume_name} はバ⁠ッ⁠ク⁠ア⁠ッ⁠プされません。(理由：リ⁠ム⁠ー⁠バ⁠ブ⁠ル⁠メ⁠デ⁠ィ⁠アはサ⁠ポ⁠ー⁠トされていません。)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: External hard drive is excluded in the task.)</source>
        <translation>{volume_name} はバ⁠ッ⁠ク⁠ア⁠ッ⁠プされません。(理由：外付けハ⁠ー⁠ド⁠デ⁠ィ⁠ス⁠クはタ⁠ス⁠クから除外されています。)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk bus type.)</source>
        <translation>{volume_name} はバ⁠ッ⁠ク⁠ア⁠ッ⁠プされません。(理由：サ⁠ポ⁠ー⁠トされていないデ⁠ィ⁠ス⁠ク⁠バ⁠スの種類です。)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported disk type.)</source>
        <translation>{volume_name} はバ⁠ッ⁠ク⁠ア⁠ッ⁠プされません。(理由：サ⁠ポ⁠ー⁠トされていないデ⁠ィ⁠ス⁠クの種類です。)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system.)</source>
        <translation>{volume_name} はバ⁠ッ⁠ク⁠ア⁠ッ⁠プされません。(理由：サ⁠ポ⁠ー⁠トされていないフ⁠ァ⁠イ⁠ル⁠シ⁠ス⁠テ⁠ムです。)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unidentified file system.)</source>
        <translation>{volume_name} はバ⁠ッ⁠ク⁠ア⁠ッ⁠プされません。(理由：識別できないフ⁠ァ⁠イ⁠ル⁠シ⁠ス⁠テ⁠ムです。)</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unable to obtain volume information.)</source>
        <translation>{volume_name} はバ⁠ッ⁠ク⁠ア⁠ッ⁠プされません。(理由：ボ⁠リ⁠ュ⁠ー⁠ム情報を取得できません。)</translation>
    </message>
    <message>
        <source>Unable to find the shadow copy of {volume_name}. The operating system might have deleted it. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>{volume_name} のシ⁠ャ⁠ド⁠ウ⁠コ⁠ピ⁠ーが見つかりません。OS によって削除された可能性があります。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/windows/shadow-copy-not-found&quot;&gt;詳細&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Starts creating Nimbra Backup data volume.</source>
        <translation>Nimbra Backup のデ⁠ー⁠タ⁠ボ⁠リ⁠ュ⁠ー⁠ムの作成を開始します。</translation>
    </message>
    <message>
        <source>{volume_name} will not be backed up. (Reason: Unsupported file system)</source>
        <translation>{volume_name} はバ⁠ッ⁠ク⁠ア⁠ッ⁠プされません。(理由：サ⁠ポ⁠ー⁠トされていないフ⁠ァ⁠イ⁠ル⁠シ⁠ス⁠テ⁠ム)</translation>
    </message>
    <message>
        <source>Nimbra Backup needs Full Disk Access to take snapshots. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>ス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トを作成するには、Nimbra Backup にフ⁠ル⁠デ⁠ィ⁠ス⁠ク⁠ア⁠ク⁠セ⁠スが必要です。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;許可する方法&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>{volume_name} で asr (Apple Software Restore) に失敗。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/asr-failed&quot;&gt;詳細&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Restart your Mac and run First Aid to repair the disk.</source>
        <translation>{volume_name} で asr (Apple Software Restore) を実行できませんでした。Mac を再起動し、First Aid でデ⁠ィ⁠ス⁠クを修復してください。</translation>
    </message>
    <message>
        <source>Allow the system extension of Nimbra Backup in Privacy &amp; Security to continue backing up. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;Learn how&lt;/a&gt;</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プを続行するには、「プ⁠ラ⁠イ⁠バ⁠シ⁠ーとセ⁠キ⁠ュ⁠リ⁠テ⁠ィ」で Nimbra Backup のシ⁠ス⁠テ⁠ム拡張を許可してください。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/system-extension&quot;&gt;方法を見る&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot find {volume_name} data on Nimbra Backup data volume. Performing full backup instead.</source>
        <translation>Nimbra Backup のデ⁠ー⁠タ⁠ボ⁠リ⁠ュ⁠ー⁠ムに {volume_name} のデ⁠ー⁠タが見つかりません。代わりにフ⁠ル⁠バ⁠ッ⁠ク⁠ア⁠ッ⁠プを実行します。</translation>
    </message>
    <message>
        <source>Cannot find snapshot of {volume_name}. Performing full backup instead.</source>
        <translation>{volume_name} のス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トが見つかりません。代わりにフ⁠ル⁠バ⁠ッ⁠ク⁠ア⁠ッ⁠プを実行します。</translation>
    </message>
    <message>
        <source>Failed to run asr (Apple Software Restore) on {volume_name}. Performing full backup instead.</source>
        <translation>{volume_name} で asr (Apple Software Restore) を実行できませんでした。代わりにフ⁠ル⁠バ⁠ッ⁠ク⁠ア⁠ッ⁠プを実行します。</translation>
    </message>
    <message>
        <source>Starts taking snapshots.</source>
        <translation>ス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トの作成を開始します。</translation>
    </message>
    <message>
        <source>Finished taking snapshots.</source>
        <translation>ス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トの作成が完了しました。</translation>
    </message>
    <message>
        <source>Backup failed because the backup account on this Mac could not be authenticated. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;Learn more&lt;/a&gt;</source>
        <translation>この Mac のバ⁠ッ⁠ク⁠ア⁠ッ⁠プ用ア⁠カ⁠ウ⁠ン⁠トを認証できなかったため、バ⁠ッ⁠ク⁠ア⁠ッ⁠プが失敗しました。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/backup-account&quot;&gt;詳細&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Failed to mount {volume_name}. (Reason: Encrypted volumes cannot be mounted.)</source>
        <translation>{volume_name} をマ⁠ウ⁠ン⁠トできませんでした。(理由：暗号化されたボ⁠リ⁠ュ⁠ー⁠ムはマ⁠ウ⁠ン⁠トできません。)</translation>
    </message>
    <message>
        <source>Backup failed because Nimbra Backup has no Full Disk Access. &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;Learn how to allow it&lt;/a&gt;</source>
        <translation>Nimbra Backup にフ⁠ル⁠デ⁠ィ⁠ス⁠ク⁠ア⁠ク⁠セ⁠スがないため、バ⁠ッ⁠ク⁠ア⁠ッ⁠プが失敗しました。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/mac/full-disk-access&quot;&gt;許可する方法&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Cannot mount the default backup volume. Restart your Mac.</source>
        <translation>デ⁠フ⁠ォ⁠ル⁠トのバ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠ボ⁠リ⁠ュ⁠ー⁠ムをマ⁠ウ⁠ン⁠トできません。Mac を再起動してください。</translation>
    </message>
    <message>
        <source>Keep all versions within the last %1 months</source>
        <translation>過去 %1 か月以内のすべてのバ⁠ー⁠ジ⁠ョ⁠ンを保持</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>ア⁠イ⁠ド⁠ル</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ中...</translation>
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
        <translation>一部成功</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Restoring...</source>
        <translation>復元中...</translation>
    </message>
    <message>
        <source>Taking a snapshot...</source>
        <translation>ス⁠ナ⁠ッ⁠プ⁠シ⁠ョ⁠ッ⁠トを作成中...</translation>
    </message>
    <message>
        <source>Canceled</source>
        <translation>キ⁠ャ⁠ン⁠セ⁠ル済み</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続中...</translation>
    </message>
    <message>
        <source>View backup status</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プの状態を表示</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>接続を編集</translation>
    </message>
    <message>
        <source>Sign In Again</source>
        <translation>もう一度サ⁠イ⁠ン⁠イ⁠ン</translation>
    </message>
    <message>
        <source>This application is already opened by another user.</source>
        <translation>このア⁠プ⁠リ⁠ケ⁠ー⁠シ⁠ョ⁠ンは別のユ⁠ー⁠ザ⁠ーがすでに開いています。</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection and try again.</source>
        <translation>イ⁠ン⁠タ⁠ー⁠ネ⁠ッ⁠ト接続エ⁠ラ⁠ーです。イ⁠ン⁠タ⁠ー⁠ネ⁠ッ⁠ト接続を確認して、やり直してください。</translation>
    </message>
    <message>
        <source>You have used up your quota of capacity. Please contact the administrator for extra space.</source>
        <translation>ス⁠ト⁠レ⁠ー⁠ジの割り当て容量を使い切りました。容量を追加するには管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>This device was removed from the account.</source>
        <translation>このデ⁠バ⁠イ⁠スはア⁠カ⁠ウ⁠ン⁠トから削除されました。</translation>
    </message>
    <message>
        <source>Agent</source>
        <translation>エ⁠ー⁠ジ⁠ェ⁠ン⁠ト</translation>
    </message>
    <message>
        <source>Nimbra Backup</source>
        <translation>Nimbra Backup</translation>
    </message>
    <message>
        <source>Preparing for backup...</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プを準備中...</translation>
    </message>
    <message>
        <source>Failed to upgrade backup service. Please contact Corvana Technical Support for assistance.</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠サ⁠ー⁠ビ⁠スをア⁠ッ⁠プ⁠グ⁠レ⁠ー⁠ドできませんでした。Corvana テ⁠ク⁠ニ⁠カ⁠ル⁠サ⁠ポ⁠ー⁠トにお問い合わせください。</translation>
    </message>
    <message>
        <source>Upgrading backup service database. Please keep this window open if you wish to launch the agent automatically after upgrade.</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠サ⁠ー⁠ビ⁠スのデ⁠ー⁠タ⁠ベ⁠ー⁠スをア⁠ッ⁠プ⁠グ⁠レ⁠ー⁠ドしています。ア⁠ッ⁠プ⁠グ⁠レ⁠ー⁠ド後にエ⁠ー⁠ジ⁠ェ⁠ン⁠トを自動で起動するには、このウ⁠ィ⁠ン⁠ド⁠ウを開いたままにしてください。</translation>
    </message>
    <message>
        <source>You&apos;re all set for backup. Do you want to back up this device right now?</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プの準備ができました。このデ⁠バ⁠イ⁠スを今すぐバ⁠ッ⁠ク⁠ア⁠ッ⁠プしますか？</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Open Nimbra Backup</source>
        <translation>Nimbra Backup を開く</translation>
    </message>
    <message>
        <source>Closing this application will not stop the backup service.</source>
        <translation>このア⁠プ⁠リ⁠ケ⁠ー⁠シ⁠ョ⁠ンを閉じても、バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠サ⁠ー⁠ビ⁠スは停止しません。</translation>
    </message>
    <message>
        <source>The service cannot be activated normally. Please reboot your device and try again. If the problem remains, please contact Corvana Technical Support.</source>
        <translation>サ⁠ー⁠ビ⁠スを正常に起動できません。デ⁠バ⁠イ⁠スを再起動してやり直してください。問題が解決しない場合は、Corvana テ⁠ク⁠ニ⁠カ⁠ル⁠サ⁠ポ⁠ー⁠トにお問い合わせください。</translation>
    </message>
    <message>
        <source>Backup successful</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ成功</translation>
    </message>
    <message>
        <source>Your device was backed up.</source>
        <translation>デ⁠バ⁠イ⁠スのバ⁠ッ⁠ク⁠ア⁠ッ⁠プが完了しました。</translation>
    </message>
    <message>
        <source>Nimbra Backup %1</source>
        <translation>Nimbra Backup %1</translation>
    </message>
    <message>
        <source>Check the activity logs in the agent for more information.</source>
        <translation>詳細はエ⁠ー⁠ジ⁠ェ⁠ン⁠トのア⁠ク⁠テ⁠ィ⁠ビ⁠テ⁠ィ⁠ロ⁠グを確認してください。</translation>
    </message>
    <message>
        <source>Storage is almost full</source>
        <translation>ス⁠ト⁠レ⁠ー⁠ジの空きが少なくなっています</translation>
    </message>
    <message>
        <source>You have used 85% of your total storage (%1).</source>
        <translation>総ス⁠ト⁠レ⁠ー⁠ジ容量 (%1) の 85% を使用しています。</translation>
    </message>
    <message>
        <source>Storage is full</source>
        <translation>ス⁠ト⁠レ⁠ー⁠ジがいっぱいです</translation>
    </message>
    <message>
        <source>You have used 95% of your total storage (%1).</source>
        <translation>総ス⁠ト⁠レ⁠ー⁠ジ容量 (%1) の 95% を使用しています。</translation>
    </message>
    <message>
        <source>Device removed</source>
        <translation>デ⁠バ⁠イ⁠スが削除されました</translation>
    </message>
    <message>
        <source>This device has been removed from the account. Go to the Nimbra Backup console for more information.</source>
        <translation>このデ⁠バ⁠イ⁠スはア⁠カ⁠ウ⁠ン⁠トから削除されました。詳細は Nimbra Backup コ⁠ン⁠ソ⁠ー⁠ルで確認してください。</translation>
    </message>
    <message>
        <source>Full Disk Access required</source>
        <translation>フ⁠ル⁠デ⁠ィ⁠ス⁠ク⁠ア⁠ク⁠セ⁠スが必要です</translation>
    </message>
    <message>
        <source>Enable Full Disk Access in Privacy &amp; Security.</source>
        <translation>「プ⁠ラ⁠イ⁠バ⁠シ⁠ーとセ⁠キ⁠ュ⁠リ⁠テ⁠ィ」でフ⁠ル⁠デ⁠ィ⁠ス⁠ク⁠ア⁠ク⁠セ⁠スを有効にしてください。</translation>
    </message>
    <message>
        <source>System extension required</source>
        <translation>シ⁠ス⁠テ⁠ム拡張が必要です</translation>
    </message>
    <message>
        <source>Go to Privacy &amp; Security and enable system extensions for Nimbra Backup.</source>
        <translation>「プ⁠ラ⁠イ⁠バ⁠シ⁠ーとセ⁠キ⁠ュ⁠リ⁠テ⁠ィ」で Nimbra Backup のシ⁠ス⁠テ⁠ム拡張を有効にしてください。</translation>
    </message>
    <message>
        <source>Nimbra Backup console</source>
        <translation>Nimbra Backup コ⁠ン⁠ソ⁠ー⁠ル</translation>
    </message>
    <message>
        <source>Recovery Portal</source>
        <translation>リ⁠カ⁠バ⁠リ⁠ー⁠ポ⁠ー⁠タ⁠ル</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>%1 minute ago</source>
        <translation>%1 分前</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分前</translation>
    </message>
    <message>
        <source>%1 hour ago</source>
        <translation>%1 時間前</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 時間前</translation>
    </message>
    <message>
        <source>%1 day ago</source>
        <translation>%1 日前</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 日前</translation>
    </message>
    <message>
        <source>Est. finish</source>
        <translation>完了予定</translation>
    </message>
    <message>
        <source>:</source>
        <translation>：</translation>
    </message>
    <message>
        <source>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; processed</source>
        <translation>&lt;div style=&quot;color: #0A9CFF; font-weight: bold&quot;&gt;%1&lt;/div&gt; 処理済み</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>まだバ⁠ッ⁠ク⁠ア⁠ッ⁠プされていません</translation>
    </message>
    <message>
        <source>No backup schedule</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠ス⁠ケ⁠ジ⁠ュ⁠ー⁠ルなし</translation>
    </message>
    <message>
        <source>Backup by event</source>
        <translation>イ⁠ベ⁠ン⁠ト時にバ⁠ッ⁠ク⁠ア⁠ッ⁠プ</translation>
    </message>
    <message>
        <source>Automated daily backup</source>
        <translation>毎日自動バ⁠ッ⁠ク⁠ア⁠ッ⁠プ</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>ア⁠ク⁠テ⁠ィ⁠ビ⁠テ⁠ィ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Date &amp; Time</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>イ⁠ベ⁠ン⁠ト</translation>
    </message>
    <message>
        <source>Last backup:</source>
        <translation>前回のバ⁠ッ⁠ク⁠ア⁠ッ⁠プ：</translation>
    </message>
    <message>
        <source>Next backup:</source>
        <translation>次回のバ⁠ッ⁠ク⁠ア⁠ッ⁠プ：</translation>
    </message>
    <message>
        <source>Protect your device with Nimbra Backup</source>
        <translation>Nimbra Backup でデ⁠バ⁠イ⁠スを保護しましょう</translation>
    </message>
    <message>
        <source>Nimbra Backup provides protection for the entire device. All data, applications, and system configurations will be backed up according to your schedules.</source>
        <translation>Nimbra Backup はデ⁠バ⁠イ⁠ス全体を保護します。すべてのデ⁠ー⁠タ、ア⁠プ⁠リ⁠ケ⁠ー⁠シ⁠ョ⁠ン、シ⁠ス⁠テ⁠ム構成がス⁠ケ⁠ジ⁠ュ⁠ー⁠ルに従ってバ⁠ッ⁠ク⁠ア⁠ッ⁠プされます。</translation>
    </message>
    <message>
        <source>Let&apos;s Start</source>
        <translation>始める</translation>
    </message>
    <message>
        <source>Sign in on your browser</source>
        <translation>ブ⁠ラ⁠ウ⁠ザ⁠ーでサ⁠イ⁠ン⁠イ⁠ン</translation>
    </message>
    <message>
        <source>We&apos;ve opened a new browser tab for you to sign in. Then, we will guide you to the next step.</source>
        <translation>サ⁠イ⁠ン⁠イ⁠ン用に新しいブ⁠ラ⁠ウ⁠ザ⁠ーのタ⁠ブを開きました。サ⁠イ⁠ン⁠イ⁠ン後、次の手順をご案内します。</translation>
    </message>
    <message>
        <source>Connecting to server...&#xa0;</source>
        <translation>サ⁠ー⁠バ⁠ーに接続中...&#xa0;</translation>
    </message>
    <message>
        <source>Server connection error. Try again later.</source>
        <translation>サ⁠ー⁠バ⁠ー接続エ⁠ラ⁠ーです。しばらくしてからやり直してください。</translation>
    </message>
    <message>
        <source>Internet connection error. Check your Internet connection.</source>
        <translation>イ⁠ン⁠タ⁠ー⁠ネ⁠ッ⁠ト接続エ⁠ラ⁠ーです。イ⁠ン⁠タ⁠ー⁠ネ⁠ッ⁠ト接続を確認してください。</translation>
    </message>
    <message>
        <source>The current version of the agent is older. Please update the agent.</source>
        <translation>エ⁠ー⁠ジ⁠ェ⁠ン⁠トのバ⁠ー⁠ジ⁠ョ⁠ンが古くなっています。エ⁠ー⁠ジ⁠ェ⁠ン⁠トを更新してください。</translation>
    </message>
    <message>
        <source>Login status error. Make sure you installed the latest version of the agent and sign in again.</source>
        <translation>ロ⁠グ⁠イ⁠ン状態のエ⁠ラ⁠ーです。最新バ⁠ー⁠ジ⁠ョ⁠ンのエ⁠ー⁠ジ⁠ェ⁠ン⁠トがイ⁠ン⁠ス⁠ト⁠ー⁠ルされていることを確認し、もう一度サ⁠イ⁠ン⁠イ⁠ンしてください。</translation>
    </message>
    <message>
        <source>Invalid certificate. Run Windows Update to renew your certificate. Refer to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;Knowledge Center&lt;/a&gt;.</source>
        <translation>証明書が無効です。Windows Update を実行して証明書を更新してください。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;https://www.nimbrabackup.com/help/certificate&quot;&gt;ナ⁠レ⁠ッ⁠ジ⁠セ⁠ン⁠タ⁠ー&lt;/a&gt;を参照してください。</translation>
    </message>
    <message>
        <source>This device conflicts with another device. Sign in again if you want to back up this device instead of the other one. Please note that the other device will no longer be backed up after that.</source>
        <translation>このデ⁠バ⁠イ⁠スは別のデ⁠バ⁠イ⁠スと競合しています。別のデ⁠バ⁠イ⁠スの代わりにこのデ⁠バ⁠イ⁠スをバ⁠ッ⁠ク⁠ア⁠ッ⁠プする場合は、もう一度サ⁠イ⁠ン⁠イ⁠ンしてください。その後、別のデ⁠バ⁠イ⁠スはバ⁠ッ⁠ク⁠ア⁠ッ⁠プされなくなります。</translation>
    </message>
    <message>
        <source>Authentication failed. Sign out from the agent and sign in again.</source>
        <translation>認証に失敗しました。エ⁠ー⁠ジ⁠ェ⁠ン⁠トからサ⁠イ⁠ン⁠ア⁠ウ⁠トして、もう一度サ⁠イ⁠ン⁠イ⁠ンしてください。</translation>
    </message>
    <message>
        <source>Device time incorrect. Sync the device time before the next backup.</source>
        <translation>デ⁠バ⁠イ⁠スの時刻が正しくありません。次回のバ⁠ッ⁠ク⁠ア⁠ッ⁠プまでにデ⁠バ⁠イ⁠スの時刻を同期してください。</translation>
    </message>
    <message>
        <source>You haven&apos;t set up the Nimbra Encryption Key. You must set it up on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt; before starting to back up devices.</source>
        <translation>Nimbra 暗号化キ⁠ーが設定されていません。デ⁠バ⁠イ⁠スのバ⁠ッ⁠ク⁠ア⁠ッ⁠プを開始する前に&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;コ⁠ン⁠ソ⁠ー⁠ル&lt;/a&gt;で設定してください。</translation>
    </message>
    <message>
        <source>You haven&apos;t finish setting the Nimbra Encryption Key. Go to &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup console&lt;/a&gt; to complete the setup.</source>
        <translation>Nimbra 暗号化キ⁠ーの設定が完了していません。&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;Nimbra Backup コ⁠ン⁠ソ⁠ー⁠ル&lt;/a&gt;で設定を完了してください。</translation>
    </message>
    <message>
        <source>Almost there</source>
        <translation>もう少しで完了です</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Backup Policy</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠ポ⁠リ⁠シ⁠ー</translation>
    </message>
    <message>
        <source>Data Center</source>
        <translation>デ⁠ー⁠タ⁠セ⁠ン⁠タ⁠ー</translation>
    </message>
    <message>
        <source>Backup schedule</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠ス⁠ケ⁠ジ⁠ュ⁠ー⁠ル</translation>
    </message>
    <message>
        <source>Backup scope</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プ対象</translation>
    </message>
    <message>
        <source>More details can be found on the console.</source>
        <translation>詳細はコ⁠ン⁠ソ⁠ー⁠ルで確認できます。</translation>
    </message>
    <message>
        <source>Default policy (personal computer)</source>
        <translation>デ⁠フ⁠ォ⁠ル⁠ト⁠ポ⁠リ⁠シ⁠ー (パ⁠ソ⁠コ⁠ン)</translation>
    </message>
    <message>
        <source>Default policy (physical server)</source>
        <translation>デ⁠フ⁠ォ⁠ル⁠ト⁠ポ⁠リ⁠シ⁠ー (物理サ⁠ー⁠バ⁠ー)</translation>
    </message>
    <message>
        <source>We will back up this device right after finishing setting up the agent. You can configure backup policies on the &lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;console&lt;/a&gt;.</source>
        <translation>エ⁠ー⁠ジ⁠ェ⁠ン⁠トの設定が完了したら、すぐにこのデ⁠バ⁠イ⁠スをバ⁠ッ⁠ク⁠ア⁠ッ⁠プします。バ⁠ッ⁠ク⁠ア⁠ッ⁠プ⁠ポ⁠リ⁠シ⁠ーは&lt;a style=&quot;color:#00A282; text-decoration:none; &quot; href=&quot;%1&quot;&gt;コ⁠ン⁠ソ⁠ー⁠ル&lt;/a&gt;で設定できます。</translation>
    </message>
    <message>
        <source>North America - Seattle</source>
        <translation>北米 - シ⁠ア⁠ト⁠ル</translation>
    </message>
    <message>
        <source>Europe - Frankfurt</source>
        <translation>ヨ⁠ー⁠ロ⁠ッ⁠パ - フ⁠ラ⁠ン⁠ク⁠フ⁠ル⁠ト</translation>
    </message>
    <message>
        <source>APAC - Taiwan</source>
        <translation>ア⁠ジ⁠ア太平洋 - 台湾</translation>
    </message>
    <message>
        <source>Entire device (external drives included)</source>
        <translation>デ⁠バ⁠イ⁠ス全体 (外付けド⁠ラ⁠イ⁠ブを含む)</translation>
    </message>
    <message>
        <source>Entire device</source>
        <translation>デ⁠バ⁠イ⁠ス全体</translation>
    </message>
    <message>
        <source>System volume</source>
        <translation>シ⁠ス⁠テ⁠ム⁠ボ⁠リ⁠ュ⁠ー⁠ム</translation>
    </message>
    <message>
        <source>Specified volumes (%1)</source>
        <translation>指定したボ⁠リ⁠ュ⁠ー⁠ム (%1)</translation>
    </message>
    <message>
        <source>Backed up daily at %1</source>
        <translation>毎日 %1 にバ⁠ッ⁠ク⁠ア⁠ッ⁠プ</translation>
    </message>
    <message>
        <source>Weekly (%2 every %1)</source>
        <translation>毎週 (%1 %2)</translation>
    </message>
    <message>
        <source>Screen lock</source>
        <translation>画面ロ⁠ッ⁠ク</translation>
    </message>
    <message>
        <source>Signout</source>
        <translation>サ⁠イ⁠ン⁠ア⁠ウ⁠ト</translation>
    </message>
    <message>
        <source>Device power on</source>
        <translation>デ⁠バ⁠イ⁠スの起動</translation>
    </message>
    <message>
        <source>By event: %1</source>
        <translation>イ⁠ベ⁠ン⁠ト：%1</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>制限値</translation>
    </message>
    <message>
        <source>Minimum: 5; Maximum: 9,999</source>
        <translation>最小：5、最大：9,999</translation>
    </message>
    <message>
        <source>Mbps (%1 MB/s)</source>
        <translation>Mbps (%1 MB/s)</translation>
    </message>
    <message>
        <source>Limit upload speed within a specific time range every day</source>
        <translation>毎日、特定の時間帯にア⁠ッ⁠プ⁠ロ⁠ー⁠ド速度を制限する</translation>
    </message>
    <message>
        <source>(Custom)</source>
        <translation>(カ⁠ス⁠タ⁠ム)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Data upload speed</source>
        <translation>デ⁠ー⁠タのア⁠ッ⁠プ⁠ロ⁠ー⁠ド速度</translation>
    </message>
    <message>
        <source>Limit the upload speed to prevent backups from taking up your bandwidth. The speed limit will be applied within minutes after you save the settings.</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プが帯域幅を占有しないよう、ア⁠ッ⁠プ⁠ロ⁠ー⁠ド速度を制限します。速度制限は設定の保存後、数分以内に適用されます。</translation>
    </message>
    <message>
        <source>Next day</source>
        <translation>翌日</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hours</source>
        <translation>注意：100 GB のデ⁠ー⁠タのア⁠ッ⁠プ⁠ロ⁠ー⁠ドには最大 %1 時間かかる場合があります</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 hour</source>
        <translation>注意：100 GB のデ⁠ー⁠タのア⁠ッ⁠プ⁠ロ⁠ー⁠ドには最大 %1 時間かかる場合があります</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minute</source>
        <translation>注意：100 GB のデ⁠ー⁠タのア⁠ッ⁠プ⁠ロ⁠ー⁠ドには最大 %1 分かかる場合があります</translation>
    </message>
    <message>
        <source>Attention: Uploading 100 GB of data can take up to %1 minutes</source>
        <translation>注意：100 GB のデ⁠ー⁠タのア⁠ッ⁠プ⁠ロ⁠ー⁠ドには最大 %1 分かかる場合があります</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt; every day. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;注：&lt;/span&gt;組織によってア⁠ッ⁠プ⁠ロ⁠ー⁠ド速度は毎日 &lt;b&gt;%2 から %3 の間、最大 %1 Mbps&lt;/b&gt; に設定されています。ここで別の制限を設定した場合、2 つのうち低い方の制限が適用されます。</translation>
    </message>
    <message>
        <source>&lt;span style=&quot;color:Blue;&quot;&gt;Note:&lt;/span&gt;The upload speed managed by your organization is set to a maximum of &lt;b&gt;%1 Mbps between %2 and %3&lt;/b&gt;. If you set a different limit here, the system will use the lower limit among the two.</source>
        <translation>&lt;span style=&quot;color:Blue;&quot;&gt;注：&lt;/span&gt;組織によってア⁠ッ⁠プ⁠ロ⁠ー⁠ド速度は &lt;b&gt;%2 から %3 の間、最大 %1 Mbps&lt;/b&gt; に設定されています。ここで別の制限を設定した場合、2 つのうち低い方の制限が適用されます。</translation>
    </message>
    <message>
        <source>Terms of Service</source>
        <translation>利用規約</translation>
    </message>
    <message>
        <source>Privacy Statement</source>
        <translation>プ⁠ラ⁠イ⁠バ⁠シ⁠ーに関する声明</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バ⁠ー⁠ジ⁠ョ⁠ン</translation>
    </message>
    <message>
        <source>Error&#xa0;</source>
        <translation>エ⁠ラ⁠ー&#xa0;</translation>
    </message>
    <message>
        <source>Start at</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>End at</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>min</source>
        <translation>分</translation>
    </message>
    <message>
        <source>mins</source>
        <translation>分</translation>
    </message>
    <message>
        <source>hour</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>days</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Knowledge Center</source>
        <translation>ナ⁠レ⁠ッ⁠ジ⁠セ⁠ン⁠タ⁠ー</translation>
    </message>
    <message>
        <source>Not set up</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Service not reachable</source>
        <translation>サ⁠ー⁠ビ⁠スに接続できません</translation>
    </message>
    <message>
        <source>Last backup: %1, %2</source>
        <translation>前回のバ⁠ッ⁠ク⁠ア⁠ッ⁠プ: %1、%2</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>今すぐバ⁠ッ⁠ク⁠ア⁠ッ⁠プ</translation>
    </message>
    <message>
        <source>A backup is running</source>
        <translation>バ⁠ッ⁠ク⁠ア⁠ッ⁠プを実行中です</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コ⁠ピ⁠ー</translation>
    </message>
</context>
</TS>
