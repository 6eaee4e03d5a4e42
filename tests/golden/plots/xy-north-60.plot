kind XY
surface screen
size 8
box  420000
box  199960
box      80
box      20
point 420000.0 200011.223 가
point 420060.0 200003.741 나-2
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
print  420020
Line 141.2345 3883.9500 7626.6656 3883.9500 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3720.6414
print  420040
Line 141.2345 2118.5182 7626.6656 2118.5182 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1955.2095
print  420060
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  420080
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  199960
SelectObject
DeleteObject
Line 2118.5182 7626.6655 2118.5182 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 127 523 7  199980
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
TextOutA 363 523 7  200020
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 7  200040
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 4874.6219 7414.8136 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4874.6219 7293.8536 4874.2469 7536.1871 0 6
Line 4753.6620 7414.8136 4995.6203 7414.8136 0 6
fontsize = 8.0000
CurrentX = 4662.7704
CurrentY = 7145.5791
print 가
DrawWidth = 2.0000
Circle 4214.1741 2118.5182 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4214.1741 1997.5582 4213.5893 2239.8916 0 6
Line 4093.2142 2118.5182 4334.9627 2118.5182 0 6
fontsize = 8.0000
CurrentX = 4002.3222
CurrentY = 1849.2836
print 나-2
DrawWidth = 2.0000
Circle 3883.9500 7282.4062 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3883.9500 7161.4462 3883.9500 7403.7797 0 6
Line 3762.9901 7282.4062 4005.3234 7282.4062 0 6
fontsize = 8.0000
CurrentX = 3672.0980
CurrentY = 7013.1717
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
