kind WGS
surface screen
size 8
box   37.1234
box  127.0530
box    0.0006
box    0.0002
point 37.20944444444444 127.09194444444445 가
point 37.21083333333333 127.0925 나-2
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
Line 141.2345 5060.9045 7626.6656 5060.9045 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4897.5959
print   37-12-36
Line 141.2345 2706.9955 7626.6656 2706.9955 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2543.6868
print   37-12-38
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print   37-12-40
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-05-30
SelectObject
DeleteObject
Line 2706.9954 7626.6655 2706.9954 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 166 523 10  127-05-32
SelectObject
DeleteObject
Line 5060.9046 7626.6655 5060.9046 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 323 523 10  127-05-34
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-05-36
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 1527.8858 7421.2070 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 1527.8858 7300.2470 1516.8231 7544.1177 0 6
Line 1406.9259 7421.2070 1646.1272 7414.8136 0 6
fontsize = 8.0000
CurrentX = 1316.0340
CurrentY = 7151.9725
print 가
DrawWidth = 2.0000
Circle 3881.7949 1536.4344 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3881.7949 1415.4744 3876.6228 1660.7818 0 6
Line 3760.8350 1536.4344 4005.9269 1531.4778 0 6
fontsize = 8.0000
CurrentX = 3669.9429
CurrentY = 1267.1999
print 나-2
DrawWidth = 2.0000
Circle 2116.3630 5655.7752 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 2116.3630 5534.8152 2131.0175 5782.3496 0 6
Line 1995.4029 5655.7752 2227.9957 5653.0455 0 6
fontsize = 8.0000
CurrentX = 1904.5113
CurrentY = 5386.5407
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
