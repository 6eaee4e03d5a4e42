kind XY
surface screen
size 8
box  420000
box  199980
box      40
box      20
point 420000.0 200011.223 가
point 420030.0 200003.741 나-2
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
print  420020
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  420040
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  199980
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
TextOutA 480 523 7  200020
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 5865.2943 7414.8136 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 5865.2943 7293.8536 5864.5437 7536.1871 0 6
Line 5744.3344 7414.8136 5985.9172 7414.8136 0 6
fontsize = 8.0000
CurrentX = 5653.4423
CurrentY = 7145.5791
print 가
DrawWidth = 2.0000
Circle 4544.3982 2118.5182 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4544.3982 1997.5582 4543.2285 2239.8916 0 6
Line 4423.4384 2118.5182 4664.6020 2118.5182 0 6
fontsize = 8.0000
CurrentX = 4332.5463
CurrentY = 1849.2836
print 나-2
DrawWidth = 2.0000
Circle 3883.9500 7149.9989 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3883.9500 7029.0389 3883.9500 7271.3723 0 6
Line 3762.9901 7149.9989 4005.3234 7149.9989 0 6
fontsize = 8.0000
CurrentX = 3672.0980
CurrentY = 6880.7643
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
