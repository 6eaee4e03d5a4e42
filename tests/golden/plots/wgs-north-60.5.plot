kind WGS
surface screen
size 8
box   37.1230
box  127.0500
box    0.0130
box    0.0030
point 37.20944444444444 127.09194444444445 가
point 37.22625 127.0925 나-2
point 37.20986111111111 127.09208333333333 C3
.
ForeColor = 0
Font = 굴림체
Cls
DrawWidth = 1.0000
Line 141.2345 7414.8136 7626.6656 7414.8136 0 6
fontsize = 8.0000
CurrentX = 282.4691
CurrentY = 7251.5050
print   37-12-30
Line 141.2345 5060.9045 7626.6656 5060.9045 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4897.5958
print   37-13-00
Line 141.2345 2706.9953 7626.6656 2706.9953 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2543.6866
print   37-13-30
Line 141.2345 353.0861 7626.6656 353.0861 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7775
print   37-14-00
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-05-00
SelectObject
DeleteObject
Line 2706.9954 7626.6655 2706.9954 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 166 523 10  127-05-30
SelectObject
DeleteObject
Line 5060.9046 7626.6655 5060.9046 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 323 523 10  127-06-00
SelectObject
DeleteObject
Line 7414.8141 7626.6655 7414.8141 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-06-30
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 2784.7408 7100.5999 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 2784.7408 6979.6399 2784.0032 7221.9350 0 6
Line 2663.7807 7100.5999 2904.6869 7100.1737 0 6
fontsize = 8.0000
CurrentX = 2572.8888
CurrentY = 6831.3654
print 가
DrawWidth = 2.0000
Circle 2941.6679 2353.5500 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 2941.6679 2232.5900 2941.3231 2474.3200 0 6
Line 2820.7078 2353.5500 3062.0070 2353.6362 0 6
fontsize = 8.0000
CurrentX = 2729.8161
CurrentY = 2084.3154
print 나-2
DrawWidth = 2.0000
Circle 2823.9725 6982.9045 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 2823.9725 6861.9445 2824.9495 7103.4063 0 6
Line 2703.0124 6982.9045 2945.6334 6982.7225 0 6
fontsize = 8.0000
CurrentX = 2612.1207
CurrentY = 6713.6699
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
