kind WGS
surface screen
size 8
box   37.1234
box  127.0530
box    0.0005
box    0.0001
point 37.20944444444444 127.09194444444445 가
point 37.21076388888889 127.0925 나-2
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
print   37-12-34
Line 141.2345 6002.4682 7626.6656 6002.4682 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 5839.1595
print   37-12-35
Line 141.2345 4590.1227 7626.6656 4590.1227 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4426.8141
print   37-12-36
Line 141.2345 3177.7773 7626.6656 3177.7773 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3014.4686
print   37-12-37
Line 141.2345 1765.4318 7626.6656 1765.4318 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1602.1232
print   37-12-38
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print   37-12-39
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-05-30
SelectObject
DeleteObject
Line 1765.4318 7626.6655 1765.4318 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 104 523 10  127-05-31
SelectObject
DeleteObject
Line 3177.7774 7626.6655 3177.7774 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 198 523 10  127-05-32
SelectObject
DeleteObject
Line 4590.1226 7626.6655 4590.1226 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 292 523 10  127-05-33
SelectObject
DeleteObject
Line 6002.4684 7626.6655 6002.4684 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 386 523 10  127-05-34
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-05-35
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 1762.8457 7422.4857 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 1762.8457 7301.5257 1749.5705 7550.5829 0 6
Line 1641.8857 7422.4857 1865.9442 7414.8136 0 6
fontsize = 8.0000
CurrentX = 1550.9939
CurrentY = 7153.2511
print 가
DrawWidth = 2.0000
Circle 4587.5366 713.8449 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4587.5366 592.8849 4581.3299 839.7009 0 6
Line 4466.5768 713.8449 4697.7035 723.3272 0 6
fontsize = 8.0000
CurrentX = 4375.6847
CurrentY = 444.6104
print 나-2
DrawWidth = 2.0000
Circle 2469.0185 5303.9675 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 2469.0185 5183.0075 2486.6038 5417.0655 0 6
Line 2348.0584 5303.9675 2602.9774 5300.6918 0 6
fontsize = 8.0000
CurrentX = 2257.1665
CurrentY = 5034.7330
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
