kind WGS
surface screen
size 8
box   37.1230
box  127.0525
box    0.0015
box    0.0005
point 37.20944444444444 127.09194444444445 가
point 37.212361111111115 127.0925 나-2
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
print   37-12-30
Line 141.2345 5060.9046 7626.6656 5060.9046 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 4897.5960
print   37-12-35
Line 141.2345 2706.9956 7626.6656 2706.9956 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 2543.6869
print   37-12-40
Line 141.2345 353.0866 7626.6656 353.0866 0 6
fontsize = 8.0000
CurrentX = -70.6173
CurrentY = 189.7779
print   37-12-45
Line 353.0864 7626.6655 353.0864 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 9 523 10  127-05-25
SelectObject
DeleteObject
Line 2706.9954 7626.6655 2706.9954 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 166 523 10  127-05-30
SelectObject
DeleteObject
Line 5060.9046 7626.6655 5060.9046 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 323 523 10  127-05-35
SelectObject
DeleteObject
Line 7414.8132 7626.6655 7414.8132 141.2345 0 6
fontsize = 8.0000
CreateFontIndirectA 10 900 400 1 굴림체
SelectObject
TextOutA 480 523 10  127-05-40
SelectObject
DeleteObject
DrawWidth = 2.0000
Circle 3176.3405 5529.5314 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3176.3405 5408.5714 3171.9154 5649.8129 0 6
Line 3055.3804 5529.5314 3301.2194 5526.9740 0 6
fontsize = 8.0000
CurrentX = 2964.4885
CurrentY = 5260.2968
print 가
DrawWidth = 2.0000
Circle 4117.9041 586.3226 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 4117.9041 465.3626 4115.8351 710.3970 0 6
Line 3996.9442 586.3226 4245.1391 587.5581 0 6
fontsize = 8.0000
CurrentX = 3906.0522
CurrentY = 317.0880
print 나-2
DrawWidth = 2.0000
Circle 3411.7313 4823.3587 37.8000 0 0.0000 0.0000 0.0000 0
DrawWidth = 1.0000
DrawWidth = 1.4000
Line 3411.7313 4702.3987 3417.5930 4945.1057 0 6
Line 3290.7712 4823.3587 3533.9668 4822.2668 0 6
fontsize = 8.0000
CurrentX = 3199.8795
CurrentY = 4554.1242
print C3
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8667.1591
print Kelvo Ver 3.5 Beta(2004.6.7)
fontsize = 10.0000
CurrentX = 141.2345
CurrentY = 8949.6282
print Data File = /home/user/data/test.dat  2004-06-07  09:30:00
