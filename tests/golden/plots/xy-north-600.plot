kind XY
surface screen
size 8
box  420000
box  199600
box     800
box     200
point 420000.0 200011.223 가
point 420600.0 200003.741 나-2
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
Line 141.2345 5649.3818 7626.6656 5649.3818 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 5486.0732
print  420200
Line 141.2345 3883.9500 7626.6656 3883.9500 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3720.6414
print  420400
Line 141.2345 2118.5182 7626.6656 2118.5182 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1955.2095
print  420600
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  420800
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  199600
SelectObject
DeleteObject
Line 2118.5182 7626.6655 2118.5182 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 127 523 7  199800
SelectObject
DeleteObject
Line 3883.9500 7626.6655 3883.9500 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 245 523 7  200000
SelectObject
DeleteObject
Line 5649.3816 7626.6655 5649.3816 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 363 523 7  200200
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 7  200400
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3983.0171 7414.8136 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3983.0171 7293.8536 3982.9799 7535.9112 0 6
Line 3862.0572 7414.8136 4103.9394 7414.8136 0 6
fontsize = 8.0000
CurrentX = 3771.1656
CurrentY = 7145.5791
print 가
DrawWidth = 2.0000
Circle 3916.9724 2118.5182 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3916.9724 1997.5582 3916.9140 2239.6158 0 6
Line 3796.0125 2118.5182 4037.8734 2118.5182 0 6
fontsize = 8.0000
CurrentX = 3705.1204
CurrentY = 1849.2836
print 나-2
DrawWidth = 2.0000
Circle 3883.9500 7401.5729 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3883.9500 7280.6129 3883.9500 7522.6705 0 6
Line 3762.9901 7401.5729 4004.9095 7401.5729 0 6
fontsize = 8.0000
CurrentX = 3672.0980
CurrentY = 7132.3384
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
