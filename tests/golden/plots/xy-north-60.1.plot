kind XY
surface screen
size 8
box  420000
box  199950
box     100
box      50
point 420000.0 200011.223 가
point 420060.1 200003.741 나-2
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
print  420050
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  420100
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  199950
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
TextOutA 480 523 7  200050
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 4676.4877 7414.8136 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4676.4877 7293.8536 4676.1875 7536.1871 0 6
Line 4555.5278 7414.8136 4797.5609 7414.8136 0 6
fontsize = 8.0000
CurrentX = 4464.6357
CurrentY = 7145.5791
print 가
DrawWidth = 2.0000
Circle 4148.1294 3170.7155 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4148.1294 3049.7555 4147.6613 3292.5303 0 6
Line 4027.1695 3170.7155 4269.0348 3171.1569 0 6
fontsize = 8.0000
CurrentX = 3936.2774
CurrentY = 2901.4810
print 나-2
DrawWidth = 2.0000
Circle 3883.9500 7308.8877 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3883.9500 7187.9277 3883.9500 7430.2612 0 6
Line 3762.9901 7308.8877 4005.3234 7308.8877 0 6
fontsize = 8.0000
CurrentX = 3672.0980
CurrentY = 7039.6532
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
