kind XY
surface screen
size 8
box  420000
box  195000
box   10000
box    5000
point 420000.0 200011.223 가
point 426001.0 200003.741 나-2
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
print  425000
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  430000
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  195000
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
TextOutA 480 523 7  205000
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3891.8754 7414.8136 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3891.8754 7293.8536 3891.8724 7535.7678 0 6
Line 3770.9155 7414.8136 4012.8375 7414.8136 0 6
fontsize = 8.0000
CurrentX = 3680.0235
CurrentY = 7145.5791
print 가
DrawWidth = 2.0000
Circle 3886.5918 3177.0711 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3886.5918 3056.1111 3886.5870 3298.0252 0 6
Line 3765.6319 3177.0711 4007.5521 3177.0711 0 6
fontsize = 8.0000
CurrentX = 3674.7398
CurrentY = 2907.8366
print 나-2
DrawWidth = 2.0000
Circle 3883.9500 7413.7544 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3883.9500 7292.7944 3883.9500 7534.7085 0 6
Line 3762.9901 7413.7544 4004.9151 7413.7544 0 6
fontsize = 8.0000
CurrentX = 3672.0980
CurrentY = 7144.5198
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
