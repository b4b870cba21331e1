#!/usr/bin/env python3
# Writes the seed corpus of fuzz_formatlists: one flag byte (bit 0: HDMI),
# the announced length (two bytes, low first) and the block. Run again after
# changing a seed.
import os
d=os.path.join(os.path.dirname(os.path.abspath(__file__)), 'corpus')
os.makedirs(d, exist_ok=True)
def entry(t,w,h,f): return bytes([t,w&0xff,w>>8,h&0xff,h>>8,f])
def seed(hdmi,block,announced=None):
    n=len(block) if announced is None else announced
    return bytes([1 if hdmi else 0,n&0xff,n>>8])+block
hdmi=entry(0,1920,540,60)+entry(0,1920,1080,60)+entry(0,1920,1080,50)+entry(0,1280,720,60)+entry(0,3840,2160,30)+bytes([0])
uvc=entry(1,1920,1080,30)+entry(2,1280,720,30)+entry(1,640,480,30)+bytes([0])
ties=entry(0,1280,720,60)+entry(60,1340,720,0)+entry(0,1280,720,60)+bytes([0])
full=(entry(0,1920,1080,60)+entry(0,1920,540,50))*2730+bytes([0])
seeds={
 'formats_hdmi': seed(True,hdmi),
 'formats_uvc': seed(False,uvc),
 'formats_equal_weights': seed(True,ties),
 'formats_announced_longer': seed(True,hdmi,0xFFFF),
 'formats_announced_shorter': seed(True,hdmi,13),
 'formats_announced_zero': seed(False,uvc,0),
 'formats_cut_entry': seed(True,hdmi[:16],19),
 'formats_full_32k': seed(True,full[:32*1024]),
 'ndi_sources': seed(False,bytes([2])+b'CAM1 (Studio),192.168.1.20:5961;CAM2,192.168.1.21:5961;'),
 'ndi_count_wrong': seed(False,bytes([5])+b'CAM1,A1;,A2;tail'),
 'ndi_announced_short': seed(False,bytes([2])+b'CAM1,A1;CAM2,A2;',9),
}
for name,data in seeds.items():
    with open(os.path.join(d,name),'wb') as f: f.write(data)
