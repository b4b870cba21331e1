<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutPage</name>
    <message>
        <source>Device software</source>
        <translation>设备软件</translation>
    </message>
    <message>
        <source>asking the device…</source>
        <translation>正在查询设备…</translation>
    </message>
    <message>
        <source>Device system</source>
        <translation>设备系统</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>no device ID</source>
        <translation>无设备 ID</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>无地址</translation>
    </message>
    <message>
        <source>This program</source>
        <translation>本程序</translation>
    </message>
    <message>
        <source>%1, built %2</source>
        <translation>%1，构建于 %2</translation>
    </message>
    <message>
        <source>Open-source components</source>
        <translation>开源组件</translation>
    </message>
    <message>
        <source>GNU LGPL version 3; Qt Virtual Keyboard: GNU GPL version 3</source>
        <translation>GNU LGPL 第 3 版；Qt Virtual Keyboard：GNU GPL 第 3 版</translation>
    </message>
</context>
<context>
    <name>ActionPanel</name>
    <message>
        <source>ON AIR</source>
        <translation>直播中</translation>
    </message>
    <message>
        <source>Stream off</source>
        <translation>未推流</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) live</source>
        <translation>
            <numerusform>%n 路直播中</numerusform>
        </translation>
    </message>
    <message>
        <source>No channel live</source>
        <translation>无直播通道</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>停止录制</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>未录制</translation>
    </message>
    <message>
        <source>Picture in picture</source>
        <translation>画中画</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>画中画</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>REC %1</source>
        <translation>录制 %1</translation>
    </message>
</context>
<context>
    <name>AudioPage</name>
    <message>
        <source>44.1 kHz</source>
        <translation>44.1 kHz</translation>
    </message>
    <message>
        <source>48 kHz</source>
        <translation>48 kHz</translation>
    </message>
    <message>
        <source>rate ?</source>
        <translation>采样率 ?</translation>
    </message>
    <message>
        <source>rate %1</source>
        <translation>采样率 %1</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>尚未知</translation>
    </message>
    <message>
        <source>No monitor</source>
        <translation>无显示器</translation>
    </message>
    <message>
        <source>Monitor connected</source>
        <translation>显示器已连接</translation>
    </message>
    <message>
        <source>Programme sound</source>
        <translation>节目声音</translation>
    </message>
    <message>
        <source>PIP sound</source>
        <translation>画中画声音</translation>
    </message>
    <message>
        <source>Follows the picture</source>
        <translation>跟随画面</translation>
    </message>
    <message>
        <source>On: the sound of the input on %1</source>
        <translation>开：跟随%1的输入</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>画中画</translation>
    </message>
    <message>
        <source>programme</source>
        <translation>节目</translation>
    </message>
    <message>
        <source>Off: the source chosen below</source>
        <translation>关：使用下面选择的音源</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Following</source>
        <translation>跟随中</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>已选择</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>电平</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>HDMI output shows (asking the device…)</source>
        <translation>HDMI 输出显示（正在询问设备…）</translation>
    </message>
    <message>
        <source>HDMI output shows</source>
        <translation>HDMI 输出显示</translation>
    </message>
    <message>
        <source>Programme</source>
        <translation>节目</translation>
    </message>
    <message>
        <source>Multiview</source>
        <translation>多画面</translation>
    </message>
    <message>
        <source>HDMI output</source>
        <translation>HDMI 输出</translation>
    </message>
    <message>
        <source>Second HDMI output</source>
        <translation>第二路 HDMI 输出</translation>
    </message>
    <message>
        <source>Ask the outputs again</source>
        <translation>重新查询输出</translation>
    </message>
</context>
<context>
    <name>BluetoothPage</name>
    <message>
        <source>The companion app asks to stop the stream. Stop streaming on every channel now?</source>
        <translation>手机助手请求停止推流。现在停止所有通道的推流吗？</translation>
    </message>
    <message>
        <source>Stop streaming</source>
        <translation>停止推流</translation>
    </message>
    <message>
        <source>No live session</source>
        <translation>无直播会话</translation>
    </message>
    <message>
        <source>Telling the companion service the stream starts…</source>
        <translation>正在通知助手服务直播开始…</translation>
    </message>
    <message>
        <source>Live session confirmed by the companion service</source>
        <translation>助手服务已确认直播会话</translation>
    </message>
    <message>
        <source>Telling the companion service the stream ended…</source>
        <translation>正在通知助手服务直播结束…</translation>
    </message>
    <message>
        <source>The companion app sent a stream destination</source>
        <translation>手机助手发来了推流地址</translation>
    </message>
    <message>
        <source>Portrait picture</source>
        <translation>竖屏画面</translation>
    </message>
    <message>
        <source>Landscape picture</source>
        <translation>横屏画面</translation>
    </message>
    <message>
        <source>Use this destination</source>
        <translation>使用此地址</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Bluetooth on</source>
        <translation>蓝牙开</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>已选择</translation>
    </message>
    <message>
        <source>Bluetooth off</source>
        <translation>蓝牙关</translation>
    </message>
    <message>
        <source>Companion app on</source>
        <translation>手机助手开</translation>
    </message>
    <message>
        <source>Companion app off</source>
        <translation>手机助手关</translation>
    </message>
    <message>
        <source>Companion stream</source>
        <translation>助手推流</translation>
    </message>
    <message>
        <source>No destination from the app yet</source>
        <translation>尚未收到手机助手的地址</translation>
    </message>
    <message>
        <source>Search devices</source>
        <translation>搜索设备</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>正在搜索…</translation>
    </message>
    <message>
        <source>Speakers, headsets</source>
        <translation>音箱、耳机</translation>
    </message>
    <message>
        <source>Search phones</source>
        <translation>搜索手机</translation>
    </message>
    <message>
        <source>Companion app</source>
        <translation>手机助手</translation>
    </message>
    <message>
        <source>Switch Bluetooth on to search.</source>
        <translation>请先打开蓝牙再搜索。</translation>
    </message>
    <message>
        <source>The device did not answer for %1.</source>
        <translation>设备未就 %1 作出应答。</translation>
    </message>
    <message>
        <source>Disconnecting %1; the list shows the result.</source>
        <translation>正在断开 %1，结果见列表。</translation>
    </message>
    <message>
        <source>Connected to %1.</source>
        <translation>已连接 %1。</translation>
    </message>
    <message>
        <source>Disconnected from %1.</source>
        <translation>已断开 %1。</translation>
    </message>
    <message>
        <source>Could not connect to %1.</source>
        <translation>无法连接 %1。</translation>
    </message>
    <message>
        <source>Could not disconnect from %1.</source>
        <translation>无法断开 %1。</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>手机</translation>
    </message>
    <message>
        <source>none found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Waiting for the device…</source>
        <translation>等待设备…</translation>
    </message>
</context>
<context>
    <name>BoardStore</name>
    <message>
        <source>London</source>
        <translation>伦敦</translation>
    </message>
    <message>
        <source>Berlin</source>
        <translation>柏林</translation>
    </message>
    <message>
        <source>Cairo</source>
        <translation>开罗</translation>
    </message>
    <message>
        <source>Moscow</source>
        <translation>莫斯科</translation>
    </message>
    <message>
        <source>Tehran</source>
        <translation>德黑兰</translation>
    </message>
    <message>
        <source>Dubai</source>
        <translation>迪拜</translation>
    </message>
    <message>
        <source>Kabul</source>
        <translation>喀布尔</translation>
    </message>
    <message>
        <source>Karachi</source>
        <translation>卡拉奇</translation>
    </message>
    <message>
        <source>New Delhi</source>
        <translation>新德里</translation>
    </message>
    <message>
        <source>Kathmandu</source>
        <translation>加德满都</translation>
    </message>
    <message>
        <source>Dhaka</source>
        <translation>达卡</translation>
    </message>
    <message>
        <source>Yangon</source>
        <translation>仰光</translation>
    </message>
    <message>
        <source>Bangkok</source>
        <translation>曼谷</translation>
    </message>
    <message>
        <source>Beijing</source>
        <translation>北京</translation>
    </message>
    <message>
        <source>Tokyo</source>
        <translation>东京</translation>
    </message>
    <message>
        <source>Adelaide</source>
        <translation>阿德莱德</translation>
    </message>
    <message>
        <source>Sydney</source>
        <translation>悉尼</translation>
    </message>
    <message>
        <source>Nouméa</source>
        <translation>努美阿</translation>
    </message>
    <message>
        <source>Auckland</source>
        <translation>奥克兰</translation>
    </message>
    <message>
        <source>Nuku&apos;alofa</source>
        <translation>努库阿洛法</translation>
    </message>
    <message>
        <source>Kiritimati</source>
        <translation>圣诞岛</translation>
    </message>
    <message>
        <source>Azores</source>
        <translation>亚速尔群岛</translation>
    </message>
    <message>
        <source>South Georgia</source>
        <translation>南乔治亚岛</translation>
    </message>
    <message>
        <source>São Paulo</source>
        <translation>圣保罗</translation>
    </message>
    <message>
        <source>St. John&apos;s</source>
        <translation>圣约翰斯</translation>
    </message>
    <message>
        <source>Halifax</source>
        <translation>哈利法克斯</translation>
    </message>
    <message>
        <source>New York</source>
        <translation>纽约</translation>
    </message>
    <message>
        <source>Chicago</source>
        <translation>芝加哥</translation>
    </message>
    <message>
        <source>Denver</source>
        <translation>丹佛</translation>
    </message>
    <message>
        <source>Los Angeles</source>
        <translation>洛杉矶</translation>
    </message>
    <message>
        <source>Anchorage</source>
        <translation>安克雷奇</translation>
    </message>
    <message>
        <source>Honolulu</source>
        <translation>檀香山</translation>
    </message>
    <message>
        <source>Pago Pago</source>
        <translation>帕果帕果</translation>
    </message>
    <message>
        <source>Baker Island</source>
        <translation>贝克岛</translation>
    </message>
</context>
<context>
    <name>ChannelState</name>
    <message>
        <source>Live</source>
        <translation>直播中</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>启动中…</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>未确认</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>停止中…</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
</context>
<context>
    <name>ChoiceRow</name>
    <message>
        <source>Selected</source>
        <translation>已选</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>DateTimePage</name>
    <message>
        <source>Device clock</source>
        <translation>设备时钟</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>时</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Set date and time</source>
        <translation>设置日期和时间</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>时区</translation>
    </message>
    <message>
        <source>Use this time zone</source>
        <translation>使用此时区</translation>
    </message>
    <message>
        <source>The clock moves by the difference</source>
        <translation>时钟按时差调整</translation>
    </message>
</context>
<context>
    <name>DisplayPage</name>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Screen orientation</source>
        <translation>屏幕方向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横屏</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>竖屏</translation>
    </message>
    <message>
        <source>In use now</source>
        <translation>当前使用</translation>
    </message>
    <message>
        <source>Saved. The new orientation is used at the next start.</source>
        <translation>已保存。新方向在下次启动时生效。</translation>
    </message>
    <message>
        <source>A change of orientation is used at the next start.</source>
        <translation>更改方向在下次启动时生效。</translation>
    </message>
</context>
<context>
    <name>EventsPage</name>
    <message>
        <source>No start time</source>
        <translation>无开始时间</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>已开始</translation>
    </message>
    <message>
        <source>in %1 d %2 h</source>
        <translation>%1 天 %2 小时后</translation>
    </message>
    <message>
        <source>in %1 h %2 min</source>
        <translation>%1 小时 %2 分钟后</translation>
    </message>
    <message>
        <source>in %1 min</source>
        <translation>%1 分钟后</translation>
    </message>
    <message>
        <source>New event</source>
        <translation>新建活动</translation>
    </message>
    <message>
        <source>Name, e.g. Sunday service</source>
        <translation>名称，例如 周日礼拜</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>时</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Create event</source>
        <translation>创建活动</translation>
    </message>
    <message>
        <source>Events, latest first</source>
        <translation>活动（最晚的在前）</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Delete the event “%1” with its addresses and settings?</source>
        <translation>删除活动“%1”及其地址和设置？</translation>
    </message>
    <message>
        <source>Delete event</source>
        <translation>删除活动</translation>
    </message>
    <message>
        <source>No events yet: create one below.</source>
        <translation>还没有活动：请在下方创建。</translation>
    </message>
</context>
<context>
    <name>FanPage</name>
    <message>
        <source>CPU temperature</source>
        <translation>CPU 温度</translation>
    </message>
    <message>
        <source>reading…</source>
        <translation>读取中…</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>Fan speed</source>
        <translation>风扇转速</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Fixed speed</source>
        <translation>固定转速</translation>
    </message>
    <message>
        <source>Automatic: %1 % up to %2 °C, rising evenly to 100 % at %3 °C and above.</source>
        <translation>自动：%2 °C 及以下为 %1 %，之后匀速升高，%3 °C 及以上为 100 %。</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>已选</translation>
    </message>
</context>
<context>
    <name>InputRow</name>
    <message>
        <source>PROGRAMME</source>
        <translation>主输出</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>画中画</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>无信号</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>to PIP</source>
        <translation>设为画中画</translation>
    </message>
</context>
<context>
    <name>InputsPage</name>
    <message>
        <source>Ask the inputs again</source>
        <translation>重新查询输入</translation>
    </message>
    <message>
        <source>Asking the device…</source>
        <translation>正在询问设备…</translation>
    </message>
    <message>
        <source>No signal</source>
        <translation>无信号</translation>
    </message>
    <message>
        <source>Setting %1…</source>
        <translation>正在设置 %1…</translation>
    </message>
    <message>
        <source>Chosen here: %1</source>
        <translation>此处已选：%1</translation>
    </message>
    <message>
        <source>Chosen by the device</source>
        <translation>由设备选择</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>当前：%1</translation>
    </message>
    <message>
        <source>No current format</source>
        <translation>无当前格式</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>已选择</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Every text changes at once. On-screen typing uses Latin letters in every language.</source>
        <translation>所有文字立即切换。屏幕键盘在各种语言下都输入拉丁字母。</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>当前语言</translation>
    </message>
</context>
<context>
    <name>LiveStore</name>
    <message>
        <source>HDMI 1</source>
        <translation>HDMI 1</translation>
    </message>
    <message>
        <source>HDMI 2</source>
        <translation>HDMI 2</translation>
    </message>
    <message>
        <source>USB camera 1</source>
        <translation>USB 摄像头 1</translation>
    </message>
    <message>
        <source>USB camera 2</source>
        <translation>USB 摄像头 2</translation>
    </message>
    <message>
        <source>NDI</source>
        <translation>NDI</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Mic</source>
        <translation>麦克风</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线路</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>摄像头 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>摄像头 2</translation>
    </message>
    <message>
        <source>Phones</source>
        <translation>耳机</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Stop the recording now?</source>
        <translation>现在停止录制吗？</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>停止录制</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Settings and pages</source>
        <translation>设置与功能</translation>
    </message>
</context>
<context>
    <name>MenuPage</name>
    <message>
        <source>Switcher</source>
        <translation>切换台</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
</context>
<context>
    <name>NdiPage</name>
    <message>
        <source>Not known yet</source>
        <translation>尚未知晓</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Send programme</source>
        <translation>发送节目</translation>
    </message>
    <message>
        <source>Receive a source</source>
        <translation>接收信号源</translation>
    </message>
    <message>
        <source>Sources on the network</source>
        <translation>网络上的信号源</translation>
    </message>
    <message>
        <source>Search again</source>
        <translation>重新搜索</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>正在搜索…</translation>
    </message>
    <message>
        <source>No source found</source>
        <translation>未找到信号源</translation>
    </message>
    <message numerus="yes">
        <source>%n source(s) found</source>
        <translation>
            <numerusform>找到 %n 个信号源</numerusform>
        </translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>已选择</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Type a name first.</source>
        <translation>请先输入名称。</translation>
    </message>
    <message>
        <source>A name can have at most 63 characters.</source>
        <translation>名称最多 63 个字符。</translation>
    </message>
    <message>
        <source>Use Latin letters, digits, spaces and simple punctuation only.</source>
        <translation>只能使用拉丁字母、数字、空格和简单标点。</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>组</translation>
    </message>
    <message>
        <source>No group name</source>
        <translation>无组名</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>No channel name</source>
        <translation>无通道名</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>No device name</source>
        <translation>无设备名</translation>
    </message>
    <message>
        <source>Asking the device…</source>
        <translation>正在询问设备…</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>UDP</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>Multi-TCP</source>
        <translation>多路 TCP</translation>
    </message>
    <message>
        <source>Multicast</source>
        <translation>组播</translation>
    </message>
    <message>
        <source>TTL (hops)</source>
        <translation>TTL（跳数）</translation>
    </message>
    <message>
        <source>Multicast address</source>
        <translation>组播地址</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>子网掩码</translation>
    </message>
    <message>
        <source>TTL must be a whole number from 1 to 255.</source>
        <translation>TTL 必须是 1 到 255 的整数。</translation>
    </message>
    <message>
        <source>The address must be four numbers from 0 to 255 with dots between.</source>
        <translation>地址必须是四个 0 到 255 的数字，用点分隔。</translation>
    </message>
    <message>
        <source>Multicast needs a group address from 224.0.0.0 to 239.255.255.255.</source>
        <translation>组播需要 224.0.0.0 到 239.255.255.255 之间的组地址。</translation>
    </message>
    <message>
        <source>The netmask must look like 255.255.255.0.</source>
        <translation>子网掩码格式应如 255.255.255.0。</translation>
    </message>
    <message>
        <source>Apply connection</source>
        <translation>应用连接</translation>
    </message>
    <message>
        <source>Device: %1, TTL %2, %3 / %4</source>
        <translation>设备：%1，TTL %2，%3 / %4</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>数据类型</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>带宽</translation>
    </message>
    <message>
        <source>Full NDI</source>
        <translation>完整 NDI</translation>
    </message>
    <message>
        <source>NDI HX</source>
        <translation>NDI HX</translation>
    </message>
    <message>
        <source>Compression (NDI HX only)</source>
        <translation>压缩（仅 NDI HX）</translation>
    </message>
    <message>
        <source>Sent now</source>
        <translation>当前发送</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>帧率</translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation>%1 帧/秒</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>码率</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>Audio sample rate</source>
        <translation>音频采样率</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Choose a connection type.</source>
        <translation>请选择连接类型。</translation>
    </message>
</context>
<context>
    <name>NetworkPage</name>
    <message>
        <source>The address must be four numbers from 0 to 255 with dots between, e.g. 192.168.0.100.</source>
        <translation>地址须为四个 0 到 255 的数字，以点分隔，例如 192.168.0.100。</translation>
    </message>
    <message>
        <source>This address cannot belong to a device (network, broadcast, loopback or multicast address).</source>
        <translation>此地址不能用于设备（网络、广播、回环或组播地址）。</translation>
    </message>
    <message>
        <source>The netmask must look like 255.255.255.0.</source>
        <translation>子网掩码格式应如 255.255.255.0。</translation>
    </message>
    <message>
        <source>The gateway must be four numbers with dots between; 0.0.0.0 means none.</source>
        <translation>网关须为四个以点分隔的数字；0.0.0.0 表示无网关。</translation>
    </message>
    <message>
        <source>The gateway must be in the same network as the address.</source>
        <translation>网关须与地址在同一网络中。</translation>
    </message>
    <message>
        <source>The gateway cannot be the device&apos;s own address.</source>
        <translation>网关不能是设备自己的地址。</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>正在应用…</translation>
    </message>
    <message>
        <source>Applied.</source>
        <translation>已应用。</translation>
    </message>
    <message>
        <source>Applied, but the name servers could not be written: names may not resolve.</source>
        <translation>已应用，但无法写入域名服务器：域名可能无法解析。</translation>
    </message>
    <message>
        <source>Not applied: the device refused these values.</source>
        <translation>未应用：设备拒绝了这些值。</translation>
    </message>
    <message>
        <source>Automatic (DHCP)</source>
        <translation>自动 (DHCP)</translation>
    </message>
    <message>
        <source>Fixed address</source>
        <translation>固定地址</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Netmask</source>
        <translation>子网掩码</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>网关</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Current address</source>
        <translation>当前地址</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>无地址</translation>
    </message>
    <message>
        <source>via %1</source>
        <translation>经 %1</translation>
    </message>
    <message>
        <source>Check connection</source>
        <translation>检查连接</translation>
    </message>
    <message>
        <source>Checking…</source>
        <translation>检查中…</translation>
    </message>
    <message>
        <source>%1 answers (check %2)</source>
        <translation>%1 有响应（第 %2 次检查）</translation>
    </message>
    <message>
        <source>%1 does not answer (check %2)</source>
        <translation>%1 无响应（第 %2 次检查）</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>已选</translation>
    </message>
</context>
<context>
    <name>PageHost</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Chinese, English, German</source>
        <translation>中文、英文、德文</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Versions and licences</source>
        <translation>版本与许可证</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Address, DHCP, connection check</source>
        <translation>地址、DHCP、连接检查</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Brightness, orientation</source>
        <translation>亮度、方向</translation>
    </message>
    <message>
        <source>CPU temperature, fan speed</source>
        <translation>CPU 温度、风扇转速</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Clock, time zone</source>
        <translation>时钟、时区</translation>
    </message>
    <message>
        <source>Factory reset, switch off</source>
        <translation>恢复出厂设置、关机</translation>
    </message>
    <message>
        <source>Cooling</source>
        <translation>散热</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>USB disk, recordings, playback</source>
        <translation>U 盘、录像、回放</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升级</translation>
    </message>
    <message>
        <source>New software from a USB disk</source>
        <translation>从 U 盘安装新软件</translation>
    </message>
    <message>
        <source>Streaming</source>
        <translation>推流</translation>
    </message>
    <message>
        <source>Event, platforms, go live</source>
        <translation>活动、平台、开始直播</translation>
    </message>
    <message>
        <source>Import, type, switch on</source>
        <translation>导入、输入、启用</translation>
    </message>
    <message>
        <source>Create, choose, delete</source>
        <translation>创建、选择、删除</translation>
    </message>
    <message>
        <source>Addresses</source>
        <translation>推流地址</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>直播活动</translation>
    </message>
    <message>
        <source>Bluetooth</source>
        <translation>蓝牙</translation>
    </message>
    <message>
        <source>Devices, companion app</source>
        <translation>设备、手机助手</translation>
    </message>
    <message>
        <source>NDI</source>
        <translation>NDI</translation>
    </message>
    <message>
        <source>Send, receive, sources, names</source>
        <translation>发送、接收、信号源、名称</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom, presets</source>
        <translation>平移、俯仰、变焦、预置位</translation>
    </message>
    <message>
        <source>Scopes</source>
        <translation>示波器</translation>
    </message>
    <message>
        <source>Scopes, safe frames</source>
        <translation>示波器、安全框</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Formats per input</source>
        <translation>各输入的格式</translation>
    </message>
    <message>
        <source>PIP</source>
        <translation>画中画</translation>
    </message>
    <message>
        <source>Picture in picture: layout, sources</source>
        <translation>画中画：布局、信号源</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Sound sources, levels, HDMI outputs</source>
        <translation>音源、电平、HDMI 输出</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>摄像机</translation>
    </message>
</context>
<context>
    <name>PipPage</name>
    <message>
        <source>Picture in picture</source>
        <translation>画中画</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>已选择</translation>
    </message>
    <message>
        <source>Picture 1 shows</source>
        <translation>画面 1 显示</translation>
    </message>
    <message>
        <source>Picture 2 shows</source>
        <translation>画面 2 显示</translation>
    </message>
    <message>
        <source>Picture 2 shows (only in the layout with two pictures)</source>
        <translation>画面 2 显示（仅用于双画面布局）</translation>
    </message>
    <message>
        <source>Picture 1 shows the programme input itself.</source>
        <translation>画面 1 显示的就是节目输入本身。</translation>
    </message>
</context>
<context>
    <name>PlatformsPage</name>
    <message>
        <source>Event</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>Import again</source>
        <translation>重新导入</translation>
    </message>
    <message>
        <source>USB disk, companion app</source>
        <translation>U盘、手机应用</translation>
    </message>
    <message>
        <source>No stream addresses yet. Put rtmp.ini (one address a line) on a USB disk, or type an address below.</source>
        <translation>还没有推流地址。请将 rtmp.ini（每行一个地址）放到U盘上，或在下方输入地址。</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Streams to it</source>
        <translation>推流到此</translation>
    </message>
    <message>
        <source>Touch to switch on</source>
        <translation>点击启用</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Add an address</source>
        <translation>添加地址</translation>
    </message>
    <message>
        <source>Add and switch on</source>
        <translation>添加并启用</translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) offered by the disk or the app left out: spaces, commas, characters outside Latin-1 or too long.</source>
        <translation>
            <numerusform>已略过U盘或手机应用提供的 %n 个地址：含空格、逗号、Latin-1 以外的字符或过长。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PreviewPanel</name>
    <message>
        <source>ON AIR</source>
        <translation>直播中</translation>
    </message>
    <message>
        <source>PGM</source>
        <translation>PGM</translation>
    </message>
    <message>
        <source>No preview from the media service</source>
        <translation>媒体服务无预览画面</translation>
    </message>
</context>
<context>
    <name>PtzPage</name>
    <message>
        <source>Not supported by this camera</source>
        <translation>此摄像机不支持</translation>
    </message>
    <message>
        <source>Asking…</source>
        <translation>正在询问…</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>摄像机</translation>
    </message>
    <message>
        <source>USB camera 1</source>
        <translation>USB 摄像机 1</translation>
    </message>
    <message>
        <source>USB camera 2</source>
        <translation>USB 摄像机 2</translation>
    </message>
    <message>
        <source>This camera is on air</source>
        <translation>此摄像机正在播出</translation>
    </message>
    <message>
        <source>Move (hold)</source>
        <translation>移动（按住）</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>移动中</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>静止</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Auto focus</source>
        <translation>自动对焦</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>尚未知晓</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>预置位</translation>
    </message>
    <message>
        <source>Cancel storing</source>
        <translation>取消保存</translation>
    </message>
    <message>
        <source>Store the position…</source>
        <translation>保存当前位置…</translation>
    </message>
    <message>
        <source>Touch the preset to keep this position in</source>
        <translation>点击要保存此位置的预置位</translation>
    </message>
    <message>
        <source>Preset %1</source>
        <translation>预置位 %1</translation>
    </message>
    <message>
        <source>Store here</source>
        <translation>保存到此</translation>
    </message>
    <message>
        <source>Camera is here</source>
        <translation>摄像机在此</translation>
    </message>
    <message>
        <source>Picture style</source>
        <translation>画面风格</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Vivid</source>
        <translation>鲜艳</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>柔和</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>黑白</translation>
    </message>
    <message>
        <source>This camera offers no picture styles.</source>
        <translation>此摄像机没有画面风格。</translation>
    </message>
    <message>
        <source>Style %1</source>
        <translation>风格 %1</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>已选择</translation>
    </message>
</context>
<context>
    <name>RecordPage</name>
    <message>
        <source>No USB disk</source>
        <translation>没有 U 盘</translation>
    </message>
    <message>
        <source>The USB disk cannot be read</source>
        <translation>U 盘无法读取</translation>
    </message>
    <message>
        <source>Less than 512 MB free on the USB disk</source>
        <translation>U 盘剩余空间不足 512 MB</translation>
    </message>
    <message>
        <source>Type a name.</source>
        <translation>请输入名称。</translation>
    </message>
    <message>
        <source>A name has at most 64 characters.</source>
        <translation>名称最多 64 个字符。</translation>
    </message>
    <message>
        <source>A recording with this name already exists.</source>
        <translation>已有同名录像。</translation>
    </message>
    <message>
        <source>Could not rename the recording.</source>
        <translation>无法重命名该录像。</translation>
    </message>
    <message>
        <source>Stop the recording now?</source>
        <translation>现在停止录制吗？</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>停止录制</translation>
    </message>
    <message>
        <source>Start recording</source>
        <translation>开始录制</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>录制中 %1</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>未录制</translation>
    </message>
    <message>
        <source>Not started: %1.</source>
        <translation>未开始：%1。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Time left on the disk</source>
        <translation>磁盘剩余时间</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>尚未知</translation>
    </message>
    <message numerus="yes">
        <source>about %n minute(s)</source>
        <translation>
            <numerusform>约 %n 分钟</numerusform>
        </translation>
    </message>
    <message>
        <source>about %1 h %2 min</source>
        <translation>约 %1 小时 %2 分钟</translation>
    </message>
    <message>
        <source>Worked out at</source>
        <translation>按此码率估算</translation>
    </message>
    <message>
        <source>%1 Mbit/s (1080p)</source>
        <translation>%1 Mbit/s (1080p)</translation>
    </message>
    <message numerus="yes">
        <source>Disk nearly full: less than %n minute(s) left</source>
        <translation>
            <numerusform>磁盘快满：剩余不到 %n 分钟</numerusform>
        </translation>
    </message>
    <message>
        <source>Recordings on the USB disk</source>
        <translation>U 盘上的录像</translation>
    </message>
    <message>
        <source>Reading the disk…</source>
        <translation>正在读取磁盘…</translation>
    </message>
    <message>
        <source>No recordings.</source>
        <translation>没有录像。</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>New name (the file keeps its .mp4 ending)</source>
        <translation>新名称（文件保留 .mp4 后缀）</translation>
    </message>
    <message>
        <source>Save name</source>
        <translation>保存名称</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Playback on the device&apos;s output</source>
        <translation>在设备输出上回放</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>播放中</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Playback ended</source>
        <translation>回放结束</translation>
    </message>
    <message>
        <source>A name cannot contain %1 or start or end with a dot.</source>
        <translation>名称不能包含 %1，也不能以点开头或结尾。</translation>
    </message>
    <message>
        <source>The recording still being made cannot be renamed.</source>
        <translation>正在录制的文件不能重命名。</translation>
    </message>
</context>
<context>
    <name>SafeFrameGuide</name>
    <message>
        <source>Action safe</source>
        <translation>动作安全区</translation>
    </message>
    <message>
        <source>Title safe</source>
        <translation>字幕安全区</translation>
    </message>
</context>
<context>
    <name>ScopesPage</name>
    <message>
        <source>Histogram</source>
        <translation>直方图</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>波形图</translation>
    </message>
    <message>
        <source>RGB parade</source>
        <translation>RGB 分量图</translation>
    </message>
    <message>
        <source>Vectorscope</source>
        <translation>矢量示波器</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>示波器</translation>
    </message>
    <message>
        <source>%1: where it shows</source>
        <translation>%1：显示位置</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>已选择</translation>
    </message>
    <message>
        <source>Safe frames on the preview</source>
        <translation>预览上的安全框</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>16:9 safe areas</source>
        <translation>16:9 安全区</translation>
    </message>
    <message>
        <source>Action and title safe</source>
        <translation>动作与字幕安全区</translation>
    </message>
    <message>
        <source>4:3</source>
        <translation>4:3</translation>
    </message>
    <message>
        <source>Centre cut for 4:3</source>
        <translation>4:3 中心裁切</translation>
    </message>
    <message>
        <source>9:16</source>
        <translation>9:16</translation>
    </message>
    <message>
        <source>Vertical video guide</source>
        <translation>竖屏视频参考线</translation>
    </message>
</context>
<context>
    <name>StatusBar</name>
    <message>
        <source>CH%1</source>
        <translation>通道%1</translation>
    </message>
    <message>
        <source>live</source>
        <translation>直播</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>REC %1</source>
        <translation>录制 %1</translation>
    </message>
    <message>
        <source>REC off</source>
        <translation>未录制</translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation>U盘</translation>
    </message>
    <message>
        <source>No USB disk</source>
        <translation>无U盘</translation>
    </message>
    <message>
        <source>USB disk ?</source>
        <translation>U盘 ?</translation>
    </message>
    <message>
        <source>No address</source>
        <translation>无地址</translation>
    </message>
    <message>
        <source>Media service silent</source>
        <translation>媒体服务无响应</translation>
    </message>
    <message>
        <source>Stream off</source>
        <translation>未推流</translation>
    </message>
    <message numerus="yes">
        <source>%n min left</source>
        <translation>
            <numerusform>剩 %n 分钟</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StreamPage</name>
    <message>
        <source>Event</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>Choose, create</source>
        <translation>选择、创建</translation>
    </message>
    <message>
        <source>No platform switched on</source>
        <translation>未启用任何平台</translation>
    </message>
    <message>
        <source>Platforms</source>
        <translation>平台</translation>
    </message>
    <message>
        <source>Import, switch on</source>
        <translation>导入、启用</translation>
    </message>
    <message>
        <source>Encoder settings</source>
        <translation>编码设置</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>码率</translation>
    </message>
    <message>
        <source>CH%1</source>
        <translation>通道%1</translation>
    </message>
    <message>
        <source>Go live</source>
        <translation>开始直播</translation>
    </message>
    <message numerus="yes">
        <source>%n platform(s)</source>
        <translation>
            <numerusform>%n 个平台</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Go live now to %n platform(s) of the event “%1”?</source>
        <translation>
            <numerusform>现在开始直播到活动“%1”的 %n 个平台？</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop streaming</source>
        <translation>停止推流</translation>
    </message>
    <message>
        <source>On air now</source>
        <translation>正在直播</translation>
    </message>
    <message>
        <source>Not live</source>
        <translation>未直播</translation>
    </message>
    <message>
        <source>Stop streaming on every channel now?</source>
        <translation>现在停止所有通道的推流？</translation>
    </message>
</context>
<context>
    <name>StreamStore</name>
    <message>
        <source>Device default</source>
        <translation>设备默认</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>This address is listed already.</source>
        <translation>该地址已在列表中。</translation>
    </message>
    <message>
        <source>Type a stream address first.</source>
        <translation>请先输入推流地址。</translation>
    </message>
    <message>
        <source>This address is too long for the device (at most %1 characters).</source>
        <translation>地址过长，设备最多接受 %1 个字符。</translation>
    </message>
    <message>
        <source>A stream address cannot hold spaces, commas or characters outside Latin-1.</source>
        <translation>推流地址不能包含空格、逗号或 Latin-1 以外的字符。</translation>
    </message>
    <message>
        <source>Give the event a name.</source>
        <translation>请为活动命名。</translation>
    </message>
    <message>
        <source>An event name has at most 64 characters.</source>
        <translation>活动名称最多 64 个字符。</translation>
    </message>
    <message>
        <source>The start time has passed. Choose a later one.</source>
        <translation>开始时间已过，请选择更晚的时间。</translation>
    </message>
    <message>
        <source>Events cannot be kept now.</source>
        <translation>现在无法保存活动。</translation>
    </message>
    <message>
        <source>An event named “%1” exists already. Choose another name.</source>
        <translation>已有名为“%1”的活动，请换一个名称。</translation>
    </message>
    <message>
        <source>Event “%1” created.</source>
        <translation>已创建活动“%1”。</translation>
    </message>
    <message>
        <source>Streaming is not available now.</source>
        <translation>现在无法推流。</translation>
    </message>
    <message>
        <source>No paltform is available,please select one paltform first</source>
        <translation>没有可用的平台，请先选择一个平台</translation>
    </message>
    <message>
        <source>At most %1 platforms can be live at once; switch some off.</source>
        <translation>最多同时推流到 %1 个平台，请关闭一些。</translation>
    </message>
    <message>
        <source>The addresses together are too long for the device (at most %1 characters).</source>
        <translation>地址总长度超过设备上限（最多 %1 个字符）。</translation>
    </message>
    <message>
        <source>An event name cannot hold a slash or a backslash.</source>
        <translation>活动名称不能包含斜杠或反斜杠。</translation>
    </message>
</context>
<context>
    <name>SwitcherStore</name>
    <message>
        <source>HDMI 1</source>
        <translation>HDMI 1</translation>
    </message>
    <message>
        <source>HDMI 2</source>
        <translation>HDMI 2</translation>
    </message>
    <message>
        <source>USB camera 1</source>
        <translation>USB 摄像头 1</translation>
    </message>
    <message>
        <source>USB camera 2</source>
        <translation>USB 摄像头 2</translation>
    </message>
    <message>
        <source>NDI</source>
        <translation>NDI</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>左右并排</translation>
    </message>
    <message>
        <source>Two pictures</source>
        <translation>双画面</translation>
    </message>
</context>
<context>
    <name>SystemPage</name>
    <message>
        <source>Factory reset</source>
        <translation>恢复出厂设置</translation>
    </message>
    <message>
        <source>Network, brightness, fan, orientation, time zone</source>
        <translation>网络、亮度、风扇、方向、时区</translation>
    </message>
    <message>
        <source>Reset the device to its factory settings? The address becomes 192.168.0.100 (fixed), brightness, fan, screen orientation and time zone return to their factory values.</source>
        <translation>将设备恢复出厂设置？地址将变为 192.168.0.100（固定），亮度、风扇、屏幕方向和时区恢复为出厂值。</translation>
    </message>
    <message>
        <source>The device answered the reset with status %1.</source>
        <translation>设备对重置的应答状态为 %1。</translation>
    </message>
    <message>
        <source>Switch off</source>
        <translation>关机</translation>
    </message>
    <message>
        <source>Streams and recordings stop</source>
        <translation>推流和录制将停止</translation>
    </message>
    <message>
        <source>Switch the device off now? Streams and recordings stop.</source>
        <translation>现在关闭设备？推流和录制将停止。</translation>
    </message>
</context>
<context>
    <name>UpgradePage</name>
    <message>
        <source>release</source>
        <translation>正式版</translation>
    </message>
    <message>
        <source>test build</source>
        <translation>测试版</translation>
    </message>
    <message>
        <source>Upgrade the software to version %1 (%2)? The device restarts. Do not switch it off or remove the USB disk.</source>
        <translation>将软件升级到 %1 版（%2）？设备会重启。请勿关机或拔出 U 盘。</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升级</translation>
    </message>
    <message>
        <source>Updating the HDMI input firmware… Do not switch off.</source>
        <translation>正在更新 HDMI 输入固件… 请勿关机。</translation>
    </message>
    <message>
        <source>Success! Upgrade Complete 
Current Version: </source>
        <translation>升级成功！
当前版本：</translation>
    </message>
    <message>
        <source>Hdmi Upgrade failed</source>
        <translation>HDMI 固件升级失败</translation>
    </message>
    <message>
        <source>Upgrading...</source>
        <translation>正在升级...</translation>
    </message>
    <message>
        <source>The device restarts by itself. Do not switch it off or remove the USB disk.</source>
        <translation>设备会自动重启。请勿关机或拔出 U 盘。</translation>
    </message>
    <message>
        <source>USB disk</source>
        <translation>U 盘</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>No USB disk</source>
        <translation>没有 U 盘</translation>
    </message>
    <message>
        <source>The USB disk cannot be read</source>
        <translation>U 盘无法读取</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>检查中…</translation>
    </message>
    <message>
        <source>No upgrade images on the USB disk. They are named ZORVANE_RELEASE_&lt;version&gt;.img or ZORVANE_ALPHA_&lt;version&gt;.img and lie at the top of the disk.</source>
        <translation>U 盘上没有升级文件。文件名为 ZORVANE_RELEASE_&lt;版本&gt;.img 或 ZORVANE_ALPHA_&lt;版本&gt;.img，放在 U 盘根目录。</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>已选择</translation>
    </message>
    <message>
        <source>Needs a USB disk</source>
        <translation>需要 U 盘</translation>
    </message>
    <message>
        <source>to version %1</source>
        <translation>到版本 %1</translation>
    </message>
    <message>
        <source>Choose a version first</source>
        <translation>请先选择版本</translation>
    </message>
    <message>
        <source>Stop recording and streaming first</source>
        <translation>请先停止录制和推流</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Live production</source>
        <translation>直播导播</translation>
    </message>
</context>
</TS>
