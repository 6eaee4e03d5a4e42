kind WGS
surface screen
size 8
box   37.1234
box  127.0526
box    0.0012
box    0.0002
point 37.20944444444444 127.09194444444445 가
point 37.21222222222222 127.0925 나-2
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
Line 141.2345 6237.8591 7626.6656 6237.8591 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 6074.5505
print   37-12-36
Line 141.2345 5060.9045 7626.6656 5060.9045 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4897.5959
print   37-12-38
Line 141.2345 3883.9500 7626.6656 3883.9500 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 3720.6414
print   37-12-40
Line 141.2345 2706.9955 7626.6656 2706.9955 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2543.6868
print   37-12-42
Line 141.2345 1530.0409 7626.6656 1530.0409 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 1366.7323
print   37-12-44
Line 141.2345 353.0864 7626.6656 353.0864 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7777
print   37-12-46
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-05-26
SelectObject
DeleteObject
Line 1530.0409 7626.6655 1530.0409 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 88 523 10  127-05-28
SelectObject
DeleteObject
Line 2706.9954 7626.6655 2706.9954 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 166 523 10  127-05-30
SelectObject
DeleteObject
Line 3883.9500 7626.6655 3883.9500 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 245 523 10  127-05-32
SelectObject
DeleteObject
Line 5060.9046 7626.6655 5060.9046 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 323 523 10  127-05-34
SelectObject
DeleteObject
Line 6237.8591 7626.6655 6237.8591 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 402 523 10  127-05-36
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-05-38
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3300.2857 7418.0103 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3300.2857 7297.0503 3294.7542 7536.0362 0 6
Line 3179.3256 7418.0103 3424.0585 7414.8136 0 6
fontsize = 8.0000
CurrentX = 3088.4339
CurrentY = 7148.7758
print 가
DrawWidth = 2.0000
Circle 4477.2400 1533.2377 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4477.2400 1412.2777 4474.6540 1652.7003 0 6
Line 4356.2801 1533.2377 4603.9581 1531.4778 0 6
fontsize = 8.0000
CurrentX = 4265.3885
CurrentY = 1264.0032
print 나-2
DrawWidth = 2.0000
Circle 3594.5242 6535.2944 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3594.5242 6414.3344 3601.8516 6655.1521 0 6
Line 3473.5641 6535.2944 3714.9925 6533.9296 0 6
fontsize = 8.0000
CurrentX = 3382.6725
CurrentY = 6266.0599
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
