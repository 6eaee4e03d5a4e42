kind UGS
surface screen
size 8
box   37.1000
box  126.5500
box    0.2000
box    0.0500
point 37.20944444444444 127.09194444444445 가
point 37.48722222222222 127.0925 나-2
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
print   37-10-00
Line 141.2345 5649.3818 7626.6656 5649.3818 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 5486.0732
print   37-15-00
Line 141.2345 3883.9500 7626.6656 3883.9500 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3720.6414
print   37-20-00
Line 141.2345 2118.5182 7626.6656 2118.5182 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1955.2095
print   37-25-00
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print   37-30-00
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  126-55-00
SelectObject
DeleteObject
Line 2118.5182 7626.6655 2118.5182 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 127 523 10  127-00-00
SelectObject
DeleteObject
Line 3883.9500 7626.6655 3883.9500 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 245 523 10  127-05-00
SelectObject
DeleteObject
Line 5649.3816 7626.6655 5649.3816 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 363 523 10  127-10-00
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-15-00
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 4066.4319 6508.5856 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4066.4319 6387.6256 4066.3766 6629.5338 0 6
Line 3945.4720 6508.5856 4187.4372 6508.5536 0 6
fontsize = 8.0000
CurrentX = 3854.5800
CurrentY = 6239.3511
print 가
DrawWidth = 2.0000
Circle 4078.2013 623.8130 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4078.2013 502.8530 4078.1754 744.7433 0 6
Line 3957.2414 623.8130 4199.2365 623.8439 0 6
fontsize = 8.0000
CurrentX = 3866.3493
CurrentY = 354.5785
print 나-2
DrawWidth = 2.0000
Circle 4069.3740 6499.7584 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4069.3740 6378.7984 4069.4475 6620.7249 0 6
Line 3948.4141 6499.7584 4190.3468 6499.7448 0 6
fontsize = 8.0000
CurrentX = 3857.5224
CurrentY = 6230.5239
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
