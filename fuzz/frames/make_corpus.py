#!/usr/bin/env python3
# Writes the seed corpus of fuzz_frames: report frames as the media service
# sends them ("<F" + hex + ">", blocks after the header) and raw records
# (CMD, DAT1..DAT4, block). Run again after changing a seed.
import os
d=os.path.join(os.path.dirname(os.path.abspath(__file__)), 'corpus')
os.makedirs(d, exist_ok=True)
def frame(cmd,d1=0,d2=0,d3=0,d4=0,upper=False,bad=False,direction='F'):
    b=[0,0,cmd,d1,d2,d3,d4]
    s=sum(b)&0xff
    if bad: s^=0x01
    t=''.join('%02x'%x for x in b+[s])
    if upper: t=t.upper()
    return ('<'+direction+t+'>').encode()
def blk(d1,d2,data):
    n=len(data)
    return frame(0xF1,d1,d2,n&0xff,n>>8)+data
def raw(cmd,d1,d2,data,announced=None):
    n=len(data) if announced is None else announced
    return bytes([cmd,d1,d2,n&0xff,n>>8])+data
def entry(t,w,h,f): return bytes([t,w&0xff,w>>8,h&0xff,h>>8,f])
bt=bytes([2,1,0x00,0x1A,0x7D,0xDA,0x71,0x0B,5])+b'Phone'+bytes([0,0xAA,0xBB,0xCC,0xDD,0xEE,0xFF,0])
fmts=entry(0,1920,540,60)+entry(0,1920,1080,60)+bytes([0])
seeds={
 'frame_local_ip': frame(0x89,192,168,0,100),
 'frame_usb': frame(0x68,0xAD,1),
 'frame_power': frame(0x68,0xB0,1,80),
 'frame_streaming_bits': frame(0x68,0xB5,0x0A),
 'frame_versions': frame(0x6A,0,2,5),
 'frame_init_input': frame(0x78,2,0,1,3),
 'frame_ptz_status': frame(0xC8,3,0,5),
 'frame_ptz_view': frame(0xC8,5,0,2,6),
 'frame_rtmp_initiative': frame(0xD0,4,1,2),
 'frame_hdmi2_status': frame(0xD0,12,1),
 'frame_bt_connect': frame(0xF0,0xB6,1,0),
 'frame_upper_case': frame(0xC9,1,1,0,48,upper=True),
 'frame_bad_checksum': frame(0x89,10,0,0,1,bad=True),
 'frame_echo_T': frame(0x68,0xAD,1,direction='T'),
 'frame_short': frame(0x68,0xAD,1)[:18],
 'frame_tally': frame(0x00,0,0)+b'0123456789ABC7EF',
 'block_sn': blk(0x44,0,b'CS2024A1\0'),
 'block_sn_empty': blk(0x44,0,b''),
 'block_record_name': blk(0x45,0,b'/media/usb/REC_0001.mp4\0'),
 'block_formats_hdmi1': blk(0xB3,0,fmts),
 'block_formats_uvc1': blk(0xB3,2,fmts),
 'block_formats_short': frame(0xF1,0xB3,1,13,0)+fmts[:12],
 'block_bluetooth': blk(0xB4,0,bt),
 'block_bluetooth_broadcast': blk(0xB4,1,bt[:14]),
 'block_ndi_group': blk(0xB8,0,b'StudioA\0'),
 'block_ndi_device': blk(0xB8,2,b'Dev\0'),
 'block_ndi_connection': blk(0xB8,3,bytes([1,64,239,255,0,1,255,255,255,0,0])),
 'block_ndi_base_info': blk(0xB8,4,bytes([0x80,0x07,0x38,0x04,60,30,0x10,0x27,0x80,0xBB,0])),
 'block_style': blk(0xB9,1,bytes([1,0,1,1,0])),
 'block_current_format': blk(0xBA,1,bytes([2,0x00,0x05,0xD0,0x02,50,0])),
 'block_ndi_sources': blk(0xBB,0,bytes([2])+b'CAM1,A1;CAM2,A2;'),
 'raw_formats_hdmi1': raw(0xF1,0xB3,0,fmts),
 'raw_formats_over_announced': raw(0xF1,0xB3,1,fmts,0xFFFF),
 'raw_bluetooth': raw(0xF1,0xB4,0,bt),
 'raw_bluetooth_cut': raw(0xF1,0xB4,0,bt[:20]),
 'raw_ndi_sources': raw(0xF1,0xBB,0,bytes([3])+b'CAM1,A1;,A2;tail'),
 'raw_ndi_base_cut': raw(0xF1,0xB8,4,bytes([0x80,0x07,0x38]),11),
 'raw_sn_huge': raw(0xF1,0x44,0,b'Z',0xFFFF),
 'raw_tally_short': raw(0x00,0,0,b'0123'),
}
for k,v in seeds.items():
    open(os.path.join(d,k),'wb').write(v)
print(len(seeds))
