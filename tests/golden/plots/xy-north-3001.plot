kind XY
surface screen
size 8
box  420000
box  198000
box    4000
box    2000
point 420000.0 200011.223 가
point 423001.0 200003.741 나-2
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
print  420000
Line 141.2345 3883.9500 7626.6656 3883.9500 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3720.6414
print  422000
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  424000
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  198000
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
TextOutA 480 523 7  202000
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3903.7633 7414.8136 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3903.7633 7293.8536 3903.7560 7535.8009 0 6
Line 3782.8035 7414.8136 4024.7154 7414.8136 0 6
fontsize = 8.0000
CurrentX = 3691.9118
CurrentY = 7145.5791
print 가
DrawWidth = 2.0000
Circle 3890.5543 2116.7528 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3890.5543 1995.7927 3890.5426 2237.7400 0 6
Line 3769.5944 2116.7528 4011.5025 2116.7528 0 6
fontsize = 8.0000
CurrentX = 3678.7028
CurrentY = 1847.5182
print 나-2
DrawWidth = 2.0000
Circle 3883.9500 7412.1655 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3883.9500 7291.2055 3883.9500 7533.1527 0 6
Line 3762.9901 7412.1655 4004.9095 7412.1655 0 6
fontsize = 8.0000
CurrentX = 3672.0980
CurrentY = 7142.9309
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
