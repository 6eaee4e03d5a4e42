kind WGS
surface screen
size 8
box   37.0800
box  127.0400
box    0.1200
box    0.0200
point 37.20944444444444 127.09194444444445 가
point 37.23722222222222 127.25861111111111 B
.
ForeColor = 0
Font = 굴림체
Cls
DrawWidth = 1.0000
Line 141.2345 7414.8136 7626.6656 7414.8136 0 6
fontsize = 8.0000
CurrentX = 282.4691
CurrentY = 7251.5050
print   37-08-00
Line 141.2345 6237.8590 7626.6656 6237.8590 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 6074.5504
print   37-10-00
Line 141.2345 5060.9045 7626.6656 5060.9045 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4897.5958
print   37-12-00
Line 141.2345 3883.9499 7626.6656 3883.9499 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3720.6412
print   37-14-00
Line 141.2345 2706.9953 7626.6656 2706.9953 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2543.6866
print   37-16-00
Line 141.2345 1530.0407 7626.6656 1530.0407 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1366.7321
print   37-18-00
Line 141.2345 353.0861 7626.6656 353.0861 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7775
print   37-20-00
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-04-00
SelectObject
DeleteObject
Line 1530.0410 7626.6655 1530.0410 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 88 523 10  127-06-00
SelectObject
DeleteObject
Line 2706.9954 7626.6655 2706.9954 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 166 523 10  127-08-00
SelectObject
DeleteObject
Line 3883.9500 7626.6655 3883.9500 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 245 523 10  127-10-00
SelectObject
DeleteObject
Line 5060.9046 7626.6655 5060.9046 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 323 523 10  127-12-00
SelectObject
DeleteObject
Line 6237.8591 7626.6655 6237.8591 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 402 523 10  127-14-00
SelectObject
DeleteObject
Line 7414.8141 7626.6655 7414.8141 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-16-00
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 1245.6462 4727.4970 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 1245.6462 4606.5370 1245.5539 4848.3969 0 6
Line 1124.6862 4727.4970 1366.5071 4727.4437 0 6
fontsize = 8.0000
CurrentX = 1033.7943
CurrentY = 4458.2624
print 가
DrawWidth = 2.0000
Circle 7130.4187 3746.7015 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 7130.4187 3625.7415 7130.5060 3867.7062 0 6
Line 7009.4588 3746.7015 7251.4594 3746.7530 0 6
fontsize = 8.0000
CurrentX = 6918.5671
CurrentY = 3477.4670
print B
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
