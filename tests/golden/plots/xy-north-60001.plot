kind XY
surface screen
size 8
box  400000
box  150000
box  100000
box   50000
point 420000.0 200011.223 가
point 480001.0 200003.741 나-2
point 420001.5 200000.0 C3
.
ForeColor = 0
Font = 굴림체
Cls
DrawWidth = 1.0000
Line 141.2345 7414.8136 7626.6656 7414.8136 0 6
fontsize = 8.0000
CurrentX = 282.4691
CurrentY = 7251.5050
print  400000
Line 141.2345 3883.9500 7626.6656 3883.9500 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3720.6414
print  450000
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  500000
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  150000
SelectObject
DeleteObject
Line 3883.9500 7626.6655 3883.9500 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 245 523 7  200000
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 7  250000
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3884.7425 6002.4682 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3884.7425 5881.5082 3884.7421 6123.4289 0 6
Line 3763.7826 6002.4682 4005.7028 6002.4682 0 6
fontsize = 8.0000
CurrentX = 3672.8905
CurrentY = 5733.2336
print 가
DrawWidth = 2.0000
Circle 3884.2143 1765.3612 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3884.2143 1644.4012 3884.2147 1886.3220 0 6
Line 3763.2544 1765.3612 4005.1746 1765.3612 0 6
fontsize = 8.0000
CurrentX = 3672.3623
CurrentY = 1496.1267
print 나-2
DrawWidth = 2.0000
Circle 3883.9500 6002.3623 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3883.9500 5881.4022 3883.9500 6123.3230 0 6
Line 3762.9901 6002.3623 4004.9095 6002.3623 0 6
fontsize = 8.0000
CurrentX = 3672.0980
CurrentY = 5733.1277
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
