kind WGS
surface screen
size 8
box   37.1230
box  127.0530
box    0.0025
box    0.0005
point 37.20944444444444 127.09194444444445 가
point 37.215 127.0975 B
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
Line 141.2345 6002.4682 7626.6656 6002.4682 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 5839.1595
print   37-12-35
Line 141.2345 4590.1227 7626.6656 4590.1227 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4426.8140
print   37-12-40
Line 141.2345 3177.7772 7626.6656 3177.7772 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3014.4686
print   37-12-45
Line 141.2345 1765.4317 7626.6656 1765.4317 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1602.1231
print   37-12-50
Line 141.2345 353.0862 7626.6656 353.0862 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7776
print   37-12-55
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-05-30
SelectObject
DeleteObject
Line 1765.4318 7626.6655 1765.4318 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 104 523 10  127-05-35
SelectObject
DeleteObject
Line 3177.7774 7626.6655 3177.7774 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 198 523 10  127-05-40
SelectObject
DeleteObject
Line 4590.1226 7626.6655 4590.1226 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 292 523 10  127-05-45
SelectObject
DeleteObject
Line 6002.4684 7626.6655 6002.4684 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 386 523 10  127-05-50
SelectObject
DeleteObject
Line 7414.8141 7626.6655 7414.8141 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-05-55
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 635.0383 6283.6442 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 635.0383 6162.6842 632.3832 6406.2418 0 6
Line 514.0783 6283.6442 756.5151 6282.1098 0 6
fontsize = 8.0000
CurrentX = 423.1864
CurrentY = 6014.4097
print 가
DrawWidth = 2.0000
Circle 6284.4202 634.2625 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 6284.4202 513.3025 6288.1439 754.3601 0 6
Line 6163.4603 634.2625 6404.5175 634.1073 0 6
fontsize = 8.0000
CurrentX = 6072.5682
CurrentY = 365.0279
print B
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
