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
    <name>main</name>
    <message>
        <source>Live production</source>
        <translation>直播导播</translation>
    </message>
</context>
</TS>
