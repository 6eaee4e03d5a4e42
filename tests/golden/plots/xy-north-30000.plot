kind XY
surface screen
size 8
box  420000
box  180000
box   35000
box    5000
point 420000.0 200011.223 가
point 450000.0 200003.741 나-2
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
Line 141.2345 6405.9955 7626.6656 6405.9955 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 6242.6868
print  425000
Line 141.2345 5397.1773 7626.6656 5397.1773 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 5233.8686
print  430000
Line 141.2345 4388.3591 7626.6656 4388.3591 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4225.0505
print  435000
Line 141.2345 3379.5409 7626.6656 3379.5409 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3216.2323
print  440000
Line 141.2345 2370.7227 7626.6656 2370.7227 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2207.4141
print  445000
Line 141.2345 1361.9045 7626.6656 1361.9045 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1198.5959
print  450000
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  455000
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 7  180000
SelectObject
DeleteObject
Line 1361.9045 7626.6655 1361.9045 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 77 523 7  185000
SelectObject
DeleteObject
Line 2370.7227 7626.6655 2370.7227 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 144 523 7  190000
SelectObject
DeleteObject
Line 3379.5410 7626.6655 3379.5410 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 211 523 7  195000
SelectObject
DeleteObject
Line 4388.3590 7626.6655 4388.3590 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 278 523 7  200000
SelectObject
DeleteObject
Line 5397.1771 7626.6655 5397.1771 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 346 523 7  205000
SelectObject
DeleteObject
Line 6405.9956 7626.6655 6405.9956 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 413 523 7  210000
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 7  215000
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 4390.6236 7414.8136 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4390.6236 7293.8536 4390.6228 7535.7709 0 6
Line 4269.6637 7414.8136 4511.5831 7414.8136 0 6
fontsize = 8.0000
CurrentX = 4178.7717
CurrentY = 7145.5791
print 가
DrawWidth = 2.0000
Circle 4389.1139 1361.9045 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4389.1139 1240.9445 4389.1126 1482.8618 0 6
Line 4268.1540 1361.9045 4510.0729 1361.9045 0 6
fontsize = 8.0000
CurrentX = 4177.2619
CurrentY = 1092.6700
print 나-2
DrawWidth = 2.0000
Circle 4388.3590 7414.5110 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4388.3590 7293.5510 4388.3590 7535.4683 0 6
Line 4267.3992 7414.5110 4509.3194 7414.5110 0 6
fontsize = 8.0000
CurrentX = 4176.5071
CurrentY = 7145.2764
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
