kind XY
surface screen
size 8
box  420000
box  180000
box   40000
box   20000
point 420000.0 200011.223 가
point 450001.0 200003.741 나-2
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
print  440000
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  460000
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  180000
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
TextOutA 480 523 7  220000
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3885.9312 7414.8136 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3885.9312 7293.8536 3885.9304 7535.7733 0 6
Line 3764.9714 7414.8136 4006.8903 7414.8136 0 6
fontsize = 8.0000
CurrentX = 3674.0797
CurrentY = 7145.5791
print 가
DrawWidth = 2.0000
Circle 3884.6106 2118.3416 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3884.6106 1997.3816 3884.6093 2239.3013 0 6
Line 3763.6507 2118.3416 4005.5717 2118.3416 0 6
fontsize = 8.0000
CurrentX = 3672.7586
CurrentY = 1849.1071
print 나-2
DrawWidth = 2.0000
Circle 3883.9500 7414.5488 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3883.9500 7293.5888 3883.9500 7535.5085 0 6
Line 3762.9901 7414.5488 4004.9095 7414.5488 0 6
fontsize = 8.0000
CurrentX = 3672.0980
CurrentY = 7145.3143
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
