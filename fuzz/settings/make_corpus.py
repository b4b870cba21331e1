#!/usr/bin/env python3
# Writes the seed corpus of fuzz_settings: a CS_Config.ini as dropped in
# /userdata, then NUL-separated values to write. Run again after changing a seed.
import os
here=os.path.dirname(os.path.abspath(__file__))
d=os.path.join(here,'corpus')
os.makedirs(d, exist_ok=True)
factory=open(os.path.join(here,'..','..','config','CS_Config.ini'),'rb').read()
seeds={
 'factory_file': factory+b'\x001\x00-1\x001920x1080@60\x00rtmp://live.example/app/key',
 'empty_file': b'\x000\x00Current',
 'bom_only': b'\xef\xbb\xbf[setting]\nlanguage=1\n\x00x',
 'other_group': b'[network]\nip=10.0.0.2\n[setting]\nfans=abc\nversion=2.0\n\x0042',
 'bom_crlf': b'\xef\xbb\xbf[setting]\r\nlanguage=1\r\neventName="Show, day 1"\r\n\x00\xe4\xb8\xad\xe6\x96\x87\x00 spaced ',
 'variant_values': b'[setting]\nrtmpAddr=@Variant(\\0\\0\\0\\x7f\\0\\0\\0\\x12QByteArray)\neventName=a;b\nfans=1,2\n\x00@at\x00a=b\x00;x',
 'no_section': b'inputType=3\nfans=70\n\x00\x00',
 'escapes': b'[setting]\nrecordStartTime="2026\\t11"\nversion=\\x41\\u00e9\n[set%74ing]\nfans=9\n\x00tab\there\x00quote"q',
}
for name,data in seeds.items():
    with open(os.path.join(d,name),'wb') as f: f.write(data)
