kind XY
surface screen
size 8
box  420000
box  199800
box     400
box     200
point 420000.0 200011.223 가
point 420301.0 200003.741 나-2
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
print  420200
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  420400
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  199800
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
TextOutA 480 523 7  200200
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 4082.0842 7414.8136 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4082.0842 7293.8536 4082.0094 7535.6354 0 6
Line 3961.1243 7414.8136 4203.1068 7414.8136 0 6
fontsize = 8.0000
CurrentX = 3870.2327
CurrentY = 7145.5791
print 가
DrawWidth = 2.0000
Circle 3949.9947 2100.8639 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3949.9947 1979.9039 3949.8779 2221.6856 0 6
Line 3829.0349 2100.8639 4070.9754 2100.8639 0 6
fontsize = 8.0000
CurrentX = 3738.1432
CurrentY = 1831.6293
print 나-2
DrawWidth = 2.0000
Circle 3883.9500 7388.3322 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3883.9500 7267.3722 3883.9500 7509.1539 0 6
Line 3762.9901 7388.3322 4005.0474 7388.3322 0 6
fontsize = 8.0000
CurrentX = 3672.0980
CurrentY = 7119.0976
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
