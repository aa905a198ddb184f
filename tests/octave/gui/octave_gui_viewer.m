% Run by "octave --gui": the package beside Octave's own QApplication, whose
% interpreter thread keeps its Qt dispatcher. A viewer opens, zooms and
% shows a selection; the session ends with status 0 only when all of that
% read back as set.
try
  s = VOR2.Scene();
  r = VOR2.RectNode([0 0 100 60]);
  r.Selectable = true;
  s.addNode(r);
  v = VOR2.Viewer(s);
  v.showAt([100 100 400 300]);
  VOR2.pump(0.5);
  v.Canvas.zoomToSceneRect();
  r.Selected = true;
  VOR2.pump(0.5);
  assert(v.Canvas.Scale > 1);
  assert(r.Selected);
  assert(s.selection(){1} == r);
  v.close();
  VOR2.pump(0.2);
catch err
  fprintf(2, 'octave_gui_viewer: %s\n', err.message);
  exit(1);
end
exit(0);
