#!/usr/bin/env python3
# Writes the seed corpus of fuzz_eventstore: a CS_event.ini, then
# NUL-separated the event name, a start time and URLs to save.
import os
d=os.path.join(os.path.dirname(os.path.abspath(__file__)),'corpus')
os.makedirs(d, exist_ok=True)
two=(b'[Concert]\nStartTime=1700000000000\nstreamUrl_0=rtmp://live.twitch.com/app/k1\nstreamStatus_0=true\n'
     b'streamUrl_1=rtmp://a.rtmp.youtube.com/live2/k2\nstreamStatus_1=false\nPlatformNum=2\nStreamModel=1\nResolution=2\nBitrate=3\n\n'
     b'[Talk]\nStartTime=1690000000000\nPlatformNum=0\n')
seeds={
 'two_events_save_one': two+b'\x00Concert\x001700000000001\x00rtmp://live.twitch.com/app/k1\x00rtmp://push.zorvane.com/live/x',
 'two_events_new_one': two+b'\x00Late show\x001800000000000\x00rtmp://h/1\x00rtmp://h/2\x00rtmp://h/3',
 'empty_file': b'\x00First\x000\x00rtmp://h/a',
 'ten_urls': b'\x00Many\x00123'+b''.join(b'\x00rtmp://h/%d'%i for i in range(10)),
 'name_with_slash': two+b'\x00Concert/Talk\x005\x00rtmp://h/x',
 'name_empty': two+b'\x00\x005',
 'general_and_percent': b'[General]\nStartTime=5\n[%General]\nStartTime=6\n[a%20b]\nStartTime=x\n\x00General\x007\x00@Variant(x)\x00a, b',
 'unicode_name': b'[\xe6\xbc\x94\xe5\x87\xba]\nStartTime=10\n\x00\xe6\xbc\x94\xe5\x87\xba\x0011\x00rtmp://\xe4\xb8\xad/\xe6\x96\x87',
 'top_level_key': b'Show=1\n[Other]\nStartTime=3\n\x00Show\x004\x00rtmp://h/y',
 'broken_lines': b'[Open\nStartTime\n=\n[]\n[x]\nStartTime=9223372036854775807\n\x00x\x00-1\x00 lead and trail ',
}
for name,data in seeds.items():
    with open(os.path.join(d,name),'wb') as f: f.write(data)
