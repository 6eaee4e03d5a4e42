kind XY
surface screen
size 8
box  420000
box  199500
box    1000
box     500
point 420000.0 200011.223 가
point 420600.5 200003.741 나-2
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
print  420500
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  421000
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  199500
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
TextOutA 480 523 7  200500
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3963.2038 7414.8136 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3963.2038 7293.8536 3963.1739 7535.7457 0 6
Line 3842.2439 7414.8136 4084.2160 7414.8136 0 6
fontsize = 8.0000
CurrentX = 3751.3518
CurrentY = 7145.5791
print 가
DrawWidth = 2.0000
Circle 3910.3681 3174.2464 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3910.3681 3053.2864 3910.3213 3295.1785 0 6
Line 3789.4082 3174.2464 4031.3634 3174.2464 0 6
fontsize = 8.0000
CurrentX = 3698.5161
CurrentY = 2905.0119
print 나-2
DrawWidth = 2.0000
Circle 3883.9500 7404.2210 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3883.9500 7283.2610 3883.9500 7525.1531 0 6
Line 3762.9901 7404.2210 4004.8822 7404.2210 0 6
fontsize = 8.0000
CurrentX = 3672.0980
CurrentY = 7134.9865
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
