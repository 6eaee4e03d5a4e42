kind XY
surface screen
size 8
box  419850
box  180000
box     350
box      50
point 420000.5 180000.0 가
point 420100.25 180300.0 B
.
ForeColor = 0
Font = 굴림체
Cls
DrawWidth = 1.0000
Line 141.2345 7414.8136 7626.6656 7414.8136 0 6
fontsize = 8.0000
CurrentX = 282.4691
CurrentY = 7251.5050
print  419850
Line 141.2345 6405.9955 7626.6656 6405.9955 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 6242.6868
print  419900
Line 141.2345 5397.1773 7626.6656 5397.1773 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 5233.8686
print  419950
Line 141.2345 4388.3591 7626.6656 4388.3591 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4225.0505
print  420000
Line 141.2345 3379.5409 7626.6656 3379.5409 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3216.2323
print  420050
Line 141.2345 2370.7227 7626.6656 2370.7227 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2207.4141
print  420100
Line 141.2345 1361.9045 7626.6656 1361.9045 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1198.5959
print  420150
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print  420200
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
TextOutA 77 523 7  180050
SelectObject
DeleteObject
Line 2370.7227 7626.6655 2370.7227 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 144 523 7  180100
SelectObject
DeleteObject
Line 3379.5410 7626.6655 3379.5410 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 211 523 7  180150
SelectObject
DeleteObject
Line 4388.3590 7626.6655 4388.3590 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 278 523 7  180200
SelectObject
DeleteObject
Line 5397.1771 7626.6655 5397.1771 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 346 523 7  180250
SelectObject
DeleteObject
Line 6405.9956 7626.6655 6405.9956 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 413 523 7  180300
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 7  180350
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 353.0864 4378.2709 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 353.0864 4257.3109 353.0864 4499.3291 0 6
Line 232.1264 4378.2709 474.1446 4378.2709 0 6
fontsize = 8.0000
CurrentX = 141.2345
CurrentY = 4109.0364
print 가
DrawWidth = 2.0000
Circle 6405.9956 2365.6786 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 6405.9956 2244.7186 6405.9956 2486.7368 0 6
Line 6285.0357 2365.6786 6527.0537 2365.6786 0 6
fontsize = 8.0000
CurrentX = 6194.1436
CurrentY = 2096.4441
print B
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
