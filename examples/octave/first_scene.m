% The README's first Octave example: a scene built at the prompt, shown in a
% viewer window that stays live while Octave waits for input.
scene = VOR2.Scene();

box = VOR2.RectNode([0 0 100 60]);
style = box.DrawStyle;                  % a value: change the copy ...
style.Fill = VOR2.Fill([0.2 0.4 1.0]);
style.Stroke.Width = 2;
box.DrawStyle = style;                  % ... and assign it back
box.addTag('shape');
box.Selectable = true;
scene.addNode(box);

label = VOR2.TextNode('Hello, VOR2', [10 20]);
label.Parent = box;                     % children move, stack and die with their parent

hits = scene.nodesAtScenePos([15 15]);  % a cell of nodes, topmost first
printf('%d node(s) at (15, 15); the first is a %s\n', numel(hits), class(hits{1}));

viewer = VOR2.Viewer(scene);
viewer.show();                          % pan, zoom and select in the window while the prompt waits
viewer.Canvas.zoomToSceneRect();
