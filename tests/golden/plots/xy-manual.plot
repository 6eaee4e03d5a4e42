kind XY
surface screen
size 6.5
manual 500000.0 200000.0 1000.0 200.0
point 500100.0 200100.0 가
point 490000.0 250000.0 밖
.
ForeColor = 0
Font = 굴림체
Cls
DrawWidth = 1.0000
Line 141.2345 7414.8136 7626.6656 7414.8136 0 6
fontsize = 6.5000
CurrentX = 282.4691
CurrentY = 7275.5050
print  500000
Line 141.2345 6002.4682 7626.6656 6002.4682 0 6
fontsize = 6.5000
CurrentX = -70.6173
CurrentY = 5863.1595
print  500200
Line 141.2345 4590.1227 7626.6656 4590.1227 0 6
fontsize = 6.5000
CurrentX = -70.6173
CurrentY = 4450.8141
print  500400
Line 141.2345 3177.7773 7626.6656 3177.7773 0 6
fontsize = 6.5000
CurrentX = -70.6173
CurrentY = 3038.4686
print  500600
Line 141.2345 1765.4318 7626.6656 1765.4318 0 6
fontsize = 6.5000
CurrentX = -70.6173
CurrentY = 1626.1232
print  500800
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 6.5000
CurrentX = -70.6173
CurrentY = 213.7777
print  501000
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 6.5000
CreateFontIndirectA 8 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  200000
SelectObject
DeleteObject
Line 1765.4318 7626.6655 1765.4318 141.2345 0 6
fontsize = 6.5000
CreateFontIndirectA 8 900 400 1 굴림체
SelectObject
TextOutA 104 523 7  200200
SelectObject
DeleteObject
Line 3177.7774 7626.6655 3177.7774 141.2345 0 6
fontsize = 6.5000
CreateFontIndirectA 8 900 400 1 굴림체
SelectObject
TextOutA 198 523 7  200400
SelectObject
DeleteObject
Line 4590.1226 7626.6655 4590.1226 141.2345 0 6
fontsize = 6.5000
CreateFontIndirectA 8 900 400 1 굴림체
SelectObject
TextOutA 292 523 7  200600
SelectObject
DeleteObject
Line 6002.4684 7626.6655 6002.4684 141.2345 0 6
fontsize = 6.5000
CreateFontIndirectA 8 900 400 1 굴림체
SelectObject
TextOutA 386 523 7  200800
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 6.5000
CreateFontIndirectA 8 900 400 1 굴림체
SelectObject
TextOutA 480 523 7  201000
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 1059.2591 6708.6409 30.7125 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 1059.2591 6610.3609 1059.2591 6806.8431 0 6
Line 960.9791 6708.6409 1157.5715 6708.6409 0 6
fontsize = 6.5000
CurrentX = 847.4073
CurrentY = 6463.4064
print 가
DrawWidth = 2.0000
Circle 353439.4500 78032.0864 30.7125 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 353439.4500 77933.8064 353439.4500 78130.2885 0 6
Line 353341.1663 78032.0864 353537.7614 78032.0864 0 6
fontsize = 6.5000
CurrentX = 353227.6002
CurrentY = 77786.8518
print 밖
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
